// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_push.h"

#include "ipc_connection.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QLoggingCategory>
#include <QtCore/QPointer>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

Q_DECLARE_LOGGING_CATEGORY(vxIpc)

namespace {

constexpr auto turnTime = 250us;
/// How many emissions may wait to be distributed. A slot that emits more than that without a return
/// to the event loop distributes them itself.
constexpr qsizetype maximumEmissions = 4096;

} // namespace

IpcPush::IpcPush(QObject& object, const IpcSignalTable& signalTable, const StateKeys& keys)
    : QObject(&object)
    , m_object(object)
    , m_signals(signalTable)
    , m_keys(keys)
{}

IpcPush::~IpcPush() = default;

void IpcPush::update(IpcConnection& client)
{
    const auto known =
        std::find_if(m_subscribers.begin(), m_subscribers.end(),
                     [&](const Subscriber& each) { return each.connection == &client; });
    Subscriber subscriber = known == m_subscribers.end() ? Subscriber{&client, {}} : *known;
    QHash<qsizetype, quint64> since;
    for (const qsizetype signal : client.subscriptions())
        since.insert(signal, subscriber.since.value(signal, m_lastEmission));
    subscriber.since = since;
    if (known != m_subscribers.end())
        m_subscribers.erase(known);
    if (!since.isEmpty())
        m_subscribers.append(subscriber);
    listen();
}

void IpcPush::remove(IpcConnection& client)
{
    m_unsent.removeOne(&client);
    const auto removed =
        m_subscribers.removeIf([&](const Subscriber& each) { return each.connection == &client; });
    if (removed > 0)
        listen();
}

/// Connects to the signals that somebody has subscribed to, and to no others.
void IpcPush::listen()
{
    IpcSubscriptions wanted;
    for (const Subscriber& subscriber : std::as_const(m_subscribers)) {
        for (auto each = subscriber.since.keyBegin(); each != subscriber.since.keyEnd(); ++each)
            wanted.insert(*each);
    }
    m_listened.removeIf([&](const auto& listened) {
        if (!wanted.contains(listened.key()))
            disconnect(listened.value());
        return !wanted.contains(listened.key());
    });
    for (const qsizetype signal : std::as_const(wanted)) {
        if (m_listened.contains(signal))
            continue;
        // Beyond the methods of QObject, so that emissions lead to qt_metacall.
        const int method = QObject::staticMetaObject.methodCount() + static_cast<int>(signal);
        m_listened.insert(signal,
                          QMetaObject::connect(&m_object, m_signals.at(signal).method.methodIndex(),
                                               this, method, Qt::AutoConnection));
    }
    if (m_subscribers.isEmpty())
        m_emissions.clear();
}

int IpcPush::qt_metacall(QMetaObject::Call call, int id, void** arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (id < 0 || call != QMetaObject::InvokeMetaMethod)
        return id;
    onEmitted(id, arguments);
    return -1;
}

void IpcPush::onEmitted(qsizetype signal, void** arguments)
{
    // An emission on another thread may arrive after the last client has left.
    if (!m_listened.contains(signal))
        return;
    Emission emission{signal, {}, ++m_lastEmission};
    const QList<IpcParameter>& parameters = m_signals.at(signal).parameters;
    emission.arguments.reserve(parameters.size());
    for (qsizetype i = 0; i < parameters.size(); ++i)
        emission.arguments.append(QVariant(parameters.at(i).type, arguments[i + 1]));
    const std::optional<IpcStateId> state = stateOf(emission);
    m_emissions.put(std::move(emission), state);
    if (m_emissions.size() > maximumEmissions)
        distributeNext();
    requestTurn();
}

std::optional<IpcStateId> IpcPush::stateOf(const Emission& emission) const
{
    const StateKey key = m_keys.value(m_signals.at(emission.signal).method.name());
    if (!key)
        return std::nullopt;
    return IpcStateId{emission.signal, key(emission.arguments)};
}

void IpcPush::distributeNext()
{
    const auto [emission, state] = m_emissions.takeFirst();
    const QByteArray line = m_signals.notification(emission.signal, emission.arguments);
    if (line.size() > json_rpc::maximumAnswers) {
        qCWarning(vxIpc, "%s: a notification of %s is not sent: it is longer than %lld bytes",
                  m_object.metaObject()->className(),
                  qUtf8Printable(m_signals.at(emission.signal).name),
                  static_cast<long long>(json_rpc::maximumAnswers));
        return;
    }
    QList<QPointer<IpcConnection>> overflowing;
    for (const Subscriber& subscriber : std::as_const(m_subscribers)) {
        const auto since = subscriber.since.constFind(emission.signal);
        if (since == subscriber.since.cend() || emission.number <= *since)
            continue;
        IpcConnection* connection = subscriber.connection;
        const bool wasUnsent = connection->canSend();
        if (!connection->enqueue(line, state))
            overflowing.append(connection);
        else if (!wasUnsent)
            sendTo(*connection);
    }
    // Afterwards: this removes subscribers.
    for (const QPointer<IpcConnection>& connection : std::as_const(overflowing)) {
        if (connection)
            connection->closeOverflowing();
    }
}

void IpcPush::sendTo(IpcConnection& client)
{
    if (!client.canSend() || m_unsent.contains(&client))
        return;
    m_unsent.append(&client);
    requestTurn();
}

void IpcPush::requestTurn()
{
    if (m_isTurnRequested)
        return;
    m_isTurnRequested = true;
    QMetaObject::invokeMethod(this, &IpcPush::takeTurn, Qt::QueuedConnection);
}

void IpcPush::takeTurn()
{
    m_isTurnRequested = false;
    const QPointer<IpcPush> self(this);
    const QDeadlineTimer end(turnTime, Qt::PreciseTimer);
    while (!(m_emissions.isEmpty() && m_unsent.isEmpty())) {
        if (end.hasExpired()) {
            requestTurn();
            return;
        }
        if (!m_emissions.isEmpty())
            distributeNext();
        if (m_unsent.isEmpty())
            continue;
        const QPointer<IpcConnection> next = m_unsent.takeFirst();
        next->sendWaiting();
        // The client may turn out to have left. Then what it sent before is handled, which may
        // destroy anything.
        if (!self)
            return;
        if (next)
            sendTo(*next);
    }
}
