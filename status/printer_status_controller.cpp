// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_status_controller.h"

#include "log_lines.h"
#include "percent_left.h"
#include "printer_status_thread.h"
#include "raw_print_job.h"
#include "status_codes.h"
#include "status_titles.h"
#include "vx_ipc_m4_controller.h"
#include "vx_ipc_supplyd_controller.h"
#include "windows_printer_info.h"

#include <QtCore/QPointer>
#include <QtGui/QColor>

#include <algorithm>
#include <exception>
#include <utility>

using VXPrinting::nothingLoaded;
using VXPrinting::PrinterType;

namespace {

namespace StatusCodes = VXPrinting::StatusCodes;

/// The identifier that the driver publishes when no supply is loaded.
const QString blankSupplyIdentifier = QString(20, QLatin1Char('0'));

/// The panel whose colour stands for the whole ribbon; it is the first also for ribbon 2.
constexpr int firstPanel = 1;

bool hasSecondRibbon(PrinterType type)
{
    return type == PrinterType::Alder || type == PrinterType::AlderMax;
}

/// All printers of the spooler; none when one of them lacks its name, port or driver.
QList<AvailablePrinters> spoolerPrinters()
{
    try {
        return WindowsPrinterInfo::getAvailablePrinters();
    } catch (const std::exception&) {
        return {};
    }
}

void logAbout(const log_lines::LogLine& line, const QString& printerName)
{
    log_lines::print(line, printerName.toLocal8Bit().constData());
}

QString hexOf(uint rgb)
{
    return QColor(QRgb(rgb)).name();
}

QString hexOfFirst(const QStringList& rgbs)
{
    return hexOf(rgbs.value(0).toUInt());
}

} // namespace

PrinterStatusController::PrinterStatusController(QObject* parent)
    : QObject(parent)
    , supplyIdController(new VXIPCSUPPLYDController)
    , m4Controller(new VXIPCM4Controller)
{
    checkForPrinters();
    initializeDefaultPrinter();
}

PrinterStatusController::~PrinterStatusController()
{
    for (PrinterStatusThread* thread : std::as_const(statusThreads))
        thread->stop();
    delete supplyIdController;
    delete m4Controller;
    endThreads();
}

void PrinterStatusController::endThreads()
{
    // stop() has no effect on a thread that is still in its first read, so it is called again until
    // each thread has ended. The destructor has called it for all threads before.
    constexpr unsigned long patience = 10; // milliseconds
    const auto threads = statusThreads.values();
    for (qsizetype ended = 0; ended < threads.size();) {
        if (threads[ended]->wait(patience)) {
            ++ended;
            continue;
        }
        for (PrinterStatusThread* thread : threads.sliced(ended))
            thread->stop();
    }
    qDeleteAll(threads);
    statusThreads.clear();
}

VXIPCM4Controller* PrinterStatusController::getm4Controller()
{
    return m4Controller;
}

VXIPCSUPPLYDController* PrinterStatusController::getSupplyIdController()
{
    return supplyIdController;
}

QVariantList PrinterStatusController::getAvailablePrinters() const
{
    QVariantList records;
    records.reserve(printerStatusMap.size());
    for (const PrinterStatusInformation& record : printerStatusMap)
        records.append(QVariant::fromValue(record));
    return records;
}

// Finding printers ////////////////////////////////////////////////////////////////////////////////

void PrinterStatusController::checkForPrinters()
{
    // A slot of the host may run an event loop in which the controller is deleted.
    const QPointer controller(this);
    const QList<AvailablePrinters> printers = spoolerPrinters();
    for (const AvailablePrinters& printer : printers) {
        checkForNewPrinter(printer);
        if (!controller)
            return;
    }
}

