// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_reading.h"

#include <cstddef>

namespace VxKit {

/// The place of a slot in an array with an entry for each of `allSlots`.
constexpr std::size_t indexOf(Slot slot)
{
    return static_cast<std::size_t>(slot);
}

} // namespace VxKit
