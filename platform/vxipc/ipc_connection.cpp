// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_connection.h"

#include "ipc_send.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtNetwork/QLocalSocket>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr auto turnTime = 250us;
/// Parsing a line up to here takes about a turn.
constexpr qsizetype shortLine = qsizetype{16} << 10;
constexpr qsizetype readChunk = qsizetype{64} << 10;
/// How many bytes of notifications are sent at a time. What a client does not take at once, its
/// socket sends later, outside of the turns, and so may the sockets of all clients at the same
/// time.
constexpr qsizetype notificationChunk = qsizetype{16} << 10;
/// How long a refused client has to read the answer that says so, and to disconnect.
constexpr auto farewell = 1s;

} // namespace

IpcConnection::IpcConnection(QLocalSocket* socket, IpcDispatcher& dispatcher, QObject* parent)
    : QObject(parent)
    , m_socket(socket)
    , m_dispatcher(dispatcher)
{
    m_socket->setParent(this);
    // What a client sends faster than it is handled waits on the client's side.
    m_socket->setReadBufferSize(readChunk);
    connect(m_socket, &QLocalSocket::readyRead, this, &IpcConnection::onReadyRead);
    connect(m_socket, &QLocalSocket::bytesWritten, this, &IpcConnection::onBytesWritten);
    connect(m_socket, &QLocalSocket::disconnected, this, &IpcConnection::onDisconnected);
    connect(&m_parsing, &QFutureWatcherBase::finished, this, &IpcConnection::onParsed);
}

IpcConnection::~IpcConnection()
{
    m_socket->disconnect(this);
    dropWork();
    if (m_work != Work::InTurn)
        return;
    // The socket may be emitting readyRead, and has to outlive that.
    m_socket->setParent(nullptr);
    m_socket->abort();
    m_socket->deleteLater();
}

void IpcConnection::takeTurn()
{
    work();
}

std::optional<std::chrono::steady_clock::time_point> IpcConnection::silentSince() const
{
    if (m_work == Work::Parsing || m_message.size > 0)
        return std::nullopt;
    if (m_subscriptions.isEmpty())
        return m_lastRequest;
    if (m_waiting.isEmpty())
        return std::nullopt;
    return std::max(m_lastRequest, m_lastTaken);
}

void IpcConnection::onReadyRead()
{
    if (m_work == Work::Idle)
        work();
    else if (m_work == Work::Resting)
        wantTurn();
}

void IpcConnection::onDisconnected()
{
    m_client = isRefused() ? Client::Gone : Client::Left;
    // What arrived before the client left is still handled.
    onReadyRead();
}

void IpcConnection::onBytesWritten()
{
    m_lastTaken = std::chrono::steady_clock::now();
    if (canSend())
        Q_EMIT readyToSend();
}

void IpcConnection::onParsed()
{
    // The line has been dropped since.
    if (m_work != Work::Parsing)
        return;
    startMessage(m_parsing.future().takeResult());
    wantTurn();
}

void IpcConnection::work()
{
    m_work = Work::InTurn;
    const QPointer<IpcConnection> self(this);
    const QDeadlineTimer end(turnTime, Qt::PreciseTimer);
    bool isIdle = false;
    do {
        if (m_nextRequest < m_message.size) {
            handleNextRequest();
            if (!self)
                return;
        } else if (!fetchLine()) {
            isIdle = true;
        } else {
            takeLine();
        }
    } while (!isIdle && m_work == Work::InTurn && !end.hasExpired());
    m_socket->flush();

    if (m_work == Work::Parsing)
        return;
    if (!isIdle) {
        wantTurn();
        return;
    }
    m_work = end.hasExpired() ? Work::Resting : Work::Idle;
    if (!isConnected())
        Q_EMIT finished();
}

void IpcConnection::wantTurn()
{
    m_work = Work::Queued;
    Q_EMIT turnWanted();
}

bool IpcConnection::fetchLine()
{
    while (!m_received.hasLine() && m_received.lineSize() <= json_rpc::maximumLine) {
        if (m_socket->bytesAvailable() == 0)
            return false;
        if (isRefused()) {
            m_socket->read(readChunk);
            continue;
        }
        m_received.appendFrom(*m_socket, readChunk);
    }
    if (m_received.lineSize() <= json_rpc::maximumLine)
        return true;
    refuse({json_rpc::LineTooLong,
            QStringLiteral("Line too long: at most %1 bytes are read").arg(json_rpc::maximumLine),
            {}});
    return false;
}

