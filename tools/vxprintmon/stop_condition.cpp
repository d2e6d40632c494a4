// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "stop_condition.h"

#include <QtCore/QEvent>

using namespace std::chrono_literals;

StopCondition::StopCondition(QObject& controller, const Output& output)
    : m_output(output)
{
    m_alarm.setSingleShot(true);
    m_alarm.setTimerType(Qt::PreciseTimer);
    connect(&m_alarm, &QTimer::timeout, this, &StopCondition::isMet);
    // The event loop is not woken by a signal or a closed pipe, so look for them regularly.
    connect(&m_clock, &QTimer::timeout, this, &StopCondition::isMet);
    m_clock.start(50ms);
    controller.installEventFilter(this);
}

void StopCondition::setTimeLimit(std::chrono::milliseconds fromNow)
{
    m_deadline = QDeadlineTimer(fromNow, Qt::PreciseTimer);
    m_alarm.start(fromNow);
}

bool StopCondition::isMet()
{
    if (!m_isMet && (m_deadline.hasExpired() || isInterrupted() || m_output.isOver())) {
        m_isMet = true;
        Q_EMIT met();
    }
    return m_isMet;
}

bool StopCondition::eventFilter(QObject* /*receiver*/, QEvent* event)
{
    return event->type() == QEvent::MetaCall && isMet();
}
