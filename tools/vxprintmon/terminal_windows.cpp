// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "terminal.h"

#include <windows.h>

bool terminal::takesColours()
{
    const HANDLE console = GetStdHandle(STD_OUTPUT_HANDLE);
    DWORD mode = 0;
    return GetConsoleMode(console, &mode) &&
           SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}
