// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "doctor_system.h"

#include "tool_text.h"
#include "windowserrors.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <array>
#include <memory>
#include <type_traits>
#include <vector>

#include <winspool.h>
#include <winsvc.h>

namespace {

using doctor_system::CallFailure;
using doctor_system::RawValue;

struct ClosesPrinter
{
    void operator()(HANDLE printer) const { ClosePrinter(printer); }
};
using PrinterHandle = std::unique_ptr<std::remove_pointer_t<HANDLE>, ClosesPrinter>;

struct ClosesService
{
    void operator()(SC_HANDLE service) const { CloseServiceHandle(service); }
};
using ServiceHandle = std::unique_ptr<std::remove_pointer_t<SC_HANDLE>, ClosesService>;

CallFailure failureOf(const char* function)
{
    return {function, GetLastError()};
}

const WCHAR* wide(const char16_t* text)
{
    return reinterpret_cast<const WCHAR*>(text);
}

/// Opens a printer as the library does: by its name in the system's 8-bit encoding.
std::variant<PrinterHandle, CallFailure> open(const QString& printer)
{
    HANDLE handle = nullptr;
    if (!OpenPrinterA(printer.toLocal8Bit().data(), &handle, nullptr))
        return failureOf("OpenPrinterA");
    return PrinterHandle(handle);
}

RawValue valueOf(HANDLE printer, const char* name)
{
    RawValue value;
    // A first block that holds every valid value.
    constexpr DWORD usualSize = 256;
    for (DWORD size = usualSize; size <= doctor_system::mostBytes; size = value.size) {
        value.data = QByteArray(static_cast<qsizetype>(size), '\0');
        value.error =
            GetPrinterDataA(printer, const_cast<char*>(name), &value.type,
                            reinterpret_cast<BYTE*>(value.data.data()), size, &value.size);
        if (value.error != ERROR_MORE_DATA || value.size <= size)
            break;
    }
    value.data.truncate(value.error == ERROR_SUCCESS ? static_cast<qsizetype>(value.size) : 0);
    return value;
}

struct Flag
{
    DWORD bit;
    const char* name;
};

// https://learn.microsoft.com/windows/win32/printdocs/printer-info-2
constexpr std::array flags{
    Flag{0x00000001, "PAUSED"},
    Flag{0x00000002, "ERROR"},
    Flag{0x00000004, "PENDING_DELETION"},
    Flag{0x00000008, "PAPER_JAM"},
    Flag{0x00000010, "PAPER_OUT"},
    Flag{0x00000020, "MANUAL_FEED"},
    Flag{0x00000040, "PAPER_PROBLEM"},
    Flag{0x00000080, "OFFLINE"},
    Flag{0x00000100, "IO_ACTIVE"},
    Flag{0x00000200, "BUSY"},
    Flag{0x00000400, "PRINTING"},
    Flag{0x00000800, "OUTPUT_BIN_FULL"},
    Flag{0x00001000, "NOT_AVAILABLE"},
    Flag{0x00002000, "WAITING"},
    Flag{0x00004000, "PROCESSING"},
    Flag{0x00008000, "INITIALIZING"},
    Flag{0x00010000, "WARMING_UP"},
    Flag{0x00020000, "TONER_LOW"},
    Flag{0x00040000, "NO_TONER"},
    Flag{0x00080000, "PAGE_PUNT"},
    Flag{0x00100000, "USER_INTERVENTION"},
    Flag{0x00200000, "OUT_OF_MEMORY"},
    Flag{0x00400000, "DOOR_OPEN"},
    Flag{0x00800000, "SERVER_UNKNOWN"},
    Flag{0x01000000, "POWER_SAVE"},
};

// https://learn.microsoft.com/windows/win32/sysinfo/registry-value-types
constexpr std::array types{"REG_NONE",   "REG_SZ",      "REG_EXPAND_SZ",
                           "REG_BINARY", "REG_DWORD",   "REG_DWORD_BIG_ENDIAN",
                           "REG_LINK",   "REG_MULTI_SZ"};

} // namespace

