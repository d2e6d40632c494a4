// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The functions of the C interface: they check what the caller passes, and let no exception out.
#include "vxkit.h"

#include "c_handles.h"
#include "c_readings.h"
#include "c_session.h"
#include "c_text.h"
#include "printer_command.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <array>
#include <atomic>
#include <cstring>
#include <future>
#include <limits>
#include <optional>

// The functions have the names of the C interface.
// NOLINTBEGIN(readability-identifier-naming)

using namespace VxKit::c_interface;
using VxKit::CommandOptions;
using VxKit::CommandResult;
using VxKit::PrinterReading;
using VxKit::StatusInfo;

namespace {

using SessionHandles = Handles<vxkit_session, Session>;
using ReadingsHandles = Handles<vxkit_readings, Readings>;

// Neither is ever destroyed: other threads may call until the process has ended.
SessionHandles& sessions()
{
    static auto* const handles = new SessionHandles;
    return *handles;
}

ReadingsHandles& allReadings()
{
    static auto* const handles = new ReadingsHandles;
    return *handles;
}

vxkit_result failHandle(const char* what)
{
    return fail(VXKIT_ERROR_INVALID_HANDLE,
                QStringLiteral("%1 is not a valid handle: null, destroyed, or of something else")
                    .arg(QLatin1String(what)));
}

vxkit_result failNull(const char* what)
{
    return fail(VXKIT_ERROR_INVALID_ARGUMENT,
                QStringLiteral("%1 is null").arg(QLatin1String(what)));
}

/// Calls the function with the session.
template <typename Function>
vxkit_result withSession(const vxkit_session* handle, const Function& function) noexcept
{
    return guarded([&]() -> vxkit_result {
        const std::shared_ptr<Session> session = sessions().find(handle);
        return session ? function(*session) : failHandle("session");
    });
}

template <typename Function>
vxkit_result withReadings(const vxkit_readings* handle, const Function& function) noexcept
{
    return guarded([&]() -> vxkit_result {
        const std::shared_ptr<Readings> readings = allReadings().find(handle);
        return readings ? function(*readings) : failHandle("readings");
    });
}

/// Writes a text that the function finds to a caller's buffer.
template <typename Function>
vxkit_result writeTextOf(const vxkit_readings* handle, const TextBuffer& buffer,
                         const Function& function) noexcept
{
    return withReadings(handle, [&](const Readings& readings) -> vxkit_result {
        if (const vxkit_result result = buffer.check(); result != VXKIT_OK)
            return result;
        QString text;
        const vxkit_result result = function(readings, text);
        return result == VXKIT_OK ? buffer.write(text) : result;
    });
}

vxkit_result addReadings(const QList<PrinterReading>& printers, vxkit_readings** handle)
{
    *handle = allReadings().add(std::make_shared<Readings>(printers), VXKIT_MOST_READINGS);
    if (!*handle)
        return fail(VXKIT_ERROR_TOO_MANY,
                    QStringLiteral("there are %1 handles of readings already; free them with "
                                   "vxkit_readings_free")
                        .arg(VXKIT_MOST_READINGS));
    return VXKIT_OK;
}

/// Calls the function on a thread of its own, and waits for it. Qt keeps a record of each thread
/// that makes use of its threads and texts, and releases it when the thread ends; the main thread
/// of a host without Qt never ends for it.
template <typename Function>
auto onShortThread(const Function& function)
{
    return std::async(std::launch::async, function).get();
}

/// Calls the function with the language that the caller names, while the session runs.
template <typename Function>
vxkit_result withLanguage(const vxkit_session* handle, const char* language,
                          const TextBuffer& buffer, const Function& function) noexcept
{
    return withSession(handle, [&](Session& session) -> vxkit_result {
        if (const vxkit_result result = buffer.check(); result != VXKIT_OK)
            return result;
        QString tag;
        if (language) {
            if (const vxkit_result result = readText(language, VXKIT_LONGEST_NAME, "language", tag);
                result != VXKIT_OK)
                return result;
        }
        const Session::Call call(session);
        if (!call)
            return Session::failNotRunning();
        QString text;
        const vxkit_result result = function(tag, text);
        return result == VXKIT_OK ? buffer.write(text) : result;
    });
}

// Commands ////////////////////////////////////////////////////////////////////////////////////////

using Failure = CommandResult::Failure;
static_assert(VXKIT_FAILURE_NONE == static_cast<int>(Failure::None));
static_assert(VXKIT_FAILURE_EMPTY == static_cast<int>(Failure::Empty));
static_assert(VXKIT_FAILURE_FOREIGN_PRINTER == static_cast<int>(Failure::ForeignPrinter));
static_assert(VXKIT_FAILURE_CANNOT_OPEN_PRINTER == static_cast<int>(Failure::CannotOpenPrinter));
static_assert(VXKIT_FAILURE_CANNOT_READ_DRIVER == static_cast<int>(Failure::CannotReadDriver));
static_assert(VXKIT_FAILURE_CANNOT_START_DOCUMENT ==
              static_cast<int>(Failure::CannotStartDocument));
static_assert(VXKIT_FAILURE_CANNOT_START_PAGE == static_cast<int>(Failure::CannotStartPage));
static_assert(VXKIT_FAILURE_CANNOT_WRITE == static_cast<int>(Failure::CannotWrite));
static_assert(VXKIT_FAILURE_SHORT_WRITE == static_cast<int>(Failure::ShortWrite));
static_assert(VXKIT_FAILURE_CANNOT_END_PAGE == static_cast<int>(Failure::CannotEndPage));
static_assert(VXKIT_FAILURE_CANNOT_END_DOCUMENT == static_cast<int>(Failure::CannotEndDocument));

constexpr uint32_t allSendFlags = VXKIT_SEND_TO_ANY_PRINTER | VXKIT_SEND_EVEN_EMPTY;
/// The size of the record in the first version of the interface.
constexpr uint32_t firstResultSize = 24;
static_assert(sizeof(vxkit_command_result) == firstResultSize);

vxkit_result checkSend(uint32_t flags, vxkit_command_result* result)
{
    if (flags & ~allSendFlags)
        return fail(VXKIT_ERROR_INVALID_ARGUMENT,
                    QStringLiteral("flags is 0x%1, which has bits that are none of VXKIT_SEND_*")
                        .arg(flags, 0, 16));
    if (!result)
        return VXKIT_OK;
    if (result->size < firstResultSize)
        return fail(VXKIT_ERROR_INVALID_ARGUMENT,
                    QStringLiteral("result->size is %1; set it to sizeof(vxkit_command_result)")
                        .arg(result->size));
    *result = {result->size, VXKIT_FAILURE_NONE, 0, 0, 0};
    return VXKIT_OK;
}

/// Sends what the caller has passed and waits until the spooler has it.
template <typename Command>
vxkit_result sendAndWait(Session& session, const char* printer, const Command& command,
                         uint32_t flags, vxkit_command_result* result)
{
    QString name;
    if (const vxkit_result read = readText(printer, VXKIT_LONGEST_NAME, "printer", name);
        read != VXKIT_OK)
        return read;
    const Session::Call call(session);
    if (!call)
        return Session::failNotRunning();
    CommandOptions options;
    options.toAnyPrinter = flags & VXKIT_SEND_TO_ANY_PRINTER;
    options.evenEmpty = flags & VXKIT_SEND_EVEN_EMPTY;
    const std::optional<CommandResult> sent = onShortThread([&]() -> std::optional<CommandResult> {
        QFuture<CommandResult> future = VxKit::sendCommand(name, command, options);
        future.waitForFinished();
        if (future.resultCount() == 0)
            return std::nullopt;
        return future.result();
    });
    if (!sent)
        return fail(VXKIT_ERROR_NOT_RUNNING,
                    QStringLiteral("the host's application ended before the command was sent"));
    if (result)
        *result = {result->size, static_cast<int32_t>(sent->failure), sent->errorCode, sent->jobId,
                   sent->bytes};
    return sent->isSent() ? VXKIT_OK : fail(VXKIT_ERROR_COMMAND, sent->errorText);
}

struct ResultName
{
    vxkit_result result;
    const char* name;
};

constexpr std::array resultNames{
    ResultName{VXKIT_OK, "VXKIT_OK"},
    ResultName{VXKIT_UNKNOWN, "VXKIT_UNKNOWN"},
    ResultName{VXKIT_EMPTY, "VXKIT_EMPTY"},
    ResultName{VXKIT_NO_SLOT, "VXKIT_NO_SLOT"},
    ResultName{VXKIT_NONE, "VXKIT_NONE"},
    ResultName{VXKIT_ERROR_INVALID_ARGUMENT, "VXKIT_ERROR_INVALID_ARGUMENT"},
    ResultName{VXKIT_ERROR_INVALID_HANDLE, "VXKIT_ERROR_INVALID_HANDLE"},
    ResultName{VXKIT_ERROR_INVALID_TEXT, "VXKIT_ERROR_INVALID_TEXT"},
    ResultName{VXKIT_ERROR_TOO_LONG, "VXKIT_ERROR_TOO_LONG"},
    ResultName{VXKIT_ERROR_BUFFER_TOO_SMALL, "VXKIT_ERROR_BUFFER_TOO_SMALL"},
    ResultName{VXKIT_ERROR_NOT_RUNNING, "VXKIT_ERROR_NOT_RUNNING"},
    ResultName{VXKIT_ERROR_RUNNING, "VXKIT_ERROR_RUNNING"},
    ResultName{VXKIT_ERROR_BUSY, "VXKIT_ERROR_BUSY"},
    ResultName{VXKIT_ERROR_IN_CALLBACK, "VXKIT_ERROR_IN_CALLBACK"},
    ResultName{VXKIT_ERROR_NO_SUCH_PRINTER, "VXKIT_ERROR_NO_SUCH_PRINTER"},
    ResultName{VXKIT_ERROR_COMMAND, "VXKIT_ERROR_COMMAND"},
    ResultName{VXKIT_ERROR_TOO_MANY, "VXKIT_ERROR_TOO_MANY"},
    ResultName{VXKIT_ERROR_OUT_OF_MEMORY, "VXKIT_ERROR_OUT_OF_MEMORY"},
    ResultName{VXKIT_ERROR_FAILED, "VXKIT_ERROR_FAILED"},
};

} // namespace

