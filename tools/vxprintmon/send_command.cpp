// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include "backend.h"
#include "failure.h"
#include "interrupt_handler.h"
#include "json_text.h"
#include "output.h"
#include "printer_names.h"

#include "printer_command.h"
#include "tool_text.h"

#include <QtCore/QEventLoop>
#include <QtCore/QFutureWatcher>
#include <QtCore/QTimer>

namespace {

using VxKit::CommandResult;
using VxKit::JobState;
using Stage = JobState::Stage;

QString stageName(Stage stage)
{
    switch (stage) {
    case Stage::Queued:
        return QStringLiteral("queued");
    case Stage::Printing:
        return QStringLiteral("printing");
    case Stage::Printed:
        return QStringLiteral("printed");
    case Stage::Deleted:
        return QStringLiteral("deleted");
    case Stage::LeftQueue:
        return QStringLiteral("leftQueue");
    case Stage::Failed:
        return QStringLiteral("failed");
    }
    return {};
}

QString stateJson(const JobState& state)
{
    QStringList obstacles;
    for (const QString& obstacle : state.obstacles)
        obstacles.append(json_text::value(obstacle));
    return json_text::object({
        {QStringLiteral("stage"), json_text::value(stageName(state.stage))},
        {QStringLiteral("text"), json_text::value(state.text())},
        {QStringLiteral("obstacles"), json_text::array(obstacles)},
        {QStringLiteral("statusCode"),
         json_text::value(state.statusCode ? QJsonValue(*state.statusCode) : QJsonValue())},
    });
}

QString jobJson(const CommandResult& result, const std::optional<Backend::Job>& job)
{
    QList<json_text::Member> members{
        {QStringLiteral("id"), json_text::value(static_cast<qint64>(result.jobId))},
        {QStringLiteral("bytes"), json_text::value(result.bytes)},
    };
    if (job) {
        QStringList pages;
        for (const QByteArray& page : job->pages)
            pages.append(json_text::value(QString::fromLocal8Bit(page)));
        members.emplaceBack(QStringLiteral("document"), json_text::value(job->document));
        members.emplaceBack(QStringLiteral("datatype"), json_text::value(job->datatype));
        members.emplaceBack(QStringLiteral("pages"), json_text::array(pages));
    }
    return json_text::object(members);
}

QString jobText(const CommandResult& result, const std::optional<Backend::Job>& job)
{
    const QString number = QString::number(result.jobId);
    const QString bytes = QString::number(result.bytes);
    if (!job)
        return ToolText::tr("Print job %1, bytes: %2.").arg(number, bytes);
    return ToolText::tr("Print job %1, \"%2\": %3, pages: %4, bytes: %5.")
        .arg(number, job->document, job->datatype, QString::number(job->pages.size()), bytes);
}

/// Follows the job until it has left the queue, and calls `report` with each state.
template <typename Report>
JobState follow(const QFuture<JobState>& future, Report report)
{
    const InterruptHandler interruptHandler;
    QEventLoop loop;
    JobState last;
    QFutureWatcher<JobState> watcher;
    QObject::connect(&watcher, &QFutureWatcher<JobState>::resultReadyAt, &watcher, [&](int index) {
        last = watcher.resultAt(index);
        report(last);
    });
    QObject::connect(&watcher, &QFutureWatcher<JobState>::finished, &loop, &QEventLoop::quit);
    QTimer clock;
    QObject::connect(&clock, &QTimer::timeout, &loop, [&] {
        if (interruptHandler.wasInterrupted())
            loop.quit();
    });
    clock.start(std::chrono::milliseconds(50));
    watcher.setFuture(future);
    loop.exec();
    if (interruptHandler.wasInterrupted() && !last.isFinal())
        throw Failure(ToolText::tr("interrupted while print job %1 was in the queue of \"%2\"")
                          .arg(QString::number(last.jobId), last.printerName));
    return last;
}

[[noreturn]] void refuse(const CommandResult& result)
{
    if (result.failure == CommandResult::Failure::CannotOpenPrinter) {
        if (const auto missing = printer_names::missing(result.printerName))
            throw Failure(*missing);
    }
    QString why = result.errorText;
    if (result.failure == CommandResult::Failure::ForeignPrinter ||
        result.failure == CommandResult::Failure::Empty)
        why += QLatin1Char(' ') + ToolText::tr("--force sends it nevertheless.");
    throw Failure(ToolText::tr("the command was not sent: %1").arg(why));
}

} // namespace

void runSend(const CommandLine& line, Output& output, Backend& backend)
{
    const QString printer = printer_names::asListed(line.arguments.at(0));
    const QString& command = line.arguments.at(1);
    if (line.wait)
        backend.start([] { return 0; });
    VxKit::FollowedCommand followed = VxKit::sendAndFollowCommand(
        printer, command, {.toAnyPrinter = line.force, .evenEmpty = line.force});
    followed.command.waitForFinished();
    const CommandResult result = followed.command.result();
    if (!result.isSent())
        refuse(result);
    if (!line.wait)
        followed.job.cancel();

    const std::optional<Backend::Job> job = backend.lastJob(printer);
    JobState last;
    if (line.json) {
        QList<json_text::Member> members{
            {QStringLiteral("printerName"), json_text::value(printer)},
            {QStringLiteral("command"), json_text::value(command)},
            {QStringLiteral("job"), jobJson(result, job)},
        };
        if (line.wait) {
            last = follow(followed.job, [](const JobState& /*state*/) {});
            members.emplaceBack(QStringLiteral("state"), stateJson(last));
        }
        output.text(json_text::object(members) + QLatin1Char('\n'));
    } else {
        output.line({{ToolText::tr("Sent to %1: %2").arg(printer, command)}});
        output.line({{jobText(result, job)}});
        QString said;
        if (line.wait)
            last = follow(followed.job, [&](const JobState& state) {
                if (const QString text = state.text(); text != std::exchange(said, text))
                    output.line({{text}});
            });
    }
    if (line.wait && (last.stage == Stage::Failed || last.stage == Stage::Deleted))
        throw Failure(ToolText::tr("print job %1 was not printed: %2")
                          .arg(QString::number(result.jobId), last.text()));
}
