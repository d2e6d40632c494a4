// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "write_thread.h"

namespace VxKit {

bool WriteThread::flush(QDeadlineTimer deadline)
{
    std::unique_lock lock(mutex);
    const quint64 mine = ++flushesWanted;
    changed.notify_all();
    const auto isDone = [&] {
        return m_flushesDone >= mine;
    };
    if (deadline.isForever())
        changed.wait(lock, isDone);
    else if (!changed.wait_until(lock, deadline.deadline<Clock>(), isDone))
        return false;
    return error.isEmpty();
}

QString WriteThread::errorString() const
{
    const std::lock_guard lock(mutex);
    return error;
}

void WriteThread::stop()
{
    {
        const std::lock_guard lock(mutex);
        isStopping = true;
    }
    changed.notify_all();
    thread.join();
}

void WriteThread::finishFlushes(quint64 flushes)
{
    m_flushesDone = flushes;
    changed.notify_all();
}

} // namespace VxKit
