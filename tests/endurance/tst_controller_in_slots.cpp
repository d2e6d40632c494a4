// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// What a host may do in a slot connected to a signal of the controller: everything except deleting
// the controller directly, wherever the signal is emitted.
#include "endurance_test.h"
#include "vx_ipc_m4_controller.h"
#include "vx_ipc_supplyd_controller.h"

#include <QtCore/QEventLoop>
#include <QtCore/QMetaMethod>
#include <QtTest/QSignalSpy>

#include <algorithm>
#include <array>

#include <windows.h>
#include <winspool.h>

using VXPrinting::PrinterType;
namespace StatusCodes = VXPrinting::StatusCodes;

namespace {

const LabelPrinter alder{QStringLiteral("Alder at the window"), PrinterType::Alder};
/// The Windows default printer, and therefore the active one.
const LabelPrinter alderMax{QStringLiteral("AlderMax at the door"), PrinterType::AlderMax};
// Added later, by some of the occasions and actions.
const LabelPrinter birchMax{QStringLiteral("BirchMax, new"), PrinterType::BirchMax};
const LabelPrinter cedarMax{QStringLiteral("CedarMax, new"), PrinterType::CedarMax};
const LabelPrinter laser{QStringLiteral("Laser"), PrinterType::Unknown};
/// Listed last, so that the controller has yet to examine it when the slots return.
const LabelPrinter plotter{QStringLiteral("Plotter"), PrinterType::Unknown};

constexpr int firstMoment = 0;
constexpr int momentInSlot = 8; ///< in error
/// In error, and ready.
constexpr int lastMoments[] = {11, 15};

} // namespace

class ControllerInSlotsTest : public EnduranceTest
{
    Q_OBJECT

private:
    /// An event that makes the controller emit a signal.
    struct Occasion
    {
        const char* name;
        const char* signal;
        bool (ControllerInSlotsTest::*prepare)(); ///< may be null
        void (ControllerInSlotsTest::*happen)();
    };
    /// What the host does in the slot.
    struct Action
    {
        const char* name;
        void (ControllerInSlotsTest::*act)();
        /// After the slot; may be null. Returns what is wrong, or an empty text.
        QString (ControllerInSlotsTest::*fault)();
    };
    static const QList<Occasion> occasions;
    static const QList<Action> actions;

private Q_SLOTS:
    void everySignalHasAnOccasion();
    void hostMayActInSlot_data();
    void hostMayActInSlot();
    void errorStateSetInItsOwnSlotIsNotReportedAgain();

protected Q_SLOTS:
    void init() override;
    void cleanup() override;
    void onSignal();

private:
    void publishStatus(const LabelPrinter& printer, const char* code)
    {
        machine().publish(printer.name, PrinterValue::text("StatusCode", code));
    }

    bool prepareError();
    bool prepareHostsError();
    void versionChanges();
    void mileageChanges();
    void statusChanges();
    void errorBegins();
    void errorEnds();
    void ignoredPrinterIsFound();
    void unreadablePrinterGoesOffline();
    void disconnectedPrinterGoesOffline();
    void activePrinterGoesOffline();
    void supplyChanges();
    void ribbonsChange();
    void otherDefaultReports();
    void newDefaultIsFound();
    void hostSeesAnError();
    void hostSeesTheErrorEnd();

    void lookForPrinters();
    void readRecords();
    void queryEverything();
    void sendCommand();
    void raiseError();
    void clearError();
    void callDeleteLater();
    void deleteLaterAndRunEventLoop();
    void deleteLaterInEventLoop();
    void runEventLoop();

    // Each returns what is wrong, or an empty text.
    QString faultOfDiscovery();
    QString faultOfCommand();
    QString faultOfDeletion();
    QString faultOfMomentInSlot();
    QString faultOfRecordsAfterwards();
    /// The host must never be notified of the same error state twice in a row.
    QString faultOfErrorSignals() const;

    QPointer<PrinterStatusController> m_controller;
    std::unique_ptr<QSignalSpy> m_errorSignals;
    const Action* m_action = nullptr;
    int m_acted = 0;
    QString m_seenInSlot;
};

