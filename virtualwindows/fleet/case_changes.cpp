// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_changes.h"

#include <algorithm>
#include <functional>

namespace virtualwindows::case_changes {

namespace {

/// The machine takes the default printer away with a printer, and gives it its new name. The
/// recorded system may not, and what it did is on a line of its own. That line may belong to an
/// earlier step and have been applied already.
void keepDefaultPrinter(Machine& machine, const std::function<void()>& change)
{
    const QString before = machine.defaultPrinter();
    change();
    if (machine.defaultPrinter() != before)
        machine.setDefaultPrinter(before);
}

} // namespace

void add(Machine& machine, const FleetPrinter& printer)
{
    const QString& name = printer.setup.name;
    if (machine.hasPrinter(name))
        return;
    machine.addPrinter(printer.setup);
    if (!printer.values.isEmpty())
        machine.publish(name, printer.values);
    for (const JobSetup& job : printer.jobs)
        setJob(machine, name, job.id, job);
}

void remove(Machine& machine, const QString& name)
{
    if (!machine.hasPrinter(name))
        return;
    keepDefaultPrinter(machine, [&] { machine.removePrinter(name); });
}

void rename(Machine& machine, const QString& name, const QString& newName)
{
    const bool isSame = name.compare(newName, Qt::CaseInsensitive) == 0;
    if (!machine.hasPrinter(name) || (!isSame && machine.hasPrinter(newName)))
        return;
    keepDefaultPrinter(machine, [&] { machine.renamePrinter(name, newName); });
}

void apply(Machine& machine, const PrinterChange& change)
{
    if (!machine.hasPrinter(change.name))
        return;
    if (change.attributes)
        machine.setAttributes(change.name, *change.attributes);
    if (change.status)
        machine.setStatus(change.name, *change.status);
    if (change.port)
        machine.setPort(change.name, *change.port);
    if (change.driver)
        machine.setDriver(change.name, *change.driver);
    if (change.administrable)
        machine.setAdministrable(change.name, *change.administrable);
}

void publish(Machine& machine, const QString& name, const QList<PrinterValue>& changed,
             const QList<QByteArray>& missing)
{
    const QString current = machine.hasPrinter(name) ? name : machine.watchedPrinter(name);
    if (!current.isNull())
        machine.publish(current, changed, missing);
}

void setJob(Machine& machine, const QString& printer, quint32 id,
            const std::optional<JobSetup>& job)
{
    if (!machine.hasPrinter(printer))
        return;
    if (!job) {
        machine.removeJob(printer, id);
        return;
    }
    // More than anybody looks at would only take time.
    constexpr qsizetype mostJobs = 1024;
    const QList<PrintJob> jobs = machine.jobs(printer);
    const bool isKnown =
        std::ranges::any_of(jobs, [id](const PrintJob& known) { return known.id == id; });
    if (isKnown || jobs.size() < mostJobs)
        machine.setJob(printer, *job);
}

namespace {

/// The jobs after that are those of the beginning.
void setJobs(Machine& machine, const FleetPrinter& printer)
{
    const QString& name = printer.setup.name;
    for (const QList<PrintJob> before = machine.jobs(name); const PrintJob& job : before) {
        if (job.isSet && std::ranges::none_of(
                             printer.jobs, [&](const JobSetup& kept) { return kept.id == job.id; }))
            machine.removeJob(name, job.id);
    }
    for (const JobSetup& job : printer.jobs)
        setJob(machine, name, job.id, job);
}

} // namespace

void turnInto(Machine& machine, const Fleet& fleet)
{
    QStringList gone = machine.printers();
    for (const FleetPrinter& printer : fleet.printers) {
        const QString& name = printer.setup.name;
        gone.removeIf(
            [&](const QString& each) { return each.compare(name, Qt::CaseInsensitive) == 0; });
        if (!machine.hasPrinter(name)) {
            add(machine, printer);
            continue;
        }
        apply(machine, {name, printer.setup.attributes, printer.setup.status, printer.setup.port,
                        printer.setup.driver, printer.setup.administrable});
        QList<QByteArray> missing = machine.valueNames(name);
        for (const PrinterValue& value : printer.values)
            missing.removeOne(value.name.toLower());
        machine.publish(name, printer.values, missing);
        setJobs(machine, printer);
    }
    for (const QString& name : std::as_const(gone))
        machine.removePrinter(name);
    for (const DeviceSetup& device : fleet.devices)
        machine.addDevice(device);
    machine.setDefaultPrinter(fleet.defaultPrinter);
    machine.setSpoolerState(fleet.spoolerState);
}

} // namespace virtualwindows::case_changes
