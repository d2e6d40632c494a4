// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>
#include <variant>

enum class Verb
{
    List,
    Watch,
    Status,
    Send,
    Title,
};

struct CommandLine
{
    Verb verb = Verb::List;
    QStringList words; ///< what follows the verb, as many as it takes
    bool json = false;
    QString logFile;               ///< what the library's log goes into; empty: nothing
    QString fleetFile;             ///< empty: the built-in fleet, or the system's own printers
    std::optional<double> seconds; ///< how long to watch; without it, until interrupted
    double speed = 1;              ///< of the fleet's story
    int code = 0;                  ///< the status code whose title is wanted
};

/// Wrong usage, in one line.
struct WrongUsage
{
    QString text;
};

/// A text that was asked for, to be printed instead of doing anything.
struct Answer
{
    QString text;
};

std::variant<CommandLine, WrongUsage, Answer> parseCommandLine(const QStringList& arguments);
