# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# Finds an installed CuteLogger: header Logger.h, library CuteLogger. CuteLogger_ROOT is its prefix.
#
# Defines the target CuteLogger::CuteLogger, and CuteLogger_GLOBAL_LOGGER, the name of the function
# that returns the global logger. The name differs between releases.

find_path(CuteLogger_INCLUDE_DIR Logger.h PATH_SUFFIXES CuteLogger cutelogger)
find_library(CuteLogger_LIBRARY CuteLogger)
mark_as_advanced(CuteLogger_INCLUDE_DIR CuteLogger_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(CuteLogger
    REQUIRED_VARS CuteLogger_LIBRARY CuteLogger_INCLUDE_DIR)

if(CuteLogger_FOUND AND NOT TARGET CuteLogger::CuteLogger)
    # If its type is SHARED, CMake also passes it to the linker for targets that link it indirectly.
    if(CuteLogger_LIBRARY MATCHES "\\.(so|dylib)[^/]*$")
        set(type SHARED)
    else()
        set(type UNKNOWN)
    endif()
    add_library(CuteLogger::CuteLogger ${type} IMPORTED GLOBAL)
    set_target_properties(CuteLogger::CuteLogger PROPERTIES
        IMPORTED_LOCATION "${CuteLogger_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${CuteLogger_INCLUDE_DIR}"
        INTERFACE_LINK_LIBRARIES Qt6::Core)
    unset(type)
endif()

if(CuteLogger_FOUND AND NOT CuteLogger_GLOBAL_LOGGER)
    include(CheckCXXSourceCompiles)
    foreach(name loggerInstance cuteLoggerInstance)
        set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
        set(CMAKE_REQUIRED_LIBRARIES CuteLogger::CuteLogger Qt6::Core)
        check_cxx_source_compiles(
            "#include <Logger.h>\nLogger* logger() { return ${name}(); }"
            CuteLogger_HAS_${name})
        unset(CMAKE_REQUIRED_LIBRARIES)
        unset(CMAKE_TRY_COMPILE_TARGET_TYPE)
        if(CuteLogger_HAS_${name})
            set(CuteLogger_GLOBAL_LOGGER ${name} CACHE INTERNAL "Returns CuteLogger's global logger")
            break()
        endif()
    endforeach()
    if(NOT CuteLogger_GLOBAL_LOGGER)
        message(FATAL_ERROR "The CuteLogger in ${CuteLogger_INCLUDE_DIR} declares neither "
            "loggerInstance() nor cuteLoggerInstance() in its Logger.h")
    endif()
endif()
