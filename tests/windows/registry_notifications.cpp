// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "registry_notifications.h"

#include <array>
#include <cstring>
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
    // Signalled until it is armed again, as a printer's notification is.
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

struct Replacement
{
    const char* name;
    ULONG_PTR function;
};

template <typename Record>
Record* at(HMODULE module, DWORD offset)
{
    return reinterpret_cast<Record*>(reinterpret_cast<BYTE*>(module) + offset);
}

bool replace(HMODULE module, const IMAGE_IMPORT_DESCRIPTOR& import, const Replacement& replacement)
{
    auto* name = at<IMAGE_THUNK_DATA>(module, import.OriginalFirstThunk);
    auto* address = at<IMAGE_THUNK_DATA>(module, import.FirstThunk);
    for (; name->u1.AddressOfData; ++name, ++address) {
        if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
            continue;
        const auto* byName =
            at<IMAGE_IMPORT_BY_NAME>(module, static_cast<DWORD>(name->u1.AddressOfData));
        if (std::strcmp(reinterpret_cast<const char*>(byName->Name), replacement.name) != 0)
            continue;
        DWORD protection = 0;
        if (!VirtualProtect(&address->u1.Function, sizeof(ULONG_PTR), PAGE_READWRITE, &protection))
            return false;
        address->u1.Function = replacement.function;
        return VirtualProtect(&address->u1.Function, sizeof(ULONG_PTR), protection, &protection);
    }
    return false;
}

} // namespace

bool supplyChangeNotifications(const wchar_t* library)
{
    const HMODULE module = GetModuleHandleW(library);
    if (!module)
        return false;
    const auto* dos = at<IMAGE_DOS_HEADER>(module, 0);
    const auto* headers = at<IMAGE_NT_HEADERS>(module, static_cast<DWORD>(dos->e_lfanew));
    const IMAGE_DATA_DIRECTORY& directory =
        headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    const std::array replacements{
        Replacement{"FindFirstPrinterChangeNotification", reinterpret_cast<ULONG_PTR>(&findFirst)},
        Replacement{"FindNextPrinterChangeNotification", reinterpret_cast<ULONG_PTR>(&findNext)},
        Replacement{"FindClosePrinterChangeNotification", reinterpret_cast<ULONG_PTR>(&findClose)},
    };
    auto* import = at<IMAGE_IMPORT_DESCRIPTOR>(module, directory.VirtualAddress);
    for (; import->Name; ++import) {
        if (_stricmp(at<const char>(module, import->Name), "winspool.drv") != 0)
            continue;
        bool all = true;
        for (const Replacement& replacement : replacements)
            all = replace(module, *import, replacement) && all;
        return all;
    }
    return false;
}
