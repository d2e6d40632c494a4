// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Events, and the calls that wait for them.

#include "fixture.h"

#include <QtCore/QElapsedTimer>
#include <QtTest/QtTest>

#include <atomic>
#include <thread>
#include <vector>

namespace {

EventHandle manualEvent(bool signalled = false)
{
    return EventHandle(CreateEventW(nullptr, TRUE, signalled, nullptr));
}

EventHandle autoEvent(bool signalled = false)
{
    return EventHandle(CreateEventW(nullptr, FALSE, signalled, nullptr));
}

bool isSignalled(const EventHandle& event)
{
    return WaitForSingleObject(event.get(), 0) == WAIT_OBJECT_0;
}

DWORD waitAny(const std::vector<HANDLE>& handles, DWORD milliseconds = 0)
{
    return WaitForMultipleObjects(static_cast<DWORD>(handles.size()), handles.data(), FALSE,
                                  milliseconds);
}

DWORD waitAll(const std::vector<HANDLE>& handles, DWORD milliseconds = 0)
{
    return WaitForMultipleObjects(static_cast<DWORD>(handles.size()), handles.data(), TRUE,
                                  milliseconds);
}

// The values of GetCurrentProcess() and GetCurrentThread().
const HANDLE currentProcess = INVALID_HANDLE_VALUE;
const HANDLE currentThread = reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(-2));

HANDLE closedHandle()
{
    const HANDLE handle = CreateEventW(nullptr, TRUE, TRUE, nullptr);
    CloseHandle(handle);
    return handle;
}

} // namespace

class KernelEventsTest : public WindowsApiTest
{
    Q_OBJECT

private Q_SLOTS:
    void initialStateIsAsRequested_data();
    void initialStateIsAsRequested();
    void manualEventStaysSignalled();
    void autoEventEndsOneWait();
    void setEventIsNotCounted();
    void resetEndsTheSignal_data();
    void resetEndsTheSignal();

    void lowestSignalledIndexWins_data();
    void lowestSignalledIndexWins();
    void waitingForAnyTakesOnlyTheReportedEvent();
    void waitingForAnyAcceptsDuplicates();
    void waitingForAllTakesNothingUntilAllAreSignalled();
    void waitingForAllTakesAll();
    void numberOfObjectsIsLimited_data();
    void numberOfObjectsIsLimited();
    void waitingForAllRefusesDuplicates();
    void badHandlesAreReportedBeforeDuplicates();
    void waitingWithoutAListFails();

    void waitTimesOut_data();
    void waitTimesOut();

    void pseudoHandleIsNeverSignalled_data();
    void pseudoHandleIsNeverSignalled();
    void pseudoHandleInAListFails_data();
    void pseudoHandleInAListFails();
    void invalidHandleValueIsNotAnEvent();
    void closingInvalidHandleValueHasNoEffect();

    void badHandleFails_data();
    void badHandleFails();
    void badHandleInAListTakesNothing();

    void lastErrorBelongsToTheThread();
    void successLeavesTheLastErrorAlone();

    void settingWakesAThread_data();
    void settingWakesAThread();
    void manualEventWakesEveryThread();
    void autoEventWakesOneThreadPerSetting();
    void threadWaitsForAll();
    void threadGetsTheIndexOfTheSignalledEvent();
    void waitingUsesNoProcessor();
};

void KernelEventsTest::initialStateIsAsRequested_data()
{
    QTest::addColumn<bool>("manualReset");
    QTest::addColumn<bool>("initial");
    QTest::newRow("manual, signalled") << true << true;
    QTest::newRow("manual, not signalled") << true << false;
    QTest::newRow("auto, signalled") << false << true;
    QTest::newRow("auto, not signalled") << false << false;
}

void KernelEventsTest::initialStateIsAsRequested()
{
    QFETCH(bool, manualReset);
    QFETCH(bool, initial);
    const EventHandle event(CreateEventW(nullptr, manualReset, initial, nullptr));
    QVERIFY(event);
    QCOMPARE(isSignalled(event), initial);
    QCOMPARE(isSignalled(event), initial && manualReset);
}

