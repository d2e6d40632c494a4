// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "agent_config.h"
#include "agent_sink.h"
#include "event_queue.h"
#include "mqtt_client.h"
#include "retained_topics.h"
#include "topics.h"

#include <printer_event.h>
#include <printer_reading.h>

#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtCore/QTimer>

#include <deque>

/// Publishes to a broker: for each printer its reading, retained; each event once; and whether the
/// agent is there.
///
/// While the broker is away, only the last reading of a printer is of interest, so nothing is kept
/// of the others. Events wait on the disk. When the broker is back, it gets the readings of all
/// printers first, since it may have lost what it had retained, and then the events.
class MqttSink : public AgentSink
{
    Q_OBJECT

public:
    explicit MqttSink(const AgentKnowledge& knowledge, QObject* parent = nullptr);
    ~MqttSink() override;
    Q_DISABLE_COPY_MOVE(MqttSink)

    void start() override;
    void stop() override;
    bool isStopped() const override { return m_isStopped; }

private:
    struct OnItsWay
    {
        enum class Kind
        {
            State,   ///< of the agent
            Printer, ///< a reading; `name` is the printer's
            Other,   ///< another retained message
            Removal, ///< of a retained message
            Event,   ///< `number` is the queue's
        };
        Kind kind = Kind::Other;
        QString name;
        QString topic;
        qint64 number = 0;
    };

    void setUpQueue();
    void setUpClient();

    void noteChange(const QString& name);
    void noteEvent(const VxKit::PrinterEvent& event);
    void keepEvents();

    void greet();
    void enterState();
    void refresh();
    void forgetConnection();
    void complain(const QString& reason);
    void noteDelivery(int number);
    void noteRefusal(int number, const QString& reason);

    void publishWhatWaits();
    bool publishNextReading();
    bool publishNextRemoval();
    bool publishNextEvent();
    bool send(const MqttMessage& message, const OnItsWay& onItsWay);
    void enter(const QString& name);
    bool isOnItsWay(const QString& topic) const;
    QStringList topicsOf(const VxKit::PrinterReading& reading,
                         const QList<MqttMessage>& discovery) const;
    void removeLeftOvers();
    QList<MqttMessage> discoveryOf(const VxKit::PrinterReading& reading) const;
    void sayGoodbye();

    AgentKnowledge m_knowledge;
    MqttConfig m_config;
    topics::AgentTopics m_topics;
    RetainedTopics m_retained;
    EventQueue m_queue;
    MqttClient m_client;

    std::deque<QString> m_changed;  ///< printers, in the order in which they are published
    QSet<QString> m_isChanged;      ///< the same
    QSet<QString> m_greeting;       ///< of these, those that events wait for
    std::deque<QString> m_removals; ///< topics
    std::deque<MqttMessage> m_others;
    QHash<QString, QByteArray> m_otherPayloads; ///< that the broker has had, by topic
    QHash<int, OnItsWay> m_onTheirWay;
    QSet<QString> m_busy; ///< printers whose reading is on its way
    int m_eventsOnTheirWay = 0;
    QTimer m_keeping;
    QTimer m_eventPause;
    QTimer m_refresh;
    QString m_lastReason;
    QSet<QString> m_refused; ///< topics of which that has been said
    qint64 m_dropped = 0;
    bool m_cannotKeep = false;
    bool m_isStopping = false;
    bool m_isStopped = false;
};

/// The name under which an agent logs on. It is the same each time, so that the broker ends a
/// connection that it still holds for alive when the agent comes back, and two agents with one name
/// do not publish under the same topics unnoticed.
QString clientIdOf(const QString& site, const QString& host);
