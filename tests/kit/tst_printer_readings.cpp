// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Which printers have a reading, where its values come from, and which signals report a change.
#include "readings_test.h"

#include <condition_variable>
#include <mutex>

#include <windows.h>

class PrinterReadingsTest : public ReadingsTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyPrinterOfASupportedModelHasAReading();
    void readsWhatWasPublishedBeforeItWasMade();
    void aPrinterWithoutValuesIsNotKnown();
    void eachReportIsOneChangeAfterTheControllersSignals();
    void losesNoChangeWhileItIsMade();
    void asksTheSpoolerNothingOnAReport();
    void readsAPrinterAgainThatCouldNotBeOpened();
    void readsAgainWhatChangedWhileTheSpoolerWasDown();

    void isOfflineWhereTheControllerIs();
    void aDriverThatPublishes257IsOnline();
    void takesTheStatusFromTheRecordInsideASlotOfTheHost();
    void spoolerThatIsDownIsAStatus();

    void anEmptySlotIsNotAnUnknownOne_data();
    void anEmptySlotIsNotAnUnknownOne();
    void aRemovedRibbonIsEmpty();
    void aSlotWithoutCatalogueEntryIsLoaded();
    void rawValuesAreThoseOfTheDriver();

    void serialNumberIsThatOfTheOwnPort_data();
    void serialNumberIsThatOfTheOwnPort();

    void aNewPrinterIsAddedAndWatchedOnceDiscovered();
    void aPrinterThatTheControllerFindsIsAddedByItself();
    void aRemovedPrinterIsGoneByItself();
    void aPrinterThatReturnsIsWatchedAfterARestart();
    void aReplacedPrinterIsWatchedAfterARestart();
    void spoolerThatDoesNotAnswerMakesNothingGone_data();
    void spoolerThatDoesNotAnswerMakesNothingGone();
    void otherModelHasOtherSlots();
    void aPrinterWithoutNameHasNoReading();

    void aRenamedPrinterKeepsItsReading();
    void aRenamedPrinterMovesToItsNewThread();
    void aRefreshWaitsForTheNewName();
    void anOldNameThatIsUsedAgainIsAnotherPrinter();

    void activePrinterIsTheControllers();
    void activePrinterCanBecomeNone();
    void aRenamedPrinterStaysActive();
    void printerToUse();
    void countsPrintersInError();

protected Q_SLOTS:
    void cleanup() override
    {
        // A failed test may have left them held.
        releaseThreads();
        ReadingsTest::cleanup();
    }

private:
    static inline const QString packing = QStringLiteral("Packing");
    static inline const QString shipping = QStringLiteral("Shipping");

    void addBirch(const QString& name, const QString& port = QStringLiteral("USB001"))
    {
        machine().addPrinter(
            {.name = name, .driver = QStringLiteral("Stratamark BirchMax"), .port = port});
    }
    /// Holds the printers' threads when they are about to look what has changed.
    void holdThreads();
    void releaseThreads();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isHolding = false;
};

void PrinterReadingsTest::holdThreads()
{
    {
        const std::lock_guard guard(m_mutex);
        m_isHolding = true;
    }
    machine().setCallHook([this](const Call& call) {
        if (call.function != QLatin1String("FindNextPrinterChangeNotification"))
            return;
        std::unique_lock guard(m_mutex);
        m_changed.wait(guard, [this] { return !m_isHolding; });
    });
}

void PrinterReadingsTest::releaseThreads()
{
    const std::lock_guard guard(m_mutex);
    m_isHolding = false;
    m_changed.notify_all();
}

// Values //////////////////////////////////////////////////////////////////////////////////////////

void PrinterReadingsTest::everyPrinterOfASupportedModelHasAReading()
{
    addBirch(packing);
    addPrinter(QStringLiteral("Asleep"));
    setOffline(QStringLiteral("Asleep"));
    addNetworkPrinter(QStringLiteral("Far"));
    addUnmanagedPrinter(QStringLiteral("Locked"));
    addPrinter(QStringLiteral("Laser"), QStringLiteral("Everyday Office Laser 400"));
    addPrinter(QStringLiteral("Old"), QStringLiteral("Stratamark Birch"));
    publishText(packing, "StatusCode", "1");
    QVERIFY(makeSettledController(1));
    makeReadings();

    QCOMPARE(readings().names(), QStringList({QStringLiteral("Asleep"), QStringLiteral("Far"),
                                              QStringLiteral("Locked"), packing}));
    QCOMPARE(readings().readings().size(), 4);
    QVERIFY(reading(QStringLiteral("Laser")).isNull());

    const Reading watched = reading(packing);
    QCOMPARE(watched.watching(), Watching::Watched);
    QCOMPARE(watched.presence(), Presence::Present);
    QCOMPARE(watched.model(), VXPrinting::PrinterType::BirchMax);
    QCOMPARE(watched.driver(), QStringLiteral("Stratamark BirchMax"));
    QCOMPARE(watched.port(), QStringLiteral("001"));
    QCOMPARE(watched.statusCode(), 1);
    QVERIFY(watched.isOnline());

    const Reading asleep = reading(QStringLiteral("Asleep"));
    QCOMPARE(asleep.watching(), Watching::OfflineSinceDiscovery);
    QCOMPARE(asleep.statusCode(), 257);
    QVERIFY(!asleep.isOnline());
    const Reading far = reading(QStringLiteral("Far"));
    QCOMPARE(far.watching(), Watching::NetworkPrinter);
    QCOMPARE(far.statusCode(), 256);
    QVERIFY(far.isOnline());
    const Reading locked = reading(QStringLiteral("Locked"));
    QCOMPARE(locked.watching(), Watching::NotManaged);
    QCOMPARE(locked.statusCode(), 258);
}

