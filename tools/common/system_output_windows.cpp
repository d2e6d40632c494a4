// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "system_output.h"

#include <cstdlib>

#include <windows.h>

void system_output::prepare() {} // no signal, and no number that is given out again

bool system_output::failedAtClosedPipe()
{
    // The C library has a number of its own for the first of them alone.
    return _doserrno == ERROR_BROKEN_PIPE || _doserrno == ERROR_NO_DATA;
}

bool system_output::isPipeClosed(std::FILE* /*stream*/)
{
    return false;
}
