// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "agent_sink.h"

#include "agent_config.h"
#include "metrics_sink.h"
#include "mqtt_sink.h"

std::vector<std::unique_ptr<AgentSink>> makeSinks(const AgentKnowledge& knowledge)
{
    std::vector<std::unique_ptr<AgentSink>> sinks;
    if (knowledge.config.metrics)
        sinks.push_back(std::make_unique<MetricsSink>(knowledge, *knowledge.config.metrics));
    if (knowledge.config.mqtt)
        sinks.push_back(std::make_unique<MqttSink>(knowledge));
    return sinks;
}
