// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The interface by which tests drive the virtual machine, and what its calls make of it.

#include "machine_test.h"

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

#include <windows.h>
#include <winspool.h>
#include <winsvc.h>

using virtualwindows::Call;
using virtualwindows::HandleMisuse;
using virtualwindows::PrinterSetup;
using virtualwindows::PrinterValue;
using virtualwindows::PrintJob;
using namespace std::chrono_literals;

namespace {

const QString printerName = QStringLiteral("Label Printer");
constexpr DWORD untouched = 0x2000DEAD;

HANDLE openHandle(const QString& name = printerName, ACCESS_MASK access = PRINTER_ALL_ACCESS)
{
    PRINTER_DEFAULTSW defaults{nullptr, nullptr, access};
    QString text = name;
    HANDLE handle = nullptr;
    return OpenPrinterW(reinterpret_cast<LPWSTR>(text.data()), &handle, &defaults) ? handle
                                                                                   : nullptr;
}

HANDLE openNotification(HANDLE printer, DWORD filter = PRINTER_CHANGE_ALL)
{
    return FindFirstPrinterChangeNotification(printer, filter, 0, nullptr);
}

HANDLE openEvent()
{
    return CreateEventW(nullptr, TRUE, FALSE, nullptr);
}

bool isSignalled(HANDLE handle)
{
    return WaitForSingleObject(handle, 0) == WAIT_OBJECT_0;
}

/// The changes told since the last asking; the notification is re-armed.
DWORD toldChanges(HANDLE notification)
{
    DWORD changes = 0;
    return FindNextPrinterChangeNotification(notification, &changes, nullptr, nullptr) ? changes
                                                                                       : 0xFFFFFFFF;
}

struct ReadValue
{
    DWORD result = 0;
    DWORD type = 99;
    QByteArray data;
};

ReadValue readValue(HANDLE printer, const QByteArray& valueName)
{
    ReadValue read;
    QByteArray name = valueName;
    QByteArray data(1000, '\xCC');
    DWORD needed = 0;
    read.result =
        GetPrinterDataA(printer, name.data(), &read.type, reinterpret_cast<LPBYTE>(data.data()),
                        static_cast<DWORD>(data.size()), &needed);
    read.data = data.first(static_cast<qsizetype>(needed));
    return read;
}

/// A printer's record as texts; a null text for a null pointer.
struct Listed
{
    QString name;
    QString driver;
    QString port;
    DWORD attributes = 0;
    DWORD status = 0;
    DWORD jobs = 0;
};

QString fromWide(LPCWSTR text)
{
    return text ? QString::fromUtf16(text) : QString();
}

QList<Listed> listed(DWORD flags = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS)
{
    DWORD needed = 0;
    DWORD returned = 0;
    EnumPrintersW(flags, nullptr, 2, nullptr, 0, &needed, &returned);
    std::vector<BYTE> block(needed);
    EnumPrintersW(flags, nullptr, 2, block.data(), needed, &needed, &returned);
    QList<Listed> printers;
    const auto* records = reinterpret_cast<const PRINTER_INFO_2W*>(block.data());
    for (DWORD index = 0; index < returned; ++index) {
        const PRINTER_INFO_2W& record = records[index];
        printers.append({fromWide(record.pPrinterName), fromWide(record.pDriverName),
                         fromWide(record.pPortName), record.Attributes, record.Status,
                         record.cJobs});
    }
    return printers;
}

QStringList listedNames(DWORD flags = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS)
{
    QStringList names;
    const QList<Listed> printers = listed(flags);
    for (const Listed& printer : printers)
        names.append(printer.name);
    return names;
}

QString defaultPrinter()
{
    WCHAR name[300];
    DWORD count = 300;
    return GetDefaultPrinterW(name, &count) ? fromWide(name) : QString();
}

/// A call of one of the functions with handles of the right kind: what it answered.
struct Attempt
{
    bool isFailure = false;
    DWORD error = 0;
};

/// The handles that a call may be given.
struct Handles
{
    HANDLE event = nullptr;
    HANDLE printer = nullptr;
    HANDLE notification = nullptr;
    SC_HANDLE manager = nullptr;
    SC_HANDLE service = nullptr;
};

using Caller = std::function<Attempt(const Handles&)>;

Attempt attempt(bool succeeded)
{
    return {!succeeded, GetLastError()};
}

/// For the functions whose result is the error.
Attempt answered(DWORD result)
{
    return {result != ERROR_SUCCESS, result};
}

struct NamedCaller
{
    const char* function;
    Caller call;
    bool asksSpooler = false;
    bool opens = false;
};

WCHAR widePrinterName[] = u"Label Printer";
char narrowPrinterName[] = "Label Printer";
WCHAR wideValueName[] = u"StatusCode";
char narrowValueName[] = "StatusCode";

const std::vector<NamedCaller>& callers()
{
    static BYTE bytes[4] = {1, 2, 3, 4};
    static DWORD number = 0;
    static DWORD secondNumber = 0;
    static std::vector<BYTE> block(20000);
    static const std::vector<NamedCaller> all{
        {"CreateEventW", [](const Handles&) { return attempt(openEvent() != nullptr); }, false,
         true},
        {"SetEvent",
         [](const Handles& handles) {
             return attempt(SetEvent(handles.event));
         }},
        {"ResetEvent",
         [](const Handles& handles) {
             return attempt(ResetEvent(handles.event));
         }},
        {"WaitForSingleObject",
         [](const Handles& handles) {
             return attempt(WaitForSingleObject(handles.event, 0) != WAIT_FAILED);
         }},
        {"WaitForMultipleObjects",
         [](const Handles& handles) {
             return attempt(WaitForMultipleObjects(1, &handles.event, FALSE, 0) != WAIT_FAILED);
         }},
        {"OpenPrinterA",
         [](const Handles&) {
             HANDLE opened = nullptr;
             return attempt(OpenPrinterA(narrowPrinterName, &opened, nullptr));
         },
         true, true},
        {"OpenPrinterW",
         [](const Handles&) {
             HANDLE opened = nullptr;
             return attempt(OpenPrinterW(widePrinterName, &opened, nullptr));
         },
         true, true},
        {"SetPrinterDataA",
         [](const Handles& handles) {
             return answered(
                 SetPrinterDataA(handles.printer, narrowValueName, REG_BINARY, bytes, 4));
         },
         true},
        {"SetPrinterDataW",
         [](const Handles& handles) {
             return answered(SetPrinterDataW(handles.printer, wideValueName, REG_BINARY, bytes, 4));
         },
         true},
        {"GetPrinterDataA",
         [](const Handles& handles) {
             return answered(
                 GetPrinterDataA(handles.printer, narrowValueName, nullptr, bytes, 4, &number));
         },
         true},
        {"GetPrinterDataW",
         [](const Handles& handles) {
             return answered(
                 GetPrinterDataW(handles.printer, wideValueName, nullptr, bytes, 4, &number));
         },
         true},
        {"GetPrinterW",
         [](const Handles& handles) {
             return attempt(GetPrinterW(handles.printer, 2, block.data(), 20000, &number));
         },
         true},
        {"SetPrinterW",
         [](const Handles& handles) {
             return attempt(SetPrinterW(handles.printer, 0, nullptr, PRINTER_CONTROL_PAUSE));
         },
         true},
        {"EnumPrintersW",
         [](const Handles&) {
             return attempt(EnumPrintersW(PRINTER_ENUM_LOCAL, nullptr, 2, block.data(), 20000,
                                          &number, &secondNumber));
         },
         true},
        {"SetDefaultPrinterW",
         [](const Handles&) { return attempt(SetDefaultPrinterW(widePrinterName)); }, true},
        {"GetDefaultPrinterW",
         [](const Handles&) {
             number = 300;
             return attempt(GetDefaultPrinterW(reinterpret_cast<LPWSTR>(block.data()), &number));
         }},
        {"AddPrinterW",
         [](const Handles&) {
             WCHAR name[] = u"New Printer";
             WCHAR port[] = u"USB002";
             PRINTER_INFO_2W info{};
             info.pPrinterName = name;
             info.pDriverName = name;
             info.pPortName = port;
             return attempt(AddPrinterW(nullptr, 2, reinterpret_cast<LPBYTE>(&info)) != nullptr);
         },
         true, true},
        {"FindFirstPrinterChangeNotification",
         [](const Handles& handles) {
             return attempt(openNotification(handles.printer) != INVALID_HANDLE_VALUE);
         },
         true, true},
        {"FindNextPrinterChangeNotification",
         [](const Handles& handles) {
             return attempt(FindNextPrinterChangeNotification(handles.notification, &number,
                                                              nullptr, nullptr));
         },
         true},
        {"StartDocPrinterW",
         [](const Handles& handles) {
             DOC_INFO_1W info{};
             return attempt(StartDocPrinterW(handles.printer, 1, reinterpret_cast<LPBYTE>(&info)) !=
                            0);
         },
         true},
        {"StartPagePrinter",
         [](const Handles& handles) { return attempt(StartPagePrinter(handles.printer)); }, true},
        {"WritePrinter",
         [](const Handles& handles) {
             return attempt(WritePrinter(handles.printer, bytes, 4, &number));
         },
         true},
        {"EndPagePrinter",
         [](const Handles& handles) { return attempt(EndPagePrinter(handles.printer)); }, true},
        {"EndDocPrinter",
         [](const Handles& handles) { return attempt(EndDocPrinter(handles.printer)); }, true},
        {"DeletePrinter",
         [](const Handles& handles) { return attempt(DeletePrinter(handles.printer)); }, true},
        {"OpenSCManagerW",
         [](const Handles&) {
             return attempt(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT) != nullptr);
         },
         false, true},
        {"OpenServiceW",
         [](const Handles& handles) {
             return attempt(OpenServiceW(handles.manager, u"Spooler", SERVICE_QUERY_STATUS) !=
                            nullptr);
         },
         false, true},
        {"QueryServiceStatus",
         [](const Handles& handles) {
             SERVICE_STATUS status{};
             return attempt(QueryServiceStatus(handles.service, &status));
         }},
    };
    return all;
}

