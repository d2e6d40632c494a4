# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# Finds libmosquitto: header mosquitto.h, library mosquitto. Mosquitto_ROOT is its prefix.
#
# Defines the target Mosquitto::Mosquitto.

# First in that prefix alone: a toolchain file for another system has CMake look for everything else below
# that system's own folders.
if(Mosquitto_ROOT)
    # An updated library has another prefix.
    cmake_path(IS_PREFIX Mosquitto_ROOT "${Mosquitto_LIBRARY}" is_in_prefix)
    if(NOT is_in_prefix)
        unset(Mosquitto_INCLUDE_DIR CACHE)
        unset(Mosquitto_LIBRARY CACHE)
    endif()
    find_path(Mosquitto_INCLUDE_DIR mosquitto.h
        PATHS "${Mosquitto_ROOT}/include" NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
    find_library(Mosquitto_LIBRARY mosquitto
        PATHS "${Mosquitto_ROOT}/lib" NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
endif()
find_path(Mosquitto_INCLUDE_DIR mosquitto.h)
find_library(Mosquitto_LIBRARY mosquitto)
mark_as_advanced(Mosquitto_INCLUDE_DIR Mosquitto_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Mosquitto
    REQUIRED_VARS Mosquitto_LIBRARY Mosquitto_INCLUDE_DIR)

if(Mosquitto_FOUND AND NOT TARGET Mosquitto::Mosquitto)
    add_library(Mosquitto::Mosquitto UNKNOWN IMPORTED)
    set_target_properties(Mosquitto::Mosquitto PROPERTIES
        IMPORTED_LOCATION "${Mosquitto_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${Mosquitto_INCLUDE_DIR}")
endif()