void PrinterStatusController::checkForNewPrinter(AvailablePrinters printer)
{
    const QString& name = printer.printerName;
    if (ignoredPrinters.contains(name) || printerStatusMap.contains(name))
        return;

    // A printer that stays offline is evaluated at every call, but logged only once.
    if (!offlinePrinters.contains(name))
        log_lines::print(log_lines::evaluatingPrinter, name.toLocal8Bit().constData(),
                         printer.driverName.toLocal8Bit().constData());

    const PrinterType type = WindowsPrinterInfo::printerType(printer.driverName);
    if (!VXPrinting::isSupported(type)) {
        ignoredPrinters.insert(name);
        Q_EMIT statusChangedSignal(StatusCodes::disconnected, name);
        return;
    }
    if (printer.isOffline) {
        offlinePrinters.insert(name);
        return;
    }

    PrinterStatusInformation record;
    record.printerName = name;
    record.ribbon2Visible = hasSecondRibbon(type);
    if (printer.isNetworkPrinter) {
        record.printerRemote = true;
        record.statusEnum = StatusCodes::networkPrinter;
    } else if (WindowsPrinterInfo::isPrinterAdmin(name)) {
        createNewStatusThread(name);
    } else {
        record.printerNonAdmin = true;
        record.statusEnum = StatusCodes::notManaged;
    }
    printerStatusMap.insert(name, record);
    supplyIdController->addNewPrinter(name);
    m4Controller->onStatusChanged(record.statusEnum, name);

    if (WindowsPrinterInfo::getDefaultPrinterName() == name && !record.printerNonAdmin) {
        makeActive(name);
        logAbout(log_lines::activeFromUsersDefault, m_activeDefaultPrinter);
        Q_EMIT activeDefaultPrinterSetSignal(m_activeDefaultPrinter, m_vxDefaultActivePrinter);
    }
}

void PrinterStatusController::createNewStatusThread(QString printerName)
{
    using Thread = PrinterStatusThread;
    using Controller = PrinterStatusController;
    auto* const thread = new Thread;
    connect(thread, &Thread::printerStatusChanged, this, &Controller::onPrinterStatusChanged);
    connect(thread, &Thread::supplyIdChanged, this, &Controller::onSupplyIdChanged);
    connect(thread, &Thread::ribbonIdsChanged, this, &Controller::onRibbonIdsChanged);
    connect(thread, &Thread::supplyIntMileageChanged, this, &Controller::onSupplyIntMileageChanged);
    connect(thread, &Thread::ribbon1IntMileageChanged, this,
            &Controller::onRibbon1IntMileageChanged);
    connect(thread, &Thread::ribbon2IntMileageChanged, this,
            &Controller::onRibbon2IntMileageChanged);
    connect(thread, &Thread::softwareVersionChanged, this, &Controller::onSoftwareVersionChanged);
    thread->setMonitoredPrinterName(printerName);
    thread->start(QThread::InheritPriority);
    statusThreads.insert(printerName, thread);
}

PrinterStatusThread* PrinterStatusController::statusThread(const QString& printerName) const
{
    return statusThreads.value(printerName);
}

// The active printer //////////////////////////////////////////////////////////////////////////////

QString PrinterStatusController::activeDefaultPrinter() const
{
    return m_activeDefaultPrinter;
}

bool PrinterStatusController::vxDefaultActivePrinter() const
{
    return m_vxDefaultActivePrinter;
}

void PrinterStatusController::makeActive(const QString& printerName)
{
    m_activeDefaultPrinter = printerName;
    printerStatusMap[printerName].printerDefault = true;
    m_vxDefaultActivePrinter = true;
}

void PrinterStatusController::initializeDefaultPrinter()
{
    if (m_activeDefaultPrinter.isEmpty()) {
        if (printerStatusMap.isEmpty())
            chooseOutsideRecords();
        else
            chooseFromRecords();
    }
    if (m_activeDefaultPrinter.isEmpty())
        return;
    logAbout(log_lines::activeChosen, m_activeDefaultPrinter);
    Q_EMIT activeDefaultPrinterSetSignal(m_activeDefaultPrinter, m_vxDefaultActivePrinter);
}

