// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "c_work_thread.h"

#include <utility>

namespace VxKit::c_interface {

WorkThread& WorkThread::instance()
{
    // Never destroyed: where the thread cannot be ended it uses this until the process has ended.
    static auto* const thread = new WorkThread;
    return *thread;
}

void WorkThread::start(const std::function<void()>& work)
{
    const std::lock_guard guard(m_mutex);
    if (!m_thread.joinable())
        m_thread = std::thread(&WorkThread::run, this);
    m_work.push_back(work);
    m_changed.notify_all();
}

void WorkThread::end()
{
    std::thread thread;
    {
        const std::lock_guard guard(m_mutex);
        if (!m_thread.joinable() || m_thread.get_id() == std::this_thread::get_id())
            return;
        m_isEnding = true;
        m_changed.notify_all();
        thread = std::move(m_thread);
    }
    thread.join();
    m_isEnding = false;
}

void WorkThread::run()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_isEnding || !m_work.empty(); });
        if (m_work.empty())
            return;
        const std::function<void()> work = std::move(m_work.front());
        m_work.pop_front();
        lock.unlock();
        work();
        lock.lock();
    }
}

} // namespace VxKit::c_interface
