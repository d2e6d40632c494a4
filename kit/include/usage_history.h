// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_reading.h"
#include "vxprinterstatuskit_export.h"

#include <QtCore/QDateTime>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <chrono>
#include <functional>
#include <memory>

namespace VxKit {

class PrinterReadings;

/// Where a `UsageHistory` writes, and how much of the past it keeps.
struct VX_KIT_EXPORT UsageHistoryOptions
{
    /// The file. Its folder is created when it is missing. Empty:
    /// `UsageHistory::defaultFileName()`.
    QString fileName{};
    /// How many bytes the file may take, with the files that SQLite keeps beside it. At least
    /// 4 MiB; smaller values mean 4 MiB.
    qint64 maxFileSize = qint64(16) * 1024 * 1024;
    /// So long every recorded change is kept. What is older is kept as one value an hour.
    std::chrono::hours fullDetailFor = std::chrono::hours(24 * 90);
    /// What is older than this is kept as one value a day.
    std::chrono::hours hourlyFor = std::chrono::hours(24 * 365);
    /// Rolls and ribbons whose last change is older are forgotten.
    std::chrono::hours keepFor = std::chrono::hours(24 * 366 * 5);
    /// Changes of one slot that follow each other faster are recorded as one. Zero: each of them.
    std::chrono::seconds resolution = std::chrono::seconds(10);
    /// What has changed is written to the disk so often at most.
    std::chrono::milliseconds writeInterval = std::chrono::seconds(2);
    /// How many changes are kept in memory while the file cannot be written. At least 16.
    qsizetype maxQueuedSamples = 10000;
    /// Tells the time. It is called on the host's thread and on that of the history. Without a
    /// function, the system's clock.
    std::function<QDateTime()> clock{};
};

/// Records in a file what printers use: each change of what is left in each slot.
///
/// @code
/// VxKit::UsageHistory history(&readings);
/// // ... and at any time, on this thread or another, or in another process:
/// const VxKit::UsageHistoryReader reader(history.fileName());
/// for (const VxKit::UsageSegment& roll : reader.segments(QStringLiteral("Shipping")))
///     qInfo() << roll.name << roll.from << roll.until << roll.usedMeters.value_or(0);
/// @endcode
///
/// **What is recorded.** A sample for each change of a slot in which something is loaded and whose
/// level is known. Samples belong to segments, and a segment is one roll or ribbon: it ends when
/// another identifier is reported, or when the level rises. Because some printers pull a label back
/// and others report whole percents that go up and down by one, a rise by at most 0.1 m or one
/// percent is none. A roll that is taken out and put back remains one segment. An identifier and a
/// level that are reported one after the other within a minute begin one segment, not two.
///
/// **Which printer.** A printer is known by its serial number, wherever it is connected and
/// whatever it is called; by its name if it has none. See `printerKey()`.
///
/// **How much is kept.** For 90 days all changes, at most one each 10 seconds; up to one year the
/// last value of each hour; up to five years the last value of each day. What a roll was, from when
/// to when it was used and how much of it is exact for all these years. The file never takes more
/// than 16 MiB, which is enough for 50 printers. Should there be more to keep, the oldest changes
/// become hourly and daily values earlier, and in the end the oldest rolls are forgotten. All of
/// this can be chosen in the options.
///
/// **One writer, many readers.** One object writes to a file at a time: it holds a lock on
/// FILE.lock, which the system releases when the process ends in any way. FILE.lock is empty and
/// stays. A second writer reports the first by `writingFailed` and takes over when it has gone. Any
/// number of `UsageHistoryReader` may read at the same time, in any process of this computer. The
/// file must be on a local disk.
///
/// **Kills and power cuts.** The file is an SQLite database with a write-ahead log. What has been
/// written stays when the process is killed. A power cut may take the last minutes, and leaves the
/// file whole.
///
/// **When it cannot be written,** because the disk is full, say, changes stay in memory, up to
/// `maxQueuedSamples`. Then the oldest are dropped and counted. Writing is tried again every
/// second. When it works again, what was kept is written, and with it how many changes are missing.
///
/// **When it is damaged,** the file is renamed to FILE.damaged-1, or the next free number up to 9,
/// the last of which is overwritten. A new one is begun, and `fileSetAside` is emitted once. A file
/// of a newer version of this library, and a database of another program, are left as they are:
/// nothing is recorded then, and `writingFailed` says why.
///
/// **Clocks.** Samples are kept in the order in which they came. When the clock was set back, a
/// segment may have begun after its end; it has no average then. A clock that jumps ahead does not
/// make the history grow old at once: it ages by at most a week every six hours.
///
/// **Threads.** The file is read and written on a thread of this object, so that the host never
/// waits for the disk. All members may be called on any thread, except that an object that was
/// given readings is created on theirs. The destructor waits until everything has been written or
/// an attempt has failed.
class VX_KIT_EXPORT UsageHistory : public QObject
{
    Q_OBJECT

public:
    /// A history of what is passed to `record`.
    explicit UsageHistory(const UsageHistoryOptions& options = {}, QObject* parent = nullptr);
    /// A history that also records `readings`, from what they are now on. They may be destroyed
    /// first, after which nothing more is recorded of them.
    explicit UsageHistory(PrinterReadings* readings, const UsageHistoryOptions& options = {},
                          QObject* parent = nullptr);
    ~UsageHistory() override;
    Q_DISABLE_COPY_MOVE(UsageHistory)

    /// The file "VxPrinterStatus/history.db" in the folder in which the system keeps the user's
    /// data: "%LOCALAPPDATA%" on Windows, "~/.local/share" elsewhere.
    static QString defaultFileName();
    /// What a printer is known by: its serial number; "name:" and its name if it has none.
    static QString printerKey(const PrinterReading& reading);

    /// The options with the values that are in effect.
    UsageHistoryOptions options() const;
    QString fileName() const { return options().fileName; }

    /// Records what has changed in the slots of a printer since it was recorded last. It returns at
    /// once. Without a valid time, that of the clock.
    void record(const PrinterReading& reading, const QDateTime& time = {});
    /// The history of a printer without a serial number goes on under another name, unless there is
    /// one under that name already.
    void rename(const QString& oldName, const QString& newName);

    /// Waits until all that was recorded has been written. False when the file could not be written
    /// or the time is over.
    bool flush(QDeadlineTimer deadline = QDeadlineTimer(5000));

    /// How many changes have been dropped since this object was created, because they could not be
    /// written.
    qint64 lostSamples() const;
    /// Why the last attempt to write failed; empty when it succeeded.
    QString errorString() const;

Q_SIGNALS:
    /// The file cannot be written. Emitted once until it can be written again.
    void writingFailed(const QString& reason);
    /// The file can be written again.
    void writingResumed();
    /// The file was damaged and has been given another name. A new one has been begun.
    void fileSetAside(const QString& newName, const QString& reason);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace VxKit