void KernelEventsTest::manualEventStaysSignalled()
{
    const EventHandle event = manualEvent();
    QVERIFY(SetEvent(event.get()));
    for (int wait = 0; wait < 3; ++wait)
        QCOMPARE(WaitForSingleObject(event.get(), INFINITE), DWORD{WAIT_OBJECT_0});
    QVERIFY(ResetEvent(event.get()));
    QCOMPARE(WaitForSingleObject(event.get(), 0), DWORD{WAIT_TIMEOUT});
}

void KernelEventsTest::autoEventEndsOneWait()
{
    const EventHandle event = autoEvent();
    QVERIFY(SetEvent(event.get()));
    QCOMPARE(WaitForSingleObject(event.get(), INFINITE), DWORD{WAIT_OBJECT_0});
    QCOMPARE(WaitForSingleObject(event.get(), 0), DWORD{WAIT_TIMEOUT});
}

void KernelEventsTest::setEventIsNotCounted()
{
    const EventHandle event = autoEvent();
    QVERIFY(SetEvent(event.get()));
    QVERIFY(SetEvent(event.get()));
    QVERIFY(isSignalled(event));
    QVERIFY(!isSignalled(event));
}

void KernelEventsTest::resetEndsTheSignal_data()
{
    QTest::addColumn<bool>("manualReset");
    QTest::newRow("manual") << true;
    QTest::newRow("auto") << false;
}

void KernelEventsTest::resetEndsTheSignal()
{
    QFETCH(bool, manualReset);
    const EventHandle event(CreateEventW(nullptr, manualReset, TRUE, nullptr));
    QVERIFY(ResetEvent(event.get()));
    QVERIFY(!isSignalled(event));
    QVERIFY(ResetEvent(event.get()));
    QVERIFY(SetEvent(event.get()));
    QVERIFY(isSignalled(event));
}

void KernelEventsTest::lowestSignalledIndexWins_data()
{
    QTest::addColumn<QList<int>>("signalled");
    QTest::addColumn<DWORD>("result");
    QTest::newRow("none") << QList<int>{} << DWORD{WAIT_TIMEOUT};
    QTest::newRow("first") << QList<int>{0} << DWORD{WAIT_OBJECT_0};
    QTest::newRow("last") << QList<int>{3} << DWORD{WAIT_OBJECT_0 + 3};
    QTest::newRow("two") << QList<int>{2, 1} << DWORD{WAIT_OBJECT_0 + 1};
    QTest::newRow("all") << QList<int>{3, 2, 1, 0} << DWORD{WAIT_OBJECT_0};
}

void KernelEventsTest::lowestSignalledIndexWins()
{
    QFETCH(QList<int>, signalled);
    QFETCH(DWORD, result);
    std::vector<EventHandle> events;
    std::vector<HANDLE> handles;
    for (int index = 0; index < 4; ++index) {
        events.push_back(index % 2 ? autoEvent() : manualEvent());
        handles.push_back(events.back().get());
    }
    for (const int index : signalled)
        QVERIFY(SetEvent(handles[static_cast<std::size_t>(index)]));
    QCOMPARE(waitAny(handles), result);
}

void KernelEventsTest::waitingForAnyTakesOnlyTheReportedEvent()
{
    const EventHandle first = autoEvent(true);
    const EventHandle second = autoEvent(true);
    QCOMPARE(waitAny({first.get(), second.get()}), DWORD{WAIT_OBJECT_0});
    QVERIFY(!isSignalled(first));
    QVERIFY(isSignalled(second));
}

void KernelEventsTest::waitingForAnyAcceptsDuplicates()
{
    const EventHandle event = autoEvent(true);
    QCOMPARE(waitAny({event.get(), event.get()}), DWORD{WAIT_OBJECT_0});
    QCOMPARE(waitAny({event.get(), event.get()}), DWORD{WAIT_TIMEOUT});
}

void KernelEventsTest::waitingForAllTakesNothingUntilAllAreSignalled()
{
    const EventHandle first = autoEvent(true);
    const EventHandle second = autoEvent();
    QCOMPARE(waitAll({first.get(), second.get()}), DWORD{WAIT_TIMEOUT});
    QCOMPARE(waitAll({first.get(), second.get()}, 20), DWORD{WAIT_TIMEOUT});
    QVERIFY(isSignalled(first));
}

