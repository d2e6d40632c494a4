// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Print jobs that wait, are printed, held and deleted.

#include "machine_test.h"
#include "patience.h"

#include <QtTest/QtTest>

#include <cstring>
#include <functional>
#include <vector>

#include <windows.h>
#include <winspool.h>

using namespace std::chrono_literals;
using virtualwindows::Machine;
using virtualwindows::PrinterValue;

namespace {

const QString printerName = QStringLiteral("Label");

/// A job as EnumJobsW lists it.
struct ListedJob
{
    DWORD id;
    DWORD status;
    DWORD position;

    friend bool operator==(const ListedJob&, const ListedJob&) = default;
};

using Change = std::function<void(Machine&)>;

} // namespace

Q_DECLARE_METATYPE(Change)

class MachineJobsTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;

    void jobsArePrintedOneAfterTheOther();
    void jobsArePrintedInRealTimeToo();
    void printingTimeSurvivesAChangeOfTheClock();
    void printerHoldsItsJobs_data();
    void printerHoldsItsJobs();
    void heldJobKeepsTheTimeThatIsLeft();
    void pausedJobLetsOthersPass();
    void deletedJobIsGone_data();
    void deletedJobIsGone();
    void jobInPrintIsDeletedAtItsEnd();
    void printedJobIsKept();
    void restartedJobBeginsAnew();
    void stoppedSpoolerPrintsNothing();
    void removedPrinterForgetsItsJobs();
    void changesOfJobsAreNotified();
    void statusesAreReportedAsDetails();
    void tooManyDetailsAreDiscarded();
    void otherDetailsAreRefused();
    void partOfTheBytesIsTaken();
    void setJobStaysAsItIs();
    void jobCanHaveAnyNumber();

private:
    DWORD print();
    QList<ListedJob> queue();
    bool control(DWORD id, DWORD command)
    {
        return SetJobW(m_printer, id, 0, nullptr, command) != FALSE;
    }
    HANDLE watchDetails(WORD field = JOB_NOTIFY_FIELD_STATUS);
    /// Re-arms a notification and returns the job statuses that it reported.
    QList<DWORD> details(HANDLE notification, bool* discarded = nullptr);

    HANDLE m_printer = nullptr;
};

void MachineJobsTest::init()
{
    MachineTest::init();
    machine().driveTime();
    machine().addPrinter({.name = printerName, .printingTime = 10s});
    QString name = printerName;
    QVERIFY(OpenPrinterW(reinterpret_cast<LPWSTR>(name.data()), &m_printer, nullptr));
}

void MachineJobsTest::cleanup()
{
    ClosePrinter(m_printer);
    MachineTest::cleanup();
}

DWORD MachineJobsTest::print()
{
    DOC_INFO_1W info{};
    const DWORD id = StartDocPrinterW(m_printer, 1, reinterpret_cast<LPBYTE>(&info));
    EndDocPrinter(m_printer);
    return id;
}

QList<ListedJob> MachineJobsTest::queue()
{
    DWORD needed = 0;
    DWORD count = 0;
    EnumJobsW(m_printer, 0, 100, 2, nullptr, 0, &needed, &count);
    std::vector<BYTE> block(needed);
    if (!EnumJobsW(m_printer, 0, 100, 2, block.data(), needed, &needed, &count))
        return {{0, 0, 0}};
    QList<ListedJob> jobs;
    for (DWORD index = 0; index < count; ++index) {
        const auto& job = reinterpret_cast<const JOB_INFO_2W*>(block.data())[index];
        jobs.append({job.JobId, job.Status, job.Position});
    }
    return jobs;
}

HANDLE MachineJobsTest::watchDetails(WORD field)
{
    PRINTER_NOTIFY_OPTIONS_TYPE type{};
    type.Type = JOB_NOTIFY_TYPE;
    type.Count = 1;
    type.pFields = &field;
    PRINTER_NOTIFY_OPTIONS options{};
    options.Version = 2;
    options.Count = 1;
    options.pTypes = &type;
    return FindFirstPrinterChangeNotification(m_printer, 0, 0, &options);
}

