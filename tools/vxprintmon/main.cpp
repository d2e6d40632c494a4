// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "backend.h"
#include "catalogue_file.h"
#include "command_line.h"
#include "commands.h"
#include "failure.h"
#include "library_log.h"
#include "output.h"
#include "tool_text.h"

#include <QtCore/QCoreApplication>

namespace {

void run(Output& output, const QString& fleetOfEnvironment)
{
    CommandLine line = parseCommandLine(QCoreApplication::arguments());
    if (!line.command) {
        output.text(line.information);
        return;
    }
    setUpLibraryLog(line.libraryLogFile);
    if (line.isOfSite()) {
        runTopOfSite(line, output);
        return;
    }
    const std::unique_ptr<Backend> backend = Backend::create(line, fleetOfEnvironment);
    // What was recorded with the printers suits them better than what is beside the program.
    if (catalogue_file::named(line).isEmpty())
        line.catalogueFile = backend->catalogueFile();
    line.command->run(line, output, *backend);
}

} // namespace

int main(int argc, char* argv[])
{
    StandardOutput standardOutput("vxprintmon");
    // The monitor plays the story of a fleet itself. The library would add the fleet that this
    // variable names once more, as it does for hosts.
    const QString fleetOfEnvironment = qEnvironmentVariable("VX_VIRTUAL_FLEET");
    qunsetenv("VX_VIRTUAL_FLEET");
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vxprintmon"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VX_VERSION));
    ToolText::useLanguageOfUser();

    return runTool(standardOutput, [&] {
        Output output(standardOutput);
        run(output, fleetOfEnvironment);
    });
}