void KernelEventsTest::waitingForAllTakesAll()
{
    const EventHandle first = autoEvent(true);
    const EventHandle second = manualEvent(true);
    const EventHandle third = autoEvent(true);
    QCOMPARE(waitAll({first.get(), second.get(), third.get()}, INFINITE), DWORD{WAIT_OBJECT_0});
    QVERIFY(!isSignalled(first));
    QVERIFY(isSignalled(second));
    QVERIFY(!isSignalled(third));
}

void KernelEventsTest::numberOfObjectsIsLimited_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<DWORD>("error");
    QTest::newRow("none") << 0 << DWORD{ERROR_INVALID_PARAMETER};
    QTest::newRow("one") << 1 << DWORD{ERROR_SUCCESS};
    QTest::newRow("the largest number") << MAXIMUM_WAIT_OBJECTS << DWORD{ERROR_SUCCESS};
    QTest::newRow("one too many") << MAXIMUM_WAIT_OBJECTS + 1 << DWORD{ERROR_INVALID_PARAMETER};
}

void KernelEventsTest::numberOfObjectsIsLimited()
{
    QFETCH(int, count);
    QFETCH(DWORD, error);
    std::vector<EventHandle> events;
    // One more than the test waits for, so that the list is never a null pointer.
    std::vector<HANDLE> handles;
    for (int index = 0; index <= count; ++index) {
        events.push_back(manualEvent(index == count - 1));
        handles.push_back(events.back().get());
    }
    DWORD result = WAIT_FAILED;
    QCOMPARE(errorOf([&] {
                 result =
                     WaitForMultipleObjects(static_cast<DWORD>(count), handles.data(), FALSE, 0);
                 return result != WAIT_FAILED;
             }),
             error);
    if (error == ERROR_SUCCESS)
        QCOMPARE(result, static_cast<DWORD>(WAIT_OBJECT_0) + static_cast<DWORD>(count - 1));
}

void KernelEventsTest::waitingForAllRefusesDuplicates()
{
    NEEDS_BEHAVIOUR(Behaviour::DistinctWaitObjects);
    const EventHandle first = manualEvent(true);
    const EventHandle second = manualEvent(true);
    QCOMPARE(errorOf([&] {
                 return waitAll({first.get(), second.get(), first.get()}) != WAIT_FAILED;
             }),
             DWORD{ERROR_INVALID_PARAMETER});
}

// The order of the kernel's checks: the count, the list, its handles, then duplicates.
// reactos/ntoskrnl/ob/obwait.c, NtWaitForMultipleObjects
void KernelEventsTest::badHandlesAreReportedBeforeDuplicates()
{
    expectMisuse(QStringLiteral("WaitForMultipleObjects"));
    const EventHandle event = manualEvent(true);
    const HANDLE closed = closedHandle();
    QCOMPARE(errorOf([&] {
                 return waitAll({event.get(), event.get(), closed}) != WAIT_FAILED;
             }),
             DWORD{ERROR_INVALID_HANDLE});
}

void KernelEventsTest::waitingWithoutAListFails()
{
    // The count is checked first.
    for (const DWORD count : {0, MAXIMUM_WAIT_OBJECTS + 1})
        QCOMPARE(errorOf([&] {
                     return WaitForMultipleObjects(count, nullptr, FALSE, 0) != WAIT_FAILED;
                 }),
                 DWORD{ERROR_INVALID_PARAMETER});
    NEEDS_BEHAVIOUR(Behaviour::MissingWaitLists);
    for (const BOOL all : {FALSE, TRUE})
        QCOMPARE(errorOf([&] { return WaitForMultipleObjects(2, nullptr, all, 0) != WAIT_FAILED; }),
                 DWORD{ERROR_NOACCESS});
}

void KernelEventsTest::waitTimesOut_data()
{
    QTest::addColumn<bool>("all");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("any, at once") << false << 0;
    QTest::newRow("any, after a while") << false << 60;
    QTest::newRow("all, at once") << true << 0;
    QTest::newRow("all, after a while") << true << 60;
}

