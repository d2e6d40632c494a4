// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <windows.h>

/// Who may do what with a file or folder, as far as it matters for secrets and for programs that
/// run with the system's rights.
namespace file_rights {

/// Rights that let somebody read a file's contents, or give himself that right.
inline constexpr DWORD read = FILE_READ_DATA | WRITE_DAC | WRITE_OWNER | GENERIC_READ | GENERIC_ALL;
/// Rights that let somebody change a file, put another in its place, or give himself that right.
/// For a folder they are those of creating files and folders in it.
inline constexpr DWORD change = FILE_WRITE_DATA | FILE_APPEND_DATA | FILE_DELETE_CHILD | DELETE |
                                WRITE_DAC | WRITE_OWNER | GENERIC_WRITE | GENERIC_ALL;
/// The right to put something else in the place of a file in a folder.
inline constexpr DWORD replaceInFolder =
    FILE_DELETE_CHILD | DELETE | WRITE_DAC | WRITE_OWNER | GENERIC_ALL;

enum class Trusted
{
    SystemAndThisUser, ///< the administrators, the system, and the user of this process
    SystemOnly,        ///< the administrators and the system
};

struct Others
{
    /// The accounts, such as "BUILTIN\Users", that have any of the rights and are not trusted. The
    /// owner is among them, because he may give himself every right. Rules that deny something are
    /// not taken into account.
    QStringList accounts;
    DWORD error = ERROR_SUCCESS; ///< why the rights could not be read
};
Others others(const QString& path, DWORD rights, Trusted trusted = Trusted::SystemAndThisUser);
/// The same with the owner and the rules of a file; null: there are no rules.
Others others(PSID owner, PACL rules, DWORD rights, Trusted trusted);

/// The account of this process, such as "NT AUTHORITY\SYSTEM".
QString accountOfThisProcess();

} // namespace file_rights
