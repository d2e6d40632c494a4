// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "vxipcclient.h"

#include "ipc_connect.h"
#include "ipc_names.h"
#include "ipc_scope.h"
#include "ipc_send.h"
#include "json_rpc.h"
#include "line_buffer.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QHash>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QPointer>
#include <QtCore/QQueue>
#include <QtCore/QTimer>
#include <QtNetwork/QLocalSocket>

#include <algorithm>
#include <utility>
#include <variant>

using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds defaultTimeout = 30s;
/// A living endpoint accepts a connection at once, even when its process is busy.
constexpr std::chrono::milliseconds connectTime = 1s;
constexpr std::chrono::milliseconds firstRetry = 100ms;
constexpr std::chrono::milliseconds lastRetry = 5s;
/// The longest answer of an endpoint, and what surrounds it in a batch.
constexpr qsizetype maximumLine = 2 * json_rpc::maximumAnswers;

VXIPCReply failed(VXIPCError::Code code, const QString& message)
{
    return {QJsonValue::Null, VXIPCError{code, message, {}}};
}

struct Answer
{
    /// The number of the call, or null for an error about the connection.
    QJsonValue id;
    VXIPCReply reply;
};

struct Notification
{
    QString signalName;
    QJsonObject arguments;
};

/// Nothing when the line is neither an answer to a numbered call nor a notification.
std::optional<std::variant<Answer, Notification>> readMessage(QByteArrayView line)
{
    const QJsonObject object =
        QJsonDocument::fromJson(QByteArray::fromRawData(line.data(), line.size())).object();
    const QJsonValue id = object.value(QLatin1String("id"));
    const QJsonValue result = object.value(QLatin1String("result"));
    const QJsonValue error = object.value(QLatin1String("error"));
    if (object.value(QLatin1String("jsonrpc")).toString() != QLatin1String("2.0"))
        return std::nullopt;
    if (object.contains(QLatin1String("method"))) {
        const QJsonValue method = object.value(QLatin1String("method"));
        const QJsonValue parameters = object.value(QLatin1String("params"));
        if (!method.isString() || !parameters.isObject() || !id.isUndefined())
            return std::nullopt;
        return Notification{method.toString(), parameters.toObject()};
    }
    if (error.isUndefined() && !result.isUndefined() && id.isDouble())
        return Answer{id, {result, std::nullopt}};
    if (!error.isObject() || !result.isUndefined() || !(id.isDouble() || id.isNull()))
        return std::nullopt;
    return Answer{id,
                  {QJsonValue::Null, VXIPCError{error[QLatin1String("code")].toInt(),
                                                error[QLatin1String("message")].toString(),
                                                error[QLatin1String("data")]}}};
}

/// Whether an endpoint does not know the signals, rather than that it cannot serve the client now.
bool refusesSubscriptions(const VXIPCReply& reply)
{
    return reply.error && (reply.error->code == json_rpc::InvalidParams ||
                           reply.error->code == json_rpc::MethodNotFound);
}

constexpr QLatin1String subscribeMethod("rpc.subscribe");

} // namespace

class VXIPCClient::Private
{
public:
    Private(VXIPCClient& client, QString name);
    ~Private();
    Q_DISABLE_COPY_MOVE(Private)

    bool isConnected() const { return m_socket->state() == QLocalSocket::ConnectedState; }
    bool connectNow(std::chrono::milliseconds limit = connectTime);
    void disconnectNow();
    void call(const QString& method, const QJsonValue& parameters, Callback done);
    VXIPCReply callAndWait(const QString& method, const QJsonValue& parameters,
                           std::chrono::milliseconds limit);
    bool notify(const QString& method, const QJsonValue& parameters);
    void subscribe(const QStringList& names, Callback done);
    void unsubscribe(const QStringList& names, Callback done);
    QStringList subscriptions() const { return m_subscriptions; }

    const QString serverName;
    std::chrono::milliseconds timeout = defaultTimeout;

private:
    struct Call
    {
        QDeadlineTimer deadline;
        /// Where the outcome goes: to a callback, or to the function that waits for it.
        Callback done;
        std::optional<VXIPCReply>* awaited = nullptr;
    };