void PrinterReadingsTest::readsWhatWasPublishedBeforeItWasMade()
{
    addPrinter(shipping, QStringLiteral("Stratamark AlderMax"));
    machine().publish(shipping, {PrinterValue::text("StatusCode", "1"),
                                 PrinterValue::text("SupplyIdentifier", "000000641000030000A7"),
                                 PrinterValue::number("Ribbon1Identifier", 2001),
                                 PrinterValue::number("Ribbon2Identifier", 2020),
                                 PrinterValue::number("Mileage", 15240),
                                 PrinterValue::number("Ribbon1Mileage", 60008),
                                 PrinterValue::number("Ribbon2Mileage", 100000),
                                 PrinterValue::text("SoftwareVersion", "4.2.0,boot 1.7"),
                                 PrinterValue::text("EthernetConfig", "dhcp"),
                                 PrinterValue::number("UpdateProgress", 12),
                                 PrinterValue::number("UpdateError", 0)});
    QVERIFY(makeSettledController(1));
    const QDateTime before = QDateTime::currentDateTimeUtc();
    makeReadings();

    const Reading now = reading(shipping);
    QCOMPARE(now.firmwareVersion(), QStringLiteral("4.2.0"));
    QCOMPARE(now.bootVersion(), QStringLiteral("boot 1.7"));
    QCOMPARE(now.ethernetConfig(), QStringLiteral("dhcp"));
    QCOMPARE(now.updateProgress(), std::optional<quint32>(12));
    QCOMPARE(now.updateError(), std::optional<quint32>(0));
    QVERIFY(now.lastReport() >= before);

    const VxKit::Level supply = now.level(Slot::Supply);
    QCOMPARE(supply.state, State::Loaded);
    QCOMPARE(supply.identifier, QStringLiteral("000000641000030000A7"));
    QCOMPARE(supply.sku, QStringLiteral("VT-400-YL"));
    QCOMPARE(supply.name, QStringLiteral("Yellow Vinyl"));
    QCOMPARE(supply.material, QStringLiteral("Vinyl"));
    QCOMPARE(supply.colorName, QStringLiteral("Yellow"));
    QCOMPARE(supply.colors, QStringList{QStringLiteral("#ffd100")});
    QCOMPARE(supply.percentage(), std::optional<int>(50));
    QCOMPARE(supply.percentage(), std::optional<int>(record(shipping).supplyPercentage));
    QVERIFY(!supply.labels);
    QVERIFY(!supply.coarse);
    QCOMPARE(supply.mileage, std::optional<quint32>(15240));

    const VxKit::Level ribbon2 = now.level(Slot::Ribbon2);
    QCOMPARE(ribbon2.sku, QStringLiteral("RP-43-KR"));
    QCOMPARE(ribbon2.name, QStringLiteral("Black/Red resin"));
    QCOMPARE(ribbon2.colorName, QStringLiteral("Black"));
    QCOMPARE(ribbon2.colors, QStringList({QStringLiteral("#000000"), QStringLiteral("#c8102e")}));
    QCOMPARE(ribbon2.percentage(), std::optional<int>(record(shipping).ribbon2Percentage));
    QCOMPARE(now.level(Slot::Ribbon1).percentage(),
             std::optional<int>(record(shipping).ribbon1Percentage));
}

void PrinterReadingsTest::aPrinterWithoutValuesIsNotKnown()
{
    addBirch(packing);
    QVERIFY(makeSettledController(1));
    makeReadings();
    const Reading now = reading(packing);
    QCOMPARE(now.statusCode(), 255);
    QVERIFY(!now.lastReport().isValid());
    QCOMPARE(now.firmwareVersion(), QString());
    QVERIFY(!now.updateProgress());
    for (const Slot slot : now.slotList()) {
        QCOMPARE(now.level(slot).state, State::NotKnown);
        QVERIFY(!now.level(slot).ratio);
        QVERIFY(!now.level(slot).mileage);
    }
}

void PrinterReadingsTest::eachReportIsOneChangeAfterTheControllersSignals()
{
    addBirch(packing);
    machine().publish(packing, {PrinterValue::text("StatusCode", "1"),
                                PrinterValue::text("SupplyIdentifier", "000000641000030000A7")});
    makeReadings();
    QVERIFY(settleAll(1));
    QVERIFY(settleAll(1));
    takeLines();
    recorder().hook = [this](const QString& line) {
        addLine(line);
    };

    struct Change
    {
        PrinterValue value;
        QStringList expected;
        Reading::Fields fields;
    };
    using Field = Reading::Field;
    const QString updated = QStringLiteral("availablePrintersUpdated()");
    const QString changed = QStringLiteral("changed(Packing)");
    const QList<Change> changes{
        {PrinterValue::text("StatusCode", "23"),
         {QStringLiteral("printerErrorChangedSignal(true)"),
          QStringLiteral("statusChangedSignal(23, Packing)"), updated, changed},
         Field::Status},
        {PrinterValue::text("SupplyIdentifier", "000000641000040000A7"),
         {QStringLiteral("supplyIdChangedSignal(Packing)"), updated, changed},
         Field::Supply},
        {PrinterValue::number("Ribbon1Identifier", 2001),
         {QStringLiteral("ribbonIdsChangedSignal(Packing)"), updated, changed},
         Field::Ribbon1},
        {PrinterValue::number("Mileage", 15240), {updated, changed}, Field::Supply},
        {PrinterValue::number("Ribbon1Mileage", 100), {updated, changed}, Field::Ribbon1},
        {PrinterValue::text("SoftwareVersion", "5.0"), {updated, changed}, Field::Firmware},
        {PrinterValue::text("EthernetConfig", "static"), {changed}, Field::EthernetConfig},
        {PrinterValue::number("UpdateProgress", 7), {changed}, Field::Update},
        {PrinterValue::number("UpdateError", 3), {changed}, Field::Update},
    };
    for (const Change& change : changes) {
        const Reading before = reading(packing);
        machine().publish(packing, change.value);
        QVERIFY(settleAll(1));
        QCOMPARE(takeLines(), change.expected);
        Reading::Fields fields = reading(packing).differences(before);
        fields.setFlag(Field::LastReport, false); // two reports in one millisecond
        QCOMPARE(fields, change.fields);
    }
}

