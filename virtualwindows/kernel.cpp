// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "internals.h"

#include <algorithm>

using namespace virtualwindows;

namespace {

thread_local DWORD lastError = 0;
std::atomic<DWORD> nextThreadId = 4;

/// The calling process or the calling thread, neither of which can end during its own wait.
bool isPseudoHandle(HANDLE handle)
{
    const auto number = reinterpret_cast<qintptr>(handle);
    return number == -1 || number == -2;
}

bool hasDuplicates(std::vector<std::shared_ptr<Waitable>> objects)
{
    std::sort(objects.begin(), objects.end());
    return std::adjacent_find(objects.begin(), objects.end()) != objects.end();
}

bool isNotification(const std::shared_ptr<Waitable>& object)
{
    return object && object->kind == Object::Kind::ChangeNotification;
}

} // namespace

// Waits, and what ends them.
namespace virtualwindows {

bool Machine::Private::trySatisfy(Waiter& waiter)
{
    const auto isSignalled = [](const std::shared_ptr<Waitable>& object) {
        return object && object->signalled;
    };
    const auto take = [](Waitable& object) {
        if (!object.manualReset)
            object.signalled = false;
    };

    if (waiter.all) {
        // No object is taken until all of them can be.
        if (!std::all_of(waiter.objects.begin(), waiter.objects.end(), isSignalled))
            return false;
        for (const auto& object : waiter.objects)
            take(*object);
        finish(waiter, WAIT_OBJECT_0);
        return true;
    }

    const auto first = std::find_if(waiter.objects.begin(), waiter.objects.end(), isSignalled);
    if (first == waiter.objects.end())
        return false;
    take(**first);
    finish(waiter, WAIT_OBJECT_0 + static_cast<DWORD>(first - waiter.objects.begin()));
    return true;
}

void Machine::Private::finish(Waiter& waiter, DWORD result)
{
    waiter.done = true;
    waiter.result = result;
    for (const auto& object : waiter.objects) {
        if (object)
            std::erase(object->waiters, &waiter);
    }
    std::erase(waiting, &waiter);
    waiter.wake.notify_one();
}

void Machine::Private::signal(Waitable& object)
{
    object.signalled = true;
    // In the order in which they began to wait. An auto-reset object satisfies only one of them.
    const std::vector<Waiter*> waiters = object.waiters;
    for (Waiter* waiter : waiters) {
        if (!object.signalled)
            return;
        trySatisfy(*waiter);
    }
}

DWORD Machine::Private::wait(std::span<const HANDLE> handles, bool all, DWORD milliseconds,
                             const ApiCall& call)
{
    // Only a wait for a single object takes pseudo handles.
    if (call.function() == Function::WaitForMultipleObjects &&
        std::any_of(handles.begin(), handles.end(), isPseudoHandle))
        return failWith(ERROR_INVALID_HANDLE, WAIT_FAILED);

    std::unique_lock guard(lock);

    Waiter waiter;
    waiter.all = all;
    waiter.objects.reserve(handles.size());
    for (const HANDLE handle : handles) {
        if (isPseudoHandle(handle)) {
            waiter.objects.emplace_back();
            continue;
        }
        const auto found = objects.find(reinterpret_cast<quintptr>(handle));
        const bool isChange =
            found != objects.end() && found->second->kind == Object::Kind::ChangeNotification;
        auto object = find<Waitable>(
            handle, isChange ? Object::Kind::ChangeNotification : Object::Kind::Event, call);
        if (!object)
            return WAIT_FAILED;
        waiter.objects.push_back(std::move(object));
    }
    if (all && hasDuplicates(waiter.objects))
        return failWith(ERROR_INVALID_PARAMETER, WAIT_FAILED);

    catchUp();
    if (trySatisfy(waiter))
        return waiter.result;
    if (milliseconds == 0)
        return WAIT_TIMEOUT;

    waiter.lastOpened = lastOpenedPrinter();
    waiter.endless = milliseconds == INFINITE;
    const std::chrono::milliseconds timeOut(milliseconds);
    waiter.deadline = std::chrono::steady_clock::now() + timeOut;
    waiter.drivenDeadline = drivenNow + timeOut;
    for (const auto& object : waiter.objects) {
        if (object)
            object->waiters.push_back(&waiter);
    }
    waiting.push_back(&waiter);
    if (watchers > 0)
        waitingChanged.notify_all();

    block(waiter, guard);
    return waiter.result;
}

void Machine::Private::block(Waiter& waiter, std::unique_lock<std::mutex>& guard)
{
    using Clock = std::chrono::steady_clock;
    while (!waiter.done) {
        // No other thread moves the jobs on in real time, so those who wait do.
        const auto nextDone = driven ? std::nullopt : nextJobDone();
        if (driven || (waiter.endless && !nextDone)) {
            waiter.wake.wait(guard);
            continue;
        }
        const Clock::time_point jobDone(
            std::chrono::duration_cast<Clock::duration>(nextDone.value_or(Clock::duration::max())));
        const Clock::time_point until =
            waiter.endless ? jobDone : std::min(jobDone, waiter.deadline);
        if (waiter.wake.wait_until(guard, until) != std::cv_status::timeout || driven)
            continue;
        catchUp();
        if (!waiter.done && !waiter.endless && Clock::now() >= waiter.deadline)
            finish(waiter, WAIT_TIMEOUT);
    }
}

Waiter* Machine::Private::waiterOf(const QString& printer) const
{
    const auto found = std::find_if(waiting.begin(), waiting.end(), [&](const Waiter* waiter) {
        return waiter->lastOpened.compare(printer, Qt::CaseInsensitive) == 0;
    });
    return found == waiting.end() ? nullptr : *found;
}

bool Machine::endWaitByTimeOut(const QString& printer)
{
    const std::lock_guard guard(d->lock);
    Waiter* const waiter = d->waiterOf(printer);
    if (!waiter || waiter->endless)
        return false;
    d->finish(*waiter, WAIT_TIMEOUT);
    return true;
}

bool Machine::endWaitByNotification(const QString& printer)
{
    const std::lock_guard guard(d->lock);
    Waiter* const waiter = d->waiterOf(printer);
    if (!waiter)
        return false;
    const auto found = std::find_if(waiter->objects.begin(), waiter->objects.end(), isNotification);
    if (found == waiter->objects.end())
        return false;
    // Not signalled: that of a stopped spooler could not be re-armed.
    d->finish(*waiter, WAIT_OBJECT_0 + static_cast<DWORD>(found - waiter->objects.begin()));
    return true;
}

Printer* Machine::Private::watchedBy(const QString& printer) const
{
    const Waiter* const waiter = waiterOf(printer);
    if (!waiter)
        return nullptr;
    const auto found = std::find_if(waiter->objects.begin(), waiter->objects.end(), isNotification);
    return found == waiter->objects.end()
               ? nullptr
               : static_cast<const ChangeNotification&>(**found).printer.get();
}

QString Machine::watchedPrinter(const QString& printer) const
{
    const std::lock_guard guard(d->lock);
    const Printer* const watched = d->watchedBy(printer);
    const auto isWatched = [watched](const std::shared_ptr<Printer>& each) {
        return each.get() == watched;
    };
    return std::any_of(d->printers.cbegin(), d->printers.cend(), isWatched) ? watched->setup.name
                                                                            : QString();
}

void Machine::driveTime(bool driven)
{
    const std::lock_guard guard(d->lock);
    if (d->driven == driven)
        return;
    const std::chrono::nanoseconds before = d->now();
    d->driven = driven;
    for (Printer* printer : d->movingPrinters)
        printer->jobDone += d->now() - before;
    // Current waits keep their remaining time.
    const auto now = std::chrono::steady_clock::now();
    for (Waiter* waiter : d->waiting) {
        if (driven)
            waiter->drivenDeadline =
                d->drivenNow + std::chrono::ceil<std::chrono::milliseconds>(waiter->deadline - now);
        else
            waiter->deadline = now + (waiter->drivenDeadline - d->drivenNow);
        waiter->wake.notify_one();
    }
}

void Machine::advance(std::chrono::milliseconds time)
{
    const std::lock_guard guard(d->lock);
    const std::chrono::milliseconds end = d->drivenNow + time;
    // A job that has been printed may start the next one, so each has its own moment.
    for (auto done = d->nextJobDone(); done && *done <= end; done = d->nextJobDone())
        d->passTimeTo(std::max(d->drivenNow, std::chrono::ceil<std::chrono::milliseconds>(*done)));
    d->passTimeTo(end);
}

void Machine::Private::passTimeTo(std::chrono::milliseconds moment)
{
    drivenNow = moment;
    // Earlier time-outs end first.
    std::vector<Waiter*> due;
    std::copy_if(waiting.begin(), waiting.end(), std::back_inserter(due), [&](Waiter* waiter) {
        return !waiter->endless && waiter->drivenDeadline <= drivenNow;
    });
    std::stable_sort(due.begin(), due.end(), [](const Waiter* left, const Waiter* right) {
        return left->drivenDeadline < right->drivenDeadline;
    });
    for (Waiter* waiter : due)
        finish(*waiter, WAIT_TIMEOUT);
    catchUp();
}

bool Machine::waitForWaitingThreads(int count, std::chrono::milliseconds limit)
{
    std::unique_lock guard(d->lock);
    ++d->watchers;
    const bool reached = d->waitingChanged.wait_for(
        guard, limit, [&] { return static_cast<int>(d->waiting.size()) >= count; });
    --d->watchers;
    return reached;
}

int Machine::waitingThreads() const
{
    const std::lock_guard guard(d->lock);
    return static_cast<int>(d->waiting.size());
}

} // namespace virtualwindows

