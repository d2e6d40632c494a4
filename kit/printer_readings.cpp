// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_readings.h"

#include "case_environment.h"
#include "printer_level.h"
#include "printer_status_controller.h"
#include "printer_status_thread.h"
#include "slot_table.h"
#include "spooler_listing.h"
#include "spooler_owners.h"
#include "supply_catalogue.h"
#include "vx_ipc_supplyd_controller.h"
#include "windows_printer_info.h"

#include <QtCore/QHash>
#include <QtCore/QLoggingCategory>
#include <QtCore/QPointer>
#include <QtCore/QQueue>
#include <QtCore/QThread>
#include <QtCore/QTimer>

#include <algorithm>
#include <array>
#include <map>
#include <tuple>
#include <unordered_map>
#include <utility>
#include <vector>

namespace VxKit {

namespace StatusCodes = VXPrinting::StatusCodes;
using Presence = PrinterReading::Presence;
using Watching = PrinterReading::Watching;

namespace {

Q_LOGGING_CATEGORY(kitLog, "vx.kit")

/// How long a watched printer that the spooler no longer lists may take to report its new name.
constexpr int patienceForName = 1000; // milliseconds

bool isError(int statusCode)
{
    return statusSeverity(statusCode) == Severity::Error;
}

/// A status as the driver publishes it, by the controller's rules.
struct Published
{
    int code = StatusCodes::unknown;
    bool mayBeOffline = true; ///< it depends on the spooler whether the printer is offline
};

Published publishedStatus(const QString& text)
{
    bool isNumber = false;
    const int code = text.toInt(&isNumber);
    if (!isNumber)
        return {};
    return {code, code == StatusCodes::disconnected || code == StatusCodes::unknown};
}

struct Reading;

/// One of the controller's threads, by the name of the printer for which the controller started it.
/// It goes on reporting under that name when its printer is renamed.
struct Watch
{
    QString monitoredName;
    QPointer<PrinterStatusThread> thread;
    /// The name of the thread's printer by its last report; empty when it could not read it.
    QString currentName;
    /// The reading that the thread's reports belong to. Null while its printer is not listed, or is
    /// not the one that is listed under that name.
    Reading* reading = nullptr;

    /// The status code of the report that this object receives next.
    std::optional<int> interpretedCode;
    /// Whether the codes of the controller belong to reports that the thread sent before this
    /// object was connected to it.
    bool isNew = true;
    /// Whether each code has arrived before its report. It has not when a slot of the host runs an
    /// event loop in the controller's signal.
    bool isInStep = true;
};

/// One reading, and what it is made of.
struct Reading
{
    PrinterReading value;
    std::array<SlotValues, allSlots.size()> slotValues;
    Watch* watch = nullptr;
    /// The values could not be read, or may have changed while the spooler was down.
    bool isSnapshotOwed = false;
    bool isInError = false;

    QString name() const { return value.name(); }
    bool isPresent() const { return value.presence() == Presence::Present; }
};

/// Whether a printer that is listed may be the one of a reading under another name.
bool mayBeOne(const Reading& reading, const SpooledPrinter& printer)
{
    return printer.driver == reading.value.driver() && printer.port == reading.value.port();
}

struct Event
{
    enum class Kind
    {
        Added,
        Changed,
        Gone,
        Renamed,
        ActivePrinter,
        InError,
        PrintersInError,
    };
    Kind kind;
    QString name;
    QString newName;
    int count = 0;
};

/// What the controller has recorded of a printer, as far as a reading needs it.
struct Recorded
{
    int statusCode = StatusCodes::unknown;
    bool isOnline = true;
    bool isRemote = false;
    bool isUnmanaged = false;
};

QHash<QString, Recorded> recordsOf(const PrinterStatusController& controller)
{
    QHash<QString, Recorded> records;
    const QVariantList all = controller.getAvailablePrinters();
    records.reserve(all.size());
    for (const QVariant& entry : all) {
        const auto& record = *static_cast<const PrinterStatusInformation*>(entry.constData());
        records.insert(record.printerName, {record.statusEnum, record.printerOnline,
                                            record.printerRemote, record.printerNonAdmin});
    }
    return records;
}

} // namespace

class PrinterReadings::Private
{
public:
    Private(PrinterReadings& readings, PrinterStatusController* controllerToRead);

    bool isOnOwnThread(const char* member) const;
    Reading* find(const QString& name) const;
    void refresh();
    std::optional<bool> ribbonSuits(const QString& ribbonSku, const QString& supplySku);

