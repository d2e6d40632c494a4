// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "site_source.h"

#include <mqtt_client.h>
#include <topics.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtCore/QTimer>

#include <chrono>

struct SiteReadingsOptions
{
    MqttOptions client;
    QString site; ///< empty: all
    /// What the broker may make this program keep. What is beyond is counted and left out.
    qsizetype mostPrinters = 20000;
    qsizetype mostAgents = 5000;
    qsizetype largestPayload = qsizetype(128) * 1024;
    /// The broker has sent everything that it keeps when nothing of it has come for so long.
    std::chrono::milliseconds quiet = std::chrono::seconds(1);
    /// What a broker no longer has because it was started anew, its agent publishes again when it
    /// is back. So long that is waited for.
    std::chrono::milliseconds patienceWithAgents = std::chrono::minutes(2);
};

/// Reads what agents publish on a broker, by host and printer.
///
/// Everything that comes from the broker may be wrong or hostile. The names are those of the
/// topics, which the broker has checked, and not those in the messages. A message that cannot be
/// read leaves what was known.
class SiteReadings : public SiteSource
{
    Q_OBJECT

public:
    explicit SiteReadings(const SiteReadingsOptions& options);
    ~SiteReadings() override;
    Q_DISABLE_COPY_MOVE(SiteReadings)

    void start() override;
    SiteState state() const override;
    QList<VxKit::PrinterReading> readings() const override;

private:
    enum class AgentState
    {
        NotKnown, ///< the broker has not said it
        Online,
        Offline,
    };
    struct Agent
    {
        QString name; ///< as it is shown
        AgentState state = AgentState::NotKnown;
        QDateTime since{};        ///< when it went offline; invalid if that is not known
        bool isConfirmed = false; ///< by the broker since the last connection
        QSet<QString> printers{}; ///< their identities
        QString session{};        ///< of its last event, with the number
        qint64 seq = 0;
    };
    struct Printer
    {
        QString agent; ///< its identity
        VxKit::PrinterReading reading;
        bool isConfirmed = false;
    };

    void beginConnection();
    void endConnection();
    void settle();
    void forgetUnconfirmed();

    void take(const MqttMessage& message);
    void takeState(const topics::Place& place, const MqttMessage& message);
    void takeReading(const topics::Place& place, const MqttMessage& message);
    void takeEvent(const topics::Place& place, const MqttMessage& message);
    void refuse(const QString& topic, const QString& why);
    void noteBeyondLimits(const QString& what);

    static QString identityOf(const topics::Place& place);
    QString agentName(const topics::Place& place) const;
    QString newName(const topics::Place& place) const;
    /// Null beyond the limit.
    Agent* agentFor(const topics::Place& place);
    void setState(Agent& agent, AgentState state, const QDateTime& since);
    void forget(const QString& printer);
    void forgetAgentIfEmpty(const QString& agent);
    VxKit::PrinterReading shownReading(const Printer& printer) const;
    bool isOffline(const Agent& agent) const;

    void noteChange(const QString& printer);
    void noteAllChanged();
    void noteState();
    void send();

    const SiteReadingsOptions m_options;
    QHash<QString, Agent> m_agents;     ///< by site and host
    QHash<QString, Printer> m_printers; ///< by site, host and name
    QHash<QString, QString> m_names;    ///< the identities of the names
    QString m_reason;
    QDateTime m_unconnectedSince;
    bool m_isConnected = false;
    bool m_hasSettled = false; ///< since the last connection
    bool m_isListed = false;
    qint64 m_unreadable = 0;
    QString m_lastUnreadable;
    qint64 m_beyondLimits = 0;

    QSet<QString> m_changed; ///< identities
    QStringList m_removed;   ///< names
    QList<VxKit::PrinterEvent> m_events;
    SiteState m_sent;
    QTimer m_batch;
    QTimer m_quiet;
    QTimer m_forgetting;
    QElapsedTimer m_sinceWarned;
    MqttClient m_client;
};
