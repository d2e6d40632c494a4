// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// What `watch` costs with many printers, counted and not timed, and that it ends while reports
// come.
#include "machine_test.h"

#include <ending.h>
#include <output.h>
#include <reporter.h>

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

} // namespace

class ReporterTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void recordsAreLookedAtOnceForAllThatIsQueued();
    void everyChangeIsTold();
    void laterChangesAreToldAsTheyCome();
    void whatIsNotYetToldIsToldAtTheEnd();
    void whatHappenedBeforeAStoryIsToldBeforeIt();
    void jsonOfWhatDidNotChangeIsKept();
    void recordsThatDifferInAnyPropertyAreNotTheSame();
    void noReportIsDeliveredAfterTheEnd();

protected:
    void init() override
    {
        MachineTest::init();
        m_file.reset(std::tmpfile());
        QVERIFY(m_file);
        machine().driveTime();
        for (int i = 0; i < printerCount; ++i) {
            machine().addPrinter(
                {.name = nameOf(i), .driver = QStringLiteral("Stratamark BirchMax")});
            machine().publish(nameOf(i), {PrinterValue::text("StatusCode", "1"),
                                          PrinterValue::text("SoftwareVersion", "1.0")});
        }
    }

private:
    /// Whether all printers have been read, and their reports wait in the queue.
    bool waitForReports() { return machine().waitForWaitingThreads(printerCount, 30s); }
    /// Delivers the reports, and in the turn of the loop after them what they led to.
    static void takeTwoTurns()
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

void ReporterTest::recordsAreLookedAtOnceForAllThatIsQueued()
{
    StandardOutput stream("test", m_file.get());
    Output output(stream);
    PrinterStatusController controller;
    int looks = 0;
    Reporter reporter({}, output, controller, [&](const PrinterStatusController& asked) {
        ++looks;
        return records::of(asked);
    });
    reporter.tellBeginning();
    QVERIFY(waitForReports());
    looks = 0;
    takeTwoTurns();
    QCOMPARE(looks, 1);
    // Asked a hundred times a second while a story is told.
    QCOMPARE(reporter.watchedPrinters(), printerCount);
    QCOMPARE(looks, 1);
}

void ReporterTest::everyChangeIsTold()
{
    StandardOutput stream("test", m_file.get());
    Output output(stream);
    PrinterStatusController controller;
    Reporter reporter({}, output, controller);
    reporter.tellBeginning();
    QVERIFY(waitForReports());
    takeTwoTurns();
    const QString text = written();
    for (int i = 0; i < printerCount; ++i) {
        QVERIFY(text.contains(nameOf(i) + QStringLiteral("  status     1  Ready\n")));
        QVERIFY(text.contains(
            nameOf(i) +
            QStringLiteral("  records  status not known \u2192 Ready, firmware 1.0\n")));
    }
}

void ReporterTest::laterChangesAreToldAsTheyCome()
{
    StandardOutput stream("test", m_file.get());
    Output output(stream);
    PrinterStatusController controller;
    Reporter reporter({}, output, controller);
    reporter.tellBeginning();
    QVERIFY(waitForReports());
    takeTwoTurns();
    for (const char* version : {"2.0", "3.0"}) {
        machine().publish(nameOf(0), PrinterValue::text("SoftwareVersion", version));
        QVERIFY(waitForReports());
        takeTwoTurns();
        QVERIFY2(written().contains(QStringLiteral("\u2192 ") + QString::fromLatin1(version)),
                 version);
    }
}

void ReporterTest::whatIsNotYetToldIsToldAtTheEnd()
{
    StandardOutput stream("test", m_file.get());
    Output output(stream);
    PrinterStatusController controller;
    Reporter reporter({}, output, controller);
    reporter.tellBeginning();
    QVERIFY(waitForReports());
    // The reports alone, not what they are followed by.
    QCoreApplication::sendPostedEvents(&controller);
    const QString line = QStringLiteral("P199  records  status not known \u2192 Ready");
    QVERIFY(!written().contains(line));
    reporter.tellEnd();
    QVERIFY(written().contains(line));
}

void ReporterTest::whatHappenedBeforeAStoryIsToldBeforeIt()
{
    StandardOutput stream("test", m_file.get());
    Output output(stream);
    PrinterStatusController controller;
    Reporter reporter({}, output, controller);
    reporter.tellBeginning();
    QVERIFY(waitForReports());
    // The reports alone, not what they are followed by.
    QCoreApplication::sendPostedEvents(&controller);
    const QString story = QStringLiteral("the labels run out");
    reporter.tellStory(story);
    const QString text = written();
    const qsizetype change =
        text.indexOf(QStringLiteral("P199  records  status not known \u2192 Ready"));
    QVERIFY(change >= 0);
    QVERIFY(change < text.indexOf(story));
}

void ReporterTest::jsonOfWhatDidNotChangeIsKept()
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
        all[i].statusEnum = 1;
        const QStringList now = texts.of(all);
        QCOMPARE(written, printerCount + i + 1);
        QCOMPARE(now.at(i), records::json(all.at(i)));
    }
    all.removeFirst();
    QCOMPARE(texts.of(all).first(), records::json(all.first()));
    QCOMPARE(written, 2 * printerCount);
}

void ReporterTest::recordsThatDifferInAnyPropertyAreNotTheSame()
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

void ReporterTest::noReportIsDeliveredAfterTheEnd()
{
    StandardOutput stream("test", m_file.get());
    const Output output(stream);
    PrinterStatusController controller;
    Ending ending(controller, output);
    QSignalSpy ended(&ending, &Ending::came);
    QSignalSpy reports(&controller, &PrinterStatusController::statusChangedSignal);
    // The time is over after the first report, and only the clock knows.
    connect(&controller, &PrinterStatusController::statusChangedSignal, &ending,
            [&] { ending.setTime(0ms); });
    QVERIFY(waitForReports());
    QCoreApplication::sendPostedEvents();
    QCOMPARE(reports.size(), 1);
    QCOMPARE(ended.size(), 1);
}

QTEST_GUILESS_MAIN(ReporterTest)
#include "tst_reporter.moc"
