// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "system_output.h"

#include <cstdlib>

#include <windows.h>

namespace {

UINT codePageBefore = 0;

void restoreCodePage()
{
    SetConsoleOutputCP(codePageBefore);
}

} // namespace

void system_output::prepare()
{
    // The tools write UTF-8. There is no code page if there is no console.
    codePageBefore = GetConsoleOutputCP();
    if (codePageBefore != 0 && SetConsoleOutputCP(CP_UTF8))
        std::atexit(restoreCodePage);
    // Windows sends no signal for a closed pipe, and does not reuse the numbers of closed streams.
}

bool system_output::failedAtClosedPipe()
{
    // The C library has an errno value only for the first of these errors.
    return _doserrno == ERROR_BROKEN_PIPE || _doserrno == ERROR_NO_DATA;
}

bool system_output::isPipeClosed(std::FILE* /*stream*/)
{
    return false;
}
