// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtSql/QSqlError>

#include <chrono>
#include <optional>

/// How long a thread waits for a file that somebody else has locked.
///
/// One record takes dozens of questions, and a host may have a hundred printers. The bound is
/// therefore for all questions of the thread together: they wait `maxWait`, then no more until
/// `rest` has passed without a wait.
class LockPatience
{
public:
    using Milliseconds = std::chrono::milliseconds;

    static constexpr Milliseconds maxWait{100};
    static constexpr Milliseconds pause{5};
    static constexpr Milliseconds rest{1000};

    /// Where the time comes from, and how it passes.
    struct Clock
    {
        Milliseconds (*now)();
        void (*sleep)(Milliseconds duration);
    };
    LockPatience(); ///< on the system's clock
    explicit LockPatience(const Clock& clock);

    static LockPatience& ofThisThread();

    /// Pauses for a moment; false, at once, when the patience is used up.
    bool wait();
    /// After a question failed: whether to ask it again. Pauses when the file was locked.
    bool waitAfter(const QSqlError& error);

    /// Whether a question failed because somebody else has the file locked.
    static bool isLocked(const QSqlError& error);

private:
    Clock m_clock;
    Milliseconds m_waited{0};
    std::optional<Milliseconds> m_lastWait;
};
