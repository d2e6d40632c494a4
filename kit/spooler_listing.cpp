// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "spooler_listing.h"

#include "growing_block.h"
#include "spooler_owners.h"

#include "windows_printer_info.h"

#include <QtCore/QHash>

#include <exception>
#include <span>
#include <vector>

namespace VxKit {

namespace {

/// The full names of the ports of all printers, by printer. Without a value when the spooler does
/// not answer, which `WindowsPrinterInfo::getAvailablePrinters()` does not tell from a spooler
/// without printers.
std::optional<QHash<QString, QString>> portsOfPrinters()
{
    std::vector<BYTE> block;
    DWORD count = 0;
    const bool isListed = fillBlock(block, [&](LPBYTE start, DWORD size, DWORD* needed) {
        return EnumPrintersW(PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS, nullptr, 5, start, size,
                             needed, &count);
    });
    if (!isListed)
        return std::nullopt;
    QHash<QString, QString> ports;
    ports.reserve(static_cast<qsizetype>(count));
    for (const PRINTER_INFO_5W& printer :
         std::span(reinterpret_cast<const PRINTER_INFO_5W*>(block.data()), count))
        ports.insert(textFrom(printer.pPrinterName), textFrom(printer.pPortName));
    return ports;
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

std::optional<QList<SpooledPrinter>> listPrinters()
{
    const auto ports = portsOfPrinters();
    if (!ports)
        return std::nullopt;
    if (ports->isEmpty())
        return QList<SpooledPrinter>();

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
    QList<SpooledPrinter> listed;
    listed.reserve(all.size());
    for (const AvailablePrinters& printer : std::as_const(all)) {
        const auto model = WindowsPrinterInfo::printerType(printer.driverName);
        if (!VXPrinting::isSupported(model) || printer.printerName.isEmpty())
            continue;
        SpooledPrinter entry{printer.printerName, model, printer.driverName,
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
