// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "c_session.h"

#include "c_text.h"
#include "c_work_thread.h"
#include "printer_discovery.h"
#include "printer_forecasts.h"
#include "printer_readings.h"
#include "printer_status_controller.h"
#include "usage_history.h"
#include "usage_history_reader.h"
#include "vx_ipc_supplyd_controller.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtCore/QLoggingCategory>
#include <QtCore/QScopeGuard>
#include <QtCore/QTimer>

#include <algorithm>
#include <chrono>
#include <exception>
#include <optional>

namespace VxKit::c_interface {

namespace {

Q_LOGGING_CATEGORY(kitLog, "vx.kit")

// The bits of the C interface are those of the readings.
using Field = PrinterReading::Field;
static_assert(VXKIT_CHANGED_NAME == static_cast<int>(Field::Name));
static_assert(VXKIT_CHANGED_MODEL == static_cast<int>(Field::Model));
static_assert(VXKIT_CHANGED_DRIVER == static_cast<int>(Field::Driver));
static_assert(VXKIT_CHANGED_PORT == static_cast<int>(Field::Port));
static_assert(VXKIT_CHANGED_SERIAL_NUMBER == static_cast<int>(Field::SerialNumber));
static_assert(VXKIT_CHANGED_PRESENCE == static_cast<int>(Field::Presence));
static_assert(VXKIT_CHANGED_WATCHING == static_cast<int>(Field::Watching));
static_assert(VXKIT_CHANGED_STATUS == static_cast<int>(Field::Status));
static_assert(VXKIT_CHANGED_ONLINE == static_cast<int>(Field::Online));
static_assert(VXKIT_CHANGED_ACTIVE == static_cast<int>(Field::Active));
static_assert(VXKIT_CHANGED_FIRMWARE == static_cast<int>(Field::Firmware));
static_assert(VXKIT_CHANGED_UPDATE == static_cast<int>(Field::Update));
static_assert(VXKIT_CHANGED_ETHERNET_CONFIG == static_cast<int>(Field::EthernetConfig));
static_assert(VXKIT_CHANGED_LAST_REPORT == static_cast<int>(Field::LastReport));
static_assert(VXKIT_CHANGED_SUPPLY == static_cast<int>(Field::Supply));
static_assert(VXKIT_CHANGED_RIBBON1 == static_cast<int>(Field::Ribbon1));
static_assert(VXKIT_CHANGED_RIBBON2 == static_cast<int>(Field::Ribbon2));

/// The session that uses the host's application object, and so ends before it.
std::mutex guestMutex;
std::weak_ptr<Session>& guest()
{
    static auto* const session = new std::weak_ptr<Session>;
    return *session;
}

void stopGuest()
{
    const std::shared_ptr<Session> session = [] {
        const std::lock_guard guard(guestMutex);
        return guest().lock();
    }();
    if (session)
        session->stop();
}

/// Has the session stopped when the host's application object is destroyed.
class Guest
{
public:
    explicit Guest(const std::weak_ptr<Session>& session)
    {
        {
            const std::lock_guard guard(guestMutex);
            guest() = session;
        }
        qAddPostRoutine(stopGuest);
    }
    ~Guest()
    {
        qRemovePostRoutine(stopGuest);
        const std::lock_guard guard(guestMutex);
        guest().reset();
    }
    Q_DISABLE_COPY_MOVE(Guest)
};

/// Learns from the history how long rolls last, and goes on recording it.
std::unique_ptr<UsageHistory> followHistory(const QString& fileName, PrinterReadings& readings,
                                            PrinterForecasts& forecasts)
{
    const UsageHistoryReader past(fileName);
    if (past.errorString().isEmpty())
        forecasts.learn(past);
    else if (!past.isMissing())
        qCWarning(kitLog, "nothing is learned from the history, which cannot be read: %s",
                  qUtf8Printable(past.errorString()));
    UsageHistoryOptions options;
    options.fileName = fileName;
    auto history = std::make_unique<UsageHistory>(&readings, options);
    QObject::connect(
        history.get(), &UsageHistory::writingFailed, &readings, [](const QString& reason) {
            qCWarning(kitLog, "the history cannot be written: %s", qUtf8Printable(reason));
        });
    QObject::connect(history.get(), &UsageHistory::fileSetAside, &readings,
                     [](const QString& newName, const QString& reason) {
                         qCWarning(kitLog, "the history was damaged (%s); it is now %s",
                                   qUtf8Printable(reason), qUtf8Printable(newName));
                     });
    return history;
}

/// The session that runs, for the end of the process.
std::mutex currentMutex;
std::weak_ptr<Session>& current()
{
    // Never destroyed, like the thread.
    static auto* const session = new std::weak_ptr<Session>;
    return *session;
}

void stopAtExit()
{
    const std::shared_ptr<Session> session = [] {
        const std::lock_guard guard(currentMutex);
        return current().lock();
    }();
    // A host that ends the process in a callback does not get its session stopped.
    if (session && session->isInCallback())
        return;
    if (session)
        session->stop();
    WorkThread::instance().end();
}

} // namespace

bool Session::isInCallback() const
{
    return m_callbackThread.load() == std::this_thread::get_id();
}

bool Session::isRunning() const
{
    const std::lock_guard guard(m_mutex);
    return m_state == State::Running;
}

vxkit_result Session::failNotRunning()
{
    return fail(VXKIT_ERROR_NOT_RUNNING,
                QStringLiteral("the session does not run; call vxkit_start before"));
}

vxkit_result Session::setOption(int32_t option, const QString& value)
{
    const std::lock_guard guard(m_mutex);
    if (m_state != State::Idle)
        return fail(VXKIT_ERROR_RUNNING,
                    QStringLiteral("options are set before vxkit_start; the session runs already"));
    switch (option) {
    case VXKIT_OPTION_CATALOGUE:
        m_options.catalogue = value;
        return VXKIT_OK;
    case VXKIT_OPTION_LANGUAGE:
        if (bool isKnown = false; localeOf(value, &isKnown), !isKnown)
            return fail(VXKIT_ERROR_INVALID_ARGUMENT,
                        QStringLiteral("%1 is not a language, such as \"de\" or \"zh-CN\"")
                            .arg(quoted(value)));
        m_options.language = value;
        return VXKIT_OK;
    case VXKIT_OPTION_LOG_FILE:
        m_options.logFile = value;
        return VXKIT_OK;
    case VXKIT_OPTION_HISTORY:
        m_options.history = value;
        return VXKIT_OK;
    default:
        return fail(VXKIT_ERROR_INVALID_ARGUMENT,
                    QStringLiteral("option is %1, which is none of VXKIT_OPTION_*").arg(option));
    }
}

// Starting and stopping ///////////////////////////////////////////////////////////////////////////

vxkit_result Session::start()
{
    std::unique_lock lock(m_mutex);
    // Whoever stops it on another thread is waited for.
    m_changed.wait(lock, [this] { return m_state != State::Stopping || isInCallback(); });
    if (m_state != State::Idle)
        return fail(VXKIT_ERROR_RUNNING, QStringLiteral("the session runs already"));
    WorkThread::instance().start([self = shared_from_this()] { self->run(); });
    m_state = State::Starting;
    m_error.clear();
    const uint64_t ended = m_endedRuns;
    m_changed.wait(lock, [&] { return m_state != State::Starting || m_endedRuns != ended; });
    return m_error.isEmpty() ? VXKIT_OK : fail(VXKIT_ERROR_FAILED, m_error);
}

vxkit_result Session::stop()
{
    if (isInCallback())
        return fail(VXKIT_ERROR_IN_CALLBACK,
                    QStringLiteral("a callback cannot stop or destroy its session; do it on "
                                   "another thread"));
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_state != State::Starting; });
    // Another thread may start it again before this one notices that it has ended.
    const uint64_t ended = m_endedRuns;
    const auto hasEnded = [&] {
        return m_state == State::Idle || m_endedRuns != ended;
    };
    if (m_state == State::Running)
        m_state = State::Stopping;
    m_changed.wait(lock, [&] { return m_calls == 0 || hasEnded(); });
    if (!hasEnded() && m_loop)
        QMetaObject::invokeMethod(m_loop, &QEventLoop::quit, Qt::QueuedConnection);
    m_changed.wait(lock, hasEnded);
    return VXKIT_OK;
}

