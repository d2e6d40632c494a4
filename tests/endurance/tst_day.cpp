// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The built-in story told over and over, for hours of a time that only the test lets pass, with the
// print spooler restarted every hour.
#include "endurance_test.h"

#include "virtualwindows/fleet.h"

#include <algorithm>

using namespace virtualwindows;
using VXPrinting::PrinterType;

namespace {

constexpr auto hour = std::chrono::milliseconds(1h);

} // namespace

class DayTest : public EnduranceTest
{
    Q_OBJECT

private Q_SLOTS:
    void day();

private:
    [[nodiscard]] bool pass(PrinterStatusController& controller, std::chrono::milliseconds time);
    [[nodiscard]] bool tellStory(PrinterStatusController& controller, const Fleet& fleet);
    [[nodiscard]] bool restartSpooler(PrinterStatusController& controller);

    std::chrono::milliseconds m_now{};
};

/// Lets time pass in steps that no thread sleeps through.
bool DayTest::pass(PrinterStatusController& controller, std::chrono::milliseconds time)
{
    while (time > 0ms) {
        const auto step = std::min<std::chrono::milliseconds>(time, spoolerPoll);
        machine().advance(step);
        m_now += step;
        time -= step;
        if (!settle(watchedPrinters(controller)))
            return false;
    }
    return true;
}

bool DayTest::tellStory(PrinterStatusController& controller, const Fleet& fleet)
{
    std::chrono::milliseconds told{};
    for (const StoryEvent& event : fleet.story) {
        if (!pass(controller, event.at - told))
            return false;
        told = event.at;
        event.happen(machine());
        if (!settle(watchedPrinters(controller)))
            return false;
    }
    // A printer that was switched on meanwhile is found.
    controller.checkForPrinters();
    return settle(watchedPrinters(controller));
}

bool DayTest::restartSpooler(PrinterStatusController& controller)
{
    machine().stopSpooler();
    if (!pass(controller, spoolerPoll))
        return false;
    machine().startSpooler();
    return pass(controller, spoolerPoll);
}

void DayTest::day()
{
    const int hours = fromEnvironment("VX_DAY_HOURS", 2);
    const Fleet fleet = builtInFleet();
    populate(machine(), fleet);
    auto controller = std::make_unique<PrinterStatusController>();
    QVERIFY(settle(watchedPrinters(*controller)));

    Footprint before;
    int handlesBefore = 0;
    Footprint last;
    for (int count = 0; count < hours; ++count) {
        while (m_now < (count + 1) * hour)
            QVERIFY(tellStory(*controller, fleet));
        QVERIFY(restartSpooler(*controller));

        // In the first hour comes what is made once and kept.
        last = Footprint::now();
        if (count == 0) {
            before = last;
            handlesBefore = machine().openHandles();
        }
        QCOMPARE(machine().openHandles(), handlesBefore);
        QCOMPARE(last.threads, before.threads);
        QCOMPARE(last.openFiles, before.openFiles);
        QCOMPARE(last.objects, before.objects);
        checkMemoryIsFlat(before, last);
    }
    qInfo("%d hours: %d handles, %d threads, %d open files, %d objects after the first and each "
          "following; %s after the first, %s after the last",
          hours, handlesBefore, before.threads, before.openFiles, before.objects,
          qPrintable(before.memory()), qPrintable(last.memory()));

    // As the day left them, the records are those of a controller that has just come.
    auto fresh = std::make_unique<PrinterStatusController>();
    const int watched = watchedPrinters(*controller);
    QCOMPARE(watchedPrinters(*fresh), watched);
    QVERIFY(settle(2 * watched));
    const QVariantList records = controller->getAvailablePrinters();
    for (const QVariant& entry : records) {
        const auto record = entry.value<PrinterStatusInformation>();
        const auto freshRecord = recordOf(*fresh, record.printerName);
        QVERIFY(freshRecord);
        QVERIFY2(difference(record, *freshRecord).isEmpty(),
                 qPrintable(record.printerName + QStringLiteral(": ") +
                            difference(record, *freshRecord)));
    }
    fresh.reset();

    // And every printer that is watched still tells of everything.
    for (const QVariant& entry : records) {
        const auto record = entry.value<PrinterStatusInformation>();
        if (record.printerRemote || record.printerNonAdmin)
            continue;
        const LabelPrinter printer{record.printerName,
                                   controller->getPrinterTypeEnum(record.printerName)};
        publish(printer, moment(printer, 1));
        QVERIFY(settle(watched));
        QCOMPARE(mismatch(*controller, printer, moment(printer, 1)), QString());
    }
}

QTEST_GUILESS_MAIN(DayTest)
#include "tst_day.moc"
