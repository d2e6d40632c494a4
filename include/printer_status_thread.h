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

/// Watches one printer on a thread of its own and emits a signal for each value that changes.
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
/// All signals are emitted on the monitoring thread, so connections to objects of other threads are
/// delivered queued. Each carries the monitored printer's name and the new value as text; a value
/// that the driver no longer publishes, or that is not plausible, is reported as empty. The first
/// read after the start reports every value that is not empty. The changes that one read finds are
/// reported in this order: status, supply identifier, ribbon identifiers, supply mileage, ribbon 1
/// mileage, ribbon 2 mileage, printer name, firmware version, Ethernet configuration, update
/// progress, update error.
///
/// Nothing is retried: a printer that cannot be opened at the start is opened the next time that
/// the print spooler service has been down and is running again. A thread that cannot make its stop
/// event ends after its first read, and one that cannot reach the service does not notice that it
/// restarts.
class VX_PRINTERSTATUS_EXPORT PrinterStatusThread : public QThread
{
    Q_OBJECT

public:
    explicit PrinterStatusThread(QObject* parent = nullptr);
    /// Neither stops the thread nor waits for it: that must have been done.
    ~PrinterStatusThread() override;
    Q_DISABLE_COPY_MOVE(PrinterStatusThread)

    /// Names the printer to watch, by its spooler name. To be called before the thread is started.
    void setMonitoredPrinterName(const QString& name);

    /// @name The values that the driver publishes
    /// Each reads one value through a printer handle with read access, which stays open, on any
    /// thread. The answer is empty when the value is absent, of the wrong type or not plausible.
    /// Numbers are unsigned decimal text. Mileages are in millimetres, or in percent for the models
    /// that say so.
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

    /// The printer's present name as the spooler knows it; empty when it cannot be read.
    QString getPrinterNameFromHandle(void* printerHandle);

    /// Opens the monitored printer and its change notification. False when either fails, which is
    /// logged; a printer whose notification fails is closed again.
    bool initPrinterHandles(void** printerHandle, void** changeHandle);

    /// Asks for the state of the print spooler service and follows a change of it: the handles are
    /// closed when it has left the running state and opened when it has come back to it. False when
    /// the state is `lastState` still.
    bool printSpoolerStatusChanged(SC_HANDLE service, unsigned long& lastState,
                                   void** printerHandle, void** changeHandle);

    /// Reads every value, through the given handle or through one opened for this read with full
    /// access, and emits a signal for each that differs from the text passed for it, which is
    /// updated first.
    void getLatestPrinterData(bool useGivenHandle, void* printerHandle, QString& supplyId,
                              QString& ribbon1Id, QString& ribbon2Id, QString& supplyMileage,
                              QString& ribbon1Mileage, QString& ribbon2Mileage, QString& status,
                              QString& printerName, QString& softwareVersion,
                              QString& updateProgress, QString& updateError,
                              QString& ethernetConfig);

public Q_SLOTS:
    /// Tells the thread to end; may be called on any thread and again. It does not wait, and it
    /// does nothing while `run()` has not yet made its stop event: to end a thread that was only
    /// just started, call it until `wait()` says that the thread has finished.
    void stop();

Q_SIGNALS:
    void supplyIdChanged(QString dashboardPrinterName, const QString& newId);
    /// `newIds` has two entries, ribbon 1 first; emitted once when either changed.
    void ribbonIdsChanged(QString dashboardPrinterName, const QList<QString>& newIds);
    /// Also with "254" when the print spooler service leaves the running state.
    void printerStatusChanged(QString dashboardPrinterName, const QString& newStatus);
    void supplyIntMileageChanged(QString dashboardPrinterName, const QString& newMileage);
    void ribbon1IntMileageChanged(QString dashboardPrinterName, const QString& newMileage);
    void ribbon2IntMileageChanged(QString dashboardPrinterName, const QString& newMileage);
    void printerNameChangedSignal(QString dashboardPrinterName, const QString& newName);
    void softwareVersionChanged(QString dashboardPrinterName, const QString& newVersion);
    void updateProgressChanged(QString dashboardPrinterName, const QString& newProgress);
    void updateErrorChanged(QString dashboardPrinterName, const QString& newError);
    void ethernetConfigChanged(QString dashboardPrinterName, const QString& newEthernetConfig);

protected:
    void run() override;

private:
    std::atomic<HANDLE> m_stopEvent = nullptr;
    QString m_monitoredPrinterName;
};