void PrinterStatusController::chooseFromRecords()
{
    // Offline printers are chosen too: users go on working with a printer that is switched off for
    // a while. When all are network printers, the last one is chosen.
    for (auto entry = printerStatusMap.cbegin(); entry != printerStatusMap.cend(); ++entry) {
        m_activeDefaultPrinter = entry.key();
        if (!entry->printerRemote)
            break;
    }
    m_vxDefaultActivePrinter = true;
}

void PrinterStatusController::chooseOutsideRecords()
{
    const QString windowsDefault = WindowsPrinterInfo::getDefaultPrinterName();
    if (!windowsDefault.isEmpty() && !WindowsPrinterInfo::isPrinterOffline(windowsDefault)) {
        m_activeDefaultPrinter = windowsDefault;
        return;
    }
    for (const QString& name : std::as_const(ignoredPrinters)) {
        if (!WindowsPrinterInfo::isPrinterOffline(name)) {
            m_activeDefaultPrinter = name;
            return;
        }
    }
}

void PrinterStatusController::updateDefaultPrinter()
{
    m_activeDefaultPrinter = QString();
    m_vxDefaultActivePrinter = false;
    initializeDefaultPrinter();
}

// Status //////////////////////////////////////////////////////////////////////////////////////////

void PrinterStatusController::onPrinterStatusChanged(QString printerName, QString status)
{
    // Looked up again after each signal, because a slot of the host may have changed the map.
    const auto record = [&]() -> PrinterStatusInformation& {
        return printerStatusMap[printerName];
    };
    if (record().printerRemote)
        return;

    // The controller may also have been deleted, in an event loop that a slot ran.
    const QPointer controller(this);
    bool readable = false;
    record().statusEnum = status.toInt(&readable);
    if (!readable) {
        if (WindowsPrinterInfo::isPrinterOffline(printerName)) {
            recordOffline(printerName);
            if (controller)
                Q_EMIT availablePrintersUpdated();
            if (controller)
                Q_EMIT statusChangedSignal(StatusCodes::offline, printerName);
            if (controller && printerName == m_activeDefaultPrinter)
                updateDefaultPrinter();
            return;
        }
        record().statusEnum = StatusCodes::unknown;
    }
    record().printerOnline = true;

    const int code = record().statusEnum;
    const bool mayBeOffline = code == StatusCodes::disconnected || code == StatusCodes::unknown;
    if (code == StatusCodes::ready) {
        reevaluateErrorState();
    } else if (mayBeOffline && WindowsPrinterInfo::isPrinterOffline(printerName)) {
        recordOffline(printerName);
        if (controller && printerName == m_activeDefaultPrinter)
            updateDefaultPrinter();
    } else {
        raiseErrorState();
    }

    if (controller && shouldBecomeActive(printerName)) {
        makeActive(printerName);
        logAbout(log_lines::activeFromWindowsDefault, m_activeDefaultPrinter);
        Q_EMIT activeDefaultPrinterSetSignal(m_activeDefaultPrinter, m_vxDefaultActivePrinter);
    }

    if (controller)
        Q_EMIT statusChangedSignal(record().statusEnum, printerName);
    if (controller)
        Q_EMIT availablePrintersUpdated();
}

bool PrinterStatusController::shouldBecomeActive(const QString& printerName)
{
    // The Windows default printer is queried at every report, also when it does not matter.
    const bool isWindowsDefault = WindowsPrinterInfo::getDefaultPrinterName() == printerName;
    return ((isWindowsDefault && printerName != m_activeDefaultPrinter) ||
            m_activeDefaultPrinter.isEmpty()) &&
           printerStatusMap[printerName].printerOnline;
}

