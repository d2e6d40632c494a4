// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// How long a call to an endpoint in another process takes: one call at a time, calls of 16 clients,
// and many calls in flight from one client.
#include "benchmark_support.h"
#include "ipc_host_main.h"
#include "ipc_in_flight.h"
#include "ipc_sides.h"
#include "vx_ipc_supplyd_controller.h"

#include <vxipcclient.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtNetwork/QLocalServer>
#include <QtNetwork/QLocalSocket>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <limits>
#include <map>
#include <string>

#include <sched.h>

using namespace ipc_sides;

namespace {

using Clock = std::chrono::steady_clock;

constexpr int clientCount = 16;
constexpr int depth = 64;
constexpr int callsPerBlock = 640;
constexpr int blocks = 40;
constexpr int repetitions = 5;

constexpr double floorLimit = 1.5;
constexpr double remoteObjectsBlockingLimit = 1.1;
constexpr double remoteObjectsLimit = 1.0;

// The library.

class LibraryClients : public Clients
{
public:
    LibraryClients(Call call, const QString& address, int count)
        : m_call(std::move(call))
        , m_parameters{m_call.sku, m_call.printer}
    {
        for (int i = 0; i < count; ++i)
            m_clients.push_back(std::make_unique<VXIPCClient>(address));
    }

    bool connect()
    {
        return std::all_of(m_clients.begin(), m_clients.end(),
                           [](const auto& client) { return client->connectToServer(); });
    }

    bool callAndWait() override
    {
        return isRight(m_clients.front()->callAndWait(m_method, m_parameters));
    }

    bool callTogether(int clients, int inFlight, int calls) override
    {
        InFlight flight(calls);
        for (int i = 0; i < inFlight; ++i) {
            for (int client = 0; client < clients; ++client)
                makeNext(*m_clients.at(static_cast<std::size_t>(client)), flight);
        }
        return flight.wait();
    }

private:
    void makeNext(VXIPCClient& client, InFlight& flight)
    {
        if (!flight.next())
            return;
        client.call(m_method, m_parameters, [this, &client, &flight](const VXIPCReply& reply) {
            flight.answered(isRight(reply));
            makeNext(client, flight);
        });
    }

    bool isRight(const VXIPCReply& reply) const
    {
        return reply.isOk() && reply.result == m_call.answer;
    }

    Call m_call;
    QString m_method = QStringLiteral("supplyColorName");
    QJsonArray m_parameters;
    std::vector<std::unique_ptr<VXIPCClient>> m_clients;
};

// Chooses its name itself, once the event loop runs.
std::shared_ptr<void> serveLibrary(const QString& /*address*/, const Call& /*call*/)
{
    return std::make_shared<VXIPCSUPPLYDController>();
}

std::unique_ptr<Clients> connectLibrary(const QString& address, const Call& call, int count)
{
    auto clients = std::make_unique<LibraryClients>(call, address, count);
    if (!clients->connect())
        return nullptr;
    return clients;
}

// The floor: sockets that carry the same lines, of which only the line ends are read.

class EchoServer : public QLocalServer
{
public:
    explicit EchoServer(QByteArray answerLine)
        : m_answerLine(std::move(answerLine))
    {
        setSocketOptions(UserAccessOption);
        connect(this, &QLocalServer::newConnection, this, [this] {
            QLocalSocket* socket = nextPendingConnection();
            connect(socket, &QLocalSocket::readyRead, socket, [this, socket] {
                const QByteArray received = socket->readAll();
                for (qsizetype lines = received.count('\n'); lines > 0; --lines)
                    socket->write(m_answerLine);
                socket->flush();
            });
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        });
    }

private:
    QByteArray m_answerLine;
};

class EchoClients : public Clients
{
public:
    explicit EchoClients(Call call)
        : m_call(std::move(call))
    {}

    bool connect(const QString& address, int count)
    {
        for (int i = 0; i < count; ++i) {
            m_sockets.push_back(std::make_unique<QLocalSocket>());
            m_sockets.back()->connectToServer(address);
            if (!m_sockets.back()->waitForConnected(10000))
                return false;
        }
        return true;
    }

    bool callAndWait() override
    {
        QLocalSocket& socket = *m_sockets.front();
        socket.write(m_call.requestLine);
        // Waiting would ask the system first whether it takes the line.
        socket.flush();
        while (!socket.canReadLine()) {
            if (!socket.waitForReadyRead(10000))
                return false;
        }
        return socket.readLine() == m_call.answerLine;
    }

