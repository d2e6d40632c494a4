// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include <array>

std::span<const Command> commands()
{
    static constexpr std::array table{
        Command{.name = "list",
                .arguments = "",
                .summary = "list the printers of the print spooler",
                .expected = "no arguments",
                .fewestArguments = 0,
                .mostArguments = 0,
                .options = {},
                .check = nullptr,
                .run = runList},
        Command{.name = "watch",
                .arguments = "",
                .summary = "print a line for each change to the label printers",
                .expected = "no arguments",
                .fewestArguments = 0,
                .mostArguments = 0,
                .options = {CommandOption::For, CommandOption::Speed},
                .check = nullptr,
                .run = runWatch},
        Command{.name = "status",
                .arguments = "[PRINTER]",
                .summary = "show the status of all label printers, or of one",
                .expected = "at most one printer",
                .fewestArguments = 0,
                .mostArguments = 1,
                .options = {},
                .check = nullptr,
                .run = runStatus},
        Command{.name = "send",
                .arguments = "PRINTER COMMAND",
                .summary = "send a command in the printer's own language",
                .expected = "a printer and a command",
                .fewestArguments = 2,
                .mostArguments = 2,
                .options = {},
                .check = nullptr,
                .run = runSend},
        Command{.name = "title",
                .arguments = "CODE",
                .summary = "print the title of a status code",
                .expected = "a status code",
                .fewestArguments = 1,
                .mostArguments = 1,
                .options = {},
                .check = checkTitle,
                .run = runTitle},
    };
    return table;
}
