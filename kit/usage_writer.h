// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "log_file.h"
#include "usage_database.h"
#include "usage_history.h"
#include "usage_history_reader.h"
#include "usage_samples.h"

#include <QtCore/QHash>
#include <QtCore/QString>

#include <chrono>
#include <deque>
#include <memory>
#include <optional>
#include <utility>

namespace VxKit {

/// What was in a slot at one time, or a printer's new name.
struct UsageRecord
{
    enum class Kind
    {
        Level,
        Empty,  ///< nothing is loaded
        Rename, ///< `printer` is now called `name`
    };
    Kind kind = Kind::Level;
    QString printer{}; ///< its key
    QString name{};
    Slot slot = Slot::Supply;
    qint64 time = 0; ///< in seconds since 1970, UTC
    std::chrono::steady_clock::time_point arrived{};
    // Of a level:
    QString identifier{};
    QString sku{}; ///< empty, as the next three, if the catalogue does not know it
    QString title{};
    QString material{};
    std::optional<qint64> total{}; ///< in millimetres
    std::optional<qint64> excess{};
    bool isInPercent = false;
    qint64 level = 0;
    std::optional<int> labels{};

    bool isSameAs(const UsageRecord& other) const;
};

/// Writes records to the file of a history, and thins what has grown old. The file is opened when
/// there is something to write, and opened anew after a failure, with nothing remembered.
class UsageWriter
{
public:
    /// `options` have valid values.
    explicit UsageWriter(UsageHistoryOptions options);

    struct Outcome
    {
        QString error{};        ///< empty when everything has succeeded
        bool isWritten = false; ///< although the file could not be thinned, say
        QString setAside{};     ///< the new name of a file that was damaged
        QString reason{};       ///< why it was set aside
    };
    /// Writes all of the records, and the gap if there is one, or none of them.
    Outcome write(const std::deque<UsageRecord>& records, const UsageGap& gap);

private:
    /// The newest segment of a slot.
    struct Segment
    {
        qint64 id = 0; ///< 0: there is none yet
        QString identifier{};
        bool isInPercent = false;
        bool isLoaded = false;
        StoredSample first{};
        StoredSample last{};
        qint64 lowest = 0;
        std::optional<int> firstLabels{};
        std::optional<int> lastLabels{};
        bool isChanged = false; ///< since it was written
        // The chunk that it goes on with.
        qint64 chunk = 0; ///< its key; 0: there is none yet
        std::vector<StoredSample> samples{};
        qint64 intervalBegin = 0; ///< of those whose last one is the last in `samples`
    };
    using SlotKey = std::pair<qint64, int>; ///< the printer's row and the slot

    template <typename Work>
    Outcome guarded(Work work);
    void open();
    void close();
    QString setAside();
    void checkLog();

    void apply(const UsageRecord& record);
    void rename(const UsageRecord& record);
    Segment& segmentOf(const UsageRecord& record);
    qint64 printerRow(const UsageRecord& record);
    qint64 itemRow(const UsageRecord& record);
    bool isNewRoll(const Segment& segment, const UsageRecord& record) const;
    void beginSegment(Segment& segment, const UsageRecord& record);
    void addSample(Segment& segment, const UsageRecord& record);
    void appendSample(Segment& segment, const StoredSample& sample);
    void writeSegment(Segment& segment);
    void writeChunk(Segment& segment);

    void maintain();
    void deleteChunks(qint64 segment);
    qint64 lastAge();
    qint64 age();
    bool thin(int detail, qint64 before, qint64 most);
    void thinSegment(qint64 id, int detail, qint64 before);
    bool forget(qint64 before, qint64 most);
    void keepSize();

    const UsageHistoryOptions m_options;
    std::optional<LogLock> m_lock{};
    std::unique_ptr<UsageDatabase> m_database{};
    QHash<SlotKey, Segment> m_segments{};
    QHash<QString, std::pair<qint64, QString>> m_printers{}; ///< row and name, by the key
    QHash<QString, std::pair<qint64, UsageRecord>> m_items{};
    std::optional<qint64> m_lastMaintenance{};
};

} // namespace VxKit
