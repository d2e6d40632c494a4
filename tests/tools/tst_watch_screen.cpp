// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// What `watch` prints for people, in the words for each event, and that it ends in time while
// reports keep arriving.
#include "machine_test.h"
#include "patience.h"

#include <output.h>
#include <records.h>
#include <status_codes.h>
#include <status_screen.h>
#include <stop_condition.h>
#include <vx_ipc_supplyd_controller.h>
#include <watch_screen.h>

#include <cstdio>

using namespace std::chrono_literals;
using virtualwindows::PrinterValue;

namespace {

constexpr int printerCount = 200;

const QByteArray yellowVinyl("000000641000030000A7");
const QByteArray orangeVinyl("000000641000070000B2");
const QByteArray blank("00000000000000000000");

QString nameOf(int printer)
{
    return QStringLiteral("P%1").arg(printer, 3, 10, QLatin1Char('0'));
}

struct CloseFile
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};

PrinterValue status(int code)
{
    return PrinterValue::text("StatusCode", QByteArray::number(code));
}
PrinterValue supply(const QByteArray& identifier)
{
    return PrinterValue::text("SupplyIdentifier", identifier);
}

/// A controller whose printers are watched as `watch` does it.
struct Watch
{
    explicit Watch(std::FILE* file, const CommandLine& line = {}, const QStringList& printers = {})
        : stream("test", file)
        , output(stream)
    {
        controller.getSupplyIdController()->setCatalogueFile(QStringLiteral(VX_SAMPLE_DATABASE));
        readings = std::make_unique<VxKit::PrinterReadings>(&controller);
        screen = std::make_unique<WatchScreen>(line, output, *readings, printers);
    }

    StandardOutput stream;
    Output output;
    PrinterStatusController controller;
    std::unique_ptr<VxKit::PrinterReadings> readings;
    std::unique_ptr<WatchScreen> screen;
};

} // namespace

class WatchScreenTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;

    void everyChangeOfManyPrintersIsPrinted();
    void whatIsTrueAtTheStartIsNoEvent();
    void everyEventHasItsWords();
    void levelsThatCountDownArePrintedAtTheirMarks();
    void verbosePrintsEveryChangeOfALevel();
    void eachMarkHasALineOfItsOwn();
    void spoolerIsSaidOnceForAllPrinters();
    void printersThatComeGoAndAreRenamedArePrinted();
    void activePrinterIsPrinted();
    void onlyTheNamedPrintersArePrinted();
    void relativeTimesCountFromTheStart();
    void namesAreEscapedAndAligned();
    void changesBeforeACaptionArePrintedBeforeIt();
    void eventsArePrintedWithoutFurtherEvents();
    void jsonOfUnchangedRecordsIsCached();
    void recordsThatDifferInAnyPropertyAreNotEqual();
    void noReportIsDeliveredAfterTheTimeLimit();
    void noReadingChangesAfterTheTimeLimit();
    void detailsSayWhyAPrinterIsNotWatched_data();
    void detailsSayWhyAPrinterIsNotWatched();

private:
    void addPrinters(int count);
    void addPrinter(const QString& name, const QString& driver)
    {
        machine().addPrinter({.name = name, .driver = driver});
    }
    /// Whether all printers have been read within the limit. Their reports are then queued.
    bool waitForReports(int count) { return machine().waitForWaitingThreads(count, 30s); }
    /// Delivers the reports, and then the calls that they queued.
    static void deliverReports()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents();
    }
    QStringList printed()
    {
        std::rewind(m_file.get());
        QFile file;
        const QByteArray text =
            file.open(m_file.get(), QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        return QString::fromUtf8(text).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }
    /// The lines that were printed since the last call, without the time.
    QStringList lines(Watch& watch)
    {
        deliverReports();
        watch.screen->printPending();
        QStringList all = printed().mid(m_lines);
        m_lines += all.size();
        static const QRegularExpression time(QStringLiteral("^\\d\\d:\\d\\d:\\d\\d  "));
        for (QString& line : all)
            line =
                time.match(line).hasMatch() ? line.sliced(10) : QStringLiteral("no time: ") + line;
        return all;
    }
    /// The lines that follow when a printer's driver publishes these values.
    QStringList linesAfter(Watch& watch, const QList<PrinterValue>& values,
                           const QString& printer = QStringLiteral("P"))
    {
        machine().publish(printer, values);
        if (!waitForReports(records::watchedPrinters(watch.controller)))
            return {QStringLiteral("the threads did not read the values")};
        return lines(watch);
    }

    std::unique_ptr<std::FILE, CloseFile> m_file;
    qsizetype m_lines = 0;
};

