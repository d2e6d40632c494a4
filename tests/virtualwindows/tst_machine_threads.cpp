// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Several threads at once: no wake-up is lost, and none is delivered twice.

#include "machine_calls.h"
#include "patience.h"

#include <array>
#include <atomic>
#include <thread>
#include <vector>

using virtualwindows::PrinterValue;
using namespace std::chrono_literals;

namespace {

constexpr DWORD watchdog = 20000; // only a lost wake-up takes that long

/// The printer's mileage; -1 when it cannot be read.
qint64 readNumber(HANDLE printer)
{
    char name[] = "Mileage";
    DWORD number = 0;
    DWORD needed = 0;
    return GetPrinterDataA(printer, name, nullptr, reinterpret_cast<LPBYTE>(&number), sizeof number,
                           &needed) == ERROR_SUCCESS
               ? qint64{number}
               : -1;
}

/// A thread that waits once for changes of a printer.
class Watcher
{
public:
    explicit Watcher(const QString& name)
        : m_thread([this, name] {
            const HANDLE printer = openHandle(name);
            const HANDLE stop = openEvent();
            const HANDLE change = openNotification(printer);
            const std::array<HANDLE, 2> objects{stop, change};
            m_result = WaitForMultipleObjects(2, objects.data(), FALSE, watchdog);
            FindClosePrinterChangeNotification(change);
            CloseHandle(stop);
            ClosePrinter(printer);
        })
    {}

    /// What ended its wait.
    DWORD result()
    {
        m_thread.join();
        return m_result;
    }

private:
    DWORD m_result = 0;
    std::jthread m_thread;
};

} // namespace

class MachineThreadsTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void noWakeUpIsLostBetweenTwoThreads();
    void everySettingOfAnAutoEventIsTakenOnce();
    void waitsForAllShareTheSameEvents();
    void settingIsNotLostInATimeOut();
    void lastPublishedValueIsSeen_data();
    void lastPublishedValueIsSeen();
    void everyWatcherSeesTheLastValue();
    void drivenTimeEndsEveryWait();
    void waitingForThreadsAfterAChangeIsNeverEarly();
    void allThreadsCanOpenAndCloseHandles();
    void callsOfAllThreadsAreRecorded();
    void plannedFailureHitsOneThread();
    void serviceCanBeStoppedUnderWatchers();
    void heldNotificationsAreNotSignalled();
    void oneWaitCanBeEnded_data();
    void oneWaitCanBeEnded();
    void waitOfAStoppedSpoolerCanBeEnded();
    void watchedPrinterIsKnownByItsOldName();
    void printerCanStayWatchedWhateverHappens();
};

void MachineThreadsTest::noWakeUpIsLostBetweenTwoThreads()
{
    constexpr int rounds = 5000;
    const HANDLE ping = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    const HANDLE pong = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    int answered = 0;
    int heard = 0;
    {
        const std::jthread other([&] {
            for (int round = 0; round < rounds; ++round) {
                if (WaitForSingleObject(ping, watchdog) != WAIT_OBJECT_0)
                    return;
                ++heard;
                SetEvent(pong);
            }
        });
        for (int round = 0; round < rounds; ++round) {
            SetEvent(ping);
            if (WaitForSingleObject(pong, watchdog) != WAIT_OBJECT_0)
                break;
            ++answered;
        }
    }
    CloseHandle(ping);
    CloseHandle(pong);
    QCOMPARE(heard, rounds);
    QCOMPARE(answered, rounds);
}

void MachineThreadsTest::everySettingOfAnAutoEventIsTakenOnce()
{
    constexpr int threads = 4;
    constexpr int settings = 2000;
    const HANDLE ticket = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    const HANDLE taken = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    const HANDLE stop = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::atomic<int> tickets = 0;
    int given = 0;
    {
        std::vector<std::jthread> takers;
        takers.reserve(threads);
        for (int count = 0; count < threads; ++count) {
            takers.emplace_back([&] {
                const HANDLE handles[] = {ticket, stop};
                while (WaitForMultipleObjects(2, handles, FALSE, INFINITE) == WAIT_OBJECT_0) {
                    ++tickets;
                    SetEvent(taken);
                }
            });
        }
        for (; given < settings; ++given) {
            SetEvent(ticket);
            if (WaitForSingleObject(taken, watchdog) != WAIT_OBJECT_0)
                break;
        }
        SetEvent(stop);
    }
    for (const HANDLE handle : {ticket, taken, stop})
        CloseHandle(handle);
    QCOMPARE(given, settings);
    QCOMPARE(tickets.load(), settings);
}