QList<DWORD> MachineJobsTest::details(HANDLE notification, bool* discarded)
{
    LPVOID block = nullptr;
    FindNextPrinterChangeNotification(notification, nullptr, nullptr, &block);
    QList<DWORD> statuses;
    const auto* const info = static_cast<PRINTER_NOTIFY_INFO*>(block);
    for (DWORD index = 0; info && index < info->Count; ++index)
        statuses.append(info->aData[index].NotifyData.adwData[0]);
    if (discarded)
        *discarded = info && (info->Flags & PRINTER_NOTIFY_INFO_DISCARDED);
    FreePrinterNotifyInfo(static_cast<PRINTER_NOTIFY_INFO*>(block));
    return statuses;
}

void MachineJobsTest::jobsArePrintedOneAfterTheOther()
{
    const DWORD first = print();
    const DWORD second = print();
    const QList<ListedJob> both{{first, JOB_STATUS_PRINTING, 1}, {second, 0, 2}};
    QCOMPARE(queue(), both);
    machine().advance(9999ms);
    QCOMPARE(queue(), both);
    machine().advance(1ms);
    QCOMPARE(queue(), (QList<ListedJob>{{second, JOB_STATUS_PRINTING, 1}}));
    machine().advance(10s);
    QCOMPARE(queue(), QList<ListedJob>());
    QCOMPARE(machine().jobs(printerName).size(), 2);
    QVERIFY(machine().jobs(printerName).first().status & JOB_STATUS_PRINTED);

    // A long time is passed job by job.
    for (int job = 0; job < 5; ++job)
        print();
    machine().advance(49s);
    QCOMPARE(queue().size(), 1);
    machine().advance(1s);
    QCOMPARE(queue().size(), 0);
}

void MachineJobsTest::jobsArePrintedInRealTimeToo()
{
    machine().driveTime(false);
    machine().setPrintingTime(printerName, 20ms);
    const HANDLE notification =
        FindFirstPrinterChangeNotification(m_printer, PRINTER_CHANGE_DELETE_JOB, 0, nullptr);
    print();
    print();
    // Only this wait moves the jobs on.
    QCOMPARE(WaitForSingleObject(notification, INFINITE), WAIT_OBJECT_0);
    QTRY_COMPARE(queue().size(), 0);
    QVERIFY(FindClosePrinterChangeNotification(notification));
}

void MachineJobsTest::printingTimeSurvivesAChangeOfTheClock()
{
    print();
    machine().driveTime(false);
    QCOMPARE(queue().size(), 1);
    machine().driveTime();
    machine().advance(10s);
    QCOMPARE(queue().size(), 0);
}

void MachineJobsTest::printerHoldsItsJobs_data()
{
    QTest::addColumn<Change>("hold");
    QTest::addColumn<Change>("release");
    QTest::addColumn<DWORD>("status");
    const auto status = [](DWORD flags) {
        return Change([flags](Machine& machine) { machine.setStatus(printerName, flags); });
    };
    const auto attributes = [](DWORD flags) {
        return Change([flags](Machine& machine) { machine.setAttributes(printerName, flags); });
    };
    const auto code = [](const char* text) {
        return Change([text](Machine& machine) {
            machine.publish(printerName, PrinterValue::text("StatusCode", text));
        });
    };
    constexpr DWORD printing = JOB_STATUS_PRINTING;
    QTest::newRow("paused") << status(PRINTER_STATUS_PAUSED) << status(0) << DWORD{0};
    QTest::newRow("set to work offline")
        << attributes(PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_WORK_OFFLINE)
        << attributes(PRINTER_ATTRIBUTE_LOCAL) << DWORD{0};
    QTest::newRow("off line") << status(PRINTER_STATUS_OFFLINE) << status(0)
                              << DWORD{printing | JOB_STATUS_OFFLINE};
    QTest::newRow("out of paper") << status(PRINTER_STATUS_PAPER_OUT) << status(0)
                                  << DWORD{printing | JOB_STATUS_PAPEROUT};
    QTest::newRow("in error") << status(PRINTER_STATUS_ERROR) << status(0)
                              << DWORD{printing | JOB_STATUS_ERROR};
    QTest::newRow("paper jam") << status(PRINTER_STATUS_PAPER_JAM) << status(0)
                               << DWORD{printing | JOB_STATUS_ERROR};
    QTest::newRow("fault of the driver")
        << code("4") << code("1") << DWORD{printing | JOB_STATUS_BLOCKED_DEVQ};
    QTest::newRow("fault, value removed") << code("4") << Change([](Machine& machine) {
        machine.unpublish(printerName, "StatusCode");
    }) << DWORD{printing | JOB_STATUS_BLOCKED_DEVQ};
}