const std::vector<NamedCaller>& closers()
{
    static const std::vector<NamedCaller> all{
        {"CloseHandle",
         [](const Handles& handles) {
             return attempt(CloseHandle(handles.event));
         }},
        {"FindClosePrinterChangeNotification",
         [](const Handles& handles) {
             return attempt(FindClosePrinterChangeNotification(handles.notification));
         },
         true},
        {"ClosePrinter",
         [](const Handles& handles) { return attempt(ClosePrinter(handles.printer)); }, true},
        {"CloseServiceHandle",
         [](const Handles& handles) {
             return attempt(CloseServiceHandle(handles.service));
         }},
    };
    return all;
}

using Change = std::function<void(virtualwindows::Machine&)>;

} // namespace

Q_DECLARE_METATYPE(Caller)
Q_DECLARE_METATYPE(Change)

class MachineControlTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void freshMachine();
    void resetForgetsEverything();
    void resetKillsHandles();

    void leakedHandle_data();
    void leakedHandle();
    void closedTwice_data();
    void closedTwice();
    void usedAfterClose_data();
    void usedAfterClose();
    void neverHandedOut_data();
    void neverHandedOut();
    void handleOfAnotherKind_data();
    void handleOfAnotherKind();
    void invalidHandleValueIsNoMisuse();
    void misusesAreInOrder();
    void handlesAreNeverHandedOutAgain();

    void nothingIsRecordedUntilAskedFor();
    void callsAreRecorded();
    void argumentsOfCalls_data();
    void argumentsOfCalls();
    void changesOfTheMachineAreNoCalls();
    void hookIsCalledAsCallsBegin();
    void hookHoldsAThread();
    void callsAreCounted();

    void plannedFailure_data();
    void plannedFailure();
    void plannedFailureOfAClosing_data();
    void plannedFailureOfAClosing();
    void nthCallFails();
    void callsFromTheNthFail();
    void failureIsCountedFromNow();
    void clearedFailures();
    void successLeavesTheLastErrorAlone_data();
    void successLeavesTheLastErrorAlone();

    void drivenTimeStandsStill();
    void drivenTimeEndsWaitsAsItPasses();
    void oneAdvanceEndsAllThatAreDue();
    void endlessWaitIsNeverDue();
    void signalledWaitDoesNotTimeOut();
    void waitGoesOnInDrivenTime();
    void waitGoesOnInRealTime();
    void waitingForThreadsHasALimit();
    void wokenThreadIsNotWaiting();

    void printersInTheirOrder();
    void nullTextsAreNullPointers();
    void renamedPrinter();
    void removedPrinter();
    void changedPrinter();
    void namesThatDifferInLetterCase();
    void connectionsAndSharedPrinters_data();
    void connectionsAndSharedPrinters();
    void notAdministrable_data();
    void notAdministrable();
    void noDefaultPrinter();

    void valueTypes_data();
    void valueTypes();
    void publishedTogetherIsToldOnce();
    void unpublished();
    void changesNotify_data();
    void changesNotify();
    void machineChangesWhileTheServiceIsStopped();
    void printedJobs();
    void purgedJob();

    void stoppedServiceFailsCalls_data();
    void stoppedServiceFailsCalls();
    void statesOfTheService_data();
    void statesOfTheService();
    void handlesStayDeadAfterARestart();
    void notificationsDieWithTheService();
    void deadHandlesAreClosedWithoutMisuse();
    void printersOutliveTheService();