void MachineThreadsTest::waitsForAllShareTheSameEvents()
{
    // Each thread needs both events; none may take one and block the others.
    constexpr int rounds = 1000;
    const HANDLE left = CreateEventW(nullptr, FALSE, TRUE, nullptr);
    const HANDLE right = CreateEventW(nullptr, FALSE, TRUE, nullptr);
    std::atomic<int> turns = 0;
    std::atomic<int> running = 0;
    std::atomic<bool> wasAlone = true;
    {
        std::vector<std::jthread> threads;
        for (const auto& [first, second] :
             {std::pair(left, right), std::pair(right, left), std::pair(left, right)}) {
            threads.emplace_back([&, first = first, second = second] {
                const HANDLE handles[] = {first, second};
                for (int round = 0; round < rounds; ++round) {
                    if (WaitForMultipleObjects(2, handles, TRUE, watchdog) != WAIT_OBJECT_0)
                        return;
                    if (++running != 1)
                        wasAlone = false;
                    ++turns;
                    --running;
                    SetEvent(first);
                    SetEvent(second);
                }
            });
        }
    }
    CloseHandle(left);
    CloseHandle(right);
    QVERIFY(wasAlone);
    QCOMPARE(turns.load(), 3 * rounds);
}

void MachineThreadsTest::settingIsNotLostInATimeOut()
{
    // Every setting ends exactly one wait, however close to the time-out it comes.
    constexpr int settings = 500;
    const HANDLE event = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    const HANDLE taken = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    std::atomic<bool> stop = false;
    std::atomic<int> successes = 0;
    int given = 0;
    {
        const std::jthread waiter([&] {
            while (!stop) {
                if (WaitForSingleObject(event, 1) == WAIT_OBJECT_0) {
                    ++successes;
                    SetEvent(taken);
                }
            }
        });
        for (; given < settings; ++given) {
            // The short waits of the two threads drift against each other.
            WaitForSingleObject(INVALID_HANDLE_VALUE, 1);
            SetEvent(event);
            if (WaitForSingleObject(taken, watchdog) != WAIT_OBJECT_0)
                break;
        }
        stop = true;
    }
    CloseHandle(event);
    CloseHandle(taken);
    QCOMPARE(given, settings);
    QCOMPARE(successes.load(), settings);
}

void MachineThreadsTest::lastPublishedValueIsSeen_data()
{
    QTest::addColumn<bool>("rearmFirst");
    QTest::newRow("re-armed before reading") << true;
    QTest::newRow("re-armed again after reading") << false;
}

void MachineThreadsTest::lastPublishedValueIsSeen()
{
    QFETCH(bool, rearmFirst);
    constexpr int values = 3000;
    machine().addPrinter({.name = printerName});
    const HANDLE printer = openHandle();
    const HANDLE notification = openNotification(printer, PRINTER_CHANGE_SET_PRINTER);
    qint64 seen = -1;
    bool wasBackwards = false;
    {
        const std::jthread watcher([&] {
            while (seen < values && WaitForSingleObject(notification, watchdog) == WAIT_OBJECT_0) {
                FindNextPrinterChangeNotification(notification, nullptr, nullptr, nullptr);
                qint64 number = readNumber(printer);
                if (!rearmFirst) {
                    // A change before this re-arming is seen by the read after it.
                    FindNextPrinterChangeNotification(notification, nullptr, nullptr, nullptr);
                    number = readNumber(printer);
                }
                wasBackwards = wasBackwards || number < seen;
                seen = number;
            }
        });
        for (quint32 value = 1; value <= values; ++value)
            machine().publish(printerName, PrinterValue::number("Mileage", value));
    }
    FindClosePrinterChangeNotification(notification);
    ClosePrinter(printer);
    QCOMPARE(seen, qint64{values});
    QVERIFY(!wasBackwards);
}

