# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# Configures a project against installed CuteLoggers with different names for the global logger.

file(REMOVE_RECURSE "${BINARY}")

# make_installed(<prefix> <header folder> <declaration>)
function(make_installed prefix folder declaration)
    file(WRITE "${BINARY}/${prefix}/${folder}/Logger.h" "#pragma once\nclass Logger;\n${declaration}\n")
    file(WRITE "${BINARY}/${prefix}/lib/libCuteLogger.so" "")
endfunction()

# expect(<case> <prefix> <pattern in what configuring says>)
function(expect case prefix pattern)
    execute_process(
        COMMAND "${CMAKE_COMMAND}" -S "${SOURCE}" -B "${BINARY}/build ${case}" "-DMODULES=${MODULES}"
            "-DCMAKE_PREFIX_PATH=${PREFIX_PATH}" "-DCuteLogger_ROOT=${BINARY}/${prefix}"
        OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT output MATCHES "${pattern}")
        message(FATAL_ERROR "${case}: expected \"${pattern}\" in:\n${output}")
    endif()
endfunction()

make_installed(older include "Logger* loggerInstance();")
make_installed(newer include/CuteLogger "Logger* cuteLoggerInstance();")
make_installed(broken include "Logger* theLogger();")

expect("older release" older "found: TRUE loggerInstance")
expect("newer release" newer "found: TRUE cuteLoggerInstance")
# CMake breaks its lines, where depends on the length of the paths.
expect("neither" broken "declares[ \n]+neither")
expect("none" missing "found: FALSE ")

file(REMOVE_RECURSE "${BINARY}")
