// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "command_line.h"

#include "commands.h"
#include "failure.h"
#include "text_layout.h"
#include "tool_text.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

struct Option
{
    const char* name;
    const char* value; ///< the placeholder in the help; empty if the option takes no value
    const char* summary;
    CommandOptions required{}; ///< what a command must accept for this option to be valid with it
};

constexpr Option jsonOption{
    "json", "", QT_TRANSLATE_NOOP("tools", "print JSON: an array, or one object per line")};
constexpr Option forOption{
    "for", "SECONDS",
    QT_TRANSLATE_NOOP("tools", "watch: stop after SECONDS; by default, when interrupted"),
    CommandOption::For};
constexpr Option logOption{"log", "FILE",
                           QT_TRANSLATE_NOOP("tools", "append the library's log to FILE")};
constexpr Option virtualOption{
    "virtual", "FILE", QT_TRANSLATE_NOOP("tools", "use the virtual printers that FILE describes")};
constexpr Option speedOption{
    "speed", "FACTOR",
    QT_TRANSLATE_NOOP("tools", "watch: speed up the virtual printers' story by FACTOR"),
    CommandOption::Speed};
constexpr Option allOption{
    "all", "", QT_TRANSLATE_NOOP("tools", "title: all codes, with what they mean and what to do"),
    CommandOption::All};
constexpr Option waitOption{
    "wait", "",
    QT_TRANSLATE_NOOP("tools", "send: wait until the job was printed or has left the queue"),
    CommandOption::Wait};
constexpr Option forceOption{
    "force", "",
    QT_TRANSLATE_NOOP("tools", "send: also to a printer of another maker, also nothing"),
    CommandOption::Force};
constexpr Option helpOption{"help", "", QT_TRANSLATE_NOOP("tools", "print this help")};
constexpr Option versionOption{"version", "", QT_TRANSLATE_NOOP("tools", "print the version")};

constexpr std::array options{jsonOption, forOption,  logOption,   virtualOption, speedOption,
                             allOption,  waitOption, forceOption, helpOption,    versionOption};

QString help()
{
    using text_layout::paragraph;
    QList<text_layout::Row> commandRows;
    for (const Command& command : commands())
        commandRows.append({QStringLiteral("%1 %2").arg(QString::fromLatin1(command.name),
                                                        QString::fromLatin1(command.arguments)),
                            ToolText::tr(command.summary)});
    QList<text_layout::Row> optionRows;
    for (const Option& option : options)
        optionRows.append({QStringLiteral("--%1 %2").arg(QString::fromLatin1(option.name),
                                                         QString::fromLatin1(option.value)),
                           ToolText::tr(option.summary)});
    const QChar newLine = u'\n';
    return ToolText::tr("Usage: %1").arg(QStringLiteral("vxprintmon COMMAND [OPTION]...")) +
           newLine + newLine +
           paragraph(ToolText::tr("Lists and watches the label printers of the print spooler.")) +
           newLine + ToolText::tr("Commands:") + newLine + text_layout::rows(commandRows) +
           newLine + ToolText::tr("Options:") + newLine + text_layout::rows(optionRows) + newLine +
           paragraph(ToolText::tr(
               "status waits until every printer that it shows has reported and 0.1 seconds have "
               "passed without another report, but no longer than 2 seconds. It then spends up to "
               "half a second more on reports that have arrived by that time.")) +
           newLine +
           paragraph(ToolText::tr(
               "The names of colours and materials come from the file roll.db beside this program. "
               "Only the Windows build sees the printers of the system; any other build has "
               "virtual "
               "printers only, by default a fleet of six.")) +
           newLine +
           paragraph(ToolText::tr(
               "Colours are omitted if the output is not a terminal or NO_COLOR is set. Characters "
               "that could control the terminal are shown as \\u001b and the like.")) +
           newLine + paragraph(ToolText::exitStatusHelp());
}

/// The names of the commands that accept all of `required`.
QString commandNames(CommandOptions required = {})
{
    QStringList names;
    for (const Command& command : commands()) {
        if ((command.options & required) == required)
            names.append(QString::fromLatin1(command.name));
    }
    return names.join(QStringLiteral(", "));
}

