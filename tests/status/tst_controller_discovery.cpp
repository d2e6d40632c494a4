// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Which printers the controller finds, and what records they get.
#include "controller_test.h"
#include "patience.h"

#include "vx_ipc_m4_controller.h"
#include "vx_ipc_supplyd_controller.h"

#include <QtCore/QSemaphore>
#include <QtCore/QThread>

namespace {
const QString packing = QStringLiteral("Packing");
const QString shipping = QStringLiteral("Shipping");
const QString office = QStringLiteral("Office");
} // namespace

class ControllerDiscoveryTest : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void noPrinters();
    void spoolerThatDoesNotAnswerHasNoPrinters();
    void printerWithoutADriverInvalidatesTheList();
    void driver_data();
    void driver();
    void newRecord();
    void networkPrinter_data();
    void networkPrinter();
    void unmanagedPrinterIsListedOnly();
    void offlinePrinterGetsItsRecordWhenItIsOnline();
    void offlinePrinterOfNoSupportedModelIsIgnored();
    void offlineNetworkPrinterGetsNoRecord();
    void ignoredPrinterIsReportedOnce();
    void ignoredPrinterStaysIgnored();
    void secondDiscoveryChangesNothing();
    void eachDiscoveryEnumeratesOnce();
    void namesThatDifferInCaseAreTwoPrinters();
    void recordsAreSortedByName();
    void duplicateNameIsOnePrinter();
    void removedPrinterKeepsItsRecordAndThread();
    void endpointsLearnOfEachRecord();
    void reportsOfThreadsReachTheirSlots();
    void threadsRunAtInheritedPriority();
    void threadIsStartedAsItsPrinterIsFound();
    void discoveryEmitsItsSignalsInOrder();
    void slotsMayUseTheControllerDuringDiscovery_data();
    void slotsMayUseTheControllerDuringDiscovery();
    void evaluatedPrintersAreLogged();
    void controllerWorksOnAnyThread();
    void parentDeletesTheController();
};

void ControllerDiscoveryTest::noPrinters()
{
    makeController();
    QVERIFY(controller().getAvailablePrinters().isEmpty());
    QVERIFY(controller().activeDefaultPrinter().isNull());
    QVERIFY(!controller().vxDefaultActivePrinter());
    QCOMPARE(machine().openHandles(), 0);
    controller().checkForPrinters();
    QVERIFY(takeSignals().isEmpty());
    QVERIFY(takeLog().isEmpty());
}

void ControllerDiscoveryTest::spoolerThatDoesNotAnswerHasNoPrinters()
{
    addPrinter(packing);
    machine().stopSpooler();
    makeController();
    QVERIFY(recordNames().isEmpty());

    machine().startSpooler();
    controller().checkForPrinters();
    QCOMPARE(recordNames(), QStringList{packing});
}

void ControllerDiscoveryTest::printerWithoutADriverInvalidatesTheList()
{
    // One incomplete entry invalidates the whole list. No exception leaves the controller.
    addPrinter(packing);
    addPrinter(shipping, QString());
    makeController();
    QVERIFY(recordNames().isEmpty());
    controller().checkForPrinters();
    QVERIFY(recordNames().isEmpty());
    QCOMPARE(controller().getPrinterTypeEnum(packing), VXPrinting::PrinterType::Unknown);
    QVERIFY(takeSignals().isEmpty());

    machine().removePrinter(shipping);
    controller().checkForPrinters();
    QCOMPARE(recordNames(), QStringList{packing});
}

void ControllerDiscoveryTest::driver_data()
{
    QTest::addColumn<QString>("driver");
    QTest::addColumn<bool>("supported");
    QTest::addColumn<bool>("secondRibbon");

    QTest::newRow("Alder") << "Stratamark Alder" << true << true;
    QTest::newRow("AlderMax") << "Stratamark AlderMax" << true << true;
    QTest::newRow("BirchMax") << "Stratamark BirchMax" << true << false;
    QTest::newRow("CedarMax") << "Stratamark CedarMax" << true << false;
    QTest::newRow("other letter case") << "STRATAMARK alder" << true << true;
    QTest::newRow("another model of the brand") << "Stratamark Elm" << false << false;
    QTest::newRow("another printer of the maker") << "Harlow Devices Press" << false << false;
    QTest::newRow("another maker") << "Office Laser 9" << false << false;
}