void Session::run()
{
    QString error;
    try {
        watch([this] {
            const std::lock_guard guard(m_mutex);
            return m_options;
        }());
    } catch (const std::exception& exception) {
        error = QString::fromUtf8(exception.what());
    } catch (...) {
        error = QStringLiteral("an exception of an unknown kind");
    }
    const std::lock_guard guard(m_mutex);
    m_error = error;
    m_readings.clear();
    m_activePrinter.clear();
    m_state = State::Idle;
    ++m_endedRuns;
    m_changed.notify_all();
}

/// The thread on which callbacks are called, while it lives.
class Session::CallbackThread
{
public:
    explicit CallbackThread(Session& session)
        : m_session(session)
        , m_thread(&Session::callBack, &session)
    {}
    ~CallbackThread()
    {
        {
            const std::lock_guard guard(m_session.m_mutex);
            m_session.m_areCallbacksEnding = true;
            m_session.m_changed.notify_all();
        }
        m_thread.join();
        const std::lock_guard guard(m_session.m_mutex);
        m_session.m_areCallbacksEnding = false;
        m_session.m_changes.clear();
    }
    Q_DISABLE_COPY_MOVE(CallbackThread)

private:
    Session& m_session;
    std::thread m_thread;
};

void Session::watch(const SessionOptions& options)
{
    const bool isGuest = QCoreApplication::instance() != nullptr;
    const HostProcess process(options);
    // Before everything that starts timers: the thread has none until it has a loop.
    QEventLoop loop;
    PrinterStatusController controller;
    if (!options.catalogue.isEmpty())
        controller.getSupplyIdController()->setCatalogueFile(options.catalogue);
    PrinterReadings readings(&controller);
    PrinterDiscovery discovery(&controller);
    QObject::connect(&discovery, &PrinterDiscovery::printersChanged, &readings,
                     &PrinterReadings::refresh);
    PrinterForecasts forecasts(&readings);
    const std::unique_ptr<UsageHistory> history =
        options.history.isEmpty() ? nullptr : followHistory(options.history, readings, forecasts);
    follow(readings);
    QTimer minutes;
    QObject::connect(&minutes, &QTimer::timeout, &readings, [&] { estimate(readings); });
    minutes.start(std::chrono::minutes(1));
    std::optional<Guest> guest;
    if (isGuest)
        guest.emplace(weak_from_this());
    {
        const std::lock_guard guard(currentMutex);
        current() = weak_from_this();
    }
    // Now that Qt's own objects exist, so that they are destroyed after the session has stopped.
    callAtExit(stopAtExit);
    const CallbackThread callbacks(*this);
    runLoop(loop);
}

