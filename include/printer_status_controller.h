// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_status_information.h"
#include "printer_types.h"
#include "vxprinterstatus_export.h"

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariantList>

class PrinterStatusThread;
class VXIPCM4Controller;
class VXIPCSUPPLYDController;
struct AvailablePrinters;

/// The one object that a host creates: it finds the maker's label printers, watches them and
/// reports every change.
///
/// @code
/// PrinterStatusController printers(nullptr);
/// QObject::connect(&printers, &PrinterStatusController::availablePrintersUpdated, [&printers] {
///     for (const QVariant& entry : printers.getAvailablePrinters()) {
///         const auto printer = entry.value<PrinterStatusInformation>();
///         qDebug() << printer.printerName << printers.getStatusTitle(printer.statusEnum);
///     }
/// });
/// @endcode
///
/// **Which printers get a record.** Printers of other makers and of unsupported models are ignored
/// for as long as the controller lives. A supported printer that is offline when it is found is
/// evaluated again at each `checkForPrinters()`. Every other printer gets a record, which it keeps
/// until the controller is destroyed, even when the printer is removed from Windows. Network
/// printers (status 256) and printers that the user may not administer (258) are only listed; all
/// others are watched, each on a thread of its own.
///
/// **The active printer** is the one that the host works with. The Windows default printer becomes
/// active as soon as it is found, or reports while it is online. While no printer is active, the
/// first online printer that reports becomes active. When the active printer goes offline, and when
/// none was found at the start, one is chosen from the records: the first local printer by name,
/// whether it is online or not, or the last network printer when all are network printers. Only
/// without any record is it the Windows default printer, or another printer that is not offline.
///
/// **Threads.** The controller belongs to the thread that creates it, which needs an event loop.
/// The reports of the watching threads arrive there as queued calls, and every signal is emitted
/// there. Call all members on that thread. They block for as long as the print spooler does.
///
/// **Slots.** A slot that is connected to one of the signals may call every member, run an event
/// loop, and delete the controller with `deleteLater()`, before that event loop or inside it. If
/// the controller is deleted in such an event loop, the remaining signals of the report are not
/// emitted. A slot must not use `delete`.
///
/// **Failures** are neither raised nor returned as codes. A spooler that does not answer counts as
/// one without printers; a value that cannot be read is empty, zero, or status 255 or 257. The log
/// has the details that people who support printers need.
class VX_PRINTERSTATUS_EXPORT PrinterStatusController : public QObject
{
    Q_OBJECT
    /// Every record, for QML; see `getAvailablePrinters()`.
    Q_PROPERTY(
        QVariantList availablePrinters READ getAvailablePrinters NOTIFY availablePrintersUpdated)

public:
    /// Opens the services that other processes call, finds the printers, starts to watch them and
    /// chooses the active one. No slot can be connected yet to the signals of that time, so read
    /// `availablePrinters`, `activeDefaultPrinter()` and `vxDefaultActivePrinter()` afterwards.
    explicit PrinterStatusController(QObject* parent = nullptr);
    /// Ends all watching threads. That takes as long as the slowest spooler call that one of them
    /// is in. Reports that have not been delivered are dropped.
    ~PrinterStatusController() override;
    Q_DISABLE_COPY_MOVE(PrinterStatusController)

    /// The printer-controller service, which the controller owns. Never null.
    VXIPCM4Controller* getm4Controller();
    /// The supply-database service, which the controller owns. Never null.
    VXIPCSUPPLYDController* getSupplyIdController();

    /// The active printer's name in the print spooler; empty when no printer is active.
    QString activeDefaultPrinter() const;
    /// Whether the active printer was chosen from the records. False when it was chosen from the
    /// other printers because there were no records, and when no printer is active.
    bool vxDefaultActivePrinter() const;

    /// A copy of every record, each a `PrinterStatusInformation`, in the order of the printers'
    /// names. Empty when no printer has a record.
    QVariantList getAvailablePrinters() const;

    /// The thread that watches a printer, by the name under which the printer was found; null when
    /// the printer is not watched. The controller owns the thread: connect to its signals and call
    /// its functions that read values, but do not start, stop, rename or delete it. A slot that is
    /// connected to it on the controller's thread runs after the controller's own slot for the same
    /// report.
    PrinterStatusThread* statusThread(const QString& printerName) const;

