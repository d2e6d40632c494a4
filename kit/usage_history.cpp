// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "usage_history.h"

#include "printer_readings.h"
#include "usage_writer.h"
#include "write_thread.h"

#include <QtCore/QFileInfo>
#include <QtCore/QHash>
#include <QtCore/QMetaObject>
#include <QtCore/QPointer>
#include <QtCore/QStandardPaths>
#include <QtCore/QThread>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

using namespace std::chrono_literals;

namespace VxKit {

namespace {

/// After a failure, writing is tried again so much later.
constexpr auto retryPause = 1s;
/// So many changes are written in one transaction.
constexpr std::size_t inATransaction = 4096;
/// What a printer reports at once arrives within this time, as several changes.
constexpr auto reportTime = 1s;
/// Longer texts are cut, so that a record is bounded.
constexpr qsizetype longestText = 256;
constexpr qsizetype mostRemembered = 4096;

UsageHistoryOptions valid(UsageHistoryOptions options)
{
    if (options.fileName.isEmpty())
        options.fileName = UsageHistory::defaultFileName();
    options.fileName =
        QFileInfo(options.fileName).absoluteFilePath(); // the host may change its folder
    options.maxFileSize = std::max(options.maxFileSize, qint64(4) << 20);
    options.fullDetailFor = std::max(options.fullDetailFor, 0h);
    options.hourlyFor = std::max(options.hourlyFor, options.fullDetailFor);
    options.keepFor = std::max(options.keepFor, options.hourlyFor);
    options.resolution = std::max(options.resolution, 0s);
    options.writeInterval = std::max(options.writeInterval, 0ms);
    options.maxQueuedSamples = std::max<qsizetype>(options.maxQueuedSamples, 16);
    if (!options.clock)
        options.clock = [] {
            return QDateTime::currentDateTimeUtc();
        };
    return options;
}

qint64 inMillimeters(double meters)
{
    return std::llround(meters * millimetersPerMeter);
}

/// What is to be recorded of a level. Empty when it is not known.
std::optional<UsageRecord> recordOf(const Level& level)
{
    UsageRecord record;
    if (level.state == Level::State::Empty) {
        record.kind = UsageRecord::Kind::Empty;
        return record;
    }
    if (level.state == Level::State::NotKnown)
        return std::nullopt;
    record.isInPercent = level.mileageUnit == Level::MileageUnit::Percent;
    if (level.mileage)
        record.level = *level.mileage;
    else if (level.ratio && record.isInPercent)
        record.level = std::llround(*level.ratio * 100.0);
    else if (level.meters)
        record.level = inMillimeters(*level.meters);
    else
        return std::nullopt;
    record.identifier = level.identifier.left(longestText);
    record.sku = level.sku.left(longestText);
    record.title = level.name.left(longestText);
    record.material = level.material.left(longestText);
    if (level.totalMeters)
        record.total = inMillimeters(*level.totalMeters);
    if (level.meters && !record.isInPercent)
        record.excess = record.level - inMillimeters(*level.meters);
    record.labels = level.labels;
    return record;
}

} // namespace

class UsageHistory::Private : public WriteThread
{
public:
    Private(UsageHistory* history, const UsageHistoryOptions& wanted)
        : q(history)
        , options(valid(wanted))
        , m_writer(options)
    {}

    UsageHistory* const q;
    const UsageHistoryOptions options;
    QPointer<PrinterReadings> readings;

    void start();
    /// All of these on any thread.
    void record(const PrinterReading& reading, const QDateTime& time);
    void rename(const QString& oldName, const QString& newName);
    qint64 lostSamples() const;

private:
    void enqueue(UsageRecord record);
    /// Whether there is so much to write that the interval must not be waited for.
    bool isCrowded() const
    {
        return m_queue.size() >=
               std::min<std::size_t>(inATransaction, options.maxQueuedSamples / 2);
    }
    void run();
    void drop();
    std::deque<UsageRecord> takeRecords(bool withNewest);
    void giveBack(std::deque<UsageRecord> records, const UsageGap& missing);
    void finishAttempt(const UsageWriter::Outcome& outcome);

    // All of these are guarded by the mutex.
    std::deque<UsageRecord> m_queue;
    QHash<QString, std::array<std::optional<UsageRecord>, 3>> m_last; ///< by the printer's key
    qint64 m_lostInAll = 0;
    UsageGap m_gap; ///< not yet in the file