void Session::runLoop(QEventLoop& loop)
{
    const auto setLoop = [this](QEventLoop* current) {
        const std::lock_guard guard(m_mutex);
        m_loop = current;
        if (current)
            m_state = State::Running;
        m_changed.notify_all();
    };
    setLoop(&loop);
    const auto forgetLoop = qScopeGuard([&] { setLoop(nullptr); });
    loop.exec();
}

Session::Call::Call(Session& session)
    : m_session(session)
{
    const std::lock_guard guard(session.m_mutex);
    m_isCounted = session.m_state == State::Running;
    if (m_isCounted)
        ++session.m_calls;
}

Session::Call::~Call()
{
    if (!m_isCounted)
        return;
    const std::lock_guard guard(m_session.m_mutex);
    --m_session.m_calls;
    m_session.m_changed.notify_all();
}

// Reading /////////////////////////////////////////////////////////////////////////////////////////

vxkit_result Session::readings(QList<PrinterReading>& result) const
{
    const std::lock_guard guard(m_mutex);
    if (m_state != State::Running)
        return failNotRunning();
    result.reserve(static_cast<qsizetype>(m_readings.size()));
    for (const auto& [name, reading] : m_readings)
        result.append(reading);
    return VXKIT_OK;
}

vxkit_result Session::reading(const QString& printer, PrinterReading& result) const
{
    const std::lock_guard guard(m_mutex);
    if (m_state != State::Running)
        return failNotRunning();
    const auto found = m_readings.find(printer);
    if (found == m_readings.end())
        return fail(VXKIT_ERROR_NO_SUCH_PRINTER,
                    QStringLiteral("there is no label printer %1").arg(quoted(printer)));
    result = found->second;
    return VXKIT_OK;
}

vxkit_result Session::activePrinter(QString& result) const
{
    const std::lock_guard guard(m_mutex);
    if (m_state != State::Running)
        return failNotRunning();
    result = m_activePrinter;
    return result.isEmpty() ? VXKIT_NONE : VXKIT_OK;
}

// Changes /////////////////////////////////////////////////////////////////////////////////////////

void Session::follow(PrinterReadings& readings)
{
    takeAll(readings);
    using Readings = PrinterReadings;
    const auto tellWhen = [&](auto signal, int32_t change) {
        QObject::connect(
            &readings, signal, &readings,
            [this, &readings, change](const QString& name) { tell(readings, change, name); });
    };
    tellWhen(&Readings::added, VXKIT_CHANGE_ADDED);
    tellWhen(&Readings::changed, VXKIT_CHANGE_CHANGED);
    tellWhen(&Readings::gone, VXKIT_CHANGE_GONE);
    QObject::connect(&readings, &Readings::renamed, &readings,
                     [this, &readings](const QString& oldName, const QString& newName) {
                         tell(readings, VXKIT_CHANGE_RENAMED, newName, oldName);
                     });
    QObject::connect(&readings, &Readings::activePrinterChanged, &readings,
                     [this](const QString& name) {
                         {
                             const std::lock_guard guard(m_mutex);
                             m_activePrinter = name;
                         }
                         enqueue({VXKIT_CHANGE_ACTIVE, name.toUtf8(), {}, 0});
                     });
}

