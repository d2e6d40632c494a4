// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "usage_history_reader.h"

#include "usage_database.h"
#include "usage_samples.h"

#include <algorithm>
#include <array>
#include <limits>

namespace VxKit {

namespace {

constexpr double percentsInAll = 100.0;
constexpr double mostLabels = 1e9;

QDateTime timeOf(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(possibleTime(seconds), Qt::UTC);
}

StoredSample sampleAt(const QVariantList& row, int timeColumn, int levelColumn)
{
    return {possibleTime(row.at(timeColumn).toLongLong()),
            possibleLevel(row.at(levelColumn).toLongLong())};
}

/// A number of labels. Empty when it is not known or impossible.
std::optional<int> labelsAt(const QVariantList& row, int column)
{
    const double labels = row.at(column).isNull() ? -1.0 : row.at(column).toDouble();
    return labels >= 0.0 && labels <= mostLabels ? std::optional(static_cast<int>(labels))
                                                 : std::nullopt;
}

std::optional<double> perDay(std::optional<double> used, std::optional<qint64> days)
{
    return used && days ? std::optional(*used / static_cast<double>(*days)) : std::nullopt;
}

/// The levels of a segment, in metres and as ratios.
class Scale
{
public:
    /// `total` and `excess` may be null.
    Scale(bool isInPercent, const QVariant& total, const QVariant& excess)
        : m_isInPercent(isInPercent)
    {
        if (!total.isNull() && total.toLongLong() > 0)
            m_total = total.toDouble() / millimetersPerMeter;
        if (!excess.isNull())
            m_excess = excess.toDouble();
    }

    std::optional<double> metersLeft(qint64 level) const
    {
        if (m_isInPercent)
            return m_total ? std::optional(*ratioLeft(level) * *m_total) : std::nullopt;
        if (!m_excess)
            return std::nullopt;
        return std::max(0.0, (static_cast<double>(level) - *m_excess) / millimetersPerMeter);
    }
    std::optional<double> ratioLeft(qint64 level) const
    {
        if (m_isInPercent)
            return std::clamp(static_cast<double>(level) / percentsInAll, 0.0, 1.0);
        const std::optional<double> meters = metersLeft(level);
        return meters && m_total ? std::optional(std::clamp(*meters / *m_total, 0.0, 1.0))
                                 : std::nullopt;
    }
    std::optional<double> meters(qint64 used) const
    {
        if (m_isInPercent)
            return m_total ? std::optional(*ratio(used) * *m_total) : std::nullopt;
        return static_cast<double>(used) / millimetersPerMeter;
    }
    std::optional<double> ratio(qint64 used) const
    {
        if (m_isInPercent)
            return static_cast<double>(used) / percentsInAll;
        return m_total ? std::optional(*meters(used) / *m_total) : std::nullopt;
    }

private:
    bool m_isInPercent;
    std::optional<double> m_total{};
    std::optional<double> m_excess{};
};

/// The columns of a segment, in the order in which `segmentOf` reads them.
#define VX_SEGMENT_COLUMNS                                                                         \
    "segment.id, printer.key, printer.name, slot, identifier, sku, item.name, material, "          \
    "first_time, last_time, loaded, unit, total, excess, first_level, last_level, "                \
    "lowest_level, first_labels, last_labels "                                                     \
    "FROM segment JOIN printer ON printer.id = printer JOIN item ON item.id = item "

UsageSegment segmentOf(const QVariantList& row)
{
    UsageSegment segment;
    segment.number = row.at(0).toLongLong();
    segment.printerKey = row.at(1).toString();
    segment.printerName = row.at(2).toString();
    if (!segment.printerKey.startsWith(namePrefix))
        segment.serialNumber = segment.printerKey;
    segment.slot = static_cast<Slot>(std::clamp(row.at(3).toInt(), 0, 2));
    segment.identifier = row.at(4).toString();
    segment.sku = row.at(5).toString();
    segment.name = row.at(6).toString();
    segment.material = row.at(7).toString();
    const StoredSample first = sampleAt(row, 8, 14);
    const StoredSample last = sampleAt(row, 9, 15);
    segment.from = timeOf(first.time);
    segment.until = timeOf(last.time);
    segment.isLoaded = row.at(10).toBool();
    segment.coarse = row.at(11).toInt() == 1;
    const Scale scale(segment.coarse, row.at(12), row.at(13));
    const qint64 lowest = possibleLevel(row.at(16).toLongLong());
    const qint64 used = std::max<qint64>(first.level - lowest, 0);
    segment.usedMeters = scale.meters(used);
    segment.usedRatio = scale.ratio(used);
    segment.metersLeft = scale.metersLeft(last.level);
    segment.ratioLeft = scale.ratioLeft(last.level);
    const std::optional<int> firstLabels = labelsAt(row, 17);
    segment.labelsLeft = labelsAt(row, 18);
    if (firstLabels && segment.labelsLeft)
        segment.usedLabels = std::max(*firstLabels - *segment.labelsLeft, 0);
    return segment;
}

} // namespace

std::optional<qint64> UsageSegment::days() const
{
    if (until < from)
        return std::nullopt;
    return from.toLocalTime().date().daysTo(until.toLocalTime().date()) + 1;
}

std::optional<double> UsageSegment::metersPerDay() const
{
    return perDay(usedMeters, days());
}

std::optional<double> UsageSegment::ratioPerDay() const
{
    return perDay(usedRatio, days());
}

std::optional<double> UsageSegment::labelsPerDay() const
{
    return perDay(usedLabels, days());
}

class UsageHistoryReader::Private
{
public:
    std::unique_ptr<UsageDatabase> database;
    QString error;
    bool isMissing = false;

