// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QtGlobal>

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace VxKit::c_interface {

/// The thread on which sessions of the C interface work, one after the other. There is one for all:
/// the first thread on which Qt's objects are created counts as Qt's main thread until the process
/// ends, and application objects belong there. It is not a QThread, of which the thread of the
/// caller would become Qt's main thread.
class WorkThread
{
public:
    static WorkThread& instance();

    /// Calls the function on the thread, after those that were passed before.
    void start(const std::function<void()>& work);
    /// Ends the thread when it has nothing to do any more. Has no effect on the thread itself.
    void end();

private:
    WorkThread() = default;
    ~WorkThread() = default;
    Q_DISABLE_COPY_MOVE(WorkThread)

    void run();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<std::function<void()>> m_work;
    bool m_isEnding = false;
    std::thread m_thread;
};

} // namespace VxKit::c_interface
