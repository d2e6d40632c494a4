# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# Qt's headers take half of the compilation time, so they are compiled once for all targets. This works
# with GCC only: nearly every target defines other macros than the precompiled headers were compiled
# with, which GCC accepts and clang, which builds the fuzzers, does not.
#
# Each source still includes everything it uses: clang-tidy compiles it without precompiled headers.

option(VX_PRECOMPILE "Compile Qt's and the standard library's headers once for all targets" ON)
if(NOT VX_PRECOMPILE OR NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    function(vx_use_precompiled_headers)
    endfunction()
    return()
endif()

# CMake only creates precompiled headers for a target with a source.
file(WRITE "${PROJECT_BINARY_DIR}/vx_precompiled_headers.cpp" "")
add_library(vx_precompiled_headers OBJECT "${PROJECT_BINARY_DIR}/vx_precompiled_headers.cpp")
target_link_libraries(vx_precompiled_headers PRIVATE vx_build_settings Qt6::Core)
set_target_properties(vx_precompiled_headers PROPERTIES AUTOMOC OFF)
target_precompile_headers(vx_precompiled_headers PRIVATE
    <QtCore/QtCore> <algorithm> <array> <atomic> <chrono> <functional> <memory> <optional> <span>
    <string> <utility> <variant> <vector>)

# vx_use_precompiled_headers(<folder>)
#
# Makes every target in a folder and its subfolders use the precompiled headers.
function(vx_use_precompiled_headers folder)
    get_property(targets DIRECTORY "${folder}" PROPERTY BUILDSYSTEM_TARGETS)
    list(REMOVE_ITEM targets vx_precompiled_headers)
    foreach(target IN LISTS targets)
        get_target_property(type ${target} TYPE)
        if(type MATCHES "LIBRARY|EXECUTABLE" AND NOT type STREQUAL "INTERFACE_LIBRARY")
            target_precompile_headers(${target} REUSE_FROM vx_precompiled_headers)
            # ccache needs this, because it hashes the preprocessor's output.
            target_compile_options(${target} PRIVATE -fpch-preprocess)
        endif()
    endforeach()
    get_property(folders DIRECTORY "${folder}" PROPERTY SUBDIRECTORIES)
    foreach(subfolder IN LISTS folders)
        vx_use_precompiled_headers("${subfolder}")
    endforeach()
endfunction()
