// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "descriptor_limit.h"

/// Sockets are limited by memory alone.
int connectionsAllowed(int wanted)
{
    return wanted;
}