    bool callTogether(int clients, int inFlight, int calls) override
    {
        InFlight flight(calls);
        std::vector<QMetaObject::Connection> connections;
        for (int client = 0; client < clients; ++client) {
            QLocalSocket& socket = *m_sockets.at(static_cast<std::size_t>(client));
            connections.push_back(QObject::connect(&socket, &QLocalSocket::readyRead, &socket, [&] {
                while (socket.canReadLine()) {
                    flight.answered(socket.readLine() == m_call.answerLine);
                    makeNext(socket, flight);
                }
            }));
        }
        for (int i = 0; i < inFlight; ++i) {
            for (int client = 0; client < clients; ++client)
                makeNext(*m_sockets.at(static_cast<std::size_t>(client)), flight);
        }
        const bool isRight = flight.wait();
        for (const QMetaObject::Connection& connection : connections)
            QObject::disconnect(connection);
        return isRight;
    }

private:
    void makeNext(QLocalSocket& socket, InFlight& flight) const
    {
        if (flight.next())
            socket.write(m_call.requestLine);
    }

    Call m_call;
    std::vector<std::unique_ptr<QLocalSocket>> m_sockets;
};

std::shared_ptr<void> serveEcho(const QString& address, const Call& call)
{
    auto server = std::make_shared<EchoServer>(call.answerLine);
    if (!server->listen(address))
        return nullptr;
    return server;
}

std::unique_ptr<Clients> connectEcho(const QString& address, const Call& call, int count)
{
    auto clients = std::make_unique<EchoClients>(call);
    if (!clients->connect(address, count))
        return nullptr;
    return clients;
}

constexpr std::size_t libraryPlace = 0;
constexpr std::size_t floorPlace = 1;
constexpr std::size_t remoteObjectsPlace = 2;

const std::vector<Side>& sides()
{
    static const std::vector<Side> all = [] {
        std::vector<Side> each{{"library", serveLibrary, connectLibrary},
                               {"floor", serveEcho, connectEcho}};
        for (const Side& other : remoteObjects())
            each.push_back(other);
        return each;
    }();
    return all;
}

QByteArray lineOf(const QJsonObject& message)
{
    return QJsonDocument(message).toJson(QJsonDocument::Compact) + '\n';
}

Call readCall()
{
    VXIPCSUPPLYDController endpoint;
    Call call;
    call.sku = endpoint.supplySKUList().value(0);
    call.printer = QStringLiteral("Stratamark CedarMax 4 (warehouse)");
    call.answer = endpoint.supplyColorName(call.sku, call.printer);
    const QString version = QStringLiteral("2.0");
    // With as many digits as the ids in the middle of a run.
    constexpr int id = 100000;
    call.requestLine = lineOf({{QStringLiteral("jsonrpc"), version},
                               {QStringLiteral("id"), id},
                               {QStringLiteral("method"), QStringLiteral("supplyColorName")},
                               {QStringLiteral("params"), QJsonArray{call.sku, call.printer}}});
    call.answerLine = lineOf({{QStringLiteral("jsonrpc"), version},
                              {QStringLiteral("id"), id},
                              {QStringLiteral("result"), call.answer}});
    return call;
}

// The servers, each in a process of its own: this program, started with the name of its side.

constexpr const char* serveVerb = "--serve";

int serve(const QString& sideName)
{
    const auto side = std::find_if(sides().begin(), sides().end(), [&](const Side& each) {
        return sideName == QLatin1String(each.name);
    });
    if (side == sides().end())
        return 2;
    QString address =
        QStringLiteral("vx-bench-%1-%2").arg(sideName).arg(QCoreApplication::applicationPid());
    const std::shared_ptr<void> server = side->serve(address, readCall());
    if (!server) {
        std::fprintf(stderr, "bench_ipc: cannot serve %s\n", side->name);
        return 1;
    }
    return serveUntilInputEnds([&] {
        if (side == sides().begin())
            address = static_cast<VXIPCSUPPLYDController*>(server.get())->serverName();
        return QStringList{address};
    });
}

/// Keeps this process, and those that it starts, on one core. Two processes that wake each other in
/// turns take several times as long when the scheduler puts them on two cores.
void stayOnOneCore()
{
    cpu_set_t cores;
    CPU_ZERO(&cores);
    CPU_SET(static_cast<unsigned>(sched_getcpu()), &cores);
    sched_setaffinity(0, sizeof(cores), &cores);
}

class ServerProcess
{
public:
    explicit ServerProcess(const Side& side)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QCoreApplication::applicationFilePath(),
                        {QString::fromLatin1(serveVerb), QString::fromLatin1(side.name)});
        while (!m_process.canReadLine() && m_process.waitForReadyRead()) {
        }
        m_address = QString::fromLocal8Bit(m_process.readLine()).trimmed();
    }
    ~ServerProcess()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(ServerProcess)

    QString address() const { return m_address; }

private:
    QProcess m_process;
    QString m_address;
};

// The measurement.

