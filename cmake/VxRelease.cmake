# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# Settings for what is shipped: small, hardened, and the same bytes wherever it is built.

include_guard(GLOBAL)

option(VX_RELEASE "Build what is shipped: small, hardened and reproducible" OFF)

# vx_map_build_paths()
#
# Keeps the folders of the sources and of the build out of binaries and of their debug information, so that
# these are the same in every folder. A debugger finds the sources if it is started in their folder.
macro(vx_map_build_paths)
    add_compile_options(
        "-ffile-prefix-map=${PROJECT_SOURCE_DIR}=."
        "-ffile-prefix-map=${PROJECT_BINARY_DIR}=./build")
    # Times, users and groups stay out of archives.
    set(CMAKE_CXX_ARCHIVE_CREATE "<CMAKE_AR> qcD <TARGET> <LINK_FLAGS> <OBJECTS>")
    set(CMAKE_CXX_ARCHIVE_APPEND "<CMAKE_AR> qD <TARGET> <LINK_FLAGS> <OBJECTS>")
    set(CMAKE_CXX_ARCHIVE_FINISH "<CMAKE_RANLIB> -D <TARGET>")
    # The build identifier is computed before CMake replaces the run path for the installation.
    set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
endmacro()

if(MINGW)
    vx_map_build_paths()
    add_link_options(-Wl,--no-insert-timestamp)
elseif(VX_RELEASE AND NOT MSVC)
    vx_map_build_paths()
    add_compile_options(
        -ffunction-sections -fdata-sections
        -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
    add_link_options(
        -Wl,--gc-sections -Wl,--as-needed -Wl,--build-id=sha1 -Wl,-z,relro -Wl,-z,now)
endif()
