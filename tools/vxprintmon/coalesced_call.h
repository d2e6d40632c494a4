// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QObject>

#include <functional>
#include <utility>

/// A call that is made once, however often it is scheduled while the event loop delivers what is
/// queued.
class CoalescedCall : public QObject
{
public:
    explicit CoalescedCall(std::function<void()> function)
        : m_function(std::move(function))
    {}

    /// Schedules the call for after all events that are queued by now.
    void schedule()
    {
        if (!std::exchange(m_isScheduled, true))
            QMetaObject::invokeMethod(this, &CoalescedCall::runIfScheduled, Qt::QueuedConnection);
    }
    /// Makes the call now if it is scheduled, and not again later.
    void runIfScheduled()
    {
        if (std::exchange(m_isScheduled, false))
            m_function();
    }

private:
    std::function<void()> m_function;
    bool m_isScheduled = false;
};
