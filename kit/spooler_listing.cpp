// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "spooler_listing.h"

#include "windows_printer_info.h"

#include <QtCore/QHash>

#include <exception>
#include <limits>
#include <vector>

#include <windows.h>
#include <winspool.h>

namespace VxKit {

namespace {

constexpr int lastUnsupportedType = 100;

QString fromWide(const WCHAR* text)
{
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(text));
}

/// The full names of the ports of all printers, by printer. Without a value when the spooler does
/// not answer, which `WindowsPrinterInfo::getAvailablePrinters()` does not tell from a spooler
/// without printers.
std::optional<QHash<QString, QString>> portsOfPrinters()
{
    constexpr DWORD localAndConnected = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
    constexpr DWORD level = 5;
    // A printer that is added between the two calls makes the block too small.
    constexpr int attempts = 3;

    // Aligned as the records are.
    std::vector<PRINTER_INFO_5W> block;
    const auto blockBytes = [&block] {
        return static_cast<DWORD>(block.size() * sizeof(PRINTER_INFO_5W));
    };
    for (int attempt = 0; attempt < attempts; ++attempt) {
        DWORD needed = 0;
        DWORD count = 0;
        if (EnumPrintersW(localAndConnected, nullptr, level, reinterpret_cast<BYTE*>(block.data()),
                          blockBytes(), &needed, &count)) {
            QHash<QString, QString> ports;
            ports.reserve(static_cast<qsizetype>(count));
            for (std::size_t index = 0; index < count; ++index)
                ports.insert(fromWide(block[index].pPrinterName), fromWide(block[index].pPortName));
            return ports;
        }
        if (GetLastError() != ERROR_INSUFFICIENT_BUFFER || needed <= blockBytes())
            return std::nullopt;
        block.resize(needed / sizeof(PRINTER_INFO_5W) + 1);
    }
    return std::nullopt;
}

/// The number of a USB port, which is 1 for USB001. `AvailablePrinters` holds the name without
/// "USB", which does not tell USB001 from a port of another kind that is called 001.
std::optional<unsigned short> usbPort(const QString& portName)
{
    constexpr QLatin1String prefix("USB");
    if (!portName.startsWith(prefix, Qt::CaseInsensitive))
        return std::nullopt;
    const QStringView digits = QStringView(portName).sliced(prefix.size());
    for (const QChar digit : digits) {
        if (digit < u'0' || digit > u'9')
            return std::nullopt;
    }
    bool isNumber = false;
    const ushort port = digits.toUShort(&isNumber);
    return isNumber ? std::optional<unsigned short>(port) : std::nullopt;
}

} // namespace

std::optional<QList<ListedPrinter>> listPrinters()
{
    const auto ports = portsOfPrinters();
    if (!ports)
        return std::nullopt;
    if (ports->isEmpty())
        return QList<ListedPrinter>();

    QList<AvailablePrinters> all;
    try {
        all = WindowsPrinterInfo::getAvailablePrinters();
    } catch (const std::exception&) {
        return std::nullopt;
    }
    // The spooler has just listed printers, so this listing has failed.
    if (all.isEmpty())
        return std::nullopt;

    std::optional<QHash<unsigned short, QString>> serialNumbers;
    QList<ListedPrinter> listed;
    listed.reserve(all.size());
    for (const AvailablePrinters& printer : std::as_const(all)) {
        const auto model = WindowsPrinterInfo::printerType(printer.driverName);
        if (static_cast<int>(model) <= lastUnsupportedType)
            continue;
        ListedPrinter entry{printer.printerName, model, printer.driverName,
                            printer.portName,    {},    printer.isOffline};
        const auto port = usbPort(ports->value(printer.printerName));
        if (port && !printer.isNetworkPrinter) {
            if (!serialNumbers)
                serialNumbers = WindowsPrinterInfo::getDeviceSerialNumbers();
            entry.serialNumber = serialNumbers->value(*port);
        }
        listed.append(entry);
    }
    return listed;
}

} // namespace VxKit
