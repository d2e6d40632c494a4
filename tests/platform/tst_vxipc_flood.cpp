// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_host_process.h"
#include "ipc_raw_client.h"
#include "on_own_thread.h"
#include "processor_waits.h"
#include "vxipcclient.h"

#include <QtCore/QJsonArray>
#include <QtCore/QTimer>
#include <QtTest/QTest>

#include <chrono>
#include <memory>
#include <vector>

using namespace std::chrono_literals;

namespace {

constexpr auto slowestOfAHundred = 50ms;

/// One kind of bad client.
struct Badness
{
    const char* name;
    QByteArray bytes;
    bool readsAnswers;
    /// Whether it disconnects each time it has sent its bytes.
    bool leaves;
};

std::vector<Badness> badnesses()
{
    const QByteArray request = R"({"jsonrpc":"2.0","id":1,"method":"scale","params":[1]})";
    return {
        {"garbage", QByteArray("\xff\x00{[\"garbage\n", 12).repeated(2000), true, false},
        {"a line without an end", QByteArray(QByteArray::size_type{300} << 10, '['), true, false},
        {"long batches", '[' + (request + ',').repeated(5000) + request + "]\n", true, false},
        {"batches of no requests", '[' + QByteArray("1,").repeated(60000) + "1]\n", true, false},
        {"long lines",
         R"({"jsonrpc":"2.0","id":1,"method":"echo","params":[")" + QByteArray(1000000, 'x') +
             "\"]}\n",
         true, false},
        {"deep nesting", QByteArray(500000, '[') + '\n', true, false},
        {"no reading", (request + '\n').repeated(2000), false, false},
        {"great answers",
         QByteArray(R"({"jsonrpc":"2.0","id":1,"method":"zeroes","params":[1000000]})") + '\n',
         false, false},
        {"sudden death", request + '\n' + request.first(20), false, true},
        {"silence", {}, true, false},
    };
}

/// Sends as fast as the endpoint reads, and reconnects whenever it is disconnected.
class BadClient : public QObject
{
public:
    BadClient(const QString& serverName, Badness badness)
        : m_address(VXIPCClient::address(serverName))
        , m_badness(std::move(badness))
        , m_socket(this)
    {
        // Unread answers fill the system's buffer, until the endpoint can send no more.
        if (!m_badness.readsAnswers)
            m_socket.setReadBufferSize(1);
        connect(&m_socket, &QLocalSocket::connected, this, &BadClient::send);
        connect(&m_socket, &QLocalSocket::bytesWritten, this, &BadClient::onBytesWritten);
        connect(&m_socket, &QLocalSocket::readyRead, this, &BadClient::onReadyRead);
        connect(&m_socket, &QLocalSocket::disconnected, this, &BadClient::connectSoon);
        connect(&m_socket, &QLocalSocket::errorOccurred, this, &BadClient::connectSoon);
        connectNow();
    }

private:
    void connectNow()
    {
        if (m_socket.state() == QLocalSocket::UnconnectedState)
            m_socket.connectToServer(m_address);
    }

    void connectSoon() { QTimer::singleShot(1ms, this, &BadClient::connectNow); }

    void send() { m_socket.write(m_badness.bytes); }

    void onBytesWritten()
    {
        if (m_socket.bytesToWrite() > 0)
            return;
        if (m_badness.leaves)
            m_socket.abort();
        else
            send();
    }

    void onReadyRead()
    {
        if (m_badness.readsAnswers)
            m_socket.readAll();
    }

    QString m_address;
    Badness m_badness;
    QLocalSocket m_socket;
};

/// The bad clients, on one thread: together they still send more than the endpoint can read, and
/// leave a processor to the endpoint and the client that are measured.
std::unique_ptr<OnOwnThread<BadClient>> startFlood(const QString& serverName)
{
    return std::make_unique<OnOwnThread<BadClient>>([serverName] {
        OnOwnThread<BadClient>::Objects clients;
        for (const Badness& badness : badnesses())
            clients.push_back(std::make_unique<BadClient>(serverName, badness));
        return clients;
    });
}

} // namespace

class VXIPCFloodTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void servesAGoodClientDuringAFlood();
};

void VXIPCFloodTest::servesAGoodClientDuringAFlood()
{
    HostProcess host(newServerType());
    QVERIFY(!host.serverName().isEmpty());
    VXIPCClient good(host.serverName());
    QVERIFY(good.connectToServer());

    const FloodTime time = floodTime();
    auto flood = startFlood(host.serverName());
    CallTimes times({host.processId(), QCoreApplication::applicationPid()});
    bool isServed = true;
    const QDeadlineTimer end(time.length);
    while (isServed && !end.hasExpired()) {
        const VXIPCReply reply = times.measure([&good] {
            return good.callAndWait(QStringLiteral("echo"), QJsonArray{QStringLiteral("good")});
        });
        isServed = reply.isOk() && reply.result == QStringLiteral("good");
    }
    flood.reset();

    QVERIFY(isServed);
    QVERIFY(!times.whole().empty());
    const std::chrono::nanoseconds p99 = quantile(times.own(), 0.99);
    qInfo("%zu calls: median %.2f ms, p99 %.2f ms, of which endpoint and client took p99 %.2f ms",
          times.whole().size(), milliseconds(quantile(times.whole(), 0.5)),
          milliseconds(quantile(times.whole(), 0.99)), milliseconds(p99));
    if (time.isByHand) {
        QVERIFY2(times.areWaitsKnown(),
                 "The system does not report how long threads wait for a processor");
        QVERIFY(p99 < slowestOfAHundred);
    }
    // The endpoint still serves new clients.
    VXIPCClient next(host.serverName());
    QTRY_VERIFY(next.callAndWait(QStringLiteral("notes")).isOk());
}

QTEST_GUILESS_MAIN(VXIPCFloodTest)
#include "tst_vxipc_flood.moc"
