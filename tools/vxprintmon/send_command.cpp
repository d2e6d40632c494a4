// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include "backend.h"
#include "failure.h"
#include "json_text.h"
#include "output.h"

#include "printer_status_controller.h"
#include "tool_text.h"

#include <AbstractAppender.h>
#include <Logger.h>

namespace {

/// Records the line that the library logs when it cannot send a command, which it reports
/// nowhere else.
class CommandLog : public AbstractAppender
{
public:
    CommandLog()
    {
        setDetailsLevel(Logger::Debug);
        Logger::globalInstance()->registerAppender(this);
    }
    ~CommandLog() override { Logger::globalInstance()->removeAppender(this); }
    Q_DISABLE_COPY_MOVE(CommandLog)

    QString failure() const { return m_failure; }

protected:
    // The monitoring threads log as well, but not under this name.
    void append(const QDateTime& /*timeStamp*/, Logger::LogLevel /*level*/, const char* /*file*/,
                int /*line*/, const char* function, const QString& /*category*/,
                const QString& message) override
    {
        if (QLatin1String(function).contains(QLatin1String("::sendCommandToPrinter(")))
            m_failure = message.trimmed();
    }

private:
    QString m_failure;
};

QString jobJson(const Backend::Job& job)
{
    QStringList pages;
    for (const QByteArray& page : job.pages)
        pages.append(json_text::value(QString::fromLocal8Bit(page)));
    return json_text::object({
        {QStringLiteral("id"), json_text::value(job.id)},
        {QStringLiteral("document"), json_text::value(job.document)},
        {QStringLiteral("datatype"), json_text::value(job.datatype)},
        {QStringLiteral("pages"), json_text::array(pages)},
    });
}

QString jobText(const Backend::Job& job)
{
    qsizetype bytes = 0;
    for (const QByteArray& page : job.pages)
        bytes += page.size();
    return ToolText::tr("Print job %1, \"%2\": %3, pages: %4, bytes: %5.")
        .arg(QString::number(job.id), job.document, job.datatype, QString::number(job.pages.size()),
             QString::number(bytes));
}

} // namespace

void runSend(const CommandLine& line, Output& output, Backend& backend)
{
    const QString& printer = line.arguments.at(0);
    const QString& command = line.arguments.at(1);
    PrinterStatusController controller;
    const CommandLog log;
    controller.sendCommandToPrinter(command, printer);
    if (!log.failure().isEmpty())
        throw Failure(
            ToolText::tr("the command was not sent to \"%1\": %2").arg(printer, log.failure()));

    const std::optional<Backend::Job> job = backend.lastJob(printer);
    if (line.json) {
        QList<json_text::Member> members{
            {QStringLiteral("printerName"), json_text::value(printer)},
            {QStringLiteral("command"), json_text::value(command)},
        };
        if (job)
            members.emplaceBack(QStringLiteral("job"), jobJson(*job));
        output.text(json_text::object(members) + QLatin1Char('\n'));
        return;
    }
    output.line({{ToolText::tr("Sent to %1: %2").arg(printer, command)}});
    if (job)
        output.line({{jobText(*job)}});
}