    /// A callback with the outcome of its call, or a notification, which is still to be delivered.
    using Delivery = std::function<void()>;

    /// Sends the request. The reply says why it cannot be sent, if it cannot.
    std::optional<VXIPCReply> send(const QByteArray& line, std::chrono::milliseconds limit);
    void onReadyRead();
    void onDisconnected();
    void onLateness();

    /// These end calls, but call no callbacks. deliver() does that afterwards.
    void readMessages();
    bool takeMessage(QByteArrayView line);
    void finish(qint64 id, const VXIPCReply& reply);
    void finishAll(const VXIPCReply& reply);
    void giveUp(const QString& reason);

    void deliverOutcome(Callback done, const VXIPCReply& reply);
    void resubscribe();

    /// Calls the callbacks. Each of them may make further calls, wait, or destroy the client.
    void deliver();
    /// Has the event loop do it.
    void deliverLater();
    /// Does it now, or later if a call is being waited for.
    void deliverUnlessWaiting();

    void watch(const QDeadlineTimer& deadline);
    void retryLater();
    VXIPCReply timedOut() const;
    VXIPCReply connectionLost() const;

    VXIPCClient& q;
    QLocalSocket* m_socket;
    /// Why the endpoint was not trusted at the last attempt to connect; empty when it was.
    QString m_obstacle;
    QTimer m_lateness;
    QTimer m_reconnect;
    std::chrono::milliseconds m_retryInterval = firstRetry;

    LineBuffer m_received;
    qint64 m_lastId = 0;
    QHash<qint64, Call> m_calls;
    QQueue<Delivery> m_deliveries;
    QStringList m_subscriptions;
    bool m_isDeliveryQueued = false;
    QDeadlineTimer m_nextLate{QDeadlineTimer::Forever};
    /// How many calls are waited for, each from a callback of the one before.
    int m_waits = 0;
    /// How many signals of the socket are being handled, each within the one before.
    int m_socketSignals = 0;
};

VXIPCClient::Private::Private(VXIPCClient& client, QString name)
    : serverName(std::move(name))
    , q(client)
    // Children, so that they move to another thread with the client.
    , m_socket(new QLocalSocket(&client))
    , m_lateness(&client)
    , m_reconnect(&client)
{
    m_lateness.setSingleShot(true);
    m_reconnect.setSingleShot(true);
    connect(m_socket, &QLocalSocket::readyRead, &q, [this] { onReadyRead(); });
    connect(m_socket, &QLocalSocket::disconnected, &q, [this] { onDisconnected(); });
    connect(&m_lateness, &QTimer::timeout, &q, [this] { onLateness(); });
    connect(&m_reconnect, &QTimer::timeout, &q, [this] { connectNow(); });
}

VXIPCClient::Private::~Private()
{
    m_socket->disconnect(&q);
    if (m_socketSignals == 0)
        return;
    // A signal of the socket led to the client's destruction. The socket has to outlive the signal.
    m_socket->setParent(nullptr);
    m_socket->abort();
    m_socket->deleteLater();
}

bool VXIPCClient::Private::connectNow(std::chrono::milliseconds limit)
{
    if (isConnected())
        return true;
    m_reconnect.stop();
    m_received.clear();
    m_obstacle = connectToEndpoint(*m_socket, serverName, std::clamp(limit, 0ms, connectTime));
    if (!isConnected()) {
        retryLater();
        return false;
    }
    m_retryInterval = firstRetry;
    // Before the signal: whoever then asks for the state has subscribed already.
    resubscribe();
    Q_EMIT q.connected();
    return isConnected();
}

void VXIPCClient::Private::disconnectNow()
{
    const QPointer<VXIPCClient> alive(&q);
    m_socket->abort();
    if (alive)
        m_reconnect.stop();
}

void VXIPCClient::Private::retryLater()
{
    m_reconnect.start(m_retryInterval);
    m_retryInterval = std::min(2 * m_retryInterval, lastRetry);
}

