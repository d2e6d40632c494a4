// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "vxprinterstatus_export.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QThread>

#include <atomic>

#include <windows.h>
#include <winspool.h>
#include <winsvc.h>

/// Watches one printer on a thread of its own, and emits a signal for each value that changes.
///
/// @code
/// PrinterStatusThread thread;
/// QObject::connect(&thread, &PrinterStatusThread::printerStatusChanged, &receiver,
///                  [](const QString& printer, const QString& status) { … });
/// thread.setMonitoredPrinterName(QStringLiteral("Label Printer"));
/// thread.start();
/// …
/// while (!thread.wait(10))
///     thread.stop();
/// @endcode
///
/// All signals are emitted on the monitoring thread, so slots of objects of other threads are
/// called through their event loops. Each signal carries the monitored printer's name and the new
/// value as text. The text is empty for a value that the driver no longer publishes or that is not
/// plausible. The first read after the start reports every value that is not empty. The changes
/// found by one read are reported in this order: status, supply identifier, ribbon identifiers,
/// supply mileage, ribbon 1 mileage, ribbon 2 mileage, printer name, firmware version, Ethernet
/// configuration, update progress, update error.
///
/// Nothing is retried. A printer that cannot be opened at the start is opened when the print
/// spooler service has been down and is running again. A thread that cannot create its stop event
/// ends after its first read. A thread that cannot query the service does not notice that it
/// restarts.
class VX_PRINTERSTATUS_EXPORT PrinterStatusThread : public QThread
{
    Q_OBJECT

public:
    explicit PrinterStatusThread(QObject* parent = nullptr);
    /// Neither stops the thread nor waits for it: the thread must have finished before.
    ~PrinterStatusThread() override;
    Q_DISABLE_COPY_MOVE(PrinterStatusThread)

    /// Sets the printer to watch, by its name in the print spooler. Call it before the thread is
    /// started.
    void setMonitoredPrinterName(const QString& name);

    /// @name The values that the driver publishes
    /// Each function reads one value, through a printer handle with read access, which stays open.
    /// It may be called on any thread. The result is empty when the value is absent, of the wrong
    /// type or not plausible. Numbers are unsigned decimal text. Mileages are in millimetres, those
    /// of the model `Alder` in percent.
    /// @{
    QString getSupplyId(void* printerHandle);
    QString getRibbon1Id(void* printerHandle);
    QString getRibbon2Id(void* printerHandle);
    QString getPrinterStatus(void* printerHandle);
    QString getSupplyIntMileage(void* printerHandle);
    QString getRibbon1IntMileage(void* printerHandle);
    QString getRibbon2IntMileage(void* printerHandle);
    QString getSoftwareVersion(void* printerHandle);
    QString getUpdateProgress(void* printerHandle);
    QString getUpdateError(void* printerHandle);
    QString getEthernetConfig(void* printerHandle);
    /// @}

    /// The printer's current name in the print spooler; empty when it cannot be read.
    QString getPrinterNameFromHandle(void* printerHandle);

    /// Opens the monitored printer and its change notification. When either fails, that is logged
    /// and the result is false. When the notification fails, the printer is closed again, though
    /// its value stays in `*printerHandle`.
    bool initPrinterHandles(void** printerHandle, void** changeHandle);

    /// Queries the state of the print spooler service and stores it in `lastState`. Closes both
    /// handles when the service has changed to a state other than running, and opens them when it
    /// has changed to running. False when the state has not changed.
    bool printSpoolerStatusChanged(SC_HANDLE service, unsigned long& lastState,
                                   void** printerHandle, void** changeHandle);

    /// Reads every value, either through the given handle or through one that is opened with full
    /// access for this read alone. For each value that differs from the text that is passed,
    /// updates that text and then emits the signal.
    void getLatestPrinterData(bool useGivenHandle, void* printerHandle, QString& supplyId,
                              QString& ribbon1Id, QString& ribbon2Id, QString& supplyMileage,
                              QString& ribbon1Mileage, QString& ribbon2Mileage, QString& status,
                              QString& printerName, QString& softwareVersion,
                              QString& updateProgress, QString& updateError,
                              QString& ethernetConfig);

public Q_SLOTS:
    /// Signals the thread to end, and does not wait for it. It may be called on any thread and more
    /// than once. It has no effect before `run()` has created its stop event: to end a thread that
    /// was started a moment ago, call it repeatedly until `wait()` returns true.
    void stop();

Q_SIGNALS:
    /// Another supply was loaded, or the supply was removed: then `newId` is empty.
    void supplyIdChanged(QString dashboardPrinterName, const QString& newId);
    /// `newIds` has two entries, ribbon 1 first. Emitted once when one of them changed or both did.
    void ribbonIdsChanged(QString dashboardPrinterName, const QList<QString>& newIds);
    /// `newStatus` is a status code as text. Also emitted, with
    /// `VXPrinting::StatusCodes::spoolerDown`, when the print spooler service leaves the running
    /// state.
    void printerStatusChanged(QString dashboardPrinterName, const QString& newStatus);
    /// @name How much is left
    /// A mileage changed. `newMileage` is unsigned decimal text, in millimetres, for the model
    /// `Alder` in percent.
    /// @{
    void supplyIntMileageChanged(QString dashboardPrinterName, const QString& newMileage);
    void ribbon1IntMileageChanged(QString dashboardPrinterName, const QString& newMileage);
    void ribbon2IntMileageChanged(QString dashboardPrinterName, const QString& newMileage);
    /// @}
    /// The printer was renamed in the print spooler. `dashboardPrinterName` stays the name under
    /// which the printer is watched.
    void printerNameChangedSignal(QString dashboardPrinterName, const QString& newName);
    /// The firmware's version changed.
    void softwareVersionChanged(QString dashboardPrinterName, const QString& newVersion);
    /// A firmware update has advanced. `newProgress` is unsigned decimal text.
    void updateProgressChanged(QString dashboardPrinterName, const QString& newProgress);
    /// A firmware update reported another error code, as unsigned decimal text.
    void updateErrorChanged(QString dashboardPrinterName, const QString& newError);
    /// The printer's Ethernet configuration changed, in the driver's own form.
    void ethernetConfigChanged(QString dashboardPrinterName, const QString& newEthernetConfig);

protected:
    void run() override;

private:
    std::atomic<HANDLE> m_stopEvent = nullptr;
    QString m_monitoredPrinterName;
};
