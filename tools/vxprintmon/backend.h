// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "command_line.h"

#include <QtCore/QList>
#include <QtCore/QObject>

#include <functional>
#include <memory>
#include <optional>

/// The printers that the monitor works with: those of the system, or virtual ones with a story. The
/// build chooses the source file that implements it.
class Backend : public QObject
{
    Q_OBJECT

public:
    /// Creates the backend that the command line asks for, or throws `Failure`. If the command line
    /// names no fleet, it is that of the environment variable VX_VIRTUAL_FLEET, if this build has
    /// virtual printers.
    static std::unique_ptr<Backend> create(const CommandLine& line,
                                           const QString& fleetOfEnvironment);

    /// The supply database that came with the printers; empty if none did.
    virtual QString catalogueFile() const { return {}; }

    /// Starts to notice printers that come and go, or the clock and with it the story of virtual
    /// printers. `watchedPrinters` returns how many printers are watched at that moment.
    virtual void start(const std::function<int()>& watchedPrinters) = 0;

    struct Job
    {
        int id = 0;
        QString document;
        QString datatype;
        QList<QByteArray> pages;
    };
    /// The printer's last print job, if there is one and this backend can read it.
    virtual std::optional<Job> lastJob(const QString& printer) const = 0;

Q_SIGNALS:
    /// Announces the next event of the story.
    void narrated(const QString& caption);
    /// Printers may have been added, removed or renamed, or there is another default printer.
    void printersMayHaveChanged();

protected:
    using QObject::QObject;
};