    /// Nothing when the file cannot be read.
    template <typename Rows>
    auto read(Rows rows) -> decltype(rows(*database))
    {
        if (!database)
            return {};
        try {
            database->run("BEGIN");
            auto found = rows(*database);
            database->run("COMMIT");
            return found;
        } catch (const UsageFailure& failure) {
            error = failure.reason;
            database.reset();
            return {};
        }
    }
};

UsageHistoryReader::UsageHistoryReader(const QString& fileName)
    : d(std::make_unique<Private>())
{
    try {
        d->database = std::make_unique<UsageDatabase>(fileName, UsageDatabase::Access::Read);
    } catch (const UsageFailure& failure) {
        d->error = failure.reason;
        d->isMissing = failure.why == UsageFailure::Why::Missing;
    }
}

UsageHistoryReader::~UsageHistoryReader() = default;

QString UsageHistoryReader::errorString() const
{
    return d->error;
}

bool UsageHistoryReader::isMissing() const
{
    return d->isMissing;
}

QList<UsageSegment> UsageHistoryReader::segments(const QString& printer) const
{
    return d->read([&](UsageDatabase& database) {
        QList<UsageSegment> segments;
        const QList<QVariantList> rows = database.rows(
            "SELECT " VX_SEGMENT_COLUMNS "ORDER BY printer.name, printer.id, slot, segment.id");
        for (const QVariantList& row : rows) {
            UsageSegment segment = segmentOf(row);
            const auto isAsked = [&](const QString& name) {
                return name.compare(printer, Qt::CaseInsensitive) == 0;
            };
            if (printer.isEmpty() || isAsked(segment.printerKey) || isAsked(segment.printerName))
                segments.append(std::move(segment));
        }
        return segments;
    });
}

QList<UsageSample> UsageHistoryReader::samples(const QString& printerKey, Slot slot,
                                               const QDateTime& since) const
{
    return d->read([&](UsageDatabase& database) {
        QList<UsageSample> samples;
        const qint64 begin =
            since.isValid() ? since.toSecsSinceEpoch() : std::numeric_limits<qint64>::min();
        const QList<QVariantList> rows = database.rows(
            "SELECT " VX_SEGMENT_COLUMNS "WHERE printer.key = ? AND slot = ? ORDER BY segment.id",
            {printerKey, static_cast<int>(slot)});
        for (const QVariantList& row : rows) {
            const UsageSegment segment = segmentOf(row);
            const StoredSample first = sampleAt(row, 8, 14);
            const StoredSample last = sampleAt(row, 9, 15);
            if (std::max(first.time, last.time) < begin)
                continue;
            const Scale scale(segment.coarse, row.at(12), row.at(13));
            UsageSample sample;
            sample.segment = segment.number;
            sample.identifier = segment.identifier;
            sample.coarse = segment.coarse;
            const std::optional<double> newMeters = scale.metersLeft(first.level);
            const std::optional<int> newLabels = labelsAt(row, 17);
            if (newMeters && newLabels && *newLabels > 0)
                sample.labelMeters = *newMeters / *newLabels;

            // Thinning leaves out what the segment itself knows.
            std::vector<StoredSample> stored{first};
            const ChunkKeys keys = chunkKeysOf(segment.number);
            const QList<QVariantList> chunks =
                database.rows("SELECT samples FROM chunk WHERE id >= ? AND id < ? ORDER BY id",
                              {keys.begin, keys.end});
            for (const QVariantList& chunk : chunks) {
                for (const StoredSample& each : unpacked(chunk.first().toByteArray())) {
                    if (each != stored.back())
                        stored.push_back(each);
                }
            }
            if (stored.back() != last)
                stored.push_back(last);
            for (const StoredSample& each : stored) {
                if (each.time < begin)
                    continue;
                sample.time = timeOf(each.time);
                sample.meters = scale.metersLeft(each.level);
                sample.ratio = scale.ratioLeft(each.level);
                samples.append(sample);
            }
        }
        return samples;
    });
}

QList<UsageGap> UsageHistoryReader::gaps() const
{
    return d->read([](UsageDatabase& database) {
        QList<UsageGap> gaps;
        const QList<QVariantList> rows =
            database.rows("SELECT since, until, samples FROM gap ORDER BY rowid");
        for (const QVariantList& row : rows)
            gaps.append({timeOf(row.at(0).toLongLong()), timeOf(row.at(1).toLongLong()),
                         row.at(2).toLongLong()});
        return gaps;
    });
}

} // namespace VxKit
