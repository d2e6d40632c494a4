// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <mqtt_client.h>
#include <topics.h>

#include <printer_reading.h>
#include <status_codes.h>

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

/// The reading of a printer that is watched and online.
inline VxKit::PrinterReading watchedReading(const QString& name, int statusCode = 1)
{
    using VxKit::Level;
    using VxKit::PrinterReading;
    PrinterReading reading;
    reading.setName(name);
    reading.setModel(VXPrinting::PrinterType::AlderMax);
    reading.setDriver(QStringLiteral("Stratamark AlderMax"));
    reading.setWatching(PrinterReading::Watching::Watched);
    reading.setStatusCode(statusCode);
    reading.setOnline(true);
    reading.setLastReport(QDateTime::currentDateTimeUtc());
    Level level;
    level.state = Level::State::Loaded;
    level.identifier = QStringLiteral("000000641000030000A7");
    level.name = QStringLiteral("Yellow Vinyl");
    level.ratio = 0.5;
    level.colors = {QStringLiteral("#ffd400")};
    reading.setLevel(VxKit::Slot::Supply, level);
    reading.setEstimatedSecondsRemaining(VxKit::Slot::Supply,
                                         VxKit::RemainingTime{3600, 7200, 10800});
    return reading;
}

/// Publishes as an agent does, and whatever else a test wants.
class Publisher
{
public:
    Publisher(quint16 port, const QString& site, const QString& host)
        : topics(site, host)
        , client(optionsFor(port, topics.state()))
    {
        QObject::connect(&client, &MqttClient::delivered, &client, [this] { ++m_delivered; });
        client.start();
    }

    void put(const QString& topic, const QByteArray& payload, bool isRetained = true)
    {
        client.publish({topic, payload, isRetained});
        ++m_put;
    }
    /// Whether the broker has everything, so that whoever subscribes now gets it.
    bool isDelivered() const { return m_delivered == m_put; }
    void sayOnline() { put(topics.state(), "online"); }
    void put(const VxKit::PrinterReading& reading)
    {
        put(topics.printer(reading.name()),
            QJsonDocument(reading.toJson()).toJson(QJsonDocument::Compact));
    }
    void remove(const QString& printer) { put(topics.printer(printer), {}); }

    const ::topics::AgentTopics topics;
    MqttClient client;

private:
    int m_put = 0;
    int m_delivered = 0;

    static MqttOptions optionsFor(quint16 port, const QString& stateTopic)
    {
        static int publishers = 0;
        MqttOptions options;
        options.broker = {QStringLiteral("127.0.0.1"), port, false};
        options.clientId = QStringLiteral("publisher-%1").arg(++publishers);
        options.firstDelay = options.longestDelay = std::chrono::milliseconds(20);
        options.will = MqttMessage{stateTopic, "offline", true};
        return options;
    }
};
