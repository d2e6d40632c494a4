// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"
#include "failure.h"
#include "text_layout.h"
#include "tool_text.h"

#include <QtCore/QCoreApplication>

namespace {

QString help()
{
    using text_layout::paragraph;
    using text_layout::rows;
    return ToolText::tr("Usage: %1").arg(QStringLiteral("vxipc [OPTION]... COMMAND\n\n")) +
           paragraph(ToolText::tr("Calls the endpoints that run for this user.")) + u'\n' +
           ToolText::tr("Commands:") + u'\n' +
           rows({
               {QStringLiteral("list"),
                ToolText::tr("list the endpoints: name, service, process, application")},
               {QStringLiteral("describe SERVICE"),
                ToolText::tr("list the methods and signals of an endpoint")},
               {QStringLiteral("call SERVICE METHOD [ARGUMENT]..."),
                ToolText::tr("call a method and print its result")},
               {QStringLiteral("watch SERVICE [SIGNAL]..."),
                ToolText::tr("print a line of JSON for each emission of the signals, or of all "
                             "signals, until interrupted")},
           }) +
           u'\n' +
           paragraph(ToolText::tr(
               "SERVICE is supplyd, m4, printqd, status, a number, or a name printed by "
               "list. Arguments for text parameters are taken as they are, all "
               "others are read as JSON.")) +
           u'\n' + ToolText::tr("Options:") + u'\n' +
           rows({
               {QStringLiteral("--json"), ToolText::tr("print JSON")},
               {QStringLiteral("--for SECONDS"), ToolText::tr("watch for SECONDS only")},
               {QStringLiteral("--timeout MS"),
                ToolText::tr("wait up to MS milliseconds for an endpoint (10000)")},
               {QStringLiteral("--help"), ToolText::tr("print this help")},
               {QStringLiteral("--"), ToolText::tr("what follows is not an option")},
           }) +
           u'\n' + paragraph(ToolText::exitStatusHelp());
}

std::chrono::milliseconds secondsOf(const QString& word)
{
    constexpr double mostSeconds = 1e6;
    bool ok = false;
    const double seconds = word.toDouble(&ok);
    if (!ok || !(seconds > 0) || seconds > mostSeconds)
        throw wrongUsage(ToolText::tr("--for takes a number of seconds"));
    return std::chrono::milliseconds(qRound64(seconds * 1000));
}

void run(StandardOutput& output)
{
    const QStringList given = QCoreApplication::arguments().mid(1);
    QStringList words;
    Options options;
    for (qsizetype i = 0; i < given.size(); ++i) {
        const QString& word = given.at(i);
        if (word == QStringLiteral("--")) {
            words += given.mid(i + 1);
            break;
        }
        if (word == QStringLiteral("--help")) {
            output.write(help());
            return;
        }
        if (word == QStringLiteral("--json")) {
            options.isJson = true;
        } else if (word == QStringLiteral("--timeout")) {
            bool ok = false;
            const int timeout = given.value(++i).toInt(&ok);
            if (!ok || timeout <= 0)
                throw wrongUsage(ToolText::tr("--timeout takes a number of milliseconds"));
            options.timeout = std::chrono::milliseconds(timeout);
        } else if (word == QStringLiteral("--for")) {
            options.watchTime = secondsOf(given.value(++i));
        } else if (word.startsWith(QStringLiteral("--"))) {
            throw wrongUsage(ToolText::tr("unknown option %1").arg(word));
        } else {
            words.append(word);
        }
    }
    runCommand(words, options, output);
}

} // namespace

int main(int argc, char* argv[])
{
    StandardOutput output("vxipc");
    const QCoreApplication app(argc, argv);
    ToolText::useLanguageOfUser();
    return runTool(output, [&output] { run(output); });
}
