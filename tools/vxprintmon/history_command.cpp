// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "history_command.h"

#include "command_line.h"
#include "failure.h"
#include "json_text.h"
#include "output.h"
#include "printer_names.h"
#include "printer_words.h"
#include "shown_text.h"
#include "tool_text.h"

#include <usage_history.h>
#include <usage_history_reader.h>

#include <array>

namespace {

using json_text::orNull;
using VxKit::UsageGap;
using VxKit::UsageHistory;
using VxKit::UsageHistoryReader;
using VxKit::UsageSegment;

/// In milliseconds. Longer than a lock of another process is waited for.
constexpr qint64 timeToOpen = 10000;

/// As people read it.
QString clockTime(const QDateTime& time)
{
    return time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm"));
}

/// As programs read it: RFC 3339 with an offset.
QString exactTime(const QDateTime& time)
{
    const QDateTime local = time.toLocalTime();
    return local.toOffsetFromUtc(local.offsetFromUtc()).toString(Qt::ISODate);
}

QString plain(double number)
{
    return QString::number(number, 'f', 1);
}

/// Metres, or the share if these are not known.
QString amount(std::optional<double> meters, std::optional<double> ratio)
{
    if (meters)
        return ToolText::tr("%1 m").arg(plain(*meters));
    if (ratio)
        return ToolText::tr("%1 %").arg(plain(*ratio * 100.0));
    return QStringLiteral("-");
}

QString loadedIn(const UsageSegment& segment)
{
    return segment.name.isEmpty() ? segment.identifier : segment.name;
}

QList<Cell> rowOf(const UsageSegment& segment)
{
    return {{loadedIn(segment)},
            {clockTime(segment.from)},
            segment.isLoaded ? Cell{ToolText::tr("still loaded"), Colour::Good}
                             : Cell{clockTime(segment.until)},
            {amount(segment.usedMeters, segment.usedRatio)},
            {segment.usedLabels ? QString::number(*segment.usedLabels) : QStringLiteral("-")},
            {amount(segment.metersPerDay(), segment.ratioPerDay())}};
}

void printTable(Output& output, const QList<UsageSegment>& segments)
{
    using Width = Column::Width;
    const QList<Column> columns{{ToolText::tr("LOADED"), Width::Shrinks, 1, 8},
                                {ToolText::tr("FROM")},
                                {ToolText::tr("UNTIL")},
                                {ToolText::tr("USED")},
                                {ToolText::tr("LABELS")},
                                {ToolText::tr("A DAY")}};
    QList<QList<Cell>> rows;
    for (qsizetype i = 0; i < segments.size(); ++i) {
        const UsageSegment& segment = segments.at(i);
        rows.append(rowOf(segment));
        const bool isLast = i + 1 == segments.size() ||
                            segments.at(i + 1).printerKey != segment.printerKey ||
                            segments.at(i + 1).slot != segment.slot;
        if (!isLast)
            continue;
        const QString slot = printer_words::slotName(segment.slot);
        output.wrappedLine({},
                           {{segment.printerName, Colour::Heading},
                            {QStringLiteral(", ")},
                            {slot},
                            {segment.serialNumber.isEmpty()
                                 ? QString()
                                 : ToolText::tr(" (serial number %1)").arg(segment.serialNumber),
                             Colour::Faint}});
        output.table(columns, rows);
        rows.clear();
        if (i + 1 < segments.size())
            output.line({});
    }
}

void printGaps(Output& output, const QList<UsageGap>& gaps)
{
    for (const UsageGap& gap : gaps)
        output.line(
            {{ToolText::tr("Changes that could not be recorded: %1, from %2 to %3")
                  .arg(QString::number(gap.samples), clockTime(gap.since), clockTime(gap.until)),
              Colour::Notice}});
}

/// A member of a segment, for programs.
struct Field
{
    const char* name;
    QJsonValue (*value)(const UsageSegment& segment);
};

const std::array fields{
    Field{"printer",
          [](const UsageSegment& each) {
              return QJsonValue(each.printerName);
          }},
    Field{"serialNumber",
          [](const UsageSegment& each) {
              return orNull(each.serialNumber);
          }},
    Field{"slot",
          [](const UsageSegment& each) {
              return QJsonValue(VxKit::slotName(each.slot));
          }},
    Field{"identifier",
          [](const UsageSegment& each) {
              return QJsonValue(each.identifier);
          }},
    Field{"sku",
          [](const UsageSegment& each) {
              return orNull(each.sku);
          }},
    Field{"name",
          [](const UsageSegment& each) {
              return orNull(each.name);
          }},
    Field{"material",
          [](const UsageSegment& each) {
              return orNull(each.material);
          }},
    Field{"from",
          [](const UsageSegment& each) {
              return QJsonValue(exactTime(each.from));
          }},
    Field{"until",
          [](const UsageSegment& each) {
              return QJsonValue(exactTime(each.until));
          }},
    Field{"loaded",
          [](const UsageSegment& each) {
              return QJsonValue(each.isLoaded);
          }},
    Field{"coarse",
          [](const UsageSegment& each) {
              return QJsonValue(each.coarse);
          }},
    Field{"usedMeters",
          [](const UsageSegment& each) {
              return orNull(each.usedMeters);
          }},
    Field{"usedRatio",
          [](const UsageSegment& each) {
              return orNull(each.usedRatio);
          }},
    Field{"usedLabels",
          [](const UsageSegment& each) {
              return orNull(each.usedLabels);
          }},
    Field{"metersLeft",
          [](const UsageSegment& each) {
              return orNull(each.metersLeft);
          }},
    Field{"ratioLeft",
          [](const UsageSegment& each) {
              return orNull(each.ratioLeft);
          }},
    Field{"labelsLeft",
          [](const UsageSegment& each) {
              return orNull(each.labelsLeft);
          }},
    Field{"metersPerDay",
          [](const UsageSegment& each) {
              return orNull(each.metersPerDay());
          }},
    Field{"ratioPerDay",
          [](const UsageSegment& each) {
              return orNull(each.ratioPerDay());
          }},
    Field{"labelsPerDay",
          [](const UsageSegment& each) {
              return orNull(each.labelsPerDay());
          }},
};

QString json(const UsageSegment& segment)
{
    QList<json_text::Member> members;
    for (const Field& field : fields)
        members.append({QString::fromLatin1(field.name), json_text::value(field.value(segment))});
    return json_text::object(members);
}

/// A value in a table for spreadsheets. Programs for these take a text that begins as a formula for
/// one, so that it is given an apostrophe.
QString csv(const QJsonValue& value)
{
    if (value.isNull())
        return {};
    if (!value.isString())
        return json_text::value(value);
    QString text = shown(value.toString());
    if (!text.isEmpty() && QStringLiteral("=+-@").contains(text.front()))
        text.prepend(QLatin1Char('\''));
    text.replace(QLatin1Char('"'), QStringLiteral("\"\""));
    return QStringLiteral("\"%1\"").arg(text);
}

void printCsv(Output& output, const QList<UsageSegment>& segments)
{
    QStringList names;
    for (const Field& field : fields)
        names.append(QString::fromLatin1(field.name));
    output.text(names.join(QLatin1Char(',')) + QLatin1Char('\n'));
    for (const UsageSegment& segment : segments) {
        QStringList values;
        for (const Field& field : fields)
            values.append(csv(field.value(segment)));
        output.text(values.join(QLatin1Char(',')) + QLatin1Char('\n'));
    }
}

/// Throws what is to be said about a printer that is not in the history.
[[noreturn]] void failWithout(const QString& printer, const QList<UsageSegment>& all)
{
    QStringList names;
    for (const UsageSegment& segment : all) {
        if (!names.contains(segment.printerName))
            names.append(segment.printerName);
    }
    const QString similar = printer_names::quotedNearest(printer, names);
    if (similar.isEmpty())
        throw Failure(ToolText::tr("the history has no printer \"%1\"").arg(printer));
    throw Failure(
        ToolText::tr("the history has no printer \"%1\"; did you mean %2?").arg(printer, similar));
}

} // namespace

