// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <functional>
#include <optional>

/// The lines of the library's log, as case files hold them.
namespace VxKit::case_log {

/// Whether the library writes lines of its log with this place.
bool isLine(const QString& file, int number, const QString& function);

/// What to write in place of the texts of a message.
struct Replacements
{
    std::function<QString(const QString&)> printer;
    std::function<bool(const QString&)> isPrinter;
    std::function<QString(const QString&)> driver;
    std::function<QString(const QString&)> sku;
    std::function<QString(const QString&)> name; ///< of a colour or a material
};

/// The message with its texts replaced; without a value when it is not of the form that the library
/// gives it.
std::optional<QString> redactedMessage(const QString& file, int number, const QString& message,
                                       const Replacements& replacements);

} // namespace VxKit::case_log
