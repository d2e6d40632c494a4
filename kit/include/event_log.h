// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_event.h"
#include "vxprinterstatuskit_export.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <chrono>
#include <memory>

namespace VxKit {

class PrinterReadings;

/// Where an `EventLog` writes, and how much.
struct VX_KIT_EXPORT EventLogOptions
{
    /// The file. Its folder must exist, and the user must be allowed to create files in it. A
    /// symbolic link is followed.
    QString fileName;
    /// A file that would become larger is rotated first, in bytes. At least 65536; smaller values
    /// mean 65536.
    qint64 maxFileSize = qint64(1024) * 1024;
    /// How many rotated files are kept, from 0 to 99. Other values mean the nearest of these.
    int rotatedFiles = 9;
    /// A file whose first event is older is rotated. Zero: never.
    std::chrono::seconds rotateAfter = std::chrono::hours(24 * 7);
    /// A rotated file whose last event is older is deleted. Zero: never.
    std::chrono::seconds keepFor = std::chrono::hours(24 * 180);
    /// How many bytes of events are kept in memory while the file cannot be written.
    qsizetype maxQueuedBytes = qsizetype(1024) * 1024;
};

/// Writes events to a file, one JSON object a line, for those who support the printers.
///
/// @code
/// VxKit::EventLogOptions options;
/// options.fileName = QStringLiteral("C:/ProgramData/Example/printers.log");
/// VxKit::EventLog log(&readings, options);
/// @endcode
///
/// docs/event-log.md describes the lines, and `EventLogReader` reads them.
///
/// **Files.** When FILE is full or old, it becomes FILE.1, FILE.1 becomes FILE.2, and so on; the
/// oldest is deleted. All files together have at most `maxFileSize` times one more than
/// `rotatedFiles` bytes. Only while another program keeps FILE open in a way that prevents Windows
/// from renaming it, FILE may become twice as large. FILE.lock is empty and stays.
///
/// **Several writers.** Several processes may write to one file, also while one of them rotates it.
/// They take turns by a lock on FILE.lock, which the system releases when a process ends in any
/// way. They should have the same options.
///
/// **Whole lines.** A line is written completely or not at all. If the computer or the process
/// stops while a line is written, the next line still begins on a new one, and readers skip the
/// incomplete one.
///
/// **When it cannot be written.** Events stay in memory, up to `maxQueuedBytes`, and further ones
/// are dropped and counted. Writing is tried again every second. When it works again, what was
/// kept is written, and then an event that says how many are missing and since when.
///
/// **Threads.** Files are read and written on a thread of this object, so that a slow disk or
/// network never blocks the host. `append`, `flush` and `lostEvents` may be called on any thread.
/// The destructor waits until everything has been written or an attempt has failed, for at most a
/// second if another process has the lock.
class VX_KIT_EXPORT EventLog : public QObject
{
    Q_OBJECT

public:
    /// A log of what is passed to `append`.
    explicit EventLog(const EventLogOptions& options, QObject* parent = nullptr);
    /// A log that also records what `PrinterEvents` reports of `readings`, from what is true now
    /// on. `readings` may be destroyed first, after which nothing more is recorded of them.
    explicit EventLog(PrinterReadings* readings, const EventLogOptions& options,
                      QObject* parent = nullptr);
    ~EventLog() override;
    Q_DISABLE_COPY_MOVE(EventLog)

    /// The options with the values that are in effect.
    EventLogOptions options() const;

    /// Writes an event, soon. It returns at once.
    void append(const PrinterEvent& event);

    /// Waits until all events have been written. False when the file could not be written or the
    /// time is over.
    bool flush(QDeadlineTimer deadline = QDeadlineTimer(5000));

    /// How many events have been dropped since the log was created. An event in the log says so
    /// too, once it can be written again.
    qint64 lostEvents() const;

    /// Why the last attempt to write failed: the name of the file and the system's words. Empty
    /// when it succeeded.
    QString errorString() const;

Q_SIGNALS:
    /// An event has been recorded by `append` or from the readings. Emitted on the thread of the
    /// caller of `append`.
    void recorded(const VxKit::PrinterEvent& event);
    /// The file cannot be written. Emitted once until it can be written again.
    void writingFailed(const QString& reason);
    /// The file can be written again.
    void writingResumed();

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace VxKit
