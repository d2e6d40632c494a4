// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "interruption.h"
#include "output.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QTimer>

/// The moment at which listening to a controller ends: when its time is up, when the user
/// interrupts it, or when the output is of no use any more.
///
/// From then on no report reaches the controller. An event loop delivers what is queued before it
/// looks at its timers, and of thousands of printers there can be minutes' worth.
class Ending : public QObject
{
    Q_OBJECT

public:
    Ending(QObject& controller, const Output& output);

    void setTime(std::chrono::milliseconds fromNow);
    bool hasCome();
    bool isInterrupted() const { return m_interruption.hasHappened(); }

    bool eventFilter(QObject* receiver, QEvent* event) override;

Q_SIGNALS:
    void came();

private:
    const Output& m_output;
    const Interruption m_interruption;
    QDeadlineTimer m_deadline{QDeadlineTimer::Forever};
    QTimer m_alarm;
    QTimer m_clock;
    bool m_hasCome = false;
};
