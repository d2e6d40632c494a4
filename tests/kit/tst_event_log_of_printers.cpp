// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// A log of printers of the virtual spooler, from their first report to their removal.
#include "readings_test.h"

#include <event_log.h>
#include <event_log_reader.h>

#include <QtCore/QTemporaryDir>

using VxKit::EventLog;
using VxKit::EventLogReader;
using VxKit::PrinterEvent;

class EventLogOfPrintersTest : public ReadingsTest
{
    Q_OBJECT

private Q_SLOTS:
    void dayOfAPrinter();
    void stoppedSpoolerIsOneLine();
    void printersComeAndGo();
    void readingsMayBeDestroyedFirst();

private:
    static inline const QString packing = QStringLiteral("Packing");

    void addBirch(const QString& name, const QString& port = QStringLiteral("USB001"))
    {
        machine().addPrinter(
            {.name = name, .driver = QStringLiteral("Stratamark BirchMax"), .port = port});
    }
    void makeLog()
    {
        VxKit::EventLogOptions options;
        options.fileName = m_folder.filePath(
            QStringLiteral("%1.log").arg(QLatin1String(QTest::currentTestFunction())));
        m_log = std::make_unique<EventLog>(&readings(), options);
        m_read = 0;
    }
    /// The lines since the last call, as "Packing error out_of_labels".
    QStringList takeKeys()
    {
        QStringList keys;
        for (const PrinterEvent& event : takeEvents())
            keys.append((event.printer.isEmpty() ? QStringLiteral("-") : event.printer) +
                        QLatin1Char(' ') + severityKey(event.severity) + QLatin1Char(' ') +
                        event.key);
        return keys;
    }
    QList<PrinterEvent> takeEvents()
    {
        QList<PrinterEvent> events;
        if (!m_log->flush(QDeadlineTimer::Forever))
            return events;
        EventLogReader reader(m_log->options().fileName);
        for (int i = 0; const std::optional<PrinterEvent> event = reader.next(); ++i) {
            if (i >= m_read)
                events.append(*event);
        }
        m_read += static_cast<int>(events.size());
        return events;
    }

    QTemporaryDir m_folder;
    std::unique_ptr<EventLog> m_log;
    int m_read = 0;
};

void EventLogOfPrintersTest::dayOfAPrinter()
{
    addBirch(packing);
    publishText(packing, "StatusCode", "1");
    publishText(packing, "SupplyIdentifier", "000000641000030000A7");
    QVERIFY(makeSettledController(1));
    makeReadings();
    makeLog();
    const VxKit::Level supply = level(packing, Slot::Supply);
    QVERIFY(supply.totalMeters.has_value());
    const auto publishRatio = [&](double ratio) {
        publishNumber(packing, "Mileage", static_cast<quint32>(*supply.totalMeters * 1000 * ratio));
        return settleAll(1);
    };
    QStringList keys = takeKeys();
    QVERIFY2(keys.contains(QStringLiteral("Packing ok ready")), qPrintable(keys.join(u'\n')));
    QVERIFY(keys.contains(QStringLiteral("Packing information supply_loaded")));

    for (const double ratio : {0.9, 0.5, 0.26, 0.24, 0.23, 0.09, 0.04})
        QVERIFY(publishRatio(ratio));
    QCOMPARE(takeKeys(), QStringList({QStringLiteral("Packing information level_25"),
                                      QStringLiteral("Packing warning level_10"),
                                      QStringLiteral("Packing warning level_5")}));
    publishText(packing, "StatusCode", "2");
    QVERIFY(settleAll(1));
    const QList<PrinterEvent> empty = takeEvents();
    QCOMPARE(empty.size(), 1);
    QCOMPARE(empty.first().key, QStringLiteral("out_of_labels"));
    QCOMPARE(empty.first().before.code, 1);

    publishText(packing, "SupplyIdentifier", "00000000000000000000");
    QVERIFY(settleAll(1));
    QCOMPARE(takeKeys(), QStringList(QStringLiteral("Packing warning supply_empty")));
    publishText(packing, "SupplyIdentifier", "000000641000030000A7");
    QVERIFY(publishRatio(1));
    publishText(packing, "StatusCode", "1");
    QVERIFY(settleAll(1));
    keys = takeKeys();
    QCOMPARE(keys.last(), QStringLiteral("Packing ok ready"));
    QVERIFY(publishRatio(0.2));
    QCOMPARE(takeKeys(), QStringList(QStringLiteral("Packing information level_25")));
}

void EventLogOfPrintersTest::stoppedSpoolerIsOneLine()
{
    const QStringList names{packing, QStringLiteral("Returns"), QStringLiteral("Shipping")};
    for (const QString& name : names) {
        addBirch(name, QStringLiteral("USB00%1").arg(names.indexOf(name) + 1));
        publishText(name, "StatusCode", "1");
    }
    QVERIFY(makeSettledController(3));
    makeReadings();
    makeLog();
    takeKeys();
    machine().stopSpooler();
    QVERIFY(pollAll(3));
    QCOMPARE(takeKeys(), QStringList(QStringLiteral("- error spooler_stopped")));
    machine().startSpooler();
    publishText(packing, "StatusCode", "2");
    QVERIFY(pollAll(3));
    QStringList keys = takeKeys();
    QCOMPARE(keys.takeFirst(), QStringLiteral("- ok spooler_running"));
    QCOMPARE(keys, QStringList(QStringLiteral("Packing error out_of_labels")));
}

void EventLogOfPrintersTest::printersComeAndGo()
{
    addBirch(packing);
    QVERIFY(makeSettledController(1));
    makeReadings();
    makeLog();
    takeKeys();
    addBirch(QStringLiteral("Returns"), QStringLiteral("USB002"));
    readings().refresh();
    QVERIFY2(takeKeys().contains(QStringLiteral("Returns information printer_added")), "added");
    machine().removePrinter(QStringLiteral("Returns"));
    readings().refresh();
    QCOMPARE(takeKeys(), QStringList(QStringLiteral("Returns warning printer_gone")));
}

void EventLogOfPrintersTest::readingsMayBeDestroyedFirst()
{
    addBirch(packing);
    QVERIFY(makeSettledController(1));
    makeReadings();
    makeLog();
    takeKeys();
    endReadings();
    publishText(packing, "StatusCode", "2");
    QVERIFY(settleAll(1));
    m_log->append(PrinterEvent::commandFailed(packing, QStringLiteral("OpenPrinter"), 5, {}));
    QCOMPARE(takeKeys(), QStringList(QStringLiteral("Packing error command_failed")));
}

QTEST_GUILESS_MAIN(EventLogOfPrintersTest)
#include "tst_event_log_of_printers.moc"