void PrinterReadingsTest::losesNoChangeWhileItIsMade()
{
    addBirch(packing);
    publishText(packing, "StatusCode", "1");
    publishNumber(packing, "Mileage", 1);
    QVERIFY(makeSettledController(1));

    // The thread reports a change to the controller before the readings are connected, and another
    // one while they read.
    publishNumber(packing, "Mileage", 2);
    QVERIFY(machine().waitForWaitingThreads(1));
    const Qt::HANDLE host = QThread::currentThreadId();
    bool hasPublished = false;
    machine().setCallHook([&](const Call& call) {
        if (call.thread != host || call.function != QLatin1String("ClosePrinter") || hasPublished)
            return;
        hasPublished = true;
        publishNumber(packing, "Mileage", 3);
        QVERIFY(machine().waitForWaitingThreads(1));
    });
    makeReadings();
    machine().setCallHook(nullptr);
    QVERIFY(hasPublished);
    QCOMPARE(level(packing, Slot::Supply).mileage, std::optional<quint32>(2));
    QVERIFY(settleAll(1));
    QCOMPARE(level(packing, Slot::Supply).mileage, std::optional<quint32>(3));
    QCOMPARE(takeLines(), QStringList{QStringLiteral("changed(Packing)")});
}

void PrinterReadingsTest::asksTheSpoolerNothingOnAReport()
{
    addBirch(packing);
    addBirch(shipping, QStringLiteral("USB002"));
    publishText(packing, "StatusCode", "1");
    QVERIFY(makeSettledController(2));
    const auto hostsCalls = [this](const PrinterValue& value) {
        const Qt::HANDLE host = QThread::currentThreadId();
        machine().clearCalls();
        machine().publish(packing, value);
        const bool isSettled = settleAll(2);
        QStringList functions;
        const QList<Call> calls = machine().calls();
        for (const Call& call : calls) {
            if (call.thread == host)
                functions.append(call.function);
        }
        return isSettled ? functions : QStringList{QStringLiteral("not settled")};
    };
    machine().recordCalls();

    QList<QStringList> alone;
    QList<QStringList> withReadings;
    const auto callsOfAll = [&](quint32 number) {
        return QList{hostsCalls(PrinterValue::text("StatusCode", QByteArray::number(number))),
                     hostsCalls(PrinterValue::number("Ribbon1Identifier", 2000 + number)),
                     hostsCalls(PrinterValue::number("Mileage", number))};
    };
    alone = callsOfAll(2);
    makeReadings();
    QVERIFY(settleAll(2));
    withReadings = callsOfAll(3);
    QVERIFY(!alone.at(0).isEmpty());
    QCOMPARE(withReadings, alone);
}

void PrinterReadingsTest::readsAPrinterAgainThatCouldNotBeOpened()
{
    addBirch(packing);
    publishText(packing, "StatusCode", "1");
    publishNumber(packing, "Mileage", 15240);
    QVERIFY(makeSettledController(1));
    machine().failCallsFrom(QStringLiteral("OpenPrinterW"), 1, ERROR_ACCESS_DENIED);
    makeReadings();
    QCOMPARE(reading(packing).watching(), Watching::Watched);
    QCOMPARE(reading(packing).statusCode(), 255);
    QVERIFY(!level(packing, Slot::Supply).mileage);
    machine().clearFailures();

    publishText(packing, "EthernetConfig", "dhcp");
    QVERIFY(settleAll(1));
    QCOMPARE(reading(packing).statusCode(), 1);
    QCOMPARE(level(packing, Slot::Supply).mileage, std::optional<quint32>(15240));
}

void PrinterReadingsTest::readsAgainWhatChangedWhileTheSpoolerWasDown()
{
    addBirch(packing);
    machine().publish(
        packing, {PrinterValue::text("StatusCode", "1"), PrinterValue::number("Mileage", 100)});
    QVERIFY(makeSettledController(1));
    // The kit reads nothing of the mileage, which the thread has reported already.
    machine().failCallsFrom(QStringLiteral("GetPrinterDataA"), 1, ERROR_FILE_NOT_FOUND);
    makeReadings();
    machine().clearFailures();
    QVERIFY(!level(packing, Slot::Supply).mileage);

    machine().stopSpooler();
    QVERIFY(pollAll(1));
    QCOMPARE(reading(packing).statusCode(), 254);
    machine().startSpooler();
    QVERIFY(pollAll(1));
    QCOMPARE(reading(packing).statusCode(), 1);
    QCOMPARE(level(packing, Slot::Supply).mileage, std::optional<quint32>(100));
}

// Status //////////////////////////////////////////////////////////////////////////////////////////

void PrinterReadingsTest::isOfflineWhereTheControllerIs()
{
    addBirch(packing);
    publishText(packing, "StatusCode", "1");
    makeReadings();
    QVERIFY(settleAll(1));
    for (const char* status : {"0", "255", "no number"}) {
        setOffline(packing);
        publishText(packing, "StatusCode", status);
        QVERIFY(settleAll(1));
        QCOMPARE(reading(packing).statusCode(), 257);
        QVERIFY(!reading(packing).isOnline());
        QVERIFY(!record(packing).printerOnline);

        // Also for readings that are made afterwards.
        makeReadings();
        QCOMPARE(reading(packing).statusCode(), 257);
        QVERIFY(!reading(packing).isOnline());

        setOffline(packing, false);
        publishText(packing, "StatusCode", "2");
        QVERIFY(settleAll(1));
        QCOMPARE(reading(packing).statusCode(), 2);
        QVERIFY(reading(packing).isOnline());
    }
}

