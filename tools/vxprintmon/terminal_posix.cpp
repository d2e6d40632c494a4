// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

bool terminal::takesColours()
{
    return isatty(STDOUT_FILENO) != 0;
}

bool terminal::alwaysShowsAllColours()
{
    return false;
}

int terminal::columns()
{
    winsize size{};
    return ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}
