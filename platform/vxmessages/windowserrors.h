// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// Texts for the error codes of Windows calls.
namespace WindowsErrors {

/// What the code that `GetLastError` gave means, on one line. On Windows the system's own text in
/// the user's language; elsewhere an English text for the codes that printing meets. Never empty: a
/// code without a text is named by its number.
QString winError(unsigned long code);

} // namespace WindowsErrors
