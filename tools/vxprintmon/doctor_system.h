// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>
#include <variant>

#include <windows.h>

/// The Windows calls of `vxprintmon doctor`.
namespace doctor_system {

/// A call that failed.
struct CallFailure
{
    const char* function = "";
    DWORD error = 0;

    /// The call, the system's words and the number.
    QString text() const;
};

/// The state of the service "Spooler": SERVICE_RUNNING and the like.
std::variant<DWORD, CallFailure> spoolerState();

/// How many printers the spooler lists.
std::variant<DWORD, CallFailure> countPrinters();

/// What the spooler knows of a printer, as far as it is checked.
struct PrinterRecord
{
    QString port;
    DWORD attributes = 0;
    DWORD status = 0;
};
std::variant<PrinterRecord, CallFailure> printerRecord(const QString& printer);

/// A value that a driver publishes.
struct RawValue
{
    DWORD error = 0; ///< ERROR_SUCCESS, ERROR_FILE_NOT_FOUND for a value that is not published, …
    DWORD type = 0;
    DWORD size = 0;
    QByteArray data; ///< at most `mostBytes`
};
inline constexpr DWORD mostBytes = 4096;

/// The values with these names, in the same order.
std::variant<QList<RawValue>, CallFailure> printerValues(const QString& printer,
                                                         const QList<const char*>& names);

/// The names of the flags of a printer's status, as in Windows' headers without their prefix.
QString statusFlags(DWORD status);

/// The name of a registry type.
QString typeName(DWORD type);

} // namespace doctor_system
