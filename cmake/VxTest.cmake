# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# Functions that register tests. Tests run in parallel, so none may use a fixed file, port or name
# outside its own process and its own folder.
#
# A test that hangs is told apart from one that is slow on a busy machine by the program that runs it:
# scripts/lib/run-under-wine for Windows programs, scripts/lib/run-until-silent for all others on Linux.

set(VX_RUN_TEST)
if(CMAKE_HOST_SYSTEM_NAME STREQUAL "Linux")
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
    # The program found may be a script that looks up the interpreter, which takes longer than some tests.
    execute_process(COMMAND "${Python3_EXECUTABLE}" -c "import sys; print(sys.executable)"
        OUTPUT_VARIABLE python OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    # The path, because CTest would run an imported target under Wine.
    set(VX_RUN_TEST "${python}" -B "${PROJECT_SOURCE_DIR}/scripts/lib/run-until-silent")
endif()

# In seconds, far longer than any test takes. Qt Test's own limit for a test function, which is in
# milliseconds, is set to the same time.
set(VX_TEST_LIMIT 7200)
# Texts are compared in English, whatever the language of the system.
set(VX_TEST_ENVIRONMENT LC_ALL=C.UTF-8 LANGUAGE=en QT_QPA_PLATFORM=offscreen QT_FORCE_STDERR_LOGGING=1
    QTEST_FUNCTION_TIMEOUT=${VX_TEST_LIMIT}000)

# vx_add_script_test(<name> <command>...)
#
# Registers a test that runs on the build machine even in a cross build: a script, or CMake.
function(vx_add_script_test name)
    # Not ARGN, which splits an argument that is a list.
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "" "${name}")
    add_test(NAME ${name} COMMAND ${VX_RUN_TEST} ${arg_${name}})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${VX_TEST_LIMIT} ENVIRONMENT "${VX_TEST_ENVIRONMENT}")
endfunction()

# vx_run_test(<name> <target> [<environment variable>=<value>...])
#
# Registers the executable of a test once more, under another name.
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
# Builds one Qt Test executable and registers it with CTest under its name.
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
    # The code that takes the time is in the libraries; for a test, a short build matters more.
    if(NOT MSVC AND NOT VX_SANITIZE)
        target_compile_options(${name} PRIVATE -O1 -g1)
    endif()
    vx_run_test(${name} ${name})
endfunction()
