// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "json_rpc.h"

#include <QtCore/QObject>

#include <optional>
#include <utility>

/// A call from another process, for as long as the slot runs. Calls nest where a slot runs an event
/// loop.
class IpcCall
{
public:
    explicit IpcCall(const QObject& object)
        : m_object(&object)
        , m_outer(std::exchange(innermost, this))
    {}
    ~IpcCall() { innermost = m_outer; }
    Q_DISABLE_COPY_MOVE(IpcCall)

    /// The call that `object` is handling on this thread; null if there is none.
    static IpcCall* of(const QObject& object)
    {
        return innermost && innermost->m_object == &object ? innermost : nullptr;
    }

    void refuse(json_rpc::Error error) { m_refusal = std::move(error); }
    /// Why the slot refused the call, if it did. Valid after the object is destroyed, too.
    const std::optional<json_rpc::Error>& refusal() const { return m_refusal; }

private:
    inline static thread_local IpcCall* innermost = nullptr;

    const QObject* m_object;
    IpcCall* m_outer;
    std::optional<json_rpc::Error> m_refusal;
};
