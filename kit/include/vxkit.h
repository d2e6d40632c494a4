// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

// C has its own headers and names, and neither using nor constexpr.
// NOLINTBEGIN(modernize-*, readability-identifier-naming, cppcoreguidelines-*, misc-*)
#include <stddef.h>
#include <stdint.h>

/// @file
/// The C interface: the kit for hosts that are not written in C++, in plain C99. It is part of the
/// kit's library (`vxprinterstatuskit`). docs/c-interface.md is the guide to it.
///
/// @code
/// vxkit_session* session = NULL;
/// if (vxkit_create(&session) != VXKIT_OK || vxkit_start(session) != VXKIT_OK)
///     return fail();
/// vxkit_readings* printers = NULL;
/// if (vxkit_read_all(session, &printers) == VXKIT_OK) {
///     size_t count = 0;
///     vxkit_readings_count(printers, &count);
///     for (size_t i = 0; i < count; ++i) {
///         char name[256];
///         double ratio;
///         vxkit_reading_text(printers, i, VXKIT_TEXT_NAME, name, sizeof name, NULL);
///         switch (vxkit_slot_number(printers, i, VXKIT_SLOT_SUPPLY, VXKIT_NUMBER_RATIO, &ratio)) {
///         case VXKIT_OK:
///             printf("%s: %.0f %% left\n", name, 100 * ratio);
///             break;
///         case VXKIT_EMPTY:
///             printf("%s: nothing is loaded\n", name);
///             break;
///         default:
///             printf("%s: not known how much is left\n", name);
///         }
///     }
///     vxkit_readings_free(printers);
/// }
/// vxkit_destroy(session);
/// @endcode
///
/// **Results.** Every function but `vxkit_interface_version` returns a `vxkit_result`: `VXKIT_OK`,
/// a positive number when there is no value to return (`VXKIT_UNKNOWN`, `VXKIT_EMPTY`,
/// `VXKIT_NO_SLOT`, `VXKIT_NONE`), or a negative number for an error. Nothing that is not known is
/// ever returned as 0. Unless a function returns `VXKIT_OK`, it sets the values that it should
/// return to something that cannot be taken for one: a handle to null, a double to NaN, an integer
/// to `VXKIT_NO_INTEGER`, a text to an empty one. `vxkit_last_error` says in words what was wrong.
///
/// **Texts** are UTF-8 and end with a zero byte, in both directions. Texts that are returned are
/// written to a buffer of the caller: `buffer` with room for `size` bytes. `*needed` is set to the
/// number of bytes that the text needs with its zero byte; `needed` may be null. When the buffer is
/// too small, the result is `VXKIT_ERROR_BUFFER_TOO_SMALL` and the buffer has an empty text, never
/// a part. `buffer` may be null when `size` is 0, to ask for the number. Nothing that the library
/// has allocated is ever freed by the caller. Texts that are passed in may have at most
/// `VXKIT_LONGEST_NAME` or `VXKIT_LONGEST_TEXT` bytes, as the function says.
///
/// **Handles** (`vxkit_session*`, `vxkit_readings*`) are not addresses, and their numbers are not
/// used again: a handle that is null, was destroyed, or belongs to something else is answered with
/// `VXKIT_ERROR_INVALID_HANDLE`. Addresses of the caller's own variables, buffers and texts must be
/// valid or null; the library cannot check them.
///
/// **Threads.** Every function may be called on any thread, by several at the same time. Sessions
/// work on threads of their own. Functions that read do not wait for the print spooler: they
/// return what was reported last. Those that wait say so.
///
/// **Callbacks** are called one after the other on a thread of the session's own, which is another
/// one at each start and ends when the session is stopped. While a callback runs, printers are
/// watched and can be read, but no other callback is called: reports of one printer that arrive
/// meanwhile are told as one. A callback may call every function but `vxkit_stop` and
/// `vxkit_destroy`, which return `VXKIT_ERROR_IN_CALLBACK` and do nothing. It must return: it must
/// not end its thread or the process, nor jump out with longjmp. A C++ exception that leaves it is
/// dropped.
///
/// **Other things of the process.** A session needs a Qt application object. When the host has one
/// (a `QCoreApplication`), it is used; when the host destroys it, the session is stopped. When
/// there is none, the session makes one on its own thread, which exists until the session is
/// stopped. Then only:
/// - the session registers appenders with the global log of CuteLogger, as `VXKIT_OPTION_LOG_FILE`
///   describes;
/// - the language is that of `VXKIT_OPTION_LANGUAGE`;
/// - a host must not create an application object of its own while the session runs;
/// - on systems other than Windows, Qt calls setlocale when the first session starts. The locale is
///   set back at once, but other threads should not format numbers meanwhile.
///
/// A host that ends without stopping its session may do so. After a fork only the parent may use
/// the library.
///
/// **Texts for people**, such as titles, are in the session's language. Those of
/// `vxkit_last_error` are for developers and logs, in English, except the reason why a command was
/// not sent, which is in the session's language.
///
/// **Versions.** `vxkit_interface_version` is that of the library that is loaded, and
/// `VXKIT_INTERFACE_VERSION` that of this header. As long as the major number stays the same,
/// functions and constants are only added, and nothing that exists changes its meaning or number. A
/// host should expect numbers of changes, models and the like that it does not know.

