// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "tool_text.h"

#include <QtCore/QFlags>
#include <QtCore/QStringList>

#include <span>

class Backend;
class Output;
struct CommandLine;

/// The options that only some commands accept. Every command accepts all other options.
enum class CommandOption
{
    For = 1,
    Speed = 2,
    All = 4,
    Wait = 8,
    Force = 16,
    Events = 32, ///< all options of watch alone
    Filter = 64,
    Findings = 128,
    Record = 256,       ///< all options of record alone
    History = 512,      ///< all options of history alone
    HistoryFile = 1024, ///< what reads or writes a history
    Warnings = 2048,    ///< what to warn of
    Site = 4096,        ///< a site's broker in place of this computer's printers
};
Q_DECLARE_FLAGS(CommandOptions, CommandOption)

/// A command of the monitor. The command line is checked against the table of commands and the help
/// is built from it, so adding a command takes an entry there and a function.
struct Command
{
    const char* name;
    const char* summary; ///< for the help
    /// Throws `Failure` if the command cannot be carried out.
    void (*run)(const CommandLine& line, Output& output, Backend& backend);
    const char* arguments = ""; ///< as the help shows them
    const char* expected = QT_TRANSLATE_NOOP(
        "tools", "no arguments"); ///< the arguments as error messages describe them
    qsizetype fewestArguments = 0;
    qsizetype mostArguments = 0;
    CommandOptions options{};
    /// What its own help says besides the summary: one paragraph. Null: nothing.
    const char* details = nullptr;
    /// Throws `Failure` if an argument is wrong, or does not go with an option. Null: every text is
    /// accepted.
    void (*check)(const CommandLine& line) = nullptr;
};

std::span<const Command> commands();

void runList(const CommandLine& line, Output& output, Backend& backend);
void runWatch(const CommandLine& line, Output& output, Backend& backend);
void checkWatch(const CommandLine& line);
void runStatus(const CommandLine& line, Output& output, Backend& backend);
void runSend(const CommandLine& line, Output& output, Backend& backend);
void runTitle(const CommandLine& line, Output& output, Backend& backend);
void runTop(const CommandLine& line, Output& output, Backend& backend);
void checkTop(const CommandLine& line);
/// The same with the printers of a site.
void runTopOfSite(const CommandLine& line, Output& output);
void runForecast(const CommandLine& line, Output& output, Backend& backend);
void runEnough(const CommandLine& line, Output& output, Backend& backend);
void checkEnough(const CommandLine& line);
void runDoctor(const CommandLine& line, Output& output, Backend& backend);
void checkTitle(const CommandLine& line);
void runRecord(const CommandLine& line, Output& output, Backend& backend);
void checkRecord(const CommandLine& line);
