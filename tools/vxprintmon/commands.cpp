// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include <array>

std::span<const Command> commands()
{
    static constexpr std::array table{
        Command{
            .name = "list", .summary = "list the printers of the print spooler", .run = runList},
        Command{.name = "watch",
                .summary = "print a line for each change to the label printers",
                .run = runWatch,
                .options = {CommandOption::For, CommandOption::Speed}},
        Command{.name = "status",
                .summary = "show the status of all label printers, or of one",
                .run = runStatus,
                .arguments = "[PRINTER]",
                .expected = "at most one printer",
                .mostArguments = 1},
        Command{.name = "send",
                .summary = "send a command in the printer's own language",
                .run = runSend,
                .arguments = "PRINTER COMMAND",
                .expected = "a printer and a command",
                .fewestArguments = 2,
                .mostArguments = 2,
                .options = {CommandOption::Wait, CommandOption::Force}},
        Command{.name = "title",
                .summary = "print the title of a status code",
                .run = runTitle,
                .arguments = "CODE",
                .expected = "a status code",
                .fewestArguments = 1,
                .mostArguments = 1,
                .check = checkTitle},
    };
    return table;
}