void KernelEventsTest::waitTimesOut()
{
    QFETCH(bool, all);
    QFETCH(int, milliseconds);
    const EventHandle first = manualEvent(all);
    const EventHandle second = manualEvent();
    const std::vector<HANDLE> handles{first.get(), second.get()};

    QElapsedTimer timer;
    timer.start();
    QCOMPARE(WaitForMultipleObjects(2, handles.data(), all, static_cast<DWORD>(milliseconds)),
             DWORD{WAIT_TIMEOUT});
    // The clock of Windows ticks at least every 16 ms, and a wait may end one tick early.
    constexpr int tick = 16;
    QVERIFY2(timer.elapsed() >= milliseconds - tick, qPrintable(QString::number(timer.elapsed())));
}

void KernelEventsTest::pseudoHandleIsNeverSignalled_data()
{
    QTest::addColumn<HANDLE>("handle");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("process, at once") << currentProcess << 0;
    QTest::newRow("process, after a while") << currentProcess << 30;
    QTest::newRow("thread, at once") << currentThread << 0;
    QTest::newRow("thread, after a while") << currentThread << 30;
}

// wine/dlls/kernel32/tests/sync.c, test_WaitForSingleObject
void KernelEventsTest::pseudoHandleIsNeverSignalled()
{
    QFETCH(const HANDLE, handle);
    QFETCH(const int, milliseconds);
    QCOMPARE(WaitForSingleObject(handle, static_cast<DWORD>(milliseconds)), DWORD{WAIT_TIMEOUT});
}

void KernelEventsTest::pseudoHandleInAListFails_data()
{
    QTest::addColumn<HANDLE>("handle");
    QTest::addColumn<bool>("all");
    QTest::addColumn<DWORD>("milliseconds");
    for (const bool all : {false, true}) {
        const char* const kind = all ? "all" : "any";
        QTest::addRow("process, %s, at once", kind) << currentProcess << all << DWORD{0};
        QTest::addRow("process, %s, without a limit", kind)
            << currentProcess << all << DWORD{INFINITE};
        QTest::addRow("thread, %s, at once", kind) << currentThread << all << DWORD{0};
    }
}

// wine/dlls/kernel32/tests/sync.c, test_WaitForMultipleObjects, which marks it as a fault of Wine
void KernelEventsTest::pseudoHandleInAListFails()
{
    NEEDS_BEHAVIOUR(Behaviour::PseudoHandleChecks);
    QFETCH(const HANDLE, handle);
    QFETCH(const bool, all);
    QFETCH(const DWORD, milliseconds);
    const EventHandle event = autoEvent(true);
    const std::vector<std::vector<HANDLE>> lists{
        {handle}, {handle, event.get()}, {event.get(), handle}};
    for (const std::vector<HANDLE>& list : lists) {
        QCOMPARE(errorOf([&] {
                     return WaitForMultipleObjects(static_cast<DWORD>(list.size()), list.data(),
                                                   all, milliseconds) != WAIT_FAILED;
                 }),
                 DWORD{ERROR_INVALID_HANDLE});
        QVERIFY(isSignalled(event)); // which also resets it
        QVERIFY(SetEvent(event.get()));
    }
}

void KernelEventsTest::invalidHandleValueIsNotAnEvent()
{
    QCOMPARE(errorOf([] { return SetEvent(INVALID_HANDLE_VALUE); }), DWORD{ERROR_INVALID_HANDLE});
    QCOMPARE(errorOf([] { return ResetEvent(INVALID_HANDLE_VALUE); }), DWORD{ERROR_INVALID_HANDLE});
}

void KernelEventsTest::closingInvalidHandleValueHasNoEffect()
{
    QVERIFY(CloseHandle(INVALID_HANDLE_VALUE));
    QVERIFY(CloseHandle(INVALID_HANDLE_VALUE));
    QCOMPARE(WaitForSingleObject(INVALID_HANDLE_VALUE, 0), DWORD{WAIT_TIMEOUT});
}

void KernelEventsTest::badHandleFails_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<bool>("closed");
    for (const char* function :
         {"SetEvent", "ResetEvent", "CloseHandle", "WaitForSingleObject", "WaitForMultipleObjects"})
        for (const bool closed : {false, true})
            QTest::addRow("%s, %s", function, closed ? "closed" : "null")
                << QString::fromLatin1(function) << closed;
}