void VXIPCClient::Private::call(const QString& method, const QJsonValue& parameters, Callback done)
{
    const qint64 id = ++m_lastId;
    if (const auto failure = send(json_rpc::request(method, parameters, id), timeout)) {
        deliverOutcome(std::move(done), *failure);
        deliverLater();
        return;
    }
    const QDeadlineTimer deadline(timeout);
    m_calls.insert(id, {deadline, std::move(done), nullptr});
    watch(deadline);
}

VXIPCReply VXIPCClient::Private::callAndWait(const QString& method, const QJsonValue& parameters,
                                             std::chrono::milliseconds limit)
{
    const QDeadlineTimer deadline(limit);
    const qint64 id = ++m_lastId;
    if (const auto failure = send(json_rpc::request(method, parameters, id), limit))
        return *failure;
    std::optional<VXIPCReply> outcome;
    m_calls.insert(id, {deadline, {}, &outcome});
    m_socket->flush();
    ++m_waits;
    while (!outcome) {
        // readyRead is not emitted again for a wait within a callback that it led to.
        readMessages();
        deliverLater();
        if (outcome)
            break;
        if (!isConnected())
            finish(id, connectionLost());
        else if (deadline.hasExpired())
            finish(id, timedOut());
        else
            m_socket->waitForReadyRead(static_cast<int>(deadline.remainingTime()));
    }
    --m_waits;
    return *outcome;
}

bool VXIPCClient::Private::notify(const QString& method, const QJsonValue& parameters)
{
    const bool isSent = !send(json_rpc::request(method, parameters, std::nullopt), timeout);
    m_socket->flush();
    return isSent;
}

void VXIPCClient::Private::subscribe(const QStringList& names, Callback done)
{
    QStringList added;
    for (const QString& name : names) {
        if (!m_subscriptions.contains(name) && !added.contains(name))
            added.append(name);
    }
    const QPointer<VXIPCClient> alive(&q);
    call(subscribeMethod, QJsonArray::fromStringList(names),
         [this, added, done = std::move(done)](const VXIPCReply& reply) {
             if (refusesSubscriptions(reply)) {
                 for (const QString& name : added)
                     m_subscriptions.removeOne(name);
             }
             if (done)
                 done(reply);
         });
    // Not before the call, which may connect: that would subscribe to them, too.
    if (alive)
        m_subscriptions += added;
}

void VXIPCClient::Private::unsubscribe(const QStringList& names, Callback done)
{
    for (const QString& name : names)
        m_subscriptions.removeOne(name);
    if (isConnected()) {
        call(QStringLiteral("rpc.unsubscribe"), QJsonArray::fromStringList(names), std::move(done));
        return;
    }
    deliverOutcome(std::move(done), {QJsonArray::fromStringList(m_subscriptions), std::nullopt});
    deliverLater();
}

/// Subscribes to everything over a new connection.
void VXIPCClient::Private::resubscribe()
{
    if (m_subscriptions.isEmpty())
        return;
    const auto done = [this](const VXIPCReply& reply) {
        if (reply.isOk())
            Q_EMIT q.resubscribed();
        else if (refusesSubscriptions(reply))
            Q_EMIT q.subscriptionLost(reply.error->message);
    };
    const qint64 id = ++m_lastId;
    const QDeadlineTimer deadline(timeout);
    m_socket->write(
        json_rpc::request(subscribeMethod, QJsonArray::fromStringList(m_subscriptions), id));
    m_calls.insert(id, {deadline, done, nullptr});
    watch(deadline);
}

std::optional<VXIPCReply> VXIPCClient::Private::send(const QByteArray& line,
                                                     std::chrono::milliseconds limit)
{
    if (line.size() > json_rpc::maximumLine + 1) {
        return VXIPCReply{QJsonValue::Null,
                          VXIPCError{json_rpc::LineTooLong,
                                     QStringLiteral("Line too long: at most %1 bytes can be sent")
                                         .arg(json_rpc::maximumLine),
                                     {}}};
    }
    if (!connectNow(limit)) {
        const QString reason = m_obstacle.isEmpty() ? QString() : QLatin1String(": ") + m_obstacle;
        return failed(VXIPCError::NotReachable,
                      QStringLiteral("no endpoint answers under %1").arg(serverName) + reason);
    }
    // Calls that follow each other closely are sent together, from the event loop.
    if (m_calls.isEmpty())
        sendNow(*m_socket, line);
    else
        m_socket->write(line);
    return std::nullopt;
}

