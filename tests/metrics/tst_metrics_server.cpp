// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "patience.h"

#include <failure.h>
#include <metrics_server.h>

#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>
#include <QtTest/QtTest>

#include <list>

#ifndef Q_OS_WIN
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#endif

using namespace std::chrono_literals;
using metrics_text::Format;

namespace {

/// A client that sends bytes as they are.
class Client
{
public:
    explicit Client(const MetricsServer& server, const QByteArray& bytes = {})
    {
        // What has been received is lost when writing fails.
        QObject::connect(&m_socket, &QTcpSocket::readyRead, &m_socket, [this] {
            if (m_socket.readBufferSize() == 0)
                m_received += m_socket.readAll();
        });
        m_socket.connectToHost(QHostAddress(QHostAddress::LocalHost), server.port());
        m_socket.write(bytes);
    }

    void send(const QByteArray& bytes) { m_socket.write(bytes); }
    /// Everything that the server sends until it closes the connection.
    QByteArray answer()
    {
        // qWaitFor sleeps between its looks, in which time much could be sent.
        QEventLoop loop;
        QObject::connect(&m_socket, &QTcpSocket::stateChanged, &loop, [this, &loop] {
            if (hasEnded())
                loop.quit();
        });
        QTimer::singleShot(patience, &loop, &QEventLoop::quit);
        if (!hasEnded())
            loop.exec();
        return hasEnded() ? m_received + m_socket.readAll() : "no end";
    }
    bool isConnected() const { return m_socket.state() == QTcpSocket::ConnectedState; }
    bool hasEnded() const { return m_socket.state() == QTcpSocket::UnconnectedState; }
    void stopReading() { m_socket.setReadBufferSize(1); }
    QTcpSocket& socket() { return m_socket; }

private:
    QByteArray m_received;
    QTcpSocket m_socket;
};

QByteArray bodyOf(const QByteArray& answer)
{
    return answer.mid(answer.indexOf("\r\n\r\n") + 4);
}

QByteArray statusOf(const QByteArray& answer)
{
    return answer.left(answer.indexOf('\r'));
}

} // namespace

class MetricsServerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesTheText();
    void headHasNoBody();
    void givesOpenMetricsToWhoAsksForIt();
    void refusesEverythingElse_data();
    void refusesEverythingElse();
    void takesRequestsInPieces();
    void answersWhoHasClosedItsSide();
    void textIsMadeOnceForMany();
    void textGrowsOld();
    void silentClientIsDisconnected();
    void slowClientIsToldAndDisconnected();
    void clientThatDoesNotReadIsDisconnected();
    void oldestClientMakesWay();
    void requestThatHasComeIsAnsweredBeforeOthersAreAccepted();
    void servesAgainAfterDescriptorsRanOut();
    void addressInUseIsAFailure();

private:
    static inline const QByteArray request = "GET /metrics HTTP/1.1\r\nHost: here\r\n\r\n";

    /// A server whose text counts how often it was made.
    std::unique_ptr<MetricsServer> makeServer(const MetricsServer::Limits& limits = {})
    {
        m_texts = 0;
        auto server = std::make_unique<MetricsServer>(
            [this](Format format) {
                ++m_texts;
                return format == Format::OpenMetrics ? QByteArray("open\n") : m_text;
            },
            limits);
        server->listen(QHostAddress(QHostAddress::LocalHost), 0);
        return server;
    }

    int m_texts = 0;
    QByteArray m_text = "plain\n";
};

void MetricsServerTest::givesTheText()
{
    const auto server = makeServer();
    Client client(*server, request);
    QCOMPARE(client.answer(),
             QByteArray("HTTP/1.1 200 OK\r\n"
                        "Content-Type: text/plain; version=0.0.4; charset=utf-8\r\n"
                        "Content-Length: 6\r\n"
                        "Connection: close\r\n"
                        "Cache-Control: no-store\r\n"
                        "X-Content-Type-Options: nosniff\r\n"
                        "Vary: Accept\r\n\r\n"
                        "plain\n"));
    QCOMPARE(server->connectionCount(), 0);
}

void MetricsServerTest::headHasNoBody()
{
    const auto server = makeServer();
    const QByteArray answer = Client(*server, "HEAD /metrics HTTP/1.1\r\n\r\n").answer();
    QCOMPARE(statusOf(answer), QByteArray("HTTP/1.1 200 OK"));
    QVERIFY(answer.contains("\r\nContent-Length: 6\r\n"));
    QCOMPARE(bodyOf(answer), QByteArray());
}