enum Pattern
{
    Blocking,
    ManyClients,
    InFlightTogether,
    PatternCount,
};
constexpr std::array<const char*, PatternCount> patternNames{"one call at a time", "16 clients",
                                                             "64 calls in flight"};

/// Microseconds a call, by side.
std::map<std::size_t, std::vector<double>> samplesOf[PatternCount];

double medianOf(const std::map<std::size_t, std::vector<double>>& samples, std::size_t side)
{
    const auto found = samples.find(side);
    return found == samples.end() || found->second.empty()
               ? std::numeric_limits<double>::quiet_NaN()
               : benchmark_support::median(found->second);
}

double ratio(const std::map<std::size_t, std::vector<double>>& samples, std::size_t side)
{
    return medianOf(samples, libraryPlace) / medianOf(samples, side);
}

bool takeBlock(Clients& clients, Pattern pattern)
{
    switch (pattern) {
    case Blocking:
        for (int i = 0; i < callsPerBlock; ++i) {
            if (!clients.callAndWait())
                return false;
        }
        return true;
    case ManyClients:
        return clients.callTogether(clientCount, 1, callsPerBlock);
    default:
        return clients.callTogether(1, depth, callsPerBlock);
    }
}

void ipc(benchmark::State& state, Pattern pattern)
{
    const Call call = readCall();
    std::vector<std::unique_ptr<ServerProcess>> servers;
    std::vector<std::unique_ptr<Clients>> clients;
    for (const Side& side : sides()) {
        servers.push_back(std::make_unique<ServerProcess>(side));
        clients.push_back(side.connect(servers.back()->address(), call, clientCount));
        if (!clients.back() || !takeBlock(*clients.back(), pattern)) {
            state.SkipWithError((std::string(side.name) + " does not answer as it should").c_str());
            return;
        }
    }

    std::map<std::size_t, std::vector<double>> samples;
    std::size_t first = 0;
    for ([[maybe_unused]] auto iteration : state) {
        // The sides take turns in going first.
        for (std::size_t i = 0; i < clients.size(); ++i) {
            const std::size_t place = (first + i) % clients.size();
            const Clock::time_point start = Clock::now();
            if (!takeBlock(*clients.at(place), pattern)) {
                state.SkipWithError("an answer was lost or wrong");
                return;
            }
            const std::chrono::duration<double, std::micro> time = Clock::now() - start;
            samples[place].push_back(time.count() / callsPerBlock);
        }
        ++first;
        state.SetIterationTime(samples[libraryPlace].back() * 1e-6);
    }
    for (std::size_t place = 0; place < clients.size(); ++place) {
        const std::string name = sides().at(place).name;
        state.counters[name + "_us"] = medianOf(samples, place);
        state.counters[name + "_calls_per_s"] = 1e6 / medianOf(samples, place);
        if (place != libraryPlace)
            state.counters["over_" + name] = ratio(samples, place);
        std::vector<double>& all = samplesOf[pattern][place];
        all.insert(all.end(), samples[place].begin(), samples[place].end());
    }
}

void registerBenchmarks()
{
    for (int pattern = 0; pattern < PatternCount; ++pattern) {
        benchmark::RegisterBenchmark(patternNames.at(static_cast<std::size_t>(pattern)), &ipc,
                                     static_cast<Pattern>(pattern))
            ->Iterations(blocks)
            ->Repetitions(repetitions)
            ->DisplayAggregatesOnly(true)
            ->UseManualTime()
            ->Unit(benchmark::kMicrosecond);
    }
}

void enterLimits(benchmark_support::Limits& limits)
{
    const bool hasRemoteObjects = sides().size() > remoteObjectsPlace;
    for (int pattern = 0; pattern < PatternCount; ++pattern) {
        const std::string name = patternNames.at(static_cast<std::size_t>(pattern));
        if (pattern != InFlightTogether)
            limits.atMost(name + ", over an echo of the same bytes",
                          ratio(samplesOf[pattern], floorPlace), floorLimit, "");
        if (hasRemoteObjects)
            limits.atMost(
                name + ", over Qt Remote Objects", ratio(samplesOf[pattern], remoteObjectsPlace),
                pattern == Blocking ? remoteObjectsBlockingLimit : remoteObjectsLimit, "");
    }
    if (!hasRemoteObjects)
        std::printf("\nQt Remote Objects was not found, so nothing is compared with it.\n");
}

} // namespace

int main(int argc, char* argv[])
{
    benchmark_support::useTranslatedNames();
    const QCoreApplication application(argc, argv);
    if (argc == 3 && std::string(argv[1]) == serveVerb)
        return serve(QString::fromLocal8Bit(argv[2]));

    stayOnOneCore();
    registerBenchmarks();
    return benchmark_support::run(argc, argv, enterLimits);
}
