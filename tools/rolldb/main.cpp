// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "catalogue.h"
#include "catalogue_writer.h"
#include "database_check.h"
#include "failure.h"
#include "shown_text.h"
#include "sku_report.h"
#include "standard_output.h"
#include "text_layout.h"
#include "tool_text.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>

namespace {

QString help()
{
    using text_layout::paragraph;
    const QString begin = ToolText::tr("Usage: %1");
    const QString indent(text_layout::width(begin.arg(QString())), u' ');
    return begin.arg(QStringLiteral("rolldb build DIRECTORY FILE\n")) + indent +
           QStringLiteral("rolldb check FILE\n") + indent +
           QStringLiteral("rolldb show [--language TAG] FILE SKU\n\n") +
           paragraph(ToolText::tr("build creates the supply database FILE from the tables in "
                                  "DIRECTORY.")) +
           paragraph(ToolText::tr("check verifies FILE.")) +
           paragraph(
               ToolText::tr("show prints what FILE has about a supply or a ribbon, with names "
                            "in English or in the language TAG (\"de\", \"ja\").")) +
           u'\n' + paragraph(ToolText::exitStatusHelp());
}

QString counted(const DatabaseCounts& counts)
{
    return ToolText::tr("%1 supplies, %2 ribbons, %3 print settings, %4 languages")
        .arg(counts.supplies)
        .arg(counts.ribbons)
        .arg(counts.settings)
        .arg(counts.languages);
}

struct Command
{
    const char* name;
    int arguments;
    QString (*run)(const QStringList& arguments, int language);
};
const std::array commands{
    Command{"build", 2,
            [](const QStringList& arguments, int) {
                writeDatabase(readCatalogueDirectory(arguments.at(0)), arguments.at(1));
                return QStringLiteral("%1: %2\n")
                    .arg(shown(arguments.at(1)), counted(checkDatabase(arguments.at(1))));
            }},
    Command{"check", 1,
            [](const QStringList& arguments, int) {
                return ToolText::tr("%1: ok, %2")
                           .arg(shown(arguments.at(0)), counted(checkDatabase(arguments.at(0)))) +
                       u'\n';
            }},
    Command{"show", 2,
            [](const QStringList& arguments, int language) {
                return skuReport(arguments.at(0), arguments.at(1), language);
            }},
};

/// Runs the command line.
void run(StandardOutput& output)
{
    const QCommandLineOption helpOption(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    const QCommandLineOption languageOption(QStringLiteral("language"), {}, QStringLiteral("TAG"));
    QCommandLineParser parser;
    parser.addOptions({helpOption, languageOption});
    if (!parser.parse(QCoreApplication::arguments()))
        throw wrongUsage(parser.errorText());
    if (parser.isSet(helpOption)) {
        output.write(help());
        return;
    }

    QStringList arguments = parser.positionalArguments();
    if (arguments.isEmpty())
        throw wrongUsage(ToolText::tr("expected build, check or show"));
    const QString name = arguments.takeFirst();
    const auto* const command = std::ranges::find_if(
        commands, [&name](const Command& each) { return name == QLatin1String(each.name); });
    if (command == commands.end())
        throw wrongUsage(
            ToolText::tr("unknown command \"%1\"; expected build, check or show").arg(name));
    if (arguments.size() != command->arguments)
        throw wrongUsage(ToolText::tr("%1 takes %2 arguments, not %3")
                             .arg(name)
                             .arg(command->arguments)
                             .arg(arguments.size()));
    const QString tag =
        parser.isSet(languageOption) ? parser.value(languageOption) : QStringLiteral("en");
    const std::optional<int> language = languageNumber(tag);
    if (!language)
        throw wrongUsage(ToolText::tr("\"%1\" is not a known language").arg(tag));
    output.write(command->run(arguments, *language));
}

} // namespace

int main(int argc, char* argv[])
{
    StandardOutput output("rolldb");
    const QCoreApplication application(argc, argv);
    ToolText::useLanguageOfUser();
    return runTool(output, [&output] { run(output); });
}
