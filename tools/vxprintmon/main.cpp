// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "backend.h"
#include "command_line.h"
#include "commands.h"
#include "failure.h"
#include "library_log.h"
#include "output.h"
#include "tool_text.h"

#include <QtCore/QCoreApplication>

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
    ToolText::useLanguageOfUser();

    return runTool(standardOutput, [&] {
        Output output(standardOutput);
        run(output);
    });
}
