// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// What a host may do inside a slot that one of the controller's signals called: everything but an
// outright delete of the controller, from every place that a signal is emitted at.
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

namespace {

const LabelPrinter alder{QStringLiteral("Alder at the window"), PrinterType::Alder};
/// The Windows default printer, and so the active one.
const LabelPrinter alderMax{QStringLiteral("AlderMax at the door"), PrinterType::AlderMax};
/// That comes later, where it comes at all.
const LabelPrinter birchMax{QStringLiteral("BirchMax, new"), PrinterType::BirchMax};
const LabelPrinter cedarMax{QStringLiteral("CedarMax, new"), PrinterType::CedarMax};
const LabelPrinter laser{QStringLiteral("Laser"), PrinterType::Unknown};
/// Listed last, so that the controller still has to look at it when the slots are done.
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
    /// A place that emits a signal.
    struct Occasion
    {
        const char* name;
        const char* signal;
        void (ControllerInSlotsTest::*prepare)(); ///< null: nothing has to be
        void (ControllerInSlotsTest::*happen)();
    };
    /// What the host does in the slot.
    struct Action
    {
        const char* name;
        void (ControllerInSlotsTest::*act)();
        void (ControllerInSlotsTest::*check)(); ///< once the slot is over; null: only the usual
    };
    static const QList<Occasion> occasions;
    static const QList<Action> actions;

private Q_SLOTS:
    void everySignalHasItsOccasions();
    void actsInSlot_data();
    void actsInSlot();
    void hostThatAnswersEveryErrorWithOne();

protected Q_SLOTS:
    void init() override;
    void cleanup() override;
    void onSignal();

private:
    void publishStatus(const LabelPrinter& printer, const char* code)
    {
        machine().publish(printer.name, PrinterValue::text("StatusCode", code));
    }

    void prepareError();
    void prepareHostsError();
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
    void askEverything();
    void sendCommand();
    void raiseError();
    void clearError();
    void giveToDeleteLater();
    void giveToDeleteLaterAndRunEventLoop();
    void giveToDeleteLaterInEventLoop();
    void runEventLoop();

    void checkFound();
    void checkCommand();
    void checkDeleted();
    void checkMomentInSlot();

    void checkRecordsAfterwards();
    /// The error state that the host was told of never came twice in a row.
    void checkErrorSignals();

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
     &ControllerInSlotsTest::checkFound},
    {"read the records", &ControllerInSlotsTest::readRecords, nullptr},
    {"ask everything", &ControllerInSlotsTest::askEverything, nullptr},
    {"send a command", &ControllerInSlotsTest::sendCommand, &ControllerInSlotsTest::checkCommand},
    {"tell of an error", &ControllerInSlotsTest::raiseError, nullptr},
    {"tell of an error's end", &ControllerInSlotsTest::clearError, nullptr},
    {"run an event loop", &ControllerInSlotsTest::runEventLoop,
     &ControllerInSlotsTest::checkMomentInSlot},
    {"delete later", &ControllerInSlotsTest::giveToDeleteLater,
     &ControllerInSlotsTest::checkDeleted},
    {"delete later, then run an event loop",
     &ControllerInSlotsTest::giveToDeleteLaterAndRunEventLoop,
     &ControllerInSlotsTest::checkDeleted},
    {"delete later in an event loop", &ControllerInSlotsTest::giveToDeleteLaterInEventLoop,
     &ControllerInSlotsTest::checkDeleted},
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
    // Before the slot that acts, which may have the state change once more.
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

void ControllerInSlotsTest::prepareError()
{
    publishStatus(alderMax, "42");
    QVERIFY(settle(2));
}

void ControllerInSlotsTest::prepareHostsError()
{
    m_controller->updateCachedStatus(true);
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

void ControllerInSlotsTest::askEverything()
{
    const auto expect = [this](bool holds, const char* otherwise) {
        if (!holds)
            m_seenInSlot = QString::fromLatin1(otherwise);
    };
    expect(m_controller->getPrinterTypeEnum(alder.name) == PrinterType::Alder, "another type");
    expect(!m_controller->getStatusTitle(257).isEmpty(), "no title");
    expect(m_controller->getPrinterSoftwareVersion(alderMax.name) == QLatin1String("4.0.0"),
           "another version");
    expect(!m_controller->activeDefaultPrinter().isEmpty(), "no active printer");
    expect(m_controller->vxDefaultActivePrinter(), "an active printer of another maker");
    expect(m_controller->getSupplyIdController()->parent() == nullptr, "another endpoint");
    expect(m_controller->getm4Controller()->getPrinterStatus(alder.name) == 255, "another status");
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

void ControllerInSlotsTest::giveToDeleteLater()
{
    m_controller->deleteLater();
}

void ControllerInSlotsTest::giveToDeleteLaterAndRunEventLoop()
{
    // Deleted in the loop where the host itself called what emitted the signal, outside of any
    // event loop, and afterwards where it was a report.
    m_controller->deleteLater();
    QEventLoop loop;
    QTimer::singleShot(0, &loop, &QEventLoop::quit);
    loop.exec();
}

void ControllerInSlotsTest::giveToDeleteLaterInEventLoop()
{
    QEventLoop loop;
    connect(m_controller, &QObject::destroyed, &loop, &QEventLoop::quit);
    QTimer::singleShot(patience, &loop, &QEventLoop::quit);
    QTimer::singleShot(0, m_controller, &QObject::deleteLater);
    loop.exec();
    if (m_controller)
        m_seenInSlot = QStringLiteral("the event loop does not delete the controller");
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
        m_seenInSlot = QStringLiteral("what is published in the slot does not come");
        loop.quit();
    });
    for (const LabelPrinter& printer : {alder, alderMax})
        publish(printer, moment(printer, momentInSlot));
    loop.exec();
}

