// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The kit's readings of printers of the system's own spooler.
#include "host_test.h"

#include <printer_readings.h>

using VxKit::Level;
using VxKit::PrinterReading;
using VxKit::Slot;
using Presence = PrinterReading::Presence;
using Watching = PrinterReading::Watching;

class ReadingsOnWindowsTest : public HostTest
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatIsLoaded();
    void reportsEachChange();
    void everyPrinterOfASupportedModelHasAReading();
    void printersComeAndGo();
    void stoppedSpoolerMakesNothingGone();

protected Q_SLOTS:
    void cleanup() override
    {
        m_readings.reset();
        m_changes.clear();
        HostTest::cleanup();
    }

private:
    void makeReadings()
    {
        host();
        m_readings = std::make_unique<VxKit::PrinterReadings>(m_controller.get());
        using Readings = VxKit::PrinterReadings;
        connect(m_readings.get(), &Readings::changed, this,
                [this](const QString& name) { m_changes.append(reading(name)); });
        const auto record = [this](auto signal, const char* line) {
            connect(m_readings.get(), signal, this, [this, line](const QString& name) {
                m_lines.append(QStringLiteral("%1(%2)").arg(QLatin1String(line), name));
            });
        };
        m_lines.clear();
        record(&Readings::added, "added");
        record(&Readings::gone, "gone");
    }
    PrinterReading reading(const QString& name) const { return m_readings->reading(name); }

    std::unique_ptr<VxKit::PrinterReadings> m_readings;
    QList<PrinterReading> m_changes;
    QStringList m_lines;
};

void ReadingsOnWindowsTest::readsWhatIsLoaded()
{
    const QString printer = addLoadedPrinter();
    QVERIFY(!printer.isEmpty());
    makeReadings();
    // Before any report: the values are there as soon as the readings are.
    const PrinterReading loaded = reading(printer);
    QCOMPARE(loaded.watching(), Watching::Watched);
    QCOMPARE(loaded.model(), VXPrinting::PrinterType::AlderMax);
    QCOMPARE(loaded.port(), QStringLiteral("901"));
    QCOMPARE(loaded.serialNumber(), QString());
    QCOMPARE(loaded.statusCode(), 1);
    QVERIFY(loaded.isOnline());
    QVERIFY(loaded.lastReport().isValid());
    QCOMPARE(loaded.firmwareVersion(), QStringLiteral("4.1.3"));
    QCOMPARE(loaded.bootVersion(), QStringLiteral("boot 1.7"));
    const Level supply = loaded.level(Slot::Supply);
    QCOMPARE(supply.state, Level::State::Loaded);
    QCOMPARE(supply.sku, QStringLiteral("VT-400-WH"));
    QCOMPARE(supply.name, QStringLiteral("White Vinyl"));
    QCOMPARE(supply.percentage(), std::optional<int>(50));
    QVERIFY(qAbs(*supply.meters - 15.24) < 0.01);
    QCOMPARE(loaded.level(Slot::Ribbon1).percentage(), std::optional<int>(49));
    QCOMPARE(loaded.level(Slot::Ribbon2).sku, QStringLiteral("RS-43-RD"));
    QVERIFY(!loaded.level(Slot::Ribbon2).ratio);

    QVERIFY(waitUntilLoaded(printer));
    PrinterReading::Fields fields = reading(printer).differences(loaded);
    fields.setFlag(PrinterReading::Field::LastReport, false);
    QCOMPARE(fields, PrinterReading::Fields());
    QString error;
    const auto again = PrinterReading::fromJson(loaded.toJson(), &error);
    QVERIFY2(again && *again == loaded, qPrintable(error));
}

void ReadingsOnWindowsTest::reportsEachChange()
{
    const QString printer = addLoadedPrinter();
    makeReadings();
    QVERIFY(waitUntilLoaded(printer));
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("4")}));
    QTRY_COMPARE_WITH_TIMEOUT(reading(printer).statusCode(), 4, patience);
    QVERIFY(m_readings->isInError());
    QVERIFY(publish(printer, {"Ribbon1Identifier", REG_DWORD, word(0xFFFFFFFF)}));
    QTRY_COMPARE_WITH_TIMEOUT(reading(printer).level(Slot::Ribbon1).state, Level::State::Empty,
                              patience);
    QCOMPARE(m_changes.last(), reading(printer));
}

void ReadingsOnWindowsTest::everyPrinterOfASupportedModelHasAReading()
{
    const QString asleep = addPrinter("Stratamark CedarMax", offlinePrinter);
    const QString remote =
        addPrinter("Stratamark BirchMax", localPrinter, QStringLiteral("192.0.2.20"));
    const QString other = addPrinter("Some Office Printer");
    QVERIFY(!asleep.isEmpty() && !remote.isEmpty() && !other.isEmpty());
    makeReadings();
    QCOMPARE(reading(asleep).watching(), Watching::OfflineSinceDiscovery);
    QCOMPARE(reading(asleep).statusCode(), 257);
    QCOMPARE(reading(remote).watching(), Watching::NetworkPrinter);
    QCOMPARE(reading(remote).statusCode(), 256);
    QVERIFY(reading(other).isNull());
    QCOMPARE(m_readings->printerToUse(), remote);
}

void ReadingsOnWindowsTest::printersComeAndGo()
{
    makeReadings();
    QCOMPARE(m_readings->names(), QStringList());
    const QString printer = addLoadedPrinter();
    m_readings->refresh();
    QCOMPARE(m_lines, QStringList{QStringLiteral("added(%1)").arg(printer)});
    QCOMPARE(reading(printer).watching(), Watching::NotDiscovered);
    m_controller->checkForPrinters();
    m_readings->refresh();
    QCOMPARE(reading(printer).watching(), Watching::Watched);
    QCOMPARE(reading(printer).statusCode(), 1);

    QVERIFY(fixture::removePrinter(printer));
    m_readings->refresh();
    QCOMPARE(reading(printer).presence(), Presence::Gone);
    QCOMPARE(reading(printer).statusCode(), 0);
    QCOMPARE(reading(printer).level(Slot::Supply).state, Level::State::NotKnown);
    QCOMPARE(m_lines.last(), QStringLiteral("gone(%1)").arg(printer));
}

void ReadingsOnWindowsTest::stoppedSpoolerMakesNothingGone()
{
    STOPS_SPOOLER();
    const QString printer = addLoadedPrinter();
    makeReadings();
    QVERIFY(waitUntilLoaded(printer));
    QVERIFY(fixture::setSpoolerRunning(false));
    QTRY_COMPARE_WITH_TIMEOUT(reading(printer).statusCode(), 254, patience);
    m_readings->refresh();
    QCOMPARE(reading(printer).presence(), Presence::Present);
    QVERIFY(fixture::setSpoolerRunning(true));
    QTRY_COMPARE_WITH_TIMEOUT(reading(printer).statusCode(), 1, patience);
    QCOMPARE(reading(printer).watching(), Watching::Watched);
}

QTEST_GUILESS_MAIN(ReadingsOnWindowsTest)
#include "tst_readings_on_windows.moc"
