// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Printers, their handles, records and values, and the notifications of their changes.
#include "record_block.h"
#include "spooler_handles.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <span>
#include <utility>
#include <vector>

using namespace virtualwindows;

namespace virtualwindows {

namespace {

bool isText(DWORD type)
{
    return type == REG_SZ || type == REG_EXPAND_SZ || type == REG_MULTI_SZ;
}

QByteArray bytesOf(const QString& text)
{
    return {reinterpret_cast<const char*>(text.utf16()),
            text.size() * static_cast<qsizetype>(sizeof(char16_t))};
}

} // namespace

Value Value::fromNarrow(DWORD type, const QByteArray& data)
{
    return {type, data, isText(type) ? bytesOf(QString::fromLocal8Bit(data)) : data};
}

Value Value::fromWide(DWORD type, const QByteArray& data)
{
    if (!isText(type))
        return {type, data, data};
    QString wideText(data.size() / static_cast<qsizetype>(sizeof(char16_t)), Qt::Uninitialized);
    std::memcpy(wideText.data(), data.constData(),
                static_cast<std::size_t>(wideText.size()) * sizeof(char16_t));
    return {type, wideText.toLocal8Bit(), data};
}

std::shared_ptr<PrinterHandleObject> livePrinterHandle(HANDLE handle, const ApiCall& call)
{
    auto object = machine().find<PrinterHandleObject>(handle, Object::Kind::Printer, call);
    if (!object)
        return {};
    if (object->dead) {
        SetLastError(machine().errorOfDeadHandles());
        return {};
    }
    if (object->printer && object->printer->deleted) {
        SetLastError(ERROR_PRINTER_DELETED);
        return {};
    }
    return object;
}

std::shared_ptr<PrinterHandleObject> handleOfPrinter(HANDLE handle, const ApiCall& call,
                                                     ACCESS_MASK access)
{
    auto object = livePrinterHandle(handle, call);
    if (!object)
        return {};
    if (!object->printer) {
        SetLastError(ERROR_INVALID_HANDLE);
        return {};
    }
    if ((object->access & access) != access) {
        SetLastError(ERROR_ACCESS_DENIED);
        return {};
    }
    return object;
}

} // namespace virtualwindows