void PrinterReadingsTest::aDriverThatPublishes257IsOnline()
{
    addBirch(packing);
    publishText(packing, "StatusCode", "1");
    makeReadings();
    QVERIFY(settleAll(1));
    publishText(packing, "StatusCode", "257");
    QVERIFY(settleAll(1));
    QVERIFY(record(packing).printerOnline);
    QCOMPARE(reading(packing).statusCode(), 257);
    QVERIFY(reading(packing).isOnline());
    makeReadings();
    QVERIFY(reading(packing).isOnline());
}

void PrinterReadingsTest::takesTheStatusFromTheRecordInsideASlotOfTheHost()
{
    addBirch(packing);
    publishText(packing, "StatusCode", "1");
    makeController();
    // The first report is the controller's alone: it is sent before the readings are connected.
    QVERIFY(machine().waitForWaitingThreads(1));
    bool isNested = false;
    // Connected before the readings are, so that it runs before theirs.
    connect(&controller(), &PrinterStatusController::statusChangedSignal, this, [&](int status) {
        if (status == 2 || isNested)
            return;
        isNested = true;
        // The readings receive the same report here.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
        isNested = false;
    });
    makeReadings();
    QVERIFY(settleAll(1));
    setOffline(packing);
    publishText(packing, "StatusCode", "0");
    QVERIFY(settleAll(1));
    QCOMPARE(reading(packing).statusCode(), 257);
    QVERIFY(!reading(packing).isOnline());
    setOffline(packing, false);
    publishText(packing, "StatusCode", "255");
    QVERIFY(settleAll(1));
    QCOMPARE(reading(packing).statusCode(), 255);
    QVERIFY(reading(packing).isOnline());
    publishText(packing, "StatusCode", "2");
    QVERIFY(settleAll(1));
    publishText(packing, "StatusCode", "0");
    QVERIFY(settleAll(1));
    QCOMPARE(reading(packing).statusCode(), 0);
}

void PrinterReadingsTest::spoolerThatIsDownIsAStatus()
{
    addBirch(packing);
    publishText(packing, "StatusCode", "1");
    makeReadings();
    QVERIFY(settleAll(1));
    machine().stopSpooler();
    QVERIFY(pollAll(1));
    QCOMPARE(reading(packing).statusCode(), 254);
    readings().refresh();
    QCOMPARE(reading(packing).presence(), Presence::Present);
    machine().startSpooler();
    QVERIFY(pollAll(1));
    QCOMPARE(reading(packing).statusCode(), 1);
    QCOMPARE(reading(packing).watching(), Watching::Watched);
}

// Slots ///////////////////////////////////////////////////////////////////////////////////////////

void PrinterReadingsTest::anEmptySlotIsNotAnUnknownOne_data()
{
    QTest::addColumn<PrinterValue>("value");
    QTest::addColumn<Slot>("slot");
    QTest::addColumn<State>("expected");

    const auto supply = [](const char* row, const char* text, State state) {
        QTest::newRow(row) << PrinterValue::text("SupplyIdentifier", text) << Slot::Supply << state;
    };
    supply("blank supply", "00000000000000000000", State::Empty);
    supply("known supply", "000000641000030000A7", State::Loaded);
    supply("unknown kind", "00000064999999000001", State::NotInCatalogue);
    supply("no identifier", "what is in this chip", State::NotInCatalogue);
    supply("too short a text", "1000", State::NotKnown);
    const auto ribbon = [](const char* row, const char* name, quint32 number, Slot slot,
                           State state) {
        QTest::newRow(row) << PrinterValue::number(name, number) << slot << state;
    };
    ribbon("ribbon 1: -1", "Ribbon1Identifier", 0xFFFFFFFF, Slot::Ribbon1, State::Empty);
    ribbon("ribbon 2: -1", "Ribbon2Identifier", 0xFFFFFFFF, Slot::Ribbon2, State::Empty);
    ribbon("ribbon 1: 0", "Ribbon1Identifier", 0, Slot::Ribbon1, State::Empty);
    ribbon("ribbon 1: known", "Ribbon1Identifier", 2001, Slot::Ribbon1, State::Loaded);
    ribbon("ribbon 2: known", "Ribbon2Identifier", 2023, Slot::Ribbon2, State::Loaded);
    ribbon("ribbon 1: unknown", "Ribbon1Identifier", 99999, Slot::Ribbon1, State::NotInCatalogue);
    ribbon("ribbon 1: not plausible", "Ribbon1Identifier", 100001, Slot::Ribbon1, State::NotKnown);
}

void PrinterReadingsTest::anEmptySlotIsNotAnUnknownOne()
{
    QFETCH(const PrinterValue, value);
    QFETCH(const Slot, slot);
    QFETCH(const State, expected);
    addPrinter(packing, QStringLiteral("Stratamark AlderMax"));
    makeReadings();
    QVERIFY(settleAll(1));
    QCOMPARE(level(packing, slot).state, State::NotKnown);
    machine().publish(packing, value);
    QVERIFY(settleAll(1));
    const VxKit::Level now = level(packing, slot);
    QCOMPARE(now.state, expected);
    QCOMPARE(!now.identifier.isEmpty(),
             expected == State::Loaded || expected == State::NotInCatalogue);
    QCOMPARE(!now.sku.isEmpty(), expected == State::Loaded);
    machine().unpublish(packing, value.name);
    QVERIFY(settleAll(1));
    QCOMPARE(level(packing, slot).state, State::NotKnown);
}