#if defined(_WIN32)
#define VXKIT_CALL __cdecl
#if defined(VX_KIT_BUILD)
#define VXKIT_API __declspec(dllexport)
#else
#define VXKIT_API __declspec(dllimport)
#endif
#else
#define VXKIT_CALL
#define VXKIT_API __attribute__((visibility("default")))
#endif

#if defined(__cplusplus)
extern "C" {
#endif

/// The version of this header: the major number, which changes when something was removed or has
/// another meaning, and the minor number, which changes when something was added.
#define VXKIT_INTERFACE_MAJOR 1
#define VXKIT_INTERFACE_MINOR 0
#define VXKIT_INTERFACE_VERSION ((uint32_t)VXKIT_INTERFACE_MAJOR << 16 | VXKIT_INTERFACE_MINOR)

/// The largest number of bytes of a name or an option's value, without the zero byte.
#define VXKIT_LONGEST_NAME 4096
/// The largest number of bytes of a command.
#define VXKIT_LONGEST_TEXT 16777216
/// How many handles of readings may exist at the same time.
#define VXKIT_MOST_READINGS 10000
/// How many callbacks a session may have.
#define VXKIT_MOST_CALLBACKS 1000
/// What an integer is set to when there is no value.
#define VXKIT_NO_INTEGER INT64_MIN

typedef int32_t vxkit_result;

enum
{
    VXKIT_OK = 0,

    /// There is no value, for one of these reasons.
    VXKIT_UNKNOWN = 1, ///< not known: not reported yet, or the catalogue does not tell
    VXKIT_EMPTY = 2,   ///< the printer reports that nothing is loaded in the slot
    VXKIT_NO_SLOT = 3, ///< printers of this model do not have the slot
    VXKIT_NONE = 4,    ///< there is none: no active printer, or no time at which a printer that is
                       ///< present was removed

    /// Errors.
    VXKIT_ERROR_INVALID_ARGUMENT = -1, ///< a null pointer, or a number that is none of those listed
    VXKIT_ERROR_INVALID_HANDLE = -2,   ///< null, destroyed, freed, or the handle of something else
    VXKIT_ERROR_INVALID_TEXT = -3,     ///< a text that is not UTF-8
    VXKIT_ERROR_TOO_LONG = -4,         ///< a text that is longer than the function allows
    VXKIT_ERROR_BUFFER_TOO_SMALL = -5, ///< `*needed` says how large the buffer must be
    VXKIT_ERROR_NOT_RUNNING = -6,      ///< the session was not started, or is stopped
    VXKIT_ERROR_RUNNING = -7,          ///< the session runs already
    VXKIT_ERROR_BUSY = -8,             ///< the process has a session already
    VXKIT_ERROR_IN_CALLBACK = -9,      ///< the function may not be called by a callback
    VXKIT_ERROR_NO_SUCH_PRINTER = -10, ///< there is no reading of a printer with this name
    VXKIT_ERROR_COMMAND = -11,         ///< the command was not sent, or only in part
    VXKIT_ERROR_TOO_MANY = -12,        ///< as many handles or callbacks exist as there may be
    VXKIT_ERROR_OUT_OF_MEMORY = -13,
    VXKIT_ERROR_FAILED = -14, ///< something else failed; `vxkit_last_error` says what
};

/// A session: everything that finds and watches the printers.
typedef struct vxkit_session vxkit_session;
/// Readings of one or more printers, all taken at the same time. They never change, and they remain
/// when the session is stopped.
typedef struct vxkit_readings vxkit_readings;

/// The interface version of the library that is loaded, in the form of `VXKIT_INTERFACE_VERSION`. A
/// host may run with this library if the upper 16 bits are the same as those of the header that it
/// was compiled with, and the lower 16 bits are not less.
VXKIT_API uint32_t VXKIT_CALL vxkit_interface_version(void);

/// The version of the product, such as "1.0.0".
VXKIT_API vxkit_result VXKIT_CALL vxkit_library_version(char* buffer, size_t size, size_t* needed);

/// The name of a result, such as "VXKIT_ERROR_BUSY".
VXKIT_API vxkit_result VXKIT_CALL vxkit_result_name(vxkit_result result, char* buffer, size_t size,
                                                    size_t* needed);

/// What was wrong with the last call on this thread that returned an error: one line of at most
/// 1000 bytes, in which texts of the caller are shown shortened and escaped. It is empty when none
/// has. Calls that succeed do not change it, and neither does this function.
VXKIT_API vxkit_result VXKIT_CALL vxkit_last_error(char* buffer, size_t size, size_t* needed);

/// @name Sessions
/// @{

/// Creates a session, which does nothing before `vxkit_start`. A process can have one session:
/// while there is one, the result is `VXKIT_ERROR_BUSY`.
VXKIT_API vxkit_result VXKIT_CALL vxkit_create(vxkit_session** session);

/// What can be set before a session is started.
enum
{
    /// The path of the catalogue (`roll.db`) with the names and lengths of supplies and ribbons.
    /// Otherwise it is the file `roll.db` beside the executable of the process, which is that of
    /// the interpreter for hosts in Python and the like. A file that does not exist is no error:
    /// then names and lengths are not known.
    VXKIT_OPTION_CATALOGUE = 1,
    /// The language of texts for people, as a tag such as "de" or "zh-CN"; otherwise that of the
    /// user. There are texts in English, German, Spanish, French, Italian, Japanese and simplified
    /// Chinese; for other languages they are in English. It cannot be set when the host has a Qt
    /// application, which then determines the language: `vxkit_start` returns
    /// `VXKIT_ERROR_FAILED`.
    VXKIT_OPTION_LANGUAGE = 2,
    /// The path of a file to which the library's log is appended. Otherwise only warnings are
    /// logged, to standard error. As with the language, it cannot be set when the host has a Qt
    /// application.
    VXKIT_OPTION_LOG_FILE = 3,
    /// The path of a file in which it is recorded what printers use (docs/history.md). From it the
    /// session learns how long rolls and ribbons last, so that it can estimate it from the start
    /// (`VXKIT_NUMBER_SECONDS_REMAINING_*`). The file and its folder are created when they are
    /// missing. One process writes to a file at a time: another goes on without recording, tries
    /// again every second, and logs a warning, as it does when the file cannot be written. Without
    /// this option nothing is recorded, and the session learns from what is reported while it runs.
    VXKIT_OPTION_HISTORY = 4,
};

/// Sets an option for the next start. Null or an empty value sets it back. At most
/// `VXKIT_LONGEST_NAME` bytes.
VXKIT_API vxkit_result VXKIT_CALL vxkit_set_option(vxkit_session* session, int32_t option,
                                                   const char* value);

/// Starts to find and watch printers. Returns when each printer that the spooler lists has a
/// reading, so it waits for the print spooler. What the printers report follows moments later. A
/// session that was stopped can be started again. It takes some seconds longer when much is to be
/// learned from a history.
///
/// On systems other than Windows the printers are virtual, and the environment variable
/// `VX_VIRTUAL_FLEET` names them (docs/virtual-printers.md). When it names a fleet that cannot be
/// used, the process ends with one line on standard error, as for every program.
VXKIT_API vxkit_result VXKIT_CALL vxkit_start(vxkit_session* session);

/// Ends everything that the session does, and waits for it: for calls of the spooler and for calls
/// of other threads with this session that are in progress, and for a callback that runs. After
/// that no callback is called. The session keeps its options and callbacks. `VXKIT_OK` also when
/// it was not running.
VXKIT_API vxkit_result VXKIT_CALL vxkit_stop(vxkit_session* session);

/// Stops and destroys the session. Its handle is not valid any more, except when the result is
/// `VXKIT_ERROR_IN_CALLBACK`.
VXKIT_API vxkit_result VXKIT_CALL vxkit_destroy(vxkit_session* session);

/// Sets `*running` to 1 while the session runs, else to 0. It also ends when the host's Qt
/// application is destroyed.
VXKIT_API vxkit_result VXKIT_CALL vxkit_is_running(vxkit_session* session, int64_t* running);
/// @}

/// @name Printers
/// @{

/// Takes the readings of all printers of supported models, in the order of their names: also of
/// those that are offline, that the user may not administer, that are reached over a network, and
/// of those that were removed while the session ran. Free them with `vxkit_readings_free`.
VXKIT_API vxkit_result VXKIT_CALL vxkit_read_all(vxkit_session* session, vxkit_readings** readings);

/// Takes the reading of one printer, which has the index 0. `VXKIT_ERROR_NO_SUCH_PRINTER` when
/// there is no printer of a supported model with exactly this name. At most `VXKIT_LONGEST_NAME`
/// bytes.
VXKIT_API vxkit_result VXKIT_CALL vxkit_read(vxkit_session* session, const char* printer,
                                             vxkit_readings** readings);

/// Frees readings. Their handle is not valid any more.
VXKIT_API vxkit_result VXKIT_CALL vxkit_readings_free(vxkit_readings* readings);

/// The name of the active printer, which the host works with. It may be a printer without a
/// reading. `VXKIT_NONE` when there is none.
VXKIT_API vxkit_result VXKIT_CALL vxkit_active_printer(vxkit_session* session, char* buffer,
                                                       size_t size, size_t* needed);

/// How many printers the readings are of. Their indexes are 0 to `*count - 1`; for every other
/// index the functions below return `VXKIT_ERROR_INVALID_ARGUMENT`. Without a value `*count` is 0.
VXKIT_API vxkit_result VXKIT_CALL vxkit_readings_count(vxkit_readings* readings, size_t* count);

/// The index of the printer with exactly this name, or `VXKIT_ERROR_NO_SUCH_PRINTER`; then
/// `*index` is `SIZE_MAX`. At most `VXKIT_LONGEST_NAME` bytes.
VXKIT_API vxkit_result VXKIT_CALL vxkit_readings_find(vxkit_readings* readings, const char* printer,
                                                      size_t* index);

/// The whole reading as a JSON object on one line, as docs/schema/reading.schema.json describes it.
/// What is not known is null in it.
VXKIT_API vxkit_result VXKIT_CALL vxkit_reading_json(vxkit_readings* readings, size_t index,
                                                     char* buffer, size_t size, size_t* needed);

/// Texts of a reading. A text that is not known is `VXKIT_UNKNOWN`; what of them depends on the
/// printer has the form and the words of the JSON.
enum
{
    VXKIT_TEXT_NAME = 1,          ///< the printer's name in the print spooler
    VXKIT_TEXT_MODEL = 2,         ///< the model's name, such as "CedarMax"
    VXKIT_TEXT_DRIVER = 3,        ///< the driver's name
    VXKIT_TEXT_PORT = 4,          ///< the port's name, with every "USB" removed
    VXKIT_TEXT_SERIAL_NUMBER = 5, ///< the USB device's serial number
    VXKIT_TEXT_PRESENCE = 6,      ///< "present" or "gone"
    VXKIT_TEXT_GONE_SINCE = 7,    ///< RFC 3339; `VXKIT_NONE` while the printer is present
    VXKIT_TEXT_WATCHING = 8,      ///< whether it is watched, or why not, such as "networkPrinter"
    VXKIT_TEXT_FIRMWARE_VERSION = 9, ///< the firmware's version
    VXKIT_TEXT_BOOT_VERSION = 10,    ///< the boot loader's version
    VXKIT_TEXT_ETHERNET_CONFIG = 11, ///< the network settings, as the driver publishes them
    VXKIT_TEXT_LAST_REPORT = 12,     ///< when the printer last reported anything, as RFC 3339
    VXKIT_TEXT_STATUS_KEY = 13,      ///< a name of the status that never changes: "out_of_labels"
    VXKIT_TEXT_SEVERITY = 14,        ///< "ok", "information", "warning" or "error"
    VXKIT_TEXT_STATUS_TITLE = 15,    ///< what the status is, for people; may have a line break
    VXKIT_TEXT_STATUS_SHORT_TITLE = 16, ///< the same for tables, on one line
    VXKIT_TEXT_STATUS_EXPLANATION = 17, ///< what has happened, for people
    VXKIT_TEXT_STATUS_REMEDY = 18,      ///< what to do, for people
};
VXKIT_API vxkit_result VXKIT_CALL vxkit_reading_text(vxkit_readings* readings, size_t index,
                                                     int32_t field, char* buffer, size_t size,
                                                     size_t* needed);

/// Integers of a reading.
enum
{
    VXKIT_INTEGER_STATUS_CODE = 1,     ///< 1 is ready; docs/status-codes.md lists the codes
    VXKIT_INTEGER_SEVERITY = 2,        ///< `VXKIT_SEVERITY_*`
    VXKIT_INTEGER_ONLINE = 3,          ///< 1 when the printer is present and not offline, else 0
    VXKIT_INTEGER_ACTIVE = 4,          ///< 1 when it is the active printer, else 0
    VXKIT_INTEGER_PRESENT = 5,         ///< 1 when the print spooler lists the printer, else 0
    VXKIT_INTEGER_WATCHED = 6,         ///< 1 when it is watched, else 0
    VXKIT_INTEGER_MODEL = 7,           ///< `VXKIT_MODEL_*`
    VXKIT_INTEGER_UPDATE_PROGRESS = 8, ///< of a firmware update, as the driver publishes it
    VXKIT_INTEGER_UPDATE_ERROR = 9,    ///< the same; 0 is no error
    VXKIT_INTEGER_GONE_SINCE = 10,  ///< milliseconds since 1970 in UTC; `VXKIT_NONE` while present
    VXKIT_INTEGER_LAST_REPORT = 11, ///< milliseconds since 1970 in UTC
};
/// How much a status matters to the person who wants to print.
enum
{
    VXKIT_SEVERITY_OK = 0,          ///< the printer can print
    VXKIT_SEVERITY_INFORMATION = 1, ///< nothing is wrong: wait, or look elsewhere
    VXKIT_SEVERITY_WARNING = 2,     ///< it does not print now or soon, but nothing is broken
    VXKIT_SEVERITY_ERROR = 3,       ///< it does not print until somebody does something
};
enum
{
    VXKIT_MODEL_UNKNOWN = 0,
    VXKIT_MODEL_GENERIC = 10,
    VXKIT_MODEL_ALDER = 101,     ///< two ribbons; reports what is left in percent
    VXKIT_MODEL_BIRCH_MAX = 102, ///< one ribbon
    VXKIT_MODEL_CEDAR_MAX = 103, ///< one ribbon
    VXKIT_MODEL_ALDER_MAX = 104, ///< two ribbons
};
VXKIT_API vxkit_result VXKIT_CALL vxkit_reading_integer(vxkit_readings* readings, size_t index,
                                                        int32_t field, int64_t* value);
/// @}

/// @name Slots: what is loaded in a printer, and how much of it is left
///
/// For each of these functions, `VXKIT_EMPTY` means that the printer reports that nothing is
/// loaded, `VXKIT_UNKNOWN` that the value is not known, and `VXKIT_NO_SLOT` that printers of this
/// model have no such slot. A ratio of 0 with `VXKIT_OK` means that the roll has been used up.
/// @{
enum
{
    VXKIT_SLOT_SUPPLY = 0,
    VXKIT_SLOT_RIBBON1 = 1,
    VXKIT_SLOT_RIBBON2 = 2, ///< only the models with two ribbons have it
};

enum
{
    VXKIT_SLOT_TEXT_STATE = 1,      ///< "notKnown", "empty", "loaded" or "notInCatalogue"
    VXKIT_SLOT_TEXT_IDENTIFIER = 2, ///< what is loaded, as the driver publishes it
    VXKIT_SLOT_TEXT_SKU = 3,        ///< the stock-keeping unit, by the catalogue
    VXKIT_SLOT_TEXT_NAME = 4,       ///< a name for people, such as "Yellow Vinyl"
    VXKIT_SLOT_TEXT_MATERIAL = 5,   ///< the material of a supply, or the type of a ribbon
    VXKIT_SLOT_TEXT_COLOR_NAME = 6, ///< the name of the first colour, for people
    /// The colours as "#rrggbb", with a space between them: a supply's colours, or those of a
    /// ribbon's panels.
    VXKIT_SLOT_TEXT_COLORS = 7,
};
VXKIT_API vxkit_result VXKIT_CALL vxkit_slot_text(vxkit_readings* readings, size_t index,
                                                  int32_t slot, int32_t field, char* buffer,
                                                  size_t size, size_t* needed);

enum
{
    VXKIT_SLOT_INTEGER_STATE = 1,         ///< `VXKIT_STATE_*`; always known
    VXKIT_SLOT_INTEGER_LABELS = 2,        ///< whole labels left; unknown for what has no labels
    VXKIT_SLOT_INTEGER_LABELS_ACROSS = 3, ///< labels side by side; unknown for what has no labels
    VXKIT_SLOT_INTEGER_PERCENT = 4,       ///< what is left, in whole percents, rounded down
    VXKIT_SLOT_INTEGER_MILEAGE = 5,       ///< the raw value that the driver publishes
    VXKIT_SLOT_INTEGER_MILEAGE_UNIT = 6,  ///< `VXKIT_UNIT_*`; always known
    /// 1 when the printer reports whole percents only, so that metres, ratio and labels are exact
    /// to one percent of the roll; else 0. Always known.
    VXKIT_SLOT_INTEGER_COARSE = 7,
};
enum
{
    VXKIT_STATE_NOT_KNOWN = 0,
    VXKIT_STATE_EMPTY = 1,
    VXKIT_STATE_LOADED = 2,
    VXKIT_STATE_NOT_IN_CATALOGUE = 3, ///< loaded, but the catalogue is missing or has no entry
};
enum
{
    VXKIT_UNIT_MILLIMETERS = 0,
    VXKIT_UNIT_PERCENT = 1,
};
VXKIT_API vxkit_result VXKIT_CALL vxkit_slot_integer(vxkit_readings* readings, size_t index,
                                                     int32_t slot, int32_t field, int64_t* value);

enum
{
    VXKIT_NUMBER_RATIO = 1,              ///< what is left, from 0 to 1
    VXKIT_NUMBER_METERS = 2,             ///< what is left, in metres
    VXKIT_NUMBER_TOTAL_METERS = 3,       ///< the length of a new roll or ribbon, in metres
    VXKIT_NUMBER_LABEL_PITCH_METERS = 4, ///< from one label to the next, in metres

    /// In how many seconds it will have been used up: with a probability of 10, 50 and 90 percent
    /// in at most so many. They are estimated at each report, and once a minute. Unknown until
    /// enough was reported or learned from a history (`VXKIT_OPTION_HISTORY`).
    VXKIT_NUMBER_SECONDS_REMAINING_P10 = 5,
    VXKIT_NUMBER_SECONDS_REMAINING_P50 = 6,
    VXKIT_NUMBER_SECONDS_REMAINING_P90 = 7,
};
VXKIT_API vxkit_result VXKIT_CALL vxkit_slot_number(vxkit_readings* readings, size_t index,
                                                    int32_t slot, int32_t field, double* value);
/// @}

/// @name What a status code means
///
/// Every number has an answer: a code that is not known has the key "printer_error" and the
/// severity `VXKIT_SEVERITY_ERROR`. Texts need a session that runs, because it has the language.
/// `language` is a tag as for `VXKIT_OPTION_LANGUAGE`; null or an empty text is the session's
/// language.
/// @{
VXKIT_API vxkit_result VXKIT_CALL vxkit_status_severity(int32_t code, int64_t* severity);

enum
{
    VXKIT_STATUS_KEY = 1,
    VXKIT_STATUS_TITLE = 2,
    VXKIT_STATUS_SHORT_TITLE = 3,
    VXKIT_STATUS_EXPLANATION = 4,
    VXKIT_STATUS_REMEDY = 5,
    VXKIT_STATUS_SEVERITY = 6, ///< "ok", "information", "warning" or "error"
};
VXKIT_API vxkit_result VXKIT_CALL vxkit_status_text(vxkit_session* session, int32_t code,
                                                    int32_t field, const char* language,
                                                    char* buffer, size_t size, size_t* needed);
/// All of it as a JSON object with the members "code", "key", "severity", "title", "shortTitle",
/// "explanation" and "remedy".
VXKIT_API vxkit_result VXKIT_CALL vxkit_status_json(vxkit_session* session, int32_t code,
                                                    const char* language, char* buffer, size_t size,
                                                    size_t* needed);
/// A JSON array of these objects for all codes that have an entry of their own, in ascending order.
VXKIT_API vxkit_result VXKIT_CALL vxkit_all_status_json(vxkit_session* session,
                                                        const char* language, char* buffer,
                                                        size_t size, size_t* needed);
/// @}

/// @name Changes
/// @{
enum
{
    VXKIT_CHANGE_ADDED = 1,   ///< a printer has a reading for the first time, or is listed again
    VXKIT_CHANGE_CHANGED = 2, ///< a printer reported, or something else about it changed
    VXKIT_CHANGE_GONE = 3,    ///< the spooler does not list the printer any more; its reading stays
    VXKIT_CHANGE_RENAMED = 4, ///< the printer has a new name, under which it is read from now on
    VXKIT_CHANGE_ACTIVE = 5,  ///< another printer is the active one; `printer` is empty for none
};

/// What differs from the reading before, as bits.
enum
{
    VXKIT_CHANGED_NAME = 0x1,
    VXKIT_CHANGED_MODEL = 0x2,
    VXKIT_CHANGED_DRIVER = 0x4,
    VXKIT_CHANGED_PORT = 0x8,
    VXKIT_CHANGED_SERIAL_NUMBER = 0x10,
    VXKIT_CHANGED_PRESENCE = 0x20,
    VXKIT_CHANGED_WATCHING = 0x40,
    VXKIT_CHANGED_STATUS = 0x80,
    VXKIT_CHANGED_ONLINE = 0x100,
    VXKIT_CHANGED_ACTIVE = 0x200,
    VXKIT_CHANGED_FIRMWARE = 0x400,
    VXKIT_CHANGED_UPDATE = 0x800,
    VXKIT_CHANGED_ETHERNET_CONFIG = 0x1000,
    VXKIT_CHANGED_LAST_REPORT = 0x2000, ///< alone: a report with nothing new
    VXKIT_CHANGED_SUPPLY = 0x4000,
    VXKIT_CHANGED_RIBBON1 = 0x8000,
    VXKIT_CHANGED_RIBBON2 = 0x10000,
};

/// Is called for every change. The new reading can be read already. `printer` is its name, and
/// `old_name` the one before for `VXKIT_CHANGE_RENAMED`, else an empty text; both are valid until
/// the callback returns. `fields` are bits of `VXKIT_CHANGED_*`; 0 for `VXKIT_CHANGE_ACTIVE`, and
/// for a report with nothing new in the same millisecond as the one before.
typedef void(VXKIT_CALL* vxkit_callback)(vxkit_session* session, int32_t change,
                                         const char* printer, const char* old_name, uint32_t fields,
                                         void* user_data);

/// Has a function called for every change from now on, also after the session was stopped and
/// started again. `user_data` is passed on as it is. To miss nothing, add the callback first and
/// read the printers then: those that are there when the session starts are not reported as added.
/// `*id` is never 0, except without a value.
VXKIT_API vxkit_result VXKIT_CALL vxkit_add_callback(vxkit_session* session,
                                                     vxkit_callback callback, void* user_data,
                                                     uint64_t* id);

/// Ends this. When the function has returned, the callback is not called any more, so that what
/// `user_data` refers to may be freed. For that it waits until a call in progress has returned,
/// except when it is called by a callback itself. `VXKIT_ERROR_INVALID_ARGUMENT` when there is no
/// callback with that id.
VXKIT_API vxkit_result VXKIT_CALL vxkit_remove_callback(vxkit_session* session, uint64_t id);
/// @}

/// @name Commands
/// @{
enum
{
    /// Also send to printers of other makers and of unsupported models, which print the command as
    /// text, or something worse.
    VXKIT_SEND_TO_ANY_PRINTER = 0x1,
    /// Also send a command without any character. As text it still has a line end.
    VXKIT_SEND_EVEN_EMPTY = 0x2,
};

/// The step that failed.
enum
{
    VXKIT_FAILURE_NONE = 0,
    VXKIT_FAILURE_EMPTY = 1,               ///< refused: the command is empty
    VXKIT_FAILURE_FOREIGN_PRINTER = 2,     ///< refused: not a printer of a supported model
    VXKIT_FAILURE_CANNOT_OPEN_PRINTER = 3, ///< it does not exist, or the rights are missing
    VXKIT_FAILURE_CANNOT_READ_DRIVER = 4,
    VXKIT_FAILURE_CANNOT_START_DOCUMENT = 5,
    VXKIT_FAILURE_CANNOT_START_PAGE = 6,
    VXKIT_FAILURE_CANNOT_WRITE = 7,
    VXKIT_FAILURE_SHORT_WRITE = 8, ///< the spooler took only a part of the command
    VXKIT_FAILURE_CANNOT_END_PAGE = 9,
    VXKIT_FAILURE_CANNOT_END_DOCUMENT = 10,
};

/// What became of a command.
typedef struct vxkit_command_result
{
    /// `sizeof(vxkit_command_result)`, set by the caller. Later versions may have more members;
    /// only those that the caller has room for are set.
    uint32_t size;
    int32_t failure;       ///< `VXKIT_FAILURE_*`
    uint32_t system_error; ///< the system's error code; 0 when no system call failed
    uint32_t job;          ///< the job's number in the printer's queue; 0 when there is none
    int64_t bytes;         ///< how many bytes the spooler took
} vxkit_command_result;

/// Sends a command in the printer's own language as a raw print job of one page, and waits until
/// the print spooler has it; what the printer makes of it appears in its next report. A carriage
/// return and a line feed are added, and the text is converted to the system's 8-bit code page.
/// `flags` are bits of `VXKIT_SEND_*`, or 0. `result` may be null. At most `VXKIT_LONGEST_TEXT`
/// bytes.
///
/// Returns `VXKIT_OK` when the spooler has the whole command, and `VXKIT_ERROR_COMMAND` when not:
/// then `*result` says which step failed, and `vxkit_last_error` why. Half a command is not
/// printed.
VXKIT_API vxkit_result VXKIT_CALL vxkit_send_text(vxkit_session* session, const char* printer,
                                                  const char* text, uint32_t flags,
                                                  vxkit_command_result* result);
/// The same for bytes, which are sent exactly as they are. `data` may be null when `length` is 0.
VXKIT_API vxkit_result VXKIT_CALL vxkit_send_bytes(vxkit_session* session, const char* printer,
                                                   const void* data, size_t length, uint32_t flags,
                                                   vxkit_command_result* result);
/// @}

#if defined(__cplusplus)
} // extern "C"
#endif

// NOLINTEND(modernize-*, readability-identifier-naming, cppcoreguidelines-*, misc-*)