void ControllerDiscoveryTest::driver()
{
    QFETCH(const QString, driver);
    QFETCH(const bool, supported);
    QFETCH(const bool, secondRibbon);

    // The model is not recognised by the printer's own name.
    const QString name = supported ? QStringLiteral("Laser") : QStringLiteral("Stratamark Alder");
    makeController();
    addPrinter(name, driver);
    controller().checkForPrinters();

    if (supported) {
        QCOMPARE(recordNames(), QStringList{name});
        QCOMPARE(record(name).ribbon2Visible, secondRibbon);
        QCOMPARE(takeSignals(), QStringList{});
    } else {
        QVERIFY(recordNames().isEmpty());
        QCOMPARE(takeSignals(),
                 QStringList{QStringLiteral("statusChangedSignal(0, %1)").arg(name)});
        QCOMPARE(machine().openHandles(), 0);
    }
}

void ControllerDiscoveryTest::newRecord()
{
    addPrinter(packing, QStringLiteral("Stratamark BirchMax"));
    makeController();

    const PrinterStatusInformation found = record(packing);
    QCOMPARE(found.statusEnum, 255);
    QVERIFY(found.printerOnline);
    QVERIFY(!found.printerRemote);
    QVERIFY(!found.printerNonAdmin);
    QVERIFY(!found.printerDefault);
    QVERIFY(!found.ribbon2Visible);
    QCOMPARE(found.supplyPercentage, 0);
    for (const QString& text : {found.supplySKU, found.supplyColorHex, found.ribbon1SKU,
                                found.ribbon2SKU, found.softwareVersion})
        QVERIFY(text.isEmpty());
    QVERIFY(machine().waitForWaitingThreads(1));
}

void ControllerDiscoveryTest::networkPrinter_data()
{
    QTest::addColumn<quint32>("attributes");
    QTest::addColumn<QString>("port");

    QTest::newRow("connection") << networkAttribute << "USB001";
    QTest::newRow("port like an address") << localAttribute << "192.168.1.20";
    QTest::newRow("neither local nor network") << 0U << "USB001";
}

void ControllerDiscoveryTest::networkPrinter()
{
    QFETCH(const quint32, attributes);
    QFETCH(const QString, port);
    // The controller does not check whether the user may administer it.
    machine().addPrinter({.name = packing,
                          .driver = QStringLiteral("Stratamark Alder"),
                          .port = port,
                          .attributes = attributes,
                          .administrable = false});
    makeController();

    const PrinterStatusInformation found = record(packing);
    QCOMPARE(found.statusEnum, 256);
    QVERIFY(found.printerRemote);
    QVERIFY(!found.printerNonAdmin);
    QVERIFY(found.printerOnline);
    QVERIFY(found.ribbon2Visible);
    QCOMPARE(callsOf("OpenPrinterA"), 0);
    QCOMPARE(machine().openHandles(), 0);
}

void ControllerDiscoveryTest::unmanagedPrinterIsListedOnly()
{
    addUnmanagedPrinter(packing);
    makeController();

    const PrinterStatusInformation found = record(packing);
    QCOMPARE(found.statusEnum, 258);
    QVERIFY(found.printerNonAdmin);
    QVERIFY(!found.printerRemote);
    QVERIFY(found.printerOnline);
    QCOMPARE(machine().openHandles(), 0);
    QCOMPARE(callsOf("FindFirstPrinterChangeNotification"), 0);
}

void ControllerDiscoveryTest::offlinePrinterGetsItsRecordWhenItIsOnline()
{
    addPrinter(packing);
    setOffline(packing);
    makeController();
    QVERIFY(recordNames().isEmpty());
    QCOMPARE(machine().openHandles(), 0);
    QCOMPARE(takeMessages(),
             QStringList{QStringLiteral("Evaluating Printer: Packing ( Stratamark Alder ).")});

    controller().checkForPrinters();
    QVERIFY(recordNames().isEmpty());
    QVERIFY(takeLog().isEmpty());

    setOffline(packing, false);
    controller().checkForPrinters();
    QCOMPARE(recordNames(), QStringList{packing});
    QVERIFY(takeLog().isEmpty());
    QVERIFY(takeSignals().isEmpty());
    QVERIFY(machine().waitForWaitingThreads(1));
}

void ControllerDiscoveryTest::offlinePrinterOfNoSupportedModelIsIgnored()
{
    makeController();
    addPrinter(office, QStringLiteral("Office Laser 9"), localAttribute | workOfflineAttribute);
    controller().checkForPrinters();
    QCOMPARE(takeSignals(), QStringList{QStringLiteral("statusChangedSignal(0, Office)")});
    machine().setDriver(office, QStringLiteral("Stratamark Alder"));
    controller().checkForPrinters();
    QVERIFY(recordNames().isEmpty());
}

