// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "system_state.h"

#include "test_spooler.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QRegularExpression>
#include <QtCore/QStandardPaths>
#include <QtCore/QThread>

#include <algorithm>
#include <functional>
#include <memory>
#include <type_traits>

#include <windows.h>

#include <tlhelp32.h>
#include <winspool.h>
#include <winsvc.h>

namespace {

struct ClosesService
{
    void operator()(SC_HANDLE service) const { CloseServiceHandle(service); }
};
using ServiceHandle = std::unique_ptr<std::remove_pointer_t<SC_HANDLE>, ClosesService>;

struct ClosesHandle
{
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<void, ClosesHandle>;

constexpr const wchar_t* agentService = L"vxprintagent";

/// Keys whose subkeys tests add to, and which of the subkeys are theirs.
struct WatchedKey
{
    const wchar_t* path;
    const char* own;
};
constexpr WatchedKey watchedKeys[] = {
    {L"SYSTEM\\CurrentControlSet\\Control\\DeviceClasses",
     R"(\A\{[01][cd]5b2d1e-7a3f-4d52-9d55-[0-9]{12}\}\z)"},
    {L"SYSTEM\\CurrentControlSet\\Services\\EventLog\\Application", R"(\Avxprintagent\z)"},
    {L"SYSTEM\\CurrentControlSet\\Control\\Print\\Printers", nullptr},
};

bool matches(const char* pattern, const QString& text)
{
    return QRegularExpression(QString::fromLatin1(pattern)).match(text).hasMatch();
}

QStringList subkeys(const wchar_t* path)
{
    QStringList names;
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, path, 0, KEY_READ, &key) != ERROR_SUCCESS)
        return names;
    for (DWORD index = 0;; ++index) {
        wchar_t name[256] = {};
        DWORD size = 256;
        if (RegEnumKeyExW(key, index, name, &size, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS)
            break;
        names.append(QStringLiteral("HKEY_LOCAL_MACHINE\\%1\\%2")
                         .arg(QString::fromWCharArray(path), QString::fromWCharArray(name)));
    }
    RegCloseKey(key);
    return names;
}

QStringList keys()
{
    QStringList all;
    for (const WatchedKey& watched : watchedKeys)
        all += subkeys(watched.path);
    return all;
}

bool isOwnKey(const QString& key)
{
    const QString name = key.section(QLatin1Char('\\'), -1);
    for (const WatchedKey& watched : watchedKeys) {
        if (!key.startsWith(QStringLiteral("HKEY_LOCAL_MACHINE\\%1\\")
                                .arg(QString::fromWCharArray(watched.path)),
                            Qt::CaseInsensitive))
            continue;
        if (watched.own ? matches(watched.own, name) : test_spooler::isNameOfTestPrinter(name))
            return true;
    }
    return false;
}

QStringList services()
{
    QStringList names;
    const ServiceHandle manager(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_ENUMERATE_SERVICE));
    if (!manager)
        return names;
    DWORD needed = 0;
    DWORD count = 0;
    DWORD resume = 0;
    QByteArray block(256 * 1024, Qt::Uninitialized);
    BOOL isComplete = FALSE;
    do {
        isComplete = EnumServicesStatusExW(manager.get(), SC_ENUM_PROCESS_INFO, SERVICE_WIN32,
                                           SERVICE_STATE_ALL, reinterpret_cast<BYTE*>(block.data()),
                                           static_cast<DWORD>(block.size()), &needed, &count,
                                           &resume, nullptr);
        if (!isComplete && GetLastError() != ERROR_MORE_DATA)
            break;
        const auto* const records =
            reinterpret_cast<const ENUM_SERVICE_STATUS_PROCESSW*>(block.constData());
        for (DWORD index = 0; index < count; ++index)
            names.append(QString::fromWCharArray(records[index].lpServiceName));
    } while (!isComplete);
    return names;
}

/// The folders in which the library and the tests write.
QStringList watchedFolders()
{
    QStringList folders;
    for (const char* variable : {"APPDATA", "LOCALAPPDATA", "ProgramData", "TEMP"}) {
        const QString folder = QDir::fromNativeSeparators(qEnvironmentVariable(variable));
        if (!folder.isEmpty() && !folders.contains(folder, Qt::CaseInsensitive))
            folders.append(folder);
    }
    return folders;
}

/// The folder VxPrinterStatusTestKit has what the kit remembers (Journal in main.cpp), which it
/// removes itself.
bool isOwnFolderName(const QString& name)
{
    return matches(
        R"(\A(vxtest-|vxtestkit-|vxipc|vxprint|VxPrinterStatus(?!TestKit)|Harlow Devices Inc))",
        name);
}

