// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <cstdio>
#include <cstdlib>

/// Aborts the run if a requirement is not met, so that the fuzzer saves the input.
inline void require(bool isMet, const char* what)
{
    if (isMet)
        return;
    std::fprintf(stderr, "requirement not met: %s\n", what);
    std::abort();
}