void MachineThreadsTest::everyWatcherSeesTheLastValue()
{
    constexpr int watchers = 5;
    constexpr int publishers = 3;
    constexpr quint32 last = 1000000;
    machine().addPrinter({.name = printerName});
    const HANDLE stop = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::atomic<int> finished = 0;
    {
        std::vector<std::jthread> watching;
        watching.reserve(watchers);
        for (int count = 0; count < watchers; ++count) {
            watching.emplace_back([&] {
                const HANDLE printer = openHandle();
                const HANDLE notification = openNotification(printer, PRINTER_CHANGE_SET_PRINTER);
                const HANDLE handles[] = {stop, notification};
                while (WaitForMultipleObjects(2, handles, FALSE, watchdog) == WAIT_OBJECT_0 + 1) {
                    FindNextPrinterChangeNotification(notification, nullptr, nullptr, nullptr);
                    if (readNumber(printer) == last) {
                        ++finished;
                        break;
                    }
                }
                FindClosePrinterChangeNotification(notification);
                ClosePrinter(printer);
            });
        }
        QVERIFY(machine().waitForWaitingThreads(watchers));
        {
            std::vector<std::jthread> publishing;
            publishing.reserve(publishers);
            for (int count = 0; count < publishers; ++count) {
                publishing.emplace_back([this] {
                    for (quint32 value = 0; value < 500; ++value)
                        machine().publish(printerName, PrinterValue::number("Mileage", value));
                });
            }
        }
        machine().publish(printerName, PrinterValue::number("Mileage", last));
    }
    CloseHandle(stop);
    QCOMPARE(finished.load(), watchers);
}

void MachineThreadsTest::drivenTimeEndsEveryWait()
{
    constexpr int threads = 6;
    constexpr int rounds = 200;
    machine().driveTime();
    std::atomic<int> timeOuts = 0;
    {
        std::vector<std::jthread> waiters;
        waiters.reserve(threads);
        for (int count = 0; count < threads; ++count) {
            waiters.emplace_back([&] {
                for (int round = 0; round < rounds; ++round) {
                    if (WaitForSingleObject(INVALID_HANDLE_VALUE, 5000) == WAIT_TIMEOUT)
                        ++timeOuts;
                }
            });
        }
        for (int round = 1; round <= rounds; ++round) {
            const bool allWait = machine().waitForWaitingThreads(threads);
            const int timeOutsBefore = timeOuts;
            machine().advance(4999ms);
            const int stillWaiting = machine().waitingThreads();
            machine().advance(1ms);
            if (!allWait || timeOutsBefore != threads * (round - 1) || stillWaiting != threads) {
                machine().driveTime(false);
                QFAIL(qPrintable(QStringLiteral("round %1: %2 waiting, %3 time-outs before")
                                     .arg(round)
                                     .arg(stillWaiting)
                                     .arg(timeOutsBefore)));
            }
        }
    }
    QCOMPARE(timeOuts.load(), threads * rounds);
}

void MachineThreadsTest::waitingForThreadsAfterAChangeIsNeverEarly()
{
    // A woken thread is not counted until it waits again, so waiting for the threads after a change
    // never returns too early.
    constexpr int rounds = 2000;
    machine().addPrinter({.name = printerName});
    const HANDLE printer = openHandle();
    const HANDLE notification = openNotification(printer, PRINTER_CHANGE_SET_PRINTER);
    const HANDLE stop = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::atomic<qint64> seen = 0;
    int inTime = 0;
    {
        const std::jthread watcher([&] {
            const HANDLE handles[] = {stop, notification};
            while (WaitForMultipleObjects(2, handles, FALSE, INFINITE) == WAIT_OBJECT_0 + 1) {
                FindNextPrinterChangeNotification(notification, nullptr, nullptr, nullptr);
                seen = readNumber(printer);
            }
        });
        bool isWaiting = machine().waitForWaitingThreads(1);
        for (int round = 1; round <= rounds && isWaiting; ++round) {
            machine().publish(printerName,
                              PrinterValue::number("Mileage", static_cast<quint32>(round)));
            isWaiting = machine().waitForWaitingThreads(1);
            inTime += seen == round ? 1 : 0;
        }
        SetEvent(stop);
    }
    CloseHandle(stop);
    FindClosePrinterChangeNotification(notification);
    ClosePrinter(printer);
    QCOMPARE(inTime, rounds);
}