void MachineJobsTest::printerHoldsItsJobs()
{
    QFETCH(Change, hold);
    QFETCH(Change, release);
    QFETCH(DWORD, status);
    machine().setPrintingTime(printerName, 0s);
    hold(machine());
    const DWORD id = print();
    QCOMPARE(queue(), (QList<ListedJob>{{id, status, 1}}));
    machine().advance(60s);
    QCOMPARE(queue(), (QList<ListedJob>{{id, status, 1}}));
    release(machine());
    QCOMPARE(queue(), QList<ListedJob>());
    QVERIFY(machine().jobs(printerName).first().status & JOB_STATUS_PRINTED);
}

void MachineJobsTest::heldJobKeepsTheTimeThatIsLeft()
{
    const DWORD id = print();
    machine().advance(7s);
    machine().setStatus(printerName, PRINTER_STATUS_PAUSED);
    QCOMPARE(queue(), (QList<ListedJob>{{id, JOB_STATUS_PRINTING, 1}}));
    machine().advance(60s);
    machine().setStatus(printerName, 0);
    machine().advance(2999ms);
    QCOMPARE(queue().size(), 1);
    machine().advance(1ms);
    QCOMPARE(queue().size(), 0);
}

void MachineJobsTest::pausedJobLetsOthersPass()
{
    machine().setStatus(printerName, PRINTER_STATUS_PAUSED);
    const DWORD first = print();
    const DWORD second = print();
    QVERIFY(control(first, JOB_CONTROL_PAUSE));
    machine().setStatus(printerName, 0);
    QCOMPARE(queue(),
             (QList<ListedJob>{{first, JOB_STATUS_PAUSED, 1}, {second, JOB_STATUS_PRINTING, 2}}));
    machine().advance(10s);
    QCOMPARE(queue(), (QList<ListedJob>{{first, JOB_STATUS_PAUSED, 1}}));
    QVERIFY(control(first, JOB_CONTROL_RESUME));
    machine().advance(10s);
    QCOMPARE(queue().size(), 0);
}

void MachineJobsTest::deletedJobIsGone_data()
{
    QTest::addColumn<DWORD>("command");
    QTest::newRow("delete") << DWORD{JOB_CONTROL_DELETE};
    QTest::newRow("cancel") << DWORD{JOB_CONTROL_CANCEL};
}

void MachineJobsTest::deletedJobIsGone()
{
    QFETCH(DWORD, command);
    const DWORD first = print();
    const DWORD second = print();
    QVERIFY(control(second, command));
    QCOMPARE(queue(), (QList<ListedJob>{{first, JOB_STATUS_PRINTING, 1}}));
    QCOMPARE(machine().jobs(printerName).size(), 1);
    QVERIFY(!control(second, command));
    QCOMPARE(GetLastError(), ERROR_INVALID_PARAMETER);
    // Also one that the printer holds.
    machine().setStatus(printerName, PRINTER_STATUS_ERROR);
    QVERIFY(control(first, command));
    QCOMPARE(queue(), QList<ListedJob>());
}

void MachineJobsTest::jobInPrintIsDeletedAtItsEnd()
{
    const DWORD first = print();
    const DWORD second = print();
    machine().advance(5s);
    QVERIFY(control(first, JOB_CONTROL_DELETE));
    QCOMPARE(queue().first(), (ListedJob{first, JOB_STATUS_PRINTING | JOB_STATUS_DELETING, 1}));
    machine().advance(5s);
    QCOMPARE(queue(), (QList<ListedJob>{{second, JOB_STATUS_PRINTING, 1}}));
    QCOMPARE(machine().jobs(printerName).size(), 1);
    // Or when the printer is held.
    QVERIFY(control(second, JOB_CONTROL_DELETE));
    machine().setStatus(printerName, PRINTER_STATUS_OFFLINE);
    QCOMPARE(queue(), QList<ListedJob>());
}

