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

bool terminal::alwaysShowsAllColours()
{
    return true;
}

int terminal::columns()
{
    CONSOLE_SCREEN_BUFFER_INFO info{};
    if (!GetConsoleScreenBufferInfo(GetStdHandle(STD_OUTPUT_HANDLE), &info))
        return 0;
    return info.srWindow.Right - info.srWindow.Left + 1;
}