void MachineThreadsTest::allThreadsCanOpenAndCloseHandles()
{
    constexpr int threads = 4;
    constexpr int rounds = 500;
    machine().addPrinter({.name = printerName});
    std::atomic<int> wrong = 0;
    {
        std::vector<std::jthread> workers;
        workers.reserve(threads);
        for (int count = 0; count < threads; ++count) {
            workers.emplace_back([&] {
                for (int round = 0; round < rounds; ++round) {
                    const HANDLE printer = openHandle();
                    const HANDLE event = CreateEventW(nullptr, FALSE, TRUE, nullptr);
                    const bool good = WaitForSingleObject(event, 0) == WAIT_OBJECT_0 &&
                                      CloseHandle(event) && ClosePrinter(printer);
                    wrong += good ? 0 : 1;
                }
            });
        }
    }
    QCOMPARE(wrong.load(), 0);
    QCOMPARE(machine().openHandles(), 0);
    QCOMPARE(machine().callCount(QStringLiteral("ClosePrinter")), threads * rounds);
}

void MachineThreadsTest::callsOfAllThreadsAreRecorded()
{
    constexpr int threads = 4;
    constexpr int rounds = 300;
    machine().recordCalls();
    {
        std::vector<std::jthread> workers;
        workers.reserve(threads);
        for (int count = 0; count < threads; ++count) {
            workers.emplace_back([] {
                for (int round = 0; round < rounds; ++round)
                    WaitForSingleObject(INVALID_HANDLE_VALUE, 0);
            });
        }
    }
    QHash<Qt::HANDLE, int> perThread;
    const QList<virtualwindows::Call> calls = machine().calls();
    for (const virtualwindows::Call& call : calls)
        ++perThread[call.thread];
    // The identifier of a thread that has ended may be reused for a later one.
    QVERIFY(perThread.size() <= threads);
    QCOMPARE(calls.size(), threads * rounds);
    for (const int count : std::as_const(perThread))
        QCOMPARE(count % rounds, 0);
}

void MachineThreadsTest::plannedFailureHitsOneThread()
{
    constexpr int threads = 4;
    constexpr int rounds = 300;
    machine().failCall(QStringLiteral("WaitForSingleObject"), threads * rounds / 2, 8);
    std::atomic<int> failures = 0;
    {
        std::vector<std::jthread> workers;
        workers.reserve(threads);
        for (int count = 0; count < threads; ++count) {
            workers.emplace_back([&] {
                for (int round = 0; round < rounds; ++round) {
                    if (WaitForSingleObject(INVALID_HANDLE_VALUE, 0) == WAIT_FAILED &&
                        GetLastError() == ERROR_NOT_ENOUGH_MEMORY)
                        ++failures;
                }
            });
        }
    }
    QCOMPARE(failures.load(), 1);
}

void MachineThreadsTest::serviceCanBeStoppedUnderWatchers()
{
    constexpr int threads = 3;
    machine().addPrinter({.name = printerName});
    std::atomic<bool> stop = false;
    std::atomic<int> wrong = 0;
    std::atomic<int> opened = 0;
    {
        std::vector<std::jthread> watchers;
        watchers.reserve(threads);
        for (int count = 0; count < threads; ++count) {
            watchers.emplace_back([&] {
                while (!stop) {
                    const HANDLE printer = openHandle();
                    if (!printer) {
                        wrong += GetLastError() == RPC_S_SERVER_UNAVAILABLE ? 0 : 1;
                        continue;
                    }
                    ++opened;
                    const HANDLE notification =
                        openNotification(printer, PRINTER_CHANGE_SET_PRINTER);
                    if (notification != INVALID_HANDLE_VALUE) {
                        WaitForSingleObject(notification, 1);
                        FindClosePrinterChangeNotification(notification);
                    }
                    ClosePrinter(printer);
                }
            });
        }
        for (int round = 0; round < 100; ++round) {
            machine().publish(printerName, PrinterValue::number("Mileage", 1));
            machine().stopSpooler();
            std::this_thread::yield();
            machine().startSpooler();
        }
        const int openedBefore = opened;
        const bool isUsable = QTest::qWaitFor([&] { return opened > openedBefore; }, patience);
        stop = true;
        QVERIFY(isUsable);
    }
    QCOMPARE(wrong.load(), 0);
    QCOMPARE(machine().openHandles(), 0);
}

void MachineThreadsTest::heldNotificationsAreNotSignalled()
{
    machine().addPrinter({.name = printerName});
    const HANDLE printer = openHandle();
    const HANDLE change = openNotification(printer);
    machine().holdNotifications();
    machine().publish(printerName, PrinterValue::number("Mileage", 5));
    machine().setStatus(printerName, 1);
    QVERIFY(!isSignalled(change));
    QCOMPARE(readNumber(printer), 5);
    machine().notify(printerName, PRINTER_CHANGE_SET_PRINTER);
    QVERIFY(isSignalled(change));
    QCOMPARE(takeChanges(change), DWORD(PRINTER_CHANGE_SET_PRINTER));

    machine().holdNotifications(false);
    QVERIFY(!isSignalled(change));
    machine().publish(printerName, PrinterValue::number("Mileage", 6));
    QVERIFY(isSignalled(change));
    FindClosePrinterChangeNotification(change);
    ClosePrinter(printer);
}

