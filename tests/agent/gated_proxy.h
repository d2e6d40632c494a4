// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QList>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>

/// Passes connections on to a broker while its gate is open, so that a test decides when an agent
/// reaches a broker that has just been started.
class GatedProxy : public QObject
{
public:
    explicit GatedProxy(quint16 brokerPort)
        : m_brokerPort(brokerPort)
    {
        m_server.listen(QHostAddress::LocalHost, 0);
        connect(&m_server, &QTcpServer::newConnection, this, &GatedProxy::take);
    }

    quint16 port() const { return m_server.serverPort(); }

    void open() { m_isOpen = true; }
    /// Also ends the connections that there are.
    void close()
    {
        m_isOpen = false;
        for (const QList<QTcpSocket*> sockets = findChildren<QTcpSocket*>();
             QTcpSocket* const socket : sockets)
            socket->abort();
    }

private:
    void take()
    {
        QTcpSocket* const agent = m_server.nextPendingConnection();
        agent->setParent(this);
        connect(agent, &QTcpSocket::disconnected, agent, &QObject::deleteLater);
        if (!m_isOpen) {
            agent->abort();
            return;
        }
        auto* const broker = new QTcpSocket(this);
        connect(agent, &QTcpSocket::readyRead, broker,
                [agent, broker] { broker->write(agent->readAll()); });
        connect(broker, &QTcpSocket::connected, broker,
                [agent, broker] { broker->write(agent->readAll()); });
        connect(broker, &QTcpSocket::readyRead, agent,
                [agent, broker] { agent->write(broker->readAll()); });
        connect(agent, &QTcpSocket::disconnected, broker, &QTcpSocket::disconnectFromHost);
        connect(broker, &QTcpSocket::disconnected, agent, &QTcpSocket::abort);
        connect(broker, &QTcpSocket::errorOccurred, agent, &QTcpSocket::abort);
        connect(broker, &QTcpSocket::disconnected, broker, &QObject::deleteLater);
        broker->connectToHost(QHostAddress::LocalHost, m_brokerPort);
    }

    QTcpServer m_server;
    quint16 m_brokerPort;
    bool m_isOpen = true;
};
