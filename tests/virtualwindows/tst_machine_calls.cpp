// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// A new machine, and how calls are recorded, counted and held.
#include "machine_calls.h"

#include <atomic>
#include <thread>

using virtualwindows::Call;
using virtualwindows::PrinterValue;

class MachineCallsTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void newMachineIsEmpty();
    void resetForgetsEverything();
    void resetInvalidatesHandles();
    void callsAreRecordedOnlyOnRequest();
    void recordedCallsHaveFunctionArgumentsAndThread();
    void argumentsAreRecorded_data();
    void argumentsAreRecorded();
    void changesOfTheMachineAreNotCalls();
    void hookRunsBeforeTheCall();
    void hookCanHoldAThread();
    void callsAreCounted();
};

void MachineCallsTest::newMachineIsEmpty()
{
    QCOMPARE(machine().printers(), QStringList());
    QCOMPARE(machine().spoolerState(), quint32{SERVICE_RUNNING});
    QCOMPARE(machine().openHandles(), 0);
    QCOMPARE(machine().waitingThreads(), 0);
    QVERIFY(machine().settle().isEmpty());
    QVERIFY(machine().calls().isEmpty());
    QVERIFY(machine().callCounts().isEmpty());
}

void MachineCallsTest::resetForgetsEverything()
{
    machine().addPrinter({.name = printerName});
    machine().setDefaultPrinter(printerName);
    machine().stopSpooler();
    machine().recordCalls();
    machine().driveTime();
    std::atomic<int> hooked = 0;
    machine().setCallHook([&](const Call&) { ++hooked; });
    machine().failCallsFrom(QStringLiteral("SetEvent"), 1, 8);
    SetEvent(nullptr);
    openEvent();

    machine().reset();
    const int hookedBefore = hooked;
    QVERIFY(machine().settle().isEmpty());
    QVERIFY(machine().callCounts().isEmpty());
    QCOMPARE(machine().printers(), QStringList());
    QCOMPARE(machine().spoolerState(), quint32{SERVICE_RUNNING});
    QCOMPARE(defaultPrinter(), QString());

    const HANDLE event = openEvent();
    QVERIFY(SetEvent(event));
    // In driven time this would wait forever.
    QCOMPARE(WaitForSingleObject(INVALID_HANDLE_VALUE, 1), DWORD{WAIT_TIMEOUT});
    QVERIFY(CloseHandle(event));
    QVERIFY(machine().calls().isEmpty());
    QCOMPARE(hooked.load(), hookedBefore);
}

void MachineCallsTest::resetInvalidatesHandles()
{
    allowMisuse(Kind::UsedAfterClose, QStringLiteral("SetEvent"));
    const HANDLE event = openEvent();
    machine().reset();
    QVERIFY(!SetEvent(event));
    QCOMPARE(GetLastError(), ERROR_INVALID_HANDLE);
}

void MachineCallsTest::callsAreRecordedOnlyOnRequest()
{
    CloseHandle(openEvent());
    QVERIFY(machine().calls().isEmpty());
    machine().recordCalls();
    CloseHandle(openEvent());
    QCOMPARE(machine().calls().size(), 2);
    machine().recordCalls(false);
    CloseHandle(openEvent());
    QCOMPARE(machine().calls().size(), 2);
    machine().clearCalls();
    QVERIFY(machine().calls().isEmpty());
}

void MachineCallsTest::recordedCallsHaveFunctionArgumentsAndThread()
{
    machine().recordCalls();
    const HANDLE event = openEvent();
    SetEvent(event);
    Qt::HANDLE otherThread = nullptr;
    std::jthread([&] {
        otherThread = QThread::currentThreadId();
        ResetEvent(event);
    }).join();
    CloseHandle(event);

    const QList<Call> calls = machine().calls();
    QStringList functions;
    for (const Call& call : calls)
        functions.append(call.function);
    QCOMPARE(functions, QStringList({QStringLiteral("CreateEventW"), QStringLiteral("SetEvent"),
                                     QStringLiteral("ResetEvent"), QStringLiteral("CloseHandle")}));
    const QString handle =
        QStringLiteral("0x") + QString::number(reinterpret_cast<quintptr>(event), 16);
    QCOMPARE(calls.at(0).arguments,
             QStringList({QStringLiteral("1"), QStringLiteral("0"), QStringLiteral("null")}));
    QCOMPARE(calls.at(1).arguments, QStringList{handle});
    QCOMPARE(calls.at(1).thread, QThread::currentThreadId());
    QCOMPARE(calls.at(2).thread, otherThread);
    QVERIFY(otherThread != QThread::currentThreadId());
    QCOMPARE(machine().calls(QStringLiteral("ResetEvent")).size(), 1);
    QCOMPARE(machine().calls(QStringLiteral("OpenPrinterW")).size(), 0);
}

