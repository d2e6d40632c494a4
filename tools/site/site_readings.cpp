// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "site_readings.h"

#include "shown_text.h"
#include "tool_text.h"

#include <status_codes.h>

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;
using VxKit::PrinterEvent;
using VxKit::PrinterReading;

namespace {

constexpr auto batchInterval = 100ms;
/// Of one batch. When more happens, the oldest are left out.
constexpr qsizetype mostEvents = 500;
constexpr qsizetype longestName = 1024;
constexpr qsizetype longestQuote = 200;
constexpr auto warnEvery = 1min;

/// What an agent that is not there any more estimated is no estimate now.
void removeEstimates(PrinterReading& reading)
{
    const QList<VxKit::Slot> slotList = reading.slotList();
    for (const VxKit::Slot slot : slotList)
        reading.setEstimatedSecondsRemaining(slot, std::nullopt);
}

} // namespace

SiteReadings::SiteReadings(const SiteReadingsOptions& options)
    : m_options(options)
    , m_client(options.client)
{
    m_batch.setSingleShot(true);
    m_batch.setInterval(batchInterval);
    connect(&m_batch, &QTimer::timeout, this, &SiteReadings::send);
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(m_options.quiet);
    connect(&m_quiet, &QTimer::timeout, this, &SiteReadings::settle);
    m_forgetting.setSingleShot(true);
    m_forgetting.setInterval(m_options.patienceWithAgents);
    connect(&m_forgetting, &QTimer::timeout, this, &SiteReadings::forgetUnconfirmed);

    connect(&m_client, &MqttClient::connected, this, &SiteReadings::beginConnection);
    connect(&m_client, &MqttClient::disconnected, this, &SiteReadings::endConnection);
    connect(&m_client, &MqttClient::received, this, &SiteReadings::take);
    connect(&m_client, &MqttClient::failed, this, [this](const QString& reason) {
        m_reason = shownAsMessage(reason);
        noteState();
    });
    connect(&m_client, &MqttClient::subscribed, this, [this](bool isAllowed) {
        if (isAllowed)
            return;
        m_reason = ToolText::tr("%1 does not let this user read what agents publish (%2); ask who "
                                "runs the broker")
                       .arg(m_options.client.broker.url(), topics::filterOf(m_options.site));
        noteState();
    });
}

SiteReadings::~SiteReadings() = default;

void SiteReadings::start()
{
    m_client.start();
}

SiteState SiteReadings::state() const
{
    SiteState state;
    state.isConnected = m_isConnected;
    state.reason = m_reason;
    if (!m_isConnected)
        state.unconnectedSince = m_unconnectedSince;
    for (const Agent& agent : m_agents) {
        if (isOffline(agent))
            state.offlineAgents.append(agent.name);
    }
    state.offlineAgents.sort();
    state.unreadable = m_unreadable;
    state.lastUnreadable = m_lastUnreadable;
    state.beyondLimits = m_beyondLimits;
    return state;
}

QList<PrinterReading> SiteReadings::readings() const
{
    QList<PrinterReading> all;
    all.reserve(m_printers.size());
    for (const Printer& printer : m_printers)
        all.append(shownReading(printer));
    return all;
}

/// @name The connection
/// @{
void SiteReadings::beginConnection()
{
    m_isConnected = true;
    m_hasSettled = false;
    m_reason.clear();
    m_forgetting.stop();
    for (Agent& agent : m_agents)
        agent.isConfirmed = false;
    for (Printer& printer : m_printers)
        printer.isConfirmed = false;
    // QoS 0, because NATS sends to readers with QoS 1 under subjects that they may not read.
    m_client.subscribe(topics::filterOf(m_options.site), 0);
    m_quiet.start();
    noteAllChanged();
}

void SiteReadings::endConnection()
{
    m_isConnected = false;
    // Of a connection that ended before the broker had sent everything, nothing is known.
    if (!m_unconnectedSince.isValid())
        m_unconnectedSince = QDateTime::currentDateTimeUtc();
    m_quiet.stop();
    m_forgetting.stop();
    noteAllChanged();
}

