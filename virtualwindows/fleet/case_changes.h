// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Changes that a case recorded, made again. A case may name a printer that does not exist at that
// time: the recorder saw the system at other moments than the library, and while the case is played
// the program can change printers too. Such a change has no effect.
#pragma once

#include "virtualwindows/fleet.h"

#include <optional>

namespace virtualwindows::case_changes {

/// A changed printer; what is absent stays as it is.
struct PrinterChange
{
    QString name;
    std::optional<quint32> attributes;
    std::optional<quint32> status;
    std::optional<QString> port;
    std::optional<QString> driver;
    std::optional<bool> administrable;
};

void add(Machine& machine, const FleetPrinter& printer);
void remove(Machine& machine, const QString& name);
void rename(Machine& machine, const QString& name, const QString& newName);
void apply(Machine& machine, const PrinterChange& change);
/// `name` is that of a printer, or the one by which a thread opened a printer that it watches.
void publish(Machine& machine, const QString& name, const QList<PrinterValue>& changed,
             const QList<QByteArray>& missing);
/// A job of a printer's queue, or null when the job `id` has left it.
void setJob(Machine& machine, const QString& printer, quint32 id,
            const std::optional<JobSetup>& job);
/// Makes the machine what it would be if it had been populated with the fleet, without removing
/// printers that stay.
void turnInto(Machine& machine, const Fleet& fleet);

} // namespace virtualwindows::case_changes
