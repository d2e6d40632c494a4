// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "agent_config.h"
#include "agent_sink.h"
#include "consumed_meters.h"
#include "metrics_server.h"
#include "metrics_textfile.h"

#include <memory>

/// Publishes the readings as metrics: over HTTP, in a file, or both.
class MetricsSink : public AgentSink
{
    Q_OBJECT

public:
    MetricsSink(const AgentKnowledge& knowledge, const MetricsConfig& config);
    ~MetricsSink() override;
    Q_DISABLE_COPY_MOVE(MetricsSink)

    void start() override;
    void stop() override;

private:
    void listen();
    void writeTextfile();
    void count(const QString& printer);
    QByteArray text(metrics_text::Format format) const;

    AgentKnowledge m_knowledge;
    MetricsConfig m_config;
    ConsumedMeters m_consumed;
    std::unique_ptr<MetricsServer> m_server;
    std::unique_ptr<MetricsTextfile> m_textfile;
};