void WatchScreenTest::init()
{
    MachineTest::init();
    m_file.reset(std::tmpfile());
    m_lines = 0;
    QVERIFY(m_file);
    machine().driveTime();
}

void WatchScreenTest::addPrinters(int count)
{
    for (int i = 0; i < count; ++i) {
        addPrinter(nameOf(i), QStringLiteral("Stratamark BirchMax"));
        machine().publish(nameOf(i), {PrinterValue::text("StatusCode", "1"),
                                      PrinterValue::text("SoftwareVersion", "1.0")});
    }
}

void WatchScreenTest::everyChangeOfManyPrintersIsPrinted()
{
    addPrinters(printerCount);
    Watch watch(m_file.get());
    QVERIFY(waitForReports(printerCount));
    QCOMPARE(lines(watch), QStringList());
    for (int i = 0; i < printerCount; ++i)
        machine().publish(nameOf(i), status(4));
    QVERIFY(waitForReports(printerCount));
    const QStringList all = lines(watch);
    QCOMPARE(all.size(), printerCount);
    for (int i = 0; i < printerCount; ++i)
        QVERIFY(all.contains(nameOf(i) + QStringLiteral("  The cover is open (error)")));
}

void WatchScreenTest::whatIsTrueAtTheStartIsNoEvent()
{
    addPrinters(1);
    machine().publish(nameOf(0),
                      {status(2), supply(yellowVinyl), PrinterValue::number("Mileage", 1000)});
    Watch watch(m_file.get());
    QVERIFY(waitForReports(1));
    QCOMPARE(lines(watch), QStringList());
}

