// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "command_line.h"

#include "commands.h"
#include "failure.h"
#include "text_layout.h"
#include "tool_help.h"
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
                           QT_TRANSLATE_NOOP("tools", "watch: append what happens to FILE as well"),
                           CommandOption::Events};
constexpr Option historyOption{
    "history", "",
    QT_TRANSLATE_NOOP("tools", "watch: also record what is used, in the user's history or --file"),
    CommandOption::Events};
constexpr Option fileOption{
    "file", "FILE",
    QT_TRANSLATE_NOOP("tools",
                      "history, forecast, watch --history: FILE in place of the user's history"),
    CommandOption::HistoryFile};
constexpr Option csvOption{
    "csv", "", QT_TRANSLATE_NOOP("tools", "history: print a table for spreadsheets (CSV)"),
    CommandOption::History};
constexpr Option warnBelowOption{
    "warn-below", "LABELS",
    QT_TRANSLATE_NOOP("tools", "watch, forecast: warn when fewer LABELS are left on a roll; watch: "
                               "100 by default, 0 for never"),
    CommandOption::Warnings};
constexpr Option jobOption{
    "job", "LABELS",
    QT_TRANSLATE_NOOP("tools",
                      "watch, forecast: warn of rolls that have fewer LABELS than a job needs"),
    CommandOption::Warnings};
constexpr Option shiftEndOption{
    "shift-end", "TIMES",
    QT_TRANSLATE_NOOP("tools", "watch, forecast: warn of what will probably end before the shift "
                               "does; TIMES such as 14:00,22:00"),
    CommandOption::Warnings};
constexpr Option relativeOption{
    "relative", "",
    QT_TRANSLATE_NOOP("tools", "watch: print seconds since the start, not the time of day"),
    CommandOption::Events};
constexpr Option verboseOption{"verbose", "",
                               QT_TRANSLATE_NOOP("tools", "watch: print every change of a level"),
                               CommandOption::Events};
constexpr Option signalsOption{
    "signals", "",
    QT_TRANSLATE_NOOP("tools", "watch --json: print the signals that a host receives"),
    CommandOption::Events};
constexpr Option catalogueOption{
    "catalogue", "FILE",
    QT_TRANSLATE_NOOP("tools", "take the names of supplies and ribbons from FILE")};
constexpr Option libraryLogOption{"library-log", "FILE",
                                  QT_TRANSLATE_NOOP("tools", "append the library's log to FILE")};
constexpr Option virtualOption{
    "virtual", "FILE",
    QT_TRANSLATE_NOOP("tools",
                      "use the virtual printers that FILE describes, or those of \"built-in\"")};
constexpr Option speedOption{
    "speed", "FACTOR",
    QT_TRANSLATE_NOOP("tools", "watch: speed up the virtual printers' story by FACTOR"),
    CommandOption::Speed};
constexpr Option brokerOption{
    "broker", "URL",
    QT_TRANSLATE_NOOP("tools", "top: show what agents publish on the broker at URL, such as "
                               "mqtts://broker.example/SITE; without SITE, all sites"),
    CommandOption::Site};
constexpr Option brokerConfigOption{
    "broker-config", "FILE",
    QT_TRANSLATE_NOOP("tools", "top: take the broker, the user and the certificates from FILE, "
                               "which is like an agent's configuration"),
    CommandOption::Site};
constexpr Option allOption{
    "all", "", QT_TRANSLATE_NOOP("tools", "title: all codes, with what they mean and what to do"),
    CommandOption::All};
constexpr Option printerOption{
    "printer", "NAME",
    QT_TRANSLATE_NOOP("tools", "log: only events of the printer NAME and of the spooler"),
    CommandOption::Filter};
constexpr Option sinceOption{
    "since", "TIME",
    QT_TRANSLATE_NOOP("tools",
                      "log: only events since TIME: 2026-11-22, 2026-11-22T10:30, 10:30 (today), "
                      "or 30m, 2h or 7d ago"),
    CommandOption::Filter};
