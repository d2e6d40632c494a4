// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "internals.h"

#include <QtCore/QThread>

#include <algorithm>
#include <iterator>

namespace virtualwindows {

QString textOf(HANDLE handle)
{
    return QStringLiteral("0x") + QString::number(reinterpret_cast<quintptr>(handle), 16);
}

QString& lastOpenedPrinter()
{
    thread_local QString name;
    return name;
}

void ArgumentTexts::add(HANDLE handle)
{
    if (!m_handle)
        m_handle = handle;
    m_texts.append(textOf(handle));
}

void ArgumentTexts::add(LPCWSTR wideText)
{
    m_texts.append(wideText ? QString::fromUtf16(wideText) : QStringLiteral("null"));
}

void ArgumentTexts::add(LPCSTR narrowText)
{
    m_texts.append(narrowText ? QString::fromLocal8Bit(narrowText) : QStringLiteral("null"));
}

void ArgumentTexts::add(const DWORD* number)
{
    m_texts.append(number ? QString::number(*number) : QStringLiteral("null"));
}

void ArgumentTexts::add(std::span<const HANDLE> handles)
{
    for (const HANDLE handle : handles)
        add(handle);
}

namespace {

/// A name that is not in the table is a mistake in the test, which must not go unnoticed.
std::size_t indexOfName(const QString& function)
{
    const auto* const found = std::find(functionNames.begin(), functionNames.end(), function);
    if (found == functionNames.end())
        qFatal("virtualwindows: there is no function %s", qPrintable(function));
    return static_cast<std::size_t>(found - functionNames.begin());
}

} // namespace

QString Machine::Private::printerOf(Function function, const ArgumentTexts& arguments) const
{
    if (function == Function::OpenPrinterA || function == Function::OpenPrinterW)
        return arguments.texts().value(0);
    const auto found = objects.find(reinterpret_cast<quintptr>(arguments.handle()));
    if (found != objects.end()) {
        if (const auto* printer = dynamic_cast<PrinterHandleObject*>(found->second.get()))
            return printer->openedAs;
        if (const auto* change = dynamic_cast<ChangeNotification*>(found->second.get()))
            return change->openedAs;
    }
    return lastOpenedPrinter();
}

DWORD Machine::Private::takeNextFailure(Function function, const ArgumentTexts& arguments)
{
    if (nextFailures.isEmpty())
        return ERROR_SUCCESS;
    const auto isMeant = [&](const NextFailure& plan) {
        using Caller = CallFailure::Caller;
        const CallFailure& failure = plan.failure;
        const bool isPlanner = plan.planner == QThread::currentThreadId();
        if (failure.function != nameOf(function) ||
            (failure.caller == Caller::ThisThread && !isPlanner) ||
            (failure.caller == Caller::OtherThreads && isPlanner))
            return false;
        if (!failure.value.isNull() &&
            arguments.texts().value(1).compare(QString::fromUtf8(failure.value),
                                               Qt::CaseInsensitive) != 0)
            return false;
        return failure.printer.isNull() ||
               failure.printer.compare(printerOf(function, arguments), Qt::CaseInsensitive) == 0;
    };
    const auto found = std::find_if(nextFailures.begin(), nextFailures.end(), isMeant);
    if (found == nextFailures.end() || found->failure.after-- > 0)
        return ERROR_SUCCESS;
    const DWORD error = found->failure.error;
    nextFailures.erase(found);
    updateAttention();
    return error;
}

DWORD Machine::Private::beginWatched(Function function, int number, const ArgumentTexts& arguments)
{
    Call call{nameOf(function), arguments.texts(), QThread::currentThreadId()};
    std::function<void(const Call&)> calledHook;
    {
        const std::lock_guard guard(lock);
        for (const FailurePlan& plan : failures[indexOf(function)]) {
            if (number == plan.from || (plan.onwards && number > plan.from))
                call.plannedError = plan.error;
        }
        if (recording)
            calls.append(call);
        calledHook = hook;
    }
    if (calledHook)
        calledHook(call);
    if (call.plannedError)
        return call.plannedError;
    // After the hook, which may have held the thread while this failure was planned.
    const std::lock_guard guard(lock);
    return takeNextFailure(function, arguments);
}

void Machine::Private::updateAttention()
{
    const bool planned = std::any_of(failures.begin(), failures.end(),
                                     [](const auto& plans) { return !plans.isEmpty(); });
    attention.store(recording || hook || planned || !nextFailures.isEmpty(),
                    std::memory_order_release);
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
    // A deep copy: sharing the list with threads that append to it would be a data race.
    return {d->calls.cbegin(), d->calls.cend()};
}

QList<Call> Machine::calls(const QString& function) const
{
    indexOfName(function);
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
    const std::size_t index = indexOfName(function);
    const std::lock_guard guard(d->lock);
    d->failures[index].append({d->counts[index] + nth, false, error});
    d->updateAttention();
}

void Machine::failCallsFrom(const QString& function, int nth, quint32 error)
{
    const std::size_t index = indexOfName(function);
    const std::lock_guard guard(d->lock);
    d->failures[index].append({d->counts[index] + nth, true, error});
    d->updateAttention();
}

void Machine::failNextCall(const CallFailure& failure)
{
    const std::lock_guard guard(d->lock);
    d->nextFailures.append({failure, QThread::currentThreadId()});
    d->updateAttention();
}

int Machine::forgetNextFailures(const QString& printer)
{
    const std::lock_guard guard(d->lock);
    const auto count = d->nextFailures.removeIf([&](const NextFailure& plan) {
        return printer.isNull() || printer.compare(plan.failure.printer, Qt::CaseInsensitive) == 0;
    });
    d->updateAttention();
    return static_cast<int>(count);
}

void Machine::clearFailures()
{
    const std::lock_guard guard(d->lock);
    d->failures = {};
    d->nextFailures.clear();
    d->updateAttention();
}

int Machine::callCount(const QString& function) const
{
    return d->counts[indexOfName(function)];
}

QList<QPair<QString, int>> Machine::callCounts() const
{
    QList<QPair<QString, int>> found;
    for (std::size_t index = 0; index < functionNames.size(); ++index) {
        if (const int count = d->counts[index])
            found.append({functionNames[index], count});
    }
    return found;
}

} // namespace virtualwindows