void PrinterReadingsTest::aRemovedRibbonIsEmpty()
{
    addBirch(packing);
    machine().publish(packing, {PrinterValue::number("Ribbon1Identifier", 2001),
                                PrinterValue::number("Ribbon1Mileage", 60008)});
    makeReadings();
    QVERIFY(settleAll(1));
    QVERIFY(level(packing, Slot::Ribbon1).ratio);
    publishNumber(packing, "Ribbon1Identifier", 0xFFFFFFFF);
    QVERIFY(settleAll(1));
    QCOMPARE(record(packing).ribbon1SKU, QStringLiteral("RS-43-BK")); // kept on purpose
    const VxKit::Level now = level(packing, Slot::Ribbon1);
    QCOMPARE(now.state, State::Empty);
    QCOMPARE(now.sku, QString());
    QVERIFY(!now.ratio);
    QVERIFY(!now.meters);
}

void PrinterReadingsTest::aSlotWithoutCatalogueEntryIsLoaded()
{
    addPrinter(packing, QStringLiteral("Stratamark Alder"));
    machine().publish(packing, {PrinterValue::text("SupplyIdentifier", "00000064999999000001"),
                                PrinterValue::number("Mileage", 29)});
    makeReadings();
    const VxKit::Level now = level(packing, Slot::Supply);
    QCOMPARE(now.state, State::NotInCatalogue);
    QCOMPARE(now.identifier, QStringLiteral("00000064999999000001"));
    QCOMPARE(now.percentage(), std::optional<int>(29));
    QVERIFY(now.coarse);
    QVERIFY(!now.meters);
    QVERIFY(!now.totalMeters);
}

void PrinterReadingsTest::rawValuesAreThoseOfTheDriver()
{
    addPrinter(packing, QStringLiteral("Stratamark Alder"));
    addBirch(shipping, QStringLiteral("USB002"));
    publishNumber(packing, "Mileage", 150);
    publishNumber(shipping, "Mileage", 0xFFFFFFFF);
    publishNumber(shipping, "Ribbon1Mileage", 130000);
    publishNumber(shipping, "UpdateError", 0xFFFFFFFF);
    makeReadings();
    QCOMPARE(level(packing, Slot::Supply).mileage, std::optional<quint32>(150));
    QCOMPARE(level(packing, Slot::Supply).mileageUnit, VxKit::Level::MileageUnit::Percent);
    QVERIFY(!level(shipping, Slot::Supply).mileage); // -1
    QCOMPARE(reading(shipping).updateError(), std::optional<quint32>(0xFFFFFFFF));
    QCOMPARE(level(shipping, Slot::Ribbon1).mileage, std::optional<quint32>(130000));
    QCOMPARE(level(shipping, Slot::Ribbon1).mileageUnit, VxKit::Level::MileageUnit::Millimeters);
}

// Serial numbers //////////////////////////////////////////////////////////////////////////////////

void PrinterReadingsTest::serialNumberIsThatOfTheOwnPort_data()
{
    QTest::addColumn<QString>("port");
    QTest::addColumn<quint32>("attributes");
    QTest::addColumn<QString>("expected");
    const quint32 local = localAttribute;
    QTest::newRow("its port") << QStringLiteral("USB002") << local << QStringLiteral("BM-2");
    QTest::newRow("its port, small") << QStringLiteral("usb2") << local << QStringLiteral("BM-2");
    QTest::newRow("port without device") << QStringLiteral("USB007") << local << QString();
    QTest::newRow("port of another maker") << QStringLiteral("USB003") << local << QString();
    QTest::newRow("device without port") << QStringLiteral("USB000") << local << QString();
    QTest::newRow("not USB, same number") << QStringLiteral("002") << local << QString();
    QTest::newRow("parallel port") << QStringLiteral("LPT2:") << local << QString();
    QTest::newRow("two ports") << QStringLiteral("USB002,USB003") << local << QString();
    QTest::newRow("beyond 16 bits") << QStringLiteral("USB65538") << local << QString();
    QTest::newRow("address") << QStringLiteral("192.168.1.2") << local << QString();
    QTest::newRow("network printer")
        << QStringLiteral("USB002") << quint32(networkAttribute) << QString();
}

void PrinterReadingsTest::serialNumberIsThatOfTheOwnPort()
{
    QFETCH(const QString, port);
    QFETCH(const quint32, attributes);
    QFETCH(const QString, expected);
    const QString guid = QStringLiteral("{28d78fad-5a12-11d1-ae5b-0000f803a8c2}");
    const auto addDevice = [&](const char* key, const QVariant& number, const char* serial) {
        machine().addDevice({guid, QString::fromLatin1(key), number, QString::fromLatin1(serial)});
    };
    machine().addDeviceClass(guid);
    addDevice("##?#USB#VID_3E7A&PID_0102#BM-0", {}, "BM-0");
    addDevice("##?#USB#VID_3E7A&PID_0102#BM-2", 2, "BM-2");
    addDevice("##?#USB#VID_0BDA&PID_0102#X-3", 3, "X-3");
    addDevice("##?#USB#VID_3E7A&PID_0102#BM-9", 9, "BM-9");
    machine().addPrinter({.name = packing,
                          .driver = QStringLiteral("Stratamark BirchMax"),
                          .port = port,
                          .attributes = attributes});
    makeReadings();
    QCOMPARE(reading(packing).serialNumber(), expected);
}

// Printers that come and go ///////////////////////////////////////////////////////////////////////

void PrinterReadingsTest::aNewPrinterIsAddedAndWatchedOnceDiscovered()
{
    addBirch(packing);
    makeReadings();
    QVERIFY(settleAll(1));
    takeLines();
    addBirch(shipping, QStringLiteral("USB002"));
    publishText(shipping, "StatusCode", "1");
    readings().refresh();
    QCOMPARE(takeLines(), QStringList{QStringLiteral("added(Shipping)")});
    QCOMPARE(reading(shipping).watching(), Watching::NotDiscovered);
    QCOMPARE(reading(shipping).statusCode(), 255);
    readings().refresh();
    QCOMPARE(takeLines(), QStringList());

    controller().checkForPrinters();
    readings().refresh();
    QCOMPARE(takeLines(), QStringList{QStringLiteral("changed(Shipping)")});
    QCOMPARE(reading(shipping).watching(), Watching::Watched);
    QCOMPARE(reading(shipping).statusCode(), 1);
}

