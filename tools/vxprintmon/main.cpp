// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"
#include "library_log.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>
#include <QtCore/QTranslator>

#include <algorithm>
#include <array>
#include <exception>

namespace {

struct Runner
{
    Verb verb;
    QString (*run)(const CommandLine& line, Output& output, Scene& scene);
};
constexpr std::array runners{
    Runner{Verb::List, runList}, Runner{Verb::Watch, runWatch}, Runner{Verb::Status, runStatus},
    Runner{Verb::Send, runSend}, Runner{Verb::Title, runTitle},
};

/// Carries out the command line, and answers the exit status.
int run(StandardOutput& standardOutput)
{
    const auto fail = [&](const QString& text, int exitStatus) {
        standardOutput.complain(text);
        return exitStatus;
    };
    Output output(standardOutput);
    const auto parsed = parseCommandLine(QCoreApplication::arguments());
    if (const auto* wrong = std::get_if<WrongUsage>(&parsed))
        return fail(wrong->text, 2);
    if (const auto* answer = std::get_if<Answer>(&parsed)) {
        output.text(answer->text);
        return 0;
    }

    const auto& line = std::get<CommandLine>(parsed);
    if (const QString wrong = keepLibraryLog(line.logFile); !wrong.isEmpty())
        return fail(wrong, 1);
    const auto made = Scene::make(line);
    if (const auto* failure = std::get_if<Scene::Failure>(&made))
        return fail(failure->text, failure->exitStatus);
    Scene& scene = *std::get<std::unique_ptr<Scene>>(made);

    const auto verb = std::ranges::find(runners, line.verb, &Runner::verb);
    try {
        const QString failure = verb->run(line, output, scene);
        return failure.isEmpty() ? 0 : fail(failure, 1);
    } catch (const std::exception& exception) {
        // What the spooler lists can be such that no record of it can be made.
        return fail(QString::fromLocal8Bit(exception.what()), 1);
    }
}

} // namespace

int main(int argc, char* argv[])
{
    StandardOutput output("vxprintmon");
    // The monitor's printers are chosen by its arguments: a fleet meant for hosts would come on
    // top.
    qunsetenv("VX_VIRTUAL_FLEET");
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vxprintmon"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VX_VERSION));
    // In the language that the library has the names of colours and materials in.
    QTranslator titles;
    if (titles.load(QLocale::system(), QStringLiteral("vxprinterstatus"), QStringLiteral("_"),
                    QStringLiteral(":/vxprinterstatus/translations")))
        QCoreApplication::installTranslator(&titles);

    return output.exitStatus(run(output));
}
