// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "records.h"

#include "json_text.h"

#include "printer_types.h"
#include "status_codes.h"
#include "status_info.h"
#include "tool_text.h"

#include <QtCore/QMetaProperty>

#include <tuple>

namespace records {

using VXPrinting::nothingLoaded;
namespace StatusCodes = VXPrinting::StatusCodes;

namespace {

const QString notKnown = QStringLiteral("-");

/// A supply or a ribbon under its names from the supply database.
Cell loaded(const QString& sku, const QString& name, const QString& colour)
{
    if (sku == nothingLoaded)
        return {ToolText::tr("none")};
    if (!sku.isEmpty())
        return {name, Colour::None, colour};
    // A colour without a SKU: something is loaded that the database does not contain.
    return {colour.isEmpty() ? notKnown : ToolText::tr("of an unknown kind")};
}

Cell supply(const Record& record)
{
    const QString name = record.supplyColorName + QLatin1Char(' ') + record.supplyMaterialName;
    return loaded(record.supplySKU, name.trimmed(), record.supplyColorHex);
}

Cell ribbon1(const Record& record)
{
    return loaded(record.ribbon1SKU, record.ribbon1ColorName, record.ribbon1ColorHex);
}

Cell ribbon2(const Record& record)
{
    return loaded(record.ribbon2SKU, record.ribbon2ColorName, record.ribbon2ColorHex);
}

Cell withSku(Cell cell, const QString& sku)
{
    if (!sku.isEmpty() && sku != nothingLoaded)
        cell.text += QStringLiteral(" (%1)").arg(sku);
    return cell;
}

QString percent(int percentage)
{
    return QStringLiteral("%1 %").arg(percentage);
}

Cell withPercent(Cell cell, const QString& sku, int percentage)
{
    if (!sku.isEmpty() && sku != nothingLoaded)
        cell.text += QStringLiteral(", ") + percent(percentage);
    return cell;
}

Cell status(const Record& record, TitleOf titleOf)
{
    const auto colour = [&record] {
        if (!isWatched(record))
            return Colour::Faint;
        switch (record.statusEnum) {
        case StatusCodes::ready:
            return Colour::Good;
        case StatusCodes::unknown:
            return Colour::Notice;
        default:
            return Colour::Bad;
        }
    };
    return {titleOf(record.statusEnum), colour()};
}

Cell yesOrNo(bool yes)
{
    return {yes ? ToolText::tr("yes") : ToolText::tr("no")};
}

/// One line of a printer's details. Together they cover every property but the printer's name.
struct Detail
{
    const char* label;
    Cell (*of)(const Record& record, TitleOf titleOf);
};

const Detail details[] = {
    {QT_TRANSLATE_NOOP("tools", "status"), status},
    {QT_TRANSLATE_NOOP("tools", "online"),
     [](const Record& record, TitleOf) {
         return yesOrNo(record.printerOnline);
     }},
    {QT_TRANSLATE_NOOP("tools", "supply"),
     [](const Record& record, TitleOf) {
         return withSku(supply(record), record.supplySKU);
     }},
    {QT_TRANSLATE_NOOP("tools", "supply left"),
     [](const Record& record, TitleOf) {
         return Cell{percent(record.supplyPercentage)};
     }},
    {QT_TRANSLATE_NOOP("tools", "ribbon 1"),
     [](const Record& record, TitleOf) {
         return withSku(ribbon1(record), record.ribbon1SKU);
     }},
    {QT_TRANSLATE_NOOP("tools", "ribbon 1 left"),
     [](const Record& record, TitleOf) {
         return Cell{percent(record.ribbon1Percentage)};
     }},
    {QT_TRANSLATE_NOOP("tools", "ribbon 2"),
     [](const Record& record, TitleOf) {
         return withSku(ribbon2(record), record.ribbon2SKU);
     }},
    {QT_TRANSLATE_NOOP("tools", "ribbon 2 left"),
     [](const Record& record, TitleOf) {
         return Cell{percent(record.ribbon2Percentage)};
     }},
    {QT_TRANSLATE_NOOP("tools", "has a ribbon 2"),
     [](const Record& record, TitleOf) {
         return yesOrNo(record.ribbon2Visible);
     }},
    {QT_TRANSLATE_NOOP("tools", "firmware"),
     [](const Record& record, TitleOf) {
         return Cell{record.softwareVersion.isEmpty() ? notKnown : record.softwareVersion};
     }},
    {QT_TRANSLATE_NOOP("tools", "network printer"),
     [](const Record& record, TitleOf) {
         return yesOrNo(record.printerRemote);
     }},
    {QT_TRANSLATE_NOOP("tools", "managed"),
     [](const Record& record, TitleOf) {
         return yesOrNo(!record.printerNonAdmin);
     }},
    {QT_TRANSLATE_NOOP("tools", "has been active"),
     [](const Record& record, TitleOf) {
         return yesOrNo(record.printerDefault);
     }},
};

/// All members of the record. If one is added to the record, this no longer compiles.
auto everythingOf(const Record& record)
{
    const auto& [printerName, statusEnum, online, remote, nonAdmin, wasActive, ribbon1Percentage,
                 ribbon1ColorHex, ribbon1ColorName, ribbon1Sku, ribbon2Percentage, ribbon2ColorHex,
                 ribbon2ColorName, ribbon2Sku, softwareVersion, supplyPercentage, supplyColorHex,
                 supplyColorName, supplySku, supplyMaterialName, ribbon2Visible] = record;
    return std::tie(printerName, statusEnum, online, remote, nonAdmin, wasActive, ribbon1Percentage,
                    ribbon1ColorHex, ribbon1ColorName, ribbon1Sku, ribbon2Percentage,
                    ribbon2ColorHex, ribbon2ColorName, ribbon2Sku, softwareVersion,
                    supplyPercentage, supplyColorHex, supplyColorName, supplySku,
                    supplyMaterialName, ribbon2Visible);
}

} // namespace

QList<Record> of(const PrinterStatusController& controller)
{
    QList<Record> all;
    const QVariantList entries = controller.getAvailablePrinters();
    all.reserve(entries.size());
    for (const QVariant& entry : entries)
        all.append(entry.value<Record>());
    return all;
}

bool isWatched(const Record& record)
{
    return !record.printerRemote && !record.printerNonAdmin;
}

QString titleOf(int statusCode)
{
    return VxKit::statusInfo(statusCode).shortTitle;
}

QString titleOrNotKnown(int statusCode)
{
    return statusCode == StatusCodes::unknown ? ToolText::tr("not known") : titleOf(statusCode);
}

bool areSame(const Record& left, const Record& right)
{
    return everythingOf(left) == everythingOf(right);
}

QStringList JsonTexts::of(const QList<Record>& all)
{
    QStringList texts;
    texts.reserve(all.size());
    for (const Record& record : all) {
        Entry& entry = m_entries[record.printerName];
        if (entry.text.isEmpty() || !areSame(entry.record, record))
            entry = {record, m_textOf(record)};
        texts.append(entry.text);
    }
    return texts;
}

QString json(const Record& record)
{
    const QMetaObject& type = Record::staticMetaObject;
    QList<json_text::Member> members;
    for (int i = 0; i < type.propertyCount(); ++i) {
        const QMetaProperty property = type.property(i);
        members.emplaceBack(
            QString::fromLatin1(property.name()),
            json_text::value(QJsonValue::fromVariant(property.readOnGadget(&record))));
    }
    return json_text::object(members);
}

void printTable(Output& output, const QList<Record>& all, const QString& activePrinter,
                TitleOf titleOf)
{
    if (all.isEmpty()) {
        output.text(ToolText::tr("There are no label printers yet.") + QLatin1Char('\n'));
        return;
    }
    QList<QList<Cell>> rows;
    for (const Record& record : all) {
        rows.append(QList<Cell>{
            {record.printerName},
            status(record, titleOf),
            withPercent(supply(record), record.supplySKU, record.supplyPercentage),
            withPercent(ribbon1(record), record.ribbon1SKU, record.ribbon1Percentage),
            withPercent(ribbon2(record), record.ribbon2SKU, record.ribbon2Percentage),
            {record.softwareVersion.isEmpty() ? notKnown : record.softwareVersion},
            {record.printerName == activePrinter ? ToolText::tr("yes") : QString()},
        });
    }
    output.table({ToolText::tr("PRINTER"), ToolText::tr("STATUS"), ToolText::tr("SUPPLY"),
                  ToolText::tr("RIBBON 1"), ToolText::tr("RIBBON 2"), ToolText::tr("FIRMWARE"),
                  ToolText::tr("ACTIVE")},
                 rows);
}

void printDetails(Output& output, const Record& record, const QString& activePrinter,
                  TitleOf titleOf)
{
    QList<QList<Cell>> rows{
        {{ToolText::tr("printer"), Colour::Faint}, {record.printerName, Colour::Heading}},
        {{ToolText::tr("active"), Colour::Faint}, yesOrNo(record.printerName == activePrinter)},
    };
    for (const Detail& detail : details)
        rows.append({{ToolText::tr(detail.label), Colour::Faint}, detail.of(record, titleOf)});
    output.rows(rows);
}

QList<Cell> difference(const Record& before, const Record& after, TitleOf titleOf)
{
    QList<Cell> words;
    for (const Detail& detail : details) {
        const Cell was = detail.of(before, titleOf);
        const Cell is = detail.of(after, titleOf);
        if (was.text == is.text && was.sample == is.sample)
            continue;
        if (!words.isEmpty())
            words.append({QStringLiteral(", ")});
        words.append({ToolText::tr(detail.label) + QLatin1Char(' '), Colour::Faint});
        if (was.text != notKnown)
            words.append({was.text + QStringLiteral(" \u2192 "), Colour::Faint});
        words.append(is);
    }
    return words;
}

} // namespace records