const QList<ControllerInSlotsTest::Occasion> ControllerInSlotsTest::occasions{
    {"firmware", "availablePrintersUpdated", nullptr, &ControllerInSlotsTest::versionChanges},
    {"mileage", "availablePrintersUpdated", nullptr, &ControllerInSlotsTest::mileageChanges},
    {"unreadable and offline", "availablePrintersUpdated", nullptr,
     &ControllerInSlotsTest::unreadablePrinterGoesOffline},
    {"status", "statusChangedSignal", nullptr, &ControllerInSlotsTest::statusChanges},
    {"unreadable and offline", "statusChangedSignal", nullptr,
     &ControllerInSlotsTest::unreadablePrinterGoesOffline},
    {"disconnected and offline", "statusChangedSignal", nullptr,
     &ControllerInSlotsTest::disconnectedPrinterGoesOffline},
    {"ignored printer found", "statusChangedSignal", nullptr,
     &ControllerInSlotsTest::ignoredPrinterIsFound},
    {"error", "printerErrorChangedSignal", nullptr, &ControllerInSlotsTest::errorBegins},
    {"end of the error", "printerErrorChangedSignal", &ControllerInSlotsTest::prepareError,
     &ControllerInSlotsTest::errorEnds},
    {"end of the error by going offline", "printerErrorChangedSignal",
     &ControllerInSlotsTest::prepareError, &ControllerInSlotsTest::unreadablePrinterGoesOffline},
    {"host's error", "printerErrorChangedSignal", nullptr, &ControllerInSlotsTest::hostSeesAnError},
    {"end of the host's error", "printerErrorChangedSignal",
     &ControllerInSlotsTest::prepareHostsError, &ControllerInSlotsTest::hostSeesTheErrorEnd},
    {"supply", "supplyIdChangedSignal", nullptr, &ControllerInSlotsTest::supplyChanges},
    {"ribbons", "ribbonIdsChangedSignal", nullptr, &ControllerInSlotsTest::ribbonsChange},
    {"another default reports", "activeDefaultPrinterSetSignal", nullptr,
     &ControllerInSlotsTest::otherDefaultReports},
    {"new default found", "activeDefaultPrinterSetSignal", nullptr,
     &ControllerInSlotsTest::newDefaultIsFound},
    {"active one unreadable and offline", "activeDefaultPrinterSetSignal", nullptr,
     &ControllerInSlotsTest::unreadablePrinterGoesOffline},
    {"active one disconnected and offline", "activeDefaultPrinterSetSignal", nullptr,
     &ControllerInSlotsTest::disconnectedPrinterGoesOffline},
};

const QList<ControllerInSlotsTest::Action> ControllerInSlotsTest::actions{
    {"look for printers", &ControllerInSlotsTest::lookForPrinters,
     &ControllerInSlotsTest::faultOfDiscovery},
    {"read the records", &ControllerInSlotsTest::readRecords, nullptr},
    {"query everything", &ControllerInSlotsTest::queryEverything, nullptr},
    {"send a command", &ControllerInSlotsTest::sendCommand, &ControllerInSlotsTest::faultOfCommand},
    {"report an error", &ControllerInSlotsTest::raiseError, nullptr},
    {"report the end of an error", &ControllerInSlotsTest::clearError, nullptr},
    {"run an event loop", &ControllerInSlotsTest::runEventLoop,
     &ControllerInSlotsTest::faultOfMomentInSlot},
    {"delete later", &ControllerInSlotsTest::callDeleteLater,
     &ControllerInSlotsTest::faultOfDeletion},
    {"delete later, then run an event loop", &ControllerInSlotsTest::deleteLaterAndRunEventLoop,
     &ControllerInSlotsTest::faultOfDeletion},
    {"delete later in an event loop", &ControllerInSlotsTest::deleteLaterInEventLoop,
     &ControllerInSlotsTest::faultOfDeletion},
};

