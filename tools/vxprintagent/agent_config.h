// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "broker_url.h"
#include "mqtt_client.h"

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <chrono>
#include <optional>

/// Publishes to a broker.
struct MqttConfig
{
    enum class Protocol
    {
        Mqtt311,
        Mqtt5,
    };

    BrokerAddress broker;
    Protocol protocol = Protocol::Mqtt311;
    QString username; ///< empty: none
    QString passwordFile;
    QString caFile;   ///< empty: the authorities that the system trusts
    QString certFile; ///< the agent's own certificate; empty: none
    QString keyFile;
    std::chrono::seconds keepAlive = std::chrono::seconds(30);
    /// The longest wait between two attempts to reach the broker.
    std::chrono::milliseconds longestDelay = std::chrono::seconds(60);
    /// The folder of the events that wait for the broker.
    QString queueFolder;
    /// How many bytes they may take on the disk.
    qint64 queueLimit = qint64(16) * 1024 * 1024;
    /// How often everything retained is published again, also where nothing changes.
    std::chrono::milliseconds refresh = std::chrono::minutes(15);
    /// An event that is delivered later than this is historical.
    std::chrono::seconds historicalAfter = std::chrono::seconds(60);
    /// The first level of the topics with which hubs of home automation find devices; empty: such
    /// messages are not published.
    QString discoveryPrefix;
    /// Topics without spaces and dots, which NATS does not take.
    bool isForNats = false;
};

/// How a client connects to that broker. It has no name and no will yet.
MqttOptions connectionOptions(const MqttConfig& config);

/// Lets a Prometheus read.
struct MetricsConfig
{
    QString address; ///< empty: it does not listen
    quint16 port = 0;
    QString textfile; ///< empty: none is written
};

/// What the agent's configuration file says.
struct AgentConfig
{
    QString file;
    QString site;
    QString host;                   ///< the computer's name unless the file says another
    QString dataFolder;             ///< of what the agent keeps; see `defaultDataFolder`
    QString catalogue;              ///< of supplies; empty: the default of the tools
    QString eventLog;               ///< a file for people who support the printers; empty: none
    QString history;                ///< a file with what was used, for forecasts; empty: none
    std::optional<MqttConfig> mqtt; ///< none: off
    std::optional<MetricsConfig> metrics; ///< none: off
    /// What is allowed but unwise, each with file and line.
    QStringList warnings;
    /// The lines of keys such as "mqtt.url".
    QHash<QString, int> lines;

    /// "FILE:LINE: KEY", for messages about what a key names.
    QString place(const QString& key) const;
};

/// Where the agent keeps what waits for the broker unless the configuration says so: the folder
/// that systemd gives to a service, else "VxPrinterStatus/agent" where the system keeps the data of
/// programs.
QString defaultDataFolder();

enum class ConfigUse
{
    Agent,
    /// A program that only reads from the broker: "mqtt" must be there, but neither its "url" nor
    /// "site", which the program may be told otherwise.
    Reader,
};

/// Reads a configuration file. Throws a `Failure` with everything that is wrong with it, each with
/// file and line and what was expected. The files that it names are checked too: those with secrets
/// must not be readable for others.
AgentConfig readAgentConfig(const QString& fileName, ConfigUse use = ConfigUse::Agent);
