# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# Installs a build into a scratch folder and builds hosts against the installed package alone.
#
# Expects BUILD (the build to install), SCRATCH, EXAMPLES (folders), FIND_BY (the variable with the paths
# of packages) and OPTIONS (for configuring the examples). LOGGER is the library of the installed
# CuteLogger that the build uses; it is empty if the build uses the stand-in.

function(run what)
    message(STATUS "${what}")
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${what}: ${result}\n${output}")
    endif()
endfunction()

file(REMOVE_RECURSE "${SCRATCH}")
run("installing" "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${SCRATCH}/installed")
foreach(example IN LISTS EXAMPLES)
    cmake_path(GET example FILENAME name)
    run("configuring ${name}" "${CMAKE_COMMAND}" -S "${example}" -B "${SCRATCH}/${name}" -G Ninja
        "-D${FIND_BY}=${SCRATCH}/installed" -DCMAKE_BUILD_TYPE=Release
        "-DCMAKE_C_FLAGS=-Wall -Wextra -Wpedantic -Werror"
        "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Wpedantic -Werror" ${OPTIONS})
    run("building ${name}" "${CMAKE_COMMAND}" --build "${SCRATCH}/${name}")
endforeach()

# If the CuteLogger that the package was built with is missing, configuring fails and says what to set.
if(LOGGER)
    file(GLOB_RECURSE config "${SCRATCH}/installed/*/VxPrinterStatusConfig.cmake")
    file(READ "${config}" text)
    string(REPLACE "${LOGGER}" "/gone/libCuteLogger.so" text "${text}")
    file(WRITE "${config}" "${text}")
    list(GET EXAMPLES 0 example)
    set(configure "${CMAKE_COMMAND}" -S "${example}" -G Ninja
        "-D${FIND_BY}=${SCRATCH}/installed" -DCMAKE_BUILD_TYPE=Release ${OPTIONS})
    message(STATUS "configuring without CuteLogger")
    execute_process(COMMAND ${configure} -B "${SCRATCH}/without logger"
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(result EQUAL 0 OR NOT output MATCHES "CuteLogger_ROOT")
        message(FATAL_ERROR "expected a message about CuteLogger_ROOT: ${result}\n${output}")
    endif()
    cmake_path(GET LOGGER PARENT_PATH folder)
    cmake_path(GET folder PARENT_PATH prefix)
    run("configuring with CuteLogger_ROOT" ${configure} -B "${SCRATCH}/moved logger"
        "-DCuteLogger_ROOT=${prefix}")
    run("building with CuteLogger_ROOT" "${CMAKE_COMMAND}" --build "${SCRATCH}/moved logger")
endif()
