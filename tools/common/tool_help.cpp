// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "tool_help.h"

#include "failure.h"
#include "text_layout.h"
#include "tool_text.h"

#include <algorithm>

using text_layout::paragraph;
using text_layout::rows;

std::optional<QString> ToolHelp::answer(const QStringList& words, bool wantsHelp,
                                        bool wantsVersion) const
{
    const bool isHelpCommand = words.value(0) == QLatin1String("help");
    if (!isHelpCommand && !wantsHelp) {
        if (wantsVersion)
            return tool + u' ' + QStringLiteral(VX_VERSION) + u'\n';
        return std::nullopt;
    }
    const QStringList subjects = isHelpCommand ? words.mid(1) : words;
    if (subjects.isEmpty() || subjects.first() == QLatin1String("help"))
        return overview();
    if (isHelpCommand && subjects.size() > 1)
        throw wrongUsage(ToolText::tr("help takes at most one command"));
    const Command* const command = find(subjects.first());
    if (!command)
        throw wrongUsage(ToolText::tr("unknown command \"%1\"; expected one of %2")
                             .arg(subjects.first(), commandNames()));
    return about(*command);
}

QString ToolHelp::commandNames() const
{
    QStringList names;
    for (const Command& command : commands)
        names.append(command.name);
    return names.join(QStringLiteral(", "));
}

const ToolHelp::Command* ToolHelp::find(const QString& name) const
{
    const auto found = std::ranges::find(commands, name, &Command::name);
    return found == commands.end() ? nullptr : &*found;
}

/// The options, all of them or those with one of the spellings.
QString ToolHelp::optionList(const std::optional<QStringList>& spellings) const
{
    QList<text_layout::Row> optionRows;
    for (const Option& option : options) {
        if (!spellings || spellings->contains(option.spelling))
            optionRows.append({option.spelling, option.summary});
    }
    optionRows.append({QStringLiteral("-h, --help"), ToolText::tr("print this help")});
    if (!spellings)
        optionRows.append({QStringLiteral("--version"), ToolText::tr("print the version")});
    return u'\n' + ToolText::tr("Options:") + u'\n' + rows(optionRows);
}

QString ToolHelp::overview() const
{
    QList<text_layout::Row> commandRows;
    for (const Command& command : commands)
        commandRows.append({(command.name + u' ' + command.arguments).trimmed(), command.summary});
    commandRows.append({QStringLiteral("help [COMMAND]"),
                        ToolText::tr("print this help, or more about a command")});
    QString text =
        ToolText::tr("Usage: %1").arg(tool + QStringLiteral(" COMMAND [OPTION]...\n\n")) +
        paragraph(summary) + u'\n' + ToolText::tr("Commands:") + u'\n' + rows(commandRows) +
        optionList();
    for (const QString& note : notes)
        text += u'\n' + paragraph(note);
    return text + u'\n' + paragraph(ToolText::exitStatusHelp());
}

QString ToolHelp::about(const Command& command) const
{
    const QString usage =
        QStringLiteral("%1 %2 [OPTION]... %3").arg(tool, command.name, command.arguments);
    QString text = ToolText::tr("Usage: %1").arg(usage.trimmed()) + QStringLiteral("\n\n") +
                   paragraph(command.summary);
    for (const QString& note : command.details)
        text += u'\n' + paragraph(note);
    return text + optionList(command.options);
}