std::uintptr_t VxKit::c_interface::nextHandle()
{
    static std::atomic<std::uintptr_t> last{1};
    return last.fetch_add(2) + 2;
}

uint32_t vxkit_interface_version()
{
    return VXKIT_INTERFACE_VERSION;
}

vxkit_result vxkit_library_version(char* buffer, size_t size, size_t* needed)
{
    return guarded(
        [&]() -> vxkit_result { return TextBuffer(buffer, size, needed).write(VX_VERSION); });
}

vxkit_result vxkit_result_name(vxkit_result result, char* buffer, size_t size, size_t* needed)
{
    return guarded([&]() -> vxkit_result {
        const TextBuffer text(buffer, size, needed);
        for (const ResultName& entry : resultNames) {
            if (entry.result == result)
                return text.write(entry.name);
        }
        return fail(VXKIT_ERROR_INVALID_ARGUMENT,
                    QStringLiteral("%1 is not a result of this library").arg(result));
    });
}

vxkit_result vxkit_last_error(char* buffer, size_t size, size_t* needed)
{
    return guarded([&]() -> vxkit_result {
        // A buffer that is too small must not cost the caller the text.
        const size_t length = std::strlen(lastError()) + 1;
        if (needed)
            *needed = length;
        if (!buffer && size > 0)
            return VXKIT_ERROR_INVALID_ARGUMENT;
        if (size > 0)
            *buffer = '\0';
        if (size < length)
            return VXKIT_ERROR_BUFFER_TOO_SMALL;
        std::memcpy(buffer, lastError(), length);
        return VXKIT_OK;
    });
}

