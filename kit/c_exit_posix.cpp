// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "c_host_process.h"

#include <cstdlib>
#include <mutex>

namespace VxKit::c_interface {

void callAtExit(void (*function)())
{
    // Registered by this library, so that it is also called when the library is unloaded.
    static std::once_flag isRegistered;
    std::call_once(isRegistered, [function] { std::atexit(function); });
}

} // namespace VxKit::c_interface
