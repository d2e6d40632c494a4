// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_events.h"

#include "printer_readings.h"

#include "status_codes.h"

#include <QtCore/QHash>
#include <QtCore/QPointer>

#include <array>
#include <optional>
#include <utility>

namespace VxKit {

namespace {

namespace StatusCodes = VXPrinting::StatusCodes;
using Kind = PrinterEvent::Kind;

/// In percent, the highest first.
constexpr std::array marks{25, 10, 5};
/// A level has to rise so far above a mark for the mark to count again. The printers that report
/// whole percents go up and down by one.
constexpr double hysteresis = 0.02;
/// What is loaded with so little left deserves a warning.
constexpr double lowRatio = 0.1;

double ratioOf(int mark)
{
    return mark / 100.0;
}

/// What has been reported of one slot.
struct SlotSeen
{
    std::optional<Level> level;              ///< the last one that was known
    QString identifier;                      ///< of what was loaded last
    std::array<bool, marks.size()> passed{}; ///< which marks it is below
    bool hasRatio = false;                   ///< whether `passed` says anything yet
};

/// What has been reported of one printer.
struct PrinterSeen
{
    std::optional<int> status;
    std::optional<int> statusBeforeStop; ///< of the spooler
    std::array<SlotSeen, 3> slots{};
    QString firmwareVersion;
    QString bootVersion;
    quint32 updateError = 0;
};

PrinterEvent::Values valuesOf(const Level& level)
{
    PrinterEvent::Values values;
    values.state = level.state;
    values.identifier = level.identifier;
    values.sku = level.sku;
    values.name = level.name;
    values.ratio = level.ratio;
    values.meters = level.meters;
    values.labels = level.labels;
    return values;
}

QString slotKind(Slot slot)
{
    return slot == Slot::Supply ? QStringLiteral("supply") : QStringLiteral("ribbon");
}

/// Moves on what has been passed, and returns the lowest mark that was passed just now.
std::optional<int> passMarks(SlotSeen& seen, double ratio, bool isFirst)
{
    std::optional<int> crossed;
    for (std::size_t i = 0; i < marks.size(); ++i) {
        bool& passed = seen.passed[i];
        if (ratio >= ratioOf(marks[i]) + hysteresis) {
            passed = false;
        } else if (ratio <= ratioOf(marks[i]) && !passed) {
            passed = true;
            if (!isFirst)
                crossed = marks[i];
        }
    }
    return crossed;
}

} // namespace

class PrinterEvents::Private
{
public:
    PrinterEvents* q = nullptr;
    QPointer<PrinterReadings> readings;
    QHash<QString, PrinterSeen> printers;
    bool isStarted = false;
    bool isSpoolerStopped = false;

    PrinterEvent& add(Kind kind, const PrinterReading& reading, Severity severity,
                      const QString& key);
    void note(const PrinterReading& reading);
    void emitAll();

private:
    void noteStatus(const PrinterReading& reading, PrinterSeen& seen);
    void noteSlot(const PrinterReading& reading, Slot slot, SlotSeen& seen);
    void noteFirmware(const PrinterReading& reading, PrinterSeen& seen);

