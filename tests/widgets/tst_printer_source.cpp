// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The thread on which the window has its printers watched, on virtual printers.
#include "machine_test.h"
#include "patience.h"
#include "printer_source.h"
#include "run_in_english.h"

#include <QtCore/QHash>

using virtualwindows::PrinterValue;
using VxKit::PrinterEvent;
using VxKit::PrinterReading;

class PrinterSourceTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void listsThePrintersOnce();
    void tellsOfChangesAndEvents();
    void joinsWhatChangesAtTheSameTime();
    void tellsThatThePrintersCannotBeReadWhileTheSpoolerIsStopped();
    void savesACase();
    void saysWhyACaseCannotBeSaved();
    void endsWithoutHavingBegun();

private:
    void addPrinter(const QString& name)
    {
        machine().addPrinter({.name = name, .driver = QStringLiteral("Stratamark BirchMax")});
        machine().publish(name, {PrinterValue::text("StatusCode", "1")});
    }
    /// Keeps the latest reading of each printer.
    void follow(PrinterSource& source)
    {
        m_readings.clear();
        connect(&source, &PrinterSource::changed, this,
                [this](const QList<PrinterReading>& readings) {
                    ++m_batches;
                    for (const PrinterReading& reading : readings)
                        m_readings.insert(reading.name(), reading);
                });
    }
    int codeOf(const QString& name) const { return m_readings.value(name).statusCode(); }

    QHash<QString, PrinterReading> m_readings;
    int m_batches = 0;
};

void PrinterSourceTest::listsThePrintersOnce()
{
    addPrinter(QStringLiteral("Packing"));
    addPrinter(QStringLiteral("Returns"));
    PrinterSource source({});
    follow(source);
    QSignalSpy listed(&source, &PrinterSource::listed);
    source.start();
    QTRY_COMPARE(listed.size(), 1);
    QCOMPARE(m_readings.size(), 2);
    QTRY_COMPARE(codeOf(QStringLiteral("Returns")), 1);
    addPrinter(QStringLiteral("Shipping"));
    QTRY_VERIFY(m_readings.contains(QStringLiteral("Shipping")));
    QCOMPARE(listed.size(), 1);
    QTRY_COMPARE(source.watchedPrinters(), 3);
}

void PrinterSourceTest::tellsOfChangesAndEvents()
{
    addPrinter(QStringLiteral("Packing"));
    PrinterSource source({});
    follow(source);
    QList<PrinterEvent> events;
    connect(&source, &PrinterSource::happened, this,
            [&](const QList<PrinterEvent>& happened) { events += happened; });
    source.start();
    QTRY_COMPARE(codeOf(QStringLiteral("Packing")), 1);
    machine().publish(QStringLiteral("Packing"), PrinterValue::text("StatusCode", "4"));
    QTRY_COMPARE(codeOf(QStringLiteral("Packing")), 4);
    QTRY_VERIFY(!events.isEmpty() && events.last().code == 4);
    QVERIFY(events.last().time.isValid());
    QCOMPARE(events.last().printer, QStringLiteral("Packing"));
}

void PrinterSourceTest::joinsWhatChangesAtTheSameTime()
{
    constexpr int changes = 200;
    addPrinter(QStringLiteral("Packing"));
    PrinterSource source({});
    follow(source);
    source.start();
    QTRY_COMPARE(codeOf(QStringLiteral("Packing")), 1);
    m_batches = 0;
    QElapsedTimer time;
    time.start();
    for (int change = 0; change < changes; ++change)
        machine().publish(QStringLiteral("Packing"),
                          PrinterValue::text("StatusCode", change % 2 == 0 ? "4" : "3"));
    QTRY_COMPARE(codeOf(QStringLiteral("Packing")), 3);
    QVERIFY(m_batches >= 1);
    // At most one in a tenth of a second, one that was under way, and one at the end.
    QVERIFY2(m_batches <= time.elapsed() / 100 + 2, qPrintable(QString::number(m_batches)));
}

void PrinterSourceTest::tellsThatThePrintersCannotBeReadWhileTheSpoolerIsStopped()
{
    addPrinter(QStringLiteral("Packing"));
    PrinterSource source({});
    follow(source);
    QSignalSpy running(&source, &PrinterSource::spoolerRunningChanged);
    source.start();
    QTRY_COMPARE(codeOf(QStringLiteral("Packing")), 1);
    machine().stopSpooler();
    QTRY_COMPARE(running, (QList<QVariantList>{{false}}));
    machine().startSpooler();
    QTRY_COMPARE(running, (QList<QVariantList>{{false}, {true}}));
}

void PrinterSourceTest::savesACase()
{
    addPrinter(QStringLiteral("Packing"));
    PrinterSource source({});
    follow(source);
    source.start();
    QTRY_COMPARE(codeOf(QStringLiteral("Packing")), 1);
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("problem.vxcase"));
    QSignalSpy saved(&source, &PrinterSource::caseSaved);
    source.saveCase(file);
    QTRY_COMPARE(saved, (QList<QVariantList>{{file, QString()}}));
    QFile content(file);
    QVERIFY(content.open(QIODevice::ReadOnly));
    const QByteArray text = content.readAll();
    QVERIFY2(text.startsWith("{\"kind\":\"case\""), text.left(200).constData());
    QVERIFY(text.contains("Stratamark BirchMax"));
    QVERIFY(!text.contains("Packing")); // what is sent to support names nobody's printers
}

void PrinterSourceTest::saysWhyACaseCannotBeSaved()
{
    PrinterSource source({});
    source.start();
    const QTemporaryDir folder;
    QSignalSpy saved(&source, &PrinterSource::caseSaved);
    source.saveCase(folder.filePath(QStringLiteral("missing/problem.vxcase")));
    QTRY_COMPARE(saved.size(), 1);
    QVERIFY(!saved.first().at(1).toString().isEmpty());
}

void PrinterSourceTest::endsWithoutHavingBegun()
{
    const PrinterSource source({});
}

int main(int argc, char* argv[])
{
    return runInEnglish<QCoreApplication, PrinterSourceTest>(argc, argv);
}
#include "tst_printer_source.moc"
