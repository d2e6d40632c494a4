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
    /// Throws `Failure` if an argument is wrong, or does not go with an option. Null: every text is
    /// accepted.
    void (*check)(const CommandLine& line) = nullptr;
};

std::span<const Command> commands();

void runList(const CommandLine& line, Output& output, Backend& backend);
void runWatch(const CommandLine& line, Output& output, Backend& backend);
void runStatus(const CommandLine& line, Output& output, Backend& backend);
void runSend(const CommandLine& line, Output& output, Backend& backend);
void runTitle(const CommandLine& line, Output& output, Backend& backend);
void checkTitle(const CommandLine& line);
