# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# What every shared library of the product needs: its version, and on Windows what makes it a DLL.

include_guard(GLOBAL)

# vx_version_library(<target>)
#
# Names the library after the version of its binary interface, so that a program only starts with one that it
# fits. Windows has no such names; there, the version resource tells.
function(vx_version_library target)
    if(NOT WIN32)
        set_target_properties(${target} PROPERTIES
            VERSION ${PROJECT_VERSION}
            SOVERSION ${PROJECT_VERSION_MAJOR})
    endif()
endfunction()

# vx_make_dll(<target> <description>)
#
# Gives the library its version. Names the DLL without "lib", exports only what is marked for export, and adds a
# version resource.
function(vx_make_dll target VX_DLL_DESCRIPTION)
    vx_version_library(${target})
    if(NOT WIN32)
        set(map "${PROJECT_SOURCE_DIR}/cmake/hidden.map")
        target_link_options(${target} PRIVATE "LINKER:--version-script=${map}")
        set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${map}")
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
