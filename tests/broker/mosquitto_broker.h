// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <patience.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRandomGenerator>
#include <QtCore/QTemporaryDir>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>
#include <QtNetwork/QUdpSocket>

#include <memory>
#include <utility>
#include <vector>

/// A real broker on a free port of this computer, which a test kills and starts as it likes. The
/// build names the program in VX_MOSQUITTO; tests are skipped where there is none.
class MosquittoBroker
{
public:
    /// `settings` are further lines of its configuration; those of the listener come first.
    explicit MosquittoBroker(const QStringList& settings = {})
        : m_settings(settings)
    {}
    ~MosquittoBroker() { kill(); }
    Q_DISABLE_COPY_MOVE(MosquittoBroker)

    static bool isInstalled() { return QFile::exists(QStringLiteral(VX_MOSQUITTO)); }

    QString folder() const { return m_folder.path(); }
    quint16 port() const { return m_port; }
    QString url() const { return QStringLiteral("mqtt://127.0.0.1:%1").arg(m_port); }
    QString output() { return QString::fromUtf8(m_process.readAll()); }

    /// Starts it, on the same port each time, and waits until it accepts connections.
    [[nodiscard]] bool start()
    {
        // Another program may take a port that was free a moment ago.
        constexpr int attempts = 10;
        for (int attempt = 0; attempt < attempts; ++attempt) {
            if (m_port == 0)
                m_port = freePort();
            if (!writeConfiguration())
                return false;
            m_process.setProcessChannelMode(QProcess::MergedChannels);
            m_process.start(QStringLiteral(VX_MOSQUITTO),
                            {QStringLiteral("-v"), QStringLiteral("-c"), configuration()});
            if (m_process.waitForStarted(patience) && waitUntilItAccepts())
                return true;
            kill();
            if (!m_hasRun)
                m_port = 0;
        }
        return false;
    }

    /// Ends it at once, as a power cut would.
    void kill()
    {
        m_process.kill();
        m_process.waitForFinished(patience);
    }

    /// A port for a server that is ended and started again: nobody else gets it until this process
    /// ends. The system does not give it to a client, and another test that looks for one sees that
    /// the UDP port of the same number is taken.
    static quint16 freePort()
    {
        // Reachable until the end, so that no socket is destroyed after the application.
        static auto* const reservations = new std::vector<std::unique_ptr<QUdpSocket>>;
        const auto [first, last] = portsOfClients();
        constexpr int lowest = 10000;
        constexpr int highest = 65535;
        for (;;) {
            const int port = QRandomGenerator::global()->bounded(lowest, highest + 1);
            if (port >= first && port <= last)
                continue;
            auto reservation = std::make_unique<QUdpSocket>();
            QTcpServer server;
            if (!reservation->bind(QHostAddress::LocalHost, static_cast<quint16>(port),
                                   QUdpSocket::DontShareAddress) ||
                !server.listen(QHostAddress::LocalHost, static_cast<quint16>(port)))
                continue;
            reservations->push_back(std::move(reservation));
            return static_cast<quint16>(port);
        }
    }

private:
    /// The first and the last port that the system gives to clients.
    static std::pair<int, int> portsOfClients()
    {
        QFile range(QStringLiteral("/proc/sys/net/ipv4/ip_local_port_range"));
        if (!range.open(QIODevice::ReadOnly))
            qFatal("cannot read %s", qPrintable(range.fileName()));
        const QList<QByteArray> ends = range.readAll().simplified().split(' ');
        return {ends.value(0).toInt(), ends.value(1).toInt()};
    }

    QString configuration() const { return m_folder.filePath(QStringLiteral("mosquitto.conf")); }

    bool writeConfiguration() const
    {
        // It would give up root's rights, and could not read the files of the test then.
        QStringList lines{
            QStringLiteral("user root"), QStringLiteral("listener %1 127.0.0.1").arg(m_port),
            QStringLiteral("max_inflight_messages 0"), QStringLiteral("max_queued_messages 0")};
        lines += m_settings;
        if (m_settings.filter(QStringLiteral("allow_anonymous")).isEmpty())
            lines.append(QStringLiteral("allow_anonymous true"));
        QFile file(configuration());
        return file.open(QIODevice::WriteOnly) &&
               file.write((lines.join(u'\n') + u'\n').toUtf8()) > 0;
    }

    bool waitUntilItAccepts()
    {
        QDeadlineTimer deadline(patience);
        while (!deadline.hasExpired() && m_process.state() == QProcess::Running) {
            QTcpSocket socket;
            socket.connectToHost(QHostAddress::LocalHost, m_port);
            if (socket.waitForConnected(patience)) {
                m_hasRun = true;
                return true;
            }
            m_process.waitForFinished(10);
        }
        return false;
    }

    QTemporaryDir m_folder;
    QStringList m_settings;
    QProcess m_process;
    quint16 m_port = 0;
    bool m_hasRun = false;
};
