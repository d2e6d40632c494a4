// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "call_tap.h"

#include "windows_printer_info.h"

#include <array>
#include <atomic>
#include <chrono>

namespace VxKit::call_tap {

namespace {

std::atomic<CallListener*> currentListener = nullptr;

/// Tells the listener, if there is one, and keeps the last error as the call left it.
template <typename Tell>
void tell(bool hasSucceeded, Tell&& call)
{
    CallListener* const listener = currentListener.load(std::memory_order_acquire);
    if (!listener)
        return;
    const DWORD last = GetLastError();
    // A call may fail without saying why.
    const DWORD error = hasSucceeded ? 0 : last ? last : ~DWORD{0};
    call(*listener, error);
    SetLastError(last);
}

BOOL WINAPI openPrinterA(LPSTR name, LPHANDLE printer, LPPRINTER_DEFAULTSA defaults)
{
    const BOOL result = OpenPrinterA(name, printer, defaults);
    tell(result, [&](CallListener& listener, DWORD error) {
        listener.opened(name, result ? *printer : nullptr, defaults ? defaults->DesiredAccess : 0,
                        error);
    });
    return result;
}

DWORD WINAPI getPrinterDataA(HANDLE printer, LPSTR name, LPDWORD type, LPBYTE data, DWORD size,
                             LPDWORD needed)
{
    const DWORD result = GetPrinterDataA(printer, name, type, data, size, needed);
    tell(true, [&](CallListener& listener, DWORD) {
        listener.readValue(name, type ? *type : 0, data, size, needed ? *needed : 0, result);
    });
    return result;
}

BOOL WINAPI getPrinterW(HANDLE printer, DWORD level, LPBYTE record, DWORD size, LPDWORD needed)
{
    const BOOL result = GetPrinterW(printer, level, record, size, needed);
    tell(result, [&](CallListener& listener, DWORD error) {
        listener.readRecord(printer, level, record, error);
    });
    return result;
}

BOOL WINAPI enumPrintersW(DWORD flags, LPWSTR name, DWORD level, LPBYTE records, DWORD size,
                          LPDWORD needed, LPDWORD count)
{
    if (CallListener* const listener = currentListener.load(std::memory_order_acquire))
        listener->willList();
    const BOOL result = EnumPrintersW(flags, name, level, records, size, needed, count);
    tell(result, [&](CallListener& listener, DWORD error) {
        listener.listed(level, records, result ? *count : 0, error);
    });
    return result;
}

BOOL WINAPI getDefaultPrinterW(LPWSTR name, LPDWORD size)
{
    const BOOL result = GetDefaultPrinterW(name, size);
    tell(result, [&](CallListener& listener, DWORD error) { listener.readDefault(name, error); });
    return result;
}

HANDLE WINAPI findFirstPrinterChangeNotification(HANDLE printer, DWORD changes, DWORD options,
                                                 LPVOID notifyOptions)
{
    const HANDLE result =
        FindFirstPrinterChangeNotification(printer, changes, options, notifyOptions);
    tell(result != INVALID_HANDLE_VALUE,
         [](CallListener& listener, DWORD error) { listener.beganWatching(error); });
    return result;
}

BOOL WINAPI findNextPrinterChangeNotification(HANDLE change, LPDWORD changes, LPVOID options,
                                              LPVOID* info)
{
    const BOOL result = FindNextPrinterChangeNotification(change, changes, options, info);
    tell(result, [](CallListener& listener, DWORD error) { listener.rearmed(error); });
    return result;
}

BOOL WINAPI queryServiceStatus(SC_HANDLE service, LPSERVICE_STATUS status)
{
    const BOOL result = QueryServiceStatus(service, status);
    tell(result, [&](CallListener& listener, DWORD error) {
        listener.queriedService(result ? status->dwCurrentState : 0, error);
    });
    return result;
}

SC_HANDLE WINAPI openSCManagerW(LPCWSTR machine, LPCWSTR database, DWORD access)
{
    const SC_HANDLE result = OpenSCManagerW(machine, database, access);
    if (!result)
        tell(false,
             [](CallListener& listener, DWORD error) { listener.failed("OpenSCManagerW", error); });
    return result;
}

SC_HANDLE WINAPI openServiceW(SC_HANDLE manager, LPCWSTR name, DWORD access)
{
    const SC_HANDLE result = OpenServiceW(manager, name, access);
    if (!result)
        tell(false,
             [](CallListener& listener, DWORD error) { listener.failed("OpenServiceW", error); });
    return result;
}

HANDLE WINAPI createEventW(LPSECURITY_ATTRIBUTES attributes, BOOL isManual, BOOL isSet,
                           LPCWSTR name)
{
    const HANDLE result = CreateEventW(attributes, isManual, isSet, name);
    if (!result)
        tell(false,
             [](CallListener& listener, DWORD error) { listener.failed("CreateEventW", error); });
    return result;
}

DWORD WINAPI waitForMultipleObjects(DWORD count, const HANDLE* handles, BOOL all, DWORD limit)
{
    using Clock = std::chrono::steady_clock;
    CallListener* const listener = currentListener.load(std::memory_order_acquire);
    if (!listener)
        return WaitForMultipleObjects(count, handles, all, limit);
    listener->willWait();
    const Clock::time_point begin = Clock::now();
    const DWORD result = WaitForMultipleObjects(count, handles, all, limit);
    const std::chrono::nanoseconds time = Clock::now() - begin;
    tell(true, [&](CallListener& after, DWORD) { after.waited(result, time.count()); });
    return result;
}

template <typename Function>
void* addressOf(Function* function)
{
    return reinterpret_cast<void*>(function);
}

} // namespace

bool install()
{
    const std::array redirections{
        Redirection{"OpenPrinterA", addressOf(openPrinterA)},
        Redirection{"GetPrinterDataA", addressOf(getPrinterDataA)},
        Redirection{"GetPrinterW", addressOf(getPrinterW)},
        Redirection{"EnumPrintersW", addressOf(enumPrintersW)},
        Redirection{"GetDefaultPrinterW", addressOf(getDefaultPrinterW)},
        Redirection{"FindFirstPrinterChangeNotification",
                    addressOf(findFirstPrinterChangeNotification)},
        Redirection{"FindNextPrinterChangeNotification",
                    addressOf(findNextPrinterChangeNotification)},
        Redirection{"QueryServiceStatus", addressOf(queryServiceStatus)},
        Redirection{"OpenSCManagerW", addressOf(openSCManagerW)},
        Redirection{"OpenServiceW", addressOf(openServiceW)},
        Redirection{"CreateEventW", addressOf(createEventW)},
        Redirection{"WaitForMultipleObjects", addressOf(waitForMultipleObjects)},
    };
    static const bool isPinned = [] {
        pin(addressOf(openPrinterA));
        return true;
    }();
    const void* const inLibrary = addressOf(&WindowsPrinterInfo::getDriverGUID);
    return isPinned && redirectImports(inLibrary, redirections) >= int(redirections.size());
}

void setListener(CallListener* listener)
{
    currentListener.store(listener, std::memory_order_release);
}

} // namespace VxKit::call_tap
