// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_publisher.h"

#include "ipc_connection.h"
#include "ipc_scope.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLockFile>
#include <QtCore/QLoggingCategory>
#include <QtNetwork/QLocalSocket>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

Q_LOGGING_CATEGORY(vxIpc, "vx.ipc", QtWarningMsg)

namespace {

/// A living endpoint takes a connection at once, even when its process is busy.
constexpr auto ProbeTime = 250ms;
/// How many clients over the limit may be about to read that they are; any more are just closed.
constexpr qsizetype MaximumRefused = 64;
/// Taking a name is a matter of a millisecond.
constexpr auto LockTime = 500ms;

bool isHeld(const QString& address)
{
    QLocalSocket probe;
    probe.connectToServer(address);
    if (probe.waitForConnected(static_cast<int>(ProbeTime / 1ms)))
        return true;
    return probe.error() != QLocalSocket::ServerNotFoundError &&
           probe.error() != QLocalSocket::ConnectionRefusedError;
}

} // namespace

IpcPublisher::IpcPublisher(QObject& object, const QMetaObject& base)
    : QObject(&object)
    , m_object(object)
    , m_base(base)
    // So that it moves to another thread with the object.
    , m_server(this)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    // Those over the limit have to be let in to be told so.
    m_server.setMaxPendingConnections(static_cast<int>(2 * JsonRpc::MaximumClients));
    m_server.setListenBacklogSize(static_cast<int>(2 * JsonRpc::MaximumClients));
    connect(&m_server, &QLocalServer::newConnection, this, &IpcPublisher::onNewConnection);
}

IpcPublisher::~IpcPublisher()
{
    if (!m_name.isEmpty())
        IpcScope::withdraw(m_name);
    for (IpcConnection* connection : std::as_const(m_connections))
        connection->disconnect(this);
    // While the dispatcher they use is there.
    qDeleteAll(m_connections);
}

void IpcPublisher::publish(const QString& name)
{
    if (const QString obstacle = IpcScope::prepare(); !obstacle.isEmpty()) {
        qCWarning(vxIpc, "%s is not published: %s", qUtf8Printable(name), qUtf8Printable(obstacle));
        return;
    }
    // Between finding a dead endpoint's socket and replacing it, another process must not do the
    // same. Who does not get to look leaves the name alone.
    QLockFile lock(IpcScope::lockFile(name));
    const bool mayTake = lock.tryLock(static_cast<int>(LockTime / 1ms));
    if (mayTake && !isHeld(IpcScope::address(name))) {
        listen(name);
        return;
    }
    const QString own =
        name + QLatin1Char('-') + QString::number(QCoreApplication::applicationPid());
    QString candidate = own;
    for (int i = 2; isHeld(IpcScope::address(candidate)); ++i)
        candidate = own + QLatin1Char('-') + QString::number(i);
    listen(candidate);
}

void IpcPublisher::listen(const QString& name)
{
    const QString address = IpcScope::address(name);
    QLocalServer::removeServer(address);
    if (m_server.listen(address)) {
        m_name = name;
        IpcScope::announce(m_name);
        return;
    }
    qCWarning(vxIpc, "%s is not published: %s", qUtf8Printable(name),
              qUtf8Printable(m_server.errorString()));
}

void IpcPublisher::onNewConnection()
{
    if (!m_dispatcher)
        m_dispatcher = std::make_unique<IpcDispatcher>(m_object, m_base, m_name);
    while (QLocalSocket* socket = m_server.nextPendingConnection()) {
        if (m_connections.size() >= JsonRpc::MaximumClients + MaximumRefused) {
            delete socket;
            continue;
        }
        auto* connection = new IpcConnection(socket, *m_dispatcher, this);
        connect(connection, &IpcConnection::turnWanted, this,
                [this, connection] { onTurnWanted(connection); });
        connect(connection, &IpcConnection::finished, this,
                [this, connection] { onFinished(connection); });
        const auto served =
            std::count_if(m_connections.cbegin(), m_connections.cend(),
                          [](const IpcConnection* each) { return !each->isRefused(); });
        IpcConnection* silent = served >= JsonRpc::MaximumClients ? longestSilent() : nullptr;
        m_connections.append(connection);
        if (silent) {
            silent->refuse({JsonRpc::TooManyClients,
                            QStringLiteral("Too many clients: another takes the place of this one, "
                                           "which has asked nothing for a while"),
                            {}});
        } else if (served >= JsonRpc::MaximumClients) {
            connection->refuse({JsonRpc::TooManyClients,
                                QStringLiteral("Too many clients: at most %1 are served at a time")
                                    .arg(JsonRpc::MaximumClients),
                                {}});
        }
    }
}

/// The client that may be let go when another waits, if there is one.
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
    // Asked for before the turn, which may run an event loop of its own or be this object's last.
    // In between, the thread's other events and the other clients' small requests have theirs.
    if (!m_waiting.isEmpty())
        requestTurn();
    next->takeTurn();
}
