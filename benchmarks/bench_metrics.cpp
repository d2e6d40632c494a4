// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// How long a scrape of the agent's metrics takes, and what making their text costs.
#include "benchmark_support.h"

#include <metrics_server.h>
#include <metrics_text.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QThread>

#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <cmath>
#include <memory>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

using benchmark_support::Samples;
using VxKit::Level;
using VxKit::PrinterReading;
using VxKit::Slot;

namespace {

using Clock = std::chrono::steady_clock;

constexpr int printers = 50;
constexpr int blocks = 100;
constexpr int scrapesPerBlock = 20;
constexpr double ratioLimit = 2.0;
constexpr double textLimit = 20.0; // microseconds for a printer

double microseconds(Clock::duration time)
{
    return std::chrono::duration<double, std::micro>(time).count();
}

QList<metrics_text::Printer> makePrinters()
{
    QList<metrics_text::Printer> list;
    for (int number = 0; number < printers; ++number) {
        PrinterReading reading;
        reading.setName(QStringLiteral("Label printer %1").arg(number));
        reading.setModel(VXPrinting::PrinterType::AlderMax);
        reading.setDriver(QStringLiteral("Stratamark AlderMax"));
        reading.setPort(QStringLiteral("%1").arg(number));
        reading.setSerialNumber(QStringLiteral("AM-%1").arg(number));
        reading.setPresent();
        reading.setWatching(PrinterReading::Watching::Watched);
        reading.setStatusCode(1);
        reading.setOnline(true);
        reading.setLastReport(QDateTime::currentDateTimeUtc());
        for (const Slot slot : VxKit::allSlots) {
            Level level;
            level.state = Level::State::Loaded;
            level.sku = QStringLiteral("VT-400-YL");
            level.material = QStringLiteral("Vinyl");
            level.ratio = 0.8;
            level.meters = 24.385;
            level.labels = 480;
            reading.setLevel(slot, level);
            reading.setEstimatedSecondsRemaining(slot, VxKit::RemainingTime{3600, 7200, 10800});
        }
        list.append({reading, {1.5, 2.5, 3.5}});
    }
    return list;
}

QByteArray makeText(metrics_text::Format format)
{
    static const QList<metrics_text::Printer> list = makePrinters();
    return metrics_text::text({QStringLiteral("1.0"), QStringLiteral("site")}, list, format);
}

sockaddr_in loopback(quint16 port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

/// A descriptor that is closed.
class Descriptor
{
public:
    explicit Descriptor(int number)
        : m_number(number)
    {}
    ~Descriptor() { close(m_number); }
    Q_DISABLE_COPY_MOVE(Descriptor)
    int get() const { return m_number; }

private:
    int m_number;
};

bool sendAll(int descriptor, const QByteArray& bytes)
{
    for (qsizetype sent = 0; sent < bytes.size();) {
        const ssize_t size = send(descriptor, bytes.constData() + sent,
                                  static_cast<std::size_t>(bytes.size() - sent), MSG_NOSIGNAL);
        if (size <= 0)
            return false;
        sent += size;
    }
    return true;
}

/// The least that answers a scrape: one client after the other, on a thread that does nothing else,
/// and without any limits. It reads until the empty line and sends a text that has been made.
class BareServer
{
public:
    explicit BareServer(const QByteArray& body)
        : m_answer("HTTP/1.1 200 OK\r\nContent-Type: text/plain\r\nContent-Length: " +
                   QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body)
        , m_listener(socket(AF_INET, SOCK_STREAM, 0))
    {
        sockaddr_in address = loopback(0);
        socklen_t size = sizeof(address);
        auto* generic = reinterpret_cast<sockaddr*>(&address);
        if (bind(m_listener.get(), generic, size) == 0 &&
            listen(m_listener.get(), SOMAXCONN) == 0 &&
            getsockname(m_listener.get(), generic, &size) == 0)
            m_port = ntohs(address.sin_port);
        m_thread.reset(QThread::create([this] { serve(); }));
        m_thread->start();
    }
    ~BareServer()
    {
        shutdown(m_listener.get(), SHUT_RDWR);
        m_thread->wait();
    }
    Q_DISABLE_COPY_MOVE(BareServer)

    quint16 port() const { return m_port; }

private:
    void serve() const
    {
        for (;;) {
            const int number = accept(m_listener.get(), nullptr, nullptr);
            if (number < 0)
                return;
            const Descriptor client(number);
            QByteArray request;
            std::array<char, 4096> buffer{};
            while (!request.endsWith("\r\n\r\n")) {
                const ssize_t size = recv(number, buffer.data(), buffer.size(), 0);
                if (size <= 0)
                    break;
                request.append(buffer.data(), size);
            }
            sendAll(number, m_answer);
        }
    }

    QByteArray m_answer;
    Descriptor m_listener;
    quint16 m_port = 0;
    std::unique_ptr<QThread> m_thread;
};

/// The agent's server, on a thread of its own.
class AgentServer
{
public:
    AgentServer()
    {
        m_context.moveToThread(&m_thread);
        m_thread.start();
        QMetaObject::invokeMethod(
            &m_context,
            [this] {
                m_server = std::make_unique<MetricsServer>(makeText);
                m_server->listen(QHostAddress(QHostAddress::LocalHost), 0);
            },
            Qt::BlockingQueuedConnection);
    }
    ~AgentServer()
    {
        QMetaObject::invokeMethod(
            &m_context, [this] { m_server.reset(); }, Qt::BlockingQueuedConnection);
        m_thread.quit();
        m_thread.wait();
    }
    Q_DISABLE_COPY_MOVE(AgentServer)

    quint16 port() const { return m_server->port(); }

private:
    QThread m_thread;
    QObject m_context;
    std::unique_ptr<MetricsServer> m_server;
};

/// The size of the answer.
qsizetype scrape(quint16 port)
{
    const Descriptor client(socket(AF_INET, SOCK_STREAM, 0));
    const sockaddr_in address = loopback(port);
    if (connect(client.get(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0 ||
        !sendAll(client.get(), "GET /metrics HTTP/1.1\r\nHost: localhost\r\n\r\n"))
        return 0;
    qsizetype total = 0;
    std::array<char, 65536> buffer{};
    for (;;) {
        const ssize_t size = recv(client.get(), buffer.data(), buffer.size(), 0);
        if (size <= 0)
            return total;
        total += size;
    }
}

double timeOfScrape(quint16 port)
{
    const auto begin = Clock::now();
    benchmark::DoNotOptimize(scrape(port));
    return microseconds(Clock::now() - begin);
}

Samples scrapes;
double microsecondsPerPrinter = std::nan("");

void scrapeOfMetrics(benchmark::State& state)
{
    const QByteArray body = makeText(metrics_text::Format::Prometheus);
    const AgentServer agent;
    const BareServer bare(body);
    if (scrape(agent.port()) < body.size() || scrape(bare.port()) < body.size()) {
        state.SkipWithError("a server does not send the whole text");
        return;
    }
    benchmark_support::Turns turns;
    for ([[maybe_unused]] auto iteration : state) {
        double sum = 0;
        turns.take(
            [&] {
                sum = benchmark_support::takeBlock(scrapesPerBlock, scrapes.library,
                                                   [&] { return timeOfScrape(agent.port()); });
            },
            [&] {
                benchmark_support::takeBlock(scrapesPerBlock, scrapes.floor,
                                             [&] { return timeOfScrape(bare.port()); });
            });
        state.SetIterationTime(sum / scrapesPerBlock * 1e-6);
    }
    state.counters["bytes"] = static_cast<double>(body.size());
    state.counters["scrape_median_us"] = benchmark_support::median(scrapes.library);
    state.counters["bare_median_us"] = benchmark_support::median(scrapes.floor);
    state.counters["median_ratio"] = scrapes.ratio();
}
BENCHMARK(scrapeOfMetrics)->Iterations(blocks)->UseManualTime()->Unit(benchmark::kMicrosecond);

void textOfMetrics(benchmark::State& state)
{
    std::vector<double> times;
    for ([[maybe_unused]] auto iteration : state) {
        const double begin = benchmark_support::processorTime();
        benchmark::DoNotOptimize(makeText(metrics_text::Format::Prometheus));
        times.push_back((benchmark_support::processorTime() - begin) / printers);
    }
    microsecondsPerPrinter = benchmark_support::median(times);
    state.counters["printer_median_us"] = microsecondsPerPrinter;
}
BENCHMARK(textOfMetrics)->Iterations(blocks)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    return benchmark_support::run(argc, argv, [](benchmark_support::Limits& limits) {
        limits.atMost("a scrape, median over that of a bare server", scrapes.ratio(), ratioLimit,
                      "");
        limits.atMost("processor time for the text of a printer, median", microsecondsPerPrinter,
                      textLimit, " us");
    });
}
