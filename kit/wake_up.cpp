// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "wake_up.h"

#include <algorithm>
#include <array>

namespace VxKit {

WakeUp::WakeUp()
    : m_event(CreateEventW(nullptr, FALSE, FALSE, nullptr))
{}

void WakeUp::wake()
{
    m_semaphore.release();
    // A second try, because a thread that is not woken may wait for ever.
    if (m_event && !SetEvent(m_event.get()))
        SetEvent(m_event.get());
}

Waited WakeUp::wait(std::chrono::milliseconds time, std::span<const HANDLE> handles)
{
    const auto limit = static_cast<DWORD>(time.count());
    DWORD result = WAIT_FAILED;
    if (m_event && handles.empty()) {
        result = WaitForSingleObject(m_event.get(), limit);
    } else if (m_event) {
        std::array<HANDLE, MAXIMUM_WAIT_OBJECTS> all{m_event.get()};
        std::copy(handles.begin(), handles.end(), all.begin() + 1);
        result = WaitForMultipleObjects(static_cast<DWORD>(handles.size()) + 1, all.data(), FALSE,
                                        limit);
        if (result == WAIT_FAILED)
            return {Waited::Why::Failed};
    }

    if (result == WAIT_FAILED) {
        const bool isWoken = m_semaphore.tryAcquire(1, static_cast<int>(limit));
        return {isWoken ? Waited::Why::Woken : Waited::Why::TimedOut};
    }
    if (result == WAIT_TIMEOUT)
        return {Waited::Why::TimedOut};
    if (result != WAIT_OBJECT_0)
        return {Waited::Why::Signalled, result - WAIT_OBJECT_0 - 1};
    m_semaphore.tryAcquire(m_semaphore.available()); // it was released together with the event
    return {Waited::Why::Woken};
}

} // namespace VxKit