constexpr Option severityOption{
    "severity", "LEVEL",
    QT_TRANSLATE_NOOP("tools",
                      "log: only events that are ok, information, warning or error, or worse"),
    CommandOption::Filter};
constexpr Option findingsOption{
    "findings", "FILE",
    QT_TRANSLATE_NOOP("tools", "case explain: recognise what the table FILE describes as well"),
    CommandOption::Findings};
constexpr Option limitOption{
    "limit", "SIZE",
    QT_TRANSLATE_NOOP("tools", "record: keep the file below SIZE, such as 64M; then it keeps the "
                               "beginning and the latest"),
    CommandOption::Record};
constexpr Option plainOption{
    "plain", "",
    QT_TRANSLATE_NOOP("tools", "record: keep names, serial numbers and addresses as they are"),
    CommandOption::Record};
constexpr Option waitOption{
    "wait", "",
    QT_TRANSLATE_NOOP("tools", "send: wait until the job was printed or has left the queue"),
    CommandOption::Wait};
constexpr Option forceOption{
    "force", "",
    QT_TRANSLATE_NOOP("tools", "send: also to a printer of another maker, also nothing"),
    CommandOption::Force};
constexpr Option helpOption{"help", "",
                            QT_TRANSLATE_NOOP("tools", "print this help, or that of a command")};
constexpr Option helpJsonOption{"help-json", "",
                                QT_TRANSLATE_NOOP("tools", "print this help as JSON")};
constexpr Option versionOption{"version", "", QT_TRANSLATE_NOOP("tools", "print the version")};

constexpr std::array options{
    jsonOption,         forOption,        relativeOption, verboseOption,   signalsOption,
    logOption,          historyOption,    fileOption,     warnBelowOption, jobOption,
    shiftEndOption,     csvOption,        virtualOption,  speedOption,     brokerOption,
    brokerConfigOption, allOption,        waitOption,     forceOption,     printerOption,
    sinceOption,        severityOption,   findingsOption, limitOption,     plainOption,
    catalogueOption,    libraryLogOption, helpOption,     helpJsonOption,  versionOption};

using Kind = ToolHelp::Kind;
using Placeholder = ToolHelp::Placeholder;

/// What the placeholders of options and of commands' arguments stand for.
constexpr std::array placeholders{
    Placeholder{"ACTION", Kind::Choice, "show explain redact verify"},
    Placeholder{"CODE", Kind::Number},
    Placeholder{"COMMAND", Kind::Word},
    Placeholder{"FACTOR", Kind::Number},
    Placeholder{"FILE", Kind::File},
    Placeholder{"--virtual FILE", Kind::File, "built-in"},
    Placeholder{"LABELS", Kind::Number},
    Placeholder{"LEVEL", Kind::Choice, "ok information warning error"},
    Placeholder{"NAME", Kind::Printer},
    Placeholder{"PRINTER", Kind::Printer},
    Placeholder{"RIBBON", Kind::Word},
    Placeholder{"SECONDS", Kind::Number},
    Placeholder{"SIZE", Kind::Word},
    Placeholder{"SKU", Kind::Word},
    Placeholder{"TIME", Kind::Word},
    Placeholder{"TIMES", Kind::Word},
    Placeholder{"URL", Kind::Word},
};

QString usage(const char* words)
{
    return ToolText::tr("Usage: %1").arg(QStringLiteral("vxprintmon ") + QLatin1String(words)) +
           QLatin1Char('\n');
}

bool isValidWith(const Option& option, const Command& command)
{
    return (command.options & option.required) == option.required;
}

/// "--language TAG"
QString spellingOf(const Option& option)
{
    return QStringLiteral("--%1 %2")
        .arg(QLatin1String(option.name), QLatin1String(option.value))
        .trimmed();
}

