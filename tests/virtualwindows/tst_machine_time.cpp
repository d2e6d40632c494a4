// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Driven time and waiting threads.
#include "machine_calls.h"

#include <array>
#include <atomic>
#include <thread>

using virtualwindows::PrinterValue;
using namespace std::chrono_literals;

namespace {

/// Threads that each wait once, and the results of their waits.
class Waiters
{
public:
    void start(HANDLE handle, DWORD milliseconds)
    {
        const std::size_t index = m_threads.size();
        m_threads.emplace_back([this, index, handle, milliseconds] {
            m_results[index] = WaitForSingleObject(handle, milliseconds);
        });
    }
    /// Waits for the thread and returns the result of its wait.
    DWORD result(std::size_t index)
    {
        if (m_threads[index].joinable())
            m_threads[index].join();
        return m_results[index];
    }

private:
    std::array<std::atomic<DWORD>, 8> m_results{};
    std::vector<std::jthread> m_threads;
};

} // namespace

class MachineTimeTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void drivenTimeStandsStill();
    void advancingTimeEndsWaitsInTurn();
    void oneAdvanceEndsAllWaitsThatAreDue();
    void infiniteWaitNeverTimesOut();
    void signalledWaitDoesNotTimeOut();
    void waitContinuesInDrivenTime();
    void waitContinuesInRealTime();
    void waitingForThreadsHasALimit();
    void wokenThreadNoLongerCountsAsWaiting();
};

void MachineTimeTest::drivenTimeStandsStill()
{
    machine().driveTime();
    Waiters waiters;
    waiters.start(INVALID_HANDLE_VALUE, 1);
    QVERIFY(machine().waitForWaitingThreads(1));
    // In real time the wait would have ended long before this one.
    QTest::qWait(50);
    QCOMPARE(machine().waitingThreads(), 1);
    QCOMPARE(WaitForSingleObject(INVALID_HANDLE_VALUE, 0), DWORD{WAIT_TIMEOUT});
    machine().advance(1ms);
    QCOMPARE(machine().waitingThreads(), 0);
    QCOMPARE(waiters.result(0), DWORD{WAIT_TIMEOUT});
}

void MachineTimeTest::advancingTimeEndsWaitsInTurn()
{
    machine().driveTime();
    Waiters waiters;
    waiters.start(INVALID_HANDLE_VALUE, 5000);
    waiters.start(INVALID_HANDLE_VALUE, 1000);
    waiters.start(INVALID_HANDLE_VALUE, 3000);
    QVERIFY(machine().waitForWaitingThreads(3));
    machine().advance(999ms);
    QCOMPARE(machine().waitingThreads(), 3);
    machine().advance(1ms);
    QCOMPARE(machine().waitingThreads(), 2);
    QCOMPARE(waiters.result(1), DWORD{WAIT_TIMEOUT});
    // A wait that begins later ends later.
    waiters.start(INVALID_HANDLE_VALUE, 3000);
    QVERIFY(machine().waitForWaitingThreads(3));
    machine().advance(2000ms);
    QCOMPARE(machine().waitingThreads(), 2);
    QCOMPARE(waiters.result(2), DWORD{WAIT_TIMEOUT});
    machine().advance(1000ms);
    QCOMPARE(machine().waitingThreads(), 1);
    QCOMPARE(waiters.result(3), DWORD{WAIT_TIMEOUT});
    machine().advance(1000ms);
    QCOMPARE(machine().waitingThreads(), 0);
    QCOMPARE(waiters.result(0), DWORD{WAIT_TIMEOUT});
}

void MachineTimeTest::oneAdvanceEndsAllWaitsThatAreDue()
{
    machine().driveTime();
    Waiters waiters;
    for (const DWORD time : {5000U, 1000U, 5001U, 3000U})
        waiters.start(INVALID_HANDLE_VALUE, time);
    QVERIFY(machine().waitForWaitingThreads(4));
    machine().advance(5000ms);
    QCOMPARE(machine().waitingThreads(), 1);
    for (const std::size_t index : {0U, 1U, 3U})
        QCOMPARE(waiters.result(index), DWORD{WAIT_TIMEOUT});
    machine().advance(1ms);
    QCOMPARE(waiters.result(2), DWORD{WAIT_TIMEOUT});
}