    PrinterReading withEstimates(const PrinterReading& reading) const;

    PrinterReadings& q;
    Estimator estimator;
    QPointer<PrinterStatusController> controller;
    std::map<QString, std::unique_ptr<Reading>> readings;
    QString activeName;
    int errorCount = 0;

private:
    enum class Value
    {
        Status,
        SupplyId,
        SupplyMileage,
        Ribbon1Mileage,
        Ribbon2Mileage,
        PrinterName,
        SoftwareVersion,
        EthernetConfig,
        UpdateProgress,
        UpdateError,
    };

    // Reports
    void startWatching(PrinterStatusThread& thread, const QString& name);
    void onValue(Watch& watch, Value kind, const QString& text);
    void onRibbons(Watch& watch, const QStringList& identifiers);
    void onStatusSignal(int code, const QString& name);
    Reading* beginReport(Watch& watch);
    void endReport(Reading& reading);
    void onName(Watch& watch, const QString& name);
    void onStatus(Reading& reading, const QString& text);

    // Values
    void setStatus(Reading& reading, int code, bool isOnline);
    void setIdentifier(Reading& reading, Slot slot, const QString& identifier);
    void setMileage(Reading& reading, Slot slot, const QString& mileage);
    void setLevel(Reading& reading, Slot slot);
    void setSoftwareVersion(Reading& reading, const QString& version);
    void forgetValues(Reading& reading);
    void readSnapshot(Reading& reading, const Recorded& recorded);

    // The list of printers
    void watchAll(const QList<SpooledPrinter>& listed);
    bool waitsForName(Reading& reading, const QList<SpooledPrinter>& listed);
    void renameAll(const QHash<QString, const SpooledPrinter*>& listed);
    void applyListing(const QList<SpooledPrinter>& listed,
                      const QHash<QString, const SpooledPrinter*>& byName);
    void describe(Reading& reading, const SpooledPrinter& printer);
    void markGone(Reading& reading);
    void assignWatches(const QHash<QString, const SpooledPrinter*>& listed);
    void assignWatch(Reading& reading, const SpooledPrinter& printer, Watch* watch,
                     const QHash<QString, Recorded>& records);
    void scheduleRefresh();
    void scheduleActiveCheck();

    // Signals
    void checkActive(bool mayHaveOtherName);
    Reading* activeReading(const QString& name) const;
    void reportErrors();
    void emitEvents();

