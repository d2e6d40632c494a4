// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTime>

#include <optional>

struct Command;

struct CommandLine
{
    const Command* command = nullptr; ///< null if the user only asked for `information`
    QString information;              ///< the help or the version, printed instead of a command
    QStringList arguments;            ///< of the command; their number is right
    bool json = false;
    QString libraryLogFile;        ///< the library's log is appended to it; empty: no log
    QString eventLogFile;          ///< what watch sees is appended to it; empty: no log
    QString fleetFile;             ///< empty: the built-in fleet, or the system's own printers
    QString broker;                ///< a URL; empty: that of the next
    QString brokerConfigFile;      ///< empty: no user, no certificates of one's own
    QString catalogueFile;         ///< empty: what the environment names, or roll.db
    std::optional<double> seconds; ///< how long to watch; without a value, until interrupted
    bool wait = false;             ///< for the end of the print job
    bool force = false;            ///< send what would be refused
    double speed = 1;              ///< of the virtual printers' story
    bool all = false;              ///< of title
    bool relative = false;         ///< of watch, as the next two
    bool verbose = false;
    bool watchSignals = false;
    bool history = false;         ///< of watch: record what is used
    bool csv = false;             ///< of history
    QString historyFile;          ///< empty: the user's own
    std::optional<int> warnBelow; ///< labels; without a value the default, 0: never
    std::optional<int> job;       ///< so many labels are to be printed next
    QList<QTime> shiftEnds;
    QString printer;      ///< of log; empty: all printers
    QString since;        ///< of log, as given; empty: from the beginning
    QString severity;     ///< of log, the least one; empty: all
    QString findingsFile; ///< of case explain; empty: those of the tool alone
    QString limit;        ///< of record, as given; empty: the default
    bool plain = false;   ///< of record

    /// Whether it is about the printers of a site.
    bool isOfSite() const { return !broker.isEmpty() || !brokerConfigFile.isEmpty(); }
};

/// Throws `Failure` if the arguments are wrong.
CommandLine parseCommandLine(const QStringList& arguments);
