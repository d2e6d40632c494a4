// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QEventLoop>
#include <QtCore/QTimer>

#include <chrono>

namespace ipc_sides {

/// Keeps a number of calls on their way until so many are answered.
class InFlight
{
public:
    explicit InFlight(int calls)
        : m_calls(calls)
    {}

    /// Whether one more call is to be made, which then counts as made.
    bool next() { return m_made < m_calls && ++m_made > 0; }

    /// One is answered; a wrong answer ends all.
    void answered(bool isRight)
    {
        m_isRight = m_isRight && isRight;
        if (++m_answered == m_calls || !m_isRight)
            m_loop.quit();
    }

    /// Waits for the last. False when one was wrong or none came for too long.
    bool wait()
    {
        using namespace std::chrono_literals;
        QTimer::singleShot(30s, &m_loop, &QEventLoop::quit);
        m_loop.exec();
        return m_isRight && m_answered == m_calls;
    }

private:
    int m_calls;
    int m_made = 0;
    int m_answered = 0;
    bool m_isRight = true;
    QEventLoop m_loop;
};

} // namespace ipc_sides
