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

/// The one object that a host makes: it finds the maker's label printers, watches them and tells of
/// every change.
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
/// **What becomes of a printer.** Printers of other makers and of models that are not supported are
/// ignored for good. A supported printer that is offline when it is found is looked at again at
/// each `checkForPrinters()`. All others have a record from then on until the controller is
/// destroyed, also when they are removed from Windows: network printers (status 256) and printers
/// that the user may not administer (258) are listed only, the rest is watched, each on a thread of
/// its own.
///
/// **The active printer** is the one that the host works with. The Windows default printer becomes
/// it as soon as it is found or reports while online; while there is none, the first online printer
/// to report does. When it goes offline the choice is made again: the first local printer by name,
/// whether online or not, or the last network printer when there are only such. With no records at
/// all it is the Windows default printer, or another one that is not offline.
///
/// **Threads.** The controller belongs to the thread that made it, which needs an event loop: the
/// watching threads' reports arrive in it as queued calls, and every signal is emitted on it. All
/// members are to be called on that thread. They block as long as the print spooler does.
///
/// **In a slot** that one of the signals calls, every member may be called, an event loop may be
/// run and the controller may be given to `deleteLater()`, before that loop or inside it. Where
/// such a loop deletes it, the rest of the report's signals is not emitted. It must not be deleted
/// with `delete` in a slot.
///
/// **Failures** are never raised and never returned as codes: a spooler that does not answer is one
/// without printers, what cannot be read is empty, zero, or status 255 or 257. What people who
/// support printers need to know is in the log.
class VX_PRINTERSTATUS_EXPORT PrinterStatusController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(
        QVariantList availablePrinters READ getAvailablePrinters NOTIFY availablePrintersUpdated)

public:
    /// Opens the services that other processes call, finds the printers, starts to watch them and
    /// chooses the active one. Signals emitted meanwhile reach nobody: read `availablePrinters`,
    /// `activeDefaultPrinter()` and `vxDefaultActivePrinter()` afterwards.
    explicit PrinterStatusController(QObject* parent = nullptr);
    /// Ends all watching threads, which takes as long as the slowest of the spooler's calls that
    /// they are in. Reports still under way are dropped.
    ~PrinterStatusController() override;
    Q_DISABLE_COPY_MOVE(PrinterStatusController)

    /// The printer-controller service; it stays the controller's.
    VXIPCM4Controller* getm4Controller();
    /// The supply-database service; it stays the controller's.
    VXIPCSUPPLYDController* getSupplyIdController();

    /// The active printer's name in the print spooler; empty when there is none.
    QString activeDefaultPrinter() const;
    /// Whether the active printer was chosen among those with a record. False when it was chosen
    /// among all other printers, because there was no record, and when there is none.
    bool vxDefaultActivePrinter() const;

    /// A copy of every printer's `PrinterStatusInformation`, in the order of their names.
    QVariantList getAvailablePrinters() const;

    /// Tells the controller of errors that the host has seen itself: true raises the error state,
    /// false has all records looked at, which clears it if none is in error.
    void updateCachedStatus(bool inError);

Q_SIGNALS:
    /// A record may have changed. Not emitted for printers that are found: their first report is.
    void availablePrintersUpdated();
    /// Some printer has come to be in error, or none is any more. Before the signals of the report
    /// that caused it.
    void printerErrorChangedSignal(bool printerInErrorState);
    /// A printer reported its status; the number is that of its record.
    /// `availablePrintersUpdated()` follows it, except where an unreadable report (not one of 0 or
    /// 255) finds the printer offline: there it goes before. Also emitted, once and with 0, for
    /// each printer that is found and ignored.
    void statusChangedSignal(int status, QString printerName);
    /// The supply of a printer was changed or taken out; `availablePrintersUpdated()` follows.
    void supplyIdChangedSignal(QString printerName);
    /// A ribbon of a printer was changed or taken out; `availablePrintersUpdated()` follows. A
    /// ribbon that was taken out stays in the record until another one is put in.
    void ribbonIdsChangedSignal(QString printerName);
    /// The active printer was chosen, or confirmed, or lost to another; `isVX` is what
    /// `vxDefaultActivePrinter()` answers. In a status report it goes before `statusChangedSignal`.
    void activeDefaultPrinterSetSignal(QString activePrinterName, bool isVX);
    /// Never emitted; `availablePrintersUpdated()` tells of a changed firmware version.
    void softwareVersionUpdated(QString printerName);

public Q_SLOTS:
    /// Looks for printers that are not known yet. Nothing else does, so call it when a printer may
    /// have been plugged in. Emits `statusChangedSignal(0, name)` for those that are ignored and
    /// `activeDefaultPrinterSetSignal` for one that is the Windows default printer.
    void checkForPrinters();
    /// The model of any printer that the spooler knows, asked afresh; `Unknown` for others.
    VXPrinting::PrinterType getPrinterTypeEnum(QString printerName);
    /// The title of a status code in the application's language; never empty, any number has one.
    QString getStatusTitle(int statusEnum);
    /// Writes a line of the host's into the library's log, at debug level.
    void sendToLogger(QString message);
    /// Sends a command in the printer's own language, with a line end, as a raw print job of one
    /// page. Returns when the spooler has it; a failure is logged.
    void sendCommandToPrinter(QString command, QString printerName);
    /// The first part, up to a comma, of a printer's firmware version; empty when it is not known.
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
