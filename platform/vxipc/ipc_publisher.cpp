// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_publisher.h"

#include "ipc_connection.h"
#include "ipc_scope.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLoggingCategory>
#include <QtNetwork/QLocalSocket>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

Q_LOGGING_CATEGORY(vxIpc, "vx.ipc", QtWarningMsg)

namespace {

/// How many refused clients may stay connected to read why. Any more are disconnected at once.
constexpr qsizetype maximumRefused = 64;
/// How many names with the process id are tried.
constexpr int maximumOwnNames = 16;
/// Taking a name takes about a millisecond. This is how long all names together may take at the
/// first attempt. Later attempts do not wait.
constexpr auto lockTime = 500ms;
constexpr std::chrono::milliseconds firstRetry = 100ms;
constexpr std::chrono::milliseconds lastRetry = 10s;

} // namespace

IpcPublisher::IpcPublisher(QObject& object, const QMetaObject& base)
    : QObject(&object)
    , m_object(object)
    , m_base(base)
    // Children, so that they move to another thread with the object.
    , m_listener(IpcListener::create(this))
    , m_retry(this)
    , m_retryInterval(firstRetry)
{
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, [this] { tryToPublish(QDeadlineTimer(0ms)); });
    connect(m_listener.get(), &IpcListener::newClient, this, &IpcPublisher::onNewConnection);
}

IpcPublisher::~IpcPublisher()
{
    if (!m_name.isEmpty())
        ipc_scope::withdraw(m_name);
    for (IpcConnection* connection : std::as_const(m_connections))
        connection->disconnect(this);
    // Before the dispatcher that they use is destroyed.
    qDeleteAll(m_connections);
}

void IpcPublisher::publish(const QString& name)
{
    m_wantedName = name;
    tryToPublish(QDeadlineTimer(lockTime));
}

void IpcPublisher::setStateKey(const QByteArray& signalName, IpcPush::StateKey key)
{
    m_stateKeys[signalName] = std::move(key);
}

void IpcPublisher::tryToPublish(QDeadlineTimer end)
{
    const IpcListener::Outcome outcome = listen(end);
    if (outcome == IpcListener::Outcome::Listening) {
        ipc_scope::announce(m_name);
        return;
    }
    if (m_retryInterval == firstRetry) {
        const QString obstacle =
            outcome == IpcListener::Outcome::NameTaken
                ? QStringLiteral("the name and %1 more like it are taken").arg(maximumOwnNames)
                : m_listener->errorString();
        qCWarning(vxIpc, "%s is not published: %s (retrying)", qUtf8Printable(m_wantedName),
                  qUtf8Printable(obstacle));
    }
    m_retry.start(m_retryInterval);
    m_retryInterval = std::min(2 * m_retryInterval, lastRetry);
}

IpcListener::Outcome IpcPublisher::listen(QDeadlineTimer end)
{
    const QString own =
        m_wantedName + QLatin1Char('-') + QString::number(QCoreApplication::applicationPid());
    QString candidate = m_wantedName;
    IpcListener::Outcome outcome = m_listener->listen(candidate, end);
    for (int i = 1; outcome == IpcListener::Outcome::NameTaken && i <= maximumOwnNames; ++i) {
        candidate = i == 1 ? own : own + QLatin1Char('-') + QString::number(i);
        outcome = m_listener->listen(candidate, end);
    }
    if (outcome == IpcListener::Outcome::Listening)
        m_name = candidate;
    return outcome;
}

void IpcPublisher::onNewConnection()
{
    if (!m_dispatcher) {
        m_dispatcher = std::make_unique<IpcDispatcher>(m_object, m_base, m_name);
        m_push = std::make_unique<IpcPush>(m_object, m_dispatcher->signalTable(), m_stateKeys);
    }
    while (QLocalSocket* socket = m_listener->nextClient()) {
        if (m_connections.size() >= json_rpc::maximumClients + maximumRefused) {
            delete socket;
            continue;
        }
        auto* connection = new IpcConnection(socket, *m_dispatcher, this);
        connect(connection, &IpcConnection::turnWanted, this,
                [this, connection] { onTurnWanted(connection); });
        connect(connection, &IpcConnection::subscriptionsChanged, this,
                [this, connection] { m_push->update(*connection); });
        connect(connection, &IpcConnection::readyToSend, this,
                [this, connection] { m_push->sendTo(*connection); });
        connect(connection, &IpcConnection::finished, this,
                [this, connection] { onFinished(connection); });
        const auto served =
            std::count_if(m_connections.cbegin(), m_connections.cend(),
                          [](const IpcConnection* each) { return !each->isRefused(); });
        IpcConnection* silent = served >= json_rpc::maximumClients ? longestSilent() : nullptr;
        m_connections.append(connection);
        if (silent) {
            silent->refuse({json_rpc::TooManyClients,
                            QStringLiteral("Too many clients: another takes the place of this one, "
                                           "which has asked nothing for a while"),
                            {}});
        } else if (served >= json_rpc::maximumClients) {
            connection->refuse({json_rpc::TooManyClients,
                                QStringLiteral("Too many clients: at most %1 are served at a time")
                                    .arg(json_rpc::maximumClients),
                                {}});
        }
    }
}

/// The client that may be disconnected in favour of another, if there is one.
IpcConnection* IpcPublisher::longestSilent() const
{
    IpcConnection* longest = nullptr;
    auto earliest = std::chrono::steady_clock::now() - m_patience;
    for (IpcConnection* connection : m_connections) {
        const auto since = connection->silentSince();
        if (connection->isRefused() || !since || *since > earliest)
            continue;
        longest = connection;
        earliest = *since;
    }
    return longest;
}

void IpcPublisher::onTurnWanted(IpcConnection* connection)
{
    m_waiting.append(connection);
    if (m_waiting.size() == 1)
        requestTurn();
}

void IpcPublisher::onFinished(IpcConnection* connection)
{
    m_push->remove(*connection);
    m_connections.removeOne(connection);
    m_waiting.removeOne(connection);
    connection->deleteLater();
}

void IpcPublisher::requestTurn()
{
    QMetaObject::invokeMethod(this, &IpcPublisher::giveTurn, Qt::QueuedConnection);
}

void IpcPublisher::giveTurn()
{
    if (m_waiting.isEmpty())
        return;
    IpcConnection* next = m_waiting.takeFirst();
    // Requested before the turn, which may run an event loop of its own or destroy this object.
    // Between two turns, the thread handles other events and the other clients' small requests.
    if (!m_waiting.isEmpty())
        requestTurn();
    next->takeTurn();
}
