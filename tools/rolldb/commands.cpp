// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include "catalogue_list.h"
#include "catalogue_tables.h"
#include "catalogue_writer.h"
#include "database_check.h"
#include "database_reader.h"
#include "folder_writer.h"
#include "identifier_search.h"
#include "shown_text.h"
#include "sku_report.h"
#include "tool_help.h"
#include "tool_text.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <array>

namespace {

struct Request
{
    QStringList arguments; ///< of the command
    ReportStyle style;
    bool isForced = false;
};

constexpr const char* languageSpelling = "--language TAG";
constexpr const char* jsonSpelling = "--json";
constexpr const char* forceSpelling = "--force";

using Kind = ToolHelp::Kind;
using Placeholder = ToolHelp::Placeholder;

/// What the placeholders of options and of commands' arguments stand for. As a language, further
/// forms of the same tags are accepted too.
constexpr std::array placeholders{
    Placeholder{"DIRECTORY", Kind::Folder},
    Placeholder{"FILE", Kind::File},
    Placeholder{"PATH", Kind::File},
    Placeholder{"SKU", Kind::Word},
    Placeholder{"IDENTIFIER", Kind::Word},
    Placeholder{"TAG", Kind::Choice, "de en es fr it ja ko nl pl pt zh-Hans zh-Hant"},
};

QString counted(const DatabaseCounts& counts)
{
    return ToolText::tr("%1 supplies, %2 ribbons, %3 print settings, %4 languages")
        .arg(counts.supplies)
        .arg(counts.ribbons)
        .arg(counts.settings)
        .arg(counts.languages);
}

QString build(const Request& request)
{
    const QString& file = request.arguments.at(1);
    writeDatabase(readCatalogueDirectory(request.arguments.at(0)), file);
    return QStringLiteral("%1: %2\n").arg(shown(file), counted(checkDatabase(file)));
}

DatabaseCounts checkTables(const QString& directory)
{
    const Catalogue catalogue = readCatalogueDirectory(directory);
    return {static_cast<int>(catalogue.supplies.size()), static_cast<int>(catalogue.ribbons.size()),
            static_cast<int>(catalogue.settings.size()),
            static_cast<int>(catalogue.languages.size())};
}

QString check(const Request& request)
{
    const QString& path = request.arguments.at(0);
    const DatabaseCounts counts = QFileInfo(path).isDir() ? checkTables(path) : checkDatabase(path);
    return ToolText::tr("%1: ok, %2").arg(shown(path), counted(counts)) + u'\n';
}

QString list(const Request& request)
{
    return catalogueList(request.arguments.at(0), request.style);
}

QString show(const Request& request)
{
    return skuReport(request.arguments.at(0), request.arguments.at(1), request.style);
}

QString find(const Request& request)
{
    return identifierReport(request.arguments.at(0), request.arguments.at(1), request.style);
}

QString written(const QString& folder, qsizetype files)
{
    return ToolText::tr("%1: files written: %2").arg(shown(folder), QString::number(files)) + u'\n';
}

QString exportTables(const Request& request)
{
    const QString& file = request.arguments.at(0);
    const QString& folder = request.arguments.at(1);
    const Catalogue catalogue = readDatabase(file);
    QMap<QString, QByteArray> files;
    try {
        files = catalogueFiles(catalogue);
    } catch (const Failure& failure) {
        QStringList messages{ToolText::tr("%1: it cannot be written as tables:").arg(file)};
        throw Failure(messages + failure.messages());
    }
    writeFolder(files, folder, request.isForced);
    return written(folder, files.size());
}

QString writeTemplate(const Request& request)
{
    const QString& folder = request.arguments.at(0);
    const QMap<QString, QByteArray> files = catalogueFiles(templateCatalogue());
    writeFolder(files, folder, request.isForced);
    return written(folder, files.size());
}

struct Command
{
    const char* name;
    QString (*run)(const Request& request);
    int count; ///< of the arguments
    const char* arguments;
    const char* summary;
    const char* details;
    std::array<const char*, 2> options{};
};
constexpr std::array commands{
    Command{"build", build, 2, "DIRECTORY FILE",
            QT_TRANSLATE_NOOP("tools", "create a supply database from the tables in DIRECTORY"),
            QT_TRANSLATE_NOOP("tools",
                              "All mistakes in the tables are printed, up to 50, and FILE is "
                              "written only if there are none. A table may be separated by "
                              "commas or semicolons, or by tabs, then also as a file .tsv.")},
    Command{"check", check, 1, "PATH",
            QT_TRANSLATE_NOOP("tools", "verify a supply database or a directory of tables"),
            QT_TRANSLATE_NOOP("tools", "Nothing is written. All that is wrong is printed, up to 50 "
                                       "lines.")},
    Command{"list",
            list,
            1,
            "FILE",
            QT_TRANSLATE_NOOP("tools", "list the supplies and ribbons in FILE"),
            QT_TRANSLATE_NOOP("tools", "With the numbers in identifiers that stand for them, and "
                                       "their names."),
            {languageSpelling, jsonSpelling}},
    Command{"show",
            show,
            2,
            "FILE SKU",
            QT_TRANSLATE_NOOP("tools", "print what FILE has about a supply or a ribbon"),
            "",
            {languageSpelling, jsonSpelling}},
    Command{
        "find",
        find,
        2,
        "FILE IDENTIFIER",
        QT_TRANSLATE_NOOP("tools", "print what the identifier of a roll or a ribbon stands for"),
        QT_TRANSLATE_NOOP("tools",
                          "IDENTIFIER is what a driver publishes: the 20 characters of a "
                          "supply or the number of a ribbon. If FILE does not have it, the "
                          "exit status is 1."),
        {languageSpelling, jsonSpelling}},
    Command{"export",
            exportTables,
            2,
            "FILE DIRECTORY",
            QT_TRANSLATE_NOOP("tools", "write the tables and pictures of FILE to DIRECTORY"),
            QT_TRANSLATE_NOOP("tools", "A database that is built from them has the same bytes."),
            {forceSpelling}},
    Command{"template",
            writeTemplate,
            1,
            "DIRECTORY",
            QT_TRANSLATE_NOOP("tools", "write tables with examples to DIRECTORY"),
            QT_TRANSLATE_NOOP("tools", "A start for a catalogue of your own: every column with its "
                                       "name and an example."),
            {forceSpelling}},
};

ToolHelp toolHelp()
{
    ToolHelp help;
    help.tool = QStringLiteral("rolldb");
    help.summary = ToolText::tr("Builds and reads the supply databases of printers.");
    for (const Command& command : commands) {
        QStringList options;
        for (const char* option : command.options) {
            if (option)
                options.append(QString::fromLatin1(option));
        }
        help.commands.append(
            {QString::fromLatin1(command.name), QString::fromLatin1(command.arguments),
             ToolText::tr(command.summary),
             *command.details ? QStringList{ToolText::tr(command.details)} : QStringList(),
             options});
    }
    help.options = {{QString::fromLatin1(languageSpelling),
                     ToolText::tr("print names in the language TAG (\"de\", \"ja\") and not in "
                                  "English")},
                    {QString::fromLatin1(jsonSpelling), ToolText::tr("print JSON")},
                    {QString::fromLatin1(forceSpelling), ToolText::tr("replace existing files")}};
    help.addValues(placeholders);
    return help;
}

QString nameOf(const char* spelling)
{
    return QString::fromLatin1(spelling).section(u' ', 0, 0).mid(2);
}

/// Refuses an option that the command does not accept.
void checkOption(const QCommandLineParser& parser, const Command& command, const char* spelling)
{
    if (!parser.isSet(nameOf(spelling)) || std::ranges::count(command.options, spelling) > 0)
        return;
    QStringList names;
    for (const Command& each : commands) {
        if (std::ranges::count(each.options, spelling) > 0)
            names.append(QString::fromLatin1(each.name));
    }
    throw wrongUsage(ToolText::tr("--%1 is valid only with %2")
                         .arg(nameOf(spelling), names.join(QStringLiteral(", "))));
}

} // namespace

