// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include "case_command.h"
#include "history_command.h"
#include "log_command.h"

#include <array>

std::span<const Command> commands()
{
    static constexpr std::array table{
        Command{.name = "list",
                .summary = QT_TRANSLATE_NOOP("tools", "list the printers of the print spooler"),
                .run = runList},
        Command{.name = "watch",
                .summary = QT_TRANSLATE_NOOP(
                    "tools", "print a line for each thing that happens to the label printers"),
                .run = runWatch,
                .arguments = "[PRINTER]...",
                .mostArguments = 1000,
                .options = CommandOptions(CommandOption::For) | CommandOption::Speed |
                           CommandOption::Events | CommandOption::HistoryFile |
                           CommandOption::Warnings,
                .details = QT_TRANSLATE_NOOP(
                    "tools",
                    "It begins with the printers as they are, and then prints one line for each "
                    "event until it is interrupted. With printers, only what happens to these. A "
                    "level that only counts down is printed when it falls to 25, 10 and 5 %. With "
                    "--json, each line is an object; the first one holds all printers."),
                .check = checkWatch},
        Command{
            .name = "status",
            .summary =
                QT_TRANSLATE_NOOP("tools", "show the status of all label printers, or of one"),
            .run = runStatus,
            .arguments = "[PRINTER]",
            .expected = QT_TRANSLATE_NOOP("tools", "at most one printer"),
            .mostArguments = 1,
            .details = QT_TRANSLATE_NOOP(
                "tools",
                "The letter case of a printer's name does not matter. With --json, it waits until "
                "every printer that it shows has reported and 0.1 seconds have passed without "
                "another report, but no longer than 2 seconds. It then spends up to half a second "
                "more on reports that have arrived by that time.")},
        Command{.name = "log",
                .summary = QT_TRANSLATE_NOOP("tools", "print a log of what happened to printers"),
                .run = runLog,
                .arguments = "FILE",
                .expected = QT_TRANSLATE_NOOP("tools", "a file"),
                .fewestArguments = 1,
                .mostArguments = 1,
                .options = {CommandOption::Filter},
                .check = checkLog},
        Command{.name = "record",
                .summary =
                    QT_TRANSLATE_NOOP("tools", "record what printers do, for those who help"),
                .run = runRecord,
                .arguments = "FILE",
                .expected = QT_TRANSLATE_NOOP("tools", "a file"),
                .fewestArguments = 1,
                .mostArguments = 1,
                .options = CommandOptions(CommandOption::For) | CommandOption::Speed |
                           CommandOption::Record,
                .details = QT_TRANSLATE_NOOP(
                    "tools",
                    "It records everything that the print spooler tells the library and what the "
                    "library makes of it, until it is interrupted, beside other programs that use "
                    "the printers. FILE is complete also after a crash, and is a case file for "
                    "\"case\", --virtual and those who help. It must not exist. Every half minute "
                    "it prints what it has recorded."),
                .check = checkRecord},
        Command{.name = "case",
                .summary =
                    QT_TRANSLATE_NOOP("tools", "show, explain, redact or verify a case file"),
                .run = runCase,
                .arguments = "ACTION FILE...",
                .expected = QT_TRANSLATE_NOOP("tools", "an action and one or two files"),
                .fewestArguments = 1,
                .mostArguments = 3,
                .options = {CommandOption::Findings},
                .details = QT_TRANSLATE_NOOP(
                    "tools",
                    "\"case show FILE\" tells what is in a case file. \"case explain FILE\" names "
                    "the faults that it recognises, with the lines that show them and what to do. "
                    "\"case redact IN OUT\" writes a copy without the names of people, computers "
                    "and printers, serial numbers and addresses. \"case verify FILE\" plays the "
                    "case again and compares what the library does now with what was recorded."),
                .check = checkCase},
        Command{.name = "history",
                .summary = QT_TRANSLATE_NOOP("tools", "print what printers have used"),
                .run = runHistory,
                .arguments = "[PRINTER]",
                .expected = QT_TRANSLATE_NOOP("tools", "at most one printer"),
                .mostArguments = 1,
                .options = CommandOptions(CommandOption::History) | CommandOption::HistoryFile,
                .details = QT_TRANSLATE_NOOP(
                    "tools",
                    "It prints one line for each roll and ribbon: what was loaded, from when until "
                    "when, how much of it was used, and how much a day on average. A printer is "
                    "named by its name or its serial number. \"vxprintmon watch --history\" "
                    "records all this."),
                .check = checkHistory},
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
        Command{.name = "forecast",
                .summary = QT_TRANSLATE_NOOP("tools", "say when rolls and ribbons will end"),
                .run = runForecast,
                .arguments = "[PRINTER]",
                .expected = QT_TRANSLATE_NOOP("tools", "at most one printer"),
                .mostArguments = 1,
                .options = CommandOptions(CommandOption::HistoryFile) | CommandOption::Warnings,
                .details = QT_TRANSLATE_NOOP(
                    "tools",
                    "It learns from the user's history, which \"vxprintmon watch --history\" "
                    "records. In four of five cases, what is loaded ends between the two times of "
                    "the last column. With --warn-below, --job or --shift-end, it also prints what "
                    "\"watch\" would warn of.")},
        Command{.name = "enough",
                .summary = QT_TRANSLATE_NOOP(
                    "tools", "say whether a job fits: the right supply and ribbon, and enough"),
                .run = runEnough,
                .arguments = "PRINTER SKU LABELS [RIBBON]...",
                .expected = QT_TRANSLATE_NOOP(
                    "tools", "a printer, the SKU of a supply, a number of labels and SKUs of "
                             "ribbons"),
                .fewestArguments = 3,
                .mostArguments = 10,
                .details = QT_TRANSLATE_NOOP(
                    "tools",
                    "The exit status is 0 if the job can be printed with what is loaded, 3 if not, "
                    "and 4 if that is not known. Each ribbon that is named must be loaded; without "
                    "one, any loaded ribbon will do that suits the supply and lasts."),
                .check = checkEnough},
        Command{.name = "doctor",
                .summary = QT_TRANSLATE_NOOP("tools",
                                             "check everything from the spooler to the catalogue"),
                .run = runDoctor,
                .arguments = "[PRINTER]",
                .expected = QT_TRANSLATE_NOOP("tools", "at most one printer"),
                .mostArguments = 1},
        Command{.name = "top",
                .summary = QT_TRANSLATE_NOOP("tools", "show all label printers in a live table"),
                .run = runTop,
                .options = {CommandOption::For, CommandOption::Speed, CommandOption::Site},
                .details = QT_TRANSLATE_NOOP(
                    "tools", "With --broker or --broker-config, the printers are those of a whole "
                             "site, as its agents publish them over MQTT. FILE names the user and "
                             "the file with the password in \"mqtt\"; a URL has neither."),
                .check = checkTop},
    };
    return table;
}