/// The arguments with a negative status code, which would be taken for an option, moved to the end
/// and behind "--".
QStringList withCodeLast(QStringList arguments)
{
    static const QRegularExpression negativeNumber(QStringLiteral("^-\\d+$"));
    const qsizetype code = arguments.indexOf(QStringLiteral("title")) + 1;
    if (code > 0 && negativeNumber.match(arguments.value(code)).hasMatch())
        arguments += {QStringLiteral("--"), arguments.takeAt(code)};
    return arguments;
}

/// The options as they were given, with their values checked.
class GivenOptions
{
public:
    explicit GivenOptions(const QStringList& arguments)
    {
        for (const Option& option : options)
            m_parser.addOption(QCommandLineOption(QString::fromLatin1(option.name), {},
                                                  QString::fromLatin1(option.value)));
        if (!m_parser.parse(withCodeLast(arguments))) {
            const QString error = m_parser.errorText();
            const bool isSentence =
                error.endsWith(QLatin1Char('.')) || error.endsWith(QChar(0x3002));
            throw wrongUsage(isSentence ? error.chopped(1) : error);
        }
    }

    QStringList words() const { return m_parser.positionalArguments(); }
    bool has(const Option& option) const
    {
        return m_parser.isSet(QString::fromLatin1(option.name));
    }
    QString fileName(const Option& option) const
    {
        const QString name = m_parser.value(QString::fromLatin1(option.name));
        if (has(option) && name.isEmpty())
            throw wrongUsage(
                ToolText::tr("--%1: expected a file name").arg(QString::fromLatin1(option.name)));
        return name;
    }
    std::optional<double> positiveNumber(const Option& option) const
    {
        if (!has(option))
            return std::nullopt;
        // So many seconds can still be counted in milliseconds by an int.
        constexpr double largest = 1e6;
        const QString text = m_parser.value(QString::fromLatin1(option.name));
        bool isNumber = false;
        const double number = text.toDouble(&isNumber);
        if (!isNumber || !std::isfinite(number) || number <= 0 || number > largest)
            throw wrongUsage(
                ToolText::tr("--%1: expected a number above 0 and up to 1000000, found \"%2\"")
                    .arg(QString::fromLatin1(option.name), text));
        return number;
    }

private:
    QCommandLineParser m_parser;
};

const Command& commandNamed(const QString& name)
{
    const std::span<const Command> all = commands();
    const auto command = std::ranges::find_if(
        all, [&](const Command& each) { return name == QLatin1String(each.name); });
    if (command == all.end())
        throw wrongUsage(
            ToolText::tr("unknown command \"%1\"; expected one of %2").arg(name, commandNames()));
    return *command;
}

void check(const Command& command, const QStringList& arguments)
{
    if (arguments.size() < command.fewestArguments || arguments.size() > command.mostArguments) {
        const QString found =
            arguments.isEmpty()
                ? ToolText::tr("nothing")
                : QStringLiteral("\"%1\"").arg(arguments.join(QStringLiteral("\" \"")));
        throw wrongUsage(
            ToolText::tr("%1 takes %2, found %3")
                .arg(QString::fromLatin1(command.name), ToolText::tr(command.expected), found));
    }
}

} // namespace

CommandLine parseCommandLine(const QStringList& arguments)
{
    const GivenOptions given(arguments);
    CommandLine line;
    if (given.has(helpOption)) {
        line.information = help();
        return line;
    }
    if (given.has(versionOption)) {
        line.information =
            QStringLiteral("vxprintmon %1\n").arg(QCoreApplication::applicationVersion());
        return line;
    }

    line.arguments = given.words();
    if (line.arguments.isEmpty())
        throw wrongUsage(ToolText::tr("expected a command: %1").arg(commandNames()));
    const Command& command = commandNamed(line.arguments.takeFirst());
    check(command, line.arguments);
    line.command = &command;

    line.json = given.has(jsonOption);
    line.logFile = given.fileName(logOption);
    line.fleetFile = given.fileName(virtualOption);
    for (const Option& option : options) {
        if (given.has(option) && (command.options & option.required) != option.required)
            throw wrongUsage(
                ToolText::tr("--%1 is valid only with %2")
                    .arg(QString::fromLatin1(option.name), commandNames(option.required)));
    }
    line.wait = given.has(waitOption);
    line.force = given.has(forceOption);
    line.seconds = given.positiveNumber(forOption);
    line.speed = given.positiveNumber(speedOption).value_or(line.speed);
    line.all = given.has(allOption);
    if (command.check)
        command.check(line);
    return line;
}
