// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QEventLoop>
#include <QtCore/QTimer>

#include <chrono>

namespace ipc_sides {

/// Counts calls in flight until a given number has been answered.
class InFlight
{
public:
    explicit InFlight(int calls)
        : m_calls(calls)
    {}

    /// Whether to make one more call, which is then counted.
    bool next() { return m_made < m_calls && ++m_made > 0; }

    /// Counts an answer. A wrong one ends the run.
    void answered(bool isRight)
    {
        m_isRight = m_isRight && isRight;
        if (++m_answered == m_calls || !m_isRight)
            m_loop.quit();
    }

    /// Waits for the last answer. False when one was wrong or did not come in time.
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