// Sessions ////////////////////////////////////////////////////////////////////////////////////////

vxkit_result vxkit_create(vxkit_session** session)
{
    return guarded([&]() -> vxkit_result {
        if (!session)
            return failNull("session");
        *session = nullptr;
        const auto created = std::make_shared<Session>();
        vxkit_session* const handle = sessions().add(created, 1);
        if (!handle)
            return fail(VXKIT_ERROR_BUSY,
                        QStringLiteral("the process has a session already; destroy it before"));
        created->setHandle(handle);
        *session = handle;
        return VXKIT_OK;
    });
}

vxkit_result vxkit_set_option(vxkit_session* session, int32_t option, const char* value)
{
    return withSession(session, [&](Session& found) -> vxkit_result {
        QString text;
        if (value) {
            if (const vxkit_result result = readText(value, VXKIT_LONGEST_NAME, "value", text);
                result != VXKIT_OK)
                return result;
        }
        return found.setOption(option, text);
    });
}

vxkit_result vxkit_start(vxkit_session* session)
{
    return withSession(session, [](Session& found) -> vxkit_result { return found.start(); });
}

vxkit_result vxkit_stop(vxkit_session* session)
{
    return withSession(session, [](Session& found) -> vxkit_result { return found.stop(); });
}

vxkit_result vxkit_destroy(vxkit_session* session)
{
    return withSession(session, [&](Session& found) -> vxkit_result {
        // Not in a callback, and only by one of several callers, who all wait for it.
        const vxkit_result result = found.stop();
        if (result == VXKIT_OK && !sessions().take(session))
            return failHandle("session");
        return result == VXKIT_OK ? found.stop() : result;
    });
}

