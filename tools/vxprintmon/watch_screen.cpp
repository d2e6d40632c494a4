// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "watch_screen.h"

#include "printer_words.h"
#include "shown_text.h"
#include "status_screen.h"
#include "text_layout.h"
#include "tool_text.h"

#include <printer_forecasts.h>
#include <status_codes.h>

#include <algorithm>

using namespace std::chrono_literals;
using VxKit::Level;
using VxKit::PrinterEvent;
using VxKit::PrinterReading;
using VxKit::PrinterReadings;
using VxKit::RunOutForecast;
using VxKit::Slot;
using Kind = VxKit::PrinterEvent::Kind;

namespace {

/// How long a line waits for what belongs to it. Nobody notices the delay.
constexpr auto delay = 100ms;

/// Whether the second event replaces what the first one says, so that they need two lines.
bool isSameThing(const PrinterEvent& left, const PrinterEvent& right)
{
    return left.kind == right.kind && left.slot == right.slot &&
           (left.kind == Kind::Level || left.key == right.key);
}

/// Whether the first event is printed with what the second one says.
bool covers(const PrinterEvent& loaded, const PrinterEvent& level)
{
    return (loaded.kind == Kind::Supply || loaded.kind == Kind::Ribbon) &&
           level.kind == Kind::Level && loaded.slot == level.slot;
}

/// What is loaded by the values of an event.
QString nameOf(const PrinterEvent::Values& values)
{
    Level level;
    level.state = values.state.value_or(Level::State::NotKnown);
    level.name = values.name;
    level.sku = values.sku;
    return printer_words::loaded(level);
}

bool wasLoaded(const PrinterEvent::Values& values)
{
    return values.state == Level::State::Loaded || values.state == Level::State::NotInCatalogue;
}

Cell was(const QString& before)
{
    return {ToolText::tr(" (was %1)", "after what it is now").arg(before), Colour::Faint};
}

QString percentOf(double ratio)
{
    Level level;
    level.ratio = ratio;
    return printer_words::amount(level);
}

QString removed(Slot slot)
{
    switch (slot) {
    case Slot::Supply:
        return ToolText::tr("Supply removed");
    case Slot::Ribbon1:
        return ToolText::tr("Ribbon 1 removed");
    case Slot::Ribbon2:
        return ToolText::tr("Ribbon 2 removed");
    }
    return {};
}

QString loaded(Slot slot, const QString& what)
{
    switch (slot) {
    case Slot::Supply:
        return ToolText::tr("%1 loaded").arg(what);
    case Slot::Ribbon1:
        return ToolText::tr("Ribbon 1: %1 loaded").arg(what);
    case Slot::Ribbon2:
        return ToolText::tr("Ribbon 2: %1 loaded").arg(what);
    }
    return {};
}

QList<Cell> firmwareWords(const PrinterEvent& event)
{
    if (event.code)
        return {printer_words::withSeverity(VxKit::eventText(event), event.severity)};
    const QString& before = event.before.firmwareVersion;
    QList<Cell> words{{ToolText::tr("Firmware %1").arg(event.after.firmwareVersion)}};
    if (!before.isEmpty() && before != event.after.firmwareVersion)
        words.append(was(before));
    return words;
}

} // namespace

WatchScreen::WatchScreen(const CommandLine& line, Output& output, PrinterReadings& readings,
                         const QStringList& printers)
    : m_output(output)
    , m_readings(readings)
    , m_events(&readings)
    , m_watched(printers)
    , m_isRelative(line.relative)
    , m_isVerbose(line.verbose)
{
    m_clock.start();
    m_timer.setSingleShot(true);
    m_timer.setInterval(delay);
    connect(&m_timer, &QTimer::timeout, this, &WatchScreen::printPending);
    // Before the events are told of the new name.
    connect(&readings, &PrinterReadings::renamed, this, &WatchScreen::onRenamed);
    // The events of what is true already are not printed: the table shows it.
    m_events.start();
    connect(&m_events, &VxKit::PrinterEvents::happened, this, &WatchScreen::onEvent);
    connect(&readings, &PrinterReadings::activePrinterChanged, this, [this](const QString& name) {
        if (!name.isEmpty() && m_watched.contains(name))
            add(name, other("active", ToolText::tr("now the active printer")));
    });
    if (m_isVerbose)
        connect(&readings, &PrinterReadings::changed, this, &WatchScreen::onChanged);
    const QStringList names = readings.names();
    for (const QString& name : names)
        remember(name);
}