void MachineCallsTest::argumentsAreRecorded_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<QStringList>("arguments"); // "H" stands for a handle
    const auto row = [](const char* function, const char* arguments) {
        QTest::newRow(function) << QString::fromLatin1(function)
                                << QString::fromLatin1(arguments).split(QLatin1Char('|'));
    };
    row("OpenPrinterA", "Label Printer|0");
    row("OpenPrinterW", "Label Printer|0");
    row("SetPrinterDataA", "H|StatusCode|3|4");
    row("SetPrinterDataW", "H|StatusCode|3|4");
    row("GetPrinterDataA", "H|StatusCode|4");
    row("GetPrinterDataW", "H|StatusCode|4");
    row("GetPrinterW", "H|2|20000");
    row("SetPrinterW", "H|0|1");
    row("EnumPrintersW", "2|null|2|20000");
    row("SetDefaultPrinterW", "Label Printer");
    row("GetDefaultPrinterW", "300");
    row("AddPrinterW", "null|2");
    row("FindFirstPrinterChangeNotification", "H|2004353023|0|0x0");
    row("WaitForSingleObject", "H|0");
    row("WaitForMultipleObjects", "1|H|0|0");
    row("OpenSCManagerW", "null|null|1");
    row("OpenServiceW", "H|Spooler|4");
    row("QueryServiceStatus", "H");
    row("StartDocPrinterW", "H|1");
    row("WritePrinter", "H|4");
    row("EndDocPrinter", "H");
    row("DeletePrinter", "H");
}

void MachineCallsTest::argumentsAreRecorded()
{
    QFETCH(QString, function);
    QFETCH(QStringList, arguments);
    machine().addPrinter({.name = printerName});
    const Handles handles = openAll();
    machine().recordCalls();
    callByName(function, handles);
    const QList<Call> calls = machine().calls();
    machine().reset(); // closes the handles
    QCOMPARE(calls.size(), 1);
    QCOMPARE(calls.first().function, function);
    QStringList recorded = calls.first().arguments;
    const quintptr known[] = {
        reinterpret_cast<quintptr>(handles.event), reinterpret_cast<quintptr>(handles.printer),
        reinterpret_cast<quintptr>(handles.manager), reinterpret_cast<quintptr>(handles.service)};
    for (QString& argument : recorded) {
        for (const quintptr handle : known) {
            if (argument == QStringLiteral("0x") + QString::number(handle, 16))
                argument = QStringLiteral("H");
        }
    }
    QCOMPARE(recorded, arguments);
}

void MachineCallsTest::changesOfTheMachineAreNotCalls()
{
    machine().recordCalls();
    machine().addPrinter({.name = printerName});
    machine().publish(printerName, PrinterValue::number("Mileage", 1));
    machine().setStatus(printerName, PRINTER_STATUS_PAUSED);
    machine().stopSpooler();
    machine().startSpooler();
    machine().removePrinter(printerName);
    QVERIFY(machine().calls().isEmpty());
    QVERIFY(machine().callCounts().isEmpty());
}

void MachineCallsTest::hookRunsBeforeTheCall()
{
    const HANDLE event = openEvent();
    QStringList seen;
    Qt::HANDLE thread = nullptr;
    bool wasSignalled = true;
    machine().setCallHook([&](const Call& call) {
        seen.append(call.function);
        thread = call.thread;
        // The hook holds no lock, so it may call functions itself.
        if (call.function == QLatin1String("SetEvent"))
            wasSignalled = isSignalled(event);
    });
    SetEvent(event);
    QVERIFY(!wasSignalled);
    QCOMPARE(seen,
             QStringList({QStringLiteral("SetEvent"), QStringLiteral("WaitForSingleObject")}));
    QCOMPARE(thread, QThread::currentThreadId());
    machine().setCallHook(nullptr);
    QVERIFY(isSignalled(event));
    QCOMPARE(seen.size(), 2);
    CloseHandle(event);
}

void MachineCallsTest::hookCanHoldAThread()
{
    const HANDLE event = openEvent();
    const HANDLE held = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    const HANDLE go = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    machine().setCallHook([&](const Call& call) {
        if (call.function != QLatin1String("ResetEvent"))
            return;
        SetEvent(held);
        WaitForSingleObject(go, INFINITE);
    });
    SetEvent(event);
    bool stillSignalled = false;
    {
        const std::jthread thread([&] { ResetEvent(event); });
        WaitForSingleObject(held, INFINITE);
        stillSignalled = isSignalled(event);
        SetEvent(go);
    }
    QVERIFY(stillSignalled);
    QVERIFY(!isSignalled(event));
    for (const HANDLE handle : {event, held, go})
        CloseHandle(handle);
}

void MachineCallsTest::callsAreCounted()
{
    machine().failCall(QStringLiteral("ResetEvent"), 2, 8);
    const HANDLE event = openEvent();
    for (int count = 0; count < 3; ++count)
        ResetEvent(event);
    SetEvent(event);
    CloseHandle(event);
    QCOMPARE(machine().callCount(QStringLiteral("ResetEvent")), 3);
    QCOMPARE(machine().callCount(QStringLiteral("OpenPrinterW")), 0);
    const QList<QPair<QString, int>> counts{{QStringLiteral("CloseHandle"), 1},
                                            {QStringLiteral("CreateEventW"), 1},
                                            {QStringLiteral("ResetEvent"), 3},
                                            {QStringLiteral("SetEvent"), 1}};
    QCOMPARE(machine().callCounts(), counts);
}

QTEST_GUILESS_MAIN(MachineCallsTest)
#include "tst_machine_calls.moc"
