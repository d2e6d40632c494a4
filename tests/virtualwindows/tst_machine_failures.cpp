// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Planned failures, and that successful calls leave the last error alone.
#include "machine_calls.h"

#include <thread>

using virtualwindows::Call;

class MachineFailuresTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void plannedFailureHasNoEffect_data();
    void plannedFailureHasNoEffect();
    void plannedFailureOfClosingStillCloses_data();
    void plannedFailureOfClosingStillCloses();
    void nthCallFails();
    void callsFromTheNthFail();
    void failuresAreCountedFromNow();
    void clearedFailuresDoNotHappen();
    void nextCallOfAPrinterFailsOnce();
    void nextCallOfAPrinterIsKnownByEachOfItsHandles();
    void nextReadOfAValueFailsOnce();
    void nextFailureCanBeAfterCallsThatSucceed();
    void nextCallOfAThreadFails();
    void nextFailuresAreUsedUpOneByOne();
    void forgottenFailuresDoNotHappen();
    void nextFailureCanBePlannedWhileTheCallIsHeld();
    void successLeavesTheLastErrorAlone_data();
    void successLeavesTheLastErrorAlone();
};

void MachineFailuresTest::plannedFailureHasNoEffect_data()
{
    addCallerColumns();
    addCallerRows();
}

void MachineFailuresTest::plannedFailureHasNoEffect()
{
    QFETCH(QString, function);
    QFETCH(Caller, call);
    machine().addPrinter({.name = printerName});
    const Handles handles = openAll();
    const int openBefore = machine().openHandles();
    SetEvent(handles.event);
    takeChanges(handles.notification);
    constexpr DWORD error = 4321;
    machine().failCall(function, 1, error);
    SetLastError(untouched);
    const Attempt failed = call(handles);
    QVERIFY(failed.isFailure);
    QCOMPARE(failed.error, error);
    QCOMPARE(GetLastError(), error);

    // The call had no effect.
    QCOMPARE(machine().openHandles(), openBefore);
    QCOMPARE(machine().printers(), QStringList{printerName});
    QVERIFY(machine().jobs(printerName).isEmpty());
    QVERIFY(isSignalled(handles.event));
    QVERIFY(!isSignalled(handles.notification));
    QCOMPARE(defaultPrinter(), QString());
    QCOMPARE(readValue(handles.printer, "StatusCode").result, ERROR_FILE_NOT_FOUND);
    QVERIFY(machine().misuses().isEmpty());
    machine().reset();
}

void MachineFailuresTest::plannedFailureOfClosingStillCloses_data()
{
    addCallerColumns();
    addCloserRows();
}

void MachineFailuresTest::plannedFailureOfClosingStillCloses()
{
    QFETCH(QString, function);
    QFETCH(Caller, call);
    machine().addPrinter({.name = printerName});
    const Handles handles = openAll();
    const int openBefore = machine().openHandles();
    constexpr DWORD error = 4321;
    machine().failCall(function, 1, error);
    const Attempt failed = call(handles);
    QVERIFY(failed.isFailure);
    QCOMPARE(failed.error, error);
    QCOMPARE(machine().openHandles(), openBefore - 1);
    machine().reset();
}

void MachineFailuresTest::nthCallFails()
{
    const HANDLE event = openEvent();
    machine().failCall(QStringLiteral("SetEvent"), 2, 8);
    machine().failCall(QStringLiteral("SetEvent"), 4, 5);
    machine().recordCalls();
    QList<DWORD> errors;
    for (int count = 0; count < 5; ++count) {
        SetLastError(0);
        errors.append(SetEvent(event) ? 0 : GetLastError());
    }
    QCOMPARE(errors, QList<DWORD>({0, 8, 0, 5, 0}));
    QList<DWORD> recorded;
    for (const Call& call : machine().calls(QStringLiteral("SetEvent")))
        recorded.append(call.plannedError);
    QCOMPARE(recorded, errors);
    QVERIFY(ResetEvent(event));
    CloseHandle(event);
}

void MachineFailuresTest::callsFromTheNthFail()
{
    const HANDLE event = openEvent();
    machine().failCallsFrom(QStringLiteral("SetEvent"), 3, 8);
    QList<bool> results;
    for (int count = 0; count < 5; ++count)
        results.append(SetEvent(event));
    QCOMPARE(results, QList<bool>({true, true, false, false, false}));
    CloseHandle(event);
}