vxkit_result vxkit_is_running(vxkit_session* session, int64_t* running)
{
    if (running)
        *running = VXKIT_NO_INTEGER;
    return withSession(session, [&](const Session& found) -> vxkit_result {
        if (!running)
            return failNull("running");
        *running = found.isRunning() ? 1 : 0;
        return VXKIT_OK;
    });
}

// Printers ////////////////////////////////////////////////////////////////////////////////////////

vxkit_result vxkit_read_all(vxkit_session* session, vxkit_readings** readings)
{
    if (readings)
        *readings = nullptr;
    return withSession(session, [&](Session& found) -> vxkit_result {
        if (!readings)
            return failNull("readings");
        const Session::Call call(found); // the texts need its language
        QList<PrinterReading> printers;
        const vxkit_result result = found.readings(printers);
        return result == VXKIT_OK ? addReadings(printers, readings) : result;
    });
}

vxkit_result vxkit_read(vxkit_session* session, const char* printer, vxkit_readings** readings)
{
    if (readings)
        *readings = nullptr;
    return withSession(session, [&](Session& found) -> vxkit_result {
        if (!readings)
            return failNull("readings");
        QString name;
        if (const vxkit_result result = readText(printer, VXKIT_LONGEST_NAME, "printer", name);
            result != VXKIT_OK)
            return result;
        const Session::Call call(found);
        PrinterReading reading;
        const vxkit_result result = found.reading(name, reading);
        return result == VXKIT_OK ? addReadings({reading}, readings) : result;
    });
}

vxkit_result vxkit_readings_free(vxkit_readings* readings)
{
    return guarded(
        [&] { return allReadings().take(readings) ? VXKIT_OK : failHandle("readings"); });
}

vxkit_result vxkit_active_printer(vxkit_session* session, char* buffer, size_t size, size_t* needed)
{
    const TextBuffer text(buffer, size, needed);
    return withSession(session, [&](const Session& found) -> vxkit_result {
        QString name;
        if (const vxkit_result result = text.check(); result != VXKIT_OK)
            return result;
        const vxkit_result result = found.activePrinter(name);
        return result == VXKIT_OK ? text.write(name) : result;
    });
}

vxkit_result vxkit_readings_count(vxkit_readings* readings, size_t* count)
{
    if (count)
        *count = 0;
    return withReadings(readings, [&](const Readings& found) -> vxkit_result {
        if (!count)
            return failNull("count");
        *count = found.count();
        return VXKIT_OK;
    });
}

vxkit_result vxkit_readings_find(vxkit_readings* readings, const char* printer, size_t* index)
{
    if (index)
        *index = std::numeric_limits<size_t>::max();
    return withReadings(readings, [&](const Readings& found) -> vxkit_result {
        if (!index)
            return failNull("index");
        QString name;
        const vxkit_result result = readText(printer, VXKIT_LONGEST_NAME, "printer", name);
        return result == VXKIT_OK ? found.find(name, *index) : result;
    });
}

vxkit_result vxkit_reading_json(vxkit_readings* readings, size_t index, char* buffer, size_t size,
                                size_t* needed)
{
    return writeTextOf(
        readings, TextBuffer(buffer, size, needed),
        [&](const Readings& found, QString& text) { return found.json(index, text); });
}

vxkit_result vxkit_reading_text(vxkit_readings* readings, size_t index, int32_t field, char* buffer,
                                size_t size, size_t* needed)
{
    return writeTextOf(
        readings, TextBuffer(buffer, size, needed),
        [&](const Readings& found, QString& text) { return found.text(index, field, text); });
}

vxkit_result vxkit_reading_integer(vxkit_readings* readings, size_t index, int32_t field,
                                   int64_t* value)
{
    if (value)
        *value = VXKIT_NO_INTEGER;
    return withReadings(readings, [&](const Readings& found) -> vxkit_result {
        return value ? found.integer(index, field, *value) : failNull("value");
    });
}

vxkit_result vxkit_slot_text(vxkit_readings* readings, size_t index, int32_t slot, int32_t field,
                             char* buffer, size_t size, size_t* needed)
{
    return writeTextOf(readings, TextBuffer(buffer, size, needed),
                       [&](const Readings& found, QString& text) {
                           return found.slotText(index, slot, field, text);
                       });
}

vxkit_result vxkit_slot_integer(vxkit_readings* readings, size_t index, int32_t slot, int32_t field,
                                int64_t* value)
{
    if (value)
        *value = VXKIT_NO_INTEGER;
    return withReadings(readings, [&](const Readings& found) -> vxkit_result {
        return value ? found.slotInteger(index, slot, field, *value) : failNull("value");
    });
}

