// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "catalogue.h"
#include "catalogue_writer.h"
#include "database_check.h"
#include "failure.h"
#include "shown_text.h"
#include "sku_report.h"
#include "standard_output.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>

namespace {

constexpr const char* usage = R"(Usage: rolldb build DIRECTORY FILE
       rolldb check FILE
       rolldb show [--language TAG] FILE SKU

build creates the supply database FILE from the tables in DIRECTORY,
check verifies FILE,
show prints what FILE has about a supply or a ribbon, with names in English or
in the language TAG ("de", "ja").

Exit status: 0 success, 1 failure, 2 wrong usage. Failing to write the output
is a failure, unless the reader has closed the pipe.
)";

QString counted(const DatabaseCounts& counts)
{
    return QStringLiteral("%1 supplies, %2 ribbons, %3 print settings, %4 languages\n")
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
                return QStringLiteral("%1: %2").arg(shown(arguments.at(1)),
                                                    counted(checkDatabase(arguments.at(1))));
            }},
    Command{"check", 1,
            [](const QStringList& arguments, int) {
                return QStringLiteral("%1: ok, %2")
                    .arg(shown(arguments.at(0)), counted(checkDatabase(arguments.at(0))));
            }},
    Command{"show", 2,
            [](const QStringList& arguments, int language) {
                return skuReport(arguments.at(0), arguments.at(1), language);
            }},
};

/// Runs the command line.
void run(StandardOutput& output)
{
    const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    const QCommandLineOption languageOption(QStringLiteral("language"), {}, QStringLiteral("TAG"));
    QCommandLineParser parser;
    parser.addOptions({help, languageOption});
    if (!parser.parse(QCoreApplication::arguments()))
        throw wrongUsage(parser.errorText());
    if (parser.isSet(help)) {
        output.write(QString::fromLatin1(usage));
        return;
    }

    QStringList arguments = parser.positionalArguments();
    if (arguments.isEmpty())
        throw wrongUsage(QStringLiteral("expected build, check or show"));
    const QString name = arguments.takeFirst();
    const auto* const command = std::ranges::find_if(
        commands, [&name](const Command& each) { return name == QLatin1String(each.name); });
    if (command == commands.end())
        throw wrongUsage(
            QStringLiteral("unknown command \"%1\"; expected build, check or show").arg(name));
    if (arguments.size() != command->arguments)
        throw wrongUsage(QStringLiteral("%1 takes %2 arguments, not %3")
                             .arg(name)
                             .arg(command->arguments)
                             .arg(arguments.size()));
    const QString tag =
        parser.isSet(languageOption) ? parser.value(languageOption) : QStringLiteral("en");
    const std::optional<int> language = languageNumber(tag);
    if (!language)
        throw wrongUsage(QStringLiteral("\"%1\" is not a known language").arg(tag));
    output.write(command->run(arguments, *language));
}

} // namespace

int main(int argc, char* argv[])
{
    StandardOutput output("rolldb");
    const QCoreApplication application(argc, argv);
    return runTool(output, [&output] { run(output); });
}
