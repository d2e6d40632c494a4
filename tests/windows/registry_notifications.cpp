// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "registry_notifications.h"

#include "import_table.h"

#include <map>
#include <mutex>
#include <string>
#include <vector>

#include <windows.h>
#include <winspool.h>

namespace {

std::mutex mutex;
std::map<HANDLE, HKEY> watchedKeys;

bool arm(HANDLE event, HKEY key)
{
    constexpr DWORD changes = REG_NOTIFY_CHANGE_NAME | REG_NOTIFY_CHANGE_LAST_SET;
    return RegNotifyChangeKeyValue(key, TRUE, changes, event, TRUE) == ERROR_SUCCESS;
}

std::wstring nameOf(HANDLE printer)
{
    DWORD needed = 0;
    GetPrinterW(printer, 1, nullptr, 0, &needed);
    std::vector<BYTE> block(needed);
    if (!GetPrinterW(printer, 1, block.data(), needed, &needed))
        return {};
    return reinterpret_cast<const PRINTER_INFO_1W*>(block.data())->pName;
}

HANDLE WINAPI findFirst(HANDLE printer, DWORD filter, DWORD /*options*/, LPVOID /*notifyOptions*/)
{
    const std::wstring path =
        L"System\\CurrentControlSet\\Control\\Print\\Printers\\" + nameOf(printer);
    HKEY key = nullptr;
    if (!filter ||
        RegOpenKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
        return INVALID_HANDLE_VALUE;
    // Like a printer's notification, it stays signalled until it is armed again.
    HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    if (!event || !arm(event, key)) {
        RegCloseKey(key);
        return INVALID_HANDLE_VALUE;
    }
    const std::lock_guard guard(mutex);
    watchedKeys.emplace(event, key);
    return event;
}

BOOL WINAPI findNext(HANDLE change, LPDWORD changes, LPVOID /*options*/, LPVOID* info)
{
    const std::lock_guard guard(mutex);
    const auto found = watchedKeys.find(change);
    if (found == watchedKeys.end()) {
        SetLastError(ERROR_INVALID_HANDLE);
        return FALSE;
    }
    if (changes)
        *changes = PRINTER_CHANGE_SET_PRINTER;
    if (info)
        *info = nullptr;
    ResetEvent(change);
    return arm(change, found->second);
}

BOOL WINAPI findClose(HANDLE change)
{
    const std::lock_guard guard(mutex);
    const auto found = watchedKeys.find(change);
    if (found == watchedKeys.end()) {
        SetLastError(ERROR_INVALID_HANDLE);
        return FALSE;
    }
    RegCloseKey(found->second);
    CloseHandle(change);
    watchedKeys.erase(found);
    return TRUE;
}

} // namespace

bool supplyChangeNotifications(const wchar_t* library)
{
    return replaceImports(
        library, "winspool.drv",
        {
            {"FindFirstPrinterChangeNotification", reinterpret_cast<ULONG_PTR>(&findFirst)},
            {"FindNextPrinterChangeNotification", reinterpret_cast<ULONG_PTR>(&findNext)},
            {"FindClosePrinterChangeNotification", reinterpret_cast<ULONG_PTR>(&findClose)},
        });
}
