// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "c_host_process.h"

#include <windows.h>

namespace VxKit::c_interface {

void callAtExit(void (* /*function*/)())
{
    // When Windows tells a library that the process ends, it has ended all threads but one,
    // wherever they were. To wait for one of them would take forever, and the system takes
    // everything back. But a thread that still lives must not lose its code, so the library stays
    // loaded.
    HMODULE library = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                       reinterpret_cast<LPCWSTR>(&callAtExit), &library);
}

} // namespace VxKit::c_interface