QString historyFile(const CommandLine& line)
{
    return line.historyFile.isEmpty() ? UsageHistory::defaultFileName() : line.historyFile;
}

void checkHistory(const CommandLine& line)
{
    if (line.csv && line.json)
        throw wrongUsage(ToolText::tr("--csv and --json are not valid together"));
}

void runHistory(const CommandLine& line, Output& output, Backend& /*backend*/)
{
    const UsageHistoryReader reader(historyFile(line));
    // Without a file of the user's choice there may be nothing yet.
    const bool isEmpty = reader.isMissing() && line.historyFile.isEmpty();
    if (!reader.errorString().isEmpty() && !isEmpty)
        throw Failure(reader.errorString());
    const QString printer = line.arguments.value(0);
    const QList<UsageSegment> segments = reader.segments(printer);
    const QList<UsageGap> gaps = reader.gaps();
    if (!reader.errorString().isEmpty() && !isEmpty)
        throw Failure(reader.errorString());
    if (segments.isEmpty() && !printer.isEmpty())
        failWithout(printer, reader.segments());

    if (line.json) {
        QStringList texts;
        for (const UsageSegment& segment : segments)
            texts.append(json(segment));
        output.text(json_text::lines(texts));
    } else if (line.csv) {
        printCsv(output, segments);
    } else if (segments.isEmpty()) {
        output.line({{ToolText::tr("Nothing has been recorded yet. \"vxprintmon watch --history\" "
                                   "records what is used.")}});
    } else {
        printTable(output, segments);
        printGaps(output, gaps);
    }
}

WatchHistory::WatchHistory(const CommandLine& line, Output& output,
                           VxKit::PrinterReadings* readings)
{
    if (!line.history)
        return;
    VxKit::UsageHistoryOptions options;
    options.fileName = historyFile(line);
    m_history = std::make_unique<UsageHistory>(readings, options);
    QObject::connect(m_history.get(), &UsageHistory::fileSetAside, m_history.get(),
                     [&output](const QString& newName, const QString& reason) {
                         output.complain(
                             ToolText::tr("the history was damaged, is now called %1, and has been "
                                          "begun anew: %2")
                                 .arg(newName, reason));
                     });
    // It would go on trying, but a name that is wrong should be said at once.
    if (!m_history->flush(QDeadlineTimer(timeToOpen)))
        throw Failure(ToolText::tr("cannot write the history %1").arg(m_history->errorString()));
    QObject::connect(
        m_history.get(), &UsageHistory::writingFailed, m_history.get(),
        [&output](const QString& reason) {
            output.complain(
                ToolText::tr("cannot write the history %1; it is tried again every second")
                    .arg(reason));
        });
}

WatchHistory::~WatchHistory() = default;

void WatchHistory::finish()
{
    if (m_history && !m_history->flush(QDeadlineTimer(timeToOpen)))
        throw Failure(ToolText::tr("cannot write the history %1").arg(m_history->errorString()));
}