void IpcConnection::takeLine()
{
    const QByteArrayView line = m_received.takeLine();
    if (line.trimmed().isEmpty())
        return;
    if (line.size() <= shortLine) {
        startMessage(IpcDispatcher::parse(line));
        return;
    }
    m_work = Work::Parsing;
    m_parsing.setFuture(m_dispatcher.parseInBackground(line.toByteArray()));
}

void IpcConnection::startMessage(IpcDispatcher::Message message)
{
    m_message = std::move(message);
    if (!m_message.failure)
        return;
    const QByteArray failure = *m_message.failure;
    dropMessage();
    write(failure);
}

void IpcConnection::handleNextRequest()
{
    m_lastRequest = std::chrono::steady_clock::now();
    const QPointer<IpcConnection> self(this);
    const IpcSubscriptions before = m_subscriptions;
    const std::optional<QByteArray> answered =
        m_dispatcher.handle(m_message.request(m_nextRequest++), m_subscriptions);
    if (!self)
        return;
    if (m_subscriptions != before) {
        m_isHolding = m_message.isBatch();
        Q_EMIT subscriptionsChanged();
    }
    if (answered)
        answer(*answered);
    if (m_nextRequest == m_message.size)
        endMessage();
}

void IpcConnection::answer(const QByteArray& line)
{
    if (!m_message.isBatch()) {
        write(line);
        return;
    }
    m_answers += m_answers.isEmpty() ? '[' : ',';
    m_answers += QByteArrayView(line).chopped(1);
    // More than a client may leave unread.
    if (m_answers.size() > json_rpc::maximumAnswers)
        closeOverflowing();
}

void IpcConnection::endMessage()
{
    dropMessage();
    if (!m_answers.isEmpty())
        write(std::exchange(m_answers, {}) + "]\n");
    m_isHolding = false;
    if (canSend())
        Q_EMIT readyToSend();
}

void IpcConnection::write(const QByteArray& bytes)
{
    if (!isConnected())
        return;
    // The notifications that the client has not taken do not count here.
    const qsizetype most =
        json_rpc::maximumAnswers + (m_subscriptions.isEmpty() ? 0 : notificationChunk);
    if (m_socket->bytesToWrite() + bytes.size() > most)
        m_socket->flush();
    if (m_socket->bytesToWrite() + bytes.size() > most)
        closeOverflowing();
    else if (m_received.hasLine())
        // The answer to the next line can be sent together with this one.
        m_socket->write(bytes);
    else
        sendNow(*m_socket, bytes);
}

bool IpcConnection::enqueue(const QByteArray& line, const std::optional<IpcStateId>& state)
{
    if (m_client != Client::Served)
        return true;
    // Before that the client was silent because there was nothing to take.
    if (m_waiting.isEmpty())
        m_lastTaken = std::chrono::steady_clock::now();
    m_waitingSize += line.size();
    if (const std::optional<QByteArray> replaced = m_waiting.put(line, state))
        m_waitingSize -= replaced->size();
    return m_waitingSize <= json_rpc::maximumAnswers;
}

bool IpcConnection::canSend() const
{
    return m_client == Client::Served && !m_isHolding && !m_waiting.isEmpty() &&
           m_socket->bytesToWrite() == 0;
}

void IpcConnection::sendWaiting()
{
    if (!canSend())
        return;
    QByteArray chunk = m_waiting.takeFirst().first;
    while (!m_waiting.isEmpty() && chunk.size() + m_waiting.first().size() <= notificationChunk)
        chunk += m_waiting.takeFirst().first;
    m_waitingSize -= chunk.size();
    sendNow(*m_socket, chunk);
    if (m_socket->bytesToWrite() == 0)
        m_lastTaken = std::chrono::steady_clock::now();
}

void IpcConnection::closeOverflowing()
{
    // Without an answer: a client that does not read its answers would not read this one either.
    dropWork();
    m_client = isConnected() ? Client::Refused : Client::Gone;
    m_socket->abort();
}

void IpcConnection::refuse(const json_rpc::Error& error)
{
    dropWork();
    m_client = isConnected() ? Client::Refused : Client::Gone;
    write(json_rpc::failure(QJsonValue::Null, error));
    m_socket->flush();
    // Not at once: a client that is still sending would fail to send and never read the answer.
    QTimer::singleShot(farewell, m_socket, &QLocalSocket::abort);
}

void IpcConnection::dropWork()
{
    m_received.clear();
    if (m_work == Work::Parsing)
        m_work = Work::Idle;
    m_parsing.setFuture({});
    dropMessage();
    m_answers.clear();
    m_waiting.clear();
    m_waitingSize = 0;
}

void IpcConnection::dropMessage()
{
    m_nextRequest = 0;
    if (m_message.isLong)
        m_dispatcher.discardInBackground(std::move(m_message));
    m_message = {};
}