namespace {

constexpr ACCESS_MASK rightsOfAdministrators = PRINTER_ACCESS_ADMINISTER | DELETE | 0x000C0000U;

/// Names as a caller gives them: none for a null pointer, which is not the same as an empty one.
std::optional<QString> nameFrom(LPCWSTR name)
{
    return name ? std::optional(QString::fromUtf16(name)) : std::nullopt;
}
std::optional<QString> nameFrom(LPCSTR name)
{
    return name ? std::optional(QString::fromLocal8Bit(name)) : std::nullopt;
}
std::optional<QByteArray> valueNameFrom(LPCWSTR name)
{
    return name ? std::optional(QString::fromUtf16(name).toLocal8Bit().toLower()) : std::nullopt;
}
std::optional<QByteArray> valueNameFrom(LPCSTR name)
{
    return name ? std::optional(QByteArray(name).toLower()) : std::nullopt;
}

/// The access that a caller asks for.
template <typename Defaults>
ACCESS_MASK accessOf(const Defaults* defaults)
{
    return defaults ? defaults->DesiredAccess : 0;
}

BOOL openPrinter(const ApiCall& call, const std::optional<QString>& name, LPHANDLE result,
                 ACCESS_MASK access)
{
    if (name)
        lastOpenedPrinter() = *name;
    if (call.failsAsPlanned())
        return FALSE;
    if (!result)
        return failWith(ERROR_INVALID_PARAMETER, FALSE);
    auto object = std::make_shared<PrinterHandleObject>(call.function());
    object->access = access ? access : PRINTER_ACCESS_USE;

    const std::lock_guard guard(machine().lock);
    if (!machine().isSpoolerRunning())
        return failWith(RPC_S_SERVER_UNAVAILABLE, FALSE);
    // Without a name it is the print server; no printer has an empty name.
    if (name) {
        object->printer = machine().printerNamed(*name);
        object->openedAs = *name;
        if (!object->printer)
            return failWith(ERROR_INVALID_PRINTER_NAME, FALSE);
        if (!object->printer->setup.administrable && (access & rightsOfAdministrators))
            return failWith(ERROR_ACCESS_DENIED, FALSE);
    }
    *result = machine().open(object);
    return TRUE;
}

/// Sets the last error and returns it, for calls whose result is the error code.
DWORD fail(DWORD error)
{
    SetLastError(error);
    return error;
}

/// Where GetPrinterDataA and GetPrinterDataW write a value.
struct ValueBuffer
{
    LPDWORD type;
    LPBYTE data;
    DWORD size;
    LPDWORD needed;
};

DWORD getPrinterData(const ApiCall& call, HANDLE handle, const std::optional<QByteArray>& name,
                     QByteArray Value::*form, const ValueBuffer& buffer)
{
    if (call.failsAsPlanned())
        return GetLastError();
    const std::lock_guard guard(machine().lock);
    const auto object = livePrinterHandle(handle, call);
    if (!object)
        return GetLastError();
    if (!object->printer)
        return fail(ERROR_INVALID_HANDLE);
    if (!buffer.needed)
        return fail(RPC_X_NULL_REF_POINTER);
    if (!name || (buffer.size && !buffer.data))
        return fail(ERROR_INVALID_PARAMETER);

    const auto found = object->printer->values.constFind(*name);
    if (found == object->printer->values.constEnd()) {
        *buffer.needed = 0;
        return fail(ERROR_FILE_NOT_FOUND);
    }
    const QByteArray& bytes = (*found).*form;
    if (buffer.type)
        *buffer.type = found->type;
    *buffer.needed = static_cast<DWORD>(bytes.size());
    if (buffer.size < *buffer.needed)
        return fail(ERROR_MORE_DATA);
    if (!bytes.isEmpty())
        std::memcpy(buffer.data, bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return ERROR_SUCCESS;
}

/// A value as SetPrinterDataA and SetPrinterDataW are given it.
struct GivenValue
{
    DWORD type;
    LPBYTE data;
    DWORD size;
};

DWORD setPrinterData(const ApiCall& call, HANDLE handle, const std::optional<QByteArray>& name,
                     Value (*convert)(DWORD, const QByteArray&), const GivenValue& value)
{
    if (call.failsAsPlanned())
        return GetLastError();
    const std::lock_guard guard(machine().lock);
    const auto object = handleOfPrinter(handle, call, PRINTER_ACCESS_ADMINISTER);
    if (!object)
        return GetLastError();
    if (!name || (value.size && !value.data))
        return fail(ERROR_INVALID_PARAMETER);

    const QByteArray bytes(reinterpret_cast<const char*>(value.data),
                           static_cast<qsizetype>(value.size));
    object->printer->values.insert(*name, convert(value.type, bytes));
    machine().notify(object->printer.get(), PRINTER_CHANGE_SET_PRINTER);
    machine().updateJobs(*object->printer);
    return ERROR_SUCCESS;
}

/// A listing of level 1 by name lists print providers. This machine has one, for its own printers.
struct PrintProvider
{
    QString name = QStringLiteral("Windows NT Local Print Providor"); // Windows spells it so
    QString description = QStringLiteral("Windows NT Local Printers");
    QString comment = QStringLiteral("Locally connected Printers");
};

PRINTER_INFO_1W describe(const PrintProvider& provider, RecordBlock& block, PRINTER_INFO_1W*)
{
    PRINTER_INFO_1W record{};
    record.Flags = PRINTER_ENUM_CONTAINER | PRINTER_ENUM_ICON1;
    record.pDescription = block.add(provider.description);
    record.pName = block.add(provider.name);
    record.pComment = block.add(provider.comment);
    return record;
}

PRINTER_INFO_1W describe(const Printer& printer, RecordBlock& block, PRINTER_INFO_1W*)
{
    PRINTER_INFO_1W record{};
    record.Flags = PRINTER_ENUM_ICON8;
    record.pDescription =
        block.add(printer.setup.name, u",", printer.setup.driver, u",", printer.location);
    record.pName = block.addIfAny(printer.setup.name);
    record.pComment = block.add(printer.comment);
    return record;
}

PRINTER_INFO_2W describe(const Printer& printer, RecordBlock& block, PRINTER_INFO_2W*)
{
    PRINTER_INFO_2W record{};
    record.pPrinterName = block.addIfAny(printer.setup.name);
    record.pShareName = block.add(printer.shareName);
    record.pPortName = block.addIfAny(printer.setup.port);
    record.pDriverName = block.addIfAny(printer.setup.driver);
    record.pComment = block.add(printer.comment);
    record.pLocation = block.add(printer.location);
    record.pSepFile = block.add();
    record.pPrintProcessor = block.add(u"winprint");
    record.pDatatype = block.add(u"RAW");
    record.pParameters = block.add();
    record.Attributes = printer.setup.attributes;
    record.Priority = 1;
    record.Status = printer.setup.status;
    record.cJobs = waitingJobs(printer);
    return record;
}

PRINTER_INFO_4W describe(const Printer& printer, RecordBlock& block, PRINTER_INFO_4W*)
{
    PRINTER_INFO_4W record{};
    record.pPrinterName = block.addIfAny(printer.setup.name);
    record.Attributes = printer.setup.attributes;
    return record;
}

PRINTER_INFO_5W describe(const Printer& printer, RecordBlock& block, PRINTER_INFO_5W*)
{
    PRINTER_INFO_5W record{};
    record.pPrinterName = block.addIfAny(printer.setup.name);
    record.pPortName = block.addIfAny(printer.setup.port);
    record.Attributes = printer.setup.attributes;
    return record;
}

PRINTER_INFO_6 describe(const Printer& printer, RecordBlock& /*block*/, PRINTER_INFO_6*)
{
    return {printer.setup.status};
}

PRINTER_INFO_7W describe(const Printer& /*printer*/, RecordBlock& /*block*/, PRINTER_INFO_7W*)
{
    return {nullptr, DSPRINT_UNPUBLISH};
}

template <typename Record, typename Source>
BOOL fill(std::span<const Source* const> sources, LPBYTE start, DWORD size, LPDWORD needed)
{
    return fillRecords(sources, start, size, needed, [](const Source& source, RecordBlock& block) {
        return describe(source, block, static_cast<Record*>(nullptr));
    });
}

struct RecordLevel
{
    DWORD level;
    bool isListed; ///< EnumPrintersW has this level too
    BOOL(*fill)
    (std::span<const Printer* const> printers, LPBYTE start, DWORD size, LPDWORD needed);
};
/// Levels 3, 8 and 9 hold security descriptors and device modes, which this machine does not have.
constexpr std::array recordLevels{
    RecordLevel{1, true, &fill<PRINTER_INFO_1W, Printer>},
    RecordLevel{2, true, &fill<PRINTER_INFO_2W, Printer>},
    RecordLevel{4, true, &fill<PRINTER_INFO_4W, Printer>},
    RecordLevel{5, true, &fill<PRINTER_INFO_5W, Printer>},
    RecordLevel{6, false, &fill<PRINTER_INFO_6, Printer>},
    RecordLevel{7, false, &fill<PRINTER_INFO_7W, Printer>},
};

/// Null for an unknown level.
const RecordLevel* findLevel(DWORD level)
{
    const auto* const found =
        std::find_if(recordLevels.begin(), recordLevels.end(),
                     [&](const RecordLevel& entry) { return entry.level == level; });
    return found == recordLevels.end() ? nullptr : found;
}

/// Printers of other machines that this one is connected to.
bool isConnection(const Printer& printer)
{
    return (printer.setup.attributes & (PRINTER_ATTRIBUTE_NETWORK | PRINTER_ATTRIBUTE_LOCAL)) ==
           PRINTER_ATTRIBUTE_NETWORK;
}

bool isEnumerated(const Printer& printer, DWORD flags)
{
    if ((flags & PRINTER_ENUM_SHARED) && !(printer.setup.attributes & PRINTER_ATTRIBUTE_SHARED))
        return false;
    return (flags & (isConnection(printer) ? PRINTER_ENUM_CONNECTIONS
                                           : PRINTER_ENUM_LOCAL | PRINTER_ENUM_NAME)) != 0;
}

/// Deletes all jobs of the queue.
void purge(Printer& printer)
{
    QList<quint32> queued;
    for (const PrintJob& job : std::as_const(printer.jobs)) {
        if (job.queued)
            queued.append(job.id);
    }
    for (const quint32 id : std::as_const(queued))
        machine().deleteJob(printer, id);
}

BOOL controlPrinter(Printer& printer, DWORD command, LPBYTE argument)
{
    switch (command) {
    case PRINTER_CONTROL_PAUSE:
        printer.setup.status |= PRINTER_STATUS_PAUSED;
        break;
    case PRINTER_CONTROL_RESUME:
        printer.setup.status &= ~PRINTER_STATUS_PAUSED;
        break;
    case PRINTER_CONTROL_PURGE:
        purge(printer);
        return TRUE;
    case PRINTER_CONTROL_SET_STATUS:
        // The status is passed in place of the pointer.
        printer.setup.status = static_cast<DWORD>(reinterpret_cast<ULONG_PTR>(argument));
        break;
    default:
        return failWith(ERROR_INVALID_PRINTER_COMMAND, FALSE);
    }
    machine().notify(&printer, PRINTER_CHANGE_SET_PRINTER);
    machine().updateJobs(printer);
    return TRUE;
}

BOOL changePrinter(Printer& printer, const PRINTER_INFO_2W& info)
{
    const QString name = fromWide(info.pPrinterName);
    if (!name.isEmpty() && name != printer.setup.name) {
        const auto namesake = machine().printerNamed(name);
        if (namesake && namesake.get() != &printer)
            return failWith(ERROR_PRINTER_ALREADY_EXISTS, FALSE);
        if (machine().defaultPrinter == printer.setup.name)
            machine().defaultPrinter = name;
        printer.setup.name = name;
        machine().rebuildNames();
    }
    if (info.pPortName)
        printer.setup.port = fromWide(info.pPortName);
    if (info.pDriverName)
        printer.setup.driver = fromWide(info.pDriverName);
    printer.shareName = fromWide(info.pShareName);
    printer.comment = fromWide(info.pComment);
    printer.location = fromWide(info.pLocation);
    printer.setup.attributes = info.Attributes;
    machine().notify(&printer, PRINTER_CHANGE_SET_PRINTER);
    machine().updateJobs(printer);
    return TRUE;
}

} // namespace

BOOL WINAPI OpenPrinterA(LPSTR pPrinterName, LPHANDLE phPrinter, LPPRINTER_DEFAULTSA pDefault)
{
    const ACCESS_MASK access = accessOf(pDefault);
    const ApiCall call(Function::OpenPrinterA, pPrinterName, access);
    return openPrinter(call, nameFrom(pPrinterName), phPrinter, access);
}

BOOL WINAPI OpenPrinterW(LPWSTR pPrinterName, LPHANDLE phPrinter, LPPRINTER_DEFAULTSW pDefault)
{
    const ACCESS_MASK access = accessOf(pDefault);
    const ApiCall call(Function::OpenPrinterW, pPrinterName, access);
    return openPrinter(call, nameFrom(pPrinterName), phPrinter, access);
}

BOOL WINAPI ClosePrinter(HANDLE hPrinter)
{
    const ApiCall call(Function::ClosePrinter, hPrinter);
    const std::lock_guard guard(machine().lock);
    const auto object = machine().close<PrinterHandleObject>(hPrinter, Object::Kind::Printer, call);
    if (!object)
        return FALSE;
    for (const auto& entry : object->notifications) {
        if (const std::shared_ptr<ChangeNotification> notification = entry.lock())
            notification->dead = true;
    }
    if (call.failsAsPlanned())
        return FALSE;
    if (object->dead)
        return failWith(machine().errorOfDeadHandles(), FALSE);
    endDocument(*object);
    return TRUE;
}

DWORD WINAPI GetPrinterDataA(HANDLE hPrinter, LPSTR pValueName, LPDWORD pType, LPBYTE pData,
                             DWORD nSize, LPDWORD pcbNeeded)
{
    const ApiCall call(Function::GetPrinterDataA, hPrinter, pValueName, nSize);
    return getPrinterData(call, hPrinter, valueNameFrom(pValueName), &Value::narrow,
                          {pType, pData, nSize, pcbNeeded});
}

DWORD WINAPI GetPrinterDataW(HANDLE hPrinter, LPWSTR pValueName, LPDWORD pType, LPBYTE pData,
                             DWORD nSize, LPDWORD pcbNeeded)
{
    const ApiCall call(Function::GetPrinterDataW, hPrinter, pValueName, nSize);
    return getPrinterData(call, hPrinter, valueNameFrom(pValueName), &Value::wide,
                          {pType, pData, nSize, pcbNeeded});
}

DWORD WINAPI SetPrinterDataA(HANDLE hPrinter, LPSTR pValueName, DWORD Type, LPBYTE pData,
                             DWORD cbData)
{
    const ApiCall call(Function::SetPrinterDataA, hPrinter, pValueName, Type, cbData);
    return setPrinterData(call, hPrinter, valueNameFrom(pValueName), &Value::fromNarrow,
                          {Type, pData, cbData});
}

DWORD WINAPI SetPrinterDataW(HANDLE hPrinter, LPWSTR pValueName, DWORD Type, LPBYTE pData,
                             DWORD cbData)
{
    const ApiCall call(Function::SetPrinterDataW, hPrinter, pValueName, Type, cbData);
    return setPrinterData(call, hPrinter, valueNameFrom(pValueName), &Value::fromWide,
                          {Type, pData, cbData});
}

BOOL WINAPI GetPrinterW(HANDLE hPrinter, DWORD Level, LPBYTE pPrinter, DWORD cbBuf,
                        LPDWORD pcbNeeded)
{
    const ApiCall call(Function::GetPrinterW, hPrinter, Level, cbBuf);
    if (call.failsAsPlanned())
        return FALSE;

    const std::lock_guard guard(machine().lock);
    const auto object = handleOfPrinter(hPrinter, call, 0);
    if (!object)
        return FALSE;
    if (!pcbNeeded)
        return failWith(RPC_X_NULL_REF_POINTER, FALSE);
    if (cbBuf && !pPrinter)
        return failWith(ERROR_INVALID_USER_BUFFER, FALSE);
    const RecordLevel* const level = findLevel(Level);
    if (!level)
        return failWith(ERROR_INVALID_LEVEL, FALSE);
    machine().catchUp();
    const Printer* const printer = object->printer.get();
    return level->fill({&printer, 1}, pPrinter, cbBuf, pcbNeeded);
}

BOOL WINAPI SetPrinterW(HANDLE hPrinter, DWORD Level, LPBYTE pPrinter, DWORD Command)
{
    const ApiCall call(Function::SetPrinterW, hPrinter, Level, Command);
    if (call.failsAsPlanned())
        return FALSE;

    const std::lock_guard guard(machine().lock);
    const auto object = handleOfPrinter(hPrinter, call, PRINTER_ACCESS_ADMINISTER);
    if (!object)
        return FALSE;
    BOOL done = FALSE;
    if (Level == 0)
        done = controlPrinter(*object->printer, Command, pPrinter);
    else if (Level != 2)
        SetLastError(ERROR_INVALID_LEVEL);
    else if (!pPrinter)
        SetLastError(ERROR_INVALID_PARAMETER);
    else
        done = changePrinter(*object->printer, *reinterpret_cast<PRINTER_INFO_2W*>(pPrinter));
    return done;
}

BOOL WINAPI EnumPrintersW(DWORD Flags, LPWSTR Name, DWORD Level, LPBYTE pPrinterEnum, DWORD cbBuf,
                          LPDWORD pcbNeeded, LPDWORD pcReturned)
{
    const ApiCall call(Function::EnumPrintersW, Flags, Name, Level, cbBuf);
    if (call.failsAsPlanned())
        return FALSE;

    // The level is checked before the spooler is called and before anything is written.
    const RecordLevel* const level = findLevel(Level);
    if (!level || !level->isListed)
        return failWith(ERROR_INVALID_LEVEL, FALSE);

    const std::lock_guard guard(machine().lock);
    if (!machine().isSpoolerRunning())
        return failWith(RPC_S_SERVER_UNAVAILABLE, FALSE);
    if (!pcbNeeded || !pcReturned)
        return failWith(RPC_X_NULL_REF_POINTER, FALSE);
    *pcbNeeded = 0;
    *pcReturned = 0;
    if (cbBuf && !pPrinterEnum)
        return failWith(ERROR_INVALID_USER_BUFFER, FALSE);
    if (Flags & PRINTER_ENUM_NAME) {
        const PrintProvider provider;
        const QString name = fromWide(Name);
        if (!name.isEmpty() && name.compare(provider.name, Qt::CaseInsensitive) != 0)
            return failWith(ERROR_INVALID_NAME, FALSE); // there is no other provider
        if (name.isEmpty() && Level == 1) {
            const PrintProvider* const only = &provider;
            if (!fill<PRINTER_INFO_1W, PrintProvider>({&only, 1}, pPrinterEnum, cbBuf, pcbNeeded))
                return FALSE;
            *pcReturned = 1;
            return TRUE;
        }
    }

    machine().catchUp();
    std::vector<const Printer*> listed;
    listed.reserve(static_cast<std::size_t>(machine().printers.size()));
    for (const auto& printer : std::as_const(machine().printers)) {
        if (isEnumerated(*printer, Flags))
            listed.push_back(printer.get());
    }
    if (!level->fill(listed, pPrinterEnum, cbBuf, pcbNeeded))
        return FALSE;
    *pcReturned = static_cast<DWORD>(listed.size());
    return TRUE;
}

BOOL WINAPI GetDefaultPrinterW(LPWSTR pszBuffer, LPDWORD pcchBuffer)
{
    const ApiCall call(Function::GetDefaultPrinterW, pcchBuffer);
    if (call.failsAsPlanned())
        return FALSE;

    // The choice is stored in the user's settings, so it does not need the spooler.
    if (!pcchBuffer)
        return failWith(ERROR_INVALID_PARAMETER, FALSE);
    const std::lock_guard guard(machine().lock);
    const QString& name = machine().defaultPrinter;
    if (name.isNull())
        return failWith(ERROR_FILE_NOT_FOUND, FALSE);

    const auto needed = static_cast<DWORD>(name.size() + 1);
    const bool fits = pszBuffer && *pcchBuffer >= needed;
    *pcchBuffer = needed;
    if (!fits)
        return failWith(ERROR_INSUFFICIENT_BUFFER, FALSE);
    std::memcpy(pszBuffer, name.utf16(), needed * sizeof(WCHAR));
    return TRUE;
}

BOOL WINAPI SetDefaultPrinterW(LPCWSTR pszPrinter)
{
    const ApiCall call(Function::SetDefaultPrinterW, pszPrinter);
    if (call.failsAsPlanned())
        return FALSE;

    const std::lock_guard guard(machine().lock);
    if (!machine().isSpoolerRunning())
        return failWith(RPC_S_SERVER_UNAVAILABLE, FALSE);
    if (pszPrinter && *pszPrinter) {
        const auto printer = machine().printerNamed(fromWide(pszPrinter));
        if (!printer)
            return failWith(ERROR_INVALID_PRINTER_NAME, FALSE);
        machine().defaultPrinter = printer->setup.name;
        return TRUE;
    }
    // Without a name, the system chooses a printer, unless one was chosen before.
    if (machine().defaultPrinter.isNull()) {
        if (machine().printers.isEmpty())
            return failWith(ERROR_INVALID_PRINTER_NAME, FALSE);
        machine().defaultPrinter = machine().printers.first()->setup.name;
    }
    return TRUE;
}

HANDLE WINAPI AddPrinterW(LPWSTR pName, DWORD Level, LPBYTE pPrinter)
{
    const ApiCall call(Function::AddPrinterW, pName, Level);
    if (call.failsAsPlanned())
        return nullptr;

    const std::lock_guard guard(machine().lock);
    if (!machine().isSpoolerRunning())
        return failWith<HANDLE>(RPC_S_SERVER_UNAVAILABLE, nullptr);
    if (Level != 2)
        return failWith<HANDLE>(ERROR_INVALID_LEVEL, nullptr);
    if (!pPrinter)
        return failWith<HANDLE>(ERROR_INVALID_PARAMETER, nullptr);
    const auto& info = *reinterpret_cast<PRINTER_INFO_2W*>(pPrinter);
    const QString name = fromWide(info.pPrinterName);
    if (name.isEmpty())
        return failWith<HANDLE>(ERROR_INVALID_PRINTER_NAME, nullptr);
    if (machine().printerNamed(name))
        return failWith<HANDLE>(ERROR_PRINTER_ALREADY_EXISTS, nullptr);
    if (!info.pPortName || !*info.pPortName)
        return failWith<HANDLE>(ERROR_UNKNOWN_PORT, nullptr);
    if (!info.pDriverName || !*info.pDriverName)
        return failWith<HANDLE>(ERROR_UNKNOWN_PRINTER_DRIVER, nullptr);

    auto printer = std::make_shared<Printer>();
    printer->setup.name = name;
    printer->setup.driver = fromWide(info.pDriverName);
    printer->setup.port = fromWide(info.pPortName);
    printer->setup.attributes = info.Attributes | PRINTER_ATTRIBUTE_LOCAL;
    printer->setup.status = info.Status;
    printer->shareName = fromWide(info.pShareName);
    printer->comment = fromWide(info.pComment);
    printer->location = fromWide(info.pLocation);
    machine().add(printer);
    machine().notify(printer.get(), PRINTER_CHANGE_ADD_PRINTER);

    auto object = std::make_shared<PrinterHandleObject>(call.function());
    object->printer = printer;
    object->access = PRINTER_ALL_ACCESS;
    return machine().open(object);
}

BOOL WINAPI DeletePrinter(HANDLE hPrinter)
{
    const ApiCall call(Function::DeletePrinter, hPrinter);
    if (call.failsAsPlanned())
        return FALSE;

    const std::lock_guard guard(machine().lock);
    const auto object = handleOfPrinter(hPrinter, call, PRINTER_ACCESS_ADMINISTER);
    if (!object)
        return FALSE;
    Printer& printer = *object->printer;
    if ((printer.setup.status & PRINTER_STATUS_PAUSED) && waitingJobs(printer) > 0)
        return failWith(ERROR_ACCESS_DENIED, FALSE);
    machine().removePrinter(printer);
    return TRUE;
}

namespace {

/// Of all details, only the status of jobs can be asked for here.
bool areKnown(const PRINTER_NOTIFY_OPTIONS& options)
{
    if (options.Count != 1 || !options.pTypes)
        return false;
    const PRINTER_NOTIFY_OPTIONS_TYPE& type = *options.pTypes;
    return type.Type == JOB_NOTIFY_TYPE && type.Count == 1 && type.pFields &&
           *type.pFields == JOB_NOTIFY_FIELD_STATUS;
}

/// The details that were collected since the last call, in a block of their own; null if there are
/// none.
PRINTER_NOTIFY_INFO* takeDetails(ChangeNotification& notification)
{
    const std::vector<JobStatus> statuses = std::exchange(notification.jobStatuses, {});
    const bool lost = std::exchange(notification.lostJobStatuses, false);
    if (statuses.empty() && !lost)
        return nullptr;
    const std::size_t size =
        sizeof(PRINTER_NOTIFY_INFO) + statuses.size() * sizeof(PRINTER_NOTIFY_INFO_DATA);
    auto* const info = static_cast<PRINTER_NOTIFY_INFO*>(std::calloc(1, size));
    info->Version = 2;
    info->Flags = lost ? PRINTER_NOTIFY_INFO_DISCARDED : 0;
    info->Count = static_cast<DWORD>(statuses.size());
    PRINTER_NOTIFY_INFO_DATA* entry = info->aData;
    for (const JobStatus& status : statuses) {
        entry->Type = JOB_NOTIFY_TYPE;
        entry->Field = JOB_NOTIFY_FIELD_STATUS;
        entry->Id = status.job;
        entry->NotifyData.adwData[0] = status.status;
        ++entry;
    }
    return info;
}

} // namespace

HANDLE WINAPI FindFirstPrinterChangeNotification(HANDLE hPrinter, DWORD fdwFilter, DWORD fdwOptions,
                                                 LPVOID pPrinterNotifyOptions)
{
    const ApiCall call(Function::FindFirstPrinterChangeNotification, hPrinter, fdwFilter,
                       fdwOptions, pPrinterNotifyOptions);
    if (call.failsAsPlanned())
        return INVALID_HANDLE_VALUE;

    const std::lock_guard guard(machine().lock);
    const auto object = livePrinterHandle(hPrinter, call);
    if (!object)
        return INVALID_HANDLE_VALUE;
    const auto* const options = static_cast<const PRINTER_NOTIFY_OPTIONS*>(pPrinterNotifyOptions);
    if (options ? !areKnown(*options) : !fdwFilter)
        return failWith(ERROR_INVALID_PARAMETER, INVALID_HANDLE_VALUE);

    auto notification = std::make_shared<ChangeNotification>();
    notification->printer = object->printer;
    notification->openedAs = object->openedAs;
    notification->filter = fdwFilter;
    notification->reportsJobStatuses = options != nullptr;
    machine().notifications.push_back(notification);
    std::erase_if(object->notifications, [](const auto& entry) { return entry.expired(); });
    object->notifications.push_back(notification);
    return machine().open(notification);
}

BOOL WINAPI FindNextPrinterChangeNotification(HANDLE hChange, LPDWORD pdwChange,
                                              LPVOID pPrinterNotifyOptions,
                                              LPVOID* ppPrinterNotifyInfo)
{
    const ApiCall call(Function::FindNextPrinterChangeNotification, hChange, pPrinterNotifyOptions,
                       HANDLE(ppPrinterNotifyInfo));
    if (call.failsAsPlanned())
        return FALSE;

    const std::lock_guard guard(machine().lock);
    machine().catchUp();
    const auto notification =
        machine().find<ChangeNotification>(hChange, Object::Kind::ChangeNotification, call);
    if (!notification)
        return FALSE;
    if (notification->dead)
        return failWith(machine().errorOfDeadHandles(), FALSE);
    if (pdwChange)
        *pdwChange = notification->changes;
    if (ppPrinterNotifyInfo)
        *ppPrinterNotifyInfo = takeDetails(*notification);
    notification->changes = 0;
    notification->jobStatuses.clear();
    notification->lostJobStatuses = false;
    notification->signalled = false;
    return TRUE;
}

BOOL WINAPI FindClosePrinterChangeNotification(HANDLE hChange)
{
    const ApiCall call(Function::FindClosePrinterChangeNotification, hChange);
    const std::lock_guard guard(machine().lock);
    const auto object =
        machine().close<ChangeNotification>(hChange, Object::Kind::ChangeNotification, call);
    if (!object || call.failsAsPlanned())
        return FALSE;
    if (object->dead)
        return failWith(machine().errorOfDeadHandles(), FALSE);
    return TRUE;
}

BOOL WINAPI FreePrinterNotifyInfo(PRINTER_NOTIFY_INFO* pPrinterNotifyInfo)
{
    const ApiCall call(Function::FreePrinterNotifyInfo, HANDLE(pPrinterNotifyInfo));
    // Like the calls that close a handle, it frees the block even when it is planned to fail.
    std::free(pPrinterNotifyInfo);
    return !call.failsAsPlanned();
}
