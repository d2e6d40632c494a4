// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "mqtt_client.h"
#include "topics.h"

#include <printer_reading.h>

#include <QtCore/QList>

/// The retained messages by which a hub of home automation finds a printer on the broker: a device
/// with sensors for its status, for a problem, and for what is left in each slot. They say under
/// which topic the reading is and which part of it each sensor shows.
/// https://www.home-assistant.io/integrations/mqtt/#mqtt-discovery
QList<MqttMessage> discoveryMessages(const QString& prefix, const topics::AgentTopics& topics,
                                     const VxKit::PrinterReading& reading);