void PrinterStatusController::recordOffline(const QString& printerName)
{
    logAbout(log_lines::wentOffline, printerName);
    offlinePrinters.insert(printerName);
    PrinterStatusInformation& record = printerStatusMap[printerName];
    record.printerOnline = false;
    record.statusEnum = StatusCodes::offline;
    reevaluateErrorState();
}

void PrinterStatusController::raiseErrorState()
{
    if (!noPrinterInError)
        return;
    // Set before the signal: a slot may call updateCachedStatus(), and reports that arrive in an
    // event loop of the slot may clear the error state.
    noPrinterInError = false;
    Q_EMIT printerErrorChangedSignal(true);
}

void PrinterStatusController::reevaluateErrorState()
{
    if (noPrinterInError)
        return;

    // A report of 0 or of a negative code raises the error state, but such a record does not
    // maintain it. Records that do are those of online local printers with a code above "ready",
    // which includes printers that have not reported yet and printers that are not managed.
    const auto isInError = [](const PrinterStatusInformation& record) {
        return record.statusEnum > StatusCodes::ready && record.printerOnline &&
               !record.printerRemote;
    };
    if (std::ranges::any_of(std::as_const(printerStatusMap), isInError))
        return;

    noPrinterInError = true;
    Q_EMIT printerErrorChangedSignal(false);
}

void PrinterStatusController::updateCachedStatus(bool inError)
{
    if (inError)
        raiseErrorState();
    else
        reevaluateErrorState();
}

QString PrinterStatusController::getStatusTitle(int statusEnum)
{
    return statusTitle(statusEnum);
}

PrinterType PrinterStatusController::getPrinterTypeEnum(QString printerName)
{
    const QList<AvailablePrinters> printers = spoolerPrinters();
    const auto found = std::ranges::find(printers, printerName, &AvailablePrinters::printerName);
    return found == printers.end() ? PrinterType::Unknown
                                   : WindowsPrinterInfo::printerType(found->driverName);
}

// Supply, ribbons, firmware ///////////////////////////////////////////////////////////////////////

void PrinterStatusController::onSupplyIdChanged(QString printerName, QString id)
{
    if (id.isEmpty() || id == blankSupplyIdentifier)
        id = nothingLoaded;
    supplyIdController->setSupplyId(id, printerName);

    const QString sku = supplyIdController->supplySKUCached(printerName);
    const int rgb = supplyIdController->supplyColorRGB(sku, printerName);
    const QString colorName = supplyIdController->supplyColorName(sku, printerName);
    const QString materialName = supplyIdController->supplyMaterialName(sku, printerName);

    // The percentage remains that of the old supply until the new supply's mileage is reported.
    PrinterStatusInformation& record = printerStatusMap[printerName];
    record.supplySKU = sku;
    record.supplyColorHex = hexOf(static_cast<uint>(rgb));
    record.supplyColorName = colorName;
    record.supplyMaterialName = materialName;
    log_lines::stream(log_lines::supplyChanged, [&](QDebug& line) {
        line << "\n"
             << printerName << record.printerOnline << record.supplySKU << record.supplyColorHex
             << record.supplyColorName << record.supplyMaterialName;
    });

    const QPointer controller(this);
    Q_EMIT supplyIdChangedSignal(printerName);
    if (controller)
        Q_EMIT availablePrintersUpdated();
}

