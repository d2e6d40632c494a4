// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "on_own_thread.h"
#include "patience.h"
#include "processor_waits.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtNetwork/QTcpSocket>
#include <QtTest/QtTest>

#include <algorithm>
#include <chrono>
#include <memory>
#include <vector>

#include <sys/resource.h>

using namespace std::chrono_literals;

namespace {

constexpr int badClients = 1000;
/// With a sanitizer, agent and bad clients are so slow that their times say nothing.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif
constexpr auto slowestOfAHundred = 50ms;
/// A kilobyte that each connection left behind would be more.
constexpr qint64 mostGrowth = qint64(8) << 20;

/// One kind of bad client.
struct Badness
{
    QByteArray bytes;
    bool readsAnswers = true;
    /// Whether it sends its bytes again and again.
    bool goesOn = false;
    /// Whether it disconnects as soon as it has sent its bytes.
    bool leaves = false;
};

std::vector<Badness> badnesses()
{
    const QByteArray request = "GET /metrics HTTP/1.1\r\n\r\n";
    return {
        {},
        {"GET /metrics HTTP/1.1\r\nX: "},
        {.bytes = "x", .goesOn = true},
        {.bytes = QByteArray(300000, 'x'), .goesOn = true},
        {.bytes = QByteArray("\x16\x03\x01\x00\xff\x00\xff\n\n", 9), .goesOn = true},
        {.bytes = request, .readsAnswers = false},
        {.bytes = request.repeated(1000), .goesOn = true},
        {.bytes = request, .leaves = true},
        {.bytes = "POST /metrics HTTP/1.1\r\nContent-Length: 1000000\r\n\r\n" +
                  QByteArray(1000000, 'x')},
        {.bytes = "GET /", .leaves = true},
    };
}

/// Connects again whenever it is disconnected.
class BadClient : public QObject
{
public:
    BadClient(quint16 port, Badness badness)
        : m_port(port)
        , m_badness(std::move(badness))
        , m_socket(this)
    {
        if (!m_badness.readsAnswers)
            m_socket.setReadBufferSize(1);
        connect(&m_socket, &QTcpSocket::connected, this, &BadClient::send);
        connect(&m_socket, &QTcpSocket::bytesWritten, this, &BadClient::onBytesWritten);
        connect(&m_socket, &QTcpSocket::readyRead, this, [this] {
            if (m_badness.readsAnswers)
                m_socket.readAll();
        });
        connect(&m_socket, &QTcpSocket::disconnected, this, &BadClient::connectSoon);
        connect(&m_socket, &QTcpSocket::errorOccurred, this, &BadClient::connectSoon);
        connectNow();
    }

private:
    void connectNow()
    {
        if (m_socket.state() == QTcpSocket::UnconnectedState)
            m_socket.connectToHost(QHostAddress(QHostAddress::LocalHost), m_port);
    }
    void connectSoon() { QTimer::singleShot(1ms, this, &BadClient::connectNow); }
    void send() { m_socket.write(m_badness.bytes); }
    void onBytesWritten()
    {
        if (m_socket.bytesToWrite() > 0)
            return;
        if (m_badness.leaves)
            m_socket.abort();
        else if (m_badness.goesOn)
            QTimer::singleShot(1ms, this, [this] { send(); });
    }

    quint16 m_port;
    Badness m_badness;
    QTcpSocket m_socket;
};

/// The bad clients, on one thread.
std::unique_ptr<OnOwnThread<BadClient>> flood(quint16 port)
{
    return std::make_unique<OnOwnThread<BadClient>>([port] {
        const std::vector<Badness> kinds = badnesses();
        OnOwnThread<BadClient>::Objects clients;
        for (int i = 0; i < badClients; ++i)
            clients.push_back(std::make_unique<BadClient>(
                port, kinds.at(static_cast<std::size_t>(i) % kinds.size())));
        return clients;
    });
}

/// An agent in a process of its own, on the built-in fleet.
class AgentProcess
{
public:
    AgentProcess() = default;
    Q_DISABLE_COPY_MOVE(AgentProcess)
    [[nodiscard]] bool start()
    {
        QFile config(m_folder.filePath(QStringLiteral("agent.json")));
        if (!config.open(QFile::WriteOnly))
            return false;
        config.write(R"({"site":"here","metrics":{"listen":"127.0.0.1:0"}})");
        config.close();
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(QStringLiteral(VXPRINTAGENT),
                        {QStringLiteral("run"), QStringLiteral("--config"), config.fileName()});
        static const QRegularExpression address(
            QStringLiteral("http://127\\.0\\.0\\.1:([0-9]+)/metrics"));
        return QTest::qWaitFor(
            [this] {
                m_output += QString::fromUtf8(m_process.readAll());
                const QRegularExpressionMatch match = address.match(m_output);
                m_port = match.captured(1).toUShort();
                return match.hasMatch();
            },
            patience);
    }
    ~AgentProcess()
    {
        m_process.terminate();
        m_process.waitForFinished(patience);
    }

