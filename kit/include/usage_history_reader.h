// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_reading.h"
#include "vxprinterstatuskit_export.h"

#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QString>

#include <memory>
#include <optional>

namespace VxKit {

/// One roll or ribbon, from when it was first seen in a slot until it was last used there.
struct VX_KIT_EXPORT UsageSegment
{
    qint64 number = 0;    ///< its own in the file; newer segments have larger numbers
    QString printerKey;   ///< see `UsageHistory::printerKey`
    QString printerName;  ///< the last one
    QString serialNumber; ///< empty if the printer has none
    Slot slot = Slot::Supply;
    /// What the printer reports to be loaded.
    QString identifier;
    /// As in `Level`. Empty when the catalogue does not know it.
    QString sku;
    QString name;
    QString material;
    /// The first and the last change, in UTC.
    QDateTime from;
    QDateTime until;
    /// Whether it is still loaded.
    bool isLoaded = false;
    /// The printer reports whole percents only.
    bool coarse = false;
    /// What was used of it, in metres; empty when only a share is known.
    std::optional<double> usedMeters;
    /// What was used of it as a share of a new one; empty when the length of a new one is not
    /// known.
    std::optional<double> usedRatio;
    /// How many labels were used; empty when they are not counted.
    std::optional<int> usedLabels;
    /// What is left of it.
    std::optional<double> metersLeft;
    std::optional<double> ratioLeft;
    std::optional<int> labelsLeft;

    /// The days from the first to the last change, both included, in local time. Empty when the
    /// clock was set back in between.
    std::optional<qint64> days() const;
    /// What was used on one of these days on average.
    std::optional<double> metersPerDay() const;
    std::optional<double> ratioPerDay() const;
    std::optional<double> labelsPerDay() const;
};

/// What was left in a slot at one time.
struct VX_KIT_EXPORT UsageSample
{
    QDateTime time;     ///< in UTC
    qint64 segment = 0; ///< the segment's number: another one is another roll
    QString identifier;
    std::optional<double> meters;
    std::optional<double> ratio;
    bool coarse = false; ///< the printer reports whole percents only
    /// What one label takes, in metres; empty when labels are not counted.
    std::optional<double> labelMeters;
};

/// Changes that could not be recorded.
struct VX_KIT_EXPORT UsageGap
{
    QDateTime since;
    QDateTime until;
    qint64 samples = 0;
};

/// Reads what `UsageHistory` has written, also while it goes on writing.
///
/// @code
/// const VxKit::UsageHistoryReader history(VxKit::UsageHistory::defaultFileName());
/// if (!history.errorString().isEmpty())
///     qWarning() << history.errorString();
/// for (const VxKit::UsageSample& sample : history.samples(key, VxKit::Slot::Supply, lastMonth))
///     learn(sample);
/// @endcode
///
/// All members read the file on the caller's thread, and wait for at most two seconds while a
/// writer begins or ends to use it. A reader is used on the thread on which it was created; it may
/// be created on any. Nothing is written, except that SQLite needs files beside a database to read
/// it.
///
/// The file may come from anywhere. It is checked first, and refused with a reason when it is not a
/// history, is damaged, or is larger than 1 GiB.
class VX_KIT_EXPORT UsageHistoryReader
{
public:
    explicit UsageHistoryReader(const QString& fileName);
    ~UsageHistoryReader();
    Q_DISABLE_COPY_MOVE(UsageHistoryReader)

    /// Why the file cannot be read; empty when it can. When there is none, it says so.
    QString errorString() const;
    /// Whether there is no file, because nothing has been recorded yet.
    bool isMissing() const;

    /// The segments of a printer by its key, name or serial number, in any letter case; without
    /// one, those of all printers. They are in the order of names, slots and segments.
    QList<UsageSegment> segments(const QString& printer = {}) const;
    /// What was left in a slot of a printer since a time, in the order in which it was recorded;
    /// without a time, from the beginning. The samples are denser the newer they are.
    QList<UsageSample> samples(const QString& printerKey, Slot slot,
                               const QDateTime& since = {}) const;
    /// What could not be recorded, the oldest first.
    QList<UsageGap> gaps() const;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace VxKit
