// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "import_table.h"

#include <cstring>

namespace {

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

bool replaceImports(const wchar_t* library, const char* dll,
                    std::initializer_list<Replacement> replacements)
{
    const HMODULE module = GetModuleHandleW(library);
    if (!module)
        return false;
    const auto* dos = at<IMAGE_DOS_HEADER>(module, 0);
    const auto* headers = at<IMAGE_NT_HEADERS>(module, static_cast<DWORD>(dos->e_lfanew));
    const IMAGE_DATA_DIRECTORY& directory =
        headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    auto* import = at<IMAGE_IMPORT_DESCRIPTOR>(module, directory.VirtualAddress);
    for (; import->Name; ++import) {
        if (_stricmp(at<const char>(module, import->Name), dll) != 0)
            continue;
        bool all = true;
        for (const Replacement& replacement : replacements)
            all = replace(module, *import, replacement) && all;
        return all;
    }
    return false;
}
