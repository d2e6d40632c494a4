// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ending.h"

#include <QtCore/QEvent>

using namespace std::chrono_literals;

Ending::Ending(QObject& controller, const Output& output)
    : m_output(output)
{
    m_alarm.setSingleShot(true);
    m_alarm.setTimerType(Qt::PreciseTimer);
    connect(&m_alarm, &QTimer::timeout, this, &Ending::hasCome);
    // An interruption and a closed pipe wake nobody.
    connect(&m_clock, &QTimer::timeout, this, &Ending::hasCome);
    m_clock.start(50ms);
    controller.installEventFilter(this);
}

void Ending::setTime(std::chrono::milliseconds fromNow)
{
    m_deadline = QDeadlineTimer(fromNow, Qt::PreciseTimer);
    m_alarm.start(fromNow);
}

bool Ending::hasCome()
{
    if (!m_hasCome && (m_deadline.hasExpired() || isInterrupted() || m_output.isOver())) {
        m_hasCome = true;
        Q_EMIT came();
    }
    return m_hasCome;
}

bool Ending::eventFilter(QObject* /*receiver*/, QEvent* event)
{
    return event->type() == QEvent::MetaCall && hasCome();
}
