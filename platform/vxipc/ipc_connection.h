// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "ipc_dispatcher.h"
#include "line_buffer.h"

#include <QtCore/QByteArray>
#include <QtCore/QJsonArray>
#include <QtCore/QObject>

class QLocalSocket;

/// One client of an endpoint, for as long as it is connected and after that until what it sent is
/// done.
///
/// Works in turns of a fraction of a millisecond, so that no client keeps the others, or the thread
/// that the endpoint shares with its host, waiting for all it has sent.
class IpcConnection : public QObject
{
    Q_OBJECT

public:
    /// Owns `socket`. `dispatcher` outlives the connection.
    IpcConnection(QLocalSocket* socket, const IpcDispatcher& dispatcher, QObject* parent);
    ~IpcConnection() override;

    /// Handles requests until the turn's time is over. May end with the connection destroyed, by
    /// what a request called.
    void takeTurn();

    /// Answers why nothing more of the client's is done, and ends the connection soon after unless
    /// the client does.
    void refuse(const JsonRpc::Error& error);
    bool isRefused() const { return m_isRefused; }

Q_SIGNALS:
    /// There is more to do than the client's turn had time for.
    void turnWanted();
    /// The client is gone and everything it sent is done.
    void finished();

private:
    enum class Load
    {
        /// Leaves a line that takes long to read for a turn of its own.
        Light,
        Any,
    };

    void onReadyRead();
    void onDisconnected();
    void work(Load load);

    /// Whether the next line is there; reads what has arrived when it is not yet.
    bool fetchLine();
    void startMessage();
    void handleNextRequest();
    void answer(const QByteArray& line);
    void endMessage();
    void write(const QByteArray& bytes);
    void closeOverflowing();
    void dropWork();

    QLocalSocket* m_socket;
    const IpcDispatcher& m_dispatcher;

    LineBuffer m_received;

    /// The message in work, and the answers it has so far.
    IpcDispatcher::Message m_message;
    qsizetype m_nextRequest = 0;
    QByteArray m_answers;

    bool m_isInTurn = false;
    bool m_isTurnWanted = false;
    bool m_isDisconnected = false;
    bool m_isRefused = false;
};