/// The options that are valid with a command, or all of them.
QString optionRows(const Command* command)
{
    QList<text_layout::Row> rows;
    for (const Option& option : options) {
        if (command && !isValidWith(option, *command))
            continue;
        const QString name = spellingOf(option);
        const bool isHelp = option.name == helpOption.name;
        rows.append({isHelp ? QStringLiteral("-h, ") + name : name, ToolText::tr(option.summary)});
    }
    return ToolText::tr("Options:") + QLatin1Char('\n') + text_layout::rows(rows);
}

QString nameWithArguments(const Command& command)
{
    return QStringLiteral("%1 %2").arg(QLatin1String(command.name),
                                       QLatin1String(command.arguments));
}

/// Paragraphs below the list of options.
QStringList notes()
{
    return {
        ToolText::tr(
            "The names of colours and materials come from the file roll.db beside this program, "
            "or from the catalogue that was installed with it, unless --catalogue or the "
            "environment variable VX_ROLL_DB names another file. Only the Windows build sees "
            "the printers of the system; any other build has virtual printers only: those of "
            "--virtual, those that VX_VIRTUAL_FLEET names, or a built-in fleet of six."),
        ToolText::tr(
            "Tables fit the terminal, the width that COLUMNS names, or 80 columns; what is cut "
            "short ends with an ellipsis. Colours are omitted if the output is not a terminal "
            "or "
            "NO_COLOR is set. Characters that could control the terminal are shown as \\u001b "
            "and "
            "the like."),
    };
}

QString summary()
{
    return ToolText::tr("Lists and watches the label printers of the print spooler.");
}

/// The same for programs.
QString helpAsJson()
{
    ToolHelp result;
    result.tool = QStringLiteral("vxprintmon");
    result.summary = summary();
    result.notes = notes();
    for (const Option& option : options) {
        // Those about the help itself are added by ToolHelp.
        if (option.name != helpOption.name && option.name != helpJsonOption.name &&
            option.name != versionOption.name)
            result.options.append({spellingOf(option), ToolText::tr(option.summary)});
    }
    for (const Command& command : commands()) {
        QStringList accepted;
        for (const Option& option : options) {
            if (isValidWith(option, command))
                accepted.append(spellingOf(option));
        }
        result.commands.append(
            {QString::fromLatin1(command.name), QString::fromLatin1(command.arguments),
             ToolText::tr(command.summary),
             command.details ? QStringList{ToolText::tr(command.details)} : QStringList(),
             accepted});
    }
    result.addValues(placeholders);
    return result.json();
}

QString help()
{
    using text_layout::paragraph;
    QList<text_layout::Row> commandRows;
    for (const Command& command : commands())
        commandRows.append({nameWithArguments(command), ToolText::tr(command.summary)});
    commandRows.append(
        {QStringLiteral("help [COMMAND]"), ToolText::tr("print this help, or that of a command")});
    const QChar newLine = u'\n';
    QString text = usage("COMMAND [OPTION]...") + newLine + paragraph(summary()) + newLine +
                   ToolText::tr("Commands:") + newLine + text_layout::rows(commandRows) + newLine +
                   optionRows(nullptr);
    for (const QString& note : notes())
        text += newLine + paragraph(note);
    return text + newLine + paragraph(ToolText::exitStatusHelp());
}

