// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "descriptor_limit.h"

#include <algorithm>

#include <sys/resource.h>

namespace {

/// For everything else that the process opens.
constexpr rlim_t forOthers = 256;
constexpr int least = 16;

} // namespace

int connectionsAllowed(int wanted)
{
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return std::min(wanted, least);
    const rlim_t needed = static_cast<rlim_t>(wanted) + forOthers;
    if (limit.rlim_cur < needed) {
        const rlim_t before = limit.rlim_cur;
        limit.rlim_cur = std::min(needed, limit.rlim_max);
        if (setrlimit(RLIMIT_NOFILE, &limit) != 0)
            limit.rlim_cur = before;
    }
    if (limit.rlim_cur >= needed)
        return wanted;
    const int left = static_cast<int>(limit.rlim_cur) - static_cast<int>(forOthers);
    return std::min(wanted, std::max(left, least));
}