private:
    Handles openAll()
    {
        Handles handles;
        handles.event = openEvent();
        handles.printer = openHandle();
        handles.notification = openNotification(handles.printer);
        handles.manager = OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT);
        handles.service = OpenServiceW(handles.manager, u"Spooler", SERVICE_QUERY_STATUS);
        return handles;
    }
    void addCallerRows(bool (*isWanted)(const NamedCaller&));
};

void MachineControlTest::freshMachine()
{
    QCOMPARE(machine().printers(), QStringList());
    QCOMPARE(machine().spoolerState(), quint32{SERVICE_RUNNING});
    QCOMPARE(machine().openHandles(), 0);
    QCOMPARE(machine().waitingThreads(), 0);
    QVERIFY(machine().settle().isEmpty());
    QVERIFY(machine().calls().isEmpty());
    QVERIFY(machine().callCounts().isEmpty());
}

void MachineControlTest::resetForgetsEverything()
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
    // In driven time this would wait for ever.
    QCOMPARE(WaitForSingleObject(INVALID_HANDLE_VALUE, 1), DWORD{WAIT_TIMEOUT});
    QVERIFY(CloseHandle(event));
    QVERIFY(machine().calls().isEmpty());
    QCOMPARE(hooked.load(), hookedBefore);
}

void MachineControlTest::resetKillsHandles()
{
    allowMisuse(Kind::UsedAfterClose, QStringLiteral("SetEvent"));
    const HANDLE event = openEvent();
    machine().reset();
    QVERIFY(!SetEvent(event));
    QCOMPARE(GetLastError(), ERROR_INVALID_HANDLE);
}

void MachineControlTest::leakedHandle_data()
{
    QTest::addColumn<QString>("function");
    for (const NamedCaller& caller : callers()) {
        if (caller.opens)
            QTest::newRow(caller.function) << QString::fromLatin1(caller.function);
    }
}

void MachineControlTest::leakedHandle()
{
    QFETCH(QString, function);
    allowMisuse(Kind::Leaked, function);
    machine().addPrinter({.name = printerName});
    const Handles handles = openAll();
    const int openBefore = machine().openHandles();
    for (const NamedCaller& caller : callers()) {
        if (function == QLatin1String(caller.function))
            QVERIFY(!caller.call(handles).isFailure);
    }
    QCOMPARE(machine().openHandles(), openBefore + 1);
    QVERIFY(CloseHandle(handles.event));
    QVERIFY(FindClosePrinterChangeNotification(handles.notification));
    QVERIFY(ClosePrinter(handles.printer));
    QVERIFY(CloseServiceHandle(handles.service));
    QVERIFY(CloseServiceHandle(handles.manager));

    QVERIFY(machine().misuses().isEmpty());
    const QList<HandleMisuse> leaks = machine().settle();
    QCOMPARE(leaks.size(), 1);
    QCOMPARE(leaks.first().kind, Kind::Leaked);
    QCOMPARE(leaks.first().function, function);
    QVERIFY(leaks.first().text.contains(function));
    QVERIFY(leaks.first().text.contains(QString::number(leaks.first().handle, 16)));
}

void MachineControlTest::closedTwice_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<Caller>("close");
    for (const NamedCaller& closer : closers())
        QTest::newRow(closer.function) << QString::fromLatin1(closer.function) << closer.call;
}

void MachineControlTest::closedTwice()
{
    QFETCH(QString, function);
    QFETCH(Caller, close);
    allowMisuse(Kind::ClosedTwice, function);
    machine().addPrinter({.name = printerName});
    const Handles handles = openAll();
    for (const NamedCaller& closer : closers())
        QVERIFY(!closer.call(handles).isFailure);
    QVERIFY(CloseServiceHandle(handles.manager));

    const Attempt second = close(handles);
    QVERIFY(second.isFailure);
    QCOMPARE(second.error, ERROR_INVALID_HANDLE);
    const QList<HandleMisuse> misuses = machine().misuses();
    QCOMPARE(misuses.size(), 1);
    QCOMPARE(misuses.first().kind, Kind::ClosedTwice);
    QCOMPARE(misuses.first().function, function);
    QVERIFY(misuses.first().text.contains(function));
}

namespace {

/// Functions that are handed a handle, of those that do not close it.
bool takesAHandle(const NamedCaller& caller)
{
    const QLatin1String function(caller.function);
    return !caller.opens || function == QLatin1String("OpenServiceW") ||
           function == QLatin1String("FindFirstPrinterChangeNotification");
}

bool takesNoHandle(const NamedCaller& caller)
{
    const QLatin1String function(caller.function);
    return function == QLatin1String("EnumPrintersW") ||
           function == QLatin1String("GetDefaultPrinterW") ||
           function == QLatin1String("SetDefaultPrinterW");
}

bool isAskedForAHandle(const NamedCaller& caller)
{
    return takesAHandle(caller) && !takesNoHandle(caller);
}

} // namespace