void addEverythingIn(const QString& folder, QStringList& all)
{
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext())
        all.append(entries.next());
}

QString systemFolder()
{
    return QDir::fromNativeSeparators(qEnvironmentVariable("SystemRoot")) +
           QStringLiteral("/System32");
}

QStringList files(const QString& kit)
{
    QStringList all;
    const QStringList folders = watchedFolders();
    for (const QString& folder : folders) {
        const QFileInfoList entries =
            QDir(folder).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        for (const QFileInfo& entry : entries) {
            if (!isOwnFolderName(entry.fileName()))
                continue;
            all.append(entry.filePath());
            if (entry.isDir() && !entry.isSymLink())
                addEverythingIn(entry.filePath(), all);
        }
    }
    addEverythingIn(kit, all);
    // Where a local port without a folder in its name writes to.
    const QStringList printed =
        QDir(systemFolder())
            .entryList({QStringLiteral("USB90?"), QStringLiteral("192.0.2.*")}, QDir::Files);
    for (const QString& file : printed)
        all.append(systemFolder() + QLatin1Char('/') + file);
    return all;
}

/// The processes whose programs are in that folder, other than this one, with their identifiers.
QMap<DWORD, QString> processesIn(const QString& folder)
{
    QMap<DWORD, QString> found;
    const Handle snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof entry;
    for (BOOL has = Process32FirstW(snapshot.get(), &entry); has;
         has = Process32NextW(snapshot.get(), &entry)) {
        const Handle process(
            OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, entry.th32ProcessID));
        wchar_t path[1024] = {};
        DWORD size = 1024;
        if (!process || entry.th32ProcessID == GetCurrentProcessId() ||
            !QueryFullProcessImageNameW(process.get(), 0, path, &size))
            continue;
        const QString program = QDir::fromNativeSeparators(QString::fromWCharArray(path));
        if (program.startsWith(folder + QLatin1Char('/'), Qt::CaseInsensitive))
            found.insert(entry.th32ProcessID, program);
    }
    return found;
}

QString defaultPrinter()
{
    wchar_t name[1024] = {};
    DWORD size = 1024;
    return GetDefaultPrinterW(name, &size) ? QString::fromWCharArray(name) : QString();
}

ServiceHandle openService(const wchar_t* name, DWORD access)
{
    const ServiceHandle manager(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT));
    return ServiceHandle(manager ? OpenServiceW(manager.get(), name, access) : nullptr);
}

QString spoolerState()
{
    const ServiceHandle service = openService(L"Spooler", SERVICE_QUERY_STATUS);
    SERVICE_STATUS status{};
    if (!service || !QueryServiceStatus(service.get(), &status))
        return QStringLiteral("not known (error %1)").arg(GetLastError());
    switch (status.dwCurrentState) {
    case SERVICE_RUNNING:
        return QStringLiteral("running");
    case SERVICE_STOPPED:
        return QStringLiteral("stopped");
    default:
        return QStringLiteral("in state %1").arg(status.dwCurrentState);
    }
}

bool waitForSpooler(const QString& state)
{
    const QDeadlineTimer limit(60000);
    while (spoolerState() != state) {
        if (limit.hasExpired())
            return false;
        QThread::msleep(50);
    }
    return true;
}

bool startTheSpooler()
{
    const ServiceHandle service = openService(L"Spooler", SERVICE_START | SERVICE_QUERY_STATUS);
    if (!service)
        return false;
    if (!StartServiceW(service.get(), 0, nullptr) &&
        GetLastError() != ERROR_SERVICE_ALREADY_RUNNING)
        return false;
    return waitForSpooler(QStringLiteral("running"));
}

bool stopSpooler()
{
    const ServiceHandle service = openService(L"Spooler", SERVICE_STOP | SERVICE_QUERY_STATUS);
    SERVICE_STATUS status{};
    return service && ControlService(service.get(), SERVICE_CONTROL_STOP, &status) &&
           waitForSpooler(QStringLiteral("stopped"));
}

bool removeAgentService(const QString& name)
{
    const ServiceHandle service =
        openService(name.toStdWString().c_str(), SERVICE_STOP | DELETE | SERVICE_QUERY_STATUS);
    SERVICE_STATUS status{};
    if (!service)
        return false;
    ControlService(service.get(), SERVICE_CONTROL_STOP, &status);
    return DeleteService(service.get());
}

