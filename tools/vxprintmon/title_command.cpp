// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include "json_text.h"

#include "printer_status_controller.h"

QString runTitle(const CommandLine& line, Output& output, Scene& /*scene*/)
{
    PrinterStatusController controller;
    const QString title = controller.getStatusTitle(line.code);
    const QString text = line.json
                             ? json_text::object({
                                   {QStringLiteral("statusEnum"), json_text::value(line.code)},
                                   {QStringLiteral("title"), json_text::value(title)},
                               })
                             : title;
    output.text(text + QLatin1Char('\n'));
    return {};
}