void ControllerInSlotsTest::init()
{
    EnduranceTest::init();
    for (const LabelPrinter& printer : {alder, alderMax}) {
        addPrinter(printer);
        publish(printer, moment(printer, firstMoment));
    }
    machine().setDefaultPrinter(alderMax.name);
    m_controller = new PrinterStatusController;
    QVERIFY(settle(2));
    // Connected before the slot under test, which may change the state once more.
    m_errorSignals = std::make_unique<QSignalSpy>(
        m_controller, &PrinterStatusController::printerErrorChangedSignal);
    m_acted = 0;
    m_seenInSlot.clear();
}

void ControllerInSlotsTest::cleanup()
{
    m_errorSignals.reset();
    delete m_controller;
    EnduranceTest::cleanup();
}

// The occasions //////////////////////////////////////////////////////////////////////////////////

bool ControllerInSlotsTest::prepareError()
{
    publishStatus(alderMax, "42");
    return settle(2);
}

bool ControllerInSlotsTest::prepareHostsError()
{
    m_controller->updateCachedStatus(true);
    return true;
}

void ControllerInSlotsTest::versionChanges()
{
    machine().publish(alder.name, PrinterValue::text("SoftwareVersion", "5"));
}

void ControllerInSlotsTest::mileageChanges()
{
    machine().publish(alder.name, PrinterValue::number("Mileage", 77));
}

void ControllerInSlotsTest::statusChanges()
{
    publishStatus(alder, "7");
}

void ControllerInSlotsTest::errorBegins()
{
    publishStatus(alderMax, "42");
}

void ControllerInSlotsTest::errorEnds()
{
    publishStatus(alderMax, "1");
}

void ControllerInSlotsTest::ignoredPrinterIsFound()
{
    addPrinter(laser);
    addPrinter(plotter);
    m_controller->checkForPrinters();
}

void ControllerInSlotsTest::unreadablePrinterGoesOffline()
{
    machine().setStatus(alderMax.name, PRINTER_STATUS_OFFLINE);
    machine().unpublish(alderMax.name, "StatusCode");
}

void ControllerInSlotsTest::disconnectedPrinterGoesOffline()
{
    machine().setStatus(alderMax.name, PRINTER_STATUS_OFFLINE);
    publishStatus(alderMax, "0");
}

void ControllerInSlotsTest::supplyChanges()
{
    machine().publish(alder.name, PrinterValue::text("SupplyIdentifier", "00000064100004000001"));
}

void ControllerInSlotsTest::ribbonsChange()
{
    machine().publish(alder.name, PrinterValue::number("Ribbon2Identifier", 2008));
}

void ControllerInSlotsTest::otherDefaultReports()
{
    machine().setDefaultPrinter(alder.name);
    publishStatus(alder, "7");
}

void ControllerInSlotsTest::newDefaultIsFound()
{
    addPrinter(cedarMax);
    publish(cedarMax, moment(cedarMax, firstMoment));
    machine().setDefaultPrinter(cedarMax.name);
    addPrinter(plotter);
    m_controller->checkForPrinters();
}

void ControllerInSlotsTest::hostSeesAnError()
{
    m_controller->updateCachedStatus(true);
}

void ControllerInSlotsTest::hostSeesTheErrorEnd()
{
    m_controller->updateCachedStatus(false);
}

// The actions ////////////////////////////////////////////////////////////////////////////////////

void ControllerInSlotsTest::lookForPrinters()
{
    addPrinter(birchMax);
    publish(birchMax, moment(birchMax, firstMoment));
    m_controller->checkForPrinters();
    if (!recordOf(*m_controller, birchMax.name))
        m_seenInSlot = QStringLiteral("the new printer has no record");
}

void ControllerInSlotsTest::readRecords()
{
    const QVariantList records = m_controller->property("availablePrinters").toList();
    const bool isComplete = records.size() >= 2 &&
                            recordOf(*m_controller, alder.name).has_value() &&
                            recordOf(*m_controller, alderMax.name).has_value();
    if (!isComplete)
        m_seenInSlot = QStringLiteral("a printer has no record");
}