void MachineJobsTest::printedJobIsKept()
{
    machine().setAttributes(printerName,
                            PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_KEEPPRINTEDJOBS);
    const DWORD first = print();
    machine().advance(10s);
    QCOMPARE(queue(), (QList<ListedJob>{{first, JOB_STATUS_PRINTED, 1}}));
    machine().setAttributes(printerName, PRINTER_ATTRIBUTE_LOCAL);
    const DWORD second = print();
    QVERIFY(control(second, JOB_CONTROL_RETAIN));
    machine().advance(10s);
    QCOMPARE(queue().last(), (ListedJob{second, JOB_STATUS_PRINTED | JOB_STATUS_RETAINED, 2}));
    QVERIFY(control(second, JOB_CONTROL_RELEASE));
    QCOMPARE(queue().size(), 1);
    QVERIFY(!control(first, 99));
    QCOMPARE(GetLastError(), ERROR_INVALID_PARAMETER);
}

void MachineJobsTest::restartedJobBeginsAnew()
{
    const DWORD id = print();
    machine().advance(9s);
    QVERIFY(control(id, JOB_CONTROL_RESTART));
    machine().advance(9s);
    QCOMPARE(queue().size(), 1);
    machine().advance(1s);
    QCOMPARE(queue().size(), 0);
}

void MachineJobsTest::stoppedSpoolerPrintsNothing()
{
    print();
    machine().stopSpooler();
    machine().advance(60s);
    QVERIFY(machine().jobs(printerName).first().queued);
    machine().startSpooler();
    QVERIFY(machine().jobs(printerName).first().queued);
    machine().advance(10s);
    QVERIFY(!machine().jobs(printerName).first().queued);
}

void MachineJobsTest::removedPrinterForgetsItsJobs()
{
    print();
    machine().removePrinter(printerName);
    machine().advance(60s);
    DWORD needed = 0;
    DWORD count = 0;
    QVERIFY(!EnumJobsW(m_printer, 0, 100, 1, nullptr, 0, &needed, &count));
    QCOMPARE(GetLastError(), ERROR_PRINTER_DELETED);
}

void MachineJobsTest::changesOfJobsAreNotified()
{
    const HANDLE notification =
        FindFirstPrinterChangeNotification(m_printer, PRINTER_CHANGE_JOB, 0, nullptr);
    const auto changes = [notification] {
        DWORD change = 0;
        FindNextPrinterChangeNotification(notification, &change, nullptr, nullptr);
        return change;
    };
    const DWORD id = print();
    QCOMPARE(changes(), DWORD{PRINTER_CHANGE_ADD_JOB | PRINTER_CHANGE_SET_JOB});
    machine().advance(5s);
    QCOMPARE(changes(), DWORD{0});
    machine().setStatus(printerName, PRINTER_STATUS_PAPER_OUT);
    QCOMPARE(changes(), DWORD{PRINTER_CHANGE_SET_JOB});
    QVERIFY(control(id, JOB_CONTROL_DELETE));
    QCOMPARE(changes(), DWORD{PRINTER_CHANGE_DELETE_JOB});
    machine().setStatus(printerName, 0);
    print();
    changes();
    machine().advance(10s);
    QCOMPARE(changes(), DWORD{PRINTER_CHANGE_SET_JOB | PRINTER_CHANGE_DELETE_JOB});
    QVERIFY(FindClosePrinterChangeNotification(notification));
}

// https://learn.microsoft.com/windows/win32/printdocs/printer-notify-info-data
void MachineJobsTest::statusesAreReportedAsDetails()
{
    const HANDLE notification = watchDetails();
    QVERIFY(notification != INVALID_HANDLE_VALUE);
    print();
    QCOMPARE(WaitForSingleObject(notification, 0), WAIT_OBJECT_0);
    QCOMPARE(details(notification), (QList<DWORD>{JOB_STATUS_SPOOLING, 0, JOB_STATUS_PRINTING}));
    QCOMPARE(details(notification), QList<DWORD>());
    machine().advance(10s);
    QCOMPARE(details(notification),
             (QList<DWORD>{JOB_STATUS_PRINTED, JOB_STATUS_PRINTED | JOB_STATUS_DELETED}));
    // What is not asked for is not kept.
    print();
    QVERIFY(FindNextPrinterChangeNotification(notification, nullptr, nullptr, nullptr));
    QCOMPARE(details(notification), QList<DWORD>());
    QVERIFY(FindClosePrinterChangeNotification(notification));
}

