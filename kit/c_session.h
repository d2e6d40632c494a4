// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "c_host_process.h"
#include "printer_reading.h"
#include "vxkit.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

class QEventLoop;
namespace VxKit {
class PrinterReadings;
}

namespace VxKit::c_interface {

/// A session of the C interface: a controller with readings and discovery on the work thread, and
/// copies of what they tell, which every thread can read without waiting for them. Callbacks are
/// called on a further thread, which ends with the session: runtimes such as Mono wait for every
/// thread that has called into them.
class Session : public std::enable_shared_from_this<Session>
{
public:
    Session() = default;
    ~Session() = default;
    Q_DISABLE_COPY_MOVE(Session)

    /// The number that callbacks are given.
    void setHandle(vxkit_session* handle) { m_handle = handle; }

    vxkit_result setOption(int32_t option, const QString& value);
    vxkit_result start();
    vxkit_result stop();
    bool isRunning() const;
    /// Whether this is called by one of the session's callbacks.
    bool isInCallback() const;

    /// All functions below fail when the session does not run.
    vxkit_result readings(QList<PrinterReading>& result) const;
    vxkit_result reading(const QString& printer, PrinterReading& result) const;
    vxkit_result activePrinter(QString& result) const;

    vxkit_result addCallback(vxkit_callback callback, void* userData, uint64_t& id);
    vxkit_result removeCallback(uint64_t id);

    /// While it lives, the session does not stop. False when it does not run.
    class Call
    {
    public:
        explicit Call(Session& session);
        ~Call();
        Q_DISABLE_COPY_MOVE(Call)
        explicit operator bool() const { return m_isCounted; }

    private:
        Session& m_session;
        bool m_isCounted = false;
    };
    /// The failure of a function that needs a session that runs.
    static vxkit_result failNotRunning();

private:
    enum class State
    {
        Idle,
        Starting,
        Running,
        Stopping,
    };
    struct Change
    {
        int32_t kind = 0;
        QByteArray printer;
        QByteArray oldName;
        uint32_t fields = 0;
    };
    class CallbackThread;
    struct Callback
    {
        uint64_t id = 0;
        vxkit_callback function = nullptr;
        void* userData = nullptr;
        bool isRemoved = false;
        bool isBeingCalled = false;
    };

    void run();
    void watch(const SessionOptions& options);
    void runLoop(QEventLoop& loop);
    void estimate(const PrinterReadings& readings);
    void follow(PrinterReadings& readings);
    void takeAll(const PrinterReadings& readings);
    void tell(const PrinterReadings& readings, int32_t change, const QString& printer,
              const QString& oldName = QString());
    void enqueue(const Change& change);
    void callBack();
    void call(const Change& change, std::unique_lock<std::mutex>& lock);

    vxkit_session* m_handle = nullptr;
    std::atomic<std::thread::id> m_callbackThread;

    // All of these are guarded by the mutex.
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    State m_state = State::Idle;
    uint64_t m_endedRuns = 0;
    int m_calls = 0;
    QEventLoop* m_loop = nullptr; ///< of the thread, while the session runs
    QString m_error;              ///< why the session could not be started, or has ended
    SessionOptions m_options;
    std::map<QString, PrinterReading> m_readings;
    QString m_activePrinter;
    std::vector<std::shared_ptr<Callback>> m_callbacks;
    uint64_t m_lastId = 0;
    std::deque<Change> m_changes; ///< that callbacks have not been told yet
    bool m_areCallbacksEnding = false;
};

} // namespace VxKit::c_interface