void MachineFailuresTest::failuresAreCountedFromNow()
{
    const HANDLE event = openEvent();
    SetEvent(event);
    SetEvent(event);
    machine().failCall(QStringLiteral("SetEvent"), 1, 8);
    QVERIFY(!SetEvent(event));
    QVERIFY(SetEvent(event));
    CloseHandle(event);
}

void MachineFailuresTest::clearedFailuresDoNotHappen()
{
    const HANDLE event = openEvent();
    machine().failCallsFrom(QStringLiteral("SetEvent"), 1, 8);
    machine().failCall(QStringLiteral("ResetEvent"), 1, 8);
    QVERIFY(!SetEvent(event));
    machine().clearFailures();
    QVERIFY(SetEvent(event));
    QVERIFY(ResetEvent(event));
    CloseHandle(event);
}

void MachineFailuresTest::nextCallOfAPrinterFailsOnce()
{
    machine().addPrinter({.name = printerName});
    machine().addPrinter({.name = QStringLiteral("Other")});
    machine().failNextCall(
        {.function = QStringLiteral("OpenPrinterA"), .printer = printerName, .error = 1234});
    const HANDLE other = openHandle(QStringLiteral("Other"));
    QVERIFY(other);
    char name[] = "LABEL PRINTER";
    HANDLE handle = nullptr;
    QVERIFY(!OpenPrinterA(name, &handle, nullptr));
    QCOMPARE(GetLastError(), 1234U);
    QVERIFY(OpenPrinterA(name, &handle, nullptr));
    ClosePrinter(handle);
    ClosePrinter(other);
}

void MachineFailuresTest::nextCallOfAPrinterIsKnownByEachOfItsHandles()
{
    machine().addPrinter({.name = printerName});
    machine().addPrinter({.name = QStringLiteral("Other")});
    const HANDLE other = openHandle(QStringLiteral("Other"));
    const HANDLE notification = openNotification(other);
    const HANDLE printer = openHandle();
    const HANDLE event = openEvent();
    for (const char* function :
         {"GetPrinterDataA", "FindNextPrinterChangeNotification", "SetEvent"}) {
        machine().failNextCall({.function = QString::fromLatin1(function),
                                .printer = QStringLiteral("Other"),
                                .error = 1234});
    }
    QCOMPARE(readValue(printer, "X").result, ERROR_FILE_NOT_FOUND);
    QCOMPARE(readValue(other, "X").result, 1234U);
    QVERIFY(!FindNextPrinterChangeNotification(notification, nullptr, nullptr, nullptr));
    QCOMPARE(GetLastError(), 1234U);
    // What is about no printer belongs to the one that the thread has opened last.
    QVERIFY(SetEvent(event));
    const HANDLE again = openHandle(QStringLiteral("Other"));
    QVERIFY(!SetEvent(event));
    QCOMPARE(GetLastError(), 1234U);
    FindClosePrinterChangeNotification(notification);
    for (const HANDLE handle : {other, printer, again})
        ClosePrinter(handle);
    CloseHandle(event);
}

void MachineFailuresTest::nextReadOfAValueFailsOnce()
{
    addDefaultPrinter();
    const HANDLE printer = openHandle();
    machine().failNextCall({.function = QStringLiteral("GetPrinterDataA"),
                            .printer = printerName,
                            .value = "statuscode",
                            .error = 1722});
    QCOMPARE(readValue(printer, "Mileage").result, ERROR_FILE_NOT_FOUND);
    QCOMPARE(readValue(printer, "StatusCode").result, 1722U);
    QCOMPARE(readValue(printer, "StatusCode").result, 0U);
    ClosePrinter(printer);
}

void MachineFailuresTest::nextFailureCanBeAfterCallsThatSucceed()
{
    const HANDLE event = openEvent();
    const QString function = QStringLiteral("SetEvent");
    machine().failNextCall({.function = function, .error = 1, .after = 2});
    machine().failNextCall({.function = function, .error = 2, .after = 1});
    QList<DWORD> errorsOfCalls;
    for (int call = 0; call < 6; ++call)
        errorsOfCalls.append(SetEvent(event) ? 0 : GetLastError());
    QCOMPARE(errorsOfCalls, QList<DWORD>({0, 0, 1, 0, 2, 0}));
    CloseHandle(event);
}

