// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "command_line.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>

#include <array>
#include <cmath>

namespace {

struct NamedVerb
{
    const char* name;
    Verb verb;
};
constexpr std::array verbs{
    NamedVerb{"list", Verb::List},
    NamedVerb{"watch", Verb::Watch},
};

constexpr char usage[] =
    R"(Usage: vxprintmon VERB [options]

Lists and watches the label printers of the print spooler.

Verbs:
  list                   the printers the spooler knows
  watch                  a line for every change that a printer reports

Options:
  --json                 JSON instead of text for people: an array, or an object a line
  --for SECONDS          watch: end after so many seconds; without it, watch until interrupted
  --virtual FILE         run on the virtual printers that FILE describes
  --speed FACTOR         watch: let the virtual printers' story pass FACTOR times as fast
  --help                 this text
  --version              the version

Where there is no Windows, virtual printers are all there is: without FILE a fleet of six.
Colours are left out when the output is no terminal or NO_COLOR is set.
Exit status: 0 done, 1 failed, 2 wrong usage.
)";

QString verbList()
{
    QStringList names;
    for (const NamedVerb& verb : verbs)
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

} // namespace

std::variant<CommandLine, WrongUsage, Answer> parseCommandLine(const QStringList& arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption help(QStringLiteral("help"));
    const QCommandLineOption version(QStringLiteral("version"));
    const QCommandLineOption json(QStringLiteral("json"));
    const QCommandLineOption forSeconds(QStringLiteral("for"), {}, QStringLiteral("SECONDS"));
    const QCommandLineOption fleet(QStringLiteral("virtual"), {}, QStringLiteral("FILE"));
    const QCommandLineOption speed(QStringLiteral("speed"), {}, QStringLiteral("FACTOR"));
    parser.addOptions({help, version, json, forSeconds, fleet, speed});
    if (!parser.parse(arguments)) {
        const QString error = parser.errorText();
        return wrong(error.endsWith(QLatin1Char('.')) ? error.chopped(1) : error);
    }
    if (parser.isSet(help))
        return Answer{QString::fromUtf8(usage)};
    if (parser.isSet(version))
        return Answer{
            QStringLiteral("vxprintmon %1\n").arg(QCoreApplication::applicationVersion())};

    const QStringList words = parser.positionalArguments();
    if (words.isEmpty())
        return wrong(QStringLiteral("expected a verb: ") + verbList());
    const auto verb = std::find_if(verbs.begin(), verbs.end(), [&](const NamedVerb& known) {
        return words.first() == QLatin1String(known.name);
    });
    if (verb == verbs.end())
        return wrong(
            QStringLiteral("\"%1\" is no verb; expected one of %2").arg(words.first(), verbList()));
    if (words.size() > 1)
        return wrong(
            QStringLiteral("%1 takes no argument, found \"%2\"").arg(words.at(0), words.at(1)));

    CommandLine line;
    line.verb = verb->verb;
    line.json = parser.isSet(json);
    line.fleetFile = parser.value(fleet);
    if (parser.isSet(fleet) && line.fleetFile.isEmpty())
        return wrong(QStringLiteral("--virtual: expected a file's name"));
    for (const QCommandLineOption* option : {&forSeconds, &speed}) {
        if (!parser.isSet(*option))
            continue;
        const QString name = option->names().constFirst();
        if (line.verb != Verb::Watch)
            return wrong(QStringLiteral("--%1 goes with watch only").arg(name));
        const std::optional<double> number = positiveNumber(parser.value(*option));
        if (!number)
            return wrong(
                QStringLiteral("--%1: expected a number above 0, at most 1000000, found \"%2\"")
                    .arg(name, parser.value(*option)));
        if (option == &speed)
            line.speed = *number;
        else
            line.seconds = number;
    }
    return line;
}