void MetricsServerTest::givesOpenMetricsToWhoAsksForIt()
{
    const auto server = makeServer();
    const QByteArray answer =
        Client(
            *server,
            "GET /metrics HTTP/1.1\r\naccept: application/openmetrics-text;version=1.0.0\r\n\r\n")
            .answer();
    QCOMPARE(bodyOf(answer), QByteArray("open\n"));
    QVERIFY(answer.contains("\r\nContent-Type: application/openmetrics-text; version=1.0.0; "
                            "charset=utf-8\r\n"));
}

void MetricsServerTest::refusesEverythingElse_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("status");
    const auto row = [](const char* name, const QByteArray& bytes, const char* status) {
        QTest::newRow(name) << bytes << QByteArray("HTTP/1.1 ") + status;
    };
    row("query", "GET /metrics?x=1 HTTP/1.1\r\n\r\n", "200 OK");
    row("whole address", "GET http://here:1/metrics HTTP/1.1\r\n\r\n", "200 OK");
    row("HTTP 1.0 with line feeds", "GET /metrics HTTP/1.0\n\n", "200 OK");
    row("other path", "GET / HTTP/1.1\r\n\r\n", "404 Not Found");
    row("longer path", "GET /metrics/x HTTP/1.1\r\n\r\n", "404 Not Found");
    row("path with dots", "GET /../metrics HTTP/1.1\r\n\r\n", "404 Not Found");
    row("address without a path", "GET http://here HTTP/1.1\r\n\r\n", "404 Not Found");
    row("other method", "POST /metrics HTTP/1.1\r\nContent-Length: 3\r\n\r\nabc",
        "405 Method Not Allowed");
    row("great body", "POST /metrics HTTP/1.1\r\n\r\n" + QByteArray(qsizetype(8) << 20, 'x'),
        "405 Method Not Allowed");
    row("method in small letters", "get /metrics HTTP/1.1\r\n\r\n", "405 Method Not Allowed");
    row("no HTTP", "GET /metrics\r\n\r\n", "400 Bad Request");
    row("no words", "\r\n\r\n", "400 Bad Request");
    row("garbage", QByteArray("\x16\x03\x01\x00\xff\n\n", 7), "400 Bad Request");
    row("two blanks", "GET  /metrics HTTP/1.1\r\n\r\n", "400 Bad Request");
    row("path without a slash", "GET metrics HTTP/1.1\r\n\r\n", "400 Bad Request");
    row("HTTP 2", "PRI /metrics HTTP/2.0\r\n\r\n", "505 HTTP Version Not Supported");
    row("long", "GET /metrics HTTP/1.1\r\nX: " + QByteArray(20000, 'x') + "\r\n\r\n",
        "431 Request Header Fields Too Large");
    row("without an end", QByteArray(100000, 'x'), "431 Request Header Fields Too Large");
    row("null characters", QByteArray(9000, '\0'), "431 Request Header Fields Too Large");
}

void MetricsServerTest::refusesEverythingElse()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QByteArray, status);
    const auto server = makeServer();
    Client client(*server, bytes);
    QCOMPARE(statusOf(client.answer()), status);
    QTRY_COMPARE(server->connectionCount(), 0);
}

void MetricsServerTest::takesRequestsInPieces()
{
    const auto server = makeServer();
    Client client(*server);
    for (const char byte : request) {
        client.send(QByteArray(1, byte));
        QTRY_COMPARE(client.socket().bytesToWrite(), 0);
    }
    QCOMPARE(bodyOf(client.answer()), m_text);
}

void MetricsServerTest::answersWhoHasClosedItsSide()
{
#ifdef Q_OS_WIN
    QSKIP("Closes one side of a socket with POSIX calls");
#else
    const auto server = makeServer();
    Client client(*server, request);
    QVERIFY(QTest::qWaitFor([&client] { return client.socket().bytesToWrite() == 0; }, patience));
    // Before the server had its turn: everything here is on one thread.
    ::shutdown(static_cast<int>(client.socket().socketDescriptor()), SHUT_WR);
    QCOMPARE(bodyOf(client.answer()), m_text);
#endif
}

