// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include "command_line.h"
#include "json_text.h"
#include "output.h"

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

QString json(const AvailablePrinters& printer)
{
    using json_text::value;
    const auto type = static_cast<int>(WindowsPrinterInfo::printerType(printer.driverName));
    return json_text::object({
        {QStringLiteral("printerName"), value(printer.printerName)},
        {QStringLiteral("portName"), value(printer.portName)},
        {QStringLiteral("driverName"), value(printer.driverName)},
        {QStringLiteral("serialNumber"), value(printer.serialNumber)},
        {QStringLiteral("isNetworkPrinter"), value(printer.isNetworkPrinter)},
        {QStringLiteral("isShared"), value(printer.isShared)},
        {QStringLiteral("isOffline"), value(printer.isOffline)},
        {QStringLiteral("printerType"), value(type)},
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

void runList(const CommandLine& line, Output& output, Backend& /*backend*/)
{
    const QList<AvailablePrinters> printers = WindowsPrinterInfo::getAvailablePrinters();
    if (line.json) {
        QStringList texts;
        for (const AvailablePrinters& printer : printers)
            texts.append(json(printer));
        output.text(json_text::lines(texts));
        return;
    }
    if (printers.isEmpty()) {
        output.text(
            QStringLiteral("There are no printers, or the print spooler is not running.\n"));
        return;
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
}
