// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "command_line.h"
#include "commands.h"
#include "failure.h"
#include "json_text.h"
#include "output.h"
#include "printer_words.h"
#include "text_layout.h"
#include "tool_text.h"

#include <status_info.h>

using VxKit::StatusInfo;

namespace {

int statusCodeOf(const QString& text)
{
    bool isCode = false;
    const int code = text.toInt(&isCode);
    if (!isCode)
        throw wrongUsage(
            ToolText::tr(
                "title takes a status code between -2147483648 and 2147483647, found \"%1\"")
                .arg(text));
    return code;
}

QString json(const StatusInfo& info)
{
    using json_text::value;
    return json_text::object({
        {QStringLiteral("statusEnum"), value(info.code)},
        {QStringLiteral("title"), value(info.title)},
        {QStringLiteral("shortTitle"), value(info.shortTitle)},
        {QStringLiteral("key"), value(info.key)},
        {QStringLiteral("severity"), value(VxKit::severityKey(info.severity))},
        {QStringLiteral("explanation"), value(info.explanation)},
        {QStringLiteral("remedy"), value(info.remedy)},
    });
}

void print(Output& output, const StatusInfo& info)
{
    constexpr int codeWidth = 3;
    constexpr int indent = codeWidth + 2;
    output.line({{QStringLiteral("%1  ").arg(info.code, codeWidth)},
                 {info.shortTitle, Colour::Heading},
                 {QStringLiteral(" (%1)").arg(VxKit::severityName(info.severity)),
                  printer_words::colourOf(info.severity)}});
    output.text(text_layout::paragraph(info.explanation, indent) +
                text_layout::paragraph(ToolText::tr("What to do: %1").arg(info.remedy), indent));
}

void printAll(const CommandLine& line, Output& output)
{
    const QList<StatusInfo> all = VxKit::allStatusInfo();
    if (line.json) {
        QStringList texts;
        for (const StatusInfo& info : all)
            texts.append(json(info));
        output.text(json_text::lines(texts));
        return;
    }
    for (const StatusInfo& info : all) {
        if (&info != &all.first())
            output.text(QStringLiteral("\n"));
        print(output, info);
    }
}

} // namespace

void checkTitle(const CommandLine& line)
{
    if (line.arguments.isEmpty() != line.all)
        throw wrongUsage(line.all
                             ? ToolText::tr("title takes a status code or --all, not both")
                             : ToolText::tr("title takes a status code or --all, found nothing"));
    if (!line.all)
        statusCodeOf(line.arguments.first());
}

void runTitle(const CommandLine& line, Output& output, Backend& /*backend*/)
{
    if (line.all) {
        printAll(line, output);
        return;
    }
    const StatusInfo info = VxKit::statusInfo(statusCodeOf(line.arguments.first()));
    output.text((line.json ? json(info) : info.title) + QLatin1Char('\n'));
}