void ControllerDiscoveryTest::offlineNetworkPrinterGetsNoRecord()
{
    addPrinter(packing, QStringLiteral("Stratamark Alder"),
               networkAttribute | workOfflineAttribute);
    makeController();
    QVERIFY(recordNames().isEmpty());
}

void ControllerDiscoveryTest::ignoredPrinterIsReportedOnce()
{
    makeController();
    addPrinter(office, QStringLiteral("Harlow Devices Press"));
    controller().checkForPrinters();
    QCOMPARE(takeSignals(), QStringList{QStringLiteral("statusChangedSignal(0, Office)")});
    controller().checkForPrinters();
    controller().checkForPrinters();
    QVERIFY(takeSignals().isEmpty());
    QCOMPARE(takeMessages().size(), 1);
}

void ControllerDiscoveryTest::ignoredPrinterStaysIgnored()
{
    addPrinter(office, QStringLiteral("Office Laser 9"));
    makeController();
    machine().setDriver(office, QStringLiteral("Stratamark Alder"));
    controller().checkForPrinters();
    QVERIFY(recordNames().isEmpty());
    QVERIFY(takeSignals().isEmpty());
}

void ControllerDiscoveryTest::secondDiscoveryChangesNothing()
{
    addPrinter(packing);
    addNetworkPrinter(shipping);
    addUnmanagedPrinter(office);
    makeController();
    QVERIFY(machine().waitForWaitingThreads(1));
    reportStatus(packing, "1");
    const QVariantList before = controller().getAvailablePrinters();
    const int handles = machine().openHandles();
    const int notifications = callsOf("FindFirstPrinterChangeNotification");
    takeSignals();
    takeLog();

    controller().checkForPrinters();
    controller().checkForPrinters();

    QCOMPARE(recordNames().size(), before.size());
    QCOMPARE(record(packing).statusEnum, 1);
    QCOMPARE(machine().openHandles(), handles);
    QCOMPARE(machine().waitingThreads(), 1);
    QCOMPARE(callsOf("FindFirstPrinterChangeNotification"), notifications);
    QVERIFY(takeSignals().isEmpty());
    QVERIFY(takeLog().isEmpty());
}

void ControllerDiscoveryTest::eachDiscoveryEnumeratesOnce()
{
    addPrinter(packing);
    makeController();
    const int sizingAndReading = 2;
    QCOMPARE(callsOf("EnumPrintersW"), sizingAndReading);
    controller().checkForPrinters();
    QCOMPARE(callsOf("EnumPrintersW"), 2 * sizingAndReading);
}

void ControllerDiscoveryTest::namesThatDifferInCaseAreTwoPrinters()
{
    // The virtual spooler compares names exactly, so both printers can exist.
    addPrinter(QStringLiteral("packing"), QStringLiteral("Stratamark BirchMax"));
    addPrinter(QStringLiteral("Packing"), QStringLiteral("Stratamark Alder"));
    makeController();
    QCOMPARE(recordNames(), QStringList({QStringLiteral("Packing"), QStringLiteral("packing")}));
    QVERIFY(machine().waitForWaitingThreads(2));
    reportStatus(QStringLiteral("packing"), "1");
    QCOMPARE(record(QStringLiteral("packing")).statusEnum, 1);
    QCOMPARE(record(QStringLiteral("Packing")).statusEnum, 255);
}

void ControllerDiscoveryTest::recordsAreSortedByName()
{
    for (const char* name : {"b", "a", "\xC3\xA4", "B", "10", "9", "\xE2\x82\xAC"})
        addNetworkPrinter(QString::fromUtf8(name));
    makeController();
    QStringList expected;
    for (const char* name : {"10", "9", "B", "a", "b", "\xC3\xA4", "\xE2\x82\xAC"})
        expected.append(QString::fromUtf8(name));
    QCOMPARE(recordNames(), expected);
}

void ControllerDiscoveryTest::duplicateNameIsOnePrinter()
{
    addNetworkPrinter(packing);
    makeController();
    machine().removePrinter(packing);
    addPrinter(packing);
    controller().checkForPrinters();
    QCOMPARE(recordNames(), QStringList{packing});
    QCOMPARE(record(packing).statusEnum, 256);
    QCOMPARE(machine().openHandles(), 0);
}

void ControllerDiscoveryTest::removedPrinterKeepsItsRecordAndThread()
{
    addPrinter(packing);
    makeController();
    QVERIFY(machine().waitForWaitingThreads(1));
    machine().removePrinter(packing);
    controller().checkForPrinters();
    QCOMPARE(recordNames(), QStringList{packing});
    QVERIFY(machine().waitForWaitingThreads(1));
}