QString help(const Command& command)
{
    using text_layout::paragraph;
    const QChar newLine = u'\n';
    QString text = usage((nameWithArguments(command).trimmed() + QStringLiteral(" [OPTION]..."))
                             .toLatin1()
                             .constData()) +
                   newLine + paragraph(ToolText::tr(command.summary));
    if (command.details)
        text += newLine + paragraph(ToolText::tr(command.details));
    return text + newLine + optionRows(&command);
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
        for (const Option& option : options) {
            QStringList names{QString::fromLatin1(option.name)};
            if (option.name == helpOption.name)
                names.append(QStringLiteral("h"));
            m_parser.addOption(QCommandLineOption(names, {}, QString::fromLatin1(option.value)));
        }
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
    QString text(const Option& option) const
    {
        return m_parser.value(QString::fromLatin1(option.name));
    }
    QString value(const Option& option) const
    {
        if (has(option) && text(option).isEmpty())
            throw wrongUsage(
                ToolText::tr("--%1: expected a value").arg(QString::fromLatin1(option.name)));
        return text(option);
    }
    QString fileName(const Option& option) const
    {
        const QString name = text(option);
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
    std::optional<int> wholeNumber(const Option& option, int least) const
    {
        if (!has(option))
            return std::nullopt;
        bool isNumber = false;
        const int number = text(option).toInt(&isNumber);
        if (!isNumber || number < least)
            throw wrongUsage(
                ToolText::tr("--%1: expected a whole number from %2 to 2147483647, found \"%3\"")
                    .arg(QString::fromLatin1(option.name), QString::number(least), text(option)));
        return number;
    }
    QList<QTime> timesOfDay(const Option& option) const
    {
        QList<QTime> times;
        const QStringList texts =
            has(option) ? text(option).split(QLatin1Char(',')) : QStringList();
        for (const QString& text : texts) {
            times.append(QTime::fromString(text.trimmed(), QStringLiteral("H:mm")));
            if (!times.last().isValid())
                throw wrongUsage(
                    ToolText::tr("--%1: expected times such as 14:00,22:00, found \"%2\"")
                        .arg(QString::fromLatin1(option.name), text));
        }
        return times;
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
    if (given.has(versionOption)) {
        line.information =
            QStringLiteral("vxprintmon %1\n").arg(QCoreApplication::applicationVersion());
        return line;
    }
    if (given.has(helpJsonOption)) {
        line.information = helpAsJson();
        return line;
    }
    line.arguments = given.words();
    const bool isHelp = line.arguments.value(0) == QLatin1String("help");
    if (isHelp)
        line.arguments.removeFirst();
    if (isHelp && line.arguments.size() > 1)
        throw wrongUsage(ToolText::tr("help takes at most one command, found \"%1\"")
                             .arg(line.arguments.join(QStringLiteral("\" \""))));
    if (isHelp || given.has(helpOption)) {
        line.information =
            line.arguments.isEmpty() ? help() : help(commandNamed(line.arguments.first()));
        return line;
    }

    if (line.arguments.isEmpty())
        throw wrongUsage(ToolText::tr("expected a command: %1").arg(commandNames()));
    const Command& command = commandNamed(line.arguments.takeFirst());
    check(command, line.arguments);
    line.command = &command;

    line.json = given.has(jsonOption);
    line.libraryLogFile = given.fileName(libraryLogOption);
    line.eventLogFile = given.fileName(logOption);
    line.fleetFile = given.fileName(virtualOption);
    line.catalogueFile = given.fileName(catalogueOption);
    line.broker = given.value(brokerOption);
    line.brokerConfigFile = given.fileName(brokerConfigOption);
    for (const Option& option : options) {
        if (given.has(option) && !isValidWith(option, command))
            throw wrongUsage(
                ToolText::tr("--%1 is valid only with %2")
                    .arg(QString::fromLatin1(option.name), commandNames(option.required)));
    }
    line.wait = given.has(waitOption);
    line.force = given.has(forceOption);
    line.seconds = given.positiveNumber(forOption);
    line.speed = given.positiveNumber(speedOption).value_or(line.speed);
    line.all = given.has(allOption);
    line.history = given.has(historyOption);
    line.csv = given.has(csvOption);
    line.historyFile = given.fileName(fileOption);
    line.warnBelow = given.wholeNumber(warnBelowOption, 0);
    line.job = given.wholeNumber(jobOption, 1);
    line.shiftEnds = given.timesOfDay(shiftEndOption);
    line.relative = given.has(relativeOption);
    line.verbose = given.has(verboseOption);
    line.watchSignals = given.has(signalsOption);
    line.printer = given.text(printerOption);
    line.since = given.text(sinceOption);
    line.severity = given.text(severityOption);
    line.limit = given.text(limitOption);
    line.plain = given.has(plainOption);
    line.findingsFile = given.fileName(findingsOption);
    if (command.check)
        command.check(line);
    return line;
}
