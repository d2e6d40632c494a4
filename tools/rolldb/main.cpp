// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"
#include "standard_output.h"
#include "tool_text.h"

#include <QtCore/QCoreApplication>

int main(int argc, char* argv[])
{
    StandardOutput output("rolldb");
    const QCoreApplication application(argc, argv);
    ToolText::useLanguageOfUser();
    return runTool(output,
                   [&output] { output.write(rolldbAnswer(QCoreApplication::arguments())); });
}
