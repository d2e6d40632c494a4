// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_status_thread.h"

#include "log_lines.h"
#include "printer_values.h"
#include "spooler_record.h"
#include "status_codes.h"
#include "wide_text.h"
#include "windows_handles.h"

#include <array>

namespace {

constexpr DWORD spoolerPollInterval = 5000;      // milliseconds without a notification
constexpr DWORD everyPrinterChange = 0x7777FFFF; // PRINTER_CHANGE_ALL: every kind of change

/// Whether a variable holds a change notification. The printer is open for watching when it does,
/// and only then: a printer whose notification failed is closed at once.
bool isWatching(HANDLE change)
{
    return change != ChangeNotificationHandleTraits::invalid();
}

/// Closes the change notification, then the printer. Both calls are made whatever the variables
/// hold, even where nothing is open.
void closeWatch(void** printer, void** change)
{
    FindClosePrinterChangeNotification(*change);
    *change = ChangeNotificationHandleTraits::invalid();
    ClosePrinter(*printer);
    *printer = WatchedPrinterHandleTraits::invalid();
}

/// Everything that the loop opens for as long as it runs.
struct LoopHandles
{
    WatchedPrinterHandle printer;
    ChangeNotificationHandle change;
    EventHandle stopEvent;
    ServiceHandle manager;
    ServiceHandle spooler;

    LoopHandles() = default;
    ~LoopHandles()
    {
        // Without a notification the printer is closed already; the variable only keeps its value.
        if (!change.isValid())
            printer.release();
    }
    Q_DISABLE_COPY_MOVE(LoopHandles)

    /// Closes everything, in the order in which a stopped loop has to.
    void close()
    {
        stopEvent.close();
        closeWatch(printer.address(), change.address());
        spooler.close();
        manager.close();
    }
};

/// The values last seen.
struct LastSeen
{
    QString supplyId;
    QString ribbon1Id;
    QString ribbon2Id;
    QString supplyMileage;
    QString ribbon1Mileage;
    QString ribbon2Mileage;
    QString status;
    QString printerName;
    QString softwareVersion;
    QString updateProgress;
    QString updateError;
    QString ethernetConfig;
};

DWORD serviceState(SC_HANDLE service)
{
    SERVICE_STATUS status{};
    QueryServiceStatus(service, &status);
    return status.dwCurrentState; // 0 when the service did not answer
}

} // namespace

PrinterStatusThread::PrinterStatusThread(QObject* parent)
    : QThread(parent)
{}

PrinterStatusThread::~PrinterStatusThread() = default;

void PrinterStatusThread::setMonitoredPrinterName(const QString& name)
{
    m_monitoredPrinterName = name;
}

void PrinterStatusThread::stop()
{
    // Only the call that takes the event out of the member signals it. The loop closes the event
    // only after it was signalled, so a second call finds no event and never signals a closed
    // handle.
    const HANDLE event = m_stopEvent.exchange(nullptr);
    if (event && !SetEvent(event))
        m_stopEvent.store(event);
}

QString PrinterStatusThread::getSupplyId(void* printerHandle)
{
    return printer_values::read(printerHandle, printer_values::supplyId);
}

QString PrinterStatusThread::getRibbon1Id(void* printerHandle)
{
    return printer_values::read(printerHandle, printer_values::ribbon1Id);
}

QString PrinterStatusThread::getRibbon2Id(void* printerHandle)
{
    return printer_values::read(printerHandle, printer_values::ribbon2Id);
}

QString PrinterStatusThread::getPrinterStatus(void* printerHandle)
{
    return printer_values::read(printerHandle, printer_values::statusCode);
}

QString PrinterStatusThread::getSupplyIntMileage(void* printerHandle)
{
    return printer_values::read(printerHandle, printer_values::supplyMileage);
}

QString PrinterStatusThread::getRibbon1IntMileage(void* printerHandle)
{
    return printer_values::read(printerHandle, printer_values::ribbon1Mileage);
}

QString PrinterStatusThread::getRibbon2IntMileage(void* printerHandle)
{
    return printer_values::read(printerHandle, printer_values::ribbon2Mileage);
}

QString PrinterStatusThread::getSoftwareVersion(void* printerHandle)
{
    return printer_values::read(printerHandle, printer_values::softwareVersion);
}

