// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_discovery.h"

#include "discovery_thread.h"

#include "printer_status_controller.h"

#include <QtCore/QPointer>

#include <exception>
#include <optional>

namespace VxKit {

class PrinterDiscovery::Private
{
public:
    Private(PrinterDiscovery& discovery, PrinterStatusController* printers)
        : q(discovery)
        , controller(printers)
    {}

    void start();
    void apply(const DiscoveryNews& news);
    void checkForPrinters();
    bool isCalledOnOwnThread(const char* member) const;

    PrinterDiscovery& q;
    const QPointer<PrinterStatusController> controller;
    QStringList names;
    QString defaultPrinter;
    bool isSpoolerRunning = true;
    bool isNotified = false;
    std::optional<DiscoveryThread> thread;
};

void PrinterDiscovery::Private::start()
{
    // The thread has ended before the object is destroyed, and calls that are queued by then are
    // dropped with it.
    thread.emplace([this](const DiscoveryNews& news) {
        QMetaObject::invokeMethod(
            &q, [this, news] { apply(news); }, Qt::QueuedConnection);
    });
    thread->start();
}

bool PrinterDiscovery::Private::isCalledOnOwnThread(const char* member) const
{
    if (QThread::currentThread() == q.thread())
        return true;
    qWarning("VxKit::PrinterDiscovery::%s was called on another thread than the object's", member);
    return false;
}

void PrinterDiscovery::Private::checkForPrinters()
{
    if (!controller)
        return;
    if (controller->thread() != QThread::currentThread()) {
        qWarning("VxKit::PrinterDiscovery: the controller has moved to another thread, so its "
                 "checkForPrinters() cannot be called");
        return;
    }
    try {
        controller->checkForPrinters();
    } catch (const std::exception& error) {
        qWarning("VxKit::PrinterDiscovery: the controller cannot look for printers: %s",
                 error.what());
    }
}

void PrinterDiscovery::Private::apply(const DiscoveryNews& news)
{
    names = news.names;
    defaultPrinter = news.defaultPrinter;
    isSpoolerRunning = news.isSpoolerRunning;
    isNotified = news.isNotified;

    // Every slot may destroy the object.
    const QPointer<PrinterDiscovery> alive(&q);
    const ListingChanges& changes = news.changes;
    const bool areListed = changes.any || news.isFirst;
    if (areListed || news.isDefaultNew)
        checkForPrinters();
    if (alive && areListed)
        Q_EMIT q.printersChanged();
    for (const QString& name : changes.gone) {
        if (alive)
            Q_EMIT q.gone(name);
    }
    for (const auto& [oldName, newName] : changes.renamed) {
        if (alive)
            Q_EMIT q.renamed(oldName, newName);
    }
    for (const QString& name : changes.added) {
        if (alive)
            Q_EMIT q.added(name);
    }
    for (const auto& [name, online] : changes.online) {
        if (alive)
            Q_EMIT q.onlineChanged(name, online);
    }
    for (const auto& [name, administrable] : changes.administrable) {
        if (alive)
            Q_EMIT q.rightsChanged(name, administrable);
    }
    if (alive && news.isDefaultNew && !news.isFirst)
        Q_EMIT q.defaultPrinterChanged(news.defaultPrinter);
    if (alive && news.isRunningNew)
        Q_EMIT q.spoolerRunningChanged(news.isSpoolerRunning);
}

PrinterDiscovery::PrinterDiscovery(PrinterStatusController* controller, QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>(*this, controller))
{
    if (controller && controller->thread() != thread()) {
        qWarning("VxKit::PrinterDiscovery was created on another thread than the controller's, so "
                 "it discovers nothing");
        return;
    }
    d->start();
}

PrinterDiscovery::~PrinterDiscovery()
{
    d->isCalledOnOwnThread("~PrinterDiscovery");
}

QStringList PrinterDiscovery::printers() const
{
    return d->isCalledOnOwnThread("printers") ? d->names : QStringList();
}

QString PrinterDiscovery::defaultPrinter() const
{
    return d->isCalledOnOwnThread("defaultPrinter") ? d->defaultPrinter : QString();
}

bool PrinterDiscovery::isSpoolerRunning() const
{
    return d->isCalledOnOwnThread("isSpoolerRunning") && d->isSpoolerRunning;
}

bool PrinterDiscovery::isNotified() const
{
    return d->isCalledOnOwnThread("isNotified") && d->isNotified;
}

} // namespace VxKit
