// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "agent.h"
#include "agent_host.h"
#include "agent_log.h"
#include "failure.h"
#include "printer_source.h"
#include "service.h"
#include "standard_output.h"
#include "stop_signal.h"
#include "tool_help.h"
#include "tool_text.h"

#include <ConsoleAppender.h>
#include <Logger.h>

#include <QtCore/QCoreApplication>

#include <optional>

namespace {

struct Arguments
{
    QStringList words;
    QString configFile;
    QString fleetFile;
    double speed = 1;
    bool wantsHelp = false;
    bool wantsHelpJson = false;
    bool wantsVersion = false;
};

ToolHelp toolHelp()
{
    const QString config = QStringLiteral("--config FILE");
    const QString fleet = QStringLiteral("--virtual FILE");
    const QString speed = QStringLiteral("--speed FACTOR");
    ToolHelp help;
    help.tool = QStringLiteral("vxprintagent");
    help.summary = ToolText::tr("Watches this computer's label printers and publishes what it sees "
                                "to a broker and to a monitoring system.");
    help.commands = {
        {QStringLiteral("run"),
         {},
         ToolText::tr("watch and publish until interrupted"),
         {},
         {config, fleet, speed}},
        {QStringLiteral("check"),
         {},
         ToolText::tr("say what is wrong with a configuration"),
         {},
         {config}},
        {QStringLiteral("install"),
         {},
         ToolText::tr("install the agent as a Windows service that runs with the configuration"),
         {},
         {config}},
        {QStringLiteral("uninstall"), {}, ToolText::tr("remove the Windows service"), {}, {}},
        {QStringLiteral("service"),
         {},
         ToolText::tr("what the Windows service manager starts"),
         {},
         {config}},
    };
    help.options = {
        {config, ToolText::tr("the configuration, a JSON file")},
        {fleet, ToolText::tr("use the virtual printers that FILE describes")},
        {speed, ToolText::tr("play the story of virtual printers FACTOR times as fast")},
    };
    help.values = {
        {QStringLiteral("FILE"), ToolHelp::Kind::File, {}},
        {fleet, ToolHelp::Kind::File, {QStringLiteral("built-in")}},
        {QStringLiteral("FACTOR"), ToolHelp::Kind::Number, {}},
    };
    return help;
}

double speedOf(const QString& word)
{
    constexpr double fastest = 1000;
    bool isNumber = false;
    const double speed = word.toDouble(&isNumber);
    if (!isNumber || !(speed > 0) || speed > fastest)
        throw wrongUsage(ToolText::tr("--speed takes a number above 0 and up to 1000"));
    return speed;
}

Arguments parsed(const QStringList& given)
{
    Arguments arguments;
    const auto valueAfter = [&given](qsizetype& i) {
        if (i + 1 >= given.size() || given.at(i + 1).isEmpty())
            throw wrongUsage(ToolText::tr("%1 needs a value").arg(given.at(i)));
        return given.at(++i);
    };
    for (qsizetype i = 0; i < given.size(); ++i) {
        const QString& word = given.at(i);
        if (word == QLatin1String("--help") || word == QLatin1String("-h"))
            arguments.wantsHelp = true;
        else if (word == QLatin1String("--help-json"))
            arguments.wantsHelpJson = true;
        else if (word == QLatin1String("--version"))
            arguments.wantsVersion = true;
        else if (word == QLatin1String("--config"))
            arguments.configFile = valueAfter(i);
        else if (word == QLatin1String("--virtual"))
            arguments.fleetFile = valueAfter(i);
        else if (word == QLatin1String("--speed"))
            arguments.speed = speedOf(valueAfter(i));
        else if (word.startsWith(u'-'))
            throw wrongUsage(ToolText::tr("unknown option %1").arg(word));
        else
            arguments.words.append(word);
    }
    return arguments;
}

QString configOf(const Arguments& arguments)
{
    if (arguments.configFile.isEmpty())
        throw wrongUsage(ToolText::tr("%1 needs --config FILE").arg(arguments.words.first()));
    return arguments.configFile;
}

/// A console, on which the user ends the agent with Ctrl-C.
class Console : public AgentHost
{
public:
    explicit Console(StandardOutput& output)
        : m_log(output)
    {
        // The library logs at debug level; only warnings are of interest to those who run the
        // agent.
        auto* const console = new ConsoleAppender;
        console->setDetailsLevel(Logger::Warning);
        Logger::globalInstance()->registerAppender(console);
    }

    AgentLog& log() override { return m_log; }
    void stopWith(const std::function<void()>& stop) override { m_stopSignal.emplace(stop); }

private:
    ConsoleLog m_log;
    std::optional<StopSignal> m_stopSignal;
};

void runAgent(const Arguments& arguments, AgentHost& host)
{
    const AgentConfig config = readAgentConfig(configOf(arguments));
    const std::unique_ptr<PrinterSource> printers =
        PrinterSource::create(arguments.fleetFile, arguments.speed);
    Agent agent(config, host.log());
    host.stopWith([&agent] { agent.stop(); });
    QObject::connect(&agent, &Agent::stopped, QCoreApplication::instance(),
                     &QCoreApplication::quit);
    agent.start();
    printers->start([&agent] { return agent.watchedPrinters(); });
    host.reportRunning();
    QCoreApplication::exec();
}

void check(const Arguments& arguments, StandardOutput& output)
{
    const AgentConfig config = readAgentConfig(configOf(arguments));
    ConsoleLog log(output);
    for (const QString& warning : config.warnings)
        log.warning(warning);
    log.information(ToolText::tr("%1 is a valid configuration").arg(config.file));
}

void run(StandardOutput& output)
{
    const Arguments arguments = parsed(QCoreApplication::arguments().mid(1));
    const ToolHelp help = toolHelp();
    if (arguments.wantsHelpJson) {
        output.write(help.json());
        return;
    }
    if (const auto answer =
            help.answer(arguments.words, arguments.wantsHelp, arguments.wantsVersion)) {
        output.write(*answer);
        return;
    }
    const QString verb = arguments.words.value(0);
    if (arguments.words.size() > 1)
        throw wrongUsage(ToolText::tr("%1 takes no further words").arg(verb));
    if (verb == QLatin1String("run")) {
        Console console(output);
        runAgent(arguments, console);
    } else if (verb == QLatin1String("check"))
        check(arguments, output);
    else if (verb == QLatin1String("install")) {
        ConsoleLog log(output);
        service::install(configOf(arguments), log);
    } else if (verb == QLatin1String("service"))
        service::run([&arguments](AgentHost& host) { runAgent(arguments, host); });
    else if (verb == QLatin1String("uninstall"))
        service::uninstall();
    else
        throw wrongUsage(ToolText::tr("expected a command: %1").arg(help.commandNames()));
}

} // namespace

int main(int argc, char* argv[])
{
    StandardOutput output("vxprintagent");
    // The agent plays the story of a fleet itself. The library would add the fleet that this
    // variable names once more, as it does for hosts.
    qunsetenv("VX_VIRTUAL_FLEET");
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vxprintagent"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VX_VERSION));
    ToolText::useLanguageOfUser();
    return runTool(output, [&output] { run(output); });
}
