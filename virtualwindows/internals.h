// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "functions.h"
#include "virtualwindows/machine.h"

#include <QtCore/QHash>
#include <QtCore/QMap>

#include <array>
#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

#include <windows.h>
#include <winspool.h>
#include <winsvc.h>

namespace virtualwindows {

class ApiCall;
class ArgumentTexts;
struct Printer;

/// The object behind a handle.
struct Object
{
    enum class Kind
    {
        Event,
        ChangeNotification,
        Printer,
        ServiceManager,
        Service,
    };

    Object(Kind objectKind, Function function)
        : kind(objectKind)
        , openedBy(function)
    {}
    virtual ~Object() = default;
    Q_DISABLE_COPY_MOVE(Object)

    const Kind kind;
    const Function openedBy;
};

struct Waiter;

/// An object that can be waited for.
struct Waitable : Object
{
    using Object::Object;

    bool signalled = false;
    bool manualReset = true;
    std::vector<Waiter*> waiters;
};

struct Event final : Waitable
{
    Event()
        : Waitable(Kind::Event, Function::CreateEventW)
    {}
};

/// The status that a job had at some time.
struct JobStatus
{
    DWORD job;
    DWORD status;
};

/// A change notification. It is signalled from the first change that matches its filter until it is
/// re-armed. Changes in between are collected, so none is lost between the wake-up and the
/// re-arming.
struct ChangeNotification final : Waitable
{
    ChangeNotification()
        : Waitable(Kind::ChangeNotification, Function::FindFirstPrinterChangeNotification)
    {}

    std::shared_ptr<Printer> printer; ///< null: all printers of the spooler
    QString openedAs;                 ///< the printer's name when it was opened
    DWORD filter = 0;
    DWORD changes = 0;
    bool reportsJobStatuses = false; ///< the status of a job was asked for as a detail
    std::vector<JobStatus> jobStatuses;
    bool lostJobStatuses = false; ///< there were more than are collected
    bool dead = false;            ///< its printer handle was closed, or the spooler was stopped
};

struct Value
{
    DWORD type = REG_NONE;
    QByteArray narrow; ///< as the 8-bit functions return it
    QByteArray wide;   ///< as the wide functions return it

    static Value fromNarrow(DWORD type, const QByteArray& data);
    static Value fromWide(DWORD type, const QByteArray& data);
};

/// A printer of the spooler. It exists as long as it is listed or handles to it are open.
struct Printer
{
    PrinterSetup setup;
    QString comment;
    QString location;
    QString shareName;
    bool deleted = false;
    QMap<QByteArray, Value> values; ///< by lower-case name, because registry names ignore case
    QList<PrintJob> jobs;

    DWORD writeLimit = 0xFFFFFFFF; ///< in bytes a call

    // The job that is being printed.
    quint32 jobInPrint = 0; ///< 0: none
    bool isMoving = false;  ///< it is not held, and is done at the time `jobDone`
    std::chrono::nanoseconds jobDone{};
    std::chrono::nanoseconds timeLeft{}; ///< while the job is held
};

struct PrinterHandleObject final : Object
{
    explicit PrinterHandleObject(Function function)
        : Object(Kind::Printer, function)
    {}

    std::shared_ptr<Printer> printer; ///< null: the print server
    QString openedAs;                 ///< the name that was given
    ACCESS_MASK access = 0;
    bool dead = false;
    quint32 openJob = 0; ///< number of the job being written; 0: none
    bool pageOpen = false;
    std::vector<std::weak_ptr<ChangeNotification>> notifications; ///< registered on this handle
};

struct ServiceObject final : Object
{
    using Object::Object;
    DWORD access = 0;
};

/// A waiting thread. The thread that satisfies its wait completes the wait under the lock and wakes
/// it. So a woken thread is no longer waiting, whether it has run yet or not.
struct Waiter
{
    std::vector<std::shared_ptr<Waitable>> objects; ///< null for an object that is never signalled
    bool all = false;
    bool done = false;
    DWORD result = WAIT_FAILED;
    bool endless = false;
    QString lastOpened; ///< the name by which the thread opened a printer last
    std::chrono::steady_clock::time_point deadline;
    std::chrono::milliseconds drivenDeadline{};
    std::condition_variable wake;
};

struct FailurePlan
{
    int from = 0; ///< the number of the call since the last reset
    bool onwards = false;
    DWORD error = 0;
};

/// A CallFailure that has not happened yet.
struct NextFailure
{
    CallFailure failure;
    Qt::HANDLE planner; ///< the thread that planned it
};

struct DeviceClass
{
    QString guid;
    QList<DeviceSetup> devices;
    /// Indices in the list by case-folded key name.
    QHash<QString, qsizetype> places;
};

struct Machine::Private
{
    mutable std::mutex lock;

