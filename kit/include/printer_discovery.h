// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "vxprinterstatuskit_export.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

class PrinterStatusController;

namespace VxKit {

/// Finds printers that come, go, are renamed, or are taken on or off line, without being asked.
///
/// @code
/// PrinterStatusController controller;
/// VxKit::PrinterReadings readings(&controller);
/// VxKit::PrinterDiscovery discovery(&controller);
/// QObject::connect(&discovery, &VxKit::PrinterDiscovery::printersChanged, &readings,
///                  &VxKit::PrinterReadings::refresh);
/// @endcode
///
/// **What it does.** Whenever something has changed, it calls the controller's
/// `checkForPrinters()`, so that new printers are watched and printers that were offline are looked
/// at again, and then emits the signals below. It does so once at the start too, because printers
/// may have changed between the controller's construction and this object's. A record of the
/// controller remains when its printer is gone.
///
/// **How fast.** The print spooler itself reports changes, on a thread that this object owns and
/// that waits for them:
///
/// | change | is noticed |
/// |---|---|
/// | printer added, deleted, renamed, taken on or off line; port, driver or attributes changed | at
/// once | | another default printer chosen | within 5 seconds, since the spooler does not report it
/// | | the user's rights changed | within 5 seconds for every eight printers of supported models |
/// | print spooler stopped or started | within 5 seconds |
///
/// Changes that follow each other are taken together: after each listing the thread rests for a
/// second, or for a hundred times as long as the listing took if that is longer, up to 30 seconds.
/// So drivers that publish values all the time cost next to nothing.
///
/// Where the spooler reports no changes (Wine, and Windows while its service restarts), the thread
/// compares the printers' names every 5 seconds. A rename then is a printer gone and another one
/// added, and being taken off line by the port is noticed as slowly as a change of rights.
///
/// **Threads.** The object belongs to the controller's thread, which needs an event loop. All
/// members are called and all signals are emitted there. An object that is created on another
/// thread than the controller's prints a warning and discovers nothing.
///
/// **Lifetime.** The controller may be destroyed first; the signals continue without it. The object
/// may be destroyed in a slot that is connected to one of its signals. The destructor ends the
/// thread; it waits only for a call to the spooler that is in progress.
class VX_KIT_EXPORT PrinterDiscovery : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QStringList printers READ printers NOTIFY printersChanged)
    Q_PROPERTY(QString defaultPrinter READ defaultPrinter NOTIFY defaultPrinterChanged)
    Q_PROPERTY(bool spoolerRunning READ isSpoolerRunning NOTIFY spoolerRunningChanged)

public:
    /// Starts to look for changes. The controller may be null: then only the signals are emitted.
    explicit PrinterDiscovery(PrinterStatusController* controller, QObject* parent = nullptr);
    ~PrinterDiscovery() override;
    Q_DISABLE_COPY_MOVE(PrinterDiscovery)

    /// All printers that the spooler lists, of every maker, in its order. Empty until the first
    /// `printersChanged()`. While the spooler is stopped, those that it listed last.
    QStringList printers() const;
    /// The user's default printer; empty when there is none, and until the first
    /// `printersChanged()`.
    QString defaultPrinter() const;
    /// False from when the spooler was found not to answer until it answers again.
    bool isSpoolerRunning() const;
    /// Whether the spooler reports changes now. False while the names are compared instead, and
    /// until the first `printersChanged()`.
    bool isNotified() const;

Q_SIGNALS:
    /// The printers that the spooler lists have changed, or one of their ports, drivers, attributes
    /// or offline states, or the user's rights. Emitted after the controller's
    /// `checkForPrinters()` and before the signals that say what has changed. Emitted once at the
    /// start, and once when the spooler runs again.
    void printersChanged();
    /// The spooler no longer lists the printer.
    void gone(const QString& name);
    /// The printer has a new name. Only emitted when that is certain: when the spooler reported a
    /// changed printer, and neither one that was added nor one that was deleted.
    void renamed(const QString& oldName, const QString& newName);
    /// The spooler lists a printer that it did not list before.
    void added(const QString& name);
    /// The spooler takes the printer for online, or no longer does.
    void onlineChanged(const QString& name, bool online);
    /// The user may administer a printer of a supported model, or no longer may. The controller
    /// does not begin or end to watch a printer because of this.
    void rightsChanged(const QString& name, bool administrable);
    /// The user's default printer is another one; `name` is empty when there is none any more.
    void defaultPrinterChanged(const QString& name);
    void spoolerRunningChanged(bool running);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace VxKit
