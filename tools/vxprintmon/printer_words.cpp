// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_words.h"

#include "tool_text.h"

#include <status_codes.h>

#include <QtCore/QLocale>

using VxKit::Level;
using VxKit::PrinterReading;
using VxKit::Severity;
using VxKit::Slot;
using VxKit::StatusInfo;

Colour printer_words::colourOf(Severity severity)
{
    switch (severity) {
    case Severity::Ok:
        return Colour::Good;
    case Severity::Information:
        return Colour::Faint;
    case Severity::Warning:
        return Colour::Notice;
    case Severity::Error:
        return Colour::Bad;
    }
    return Colour::Bad;
}

Colour printer_words::colourOfLevel(const Level& level)
{
    constexpr int lastTenth = 10; // percent
    return level.percentage().value_or(100) <= lastTenth ? Colour::Notice : Colour::None;
}

Cell printer_words::status(const PrinterReading& reading)
{
    using Watching = PrinterReading::Watching;
    switch (reading.watching()) {
    case Watching::NetworkPrinter:
        return {ToolText::tr("Network printer"), Colour::Faint};
    case Watching::NotManaged:
        return {ToolText::tr("Not managed"), Colour::Faint};
    case Watching::AgentOffline:
        return {reading.unheardSince().isValid()
                    ? ToolText::tr("No agent since %1").arg(timeOf(reading.unheardSince()))
                    : ToolText::tr("Agent offline"),
                Colour::Faint};
    default:
        break;
    }
    if (reading.statusCode() == VXPrinting::StatusCodes::unknown)
        return {notKnown(), Colour::Notice};
    const StatusInfo info = VxKit::statusInfo(reading.statusCode());
    return {info.shortTitle, colourOf(info.severity)};
}

Cell printer_words::withSeverity(const QString& text, Severity severity)
{
    const Colour colour = colourOf(severity);
    if (severity == Severity::Ok || severity == Severity::Information)
        return {text, colour};
    return {
        ToolText::tr("%1 (%2)", "a text and its severity").arg(text, VxKit::severityName(severity)),
        colour};
}

Cell printer_words::statusWithSeverity(const StatusInfo& info)
{
    return withSeverity(info.shortTitle, info.severity);
}

QString printer_words::slotName(Slot slot)
{
    switch (slot) {
    case Slot::Supply:
        return ToolText::tr("supply");
    case Slot::Ribbon1:
        return ToolText::tr("ribbon 1");
    case Slot::Ribbon2:
        return ToolText::tr("ribbon 2");
    }
    return {};
}

QString printer_words::loaded(const Level& level)
{
    switch (level.state) {
    case Level::State::NotKnown:
        return notKnown();
    case Level::State::Empty:
        return ToolText::tr("none");
    case Level::State::NotInCatalogue:
        return ToolText::tr("unknown kind");
    case Level::State::Loaded:
        return level.name.isEmpty() ? level.sku : level.name;
    }
    return notKnown();
}

Cell printer_words::level(const Level& level, Slot slot)
{
    const bool isLoaded =
        level.state == Level::State::Loaded || level.state == Level::State::NotInCatalogue;
    // People tell ribbons by their colour; only those of several colours need the whole name.
    const bool isColourEnough = slot != Slot::Supply && level.state == Level::State::Loaded &&
                                level.colors.size() == 1 && !level.colorName.isEmpty();
    const QString what = isColourEnough ? level.colorName : loaded(level);
    if (!isLoaded)
        return {what, Colour::Faint};
    const QString sample = level.colors.value(0);
    if (const std::optional<int> percentage = level.percentage())
        return {ToolText::tr("%1 % %2", "how much of what is left")
                    .arg(QString::number(*percentage), what),
                colourOfLevel(level), sample};
    // Of what the catalogue does not know, nobody expects to know how much is left.
    if (level.state == Level::State::NotInCatalogue)
        return {what};
    return {ToolText::tr("%1, level not known").arg(what), Colour::None, sample};
}

QString printer_words::amount(const Level& level)
{
    QStringList amounts;
    if (const std::optional<int> percentage = level.percentage())
        amounts.append(ToolText::tr("%1 %").arg(*percentage));
    if (level.meters)
        amounts.append(ToolText::tr("%1 m").arg(QLocale().toString(*level.meters, 'f', 1)));
    if (level.labels)
        amounts.append((*level.labels == 1 ? ToolText::tr("%1 label") : ToolText::tr("%1 labels"))
                           .arg(*level.labels));
    return amounts.isEmpty() ? notKnown() : amounts.join(QStringLiteral(", "));
}

QString printer_words::timeOf(const QDateTime& time)
{
    const QDateTime local = time.toLocalTime();
    return local.date() == QDate::currentDate()
               ? QLocale().toString(local.time(), QLocale::ShortFormat)
               : QLocale().toString(local, QLocale::ShortFormat);
}

QString printer_words::notKnown()
{
    return ToolText::tr("not known");
}

bool printer_words::hasRecord(const PrinterReading& reading)
{
    using Watching = PrinterReading::Watching;
    return reading.watching() != Watching::OfflineSinceDiscovery &&
           reading.watching() != Watching::NotDiscovered;
}
