// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "output.h"

#include <printer_reading.h>

/// What `status` shows.
namespace status_screen {

/// Prints one line for each printer of which the controller has a record, and names the others.
void printTable(Output& output, const QList<VxKit::PrinterReading>& readings,
                const QString& activePrinter);
/// Prints one line for each detail of a printer.
void printDetails(Output& output, const VxKit::PrinterReading& reading);

} // namespace status_screen
