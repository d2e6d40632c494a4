// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_command.h"

#include "case_lines.h"
#include "command_line.h"
#include "event_page.h"
#include "json_text.h"
#include "output.h"
#include "printer_words.h"
#include "shown_text.h"
#include "text_layout.h"
#include "tool_text.h"

#include <case_readings.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QLocale>
#include <QtCore/QSet>

#include <algorithm>

using VxKit::CaseLine;
using VxKit::PrinterEvent;
using VxKit::PrinterReading;
using VxKit::Severity;
using VxKit::Slot;

namespace {

struct Gap
{
    double from = 0;
    double until = 0;
    qint64 lines = 0;
};

/// What is known of a case before its story is told.
struct Overview
{
    QJsonObject header;
    double seconds = 0;
    bool isCut = false;
    qint64 lines = 0;
    qint64 steps = 0;
    qint64 signalCount = 0;
    qint64 logLines = 0;
    qint64 faster = 0;
    QList<Gap> gaps;
};

/// More gaps than a recording has.
constexpr qsizetype mostGaps = 1000;

/// Reads the file for the first time. The catalogue's rows are known to `readings` afterwards, also
/// those that the file has behind what they are needed for.
Overview overviewOf(const QString& fileName, VxKit::CaseReadings& readings)
{
    Overview overview;
    overview.isCut = case_lines::forEach(fileName, [&](const CaseLine& line) {
        const QJsonObject& object = line.object;
        ++overview.lines;
        overview.seconds = std::max(overview.seconds, line.time);
        if (line.kind == QLatin1String("case"))
            overview.header = object;
        else if (line.kind == QLatin1String("catalogue"))
            readings.apply(line);
        else if (line.kind == QLatin1String("signal"))
            ++overview.signalCount;
        else if (line.kind == QLatin1String("log"))
            ++overview.logLines;
        else if (line.kind == QLatin1String("faster"))
            ++overview.faster;
        else if (line.kind == QLatin1String("gap") && overview.gaps.size() < mostGaps)
            overview.gaps.append({line.time,
                                  object.value(QLatin1String("until")).toDouble(line.time),
                                  object.value(QLatin1String("lines")).toInteger()});
        if (object.contains(QLatin1String("n")))
            ++overview.steps;
    });
    return overview;
}

/// The events that the story is made of: warnings and errors, and what ends them.
class Choice
{
public:
    bool contains(const PrinterEvent& event)
    {
        const bool isStatus = event.kind == PrinterEvent::Kind::Status ||
                              event.kind == PrinterEvent::Kind::SpoolerStopped ||
                              event.kind == PrinterEvent::Kind::SpoolerRunning;
        if (event.severity >= Severity::Warning) {
            if (isStatus)
                m_inTrouble.insert(event.printer);
            return true;
        }
        return isStatus && m_inTrouble.remove(event.printer);
    }

private:
    QSet<QString> m_inTrouble;
};

/// Reads the file for the second time. Calls `begin` with the readings at its beginning, and then
/// `tellEvent` with each event of the story.
void tell(const QString& fileName, VxKit::CaseReadings& readings,
          const std::function<void(const QList<PrinterReading>&)>& begin,
          const std::function<void(const PrinterEvent&)>& tellEvent)
{
    bool hasBegun = false;
    Choice choice;
    case_lines::forEach(fileName, [&](const CaseLine& line) {
        const QList<PrinterEvent> events = readings.apply(line);
        if (line.kind == QLatin1String("begun") && !std::exchange(hasBegun, true))
            begin(readings.readings());
        for (const PrinterEvent& event : events) {
            if (choice.contains(event))
                tellEvent(event);
        }
    });
    if (!hasBegun)
        begin(readings.readings());
}

PrinterReading find(const QList<PrinterReading>& readings, const QString& name)
{
    const auto found = std::ranges::find(readings, name, &PrinterReading::name);
    return found == readings.end() ? PrinterReading() : *found;
}

QString duration(double seconds)
{
    constexpr qint64 minute = 60;
    constexpr qint64 hour = 60 * minute;
    const auto whole = static_cast<qint64>(seconds);
    if (whole >= hour)
        return ToolText::tr("%1 h %2 min").arg(whole / hour).arg(whole % hour / minute);
    if (whole >= minute)
        return ToolText::tr("%1 min %2 s").arg(whole / minute).arg(whole % minute);
    return ToolText::tr("%1 s", "seconds").arg(QLocale().toString(seconds, 'f', 1));
}

QString clock(const QDateTime& beginning, double seconds)
{
    return beginning.addMSecs(qRound64(seconds * 1000)).toString(QStringLiteral("HH:mm:ss"));
}

/// Tells a case to people.
class Story
{
public:
    Story(Output& output, const Overview& overview)
        : m_output(output)
        , m_overview(overview)
        , m_beginning(case_lines::beginningOf(overview.header))
    {}

