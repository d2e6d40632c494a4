# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# The library itself, linked from the objects of status/, winprint/ and ipc/.

include(GNUInstallDirs)
include(VxDll)

set(VX_PUBLIC_HEADERS
    printer_status_controller.h printer_status_thread.h printer_status_information.h printer_types.h
    windows_printer_info.h vx_ipc_supplyd_controller.h vx_ipc_m4_controller.h
    vx_ipc_printqd_controller.h status_codes.h supply_information.h print_job_meta_data.h
    vxprinterstatus_export.h)

# The objects have their own targets so that a test can link them and replace functions they call.
add_library(vxprinterstatus SHARED)
add_library(Vx::PrinterStatus ALIAS vxprinterstatus)
target_link_libraries(vxprinterstatus
    PUBLIC Qt6::Core Qt6::Gui Vx::WindowsApi Vx::Ipc
    PRIVATE vx_build_settings vx_winprint vx_ipc_endpoints vx_status)
target_include_directories(vxprinterstatus PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/VxPrinterStatus>)
set_target_properties(vxprinterstatus PROPERTIES
    OUTPUT_NAME vxprinterstatus
    EXPORT_NAME PrinterStatus
    LINKER_LANGUAGE CXX)
vx_make_dll(vxprinterstatus "${PROJECT_DESCRIPTION}")
