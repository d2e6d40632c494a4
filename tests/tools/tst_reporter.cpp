// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// What `watch` prints for many printers, how often it reads their records for that, and that it
// ends in time while reports keep arriving.
#include "machine_test.h"

#include <output.h>
#include <reporter.h>
#include <status_codes.h>
#include <stop_condition.h>

#include <cstdio>

using namespace std::chrono_literals;
using virtualwindows::PrinterValue;

namespace {

constexpr int printerCount = 200;

QString nameOf(int printer)
{
    return QStringLiteral("P%1").arg(printer, 3, 10, QLatin1Char('0'));
}

struct CloseFile
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};

/// A controller whose changes are printed to a file, as `watch` prints them.
struct Watch
{
    explicit Watch(std::FILE* file,
                   std::function<QList<records::Record>(const PrinterStatusController&)> recordsOf =
                       records::of)
        : stream("test", file)
        , output(stream)
        , reporter({}, output, controller, std::move(recordsOf))
    {
        reporter.printInitialRecords();
    }

    StandardOutput stream;
    Output output;
    PrinterStatusController controller;
    Reporter reporter;
};

} // namespace

class ReporterTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;

    void recordsAreReadOnceForAllQueuedSignals();
    void everyChangeIsPrinted();
    void laterChangesArePrintedAsTheyArrive();
    void pendingChangesArePrintedAtTheEnd();
    void changesBeforeACaptionArePrintedBeforeIt();
    void jsonOfUnchangedRecordsIsCached();
    void recordsThatDifferInAnyPropertyAreNotEqual();
    void noReportIsDeliveredAfterTheTimeLimit();

private:
    /// Whether all printers have been read within the limit. Their reports are then queued.
    bool waitForReports() { return machine().waitForWaitingThreads(printerCount, 30s); }
    /// Delivers the reports, and then the call that they scheduled.
    static void deliverReports()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents();
    }
    QString written()
    {
        std::rewind(m_file.get());
        QFile file;
        return file.open(m_file.get(), QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll())
                                                            : QString();
    }

    std::unique_ptr<std::FILE, CloseFile> m_file;
};

void ReporterTest::init()
{
    MachineTest::init();
    m_file.reset(std::tmpfile());
    QVERIFY(m_file);
    machine().driveTime();
    for (int i = 0; i < printerCount; ++i) {
        machine().addPrinter({.name = nameOf(i), .driver = QStringLiteral("Stratamark BirchMax")});
        machine().publish(nameOf(i), {PrinterValue::text("StatusCode", "1"),
                                      PrinterValue::text("SoftwareVersion", "1.0")});
    }
}

void ReporterTest::recordsAreReadOnceForAllQueuedSignals()
{
    int readings = 0;
    Watch watch(m_file.get(), [&](const PrinterStatusController& controller) {
        ++readings;
        return records::of(controller);
    });
    QVERIFY(waitForReports());
    readings = 0;
    deliverReports();
    QCOMPARE(readings, 1);
    // Called a hundred times a second while a story is played.
    QCOMPARE(watch.reporter.watchedPrinters(), printerCount);
    QCOMPARE(readings, 1);
}

void ReporterTest::everyChangeIsPrinted()
{
    Watch watch(m_file.get());
    QVERIFY(waitForReports());
    deliverReports();
    const QString text = written();
    for (int i = 0; i < printerCount; ++i) {
        QVERIFY(text.contains(nameOf(i) + QStringLiteral("  status     1  Ready\n")));
        QVERIFY(text.contains(
            nameOf(i) +
            QStringLiteral("  records  status not known \u2192 Ready, firmware 1.0\n")));
    }
}