bool endProcess(const QString& program, const QString& kit)
{
    bool hasEnded = true;
    const QMap<DWORD, QString> processes = processesIn(kit);
    for (auto each = processes.begin(); each != processes.end(); ++each) {
        if (each.value() != program)
            continue;
        const Handle process(OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, each.key()));
        hasEnded = process && TerminateProcess(process.get(), 1) &&
                   WaitForSingleObject(process.get(), 10000) == WAIT_OBJECT_0 && hasEnded;
    }
    return hasEnded;
}

bool removeFile(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink())
        return true; // its folder was removed before
    if (info.isDir() && !info.isSymLink())
        return QDir(path).removeRecursively();
    return QFile::remove(path);
}

bool isOwn(const QString& kind, const QString& item, const QString& kit)
{
    if (kind == QLatin1String("printers"))
        return test_spooler::isNameOfTestPrinter(item);
    if (kind == QLatin1String("drivers"))
        return test_spooler::isNameOfTestDriver(item) || item == test_spooler::driverOfWindows();
    if (kind == QLatin1String("ports"))
        return test_spooler::isNameOfTestPort(item);
    if (kind == QLatin1String("services"))
        return item == QString::fromWCharArray(agentService);
    if (kind == QLatin1String("keys"))
        return isOwnKey(item);
    if (kind == QLatin1String("processes"))
        return true;
    // Files: those that are looked at have names of tests, or are in the folder of the kit, where
    // its reports stay.
    return !(item.startsWith(kit + QLatin1Char('/')) &&
             matches(R"(/VxPrinterStatus-test-report-[^/]*\z)", item));
}

/// Whether the item was removed.
bool remove(const QString& kind, const QString& item, const QString& kit, QString& why)
{
    const auto takeProblem = [&why](const test_spooler::Problem& problem) {
        why = problem.isNone() ? QString() : problem.text();
        return problem.isNone();
    };
    if (kind == QLatin1String("printers"))
        return takeProblem(test_spooler::removePrinter(item));
    if (kind == QLatin1String("drivers"))
        return takeProblem(test_spooler::removeDriver(item));
    if (kind == QLatin1String("ports"))
        return takeProblem(test_spooler::removePort(item));
    bool isRemoved = false;
    if (kind == QLatin1String("services")) {
        isRemoved = removeAgentService(item);
    } else if (kind == QLatin1String("keys")) {
        const std::wstring path = item.section(QLatin1Char('\\'), 1).toStdWString();
        const LSTATUS error = RegDeleteTreeW(HKEY_LOCAL_MACHINE, path.c_str());
        isRemoved = error == ERROR_SUCCESS || error == ERROR_FILE_NOT_FOUND;
        SetLastError(static_cast<DWORD>(error));
    } else if (kind == QLatin1String("processes")) {
        isRemoved = endProcess(item, kit);
    } else {
        isRemoved = removeFile(item);
    }
    if (!isRemoved)
        why = QStringLiteral("error %1").arg(GetLastError());
    return isRemoved;
}

/// Processes first, which hold files; printers before what they use; keys of printers, if any are
/// left, after the printers.
constexpr const char* kinds[] = {"processes", "services", "printers", "drivers",
                                 "ports",     "keys",     "files"};

} // namespace

SystemState SystemState::current(const QString& folder)
{
    SystemState state;
    state.m_folder = folder;
    const auto put = [&state](const char* kind, QStringList items) {
        items.sort();
        state.m_items.insert(QString::fromLatin1(kind), items);
    };
    QStringList printers;
    for (const test_spooler::Printer& printer : test_spooler::printers())
        printers.append(printer.name);
    put("printers", printers);
    put("drivers", test_spooler::drivers());
    put("ports", test_spooler::ports());
    put("services", ::services());
    put("keys", keys());
    put("files", files(folder));
    put("processes", processesIn(folder).values());
    state.m_defaultPrinter = ::defaultPrinter();
    state.m_spooler = spoolerState();
    return state;
}

SystemState SystemState::fromJson(const QJsonObject& object)
{
    SystemState state;
    state.m_folder = object[QLatin1String("folder")].toString();
    state.m_defaultPrinter = object[QLatin1String("defaultPrinter")].toString();
    state.m_spooler = object[QLatin1String("spooler")].toString();
    const QJsonObject items = object[QLatin1String("items")].toObject();
    for (auto kind = items.begin(); kind != items.end(); ++kind) {
        QStringList texts;
        for (const QJsonValue& text : kind.value().toArray())
            texts.append(text.toString());
        state.m_items.insert(kind.key(), texts);
    }
    return state;
}

