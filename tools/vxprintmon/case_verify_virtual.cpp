// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_verify.h"

#include "case_replay.h"
#include "command_line.h"
#include "failure.h"
#include "json_text.h"
#include "output.h"
#include "tool_text.h"

#include <QtCore/QStringList>

#include <optional>

namespace {

using case_replay::Comparison;
using virtualwindows::Case;
using virtualwindows::CaseOutput;

Case readCase(const QString& fileName)
{
    try {
        return virtualwindows::readCase(fileName);
    } catch (const virtualwindows::FleetError& error) {
        throw Failure(error.message());
    }
}

QString json(const std::optional<CaseOutput>& output)
{
    if (!output)
        return QStringLiteral("null");
    return json_text::object(
        {{QStringLiteral("line"), json_text::value(output->line)},
         {QStringLiteral("t"), json_text::value(static_cast<double>(output->at.count()) / 1000)},
         {QStringLiteral("text"), json_text::value(case_replay::described(*output))}});
}

QString json(const Comparison& comparison, bool isCut)
{
    const bool isSame = !comparison.first;
    QList<json_text::Member> members{
        {QStringLiteral("same"), json_text::value(isSame)},
        {QStringLiteral("complete"), json_text::value(!isCut)},
        {QStringLiteral("steps"), json_text::value(comparison.stepCount)},
        {QStringLiteral("signals"), json_text::value(comparison.signalCount)},
        {QStringLiteral("logLines"), json_text::value(comparison.logLineCount)}};
    if (comparison.first) {
        const QString& printer = comparison.first->printer;
        members.append({{QStringLiteral("printer"),
                         printer.isNull() ? QStringLiteral("null") : json_text::value(printer)},
                        {QStringLiteral("place"), json_text::value(comparison.first->place)},
                        {QStringLiteral("recorded"), json(comparison.first->recorded)},
                        {QStringLiteral("replayed"), json(comparison.first->replayed)}});
    }
    return json_text::object(members) + u'\n';
}

void print(const Comparison& comparison, bool isCut, Output& output)
{
    if (isCut)
        output.line({{ToolText::tr("The recording was cut short; it is compared up to there.")}});
    if (comparison.signalCount == 0)
        output.line({{ToolText::tr("No signals were recorded; only the log is compared.")}});
    if (!comparison.first) {
        output.line({{ToolText::tr("The same: %1 signals and %2 log lines in %3 steps.")
                          .arg(comparison.signalCount)
                          .arg(comparison.logLineCount)
                          .arg(comparison.stepCount),
                      Colour::Good}});
        return;
    }
    const QStringList lines = case_replay::described(comparison.first).split(u'\n');
    for (const QString& text : lines)
        output.line({{text}});
}

} // namespace

void verifyCase(const CommandLine& line, Output& output)
{
    const QString& fileName = line.arguments.last();
    const Case recorded = readCase(fileName);
    const Comparison comparison =
        case_replay::compare(recorded, case_replay::replay(recorded, fileName));
    if (line.json)
        output.text(json(comparison, recorded.isCut));
    else
        print(comparison, recorded.isCut, output);
    if (comparison.first)
        throw Failure(ToolText::tr("the library does something else than was recorded"));
}