void ControllerInSlotsTest::queryEverything()
{
    const auto expect = [this](bool holds, const char* fault) {
        if (!holds)
            m_seenInSlot = QString::fromLatin1(fault);
    };
    expect(m_controller->getPrinterTypeEnum(alder.name) == PrinterType::Alder, "wrong type");
    expect(!m_controller->getStatusTitle(StatusCodes::offline).isEmpty(), "no title");
    expect(m_controller->getPrinterSoftwareVersion(alderMax.name) == QLatin1String("4.0.0"),
           "wrong version");
    expect(!m_controller->activeDefaultPrinter().isEmpty(), "no active printer");
    expect(m_controller->vxDefaultActivePrinter(), "the active printer is of another maker");
    expect(m_controller->getSupplyIdController()->parent() == nullptr, "wrong endpoint");
    expect(m_controller->getm4Controller()->getPrinterStatus(alder.name) == StatusCodes::unknown,
           "wrong status");
    m_controller->sendToLogger(QStringLiteral("in a slot"));
}

void ControllerInSlotsTest::sendCommand()
{
    m_controller->sendCommandToPrinter(QStringLiteral("~JC"), alder.name);
}

void ControllerInSlotsTest::raiseError()
{
    m_controller->updateCachedStatus(true);
}

void ControllerInSlotsTest::clearError()
{
    m_controller->updateCachedStatus(false);
}

void ControllerInSlotsTest::callDeleteLater()
{
    m_controller->deleteLater();
}

void ControllerInSlotsTest::deleteLaterAndRunEventLoop()
{
    // The controller is deleted in this loop if the host's own call emitted the signal, because no
    // other event loop runs then. If a report emitted it, the controller is deleted afterwards.
    m_controller->deleteLater();
    QEventLoop loop;
    QTimer::singleShot(0, &loop, &QEventLoop::quit);
    loop.exec();
}

void ControllerInSlotsTest::deleteLaterInEventLoop()
{
    QEventLoop loop;
    connect(m_controller, &QObject::destroyed, &loop, &QEventLoop::quit);
    QTimer::singleShot(patience, &loop, &QEventLoop::quit);
    QTimer::singleShot(0, m_controller, &QObject::deleteLater);
    loop.exec();
    if (m_controller)
        m_seenInSlot = QStringLiteral("the event loop did not delete the controller");
}

void ControllerInSlotsTest::runEventLoop()
{
    QEventLoop loop;
    const auto haveReported = [this] {
        return std::ranges::all_of(
            std::array{alder, alderMax}, [this](const LabelPrinter& printer) {
                return mismatch(*m_controller, printer, moment(printer, momentInSlot)).isEmpty();
            });
    };
    connect(m_controller, &PrinterStatusController::availablePrintersUpdated, &loop, [&] {
        if (haveReported())
            loop.quit();
    });
    QTimer::singleShot(patience, &loop, [&] {
        m_seenInSlot = QStringLiteral("the values published in the slot were not reported");
        loop.quit();
    });
    for (const LabelPrinter& printer : {alder, alderMax})
        publish(printer, moment(printer, momentInSlot));
    loop.exec();
}

// The faults /////////////////////////////////////////////////////////////////////////////////////

QString ControllerInSlotsTest::faultOfDiscovery()
{
    return mismatch(*m_controller, birchMax, moment(birchMax, firstMoment));
}

QString ControllerInSlotsTest::faultOfCommand()
{
    const QList<virtualwindows::PrintJob> jobs = machine().jobs(alder.name);
    const bool isPrinted = jobs.size() == 1 && jobs.first().pages == QList<QByteArray>{"~JC\r\n"};
    return isPrinted ? QString() : QStringLiteral("the command was not printed once");
}

QString ControllerInSlotsTest::faultOfMomentInSlot()
{
    for (const LabelPrinter& printer : {alder, alderMax}) {
        const QString fault = mismatch(*m_controller, printer, moment(printer, momentInSlot));
        if (!fault.isEmpty())
            return fault;
    }
    return {};
}

QString ControllerInSlotsTest::faultOfDeletion()
{
    const bool isDeleted = QTest::qWaitFor([this] { return !m_controller; }, patience);
    return isDeleted ? leftBehind() : QStringLiteral("the controller was not deleted");
}

