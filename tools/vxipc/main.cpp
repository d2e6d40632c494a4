// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"
#include "failure.h"
#include "tool_help.h"
#include "tool_text.h"

#include <QtCore/QCoreApplication>

#include <array>

namespace {

ToolHelp toolHelp()
{
    const QString json = QStringLiteral("--json");
    const QString watchTime = QStringLiteral("--for SECONDS");
    const QString timeout = QStringLiteral("--timeout MS");
    const QString end = QStringLiteral("--");
    const QString service = ToolText::tr(
        "SERVICE is supplyd, m4, printqd, status, a number, or a name printed by list.");
    ToolHelp help;
    help.tool = QStringLiteral("vxipc");
    help.summary = ToolText::tr("Calls the endpoints that run for this user.");
    help.commands = {
        {QStringLiteral("list"),
         {},
         ToolText::tr("list the endpoints: name, service, process, application"),
         {ToolText::tr(
             "An endpoint that does not answer is listed too, with the reason in place of "
             "its process.")},
         {json, timeout}},
        {QStringLiteral("describe"),
         QStringLiteral("SERVICE"),
         ToolText::tr("list the methods and signals of an endpoint"),
         {service},
         {json, timeout}},
        {QStringLiteral("call"),
         QStringLiteral("SERVICE METHOD [ARGUMENT]..."),
         ToolText::tr("call a method and print its result"),
         {service,
          ToolText::tr(
              "Arguments for text parameters are taken as they are, all others are read as "
              "JSON. Of several methods of that name, the one whose parameters fit the "
              "arguments is called.")},
         {json, timeout, end}},
        {QStringLiteral("watch"),
         QStringLiteral("SERVICE [SIGNAL]..."),
         ToolText::tr("print a line of JSON for each emission of the signals, or of all signals, "
                      "until interrupted"),
         {service, ToolText::tr("If the endpoint goes away, watch waits for it and goes on.")},
         {watchTime, timeout}},
    };
    help.options = {
        {json, ToolText::tr("print JSON")},
        {watchTime, ToolText::tr("watch for SECONDS only")},
        {timeout, ToolText::tr("wait up to MS milliseconds for an endpoint (10000)")},
        {end, ToolText::tr("what follows is not an option")},
    };
    help.notes = {service};
    using Kind = ToolHelp::Kind;
    constexpr std::array placeholders{
        ToolHelp::Placeholder{"SERVICE", Kind::Choice, "supplyd m4 printqd status"},
        ToolHelp::Placeholder{"METHOD", Kind::Word},
        ToolHelp::Placeholder{"ARGUMENT", Kind::Word},
        ToolHelp::Placeholder{"SIGNAL", Kind::Word},
        ToolHelp::Placeholder{"SECONDS", Kind::Number},
        ToolHelp::Placeholder{"MS", Kind::Number},
    };
    help.addValues(placeholders);
    return help;
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
    bool wantsHelp = false;
    bool wantsHelpJson = false;
    bool wantsVersion = false;
    for (qsizetype i = 0; i < given.size(); ++i) {
        const QString& word = given.at(i);
        if (word == QStringLiteral("--")) {
            words += given.mid(i + 1);
            break;
        }
        if (word == QStringLiteral("--help") || word == QStringLiteral("-h")) {
            wantsHelp = true;
        } else if (word == QStringLiteral("--help-json")) {
            wantsHelpJson = true;
        } else if (word == QStringLiteral("--version")) {
            wantsVersion = true;
        } else if (word == QStringLiteral("--json")) {
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
    const ToolHelp help = toolHelp();
    if (wantsHelpJson)
        output.write(help.json());
    else if (const std::optional<QString> answer = help.answer(words, wantsHelp, wantsVersion))
        output.write(*answer);
    else
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