void PrinterReadingsTest::aPrinterThatTheControllerFindsIsAddedByItself()
{
    addBirch(packing);
    makeReadings();
    QVERIFY(settleAll(1));
    takeLines();
    addBirch(shipping, QStringLiteral("USB002"));
    publishText(shipping, "StatusCode", "1");
    controller().checkForPrinters();
    QVERIFY(settleAll(2));
    QCOMPARE(takeLines().value(0), QStringLiteral("added(Shipping)"));
    QCOMPARE(reading(shipping).watching(), Watching::Watched);

    // The same for one that was offline until then.
    addBirch(QStringLiteral("Asleep"), QStringLiteral("USB003"));
    setOffline(QStringLiteral("Asleep"));
    readings().refresh();
    QCOMPARE(reading(QStringLiteral("Asleep")).watching(), Watching::OfflineSinceDiscovery);
    setOffline(QStringLiteral("Asleep"), false);
    publishText(QStringLiteral("Asleep"), "StatusCode", "2");
    controller().checkForPrinters();
    QVERIFY(settleAll(3));
    QCOMPARE(reading(QStringLiteral("Asleep")).watching(), Watching::Watched);
    QCOMPARE(reading(QStringLiteral("Asleep")).statusCode(), 2);
}

void PrinterReadingsTest::aRemovedPrinterIsGoneByItself()
{
    addBirch(packing);
    machine().publish(packing, {PrinterValue::text("StatusCode", "2"),
                                PrinterValue::number("Ribbon1Identifier", 2001),
                                PrinterValue::text("SoftwareVersion", "4.2")});
    makeReadings();
    QVERIFY(settleAll(1));
    QCOMPARE(readings().printersInError(), 1);
    takeLines();
    const QDateTime before = QDateTime::currentDateTimeUtc();
    machine().removePrinter(packing);
    QVERIFY(settleAll(1));
    QCOMPARE(takeLines().count(QStringLiteral("gone(Packing)")), 1);
    const Reading now = reading(packing);
    QCOMPARE(now.presence(), Presence::Gone);
    QVERIFY(now.goneSince() >= before);
    QCOMPARE(now.watching(), Watching::Gone);
    QCOMPARE(now.statusCode(), 0);
    QVERIFY(!now.isOnline());
    QCOMPARE(now.level(Slot::Ribbon1).state, State::NotKnown);
    QCOMPARE(now.firmwareVersion(), QString());
    QCOMPARE(now.driver(), QStringLiteral("Stratamark BirchMax"));
    QVERIFY(now.lastReport() >= before);
    QCOMPARE(readings().printersInError(), 0);
    QCOMPARE(readings().names(), QStringList{packing});
}

void PrinterReadingsTest::aPrinterThatReturnsIsWatchedAfterARestart()
{
    addBirch(packing);
    publishText(packing, "StatusCode", "1");
    makeReadings();
    QVERIFY(settleAll(1));
    machine().removePrinter(packing);
    QVERIFY(settleAll(1));
    QCOMPARE(reading(packing).presence(), Presence::Gone);
    takeLines();

    addBirch(packing);
    publishText(packing, "StatusCode", "2");
    readings().refresh();
    QCOMPARE(takeLines(), QStringList{QStringLiteral("added(Packing)")});
    QCOMPARE(reading(packing).presence(), Presence::Present);
    QVERIFY(!reading(packing).goneSince().isValid());
    QCOMPARE(reading(packing).watching(), Watching::Replaced);
    QCOMPARE(reading(packing).statusCode(), 255);

    QVERIFY(restartSpooler(1));
    QCOMPARE(reading(packing).watching(), Watching::Watched);
    QCOMPARE(reading(packing).statusCode(), 2);
}

void PrinterReadingsTest::aReplacedPrinterIsWatchedAfterARestart()
{
    addBirch(packing);
    publishText(packing, "StatusCode", "1");
    makeReadings();
    QVERIFY(settleAll(1));
    takeLines();
    // Removed and added again before anybody looks.
    holdThreads();
    machine().removePrinter(packing);
    addPrinter(packing, QStringLiteral("Stratamark AlderMax"));
    publishText(packing, "StatusCode", "2");
    releaseThreads();
    QVERIFY(settleAll(1));
    QCOMPARE(reading(packing).watching(), Watching::Replaced);
    QCOMPARE(reading(packing).presence(), Presence::Present);
    QCOMPARE(reading(packing).model(), VXPrinting::PrinterType::AlderMax);
    QCOMPARE(reading(packing).statusCode(), 255);
    QVERIFY(!takeLines().contains(QStringLiteral("gone(Packing)")));
    // The old thread hears nothing of the new printer.
    publishText(packing, "StatusCode", "3");
    QVERIFY(settleAll(1));
    QCOMPARE(reading(packing).statusCode(), 255);

    QVERIFY(restartSpooler(1));
    QCOMPARE(reading(packing).watching(), Watching::Watched);
    QCOMPARE(reading(packing).statusCode(), 3);
}

void PrinterReadingsTest::spoolerThatDoesNotAnswerMakesNothingGone_data()
{
    QTest::addColumn<int>("failingCall");
    QTest::newRow("the first call fails") << 1;
    QTest::newRow("the second call fails") << 2;
    QTest::newRow("the listing of the library cannot be sized") << 3;
    QTest::newRow("the listing of the library fails") << 4;
    QTest::newRow("a printer has no driver") << 0;
    QTest::newRow("the spooler is down") << -1;
}