void MachineFailuresTest::nextCallOfAThreadFails()
{
    using Origin = virtualwindows::CallFailure::Caller;
    const HANDLE event = openEvent();
    const QString function = QStringLiteral("SetEvent");
    machine().failNextCall({.function = function, .error = 11, .caller = Origin::OtherThreads});
    QVERIFY(SetEvent(event));
    DWORD error = 0;
    std::thread([&] { error = SetEvent(event) ? 0 : GetLastError(); }).join();
    QCOMPARE(error, 11U);

    machine().failNextCall({.function = function, .error = 12, .caller = Origin::ThisThread});
    std::thread([&] { error = SetEvent(event) ? 0 : GetLastError(); }).join();
    QCOMPARE(error, 0U);
    QVERIFY(!SetEvent(event));
    QCOMPARE(GetLastError(), 12U);
    CloseHandle(event);
}

void MachineFailuresTest::nextFailuresAreUsedUpOneByOne()
{
    const HANDLE event = openEvent();
    const QString function = QStringLiteral("SetEvent");
    machine().failNextCall({.function = function, .error = 1});
    machine().failNextCall({.function = function, .error = 2});
    machine().failNextCall({.function = QStringLiteral("NoSuchFunction"), .error = 3});
    QVERIFY(!SetEvent(event));
    QCOMPARE(GetLastError(), 1U);
    QVERIFY(!SetEvent(event));
    QCOMPARE(GetLastError(), 2U);
    QVERIFY(SetEvent(event));
    CloseHandle(event);
}

void MachineFailuresTest::forgottenFailuresDoNotHappen()
{
    addDefaultPrinter();
    const HANDLE printer = openHandle();
    const QString function = QStringLiteral("GetPrinterDataA");
    machine().failNextCall({.function = function, .printer = printerName, .error = 1});
    machine().failNextCall({.function = function, .printer = printerName, .error = 2});
    machine().failNextCall({.function = QStringLiteral("SetEvent"), .error = 3});
    QCOMPARE(readValue(printer, "StatusCode").result, 1U);
    QCOMPARE(machine().forgetNextFailures(QStringLiteral("Other")), 0);
    QCOMPARE(machine().forgetNextFailures(QStringLiteral("LABEL PRINTER")), 1);
    QCOMPARE(readValue(printer, "StatusCode").result, 0U);
    QCOMPARE(machine().forgetNextFailures(), 1);
    const HANDLE event = openEvent();
    QVERIFY(SetEvent(event));
    CloseHandle(event);
    ClosePrinter(printer);
}

void MachineFailuresTest::nextFailureCanBePlannedWhileTheCallIsHeld()
{
    const HANDLE event = openEvent();
    machine().setCallHook([this](const Call& call) {
        machine().failNextCall({.function = call.function, .error = 1234});
    });
    QVERIFY(!SetEvent(event));
    QCOMPARE(GetLastError(), 1234U);
    machine().setCallHook(nullptr);
    CloseHandle(event);
}

void MachineFailuresTest::successLeavesTheLastErrorAlone_data()
{
    addCallerColumns();
    addCallerRows();
    addCloserRows();
}

void MachineFailuresTest::successLeavesTheLastErrorAlone()
{
    QFETCH(QString, function);
    QFETCH(Caller, call);
    addDefaultPrinter();
    const Handles handles = openAll();
    const bool writesDocument = function.endsWith(QLatin1String("Printer")) &&
                                function != QLatin1String("ClosePrinter") &&
                                function != QLatin1String("DeletePrinter");
    if (writesDocument || function.endsWith(QLatin1String("JobW"))) {
        QVERIFY(startDocument(handles.printer) != 0);
        if (function == QLatin1String("EndPagePrinter"))
            QVERIFY(StartPagePrinter(handles.printer));
    }
    SetLastError(untouched);
    const bool isFailure = call(handles).isFailure;
    const DWORD error = GetLastError();
    machine().reset();
    QVERIFY(!isFailure);
    QCOMPARE(error, untouched);
}

QTEST_GUILESS_MAIN(MachineFailuresTest)
#include "tst_machine_failures.moc"
