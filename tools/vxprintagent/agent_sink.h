// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QDeadlineTimer>
#include <QtCore/QObject>

#include <memory>
#include <vector>

class AgentLog;
struct AgentConfig;

namespace VxKit {
class PrinterDiscovery;
class PrinterEvents;
class PrinterReadings;
} // namespace VxKit

/// What the agent knows, for those who publish it. All of it lives as long as they do.
struct AgentKnowledge
{
    const AgentConfig& config;
    VxKit::PrinterReadings& readings;
    VxKit::PrinterEvents& events;
    VxKit::PrinterDiscovery& discovery;
    AgentLog& log;
};

/// Publishes what the agent knows. It belongs to the agent's thread and never blocks it for long.
class AgentSink : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Begins to publish, before the first event happens. Throws a `Failure` if that makes no
    /// sense: what may mend itself, such as a broker that does not answer, is tried again instead.
    virtual void start() = 0;
    /// Says goodbye, if there is anything to say. `isStopped` tells when that is done.
    virtual void stop() {}
    virtual bool isStopped() const { return true; }

Q_SIGNALS:
    void stopped();
};

/// The sinks that the configuration names.
std::vector<std::unique_ptr<AgentSink>> makeSinks(const AgentKnowledge& knowledge);