    void printBeginning(const QString& fileName);
    void printPrinters(const QList<PrinterReading>& printers);
    void printEvent(const PrinterEvent& event);
    void printEnd(const QList<PrinterReading>& first, const QList<PrinterReading>& last);

private:
    void heading(const QString& text)
    {
        m_output.text(QStringLiteral("\n"));
        m_output.line({{text, Colour::Heading}});
    }
    /// Like `Output::details`, but also breaks what has no place at which a line may end.
    void printRows(const QList<QList<Cell>>& rows)
    {
        qsizetype indent = 0;
        for (const QList<Cell>& row : rows)
            indent = std::max(indent, text_layout::width(row.first().text) + 2);
        for (const QList<Cell>& row : rows) {
            Cell label{text_layout::padded(row.first().text, indent), Colour::Faint};
            for (const QString& line :
                 linesOf(shown(row.last().text), text_layout::lineWidth - indent)) {
                m_output.line({label, {line, row.last().colour}});
                label.text.fill(u' ', indent);
            }
        }
    }
    QString text(const char* key) const
    {
        return m_overview.header.value(QLatin1String(key)).toString();
    }

    Output& m_output;
    const Overview& m_overview;
    QDateTime m_beginning;
    std::optional<EventPage> m_page;
};

void Story::printBeginning(const QString& fileName)
{
    for (const QString& part : linesOf(shown(fileName), text_layout::lineWidth))
        m_output.line({{part, Colour::Heading}});
    QList<QList<Cell>> rows;
    const auto row = [&rows](const QString& label, const QString& value,
                             Colour colour = Colour::None) {
        if (!value.isEmpty())
            rows.append({{label, Colour::Faint}, {value, colour}});
    };
    row(ToolText::tr("recorded"), ToolText::tr("%1, for %2")
                                      .arg(QLocale().toString(m_beginning, QLocale::ShortFormat),
                                           duration(m_overview.seconds)));
    QStringList where{text("product"), text("system"), text("locale"), text("timeZone")};
    where.removeAll(QString());
    row(ToolText::tr("with"), where.join(QStringLiteral(", ")));
    row(ToolText::tr("contains"), ToolText::tr("steps: %1, signals: %2, log lines: %3")
                                      .arg(m_overview.steps)
                                      .arg(m_overview.signalCount)
                                      .arg(m_overview.logLines));
    const bool isRedacted = m_overview.header.value(QLatin1String("redacted")).toBool();
    row(ToolText::tr("names"),
        isRedacted ? ToolText::tr("replaced by others")
                   : ToolText::tr("as they are; \"vxprintmon case redact\" replaces them"),
        isRedacted ? Colour::None : Colour::Notice);
    if (m_overview.isCut)
        row(ToolText::tr("end"), ToolText::tr("missing: the recording was cut short"),
            Colour::Notice);
    for (const Gap& gap : m_overview.gaps)
        row(ToolText::tr("gap"),
            ToolText::tr("lines left out from %1 to %2: %3")
                .arg(clock(m_beginning, gap.from), clock(m_beginning, gap.until))
                .arg(gap.lines),
            Colour::Notice);
    if (m_overview.faster > 0)
        row(ToolText::tr("faster"),
            ToolText::tr("how often values changed faster than they were read: %1")
                .arg(m_overview.faster),
            Colour::Notice);
    printRows(rows);
}

void Story::printPrinters(const QList<PrinterReading>& printers)
{
    heading(ToolText::tr("Printers"));
    if (printers.isEmpty()) {
        m_output.line({{ToolText::tr("none")}});
    } else {
        constexpr qsizetype least = 8;
        QList<QList<Cell>> rows;
        for (const PrinterReading& printer : printers)
            rows.append({{printer.name()}, {printer.driver()}, {printer.port()}});
        m_output.table({{ToolText::tr("PRINTER"), Column::Width::Shrinks, 1, least},
                        {ToolText::tr("DRIVER"), Column::Width::Shrinks, 0, least},
                        {ToolText::tr("PORT"), Column::Width::Shrinks, 2, least}},
                       rows);
    }
    qsizetype widest = 0;
    for (const PrinterReading& printer : printers) {
        const qsizetype width = text_layout::width(shown(printer.name()));
        if (width <= EventPage::widestName)
            widest = std::max(widest, width);
    }
    heading(ToolText::tr("Warnings and errors"));
    m_page.emplace(m_output, widest);
}

void Story::printEvent(const PrinterEvent& event)
{
    m_page->print(event, event.time.isValid() ? event.time : m_beginning);
}

void Story::printEnd(const QList<PrinterReading>& first, const QList<PrinterReading>& last)
{
    heading(ToolText::tr("What was loaded"));
    QList<QList<Cell>> rows;
    const auto cell = [](const PrinterReading& reading, Slot slot) {
        return reading.isNull() || reading.presence() == PrinterReading::Presence::Gone
                   ? Cell{ToolText::tr("not there"), Colour::Faint}
                   : printer_words::level(reading.level(slot), slot);
    };
    for (const PrinterReading& reading : last) {
        if (!VXPrinting::isSupported(reading.model()))
            continue;
        const PrinterReading before = find(first, reading.name());
        const QList<Slot> slotList = reading.slotList();
        for (const Slot slot : slotList)
            rows.append({{slot == slotList.first() ? reading.name() : QString()},
                         {printer_words::slotName(slot)},
                         cell(before, slot),
                         cell(reading, slot)});
    }
    if (rows.isEmpty()) {
        m_output.line({{ToolText::tr("none")}});
        return;
    }
    constexpr qsizetype least = 10;
    m_output.table({{ToolText::tr("PRINTER"), Column::Width::Shrinks, 0, least},
                    {ToolText::tr("SLOT")},
                    {ToolText::tr("AT THE BEGINNING"), Column::Width::Shrinks, 1, least},
                    {ToolText::tr("AT THE END"), Column::Width::Shrinks, 1, least}},
                   rows);
}

QString json(const Overview& overview)
{
    using json_text::value;
    QStringList gaps;
    for (const Gap& gap : overview.gaps)
        gaps.append(json_text::object({{QStringLiteral("from"), value(gap.from)},
                                       {QStringLiteral("until"), value(gap.until)},
                                       {QStringLiteral("lines"), value(gap.lines)}}));
    return json_text::object({{QStringLiteral("kind"), value(QStringLiteral("case"))},
                              {QStringLiteral("header"), value(overview.header)},
                              {QStringLiteral("seconds"), value(overview.seconds)},
                              {QStringLiteral("cut"), value(overview.isCut)},
                              {QStringLiteral("lines"), value(overview.lines)},
                              {QStringLiteral("steps"), value(overview.steps)},
                              {QStringLiteral("signals"), value(overview.signalCount)},
                              {QStringLiteral("logLines"), value(overview.logLines)},
                              {QStringLiteral("faster"), value(overview.faster)},
                              {QStringLiteral("gaps"), json_text::array(gaps)}}) +
           u'\n';
}

/// A printer at both ends of the case.
QString json(const PrinterReading& first, const PrinterReading& last)
{
    using json_text::value;
    return json_text::object({{QStringLiteral("kind"), value(QStringLiteral("printer"))},
                              {QStringLiteral("name"), value(last.name())},
                              {QStringLiteral("first"),
                               first.isNull() ? QStringLiteral("null") : value(first.toJson())},
                              {QStringLiteral("last"), value(last.toJson())}}) +
           u'\n';
}

void showAsJson(const QString& fileName, const Overview& overview, VxKit::CaseReadings& readings,
                Output& output)
{
    output.text(json(overview));
    QList<PrinterReading> first;
    tell(
        fileName, readings, [&first](const QList<PrinterReading>& printers) { first = printers; },
        [&output](const PrinterEvent& event) {
            const json_text::Member kind{QStringLiteral("kind"),
                                         json_text::value(QStringLiteral("event"))};
            const QString text = shown(QString::fromUtf8(event.toLine()));
            output.text(json_text::object({kind, {QStringLiteral("event"), text}}) + u'\n');
        });
    const QList<PrinterReading> last = readings.readings();
    for (const PrinterReading& reading : last)
        output.text(json(find(first, reading.name()), reading));
}

} // namespace

void showCase(const CommandLine& line, Output& output)
{
    const QString& fileName = line.arguments.first();
    VxKit::CaseReadings readings;
    const Overview overview = overviewOf(fileName, readings);
    if (line.json) {
        showAsJson(fileName, overview, readings, output);
        return;
    }
    Story story(output, overview);
    story.printBeginning(fileName);
    QList<PrinterReading> first;
    bool isEmpty = true;
    tell(
        fileName, readings,
        [&](const QList<PrinterReading>& printers) {
            first = printers;
            story.printPrinters(printers);
        },
        [&](const PrinterEvent& event) {
            story.printEvent(event);
            isEmpty = false;
        });
    if (isEmpty)
        output.line({{ToolText::tr("none")}});
    story.printEnd(first, readings.readings());
}
