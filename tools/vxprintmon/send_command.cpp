// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include "json_text.h"

#include "printer_status_controller.h"

#include <AbstractAppender.h>
#include <Logger.h>

namespace {

/// Listens to what the library logs of commands that it cannot send, which it says nowhere else.
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

    QString complaint() const { return m_complaint; }

protected:
    // The watching threads log as well, but not under this name.
    void append(const QDateTime& /*timeStamp*/, Logger::LogLevel /*level*/, const char* /*file*/,
                int /*line*/, const char* function, const QString& /*category*/,
                const QString& message) override
    {
        if (QLatin1String(function).contains(QLatin1String("::sendCommandToPrinter(")))
            m_complaint = message.trimmed();
    }

private:
    QString m_complaint;
};

QString jobJson(const Scene::Job& job)
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

QString jobText(const Scene::Job& job)
{
    qsizetype bytes = 0;
    for (const QByteArray& page : job.pages)
        bytes += page.size();
    return QStringLiteral("It became print job %1, \"%2\": %3, pages: %4, bytes: %5.")
        .arg(QString::number(job.id), job.document, job.datatype, QString::number(job.pages.size()),
             QString::number(bytes));
}

} // namespace

QString runSend(const CommandLine& line, Output& output, Scene& scene)
{
    const QString& printer = line.words.at(0);
    const QString& command = line.words.at(1);
    PrinterStatusController controller;
    const CommandLog log;
    controller.sendCommandToPrinter(command, printer);
    if (!log.complaint().isEmpty())
        return QStringLiteral("the command was not sent to \"%1\": %2")
            .arg(printer, log.complaint());

    const std::optional<Scene::Job> job = scene.lastJob(printer);
    if (line.json) {
        QList<json_text::Member> members{
            {QStringLiteral("printerName"), json_text::value(printer)},
            {QStringLiteral("command"), json_text::value(command)},
        };
        if (job)
            members.emplaceBack(QStringLiteral("job"), jobJson(*job));
        output.text(json_text::object(members) + QLatin1Char('\n'));
        return {};
    }
    output.line({{QStringLiteral("Sent to %1: %2").arg(printer, command)}});
    if (job)
        output.line({{jobText(*job)}});
    return {};
}
