// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "pseudo_handle_checks.h"

#include "import_table.h"

#include <algorithm>
#include <atomic>

namespace {

std::atomic<int> begun = 0;

bool isPseudoHandle(HANDLE handle)
{
    return handle == GetCurrentProcess() || handle == GetCurrentThread();
}

DWORD WINAPI waitForMultipleObjects(DWORD count, const HANDLE* handles, BOOL all,
                                    DWORD milliseconds)
{
    ++begun;
    if (std::any_of(handles, handles + count, isPseudoHandle)) {
        SetLastError(ERROR_INVALID_HANDLE);
        return WAIT_FAILED;
    }
    return WaitForMultipleObjects(count, handles, all, milliseconds);
}

} // namespace

bool refusePseudoHandles(const wchar_t* library)
{
    return replaceImports(
        library, "kernel32.dll",
        {{"WaitForMultipleObjects", reinterpret_cast<ULONG_PTR>(&waitForMultipleObjects)}});
}

int waitsBegun()
{
    return begun;
}