void KernelEventsTest::badHandleFails()
{
    QFETCH(QString, function);
    QFETCH(bool, closed);
    expectMisuse(function);
    const HANDLE handle = closed ? closedHandle() : nullptr;
    const DWORD error = errorOf([&] {
        if (function == QLatin1String("SetEvent"))
            return SetEvent(handle) != FALSE;
        if (function == QLatin1String("ResetEvent"))
            return ResetEvent(handle) != FALSE;
        if (function == QLatin1String("CloseHandle"))
            return CloseHandle(handle) != FALSE;
        if (function == QLatin1String("WaitForSingleObject"))
            return WaitForSingleObject(handle, INFINITE) != WAIT_FAILED;
        return waitAny({handle}, INFINITE) != WAIT_FAILED;
    });
    QCOMPARE(error, DWORD{ERROR_INVALID_HANDLE});
}

void KernelEventsTest::badHandleInAListTakesNothing()
{
    expectMisuse(QStringLiteral("WaitForMultipleObjects"));
    const EventHandle event = autoEvent(true);
    const HANDLE closed = closedHandle();
    QCOMPARE(errorOf([&] {
                 return waitAny({event.get(), closed}) != WAIT_FAILED;
             }),
             DWORD{ERROR_INVALID_HANDLE});
    QVERIFY(isSignalled(event));
}

void KernelEventsTest::lastErrorBelongsToTheThread()
{
    // The threads synchronise without Windows calls, which could change the last error.
    std::atomic<int> stage = 0;
    const auto waitFor = [&stage](int wanted) {
        while (stage != wanted)
            std::this_thread::yield();
    };
    DWORD errorOfThread = ERROR_SUCCESS;
    DWORD errorOfThreadLater = ERROR_SUCCESS;
    std::jthread thread([&] {
        waitFor(1);
        SetEvent(INVALID_HANDLE_VALUE);
        errorOfThread = GetLastError();
        stage = 2;
        waitFor(3);
        errorOfThreadLater = GetLastError();
    });
    SetLastError(1234);
    stage = 1;
    waitFor(2);
    const DWORD error = GetLastError();
    SetLastError(4321);
    stage = 3;
    thread.join();
    QCOMPARE(error, DWORD{1234});
    QCOMPARE(errorOfThread, DWORD{ERROR_INVALID_HANDLE});
    QCOMPARE(errorOfThreadLater, DWORD{ERROR_INVALID_HANDLE});
}

void KernelEventsTest::successLeavesTheLastErrorAlone()
{
    const EventHandle event = manualEvent();
    const HANDLE handle = event.get();
    SetLastError(1234);
    SetEvent(handle);
    QCOMPARE(GetLastError(), DWORD{1234});
    WaitForSingleObject(handle, 0);
    QCOMPARE(GetLastError(), DWORD{1234});
    ResetEvent(handle);
    QCOMPARE(GetLastError(), DWORD{1234});
    // A time-out is not a failure.
    WaitForMultipleObjects(1, &handle, FALSE, 0);
    QCOMPARE(GetLastError(), DWORD{1234});
}

void KernelEventsTest::settingWakesAThread_data()
{
    QTest::addColumn<bool>("manualReset");
    QTest::addColumn<DWORD>("milliseconds");
    QTest::newRow("manual, without a limit") << true << DWORD{INFINITE};
    QTest::newRow("auto, without a limit") << false << DWORD{INFINITE};
    QTest::newRow("manual, with a limit") << true << DWORD{50000};
    QTest::newRow("auto, with a limit") << false << DWORD{50000};
}

void KernelEventsTest::settingWakesAThread()
{
    QFETCH(bool, manualReset);
    QFETCH(DWORD, milliseconds);
    const EventHandle event(CreateEventW(nullptr, manualReset, FALSE, nullptr));
    const EventHandle started = autoEvent();
    DWORD result = WAIT_FAILED;
    {
        const std::jthread waiter([&] {
            SetEvent(started.get());
            result = WaitForSingleObject(event.get(), milliseconds);
        });
        QCOMPARE(WaitForSingleObject(started.get(), INFINITE), DWORD{WAIT_OBJECT_0});
        QVERIFY(SetEvent(event.get()));
    }
    QCOMPARE(result, DWORD{WAIT_OBJECT_0});
    QCOMPARE(isSignalled(event), manualReset);
}

