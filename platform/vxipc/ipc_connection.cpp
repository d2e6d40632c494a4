// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_connection.h"

#include "ipc_send.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtNetwork/QLocalSocket>

#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr auto TurnTime = 250us;
/// Reading a line up to here takes a small part of a turn.
constexpr qsizetype LightLine = qsizetype{16} << 10;
constexpr qsizetype ReadChunk = qsizetype{64} << 10;
/// How long a client that is refused has to take the answer that says so, and to close.
constexpr auto Farewell = 1s;

} // namespace

IpcConnection::IpcConnection(QLocalSocket* socket, const IpcDispatcher& dispatcher, QObject* parent)
    : QObject(parent)
    , m_socket(socket)
    , m_dispatcher(dispatcher)
{
    m_socket->setParent(this);
    // What a client sends faster than it is worked on waits on the client's side.
    m_socket->setReadBufferSize(ReadChunk);
    connect(m_socket, &QLocalSocket::readyRead, this, &IpcConnection::onReadyRead);
    connect(m_socket, &QLocalSocket::disconnected, this, &IpcConnection::onDisconnected);
}

IpcConnection::~IpcConnection()
{
    m_socket->disconnect(this);
    if (!m_isInTurn)
        return;
    // The socket is telling that it is readable and needs to outlive what that led to.
    m_socket->setParent(nullptr);
    m_socket->abort();
    m_socket->deleteLater();
}

void IpcConnection::takeTurn()
{
    m_isTurnWanted = false;
    work(Load::Any);
}

void IpcConnection::onReadyRead()
{
    if (!m_isTurnWanted)
        work(Load::Light);
}

void IpcConnection::onDisconnected()
{
    m_isDisconnected = true;
    // What arrived before the client left still counts.
    onReadyRead();
}

void IpcConnection::work(Load load)
{
    // A slot that runs an event loop of its own ends up here.
    if (m_isInTurn)
        return;
    m_isInTurn = true;
    const QPointer<IpcConnection> self(this);
    const QDeadlineTimer end(TurnTime, Qt::PreciseTimer);
    bool isIdle = false;
    do {
        if (m_nextRequest < m_message.size) {
            handleNextRequest();
            if (!self)
                return;
        } else if (!fetchLine()) {
            isIdle = true;
        } else if (load == Load::Light && m_received.lineSize() > LightLine) {
            break;
        } else {
            startMessage();
        }
    } while (!isIdle && !end.hasExpired());
    m_socket->flush();
    m_isInTurn = false;

    if (!isIdle) {
        m_isTurnWanted = true;
        Q_EMIT turnWanted();
    } else if (m_isDisconnected) {
        Q_EMIT finished();
    }
}

bool IpcConnection::fetchLine()
{
    while (!m_received.hasLine() && m_received.lineSize() <= JsonRpc::MaximumLine) {
        if (m_socket->bytesAvailable() == 0)
            return false;
        if (m_isRefused) {
            m_socket->read(ReadChunk);
            continue;
        }
        m_received.appendFrom(*m_socket, ReadChunk);
    }
    if (m_received.lineSize() <= JsonRpc::MaximumLine)
        return true;
    refuse({JsonRpc::LineTooLong,
            QStringLiteral("Line too long: at most %1 bytes are read").arg(JsonRpc::MaximumLine),
            {}});
    return false;
}

void IpcConnection::startMessage()
{
    const QByteArrayView line = m_received.takeLine();
    if (line.trimmed().isEmpty())
        return;
    m_message = IpcDispatcher::parse(line);
    m_nextRequest = 0;
    if (m_message.failure)
        write(*m_message.failure);
}

void IpcConnection::handleNextRequest()
{
    const QPointer<IpcConnection> self(this);
    const std::optional<QByteArray> answered =
        m_dispatcher.handle(m_message.request(m_nextRequest++));
    if (!self)
        return;
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
    // Already more than the client may have waiting for it.
    if (m_answers.size() > JsonRpc::MaximumAnswers)
        closeOverflowing();
}

void IpcConnection::endMessage()
{
    m_message = {};
    m_nextRequest = 0;
    if (!m_answers.isEmpty())
        write(std::exchange(m_answers, {}) + "]\n");
}

void IpcConnection::write(const QByteArray& bytes)
{
    if (m_isDisconnected)
        return;
    if (m_socket->bytesToWrite() + bytes.size() > JsonRpc::MaximumAnswers)
        m_socket->flush();
    if (m_socket->bytesToWrite() + bytes.size() > JsonRpc::MaximumAnswers)
        closeOverflowing();
    else if (m_received.hasLine())
        // The next answers can go with this one.
        m_socket->write(bytes);
    else
        sendNow(*m_socket, bytes);
}

void IpcConnection::closeOverflowing()
{
    // Without an answer: a client that does not take its answers would not take this one either.
    dropWork();
    m_isRefused = true;
    m_socket->abort();
}

void IpcConnection::refuse(const JsonRpc::Error& error)
{
    dropWork();
    m_isRefused = true;
    write(JsonRpc::failure(QJsonValue::Null, error));
    m_socket->flush();
    // Not at once: the answer is lost to a client whose sending fails before it reads.
    QTimer::singleShot(Farewell, m_socket, &QLocalSocket::abort);
}

void IpcConnection::dropWork()
{
    m_received.clear();
    m_message = {};
    m_nextRequest = 0;
    m_answers.clear();
}