QString CallFailure::text() const
{
    return ToolText::tr("%1 failed: %2 (error %3).")
        .arg(QString::fromLatin1(function), windows_errors::winError(error))
        .arg(error);
}

std::variant<DWORD, CallFailure> doctor_system::spoolerState()
{
    const ServiceHandle manager(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT));
    if (!manager)
        return failureOf("OpenSCManagerW");
    const ServiceHandle service(
        OpenServiceW(manager.get(), wide(u"Spooler"), SERVICE_QUERY_STATUS));
    if (!service)
        return failureOf("OpenServiceW");
    SERVICE_STATUS status{};
    if (!QueryServiceStatus(service.get(), &status))
        return failureOf("QueryServiceStatus");
    return status.dwCurrentState;
}

std::variant<DWORD, CallFailure> doctor_system::countPrinters()
{
    constexpr DWORD localAndConnected = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
    constexpr DWORD level = 2;
    // A printer that is added between the two calls makes the block too small.
    constexpr int attempts = 3;
    std::vector<PRINTER_INFO_2W> block;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        DWORD needed = 0;
        DWORD count = 0;
        const auto size = static_cast<DWORD>(block.size() * sizeof(PRINTER_INFO_2W));
        if (EnumPrintersW(localAndConnected, nullptr, level, reinterpret_cast<BYTE*>(block.data()),
                          size, &needed, &count))
            return count;
        if (GetLastError() != ERROR_INSUFFICIENT_BUFFER)
            break;
        block.resize(needed / sizeof(PRINTER_INFO_2W) + 1);
    }
    return failureOf("EnumPrintersW");
}

std::variant<doctor_system::PrinterRecord, CallFailure>
doctor_system::printerRecord(const QString& printer)
{
    auto opened = open(printer);
    if (const auto* const failure = std::get_if<CallFailure>(&opened))
        return *failure;
    HANDLE const handle = std::get<PrinterHandle>(opened).get();
    constexpr DWORD level = 2;
    DWORD needed = 0;
    if (!GetPrinterW(handle, level, nullptr, 0, &needed) &&
        GetLastError() != ERROR_INSUFFICIENT_BUFFER)
        return failureOf("GetPrinterW");
    // Aligned as the record is.
    std::vector<PRINTER_INFO_2W> block(needed / sizeof(PRINTER_INFO_2W) + 1);
    if (!GetPrinterW(handle, level, reinterpret_cast<BYTE*>(block.data()),
                     static_cast<DWORD>(block.size() * sizeof(PRINTER_INFO_2W)), &needed))
        return failureOf("GetPrinterW");
    const PRINTER_INFO_2W& record = block.front();
    return PrinterRecord{
        record.pPortName ? QString::fromUtf16(reinterpret_cast<const char16_t*>(record.pPortName))
                         : QString(),
        record.Attributes, record.Status};
}

std::variant<QList<RawValue>, CallFailure>
doctor_system::printerValues(const QString& printer, const QList<const char*>& names)
{
    auto opened = open(printer);
    if (const auto* const failure = std::get_if<CallFailure>(&opened))
        return *failure;
    QList<RawValue> values;
    for (const char* const name : names)
        values.append(valueOf(std::get<PrinterHandle>(opened).get(), name));
    return values;
}

QString doctor_system::statusFlags(DWORD status)
{
    QStringList names;
    DWORD unknown = status;
    for (const Flag& flag : flags) {
        if ((status & flag.bit) != 0)
            names.append(QString::fromLatin1(flag.name));
        unknown &= ~flag.bit;
    }
    if (unknown != 0)
        names.append(QStringLiteral("0x%1").arg(unknown, 0, 16));
    return names.join(QStringLiteral(", "));
}

QString doctor_system::typeName(DWORD type)
{
    constexpr DWORD qword = 11;
    if (type == qword)
        return QStringLiteral("REG_QWORD");
    return type < types.size() ? QString::fromLatin1(types.at(type)) : QString::number(type);
}
