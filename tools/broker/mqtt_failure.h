// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "mqtt_client.h"

#include <QtCore/QStringList>

/// Why there is no connection to a broker, each in one line that says what to do.
namespace mqtt_failure {

QString unknownHost(const BrokerAddress& broker, const QString& error);
QString unreachable(const BrokerAddress& broker, const QString& error);
/// Nothing answered at all.
QString noConnection(const MqttOptions& options);
/// It accepted the connection, and then nothing came. `errors` are libmosquitto's.
QString silent(const MqttOptions& options, const QStringList& errors);
/// It closed the connection before it answered, for a reason in the system's words, if there is
/// one.
QString closedEarly(const MqttOptions& options, const QString& error);
/// Whether NATS closes the connection of a client that publishes under this topic.
bool isRefusedByNats(const QString& topic);
/// So many bytes has the shortest answer to a request for a connection.
inline constexpr qsizetype shortestAnswer = 4;
/// Empty if the bytes, at least that many, may be the beginning of an answer.
QString garbage(const BrokerAddress& broker, const QByteArray& bytes);
QString unusableCertificates(const MqttOptions& options, const QStringList& errors);
/// The broker answered with this reason of MQTT 3.1.1 or 5.
QString refusedConnection(const MqttOptions& options, int reason);
/// The connection ended, for a reason of MQTT 5 or an error of libmosquitto.
QString ended(const BrokerAddress& broker, int reason);
/// A call of libmosquitto failed, with `errno` and what it had logged as errors, before or after
/// the broker had answered. `suspect` is a topic of a message that the broker has not acknowledged
/// and that NATS would refuse; empty if there is none.
QString failedCall(const MqttOptions& options, int result, int error, const QStringList& errors,
                   bool hasAnswered, const QString& suspect);

} // namespace mqtt_failure
