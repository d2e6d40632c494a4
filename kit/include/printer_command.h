// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "vxprinterstatuskit_export.h"

#include <QtCore/QByteArray>
#include <QtCore/QFuture>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace VxKit {

/// How a command is sent. What is not set here is right for a command to a label printer.
struct CommandOptions
{
    /// Also send to printers of other makers and of unsupported models, which print the command as
    /// text, or something worse.
    bool toAnyPrinter = false;
    /// Also send a command without any character. As text it still has a line end.
    bool evenEmpty = false;
    /// The job's name in the queue. Empty: the text of the command, or "Command" for bytes. At most
    /// 200 characters are used.
    QString documentName{};
};

/// What became of a command up to the print spooler.
struct VX_KIT_EXPORT CommandResult
{
    /// The step that failed.
    enum class Failure
    {
        None,              ///< the spooler has the whole command
        Empty,             ///< refused: the command is empty
        ForeignPrinter,    ///< refused: the printer is not of a supported model
        CannotOpenPrinter, ///< it does not exist, or the spooler or the user's rights prevent it
        CannotReadDriver,  ///< so it is not known whether the model is supported
        CannotStartDocument,
        CannotStartPage,
        CannotWrite,
        ShortWrite, ///< the spooler took only a part of the command
        CannotEndPage,
        CannotEndDocument,
    };

    QString printerName{};
    Failure failure = Failure::None;
    /// The Windows function that failed; empty when none did.
    QString function{};
    /// The system's error code; 0 when no Windows function failed.
    quint32 errorCode = 0;
    /// What went wrong, in one line in the application's language, with the system's own words.
    /// Empty when nothing did.
    QString errorText{};
    /// The job's number in the printer's queue; 0 when there is no job. When sending fails after
    /// the job was started, the job is deleted, so that half a command is not printed.
    quint32 jobId = 0;
    /// How many bytes the spooler took.
    qint64 bytes = 0;

    bool isSent() const { return failure == Failure::None; }
};

/// Where a print job is.
struct VX_KIT_EXPORT JobState
{
    enum class Stage
    {
        Queued,    ///< it waits in the queue, or its data still arrives there
        Printing,  ///< it is being sent to the printer
        Printed,   ///< the spooler reports it as printed
        Deleted,   ///< it was deleted before it was printed
        LeftQueue, ///< it is no longer in the queue, and the spooler does not say why
        Failed,    ///< it cannot be followed: see `errorText`
    };

    QString printerName{};
    quint32 jobId = 0;
    Stage stage = Stage::Queued;
    /// What keeps the job from being printed, in the application's language: the printer's state
    /// and the job's. Empty when nothing does, and in the last state.
    QStringList obstacles{};
    quint32 jobStatus = 0;     ///< JOB_STATUS_*, as the spooler reports them
    quint32 printerStatus = 0; ///< PRINTER_STATUS_*
    /// The status code that the printer's driver publishes (see status_codes.h); none when it
    /// publishes none, or no number.
    std::optional<int> statusCode{};
    quint32 errorCode = 0; ///< the system's error code, in the stage `Failed` or 0
    QString errorText{};   ///< in one line in the application's language; empty unless it failed

    /// Whether the job waits for somebody to do something at the printer or in its queue.
    bool isStuck() const { return !obstacles.isEmpty(); }
    /// Whether nothing more will be reported about the job.
    bool isFinal() const { return stage != Stage::Queued && stage != Stage::Printing; }
    /// The stage and the obstacles in one line, in the application's language.
    QString text() const;

    friend VX_KIT_EXPORT bool operator==(const JobState& left, const JobState& right);
};

/// Sends a command in the printer's own language as a raw print job of one page, like
/// `PrinterStatusController::sendCommandToPrinter`: with a carriage return and a line feed added,
/// in the system's 8-bit code page, and only up to the first zero byte.
///
/// The function returns at once and may be called on any thread. Up to four commands are sent at
/// the same time, on threads of their own; more wait for their turn. The future has one result. A
/// future that is cancelled before its turn has none, and nothing is sent; once the spooler has
/// been called, cancelling changes nothing.
///
/// @code
/// VxKit::sendCommand(name, QStringLiteral("FEED 3")).then(this, [](VxKit::CommandResult result) {
///     if (!result.isSent())
///         qWarning() << result.errorText;
/// });
/// @endcode
VX_KIT_EXPORT QFuture<CommandResult> sendCommand(const QString& printerName, const QString& text,
                                                 const CommandOptions& options = {});
/// The same for bytes, which are sent exactly as they are.
VX_KIT_EXPORT QFuture<CommandResult> sendCommand(const QString& printerName,
                                                 const QByteArray& bytes,
                                                 const CommandOptions& options = {});

/// Follows a job through the printer's queue until it has been printed or has left the queue.
///
/// The future has one result for each state that differs from the one before, beginning with the
/// present one; the last result is final. It reports them as they occur (`resultReadyAt` of a
/// `QFutureWatcher`). Cancelling the future ends the following.
///
/// Whether a job was printed or deleted is known only if the spooler reports it while the job is
/// being followed; otherwise its last stage is `LeftQueue`. To miss nothing, also of a job that is
/// printed at once, use `sendAndFollowCommand`.
///
/// All jobs are followed on one thread, which waits for the spooler's notifications. Where there
/// are none (Wine), and for more than 63 jobs at the same time, it looks once a second.
VX_KIT_EXPORT QFuture<JobState> followJob(const QString& printerName, quint32 jobId);

/// A command and the job that it has become.
struct FollowedCommand
{
    QFuture<CommandResult> command;
    /// Begins when the spooler has the command. Cancelled and without a result if it was not sent.
    QFuture<JobState> job;
};
/// Sends a command and follows its job from the beginning.
VX_KIT_EXPORT FollowedCommand sendAndFollowCommand(const QString& printerName, const QString& text,
                                                   const CommandOptions& options = {});
VX_KIT_EXPORT FollowedCommand sendAndFollowCommand(const QString& printerName,
                                                   const QByteArray& bytes,
                                                   const CommandOptions& options = {});

} // namespace VxKit

Q_DECLARE_METATYPE(VxKit::CommandResult)
Q_DECLARE_METATYPE(VxKit::JobState)
