// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "system_output.h"

#include <cstdlib>

#include <windows.h>

void system_output::prepare() {} // Windows sends no signal and does not reuse the numbers

bool system_output::failedAtClosedPipe()
{
    // The C library has an errno value only for the first of these errors.
    return _doserrno == ERROR_BROKEN_PIPE || _doserrno == ERROR_NO_DATA;
}

bool system_output::isPipeClosed(std::FILE* /*stream*/)
{
    return false;
}
