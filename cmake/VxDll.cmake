# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# What every shared library of the product needs in order to be a Windows DLL.

include_guard(GLOBAL)

# vx_make_dll(<target> <description>)
#
# Names the DLL without "lib", exports only what is marked for export, and adds a version resource.
function(vx_make_dll target VX_DLL_DESCRIPTION)
    if(NOT WIN32)
        return()
    endif()
    set(VX_DLL_NAME ${target})
    set_target_properties(${target} PROPERTIES PREFIX "")
    enable_language(RC)
    configure_file("${PROJECT_SOURCE_DIR}/cmake/version.rc.in" "${PROJECT_BINARY_DIR}/${target}.rc" @ONLY)
    target_sources(${target} PRIVATE "${PROJECT_BINARY_DIR}/${target}.rc")
    if(MINGW)
        # Otherwise MinGW's linker would also export the symbols of the static libraries.
        target_link_options(${target} PRIVATE -Wl,--exclude-all-symbols)
    endif()
endfunction()
