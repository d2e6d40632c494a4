// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "internals.h"

#include <QtCore/QtEndian>

#include <algorithm>
#include <utility>

namespace virtualwindows {

PrinterValue PrinterValue::text(const QByteArray& name, const QByteArray& value)
{
    QByteArray data = value;
    data.append('\0');
    return {name, REG_SZ, data};
}

PrinterValue PrinterValue::number(const QByteArray& name, quint32 value)
{
    QByteArray data(sizeof value, Qt::Uninitialized);
    qToLittleEndian(value, data.data());
    return {name, REG_DWORD, data};
}

PrinterValue PrinterValue::binary(const QByteArray& name, const QByteArray& bytes)
{
    return {name, REG_BINARY, bytes};
}

Machine::Machine()
    : d(std::make_unique<Private>())
{}
Machine::~Machine() = default;

Machine& Machine::instance()
{
    // Never destroyed, because threads may still be in a call while the process ends.
    static Machine& machine = *new Machine;
    return machine;
}

void Machine::reset()
{
    driveTime(false);
    const std::lock_guard guard(d->lock);
    d->objects.clear();
    d->misuses.clear();
    d->printers.clear();
    d->byName.clear();
    d->defaultPrinter = QString();
    d->spoolerState = SERVICE_RUNNING;
    d->nextJob = 1;
    d->notifications.clear();
    d->movingPrinters.clear();
    d->deviceClasses.clear();
    d->calls.clear();
    d->recording = false;
    d->hook = nullptr;
    d->failures = {};
    d->nextFailures.clear();
    d->holdsNotifications = false;
    d->failsOnlyAsPlanned = false;
    for (std::atomic<int>& count : d->counts)
        count = 0;
    d->drivenNow = {};
    d->updateAttention();
}

std::shared_ptr<Printer> Machine::Private::printerNamed(const QString& name) const
{
    // The spooler ignores case in names. If a machine is set up with names that differ only in
    // case, an exact match is preferred.
    if (const auto found = byName.constFind(name); found != byName.constEnd())
        return *found;
    const auto isNamed = [&](const std::shared_ptr<Printer>& printer) {
        return !printer->setup.name.isNull() &&
               printer->setup.name.compare(name, Qt::CaseInsensitive) == 0;
    };
    const auto found = std::find_if(printers.begin(), printers.end(), isNamed);
    return found == printers.end() ? nullptr : *found;
}

void Machine::Private::add(const std::shared_ptr<Printer>& printer)
{
    printers.append(printer);
    addName(printer);
}

void Machine::Private::addName(const std::shared_ptr<Printer>& printer)
{
    const QString& name = printer->setup.name;
    if (!name.isNull() && !byName.contains(name))
        byName.insert(name, printer);
}

void Machine::Private::rebuildNames()
{
    byName.clear();
    for (const auto& printer : std::as_const(printers))
        addName(printer);
}

void Machine::Private::notify(const Printer* printer, DWORD change, const PrintJob* job)
{
    constexpr std::size_t mostJobStatuses = 1000;
    if (holdsNotifications)
        return;
    std::erase_if(notifications, [](const auto& notification) { return notification.expired(); });
    for (const auto& entry : notifications) {
        const std::shared_ptr<ChangeNotification> notification = entry.lock();
        const bool isWatched = !notification->printer || notification->printer.get() == printer;
        const DWORD changes = change & notification->filter;
        const bool isDetail = job && notification->reportsJobStatuses;
        if (!isWatched || !(changes || isDetail) || notification->dead)
            continue;
        if (isDetail && notification->jobStatuses.size() < mostJobStatuses)
            notification->jobStatuses.push_back({job->id, job->status});
        else if (isDetail)
            notification->lostJobStatuses = true;
        notification->changes |= changes;
        signal(*notification);
    }
}

void Machine::Private::setSpoolerState(DWORD state)
{
    spoolerState = state;
    for (const auto& printer : std::as_const(printers))
        updateJobs(*printer);
    if (isSpoolerRunning())
        return;
    // All handles from the service end with it.
    for (const auto& [value, object] : objects) {
        if (object->kind == Object::Kind::Printer) {
            static_cast<PrinterHandleObject&>(*object).dead = true;
        } else if (object->kind == Object::Kind::ChangeNotification) {
            auto& notification = static_cast<ChangeNotification&>(*object);
            notification.dead = true;
            notification.signalled = false;
        }
    }
    notifications.clear();
}

void Machine::setSpoolerState(quint32 state)
{
    const std::lock_guard guard(d->lock);
    d->setSpoolerState(state);
}

quint32 Machine::spoolerState() const
{
    const std::lock_guard guard(d->lock);
    return d->spoolerState;
}

namespace {

/// The printer that a test or a story names. If it does not exist, that is a mistake in the test,
/// which must not go unnoticed.
Printer& existing(Machine::Private& machine, const QString& name)
{
    const std::shared_ptr<Printer> printer = machine.printerNamed(name);
    if (!printer)
        qFatal("virtualwindows: there is no printer \"%s\"", qPrintable(name));
    return *printer;
}

void changeValues(Printer& printer, const QList<PrinterValue>& values,
                  const QList<QByteArray>& unpublished)
{
    for (const PrinterValue& value : values)
        printer.values.insert(value.name.toLower(), Value::fromNarrow(value.type, value.data));
    for (const QByteArray& name : unpublished)
        printer.values.remove(name.toLower());
}

template <typename Change>
void changePrinter(Machine::Private& machine, const QString& name, Change change)
{
    const std::lock_guard guard(machine.lock);
    Printer& printer = existing(machine, name);
    change(printer);
    machine.notify(&printer, PRINTER_CHANGE_SET_PRINTER);
    machine.updateJobs(printer);
}

} // namespace

void Machine::addPrinter(const PrinterSetup& setup)
{
    const std::lock_guard guard(d->lock);
    auto printer = std::make_shared<Printer>();
    printer->setup = setup;
    d->add(printer);
    d->notify(printer.get(), PRINTER_CHANGE_ADD_PRINTER);
}

void Machine::removePrinter(const QString& name)
{
    const std::lock_guard guard(d->lock);
    d->removePrinter(existing(*d, name));
}

void Machine::Private::removePrinter(Printer& printer)
{
    if (defaultPrinter == printer.setup.name)
        defaultPrinter = QString();
    printer.deleted = !failsOnlyAsPlanned;
    stopPrinting(printer);
    notify(&printer, PRINTER_CHANGE_DELETE_PRINTER);
    printers.removeIf([&](const auto& entry) { return entry.get() == &printer; });
    rebuildNames();
}

void Machine::renamePrinter(const QString& name, const QString& newName)
{
    changePrinter(*d, name, [&](Printer& printer) {
        if (d->defaultPrinter == printer.setup.name)
            d->defaultPrinter = newName;
        printer.setup.name = newName;
        d->rebuildNames();
    });
}

void Machine::setAttributes(const QString& name, quint32 attributes)
{
    changePrinter(*d, name, [&](Printer& printer) { printer.setup.attributes = attributes; });
}

void Machine::setStatus(const QString& name, quint32 status)
{
    changePrinter(*d, name, [&](Printer& printer) { printer.setup.status = status; });
}

void Machine::setPort(const QString& name, const QString& port)
{
    changePrinter(*d, name, [&](Printer& printer) { printer.setup.port = port; });
}

void Machine::setDriver(const QString& name, const QString& driver)
{
    changePrinter(*d, name, [&](Printer& printer) { printer.setup.driver = driver; });
}

void Machine::setAdministrable(const QString& name, bool administrable)
{
    changePrinter(*d, name, [&](Printer& printer) { printer.setup.administrable = administrable; });
}

void Machine::setDefaultPrinter(const QString& name)
{
    const std::lock_guard guard(d->lock);
    d->defaultPrinter = name;
}

void Machine::setPrintingTime(const QString& printer, std::chrono::milliseconds time)
{
    const std::lock_guard guard(d->lock);
    existing(*d, printer).setup.printingTime = time;
}

void Machine::limitWrites(const QString& printer, quint32 bytes)
{
    const std::lock_guard guard(d->lock);
    existing(*d, printer).writeLimit = bytes;
}

QString Machine::defaultPrinter() const
{
    const std::lock_guard guard(d->lock);
    return d->defaultPrinter;
}

bool Machine::hasPrinter(const QString& name) const
{
    const std::lock_guard guard(d->lock);
    return d->printerNamed(name) != nullptr;
}

QStringList Machine::printers() const
{
    const std::lock_guard guard(d->lock);
    QStringList names;
    for (const auto& printer : std::as_const(d->printers))
        names.append(printer->setup.name);
    return names;
}

void Machine::publish(const QString& printer, const PrinterValue& value)
{
    publish(printer, QList<PrinterValue>{value});
}

void Machine::publish(const QString& printer, const QList<PrinterValue>& values)
{
    publish(printer, values, {});
}

void Machine::publish(const QString& printer, const QList<PrinterValue>& values,
                      const QList<QByteArray>& unpublished)
{
    changePrinter(*d, printer, [&](Printer& entry) { changeValues(entry, values, unpublished); });
}

bool Machine::publishWatched(const QString& printer, const QList<PrinterValue>& values,
                             const QList<QByteArray>& unpublished)
{
    const std::lock_guard guard(d->lock);
    Printer* const watched = d->watchedBy(printer);
    if (!watched)
        return false;
    changeValues(*watched, values, unpublished);
    d->notify(watched, PRINTER_CHANGE_SET_PRINTER);
    d->updateJobs(*watched);
    return true;
}

void Machine::unpublish(const QString& printer, const QByteArray& valueName)
{
    publish(printer, {}, {valueName});
}

QList<QByteArray> Machine::valueNames(const QString& printer) const
{
    const std::lock_guard guard(d->lock);
    return existing(*d, printer).values.keys();
}

void Machine::notify(const QString& printer, quint32 change)
{
    const std::lock_guard guard(d->lock);
    const bool holds = std::exchange(d->holdsNotifications, false);
    d->notify(&existing(*d, printer), change);
    d->holdsNotifications = holds;
}

void Machine::holdNotifications(bool hold)
{
    const std::lock_guard guard(d->lock);
    d->holdsNotifications = hold;
}

void Machine::failOnlyAsPlanned(bool only)
{
    const std::lock_guard guard(d->lock);
    d->failsOnlyAsPlanned = only;
}

QList<PrintJob> Machine::jobs(const QString& printer) const
{
    const std::lock_guard guard(d->lock);
    d->catchUp();
    return existing(*d, printer).jobs;
}

void Machine::setJob(const QString& printer, const JobSetup& job)
{
    const std::lock_guard guard(d->lock);
    d->catchUp();
    d->setJob(existing(*d, printer), job);
}

void Machine::removeJob(const QString& printer, quint32 id)
{
    const std::lock_guard guard(d->lock);
    d->catchUp();
    Printer& from = existing(*d, printer);
    const bool isQueued = std::ranges::any_of(
        from.jobs, [id](const PrintJob& job) { return job.queued && job.id == id; });
    if (isQueued)
        d->deleteJob(from, id);
}

} // namespace virtualwindows