    // Handles.
    quintptr nextHandle = 0x10000;
    std::unordered_map<quintptr, std::shared_ptr<Object>> objects;
    QList<HandleMisuse> misuses;

    // The spooler.
    QList<std::shared_ptr<Printer>> printers;
    QHash<QString, std::shared_ptr<Printer>> byName; ///< the first of each name
    QString defaultPrinter;
    DWORD spoolerState = SERVICE_RUNNING;
    quint32 nextJob = 1;
    std::vector<std::weak_ptr<ChangeNotification>> notifications;
    std::vector<Printer*> movingPrinters; ///< those on which a job is being printed and not held
    QList<DeviceClass> deviceClasses;

    // Calls.
    std::array<std::atomic<int>, functionNames.size()> counts{};
    /// Calls are recorded, a hook is set or a failure is planned.
    std::atomic<bool> attention = false;
    bool recording = false;
    QList<Call> calls;
    std::function<void(const Call&)> hook;
    std::array<QList<FailurePlan>, functionNames.size()> failures;
    QList<NextFailure> nextFailures;

    // Time and waits.
    bool driven = false;
    std::chrono::milliseconds drivenNow{};
    std::vector<Waiter*> waiting;
    bool holdsNotifications = false;
    bool failsOnlyAsPlanned = false;
    std::condition_variable waitingChanged;
    int watchers = 0; ///< threads in waitForWaitingThreads()

    /// Records a counted call and runs the hook. Returns the error that the call is planned to fail
    /// with, or 0.
    DWORD beginWatched(Function function, int number, const ArgumentTexts& arguments);
    void updateAttention();
    /// Uses up the first failure of failNextCall() that matches the call. Returns its error, or 0.
    DWORD takeNextFailure(Function function, const ArgumentTexts& arguments);
    /// The printer's name as CallFailure::printer describes it.
    QString printerOf(Function function, const ArgumentTexts& arguments) const;

    // With the lock held, all of them.
    HANDLE open(const std::shared_ptr<Object>& object);
    /// The object of a handle. Null: the last error is set, and a misuse is recorded unless the
    /// handle is INVALID_HANDLE_VALUE, which programs use for "no handle".
    template <typename Wanted>
    std::shared_ptr<Wanted> find(HANDLE handle, Object::Kind kind, const ApiCall& call)
    {
        return std::static_pointer_cast<Wanted>(findObject(handle, kind, call));
    }
    std::shared_ptr<Object> findObject(HANDLE handle, Object::Kind kind, const ApiCall& call);
    /// Removes a handle from the table. Null as above.
    template <typename Wanted = Object>
    std::shared_ptr<Wanted> close(HANDLE handle, Object::Kind kind, const ApiCall& call)
    {
        return std::static_pointer_cast<Wanted>(closeObject(handle, kind, call));
    }
    std::shared_ptr<Object> closeObject(HANDLE handle, Object::Kind kind, const ApiCall& call);
    void recordMisuse(HandleMisuse::Kind kind, HANDLE handle, const ApiCall& call,
                      const char* what);

    void signal(Waitable& object);
    bool trySatisfy(Waiter& waiter);
    void finish(Waiter& waiter, DWORD result);
    /// The wait of the thread that opened a printer by this name last. Null if it does not wait.
    Waiter* waiterOf(const QString& printer) const;
    /// The printer that this thread waits for. Null if it waits for none.
    Printer* watchedBy(const QString& printer) const;
    DWORD wait(std::span<const HANDLE> handles, bool all, DWORD milliseconds, const ApiCall& call);
    /// Blocks until the wait is over.
    void block(Waiter& waiter, std::unique_lock<std::mutex>& guard);
    /// Lets driven time pass to a moment and ends the waits that have timed out by then.
    void passTimeTo(std::chrono::milliseconds moment);

