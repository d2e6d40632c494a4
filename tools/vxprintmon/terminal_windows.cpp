// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "terminal.h"

#include <cstdlib>

#include <windows.h>

namespace {

UINT codePageBefore = 0;

void restoreCodePage()
{
    SetConsoleOutputCP(codePageBefore);
}

} // namespace

bool terminal::takesColours()
{
    const HANDLE console = GetStdHandle(STD_OUTPUT_HANDLE);
    DWORD mode = 0;
    return GetConsoleMode(console, &mode) &&
           SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

void terminal::useUtf8()
{
    codePageBefore = GetConsoleOutputCP();
    if (codePageBefore != 0 && SetConsoleOutputCP(CP_UTF8))
        std::atexit(restoreCodePage);
}
