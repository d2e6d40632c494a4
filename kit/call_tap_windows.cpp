// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A library in the format PE calls imported functions through the addresses in its import table.
// https://learn.microsoft.com/windows/win32/debug/pe-format#the-idata-section
#include "call_tap.h"

#include <algorithm>
#include <atomic>
#include <cstring>

namespace VxKit::call_tap {

namespace {

template <typename Table>
Table* at(HMODULE module, DWORD offset)
{
    return reinterpret_cast<Table*>(reinterpret_cast<BYTE*>(module) + offset);
}

HMODULE moduleOf(const void* address, DWORD flags)
{
    HMODULE module = nullptr;
    if (!GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | flags,
                            static_cast<LPCWSTR>(address), &module))
        return nullptr;
    return module;
}

void setEntry(ULONG_PTR* entry, void* value)
{
    const auto number = reinterpret_cast<ULONG_PTR>(value);
    if (std::atomic_ref(*entry).load() == number)
        return;
    DWORD before = 0;
    if (!VirtualProtect(entry, sizeof(*entry), PAGE_READWRITE, &before))
        return;
    std::atomic_ref(*entry).store(number);
    VirtualProtect(entry, sizeof(*entry), before, &before);
}

} // namespace

int redirectImports(const void* inLibrary, std::span<const Redirection> redirections)
{
    const HMODULE module = moduleOf(inLibrary, GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT);
    if (!module)
        return 0;
    const auto* const start = at<IMAGE_DOS_HEADER>(module, 0);
    const auto* const headers = at<IMAGE_NT_HEADERS>(module, static_cast<DWORD>(start->e_lfanew));
    const IMAGE_DATA_DIRECTORY& directory =
        headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    if (directory.VirtualAddress == 0)
        return 0;

    int redirected = 0;
    for (const auto* library = at<IMAGE_IMPORT_DESCRIPTOR>(module, directory.VirtualAddress);
         library->Name != 0; ++library) {
        // Without a table of the names, the entries say only addresses.
        if (library->OriginalFirstThunk == 0)
            continue;
        const auto* name = at<IMAGE_THUNK_DATA>(module, library->OriginalFirstThunk);
        auto* entry = at<IMAGE_THUNK_DATA>(module, library->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++entry) {
            if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
                continue;
            const auto* const import =
                at<IMAGE_IMPORT_BY_NAME>(module, static_cast<DWORD>(name->u1.AddressOfData));
            const auto found =
                std::ranges::find_if(redirections, [import](const Redirection& redirection) {
                    return std::strcmp(redirection.name,
                                       reinterpret_cast<const char*>(import->Name)) == 0;
                });
            if (found == redirections.end())
                continue;
            setEntry(reinterpret_cast<ULONG_PTR*>(&entry->u1.Function), found->replacement);
            ++redirected;
        }
    }
    return redirected;
}

void pin(const void* inLibrary)
{
    moduleOf(inLibrary, GET_MODULE_HANDLE_EX_FLAG_PIN);
}

} // namespace VxKit::call_tap
