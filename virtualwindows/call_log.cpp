// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "internals.h"

#include <QtCore/QThread>

#include <algorithm>
#include <iterator>

namespace virtualwindows {

const char* functionName(Function function)
{
    static constexpr std::array<const char*, functionCount> names{
        "ClosePrinter",
        "CloseHandle",
        "CloseServiceHandle",
        "CreateEventW",
        "DeletePrinter",
        "AddPrinterW",
        "EndDocPrinter",
        "EndPagePrinter",
        "EnumPrintersW",
        "FindClosePrinterChangeNotification",
        "FindFirstPrinterChangeNotification",
        "FindNextPrinterChangeNotification",
        "GetDefaultPrinterW",
        "GetPrinterDataA",
        "GetPrinterDataW",
        "GetPrinterW",
        "OpenPrinterA",
        "OpenPrinterW",
        "OpenSCManagerW",
        "OpenServiceW",
        "QueryServiceStatus",
        "RegistryKey",
        "ResetEvent",
        "SetDefaultPrinterW",
        "SetEvent",
        "SetPrinterDataA",
        "SetPrinterDataW",
        "SetPrinterW",
        "StartDocPrinterW",
        "StartPagePrinter",
        "WaitForMultipleObjects",
        "WaitForSingleObject",
        "WritePrinter",
    };
    return names[static_cast<std::size_t>(function)];
}

QString text(HANDLE handle)
{
    return QStringLiteral("0x") + QString::number(reinterpret_cast<quintptr>(handle), 16);
}

QString text(LPCWSTR wideText)
{
    return wideText ? QString::fromUtf16(wideText) : QStringLiteral("null");
}

namespace {

/// A name that no function has is a mistake in the test, which must not pass for it.
std::size_t indexOf(const QString& function)
{
    for (std::size_t index = 0; index < functionCount; ++index) {
        if (function == QLatin1String(functionName(static_cast<Function>(index))))
            return index;
    }
    qFatal("virtualwindows: there is no function %s", qPrintable(function));
}

} // namespace

DWORD Machine::Private::beginWatched(Function function, int number, const QStringList& arguments)
{
    Call call{QString::fromLatin1(functionName(function)), arguments, QThread::currentThreadId()};
    std::function<void(const Call&)> calledHook;
    {
        const std::lock_guard guard(lock);
        for (const FailurePlan& plan : failures[static_cast<std::size_t>(function)]) {
            if (number == plan.from || (plan.onwards && number > plan.from))
                call.plannedError = plan.error;
        }
        if (recording)
            calls.append(call);
        calledHook = hook;
    }
    if (calledHook)
        calledHook(call);
    return call.plannedError;
}

void Machine::Private::updateAttention()
{
    const bool planned = std::any_of(failures.begin(), failures.end(),
                                     [](const auto& plans) { return !plans.isEmpty(); });
    attention.store(recording || hook || planned, std::memory_order_release);
}

void Machine::recordCalls(bool record)
{
    const std::lock_guard guard(d->lock);
    d->recording = record;
    d->updateAttention();
}

QList<Call> Machine::calls() const
{
    const std::lock_guard guard(d->lock);
    // A list of its own: sharing one with threads that go on appending to it is a data race.
    return {d->calls.cbegin(), d->calls.cend()};
}

QList<Call> Machine::calls(const QString& function) const
{
    indexOf(function);
    const std::lock_guard guard(d->lock);
    QList<Call> found;
    std::copy_if(d->calls.cbegin(), d->calls.cend(), std::back_inserter(found),
                 [&](const Call& call) { return call.function == function; });
    return found;
}

void Machine::clearCalls()
{
    const std::lock_guard guard(d->lock);
    d->calls.clear();
}

void Machine::setCallHook(std::function<void(const Call&)> hook)
{
    const std::lock_guard guard(d->lock);
    d->hook = std::move(hook);
    d->updateAttention();
}

void Machine::failCall(const QString& function, int nth, quint32 error)
{
    const std::size_t index = indexOf(function);
    const std::lock_guard guard(d->lock);
    d->failures[index].append({d->counts[index] + nth, false, error});
    d->updateAttention();
}

void Machine::failCallsFrom(const QString& function, int nth, quint32 error)
{
    const std::size_t index = indexOf(function);
    const std::lock_guard guard(d->lock);
    d->failures[index].append({d->counts[index] + nth, true, error});
    d->updateAttention();
}

void Machine::clearFailures()
{
    const std::lock_guard guard(d->lock);
    d->failures = {};
    d->updateAttention();
}

int Machine::callCount(const QString& function) const
{
    return d->counts[indexOf(function)];
}

QList<QPair<QString, int>> Machine::callCounts() const
{
    QList<QPair<QString, int>> found;
    for (std::size_t index = 0; index < functionCount; ++index) {
        if (const int count = d->counts[index])
            found.append({QString::fromLatin1(functionName(static_cast<Function>(index))), count});
    }
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace virtualwindows