void MachineJobsTest::tooManyDetailsAreDiscarded()
{
    const HANDLE notification = watchDetails();
    for (int job = 0; job < 1000; ++job)
        print();
    bool discarded = false;
    QCOMPARE(details(notification, &discarded).size(), 1000);
    QVERIFY(discarded);
    print();
    QVERIFY(!details(notification, &discarded).isEmpty());
    QVERIFY(!discarded);
    QVERIFY(FindClosePrinterChangeNotification(notification));
}

void MachineJobsTest::otherDetailsAreRefused()
{
    QCOMPARE(watchDetails(1), INVALID_HANDLE_VALUE);
    QCOMPARE(GetLastError(), ERROR_INVALID_PARAMETER);
}

void MachineJobsTest::partOfTheBytesIsTaken()
{
    machine().limitWrites(printerName, 2);
    DOC_INFO_1W info{};
    QVERIFY(StartDocPrinterW(m_printer, 1, reinterpret_cast<LPBYTE>(&info)) != 0);
    char bytes[] = "abc";
    DWORD written = 0;
    QVERIFY(WritePrinter(m_printer, bytes, 3, &written));
    QCOMPARE(written, DWORD{2});
    QVERIFY(EndDocPrinter(m_printer));
    QCOMPARE(machine().jobs(printerName).first().pages, QList<QByteArray>{"ab"});
}

void MachineJobsTest::setJobStaysAsItIs()
{
    HANDLE change = FindFirstPrinterChangeNotification(m_printer, PRINTER_CHANGE_JOB, 0, nullptr);
    const auto changes = [change] {
        DWORD seen = 0;
        FindNextPrinterChangeNotification(change, &seen, nullptr, nullptr);
        return seen;
    };
    machine().setJob(printerName, {.id = 41, .status = JOB_STATUS_PRINTING});
    QCOMPARE(changes(), DWORD(PRINTER_CHANGE_ADD_JOB));
    const DWORD printed = print();
    QCOMPARE(printed, DWORD(42));
    machine().advance(1h);
    changes();
    QCOMPARE(queue(), (QList<ListedJob>{{41, JOB_STATUS_PRINTING, 1}}));
    machine().setJob(printerName, {.id = 41, .status = JOB_STATUS_ERROR});
    QCOMPARE(changes(), DWORD(PRINTER_CHANGE_SET_JOB));
    QCOMPARE(queue(), (QList<ListedJob>{{41, JOB_STATUS_ERROR, 1}}));
    machine().removeJob(printerName, 40);
    QCOMPARE(changes(), DWORD(0));
    machine().removeJob(printerName, 41);
    QCOMPARE(changes(), DWORD(PRINTER_CHANGE_DELETE_JOB));
    QCOMPARE(queue(), QList<ListedJob>());
    FindClosePrinterChangeNotification(change);
}

void MachineJobsTest::jobCanHaveAnyNumber()
{
    // 0 stands for none elsewhere, and no number follows the highest one.
    machine().setJob(printerName, {.id = 0, .status = JOB_STATUS_PAUSED});
    machine().setJob(printerName, {.id = 0xFFFFFFFF, .status = JOB_STATUS_PAUSED});
    const DWORD printed = print();
    QCOMPARE(printed, DWORD(1));
    machine().advance(1h);
    QCOMPARE(queue(),
             (QList<ListedJob>{{0, JOB_STATUS_PAUSED, 1}, {0xFFFFFFFF, JOB_STATUS_PAUSED, 2}}));
    QVERIFY(control(0, JOB_CONTROL_DELETE));
    QCOMPARE(queue(), (QList<ListedJob>{{0xFFFFFFFF, JOB_STATUS_PAUSED, 1}}));
}

QTEST_GUILESS_MAIN(MachineJobsTest)
#include "tst_machine_jobs.moc"