    UsageWriter m_writer; ///< used on the thread only
};

void UsageHistory::Private::start()
{
    thread = std::thread([this] { run(); });
}

void UsageHistory::Private::record(const PrinterReading& reading, const QDateTime& time)
{
    if (reading.isNull())
        return;
    const QString key = printerKey(reading).left(longestText);
    const qint64 seconds = (time.isValid() ? time : options.clock()).toSecsSinceEpoch();
    bool isWaiting = false;
    {
        const std::lock_guard lock(mutex);
        isWaiting = m_queue.empty();
        if (m_last.size() > mostRemembered)
            m_last.clear();
        auto& lastOfPrinter = m_last[key];
        for (const Slot slot : reading.slotList()) {
            std::optional<UsageRecord> record = recordOf(reading.level(slot));
            auto& lastOfSlot = lastOfPrinter.at(static_cast<std::size_t>(slot));
            if (!record || (lastOfSlot && lastOfSlot->isSameAs(*record)))
                continue;
            record->printer = key;
            record->name = reading.name().left(longestText);
            record->slot = slot;
            record->time = seconds;
            lastOfSlot = record;
            enqueue(*record);
        }
        isWaiting = (isWaiting && !m_queue.empty()) || isCrowded();
    }
    if (isWaiting)
        changed.notify_all();
}

void UsageHistory::Private::rename(const QString& oldName, const QString& newName)
{
    UsageRecord record;
    record.kind = UsageRecord::Kind::Rename;
    record.printer = keyOfName(oldName).left(longestText);
    record.name = newName.left(longestText - namePrefix.size());
    {
        const std::lock_guard lock(mutex);
        record.time = options.clock().toSecsSinceEpoch();
        enqueue(record);
    }
    changed.notify_all();
}

qint64 UsageHistory::Private::lostSamples() const
{
    const std::lock_guard lock(mutex);
    return m_lostInAll;
}

/// Drops the oldest records that are too many. The mutex is held.
void UsageHistory::Private::drop()
{
    while (static_cast<qsizetype>(m_queue.size()) > options.maxQueuedSamples) {
        const QDateTime time = QDateTime::fromSecsSinceEpoch(m_queue.front().time, Qt::UTC);
        if (m_gap.samples++ == 0)
            m_gap.since = time;
        m_gap.until = time;
        ++m_lostInAll;
        m_queue.pop_front();
    }
}

/// The mutex is held.
void UsageHistory::Private::enqueue(UsageRecord record)
{
    record.arrived = Clock::now();
    m_queue.push_back(std::move(record));
    drop();
}

/// What is to be written next. A new roll is reported piece by piece, its identifier and then its
/// level or the other way round; only what there was in the end is recorded. What is too new to
/// tell remains in the queue. The mutex is held.
std::deque<UsageRecord> UsageHistory::Private::takeRecords(bool withNewest)
{
    const auto oldEnough = Clock::now() - reportTime;
    const bool isMerging = options.resolution > 0s;
    std::size_t count = 0;
    while (count < std::min(m_queue.size(), inATransaction) &&
           (withNewest || !isMerging || m_queue[count].arrived <= oldEnough))
        ++count;

    QHash<std::pair<QString, int>, qint64> later; // the time of the next change of a slot
    std::deque<UsageRecord> records;
    for (std::size_t i = m_queue.size(); isMerging && i-- > count;) {
        if (m_queue[i].kind != UsageRecord::Kind::Rename)
            later.insert({m_queue[i].printer, static_cast<int>(m_queue[i].slot)}, m_queue[i].time);
    }
    for (std::size_t i = count; i-- > 0;) {
        UsageRecord& record = m_queue[i];
        if (isMerging && record.kind != UsageRecord::Kind::Rename) {
            const std::pair<QString, int> key(record.printer, static_cast<int>(record.slot));
            const auto next = later.constFind(key);
            const bool isReplaced = next != later.constEnd() && *next >= record.time &&
                                    *next - record.time <= reportTime / 1s;
            later.insert(key, record.time);
            if (isReplaced)
                continue;
        }
        records.push_front(std::move(record));
    }
    m_queue.erase(m_queue.begin(), m_queue.begin() + static_cast<std::ptrdiff_t>(count));
    return records;
}

/// Puts what could not be written in front of what has come since. The mutex is held.
void UsageHistory::Private::giveBack(std::deque<UsageRecord> records, const UsageGap& missing)
{
    m_queue.insert(m_queue.begin(), std::make_move_iterator(records.begin()),
                   std::make_move_iterator(records.end()));
    if (missing.samples > 0) {
        m_gap.since = missing.since;
        m_gap.until = m_gap.samples > 0 ? m_gap.until : missing.until;
        m_gap.samples += missing.samples;
    }
    drop();
}

/// The mutex is held.
void UsageHistory::Private::finishAttempt(const UsageWriter::Outcome& outcome)
{
    const bool wasGood = error.isEmpty();
    error = outcome.error;
    nextAttempt = Clock::now() + (error.isEmpty() ? options.writeInterval : retryPause);
    const auto emitLater = [this](auto emitSignal) {
        QMetaObject::invokeMethod(q, emitSignal, Qt::QueuedConnection);
    };
    if (!outcome.setAside.isEmpty())
        emitLater(
            [log = q, outcome] { Q_EMIT log->fileSetAside(outcome.setAside, outcome.reason); });
    if (!error.isEmpty() && wasGood)
        emitLater([log = q, reason = error] { Q_EMIT log->writingFailed(reason); });
    if (error.isEmpty() && !wasGood)
        emitLater([log = q] { Q_EMIT log->writingResumed(); });
}

void UsageHistory::Private::run()
{
    std::unique_lock lock(mutex);
    bool hasBegun = false;
    while (true) {
        changed.wait(lock, [&] { return !hasBegun || isAsked() || !m_queue.empty(); });
        changed.wait_until(lock, nextAttempt,
                           [&] { return isAsked() || (error.isEmpty() && isCrowded()); });

        const quint64 flushes = flushesWanted;
        const std::deque<UsageRecord> records = takeRecords(isAsked() || isCrowded());
        if (!hasBegun || !records.empty() || m_gap.samples > 0 || !error.isEmpty()) {
            const UsageGap missing = std::exchange(m_gap, {});
            lock.unlock();
            const UsageWriter::Outcome outcome = m_writer.write(records, missing);
            lock.lock();
            hasBegun = true;
            if (!outcome.isWritten)
                giveBack(records, missing);
            finishAttempt(outcome);
            if (!error.isEmpty()) {
                finishFlushes(flushes);
                if (isStopping)
                    return;
            }
        } else if (!isAsked()) {
            nextAttempt = Clock::now() + reportTime;
        }
        if (m_queue.empty()) {
            finishFlushes(flushes);
            if (isStopping)
                return;
        }
    }
}

UsageHistory::UsageHistory(const UsageHistoryOptions& options, QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this, options))
{
    d->start();
}

