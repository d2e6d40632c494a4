// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "usage_writer.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSet>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>

namespace VxKit {

namespace {

using Why = UsageFailure::Why;

constexpr qint64 hour = 3600;
constexpr qint64 day = 24 * hour;

/// A roll that has just been loaded is reported piece by piece: what changes within this time, as
/// long as nothing was used, belongs to the same roll.
constexpr qint64 settlingTime = 60;
/// What rises by no more is the same roll: millimetres, and percents.
constexpr qint64 pulledBack = 100;
constexpr qint64 onePercent = 1;
/// A chunk is complete after this time, so that what is in it grows old together.
constexpr qint64 longestChunk = 7 * day;

constexpr qint64 maintenanceInterval = 6 * hour;
/// So much older a history becomes between two maintenances at most.
constexpr qint64 largestStep = 7 * day;
/// So many chunks or segments are thinned or forgotten in one transaction.
constexpr qint64 inATransaction = 64;
/// Of the oldest segments so many are looked at when some are to be forgotten.
constexpr const char* oldestSegments =
    "SELECT id FROM (SELECT id, last_time FROM segment ORDER BY id LIMIT 1000) "
    "WHERE last_time < ? ORDER BY id LIMIT ?";
/// The write-ahead log is emptied when it is larger, and nothing is written while it cannot be.
constexpr qint64 largeLog = qint64(1) << 20;
constexpr qint64 tooLargeLog = qint64(3) << 19;
/// What the write-ahead log and SQLite's index of it may take, besides the file.
constexpr qint64 besidesFile = tooLargeLog + (qint64(1) << 20);

constexpr int mostSetAside = 9;
constexpr qsizetype mostRemembered = 4096;

/// How coarse a chunk of the next detail is.
qint64 periodAfter(int detail)
{
    return detail == 0 ? hour : day;
}

QVariant nullable(std::optional<qint64> number)
{
    return number ? QVariant(*number) : QVariant(QMetaType::fromType<qint64>());
}

/// The levels are calculated with numbers that are rounded.
bool isSameExcess(std::optional<qint64> one, std::optional<qint64> other)
{
    return !other || (one && std::abs(*one - *other) <= 1);
}

std::optional<int> optionalNumber(const QVariant& value)
{
    return value.isNull() ? std::nullopt : std::optional(value.toInt());
}

} // namespace

bool UsageRecord::isSameAs(const UsageRecord& other) const
{
    return kind == other.kind && identifier == other.identifier && sku == other.sku &&
           title == other.title && material == other.material && total == other.total &&
           isInPercent == other.isInPercent && level == other.level && labels == other.labels;
}

UsageWriter::UsageWriter(UsageHistoryOptions options)
    : m_options(std::move(options))
{}

/// Opens the file and does some work in it. A damaged file is set aside, and the work is done in a
/// new one.
template <typename Work>
UsageWriter::Outcome UsageWriter::guarded(Work work)
{
    Outcome outcome;
    for (int attempt = 0; attempt < 2; ++attempt) {
        try {
            outcome.isWritten = false;
            open();
            work(outcome);
            outcome.error.clear();
            return outcome;
        } catch (const UsageFailure& failure) {
            close();
            outcome.error = failure.reason;
            if (failure.why != Why::Damaged || attempt > 0)
                return outcome;
            outcome.setAside = setAside();
            outcome.reason = failure.reason;
            if (outcome.setAside.isEmpty())
                return outcome;
        }
    }
    return outcome;
}

UsageWriter::Outcome UsageWriter::write(const std::deque<UsageRecord>& records, const UsageGap& gap)
{
    return guarded([&](Outcome& outcome) {
        checkLog();
        {
            UsageTransaction transaction(*m_database);
            for (const UsageRecord& record : records)
                apply(record);
            for (Segment& segment : m_segments)
                writeSegment(segment);
            if (gap.samples > 0)
                m_database->run(
                    "INSERT INTO gap(since, until, samples) VALUES(?, ?, ?)",
                    {gap.since.toSecsSinceEpoch(), gap.until.toSecsSinceEpoch(), gap.samples});
            transaction.commit();
        }
        outcome.isWritten = true;
        maintain();
        if (m_segments.size() > mostRemembered || m_items.size() > mostRemembered ||
            m_printers.size() > mostRemembered) {
            m_segments.clear();
            m_items.clear();
            m_printers.clear();
        }
    });
}

void UsageWriter::open()
{
    const QString& path = m_options.fileName;
    if (m_database && QFileInfo::exists(path))
        return;
    close();
    if (!m_lock) {
        QDir().mkpath(QFileInfo(path).absolutePath());
        m_lock.emplace();
        const QString lockPath = path + QStringLiteral(".lock");
        const LogLock::Outcome outcome = m_lock->tryToTake(lockPath);
        const QString error = m_lock->error();
        if (outcome != LogLock::Outcome::Held)
            m_lock.reset();
        if (outcome == LogLock::Outcome::Busy)
            throw UsageFailure{Why::Failed,
                               UsageText::tr("%1: another program is writing to it").arg(path)};
        if (outcome == LogLock::Outcome::Failed)
            throw UsageFailure{Why::Failed, QStringLiteral("%1: %2").arg(lockPath, error)};
    }
    m_database = std::make_unique<UsageDatabase>(path, UsageDatabase::Access::Write);
}

void UsageWriter::close()
{
    m_segments.clear();
    m_printers.clear();
    m_items.clear();
    m_database.reset();
}

/// Gives a damaged file another name. Empty when that fails.
QString UsageWriter::setAside()
{
    const QString& path = m_options.fileName;
    QString name;
    for (int number = 1; number <= mostSetAside; ++number) {
        name = QStringLiteral("%1.damaged-%2").arg(path).arg(number);
        if (!QFileInfo::exists(name))
            break;
    }
    // The log goes first: SQLite would apply it to the new file.
    const QString log = path + QStringLiteral("-wal");
    const QString newLog = name + QStringLiteral("-wal");
    const bool hasLog = QFileInfo::exists(log);
    if (hasLog && !moveLogFile(log, newLog).isEmpty())
        return {};
    if (!moveLogFile(path, name).isEmpty()) {
        if (hasLog)
            moveLogFile(newLog, log);
        return {};
    }
    if (!hasLog)
        QFile::remove(newLog); // of the file that had this name before
    QFile::remove(path + QStringLiteral("-shm"));
    return name;
}

/// Throws while a reader prevents the write-ahead log from being emptied, and it is large.
void UsageWriter::checkLog()
{
    const QString log = m_options.fileName + QStringLiteral("-wal");
    if (QFileInfo(log).size() <= largeLog)
        return;
    m_database->rows("PRAGMA wal_checkpoint(TRUNCATE)");
    if (QFileInfo(log).size() > tooLargeLog)
        throw UsageFailure{Why::Failed,
                           UsageText::tr("%1: another program has been reading it for too long")
                               .arg(m_options.fileName)};
}

void UsageWriter::apply(const UsageRecord& record)
{
    if (record.kind == UsageRecord::Kind::Rename) {
        rename(record);
        return;
    }
    Segment& segment = segmentOf(record);
    if (record.kind == UsageRecord::Kind::Empty) {
        segment.isChanged = segment.isChanged || segment.isLoaded;
        segment.isLoaded = false;
        return;
    }
    if (isNewRoll(segment, record))
        beginSegment(segment, record);
    else
        addSample(segment, record);
}

void UsageWriter::rename(const UsageRecord& record)
{
    const QString key = keyOfName(record.name);
    m_database->run("UPDATE OR IGNORE printer SET key = ?, name = ? WHERE key = ?",
                    {key, record.name, record.printer});
    m_printers.clear();
}

UsageWriter::Segment& UsageWriter::segmentOf(const UsageRecord& record)
{
    const SlotKey key(printerRow(record), static_cast<int>(record.slot));
    const auto known = m_segments.find(key);
    if (known != m_segments.end())
        return *known;

    Segment segment;
    const QList<QVariantList> found = m_database->rows(
        "SELECT segment.id, identifier, unit, loaded, first_time, first_level, last_time, "
        "last_level, lowest_level, first_labels, last_labels "
        "FROM segment JOIN item ON item.id = item WHERE printer = ? AND slot = ? "
        "ORDER BY segment.id DESC LIMIT 1",
        {key.first, key.second});
    if (!found.isEmpty()) {
        const QVariantList& row = found.first();
        segment.id = row.at(0).toLongLong();
        segment.identifier = row.at(1).toString();
        segment.isInPercent = row.at(2).toInt() == 1;
        segment.isLoaded = row.at(3).toBool();
        segment.first = {possibleTime(row.at(4).toLongLong()),
                         possibleLevel(row.at(5).toLongLong())};
        segment.last = {possibleTime(row.at(6).toLongLong()),
                        possibleLevel(row.at(7).toLongLong())};
        segment.lowest = possibleLevel(row.at(8).toLongLong());
        segment.firstLabels = optionalNumber(row.at(9));
        segment.lastLabels = optionalNumber(row.at(10));
        const ChunkKeys keys = chunkKeysOf(segment.id);
        const QList<QVariantList> chunks = m_database->rows(
            "SELECT id, samples FROM chunk WHERE id >= ? AND id < ? AND detail = 0 "
            "ORDER BY id DESC LIMIT 1",
            {keys.begin, keys.end});
        if (!chunks.isEmpty()) {
            segment.chunk = chunks.first().at(0).toLongLong();
            segment.samples = unpacked(chunks.first().at(1).toByteArray());
            segment.intervalBegin = segment.samples.empty() ? 0 : segment.samples.back().time;
        }
    }
    return *m_segments.insert(key, segment);
}

qint64 UsageWriter::printerRow(const UsageRecord& record)
{
    const auto known = m_printers.constFind(record.printer);
    if (known != m_printers.constEnd() && known->second == record.name)
        return known->first;
    m_database->run("INSERT INTO printer(key, name) VALUES(?, ?) "
                    "ON CONFLICT(key) DO UPDATE SET name = excluded.name",
                    {record.printer, record.name});
    const qint64 row = m_database->number("SELECT id FROM printer WHERE key = ?", {record.printer});
    m_printers.insert(record.printer, {row, record.name});
    return row;
}

/// What is loaded. What the catalogue once knew of it is kept when it no longer does.
qint64 UsageWriter::itemRow(const UsageRecord& record)
{
    const int ribbon = record.slot == Slot::Supply ? 0 : 1;
    const QString key = QString::number(ribbon) + record.identifier;
    const auto known = m_items.constFind(key);
    if (known != m_items.constEnd()) {
        const UsageRecord& item = known->second;
        if (record.sku.isEmpty() ||
            (item.sku == record.sku && item.title == record.title &&
             item.material == record.material && item.total == record.total &&
             isSameExcess(item.excess, record.excess)))
            return known->first;
    }
    m_database->run("INSERT OR IGNORE INTO item(ribbon, identifier, sku, name, material) "
                    "VALUES(?, ?, '', '', '')",
                    {ribbon, record.identifier});
    if (!record.sku.isEmpty())
        m_database->run("UPDATE item SET sku = ?, name = ?, material = ?, total = ?, "
                        "excess = ifnull(?, excess) WHERE ribbon = ? AND identifier = ?",
                        {record.sku, record.title, record.material, nullable(record.total),
                         nullable(record.excess), ribbon, record.identifier});
    const qint64 row = m_database->number("SELECT id FROM item WHERE ribbon = ? AND identifier = ?",
                                          {ribbon, record.identifier});
    m_items.insert(key, {row, record});
    return row;
}

bool UsageWriter::isNewRoll(const Segment& segment, const UsageRecord& record) const
{
    if (segment.id == 0 || segment.identifier != record.identifier ||
        segment.isInPercent != record.isInPercent)
        return true;
    return record.level - segment.lowest > (record.isInPercent ? onePercent : pulledBack);
}

void UsageWriter::beginSegment(Segment& segment, const UsageRecord& record)
{
    const qint64 sinceFirst = record.time - segment.first.time;
    const bool isSettling = segment.id != 0 && segment.first.level == segment.last.level &&
                            sinceFirst >= 0 && sinceFirst < settlingTime;
    const int unit = record.isInPercent ? 1 : 0;
    const qint64 item = itemRow(record);
    const QVariant labels = nullable(record.labels);
    if (isSettling) {
        m_database->run("UPDATE segment SET item = ?, unit = ? WHERE id = ?",
                        {item, unit, segment.id});
        deleteChunks(segment.id);
        segment = Segment{.id = segment.id};
    } else {
        if (segment.id != 0) {
            segment.isLoaded = false;
            segment.isChanged = true;
            writeSegment(segment);
        }
        m_database->run(
            "INSERT INTO segment(printer, slot, item, unit, loaded, first_time, last_time, "
            "first_level, last_level, lowest_level, first_labels, last_labels) "
            "VALUES(?, ?, ?, ?, 1, ?, ?, ?, ?, ?, ?, ?)",
            {printerRow(record), static_cast<int>(record.slot), item, unit, record.time,
             record.time, record.level, record.level, record.level, labels, labels});
        segment = Segment{.id = m_database->lastRow()};
    }
    segment.identifier = record.identifier;
    segment.isInPercent = record.isInPercent;
    segment.first = {record.time, record.level};
    segment.lowest = record.level;
    segment.firstLabels = record.labels;
    segment.lastLabels = record.labels;
    segment.isLoaded = true;
    segment.isChanged = true;
    appendSample(segment, segment.first);
}

void UsageWriter::addSample(Segment& segment, const UsageRecord& record)
{
    itemRow(record);
    segment.isChanged = true;
    segment.isLoaded = true;
    // The catalogue may have learned of it in between.
    segment.lastLabels = record.labels;
    if (!segment.firstLabels && segment.first.level == record.level)
        segment.firstLabels = record.labels;
    // At a start, and after nothing was loaded, what was known is known again.
    if (segment.last.level == record.level)
        return;
    segment.lowest = std::min(segment.lowest, record.level);
    appendSample(segment, {record.time, record.level});
}

void UsageWriter::appendSample(Segment& segment, const StoredSample& sample)
{
    std::vector<StoredSample>& samples = segment.samples;
    segment.last = sample;
    if (!samples.empty()) {
        const qint64 age = sample.time - samples.front().time;
        if (samples.size() >= samplesInChunk || age > longestChunk || age < -day) {
            writeChunk(segment);
            samples.clear();
            segment.chunk = 0;
        }
    }
    const qint64 sinceBegin = samples.empty() ? -1 : sample.time - segment.intervalBegin;
    if (sinceBegin >= 0 && sinceBegin < m_options.resolution.count()) {
        samples.back() = sample;
    } else {
        samples.push_back(sample);
        segment.intervalBegin = sample.time;
    }
}

void UsageWriter::writeSegment(Segment& segment)
{
    if (!segment.isChanged)
        return;
    m_database->run("UPDATE segment SET loaded = ?, first_time = ?, last_time = ?, "
                    "first_level = ?, last_level = ?, lowest_level = ?, first_labels = ?, "
                    "last_labels = ? WHERE id = ?",
                    {segment.isLoaded, segment.first.time, segment.last.time, segment.first.level,
                     segment.last.level, segment.lowest, nullable(segment.firstLabels),
                     nullable(segment.lastLabels), segment.id});
    writeChunk(segment);
    segment.isChanged = false;
}

void UsageWriter::writeChunk(Segment& segment)
{
    if (segment.samples.empty())
        return;
    const ChunkKeys keys = chunkKeysOf(segment.id);
    if (segment.chunk == 0)
        segment.chunk =
            m_database->number("SELECT ifnull(max(id) + 1, ?) FROM chunk WHERE id >= ? AND id < ?",
                               {keys.begin, keys.begin, keys.end});
    m_database->run("INSERT OR REPLACE INTO chunk(id, detail, last_time, samples) "
                    "VALUES(?, 0, ?, ?)",
                    {segment.chunk, segment.samples.back().time, packed(segment.samples)});
}

void UsageWriter::deleteChunks(qint64 segment)
{
    const ChunkKeys keys = chunkKeysOf(segment);
    m_database->run("DELETE FROM chunk WHERE id >= ? AND id < ?", {keys.begin, keys.end});
}

/// The time by which things have grown old so far; 0 before the first maintenance.
qint64 UsageWriter::lastAge()
{
    return m_database->number("SELECT ifnull(max(value), 0) FROM setting WHERE name = 'age'");
}

/// The time by which things grow old. It follows the clock, but not at once when that jumps ahead.
qint64 UsageWriter::age()
{
    const qint64 now = m_options.clock().toSecsSinceEpoch();
    const qint64 before = lastAge();
    const qint64 age = before == 0 ? now : std::min(now, before + largestStep);
    m_database->run("INSERT OR REPLACE INTO setting(name, value) VALUES('age', ?)", {age});
    return age;
}

void UsageWriter::maintain()
{
    const qint64 now = m_options.clock().toSecsSinceEpoch();
    if (!m_lastMaintenance || std::abs(now - *m_lastMaintenance) >= maintenanceInterval) {
        const qint64 today = age();
        const auto before = [today](std::chrono::hours time) {
            return today - std::chrono::seconds(time).count();
        };
        while (thin(0, before(m_options.fullDetailFor), inATransaction)) {
        }
        while (thin(1, before(m_options.hourlyFor), inATransaction)) {
        }
        while (forget(before(m_options.keepFor), inATransaction)) {
        }
        m_database->run("DELETE FROM gap WHERE rowid NOT IN "
                        "(SELECT rowid FROM gap ORDER BY rowid DESC LIMIT 1000)");
        m_lastMaintenance = now;
    }
    keepSize();
}

/// Thins the chunks of a detail that are older, the oldest first. False when there is none.
bool UsageWriter::thin(int detail, qint64 before, qint64 most)
{
    const QList<QVariantList> found =
        m_database->rows("SELECT id FROM chunk WHERE detail < 2 AND detail = ? AND "
                         "last_time < ? ORDER BY last_time LIMIT ?",
                         {detail, before, most});
    if (found.isEmpty())
        return false;
    QSet<qint64> segments;
    for (const QVariantList& row : found)
        segments.insert(segmentOfChunk(row.first().toLongLong()));
    UsageTransaction transaction(*m_database);
    for (const qint64 id : std::as_const(segments))
        thinSegment(id, detail, before);
    transaction.commit();
    m_segments.clear();
    return true;
}

/// Replaces the older chunks of a segment by coarser ones.
void UsageWriter::thinSegment(qint64 id, int detail, qint64 before)
{
    const auto [begin, end] = chunkKeysOf(id);
    // The last chunk that is as coarse already is filled up.
    const QList<QVariantList> chunks =
        m_database->rows("SELECT id, samples FROM chunk WHERE id >= ? AND id < ? AND "
                         "(detail = ? AND last_time < ? OR id = (SELECT max(id) FROM chunk "
                         "WHERE id >= ? AND id < ? AND detail = ?)) ORDER BY id LIMIT 4096",
                         {begin, end, detail, before, begin, end, detail + 1});
    std::vector<StoredSample> samples;
    for (const QVariantList& row : chunks) {
        const std::vector<StoredSample> more = unpacked(row.at(1).toByteArray());
        samples.insert(samples.end(), more.begin(), more.end());
        m_database->run("DELETE FROM chunk WHERE id = ?", {row.at(0)});
    }
    samples = thinned(samples, periodAfter(detail));
    // The segment itself knows its first sample, and when it has ended its last one.
    const QList<QVariantList> found = m_database->rows(
        "SELECT first_time, first_level, last_time, last_level, loaded FROM segment WHERE id = ?",
        {id});
    if (!found.isEmpty() && !samples.empty()) {
        const QVariantList& row = found.first();
        const StoredSample first{row.at(0).toLongLong(), row.at(1).toLongLong()};
        const StoredSample last{row.at(2).toLongLong(), row.at(3).toLongLong()};
        if (samples.back() == last && !row.at(4).toBool())
            samples.pop_back();
        if (!samples.empty() && samples.front() == first)
            samples.erase(samples.begin());
    }
    qsizetype place = 0; // there are no more new chunks than old ones
    for (std::size_t from = 0; from < samples.size(); from += samplesInChunk) {
        const auto begins = samples.begin() + static_cast<std::ptrdiff_t>(from);
        const auto ends = samples.begin() + static_cast<std::ptrdiff_t>(
                                                std::min(from + samplesInChunk, samples.size()));
        m_database->run(
            "INSERT INTO chunk(id, detail, last_time, samples) VALUES(?, ?, ?, ?)",
            {chunks.at(place++).at(0), detail + 1, (ends - 1)->time, packed({begins, ends})});
    }
}

/// Forgets segments whose last sample is older, the oldest first. False when there is none.
bool UsageWriter::forget(qint64 before, qint64 most)
{
    const QList<QVariantList> found = m_database->rows(oldestSegments, {before, most});
    if (found.isEmpty())
        return false;
    UsageTransaction transaction(*m_database);
    for (const QVariantList& row : found) {
        const qint64 id = row.first().toLongLong();
        deleteChunks(id);
        m_database->run("DELETE FROM segment WHERE id = ?", {id});
    }
    m_database->run("DELETE FROM printer WHERE id NOT IN (SELECT printer FROM segment)");
    m_database->run("DELETE FROM item WHERE id NOT IN (SELECT item FROM segment)");
    transaction.commit();
    m_segments.clear();
    m_printers.clear();
    m_items.clear();
    return true;
}

/// Thins earlier than by age, and in the end forgets, while the file is too large.
void UsageWriter::keepSize()
{
    const qint64 limit = m_options.maxFileSize - besidesFile;
    if (m_database->usedBytes() <= limit)
        return;
    const qint64 target = limit - limit / 32;
    const qint64 today = lastAge();
    constexpr qint64 always = std::numeric_limits<qint64>::max();
    struct Step
    {
        int detail;
        qint64 days;
    };
    static constexpr std::array steps{Step{0, 30}, Step{1, 90}, Step{0, 7}, Step{1, 30}};
    for (const Step& step : steps) {
        while (m_database->usedBytes() > target &&
               thin(step.detail, today - step.days * day, inATransaction)) {
        }
    }
    while (m_database->usedBytes() > target && forget(always, inATransaction)) {
    }
}

} // namespace VxKit