void Session::takeAll(const PrinterReadings& readings)
{
    const QList<PrinterReading> all = readings.readings();
    const QString active = readings.activePrinter();
    const std::lock_guard guard(m_mutex);
    m_readings.clear();
    for (const PrinterReading& reading : all)
        m_readings.emplace(reading.name(), reading);
    m_activePrinter = active;
}

/// Has the readings carry what is estimated now. Whatever else is new in them is told by a signal.
void Session::estimate(const PrinterReadings& readings)
{
    const QList<PrinterReading> estimated = readings.readings();
    const std::lock_guard guard(m_mutex);
    for (const PrinterReading& reading : estimated) {
        const auto found = m_readings.find(reading.name());
        if (found == m_readings.end())
            continue;
        for (const Slot slot : {Slot::Supply, Slot::Ribbon1, Slot::Ribbon2})
            found->second.setEstimatedSecondsRemaining(slot,
                                                       reading.estimatedSecondsRemaining(slot));
    }
}

void Session::tell(const PrinterReadings& readings, int32_t change, const QString& printer,
                   const QString& oldName)
{
    const PrinterReading reading = readings.reading(printer);
    PrinterReading before;
    {
        const std::lock_guard guard(m_mutex);
        const auto found = m_readings.find(oldName.isEmpty() ? printer : oldName);
        if (found != m_readings.end()) {
            before = found->second;
            m_readings.erase(found);
        }
        // It may have been renamed again in the meantime.
        if (!reading.isNull())
            m_readings.insert_or_assign(printer, reading);
    }
    enqueue({change, printer.toUtf8(), oldName.toUtf8(),
             static_cast<uint32_t>(reading.differences(before).toInt())});
}

void Session::enqueue(const Change& change)
{
    const std::lock_guard guard(m_mutex);
    if (m_callbacks.empty())
        return;
    // Reports of one printer are told together when callbacks are slower than they arrive.
    if (change.kind == VXKIT_CHANGE_CHANGED) {
        const auto earlier =
            std::find_if(m_changes.rbegin(), m_changes.rend(), [&](const Change& each) {
                return each.printer == change.printer && each.kind != VXKIT_CHANGE_ACTIVE;
            });
        if (earlier != m_changes.rend() && earlier->kind == VXKIT_CHANGE_CHANGED) {
            earlier->fields |= change.fields;
            return;
        }
    }
    m_changes.push_back(change);
    m_changed.notify_all();
}

void Session::callBack()
{
    m_callbackThread = std::this_thread::get_id();
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_areCallbacksEnding || !m_changes.empty(); });
        if (m_areCallbacksEnding)
            break;
        const Change change = m_changes.front();
        m_changes.pop_front();
        call(change, lock);
    }
    m_callbackThread = std::thread::id();
}

void Session::call(const Change& change, std::unique_lock<std::mutex>& lock)
{
    const std::vector<std::shared_ptr<Callback>> all = m_callbacks;
    for (const std::shared_ptr<Callback>& callback : all) {
        // From the moment at which somebody waits for the session to stop, nothing is told.
        if (callback->isRemoved || m_state != State::Running)
            continue;
        callback->isBeingCalled = true;
        lock.unlock();
        try {
            callback->function(m_handle, change.kind, change.printer.constData(),
                               change.oldName.constData(), change.fields, callback->userData);
        } catch (...) {
            qCWarning(kitLog, "a callback of the C interface has thrown an exception, which is "
                              "dropped");
        }
        lock.lock();
        callback->isBeingCalled = false;
        m_changed.notify_all();
    }
}

vxkit_result Session::addCallback(vxkit_callback callback, void* userData, uint64_t& id)
{
    const std::lock_guard guard(m_mutex);
    if (m_callbacks.size() >= VXKIT_MOST_CALLBACKS)
        return fail(
            VXKIT_ERROR_TOO_MANY,
            QStringLiteral("the session has %1 callbacks already").arg(VXKIT_MOST_CALLBACKS));
    const auto added = std::make_shared<Callback>();
    added->id = ++m_lastId;
    added->function = callback;
    added->userData = userData;
    m_callbacks.push_back(added);
    id = added->id;
    return VXKIT_OK;
}

vxkit_result Session::removeCallback(uint64_t id)
{
    std::unique_lock lock(m_mutex);
    const auto found = std::ranges::find(m_callbacks, id, &Callback::id);
    if (found == m_callbacks.end())
        return fail(VXKIT_ERROR_INVALID_ARGUMENT,
                    QStringLiteral("there is no callback with the id %1").arg(id));
    const std::shared_ptr<Callback> callback = *found;
    m_callbacks.erase(found);
    callback->isRemoved = true;
    if (!isInCallback())
        m_changed.wait(lock, [&] { return !callback->isBeingCalled; });
    return VXKIT_OK;
}

} // namespace VxKit::c_interface
