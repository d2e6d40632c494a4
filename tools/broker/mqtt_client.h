// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "broker_url.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <chrono>
#include <memory>
#include <optional>

struct MqttMessage
{
    QString topic;
    QByteArray payload;
    bool isRetained = false;
};

struct MqttOptions
{
    enum class Protocol
    {
        Mqtt311,
        Mqtt5,
    };

    BrokerAddress broker;
    Protocol protocol = Protocol::Mqtt311;
    QString clientId;
    QString username; ///< empty: none
    QString passwordFile;
    /// Certificates of the authorities that may have signed the broker's; empty: those that the
    /// system trusts.
    QString caFile;
    QString certFile; ///< the client's own certificate; empty: none
    QString keyFile;
    std::chrono::seconds keepAlive = std::chrono::seconds(30);
    /// What the broker publishes when the connection ends in another way than by `stop`.
    std::optional<MqttMessage> will{};
    /// So long the broker may take from the first packet until it has accepted the client.
    std::chrono::milliseconds answerTime = std::chrono::seconds(20);
    /// How long to wait before the second attempt. Each further attempt waits twice as long as the
    /// one before, up to the longest time. A random part of up to a half is taken off, so that
    /// agents that lost their broker together do not come back together.
    std::chrono::milliseconds firstDelay = std::chrono::seconds(1);
    std::chrono::milliseconds longestDelay = std::chrono::seconds(60);
};

/// A connection to an MQTT broker that is made again whenever it ends.
///
/// libmosquitto does the protocol, driven by the event loop of the object's thread; there is no
/// further thread. Each connection is a clean session: what the broker has not acknowledged when it
/// ends is forgotten here, and is for the caller to publish again.
///
/// A broker over TLS must have a certificate for the host of the URL, signed by an authority that
/// is trusted. There is no option that turns this off.
class MqttClient : public QObject
{
    Q_OBJECT

public:
    explicit MqttClient(const MqttOptions& options, QObject* parent = nullptr);
    ~MqttClient() override;
    Q_DISABLE_COPY_MOVE(MqttClient)

    void start();
    /// Takes leave of the broker, so that it does not publish the will, and ends the attempts.
    /// `ended` follows once everything that was published before has been sent, or when that fails.
    void stop();

    bool isConnected() const;

    /// Publishes with QoS 1. The number identifies the message in `delivered` and `refused`. Empty
    /// when it could not be published: without a connection, or when it is a message that no broker
    /// would take, which `*objection` says then.
    std::optional<int> publish(const MqttMessage& message, QString* objection = nullptr);
    /// Subscribes with at most a QoS of 0 or 1, until the connection ends.
    void subscribe(const QString& filter, int mostQos = 1);

    /// @name The waits between attempts
    /// @{
    /// The longest wait before the attempt with this number, which counts from 1.
    static std::chrono::milliseconds longestWait(const MqttOptions& options, int attempt);
    /// @}

Q_SIGNALS:
    void connected();
    /// A connection of which `connected` was emitted has ended. Emitted before `failed`.
    void disconnected();
    /// An attempt has failed, or a connection has ended. `reason` is one line that says what to do.
    void failed(const QString& reason, std::chrono::milliseconds nextAttemptIn);
    /// The broker has the message.
    void delivered(int number);
    /// The broker does not accept the message.
    void refused(int number, const QString& reason);
    /// The broker has answered to a `subscribe`. It may be that the user may not read any of it.
    void subscribed(bool isAllowed);
    /// `isRetained`: it is what the broker kept, and not new.
    void received(const MqttMessage& message);
    /// See `stop`.
    void ended();

private:
    class Private;
    const std::unique_ptr<Private> d;
};