void VXIPCClient::Private::onReadyRead()
{
    const QPointer<VXIPCClient> alive(&q);
    ++m_socketSignals;
    readMessages();
    if (alive)
        deliverUnlessWaiting();
    if (alive)
        --m_socketSignals;
}

void VXIPCClient::Private::onDisconnected()
{
    const QPointer<VXIPCClient> alive(&q);
    ++m_socketSignals;
    retryLater();
    // Before the signal: a call that it leads to is made over another connection.
    finishAll(connectionLost());
    deliverLater();
    Q_EMIT q.disconnected();
    if (alive)
        --m_socketSignals;
}

void VXIPCClient::Private::onLateness()
{
    QList<qint64> late;
    QDeadlineTimer next(QDeadlineTimer::Forever);
    for (auto call = m_calls.cbegin(); call != m_calls.cend(); ++call) {
        if (call->awaited)
            continue;
        if (call->deadline.hasExpired())
            late.append(call.key());
        else
            next = std::min(next, call->deadline);
    }
    m_nextLate = QDeadlineTimer(QDeadlineTimer::Forever);
    watch(next);
    std::sort(late.begin(), late.end());
    for (const qint64 id : std::as_const(late))
        finish(id, timedOut());
    deliverUnlessWaiting();
}

void VXIPCClient::Private::readMessages()
{
    while (m_socket->bytesAvailable() > 0 || m_received.hasLine()) {
        if (m_received.hasLine()) {
            if (takeMessage(m_received.takeLine()))
                continue;
            giveUp(QStringLiteral("the response is not JSON-RPC 2.0"));
            return;
        }
        m_received.appendFrom(*m_socket, m_socket->bytesAvailable());
        if (m_received.lineSize() > maximumLine && !m_received.hasLine()) {
            giveUp(QStringLiteral("the response exceeds the limit"));
            return;
        }
    }
}

/// False when the line is neither an answer nor a notification.
bool VXIPCClient::Private::takeMessage(QByteArrayView line)
{
    const auto message = readMessage(line);
    if (!message)
        return false;
    if (const auto* notification = std::get_if<Notification>(&*message)) {
        m_deliveries.enqueue([this, notified = *notification] {
            Q_EMIT q.notificationReceived(notified.signalName, notified.arguments);
        });
        return true;
    }
    const auto* answer = std::get_if<Answer>(&*message);
    if (answer->id.isNull())
        finishAll(answer->reply);
    else
        finish(answer->id.toInteger(), answer->reply);
    return true;
}

void VXIPCClient::Private::finish(qint64 id, const VXIPCReply& reply)
{
    const auto found = m_calls.find(id);
    // The call timed out before its answer came.
    if (found == m_calls.end())
        return;
    Call call = std::move(*found);
    m_calls.erase(found);
    if (call.awaited)
        *call.awaited = reply;
    else
        deliverOutcome(std::move(call.done), reply);
}

void VXIPCClient::Private::deliverOutcome(Callback done, const VXIPCReply& reply)
{
    if (done)
        m_deliveries.enqueue([done = std::move(done), reply] { done(reply); });
}

void VXIPCClient::Private::finishAll(const VXIPCReply& reply)
{
    QList<qint64> ids = m_calls.keys();
    std::sort(ids.begin(), ids.end());
    for (const qint64 id : std::as_const(ids))
        finish(id, reply);
}

/// Ends the connection to an endpoint that sends something other than JSON-RPC 2.0.
void VXIPCClient::Private::giveUp(const QString& reason)
{
    finishAll(failed(VXIPCError::BadAnswer, reason));
    m_received.clear();
    m_socket->abort();
}