void WatchScreen::printTable()
{
    QList<PrinterReading> readings = m_readings.readings();
    readings.removeIf(
        [this](const PrinterReading& reading) { return !m_watched.contains(reading.name()); });
    status_screen::printTable(m_output, readings,
                              m_watched.isNarrowed() ? QString() : m_readings.activePrinter());
    m_output.text(QStringLiteral("\n"));
}

void WatchScreen::printCaption(const QString& caption)
{
    printPending();
    Line line;
    line.time = QDateTime::currentDateTime();
    line.elapsed = m_clock.elapsed();
    m_output.wrappedLine({{clock(line) + QStringLiteral("  > "), Colour::Faint}},
                         {{caption, Colour::Heading}});
}

void WatchScreen::printPending()
{
    m_timer.stop();
    m_places.clear();
    const QList<Line> lines = std::exchange(m_pending, {});
    for (const Line& line : lines)
        print(line);
}

WatchScreen::Happening WatchScreen::other(const char* key, const QString& words)
{
    Happening happening;
    happening.event.key = QLatin1String(key);
    happening.words = {{words}};
    return happening;
}

void WatchScreen::onEvent(const PrinterEvent& event)
{
    if (!event.printer.isEmpty() && !m_watched.contains(event.printer))
        return;
    if (event.kind == Kind::PrinterAdded)
        remember(event.printer);
    // With every change of a level, the marks are nothing new.
    if (event.kind != Kind::Level || !m_isVerbose)
        add(event.printer, {.event = event});
}

void WatchScreen::onChanged(const QString& name)
{
    if (!m_watched.contains(name))
        return;
    const PrinterReading now = m_readings.reading(name);
    const PrinterReading before = std::exchange(m_known[name], now);
    for (const Slot slot : now.slotList()) {
        const Level level = now.level(slot);
        const Level old = before.level(slot);
        if (level.identifier != old.identifier || !level.ratio ||
            level.percentage() == old.percentage())
            continue;
        PrinterEvent event;
        event.kind = Kind::Level;
        event.printer = name;
        event.key = QStringLiteral("level");
        event.slot = slot;
        event.before.ratio = old.ratio;
        event.after.ratio = level.ratio;
        add(name, {.event = event});
    }
    if (now.updateProgress() && now.updateProgress() != before.updateProgress())
        add(name,
            other("progress", ToolText::tr("Firmware update: %1 %").arg(*now.updateProgress())));
}

void WatchScreen::printWarning(const QString& printer, const RunOutForecast::Warning& warning)
{
    if (!m_watched.contains(printer))
        return;
    Happening happening = other("forecast", {});
    happening.event.slot = warning.slot;
    happening.words = {printer_words::withSeverity(VxKit::PrinterForecasts::text(warning),
                                                   VxKit::Severity::Warning)};
    add(printer, happening);
}

void WatchScreen::onRenamed(const QString& oldName, const QString& newName)
{
    m_watched.rename(oldName, newName);
    m_known.remove(oldName);
    remember(newName);
}

void WatchScreen::remember(const QString& name)
{
    m_nameWidth = std::max(m_nameWidth, text_layout::width(shown(name)));
    if (m_isVerbose)
        m_known.insert(name, m_readings.reading(name));
}

void WatchScreen::add(const QString& printer, const Happening& happening)
{
    const auto found = m_places.constFind(printer);
    if (found != m_places.constEnd()) {
        Line& line = m_pending[*found];
        const auto same = std::ranges::find_if(line.happenings, [&](const Happening& earlier) {
            return isSameThing(earlier.event, happening.event);
        });
        if (std::ranges::any_of(line.happenings, [&](const Happening& earlier) {
                return covers(earlier.event, happening.event);
            }))
            return;
        if (same == line.happenings.end()) {
            line.happenings.append(happening);
            return;
        }
        printPending();
    }
    m_places.insert(printer, m_pending.size());
    m_pending.append({QDateTime::currentDateTime(), m_clock.elapsed(), printer, {happening}});
    if (!m_timer.isActive())
        m_timer.start();
}

