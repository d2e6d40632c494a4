// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <windows.h>

/// Sets the rights to files on Windows.
namespace file_rules {

/// The user of this process, such as "S-1-5-21-0-0-0-1000"; empty if Windows does not say.
QString sidOfThisUser();

/// Gives a file or folder the rules of a security descriptor, which is written as in
/// https://learn.microsoft.com/windows/win32/secauthz/security-descriptor-string-format
/// Returns an error of Windows.
DWORD set(const QString& path, const QString& descriptor);

} // namespace file_rules