void MachineControlTest::addCallerRows(bool (*isWanted)(const NamedCaller&))
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<Caller>("call");
    for (const NamedCaller& caller : callers()) {
        if (isWanted(caller))
            QTest::newRow(caller.function) << QString::fromLatin1(caller.function) << caller.call;
    }
}

void MachineControlTest::usedAfterClose_data()
{
    addCallerRows(isAskedForAHandle);
}

void MachineControlTest::usedAfterClose()
{
    QFETCH(QString, function);
    QFETCH(Caller, call);
    allowMisuse(Kind::UsedAfterClose, function);
    machine().addPrinter({.name = printerName});
    const Handles handles = openAll();
    for (const NamedCaller& closer : closers())
        QVERIFY(!closer.call(handles).isFailure);
    QVERIFY(CloseServiceHandle(handles.manager));

    const Attempt late = call(handles);
    QVERIFY(late.isFailure);
    QCOMPARE(late.error, ERROR_INVALID_HANDLE);
    const QList<HandleMisuse> misuses = machine().misuses();
    QCOMPARE(misuses.size(), 1);
    QCOMPARE(misuses.first().kind, Kind::UsedAfterClose);
    QCOMPARE(misuses.first().function, function);
}

void MachineControlTest::neverHandedOut_data()
{
    addCallerRows(isAskedForAHandle);
    for (const NamedCaller& closer : closers())
        QTest::newRow(closer.function) << QString::fromLatin1(closer.function) << closer.call;
}

void MachineControlTest::neverHandedOut()
{
    QFETCH(QString, function);
    QFETCH(Caller, call);
    for (int count = 0; count < 4; ++count)
        allowMisuse(Kind::NotAHandle, function);
    const HANDLE event = openEvent();
    const auto value = reinterpret_cast<quintptr>(event);
    // Null, a small number, between two handles, and what would be next.
    const QList<quintptr> numbers{0, 4, value + 1, value + 4};
    for (const quintptr number : numbers) {
        const auto handle = reinterpret_cast<HANDLE>(number);
        const Attempt bad = call({handle, handle, handle, static_cast<SC_HANDLE>(handle),
                                  static_cast<SC_HANDLE>(handle)});
        QVERIFY(bad.isFailure);
        QCOMPARE(bad.error, ERROR_INVALID_HANDLE);
        QCOMPARE(machine().misuses().last().kind, Kind::NotAHandle);
        QCOMPARE(machine().misuses().last().handle, number);
    }
    QCOMPARE(machine().misuses().size(), 4);
    QVERIFY(CloseHandle(event));
}

void MachineControlTest::handleOfAnotherKind_data()
{
    neverHandedOut_data();
}

void MachineControlTest::handleOfAnotherKind()
{
    QFETCH(QString, function);
    QFETCH(Caller, call);
    machine().addPrinter({.name = printerName});
    const Handles handles = openAll();
    // To every function a handle of a kind that it does not take.
    allowMisuse(Kind::NotAHandle, function);
    const auto event = static_cast<SC_HANDLE>(handles.event);
    const Attempt bad = call({handles.printer, handles.event, handles.event, event, event});
    QVERIFY(bad.isFailure);
    QCOMPARE(bad.error, ERROR_INVALID_HANDLE);
    const QList<HandleMisuse> misuses = machine().misuses();
    QCOMPARE(misuses.size(), 1);
    QCOMPARE(misuses.first().kind, Kind::NotAHandle);
    QCOMPARE(misuses.first().function, function);
    // The handle itself is not harmed.
    for (const NamedCaller& closer : closers())
        QVERIFY(!closer.call(handles).isFailure);
    QVERIFY(CloseServiceHandle(handles.manager));
}

void MachineControlTest::invalidHandleValueIsNoMisuse()
{
    const Handles invalid{INVALID_HANDLE_VALUE, INVALID_HANDLE_VALUE, INVALID_HANDLE_VALUE,
                          static_cast<SC_HANDLE>(INVALID_HANDLE_VALUE),
                          static_cast<SC_HANDLE>(INVALID_HANDLE_VALUE)};
    for (const NamedCaller& closer : closers())
        closer.call(invalid);
    for (const NamedCaller& caller : callers()) {
        if (isAskedForAHandle(caller))
            caller.call(invalid);
    }
    QVERIFY(machine().misuses().isEmpty());
}

void MachineControlTest::misusesAreInOrder()
{
    allowMisuse(Kind::ClosedTwice, QStringLiteral("CloseHandle"));
    allowMisuse(Kind::UsedAfterClose, QStringLiteral("SetEvent"));
    allowMisuse(Kind::NotAHandle, QStringLiteral("ResetEvent"));
    allowMisuse(Kind::Leaked, QStringLiteral("CreateEventW"));
    const HANDLE leaked = openEvent();
    const HANDLE event = openEvent();
    CloseHandle(event);
    ResetEvent(nullptr);
    SetEvent(event);
    CloseHandle(event);
    const QList<HandleMisuse> settled = machine().settle();
    QCOMPARE(settled.size(), 4);
    QCOMPARE(settled.at(0).function, QStringLiteral("ResetEvent"));
    QCOMPARE(settled.at(1).function, QStringLiteral("SetEvent"));
    QCOMPARE(settled.at(2).function, QStringLiteral("CloseHandle"));
    QCOMPARE(settled.at(3).handle, reinterpret_cast<quintptr>(leaked));
    QCOMPARE(machine().misuses().size(), 3);
}

void MachineControlTest::handlesAreNeverHandedOutAgain()
{
    QSet<HANDLE> seen;
    for (int count = 0; count < 100; ++count) {
        const HANDLE event = openEvent();
        QVERIFY(!seen.contains(event));
        QCOMPARE(reinterpret_cast<quintptr>(event) % 4, quintptr{0});
        seen.insert(event);
        CloseHandle(event);
    }
}

void MachineControlTest::nothingIsRecordedUntilAskedFor()
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

