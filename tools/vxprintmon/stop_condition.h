// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "interrupt_handler.h"
#include "output.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QTimer>

/// When to stop listening to a controller and what depends on it: when the time is up, when the
/// user interrupts the program, or when writing is pointless.
///
/// From then on no report reaches them. Without this, thousands of printers could keep
/// the program busy for minutes: an event loop delivers everything that is queued before it looks
/// at its timers.
class StopCondition : public QObject
{
    Q_OBJECT

public:
    StopCondition(QObject& controller, const Output& output);

    /// Keeps reports from another object as well.
    void alsoStop(QObject& receiver) { receiver.installEventFilter(this); }
    void setTimeLimit(std::chrono::milliseconds fromNow);
    bool isMet();
    bool isInterrupted() const { return m_interruptHandler.wasInterrupted(); }

    bool eventFilter(QObject* receiver, QEvent* event) override;

Q_SIGNALS:
    /// Once.
    void met();

private:
    const Output& m_output;
    const InterruptHandler m_interruptHandler;
    QDeadlineTimer m_deadline{QDeadlineTimer::Forever};
    QTimer m_alarm;
    QTimer m_clock;
    bool m_isMet = false;
};