void MachineThreadsTest::oneWaitCanBeEnded_data()
{
    QTest::addColumn<bool>("byTimeOut");
    QTest::addColumn<DWORD>("result");
    QTest::newRow("time-out") << true << DWORD(WAIT_TIMEOUT);
    QTest::newRow("notification") << false << DWORD(WAIT_OBJECT_0 + 1);
}

void MachineThreadsTest::oneWaitCanBeEnded()
{
    QFETCH(const bool, byTimeOut);
    QFETCH(const DWORD, result);
    const auto end = [&](const QString& printer) {
        return byTimeOut ? machine().endWaitByTimeOut(printer)
                         : machine().endWaitByNotification(printer);
    };
    machine().driveTime();
    machine().addPrinter({.name = printerName});
    machine().addPrinter({.name = QStringLiteral("Other")});
    QVERIFY(!end(printerName));
    Watcher first(printerName);
    Watcher second(QStringLiteral("Other"));
    QVERIFY(machine().waitForWaitingThreads(2));
    QVERIFY(!end(QStringLiteral("Nobody's")));
    QVERIFY(end(QStringLiteral("OTHER")));
    QCOMPARE(second.result(), result);
    QCOMPARE(machine().waitingThreads(), 1);
    QVERIFY(end(printerName));
    QCOMPARE(first.result(), result);
}

void MachineThreadsTest::waitOfAStoppedSpoolerCanBeEnded()
{
    machine().driveTime();
    machine().addPrinter({.name = printerName});
    Watcher watcher(printerName);
    QVERIFY(machine().waitForWaitingThreads(1));
    machine().stopSpooler();
    QVERIFY(machine().endWaitByNotification(printerName));
    QCOMPARE(watcher.result(), DWORD(WAIT_OBJECT_0 + 1));
}

void MachineThreadsTest::watchedPrinterIsKnownByItsOldName()
{
    machine().driveTime();
    machine().addPrinter({.name = printerName});
    QCOMPARE(machine().watchedPrinter(printerName), QString());
    Watcher watcher(printerName);
    QVERIFY(machine().waitForWaitingThreads(1));
    QCOMPARE(machine().watchedPrinter(printerName), printerName);
    machine().holdNotifications();
    machine().renamePrinter(printerName, QStringLiteral("New"));
    QCOMPARE(machine().watchedPrinter(printerName), QStringLiteral("New"));
    machine().removePrinter(QStringLiteral("New"));
    QCOMPARE(machine().watchedPrinter(printerName), QString());
    QVERIFY(machine().endWaitByNotification(printerName));
    watcher.result();
}

void MachineThreadsTest::printerCanStayWatchedWhateverHappens()
{
    machine().driveTime();
    machine().addPrinter({.name = printerName});
    const HANDLE printer = openHandle();
    Watcher watcher(printerName);
    QVERIFY(machine().waitForWaitingThreads(1));
    machine().holdNotifications();
    machine().failOnlyAsPlanned();
    machine().removePrinter(printerName);
    QCOMPARE(machine().printers(), QStringList());
    QCOMPARE(machine().watchedPrinter(printerName), QString());
    QVERIFY(!machine().publishWatched(QStringLiteral("Other"), {}, {}));
    QVERIFY(machine().publishWatched(printerName, {PrinterValue::number("Mileage", 5)}, {}));
    QCOMPARE(readNumber(printer), 5);
    QVERIFY(machine().publishWatched(printerName, {}, {"MILEAGE"}));
    QCOMPARE(readNumber(printer), -1);
    machine().stopSpooler();
    QVERIFY(machine().publishWatched(printerName, {PrinterValue::number("Mileage", 6)}, {}));
    QCOMPARE(readNumber(printer), 6);
    QCOMPARE(machine().spoolerState(), DWORD(SERVICE_STOPPED));
    QVERIFY(machine().endWaitByNotification(printerName));
    watcher.result();
    ClosePrinter(printer);
}

QTEST_GUILESS_MAIN(MachineThreadsTest)
#include "tst_machine_threads.moc"