/// The broker has sent everything that it keeps.
void SiteReadings::settle()
{
    m_hasSettled = true;
    QStringList gone;
    bool isAnyMissing = false;
    for (auto printer = m_printers.cbegin(); printer != m_printers.cend(); ++printer) {
        if (printer->isConfirmed)
            continue;
        // Its agent has removed it, or the broker has forgotten both.
        if (m_agents.value(printer->agent).isConfirmed)
            gone.append(printer.key());
        else
            isAnyMissing = true;
    }
    for (const QString& printer : std::as_const(gone))
        forget(printer);
    for (Agent& agent : m_agents) {
        if (agent.isConfirmed)
            continue;
        isAnyMissing = true;
        if (agent.state == AgentState::Online) {
            agent.state = AgentState::Offline;
            agent.since = m_unconnectedSince;
        }
    }
    m_unconnectedSince = {};
    if (isAnyMissing)
        m_forgetting.start();
    noteAllChanged();
    send();
    if (!std::exchange(m_isListed, true))
        Q_EMIT listed();
}

void SiteReadings::forgetUnconfirmed()
{
    QStringList gone;
    for (auto printer = m_printers.cbegin(); printer != m_printers.cend(); ++printer) {
        if (!printer->isConfirmed)
            gone.append(printer.key());
    }
    for (const QString& printer : std::as_const(gone))
        forget(printer);
    m_agents.removeIf([](const auto& agent) {
        return !agent.value().isConfirmed && agent.value().printers.isEmpty();
    });
    noteState();
}
/// @}

/// @name What the broker sends
/// @{
void SiteReadings::take(const MqttMessage& message)
{
    if (message.isRetained && m_quiet.isActive())
        m_quiet.start();
    const std::optional<topics::Place> place = topics::placeOf(message.topic);
    if (!place)
        return; // of something else
    if (message.payload.size() > m_options.largestPayload) {
        refuse(message.topic, ToolText::tr("more than %1 bytes").arg(m_options.largestPayload));
        return;
    }
    const bool isPrinter = place->kind == topics::Place::Kind::Printer;
    const auto isName = [](const QString& name) {
        return !name.isEmpty() && name.size() <= longestName;
    };
    if (!isName(place->site) || !isName(place->host) || (isPrinter && !isName(place->printer))) {
        refuse(
            message.topic,
            ToolText::tr("a name that is empty or has more than %1 characters").arg(longestName));
        return;
    }
    switch (place->kind) {
    case topics::Place::Kind::State:
        takeState(*place, message);
        break;
    case topics::Place::Kind::Printer:
        takeReading(*place, message);
        break;
    case topics::Place::Kind::Event:
        takeEvent(*place, message);
        break;
    }
}

void SiteReadings::takeState(const topics::Place& place, const MqttMessage& message)
{
    const QString identity = identityOf({place.kind, place.site, place.host, {}});
    if (message.payload.isEmpty()) {
        const auto found = m_agents.find(identity);
        if (found != m_agents.end())
            setState(*found, AgentState::NotKnown, {});
        forgetAgentIfEmpty(identity);
        return;
    }
    const bool isOnline = message.payload == "online";
    if (!isOnline && message.payload != "offline") {
        refuse(message.topic, ToolText::tr("expected online or offline"));
        return;
    }
    Agent* const agent = agentFor(place);
    if (!agent)
        return;
    agent->isConfirmed = true;
    if (isOnline) {
        setState(*agent, AgentState::Online, {});
        return;
    }
    // A retained message does not say when it was published.
    if (agent->state != AgentState::Offline)
        setState(*agent, AgentState::Offline,
                 message.isRetained ? m_unconnectedSince : QDateTime::currentDateTimeUtc());
}

