// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "virtualwindows/machine.h"

#include <QtCore/QHash>
#include <QtCore/QMap>

#include <array>
#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <unordered_map>
#include <vector>

#include <windows.h>
#include <winspool.h>
#include <winsvc.h>

namespace virtualwindows {

/// Every function that can be recorded, counted and made to fail.
enum class Function
{
    ClosePrinter,
    CloseHandle,
    CloseServiceHandle,
    CreateEventW,
    DeletePrinter,
    AddPrinterW,
    EndDocPrinter,
    EndPagePrinter,
    EnumPrintersW,
    FindClosePrinterChangeNotification,
    FindFirstPrinterChangeNotification,
    FindNextPrinterChangeNotification,
    GetDefaultPrinterW,
    GetPrinterDataA,
    GetPrinterDataW,
    GetPrinterW,
    OpenPrinterA,
    OpenPrinterW,
    OpenSCManagerW,
    OpenServiceW,
    QueryServiceStatus,
    RegistryKey,
    ResetEvent,
    SetDefaultPrinterW,
    SetEvent,
    SetPrinterDataA,
    SetPrinterDataW,
    SetPrinterW,
    StartDocPrinterW,
    StartPagePrinter,
    WaitForMultipleObjects,
    WaitForSingleObject,
    WritePrinter,
    Count
};
inline constexpr std::size_t functionCount = static_cast<std::size_t>(Function::Count);
const char* functionName(Function function);

struct Printer;

/// What a handle stands for.
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

/// A change notification: signalled from the first change that it is asked to tell until it is
/// re-armed. Changes in between are collected, so none is lost between the wake-up and the
/// re-arming.
struct ChangeNotification final : Waitable
{
    ChangeNotification()
        : Waitable(Kind::ChangeNotification, Function::FindFirstPrinterChangeNotification)
    {}

    std::shared_ptr<Printer> printer; ///< null: of the whole spooler
    DWORD filter = 0;
    DWORD changes = 0;
    bool dead = false; ///< the printer handle or the spooler it was registered with is gone
};

struct Value
{
    DWORD type = REG_NONE;
    QByteArray narrow; ///< as the 8-bit calls see it
    QByteArray wide;   ///< as the wide calls see it

    static Value fromNarrow(DWORD type, const QByteArray& data);
    static Value fromWide(DWORD type, const QByteArray& data);
};

/// A printer of the spooler; lives on while handles to it are open.
struct Printer
{
    PrinterSetup setup;
    QString comment;
    QString location;
    QString shareName;
    bool deleted = false;
    QMap<QByteArray, Value> values; ///< by lower-case name: registry names have no letter case
    QList<PrintJob> jobs;
};

struct PrinterHandleObject final : Object
{
    explicit PrinterHandleObject(Function function)
        : Object(Kind::Printer, function)
    {}

    std::shared_ptr<Printer> printer; ///< null: the print server
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

/// A thread that waits. Whoever satisfies it does the whole of its wait, under the lock, and wakes
/// it: so a thread that has been woken is waiting no more, whether it has run yet or not.
struct Waiter
{
    std::vector<std::shared_ptr<Waitable>> objects; ///< null for an object that is never signalled
    bool all = false;
    bool done = false;
    DWORD result = WAIT_FAILED;
    bool endless = false;
    std::chrono::steady_clock::time_point deadline;
    std::chrono::milliseconds drivenDeadline{};
    std::condition_variable wake;
};

struct FailurePlan
{
    int from = 0; ///< the call with this number, counted since the last reset
    bool onwards = false;
    DWORD error = 0;
};

struct DeviceClass
{
    QString guid;
    QList<DeviceSetup> devices;
    /// Places in the list by case-folded key name.
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
    QList<DeviceClass> deviceClasses;

    // Calls.
    std::array<std::atomic<int>, functionCount> counts{};
    std::atomic<bool> attention = false; ///< recording, a hook or a planned failure
    bool recording = false;
    QList<Call> calls;
    std::function<void(const Call&)> hook;
    std::array<QList<FailurePlan>, functionCount> failures;

    // Time and waits.
    bool driven = false;
    std::chrono::milliseconds drivenNow{};
    std::vector<Waiter*> waiting;
    std::condition_variable waitingChanged;
    int watchers = 0; ///< threads in waitForWaitingThreads()

    /// Counts and records a call that begins. Not zero: the call is planned to fail with this
    /// error.
    template <typename Arguments>
    DWORD begin(Function function, Arguments&& arguments)
    {
        const int number = ++counts[static_cast<std::size_t>(function)];
        if (!attention.load(std::memory_order_acquire))
            return 0;
        return beginWatched(function, number, arguments());
    }
    DWORD beginWatched(Function function, int number, const QStringList& arguments);
    void updateAttention();

    // With the lock held, all of them.
    HANDLE open(const std::shared_ptr<Object>& object);
    /// The object of a handle, or null: the last error is then set, and it is entered as a misuse
    /// unless the handle is INVALID_HANDLE_VALUE, which programs use for having none.
    template <typename Wanted>
    std::shared_ptr<Wanted> find(HANDLE handle, Object::Kind kind, Function function)
    {
        return std::static_pointer_cast<Wanted>(findObject(handle, kind, function));
    }
    std::shared_ptr<Object> findObject(HANDLE handle, Object::Kind kind, Function function);
    /// Takes a handle out of the table; null as above.
    std::shared_ptr<Object> close(HANDLE handle, Object::Kind kind, Function function);
    void enterMisuse(HandleMisuse::Kind kind, HANDLE handle, Function function, const char* what);

    void signal(Waitable& object);
    bool trySatisfy(Waiter& waiter);
    void finish(Waiter& waiter, DWORD result);
    DWORD wait(const HANDLE* handles, DWORD count, bool all, DWORD milliseconds, Function function);

    std::shared_ptr<Printer> printerNamed(const QString& name) const;
    void add(const std::shared_ptr<Printer>& printer);
    void enterName(const std::shared_ptr<Printer>& printer);
    /// After a printer was renamed or removed.
    void enterNames();
    void notify(const Printer* printer, DWORD change);
    void removePrinter(Printer& printer);
    void setSpoolerState(DWORD state);
    bool isSpoolerRunning() const { return spoolerState == SERVICE_RUNNING; }
    /// What a handle of a spooler that is gone is answered, while it is gone and afterwards.
    DWORD errorOfDeadHandles() const
    {
        return isSpoolerRunning() ? ERROR_INVALID_HANDLE : RPC_S_SERVER_UNAVAILABLE;
    }
};

/// What the implementation of a call begins with.
inline Machine::Private& machine()
{
    return Machine::instance().internals();
}

/// A failing call's last error and return value in one expression. Calls that succeed leave the
/// last error alone: nothing here sets it but on the way to a failure.
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

// Arguments as the log of calls has them.
QString text(HANDLE handle);
QString text(LPCWSTR wideText);
inline QString text(LPCSTR narrowText)
{
    return narrowText ? QString::fromLocal8Bit(narrowText) : QStringLiteral("null");
}
inline QString text(DWORD number)
{
    return QString::number(number);
}

} // namespace virtualwindows