void MachineTimeTest::infiniteWaitNeverTimesOut()
{
    machine().driveTime();
    const HANDLE event = openEvent();
    Waiters waiters;
    waiters.start(event, INFINITE);
    QVERIFY(machine().waitForWaitingThreads(1));
    machine().advance(std::chrono::hours(24 * 365));
    QCOMPARE(machine().waitingThreads(), 1);
    SetEvent(event);
    QCOMPARE(waiters.result(0), DWORD{WAIT_OBJECT_0});
    CloseHandle(event);
}

void MachineTimeTest::signalledWaitDoesNotTimeOut()
{
    machine().driveTime();
    const HANDLE event = openEvent();
    Waiters waiters;
    waiters.start(event, 5000);
    QVERIFY(machine().waitForWaitingThreads(1));
    machine().advance(4999ms);
    SetEvent(event);
    machine().advance(1ms);
    QCOMPARE(waiters.result(0), DWORD{WAIT_OBJECT_0});
    CloseHandle(event);
}

void MachineTimeTest::waitContinuesInDrivenTime()
{
    Waiters waiters;
    waiters.start(INVALID_HANDLE_VALUE, 1000000);
    QVERIFY(machine().waitForWaitingThreads(1));
    machine().driveTime();
    // A little of its time-out has already passed in real time.
    machine().advance(900000ms);
    QCOMPARE(machine().waitingThreads(), 1);
    machine().advance(100000ms);
    QCOMPARE(waiters.result(0), DWORD{WAIT_TIMEOUT});
}

void MachineTimeTest::waitContinuesInRealTime()
{
    machine().driveTime();
    Waiters waiters;
    waiters.start(INVALID_HANDLE_VALUE, 5000);
    QVERIFY(machine().waitForWaitingThreads(1));
    machine().advance(4999ms);
    QCOMPARE(machine().waitingThreads(), 1);
    QElapsedTimer timer;
    timer.start();
    machine().driveTime(false);
    QCOMPARE(waiters.result(0), DWORD{WAIT_TIMEOUT});
    QVERIFY(timer.elapsed() < 4000); // a millisecond was left, not all of it
}

void MachineTimeTest::waitingForThreadsHasALimit()
{
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!machine().waitForWaitingThreads(1, 30ms));
    QVERIFY(timer.elapsed() >= 30);
    QVERIFY(machine().waitForWaitingThreads(0, 0ms));

    const HANDLE event = openEvent();
    Waiters waiters;
    waiters.start(event, INFINITE);
    waiters.start(event, INFINITE);
    QVERIFY(machine().waitForWaitingThreads(1));
    QVERIFY(machine().waitForWaitingThreads(2));
    QVERIFY(!machine().waitForWaitingThreads(3, 1ms));
    SetEvent(event);
    QCOMPARE(waiters.result(0), DWORD{WAIT_OBJECT_0});
    QCOMPARE(waiters.result(1), DWORD{WAIT_OBJECT_0});
    CloseHandle(event);
}

void MachineTimeTest::wokenThreadNoLongerCountsAsWaiting()
{
    machine().addPrinter({.name = printerName});
    const HANDLE printer = openHandle();
    const HANDLE notification = openNotification(printer);
    Waiters waiters;
    waiters.start(notification, INFINITE);
    QVERIFY(machine().waitForWaitingThreads(1));
    machine().publish(printerName, PrinterValue::number("Mileage", 1));
    // That holds whether the thread has run again or not.
    QCOMPARE(machine().waitingThreads(), 0);
    QCOMPARE(waiters.result(0), DWORD{WAIT_OBJECT_0});
    FindClosePrinterChangeNotification(notification);
    ClosePrinter(printer);
}

QTEST_GUILESS_MAIN(MachineTimeTest)
#include "tst_machine_time.moc"