void WatchScreenTest::everyEventHasItsWords()
{
    addPrinter(QStringLiteral("P"), QStringLiteral("Stratamark AlderMax"));
    machine().publish(QStringLiteral("P"), status(1));
    Watch watch(m_file.get());
    QVERIFY(waitForReports(1));
    QCOMPARE(lines(watch), QStringList());

    const auto after = [&](const QList<PrinterValue>& values) {
        return linesAfter(watch, values).join(QLatin1Char('|'));
    };
    const auto number = &PrinterValue::number;
    QCOMPARE(after({status(19)}), QStringLiteral("P  The printer is paused (warning)"));
    QCOMPARE(after({status(1)}), QStringLiteral("P  Ready (was: The printer is paused)"));
    QCOMPARE(after({status(-7)}), QStringLiteral("P  Printer error -7 (error)"));
    QCOMPARE(after({status(1)}), QStringLiteral("P  Ready (was: Printer error -7)"));
    QCOMPARE(after({supply(yellowVinyl)}), QStringLiteral("P  Yellow Vinyl loaded"));
    QCOMPARE(after({supply(orangeVinyl), number("Mileage", 30480)}),
             QStringLiteral("P  Orange Vinyl loaded, 100 % (was Yellow Vinyl)"));
    QCOMPARE(after({status(2), supply(blank), number("Mileage", 0)}),
             QStringLiteral("P  The printer is out of labels (error); Orange Vinyl used up"));
    QCOMPARE(after({status(1), supply(yellowVinyl), number("Mileage", 30480)}),
             QStringLiteral("P  Ready (was: The printer is out of labels); Yellow Vinyl loaded, "
                            "100 %"));
    QCOMPARE(after({supply(blank)}), QStringLiteral("P  Supply removed (was Yellow Vinyl)"));
    QCOMPARE(after({supply("0000006412345600000A")}),
             QStringLiteral("P  unknown kind loaded (0000006412345600000A)"));
    QCOMPARE(after({number("Ribbon1Identifier", 2001), number("Ribbon2Identifier", 2004)}),
             QStringLiteral("P  Ribbon 1: Black resin loaded; Ribbon 2: Red resin loaded"));
    QCOMPARE(after({number("Ribbon1Identifier", 2005), number("Ribbon1Mileage", 120015)}),
             QStringLiteral("P  Ribbon 1: Blue resin loaded, 100 % (was Black resin)"));
    QCOMPARE(after({number("Ribbon1Identifier", 0)}),
             QStringLiteral("P  Ribbon 1 removed (was Blue resin)"));
    QCOMPARE(after({number("Ribbon2Identifier", 0)}),
             QStringLiteral("P  Ribbon 2 removed (was Red resin)"));
    // The first version is no news; the next one is.
    QCOMPARE(after({PrinterValue::text("SoftwareVersion", "1.0,boot 3")}), QString());
    QCOMPARE(after({PrinterValue::text("SoftwareVersion", "1.1,boot 3")}),
             QStringLiteral("P  Firmware 1.1 (was 1.0)"));
    QCOMPARE(after({number("UpdateError", 5)}),
             QStringLiteral("P  Firmware update failed, error 5 (error)"));
}

void WatchScreenTest::levelsThatCountDownArePrintedAtTheirMarks()
{
    addPrinter(QStringLiteral("P"), QStringLiteral("Stratamark Alder"));
    machine().publish(QStringLiteral("P"),
                      {status(1), supply(yellowVinyl), PrinterValue::number("Mileage", 30),
                       PrinterValue::number("Ribbon1Identifier", 2005),
                       PrinterValue::number("Ribbon1Mileage", 12)});
    Watch watch(m_file.get());
    QVERIFY(waitForReports(1));
    QCOMPARE(lines(watch), QStringList());
    QStringList all;
    for (quint32 percent = 30; percent <= 30; --percent)
        all += linesAfter(watch, {PrinterValue::number("Mileage", percent)});
    all += linesAfter(watch, {PrinterValue::number("Ribbon1Mileage", 9)});
    QCOMPARE(all, (QStringList{
                      QStringLiteral("P  Supply: 25 % left (7.6 m), was 26 %"),
                      QStringLiteral("P  Supply: 10 % left (3.0 m), was 11 %"),
                      QStringLiteral("P  Supply: 5 % left (1.5 m), was 6 %"),
                      QStringLiteral("P  Ribbon 1: 9 % left (10.8 m), was 12 %"),
                  }));
}

void WatchScreenTest::verbosePrintsEveryChangeOfALevel()
{
    addPrinter(QStringLiteral("P"), QStringLiteral("Stratamark Alder"));
    machine().publish(QStringLiteral("P"),
                      {status(1), supply(yellowVinyl), PrinterValue::number("Mileage", 27)});
    CommandLine line;
    line.verbose = true;
    Watch watch(m_file.get(), line);
    QVERIFY(waitForReports(1));
    QCOMPARE(lines(watch), QStringList());
    QStringList all;
    for (const quint32 percent : {26U, 26U, 25U, 60U})
        all += linesAfter(watch, {PrinterValue::number("Mileage", percent)});
    all += linesAfter(watch, {supply(orangeVinyl), PrinterValue::number("Mileage", 100)});
    all += linesAfter(watch, {PrinterValue::number("UpdateProgress", 40)});
    all += linesAfter(watch, {PrinterValue::text("SoftwareVersion", "1.0")});
    QCOMPARE(all, (QStringList{
                      QStringLiteral("P  Supply: 26 % left, was 27 %"),
                      QStringLiteral("P  Supply: 25 % left, was 26 %"),
                      QStringLiteral("P  Supply: 60 % left, was 25 %"),
                      QStringLiteral("P  Orange Vinyl loaded, 100 % (was Yellow Vinyl)"),
                      QStringLiteral("P  Firmware update: 40 %"),
                      QStringLiteral("P  Firmware 1.0"),
                  }));
}

