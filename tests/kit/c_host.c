// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A host in plain C that does everything wrong, and then works with a printer. Prints a line for
// each step, and for each check that fails; ends with 1 if one did.
//
// Usage: c_host careless
//        c_host list NAME                   reads all printers, of which one has the name
//        c_host watch NAME                  waits until the printer has reported a status
//        c_host locale                      looks at what a session changes in the process
//        c_host forgetful                   ends without stopping its session

// Names are those of C, as in vxkit.h.
// NOLINTBEGIN(readability-identifier-naming)

#include <vxkit.h>

#include <locale.h>
#include <pthread.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

static int failures = 0;

#define CHECK(condition) check((condition) != 0, #condition, __LINE__)
#define CHECK_RESULT(call, expected) check_result((call), (expected), #call, __LINE__)

static void step(const char* name)
{
    printf("%s\n", name);
    fflush(stdout);
}

static int check(int holds, const char* condition, int line)
{
    if (!holds) {
        printf("line %d: does not hold: %s\n", line, condition);
        ++failures;
    }
    return holds;
}

static int check_result(vxkit_result result, vxkit_result expected, const char* call, int line)
{
    char found[64];
    char wanted[64];
    char error[1024];
    if (result == expected)
        return 1;
    vxkit_result_name(result, found, sizeof found, NULL);
    vxkit_result_name(expected, wanted, sizeof wanted, NULL);
    vxkit_last_error(error, sizeof error, NULL);
    printf("line %d: %s is %s, not %s (%s)\n", line, call, found, wanted, error);
    ++failures;
    return 0;
}

/* The test that runs this program ends it when it hangs. */
static void rest(void)
{
    const struct timespec time = {0, 10000000L};
    nanosleep(&time, NULL);
}

static int is_nan(double value)
{
    return value != value;
}

static const char* last_error(void)
{
    static char text[1024];
    CHECK_RESULT(vxkit_last_error(text, sizeof text, NULL), VXKIT_OK);
    return text;
}

// Without a session ///////////////////////////////////////////////////////////////////////////////

