# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# How tests are registered. Tests run beside each other, so none may use a fixed file, port or name
# outside its own process and its own folder.
#
# What tells a test that hangs from one that takes its time on a busy machine is what runs it: the
# emulator under Wine, and scripts/lib/run-until-silent for everything that runs on Linux.

set(VX_RUN_TEST)
if(CMAKE_HOST_SYSTEM_NAME STREQUAL "Linux")
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
    # What is found may be a script that looks for the interpreter first, for longer than some tests take.
    execute_process(COMMAND "${Python3_EXECUTABLE}" -c "import sys; print(sys.executable)"
        OUTPUT_VARIABLE python OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    # By its path: an imported program would be handed to the emulator.
    set(VX_RUN_TEST "${python}" -B "${PROJECT_SOURCE_DIR}/scripts/lib/run-until-silent")
endif()

# Far beyond what any test takes. Qt Test ends a test function by the clock too, so it is told the
# same, in milliseconds.
set(VX_TEST_LIMIT 7200)
set(VX_TEST_ENVIRONMENT QT_QPA_PLATFORM=offscreen QT_FORCE_STDERR_LOGGING=1
    QTEST_FUNCTION_TIMEOUT=${VX_TEST_LIMIT}000)

# vx_add_script_test(<name> <command>...)
#
# A test that is a program of the machine that the tests run on: a script, or CMake.
function(vx_add_script_test name)
    # Not ARGN, which takes an argument that is a list for several.
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "" "${name}")
    add_test(NAME ${name} COMMAND ${VX_RUN_TEST} ${arg_${name}})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${VX_TEST_LIMIT} ENVIRONMENT "${VX_TEST_ENVIRONMENT}")
endfunction()

# vx_run_test(<name> <target> [<environment variable>=<value>...])
#
# Runs the executable of a test once more, under another name.
function(vx_run_test name target)
    if(WIN32)
        add_test(NAME ${name} COMMAND ${target})
    else()
        add_test(NAME ${name} COMMAND ${VX_RUN_TEST} $<TARGET_FILE:${target}>)
    endif()
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${VX_TEST_LIMIT} ENVIRONMENT "${VX_TEST_ENVIRONMENT};${ARGN}")
endfunction()

# vx_add_test(<name> SOURCES <file>... [LIBRARIES <target>...])
#
# One Qt Test executable, registered with CTest under its name.
function(vx_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES")
    if(arg_UNPARSED_ARGUMENTS OR NOT arg_SOURCES)
        message(FATAL_ERROR "vx_add_test(${name}): expected SOURCES <file>... [LIBRARIES <target>...]")
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE
        vx_build_settings vx_lasting_pool_threads vx_own_folder vx_patience Qt6::Test
        ${arg_LIBRARIES})
    set_target_properties(${name} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/tests"
        WIN32_EXECUTABLE OFF)
    # What is measured is in the libraries; for a test, building fast is worth more.
    if(NOT MSVC AND NOT VX_SANITIZE)
        target_compile_options(${name} PRIVATE -O1)
    endif()
    vx_run_test(${name} ${name})
endfunction()
