// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "log_command.h"

#include "command_line.h"
#include "event_page.h"
#include "failure.h"
#include "output.h"
#include "shown_text.h"
#include "text_layout.h"
#include "tool_text.h"

#include <event_log_reader.h>

#include <QtCore/QJsonDocument>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <array>

namespace {

using VxKit::PrinterEvent;
using VxKit::Severity;

constexpr std::array severities{Severity::Ok, Severity::Information, Severity::Warning,
                                Severity::Error};

std::optional<Severity> severityOf(const QString& key)
{
    const auto* const found = std::ranges::find_if(
        severities, [&key](Severity severity) { return VxKit::severityKey(severity) == key; });
    return found == severities.end() ? std::nullopt : std::optional(*found);
}

/// The events that the options choose.
class Choice
{
public:
    explicit Choice(const CommandLine& line)
        : m_printer(line.printer)
    {
        if (!line.since.isEmpty()) {
            m_since = timeMeantBy(line.since, QDateTime::currentDateTime());
            if (!m_since)
                throw wrongUsage(ToolText::tr("--since: expected such as 2026-11-22, "
                                              "2026-11-22T10:30, 10:30 or 2h, found \"%1\"")
                                     .arg(line.since));
        }
        if (!line.severity.isEmpty()) {
            m_severity = severityOf(line.severity);
            if (!m_severity)
                throw wrongUsage(
                    ToolText::tr("--severity: expected ok, information, warning or error, "
                                 "found \"%1\"")
                        .arg(line.severity));
        }
    }

    bool contains(const PrinterEvent& event) const
    {
        return isOfPrinter(event) && (!m_since || event.time >= *m_since) &&
               (!m_severity || event.severity >= *m_severity);
    }

private:
    /// An event without a printer concerns all printers.
    bool isOfPrinter(const PrinterEvent& event) const
    {
        const auto isIt = [this](const QString& name) {
            return name.compare(m_printer, Qt::CaseInsensitive) == 0;
        };
        return m_printer.isEmpty() || event.printer.isEmpty() || isIt(event.printer) ||
               isIt(event.before.printer);
    }

    QString m_printer;
    std::optional<QDateTime> m_since;
    std::optional<Severity> m_severity;
};

/// The width of the column of printers. A log that other processes write to may have another
/// printer a moment later, whose name then has a line of its own if it is longer.
qsizetype widthOfNames(const QString& fileName, const Choice& choice)
{
    qsizetype widest = 0;
    VxKit::EventLogReader log(fileName);
    while (const std::optional<PrinterEvent> event = log.next()) {
        const qsizetype width = text_layout::width(shown(event->printer));
        if (width > widest && width <= EventPage::widestName && choice.contains(*event))
            widest = width;
        if (widest == EventPage::widestName)
            break;
    }
    return widest;
}

/// The line of an event as JSON that cannot control a terminal. Members that this version does not
/// know are kept.
QString jsonLine(const QByteArray& line)
{
    const auto isSpace = [](char byte) {
        return byte == '\t' || byte == '\r';
    };
    const bool isPlain = std::none_of(line.begin(), line.end(), isSpace);
    return shown(QString::fromUtf8(
               isPlain ? line : QJsonDocument::fromJson(line).toJson(QJsonDocument::Compact))) +
           QLatin1Char('\n');
}

} // namespace

std::optional<QDateTime> timeMeantBy(const QString& text, const QDateTime& now)
{
    static const QRegularExpression duration(QStringLiteral("^(\\d{1,6})([mhd])$"));
    const QRegularExpressionMatch match = duration.match(text);
    if (match.hasMatch()) {
        const qint64 count = match.captured(1).toLongLong();
        switch (match.captured(2).at(0).unicode()) {
        case u'd':
            return now.addDays(-count);
        case u'h':
            return now.addSecs(-count * 3600);
        default:
            return now.addSecs(-count * 60);
        }
    }
    const QTime time = QTime::fromString(text, Qt::ISODateWithMs);
    if (time.isValid())
        return QDateTime(now.date(), time);
    const QDate date = QDate::fromString(text, Qt::ISODate);
    if (date.isValid() && text.size() == 10)
        return date.startOfDay();
    const QDateTime both = QDateTime::fromString(text, Qt::ISODateWithMs);
    if (both.isValid())
        return both;
    return std::nullopt;
}

void checkLog(const CommandLine& line)
{
    static_cast<void>(Choice(line));
}

void runLog(const CommandLine& line, Output& output, Backend& /*backend*/)
{
    const Choice choice(line);
    const QString fileName = line.arguments.first();
    EventPage page(output, line.json ? 0 : widthOfNames(fileName, choice));
    VxKit::EventLogReader log(fileName);
    bool isEmpty = true;
    while (const std::optional<PrinterEvent> event = log.next()) {
        if (output.isOver())
            return;
        if (!choice.contains(*event))
            continue;
        isEmpty = false;
        if (line.json)
            output.text(jsonLine(log.line()));
        else
            page.print(*event, event->time.toLocalTime());
    }
    if (!log.errorString().isEmpty())
        throw Failure(log.errorString());
    if (log.badLines() > 0)
        output.complain(
            ToolText::tr("lines that are no events and were left out: %1").arg(log.badLines()));
    if (isEmpty && !line.json)
        output.line({{ToolText::tr("There are no such events.")}});
}