vxkit_result vxkit_slot_number(vxkit_readings* readings, size_t index, int32_t slot, int32_t field,
                               double* value)
{
    if (value)
        *value = std::numeric_limits<double>::quiet_NaN();
    return withReadings(readings, [&](const Readings& found) -> vxkit_result {
        return value ? found.slotNumber(index, slot, field, *value) : failNull("value");
    });
}

// Status codes ////////////////////////////////////////////////////////////////////////////////////

vxkit_result vxkit_status_severity(int32_t code, int64_t* severity)
{
    return guarded([&]() -> vxkit_result {
        if (!severity)
            return failNull("severity");
        *severity = static_cast<int64_t>(VxKit::statusSeverity(code));
        return VXKIT_OK;
    });
}

vxkit_result vxkit_status_text(vxkit_session* session, int32_t code, int32_t field,
                               const char* language, char* buffer, size_t size, size_t* needed)
{
    return withLanguage(session, language, TextBuffer(buffer, size, needed),
                        [&](const QString& tag, QString& text) -> vxkit_result {
                            const StatusInfo info =
                                onShortThread([&] { return VxKit::statusInfo(code, tag); });
                            return statusText(info, field, text);
                        });
}

vxkit_result vxkit_status_json(vxkit_session* session, int32_t code, const char* language,
                               char* buffer, size_t size, size_t* needed)
{
    return withLanguage(session, language, TextBuffer(buffer, size, needed),
                        [&](const QString& tag, QString& text) -> vxkit_result {
                            const StatusInfo info =
                                onShortThread([&] { return VxKit::statusInfo(code, tag); });
                            const QJsonDocument document(info.toJson());
                            text = QString::fromUtf8(document.toJson(QJsonDocument::Compact));
                            return VXKIT_OK;
                        });
}

vxkit_result vxkit_all_status_json(vxkit_session* session, const char* language, char* buffer,
                                   size_t size, size_t* needed)
{
    return withLanguage(session, language, TextBuffer(buffer, size, needed),
                        [&](const QString& tag, QString& text) -> vxkit_result {
                            QJsonArray array;
                            const QList<StatusInfo> infos =
                                onShortThread([&] { return VxKit::allStatusInfo(tag); });
                            for (const StatusInfo& info : infos)
                                array.append(info.toJson());
                            text = QString::fromUtf8(
                                QJsonDocument(array).toJson(QJsonDocument::Compact));
                            return VXKIT_OK;
                        });
}

// Changes and commands ////////////////////////////////////////////////////////////////////////////

vxkit_result vxkit_add_callback(vxkit_session* session, vxkit_callback callback, void* user_data,
                                uint64_t* id)
{
    if (id)
        *id = 0;
    return withSession(session, [&](Session& found) -> vxkit_result {
        if (!callback)
            return failNull("callback");
        return id ? found.addCallback(callback, user_data, *id) : failNull("id");
    });
}

vxkit_result vxkit_remove_callback(vxkit_session* session, uint64_t id)
{
    return withSession(session,
                       [&](Session& found) -> vxkit_result { return found.removeCallback(id); });
}

vxkit_result vxkit_send_text(vxkit_session* session, const char* printer, const char* text,
                             uint32_t flags, vxkit_command_result* result)
{
    return withSession(session, [&](Session& found) -> vxkit_result {
        if (const vxkit_result checked = checkSend(flags, result); checked != VXKIT_OK)
            return checked;
        QString command;
        if (const vxkit_result read = readText(text, VXKIT_LONGEST_TEXT, "text", command);
            read != VXKIT_OK)
            return read;
        return sendAndWait(found, printer, command, flags, result);
    });
}

vxkit_result vxkit_send_bytes(vxkit_session* session, const char* printer, const void* data,
                              size_t length, uint32_t flags, vxkit_command_result* result)
{
    return withSession(session, [&](Session& found) -> vxkit_result {
        if (const vxkit_result checked = checkSend(flags, result); checked != VXKIT_OK)
            return checked;
        if (!data && length > 0)
            return failNull("data");
        if (length > VXKIT_LONGEST_TEXT)
            return fail(VXKIT_ERROR_TOO_LONG,
                        QStringLiteral("data has more than %1 bytes").arg(VXKIT_LONGEST_TEXT));
        const QByteArray command(static_cast<const char*>(data), static_cast<qsizetype>(length));
        return sendAndWait(found, printer, command, flags, result);
    });
}

// NOLINTEND(readability-identifier-naming)