void WatchScreenTest::eachMarkHasALineOfItsOwn()
{
    addPrinter(QStringLiteral("P"), QStringLiteral("Stratamark Alder"));
    machine().publish(QStringLiteral("P"),
                      {status(1), supply(yellowVinyl), PrinterValue::number("Mileage", 30)});
    Watch watch(m_file.get());
    QVERIFY(waitForReports(1));
    QCOMPARE(lines(watch), QStringList());
    // All before anything is printed.
    for (const quint32 percent : {20U, 8U, 3U}) {
        machine().publish(QStringLiteral("P"), PrinterValue::number("Mileage", percent));
        QVERIFY(waitForReports(1));
        deliverReports();
    }
    QCOMPARE(lines(watch), (QStringList{
                               QStringLiteral("P  Supply: 20 % left (6.1 m), was 30 %"),
                               QStringLiteral("P  Supply: 8 % left (2.4 m), was 20 %"),
                               QStringLiteral("P  Supply: 3 % left (0.9 m), was 8 %"),
                           }));
}

void WatchScreenTest::spoolerIsSaidOnceForAllPrinters()
{
    addPrinters(5);
    Watch watch(m_file.get());
    QVERIFY(waitForReports(5));
    QCOMPARE(lines(watch), QStringList());
    // The lines that are printed until the threads of all printers have noticed it.
    const auto linesUntilAll = [&](bool isStopped) {
        QStringList all;
        const bool isNoticed = QTest::qWaitFor(
            [&] {
                machine().advance(5s);
                all += lines(watch);
                return std::ranges::all_of(
                    watch.readings->readings(), [&](const VxKit::PrinterReading& reading) {
                        return (reading.statusCode() == VXPrinting::StatusCodes::spoolerDown) ==
                               isStopped;
                    });
            },
            patience);
        return isNoticed ? all : QStringList{QStringLiteral("not noticed")};
    };
    machine().stopSpooler();
    QCOMPARE(
        linesUntilAll(true),
        (QStringList{QStringLiteral("Print spooler stopped, no printer can be read (error)")}));
    machine().startSpooler();
    QCOMPARE(linesUntilAll(false), (QStringList{QStringLiteral("Print spooler is running again")}));
}

void WatchScreenTest::printersThatComeGoAndAreRenamedArePrinted()
{
    addPrinter(QStringLiteral("Old"), QStringLiteral("Stratamark BirchMax"));
    addPrinter(QStringLiteral("Lost"), QStringLiteral("Stratamark BirchMax"));
    machine().publish(QStringLiteral("Old"), status(1));
    machine().publish(QStringLiteral("Lost"), status(1));
    Watch watch(m_file.get());
    QVERIFY(waitForReports(2));
    QCOMPARE(lines(watch), QStringList());

    addPrinter(QStringLiteral("New"), QStringLiteral("Stratamark BirchMax"));
    machine().publish(QStringLiteral("New"), {status(1), supply(yellowVinyl)});
    watch.controller.checkForPrinters();
    watch.readings->refresh();
    QVERIFY(waitForReports(3));
    QCOMPARE(lines(watch),
             (QStringList{QStringLiteral("New   Printer added; Ready; Yellow Vinyl loaded")}));

    machine().renamePrinter(QStringLiteral("Old"), QStringLiteral("Renamed"));
    machine().publish(QStringLiteral("Renamed"), status(1));
    QVERIFY(waitForReports(3));
    deliverReports();
    watch.readings->refresh();
    QCOMPARE(lines(watch), (QStringList{QStringLiteral("Renamed  Renamed (was Old)")}));

    machine().removePrinter(QStringLiteral("New"));
    watch.readings->refresh();
    const QStringList gone = lines(watch);
    QCOMPARE(gone, (QStringList{QStringLiteral("New      Printer removed (warning)")}));
}

