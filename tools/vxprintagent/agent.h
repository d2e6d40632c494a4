// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "agent_config.h"
#include "agent_sink.h"

#include <event_log.h>
#include <printer_discovery.h>
#include <printer_events.h>
#include <printer_forecasts.h>
#include <printer_readings.h>
#include <printer_status_controller.h>
#include <usage_history.h>

#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <memory>
#include <optional>
#include <vector>

class AgentLog;

/// A host without a face: watches the printers and has its sinks publish what it sees.
class Agent : public QObject
{
    Q_OBJECT

public:
    /// Does not watch yet. If the configuration names no catalogue, it is the default of the
    /// tools.
    Agent(const AgentConfig& config, AgentLog& log);
    ~Agent() override;
    Q_DISABLE_COPY_MOVE(Agent)

    /// Says which printers it sees, and begins to publish.
    void start();
    /// Has the sinks say goodbye; `stopped` follows, at the latest after `patience`.
    void stop();

    int watchedPrinters() const;
    VxKit::PrinterReadings& readings() { return m_readings; }

Q_SIGNALS:
    void stopped();

private:
    PrinterStatusController* withCatalogue();
    void keepEventLog();
    void forecast();
    void reportPrinters();
    void stopIfDone();

    AgentConfig m_config;
    AgentLog& m_log;
    PrinterStatusController m_controller;
    VxKit::PrinterReadings m_readings;
    VxKit::PrinterEvents m_events;
    VxKit::PrinterForecasts m_forecasts;
    std::optional<VxKit::UsageHistory> m_history;
    std::optional<VxKit::EventLog> m_eventLog;
    VxKit::PrinterDiscovery m_discovery;
    std::vector<std::unique_ptr<AgentSink>> m_sinks;
    QTimer m_secondLook;
    QTimer m_stopLimit;
    bool m_isStopping = false;
};
