// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "metrics_text.h"

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QTimer>
#include <QtNetwork/QHostAddress>

#include <array>
#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>

/// Answers "GET /metrics" and "HEAD /metrics", and nothing else, for anybody who can connect.
///
/// Each connection serves one request. What clients can cost is bounded: the bytes of a request,
/// the time for it and for its answer, and the number of connections. Where there are too many, the
/// oldest one is closed, so that clients that only hold connections cannot keep others out. The
/// text is made at most once a second, however often it is asked for.
class MetricsServer : public QObject
{
    Q_OBJECT

public:
    using Format = metrics_text::Format;

    struct Limits
    {
        /// Fewer if the system does not allow so many.
        int connections = 2000;
        qsizetype requestBytes = 8192;
        std::chrono::milliseconds requestTime{5000};
        std::chrono::milliseconds answerTime{10000};
        /// How long the same text is given again.
        std::chrono::milliseconds textTime{1000};
    };

    /// `makeText` is called on this object's thread.
    explicit MetricsServer(std::function<QByteArray(Format)> makeText, Limits limits,
                           QObject* parent = nullptr);
    explicit MetricsServer(std::function<QByteArray(Format)> makeText, QObject* parent = nullptr)
        : MetricsServer(std::move(makeText), Limits{}, parent)
    {}
    ~MetricsServer() override;
    Q_DISABLE_COPY_MOVE(MetricsServer)

    /// Throws a `Failure` when the address cannot be used. Port 0: one that is free.
    void listen(const QHostAddress& address, quint16 port);
    /// The port on which it listens; 0 unless it does.
    quint16 port() const;

    int connectionCount() const { return static_cast<int>(m_connections.size()); }

private:
    using Time = std::chrono::steady_clock::time_point;
    class Listener;
    struct Connection;
    struct Answer
    {
        QByteArray status; ///< "200 OK"
        QByteArray type = QByteArrayLiteral("text/plain; charset=utf-8");
        QByteArray furtherHeaders{};
        QByteArray body{};
        bool isBodySent = true;
        bool isAllReceived = true; ///< the client sends nothing more
    };
    struct Text
    {
        QByteArray bytes;
        Time made;
    };

    void take(qintptr descriptor);
    void onReadyRead(quint64 number);
    void onBytesWritten(quint64 number);
    void end(quint64 number);
    void endLate();
    Answer answerTo(const QByteArray& head);
    void send(Connection& connection, const Answer& answer);
    QByteArray text(Format format);

    std::function<QByteArray(Format)> m_makeText;
    Limits m_limits;
    std::array<std::optional<Text>, 2> m_texts;
    std::unique_ptr<Listener> m_listener;
    quint64 m_nextNumber = 0;
    /// In the order in which they were accepted.
    std::map<quint64, std::unique_ptr<Connection>> m_connections;
    QTimer m_clock;
};
