// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "machine_calls.h"

#include <algorithm>
#include <array>

namespace {

Attempt attempt(bool succeeded)
{
    return {!succeeded, GetLastError()};
}

/// For the functions whose result is the error.
Attempt answered(DWORD result)
{
    return {result != ERROR_SUCCESS, result};
}

QString fromWide(LPCWSTR text)
{
    return text ? QString::fromUtf16(text) : QString();
}

// What a NamedCaller says about its function.
constexpr bool usesSpooler = true;
constexpr bool noSpooler = false;
constexpr bool opensHandle = true;

WCHAR widePrinterName[] = u"Label Printer";
char narrowPrinterName[] = "Label Printer";
WCHAR wideValueName[] = u"StatusCode";
char narrowValueName[] = "StatusCode";

} // namespace

void addDefaultPrinter()
{
    using virtualwindows::PrinterValue;
    virtualwindows::Machine& machine = virtualwindows::Machine::instance();
    machine.addPrinter({.name = printerName});
    machine.publish(printerName, PrinterValue::number("StatusCode", 1));
    machine.setDefaultPrinter(printerName);
}

HANDLE openHandle(const QString& name, ACCESS_MASK access)
{
    PRINTER_DEFAULTSW defaults{nullptr, nullptr, access};
    QString text = name;
    HANDLE handle = nullptr;
    return OpenPrinterW(reinterpret_cast<LPWSTR>(text.data()), &handle, &defaults) ? handle
                                                                                   : nullptr;
}

HANDLE openNotification(HANDLE printer, DWORD filter)
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

DWORD takeChanges(HANDLE notification)
{
    DWORD changes = 0;
    return FindNextPrinterChangeNotification(notification, &changes, nullptr, nullptr) ? changes
                                                                                       : 0xFFFFFFFF;
}

DWORD startDocument(HANDLE printer)
{
    DOC_INFO_1W info{};
    return StartDocPrinterW(printer, 1, reinterpret_cast<LPBYTE>(&info));
}

QString defaultPrinter()
{
    WCHAR name[300];
    DWORD count = 300;
    return GetDefaultPrinterW(name, &count) ? fromWide(name) : QString();
}

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

QList<PrinterRecord> enumeratePrinters(DWORD flags)
{
    DWORD needed = 0;
    DWORD returned = 0;
    EnumPrintersW(flags, nullptr, 2, nullptr, 0, &needed, &returned);
    std::vector<BYTE> block(needed);
    EnumPrintersW(flags, nullptr, 2, block.data(), needed, &needed, &returned);
    QList<PrinterRecord> printers;
    const auto* records = reinterpret_cast<const PRINTER_INFO_2W*>(block.data());
    for (DWORD index = 0; index < returned; ++index) {
        const PRINTER_INFO_2W& record = records[index];
        printers.append({fromWide(record.pPrinterName), fromWide(record.pDriverName),
                         fromWide(record.pPortName), record.Attributes, record.Status,
                         record.cJobs});
    }
    return printers;
}

QStringList enumeratedNames(DWORD flags)
{
    QStringList names;
    const QList<PrinterRecord> printers = enumeratePrinters(flags);
    for (const PrinterRecord& printer : printers)
        names.append(printer.name);
    return names;
}

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

Handles allOf(HANDLE handle)
{
    const auto service = static_cast<SC_HANDLE>(handle);
    return {handle, handle, handle, service, service};
}

bool closeAll(const Handles& handles)
{
    bool areClosed = true;
    for (const NamedCaller& closer : closers())
        areClosed = !closer.call(handles).isFailure && areClosed;
    return CloseServiceHandle(handles.manager) && areClosed;
}