void KernelEventsTest::manualEventWakesEveryThread()
{
    const EventHandle event = manualEvent();
    std::atomic<int> woken = 0;
    {
        std::vector<std::jthread> waiters;
        waiters.reserve(4);
        for (int count = 0; count < 4; ++count) {
            waiters.emplace_back([&] {
                if (WaitForSingleObject(event.get(), INFINITE) == WAIT_OBJECT_0)
                    ++woken;
            });
        }
        QVERIFY(SetEvent(event.get()));
    }
    QCOMPARE(woken.load(), 4);
}

void KernelEventsTest::autoEventWakesOneThreadPerSetting()
{
    constexpr int threads = 4;
    const EventHandle event = autoEvent();
    const EventHandle woke = autoEvent();
    std::atomic<int> woken = 0;
    std::vector<std::jthread> waiters;
    waiters.reserve(threads);
    for (int count = 0; count < threads; ++count) {
        waiters.emplace_back([&] {
            if (WaitForSingleObject(event.get(), INFINITE) != WAIT_OBJECT_0)
                return;
            ++woken;
            SetEvent(woke.get());
        });
    }
    QList<int> afterEachSetting;
    for (int count = 0; count < threads; ++count) {
        SetEvent(event.get());
        WaitForSingleObject(woke.get(), INFINITE);
        afterEachSetting.append(woken);
    }
    waiters.clear();
    QCOMPARE(afterEachSetting, QList<int>({1, 2, 3, 4}));
    QVERIFY(!isSignalled(event));
}

void KernelEventsTest::threadWaitsForAll()
{
    const EventHandle first = autoEvent();
    const EventHandle second = autoEvent();
    const EventHandle started = autoEvent();
    std::atomic<bool> bothSet = false;
    bool wasEarly = false;
    DWORD result = WAIT_FAILED;
    {
        const std::jthread waiter([&] {
            SetEvent(started.get());
            result = waitAll({first.get(), second.get()}, INFINITE);
            wasEarly = !bothSet;
        });
        WaitForSingleObject(started.get(), INFINITE);
        SetEvent(second.get());
        // Still signalled: the waiting thread takes no event before it can take both.
        const bool secondIsLeft = isSignalled(second);
        SetEvent(second.get());
        bothSet = true;
        SetEvent(first.get());
        QVERIFY(secondIsLeft);
    }
    QVERIFY(!wasEarly);
    QCOMPARE(result, DWORD{WAIT_OBJECT_0});
    QVERIFY(!isSignalled(first));
    QVERIFY(!isSignalled(second));
}

void KernelEventsTest::threadGetsTheIndexOfTheSignalledEvent()
{
    const EventHandle first = autoEvent();
    const EventHandle second = autoEvent();
    const EventHandle third = autoEvent();
    const EventHandle started = autoEvent();
    DWORD result = WAIT_FAILED;
    {
        const std::jthread waiter([&] {
            SetEvent(started.get());
            result = waitAny({first.get(), second.get(), third.get()}, INFINITE);
        });
        WaitForSingleObject(started.get(), INFINITE);
        SetEvent(third.get());
    }
    QCOMPARE(result, DWORD{WAIT_OBJECT_0 + 2});
}

void KernelEventsTest::waitingUsesNoProcessor()
{
    using namespace std::chrono_literals;
    const EventHandle event = manualEvent();
    const EventHandle other = autoEvent();
    const auto before = fixture::processorTimeOfThisThread();
    QCOMPARE(waitAny({event.get(), other.get()}, 400), DWORD{WAIT_TIMEOUT});
    const auto used = fixture::processorTimeOfThisThread() - before;
    // A busy wait would use the processor for most of the 400 ms.
    QVERIFY2(used < 50ms, qPrintable(QString::number(used / 1us) + QStringLiteral(" us")));
}

QTEST_GUILESS_MAIN(KernelEventsTest)
#include "tst_kernel_events.moc"
