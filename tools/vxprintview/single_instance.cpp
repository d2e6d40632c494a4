// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "single_instance.h"

#include "view_system.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtNetwork/QLocalServer>
#include <QtNetwork/QLocalSocket>

namespace {

constexpr int answerLimit = 2000; // milliseconds
const QByteArray reply = QByteArrayLiteral("shown\n");
/// How many may be connected at a time. Nothing is read from them, and each is let go at once.
constexpr int mostConnections = 4;

QString serverName(const QString& purpose)
{
    const QByteArray own =
        QCryptographicHash::hash((QDir::homePath() + QChar(u'\n') + purpose).toUtf8(),
                                 QCryptographicHash::Sha256)
            .toHex()
            .left(24);
    return view_system::serverName(QStringLiteral("vxprintview-") + QString::fromLatin1(own));
}

} // namespace

SingleInstance::SingleInstance(const QString& purpose, QObject* parent)
    : QObject(parent)
    , m_name(serverName(purpose))
{}

SingleInstance::~SingleInstance() = default;

bool SingleInstance::claim()
{
    QLocalSocket other;
    other.connectToServer(m_name);
    if (other.waitForConnected(answerLimit)) {
        // What does not answer hangs, or is not ours.
        if (other.waitForReadyRead(answerLimit) && other.read(reply.size()) == reply)
            return false;
    }
    m_server = std::make_unique<QLocalServer>();
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    m_server->setMaxPendingConnections(mostConnections);
    connect(m_server.get(), &QLocalServer::newConnection, this, &SingleInstance::answer);
    if (!m_server->listen(m_name)) {
        // What a program left behind that was killed. Windows has no such thing.
        QLocalServer::removeServer(m_name);
        m_server->listen(m_name);
    }
    return true;
}

void SingleInstance::answer()
{
    while (QLocalSocket* const client = m_server->nextPendingConnection()) {
        connect(client, &QLocalSocket::disconnected, client, &QObject::deleteLater);
        client->write(reply);
        client->flush();
        client->disconnectFromServer();
        Q_EMIT asked();
    }
}
