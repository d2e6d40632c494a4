// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "command_line.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

struct KnownVerb
{
    const char* name;
    Verb verb;
    const char* words; ///< what follows it, for people
    qsizetype fewest;
    qsizetype most;
};
constexpr std::array verbs{
    KnownVerb{"list", Verb::List, "no argument", 0, 0},
    KnownVerb{"watch", Verb::Watch, "no argument", 0, 0},
    KnownVerb{"status", Verb::Status, "at most a printer", 0, 1},
    KnownVerb{"send", Verb::Send, "a printer and a command", 2, 2},
    KnownVerb{"title", Verb::Title, "a status code", 1, 1},
};

constexpr char usage[] =
    R"(Usage: vxprintmon VERB [options]

Lists and watches the label printers of the print spooler.

Verbs:
  list                   the printers the spooler knows
  watch                  a line for everything that happens to the label printers
  status [PRINTER]       what is known of all label printers, or of one
  send PRINTER COMMAND   sends a command in the printer's own language
  title CODE             the title of a status code

Options:
  --json                 JSON instead of text for people: an array, or an object a line
  --for SECONDS          watch: end after so many seconds; without it, watch until interrupted
  --log FILE             write what the library logs to the end of FILE
  --virtual FILE         run on the virtual printers that FILE describes
  --speed FACTOR         watch: let the virtual printers' story pass FACTOR times as fast
  --help                 this text
  --version              the version

status waits until the printers it shows have reported and 0.1 seconds have passed without more, but
no longer than 2 seconds; what has come by then is taken in for half a second more.
Names of colours and materials come from the file roll.db beside this program.
Where there is no Windows, virtual printers are all there is: without FILE a fleet of six.
Colours are left out when the output is no terminal or NO_COLOR is set.
Characters that could steer the terminal are shown as \u001b and the like.
Exit status: 0 done, 1 failed, 2 wrong usage. Output that cannot be written is a failure, a pipe that
its reader has closed is not.
)";

QString verbList()
{
    QStringList names;
    for (const KnownVerb& verb : verbs)
        names.append(QString::fromLatin1(verb.name));
    return names.join(QStringLiteral(", "));
}

std::optional<double> positiveNumber(const QString& text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    // Also what a day of milliseconds can still be counted in.
    constexpr double largest = 1e6;
    if (!isNumber || !std::isfinite(number) || number <= 0 || number > largest)
        return std::nullopt;
    return number;
}

WrongUsage wrong(const QString& text)
{
    return {text + QStringLiteral(" (vxprintmon --help tells more)")};
}

/// The arguments with a negative status code, which would pass for an option, at the end and behind
/// the mark that there are no more options.
QStringList withCodeLast(QStringList arguments)
{
    static const QRegularExpression negativeNumber(QStringLiteral("^-\\d+$"));
    const qsizetype code = arguments.indexOf(QStringLiteral("title")) + 1;
    if (code > 0 && negativeNumber.match(arguments.value(code)).hasMatch())
        arguments += {QStringLiteral("--"), arguments.takeAt(code)};
    return arguments;
}

} // namespace

std::variant<CommandLine, WrongUsage, Answer> parseCommandLine(const QStringList& arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption help(QStringLiteral("help"));
    const QCommandLineOption version(QStringLiteral("version"));
    const QCommandLineOption json(QStringLiteral("json"));
    const QCommandLineOption forSeconds(QStringLiteral("for"), {}, QStringLiteral("SECONDS"));
    const QCommandLineOption log(QStringLiteral("log"), {}, QStringLiteral("FILE"));
    const QCommandLineOption fleet(QStringLiteral("virtual"), {}, QStringLiteral("FILE"));
    const QCommandLineOption speed(QStringLiteral("speed"), {}, QStringLiteral("FACTOR"));
    parser.addOptions({help, version, json, forSeconds, log, fleet, speed});
    if (!parser.parse(withCodeLast(arguments))) {
        const QString error = parser.errorText();
        return wrong(error.endsWith(QLatin1Char('.')) ? error.chopped(1) : error);
    }
    if (parser.isSet(help))
        return Answer{QString::fromUtf8(usage)};
    if (parser.isSet(version))
        return Answer{
            QStringLiteral("vxprintmon %1\n").arg(QCoreApplication::applicationVersion())};

    QStringList words = parser.positionalArguments();
    if (words.isEmpty())
        return wrong(QStringLiteral("expected a verb: ") + verbList());
    const QString name = words.takeFirst();
    const auto verb = std::ranges::find_if(
        verbs, [&](const KnownVerb& known) { return name == QLatin1String(known.name); });
    if (verb == verbs.end())
        return wrong(QStringLiteral("\"%1\" is no verb; expected one of %2").arg(name, verbList()));
    if (words.size() < verb->fewest || words.size() > verb->most) {
        const QString found =
            words.isEmpty() ? QStringLiteral("nothing")
                            : QStringLiteral("\"%1\"").arg(words.join(QStringLiteral("\" \"")));
        return wrong(QStringLiteral("%1 takes %2, found %3")
                         .arg(name, QString::fromLatin1(verb->words), found));
    }

    CommandLine line;
    line.verb = verb->verb;
    line.words = words;
    if (line.verb == Verb::Title) {
        bool isCode = false;
        line.code = words.first().toInt(&isCode);
        if (!isCode)
            return wrong(
                QStringLiteral(
                    "title takes a status code from -2147483648 to 2147483647, found \"%1\"")
                    .arg(words.first()));
    }
    line.json = parser.isSet(json);
    line.logFile = parser.value(log);
    line.fleetFile = parser.value(fleet);
    for (const QCommandLineOption* option : {&log, &fleet}) {
        if (parser.isSet(*option) && parser.value(*option).isEmpty())
            return wrong(
                QStringLiteral("--%1: expected a file's name").arg(option->names().constFirst()));
    }
    for (const QCommandLineOption* option : {&forSeconds, &speed}) {
        if (!parser.isSet(*option))
            continue;
        const QString optionName = option->names().constFirst();
        if (line.verb != Verb::Watch)
            return wrong(QStringLiteral("--%1 goes with watch only").arg(optionName));
        const std::optional<double> number = positiveNumber(parser.value(*option));
        if (!number)
            return wrong(
                QStringLiteral("--%1: expected a number above 0, at most 1000000, found \"%2\"")
                    .arg(optionName, parser.value(*option)));
        if (option == &speed)
            line.speed = *number;
        else
            line.seconds = number;
    }
    return line;
}