void ControllerDiscoveryTest::endpointsLearnOfEachRecord()
{
    addPrinter(packing);
    addNetworkPrinter(shipping);
    addUnmanagedPrinter(office);
    makeController();

    VXIPCM4Controller* const printers = controller().getm4Controller();
    QCOMPARE(printers->getPrinterStatus(packing), 255);
    QCOMPARE(printers->getPrinterStatus(shipping), 256);
    QCOMPARE(printers->getPrinterStatus(office), 258);

    // A later report is not passed on.
    reportStatus(packing, "1");
    QCOMPARE(printers->getPrinterStatus(packing), 255);

    // The printer has its own database object, so what is loaded in it is stored for it alone.
    VXIPCSUPPLYDController* const supplies = controller().getSupplyIdController();
    supplies->setRibbonIds({QStringLiteral("-1")}, packing);
    QCOMPARE(supplies->supplyRibbonSKUsCached(packing), QStringList{QStringLiteral("-1")});
    for (const QString& other : {shipping, office, QString()})
        QVERIFY(supplies->supplyRibbonSKUsCached(other).isEmpty());

    QCOMPARE(printers->parent(), nullptr);
    QCOMPARE(supplies->parent(), nullptr);
    QCOMPARE(controller().getm4Controller(), printers);
    QCOMPARE(controller().getSupplyIdController(), supplies);
}

void ControllerDiscoveryTest::reportsOfThreadsReachTheirSlots()
{
    // Alder publishes percentages, so the values show which mileage filled which field.
    addPrinter(packing);
    makeController();
    QVERIFY(settle(1));
    takeSignals();
    machine().publish(packing, {
                                   PrinterValue::text("StatusCode", "1"),
                                   PrinterValue::text("SupplyIdentifier", QByteArray(20, '0')),
                                   PrinterValue::number("Ribbon1Identifier", 0),
                                   PrinterValue::number("Mileage", 81),
                                   PrinterValue::number("Ribbon1Mileage", 72),
                                   PrinterValue::number("Ribbon2Mileage", 63),
                                   PrinterValue::text("SoftwareVersion", "1.2.3,boot 4"),
                                   PrinterValue::text("EthernetConfig", "10.0.0.7"),
                                   PrinterValue::number("UpdateProgress", 5),
                                   PrinterValue::number("UpdateError", 6),
                               });
    QVERIFY(settle(1));

    const PrinterStatusInformation found = record(packing);
    QCOMPARE(found.statusEnum, 1);
    QCOMPARE(found.supplySKU, QStringLiteral("-1"));
    QCOMPARE(found.supplyPercentage, 81);
    QCOMPARE(found.ribbon1Percentage, 72);
    QCOMPARE(found.ribbon2Percentage, 63);
    QCOMPARE(found.softwareVersion, QStringLiteral("1.2.3,boot 4"));

    const QString updated = QStringLiteral("availablePrintersUpdated()");
    const QStringList expected{
        QStringLiteral("statusChangedSignal(1, Packing)"),
        updated,
        QStringLiteral("supplyIdChangedSignal(Packing)"),
        updated,
        QStringLiteral("ribbonIdsChangedSignal(Packing)"),
        updated,
        updated, // supply mileage
        updated, // ribbon 1 mileage
        updated, // ribbon 2 mileage
        updated, // firmware version
    };
    QCOMPARE(takeSignals(), expected);
}

void ControllerDiscoveryTest::threadsRunAtInheritedPriority()
{
    addPrinter(packing);
    QThread::Priority seen = QThread::LowestPriority;
    machine().setCallHook([&](const Call& call) {
        if (call.function == QLatin1String("FindFirstPrinterChangeNotification"))
            seen = QThread::currentThread()->priority();
    });
    makeController();
    QVERIFY(machine().waitForWaitingThreads(1));
    machine().setCallHook(nullptr);
    QCOMPARE(seen, QThread::InheritPriority);
}

void ControllerDiscoveryTest::threadIsStartedAsItsPrinterIsFound()
{
    // The first printer is watched before the second one is evaluated.
    addPrinter(packing);
    addPrinter(shipping);
    const QThread* const host = QThread::currentThread();
    QSemaphore watched;
    bool isFirstWatched = false;
    machine().setCallHook([&](const Call& call) {
        if (call.function == QLatin1String("FindFirstPrinterChangeNotification"))
            watched.release();
        const bool isLookedAt = call.function == QLatin1String("OpenPrinterA") &&
                                QThread::currentThread() == host &&
                                call.arguments.first() == shipping;
        if (isLookedAt)
            isFirstWatched = watched.tryAcquire(1, 20000);
    });
    makeController();
    QVERIFY(machine().waitForWaitingThreads(2));
    machine().setCallHook(nullptr);
    QVERIFY(isFirstWatched);
}