void SiteReadings::takeReading(const topics::Place& place, const MqttMessage& message)
{
    const QString identity = identityOf(place);
    if (message.payload.isEmpty()) {
        forget(identity);
        return;
    }
    const auto found = m_printers.find(identity);
    // The last reading stays if this one cannot be read: the printer is there.
    if (found != m_printers.end())
        found->isConfirmed = true;
    QJsonParseError mistake;
    const QJsonDocument document = QJsonDocument::fromJson(message.payload, &mistake);
    if (!document.isObject()) {
        refuse(message.topic, mistake.error == QJsonParseError::NoError
                                  ? ToolText::tr("not a JSON object")
                                  : mistake.errorString());
        return;
    }
    QString fault;
    std::optional<PrinterReading> reading = PrinterReading::fromJson(document.object(), &fault);
    if (!reading) {
        refuse(message.topic, fault);
        return;
    }
    if (found == m_printers.end() && m_printers.size() >= m_options.mostPrinters) {
        noteBeyondLimits(
            ToolText::tr("there are more than %1 printers").arg(m_options.mostPrinters));
        return;
    }
    Agent* const agent = agentFor(place);
    if (!agent)
        return;
    // Whoever publishes now is there, whatever the broker has said of the state.
    if (!message.isRetained && agent->state == AgentState::NotKnown)
        setState(*agent, AgentState::Online, {});
    // Each computer has an active printer of its own.
    reading->setActive(false);
    if (found != m_printers.end()) {
        reading->setName(found->reading.name());
        found->reading = *reading;
    } else {
        reading->setName(newName(place));
        m_names.insert(reading->name(), identity);
        agent->printers.insert(identity);
        m_printers.insert(identity,
                          {identityOf({place.kind, place.site, place.host, {}}), *reading, true});
    }
    noteChange(identity);
}

void SiteReadings::takeEvent(const topics::Place& place, const MqttMessage& message)
{
    QString fault;
    std::optional<PrinterEvent> event = PrinterEvent::fromLine(message.payload, &fault);
    if (!event) {
        refuse(message.topic, fault);
        return;
    }
    Agent* const agent = agentFor(place);
    if (!agent)
        return;
    // Agents deliver at least once, and in order.
    const QJsonObject json = QJsonDocument::fromJson(message.payload).object();
    const QString session = json[QLatin1String("session")].toString().left(longestName);
    const qint64 seq = json[QLatin1String("seq")].toInteger();
    const bool isKnown = !session.isEmpty() && session == agent->session && seq <= agent->seq;
    agent->session = session;
    agent->seq = seq;
    if (isKnown || json[QLatin1String("historical")].toBool())
        return;
    topics::Place printer{topics::Place::Kind::Printer, place.site, place.host, event->printer};
    const auto known = m_printers.constFind(identityOf(printer));
    if (event->printer.isEmpty())
        event->printer = agent->name;
    else
        event->printer = known == m_printers.cend() ? newName(printer) : known->reading.name();
    m_events.append(*event);
    if (m_events.size() > mostEvents)
        m_events.removeFirst();
    noteState();
}

void SiteReadings::refuse(const QString& topic, const QString& why)
{
    ++m_unreadable;
    m_lastUnreadable = shownAsMessage(
        QStringLiteral("%1: %2").arg(topic.left(longestQuote), why.left(longestQuote)));
    noteState();
    if (m_sinceWarned.isValid() &&
        !m_sinceWarned.hasExpired(std::chrono::milliseconds(warnEvery).count()))
        return;
    m_sinceWarned.start();
    Q_EMIT warned(ToolText::tr("a message cannot be read: %1 (so far: %2)")
                      .arg(m_lastUnreadable)
                      .arg(m_unreadable));
}

void SiteReadings::noteBeyondLimits(const QString& what)
{
    noteState();
    if (m_beyondLimits++ == 0)
        Q_EMIT warned(ToolText::tr("%1; those beyond are not shown").arg(what));
}
/// @}

/// @name Agents and printers
/// @{
QString SiteReadings::identityOf(const topics::Place& place)
{
    using topics::level;
    QString identity = level(place.site) + u'/' + level(place.host);
    if (!place.printer.isEmpty())
        identity += u'/' + level(place.printer);
    return identity;
}

QString SiteReadings::agentName(const topics::Place& place) const
{
    return m_options.site.isEmpty() ? place.site + u'/' + place.host : place.host;
}

