// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QtGlobal>

#include <functional>

class AgentLog;

/// What runs the agent: a console, or the system's service manager.
class AgentHost
{
public:
    virtual ~AgentHost() = default;
    Q_DISABLE_COPY_MOVE(AgentHost)

    virtual AgentLog& log() = 0;
    /// From now on `stop` is called, from the event loop, when the agent has to end. It may be
    /// called more than once.
    virtual void stopWith(const std::function<void()>& stop) = 0;
    /// The agent has started.
    virtual void reportRunning() {}

protected:
    AgentHost() = default;
};