void ControllerDiscoveryTest::discoveryEmitsItsSignalsInOrder()
{
    makeController();
    addPrinter(packing);
    addNetworkPrinter(shipping);
    addUnmanagedPrinter(QStringLiteral("Store"));
    addPrinter(office, QStringLiteral("Office Laser 9"));
    machine().setDefaultPrinter(shipping);
    controller().checkForPrinters();
    QCOMPARE(takeSignals(),
             QStringList({QStringLiteral("activeDefaultPrinterSetSignal(Shipping, true)"),
                          QStringLiteral("statusChangedSignal(0, Office)")}));
}

void ControllerDiscoveryTest::slotsMayUseTheControllerDuringDiscovery_data()
{
    QTest::addColumn<QString>("foundAfter");
    QTest::addColumn<QString>("driver");
    QTest::addColumn<QString>("slotOf");
    QTest::newRow("of a printer that is ignored")
        << office << QStringLiteral("Office Laser 9")
        << QStringLiteral("statusChangedSignal(0, Office)");
    QTest::newRow("of the active printer")
        << shipping << QStringLiteral("Stratamark Alder")
        << QStringLiteral("activeDefaultPrinterSetSignal(Shipping, true)");
}

void ControllerDiscoveryTest::slotsMayUseTheControllerDuringDiscovery()
{
    // While a slot runs an event loop, for example that of a dialog, all printers that were found
    // before are watched.
    QFETCH(QString, foundAfter);
    QFETCH(QString, driver);
    QFETCH(QString, slotOf);
    makeController();
    addPrinter(packing);
    machine().publish(packing, PrinterValue::text("StatusCode", "1"));
    addPrinter(foundAfter, driver);
    machine().setDefaultPrinter(shipping);

    bool isCalled = false;
    bool isWatched = false;
    recorder().hook = [&](const QString& line) {
        if (isCalled || line != slotOf)
            return;
        isCalled = true;
        isWatched = QTest::qWaitFor([&] { return record(packing).statusEnum == 1; }, patience);
    };
    controller().checkForPrinters();
    QVERIFY(isCalled);
    QVERIFY(isWatched);
}

void ControllerDiscoveryTest::evaluatedPrintersAreLogged()
{
    addPrinter(packing, QStringLiteral("Stratamark CedarMax"));
    addPrinter(QStringLiteral("B\u00fcro"), QStringLiteral("Office Laser 9"));
    makeController();
    const log_lines::LogLine evaluating{
        "printer_status_controller", 141,
        "void PrinterStatusController::checkForNewPrinter(AvailablePrinters)", nullptr};
    const log_lines::LogLine chosen{"printer_status_controller", 263,
                                    "void PrinterStatusController::initializeDefaultPrinter()",
                                    nullptr};
    const QList<LogRecord> expected{
        line(evaluating, QStringLiteral("Evaluating Printer: Packing ( Stratamark CedarMax ).")),
        line(evaluating, QStringLiteral("Evaluating Printer: B\u00fcro ( Office Laser 9 ).")),
        line(chosen, QStringLiteral("Setting defaultActivePrinter Packing.")),
    };
    QCOMPARE(takeLog(), expected);
}

void ControllerDiscoveryTest::controllerWorksOnAnyThread()
{
    // The controller belongs to the thread that creates it, which need not be the main thread.
    addPrinter(packing);
    machine().publish(packing, PrinterValue::text("StatusCode", "1"));
    QThread* slotThread = nullptr;
    const std::unique_ptr<QThread> host(QThread::create([&] {
        PrinterStatusController printers(nullptr);
        QEventLoop loop;
        QObject::connect(&printers, &PrinterStatusController::statusChangedSignal, &loop, [&] {
            slotThread = QThread::currentThread();
            loop.quit();
        });
        loop.exec();
    }));
    host->start();
    QVERIFY(host->wait(patience));
    QCOMPARE(slotThread, host.get());
    QCOMPARE(machine().openHandles(), 0);
}

void ControllerDiscoveryTest::parentDeletesTheController()
{
    addPrinter(packing);
    auto parent = std::make_unique<QObject>();
    const QPointer<QObject> made = new PrinterStatusController(parent.get());
    QCOMPARE(made->parent(), parent.get());
    QVERIFY(machine().waitForWaitingThreads(1));
    parent.reset();
    QVERIFY(!made);
    QCOMPARE(machine().openHandles(), 0);
}

QTEST_GUILESS_MAIN(ControllerDiscoveryTest)
#include "tst_controller_discovery.moc"