/// A name that no other printer has: "A (b) (c)" may be a printer "A (b)" or one on "b) (c".
QString SiteReadings::newName(const topics::Place& place) const
{
    const QString wanted = QStringLiteral("%1 (%2)").arg(place.printer, agentName(place));
    QString name = wanted;
    for (int number = 2; m_names.contains(name); ++number)
        name = QStringLiteral("%1 #%2").arg(wanted).arg(number);
    return name;
}

SiteReadings::Agent* SiteReadings::agentFor(const topics::Place& place)
{
    const QString identity = identityOf({place.kind, place.site, place.host, {}});
    const auto found = m_agents.find(identity);
    if (found != m_agents.end())
        return &*found;
    if (m_agents.size() >= m_options.mostAgents) {
        noteBeyondLimits(ToolText::tr("there are more than %1 agents").arg(m_options.mostAgents));
        return nullptr;
    }
    return &*m_agents.insert(identity, {agentName(place)});
}

void SiteReadings::setState(Agent& agent, AgentState state, const QDateTime& since)
{
    agent.state = state;
    agent.since = since;
    for (const QString& printer : std::as_const(agent.printers))
        noteChange(printer);
    noteState();
}

void SiteReadings::forget(const QString& printer)
{
    const auto found = m_printers.constFind(printer);
    if (found == m_printers.cend())
        return;
    const Printer gone = *found;
    m_printers.erase(found);
    m_names.remove(gone.reading.name());
    m_changed.remove(printer);
    m_removed.append(gone.reading.name());
    const auto agent = m_agents.find(gone.agent);
    if (agent != m_agents.end())
        agent->printers.remove(printer);
    forgetAgentIfEmpty(gone.agent);
    noteState();
}

void SiteReadings::forgetAgentIfEmpty(const QString& agent)
{
    const auto found = m_agents.constFind(agent);
    if (found != m_agents.cend() && found->printers.isEmpty() &&
        found->state == AgentState::NotKnown)
        m_agents.erase(found);
}

/// An agent of which the broker keeps printers but no state is not there either.
bool SiteReadings::isOffline(const Agent& agent) const
{
    return agent.state == AgentState::Offline ||
           (agent.state == AgentState::NotKnown && m_hasSettled && !agent.printers.isEmpty());
}

PrinterReading SiteReadings::shownReading(const Printer& printer) const
{
    PrinterReading reading = printer.reading;
    const Agent agent = m_agents.value(printer.agent);
    if (reading.presence() == PrinterReading::Presence::Gone)
        return reading;
    if (isOffline(agent)) {
        reading.setWatching(PrinterReading::Watching::AgentOffline);
        reading.setUnheardSince(agent.since);
        reading.setStatusCode(VXPrinting::StatusCodes::unknown);
        reading.setOnline(false);
        removeEstimates(reading);
    } else if (!m_isConnected || (!printer.isConfirmed && !m_hasSettled)) {
        reading.setWatching(PrinterReading::Watching::NotConnected);
        reading.setUnheardSince(m_unconnectedSince);
        removeEstimates(reading);
    }
    return reading;
}
/// @}

/// @name Telling
/// @{
void SiteReadings::noteChange(const QString& printer)
{
    m_changed.insert(printer);
    noteState();
}

void SiteReadings::noteAllChanged()
{
    for (auto printer = m_printers.cbegin(); printer != m_printers.cend(); ++printer)
        m_changed.insert(printer.key());
    noteState();
}

void SiteReadings::noteState()
{
    if (!m_batch.isActive())
        m_batch.start();
}

void SiteReadings::send()
{
    m_batch.stop();
    // A name that has gone may be there again.
    if (const QStringList gone = std::exchange(m_removed, {}); !gone.isEmpty())
        Q_EMIT removed(gone);
    QList<PrinterReading> readings;
    for (const QSet<QString> all = std::exchange(m_changed, {}); const QString& identity : all) {
        const auto printer = m_printers.constFind(identity);
        if (printer != m_printers.cend())
            readings.append(shownReading(*printer));
    }
    if (!readings.isEmpty())
        Q_EMIT changed(readings);
    if (const auto events = std::exchange(m_events, {}); !events.isEmpty())
        Q_EMIT happened(events);
    const SiteState now = state();
    if (now != std::exchange(m_sent, now))
        Q_EMIT stateChanged(now);
}
/// @}