void WatchScreenTest::activePrinterIsPrinted()
{
    addPrinters(2);
    machine().setDefaultPrinter(nameOf(0));
    Watch watch(m_file.get());
    QVERIFY(waitForReports(2));
    QCOMPARE(lines(watch), QStringList());
    machine().setDefaultPrinter(nameOf(1));
    QCOMPARE(linesAfter(watch, {status(19)}, nameOf(1)).join(QLatin1Char('|')),
             QStringLiteral("P001  The printer is paused (warning); now the active printer"));
}

void WatchScreenTest::onlyTheNamedPrintersArePrinted()
{
    addPrinters(3);
    Watch watch(m_file.get(), {}, {nameOf(1), nameOf(2)});
    QVERIFY(waitForReports(3));
    QCOMPARE(lines(watch), QStringList());
    machine().publish(nameOf(0), status(4));
    machine().publish(nameOf(1), status(4));
    QVERIFY(waitForReports(3));
    QCOMPARE(lines(watch), (QStringList{QStringLiteral("P001  The cover is open (error)")}));
    // Under its new name, too.
    machine().renamePrinter(nameOf(2), QStringLiteral("Other"));
    machine().publish(QStringLiteral("Other"), status(1));
    QVERIFY(waitForReports(3));
    deliverReports();
    watch.readings->refresh();
    QCOMPARE(lines(watch), (QStringList{QStringLiteral("Other  Renamed (was P002)")}));
    QCOMPARE(linesAfter(watch, {status(4)}, QStringLiteral("Other")),
             (QStringList{QStringLiteral("Other  The cover is open (error)")}));
}

void WatchScreenTest::relativeTimesCountFromTheStart()
{
    addPrinters(1);
    CommandLine line;
    line.relative = true;
    Watch watch(m_file.get(), line);
    QVERIFY(waitForReports(1));
    machine().publish(nameOf(0), status(4));
    QVERIFY(waitForReports(1));
    deliverReports();
    watch.screen->printPending();
    const QStringList all = printed();
    QCOMPARE(all.size(), 1);
    static const QRegularExpression expected(
        QStringLiteral("^ *\\d+\\.\\d s  P000  The cover is open \\(error\\)$"));
    QVERIFY2(expected.match(all.first()).hasMatch(), qPrintable(all.first()));
}

void WatchScreenTest::namesAreEscapedAndAligned()
{
    const QString hostile = QStringLiteral("P\033[31m");
    addPrinter(hostile, QStringLiteral("Stratamark BirchMax"));
    addPrinter(QStringLiteral("\u51fa\u8377"), QStringLiteral("Stratamark BirchMax"));
    machine().publish(hostile, status(1));
    machine().publish(QStringLiteral("\u51fa\u8377"), status(1));
    Watch watch(m_file.get());
    QVERIFY(waitForReports(2));
    QCOMPARE(lines(watch), QStringList());
    QCOMPARE(linesAfter(watch, {status(4)}, hostile),
             (QStringList{QStringLiteral("P\\u001b[31m  The cover is open (error)")}));
    QCOMPARE(linesAfter(watch, {status(4)}, QStringLiteral("\u51fa\u8377")),
             (QStringList{QStringLiteral("\u51fa\u8377         The cover is open (error)")}));
}