    /// Events are emitted when all is noted, because a slot may destroy this object.
    QList<PrinterEvent> m_events;
};

PrinterEvent& PrinterEvents::Private::add(Kind kind, const PrinterReading& reading,
                                          Severity severity, const QString& key)
{
    PrinterEvent event;
    event.time = QDateTime::currentDateTime();
    event.kind = kind;
    event.severity = severity;
    event.printer = reading.name();
    event.serial = reading.serialNumber();
    event.key = key;
    return m_events.emplace_back(event);
}

void PrinterEvents::Private::emitAll()
{
    const QPointer<PrinterEvents> alive(q);
    const QList<PrinterEvent> events = std::exchange(m_events, {});
    for (PrinterEvent event : events) {
        event.text = eventText(event, QStringLiteral("en"));
        Q_EMIT q->happened(event);
        if (!alive)
            return;
    }
}

void PrinterEvents::Private::noteStatus(const PrinterReading& reading, PrinterSeen& seen)
{
    const int code = reading.statusCode();
    if (code == seen.status || (code == StatusCodes::unknown && !seen.status))
        return;
    std::optional<int> before = std::exchange(seen.status, code);
    if (code == StatusCodes::spoolerDown) {
        seen.statusBeforeStop = before;
        if (!std::exchange(isSpoolerStopped, true))
            add(Kind::SpoolerStopped, {}, Severity::Error, QStringLiteral("spooler_stopped"));
        return;
    }
    if (before == StatusCodes::spoolerDown) {
        if (std::exchange(isSpoolerStopped, false))
            add(Kind::SpoolerRunning, {}, Severity::Ok, QStringLiteral("spooler_running"));
        before = seen.statusBeforeStop;
        if (before == code)
            return;
    }
    const StatusInfo info = statusInfo(code);
    PrinterEvent& event = add(Kind::Status, reading, info.severity, info.key);
    event.code = code;
    event.before.code = before;
    event.after.code = code;
}

void PrinterEvents::Private::noteSlot(const PrinterReading& reading, Slot slot, SlotSeen& seen)
{
    Level level = reading.level(slot);
    if (level.state == Level::State::NotKnown)
        return;
    // The values of a report arrive one by one, and what is loaded before its mileage. Until then,
    // the mileage is that of what was loaded before.
    if (seen.level && seen.level->identifier != level.identifier && level.mileage &&
        level.mileage == seen.level->mileage) {
        level.ratio.reset();
        level.meters.reset();
        level.labels.reset();
    }
    const std::optional<Level> before = std::exchange(seen.level, level);
    const bool isOther =
        !before || before->state != level.state || before->identifier != level.identifier;
    if (isOther) {
        const bool isEmpty = level.state == Level::State::Empty;
        const bool isUnknown = level.state == Level::State::NotInCatalogue;
        const bool isLow = level.ratio && *level.ratio <= lowRatio;
        PrinterEvent& event =
            add(slot == Slot::Supply ? Kind::Supply : Kind::Ribbon, reading,
                isEmpty || isUnknown || isLow ? Severity::Warning : Severity::Information,
                slotKind(slot) + QLatin1String(isEmpty     ? "_empty"
                                               : isUnknown ? "_not_in_catalogue"
                                                           : "_loaded"));
        event.slot = slot;
        if (before)
            event.before = valuesOf(*before);
        event.after = valuesOf(level);
    }
    // An empty place keeps the marks: the same roll may be put back.
    if (level.state == Level::State::Empty)
        return;
    if (std::exchange(seen.identifier, level.identifier) != level.identifier) {
        seen.passed = {};
        seen.hasRatio = false;
    }
    if (!level.ratio)
        return;
    const bool isFirst = !std::exchange(seen.hasRatio, true);
    const std::optional<int> mark = passMarks(seen, *level.ratio, isFirst);
    if (!mark)
        return;
    PrinterEvent& event =
        add(Kind::Level, reading,
            ratioOf(*mark) <= lowRatio ? Severity::Warning : Severity::Information,
            QStringLiteral("level_%1").arg(*mark));
    event.slot = slot;
    event.mark = mark;
    if (before)
        event.before = valuesOf(*before);
    event.after = valuesOf(level);
}

void PrinterEvents::Private::noteFirmware(const PrinterReading& reading, PrinterSeen& seen)
{
    const QString version = reading.firmwareVersion();
    const QString boot = reading.bootVersion();
    if (!version.isEmpty() && (version != seen.firmwareVersion || boot != seen.bootVersion)) {
        PrinterEvent& event =
            add(Kind::Firmware, reading, Severity::Information, QStringLiteral("firmware_version"));
        event.before.firmwareVersion = std::exchange(seen.firmwareVersion, version);
        event.before.bootVersion = std::exchange(seen.bootVersion, boot);
        event.after.firmwareVersion = version;
        event.after.bootVersion = boot;
    }
    const std::optional<quint32> error = reading.updateError();
    if (error && std::exchange(seen.updateError, *error) != *error && *error != 0) {
        PrinterEvent& event =
            add(Kind::Firmware, reading, Severity::Error, QStringLiteral("firmware_update_failed"));
        event.code = static_cast<int>(*error);
    }
}

void PrinterEvents::Private::note(const PrinterReading& reading)
{
    PrinterSeen& seen = printers[reading.name()];
    noteStatus(reading, seen);
    for (const Slot slot : reading.slotList())
        noteSlot(reading, slot, seen.slots.at(static_cast<std::size_t>(slot)));
    noteFirmware(reading, seen);
}

PrinterEvents::PrinterEvents(PrinterReadings* readings, QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    d->q = this;
    d->readings = readings;
}

PrinterEvents::~PrinterEvents() = default;

void PrinterEvents::start()
{
    if (std::exchange(d->isStarted, true) || !d->readings)
        return;
    PrinterReadings* const readings = d->readings;
    const auto set = [this](const QString& name) {
        setReading(d->readings->reading(name));
    };
    connect(readings, &PrinterReadings::changed, this, set);
    connect(readings, &PrinterReadings::gone, this, set);
    connect(readings, &PrinterReadings::added, this,
            [this](const QString& name) { addReading(d->readings->reading(name)); });
    connect(readings, &PrinterReadings::renamed, this,
            [this](const QString& oldName, const QString& newName) {
                renameReading(oldName, d->readings->reading(newName));
            });
    const QPointer<PrinterEvents> alive(this);
    const QList<PrinterReading> all = readings->readings();
    for (const PrinterReading& reading : all) {
        if (reading.presence() != PrinterReading::Presence::Gone)
            setReading(reading);
        if (!alive)
            return;
    }
}

void PrinterEvents::setReading(const PrinterReading& reading)
{
    if (reading.isNull())
        return;
    if (reading.presence() != PrinterReading::Presence::Gone) {
        d->note(reading);
    } else if (d->printers.remove(reading.name())) { // one that comes back is reported anew
        d->add(Kind::PrinterGone, reading, Severity::Warning, QStringLiteral("printer_gone"));
    }
    d->emitAll();
}

void PrinterEvents::addReading(const PrinterReading& reading)
{
    if (reading.isNull())
        return;
    d->add(Kind::PrinterAdded, reading, Severity::Information, QStringLiteral("printer_added"));
    d->printers.remove(reading.name());
    d->note(reading);
    d->emitAll();
}

void PrinterEvents::renameReading(const QString& oldName, const PrinterReading& reading)
{
    if (reading.isNull() || reading.name() == oldName)
        return;
    PrinterEvent& event = d->add(Kind::PrinterRenamed, reading, Severity::Information,
                                 QStringLiteral("printer_renamed"));
    event.before.printer = oldName;
    event.after.printer = reading.name();
    d->printers.insert(reading.name(), d->printers.take(oldName));
    d->note(reading);
    d->emitAll();
}

} // namespace VxKit
