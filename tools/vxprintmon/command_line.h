// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

struct Command;

struct CommandLine
{
    const Command* command = nullptr; ///< null if the user only asked for `information`
    QString information;              ///< the help or the version, printed instead of a command
    QStringList arguments;            ///< of the command; their number is right
    bool json = false;
    QString logFile;               ///< the library's log is appended to it; empty: no log
    QString fleetFile;             ///< empty: the built-in fleet, or the system's own printers
    std::optional<double> seconds; ///< how long to watch; without a value, until interrupted
    bool wait = false;             ///< for the end of the print job
    bool force = false;            ///< send what would be refused
    double speed = 1;              ///< of the virtual printers' story
    bool all = false;              ///< of title
};

/// Throws `Failure` if the arguments are wrong.
CommandLine parseCommandLine(const QStringList& arguments);
