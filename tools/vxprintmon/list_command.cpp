// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include "command_line.h"
#include "json_text.h"
#include "output.h"

#include "printer_types.h"
#include "tool_text.h"
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
        return ToolText::tr("other");
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
        words.append(ToolText::tr("default"));
    if (printer.isNetworkPrinter)
        words.append(ToolText::tr("network"));
    if (printer.isShared)
        words.append(ToolText::tr("shared"));
    if (!WindowsPrinterInfo::isPrinterAdmin(printer.printerName))
        words.append(ToolText::tr("not managed"));
    if (printer.isOffline)
        words.append(ToolText::tr("offline"));
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
        output.text(ToolText::tr("There are no printers, or the print spooler is not running.") +
                    QLatin1Char('\n'));
        return;
    }

    const QString defaultPrinter = WindowsPrinterInfo::getDefaultPrinterName();
    QList<QList<Cell>> rows;
    for (const AvailablePrinters& printer : printers) {
        const PrinterType type = WindowsPrinterInfo::printerType(printer.driverName);
        const bool isSupported = VXPrinting::isSupported(type);
        rows.append(QList<Cell>{
            {printer.printerName, isSupported ? Colour::Good : Colour::Faint},
            {modelName(type), isSupported ? Colour::None : Colour::Faint},
            {printer.portName},
            {isSupported && !printer.isNetworkPrinter ? printer.serialNumber : QStringLiteral("-")},
            flags(printer, printer.printerName == defaultPrinter),
            {printer.driverName},
        });
    }
    using Width = Column::Width;
    output.table({{ToolText::tr("PRINTER"), Width::Shrinks, 5, 10},
                  {ToolText::tr("MODEL"), Width::Fixed},
                  {ToolText::tr("PORT"), Width::Shrinks, 2, 8},
                  {ToolText::tr("SERIAL"), Width::Shrinks, 4, 8},
                  {ToolText::tr("FLAGS"), Width::Wraps, 3, 12},
                  {ToolText::tr("DRIVER"), Width::Wraps, 1, 8}},
                 rows);
}
