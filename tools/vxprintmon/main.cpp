// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include <QtCore/QCoreApplication>

#include <cstdio>

namespace {

int fail(const QString& text, int exitStatus)
{
    std::fprintf(stderr, "vxprintmon: %s\n", qUtf8Printable(text));
    return exitStatus;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vxprintmon"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VX_VERSION));

    Output output;
    const auto parsed = parseCommandLine(QCoreApplication::arguments());
    if (const auto* wrong = std::get_if<WrongUsage>(&parsed))
        return fail(wrong->text, 2);
    if (const auto* answer = std::get_if<Answer>(&parsed)) {
        output.text(answer->text);
        return 0;
    }

    const auto& line = std::get<CommandLine>(parsed);
    const auto made = Scene::make(line);
    if (const auto* failure = std::get_if<Scene::Failure>(&made))
        return fail(failure->text, failure->exitStatus);
    Scene& scene = *std::get<std::unique_ptr<Scene>>(made);

    switch (line.verb) {
    case Verb::List:
        return runList(line, output);
    case Verb::Watch:
        return runWatch(line, output, scene);
    }
    return 1;
}