void ReporterTest::laterChangesArePrintedAsTheyArrive()
{
    Watch watch(m_file.get());
    QVERIFY(waitForReports());
    deliverReports();
    for (const char* version : {"2.0", "3.0"}) {
        machine().publish(nameOf(0), PrinterValue::text("SoftwareVersion", version));
        QVERIFY(waitForReports());
        deliverReports();
        QVERIFY2(written().contains(QStringLiteral("\u2192 ") + QString::fromLatin1(version)),
                 version);
    }
}

void ReporterTest::pendingChangesArePrintedAtTheEnd()
{
    Watch watch(m_file.get());
    QVERIFY(waitForReports());
    // Deliver the reports but not the call that they schedule.
    QCoreApplication::sendPostedEvents(&watch.controller);
    const QString line = QStringLiteral("P199  records  status not known \u2192 Ready");
    QVERIFY(!written().contains(line));
    watch.reporter.printPendingChanges();
    QVERIFY(written().contains(line));
}

void ReporterTest::changesBeforeACaptionArePrintedBeforeIt()
{
    Watch watch(m_file.get());
    QVERIFY(waitForReports());
    // Deliver the reports but not the call that they schedule.
    QCoreApplication::sendPostedEvents(&watch.controller);
    const QString caption = QStringLiteral("the labels run out");
    watch.reporter.printCaption(caption);
    const QString text = written();
    const qsizetype change =
        text.indexOf(QStringLiteral("P199  records  status not known \u2192 Ready"));
    QVERIFY(change >= 0);
    QVERIFY(change < text.indexOf(caption));
}

void ReporterTest::jsonOfUnchangedRecordsIsCached()
{
    QList<records::Record> all(printerCount);
    for (int i = 0; i < printerCount; ++i)
        all[i].printerName = nameOf(i);
    int written = 0;
    records::JsonTexts texts([&](const records::Record& record) {
        ++written;
        return records::json(record);
    });
    QCOMPARE(texts.of(all).size(), printerCount);
    QCOMPARE(written, printerCount);
    for (int i = 0; i < printerCount; ++i) {
        all[i].statusEnum = VXPrinting::StatusCodes::ready;
        const QStringList now = texts.of(all);
        QCOMPARE(written, printerCount + i + 1);
        QCOMPARE(now.at(i), records::json(all.at(i)));
    }
    all.removeFirst();
    QCOMPARE(texts.of(all).first(), records::json(all.first()));
    QCOMPARE(written, 2 * printerCount);
}

void ReporterTest::recordsThatDifferInAnyPropertyAreNotEqual()
{
    const QMetaObject& type = records::Record::staticMetaObject;
    const records::Record record;
    QVERIFY(records::areSame(record, {}));
    for (int i = 0; i < type.propertyCount(); ++i) {
        const QMetaProperty property = type.property(i);
        records::Record other;
        const QVariant value = property.readOnGadget(&other);
        const QVariant changed = value.typeId() == QMetaType::Bool  ? QVariant(!value.toBool())
                                 : value.typeId() == QMetaType::Int ? QVariant(value.toInt() + 1)
                                                                    : QVariant(QStringLiteral("x"));
        QVERIFY(property.writeOnGadget(&other, changed));
        QVERIFY2(!records::areSame(record, other), property.name());
    }
}

void ReporterTest::noReportIsDeliveredAfterTheTimeLimit()
{
    StandardOutput stream("test", m_file.get());
    const Output output(stream);
    PrinterStatusController controller;
    StopCondition stop(controller, output);
    QSignalSpy met(&stop, &StopCondition::met);
    QSignalSpy reports(&controller, &PrinterStatusController::statusChangedSignal);
    // The time is up after the first report, before any timer can say so.
    connect(&controller, &PrinterStatusController::statusChangedSignal, &stop,
            [&] { stop.setTimeLimit(0ms); });
    QVERIFY(waitForReports());
    QCoreApplication::sendPostedEvents();
    QCOMPARE(reports.size(), 1);
    QCOMPARE(met.size(), 1);
}

QTEST_GUILESS_MAIN(ReporterTest)
#include "tst_reporter.moc"
