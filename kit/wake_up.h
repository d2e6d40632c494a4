// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "spooler_owners.h"

#include <QtCore/QSemaphore>

#include <chrono>
#include <cstddef>
#include <span>

namespace VxKit {

/// How a wait has ended.
struct Waited
{
    enum class Why
    {
        Woken,
        Signalled,
        TimedOut,
        Failed, ///< one of the handles cannot be waited for
    };
    Why why = Why::TimedOut;
    std::size_t index = 0; ///< of the handle that was signalled
};

/// Lets a thread wait for Windows handles until another thread wakes it. When Windows gives no
/// event for that, or cannot wait for it, the thread can still wait, but for no other handle.
class WakeUp
{
public:
    WakeUp();

    /// Whether other handles can be waited for too.
    bool canWaitForHandles() const { return m_event != nullptr; }
    /// Ends the wait of the other thread, or its next one. May be called on any thread.
    void wake();
    /// At most `MAXIMUM_WAIT_OBJECTS - 1` handles. Fails only if there are some; the thread then
    /// has to wait without them.
    Waited wait(std::chrono::milliseconds time, std::span<const HANDLE> handles = {});

private:
    const EventOwner m_event;
    QSemaphore m_semaphore;
};

} // namespace VxKit
