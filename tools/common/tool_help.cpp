// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "tool_help.h"

#include "failure.h"
#include "text_layout.h"
#include "tool_text.h"

#include <QtCore/QJsonDocument>

#include <algorithm>
#include <array>

using text_layout::paragraph;
using text_layout::rows;

namespace {

constexpr int formatOfJson = 1;

/// In the order of `ToolHelp::Kind`.
constexpr std::array kindNames{"word", "number", "file", "folder", "printer", "choice"};

/// "--language TAG" as its name and its placeholder, which is empty if it takes no value.
std::pair<QString, QString> partsOf(const QString& spelling)
{
    return {spelling.section(u' ', 0, 0), spelling.section(u' ', 1)};
}

} // namespace

void ToolHelp::addValues(std::span<const Placeholder> placeholders)
{
    for (const Placeholder& placeholder : placeholders)
        values.append({QString::fromLatin1(placeholder.name), placeholder.kind,
                       QString::fromLatin1(placeholder.choices).split(u' ', Qt::SkipEmptyParts)});
}

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
    if (!spellings) {
        optionRows.append({QStringLiteral("--help-json"), ToolText::tr("print this help as JSON")});
        optionRows.append({QStringLiteral("--version"), ToolText::tr("print the version")});
    }
    return u'\n' + ToolText::tr("Options:") + u'\n' + rows(optionRows);
}

QString ToolHelp::overview() const
{
    QList<text_layout::Row> commandRows;
    for (const Command& command : commands)
        commandRows.append({(command.name + u' ' + command.arguments).trimmed(), command.summary});
    commandRows.append({QStringLiteral("help [COMMAND]"),
                        ToolText::tr("print this help, or more about a command")});
    const bool hasCommands = !commands.isEmpty();
    QString text =
        ToolText::tr("Usage: %1").arg(tool + QLatin1String(hasCommands ? " COMMAND" : "")) +
        QStringLiteral(" [OPTION]...\n\n") + paragraph(summary);
    if (hasCommands)
        text += u'\n' + ToolText::tr("Commands:") + u'\n' + rows(commandRows);
    text += optionList();
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

QJsonObject ToolHelp::valueOf(const QString& placeholder, const QString& spelling) const
{
    auto found = std::ranges::find(values, spelling, &Value::placeholder);
    if (found == values.end())
        found = std::ranges::find(values, placeholder, &Value::placeholder);
    const bool isKnown = found != values.end();
    return {{QStringLiteral("placeholder"), placeholder},
            {QStringLiteral("kind"),
             isKnown ? QJsonValue(QLatin1String(kindNames.at(static_cast<size_t>(found->kind))))
                     : QJsonValue()},
            {QStringLiteral("choices"),
             isKnown ? QJsonArray::fromStringList(found->choices) : QJsonArray()}};
}

/// The arguments in a usage such as "PRINTER SKU LABELS [RIBBON]...".
QJsonArray ToolHelp::argumentsOf(const Command& command) const
{
    QJsonArray arguments;
    for (QString word : command.arguments.split(u' ', Qt::SkipEmptyParts)) {
        const bool isRepeated = word.endsWith(QLatin1String("..."));
        if (isRepeated)
            word.chop(3);
        const bool isOptional = word.startsWith(u'[');
        if (isOptional)
            word = word.mid(1).chopped(1);
        QJsonObject argument = valueOf(word, command.name + u' ' + word);
        argument.insert(QStringLiteral("required"), !isOptional);
        argument.insert(QStringLiteral("repeated"), isRepeated);
        arguments.append(argument);
    }
    return arguments;
}

QJsonArray ToolHelp::commandList() const
{
    QJsonArray list;
    for (const Command& command : commands) {
        QJsonArray accepted;
        for (const QString& spelling : command.options)
            accepted.append(partsOf(spelling).first);
        list.append(QJsonObject{
            {QStringLiteral("name"), command.name},
            {QStringLiteral("summary"), command.summary},
            {QStringLiteral("usage"), command.arguments},
            {QStringLiteral("details"), QJsonArray::fromStringList(command.details)},
            {QStringLiteral("options"), accepted},
            {QStringLiteral("arguments"), argumentsOf(command)},
        });
    }
    return list;
}

QJsonArray ToolHelp::optionObjects() const
{
    const auto described = [](const QStringList& names, const QString& text,
                              const QJsonValue& value) {
        return QJsonObject{{QStringLiteral("names"), QJsonArray::fromStringList(names)},
                           {QStringLiteral("summary"), text},
                           {QStringLiteral("value"), value}};
    };
    QJsonArray list;
    for (const Option& option : options) {
        const auto [name, placeholder] = partsOf(option.spelling);
        list.append(described({name}, option.summary,
                              placeholder.isEmpty()
                                  ? QJsonValue()
                                  : QJsonValue(valueOf(placeholder, option.spelling))));
    }
    list.append(described({QStringLiteral("-h"), QStringLiteral("--help")},
                          ToolText::tr("print this help"), {}));
    list.append(
        described({QStringLiteral("--help-json")}, ToolText::tr("print this help as JSON"), {}));
    list.append(described({QStringLiteral("--version")}, ToolText::tr("print the version"), {}));
    return list;
}

QString ToolHelp::json() const
{
    ToolHelp complete = *this;
    if (!commands.isEmpty()) {
        QStringList names;
        for (const Command& command : commands)
            names.append(command.name);
        complete.commands.append({QStringLiteral("help"),
                                  QStringLiteral("[COMMAND]"),
                                  ToolText::tr("print this help, or more about a command"),
                                  {},
                                  {}});
        complete.values.append({QStringLiteral("help COMMAND"), Kind::Choice, names});
    }
    const QJsonObject object{
        {QStringLiteral("format"), formatOfJson},
        {QStringLiteral("tool"), tool},
        {QStringLiteral("version"), QStringLiteral(VX_VERSION)},
        {QStringLiteral("summary"), summary},
        {QStringLiteral("commands"), complete.commandList()},
        {QStringLiteral("options"), optionObjects()},
        {QStringLiteral("notes"), QJsonArray::fromStringList(notes)},
        {QStringLiteral("exitStatus"), ToolText::exitStatusHelp()},
    };
    return QString::fromUtf8(QJsonDocument(object).toJson());
}