QString rolldbAnswer(const QStringList& arguments)
{
    const QCommandLineOption helpOption(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    const QCommandLineOption helpJsonOption(QStringLiteral("help-json"));
    const QCommandLineOption versionOption(QStringLiteral("version"));
    const QCommandLineOption languageOption(nameOf(languageSpelling), {}, QStringLiteral("TAG"));
    QCommandLineParser parser;
    parser.addOptions({helpOption, helpJsonOption, versionOption, languageOption,
                       QCommandLineOption(nameOf(jsonSpelling)),
                       QCommandLineOption(nameOf(forceSpelling))});
    if (!parser.parse(arguments))
        throw wrongUsage(parser.errorText());
    const ToolHelp help = toolHelp();
    if (parser.isSet(helpJsonOption))
        return help.json();
    QStringList words = parser.positionalArguments();
    if (const std::optional<QString> answer =
            help.answer(words, parser.isSet(helpOption), parser.isSet(versionOption)))
        return *answer;

    if (words.isEmpty())
        throw wrongUsage(ToolText::tr("expected a command: %1").arg(help.commandNames()));
    const QString name = words.takeFirst();
    const auto* const command = std::ranges::find_if(
        commands, [&name](const Command& each) { return name == QLatin1String(each.name); });
    if (command == commands.end())
        throw wrongUsage(ToolText::tr("unknown command \"%1\"; expected one of %2")
                             .arg(name, help.commandNames()));
    if (words.size() != command->count) {
        const QString found = words.isEmpty() ? ToolText::tr("nothing")
                                              : u'"' + words.join(QStringLiteral("\" \"")) + u'"';
        throw wrongUsage(ToolText::tr("%1 takes %2, found %3")
                             .arg(name, QString::fromLatin1(command->arguments), found));
    }
    for (const char* spelling : {languageSpelling, jsonSpelling, forceSpelling})
        checkOption(parser, *command, spelling);
    const QString tag =
        parser.isSet(languageOption) ? parser.value(languageOption) : QStringLiteral("en");
    const std::optional<int> language = languageNumber(tag);
    if (!language)
        throw wrongUsage(ToolText::tr("\"%1\" is not a known language").arg(tag));
    return command->run({words,
                         {*language, parser.isSet(nameOf(jsonSpelling))},
                         parser.isSet(nameOf(forceSpelling))});
}