void PrinterReadingsTest::spoolerThatDoesNotAnswerMakesNothingGone()
{
    QFETCH(const int, failingCall);
    addBirch(packing);
    publishText(packing, "StatusCode", "1");
    makeReadings();
    QVERIFY(settleAll(1));
    takeLines();
    if (failingCall > 0)
        machine().failCallsFrom(QStringLiteral("EnumPrintersW"), failingCall,
                                RPC_S_SERVER_UNAVAILABLE);
    else if (failingCall == 0)
        machine().addPrinter({.name = QStringLiteral("Broken")});
    else
        machine().stopSpooler();
    const Reading before = reading(packing);
    readings().refresh();
    machine().clearFailures();
    QCOMPARE(takeLines(), QStringList());
    QCOMPARE(reading(packing), before);
    if (failingCall < 0)
        return;

    if (failingCall == 0)
        machine().removePrinter(QStringLiteral("Broken"));
    machine().removePrinter(packing);
    readings().refresh();
    QCOMPARE(reading(packing).presence(), Presence::Gone);
}

void PrinterReadingsTest::otherModelHasOtherSlots()
{
    addBirch(packing);
    machine().publish(packing, {PrinterValue::number("Ribbon2Identifier", 2001),
                                PrinterValue::number("Ribbon2Mileage", 40)});
    makeReadings();
    QVERIFY(!reading(packing).hasSlot(Slot::Ribbon2));
    QVERIFY(settleAll(1));
    takeLines();
    machine().setDriver(packing, QStringLiteral("Stratamark Alder"));
    QVERIFY(settleAll(1));
    readings().refresh();
    QCOMPARE(takeLines(), QStringList{QStringLiteral("changed(Packing)")});
    QCOMPARE(level(packing, Slot::Ribbon2).sku, QStringLiteral("RS-43-BK"));
    QCOMPARE(level(packing, Slot::Ribbon2).percentage(), std::optional<int>(40));
}

void PrinterReadingsTest::aPrinterWithoutNameHasNoReading()
{
    addBirch(QStringLiteral(""));
    addBirch(packing);
    makeReadings();
    QCOMPARE(readings().names(), QStringList{packing});
    readings().refresh();
    QCOMPARE(takeLines(), QStringList());
}

// Other names /////////////////////////////////////////////////////////////////////////////////////

void PrinterReadingsTest::aRenamedPrinterKeepsItsReading()
{
    addBirch(packing);
    machine().publish(packing, {PrinterValue::text("StatusCode", "1"),
                                PrinterValue::text("SoftwareVersion", "4.2")});
    makeReadings();
    QVERIFY(settleAll(1));
    takeLines();
    machine().renamePrinter(packing, shipping);
    QVERIFY(settleAll(1));
    QCOMPARE(takeLines(), QStringList({QStringLiteral("changed(Packing)"),
                                       QStringLiteral("renamed(Packing, Shipping)"),
                                       QStringLiteral("activePrinterChanged(Shipping)")}));
    QCOMPARE(readings().names(), QStringList{shipping});
    QCOMPARE(reading(shipping).name(), shipping);
    QCOMPARE(reading(shipping).firmwareVersion(), QStringLiteral("4.2"));
    QCOMPARE(reading(shipping).watching(), Watching::Watched);

    publishText(shipping, "StatusCode", "2");
    QVERIFY(settleAll(1));
    QCOMPARE(reading(shipping).statusCode(), 2);
    setOffline(shipping);
    publishText(shipping, "StatusCode", "0");
    QVERIFY(settleAll(1));
    QCOMPARE(reading(shipping).statusCode(), 257);
}

void PrinterReadingsTest::aRenamedPrinterMovesToItsNewThread()
{
    addBirch(packing);
    publishText(packing, "StatusCode", "1");
    makeReadings();
    QVERIFY(settleAll(1));
    machine().renamePrinter(packing, shipping);
    QVERIFY(settleAll(1));
    QCOMPARE(reading(shipping).watching(), Watching::Watched);
    controller().checkForPrinters();
    QVERIFY(controller().statusThread(shipping));
    readings().refresh();
    QVERIFY(settleAll(2));
    takeLines();
    publishText(shipping, "StatusCode", "2");
    QVERIFY(settleAll(2));
    // Both threads watch it now.
    QStringList lines = takeLines();
    lines.removeAll(QStringLiteral("inErrorChanged(true)"));
    lines.removeAll(QStringLiteral("printersInErrorChanged(1)"));
    QCOMPARE(lines, QStringList{QStringLiteral("changed(Shipping)")});
    QCOMPARE(reading(shipping).statusCode(), 2);
    QCOMPARE(readings().names(), QStringList{shipping});
}

void PrinterReadingsTest::aRefreshWaitsForTheNewName()
{
    addBirch(packing);
    publishText(packing, "StatusCode", "1");
    makeReadings();
    QVERIFY(settleAll(1));
    takeLines();
    holdThreads();
    machine().renamePrinter(packing, shipping);
    controller().checkForPrinters();
    readings().refresh();
    QCOMPARE(takeLines(), QStringList());
    releaseThreads();
    QVERIFY(settleAll(2));
    const QStringList lines = takeLines();
    QCOMPARE(lines.count(QStringLiteral("renamed(Packing, Shipping)")), 1);
    QVERIFY(!lines.contains(QStringLiteral("gone(Packing)")));
    QVERIFY(!lines.contains(QStringLiteral("added(Shipping)")));
    QCOMPARE(readings().names(), QStringList{shipping});

    // A thread that says nothing is not waited for for ever.
    holdThreads();
    machine().renamePrinter(shipping, QStringLiteral("Warehouse"));
    readings().refresh();
    QCOMPARE(takeLines(), QStringList());
    QTRY_COMPARE_WITH_TIMEOUT(readings().names(),
                              QStringList({shipping, QStringLiteral("Warehouse")}), 60000);
    QCOMPARE(reading(shipping).presence(), Presence::Gone);
    releaseThreads();
    QVERIFY(settleAll(2));
    QCOMPARE(reading(QStringLiteral("Warehouse")).watching(), Watching::Watched);
    QCOMPARE(reading(shipping).presence(), Presence::Gone);
}