    std::shared_ptr<Printer> printerNamed(const QString& name) const;
    void add(const std::shared_ptr<Printer>& printer);
    void addName(const std::shared_ptr<Printer>& printer);
    /// To be called after a printer was renamed or removed.
    void rebuildNames();
    /// Signals a change; `job` is the job whose status has changed, if one has.
    void notify(const Printer* printer, DWORD change, const PrintJob* job = nullptr);

    // Jobs that print.
    std::chrono::nanoseconds now() const;
    /// When the next job will have been printed, if one is being printed.
    std::optional<std::chrono::nanoseconds> nextJobDone() const;
    /// Brings the jobs up to date with the time.
    void catchUp();
    /// Brings the printer's jobs up to date. To be called after anything has changed that holds or
    /// releases them.
    void updateJobs(Printer& printer);
    void changeJob(Printer& printer, PrintJob& job, DWORD status);
    void setJob(Printer& printer, const JobSetup& setup);
    /// Removes a job from the queue, deleted before it was printed, or as soon as the printer has
    /// what is on its way.
    void deleteJob(Printer& printer, quint32 id);
    void stopPrinting(Printer& printer);
    void removePrinter(Printer& printer);
    void setSpoolerState(DWORD state);
    bool isSpoolerRunning() const { return spoolerState == SERVICE_RUNNING || failsOnlyAsPlanned; }
    /// The error for handles from before the spooler was stopped, which changes when it runs again.
    DWORD errorOfDeadHandles() const
    {
        return isSpoolerRunning() ? ERROR_INVALID_HANDLE : RPC_S_SERVER_UNAVAILABLE;
    }
};

inline Machine::Private& machine()
{
    return Machine::instance().internals();
}

/// Sets the last error and returns the result of a failing call. Calls that succeed leave the last
/// error alone, so it is set only where a call fails.
template <typename Result>
Result failWith(DWORD error, Result result)
{
    SetLastError(error);
    return result;
}

/// Null for a null pointer.
inline QString fromWide(LPCWSTR wideText)
{
    return wideText ? QString::fromUtf16(wideText) : QString();
}

QString textOf(HANDLE handle);

/// The name by which the calling thread opened a printer last, or tried to.
QString& lastOpenedPrinter();

/// The arguments of a call as the log shows them.
class ArgumentTexts
{
public:
    void add(HANDLE handle);
    void add(LPCWSTR wideText);
    void add(LPCSTR narrowText);
    void add(DWORD number) { m_texts.append(QString::number(number)); }
    void add(const DWORD* number); ///< the number that is pointed to
    void add(const QString& text) { m_texts.append(text); }
    void add(std::span<const HANDLE> handles); ///< an argument each

    const QStringList& texts() const { return m_texts; }
    HANDLE handle() const { return m_handle; } ///< the first one; null: there is none

private:
    QStringList m_texts;
    HANDLE m_handle = nullptr;
};

/// One call of a stand-in function. Constructed as the first thing in the function, it counts the
/// call, records it, runs the hook (which may hold the calling thread) and looks up whether the
/// call is planned to fail. Without recording, a hook or planned failures, it only counts.
class ApiCall
{
public:
    template <typename... Arguments>
    explicit ApiCall(Function function, const Arguments&... arguments)
        : m_function(function)
    {
        Machine::Private& windows = machine();
        const int number = ++windows.counts[indexOf(function)];
        if (!windows.attention.load(std::memory_order_acquire))
            return;
        ArgumentTexts texts;
        (texts.add(arguments), ...);
        m_plannedError = windows.beginWatched(function, number, texts);
    }
    Q_DISABLE_COPY_MOVE(ApiCall)
    ~ApiCall() = default;

    Function function() const { return m_function; }
    bool isPlannedToFail() const { return m_plannedError != ERROR_SUCCESS; }
    /// True: the call is planned to fail, and its error is now the last error.
    bool failsAsPlanned() const
    {
        if (isPlannedToFail())
            SetLastError(m_plannedError);
        return isPlannedToFail();
    }

private:
    Function m_function;
    DWORD m_plannedError = ERROR_SUCCESS;
};

} // namespace virtualwindows
