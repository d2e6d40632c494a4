// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "mqtt_sink.h"

#include "agent_log.h"
#include "discovery_messages.h"
#include "failure.h"

#include <printer_events.h>
#include <printer_readings.h>

#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtCore/QJsonDocument>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

using VxKit::PrinterEvent;
using VxKit::PrinterReading;

/// So many messages of each kind may be unacknowledged. Readings do not take the place of events.
constexpr int mostOnTheirWay = 16;

/// How long to wait before events are sent again that the broker did not accept.
constexpr auto pauseAfterRefusal = 60s;

topics::AgentTopics topicsOfAgent(const AgentConfig& config)
{
    return {config.site, config.host,
            config.mqtt->isForNats ? topics::Escaping::Nats : topics::Escaping::Usual};
}

MqttOptions clientOptions(const AgentConfig& config)
{
    MqttOptions options = connectionOptions(*config.mqtt);
    options.clientId = clientIdOf(config.site, config.host);
    options.will = MqttMessage{topicsOfAgent(config).state(), "offline", true};
    return options;
}

EventQueueOptions queueOptions(const MqttConfig& mqtt)
{
    EventQueueOptions options;
    options.folder = mqtt.queueFolder;
    options.limit = mqtt.queueLimit;
    options.lossEvent = [](qint64 count, const QDateTime& since) {
        PrinterEvent event;
        event.time = QDateTime::currentDateTime();
        event.severity = VxKit::Severity::Warning;
        event.kind = PrinterEvent::Kind::EventsLost;
        event.key = VxKit::eventKindName(event.kind);
        event.lost = count;
        event.since = since;
        return event.toLine();
    };
    return options;
}

/// An event as it is published: whether it is late is known only then.
QByteArray payloadOf(const EventQueue::Entry& entry, std::chrono::seconds historicalAfter)
{
    const auto age = std::chrono::milliseconds(entry.time.msecsTo(QDateTime::currentDateTimeUtc()));
    return entry.event.left(entry.event.lastIndexOf('}')) +
           ",\"historical\":" + (age > historicalAfter ? "true" : "false") + '}';
}

} // namespace

QString clientIdOf(const QString& site, const QString& host)
{
    constexpr qsizetype longestName = 40;
    constexpr qsizetype digits = 12;
    QString name = host.left(longestName);
    for (QChar& letter : name) {
        const bool isPlain = letter.unicode() < 0x80 && letter.isLetterOrNumber();
        if (!isPlain)
            letter = u'-';
    }
    const QByteArray identity = topics::AgentTopics(site, host).root().toUtf8();
    const QByteArray hash = QCryptographicHash::hash(identity, QCryptographicHash::Sha256);
    return QStringLiteral("vxprintagent-%1-%2")
        .arg(name, QString::fromLatin1(hash.toHex().left(digits)));
}

MqttSink::MqttSink(const AgentKnowledge& knowledge, QObject* parent)
    : AgentSink(parent)
    , m_knowledge(knowledge)
    , m_config(*knowledge.config.mqtt)
    , m_topics(topicsOfAgent(knowledge.config))
    , m_retained(m_config.queueFolder + QLatin1String("/retained-topics"))
    , m_queue(queueOptions(m_config))
    , m_client(clientOptions(knowledge.config))
{}

MqttSink::~MqttSink() = default;

void MqttSink::start()
{
    setUpQueue();
    setUpClient();
    const VxKit::PrinterReadings& readings = m_knowledge.readings;
    connect(&readings, &VxKit::PrinterReadings::added, this, &MqttSink::noteChange);
    connect(&readings, &VxKit::PrinterReadings::changed, this, &MqttSink::noteChange);
    connect(&readings, &VxKit::PrinterReadings::gone, this, &MqttSink::noteChange);
    connect(&readings, &VxKit::PrinterReadings::renamed, this,
            [this](const QString& oldName, const QString& newName) {
                noteChange(oldName);
                noteChange(newName);
            });
    connect(&m_knowledge.events, &VxKit::PrinterEvents::happened, this, &MqttSink::noteEvent);
    m_knowledge.log.information(
        QStringLiteral("publishing to %1 under %2").arg(m_config.broker.url(), m_topics.root()));
    m_client.start();
}

