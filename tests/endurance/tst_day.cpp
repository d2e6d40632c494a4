// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The built-in story repeated for hours of driven time, with the print spooler restarted every
// hour.
#include "endurance_test.h"

#include "virtualwindows/fleet.h"

#include <algorithm>

using namespace virtualwindows;

namespace {

constexpr auto hour = std::chrono::milliseconds(1h);

} // namespace

class DayTest : public EnduranceTest
{
    Q_OBJECT

private Q_SLOTS:
    void repeatedStoriesLeaveNothingBehind();

private:
    [[nodiscard]] bool pass(PrinterStatusController& controller, std::chrono::milliseconds time);
    [[nodiscard]] bool playStory(PrinterStatusController& controller, const Fleet& fleet);
    [[nodiscard]] bool restartSpooler(PrinterStatusController& controller);

    std::chrono::milliseconds m_now{};
};

/// Advances the time in steps short enough for every thread to wake up in each.
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

bool DayTest::playStory(PrinterStatusController& controller, const Fleet& fleet)
{
    std::chrono::milliseconds now{};
    for (const StoryEvent& event : fleet.story) {
        if (!pass(controller, event.at - now))
            return false;
        now = event.at;
        event.happen(machine());
        if (!settle(watchedPrinters(controller)))
            return false;
    }
    // Finds the printers that were switched on meanwhile.
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

void DayTest::repeatedStoriesLeaveNothingBehind()
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
            QVERIFY(playStory(*controller, fleet));
        QVERIFY(restartSpooler(*controller));

        // Whatever is created once and kept is created in the first hour.
        last = Footprint::now();
        if (count == 0) {
            before = last;
            handlesBefore = machine().openHandles();
        }
        QCOMPARE(machine().openHandles(), handlesBefore);
        QCOMPARE(last.threads, before.threads);
        QCOMPARE(last.openFiles, before.openFiles);
        QCOMPARE(last.objects, before.objects);
        QCOMPARE(memoryGrowth(before, last), QString());
    }
    qInfo("%d hours: %d handles, %d threads, %d open files, %d objects after the first and each "
          "following; %s after the first, %s after the last",
          hours, handlesBefore, before.threads, before.openFiles, before.objects,
          qPrintable(before.memory()), qPrintable(last.memory()));

    // At the end of the day, the records are the same as those of a new controller.
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

    // Every watched printer still reports all of its changes.
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