void PrinterStatusController::onRibbonIdsChanged(QString printerName, QStringList ids)
{
    supplyIdController->setRibbonIds(ids, printerName);
    const QStringList skus = supplyIdController->supplyRibbonSKUsCached(printerName);
    if (skus.isEmpty())
        return;

    // A ribbon that was removed stays in the record: hosts go on showing the one that was used
    // last.
    PrinterStatusInformation& record = printerStatusMap[printerName];
    const QString& ribbon1 = skus.first();
    if (ribbon1 != nothingLoaded) {
        record.ribbon1SKU = ribbon1;
        record.ribbon1ColorHex = hexOfFirst(supplyIdController->supplyRibbon1RGBs(printerName));
        record.ribbon1ColorName = supplyIdController->supplyRibbonColorName(ribbon1, firstPanel);
    }
    const QString ribbon2 = skus.value(1, QString(nothingLoaded));
    if (ribbon2 != nothingLoaded) {
        record.ribbon2SKU = ribbon2;
        record.ribbon2ColorHex = hexOfFirst(supplyIdController->supplyRibbon2RGBs(printerName));
        record.ribbon2ColorName = supplyIdController->supplyRibbonColorName(ribbon2, firstPanel);
    }

    const QPointer controller(this);
    Q_EMIT ribbonIdsChangedSignal(printerName);
    if (controller)
        Q_EMIT availablePrintersUpdated();
}

void PrinterStatusController::onSupplyIntMileageChanged(QString printerName, QString mileage)
{
    const double reported = percent_left::mileage(mileage);
    const SupplyInformation loaded = supplyIdController->supplyInformation(printerName);
    const bool inPercent = getPrinterTypeEnum(printerName) == PrinterType::Alder;

    printerStatusMap[printerName].supplyPercentage =
        inPercent ? percent_left::ofPercentage(reported)
                  : percent_left::ofSupply(reported, loaded.supplyLength, loaded.supplyId);
    Q_EMIT availablePrintersUpdated();
}

void PrinterStatusController::onRibbon1IntMileageChanged(QString printerName, QString mileage)
{
    const SupplyInformation loaded = supplyIdController->supplyInformation(printerName);
    printerStatusMap[printerName].ribbon1Percentage =
        ribbonPercentage(printerName, mileage, loaded.ribbon1Length);
    Q_EMIT availablePrintersUpdated();
}

void PrinterStatusController::onRibbon2IntMileageChanged(QString printerName, QString mileage)
{
    const SupplyInformation loaded = supplyIdController->supplyInformation(printerName);
    printerStatusMap[printerName].ribbon2Percentage =
        ribbonPercentage(printerName, mileage, loaded.ribbon2Length);
    Q_EMIT availablePrintersUpdated();
}

int PrinterStatusController::ribbonPercentage(const QString& printerName, const QString& mileage,
                                              float ribbonLength)
{
    const double reported = percent_left::mileage(mileage);
    if (getPrinterTypeEnum(printerName) == PrinterType::Alder)
        return percent_left::ofPercentage(reported);
    return percent_left::ofRibbon(reported, ribbonLength);
}

void PrinterStatusController::onSoftwareVersionChanged(QString printerName, QString version)
{
    printerStatusMap[printerName].softwareVersion = version;
    Q_EMIT availablePrintersUpdated();
}

QString PrinterStatusController::getPrinterSoftwareVersion(QString printerName)
{
    const auto found = printerStatusMap.constFind(printerName);
    if (found == printerStatusMap.cend())
        return {};
    return found->softwareVersion.section(QLatin1Char(','), 0, 0);
}

// Commands and the log ////////////////////////////////////////////////////////////////////////////

void PrinterStatusController::sendCommandToPrinter(QString command, QString printerName)
{
    // These lines are at debug level as well: a host that tries one printer after another expects
    // failures.
    switch (sendRawPrintJob(command, printerName)) {
    case RawPrintJobResult::Sent:
        break;
    case RawPrintJobResult::PrinterNotOpened:
        logAbout(log_lines::commandOpeningFailed, printerName);
        break;
    case RawPrintJobResult::DocumentNotStarted:
        log_lines::print(log_lines::commandDocumentFailed);
        break;
    case RawPrintJobResult::PageNotStarted:
        log_lines::print(log_lines::commandPageFailed);
        break;
    case RawPrintJobResult::DataNotAccepted:
        log_lines::print(log_lines::commandWritingFailed);
        break;
    }
}

void PrinterStatusController::sendToLogger(QString message)
{
    log_lines::write(log_lines::hostsLine, message);
}
