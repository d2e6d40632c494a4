// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// Texts for the error codes of Windows calls.
namespace windows_errors {

/// The description of a code from `GetLastError`, on one line. On Windows it is the system's own
/// text in the user's language; elsewhere there are English texts for the codes that occur in
/// printing. Never empty: for a code without a description the text contains the number.
QString winError(unsigned long code);

} // namespace windows_errors
