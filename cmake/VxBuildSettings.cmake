# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# Compiler settings for every target of the project. A target gets them by linking vx_build_settings.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)
# Otherwise moc would start the compiler for every target to read its predefined macros, and no class
# here depends on them.
set(CMAKE_AUTOMOC_COMPILER_PREDEFINES OFF)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")

# Installed libraries and programs find each other in any prefix.
include(GNUInstallDirs)
set(CMAKE_INSTALL_RPATH "$ORIGIN" "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()

find_program(VX_CCACHE ccache)
mark_as_advanced(VX_CCACHE)
if(VX_CCACHE)
    # Without this sloppiness ccache does not cache sources with precompiled headers, because it cannot
    # see which macros these depend on. The compiler can, and rejects headers that do not match. The
    # precompiled headers are hundreds of megabytes. With the inode cache ccache hashes them only once.
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_INODECACHE=true "${VX_CCACHE}")
endif()

set(VX_SANITIZE "" CACHE STRING "Sanitizers to build with: empty, address or thread")
set_property(CACHE VX_SANITIZE PROPERTY STRINGS "" address thread)

add_library(vx_build_settings INTERFACE)
if(MSVC)
    target_compile_options(vx_build_settings INTERFACE /W4 /WX /utf-8 /permissive- /Zc:__cplusplus)
else()
    # The Windows headers declare short global names such as GUID, which is also the name of an argument
    # that other processes use in calls. So on Windows only shadowing among local names is an error.
    target_compile_options(vx_build_settings INTERFACE
        -Wall -Wextra -Wpedantic -Wconversion $<IF:$<BOOL:${WIN32}>,-Wshadow=local,-Wshadow> -Werror)
endif()
target_compile_definitions(vx_build_settings INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_JAVA_STYLE_ITERATORS)

if(VX_SANITIZE STREQUAL "address")
    set(VX_SANITIZE_FLAGS -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
elseif(VX_SANITIZE STREQUAL "thread")
    set(VX_SANITIZE_FLAGS -fsanitize=thread -fno-omit-frame-pointer)
elseif(VX_SANITIZE)
    message(FATAL_ERROR "VX_SANITIZE is \"${VX_SANITIZE}\": expected nothing, address or thread")
endif()
if(VX_SANITIZE_FLAGS)
    # For every target, including those in platform/: a partly instrumented process causes false reports.
    add_compile_options(${VX_SANITIZE_FLAGS})
    add_link_options(${VX_SANITIZE_FLAGS})
    # Optimisation takes most of the time of such a build and makes up for little of the sanitizers'
    # cost, and reports only show line numbers from the debug information. Fuzzers need to be fast.
    if(NOT VX_BUILD_FUZZERS)
        add_compile_options(-Og -g1)
    endif()
endif()

if(VX_BUILD_FUZZERS)
    # For all libraries: the fuzzer's engine needs to know which branches an input takes.
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