void MqttSink::setUpQueue()
{
    QString reason;
    if (!m_queue.open(&reason))
        throw Failure(reason);
    m_retained.read();
    m_keeping.setSingleShot(true);
    connect(&m_keeping, &QTimer::timeout, this, &MqttSink::keepEvents);
    m_eventPause.setSingleShot(true);
    connect(&m_eventPause, &QTimer::timeout, this, &MqttSink::publishWhatWaits);
}

void MqttSink::setUpClient()
{
    connect(&m_client, &MqttClient::connected, this, &MqttSink::greet);
    connect(&m_client, &MqttClient::disconnected, this, &MqttSink::forgetConnection);
    connect(&m_client, &MqttClient::failed, this, &MqttSink::complain);
    connect(&m_client, &MqttClient::delivered, this, &MqttSink::noteDelivery);
    connect(&m_client, &MqttClient::refused, this, &MqttSink::noteRefusal);
    connect(&m_refresh, &QTimer::timeout, this, &MqttSink::refresh);
    connect(&m_client, &MqttClient::ended, this, [this] {
        m_isStopped = true;
        Q_EMIT stopped();
    });
}

/// @name What the agent sees
/// @{
void MqttSink::noteChange(const QString& name)
{
    if (!m_client.isConnected())
        return; // all printers are published then
    enter(name);
    publishWhatWaits();
}

void MqttSink::enter(const QString& name)
{
    if (m_isChanged.contains(name))
        return;
    m_isChanged.insert(name);
    m_changed.push_back(name);
}

void MqttSink::noteEvent(const PrinterEvent& event)
{
    PrinterEvent timed = event;
    if (!timed.time.isValid())
        timed.time = QDateTime::currentDateTime();
    m_queue.add(timed.toLine());
    // Those that come together are written together.
    if (!m_keeping.isActive())
        m_keeping.start(0);
}

void MqttSink::keepEvents()
{
    constexpr auto untilNextAttempt = 1s;
    QString reason;
    const bool isKept = m_queue.flush(&reason);
    if (!isKept && !m_cannotKeep)
        m_knowledge.log.warning(
            QStringLiteral("events cannot be kept for the broker: %1; it is tried "
                           "again every second")
                .arg(reason));
    else if (isKept && m_cannotKeep)
        m_knowledge.log.information(QStringLiteral("events are kept again"));
    m_cannotKeep = !isKept;
    if (m_dropped == 0 && m_queue.dropped() > 0)
        m_knowledge.log.warning(
            QStringLiteral("the oldest events are dropped, since the broker has been away for too "
                           "long; how many is published when it is back"));
    m_dropped = m_queue.dropped();
    if (!isKept)
        m_keeping.start(untilNextAttempt);
    publishWhatWaits();
}
/// @}

/// @name The connection
/// @{
void MqttSink::greet()
{
    m_lastReason.clear();
    m_knowledge.log.information(QStringLiteral("connected to %1").arg(m_config.broker.url()));
    if (m_isStopping) {
        sayGoodbye();
        return;
    }
    removeLeftOvers();
    enterState();
    m_greeting = m_isChanged;
    publishWhatWaits();
    m_refresh.start(m_config.refresh);
}

/// What the broker is to retain.
void MqttSink::enterState()
{
    QStringList needed{m_topics.state()};
    for (const QList<PrinterReading> all = m_knowledge.readings.readings();
         const PrinterReading& reading : all) {
        if (reading.presence() == PrinterReading::Presence::Gone)
            continue;
        needed += topicsOf(reading, discoveryOf(reading));
        enter(reading.name());
    }
    QString reason;
    if (!m_retained.add(needed, &reason))
        m_knowledge.log.warning(
            QStringLiteral("what is published cannot be noted, so that printers "
                           "that go while the agent is off remain: %1")
                .arg(reason));
    send({m_topics.state(), "online", true}, {OnItsWay::Kind::State, {}, m_topics.state(), 0});
}

/// A cluster that is choosing who keeps what can acknowledge a state and not keep it. So it gets
/// each one again, before anybody relies on it for long.
void MqttSink::refresh()
{
    if (m_isStopping)
        return;
    m_otherPayloads.clear();
    enterState();
    publishWhatWaits();
}

