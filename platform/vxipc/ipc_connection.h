// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "ipc_dispatcher.h"
#include "line_buffer.h"

#include <QtCore/QByteArray>
#include <QtCore/QFutureWatcher>
#include <QtCore/QObject>

#include <chrono>
#include <optional>

class QLocalSocket;

/// One client of an endpoint, for as long as it is connected and after that until what it sent is
/// done.
///
/// Works in turns of a fraction of a millisecond, so that no client keeps the others, or the thread
/// that the endpoint shares with its host, waiting for all it has sent. Long lines are parsed on
/// another thread meanwhile.
class IpcConnection : public QObject
{
    Q_OBJECT

public:
    /// Owns `socket`. `dispatcher` outlives the connection.
    IpcConnection(QLocalSocket* socket, IpcDispatcher& dispatcher, QObject* parent);
    ~IpcConnection() override;
    Q_DISABLE_COPY_MOVE(IpcConnection)

    /// Handles requests until the turn's time is over. May end with the connection destroyed, by
    /// what a request called.
    void takeTurn();

    /// Answers why nothing more of the client's is done, and ends the connection soon after unless
    /// the client does.
    void refuse(const JsonRpc::Error& error);
    bool isRefused() const { return m_isRefused; }

    /// When the client asked last, or came; nothing while something it asked is being done.
    std::optional<std::chrono::steady_clock::time_point> silentSince() const;

Q_SIGNALS:
    /// There is more to do than the client's turn had time for.
    void turnWanted();
    /// The client is gone and everything it sent is done.
    void finished();

private:
    void onReadyRead();
    void onDisconnected();
    void onParsed();
    void work();
    void wantTurn();

    /// Whether the next line is there; reads what has arrived when it is not yet.
    bool fetchLine();
    void takeLine();
    void startMessage(IpcDispatcher::Message message);
    void handleNextRequest();
    void answer(const QByteArray& line);
    void endMessage();
    void write(const QByteArray& bytes);
    void closeOverflowing();
    void dropWork();
    void dropMessage();

    QLocalSocket* m_socket;
    IpcDispatcher& m_dispatcher;

    LineBuffer m_received;
    QFutureWatcher<IpcDispatcher::Message> m_parsing;
    bool m_isParsing = false;

    /// The message in work, and the answers it has so far.
    IpcDispatcher::Message m_message;
    qsizetype m_nextRequest = 0;
    QByteArray m_answers;
    std::chrono::steady_clock::time_point m_lastRequest = std::chrono::steady_clock::now();

    bool m_isInTurn = false;
    bool m_isTurnWanted = false;
    bool m_tookWholeTurn = false;
    bool m_isDisconnected = false;
    bool m_isRefused = false;
};
