// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <vector>

#include <windows.h>

namespace VxKit {

/// Calls a function of the spooler that fills a block, with a larger block as often as it asks for
/// one. The call is given the block, its size and where to write the size that is needed. False
/// when it fails for another reason, or asks for more than 256 MiB; the last error then says why.
template <typename Call>
bool fillBlock(std::vector<BYTE>& block, Call call)
{
    constexpr DWORD largestBlock = 256U * 1024 * 1024;
    // What is listed may grow between the calls, but not for ever.
    constexpr int mostAttempts = 8;
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        DWORD needed = 0;
        const auto size = static_cast<DWORD>(block.size());
        if (call(block.data(), size, &needed))
            return true;
        if (GetLastError() != ERROR_INSUFFICIENT_BUFFER || needed <= size || needed > largestBlock)
            return false;
        block.resize(needed + needed / 8);
    }
    return false;
}

} // namespace VxKit