void MetricsServerTest::textIsMadeOnceForMany()
{
    const auto server = makeServer({.textTime = 1h});
    for (int i = 0; i < 20; ++i)
        QCOMPARE(bodyOf(Client(*server, request).answer()), m_text);
    QCOMPARE(m_texts, 1);
}

void MetricsServerTest::textGrowsOld()
{
    const auto server = makeServer({.textTime = 0ms});
    QCOMPARE(bodyOf(Client(*server, request).answer()), m_text);
    QCOMPARE(bodyOf(Client(*server, request).answer()), m_text);
    QCOMPARE(m_texts, 2);
}

void MetricsServerTest::silentClientIsDisconnected()
{
    const auto server = makeServer({.requestTime = 10ms});
    QCOMPARE(Client(*server).answer(), QByteArray());
}

void MetricsServerTest::slowClientIsToldAndDisconnected()
{
    const auto server = makeServer({.requestTime = 10ms});
    Client client(*server, "GET /metrics HTTP/1.1\r\n");
    QCOMPARE(statusOf(client.answer()), QByteArray("HTTP/1.1 408 Request Timeout"));
}

void MetricsServerTest::clientThatDoesNotReadIsDisconnected()
{
    m_text = QByteArray(qsizetype(64) << 20, 'x'); // more than the system takes
    const auto server = makeServer({.answerTime = 10ms});
    Client client(*server, request);
    client.stopReading();
    QTRY_COMPARE(m_texts, 1);
    QTRY_COMPARE(server->connectionCount(), 0);
    m_text = "plain\n";
}

void MetricsServerTest::oldestClientMakesWay()
{
    constexpr int connections = 5;
    const auto server = makeServer({.connections = connections, .requestTime = 1h});
    std::list<Client> silent;
    for (int i = 0; i < 3 * connections; ++i) {
        silent.emplace_back(*server);
        QTRY_VERIFY(server->connectionCount() == qMin(i + 1, connections));
        QTRY_VERIFY(silent.back().isConnected());
    }
    QCOMPARE(bodyOf(Client(*server, request).answer()), m_text);
    // The good client took the place of one, so that as many have remained.
    QTRY_COMPARE(std::ranges::count_if(silent, &Client::isConnected), connections - 1);
    QVERIFY(!silent.front().isConnected());
    QVERIFY(silent.back().isConnected());
}

void MetricsServerTest::requestThatHasComeIsAnsweredBeforeOthersAreAccepted()
{
    const auto server = makeServer({.connections = 1, .requestTime = 1h});
    // All of them wait to be accepted, because the server has its turn only in the event loop.
    Client good(*server, request);
    QVERIFY(good.socket().waitForConnected(patience));
    good.socket().flush();
    std::list<Client> silent;
    for (int i = 0; i < 10; ++i) {
        silent.emplace_back(*server);
        QVERIFY(silent.back().socket().waitForConnected(patience));
    }
    QCOMPARE(bodyOf(good.answer()), m_text);
}

void MetricsServerTest::servesAgainAfterDescriptorsRanOut()
{
#ifdef Q_OS_WIN
    QSKIP("Windows has no such limit");
#else
    const auto server = makeServer();
    Client client(*server);
    QVERIFY(client.socket().waitForConnected(patience)); // but not accepted
    rlimit usual{};
    QCOMPARE(getrlimit(RLIMIT_NOFILE, &usual), 0);
    const int next = dup(0);
    QVERIFY(next > 0);
    close(next);
    const rlimit none{static_cast<rlim_t>(next), usual.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_NOFILE, &none), 0);
    QTest::qWait(20); // accepting fails
    const int count = server->connectionCount();
    QCOMPARE(setrlimit(RLIMIT_NOFILE, &usual), 0);
    QCOMPARE(count, 0);
    client.send(request);
    QCOMPARE(bodyOf(client.answer()), m_text);
#endif
}

void MetricsServerTest::addressInUseIsAFailure()
{
    QTcpServer other;
    QVERIFY(other.listen(QHostAddress(QHostAddress::LocalHost)));
    MetricsServer server([](Format) { return QByteArray(); });
    QVERIFY_EXCEPTION_THROWN(server.listen(other.serverAddress(), other.serverPort()), Failure);
    QCOMPARE(server.port(), quint16(0));
}

QTEST_GUILESS_MAIN(MetricsServerTest)
#include "tst_metrics_server.moc"
