# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# vx_add_test(<name> SOURCES <file>... [LIBRARIES <target>...])
#
# One Qt Test executable, registered with CTest under its name. Tests run beside each other, so none
# may use a fixed file, port or name outside its own process and its own folder.
function(vx_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES")
    if(arg_UNPARSED_ARGUMENTS OR NOT arg_SOURCES)
        message(FATAL_ERROR "vx_add_test(${name}): expected SOURCES <file>... [LIBRARIES <target>...]")
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE
        vx_build_settings vx_own_folder Qt6::Test ${arg_LIBRARIES})
    set_target_properties(${name} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/tests"
        WIN32_EXECUTABLE OFF)
    # What is measured is in the libraries; for a test, building fast is worth more.
    if(NOT MSVC AND NOT VX_SANITIZE)
        target_compile_options(${name} PRIVATE -O1)
    endif()
    add_test(NAME ${name} COMMAND ${name})
    # A test that hangs is killed and reported within a minute; sanitizers slow everything down, and
    # under Wine it is the emulator that tells a test that hangs from one that takes its time.
    if(VX_SANITIZE OR WIN32)
        set(limit 300)
    else()
        set(limit 60)
    endif()
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${limit}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_FORCE_STDERR_LOGGING=1")
endfunction()
