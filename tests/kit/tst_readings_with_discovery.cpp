// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Readings that a discovery keeps up to date: printers come, go and are renamed without a call of
// the host.
#include "patience.h"
#include "readings_test.h"

#include <printer_discovery.h>

class ReadingsWithDiscoveryTest : public ReadingsTest
{
    Q_OBJECT

private Q_SLOTS:
    void aNewPrinterIsWatched();
    void aPrinterThatWasOfflineIsWatched();
    void aRemovedPrinterIsGone();
    void aRenamedPrinterKeepsItsReading();
    void aPrinterThatIsNotWatchedComesAndGoes();
    void nothingIsGoneWhileTheSpoolerIsDown();

protected Q_SLOTS:
    void cleanup() override
    {
        m_discovery.reset();
        m_seen.clear();
        ReadingsTest::cleanup();
    }

private:
    static inline const QString packing = QStringLiteral("Packing");
    static inline const QString shipping = QStringLiteral("Shipping");

    void addBirch(const QString& name, const QString& port = QStringLiteral("USB001"))
    {
        machine().addPrinter(
            {.name = name, .driver = QStringLiteral("Stratamark BirchMax"), .port = port});
        publishText(name, "StatusCode", "1");
    }
    /// True when the discovery has looked at the printers for the first time.
    [[nodiscard]] bool start()
    {
        machine().driveTime(false);
        makeReadings();
        m_discovery = std::make_unique<VxKit::PrinterDiscovery>(&controller());
        connect(m_discovery.get(), &VxKit::PrinterDiscovery::printersChanged, &readings(),
                &VxKit::PrinterReadings::refresh);
        const bool hasStarted = QTest::qWaitFor(
            [this] { return m_discovery->printers() == machine().printers(); }, patience);
        takeLines();
        return hasStarted;
    }
    bool hasLine(const QString& line)
    {
        m_seen += takeLines();
        return m_seen.contains(line);
    }

    std::unique_ptr<VxKit::PrinterDiscovery> m_discovery;
    QStringList m_seen;
};

void ReadingsWithDiscoveryTest::aNewPrinterIsWatched()
{
    addBirch(packing);
    QVERIFY(start());
    addBirch(shipping, QStringLiteral("USB002"));
    QTRY_COMPARE_WITH_TIMEOUT(reading(shipping).watching(), Watching::Watched, patience);
    QTRY_COMPARE_WITH_TIMEOUT(reading(shipping).statusCode(), 1, patience);
    QVERIFY(hasLine(QStringLiteral("added(Shipping)")));
}

void ReadingsWithDiscoveryTest::aPrinterThatWasOfflineIsWatched()
{
    addBirch(packing);
    setOffline(packing);
    QVERIFY(start());
    QCOMPARE(reading(packing).watching(), Watching::OfflineSinceDiscovery);
    setOffline(packing, false);
    QTRY_COMPARE_WITH_TIMEOUT(reading(packing).watching(), Watching::Watched, patience);
    QVERIFY(reading(packing).isOnline());
}

void ReadingsWithDiscoveryTest::aRemovedPrinterIsGone()
{
    addBirch(packing);
    addBirch(shipping, QStringLiteral("USB002"));
    QVERIFY(start());
    machine().removePrinter(packing);
    QTRY_COMPARE_WITH_TIMEOUT(reading(packing).presence(), Presence::Gone, patience);
    QCOMPARE(readings().printerToUse(), shipping);
}

void ReadingsWithDiscoveryTest::aRenamedPrinterKeepsItsReading()
{
    addBirch(packing);
    publishText(packing, "SoftwareVersion", "4.2");
    QVERIFY(start());
    QTRY_COMPARE_WITH_TIMEOUT(reading(packing).firmwareVersion(), QStringLiteral("4.2"), patience);
    // The version has been read with the list of printers. Only a thread that has opened its
    // printer follows it to another name; the discovery waits beside it.
    QVERIFY(machine().waitForWaitingThreads(2));
    machine().renamePrinter(packing, shipping);
    // The discovery may see it before the printer's thread, and the controller may have a thread
    // for the new name by then.
    QTRY_VERIFY_WITH_TIMEOUT(hasLine(QStringLiteral("renamed(Packing, Shipping)")), patience);
    QVERIFY(!m_seen.contains(QStringLiteral("gone(Packing)")));
    QVERIFY(!m_seen.contains(QStringLiteral("added(Shipping)")));
    QCOMPARE(readings().names(), QStringList{shipping});
    QCOMPARE(reading(shipping).firmwareVersion(), QStringLiteral("4.2"));
    publishText(shipping, "StatusCode", "2");
    QTRY_COMPARE_WITH_TIMEOUT(reading(shipping).statusCode(), 2, patience);
}

void ReadingsWithDiscoveryTest::aPrinterThatIsNotWatchedComesAndGoes()
{
    addBirch(packing);
    QVERIFY(start());
    addNetworkPrinter(shipping);
    QTRY_COMPARE_WITH_TIMEOUT(reading(shipping).watching(), Watching::NetworkPrinter, patience);
    machine().removePrinter(shipping);
    QTRY_COMPARE_WITH_TIMEOUT(reading(shipping).presence(), Presence::Gone, patience);
}

void ReadingsWithDiscoveryTest::nothingIsGoneWhileTheSpoolerIsDown()
{
    addBirch(packing);
    QVERIFY(start());
    machine().stopSpooler();
    QTRY_COMPARE_WITH_TIMEOUT(reading(packing).statusCode(), 254, patience);
    QTRY_VERIFY_WITH_TIMEOUT(!m_discovery->isSpoolerRunning(), patience);
    readings().refresh();
    QCOMPARE(reading(packing).presence(), Presence::Present);
    machine().startSpooler();
    QTRY_COMPARE_WITH_TIMEOUT(reading(packing).statusCode(), 1, patience);
    QVERIFY(!hasLine(QStringLiteral("gone(Packing)")));
}

QTEST_GUILESS_MAIN(ReadingsWithDiscoveryTest)
#include "tst_readings_with_discovery.moc"
