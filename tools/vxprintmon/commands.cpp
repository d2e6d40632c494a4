// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include <array>

std::span<const Command> commands()
{
    static constexpr std::array table{
        Command{.name = "list",
                .summary = QT_TRANSLATE_NOOP("tools", "list the printers of the print spooler"),
                .run = runList},
        Command{.name = "watch",
                .summary = QT_TRANSLATE_NOOP("tools",
                                             "print a line for each change to the label printers"),
                .run = runWatch,
                .options = {CommandOption::For, CommandOption::Speed}},
        Command{.name = "status",
                .summary =
                    QT_TRANSLATE_NOOP("tools", "show the status of all label printers, or of one"),
                .run = runStatus,
                .arguments = "[PRINTER]",
                .expected = QT_TRANSLATE_NOOP("tools", "at most one printer"),
                .mostArguments = 1},
        Command{.name = "send",
                .summary =
                    QT_TRANSLATE_NOOP("tools", "send a command in the printer's own language"),
                .run = runSend,
                .arguments = "PRINTER COMMAND",
                .expected = QT_TRANSLATE_NOOP("tools", "a printer and a command"),
                .fewestArguments = 2,
                .mostArguments = 2,
                .options = {CommandOption::Wait, CommandOption::Force}},
        Command{.name = "title",
                .summary = QT_TRANSLATE_NOOP("tools", "print the title of a status code"),
                .run = runTitle,
                .arguments = "CODE",
                .expected = QT_TRANSLATE_NOOP("tools", "a status code or --all"),
                .mostArguments = 1,
                .options = {CommandOption::All},
                .check = checkTitle},
    };
    return table;
}