    SupplyCatalogue m_catalogue;
    std::unordered_map<QString, std::unique_ptr<Watch>> m_watches;
    QQueue<Event> m_events;
    QTimer m_nameTimer;
    QString m_controllersActiveName;
    int m_reportedErrorCount = 0;
    bool m_isRefreshScheduled = false;
    bool m_isRefreshOwed = false;
    bool m_isActiveCheckScheduled = false;
    bool m_hasWaitedForNames = false;
};

PrinterReadings::Private::Private(PrinterReadings& readingsObject,
                                  PrinterStatusController* controllerToRead)
    : q(readingsObject)
    , controller(controllerToRead)
{
    if (!controller)
        return;
    recordAsEnvironmentWants(controller);
    m_nameTimer.setSingleShot(true);
    m_nameTimer.setInterval(patienceForName);
    connect(&m_nameTimer, &QTimer::timeout, &q, [this] {
        m_hasWaitedForNames = true;
        refresh();
    });
    connect(controller, &PrinterStatusController::statusChangedSignal, &q,
            [this](int code, const QString& name) { onStatusSignal(code, name); });
    connect(controller, &PrinterStatusController::activeDefaultPrinterSetSignal, &q,
            [this] { scheduleActiveCheck(); });
    refresh();
    // Nobody can be connected yet.
    m_events.clear();
}

bool PrinterReadings::Private::isOnOwnThread(const char* member) const
{
    if (QThread::currentThread() == q.thread())
        return true;
    qCWarning(kitLog,
              "PrinterReadings::%s was called on another thread than its own; call it on "
              "the controller's thread",
              member);
    return false;
}

Reading* PrinterReadings::Private::find(const QString& name) const
{
    const auto found = readings.find(name);
    return found == readings.end() ? nullptr : found->second.get();
}

PrinterReading PrinterReadings::Private::withEstimates(const PrinterReading& reading) const
{
    if (!estimator)
        return reading;
    PrinterReading result = reading;
    for (const Slot slot : allSlots)
        result.setEstimatedSecondsRemaining(slot, estimator(reading, slot));
    return result;
}

std::optional<bool> PrinterReadings::Private::ribbonSuits(const QString& ribbonSku,
                                                          const QString& supplySku)
{
    if (!controller)
        return std::nullopt;
    return m_catalogue.ribbonSuits(ribbonSku, supplySku, *controller->getSupplyIdController());
}

// Reports /////////////////////////////////////////////////////////////////////////////////////////

void PrinterReadings::Private::startWatching(PrinterStatusThread& thread, const QString& name)
{
    std::unique_ptr<Watch>& entry = m_watches[name];
    entry = std::make_unique<Watch>();
    entry->monitoredName = name;
    entry->currentName = name;
    entry->thread = &thread;

    using Thread = PrinterStatusThread;
    Watch* const watch = entry.get();
    const auto forward = [&](auto valueChanged, Value kind) {
        connect(
            &thread, valueChanged, &q,
            [this, watch, kind](const QString&, const QString& text) {
                onValue(*watch, kind, text);
            },
            Qt::QueuedConnection);
    };
    forward(&Thread::printerStatusChanged, Value::Status);
    forward(&Thread::supplyIdChanged, Value::SupplyId);
    forward(&Thread::supplyIntMileageChanged, Value::SupplyMileage);
    forward(&Thread::ribbon1IntMileageChanged, Value::Ribbon1Mileage);
    forward(&Thread::ribbon2IntMileageChanged, Value::Ribbon2Mileage);
    forward(&Thread::printerNameChangedSignal, Value::PrinterName);
    forward(&Thread::softwareVersionChanged, Value::SoftwareVersion);
    forward(&Thread::ethernetConfigChanged, Value::EthernetConfig);
    forward(&Thread::updateProgressChanged, Value::UpdateProgress);
    forward(&Thread::updateErrorChanged, Value::UpdateError);
    connect(
        &thread, &Thread::ribbonIdsChanged, &q,
        [this, watch](const QString&, const QList<QString>& ids) { onRibbons(*watch, ids); },
        Qt::QueuedConnection);
}

Reading* PrinterReadings::Private::beginReport(Watch& watch)
{
    if (!controller)
        return nullptr;
    if (m_isRefreshOwed)
        scheduleRefresh();
    Reading* const reading = watch.reading;
    if (!reading)
        return nullptr;
    reading->value.setLastReport(QDateTime::currentDateTimeUtc());
    return reading;
}

void PrinterReadings::Private::endReport(Reading& reading)
{
    // A printer whose values could not be read is read again as soon as it reports.
    if (reading.isSnapshotOwed && reading.value.statusCode() != StatusCodes::spoolerDown)
        readSnapshot(reading, recordsOf(*controller).value(reading.watch->monitoredName));
    m_events.enqueue({Event::Kind::Changed, reading.name(), {}});
    checkActive(false);
    reportErrors();
    emitEvents();
}

void PrinterReadings::Private::onValue(Watch& watch, Value kind, const QString& text)
{
    Reading* const reading = beginReport(watch);
    if (kind == Value::PrinterName && controller)
        onName(watch, text);
    if (!reading) {
        if (kind == Value::Status)
            watch.interpretedCode.reset();
        return;
    }
    switch (kind) {
    case Value::Status:
        onStatus(*reading, text);
        break;
    case Value::SupplyId:
        setIdentifier(*reading, Slot::Supply, text);
        break;
    case Value::SupplyMileage:
        setMileage(*reading, Slot::Supply, text);
        break;
    case Value::Ribbon1Mileage:
        setMileage(*reading, Slot::Ribbon1, text);
        break;
    case Value::Ribbon2Mileage:
        setMileage(*reading, Slot::Ribbon2, text);
        break;
    case Value::PrinterName:
        break;
    case Value::SoftwareVersion:
        setSoftwareVersion(*reading, text);
        break;
    case Value::EthernetConfig:
        reading->value.setEthernetConfig(text);
        break;
    case Value::UpdateProgress:
        reading->value.setUpdateProgress(publishedNumber(text));
        break;
    case Value::UpdateError:
        reading->value.setUpdateError(publishedNumber(text));
        break;
    }
    endReport(*reading);
}

void PrinterReadings::Private::onRibbons(Watch& watch, const QStringList& identifiers)
{
    Reading* const reading = beginReport(watch);
    if (!reading)
        return;
    // Both are reported when one has changed.
    for (const Slot slot : {Slot::Ribbon1, Slot::Ribbon2}) {
        const QString identifier = identifiers.value(slot == Slot::Ribbon1 ? 0 : 1);
        if (identifier != reading->slotValues[indexOf(slot)].identifier)
            setIdentifier(*reading, slot, identifier);
    }
    endReport(*reading);
}

void PrinterReadings::Private::onStatusSignal(int code, const QString& name)
{
    const auto found = m_watches.find(name);
    if (found == m_watches.end()) {
        // The controller has found a printer since the list was read, or watches one that was only
        // listed before.
        const Reading* const reading = find(name);
        if (!reading || controller->statusThread(name))
            scheduleRefresh();
        return;
    }
    Watch& watch = *found->second;
    if (!watch.isNew)
        watch.interpretedCode = code;
}

void PrinterReadings::Private::onStatus(Reading& reading, const QString& text)
{
    // Only what may mean "offline" needs the controller's interpretation. Every other code is in
    // its record as it was published, and the printer counts as online.
    Watch& watch = *reading.watch;
    const Published published = publishedStatus(text);
    const auto interpreted = std::exchange(watch.interpretedCode, std::nullopt);
    const bool isOffline = published.mayBeOffline && interpreted == StatusCodes::offline;
    watch.isInStep = watch.isInStep && (isOffline || interpreted == published.code);
    if (!published.mayBeOffline) {
        setStatus(reading, published.code, true);
    } else if (watch.isInStep) {
        setStatus(reading, *interpreted, !isOffline);
    } else {
        // Looking a printer up among all records takes too long to do it for every report.
        const Recorded recorded = recordsOf(*controller).value(watch.monitoredName);
        setStatus(reading, recorded.statusCode, recorded.isOnline);
    }
    // What changes while the spooler is down is not reported afterwards if it was read before.
    if (reading.value.statusCode() == StatusCodes::spoolerDown)
        reading.isSnapshotOwed = true;
}

void PrinterReadings::Private::onName(Watch& watch, const QString& name)
{
    if (watch.currentName == name)
        return;
    // An empty name means that the thread's printer was deleted, or could not be read.
    watch.currentName = name;
    scheduleRefresh();
}

// Values //////////////////////////////////////////////////////////////////////////////////////////

void PrinterReadings::Private::setStatus(Reading& reading, int code, bool isOnline)
{
    reading.value.setStatusCode(code);
    reading.value.setOnline(isOnline);
    const bool isInError = reading.isPresent() && isError(code);
    if (isInError != reading.isInError)
        errorCount += isInError ? 1 : -1;
    reading.isInError = isInError;
}

void PrinterReadings::Private::setIdentifier(Reading& reading, Slot slot, const QString& identifier)
{
    SlotValues& values = reading.slotValues[indexOf(slot)];
    values.identifier = identifier;
    values.item.reset();
    if (reading.value.hasSlot(slot) && stateOf(slot, identifier) == Level::State::Loaded) {
        VXIPCSUPPLYDController& service = *controller->getSupplyIdController();
        values.item = slot == Slot::Supply ? m_catalogue.supply(identifier, service)
                                           : m_catalogue.ribbon(identifier, service);
    }
    setLevel(reading, slot);
}

void PrinterReadings::Private::setMileage(Reading& reading, Slot slot, const QString& mileage)
{
    reading.slotValues[indexOf(slot)].mileage = publishedMileage(mileage);
    setLevel(reading, slot);
}

void PrinterReadings::Private::setLevel(Reading& reading, Slot slot)
{
    reading.value.setLevel(slot,
                           levelOf(slot, reading.value.model(), reading.slotValues[indexOf(slot)]));
}

void PrinterReadings::Private::setSoftwareVersion(Reading& reading, const QString& version)
{
    reading.value.setFirmwareVersion(version.section(QLatin1Char(','), 0, 0).trimmed());
    reading.value.setBootVersion(version.section(QLatin1Char(','), 1).trimmed());
}

void PrinterReadings::Private::forgetValues(Reading& reading)
{
    reading.slotValues = {};
    for (const Slot slot : allSlots)
        setLevel(reading, slot);
    setSoftwareVersion(reading, {});
    reading.value.setEthernetConfig({});
    reading.value.setUpdateProgress({});
    reading.value.setUpdateError({});
    reading.isSnapshotOwed = false;
}

void PrinterReadings::Private::readSnapshot(Reading& reading, const Recorded& recorded)
{
    PrinterStatusThread* const thread = reading.watch->thread;
    const PrinterOwner printer = openPrinter(reading.name());
    reading.isSnapshotOwed = !printer;
    if (!thread || !printer)
        return;

    bool hasPublished = false;
    const auto read = [&](QString (PrinterStatusThread::*value)(void*)) {
        const QString text = (thread->*value)(printer.get());
        hasPublished = hasPublished || !text.isEmpty();
        return text;
    };
    setIdentifier(reading, Slot::Supply, read(&PrinterStatusThread::getSupplyId));
    setIdentifier(reading, Slot::Ribbon1, read(&PrinterStatusThread::getRibbon1Id));
    setIdentifier(reading, Slot::Ribbon2, read(&PrinterStatusThread::getRibbon2Id));
    const QString status = read(&PrinterStatusThread::getPrinterStatus);
    setSoftwareVersion(reading, read(&PrinterStatusThread::getSoftwareVersion));
    reading.value.setEthernetConfig(read(&PrinterStatusThread::getEthernetConfig));
    setMileage(reading, Slot::Supply, read(&PrinterStatusThread::getSupplyIntMileage));
    setMileage(reading, Slot::Ribbon1, read(&PrinterStatusThread::getRibbon1IntMileage));
    setMileage(reading, Slot::Ribbon2, read(&PrinterStatusThread::getRibbon2IntMileage));
    reading.value.setUpdateProgress(publishedNumber(read(&PrinterStatusThread::getUpdateProgress)));
    reading.value.setUpdateError(publishedNumber(read(&PrinterStatusThread::getUpdateError)));
    if (hasPublished)
        reading.value.setLastReport(QDateTime::currentDateTimeUtc());

    // The status by the controller's rules. Its record may be older than this snapshot, but a
    // printer that it has called offline is offline until it reports again.
    if (status.isEmpty())
        return;
    const Published published = publishedStatus(status);
    const bool isOffline = published.mayBeOffline &&
                           ((recorded.statusCode == StatusCodes::offline && !recorded.isOnline) ||
                            WindowsPrinterInfo::isPrinterOffline(reading.name()));
    setStatus(reading, isOffline ? StatusCodes::offline : published.code, !isOffline);
}

// The list of printers ////////////////////////////////////////////////////////////////////////////

void PrinterReadings::Private::scheduleRefresh()
{
    if (std::exchange(m_isRefreshScheduled, true))
        return;
    QMetaObject::invokeMethod(
        &q,
        [this] {
            m_isRefreshScheduled = false;
            if (controller)
                refresh();
        },
        Qt::QueuedConnection);
}

void PrinterReadings::Private::refresh()
{
    // A spooler that does not answer says nothing about the printers. The list is read again when
    // one of them reports.
    const auto listed = listPrinters();
    m_isRefreshOwed = !listed;
    if (listed) {
        QHash<QString, const SpooledPrinter*> byName;
        byName.reserve(listed->size());
        for (const SpooledPrinter& printer : *listed)
            byName.insert(printer.name, &printer);

        watchAll(*listed);
        renameAll(byName);
        applyListing(*listed, byName);
    }
    checkActive(true);
    reportErrors();
    emitEvents();
}

void PrinterReadings::Private::watchAll(const QList<SpooledPrinter>& listed)
{
    bool isAnyNew = false;
    for (const SpooledPrinter& printer : listed) {
        if (m_watches.contains(printer.name))
            continue;
        if (PrinterStatusThread* const thread = controller->statusThread(printer.name)) {
            startWatching(*thread, printer.name);
            isAnyNew = true;
        }
    }
    if (!isAnyNew)
        return;
    // Delivered after the reports that only the controller receives, and before all others.
    QMetaObject::invokeMethod(
        &q,
        [this] {
            for (const auto& [name, watch] : m_watches)
                watch->isNew = false;
        },
        Qt::QueuedConnection);
}

void PrinterReadings::Private::renameAll(const QHash<QString, const SpooledPrinter*>& listed)
{
    for (const auto& [monitoredName, watch] : m_watches) {
        Reading* const reading = watch->reading;
        if (!reading || watch->currentName.isEmpty() || watch->currentName == reading->name())
            continue;
        const QString oldName = reading->name();
        const QString newName = watch->currentName;
        // When both names are listed, the thread has moved to another printer, as it does when the
        // spooler starts again. When there is a reading of the new name, the old printer is gone.
        if (!listed.contains(newName) || listed.contains(oldName) || readings.contains(newName))
            continue;
        auto node = readings.extract(oldName);
        node.key() = newName;
        reading->value.setName(newName);
        readings.insert(std::move(node));
        m_events.enqueue({Event::Kind::Renamed, oldName, newName});
    }
}

bool PrinterReadings::Private::waitsForName(Reading& reading, const QList<SpooledPrinter>& listed)
{
    if (m_hasWaitedForNames || !reading.watch || reading.watch->currentName != reading.name())
        return false;
    return std::ranges::any_of(listed, [&](const SpooledPrinter& printer) {
        return mayBeOne(reading, printer) && !readings.contains(printer.name);
    });
}

void PrinterReadings::Private::applyListing(const QList<SpooledPrinter>& listed,
                                            const QHash<QString, const SpooledPrinter*>& byName)
{
    std::map<QString, PrinterReading> before;
    for (const auto& [name, reading] : readings)
        before.emplace(name, reading->value);

    // A printer that was renamed has the same driver and port under its new name. Its thread is
    // about to report that name. Until then neither the old nor the new name is decided on.
    std::vector<Reading*> missing;
    for (const auto& [name, reading] : readings) {
        if (!reading->isPresent() || byName.contains(name))
            continue;
        if (waitsForName(*reading, listed))
            missing.push_back(reading.get());
        else
            markGone(*reading);
    }
    if (missing.empty())
        m_nameTimer.stop();
    else if (!m_nameTimer.isActive())
        m_nameTimer.start();
    m_hasWaitedForNames = false;
    const auto maybeRenamed = [&](const SpooledPrinter& printer) {
        return std::ranges::any_of(
            missing, [&](const Reading* reading) { return mayBeOne(*reading, printer); });
    };

    QStringList added;
    for (const SpooledPrinter& printer : listed) {
        std::unique_ptr<Reading>* reading = nullptr;
        if (const auto found = readings.find(printer.name); found != readings.end()) {
            reading = &found->second;
        } else {
            if (maybeRenamed(printer))
                continue;
            reading = &readings[printer.name];
            *reading = std::make_unique<Reading>();
        }
        if ((*reading)->value.isNull() || !(*reading)->isPresent())
            added.append(printer.name);
        describe(**reading, printer);
    }
    assignWatches(byName);

    for (const auto& [name, reading] : readings) {
        const auto old = before.find(name);
        if (old == before.end() || added.contains(name))
            continue;
        if (old->second.presence() == Presence::Present && !reading->isPresent())
            m_events.enqueue({Event::Kind::Gone, name, {}});
        else if (!(old->second == reading->value))
            m_events.enqueue({Event::Kind::Changed, name, {}});
    }
    for (const QString& name : std::as_const(added))
        m_events.enqueue({Event::Kind::Added, name, {}});
}

void PrinterReadings::Private::describe(Reading& reading, const SpooledPrinter& printer)
{
    PrinterReading& value = reading.value;
    const bool isNew = value.isNull();
    const bool isOtherModel = value.model() != printer.model;
    if (isNew)
        value.setName(printer.name);
    value.setModel(printer.model);
    value.setDriver(printer.driver);
    value.setPort(printer.port);
    value.setSerialNumber(printer.serialNumber);
    value.setPresent();
    if (isNew) {
        forgetValues(reading);
    } else if (isOtherModel) {
        // The other model may have other slots and another unit.
        for (const Slot slot : allSlots)
            setIdentifier(reading, slot, reading.slotValues[indexOf(slot)].identifier);
    }
}

void PrinterReadings::Private::markGone(Reading& reading)
{
    if (reading.watch)
        reading.watch->reading = nullptr;
    reading.watch = nullptr;
    reading.value.setGone(QDateTime::currentDateTimeUtc());
    reading.value.setWatching(Watching::Gone);
    forgetValues(reading);
    setStatus(reading, StatusCodes::disconnected, false);
}

void PrinterReadings::Private::assignWatches(const QHash<QString, const SpooledPrinter*>& listed)
{
    QHash<QString, Watch*> byCurrentName;
    for (const auto& [monitoredName, watch] : m_watches) {
        if (watch->currentName.isEmpty())
            continue;
        // Of two threads for a printer that was renamed, the one that was started for its new name.
        Watch*& entry = byCurrentName[watch->currentName];
        if (!entry || monitoredName == watch->currentName)
            entry = watch.get();
    }
    const QHash<QString, Recorded> records = recordsOf(*controller);
    for (const auto& [name, reading] : readings) {
        if (const SpooledPrinter* const printer = listed.value(name))
            assignWatch(*reading, *printer, byCurrentName.value(name), records);
    }
}

void PrinterReadings::Private::assignWatch(Reading& reading, const SpooledPrinter& printer,
                                           Watch* watch, const QHash<QString, Recorded>& records)
{
    if (watch && watch == reading.watch)
        return;
    if (reading.watch)
        reading.watch->reading = nullptr;
    reading.watch = watch;
    if (watch) {
        if (watch->reading)
            watch->reading->watch = nullptr;
        watch->reading = &reading;
        reading.value.setWatching(Watching::Watched);
        setStatus(reading, StatusCodes::unknown, !printer.isOffline);
        readSnapshot(reading, records.value(watch->monitoredName));
        return;
    }

    forgetValues(reading);
    const auto recorded = records.constFind(printer.name);
    Watching watching = Watching::NotDiscovered;
    int code = StatusCodes::unknown;
    if (m_watches.contains(printer.name)) {
        watching = Watching::Replaced;
    } else if (recorded == records.constEnd()) {
        if (printer.isOffline) {
            watching = Watching::OfflineSinceDiscovery;
            code = StatusCodes::offline;
        }
    } else if (recorded->isRemote) {
        watching = Watching::NetworkPrinter;
        code = StatusCodes::networkPrinter;
    } else if (recorded->isUnmanaged) {
        watching = Watching::NotManaged;
        code = StatusCodes::notManaged;
    }
    reading.value.setWatching(watching);
    setStatus(reading, code, !printer.isOffline);
}

// Signals /////////////////////////////////////////////////////////////////////////////////////////

Reading* PrinterReadings::Private::activeReading(const QString& name) const
{
    if (name.isEmpty())
        return nullptr;
    // The controller knows a renamed printer by its old name.
    const auto found = m_watches.find(name);
    if (found != m_watches.end() && found->second->reading)
        return found->second->reading;
    return find(name);
}

void PrinterReadings::Private::checkActive(bool mayHaveOtherName)
{
    const QString name = controller->activeDefaultPrinter();
    if (!mayHaveOtherName && name == m_controllersActiveName)
        return;
    m_controllersActiveName = name;

    const auto isReported = [this](const QString& reported) {
        return std::ranges::any_of(std::as_const(m_events), [&](const Event& event) {
            return (event.kind == Event::Kind::Changed || event.kind == Event::Kind::Added) &&
                   event.name == reported;
        });
    };
    const Reading* const active = activeReading(name);
    for (const auto& [readingName, reading] : readings) {
        const bool isActive = reading.get() == active;
        if (reading->value.isActive() == isActive)
            continue;
        reading->value.setActive(isActive);
        if (!isReported(readingName))
            m_events.enqueue({Event::Kind::Changed, readingName, {}});
    }
    const QString nameOfReading = active ? active->name() : name;
    if (std::exchange(activeName, nameOfReading) != nameOfReading)
        m_events.enqueue({Event::Kind::ActivePrinter, nameOfReading, {}});
}

void PrinterReadings::Private::scheduleActiveCheck()
{
    if (std::exchange(m_isActiveCheckScheduled, true))
        return;
    QMetaObject::invokeMethod(
        &q,
        [this] {
            m_isActiveCheckScheduled = false;
            if (!controller)
                return;
            checkActive(false);
            emitEvents();
        },
        Qt::QueuedConnection);
}

void PrinterReadings::Private::reportErrors()
{
    const int before = std::exchange(m_reportedErrorCount, errorCount);
    if (before == errorCount)
        return;
    if ((before > 0) != (errorCount > 0))
        m_events.enqueue({Event::Kind::InError, {}, {}, errorCount});
    m_events.enqueue({Event::Kind::PrintersInError, {}, {}, errorCount});
}

void PrinterReadings::Private::emitEvents()
{
    // A slot may run an event loop, in which further reports arrive, or destroy this object. The
    // order of the events stays the same: the innermost call emits the oldest first.
    const QPointer<PrinterReadings> guard(&q);
    while (guard && !m_events.isEmpty()) {
        const Event event = m_events.dequeue();
        switch (event.kind) {
        case Event::Kind::Added:
            Q_EMIT q.added(event.name);
            break;
        case Event::Kind::Changed:
            Q_EMIT q.changed(event.name);
            break;
        case Event::Kind::Gone:
            Q_EMIT q.gone(event.name);
            break;
        case Event::Kind::Renamed:
            Q_EMIT q.renamed(event.name, event.newName);
            break;
        case Event::Kind::ActivePrinter:
            Q_EMIT q.activePrinterChanged(event.name);
            break;
        case Event::Kind::InError:
            Q_EMIT q.inErrorChanged(event.count > 0);
            break;
        case Event::Kind::PrintersInError:
            Q_EMIT q.printersInErrorChanged(event.count);
            break;
        }
    }
}

// The public class ////////////////////////////////////////////////////////////////////////////////

namespace {

/// The controller if it can be used; null, with a warning, if not.
PrinterStatusController* usable(PrinterStatusController* controller)
{
    if (!controller) {
        qCWarning(kitLog, "PrinterReadings was created without a controller and stays empty");
        return nullptr;
    }
    if (controller->thread() != QThread::currentThread()) {
        qCWarning(kitLog, "PrinterReadings was created on another thread than its controller and "
                          "stays empty; create it on the controller's thread");
        return nullptr;
    }
    return controller;
}

} // namespace

PrinterReadings::PrinterReadings(PrinterStatusController* controller, QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>(*this, usable(controller)))
{}

PrinterReadings::~PrinterReadings()
{
    d->isOnOwnThread("~PrinterReadings()");
}

QStringList PrinterReadings::names() const
{
    QStringList names;
    if (!d->isOnOwnThread("names()"))
        return names;
    names.reserve(static_cast<qsizetype>(d->readings.size()));
    for (const auto& [name, reading] : d->readings)
        names.append(name);
    return names;
}

PrinterReading PrinterReadings::reading(const QString& name) const
{
    if (!d->isOnOwnThread("reading()"))
        return {};
    const Reading* const found = d->find(name);
    return found ? d->withEstimates(found->value) : PrinterReading();
}

QList<PrinterReading> PrinterReadings::readings() const
{
    QList<PrinterReading> readings;
    if (!d->isOnOwnThread("readings()"))
        return readings;
    readings.reserve(static_cast<qsizetype>(d->readings.size()));
    for (const auto& [name, reading] : d->readings)
        readings.append(d->withEstimates(reading->value));
    return readings;
}

QString PrinterReadings::activePrinter() const
{
    return d->isOnOwnThread("activePrinter()") ? d->activeName : QString();
}

QString PrinterReadings::printerToUse() const
{
    if (!d->isOnOwnThread("printerToUse()"))
        return {};
    const Reading* best = nullptr;
    const auto rank = [](const Reading& reading) {
        return std::tuple(!reading.value.isActive(),
                          reading.value.statusCode() != StatusCodes::ready,
                          reading.value.watching() == Watching::NetworkPrinter);
    };
    for (const auto& [name, reading] : d->readings) {
        if (!reading->value.isOnline())
            continue;
        if (!best || rank(*reading) < rank(*best))
            best = reading.get();
    }
    return best ? best->name() : QString();
}

QString PrinterReadings::catalogueFile() const
{
    if (!d->isOnOwnThread("catalogueFile()") || !d->controller)
        return {};
    return d->controller->getSupplyIdController()->catalogueFile();
}

std::optional<bool> PrinterReadings::ribbonSuits(const QString& ribbonSku,
                                                 const QString& supplySku) const
{
    return d->isOnOwnThread("ribbonSuits()") ? d->ribbonSuits(ribbonSku, supplySku) : std::nullopt;
}

void PrinterReadings::setEstimator(Estimator estimator)
{
    if (d->isOnOwnThread("setEstimator()"))
        d->estimator = std::move(estimator);
}

bool PrinterReadings::isInError() const
{
    return d->isOnOwnThread("isInError()") && d->errorCount > 0;
}

int PrinterReadings::printersInError() const
{
    return d->isOnOwnThread("printersInError()") ? d->errorCount : 0;
}

void PrinterReadings::refresh()
{
    if (!d->isOnOwnThread("refresh()"))
        return;
    if (!d->controller) {
        qCWarning(kitLog, "PrinterReadings::refresh() was called without a controller, or after it "
                          "was destroyed; nothing is refreshed");
        return;
    }
    d->refresh();
}

} // namespace VxKit