    /// Reports an error that the host has noticed itself. True raises the error state; false checks
    /// all records and clears the error state if none of them is in error.
    void updateCachedStatus(bool inError);

Q_SIGNALS:
    /// A record may have changed. It is not emitted when a printer is found, but when the printer
    /// reports for the first time.
    void availablePrintersUpdated();
    /// The error state was raised (true) or cleared (false). Emitted before the other signals of
    /// the report that caused it.
    void printerErrorChangedSignal(bool printerInErrorState);
    /// A printer reported its status; `status` is the code in its record (see status_codes.h).
    /// `availablePrintersUpdated()` is emitted after it, except when a report that is not a number
    /// finds the printer offline: then it is emitted before. Also emitted once, with 0, for each
    /// printer that is found and ignored.
    void statusChangedSignal(int status, QString printerName);
    /// The supply of a printer was changed or removed. `availablePrintersUpdated()` is emitted
    /// after it.
    void supplyIdChangedSignal(QString printerName);
    /// A ribbon of a printer was changed or removed. `availablePrintersUpdated()` is emitted after
    /// it. A removed ribbon stays in the record until another one is loaded.
    void ribbonIdsChangedSignal(QString printerName);
    /// A printer became the active printer, or was confirmed as such; `isVX` is what
    /// `vxDefaultActivePrinter()` returns. In a status report it is emitted before
    /// `statusChangedSignal`, except when a report that is not a number finds the active printer
    /// offline: then it is emitted last.
    void activeDefaultPrinterSetSignal(QString activePrinterName, bool isVX);
    /// Never emitted. A changed firmware version is reported by `availablePrintersUpdated()`.
    void softwareVersionUpdated(QString printerName);

public Q_SLOTS:
    /// Looks for printers that have no record yet. Nothing else does, so call it when a printer may
    /// have been connected. Emits `statusChangedSignal(0, name)` for each newly found printer that
    /// is ignored, and `activeDefaultPrinterSetSignal` for a new record of the Windows default
    /// printer, unless the user may not administer that printer.
    void checkForPrinters();
    /// The model of any printer in the spooler, which is queried again at each call; `Unknown` for
    /// a printer that the spooler does not list.
    VXPrinting::PrinterType getPrinterTypeEnum(QString printerName);
    /// The title of a status code in the application's language. Every number has a title that is
    /// not empty.
    QString getStatusTitle(int statusEnum);
    /// Writes `message` into the library's log, at debug level.
    void sendToLogger(QString message);
    /// Sends a command in the printer's own language, with a line end added, as a raw print job of
    /// one page. Returns when the spooler has the job. A failure is logged and not reported.
    void sendCommandToPrinter(QString command, QString printerName);
    /// A printer's firmware version up to its first comma; empty when the version or the printer is
    /// not known.
    QString getPrinterSoftwareVersion(QString printerName);

private Q_SLOTS:
    void onPrinterStatusChanged(QString printerName, QString status);
    void onSupplyIdChanged(QString printerName, QString id);
    void onRibbonIdsChanged(QString printerName, QStringList ids);
    void onSupplyIntMileageChanged(QString printerName, QString mileage);
    void onRibbon1IntMileageChanged(QString printerName, QString mileage);
    void onRibbon2IntMileageChanged(QString printerName, QString mileage);
    void onSoftwareVersionChanged(QString printerName, QString version);

private:
    void checkForNewPrinter(AvailablePrinters printer);
    void createNewStatusThread(QString printerName);
    void endThreads();

    void initializeDefaultPrinter();
    void updateDefaultPrinter();
    void chooseFromRecords();
    void chooseOutsideRecords();
    bool shouldBecomeActive(const QString& printerName);
    void makeActive(const QString& printerName);

    void recordOffline(const QString& printerName);
    void raiseErrorState();
    void reevaluateErrorState();

    int ribbonPercentage(const QString& printerName, const QString& mileage, float ribbonLength);

    VXIPCSUPPLYDController* supplyIdController = nullptr;
    VXIPCM4Controller* m4Controller = nullptr;
    QMap<QString, PrinterStatusThread*> statusThreads;
    QMap<QString, PrinterStatusInformation> printerStatusMap;
    QSet<QString> ignoredPrinters;
    QSet<QString> offlinePrinters;
    QString m_activeDefaultPrinter;
    bool m_vxDefaultActivePrinter = false;
    bool noPrinterInError = true;
};
