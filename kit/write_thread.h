// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QDeadlineTimer>
#include <QtCore/QString>
#include <QtCore/QtGlobal>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace VxKit {

/// What an object shares with the thread on which it writes its file: whether writing fails, and
/// who waits until everything has been written.
class WriteThread
{
public:
    /// Waits until everything has been written that was there before. False when an attempt has
    /// failed or the time is over.
    bool flush(QDeadlineTimer deadline);
    /// Why the last attempt failed; empty when it succeeded.
    QString errorString() const;
    /// Has the thread write what there is and end, and waits for it.
    void stop();

protected:
    using Clock = std::chrono::steady_clock;

    WriteThread() = default;
    ~WriteThread() = default;
    Q_DISABLE_COPY_MOVE(WriteThread)

    /// Whether somebody waits for what there is to be written. The mutex is held, as for all of
    /// these.
    bool isAsked() const { return isStopping || flushesWanted != m_flushesDone; }
    /// Everything has been written that was there when so many flushes were wanted, or an attempt
    /// has failed.
    void finishFlushes(quint64 flushes);

    mutable std::mutex mutex;
    std::condition_variable changed;
    // All of these are guarded by the mutex.
    QString error;
    Clock::time_point nextAttempt;
    quint64 flushesWanted = 0;
    bool isStopping = false;

    std::thread thread;

private:
    quint64 m_flushesDone = 0; ///< guarded by the mutex
};

} // namespace VxKit