DWORD WINAPI GetLastError()
{
    return lastError;
}

void WINAPI SetLastError(DWORD dwErrCode)
{
    lastError = dwErrCode;
}

DWORD WINAPI GetCurrentThreadId()
{
    thread_local const DWORD id = nextThreadId.fetch_add(4);
    return id;
}

HANDLE WINAPI CreateEventW(LPSECURITY_ATTRIBUTES /*lpEventAttributes*/, BOOL bManualReset,
                           BOOL bInitialState, LPCWSTR lpName)
{
    const ApiCall call(Function::CreateEventW, DWORD(bManualReset), DWORD(bInitialState), lpName);
    if (call.failsAsPlanned())
        return nullptr;
    // Named events are shared between processes, but this machine exists in one only.
    if (lpName)
        return failWith<HANDLE>(ERROR_INVALID_PARAMETER, nullptr);

    auto event = std::make_shared<Event>();
    event->manualReset = bManualReset != FALSE;
    event->signalled = bInitialState != FALSE;
    const std::lock_guard guard(machine().lock);
    return machine().open(event);
}

namespace {

template <typename Change>
BOOL changeEvent(HANDLE handle, Function function, Change change)
{
    const ApiCall call(function, handle);
    if (call.failsAsPlanned())
        return FALSE;
    const std::lock_guard guard(machine().lock);
    const auto event = machine().find<Event>(handle, Object::Kind::Event, call);
    if (!event)
        return FALSE;
    change(*event);
    return TRUE;
}

} // namespace