QString ControllerInSlotsTest::faultOfRecordsAfterwards()
{
    QList<LabelPrinter> printers{alder, alderMax, birchMax, cedarMax};
    printers.removeIf([this](const LabelPrinter& printer) {
        return !machine().printers().contains(printer.name);
    });
    machine().setStatus(alderMax.name, 0);
    for (const int number : lastMoments) {
        for (const LabelPrinter& printer : std::as_const(printers))
            publish(printer, moment(printer, number));
        if (!settle(watchedPrinters(*m_controller)))
            return QStringLiteral("the threads did not settle");
        for (const LabelPrinter& printer : std::as_const(printers)) {
            const QString fault = mismatch(*m_controller, printer, moment(printer, number));
            if (!fault.isEmpty())
                return fault;
        }
    }
    return {};
}

QString ControllerInSlotsTest::faultOfErrorSignals() const
{
    bool last = false;
    for (const QList<QVariant>& arguments : std::as_const(*m_errorSignals)) {
        if (arguments.first().toBool() == last)
            return QStringLiteral("the same error state was reported twice in a row");
        last = !last;
    }
    // All printers are ready by now.
    return last ? QStringLiteral("the end of the error was not reported") : QString();
}

void ControllerInSlotsTest::onSignal()
{
    if (m_acted++ == 0)
        (this->*m_action->act)();
}

void ControllerInSlotsTest::everySignalHasAnOccasion()
{
    const QMetaObject& type = PrinterStatusController::staticMetaObject;
    for (int index = type.methodOffset(); index < type.methodCount(); ++index) {
        const QMetaMethod method = type.method(index);
        // This signal is never emitted.
        if (method.methodType() != QMetaMethod::Signal || method.name() == "softwareVersionUpdated")
            continue;
        QVERIFY2(std::ranges::any_of(
                     occasions,
                     [&](const Occasion& occasion) { return method.name() == occasion.signal; }),
                 method.name().constData());
    }
}

void ControllerInSlotsTest::hostMayActInSlot_data()
{
    QTest::addColumn<int>("occasion");
    QTest::addColumn<int>("action");
    for (int occasion = 0; occasion < occasions.size(); ++occasion) {
        for (int action = 0; action < actions.size(); ++action) {
            QTest::addRow("%s (%s): %s", occasions[occasion].signal, occasions[occasion].name,
                          actions[action].name)
                << occasion << action;
        }
    }
}

void ControllerInSlotsTest::hostMayActInSlot()
{
    QFETCH(const int, occasion);
    QFETCH(const int, action);
    const Occasion& place = occasions[occasion];
    m_action = &actions[action];
    QVERIFY(!place.prepare || (this->*place.prepare)());

    const QMetaObject& type = PrinterStatusController::staticMetaObject;
    for (int index = type.methodOffset(); index < type.methodCount(); ++index) {
        if (type.method(index).name() == place.signal)
            QVERIFY(connect(m_controller, type.method(index), this,
                            metaObject()->method(metaObject()->indexOfSlot("onSignal()"))));
    }
    (this->*place.happen)();
    if (m_controller)
        QVERIFY(settle(2));
    QVERIFY(m_acted > 0);
    QCOMPARE(m_seenInSlot, QString());

    if (m_controller)
        QVERIFY(settle(watchedPrinters(*m_controller)));
    if (m_action->fault)
        QCOMPARE((this->*m_action->fault)(), QString());
    if (!m_controller)
        return;
    QCOMPARE(faultOfRecordsAfterwards(), QString());
    QCOMPARE(faultOfErrorSignals(), QString());
}

void ControllerInSlotsTest::errorStateSetInItsOwnSlotIsNotReportedAgain()
{
    connect(m_controller, &PrinterStatusController::printerErrorChangedSignal, this,
            [this](bool inError) { m_controller->updateCachedStatus(inError); });
    publishStatus(alder, "42");
    QVERIFY(settle(2));
    publishStatus(alder, "1");
    QVERIFY(settle(2));
    QCOMPARE(m_errorSignals->size(), 2);
    QCOMPARE(faultOfErrorSignals(), QString());
}

QTEST_GUILESS_MAIN(ControllerInSlotsTest)
#include "tst_controller_in_slots.moc"