static void texts_fit_or_are_refused(void)
{
    char buffer[64];
    char untouched = 'x';
    size_t needed = 0;

    step("texts fit or are refused");
    CHECK(vxkit_interface_version() >> 16 == VXKIT_INTERFACE_MAJOR);
    CHECK(vxkit_interface_version() >= VXKIT_INTERFACE_VERSION);
    CHECK_RESULT(vxkit_library_version(NULL, 0, &needed), VXKIT_ERROR_BUFFER_TOO_SMALL);
    CHECK(needed > 1 && needed < sizeof buffer);
    CHECK_RESULT(vxkit_library_version(buffer, needed, NULL), VXKIT_OK);
    CHECK(strlen(buffer) == needed - 1);
    CHECK_RESULT(vxkit_library_version(buffer, needed - 1, NULL), VXKIT_ERROR_BUFFER_TOO_SMALL);
    CHECK(strcmp(buffer, "") == 0);
    CHECK_RESULT(vxkit_library_version(&untouched, 0, NULL), VXKIT_ERROR_BUFFER_TOO_SMALL);
    CHECK(untouched == 'x');
    CHECK_RESULT(vxkit_library_version(NULL, 10, &needed), VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK(needed == 0);
    CHECK(strstr(last_error(), "buffer is null") != NULL);

    CHECK_RESULT(vxkit_result_name(VXKIT_ERROR_BUSY, buffer, sizeof buffer, NULL), VXKIT_OK);
    CHECK(strcmp(buffer, "VXKIT_ERROR_BUSY") == 0);
    CHECK_RESULT(vxkit_result_name(99, buffer, sizeof buffer, NULL), VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_last_error(NULL, 5, NULL), VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_last_error(buffer, 2, &needed), VXKIT_ERROR_BUFFER_TOO_SMALL);
    CHECK(needed > 2);
    /* Asking for it does not change it. */
    CHECK(strstr(last_error(), "99 is not a result") != NULL);
}

static void nothing_is_a_handle(vxkit_session* session, vxkit_readings* readings)
{
    char buffer[16] = "text";
    size_t count = 7;
    size_t index = 7;
    int64_t integer = 7;
    double number = 7;
    uint64_t id = 7;
    vxkit_readings* taken = readings;

    CHECK_RESULT(vxkit_start(session), VXKIT_ERROR_INVALID_HANDLE);
    CHECK_RESULT(vxkit_stop(session), VXKIT_ERROR_INVALID_HANDLE);
    CHECK_RESULT(vxkit_destroy(session), VXKIT_ERROR_INVALID_HANDLE);
    CHECK_RESULT(vxkit_is_running(session, &integer), VXKIT_ERROR_INVALID_HANDLE);
    CHECK(integer == VXKIT_NO_INTEGER);
    CHECK_RESULT(vxkit_set_option(session, VXKIT_OPTION_LANGUAGE, "de"),
                 VXKIT_ERROR_INVALID_HANDLE);
    CHECK_RESULT(vxkit_read_all(session, &taken), VXKIT_ERROR_INVALID_HANDLE);
    CHECK(taken == NULL);
    CHECK_RESULT(vxkit_read(session, "Packing", &taken), VXKIT_ERROR_INVALID_HANDLE);
    CHECK_RESULT(vxkit_active_printer(session, buffer, sizeof buffer, NULL),
                 VXKIT_ERROR_INVALID_HANDLE);
    CHECK(strcmp(buffer, "") == 0);
    CHECK_RESULT(
        vxkit_status_text(session, 1, VXKIT_STATUS_TITLE, NULL, buffer, sizeof buffer, NULL),
        VXKIT_ERROR_INVALID_HANDLE);
    CHECK_RESULT(vxkit_status_json(session, 1, NULL, NULL, 0, NULL), VXKIT_ERROR_INVALID_HANDLE);
    CHECK_RESULT(vxkit_all_status_json(session, NULL, NULL, 0, NULL), VXKIT_ERROR_INVALID_HANDLE);
    CHECK_RESULT(vxkit_add_callback(session, NULL, NULL, &id), VXKIT_ERROR_INVALID_HANDLE);
    CHECK(id == 0);
    CHECK_RESULT(vxkit_remove_callback(session, 1), VXKIT_ERROR_INVALID_HANDLE);
    CHECK_RESULT(vxkit_send_text(session, "Packing", "FEED", 0, NULL), VXKIT_ERROR_INVALID_HANDLE);
    CHECK_RESULT(vxkit_send_bytes(session, "Packing", "FEED", 4, 0, NULL),
                 VXKIT_ERROR_INVALID_HANDLE);

    CHECK_RESULT(vxkit_readings_free(readings), VXKIT_ERROR_INVALID_HANDLE);
    CHECK_RESULT(vxkit_readings_count(readings, &count), VXKIT_ERROR_INVALID_HANDLE);
    CHECK(count == 0);
    CHECK_RESULT(vxkit_readings_find(readings, "Packing", &index), VXKIT_ERROR_INVALID_HANDLE);
    CHECK(index == SIZE_MAX);
    CHECK_RESULT(vxkit_reading_json(readings, 0, buffer, sizeof buffer, NULL),
                 VXKIT_ERROR_INVALID_HANDLE);
    CHECK_RESULT(vxkit_reading_text(readings, 0, VXKIT_TEXT_NAME, buffer, sizeof buffer, NULL),
                 VXKIT_ERROR_INVALID_HANDLE);
    CHECK_RESULT(vxkit_reading_integer(readings, 0, VXKIT_INTEGER_ONLINE, &integer),
                 VXKIT_ERROR_INVALID_HANDLE);
    CHECK_RESULT(vxkit_slot_text(readings, 0, VXKIT_SLOT_SUPPLY, VXKIT_SLOT_TEXT_SKU, buffer,
                                 sizeof buffer, NULL),
                 VXKIT_ERROR_INVALID_HANDLE);
    CHECK_RESULT(
        vxkit_slot_integer(readings, 0, VXKIT_SLOT_SUPPLY, VXKIT_SLOT_INTEGER_LABELS, &integer),
        VXKIT_ERROR_INVALID_HANDLE);
    CHECK_RESULT(vxkit_slot_number(readings, 0, VXKIT_SLOT_SUPPLY, VXKIT_NUMBER_RATIO, &number),
                 VXKIT_ERROR_INVALID_HANDLE);
    CHECK(is_nan(number));
    CHECK(strstr(last_error(), "is not a valid handle") != NULL);
}

static void foreign_handles_are_refused(void)
{
    int own = 0;
    void* foreign = &own;
    step("foreign handles are refused");
    nothing_is_a_handle(NULL, NULL);
    nothing_is_a_handle(foreign, foreign);
}

static void codes_have_severities_without_a_session(void)
{
    int64_t severity = -1;
    step("codes have severities without a session");
    CHECK_RESULT(vxkit_status_severity(1, &severity), VXKIT_OK);
    CHECK(severity == VXKIT_SEVERITY_OK);
    CHECK_RESULT(vxkit_status_severity(2, &severity), VXKIT_OK);
    CHECK(severity == VXKIT_SEVERITY_ERROR);
    CHECK_RESULT(vxkit_status_severity(INT32_MIN, &severity), VXKIT_OK);
    CHECK(severity == VXKIT_SEVERITY_ERROR);
    CHECK_RESULT(vxkit_status_severity(1, NULL), VXKIT_ERROR_INVALID_ARGUMENT);
}

// With a session that does not run ////////////////////////////////////////////////////////////////

static void ignore_change(vxkit_session* session, int32_t change, const char* printer,
                          const char* old_name, uint32_t fields, void* user_data)
{
    (void)session;
    (void)change;
    (void)printer;
    (void)old_name;
    (void)fields;
    (void)user_data;
}

static void there_is_one_session(void)
{
    vxkit_session* first = NULL;
    vxkit_session* second = NULL;
    int64_t running = 7;
    step("there is one session");
    CHECK_RESULT(vxkit_create(NULL), VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_create(&first), VXKIT_OK);
    CHECK(first != NULL);
    second = first;
    CHECK_RESULT(vxkit_create(&second), VXKIT_ERROR_BUSY);
    CHECK(second == NULL);
    CHECK_RESULT(vxkit_is_running(first, &running), VXKIT_OK);
    CHECK(running == 0);
    CHECK_RESULT(vxkit_stop(first), VXKIT_OK);
    /* One handle is not another. */
    CHECK_RESULT(vxkit_readings_free((vxkit_readings*)(void*)first), VXKIT_ERROR_INVALID_HANDLE);
    CHECK_RESULT(vxkit_destroy(first), VXKIT_OK);
    nothing_is_a_handle(first, NULL);
    /* The handle of the one that was destroyed is not that of the next one. */
    CHECK_RESULT(vxkit_create(&second), VXKIT_OK);
    CHECK(first != second);
    CHECK_RESULT(vxkit_destroy(first), VXKIT_ERROR_INVALID_HANDLE);
    CHECK_RESULT(vxkit_destroy(second), VXKIT_OK);
}

static void nothing_is_read_before_the_start(vxkit_session* session)
{
    vxkit_readings* readings = NULL;
    char buffer[64];
    vxkit_command_result result;
    step("nothing is read before the start");
    CHECK_RESULT(vxkit_read_all(session, &readings), VXKIT_ERROR_NOT_RUNNING);
    CHECK_RESULT(vxkit_read(session, "Packing", &readings), VXKIT_ERROR_NOT_RUNNING);
    CHECK_RESULT(vxkit_active_printer(session, buffer, sizeof buffer, NULL),
                 VXKIT_ERROR_NOT_RUNNING);
    CHECK_RESULT(vxkit_status_text(session, 1, VXKIT_STATUS_KEY, "en", buffer, sizeof buffer, NULL),
                 VXKIT_ERROR_NOT_RUNNING);
    result.size = sizeof result;
    CHECK_RESULT(vxkit_send_text(session, "Packing", "FEED", 0, &result), VXKIT_ERROR_NOT_RUNNING);
    CHECK(result.failure == VXKIT_FAILURE_NONE && result.job == 0 && result.bytes == 0);
}

static char* text_of(size_t length, char character)
{
    char* const text = malloc(length + 1);
    if (!text)
        abort();
    memset(text, character, length);
    text[length] = '\0';
    return text;
}

static void wrong_options_are_refused(vxkit_session* session)
{
    char* const longest = text_of(VXKIT_LONGEST_NAME, 'x');
    char* const too_long = text_of(VXKIT_LONGEST_NAME + 1, 'x');
    step("wrong options are refused");
    CHECK_RESULT(vxkit_set_option(session, 0, "x"), VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_set_option(session, INT32_MAX, "x"), VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_set_option(session, VXKIT_OPTION_LANGUAGE, "no language"),
                 VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_set_option(session, VXKIT_OPTION_LANGUAGE, "\x1b[31m"),
                 VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK(strstr(last_error(), "\\u001b") != NULL);
    CHECK_RESULT(vxkit_set_option(session, VXKIT_OPTION_CATALOGUE, "\xC3\x28"),
                 VXKIT_ERROR_INVALID_TEXT);
    CHECK_RESULT(vxkit_set_option(session, VXKIT_OPTION_CATALOGUE, too_long), VXKIT_ERROR_TOO_LONG);
    CHECK_RESULT(vxkit_set_option(session, VXKIT_OPTION_CATALOGUE, longest), VXKIT_OK);
    CHECK_RESULT(vxkit_set_option(session, VXKIT_OPTION_CATALOGUE, NULL), VXKIT_OK);
    CHECK_RESULT(vxkit_set_option(session, VXKIT_OPTION_LOG_FILE, "/no/such/folder/file.log"),
                 VXKIT_OK);
    CHECK_RESULT(vxkit_start(session), VXKIT_ERROR_FAILED);
    CHECK(strstr(last_error(), "/no/such/folder/file.log") != NULL);
    CHECK_RESULT(vxkit_set_option(session, VXKIT_OPTION_LOG_FILE, ""), VXKIT_OK);
    CHECK_RESULT(vxkit_set_option(session, VXKIT_OPTION_HISTORY, too_long), VXKIT_ERROR_TOO_LONG);
    CHECK_RESULT(vxkit_set_option(session, VXKIT_OPTION_LANGUAGE, "en"), VXKIT_OK);
    free(longest);
    free(too_long);
}

static void wrong_callbacks_are_refused(vxkit_session* session)
{
    uint64_t ids[VXKIT_MOST_CALLBACKS];
    uint64_t id = 7;
    size_t i;
    step("wrong callbacks are refused");
    CHECK_RESULT(vxkit_add_callback(session, NULL, NULL, &id), VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK(id == 0);
    CHECK_RESULT(vxkit_add_callback(session, ignore_change, NULL, NULL),
                 VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_remove_callback(session, 0), VXKIT_ERROR_INVALID_ARGUMENT);
    for (i = 0; i < VXKIT_MOST_CALLBACKS; ++i)
        CHECK_RESULT(vxkit_add_callback(session, ignore_change, NULL, &ids[i]), VXKIT_OK);
    CHECK_RESULT(vxkit_add_callback(session, ignore_change, NULL, &id), VXKIT_ERROR_TOO_MANY);
    for (i = 0; i < VXKIT_MOST_CALLBACKS; ++i)
        CHECK_RESULT(vxkit_remove_callback(session, ids[i]), VXKIT_OK);
    CHECK_RESULT(vxkit_remove_callback(session, ids[0]), VXKIT_ERROR_INVALID_ARGUMENT);
}

// With a session that runs ////////////////////////////////////////////////////////////////////////

static void what_runs_does_not_start_again(vxkit_session* session)
{
    int64_t running = 0;
    step("what runs does not start again");
    CHECK_RESULT(vxkit_start(session), VXKIT_OK);
    CHECK_RESULT(vxkit_is_running(session, &running), VXKIT_OK);
    CHECK(running == 1);
    CHECK_RESULT(vxkit_is_running(session, NULL), VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_start(session), VXKIT_ERROR_RUNNING);
    CHECK_RESULT(vxkit_set_option(session, VXKIT_OPTION_LANGUAGE, "de"), VXKIT_ERROR_RUNNING);
}

static void wrong_names_are_refused(vxkit_session* session)
{
    vxkit_readings* readings = NULL;
    char* const too_long = text_of(VXKIT_LONGEST_NAME + 1, 'x');
    step("wrong names are refused");
    CHECK_RESULT(vxkit_read(session, NULL, &readings), VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_read(session, "", &readings), VXKIT_ERROR_NO_SUCH_PRINTER);
    CHECK_RESULT(vxkit_read(session, "No such printer", &readings), VXKIT_ERROR_NO_SUCH_PRINTER);
    CHECK(strstr(last_error(), "\"No such printer\"") != NULL);
    CHECK_RESULT(vxkit_read(session, too_long, &readings), VXKIT_ERROR_TOO_LONG);
    CHECK_RESULT(vxkit_read(session, "\xFF", &readings), VXKIT_ERROR_INVALID_TEXT);
    CHECK_RESULT(vxkit_read(session, "\xED\xA0\x80", &readings), VXKIT_ERROR_INVALID_TEXT);
    CHECK_RESULT(vxkit_read(session, "\xC0\x80", &readings), VXKIT_ERROR_INVALID_TEXT);
    CHECK_RESULT(vxkit_read(session, "\xEF\xBB\xBFx", &readings), VXKIT_ERROR_NO_SUCH_PRINTER);
    CHECK(readings == NULL);
    CHECK_RESULT(vxkit_read(session, "x", NULL), VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_read_all(session, NULL), VXKIT_ERROR_INVALID_ARGUMENT);
    free(too_long);
}

static void wrong_commands_are_refused(vxkit_session* session)
{
    vxkit_command_result result;
    char* const too_long = text_of(VXKIT_LONGEST_TEXT + 1, 'x');
    step("wrong commands are refused");
    memset(&result, 0x55, sizeof result);
    result.size = sizeof result - 1;
    CHECK_RESULT(vxkit_send_text(session, "x", "FEED", 0, &result), VXKIT_ERROR_INVALID_ARGUMENT);
    result.size = 0;
    CHECK_RESULT(vxkit_send_bytes(session, "x", "FEED", 4, 0, &result),
                 VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK(result.job == 0x55555555);
    result.size = sizeof result;
    CHECK_RESULT(vxkit_send_text(session, "x", "FEED", 0x80000000, &result),
                 VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_send_text(session, NULL, "FEED", 0, &result), VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_send_text(session, "x", NULL, 0, &result), VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_send_bytes(session, "x", NULL, 1, 0, &result), VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_send_text(session, "x", too_long, 0, &result), VXKIT_ERROR_TOO_LONG);
    CHECK_RESULT(vxkit_send_bytes(session, "x", too_long, (size_t)-1, 0, &result),
                 VXKIT_ERROR_TOO_LONG);
    CHECK(result.failure == VXKIT_FAILURE_NONE && result.job == 0);
    CHECK_RESULT(vxkit_send_bytes(session, "x", NULL, 0, 0, &result), VXKIT_ERROR_COMMAND);
    CHECK(result.failure == VXKIT_FAILURE_EMPTY);
    CHECK_RESULT(vxkit_send_text(session, "No such printer", "FEED", 0, &result),
                 VXKIT_ERROR_COMMAND);
    CHECK(result.failure == VXKIT_FAILURE_CANNOT_OPEN_PRINTER);
    CHECK(result.system_error != 0);
    CHECK(strstr(last_error(), "No such printer") != NULL);
    CHECK_RESULT(vxkit_send_text(session, "No such printer", "FEED", 0, NULL), VXKIT_ERROR_COMMAND);
    free(too_long);
}

static void readings_outlive_the_session_and_are_counted(vxkit_session* session)
{
    static vxkit_readings* all[VXKIT_MOST_READINGS];
    vxkit_readings* one_more = NULL;
    size_t count = 7;
    size_t i;
    step("readings outlive the session, and are counted");
    for (i = 0; i < VXKIT_MOST_READINGS; ++i)
        CHECK_RESULT(vxkit_read_all(session, &all[i]), VXKIT_OK);
    CHECK_RESULT(vxkit_read_all(session, &one_more), VXKIT_ERROR_TOO_MANY);
    CHECK(one_more == NULL);
    CHECK_RESULT(vxkit_stop(session), VXKIT_OK);
    CHECK_RESULT(vxkit_readings_count(all[0], &count), VXKIT_OK);
    CHECK_RESULT(vxkit_readings_count(all[0], NULL), VXKIT_ERROR_INVALID_ARGUMENT);
    for (i = 0; i < VXKIT_MOST_READINGS; ++i)
        CHECK_RESULT(vxkit_readings_free(all[i]), VXKIT_OK);
    CHECK_RESULT(vxkit_readings_free(all[0]), VXKIT_ERROR_INVALID_HANDLE);
    nothing_is_a_handle(NULL, all[0]);
    CHECK_RESULT(vxkit_start(session), VXKIT_OK);
}

static void status_codes_are_explained(vxkit_session* session)
{
    char text[4096];
    size_t needed = 0;
    step("status codes are explained");
    CHECK_RESULT(vxkit_status_text(session, 2, VXKIT_STATUS_KEY, NULL, text, sizeof text, NULL),
                 VXKIT_OK);
    CHECK(strcmp(text, "out_of_labels") == 0);
    CHECK_RESULT(
        vxkit_status_text(session, 2, VXKIT_STATUS_SHORT_TITLE, "", text, sizeof text, NULL),
        VXKIT_OK);
    CHECK(strcmp(text, "The printer is out of labels") == 0);
    CHECK_RESULT(vxkit_status_text(session, 1, VXKIT_STATUS_TITLE, "de", text, sizeof text, NULL),
                 VXKIT_OK);
    CHECK(strcmp(text, "Bereit") == 0);
    CHECK_RESULT(vxkit_status_text(session, 1, 0, NULL, text, sizeof text, NULL),
                 VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_status_text(session, 1, 7, NULL, text, sizeof text, NULL),
                 VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_status_text(session, 1, 1, "\xFF", text, sizeof text, NULL),
                 VXKIT_ERROR_INVALID_TEXT);
    CHECK_RESULT(vxkit_status_json(session, 77777, NULL, text, sizeof text, NULL), VXKIT_OK);
    CHECK(strstr(text, "\"printer_error\"") != NULL && strstr(text, "77777") != NULL);
    CHECK_RESULT(vxkit_all_status_json(session, "ja", NULL, 0, &needed),
                 VXKIT_ERROR_BUFFER_TOO_SMALL);
    CHECK(needed > 4096);
}

/* One of several threads that work with the session while it is stopped and started. */
static void* work(void* argument)
{
    vxkit_session* const session = argument;
    char text[256];
    int i;
    for (i = 0; i < 300; ++i) {
        vxkit_readings* readings = NULL;
        uint64_t id = 0;
        vxkit_read_all(session, &readings);
        vxkit_readings_free(readings);
        vxkit_active_printer(session, text, sizeof text, NULL);
        vxkit_status_text(session, i, VXKIT_STATUS_TITLE, "fr", text, sizeof text, NULL);
        if (vxkit_add_callback(session, ignore_change, NULL, &id) == VXKIT_OK)
            vxkit_remove_callback(session, id);
        vxkit_send_text(session, "No such printer", "FEED", 0, NULL);
        if (i % 100 == 50) {
            vxkit_stop(session);
            vxkit_start(session);
        }
    }
    return NULL;
}

static void* destroy(void* argument)
{
    /* One of the threads does it, and the others find nothing. */
    const vxkit_result result = vxkit_destroy(argument);
    return result == VXKIT_OK ? argument : NULL;
}

static void many_threads_work_and_destroy(vxkit_session* session)
{
    pthread_t threads[4];
    int destroyed = 0;
    size_t i;
    step("many threads work");
    for (i = 0; i < 4; ++i)
        CHECK(pthread_create(&threads[i], NULL, work, session) == 0);
    for (i = 0; i < 4; ++i)
        pthread_join(threads[i], NULL);
    vxkit_start(session);
    step("many threads destroy");
    for (i = 0; i < 4; ++i)
        CHECK(pthread_create(&threads[i], NULL, i == 0 ? work : destroy, session) == 0);
    for (i = 0; i < 4; ++i) {
        void* result = NULL;
        pthread_join(threads[i], &result);
        destroyed += result != NULL;
    }
    CHECK(destroyed == 1);
    nothing_is_a_handle(session, NULL);
}

static int be_careless(void)
{
    vxkit_session* session = NULL;
    texts_fit_or_are_refused();
    foreign_handles_are_refused();
    codes_have_severities_without_a_session();
    there_is_one_session();
    CHECK_RESULT(vxkit_create(&session), VXKIT_OK);
    nothing_is_read_before_the_start(session);
    wrong_options_are_refused(session);
    wrong_callbacks_are_refused(session);
    what_runs_does_not_start_again(session);
    wrong_names_are_refused(session);
    wrong_commands_are_refused(session);
    readings_outlive_the_session_and_are_counted(session);
    status_codes_are_explained(session);
    many_threads_work_and_destroy(session);
    return failures != 0;
}

// With a printer //////////////////////////////////////////////////////////////////////////////////

/* What the callback has seen, for the main thread. */
struct Seen
{
    pthread_mutex_t mutex;
    const char* printer;
    int changes;
    int has_checked;
    uint64_t id;
};

static void check_in_callback(vxkit_session* session, const char* printer)
{
    vxkit_readings* readings = NULL;
    char name[256];
    uint64_t id = 0;
    CHECK_RESULT(vxkit_stop(session), VXKIT_ERROR_IN_CALLBACK);
    CHECK_RESULT(vxkit_destroy(session), VXKIT_ERROR_IN_CALLBACK);
    CHECK_RESULT(vxkit_start(session), VXKIT_ERROR_RUNNING);
    CHECK_RESULT(vxkit_read(session, printer, &readings), VXKIT_OK);
    CHECK_RESULT(vxkit_reading_text(readings, 0, VXKIT_TEXT_NAME, name, sizeof name, NULL),
                 VXKIT_OK);
    CHECK(strcmp(name, printer) == 0);
    CHECK_RESULT(vxkit_readings_free(readings), VXKIT_OK);
    CHECK_RESULT(vxkit_add_callback(session, ignore_change, NULL, &id), VXKIT_OK);
    CHECK_RESULT(vxkit_remove_callback(session, id), VXKIT_OK);
    CHECK_RESULT(vxkit_send_text(session, "No such printer", "FEED", 0, NULL), VXKIT_ERROR_COMMAND);
}

static void see_change(vxkit_session* session, int32_t change, const char* printer,
                       const char* old_name, uint32_t fields, void* user_data)
{
    struct Seen* const seen = user_data;
    int check_now;
    (void)fields;
    CHECK(change != VXKIT_CHANGE_RENAMED || strcmp(old_name, "") != 0);
    pthread_mutex_lock(&seen->mutex);
    check_now =
        change == VXKIT_CHANGE_CHANGED && strcmp(printer, seen->printer) == 0 && !seen->has_checked;
    if (check_now)
        seen->has_checked = 1;
    ++seen->changes;
    pthread_mutex_unlock(&seen->mutex);
    if (check_now)
        check_in_callback(session, printer);
}

static int changes_of(struct Seen* seen)
{
    int changes;
    pthread_mutex_lock(&seen->mutex);
    changes = seen->has_checked ? seen->changes : 0;
    pthread_mutex_unlock(&seen->mutex);
    return changes;
}

static char* json_of(vxkit_readings* readings, size_t index)
{
    size_t needed = 0;
    char* text;
    CHECK_RESULT(vxkit_reading_json(readings, index, NULL, 0, &needed),
                 VXKIT_ERROR_BUFFER_TOO_SMALL);
    text = malloc(needed);
    if (!text)
        abort();
    CHECK_RESULT(vxkit_reading_json(readings, index, text, needed, NULL), VXKIT_OK);
    return text;
}

static void check_reading(vxkit_readings* readings, size_t index, const char* printer)
{
    char text[1024];
    int64_t integer = 0;
    double number = 0;
    size_t count = 0;
    int32_t field;
    int32_t slot;
    char* json;

    CHECK_RESULT(vxkit_readings_count(readings, &count), VXKIT_OK);
    CHECK_RESULT(vxkit_reading_text(readings, count, VXKIT_TEXT_NAME, text, sizeof text, NULL),
                 VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_reading_json(readings, SIZE_MAX, text, sizeof text, NULL),
                 VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_reading_text(readings, index, VXKIT_TEXT_NAME, text, sizeof text, NULL),
                 VXKIT_OK);
    CHECK(strcmp(text, printer) == 0);
    CHECK_RESULT(
        vxkit_reading_text(readings, index, VXKIT_TEXT_GONE_SINCE, text, sizeof text, NULL),
        VXKIT_NONE);
    CHECK_RESULT(vxkit_reading_integer(readings, index, VXKIT_INTEGER_GONE_SINCE, &integer),
                 VXKIT_NONE);
    CHECK(integer == VXKIT_NO_INTEGER);
    for (field = 1; field <= VXKIT_TEXT_STATUS_REMEDY; ++field)
        CHECK(vxkit_reading_text(readings, index, field, text, sizeof text, NULL) >= 0);
    for (field = 1; field <= VXKIT_INTEGER_LAST_REPORT; ++field)
        CHECK(vxkit_reading_integer(readings, index, field, &integer) >= 0);
    for (slot = VXKIT_SLOT_SUPPLY; slot <= VXKIT_SLOT_RIBBON2; ++slot) {
        for (field = 1; field <= VXKIT_SLOT_TEXT_COLORS; ++field)
            CHECK(vxkit_slot_text(readings, index, slot, field, text, sizeof text, NULL) >= 0);
        for (field = 1; field <= VXKIT_SLOT_INTEGER_COARSE; ++field)
            CHECK(vxkit_slot_integer(readings, index, slot, field, &integer) >= 0);
        for (field = 1; field <= VXKIT_NUMBER_LABEL_PITCH_METERS; ++field)
            CHECK(vxkit_slot_number(readings, index, slot, field, &number) >= 0);
    }
    CHECK_RESULT(vxkit_reading_text(readings, index, 0, text, sizeof text, NULL),
                 VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(
        vxkit_reading_text(readings, index, VXKIT_TEXT_STATUS_REMEDY + 1, text, sizeof text, NULL),
        VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_reading_integer(readings, index, -1, &integer),
                 VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_reading_integer(readings, index, 1, NULL), VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_slot_text(readings, index, 3, 1, text, sizeof text, NULL),
                 VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_slot_integer(readings, index, -1, 1, &integer),
                 VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK_RESULT(vxkit_slot_number(readings, index, 0, 99, &number), VXKIT_ERROR_INVALID_ARGUMENT);
    CHECK(is_nan(number));
    CHECK_RESULT(vxkit_slot_number(readings, index, 0, 1, NULL), VXKIT_ERROR_INVALID_ARGUMENT);

    json = json_of(readings, index);
    CHECK(json[0] == '{' && json[strlen(json) - 1] == '}');
    printf("%s\n", json);
    free(json);
}

static void check_readings_of(vxkit_session* session, const char* printer)
{
    vxkit_readings* readings = NULL;
    size_t index = 0;
    step("read all printers");
    CHECK_RESULT(vxkit_read_all(session, &readings), VXKIT_OK);
    if (CHECK_RESULT(vxkit_readings_find(readings, printer, &index), VXKIT_OK))
        check_reading(readings, index, printer);
    CHECK_RESULT(vxkit_readings_find(readings, "No such printer", &index),
                 VXKIT_ERROR_NO_SUCH_PRINTER);
    CHECK(index == SIZE_MAX);
    CHECK_RESULT(vxkit_readings_free(readings), VXKIT_OK);
}

static int list(const char* printer)
{
    vxkit_session* session = NULL;
    CHECK_RESULT(vxkit_create(&session), VXKIT_OK);
    CHECK_RESULT(vxkit_start(session), VXKIT_OK);
    check_readings_of(session, printer);
    CHECK_RESULT(vxkit_destroy(session), VXKIT_OK);
    return failures != 0;
}

static int watch(const char* printer)
{
    struct Seen seen = {PTHREAD_MUTEX_INITIALIZER, NULL, 0, 0, 0};
    vxkit_session* session = NULL;
    vxkit_readings* readings = NULL;
    int64_t code = 0;
    int changes;

    seen.printer = printer;
    CHECK_RESULT(vxkit_create(&session), VXKIT_OK);
    CHECK_RESULT(vxkit_set_option(session, VXKIT_OPTION_LANGUAGE, "en"), VXKIT_OK);
    CHECK_RESULT(vxkit_add_callback(session, see_change, &seen, &seen.id), VXKIT_OK);
    if (!CHECK_RESULT(vxkit_start(session), VXKIT_OK))
        return 1;
    step("wait for a report");
    while (changes_of(&seen) == 0)
        rest();

    check_readings_of(session, printer);
    step("wait for a status");
    do {
        rest();
        CHECK_RESULT(vxkit_read(session, printer, &readings), VXKIT_OK);
        CHECK_RESULT(vxkit_reading_integer(readings, 0, VXKIT_INTEGER_STATUS_CODE, &code),
                     VXKIT_OK);
        CHECK_RESULT(vxkit_readings_free(readings), VXKIT_OK);
    } while (code == 255 && failures == 0);

    step("hear nothing after the callback was removed");
    CHECK_RESULT(vxkit_remove_callback(session, seen.id), VXKIT_OK);
    changes = changes_of(&seen);
    CHECK_RESULT(vxkit_stop(session), VXKIT_OK);
    CHECK(changes == changes_of(&seen));
    CHECK_RESULT(vxkit_start(session), VXKIT_OK);
    CHECK_RESULT(vxkit_read(session, printer, &readings), VXKIT_OK);
    CHECK_RESULT(vxkit_destroy(session), VXKIT_OK);
    CHECK_RESULT(vxkit_readings_free(readings), VXKIT_OK);
    return failures != 0;
}

static int be_forgetful(void)
{
    vxkit_session* session = NULL;
    uint64_t id = 0;
    CHECK_RESULT(vxkit_create(&session), VXKIT_OK);
    CHECK_RESULT(vxkit_add_callback(session, ignore_change, NULL, &id), VXKIT_OK);
    CHECK_RESULT(vxkit_start(session), VXKIT_OK);
    return failures != 0;
}

static int keep_the_locale(void)
{
    vxkit_session* session = NULL;
    char before[256];
    /* A program in C begins with the locale "C", and many keep it. */
    strncpy(before, setlocale(LC_ALL, NULL), sizeof before - 1);
    before[sizeof before - 1] = '\0';
    CHECK_RESULT(vxkit_create(&session), VXKIT_OK);
    CHECK_RESULT(vxkit_start(session), VXKIT_OK);
    CHECK(strcmp(before, setlocale(LC_ALL, NULL)) == 0);
    CHECK_RESULT(vxkit_destroy(session), VXKIT_OK);
    CHECK(strcmp(before, setlocale(LC_ALL, NULL)) == 0);
    return failures != 0;
}

int main(int argc, char* argv[])
{
    if (argc == 2 && strcmp(argv[1], "careless") == 0)
        return be_careless();
    if (argc == 2 && strcmp(argv[1], "forgetful") == 0)
        return be_forgetful();
    if (argc == 2 && strcmp(argv[1], "locale") == 0)
        return keep_the_locale();
    if (argc == 3 && strcmp(argv[1], "list") == 0)
        return list(argv[2]);
    if (argc == 3 && strcmp(argv[1], "watch") == 0)
        return watch(argv[2]);
    fprintf(stderr, "usage: c_host careless | forgetful | locale | list NAME | watch NAME\n");
    return 2;
}

// NOLINTEND(readability-identifier-naming)
