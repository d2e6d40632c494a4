// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <mqtt_client.h>

#include <QtCore/QHash>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QObject>

/// Reads everything that agents publish on a broker, in order.
class SiteReader : public QObject
{
public:
    explicit SiteReader(quint16 port)
        : m_client(optionsFor(port))
    {
        connect(&m_client, &MqttClient::connected, this, [this] {
            // Not to acknowledge anything: when that fails because the broker was killed, what it
            // had sent before would not be read.
            m_client.subscribe(QStringLiteral("#"), 0);
            // What comes back says that the subscription holds.
            m_client.publish({QStringLiteral("mark"), QByteArray::number(++m_marks)});
        });
        connect(&m_client, &MqttClient::disconnected, this, [this] { isReading = false; });
        connect(&m_client, &MqttClient::received, this, [this](const MqttMessage& message) {
            if (message.topic == QLatin1String("mark")) {
                isReading = true;
                return;
            }
            messages.append(message);
            if (message.topic.endsWith(QLatin1String("/event"))) {
                m_events.append(QJsonDocument::fromJson(message.payload).object());
                return;
            }
            if (message.payload.isEmpty())
                retained.remove(message.topic);
            else
                retained.insert(message.topic, message.payload);
        });
        m_client.start();
    }

    static MqttOptions optionsFor(quint16 port)
    {
        static int readers = 0;
        MqttOptions options;
        options.broker = {QStringLiteral("127.0.0.1"), port, false};
        options.clientId = QStringLiteral("reader-%1").arg(++readers);
        options.firstDelay = options.longestDelay = std::chrono::milliseconds(20);
        return options;
    }

    /// The events in the order in which they came, also those that came twice.
    const QList<QJsonObject>& events() const { return m_events; }

    QJsonObject reading(const QString& topic) const
    {
        return QJsonDocument::fromJson(retained.value(topic)).object();
    }

    bool isReading = false;
    QList<MqttMessage> messages;
    QHash<QString, QByteArray> retained; ///< the last message of each topic but of events

private:
    MqttClient m_client;
    QList<QJsonObject> m_events;
    int m_marks = 0;
};