QString PrinterStatusThread::getUpdateProgress(void* printerHandle)
{
    return printer_values::read(printerHandle, printer_values::updateProgress);
}

QString PrinterStatusThread::getUpdateError(void* printerHandle)
{
    return printer_values::read(printerHandle, printer_values::updateError);
}

QString PrinterStatusThread::getEthernetConfig(void* printerHandle)
{
    return printer_values::read(printerHandle, printer_values::ethernetConfig);
}

QString PrinterStatusThread::getPrinterNameFromHandle(void* printerHandle)
{
    // Whether the filling failed is not asked: the name is then null and the text empty.
    const auto record = SpoolerRecord<PRINTER_INFO_1W, 1>::ofPrinter(printerHandle);
    return record.get() ? fromWide(record.get()->pName) : QString();
}

bool PrinterStatusThread::initPrinterHandles(void** printerHandle, void** changeHandle)
{
    const auto log = [this](const log_lines::LogLine& line) {
        log_lines::print(line, m_monitoredPrinterName.toLocal8Bit().constData());
    };
    PrinterHandle printer = openPrinter(m_monitoredPrinterName);
    if (!printer.isValid()) {
        log(log_lines::openingFailed);
        return false;
    }

    *printerHandle = printer.get();
    *changeHandle =
        FindFirstPrinterChangeNotification(*printerHandle, everyPrinterChange, 0, nullptr);
    if (!isWatching(*changeHandle)) {
        log(log_lines::notificationFailed);
        return false;
    }
    printer.release();
    return true;
}

bool PrinterStatusThread::printSpoolerStatusChanged(SC_HANDLE service, unsigned long& lastState,
                                                    void** printerHandle, void** changeHandle)
{
    const DWORD state = serviceState(service);
    if (state == lastState)
        return false;

    // The handles are closed even when nothing is open, which is so when the service changes from
    // one state that is not running to another. When an earlier query failed, the service can also
    // change to running while the handles are open: opening the printer again would leak them.
    if (state != SERVICE_RUNNING || isWatching(*changeHandle))
        closeWatch(printerHandle, changeHandle);
    if (state == SERVICE_RUNNING)
        initPrinterHandles(printerHandle, changeHandle);

    lastState = state;
    return true;
}

void PrinterStatusThread::getLatestPrinterData(bool useGivenHandle, void* printerHandle,
                                               QString& supplyId, QString& ribbon1Id,
                                               QString& ribbon2Id, QString& supplyMileage,
                                               QString& ribbon1Mileage, QString& ribbon2Mileage,
                                               QString& status, QString& printerName,
                                               QString& softwareVersion, QString& updateProgress,
                                               QString& updateError, QString& ethernetConfig)
{
    PrinterHandle ownHandle;
    if (!useGivenHandle) {
        ownHandle = openPrinterForAdministration(m_monitoredPrinterName);
        if (ownHandle.isValid())
            printerHandle = ownHandle.get();
        else
            log_lines::print(log_lines::fullAccessFailed,
                             m_monitoredPrinterName.toLocal8Bit().constData());
    }

    // Hosts rely on the order of the reports below, which differs from the order of reading.
    const QString newSupplyId = getSupplyId(printerHandle);
    const QString newRibbon1Id = getRibbon1Id(printerHandle);
    const QString newRibbon2Id = getRibbon2Id(printerHandle);
    const QString newStatus = getPrinterStatus(printerHandle);
    const QString newSoftwareVersion = getSoftwareVersion(printerHandle);
    const QString newEthernetConfig = getEthernetConfig(printerHandle);
    const QString newSupplyMileage = getSupplyIntMileage(printerHandle);
    const QString newRibbon1Mileage = getRibbon1IntMileage(printerHandle);
    const QString newRibbon2Mileage = getRibbon2IntMileage(printerHandle);
    const QString newUpdateProgress = getUpdateProgress(printerHandle);
    const QString newUpdateError = getUpdateError(printerHandle);
    const QString newPrinterName = getPrinterNameFromHandle(printerHandle);

    using ValueSignal = void (PrinterStatusThread::*)(QString, const QString&);
    const auto report = [this](QString& lastSeen, const QString& value, ValueSignal changed) {
        if (lastSeen == value)
            return;
        lastSeen = value;
        Q_EMIT(this->*changed)(m_monitoredPrinterName, value);
    };

    report(status, newStatus, &PrinterStatusThread::printerStatusChanged);
    report(supplyId, newSupplyId, &PrinterStatusThread::supplyIdChanged);
    if (ribbon1Id != newRibbon1Id || ribbon2Id != newRibbon2Id) {
        ribbon1Id = newRibbon1Id;
        ribbon2Id = newRibbon2Id;
        Q_EMIT ribbonIdsChanged(m_monitoredPrinterName, {newRibbon1Id, newRibbon2Id});
    }
    report(supplyMileage, newSupplyMileage, &PrinterStatusThread::supplyIntMileageChanged);
    report(ribbon1Mileage, newRibbon1Mileage, &PrinterStatusThread::ribbon1IntMileageChanged);
    report(ribbon2Mileage, newRibbon2Mileage, &PrinterStatusThread::ribbon2IntMileageChanged);
    report(printerName, newPrinterName, &PrinterStatusThread::printerNameChangedSignal);
    report(softwareVersion, newSoftwareVersion, &PrinterStatusThread::softwareVersionChanged);
    report(ethernetConfig, newEthernetConfig, &PrinterStatusThread::ethernetConfigChanged);
    report(updateProgress, newUpdateProgress, &PrinterStatusThread::updateProgressChanged);
    report(updateError, newUpdateError, &PrinterStatusThread::updateErrorChanged);
}