QJsonObject SystemState::toJson() const
{
    QJsonObject items;
    for (auto kind = m_items.begin(); kind != m_items.end(); ++kind)
        items.insert(kind.key(), QJsonArray::fromStringList(kind.value()));
    return {{QStringLiteral("folder"), m_folder},
            {QStringLiteral("defaultPrinter"), m_defaultPrinter},
            {QStringLiteral("spooler"), m_spooler},
            {QStringLiteral("items"), items}};
}

QStringList SystemState::printerNames() const
{
    QStringList names = printers();
    // Also when the spooler does not run.
    const QString key = QStringLiteral("\\Control\\Print\\Printers\\");
    for (const QString& each : m_items.value(QStringLiteral("keys"))) {
        const qsizetype place = each.indexOf(key, 0, Qt::CaseInsensitive);
        if (place >= 0)
            names.append(each.sliced(place + key.size()));
    }
    DWORD needed = 0;
    DWORD count = 0;
    QByteArray block;
    constexpr DWORD flags = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
    EnumPrintersW(flags, nullptr, 4, nullptr, 0, &needed, &count);
    block.resize(static_cast<qsizetype>(needed));
    if (EnumPrintersW(flags, nullptr, 4, reinterpret_cast<BYTE*>(block.data()), needed, &needed,
                      &count)) {
        const auto* const records = reinterpret_cast<const PRINTER_INFO_4W*>(block.constData());
        for (DWORD index = 0; index < count; ++index)
            names.append(QString::fromWCharArray(records[index].pPrinterName));
    }
    names.removeDuplicates();
    return names;
}

QMap<QString, QStringList> SystemState::added(const SystemState& before) const
{
    QMap<QString, QStringList> result;
    for (const char* each : kinds) {
        const QString kind = QString::fromLatin1(each);
        const QStringList old = before.m_items.value(kind);
        for (const QString& item : m_items.value(kind)) {
            if (!old.contains(item) && isOwn(kind, item, m_folder))
                result[kind].append(item);
        }
    }
    return result;
}

QMap<QString, QStringList> SystemState::removed(const SystemState& before) const
{
    QMap<QString, QStringList> result;
    // Processes and services of others come and go.
    for (const char* each : {"printers", "drivers", "ports", "keys", "files"}) {
        const QString kind = QString::fromLatin1(each);
        const QStringList now = m_items.value(kind);
        for (const QString& item : before.m_items.value(kind)) {
            if (!now.contains(item))
                result[kind].append(item);
        }
    }
    return result;
}

QMap<QString, int> SystemState::addedByOthers(const SystemState& before) const
{
    QMap<QString, int> result;
    for (const char* each : kinds) {
        const QString kind = QString::fromLatin1(each);
        const QStringList old = before.m_items.value(kind);
        for (const QString& item : m_items.value(kind)) {
            if (!old.contains(item) && !isOwn(kind, item, m_folder))
                ++result[kind];
        }
    }
    return result;
}

bool SystemState::startSpooler()
{
    return startTheSpooler();
}

QStringList SystemState::restore(const SystemState& before, const QString& folder,
                                 QStringList& problems)
{
    QStringList done;
    // Without the spooler, no printer can be removed.
    if (spoolerState() != QLatin1String("running")) {
        if (startTheSpooler())
            done.append(QStringLiteral("the print spooler was started"));
        else if (before.spooler() == QLatin1String("running"))
            problems.append(QStringLiteral("the print spooler cannot be started: error %1")
                                .arg(GetLastError()));
    }
    if (!before.defaultPrinter().isEmpty() && ::defaultPrinter() != before.defaultPrinter()) {
        std::wstring name = before.defaultPrinter().toStdWString();
        if (SetDefaultPrinterW(name.data()))
            done.append(QStringLiteral("the default printer was set again"));
        else
            problems.append(QStringLiteral("the default printer cannot be set again: error %1")
                                .arg(GetLastError()));
    }
    const QMap<QString, QStringList> added = current(folder).added(before);
    for (const char* each : kinds) {
        const QString kind = QString::fromLatin1(each);
        for (const QString& item : added.value(kind)) {
            QString why;
            if (remove(kind, item, folder, why))
                done.append(QStringLiteral("removed from the %1: %2").arg(kind, item));
            else
                problems.append(
                    QStringLiteral("cannot be removed from the %1: %2 (%3)").arg(kind, item, why));
        }
    }
    if (before.spooler() == QLatin1String("stopped") &&
        spoolerState() != QLatin1String("stopped")) {
        if (stopSpooler())
            done.append(QStringLiteral("the print spooler was stopped, as it was before"));
        else
            problems.append(QStringLiteral("the print spooler cannot be stopped: error %1")
                                .arg(GetLastError()));
    }
    return done;
}
