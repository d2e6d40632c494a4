# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# Installs a build into a scratch folder and builds hosts against what is there, as somebody
# does who has the package only. Expects BUILD (what is installed), SCRATCH, EXAMPLES (folders), FIND_BY
# (the variable that leads to packages) and OPTIONS (for configuring the examples).

function(run what)
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
        "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Wpedantic -Werror" ${OPTIONS})
    run("building ${name}" "${CMAKE_COMMAND}" --build "${SCRATCH}/${name}")
endforeach()