// What became of them ////////////////////////////////////////////////////////////////////////////

void ControllerInSlotsTest::checkFound()
{
    QCOMPARE(mismatch(*m_controller, birchMax, moment(birchMax, firstMoment)), QString());
}

void ControllerInSlotsTest::checkCommand()
{
    const QList<virtualwindows::PrintJob> jobs = machine().jobs(alder.name);
    QCOMPARE(jobs.size(), 1);
    QCOMPARE(jobs.first().pages, QList<QByteArray>{"~JC\r\n"});
}

void ControllerInSlotsTest::checkMomentInSlot()
{
    for (const LabelPrinter& printer : {alder, alderMax})
        QCOMPARE(mismatch(*m_controller, printer, moment(printer, momentInSlot)), QString());
}

void ControllerInSlotsTest::checkDeleted()
{
    QTRY_VERIFY_WITH_TIMEOUT(!m_controller, patience);
    QCOMPARE(machine().waitingThreads(), 0);
    QCOMPARE(machine().openHandles(), 0);
}

void ControllerInSlotsTest::checkRecordsAfterwards()
{
    machine().setStatus(alderMax.name, 0);
    for (const int number : lastMoments) {
        for (const LabelPrinter& printer : {alder, alderMax, birchMax, cedarMax}) {
            if (machine().printers().contains(printer.name))
                publish(printer, moment(printer, number));
        }
        QVERIFY(settle(watchedPrinters(*m_controller)));
        for (const LabelPrinter& printer : {alder, alderMax, birchMax, cedarMax}) {
            if (machine().printers().contains(printer.name))
                QCOMPARE(mismatch(*m_controller, printer, moment(printer, number)), QString());
        }
    }
}

void ControllerInSlotsTest::checkErrorSignals()
{
    bool last = false;
    for (const QList<QVariant>& arguments : std::as_const(*m_errorSignals)) {
        QVERIFY2(arguments.first().toBool() != last, "the same error state was told of twice");
        last = !last;
    }
    // All printers are ready by now.
    QVERIFY2(!last, "the end of the error was not told");
}

void ControllerInSlotsTest::onSignal()
{
    if (m_acted++ == 0)
        (this->*m_action->act)();
}

void ControllerInSlotsTest::everySignalHasItsOccasions()
{
    const QMetaObject& type = PrinterStatusController::staticMetaObject;
    for (int index = type.methodOffset(); index < type.methodCount(); ++index) {
        const QMetaMethod method = type.method(index);
        // That one is never emitted.
        if (method.methodType() != QMetaMethod::Signal || method.name() == "softwareVersionUpdated")
            continue;
        QVERIFY2(std::ranges::any_of(
                     occasions,
                     [&](const Occasion& occasion) { return method.name() == occasion.signal; }),
                 method.name().constData());
    }
}

void ControllerInSlotsTest::actsInSlot_data()
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

void ControllerInSlotsTest::actsInSlot()
{
    QFETCH(const int, occasion);
    QFETCH(const int, action);
    const Occasion& place = occasions[occasion];
    m_action = &actions[action];
    if (place.prepare)
        (this->*place.prepare)();

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
    if (m_action->check)
        (this->*m_action->check)();
    if (!m_controller)
        return;
    checkRecordsAfterwards();
    checkErrorSignals();
}

void ControllerInSlotsTest::hostThatAnswersEveryErrorWithOne()
{
    connect(m_controller, &PrinterStatusController::printerErrorChangedSignal, this,
            [this](bool inError) { m_controller->updateCachedStatus(inError); });
    publishStatus(alder, "42");
    QVERIFY(settle(2));
    publishStatus(alder, "1");
    QVERIFY(settle(2));
    QCOMPARE(m_errorSignals->size(), 2);
    checkErrorSignals();
}

QTEST_GUILESS_MAIN(ControllerInSlotsTest)
#include "tst_controller_in_slots.moc"
