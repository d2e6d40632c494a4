// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "catalogue.h"
#include "catalogue_writer.h"
#include "database_check.h"
#include "fault.h"
#include "shown_text.h"
#include "sku_report.h"
#include "standard_output.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>

namespace {

constexpr int exitFailed = 1;
constexpr int exitWrongUsage = 2;

constexpr const char* Usage = R"(Usage: rolldb build DIRECTORY FILE
       rolldb check FILE
       rolldb show [--language TAG] FILE SKU

build makes the supply database FILE from the tables in DIRECTORY,
check looks for anything wrong in FILE,
show prints what FILE says of a supply or a ribbon, in English or in the
language TAG ("de", "ja").

Exit status: 0 done, 1 failed, 2 wrong usage. Output that cannot be written is
a failure, a pipe that its reader has closed is not.
)";

QString counted(const DatabaseCounts& counts)
{
    return QStringLiteral("%1 supplies, %2 ribbons, %3 print settings, %4 languages\n")
        .arg(counts.supplies)
        .arg(counts.ribbons)
        .arg(counts.settings)
        .arg(counts.languages);
}

struct Verb
{
    const char* name;
    int arguments;
    QString (*run)(const QStringList& arguments, int language);
};
const std::array Verbs{
    Verb{"build", 2,
         [](const QStringList& arguments, int) {
             writeDatabase(readCatalogueDirectory(arguments.at(0)), arguments.at(1));
             return QStringLiteral("%1: %2").arg(shown(arguments.at(1)),
                                                 counted(checkDatabase(arguments.at(1))));
         }},
    Verb{"check", 1,
         [](const QStringList& arguments, int) {
             return QStringLiteral("%1: in order, %2")
                 .arg(shown(arguments.at(0)), counted(checkDatabase(arguments.at(0))));
         }},
    Verb{"show", 2,
         [](const QStringList& arguments, int language) {
             return skuReport(arguments.at(0), arguments.at(1), language);
         }},
};

/// Carries out the command line, and answers the exit status.
int run(StandardOutput& output)
{
    const auto wrongUsage = [&output](const QString& what) {
        output.complain(QStringLiteral("%1 (see rolldb --help)").arg(what));
        return exitWrongUsage;
    };
    const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    const QCommandLineOption languageOption(QStringLiteral("language"), {}, QStringLiteral("TAG"));
    QCommandLineParser parser;
    parser.addOptions({help, languageOption});
    if (!parser.parse(QCoreApplication::arguments()))
        return wrongUsage(parser.errorText());
    if (parser.isSet(help)) {
        output.write(QString::fromLatin1(Usage));
        return 0;
    }

    QStringList arguments = parser.positionalArguments();
    if (arguments.isEmpty())
        return wrongUsage(QStringLiteral("expected build, check or show"));
    const QString verbName = arguments.takeFirst();
    const auto* const verb = std::ranges::find_if(
        Verbs, [&verbName](const Verb& each) { return verbName == QLatin1String(each.name); });
    if (verb == Verbs.end())
        return wrongUsage(QStringLiteral("\"%1\" is none of build, check and show").arg(verbName));
    if (arguments.size() != verb->arguments)
        return wrongUsage(QStringLiteral("%1 takes %2 arguments, not %3")
                              .arg(verbName)
                              .arg(verb->arguments)
                              .arg(arguments.size()));
    const QString tag =
        parser.isSet(languageOption) ? parser.value(languageOption) : QStringLiteral("en");
    const std::optional<int> language = languageNumber(tag);
    if (!language)
        return wrongUsage(QStringLiteral("\"%1\" is no language that names are had in").arg(tag));

    try {
        output.write(verb->run(arguments, *language));
    } catch (const Fault& fault) {
        output.complain(fault.message());
        return exitFailed;
    }
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    StandardOutput output("rolldb");
    const QCoreApplication application(argc, argv);
    return output.exitStatus(run(output));
}