/// What an earlier run has published and is no longer true.
void MqttSink::removeLeftOvers()
{
    QSet<QString> current{m_topics.state()};
    for (const QList<PrinterReading> all = m_knowledge.readings.readings();
         const PrinterReading& reading : all) {
        if (reading.presence() == PrinterReading::Presence::Present) {
            for (const QStringList own = topicsOf(reading, discoveryOf(reading));
                 const QString& topic : own)
                current.insert(topic);
        }
    }
    m_removals.clear();
    for (const QStringList all = m_retained.all(); const QString& topic : all) {
        if (!current.contains(topic))
            m_removals.push_back(topic);
    }
}

void MqttSink::forgetConnection()
{
    m_changed.clear();
    m_isChanged.clear();
    m_greeting.clear();
    m_removals.clear();
    m_others.clear();
    m_otherPayloads.clear();
    m_onTheirWay.clear();
    m_busy.clear();
    m_eventsOnTheirWay = 0;
    m_eventPause.stop();
    m_refresh.stop();
    m_queue.rewind();
}

void MqttSink::complain(const QString& reason)
{
    // The same reason again tells nobody anything.
    if (reason == m_lastReason)
        return;
    m_lastReason = reason;
    m_knowledge.log.warning(
        QStringLiteral("%1; the printers are watched on, and it is tried again").arg(reason));
}
/// @}

/// @name Publishing
/// @{
void MqttSink::publishWhatWaits()
{
    if (m_isStopping || !m_client.isConnected())
        return;
    // Readings first, then what goes with them; events when those of the beginning have been sent.
    while (m_onTheirWay.size() - m_eventsOnTheirWay < mostOnTheirWay) {
        if (!publishNextReading() && !publishNextRemoval())
            break;
    }
    if (!m_greeting.isEmpty() || m_eventPause.isActive())
        return;
    while (m_eventsOnTheirWay < mostOnTheirWay && publishNextEvent()) {
    }
}

bool MqttSink::publishNextReading()
{
    if (!m_others.empty()) {
        const MqttMessage message = m_others.front();
        m_others.pop_front();
        send(message, {OnItsWay::Kind::Other, {}, message.topic, 0});
        return true;
    }
    // A printer whose last reading is on its way waits, so that what changes meanwhile is one more.
    const auto next = std::ranges::find_if(
        m_changed, [this](const QString& name) { return !m_busy.contains(name); });
    if (next == m_changed.end())
        return false;
    const QString name = *next;
    m_changed.erase(next);
    m_isChanged.remove(name);
    m_greeting.remove(name);
    const PrinterReading reading = m_knowledge.readings.reading(name);
    const QString topic = m_topics.printer(name);
    if (reading.isNull() || reading.presence() == PrinterReading::Presence::Gone) {
        // Also its discovery messages, whatever slots it had.
        removeLeftOvers();
        return true;
    }
    const QList<MqttMessage> others = discoveryOf(reading);
    QString reason;
    m_retained.add(topicsOf(reading, others), &reason); // was said at the beginning if it fails
    // It may have been gone just now.
    std::erase(m_removals, topic);
    send({topic, QJsonDocument(reading.toJson()).toJson(QJsonDocument::Compact), true},
         {OnItsWay::Kind::Printer, name, topic, 0});
    for (const MqttMessage& other : others) {
        std::erase(m_removals, other.topic);
        if (m_otherPayloads.value(other.topic) == other.payload)
            continue;
        m_otherPayloads.insert(other.topic, other.payload);
        m_others.push_back(other);
    }
    return true;
}

bool MqttSink::publishNextRemoval()
{
    if (m_removals.empty())
        return false;
    const QString topic = m_removals.front();
    m_removals.pop_front();
    m_otherPayloads.remove(topic);
    send({topic, {}, true}, {OnItsWay::Kind::Removal, {}, topic, 0});
    return true;
}

bool MqttSink::publishNextEvent()
{
    const std::optional<EventQueue::Entry> entry = m_queue.next();
    if (!entry)
        return false;
    const QString topic = m_topics.event();
    const bool isSent = send({topic, payloadOf(*entry, m_config.historicalAfter), false},
                             {OnItsWay::Kind::Event, {}, topic, entry->number});
    if (!isSent && m_client.isConnected())
        m_queue.done(entry->number); // no broker would ever take it
    return m_client.isConnected();
}