QString WatchScreen::clock(const Line& line) const
{
    if (!m_isRelative)
        return line.time.toString(QStringLiteral("HH:mm:ss"));
    constexpr double millisecondsOfASecond = 1000;
    return ToolText::tr("%1 s", "seconds")
        .arg(static_cast<double>(line.elapsed) / millisecondsOfASecond, 6, 'f', 1);
}

void WatchScreen::print(const Line& line)
{
    // On a terminal, a long name must leave room for what happened.
    constexpr qsizetype partForName = 3;
    QString name = shown(line.printer);
    qsizetype width = m_nameWidth;
    if (m_output.isTerminal()) {
        width = std::min(width, m_output.columns() / partForName);
        name = text_layout::elided(name, width);
    }
    QList<Cell> words;
    for (const Happening& happening : line.happenings) {
        QList<Cell> more = wordsOf(line, happening);
        if (more.isEmpty())
            continue;
        if (!words.isEmpty()) {
            words.last().text += QLatin1Char(';');
            more.first().text.prepend(QLatin1Char(' '));
        }
        words += more;
    }
    const QString separator = QStringLiteral("  ");
    if (words.isEmpty())
        return;
    QList<Cell> begin{{clock(line) + separator, Colour::Faint}};
    if (!name.isEmpty())
        begin.append({text_layout::padded(name, width) + separator});
    m_output.wrappedLine(begin, words);
}

QList<Cell> WatchScreen::loadedWords(const Line& line, const PrinterEvent& event) const
{
    const Slot slot = event.slot.value_or(Slot::Supply);
    const QString before = nameOf(event.before);
    if (event.after.state == Level::State::Empty) {
        const bool isUsedUp = slot == Slot::Supply && wasLoaded(event.before) &&
                              std::ranges::any_of(line.happenings, [](const Happening& happening) {
                                  return happening.event.key == QLatin1String("out_of_labels");
                              });
        if (isUsedUp)
            return {{ToolText::tr("%1 used up").arg(before)}};
        QList<Cell> words{{removed(slot)}};
        if (wasLoaded(event.before))
            words.append(was(before));
        return words;
    }
    // The values of one report arrive one by one, so the level is newer than the event.
    Level level = m_readings.reading(line.printer).level(slot);
    if (level.identifier != event.after.identifier)
        level = {};
    QString text = loaded(slot, nameOf(event.after));
    if (event.after.state == Level::State::NotInCatalogue)
        text += QStringLiteral(" (%1)").arg(event.after.identifier);
    if (level.ratio)
        text += QStringLiteral(", ") + percentOf(*level.ratio);
    QList<Cell> words{{text, printer_words::colourOfLevel(level), level.colors.value(0)}};
    if (wasLoaded(event.before))
        words.append(was(before));
    return words;
}

QList<Cell> WatchScreen::wordsOf(const Line& line, const Happening& happening) const
{
    const PrinterEvent& event = happening.event;
    if (!happening.words.isEmpty())
        return happening.words;
    switch (event.kind) {
    case Kind::Status: {
        const VxKit::StatusInfo info = VxKit::statusInfo(event.code.value_or(0));
        QList<Cell> words{printer_words::statusWithSeverity(info)};
        // A new trouble speaks for itself, but "Ready" does not say what is over.
        if (info.severity == VxKit::Severity::Ok && event.before.code &&
            event.before.code != VXPrinting::StatusCodes::unknown)
            words.append({ToolText::tr(" (was: %1)", "a status, after what it is now")
                              .arg(VxKit::statusInfo(*event.before.code).shortTitle),
                          Colour::Faint});
        return words;
    }
    case Kind::Supply:
    case Kind::Ribbon:
        return loadedWords(line, event);
    case Kind::Level: {
        Level level;
        level.ratio = event.after.ratio;
        QList<Cell> words{{VxKit::eventText(event), printer_words::colourOfLevel(level)}};
        if (event.before.ratio)
            words.append({ToolText::tr(", was %1", "a level, after what it is now")
                              .arg(percentOf(*event.before.ratio)),
                          Colour::Faint});
        return words;
    }
    case Kind::Firmware:
        // With a printer that begins to report, its version is no news.
        if (!event.code && event.before.firmwareVersion.isEmpty() && !m_isVerbose)
            return {};
        return firmwareWords(event);
    case Kind::PrinterRenamed:
        return {{ToolText::tr("Renamed")}, was(event.before.printer)};
    default:
        return {printer_words::withSeverity(VxKit::eventText(event), event.severity)};
    }
}