void MachineControlTest::callsAreRecorded()
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

void MachineControlTest::argumentsOfCalls_data()
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

void MachineControlTest::argumentsOfCalls()
{
    QFETCH(QString, function);
    QFETCH(QStringList, arguments);
    machine().addPrinter({.name = printerName});
    const Handles handles = openAll();
    machine().recordCalls();
    for (const NamedCaller& caller : callers()) {
        if (function == QLatin1String(caller.function))
            caller.call(handles);
    }
    const QList<Call> calls = machine().calls();
    machine().reset(); // the handles are not what this is about
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

void MachineControlTest::changesOfTheMachineAreNoCalls()
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

void MachineControlTest::hookIsCalledAsCallsBegin()
{
    const HANDLE event = openEvent();
    QStringList seen;
    Qt::HANDLE thread = nullptr;
    bool wasSignalled = true;
    machine().setCallHook([&](const Call& call) {
        seen.append(call.function);
        thread = call.thread;
        // Without locks: calls of the hook's own are answered.
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

void MachineControlTest::hookHoldsAThread()
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

void MachineControlTest::callsAreCounted()
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

void MachineControlTest::plannedFailure_data()
{
    addCallerRows([](const NamedCaller&) { return true; });
}

void MachineControlTest::plannedFailure()
{
    QFETCH(QString, function);
    QFETCH(Caller, call);
    machine().addPrinter({.name = printerName});
    const Handles handles = openAll();
    const int openBefore = machine().openHandles();
    SetEvent(handles.event);
    toldChanges(handles.notification);
    constexpr DWORD error = 4321;
    machine().failCall(function, 1, error);
    SetLastError(untouched);
    const Attempt failed = call(handles);
    QVERIFY(failed.isFailure);
    QCOMPARE(failed.error, error);
    QCOMPARE(GetLastError(), error);

    // It has done nothing.
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

void MachineControlTest::plannedFailureOfAClosing_data()
{
    closedTwice_data();
}

void MachineControlTest::plannedFailureOfAClosing()
{
    QFETCH(QString, function);
    QFETCH(Caller, close);
    machine().addPrinter({.name = printerName});
    const Handles handles = openAll();
    const int openBefore = machine().openHandles();
    constexpr DWORD error = 4321;
    machine().failCall(function, 1, error);
    const Attempt failed = close(handles);
    QVERIFY(failed.isFailure);
    QCOMPARE(failed.error, error);
    QCOMPARE(machine().openHandles(), openBefore - 1);
    machine().reset();
}

void MachineControlTest::nthCallFails()
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

void MachineControlTest::callsFromTheNthFail()
{
    const HANDLE event = openEvent();
    machine().failCallsFrom(QStringLiteral("SetEvent"), 3, 8);
    QList<bool> results;
    for (int count = 0; count < 5; ++count)
        results.append(SetEvent(event));
    QCOMPARE(results, QList<bool>({true, true, false, false, false}));
    CloseHandle(event);
}

void MachineControlTest::failureIsCountedFromNow()
{
    const HANDLE event = openEvent();
    SetEvent(event);
    SetEvent(event);
    machine().failCall(QStringLiteral("SetEvent"), 1, 8);
    QVERIFY(!SetEvent(event));
    QVERIFY(SetEvent(event));
    CloseHandle(event);
}

void MachineControlTest::clearedFailures()
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

void MachineControlTest::successLeavesTheLastErrorAlone_data()
{
    addCallerRows([](const NamedCaller&) { return true; });
    for (const NamedCaller& closer : closers())
        QTest::newRow(closer.function) << QString::fromLatin1(closer.function) << closer.call;
}

void MachineControlTest::successLeavesTheLastErrorAlone()
{
    QFETCH(QString, function);
    QFETCH(Caller, call);
    machine().addPrinter({.name = printerName});
    machine().publish(printerName, PrinterValue::number("StatusCode", 1));
    machine().setDefaultPrinter(printerName);
    const Handles handles = openAll();
    if (function.endsWith(QLatin1String("Printer")) && function != QLatin1String("ClosePrinter") &&
        function != QLatin1String("DeletePrinter")) {
        DOC_INFO_1W info{};
        QVERIFY(StartDocPrinterW(handles.printer, 1, reinterpret_cast<LPBYTE>(&info)) != 0);
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

namespace {

/// Threads that each wait once, and what became of their waits.
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
    /// Waits until the wait is over; its result.
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

void MachineControlTest::drivenTimeStandsStill()
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

void MachineControlTest::drivenTimeEndsWaitsAsItPasses()
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

void MachineControlTest::oneAdvanceEndsAllThatAreDue()
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

void MachineControlTest::endlessWaitIsNeverDue()
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

void MachineControlTest::signalledWaitDoesNotTimeOut()
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

void MachineControlTest::waitGoesOnInDrivenTime()
{
    Waiters waiters;
    waiters.start(INVALID_HANDLE_VALUE, 1000000);
    QVERIFY(machine().waitForWaitingThreads(1));
    machine().driveTime();
    // Some of its time has passed already, if only little.
    machine().advance(900000ms);
    QCOMPARE(machine().waitingThreads(), 1);
    machine().advance(100000ms);
    QCOMPARE(waiters.result(0), DWORD{WAIT_TIMEOUT});
}

void MachineControlTest::waitGoesOnInRealTime()
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

void MachineControlTest::waitingForThreadsHasALimit()
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

void MachineControlTest::wokenThreadIsNotWaiting()
{
    machine().addPrinter({.name = printerName});
    const HANDLE printer = openHandle();
    const HANDLE notification = openNotification(printer);
    Waiters waiters;
    waiters.start(notification, INFINITE);
    QVERIFY(machine().waitForWaitingThreads(1));
    machine().publish(printerName, PrinterValue::number("Mileage", 1));
    // Whether it has run yet or not.
    QCOMPARE(machine().waitingThreads(), 0);
    QCOMPARE(waiters.result(0), DWORD{WAIT_OBJECT_0});
    FindClosePrinterChangeNotification(notification);
    ClosePrinter(printer);
}

void MachineControlTest::printersInTheirOrder()
{
    const QStringList names{QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("a")};
    for (const QString& name : names)
        machine().addPrinter({.name = name,
                              .driver = name + QStringLiteral(" driver"),
                              .port = name + QStringLiteral(" port"),
                              .attributes = PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_SHARED,
                              .status = PRINTER_STATUS_PAPER_OUT});
    QCOMPARE(machine().printers(), names);
    QCOMPARE(listedNames(), names);
    const Listed second = listed().at(1);
    QCOMPARE(second.driver, QStringLiteral("c driver"));
    QCOMPARE(second.port, QStringLiteral("c port"));
    QCOMPARE(second.attributes, PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_SHARED);
    QCOMPARE(second.status, PRINTER_STATUS_PAPER_OUT);
}

void MachineControlTest::nullTextsAreNullPointers()
{
    machine().addPrinter({.name = QString(), .driver = QString(), .port = QString()});
    machine().addPrinter(
        {.name = QStringLiteral(""), .driver = QStringLiteral(""), .port = QStringLiteral("")});
    const QList<Listed> printers = listed();
    QCOMPARE(printers.size(), 2);
    QVERIFY(printers.at(0).name.isNull());
    QVERIFY(printers.at(0).driver.isNull());
    QVERIFY(printers.at(0).port.isNull());
    QVERIFY(!printers.at(1).name.isNull());
    QVERIFY(!printers.at(1).driver.isNull());
    QVERIFY(!printers.at(1).port.isNull());
}

void MachineControlTest::renamedPrinter()
{
    const QString newName = QStringLiteral("Other Printer");
    machine().addPrinter({.name = printerName});
    machine().publish(printerName, PrinterValue::number("Mileage", 1));
    machine().setDefaultPrinter(printerName);
    const HANDLE printer = openHandle();
    machine().renamePrinter(printerName, newName);
    QCOMPARE(machine().printers(), QStringList{newName});
    QCOMPARE(defaultPrinter(), newName);
    QCOMPARE(openHandle(), HANDLE(nullptr));
    QCOMPARE(readValue(printer, "Mileage").result, ERROR_SUCCESS);
    ClosePrinter(printer);
}

void MachineControlTest::removedPrinter()
{
    machine().addPrinter({.name = printerName});
    machine().addPrinter({.name = QStringLiteral("b")});
    machine().setDefaultPrinter(printerName);
    const HANDLE printer = openHandle();
    machine().removePrinter(printerName);
    QCOMPARE(machine().printers(), QStringList{QStringLiteral("b")});
    QCOMPARE(defaultPrinter(), QString());
    QCOMPARE(readValue(printer, "Mileage").result, ERROR_PRINTER_DELETED);
    QVERIFY(ClosePrinter(printer));
    QCOMPARE(openHandle(), HANDLE(nullptr));
    QCOMPARE(GetLastError(), ERROR_INVALID_PRINTER_NAME);
}

void MachineControlTest::changedPrinter()
{
    machine().addPrinter({.name = printerName});
    machine().setAttributes(printerName, PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_WORK_OFFLINE);
    machine().setStatus(printerName, PRINTER_STATUS_PAPER_JAM);
    machine().setPort(printerName, QStringLiteral("USB042"));
    machine().setDriver(printerName, QStringLiteral("Other Driver"));
    const Listed printer = listed().first();
    QCOMPARE(printer.attributes, PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_WORK_OFFLINE);
    QCOMPARE(printer.status, PRINTER_STATUS_PAPER_JAM);
    QCOMPARE(printer.port, QStringLiteral("USB042"));
    QCOMPARE(printer.driver, QStringLiteral("Other Driver"));
}

void MachineControlTest::namesThatDifferInLetterCase()
{
    const QString capitals = printerName.toUpper();
    machine().addPrinter({.name = printerName, .port = QStringLiteral("USB001")});
    machine().addPrinter({.name = capitals, .port = QStringLiteral("USB002")});
    machine().publish(capitals, PrinterValue::number("Mileage", 2));
    const HANDLE first = openHandle();
    const HANDLE second = openHandle(capitals);
    QCOMPARE(readValue(first, "Mileage").result, ERROR_FILE_NOT_FOUND);
    QCOMPARE(readValue(second, "Mileage").result, ERROR_SUCCESS);
    ClosePrinter(first);
    ClosePrinter(second);
}

void MachineControlTest::connectionsAndSharedPrinters_data()
{
    QTest::addColumn<DWORD>("flags");
    QTest::addColumn<QStringList>("names");
    const QString local = QStringLiteral("local");
    const QString shared = QStringLiteral("shared");
    const QString network = QStringLiteral("network");
    const QString connection = QStringLiteral("connection");
    QTest::newRow("none") << DWORD{0} << QStringList{};
    QTest::newRow("local") << PRINTER_ENUM_LOCAL << QStringList{local, shared, network};
    QTest::newRow("connections") << PRINTER_ENUM_CONNECTIONS << QStringList{connection};
    QTest::newRow("both") << (PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS)
                          << QStringList{local, shared, network, connection};
    QTest::newRow("local ones that are shared")
        << (PRINTER_ENUM_LOCAL | PRINTER_ENUM_SHARED) << QStringList{shared};
}

void MachineControlTest::connectionsAndSharedPrinters()
{
    QFETCH(DWORD, flags);
    QFETCH(QStringList, names);
    machine().addPrinter({.name = QStringLiteral("local")});
    machine().addPrinter({.name = QStringLiteral("shared"),
                          .attributes = PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_SHARED});
    machine().addPrinter({.name = QStringLiteral("network"),
                          .attributes = PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_NETWORK});
    machine().addPrinter(
        {.name = QStringLiteral("connection"), .attributes = PRINTER_ATTRIBUTE_NETWORK});
    QCOMPARE(listedNames(flags), names);
}

void MachineControlTest::notAdministrable_data()
{
    QTest::addColumn<DWORD>("access");
    QTest::addColumn<bool>("isRefused");
    QTest::newRow("all rights") << PRINTER_ALL_ACCESS << true;
    QTest::newRow("to administer") << PRINTER_ACCESS_ADMINISTER << true;
    QTest::newRow("to delete") << DELETE << true;
    QTest::newRow("to use") << PRINTER_ACCESS_USE << false;
    QTest::newRow("no right by name") << DWORD{0} << false;
}

void MachineControlTest::notAdministrable()
{
    QFETCH(DWORD, access);
    QFETCH(bool, isRefused);
    machine().addPrinter({.name = printerName, .administrable = false});
    SetLastError(untouched);
    const HANDLE refused = openHandle(printerName, access);
    QCOMPARE(refused == nullptr, isRefused);
    QCOMPARE(GetLastError(), isRefused ? ERROR_ACCESS_DENIED : untouched);
    if (refused)
        QVERIFY(ClosePrinter(refused));
    machine().setAdministrable(printerName, true);
    const HANDLE opened = openHandle(printerName, access);
    QVERIFY(opened);
    QVERIFY(ClosePrinter(opened));
}

void MachineControlTest::noDefaultPrinter()
{
    machine().addPrinter({.name = printerName});
    DWORD count = 300;
    WCHAR name[300];
    QVERIFY(!GetDefaultPrinterW(name, &count));
    QCOMPARE(GetLastError(), ERROR_FILE_NOT_FOUND);
    machine().setDefaultPrinter(printerName);
    QCOMPARE(defaultPrinter(), printerName);
    machine().setDefaultPrinter(QString());
    QCOMPARE(defaultPrinter(), QString());
    // Without a name and without a choice the system chooses.
    QVERIFY(SetDefaultPrinterW(nullptr));
    QCOMPARE(defaultPrinter(), printerName);
}

void MachineControlTest::valueTypes_data()
{
    QTest::addColumn<PrinterValue>("value");
    QTest::addColumn<DWORD>("type");
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("text") << PrinterValue::text("V", "abc") << REG_SZ << QByteArray("abc\0", 4);
    QTest::newRow("empty text") << PrinterValue::text("V", "") << REG_SZ << QByteArray("\0", 1);
    QTest::newRow("number") << PrinterValue::number("V", 0x01020384) << REG_DWORD
                            << QByteArray("\x84\x03\x02\x01", 4);
    QTest::newRow("bytes") << PrinterValue::binary("V", QByteArray("a\0b", 3)) << REG_BINARY
                           << QByteArray("a\0b", 3);
    QTest::newRow("nothing") << PrinterValue::binary("V", QByteArray()) << REG_BINARY
                             << QByteArray();
    QTest::newRow("any type and size")
        << PrinterValue{"V", REG_DWORD, QByteArray(7, 'x')} << REG_DWORD << QByteArray(7, 'x');
    QTest::newRow("text without its end")
        << PrinterValue{"V", REG_SZ, "abc"} << REG_SZ << QByteArray("abc");
}

void MachineControlTest::valueTypes()
{
    QFETCH(PrinterValue, value);
    QFETCH(DWORD, type);
    QFETCH(QByteArray, data);
    machine().addPrinter({.name = printerName});
    machine().publish(printerName, value);
    const HANDLE printer = openHandle(printerName, PRINTER_ACCESS_USE);
    const ReadValue read = readValue(printer, "V");
    ClosePrinter(printer);
    QCOMPARE(read.result, ERROR_SUCCESS);
    QCOMPARE(read.type, type);
    QCOMPARE(read.data, data);
}

void MachineControlTest::publishedTogetherIsToldOnce()
{
    machine().addPrinter({.name = printerName});
    const HANDLE printer = openHandle();
    const HANDLE notification = openNotification(printer);
    qint64 second = -1;
    int wakeUps = 0;
    {
        const HANDLE stop = openEvent();
        {
            const std::jthread watcher([&] {
                const HANDLE handles[] = {stop, notification};
                while (WaitForMultipleObjects(2, handles, FALSE, INFINITE) == WAIT_OBJECT_0 + 1) {
                    toldChanges(notification);
                    ++wakeUps;
                    // Whoever sees the first of them sees the others too.
                    second = readValue(printer, "B").result == ERROR_SUCCESS ? 1 : 0;
                }
            });
            const bool wasWaiting = machine().waitForWaitingThreads(1);
            machine().publish(printerName,
                              {PrinterValue::number("A", 1), PrinterValue::number("B", 2)});
            const bool isWaitingAgain = machine().waitForWaitingThreads(1);
            SetEvent(stop);
            QVERIFY(wasWaiting);
            QVERIFY(isWaitingAgain);
        }
        CloseHandle(stop);
    }
    QCOMPARE(wakeUps, 1);
    QCOMPARE(second, 1);
    FindClosePrinterChangeNotification(notification);
    ClosePrinter(printer);
}

void MachineControlTest::unpublished()
{
    machine().addPrinter({.name = printerName});
    machine().publish(printerName, {PrinterValue::number("A", 1), PrinterValue::number("B", 2)});
    const HANDLE printer = openHandle();
    machine().unpublish(printerName, "a");
    QCOMPARE(readValue(printer, "A").result, ERROR_FILE_NOT_FOUND);
    QCOMPARE(readValue(printer, "B").result, ERROR_SUCCESS);
    ClosePrinter(printer);
}

void MachineControlTest::changesNotify_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<DWORD>("told");
    const auto row = [](const char* name, DWORD told, const Change& change) {
        QTest::newRow(name) << change << told;
    };
    using virtualwindows::Machine;
    const DWORD set = PRINTER_CHANGE_SET_PRINTER;
    row("publish", set, [](Machine& m) { m.publish(printerName, PrinterValue::number("A", 1)); });
    row("unpublish", set, [](Machine& m) { m.unpublish(printerName, "A"); });
    row("attributes", set, [](Machine& m) { m.setAttributes(printerName, 0x440); });
    row("status", set, [](Machine& m) { m.setStatus(printerName, 1); });
    row("port", set, [](Machine& m) { m.setPort(printerName, QStringLiteral("USB002")); });
    row("driver", set, [](Machine& m) { m.setDriver(printerName, QStringLiteral("x")); });
    row("rename", set, [](Machine& m) { m.renamePrinter(printerName, QStringLiteral("x")); });
    row("remove", PRINTER_CHANGE_DELETE_PRINTER, [](Machine& m) { m.removePrinter(printerName); });
    row("notify", PRINTER_CHANGE_FORM,
        [](Machine& m) { m.notify(printerName, PRINTER_CHANGE_FORM); });
    row("notify outside the filter", 0, [](Machine& m) { m.notify(printerName, 0x80000000U); });
    row("another printer", 0, [](Machine& m) { m.addPrinter({.name = QStringLiteral("b")}); });
    row("another default", 0, [](Machine& m) { m.setDefaultPrinter(printerName); });
}

void MachineControlTest::changesNotify()
{
    QFETCH(Change, change);
    QFETCH(DWORD, told);
    machine().addPrinter({.name = printerName});
    const HANDLE printer = openHandle();
    const HANDLE notification = openNotification(printer);
    change(machine());
    QCOMPARE(isSignalled(notification), told != 0);
    QCOMPARE(toldChanges(notification), told);
    QVERIFY(!isSignalled(notification));
    FindClosePrinterChangeNotification(notification);
    ClosePrinter(printer);
}

void MachineControlTest::machineChangesWhileTheServiceIsStopped()
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

void MachineControlTest::printedJobs()
{
    machine().addPrinter({.name = printerName});
    const HANDLE printer = openHandle();
    WCHAR document[] = u"Label";
    WCHAR file[] = u"C:\\label.bin";
    WCHAR datatype[] = u"RAW";
    DOC_INFO_1W info{document, file, datatype};
    const DWORD id = StartDocPrinterW(printer, 1, reinterpret_cast<LPBYTE>(&info));
    QVERIFY(id != 0);
    char bytes[] = "abc";
    DWORD written = 0;
    StartPagePrinter(printer);
    WritePrinter(printer, bytes, 1, &written);
    WritePrinter(printer, bytes + 1, 2, &written);
    EndPagePrinter(printer);
    StartPagePrinter(printer);
    EndPagePrinter(printer);

    QList<PrintJob> jobs = machine().jobs(printerName);
    QCOMPARE(jobs.size(), 1);
    QCOMPARE(jobs.first().id, id);
    QCOMPARE(jobs.first().document, QStringLiteral("Label"));
    QCOMPARE(jobs.first().outputFile, QStringLiteral("C:\\label.bin"));
    QCOMPARE(jobs.first().datatype, QStringLiteral("RAW"));
    QCOMPARE(jobs.first().pages, QList<QByteArray>({"abc", ""}));
    QVERIFY(!jobs.first().finished);
    EndDocPrinter(printer);
    QVERIFY(machine().jobs(printerName).first().finished);

    // Closing the printer ends a document that nobody ended.
    DOC_INFO_1W none{};
    QVERIFY(StartDocPrinterW(printer, 1, reinterpret_cast<LPBYTE>(&none)) != 0);
    QVERIFY(ClosePrinter(printer));
    jobs = machine().jobs(printerName);
    QCOMPARE(jobs.size(), 2);
    QVERIFY(jobs.last().outputFile.isNull());
    QVERIFY(jobs.last().datatype.isNull());
    QVERIFY(jobs.last().finished);
}

void MachineControlTest::purgedJob()
{
    machine().addPrinter({.name = printerName});
    const HANDLE printer = openHandle();
    DOC_INFO_1W info{};
    QVERIFY(StartDocPrinterW(printer, 1, reinterpret_cast<LPBYTE>(&info)) != 0);
    QCOMPARE(listed().first().jobs, DWORD{1});
    QVERIFY(SetPrinterW(printer, 0, nullptr, PRINTER_CONTROL_PURGE));
    QCOMPARE(listed().first().jobs, DWORD{0});
    char byte = 'x';
    DWORD written = 7;
    QVERIFY(!WritePrinter(printer, &byte, 1, &written));
    QCOMPARE(GetLastError(), ERROR_PRINT_CANCELLED);
    QCOMPARE(written, DWORD{0});
    QVERIFY(ClosePrinter(printer));
}

void MachineControlTest::stoppedServiceFailsCalls_data()
{
    addCallerRows([](const NamedCaller& caller) { return caller.asksSpooler; });
}

void MachineControlTest::stoppedServiceFailsCalls()
{
    QFETCH(QString, function);
    QFETCH(Caller, call);
    machine().addPrinter({.name = printerName});
    machine().publish(printerName, PrinterValue::number("StatusCode", 1));
    machine().setDefaultPrinter(printerName);
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

void MachineControlTest::statesOfTheService_data()
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

void MachineControlTest::statesOfTheService()
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

void MachineControlTest::handlesStayDeadAfterARestart()
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
    // Those of the kernel are not the spooler's.
    QVERIFY(SetEvent(event));
    const HANDLE again = openHandle();
    QCOMPARE(readValue(again, "A").result, ERROR_FILE_NOT_FOUND);
    QVERIFY(machine().misuses().isEmpty());
    FindClosePrinterChangeNotification(notification);
    ClosePrinter(printer);
    ClosePrinter(again);
    CloseHandle(event);
}

void MachineControlTest::notificationsDieWithTheService()
{
    machine().addPrinter({.name = printerName});
    const HANDLE printer = openHandle();
    const HANDLE notification = openNotification(printer);
    const HANDLE told = openNotification(printer);
    const HANDLE stop = openEvent();
    machine().notify(printerName, PRINTER_CHANGE_SET_PRINTER);
    QVERIFY(isSignalled(told));
    toldChanges(notification);

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
    QVERIFY(!isSignalled(told));
    FindClosePrinterChangeNotification(notification);
    FindClosePrinterChangeNotification(told);
    ClosePrinter(printer);
    CloseHandle(stop);
}

void MachineControlTest::deadHandlesAreClosedWithoutMisuse()
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
    // They are closed all the same: nothing leaks, and nothing was misused.
    QVERIFY(machine().settle().isEmpty());
}

void MachineControlTest::printersOutliveTheService()
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

QTEST_GUILESS_MAIN(MachineControlTest)
#include "tst_machine.moc"