UsageHistory::UsageHistory(PrinterReadings* readings, const UsageHistoryOptions& options,
                           QObject* parent)
    : UsageHistory(options, parent)
{
    d->readings = readings;
    if (!readings)
        return;
    const auto recordNow = [this](const QString& name) {
        if (d->readings)
            record(d->readings->reading(name));
    };
    connect(readings, &PrinterReadings::added, this, recordNow);
    connect(readings, &PrinterReadings::changed, this, recordNow);
    connect(readings, &PrinterReadings::renamed, this, &UsageHistory::rename);
    for (const PrinterReading& reading : readings->readings())
        record(reading);
}

UsageHistory::~UsageHistory()
{
    d->stop();
}

QString UsageHistory::defaultFileName()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/VxPrinterStatus/history.db");
}

QString UsageHistory::printerKey(const PrinterReading& reading)
{
    const QString serialNumber = reading.serialNumber();
    return serialNumber.isEmpty() ? keyOfName(reading.name()) : serialNumber;
}

UsageHistoryOptions UsageHistory::options() const
{
    return d->options;
}

void UsageHistory::record(const PrinterReading& reading, const QDateTime& time)
{
    d->record(reading, time);
}

void UsageHistory::rename(const QString& oldName, const QString& newName)
{
    d->rename(oldName, newName);
}

bool UsageHistory::flush(QDeadlineTimer deadline)
{
    return d->flush(deadline);
}

qint64 UsageHistory::lostSamples() const
{
    return d->lostSamples();
}

QString UsageHistory::errorString() const
{
    return d->errorString();
}

} // namespace VxKit
