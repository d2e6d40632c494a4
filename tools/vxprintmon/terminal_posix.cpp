// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "terminal.h"

#include <unistd.h>

bool terminal::takesColours()
{
    return isatty(STDOUT_FILENO) != 0;
}
