// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "backend.h"
#include "command_line.h"
#include "commands.h"
#include "failure.h"
#include "library_log.h"
#include "output.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>
#include <QtCore/QTranslator>

namespace {

void run(Output& output)
{
    const CommandLine line = parseCommandLine(QCoreApplication::arguments());
    if (!line.command) {
        output.text(line.information);
        return;
    }
    setUpLibraryLog(line.logFile);
    const std::unique_ptr<Backend> backend = Backend::create(line);
    line.command->run(line, output, *backend);
}

} // namespace

int main(int argc, char* argv[])
{
    StandardOutput standardOutput("vxprintmon");
    // The monitor chooses its printers by its arguments. The library would add the fleet that this
    // variable sets up for hosts.
    qunsetenv("VX_VIRTUAL_FLEET");
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vxprintmon"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VX_VERSION));
    // The titles appear in the language in which the library gives the names of colours.
    QTranslator titles;
    if (titles.load(QLocale::system(), QStringLiteral("vxprinterstatus"), QStringLiteral("_"),
                    QStringLiteral(":/vxprinterstatus/translations")))
        QCoreApplication::installTranslator(&titles);

    return runTool(standardOutput, [&] {
        Output output(standardOutput);
        run(output);
    });
}
