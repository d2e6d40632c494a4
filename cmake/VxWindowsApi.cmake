# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# Vx::WindowsApi provides <windows.h> and <winspool.h>: the system's own on Windows, and those of
# virtualwindows/ everywhere else. For the library's sources, this is the only place where the two
# builds differ.

add_library(vx_windows_api INTERFACE)
add_library(Vx::WindowsApi ALIAS vx_windows_api)
set_target_properties(vx_windows_api PROPERTIES EXPORT_NAME WindowsApi)
if(WIN32)
    target_link_libraries(vx_windows_api INTERFACE winspool advapi32)
    set(VX_DEVICE_REGISTRY native)
else()
    target_link_libraries(vx_windows_api INTERFACE Vx::VirtualWindows)
    set(VX_DEVICE_REGISTRY virtual)
endif()
