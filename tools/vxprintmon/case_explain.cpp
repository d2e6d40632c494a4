// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_command.h"

#include "case_facts.h"
#include "case_findings.h"
#include "case_lines.h"
#include "command_line.h"
#include "event_page.h"
#include "json_text.h"
#include "output.h"
#include "shown_text.h"
#include "text_layout.h"
#include "tool_text.h"

#include <QtCore/QJsonArray>

using VxKit::CaseLine;

namespace {

/// So many line numbers are printed.
constexpr qsizetype mostShown = 8;

QString evidence(const Found& found, const QDateTime& beginning)
{
    QStringList numbers;
    for (const qint64 line : found.lines.first(std::min(found.lines.size(), mostShown)))
        numbers.append(QString::number(line));
    const QString clock = beginning.addMSecs(qRound64(found.from * 1000))
                              .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    const QString lines = numbers.join(QStringLiteral(", "));
    const qint64 more = found.lineCount - numbers.size();
    return more > 0 ? ToolText::tr("Evidence, from %1: lines %2 and more: %3")
                          .arg(clock, lines)
                          .arg(more)
                    : ToolText::tr("Evidence, from %1: lines %2").arg(clock, lines);
}

QString json(const Found& found)
{
    using json_text::value;
    QJsonArray lines;
    for (const qint64 line : found.lines)
        lines.append(line);
    return json_text::object({
        {QStringLiteral("name"), value(found.name)},
        {QStringLiteral("printer"), value(found.printer)},
        {QStringLiteral("from"), value(found.from)},
        {QStringLiteral("until"), value(found.until)},
        {QStringLiteral("lines"), value(lines)},
        {QStringLiteral("lineCount"), value(found.lineCount)},
        {QStringLiteral("text"), value(found.text)},
        {QStringLiteral("remedy"), value(found.remedy)},
    });
}

void print(const QList<Found>& all, const QDateTime& beginning, Output& output)
{
    const QString indent(2, u' ');
    const auto printLines = [&](const QString& text) {
        for (const QString& line : linesOf(shown(text), text_layout::lineWidth - indent.size()))
            output.line({{indent + line}});
    };
    for (const Found& found : all) {
        if (&found != &all.first())
            output.text(QStringLiteral("\n"));
        for (const QString& line : linesOf(shown(found.text), text_layout::lineWidth))
            output.line({{line, Colour::Heading}});
        printLines(ToolText::tr("What to do: %1").arg(found.remedy));
        printLines(evidence(found, beginning));
    }
    if (all.isEmpty())
        output.line({{ToolText::tr("Nothing in this case is recognised.")}});
}

} // namespace

void explainCase(const CommandLine& line, Output& output)
{
    const QString& fileName = line.arguments.first();
    FindingSearch search(knownFindings(line.findingsFile));
    CaseFacts facts;
    // The rows of the catalogue may follow what they are needed for.
    case_lines::forEach(fileName, [&facts](const CaseLine& each) {
        if (each.kind == QLatin1String("catalogue"))
            facts.of(each);
    });
    double end = 0;
    QDateTime beginning;
    case_lines::forEach(fileName, [&](const CaseLine& each) {
        if (each.kind == QLatin1String("case"))
            beginning = case_lines::beginningOf(each.object);
        end = std::max(end, each.time);
        const QList<QJsonObject> all = facts.of(each);
        for (const QJsonObject& fact : all)
            search.add(fact, each.number, each.time);
    });
    const QList<Found> found = search.result(end);
    if (!line.json) {
        print(found, beginning, output);
        return;
    }
    QStringList texts;
    for (const Found& each : found)
        texts.append(json(each));
    output.text(json_text::lines(texts));
}
