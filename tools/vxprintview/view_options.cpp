// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "view_options.h"

#include "failure.h"
#include "tool_help.h"
#include "tool_text.h"

#include <QtCore/QCommandLineParser>

#include <array>
#include <cmath>
#include <optional>

namespace {

struct Option
{
    const char* name;
    const char* value; ///< the placeholder in the help; empty if the option takes no value
    const char* summary;
};
constexpr std::array options{
    Option{"virtual", "FILE",
           QT_TRANSLATE_NOOP("tools", "show the virtual printers that FILE describes, or those of "
                                      "\"built-in\"")},
    Option{"speed", "FACTOR",
           QT_TRANSLATE_NOOP("tools", "speed up the virtual printers' story by FACTOR")},
    Option{"broker", "URL",
           QT_TRANSLATE_NOOP("tools", "show what agents publish on the broker at URL, such as "
                                      "mqtts://broker.example/SITE; without SITE, all sites")},
    Option{"broker-config", "FILE",
           QT_TRANSLATE_NOOP("tools", "take the broker, the user and the certificates from FILE, "
                                      "which is like an agent's configuration")},
    Option{"catalogue", "FILE",
           QT_TRANSLATE_NOOP("tools", "take the names of supplies and ribbons from FILE")},
    Option{"history", "FILE",
           QT_TRANSLATE_NOOP("tools", "record what is used in FILE, and show it")},
    Option{"settings", "FILE",
           QT_TRANSLATE_NOOP("tools", "keep the settings of the window in FILE")},
    Option{"minimized", "", QT_TRANSLATE_NOOP("tools", "start without an open window")},
    Option{"language", "TAG",
           QT_TRANSLATE_NOOP("tools", "speak the language TAG: en, de, es, fr, it, ja or zh_CN")},
    Option{"colors", "SCHEME",
           QT_TRANSLATE_NOOP("tools", "use the colours SCHEME: light, dark or system")},
    Option{"size", "WIDTHxHEIGHT", QT_TRANSLATE_NOOP("tools", "open the window in this size")},
    Option{"screenshot", "FILE.png",
           QT_TRANSLATE_NOOP("tools", "save a picture of the window in FILE.png and end")},
    Option{"after", "SECONDS",
           QT_TRANSLATE_NOOP("tools", "with --screenshot: SECONDS after the start, 3 by default")},
};

using Kind = ToolHelp::Kind;
using Placeholder = ToolHelp::Placeholder;

/// What the placeholders stand for.
constexpr std::array placeholders{
    Placeholder{"FACTOR", Kind::Number},
    Placeholder{"FILE", Kind::File},
    Placeholder{"--virtual FILE", Kind::File, "built-in"},
    Placeholder{"FILE.png", Kind::File},
    Placeholder{"SCHEME", Kind::Choice, "light dark system"},
    Placeholder{"SECONDS", Kind::Number},
    Placeholder{"TAG", Kind::Choice, "en de es fr it ja zh_CN"},
    Placeholder{"URL", Kind::Word},
    Placeholder{"WIDTHxHEIGHT", Kind::Word},
};

constexpr double longestWait = 86400;
constexpr double greatestSpeed = 1000;
constexpr int leastSide = 100;
constexpr int greatestSide = 10000;

ToolHelp toolHelp()
{
    ToolHelp help;
    help.tool = QStringLiteral("vxprintview");
    help.summary = ToolText::tr("Shows the label printers of this computer in a window.");
    for (const Option& option : options) {
        QString spelling = QStringLiteral("--") + QLatin1String(option.name);
        if (option.value[0] != '\0')
            spelling += QLatin1Char(' ') + QLatin1String(option.value);
        help.options.append({spelling, ToolText::tr(option.summary)});
    }
    help.addValues(placeholders);
    return help;
}

/// A number above 0 and up to `most`.
double numberOf(const QCommandLineParser& parser, const QString& name, double otherwise,
                double most)
{
    if (!parser.isSet(name))
        return otherwise;
    bool isNumber = false;
    const double value = parser.value(name).toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value) || value <= 0 || value > most)
        throw wrongUsage(ToolText::tr("--%1: expected a number above 0 and up to %2, found \"%3\"")
                             .arg(name, QString::number(most), parser.value(name)));
    return value;
}

QSize sizeOf(const QString& text)
{
    const QStringList parts = text.split(u'x');
    const QSize size(parts.value(0).toInt(), parts.value(1).toInt());
    const auto isSide = [](int side) {
        return side >= leastSide && side <= greatestSide;
    };
    if (parts.size() != 2 || !isSide(size.width()) || !isSide(size.height()))
        throw wrongUsage(ToolText::tr("--size: expected such as 1200x800, found \"%1\"").arg(text));
    return size;
}

} // namespace

ViewOptions parseViewOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsOptions);
    for (const Option& option : options)
        parser.addOption({QString::fromLatin1(option.name), {}, QString::fromLatin1(option.value)});
    const QCommandLineOption helpOption(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    const QCommandLineOption helpJsonOption(QStringLiteral("help-json"));
    const QCommandLineOption versionOption(QStringLiteral("version"));
    parser.addOptions({helpOption, helpJsonOption, versionOption});
    if (!parser.parse(arguments))
        throw wrongUsage(parser.errorText());
    ViewOptions result;
    const auto valueOf = [&parser](const char* name) {
        const QString option = QString::fromLatin1(name);
        if (parser.isSet(option) && parser.value(option).isEmpty())
            throw wrongUsage(ToolText::tr("--%1: expected a value").arg(option));
        return parser.value(option);
    };
    const ToolHelp help = toolHelp();
    result.information = parser.isSet(helpJsonOption) ? help.json()
                                                      : help.answer({}, parser.isSet(helpOption),
                                                                    parser.isSet(versionOption))
                                                            .value_or(QString());
    if (!result.information.isEmpty())
        return result;
    if (!parser.positionalArguments().isEmpty())
        throw wrongUsage(ToolText::tr("expected options only, found \"%1\"")
                             .arg(parser.positionalArguments().first()));
    result.fleetFile = valueOf("virtual");
    result.broker = valueOf("broker");
    result.brokerConfigFile = valueOf("broker-config");
    result.catalogueFile = valueOf("catalogue");
    result.historyFile = valueOf("history");
    result.settingsFile = valueOf("settings");
    result.pictureFile = valueOf("screenshot");
    result.language = valueOf("language");
    result.colors = valueOf("colors");
    result.minimized = parser.isSet(QStringLiteral("minimized"));
    result.pictureAfter =
        numberOf(parser, QStringLiteral("after"), result.pictureAfter, longestWait);
    result.speed = numberOf(parser, QStringLiteral("speed"), result.speed, greatestSpeed);
    if (parser.isSet(QStringLiteral("size")))
        result.size = sizeOf(valueOf("size"));
    for (const char* name : {"virtual", "speed", "history"}) {
        const QString option = QString::fromLatin1(name);
        if (result.isOfSite() && parser.isSet(option))
            throw wrongUsage(ToolText::tr("--%1 does not go with --broker").arg(option));
    }
    if (parser.isSet(QStringLiteral("after")) && result.pictureFile.isEmpty())
        throw wrongUsage(ToolText::tr("--after goes with --screenshot"));
    if (!result.colors.isEmpty() && result.colors != QLatin1String("light") &&
        result.colors != QLatin1String("dark") && result.colors != QLatin1String("system"))
        throw wrongUsage(ToolText::tr("--colors: expected light, dark or system, found \"%1\"")
                             .arg(result.colors));
    return result;
}