/// False if it could not be sent. If that is not for want of a connection, it is said.
bool MqttSink::send(const MqttMessage& message, const OnItsWay& onItsWay)
{
    QString objection;
    const std::optional<int> number = m_client.publish(message, &objection);
    if (!number) {
        if (!objection.isEmpty())
            m_knowledge.log.warning(
                QStringLiteral("%1 cannot be published: %2").arg(message.topic, objection));
        return false;
    }
    m_onTheirWay.insert(*number, onItsWay);
    if (onItsWay.kind == OnItsWay::Kind::Printer)
        m_busy.insert(onItsWay.name);
    m_eventsOnTheirWay += onItsWay.kind == OnItsWay::Kind::Event ? 1 : 0;
    return true;
}

void MqttSink::noteDelivery(int number)
{
    const auto found = m_onTheirWay.constFind(number);
    if (found == m_onTheirWay.cend())
        return;
    const OnItsWay delivered = *found;
    m_onTheirWay.erase(found);
    m_refused.remove(delivered.topic);
    QString reason;
    switch (delivered.kind) {
    case OnItsWay::Kind::State:
        if (m_isStopping)
            m_client.stop();
        break;
    case OnItsWay::Kind::Printer:
        m_busy.remove(delivered.name);
        break;
    case OnItsWay::Kind::Removal:
        // Unless it has been published again since.
        if (!isOnItsWay(delivered.topic))
            m_retained.remove(delivered.topic, &reason);
        break;
    case OnItsWay::Kind::Event:
        --m_eventsOnTheirWay;
        m_queue.done(delivered.number);
        break;
    case OnItsWay::Kind::Other:
        break;
    }
    publishWhatWaits();
}

void MqttSink::noteRefusal(int number, const QString& reason)
{
    const auto found = m_onTheirWay.constFind(number);
    if (found == m_onTheirWay.cend())
        return;
    const OnItsWay refused = *found;
    if (!m_refused.contains(refused.topic)) {
        m_refused.insert(refused.topic);
        m_knowledge.log.warning(QStringLiteral("the broker does not accept %1: %2; check what this "
                                               "agent may publish")
                                    .arg(refused.topic, reason));
    }
    if (refused.kind != OnItsWay::Kind::Event) {
        noteDelivery(number);
        m_refused.insert(refused.topic);
        return;
    }
    // Events are not given up: who runs the broker may allow them yet.
    m_onTheirWay.removeIf(
        [](const auto& entry) { return entry.value().kind == OnItsWay::Kind::Event; });
    m_eventsOnTheirWay = 0;
    m_queue.rewind();
    m_eventPause.start(pauseAfterRefusal);
}

bool MqttSink::isOnItsWay(const QString& topic) const
{
    return std::ranges::any_of(m_onTheirWay,
                               [&](const OnItsWay& each) { return each.topic == topic; }) ||
           std::ranges::any_of(m_others,
                               [&](const MqttMessage& each) { return each.topic == topic; });
}

QStringList MqttSink::topicsOf(const PrinterReading& reading,
                               const QList<MqttMessage>& discovery) const
{
    QStringList result{m_topics.printer(reading.name())};
    for (const MqttMessage& message : discovery)
        result.append(message.topic);
    return result;
}

QList<MqttMessage> MqttSink::discoveryOf(const PrinterReading& reading) const
{
    return m_config.discoveryPrefix.isEmpty()
               ? QList<MqttMessage>()
               : discoveryMessages(m_config.discoveryPrefix, m_topics, reading);
}
/// @}

void MqttSink::stop()
{
    if (m_isStopping)
        return;
    m_isStopping = true;
    QString reason;
    if (!m_queue.flush(&reason))
        m_knowledge.log.warning(QStringLiteral("the last events are lost: %1").arg(reason));
    sayGoodbye();
}

void MqttSink::sayGoodbye()
{
    const bool isSent =
        m_client.isConnected() &&
        send({m_topics.state(), "offline", true}, {OnItsWay::Kind::State, {}, m_topics.state(), 0});
    if (!isSent)
        m_client.stop();
}