BOOL WINAPI SetEvent(HANDLE hEvent)
{
    return changeEvent(hEvent, Function::SetEvent, [](Event& event) { machine().signal(event); });
}

BOOL WINAPI ResetEvent(HANDLE hEvent)
{
    return changeEvent(hEvent, Function::ResetEvent, [](Event& event) { event.signalled = false; });
}

DWORD WINAPI WaitForSingleObject(HANDLE hHandle, DWORD dwMilliseconds)
{
    const ApiCall call(Function::WaitForSingleObject, hHandle, dwMilliseconds);
    if (call.failsAsPlanned())
        return WAIT_FAILED;
    return machine().wait({&hHandle, 1}, false, dwMilliseconds, call);
}

DWORD WINAPI WaitForMultipleObjects(DWORD nCount, const HANDLE* lpHandles, BOOL bWaitAll,
                                    DWORD dwMilliseconds)
{
    const std::span handles(lpHandles, lpHandles ? nCount : 0);
    const ApiCall call(Function::WaitForMultipleObjects, nCount, handles, DWORD(bWaitAll),
                       dwMilliseconds);
    if (call.failsAsPlanned())
        return WAIT_FAILED;
    if (nCount == 0 || nCount > MAXIMUM_WAIT_OBJECTS)
        return failWith(ERROR_INVALID_PARAMETER, WAIT_FAILED);
    if (!lpHandles)
        return failWith(ERROR_NOACCESS, WAIT_FAILED);
    return machine().wait(handles, bWaitAll != FALSE, dwMilliseconds, call);
}

BOOL WINAPI CloseHandle(HANDLE hObject)
{
    const ApiCall call(Function::CloseHandle, hObject);
    // This is also the pseudo handle of the process, which may be closed to no effect.
    if (hObject == INVALID_HANDLE_VALUE && !call.isPlannedToFail())
        return TRUE;
    const std::lock_guard guard(machine().lock);
    // A call that closes a handle does so even when it is planned to fail: callers do not call it
    // a second time, so only its result is a failure.
    if (!machine().close(hObject, Object::Kind::Event, call) || call.failsAsPlanned())
        return FALSE;
    return TRUE;
}
