// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_command.h"

#include "case_verify.h"
#include "command_line.h"
#include "failure.h"
#include "tool_text.h"

#include <algorithm>
#include <array>

namespace {

struct Action
{
    const char* name;
    void (*run)(const CommandLine& line, Output& output);
    qsizetype files = 1;
    const char* expected = QT_TRANSLATE_NOOP("tools", "a file");
};
constexpr std::array actions{
    Action{"show", showCase},
    Action{"explain", explainCase},
    Action{"redact", redactCase, 2,
           QT_TRANSLATE_NOOP("tools", "a file to read and a file to write")},
    Action{"verify", verifyCase},
};

const Action& actionOf(const CommandLine& line)
{
    const QString& name = line.arguments.first();
    const auto* const found = std::ranges::find_if(
        actions, [&name](const Action& action) { return name == QLatin1String(action.name); });
    if (found == actions.end())
        throw wrongUsage(
            ToolText::tr("case: expected show, explain, redact or verify, found \"%1\"").arg(name));
    return *found;
}

} // namespace

void checkCase(const CommandLine& line)
{
    const Action& action = actionOf(line);
    const QString name = QStringLiteral("case ") + QLatin1String(action.name);
    const QStringList files = line.arguments.sliced(1);
    if (files.size() != action.files) {
        const QString found =
            files.isEmpty() ? ToolText::tr("nothing")
                            : QStringLiteral("\"%1\"").arg(files.join(QStringLiteral("\" \"")));
        throw wrongUsage(
            ToolText::tr("%1 takes %2, found %3").arg(name, ToolText::tr(action.expected), found));
    }
    if (!line.findingsFile.isEmpty() && action.run != explainCase)
        throw wrongUsage(ToolText::tr("--%1 is valid only with %2")
                             .arg(QStringLiteral("findings"), QStringLiteral("case explain")));
}

void runCase(const CommandLine& line, Output& output, Backend& /*backend*/)
{
    CommandLine rest = line;
    rest.arguments.removeFirst();
    actionOf(line).run(rest, output);
}
