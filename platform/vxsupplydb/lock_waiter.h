// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtSql/QSqlError>

#include <chrono>
#include <optional>

/// Waits for a database file that another connection has locked, up to a limit per thread.
///
/// Reading one record runs dozens of queries, and a host may have a hundred printers. So the limit
/// applies to all queries of a thread together: they wait for `maxWait` in total, and then not at
/// all until `rest` has passed since the last wait.
class LockWaiter
{
public:
    using Milliseconds = std::chrono::milliseconds;

    static constexpr Milliseconds maxWait{100};
    static constexpr Milliseconds pause{5};
    static constexpr Milliseconds rest{1000};

    /// The source of the time, and how to sleep.
    struct Clock
    {
        Milliseconds (*now)();
        void (*sleep)(Milliseconds duration);
    };
    LockWaiter(); ///< on the system's clock
    explicit LockWaiter(const Clock& clock);

    static LockWaiter& ofThisThread();

    /// Sleeps for `pause`. Returns false, at once, when the limit is reached.
    bool wait();
    /// Whether to repeat a query that failed with `error`. Sleeps if the file was locked.
    bool waitAfter(const QSqlError& error);

    /// Whether a query failed because another connection has locked the file.
    static bool isLocked(const QSqlError& error);

private:
    Clock m_clock;
    Milliseconds m_waited{0};
    std::optional<Milliseconds> m_lastWait;
};
