/* SPDX-License-Identifier: MIT
   Copyright The VxPrinterStatus authors

   What the examples in the comments of headers in C use without declaring it. They are only
   compiled, so nothing here is defined. */
#pragma once

#include <stddef.h>
#include <stdio.h>

int fail(void);
