// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Planned failures, and that successful calls leave the last error alone.
#include "machine_calls.h"

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
