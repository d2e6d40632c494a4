// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "ipc_coalescing_queue.h"
#include "ipc_dispatcher.h"
#include "line_buffer.h"

#include <QtCore/QByteArray>
#include <QtCore/QFutureWatcher>
#include <QtCore/QObject>

#include <chrono>
#include <optional>

class QLocalSocket;

/// One client of an endpoint. Lives until the client has disconnected and everything that it sent
/// is handled.
///
/// Works in turns of a fraction of a millisecond, so that a client that sends a lot delays neither
/// the other clients nor the thread that the endpoint shares with its host. Long lines are parsed
/// on another thread.
class IpcConnection : public QObject
{
    Q_OBJECT

public:
    /// Owns `socket`. `dispatcher` outlives the connection.
    IpcConnection(QLocalSocket* socket, IpcDispatcher& dispatcher, QObject* parent);
    ~IpcConnection() override;
    Q_DISABLE_COPY_MOVE(IpcConnection)

    /// Handles requests until the turn's time is up, in answer to turnWanted(). A request may call
    /// something that destroys the connection.
    void takeTurn();

    /// Tells the client why it is no longer served, and closes the connection soon after unless the
    /// client does so first.
    void refuse(const json_rpc::Error& error);
    bool isRefused() const { return m_client == Client::Refused || m_client == Client::Gone; }

    /// Makes a notification wait until it can be sent. False when too much waits: then the
    /// connection has to be closed by closeOverflowing().
    bool enqueue(const QByteArray& line, const std::optional<IpcStateId>& state);
    /// Whether something waits and the client has taken what it was sent before.
    bool canSend() const;
    /// Sends as much of it as the client takes at once. This may show that the client has left;
    /// then what it sent before is handled, which may destroy the connection.
    void sendWaiting();
    /// Closes the connection to a client that does not read.
    void closeOverflowing();

    const IpcSubscriptions& subscriptions() const { return m_subscriptions; }

    /// When the client's last request was handled, or when it connected if there was none. For a
    /// client that does not take the notifications that wait for it, when it took one last. Nothing
    /// while one of its requests is in progress, or while it has subscribed and takes everything.
    std::optional<std::chrono::steady_clock::time_point> silentSince() const;

Q_SIGNALS:
    /// There is more to do; the connection waits for takeTurn().
    void turnWanted();
    void subscriptionsChanged();
    /// canSend() may have become true.
    void readyToSend();
    /// The client has disconnected and everything it sent is handled.
    void finished();

private:
    /// What the connection does about the client's requests.
    ///
    ///     Idle      the client sends or leaves               -> InTurn
    ///     Resting   the client sends or leaves               -> Queued
    ///     Queued    takeTurn()                               -> InTurn
    ///     InTurn    everything is done                       -> Idle
    ///               everything is done in the whole time     -> Resting
    ///               the time is up, but there is more to do  -> Queued
    ///               a long line arrives                      -> Parsing
    ///     Parsing   the line is parsed                       -> Queued
    ///               the line is dropped                      -> Idle
    enum class Work : quint8
    {
        /// Nothing is to be done. What the client sends next is handled at once.
        Idle,
        /// Nothing is to be done, but the last turn took all its time. What the client sends next
        /// waits for a turn: clients that each take whole turns would delay those that need little.
        Resting,
        /// The connection has asked for a turn.
        Queued,
        /// Requests are being handled, perhaps by a slot that runs an event loop of its own. What
        /// arrives meanwhile is handled when the slot returns.
        InTurn,
        /// A long line is being parsed on another thread.
        Parsing,
    };

    /// What the client may still expect.
    ///
    ///     Served    refuse(), or too many unread answers     -> Refused
    ///               the client disconnects                   -> Left
    ///     Refused   the client disconnects, or is made to    -> Gone
    ///     Left      refuse(), or too long answers            -> Gone
    enum class Client : quint8
    {
        /// Its requests are handled and answered.
        Served,
        /// It is connected, but what it sends is dropped.
        Refused,
        /// It has disconnected. What it sent before is still handled, but not answered.
        Left,
        /// It was refused and has disconnected.
        Gone,
    };

    void onReadyRead();
    void onDisconnected();
    void onParsed();
    void onBytesWritten();
    void work();
    void wantTurn();

    /// Whether the next line is complete; reads what has arrived if it is not.
    bool fetchLine();
    void takeLine();
    void startMessage(IpcDispatcher::Message message);
    void handleNextRequest();
    void answer(const QByteArray& line);
    void endMessage();
    void write(const QByteArray& bytes);
    void dropWork();
    void dropMessage();

    bool isConnected() const { return m_client == Client::Served || m_client == Client::Refused; }

    QLocalSocket* m_socket;
    IpcDispatcher& m_dispatcher;

    LineBuffer m_received;
    QFutureWatcher<IpcDispatcher::Message> m_parsing;

    /// The message in progress, and its answers so far.
    IpcDispatcher::Message m_message;
    qsizetype m_nextRequest = 0;
    QByteArray m_answers;
    std::chrono::steady_clock::time_point m_lastRequest = std::chrono::steady_clock::now();

    IpcSubscriptions m_subscriptions;
    /// The notifications that are still to be sent, and their size.
    IpcCoalescingQueue<QByteArray> m_waiting;
    qsizetype m_waitingSize = 0;
    std::chrono::steady_clock::time_point m_lastTaken = m_lastRequest;
    /// Whether a request of the batch in progress has subscribed. Its answer is to be sent first.
    bool m_isHolding = false;

    Work m_work = Work::Idle;
    Client m_client = Client::Served;
};
