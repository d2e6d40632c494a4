// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "lock_waiter.h"

#include <QtCore/QString>
#include <QtCore/QThread>

#include <algorithm>

namespace {

// SQLite result codes. The low byte of an extended code is its primary code.
constexpr int sqliteBusy = 5;
constexpr int sqliteLocked = 6;
constexpr int primaryCodeMask = 0xff;

LockWaiter::Milliseconds systemNow()
{
    return std::chrono::duration_cast<LockWaiter::Milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
}

void systemSleep(LockWaiter::Milliseconds duration)
{
    QThread::msleep(static_cast<unsigned long>(duration.count()));
}

} // namespace

LockWaiter::LockWaiter()
    : LockWaiter({systemNow, systemSleep})
{}

LockWaiter::LockWaiter(const Clock& clock)
    : m_clock(clock)
{}

LockWaiter& LockWaiter::ofThisThread()
{
    thread_local LockWaiter waiter;
    return waiter;
}

bool LockWaiter::wait()
{
    const Milliseconds start = m_clock.now();
    if (m_lastWait && start - *m_lastWait >= rest)
        m_waited = Milliseconds{0};
    if (m_waited >= maxWait)
        return false;
    m_clock.sleep(std::min(pause, maxWait - m_waited));
    m_lastWait = m_clock.now();
    m_waited += *m_lastWait - start;
    return true;
}

bool LockWaiter::waitAfter(const QSqlError& error)
{
    return isLocked(error) && wait();
}

bool LockWaiter::isLocked(const QSqlError& error)
{
    const int code = error.nativeErrorCode().toInt() & primaryCodeMask;
    return code == sqliteBusy || code == sqliteLocked;
}