const std::vector<NamedCaller>& callers()
{
    static BYTE bytes[4] = {1, 2, 3, 4};
    static DWORD number = 0;
    static DWORD secondNumber = 0;
    static std::vector<BYTE> block(20000);
    static const std::vector<NamedCaller> all{
        {"CreateEventW", [](const Handles&) { return attempt(openEvent() != nullptr); }, noSpooler,
         opensHandle},
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
         usesSpooler, opensHandle},
        {"OpenPrinterW",
         [](const Handles&) {
             HANDLE opened = nullptr;
             return attempt(OpenPrinterW(widePrinterName, &opened, nullptr));
         },
         usesSpooler, opensHandle},
        {"SetPrinterDataA",
         [](const Handles& handles) {
             return answered(
                 SetPrinterDataA(handles.printer, narrowValueName, REG_BINARY, bytes, 4));
         },
         usesSpooler},
        {"SetPrinterDataW",
         [](const Handles& handles) {
             return answered(SetPrinterDataW(handles.printer, wideValueName, REG_BINARY, bytes, 4));
         },
         usesSpooler},
        {"GetPrinterDataA",
         [](const Handles& handles) {
             return answered(
                 GetPrinterDataA(handles.printer, narrowValueName, nullptr, bytes, 4, &number));
         },
         usesSpooler},
        {"GetPrinterDataW",
         [](const Handles& handles) {
             return answered(
                 GetPrinterDataW(handles.printer, wideValueName, nullptr, bytes, 4, &number));
         },
         usesSpooler},
        {"GetPrinterW",
         [](const Handles& handles) {
             return attempt(GetPrinterW(handles.printer, 2, block.data(), 20000, &number));
         },
         usesSpooler},
        {"SetPrinterW",
         [](const Handles& handles) {
             return attempt(SetPrinterW(handles.printer, 0, nullptr, PRINTER_CONTROL_PAUSE));
         },
         usesSpooler},
        {"EnumPrintersW",
         [](const Handles&) {
             return attempt(EnumPrintersW(PRINTER_ENUM_LOCAL, nullptr, 2, block.data(), 20000,
                                          &number, &secondNumber));
         },
         usesSpooler},
        {"SetDefaultPrinterW",
         [](const Handles&) { return attempt(SetDefaultPrinterW(widePrinterName)); }, usesSpooler},
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
         usesSpooler, opensHandle},
        {"FindFirstPrinterChangeNotification",
         [](const Handles& handles) {
             return attempt(openNotification(handles.printer) != INVALID_HANDLE_VALUE);
         },
         usesSpooler, opensHandle},
        {"FindNextPrinterChangeNotification",
         [](const Handles& handles) {
             return attempt(FindNextPrinterChangeNotification(handles.notification, &number,
                                                              nullptr, nullptr));
         },
         usesSpooler},
        {"StartDocPrinterW",
         [](const Handles& handles) {
             DOC_INFO_1W info{};
             return attempt(StartDocPrinterW(handles.printer, 1, reinterpret_cast<LPBYTE>(&info)) !=
                            0);
         },
         usesSpooler},
        {"StartPagePrinter",
         [](const Handles& handles) { return attempt(StartPagePrinter(handles.printer)); },
         usesSpooler},
        {"WritePrinter",
         [](const Handles& handles) {
             return attempt(WritePrinter(handles.printer, bytes, 4, &number));
         },
         usesSpooler},
        {"EndPagePrinter",
         [](const Handles& handles) { return attempt(EndPagePrinter(handles.printer)); },
         usesSpooler},
        {"EndDocPrinter",
         [](const Handles& handles) { return attempt(EndDocPrinter(handles.printer)); },
         usesSpooler},
        {"EnumJobsW",
         [](const Handles& handles) {
             return attempt(
                 EnumJobsW(handles.printer, 0, 10, 2, block.data(), 20000, &number, &secondNumber));
         },
         usesSpooler},
        {"GetJobW",
         [](const Handles& handles) {
             return attempt(GetJobW(handles.printer, 1, 2, block.data(), 20000, &number));
         },
         usesSpooler},
        {"SetJobW",
         [](const Handles& handles) {
             return attempt(SetJobW(handles.printer, 1, 0, nullptr, JOB_CONTROL_DELETE));
         },
         usesSpooler},
        {"DeletePrinter",
         [](const Handles& handles) { return attempt(DeletePrinter(handles.printer)); },
         usesSpooler},
        {"OpenSCManagerW",
         [](const Handles&) {
             return attempt(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT) != nullptr);
         },
         noSpooler, opensHandle},
        {"OpenServiceW",
         [](const Handles& handles) {
             return attempt(OpenServiceW(handles.manager, u"Spooler", SERVICE_QUERY_STATUS) !=
                            nullptr);
         },
         noSpooler, opensHandle},
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
         usesSpooler},
        {"ClosePrinter",
         [](const Handles& handles) { return attempt(ClosePrinter(handles.printer)); },
         usesSpooler},
        {"CloseServiceHandle",
         [](const Handles& handles) {
             return attempt(CloseServiceHandle(handles.service));
         }},
    };
    return all;
}

bool takesHandle(const NamedCaller& caller)
{
    constexpr std::array without{"AddPrinterW",        "CreateEventW",      "EnumPrintersW",
                                 "GetDefaultPrinterW", "OpenPrinterA",      "OpenPrinterW",
                                 "OpenSCManagerW",     "SetDefaultPrinterW"};
    return std::none_of(without.begin(), without.end(), [&](const char* function) {
        return QLatin1String(function) == QLatin1String(caller.function);
    });
}

Attempt callByName(const QString& function, const Handles& handles)
{
    const auto found =
        std::find_if(callers().begin(), callers().end(), [&](const NamedCaller& caller) {
            return function == QLatin1String(caller.function);
        });
    return found == callers().end() ? Attempt{true, ERROR_SUCCESS} : found->call(handles);
}

void addCallerColumns()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<Caller>("call");
}

void addCallerRows(bool (*isWanted)(const NamedCaller&))
{
    for (const NamedCaller& caller : callers()) {
        if (isWanted(caller))
            QTest::newRow(caller.function) << QString::fromLatin1(caller.function) << caller.call;
    }
}

void addCloserRows()
{
    for (const NamedCaller& closer : closers())
        QTest::newRow(closer.function) << QString::fromLatin1(closer.function) << closer.call;
}

MisuseList kindsOf(const QList<virtualwindows::HandleMisuse>& misuses)
{
    MisuseList kinds;
    for (const virtualwindows::HandleMisuse& misuse : misuses)
        kinds.append({misuse.kind, misuse.function});
    return kinds;
}
