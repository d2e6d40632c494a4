// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "vxprinterstatuskit_export.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <chrono>
#include <memory>

class PrinterStatusController;

namespace VxKit {

/// What a `CaseRecorder` records, and where to.
struct VX_KIT_EXPORT CaseRecorderOptions
{
    /// The case file. It must not exist yet. Empty: nothing is written until `save()`, and only the
    /// latest is kept, in memory.
    QString fileName;
    /// A file that would become larger keeps its beginning and the latest, in bytes. At least 1
    /// MiB, and at least four times what the printers with all their values take.
    qint64 maxFileSize = qint64(64) * 1024 * 1024;
    /// How much is kept in memory when there is no file, in bytes. At least 64 KiB, and at least
    /// four times what the printers with all their values take.
    qint64 ringSize = qint64(1024) * 1024;
    /// Names of printers, people and machines, serial numbers and addresses are written as they
    /// are. Otherwise they are replaced, each by the same one everywhere in the file.
    bool isPlain = false;
    /// What the file says about who has recorded it.
    QString recorder = QStringLiteral("host");
    /// How often the recorder looks for itself at what the library does not read: at most once in
    /// this time. Zero: never.
    std::chrono::milliseconds lookInterval = std::chrono::seconds(1);
};

/// What has been recorded.
struct CaseRecorderSummary
{
    QString fileName;
    qint64 bytes = 0;       ///< of the file, or of what is kept in memory
    qint64 steps = 0;       ///< that made the library read something
    qint64 signalCount = 0; ///< of the controller
    qint64 logLines = 0;    ///< of the library
    qint64 faster = 0;      ///< reads that were overtaken by the next change
    qint64 dropped = 0;     ///< lines that are no longer there, to keep the limit
    qint64 lost = 0;        ///< lines that could not be written
    int printers = 0;       ///< that the spooler lists now
    std::chrono::milliseconds duration{};
};

/// Records what the library is told by the print spooler, and what it makes of it, as a case file
/// that can be read, sent and played back.
///
/// @code
/// VxKit::CaseRecorderOptions options;
/// options.fileName = QStringLiteral("C:/ProgramData/Example/monday.vxcase");
/// VxKit::CaseRecorder recorder(options);
/// PrinterStatusController controller;
/// recorder.setController(&controller);
/// @endcode
///
/// Or, for a menu entry "I have a problem", without a file name from the start of the host on:
///
/// @code
/// recorder.save(QStringLiteral("C:/Users/Public/problem.vxcase"));
/// @endcode
///
/// A host on the kit can be recorded without a change: with VX_RECORD=FILE in its environment, the
/// recording begins just before its controller looks for printers, and ends with the application
/// object. If "day.vxcase" exists, it is called "day-2.vxcase", and so on. The host's signals are
/// recorded from when it creates `PrinterReadings`. VX_RECORD_PLAIN=1 is the same as `isPlain`.
///
/// docs/case-files.md describes the lines.
///
/// **What is recorded.** Each call of the library to the spooler that returned something else than
/// before, or that failed; the controller's signals; the lines of the library's log. Besides, what
/// a look of the recorder's own finds: printers, their attributes, ports, drivers and rights, the
/// default printer, the service, jobs, and values that the library does not read. Values that
/// change faster than the library reads them are recorded as it read them, and the file says so.
///
/// **How.** The library's calls to the spooler are led through the kit: the addresses in the import
/// table of the loaded library are replaced, in this process only. The calls themselves stay the
/// same, with the same arguments and in the same order. The first recorder does this, and it is not
/// undone: afterwards, the calls pass through. The kit's library then stays loaded until the
/// process ends. The library's log is recorded by an appender at the global logger. A host without
/// an appender of its own therefore no longer sees the log on standard error.
///
/// **Threads.** All members except `summary()`, `errorString()` and `flush()` are called on the
/// controller's thread. The library's threads only compare and copy. A thread of the recorder
/// writes, and another one looks. The constructor reads all printers with all their values on the
/// calling thread, which takes as long as the spooler does.
///
/// **What it costs.** A host whose 200 printers change ten times a second needs about 0.3 % more
/// instructions and, measured on a busy machine, 3 to 6 % more processor time, with a file as with
/// the ring, and 0.7 to 0.8 MiB of memory besides the ring. The aims, 2 % and 256 KiB, are not
/// reached. An idle host needs next to nothing. `benchmarks/README.md` has the figures and where
/// they come from. A thread of the library that reports waits for its turn, so that the file has
/// the order in which the controller handles the reports: at most a second, and at most 20 ms once
/// that was not enough, as with a slot of the host that blocks the library's threads. If the disk
/// is so slow that 4 MiB wait to be written, lines are left out, and the file says how many.
///
/// **What is in the file after a crash.** Lines are written as a whole and at most 50 ms after what
/// they describe. What was written is valid: the last line may be incomplete and is skipped, and
/// the last line of a file that was ended properly is its "end".
///
/// **When it cannot be written.** What happens is lost until writing works again, which is tried
/// every second. The file then says how many lines are missing and begins anew with the printers as
/// they are.
///
/// **The log.** What the library logs goes where it went before. With an installed CuteLogger
/// instead of ours, a host without an appender has no log on standard error while it is recorded.
///
/// **Lifetime.** The recorder may be destroyed at any time; that ends the file. It may outlive the
/// controller. Several recorders may exist at once, but only one controller is recorded.
class VX_KIT_EXPORT CaseRecorder : public QObject
{
    Q_OBJECT

public:
    /// Begins to record. Create it before the controller, so that the file begins where the library
    /// does; with a controller that exists already, the file begins with its records.
    explicit CaseRecorder(const CaseRecorderOptions& options,
                          PrinterStatusController* controller = nullptr, QObject* parent = nullptr);
    /// Ends the file.
    ~CaseRecorder() override;
    Q_DISABLE_COPY_MOVE(CaseRecorder)

    /// The options with the values that are in effect.
    CaseRecorderOptions options() const;

    /// Records the signals of a controller that was created after this object. Call it before the
    /// event loop runs.
    void setController(PrinterStatusController* controller);

    /// Whether it records. False when the file could not be created (see `errorString()`) and after
    /// `stop()`.
    bool isRecording() const;
    /// Why the file could not be created, or why the last attempt to write failed, in the system's
    /// words; empty when it succeeded.
    QString errorString() const;

    CaseRecorderSummary summary() const;

    /// Waits until everything that has happened is in the file. False when it could not be written
    /// or the time is over.
    bool flush(QDeadlineTimer deadline = QDeadlineTimer(5000));

    /// Writes what is kept in memory to a new file, and goes on recording. An empty text when it
    /// succeeded, else the reason. An existing file is not replaced.
    QString save(const QString& fileName);

    /// Writes everything that has happened and the line "end". Nothing is recorded afterwards.
    void stop();

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace VxKit
