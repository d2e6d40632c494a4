// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_status_thread.h"

#include "log_lines.h"
#include "printer_values.h"
#include "spooler_block.h"
#include "wide_text.h"
#include "windows_handles.h"

#include <algorithm>
#include <array>

namespace {

constexpr DWORD spoolerPollInterval = 5000;      // milliseconds without a notification
constexpr DWORD everyPrinterChange = 0x7777FFFF; // PRINTER_CHANGE_ALL, that of every kind
const QString spoolerDownStatus = QStringLiteral("254");
/// While a printer says this it is read through a handle opened afresh with full access.
const QString unreadableStatus = QStringLiteral("255");

/// The printer and its change notification while the loop runs.
struct WatchedHandles
{
    HANDLE printer = INVALID_HANDLE_VALUE;
    HANDLE change = INVALID_HANDLE_VALUE;

    WatchedHandles() = default;
    ~WatchedHandles()
    {
        if (isWatching(change))
            close(&printer, &change);
    }
    Q_DISABLE_COPY_MOVE(WatchedHandles)

    /// The two are open together or not at all: a printer whose notification failed is closed.
    static bool isWatching(HANDLE change) { return change != INVALID_HANDLE_VALUE; }

    static void close(void** printer, void** change)
    {
        FindClosePrinterChangeNotification(*change);
        *change = INVALID_HANDLE_VALUE;
        ClosePrinter(*printer);
        *printer = INVALID_HANDLE_VALUE;
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
    // Whoever takes the event out of the member is the one to signal it. The loop ends, and closes
    // the event, only after that, so a second call finds nothing and never meets a closed handle.
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
    DWORD needed = 0;
    if (!GetPrinterW(printerHandle, 1, nullptr, 0, &needed) &&
        GetLastError() != ERROR_INSUFFICIENT_BUFFER)
        return {};

    const SpoolerBlock block(std::max<DWORD>(needed, sizeof(PRINTER_INFO_1W)));
    if (block.isNull())
        return {};

    // Not asked whether it worked: the block was zeroed, and a name is there or not.
    GetPrinterW(printerHandle, 1, block.bytes(), block.size(), &needed);
    return fromWide(block.as<PRINTER_INFO_1W>()->pName);
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
    if (*changeHandle == INVALID_HANDLE_VALUE) {
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

    // Closed even where nothing is open, when the service goes from one stopped state to another.
    // It can also come to be running with the handles still live, when an earlier query failed:
    // opening the printer afresh would leak them.
    if (state != SERVICE_RUNNING || WatchedHandles::isWatching(*changeHandle))
        WatchedHandles::close(printerHandle, changeHandle);
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

    // The order of reading and the order of reporting below differ, and hosts rely on the second.
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
    WatchedHandles handles;
    LastSeen seen;
    const auto readValues = [&](bool useGivenHandle) {
        getLatestPrinterData(useGivenHandle, handles.printer, seen.supplyId, seen.ribbon1Id,
                             seen.ribbon2Id, seen.supplyMileage, seen.ribbon1Mileage,
                             seen.ribbon2Mileage, seen.status, seen.printerName,
                             seen.softwareVersion, seen.updateProgress, seen.updateError,
                             seen.ethernetConfig);
    };

    if (initPrinterHandles(&handles.printer, &handles.change))
        readValues(false);

    const HANDLE stopEvent = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    if (!stopEvent)
        return;
    m_stopEvent.store(stopEvent);

    const ServiceHandle manager(OpenSCManagerW(nullptr, nullptr, 0));
    // Neither handle is looked at: a manager or a service that could not be opened answers every
    // question with a failure, which is a state of its own.
    const ServiceHandle spooler(
        OpenServiceW(manager.get(), wide(u"Spooler"), SERVICE_QUERY_STATUS));
    unsigned long spoolerState = serviceState(spooler.get());

    for (;;) {
        // Without a notification there is the stop event alone to wait for. INVALID_HANDLE_VALUE
        // must not stand in for one: it is the pseudo handle of the process, and a wait for several
        // objects fails at once when one of them is a pseudo handle.
        const std::array<HANDLE, 2> objects{stopEvent, handles.change};
        const DWORD count = WatchedHandles::isWatching(handles.change) ? 2 : 1;
        switch (WaitForMultipleObjects(count, objects.data(), FALSE, spoolerPollInterval)) {
        case WAIT_OBJECT_0:
            m_stopEvent.store(nullptr);
            CloseHandle(stopEvent);
            WatchedHandles::close(&handles.printer, &handles.change);
            return;

        case WAIT_OBJECT_0 + 1: {
            DWORD changes = 0;
            FindNextPrinterChangeNotification(handles.change, &changes, nullptr, nullptr);
            readValues(seen.status != unreadableStatus);
            break;
        }

        case WAIT_TIMEOUT:
            if (!printSpoolerStatusChanged(spooler.get(), spoolerState, &handles.printer,
                                           &handles.change))
                break;
            if (!WatchedHandles::isWatching(handles.change)) {
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
