# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# Vx::WindowsApi is what <windows.h> and <winspool.h> come from: the system on Windows, our
# stand-in everywhere else. It is the one place where the two builds part.

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
