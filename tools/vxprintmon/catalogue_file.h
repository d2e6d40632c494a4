// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

class Output;
class PrinterStatusController;
struct CommandLine;

/// The catalogue of supplies and ribbons.
namespace catalogue_file {

/// The file that the command line or the environment variable VX_ROLL_DB names; empty when the
/// default is meant.
QString named(const CommandLine& line);

/// The same, but `defaultCatalogue()` where that is meant.
QString path(const CommandLine& line);

/// Lets the controller use that file. If nothing can be read from the file, that is said once, with
/// what to do; the command goes on, because only names and percentages are missing then. Call it
/// before anything asks for a name.
void use(const CommandLine& line, PrinterStatusController& controller, const Output& output);

} // namespace catalogue_file
