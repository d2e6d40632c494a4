// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Starting and stopping the spooler service.
#include "machine_calls.h"

#include <thread>

using virtualwindows::PrinterValue;

class MachineServiceTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void machineCanChangeWhileTheServiceIsStopped();
    void callsFailWhileTheServiceIsStopped_data();
    void callsFailWhileTheServiceIsStopped();
    void onlyARunningServiceAnswersCalls_data();
    void onlyARunningServiceAnswersCalls();
    void handlesStayInvalidAfterARestart();
    void notificationsEndWithTheService();
    void closingDeadHandlesIsNotAMisuse();
    void printersSurviveARestart();
};

void MachineServiceTest::machineCanChangeWhileTheServiceIsStopped()
{
    machine().stopSpooler();
    machine().addPrinter({.name = printerName});
    machine().publish(printerName, PrinterValue::number("A", 7));
    QCOMPARE(machine().printers(), QStringList{printerName});
    machine().startSpooler();
    const HANDLE printer = openHandle();
    QCOMPARE(readValue(printer, "A").data, QByteArray("\x07\0\0\0", 4));
    ClosePrinter(printer);
}

void MachineServiceTest::callsFailWhileTheServiceIsStopped_data()
{
    addCallerColumns();
    addCallerRows([](const NamedCaller& caller) { return caller.usesSpooler; });
}

void MachineServiceTest::callsFailWhileTheServiceIsStopped()
{
    QFETCH(QString, function);
    QFETCH(Caller, call);
    addDefaultPrinter();
    const Handles handles = openAll();
    machine().stopSpooler();
    const int openBefore = machine().openHandles();
    SetLastError(untouched);
    const Attempt failed = call(handles);
    QVERIFY2(failed.isFailure, qPrintable(function));
    QCOMPARE(failed.error, RPC_S_SERVER_UNAVAILABLE);
    QCOMPARE(machine().openHandles(), openBefore);
    QVERIFY(machine().misuses().isEmpty());
    machine().reset();
}

void MachineServiceTest::onlyARunningServiceAnswersCalls_data()
{
    QTest::addColumn<quint32>("state");
    QTest::newRow("stopped") << quint32{SERVICE_STOPPED};
    QTest::newRow("start pending") << quint32{SERVICE_START_PENDING};
    QTest::newRow("stop pending") << quint32{SERVICE_STOP_PENDING};
    QTest::newRow("running") << quint32{SERVICE_RUNNING};
    QTest::newRow("continue pending") << quint32{SERVICE_CONTINUE_PENDING};
    QTest::newRow("pause pending") << quint32{SERVICE_PAUSE_PENDING};
    QTest::newRow("paused") << quint32{SERVICE_PAUSED};
}

void MachineServiceTest::onlyARunningServiceAnswersCalls()
{
    QFETCH(quint32, state);
    const bool runs = state == SERVICE_RUNNING;
    machine().addPrinter({.name = printerName});
    const Handles handles = openAll();
    machine().setSpoolerState(state);
    QCOMPARE(machine().spoolerState(), state);
    SERVICE_STATUS status{};
    QVERIFY(QueryServiceStatus(handles.service, &status));
    QCOMPARE(status.dwCurrentState, state);
    QCOMPARE(readValue(handles.printer, "A").result,
             runs ? ERROR_FILE_NOT_FOUND : RPC_S_SERVER_UNAVAILABLE);
    const HANDLE opened = openHandle();
    QCOMPARE(opened != nullptr, runs);
    machine().reset();
}

void MachineServiceTest::handlesStayInvalidAfterARestart()
{
    machine().addPrinter({.name = printerName});
    const HANDLE printer = openHandle();
    const HANDLE notification = openNotification(printer);
    const HANDLE event = openEvent();
    machine().stopSpooler();
    machine().startSpooler();
    QCOMPARE(readValue(printer, "A").result, ERROR_INVALID_HANDLE);
    QCOMPARE(openNotification(printer), INVALID_HANDLE_VALUE);
    QCOMPARE(GetLastError(), ERROR_INVALID_HANDLE);
    QVERIFY(!FindNextPrinterChangeNotification(notification, nullptr, nullptr, nullptr));
    QCOMPARE(GetLastError(), ERROR_INVALID_HANDLE);
    // Handles of the kernel do not belong to the spooler.
    QVERIFY(SetEvent(event));
    const HANDLE again = openHandle();
    QCOMPARE(readValue(again, "A").result, ERROR_FILE_NOT_FOUND);
    QVERIFY(machine().misuses().isEmpty());
    FindClosePrinterChangeNotification(notification);
    ClosePrinter(printer);
    ClosePrinter(again);
    CloseHandle(event);
}

void MachineServiceTest::notificationsEndWithTheService()
{
    machine().addPrinter({.name = printerName});
    const HANDLE printer = openHandle();
    const HANDLE notification = openNotification(printer);
    const HANDLE signalledBefore = openNotification(printer);
    const HANDLE stop = openEvent();
    machine().notify(printerName, PRINTER_CHANGE_SET_PRINTER);
    QVERIFY(isSignalled(signalledBefore));
    takeChanges(notification);

    DWORD result = WAIT_FAILED;
    bool stillWaits = false;
    {
        const std::jthread watcher([&] {
            const HANDLE handles[] = {stop, notification};
            result = WaitForMultipleObjects(2, handles, FALSE, INFINITE);
        });
        machine().waitForWaitingThreads(1);
        machine().stopSpooler();
        machine().publish(printerName, PrinterValue::number("A", 1));
        machine().startSpooler();
        machine().publish(printerName, PrinterValue::number("A", 2));
        stillWaits = machine().waitingThreads() == 1;
        SetEvent(stop);
    }
    QVERIFY(stillWaits);
    QCOMPARE(result, DWORD{WAIT_OBJECT_0});
    QVERIFY(!isSignalled(notification));
    QVERIFY(!isSignalled(signalledBefore));
    FindClosePrinterChangeNotification(notification);
    FindClosePrinterChangeNotification(signalledBefore);
    ClosePrinter(printer);
    CloseHandle(stop);
}

void MachineServiceTest::closingDeadHandlesIsNotAMisuse()
{
    machine().addPrinter({.name = printerName});
    const HANDLE printer = openHandle();
    const HANDLE notification = openNotification(printer);
    const HANDLE other = openHandle();
    machine().stopSpooler();
    QVERIFY(!FindClosePrinterChangeNotification(notification));
    QCOMPARE(GetLastError(), RPC_S_SERVER_UNAVAILABLE);
    QVERIFY(!ClosePrinter(printer));
    QCOMPARE(GetLastError(), RPC_S_SERVER_UNAVAILABLE);
    machine().startSpooler();
    QVERIFY(!ClosePrinter(other));
    QCOMPARE(GetLastError(), ERROR_INVALID_HANDLE);
    // The calls fail but close the handles: nothing leaks, and nothing was misused.
    QVERIFY(machine().settle().isEmpty());
}

void MachineServiceTest::printersSurviveARestart()
{
    machine().addPrinter({.name = printerName});
    machine().publish(printerName, PrinterValue::number("A", 1));
    machine().setDefaultPrinter(printerName);
    machine().stopSpooler();
    QCOMPARE(machine().printers(), QStringList{printerName});
    machine().startSpooler();
    QCOMPARE(defaultPrinter(), printerName);
    const HANDLE printer = openHandle();
    QCOMPARE(readValue(printer, "A").result, ERROR_SUCCESS);
    ClosePrinter(printer);
}

QTEST_GUILESS_MAIN(MachineServiceTest)
#include "tst_machine_service.moc"