void PrinterReadingsTest::anOldNameThatIsUsedAgainIsAnotherPrinter()
{
    addBirch(packing);
    publishText(packing, "StatusCode", "1");
    makeReadings();
    QVERIFY(settleAll(1));
    machine().renamePrinter(packing, shipping);
    QVERIFY(settleAll(1));
    addPrinter(packing, QStringLiteral("Stratamark AlderMax"));
    publishText(packing, "StatusCode", "5");
    readings().refresh();
    QCOMPARE(reading(packing).watching(), Watching::Replaced);
    QCOMPARE(reading(shipping).watching(), Watching::Watched);
    QCOMPARE(reading(shipping).statusCode(), 1);

    // The thread opens its printer by name again, which is now the other one.
    QVERIFY(restartSpooler(1));
    QCOMPARE(reading(packing).watching(), Watching::Watched);
    QCOMPARE(reading(packing).statusCode(), 5);
    QCOMPARE(reading(shipping).watching(), Watching::NotDiscovered);
    QCOMPARE(reading(shipping).presence(), Presence::Present);
}

// The active printer, errors //////////////////////////////////////////////////////////////////////

void PrinterReadingsTest::activePrinterIsTheControllers()
{
    addBirch(packing);
    addBirch(shipping, QStringLiteral("USB002"));
    publishText(packing, "StatusCode", "1");
    publishText(shipping, "StatusCode", "1");
    makeReadings();
    QVERIFY(settleAll(2));
    QCOMPARE(readings().activePrinter(), packing);
    QVERIFY(reading(packing).isActive());
    takeLines();

    machine().setDefaultPrinter(shipping);
    publishText(shipping, "StatusCode", "19");
    QVERIFY(settleAll(2));
    QCOMPARE(readings().activePrinter(), shipping);
    QVERIFY(!reading(packing).isActive());
    QVERIFY(reading(shipping).isActive());
    const QStringList lines = takeLines();
    QVERIFY(lines.contains(QStringLiteral("changed(Packing)")));
    QVERIFY(lines.contains(QStringLiteral("changed(Shipping)")));
    QCOMPARE(lines.last(), QStringLiteral("activePrinterChanged(Shipping)"));
}

void PrinterReadingsTest::activePrinterCanBecomeNone()
{
    addPrinter(QStringLiteral("Laser"), QStringLiteral("Everyday Office Laser 400"));
    makeReadings();
    QCOMPARE(readings().activePrinter(), QStringLiteral("Laser"));
    QCOMPARE(readings().names(), QStringList());
    QCOMPARE(readings().printerToUse(), QString());
}

void PrinterReadingsTest::aRenamedPrinterStaysActive()
{
    addBirch(packing);
    publishText(packing, "StatusCode", "1");
    makeReadings();
    QVERIFY(settleAll(1));
    machine().renamePrinter(packing, shipping);
    QVERIFY(settleAll(1));
    QCOMPARE(controller().activeDefaultPrinter(), packing);
    QCOMPARE(readings().activePrinter(), shipping);
    QVERIFY(reading(shipping).isActive());
}

void PrinterReadingsTest::printerToUse()
{
    const QString archive = QStringLiteral("Archive");
    addBirch(packing);
    addBirch(shipping, QStringLiteral("USB002"));
    addNetworkPrinter(archive);
    publishText(packing, "StatusCode", "1");
    publishText(shipping, "StatusCode", "2");
    machine().setDefaultPrinter(shipping);
    makeReadings();
    QVERIFY(settleAll(2));
    // The active one is used also when it is in error.
    QCOMPARE(readings().activePrinter(), shipping);
    QCOMPARE(readings().printerToUse(), shipping);
    machine().removePrinter(shipping);
    QVERIFY(settleAll(2));
    QCOMPARE(readings().printerToUse(), packing);
    publishText(packing, "StatusCode", "3");
    QVERIFY(settleAll(2));
    QCOMPARE(readings().printerToUse(), packing); // local before remote
    machine().removePrinter(packing);
    QVERIFY(settleAll(2));
    QCOMPARE(readings().printerToUse(), archive);
    machine().removePrinter(archive);
    readings().refresh();
    QCOMPARE(readings().printerToUse(), QString());
}

void PrinterReadingsTest::countsPrintersInError()
{
    addBirch(packing);
    addBirch(shipping, QStringLiteral("USB002"));
    addNetworkPrinter(QStringLiteral("Far"));
    publishText(packing, "StatusCode", "1");
    publishText(shipping, "StatusCode", "1");
    makeReadings();
    QVERIFY(settleAll(2));
    QVERIFY(!readings().isInError());
    takeLines();
    publishText(packing, "StatusCode", "2");
    QVERIFY(settleAll(2));
    QCOMPARE(takeLines(), QStringList({QStringLiteral("changed(Packing)"),
                                       QStringLiteral("inErrorChanged(true)"),
                                       QStringLiteral("printersInErrorChanged(1)")}));
    publishText(shipping, "StatusCode", "3");
    QVERIFY(settleAll(2));
    QCOMPARE(takeLines(), QStringList({QStringLiteral("changed(Shipping)"),
                                       QStringLiteral("printersInErrorChanged(2)")}));
    QCOMPARE(readings().printersInError(), 2);
    publishText(packing, "StatusCode", "1");
    publishText(shipping, "StatusCode", "1");
    QVERIFY(settleAll(2));
    QVERIFY(!readings().isInError());
    QCOMPARE(takeLines().last(), QStringLiteral("printersInErrorChanged(0)"));
}

QTEST_GUILESS_MAIN(PrinterReadingsTest)
#include "tst_printer_readings.moc"
