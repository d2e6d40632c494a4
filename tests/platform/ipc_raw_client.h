// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "patience.h"
#include "vxipcclient.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTimer>
#include <QtNetwork/QLocalSocket>
#include <QtTest/QTest>

/// A server type that no other test, and no other process of this one, uses.
inline int newServerType()
{
    static int count = 0;
    return static_cast<int>(QCoreApplication::applicationPid() % 2'000'000) * 1000 + ++count;
}

/// The name under which a service is published, and the one with the process id that it takes when
/// the first is in use.
inline QString nameOf(int serverType)
{
    return QStringLiteral("vxipc-%1").arg(serverType);
}
inline QString ownNameOf(int serverType)
{
    return QStringLiteral("vxipc-%1-%2").arg(serverType).arg(QCoreApplication::applicationPid());
}

/// A client that sends and receives bytes as they are.
class RawClient
{
public:
    explicit RawClient(const QString& serverName)
    {
        m_socket.connectToServer(VXIPCClient::address(serverName));
        m_socket.waitForConnected();
    }

    QLocalSocket& socket() { return m_socket; }
    bool isConnected() const { return m_socket.state() == QLocalSocket::ConnectedState; }

    void send(const QByteArray& bytes) { m_socket.write(bytes); }

    /// The next line without its end; empty when the connection ends or `timeout` is over before.
    QByteArray receive(int timeout = patience)
    {
        QEventLoop loop;
        QTimer::singleShot(timeout, &loop, &QEventLoop::quit);
        QObject::connect(&m_socket, &QLocalSocket::disconnected, &loop, &QEventLoop::quit);
        QObject::connect(&m_socket, &QLocalSocket::readyRead, &loop, [&] {
            if (m_socket.canReadLine())
                loop.quit();
        });
        if (isConnected() && !m_socket.canReadLine())
            loop.exec();
        return m_socket.readLine().chopped(1);
    }

    QByteArray exchange(const QByteArray& line)
    {
        send(line + '\n');
        return receive();
    }

    /// Calls a method with parameters written as JSON, and returns the whole answer.
    QJsonObject call(const QByteArray& method, const QByteArray& parameters = "[]")
    {
        return QJsonDocument::fromJson(exchange(R"({"jsonrpc":"2.0","id":1,"method":")" + method +
                                                R"(","params":)" + parameters + '}'))
            .object();
    }

    bool waitForClose(int timeout = patience)
    {
        return QTest::qWaitFor(
            [this] { return m_socket.state() == QLocalSocket::UnconnectedState; }, timeout);
    }

private:
    QLocalSocket m_socket;
};
