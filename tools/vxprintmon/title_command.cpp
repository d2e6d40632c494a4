// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include "command_line.h"
#include "failure.h"
#include "json_text.h"
#include "output.h"

#include "printer_status_controller.h"

namespace {

int statusCodeOf(const QString& text)
{
    bool isCode = false;
    const int code = text.toInt(&isCode);
    if (!isCode)
        throw wrongUsage(
            QStringLiteral(
                "title takes a status code between -2147483648 and 2147483647, found \"%1\"")
                .arg(text));
    return code;
}

} // namespace

void checkTitle(const QStringList& arguments)
{
    statusCodeOf(arguments.first());
}

void runTitle(const CommandLine& line, Output& output, Backend& /*backend*/)
{
    PrinterStatusController controller;
    const int code = statusCodeOf(line.arguments.first());
    const QString title = controller.getStatusTitle(code);
    const QString text = line.json ? json_text::object({
                                         {QStringLiteral("statusEnum"), json_text::value(code)},
                                         {QStringLiteral("title"), json_text::value(title)},
                                     })
                                   : title;
    output.text(text + QLatin1Char('\n'));
}