void WatchScreenTest::changesBeforeACaptionArePrintedBeforeIt()
{
    addPrinters(2);
    Watch watch(m_file.get());
    QVERIFY(waitForReports(2));
    QCOMPARE(lines(watch), QStringList());
    machine().publish(nameOf(1), status(4));
    QVERIFY(waitForReports(2));
    deliverReports();
    QCOMPARE(printed(), QStringList());
    watch.screen->printCaption(QStringLiteral("the labels run out"));
    QCOMPARE(lines(watch), (QStringList{QStringLiteral("P001  The cover is open (error)"),
                                        QStringLiteral("> the labels run out")}));
}

void WatchScreenTest::eventsArePrintedWithoutFurtherEvents()
{
    addPrinters(1);
    Watch watch(m_file.get());
    QVERIFY(waitForReports(1));
    machine().publish(nameOf(0), status(4));
    QTRY_COMPARE_WITH_TIMEOUT(printed().size(), 1, patience);
}

void WatchScreenTest::jsonOfUnchangedRecordsIsCached()
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

void WatchScreenTest::recordsThatDifferInAnyPropertyAreNotEqual()
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

void WatchScreenTest::noReportIsDeliveredAfterTheTimeLimit()
{
    addPrinters(printerCount);
    StandardOutput stream("test", m_file.get());
    const Output output(stream);
    PrinterStatusController controller;
    StopCondition stop(controller, output);
    QSignalSpy met(&stop, &StopCondition::met);
    QSignalSpy reports(&controller, &PrinterStatusController::statusChangedSignal);
    // The time is up after the first report, before any timer can say so.
    connect(&controller, &PrinterStatusController::statusChangedSignal, &stop,
            [&] { stop.setTimeLimit(0ms); });
    QVERIFY(waitForReports(printerCount));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(reports.size(), 1);
    QCOMPARE(met.size(), 1);
}

void WatchScreenTest::noReadingChangesAfterTheTimeLimit()
{
    addPrinters(printerCount);
    StandardOutput stream("test", m_file.get());
    const Output output(stream);
    PrinterStatusController controller;
    VxKit::PrinterReadings readings(&controller);
    // Reports that were sent before there were readings never reach these. What follows does.
    QVERIFY(waitForReports(printerCount));
    deliverReports();
    StopCondition stop(controller, output);
    stop.alsoStop(readings);
    QSignalSpy changes(&readings, &VxKit::PrinterReadings::changed);
    connect(&readings, &VxKit::PrinterReadings::changed, &stop, [&] { stop.setTimeLimit(0ms); });
    for (int i = 0; i < printerCount; ++i)
        machine().publish(nameOf(i), status(4));
    QVERIFY(waitForReports(printerCount));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(changes.size(), 1);
}

void WatchScreenTest::detailsSayWhyAPrinterIsNotWatched_data()
{
    using Watching = VxKit::PrinterReading::Watching;
    QTest::addColumn<int>("watching");
    QTest::addColumn<QString>("line");
    const auto row = [](Watching watching, const char* line) {
        QTest::newRow(line) << int(watching) << QString::fromLatin1(line);
    };
    row(Watching::Watched, "watched        yes");
    row(Watching::NetworkPrinter, "watched        no, it is a network printer");
    row(Watching::NotManaged, "watched        no, you may not manage it");
    row(Watching::Replaced, "watched        no, it was removed and added again");
    row(Watching::Gone, "watched        no, it was removed");
}

void WatchScreenTest::detailsSayWhyAPrinterIsNotWatched()
{
    QFETCH(const int, watching);
    QFETCH(const QString, line);
    VxKit::PrinterReading reading;
    reading.setName(QStringLiteral("P"));
    reading.setWatching(static_cast<VxKit::PrinterReading::Watching>(watching));
    StandardOutput stream("test", m_file.get());
    Output output(stream);
    status_screen::printDetails(output, reading);
    QCOMPARE(printed().last(), line);
}

QTEST_GUILESS_MAIN(WatchScreenTest)
#include "tst_watch_screen.moc"