void PrinterStatusThread::run()
{
    // Texts, because the driver publishes the status as a text, and the signal carries it.
    const QString spoolerDownStatus = QString::number(VXPrinting::StatusCodes::spoolerDown);
    const QString unknownStatus = QString::number(VXPrinting::StatusCodes::unknown);

    LoopHandles handles;
    LastSeen seen;
    const auto readValues = [&](bool useGivenHandle) {
        getLatestPrinterData(useGivenHandle, handles.printer.get(), seen.supplyId, seen.ribbon1Id,
                             seen.ribbon2Id, seen.supplyMileage, seen.ribbon1Mileage,
                             seen.ribbon2Mileage, seen.status, seen.printerName,
                             seen.softwareVersion, seen.updateProgress, seen.updateError,
                             seen.ethernetConfig);
    };

    if (initPrinterHandles(handles.printer.address(), handles.change.address()))
        readValues(false);

    handles.stopEvent = EventHandle(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    if (!handles.stopEvent.isValid())
        return;
    m_stopEvent.store(handles.stopEvent.get());

    // Neither handle is checked: every query of a manager or service that could not be opened
    // fails, which is a state of its own.
    handles.manager = ServiceHandle(OpenSCManagerW(nullptr, nullptr, 0));
    handles.spooler =
        ServiceHandle(OpenServiceW(handles.manager.get(), wide(u"Spooler"), SERVICE_QUERY_STATUS));
    unsigned long spoolerState = serviceState(handles.spooler.get());

    for (;;) {
        // Without a notification the loop waits for the stop event alone. INVALID_HANDLE_VALUE must
        // not take the notification's place: it is the pseudo handle of the process, and a wait for
        // several objects fails at once when one of them is a pseudo handle.
        const std::array<HANDLE, 2> objects{handles.stopEvent.get(), handles.change.get()};
        const DWORD count = handles.change.isValid() ? 2 : 1;
        switch (WaitForMultipleObjects(count, objects.data(), FALSE, spoolerPollInterval)) {
        case WAIT_OBJECT_0:
            m_stopEvent.store(nullptr);
            handles.close();
            return;

        case WAIT_OBJECT_0 + 1: {
            DWORD changes = 0;
            FindNextPrinterChangeNotification(handles.change.get(), &changes, nullptr, nullptr);
            // A printer whose status is not known is read through a new handle with full access.
            readValues(seen.status != unknownStatus);
            break;
        }

        case WAIT_TIMEOUT:
            if (!printSpoolerStatusChanged(handles.spooler.get(), spoolerState,
                                           handles.printer.address(), handles.change.address()))
                break;
            if (!handles.change.isValid()) {
                seen.status = spoolerDownStatus;
                Q_EMIT printerStatusChanged(m_monitoredPrinterName, spoolerDownStatus);
                break;
            }
            readValues(false);
            break;

        default:
            break;
        }
    }
}