void VXIPCClient::Private::deliver()
{
    const QPointer<VXIPCClient> alive(&q);
    // A callback may run an event loop, which then delivers the others.
    if (m_deliveries.size() > 1)
        deliverLater();
    // Only those that are there now: a callback whose new call fails at once would get the next
    // outcome here, and the event loop would never run again.
    for (qsizetype rest = m_deliveries.size(); alive && rest > 0 && !m_deliveries.isEmpty();
         --rest) {
        const Delivery next = m_deliveries.dequeue();
        next();
    }
}

void VXIPCClient::Private::deliverLater()
{
    if (m_isDeliveryQueued || m_deliveries.isEmpty())
        return;
    m_isDeliveryQueued = true;
    const auto deliverQueued = [this] {
        m_isDeliveryQueued = false;
        deliver();
    };
    QMetaObject::invokeMethod(&q, deliverQueued, Qt::QueuedConnection);
}

void VXIPCClient::Private::deliverUnlessWaiting()
{
    if (m_waits > 0)
        deliverLater();
    else
        deliver();
}

void VXIPCClient::Private::watch(const QDeadlineTimer& deadline)
{
    if (deadline >= m_nextLate)
        return;
    m_nextLate = deadline;
    m_lateness.start(static_cast<int>(deadline.remainingTime()));
}

VXIPCReply VXIPCClient::Private::timedOut() const
{
    return failed(VXIPCError::TimedOut,
                  QStringLiteral("%1 did not answer in time").arg(serverName));
}

VXIPCReply VXIPCClient::Private::connectionLost() const
{
    return failed(VXIPCError::ConnectionLost,
                  QStringLiteral("the connection to %1 broke").arg(serverName));
}

VXIPCClient::VXIPCClient(int serverType, QObject* parent)
    : VXIPCClient(endpointNamePrefix + QString::number(serverType), parent)
{}

VXIPCClient::VXIPCClient(QString serverName, QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>(*this, std::move(serverName)))
{}

VXIPCClient::~VXIPCClient() = default;

QString VXIPCClient::serverName() const
{
    return d->serverName;
}

bool VXIPCClient::isConnected() const
{
    return d->isConnected();
}

void VXIPCClient::setTimeout(std::chrono::milliseconds timeout)
{
    d->timeout = timeout;
}

std::chrono::milliseconds VXIPCClient::timeout() const
{
    return d->timeout;
}

bool VXIPCClient::connectToServer()
{
    return d->connectNow();
}

void VXIPCClient::disconnectFromServer()
{
    d->disconnectNow();
}

void VXIPCClient::call(const QString& method, const QJsonValue& parameters, Callback done)
{
    d->call(method, parameters, std::move(done));
}

VXIPCReply VXIPCClient::callAndWait(const QString& method, const QJsonValue& parameters)
{
    return d->callAndWait(method, parameters, d->timeout);
}

VXIPCReply VXIPCClient::callAndWait(const QString& method, const QJsonValue& parameters,
                                    std::chrono::milliseconds timeout)
{
    return d->callAndWait(method, parameters, timeout);
}

void VXIPCClient::subscribe(const QStringList& signalNames, Callback done)
{
    d->subscribe(signalNames, std::move(done));
}

void VXIPCClient::unsubscribe(const QStringList& signalNames, Callback done)
{
    d->unsubscribe(signalNames, std::move(done));
}

QStringList VXIPCClient::subscriptions() const
{
    return d->subscriptions();
}

bool VXIPCClient::notify(const QString& method, const QJsonValue& parameters)
{
    return d->notify(method, parameters);
}

QStringList VXIPCClient::runningServers()
{
    QStringList running;
    for (const QStringList names = ipc_scope::names(endpointNamePrefix);
         const QString& name : names) {
        QLocalSocket probe;
        connectToEndpoint(probe, name, connectTime);
        if (probe.state() == QLocalSocket::ConnectedState)
            running.append(name);
    }
    return running;
}

QString VXIPCClient::distrust()
{
    return ipc_scope::distrust();
}

QString VXIPCClient::address(const QString& serverName)
{
    return ipc_scope::address(serverName);
}
