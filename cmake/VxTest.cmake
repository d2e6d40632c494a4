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

# Tests in which no thread is started (apart from Qt Test's own, which ends hanging functions). The thread
# sanitizer cannot find anything in them, and leaves them out. The address sanitizer runs them.
set(VX_TESTS_WITHOUT_THREADS
    forecast_accuracy
    status_codes_document
    test_changelog
    test_check_links
    test_check_page_texts
    test_check_translations
    test_deploy_mosquitto
    test_deploy_nats
    test_deploy_page_on_nats
    test_event_schema
    test_find_cutelogger
    test_header_examples
    test_host_guide
    test_need_packages
    test_page
    test_page_site
    test_page_status_texts
    test_reading_schema
    test_run_until_silent
    tst_built_in_story
    tst_case_file
    tst_case_reader
    tst_case_redaction
    tst_consumed_meters
    tst_device_serial_numbers
    tst_failure
    tst_forecast_words
    tst_json_writer
    tst_log_command
    tst_metrics_text
    tst_percent_left
    tst_preflight
    tst_printer_events
    tst_printer_level
    tst_printer_names
    tst_printer_reading
    tst_printer_status_information
    tst_printer_type
    tst_registry
    tst_rolldb
    tst_rolldb_export
    tst_rolldb_reports
    tst_rolldb_tables
    tst_run_out_forecast
    tst_shown_text
    tst_status_titles
    tst_supplyc
    tst_supplydb_files
    tst_text_layout
    tst_top_table
    tst_topics
    tst_translations
    tst_vxlocale
    tst_vxmessages
    tst_vxsupplydb)
# This one looks at what the tools print. Their threads run in the other tests of the tools, which stay.
list(APPEND VX_TESTS_WITHOUT_THREADS test_tool_output)

# The tests that take longest are started first, so that none is left to run alone in the end. CTest only
# knows by itself how long they take if it has run them in the same build folder before.
set(VX_LONG_TESTS
    test_page
    test_fleet_demo
    package_runs_its_agent_as_a_service
    test_deploy_agent_on_nats
    test_deploy_nats
    test_deploy_page_on_nats
    tst_usage_history
    tst_vxipc_push
    tst_monitor_on_windows
    tst_spooler_restart_on_windows
    test_tool_output
    tst_case_redaction
    tst_case_recorder
    test_record
    tst_kit_faults
    tst_storm
    test_documented_commands
    test_top
    tst_vxprintmon
    tst_monitor_status
    test_run_until_silent
    forecast_accuracy
    tst_rolldb_export
    tst_vxipc_server
    tst_endpoints_over_ipc
    test_console
    test_prometheus
    test_case
    tst_case_reader
    tst_kit_on_the_spooler
    installed_package
    tst_printer_discovery
    tst_readings_with_discovery
    tst_run_out_forecast
    test_watch_json
    test_status_client
    tst_monitor_watch
    tst_case_round_trip)

# describe_test(<name>)
#
# Sets what depends on a test's name.
function(describe_test name)
    if(name IN_LIST VX_TESTS_WITHOUT_THREADS)
        set_tests_properties(${name} PROPERTIES LABELS without_threads)
    endif()
    list(FIND VX_LONG_TESTS ${name} place)
    if(place GREATER_EQUAL 0)
        # More than any time in seconds that CTest remembers.
        math(EXPR cost "2000 - ${place}")
        set_tests_properties(${name} PROPERTIES COST ${cost})
    endif()
endfunction()

# vx_add_script_test(<name> <command>...)
#
# Registers a test that runs on the build machine even in a cross build: a script, or CMake.
function(vx_add_script_test name)
    # Not ARGN, which splits an argument that is a list.
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "" "${name}")
    add_test(NAME ${name} COMMAND ${VX_RUN_TEST} ${arg_${name}})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${VX_TEST_LIMIT} ENVIRONMENT "${VX_TEST_ENVIRONMENT}")
    describe_test(${name})
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
    describe_test(${name})
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
