// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include "printer_types.h"
#include "windows_printer_info.h"

#include <QtCore/QMetaEnum>

using VXPrinting::PrinterType;

namespace {

QString modelName(PrinterType type)
{
    switch (type) {
    case PrinterType::Unknown:
        return QStringLiteral("-");
    case PrinterType::Generic:
        return QStringLiteral("other");
    default:
        return QString::fromLatin1(
            QMetaEnum::fromType<PrinterType>().valueToKey(static_cast<int>(type)));
    }
}

QString jsonRecord(const AvailablePrinters& printer)
{
    return Output::jsonObject({
        {QStringLiteral("printerName"), printer.printerName},
        {QStringLiteral("portName"), printer.portName},
        {QStringLiteral("driverName"), printer.driverName},
        {QStringLiteral("serialNumber"), printer.serialNumber},
        {QStringLiteral("isNetworkPrinter"), printer.isNetworkPrinter},
        {QStringLiteral("isShared"), printer.isShared},
        {QStringLiteral("isOffline"), printer.isOffline},
        {QStringLiteral("printerType"),
         static_cast<int>(WindowsPrinterInfo::printerType(printer.driverName))},
    });
}

Cell flags(const AvailablePrinters& printer, bool isDefault)
{
    QStringList words;
    if (isDefault)
        words.append(QStringLiteral("default"));
    if (printer.isNetworkPrinter)
        words.append(QStringLiteral("network"));
    if (printer.isShared)
        words.append(QStringLiteral("shared"));
    if (!WindowsPrinterInfo::isPrinterAdmin(printer.printerName))
        words.append(QStringLiteral("not managed"));
    if (printer.isOffline)
        words.append(QStringLiteral("offline"));
    return {words.join(QStringLiteral(", ")), printer.isOffline ? Colour::Bad : Colour::None};
}

} // namespace

int runList(const CommandLine& line, Output& output)
{
    const QList<AvailablePrinters> printers = WindowsPrinterInfo::getAvailablePrinters();
    if (line.json) {
        QStringList records;
        for (const AvailablePrinters& printer : printers)
            records.append(QStringLiteral("  ") + jsonRecord(printer));
        output.text(records.isEmpty()
                        ? QStringLiteral("[]\n")
                        : QStringLiteral("[\n%1\n]\n").arg(records.join(QStringLiteral(",\n"))));
        return 0;
    }
    if (printers.isEmpty()) {
        output.text(QStringLiteral("The print spooler knows no printers, or is not running.\n"));
        return 0;
    }

    const QString defaultPrinter = WindowsPrinterInfo::getDefaultPrinterName();
    QList<QList<Cell>> rows;
    for (const AvailablePrinters& printer : printers) {
        const PrinterType type = WindowsPrinterInfo::printerType(printer.driverName);
        const bool isSupported = type > PrinterType::Generic;
        rows.append(QList<Cell>{
            {printer.printerName, isSupported ? Colour::Good : Colour::Faint},
            {modelName(type), isSupported ? Colour::None : Colour::Faint},
            {printer.portName},
            {isSupported && !printer.isNetworkPrinter ? printer.serialNumber : QStringLiteral("-")},
            {printer.driverName},
            flags(printer, printer.printerName == defaultPrinter),
        });
    }
    output.table({QStringLiteral("PRINTER"), QStringLiteral("MODEL"), QStringLiteral("PORT"),
                  QStringLiteral("SERIAL"), QStringLiteral("DRIVER"), QStringLiteral("FLAGS")},
                 rows);
    return 0;
}