    quint16 port() const { return m_port; }
    qint64 processId() const { return m_process.processId(); }
    QString output() const { return m_output; }

    /// In bytes, without what is swapped out.
    qint64 memory() const
    {
        QFile file(QStringLiteral("/proc/%1/statm").arg(processId()));
        constexpr qint64 page = 4096;
        return file.open(QFile::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() * page
                                          : 0;
    }

private:
    QTemporaryDir m_folder;
    QProcess m_process;
    QString m_output;
    quint16 m_port = 0;
};

/// One good scrape. False when it did not get the whole text.
bool scrape(quint16 port)
{
    QTcpSocket socket;
    socket.connectToHost(QHostAddress(QHostAddress::LocalHost), port);
    if (!socket.waitForConnected(patience))
        return false;
    socket.write("GET /metrics HTTP/1.1\r\nHost: localhost\r\n\r\n");
    while (socket.state() == QTcpSocket::ConnectedState && socket.waitForReadyRead(patience)) {
    }
    const QByteArray answer = socket.readAll();
    return answer.startsWith("HTTP/1.1 200 OK\r\n") && answer.contains("vx_printer_online{") &&
           answer.endsWith('\n');
}

} // namespace

class MetricsFloodTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void servesGoodScrapesDuringAFlood();

private:
    struct Measured
    {
        bool isServed = true;
        bool areWaitsKnown = false;
        std::chrono::nanoseconds p99{};
        qint64 growth = 0;
    };
    static Measured measure(const AgentProcess& agent, std::chrono::seconds floodTime);
};

void MetricsFloodTest::servesGoodScrapesDuringAFlood()
{
    rlimit descriptors{};
    QCOMPARE(getrlimit(RLIMIT_NOFILE, &descriptors), 0);
    constexpr rlim_t needed = badClients + 200;
    const rlimit enough{std::max(descriptors.rlim_cur, needed), descriptors.rlim_max};
    AgentProcess agent;
    QVERIFY2(agent.start(), qPrintable(agent.output()));
    if (setrlimit(RLIMIT_NOFILE, &enough) != 0)
        QSKIP("This user may not open so many connections");
    QVERIFY(scrape(agent.port()));

    const FloodTime time = floodTime();
    const Measured measured = measure(agent, time.length);
    QVERIFY(measured.isServed);
    QVERIFY(scrape(agent.port()));
    if (!isSanitized)
        QVERIFY(measured.growth < mostGrowth);
    if (time.isByHand) {
        QVERIFY2(measured.areWaitsKnown,
                 "The system does not report how long threads wait for a processor");
        QVERIFY(measured.p99 < slowestOfAHundred);
    }
}

MetricsFloodTest::Measured MetricsFloodTest::measure(const AgentProcess& agent,
                                                     std::chrono::seconds floodTime)
{
    const auto clients = flood(agent.port());
    CallTimes times({agent.processId(), QCoreApplication::applicationPid()});
    Measured measured{.areWaitsKnown = times.areWaitsKnown()};
    qint64 memoryAtHalfTime = 0;
    const QDeadlineTimer end(floodTime);
    const QDeadlineTimer halfTime(floodTime / 2);
    while (measured.isServed && !end.hasExpired()) {
        if (memoryAtHalfTime == 0 && halfTime.hasExpired())
            memoryAtHalfTime = agent.memory();
        measured.isServed = times.measure([&agent] { return scrape(agent.port()); });
    }
    measured.growth = agent.memory() - memoryAtHalfTime;
    measured.p99 = quantile(times.own(), 0.99);
    qInfo("%zu scrapes: median %.2f ms, p99 %.2f ms, of which agent and client took p99 %.2f ms; "
          "the agent grew by %lld KiB in the second half",
          times.whole().size(), milliseconds(quantile(times.whole(), 0.5)),
          milliseconds(quantile(times.whole(), 0.99)), milliseconds(measured.p99),
          measured.growth / 1024);
    return measured;
}

QTEST_GUILESS_MAIN(MetricsFloodTest)
#include "tst_metrics_flood.moc"
