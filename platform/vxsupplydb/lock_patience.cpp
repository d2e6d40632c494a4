// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "lock_patience.h"

#include <QtCore/QString>
#include <QtCore/QThread>

#include <algorithm>

namespace {

// SQLite's result codes; the low byte of an extended one is the code that it extends.
constexpr int sqliteBusy = 5;
constexpr int sqliteLocked = 6;
constexpr int primaryCode = 0xff;

LockPatience::Milliseconds systemNow()
{
    return std::chrono::duration_cast<LockPatience::Milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
}

void systemSleep(LockPatience::Milliseconds duration)
{
    QThread::msleep(static_cast<unsigned long>(duration.count()));
}

} // namespace

LockPatience::LockPatience()
    : LockPatience({systemNow, systemSleep})
{}

LockPatience::LockPatience(const Clock& clock)
    : m_clock(clock)
{}

LockPatience& LockPatience::ofThisThread()
{
    thread_local LockPatience patience;
    return patience;
}

bool LockPatience::wait()
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

bool LockPatience::waitAfter(const QSqlError& error)
{
    return isLocked(error) && wait();
}

bool LockPatience::isLocked(const QSqlError& error)
{
    const int code = error.nativeErrorCode().toInt() & primaryCode;
    return code == sqliteBusy || code == sqliteLocked;
}
