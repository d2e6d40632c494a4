// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "status_screen.h"

#include "forecast_words.h"
#include "printer_words.h"
#include "shown_text.h"
#include "text_layout.h"
#include "tool_text.h"

#include <QtCore/QLocale>
#include <QtCore/QMetaEnum>

#include <algorithm>

using VxKit::Level;
using VxKit::PrinterReading;
using VxKit::Slot;

namespace {

QString yesOrNo(bool yes)
{
    return yes ? ToolText::tr("yes") : ToolText::tr("no");
}

QString orNotKnown(const QString& text)
{
    return text.isEmpty() ? printer_words::notKnown() : text;
}

/// The cell of a slot; empty for a slot that the model does not have.
Cell slotCell(const PrinterReading& reading, Slot slot)
{
    const bool isWatched = reading.watching() == PrinterReading::Watching::Watched;
    if (!isWatched || !reading.hasSlot(slot))
        return {QStringLiteral("-"), Colour::Faint};
    return printer_words::level(reading.level(slot), slot);
}

QString watching(const PrinterReading& reading)
{
    switch (reading.watching()) {
    case PrinterReading::Watching::NetworkPrinter:
        return ToolText::tr("no, it is a network printer");
    case PrinterReading::Watching::NotManaged:
        return ToolText::tr("no, you may not manage it");
    case PrinterReading::Watching::Replaced:
        return ToolText::tr("no, it was removed and added again");
    case PrinterReading::Watching::Gone:
        return ToolText::tr("no, it was removed");
    default:
        return ToolText::tr("yes");
    }
}

/// Where the column of the end is, if there is one.
constexpr qsizetype endColumn = 2;

void printParagraph(Output& output, const QString& text)
{
    const QStringList lines = text_layout::wrapped(text, output.columns());
    output.text(lines.join(QLatin1Char('\n')) + QLatin1Char('\n'));
}

/// Prints what concerns printers without a row of their own.
void printWithoutRecord(Output& output, const QStringList& names)
{
    constexpr qsizetype most = 10;
    if (names.isEmpty())
        return;
    QString list = names.first(std::min(names.size(), most)).join(QStringLiteral(", "));
    if (names.size() > most)
        list = ToolText::tr("%1 and %2 more").arg(list, QString::number(names.size() - most));
    const QString text =
        ToolText::tr("Offline since they were found, so without a status: %1").arg(shown(list));
    printParagraph(output, text);
}

void appendSlot(QList<QList<Cell>>& rows, const PrinterReading& reading, Slot slot)
{
    const Level level = reading.level(slot);
    const QString name = printer_words::slotName(slot);
    Cell what{printer_words::loaded(level), Colour::None, level.colors.value(0)};
    const QString number = level.sku.isEmpty() ? level.identifier : level.sku;
    if (!number.isEmpty())
        what.text = QStringLiteral("%1 (%2)").arg(what.text, number);
    rows.append({{name, Colour::Faint}, what});
    if (level.state != Level::State::Empty)
        rows.append({{ToolText::tr("%1 left").arg(name), Colour::Faint},
                     {printer_words::amount(level), printer_words::colourOfLevel(level)}});
    if (const auto remaining = reading.estimatedSecondsRemaining(slot))
        rows.append({{ToolText::tr("%1 lasts").arg(name), Colour::Faint},
                     {ToolText::tr("about %1, probably %2 to %3")
                          .arg(forecast_words::duration(remaining->p50),
                               forecast_words::duration(remaining->p10),
                               forecast_words::duration(remaining->p90))}});
}

} // namespace

void status_screen::printTable(Output& output, const QList<PrinterReading>& readings,
                               const QString& activePrinter)
{
    using Width = Column::Width;
    QList<QList<Cell>> rows;
    QStringList withoutRecord;
    bool hasActive = false;
    const bool hasEstimates = std::ranges::any_of(readings, [](const PrinterReading& reading) {
        return forecast_words::soonestEnd(reading).value_or(0) > 0;
    });
    for (const PrinterReading& reading : readings) {
        if (!printer_words::hasRecord(reading)) {
            withoutRecord.append(reading.name());
            continue;
        }
        hasActive = hasActive || reading.name() == activePrinter;
        rows.append(QList<Cell>{
            {reading.name()},
            printer_words::status(reading),
            slotCell(reading, Slot::Supply),
            slotCell(reading, Slot::Ribbon1),
            slotCell(reading, Slot::Ribbon2),
            {reading.firmwareVersion().isEmpty() ? QStringLiteral("-") : reading.firmwareVersion()},
        });
        if (hasEstimates)
            rows.last().insert(endColumn, forecast_words::soonestEndCell(reading));
    }
    if (rows.isEmpty() && withoutRecord.isEmpty())
        output.text(ToolText::tr("There are no label printers yet.") + QLatin1Char('\n'));
    else if (!rows.isEmpty()) {
        QList<Column> columns{{ToolText::tr("PRINTER"), Width::Shrinks, 5, 10},
                              {ToolText::tr("STATUS"), Width::Wraps, 1, 15},
                              {ToolText::tr("SUPPLY"), Width::Shrinks, 4, 10},
                              {ToolText::tr("RIBBON 1"), Width::Shrinks, 3, 10},
                              {ToolText::tr("RIBBON 2"), Width::Shrinks, 2, 10},
                              {ToolText::tr("FIRMWARE"), Width::Vanishes}};
        if (hasEstimates)
            columns.insert(endColumn, Column{ToolText::tr("LASTS")});
        output.table(columns, rows);
    }
    printWithoutRecord(output, withoutRecord);
    // It may also be a printer of another maker.
    if (hasActive)
        printParagraph(output, ToolText::tr("Active printer: %1").arg(shown(activePrinter)));
}

void status_screen::printDetails(Output& output, const PrinterReading& reading)
{
    const VxKit::StatusInfo info = VxKit::statusInfo(reading.statusCode());
    const auto row = [](const QString& label, const QString& value) {
        return QList<Cell>{{label, Colour::Faint}, {value}};
    };
    QList<QList<Cell>> rows{
        {{ToolText::tr("printer"), Colour::Faint}, {reading.name(), Colour::Heading}},
        {{ToolText::tr("status"), Colour::Faint}, printer_words::statusWithSeverity(info)},
    };
    if (info.severity != VxKit::Severity::Ok) {
        rows.append(row(ToolText::tr("meaning"), info.explanation));
        rows.append(row(ToolText::tr("what to do"), info.remedy));
    }
    rows.append(row(ToolText::tr("online"), yesOrNo(reading.isOnline())));
    rows.append(row(ToolText::tr("active"), yesOrNo(reading.isActive())));
    for (const Slot slot : reading.slotList())
        appendSlot(rows, reading, slot);
    rows.append(row(ToolText::tr("firmware"), orNotKnown(reading.firmwareVersion())));
    if (!reading.bootVersion().isEmpty())
        rows.append(row(ToolText::tr("boot loader"), reading.bootVersion()));
    rows.append(row(ToolText::tr("model"),
                    QString::fromLatin1(QMetaEnum::fromType<VXPrinting::PrinterType>().valueToKey(
                        static_cast<int>(reading.model())))));
    rows.append(row(ToolText::tr("driver"), reading.driver()));
    rows.append(row(ToolText::tr("port"), reading.port()));
    rows.append(row(ToolText::tr("serial number"), orNotKnown(reading.serialNumber())));
    rows.append(row(ToolText::tr("watched"), watching(reading)));
    output.details(rows);
}
