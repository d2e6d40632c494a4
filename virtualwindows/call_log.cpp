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

DWORD Machine::Private::beginWatched(Function function, int number, const QStringList& arguments)
{
    Call call{nameOf(function), arguments, QThread::currentThreadId()};
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

void Machine::clearFailures()
{
    const std::lock_guard guard(d->lock);
    d->failures = {};
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
