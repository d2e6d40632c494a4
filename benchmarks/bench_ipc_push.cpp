// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// What it costs a host to push the readings of many printers to many subscribers: processor time
// for each notification, how long the host's other events wait for it, and memory.
#include "benchmark_support.h"

#include <change_queue.h>
#include <printer_reading.h>
#include <status_endpoint.h>
#include <vxipcclient.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QCryptographicHash>
#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QProcess>
#include <QtCore/QTimer>
#include <QtNetwork/QLocalServer>
#include <QtNetwork/QLocalSocket>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <vector>

using namespace std::chrono_literals;

namespace {

constexpr int subscriberCount = 64;
constexpr int printerCount = 200;
constexpr int roundsPerBlock = 5;
constexpr int blocks = 30;
/// Ten changes of each printer a second.
constexpr auto changeInterval = 100ms;
constexpr int steadyRounds = 200;
constexpr int warmUpRounds = 50;
constexpr int answerTime = 60000;

constexpr double floorLimit = 1.5;
constexpr double blockedLimit = 5.0;
/// What the allocator and the statistics of this program may add.
constexpr double growthLimit = 1.0;

// What changes.

QString serialNumber(int printer)
{
    return QStringLiteral("SN%1").arg(printer, 5, 10, QLatin1Char('0'));
}

/// A reading as a host with a catalogue has it, which carries the number of its round as the
/// version of the firmware.
VxKit::PrinterReading makeReading(int printer, int round)
{
    VxKit::PrinterReading reading;
    reading.setName(QStringLiteral("Packing line %1 (warehouse)").arg(printer));
    reading.setModel(VXPrinting::PrinterType::CedarMax);
    reading.setDriver(QStringLiteral("Stratamark CedarMax 4"));
    reading.setPort(QStringLiteral("USB%1").arg(printer, 3, 10, QLatin1Char('0')));
    reading.setSerialNumber(serialNumber(printer));
    reading.setPresent();
    reading.setWatching(VxKit::PrinterReading::Watching::Watched);
    reading.setStatusCode(round % 7);
    reading.setOnline(true);
    reading.setFirmwareVersion(QString::number(round));
    reading.setBootVersion(QStringLiteral("1.4"));
    reading.setLastReport(QDateTime::fromMSecsSinceEpoch(1'790'000'000'000 + 100 * round, Qt::UTC));
    for (const VxKit::Slot slot : reading.slotList()) {
        VxKit::Level level;
        level.state = VxKit::Level::State::Loaded;
        level.identifier = QStringLiteral("000001F4100003000A7");
        level.sku = QStringLiteral("VT-400-YL");
        level.name = QStringLiteral("Vinyl, Yellow");
        level.material = QStringLiteral("Vinyl");
        level.colorName = QStringLiteral("Yellow");
        level.colors = {QStringLiteral("#ffd100")};
        level.totalMeters = 30.48;
        level.meters = 30.48 - round * 0.001;
        level.ratio = *level.meters / *level.totalMeters;
        level.mileage = static_cast<quint32>(round);
        reading.setLevel(slot, level);
    }
    return reading;
}

/// The same for the same readings, whoever wrote them.
QByteArray digestOf(const std::vector<QJsonObject>& readings)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const QJsonObject& reading : readings)
        hash.addData(QJsonDocument(reading).toJson(QJsonDocument::Compact));
    return hash.result().toHex();
}

// The subscribers, all of them in one other process: this program, started with this verb.

constexpr const char* readVerb = "--read";

/// Remembers the last line of each printer.
class Subscriber : public QObject
{
public:
    Subscriber(const QString& address, bool subscribes, std::function<void()> onLines)
        : m_onLines(std::move(onLines))
    {
        connect(&m_socket, &QLocalSocket::readyRead, this, [this] { read(); });
        m_socket.connectToServer(address);
        if (!m_socket.waitForConnected())
            return;
        if (subscribes) {
            m_socket.write(R"({"jsonrpc":"2.0","id":1,"method":"rpc.subscribe",)"
                           R"("params":["printerChanged"]})"
                           "\n");
            m_socket.flush();
        }
    }

    bool isConnected() const { return m_socket.state() == QLocalSocket::ConnectedState; }
    bool isSubscribed() const { return m_isSubscribed; }
    void stopReading() { m_socket.setReadBufferSize(1); }
    void readAgain()
    {
        m_socket.setReadBufferSize(0);
        read();
    }
    qint64 received() const { return m_received; }

    /// The lowest of the rounds that the printers' last lines are of.
    int lowestRound() const { return *std::min_element(m_rounds.begin(), m_rounds.end()); }

    std::vector<QJsonObject> readings() const
    {
        std::vector<QJsonObject> readings;
        for (const QByteArray& line : m_lines)
            readings.push_back(
                QJsonDocument::fromJson(line)[QStringLiteral("params")][QStringLiteral("reading")]
                    .toObject());
        return readings;
    }

private:
    void read()
    {
        while (m_socket.canReadLine())
            take(m_socket.readLine());
        m_onLines();
    }

    void take(const QByteArray& line)
    {
        const int printer = numberAfter(line, R"("serialNumber":"SN)");
        const int round = numberAfter(line, R"("firmwareVersion":")");
        if (printer < 0 || printer >= printerCount || round < 0) {
            m_isSubscribed = m_isSubscribed || line.contains("result");
            return;
        }
        ++m_received;
        m_lines.at(static_cast<std::size_t>(printer)) = line;
        m_rounds.at(static_cast<std::size_t>(printer)) = round;
    }

    static int numberAfter(const QByteArray& line, QByteArrayView key)
    {
        const qsizetype begin = line.indexOf(key);
        return begin < 0 ? -1 : std::atoi(line.constData() + begin + key.size());
    }

    std::function<void()> m_onLines;
    QLocalSocket m_socket;
    bool m_isSubscribed = false;
    qint64 m_received = 0;
    std::array<QByteArray, printerCount> m_lines;
    std::array<int, printerCount> m_rounds{};
};

/// Prints "ready", each round once all subscribers have it, and in the end the digest of their
/// readings and the number of lines. One subscriber reads nothing until the others have round
/// `last` when `hasSlow` is set.
class Subscribers : public QObject
{
public:
    Subscribers(const QString& address, bool subscribes, int last, bool hasSlow)
        : m_last(last)
        , m_hasSlow(hasSlow)
    {
        for (int i = 0; i < subscriberCount; ++i) {
            m_all.push_back(std::make_unique<Subscriber>(address, subscribes, [this] { look(); }));
            while (subscribes && m_all.back()->isConnected() && !m_all.back()->isSubscribed())
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        if (m_hasSlow)
            m_all.front()->stopReading();
        say("ready");
    }

private:
    static void say(const QByteArray& line)
    {
        std::printf("%s\n", line.constData());
        std::fflush(stdout);
    }

    void look()
    {
        // Looking at all of them for each line would take longer than reading it.
        if (m_isLooking)
            return;
        m_isLooking = true;
        QTimer::singleShot(1, this, [this] {
            m_isLooking = false;
            lookNow();
        });
    }

    void lookNow()
    {
        int lowest = std::numeric_limits<int>::max();
        for (std::size_t i = m_hasSlow ? 1 : 0; i < m_all.size(); ++i)
            lowest = std::min(lowest, m_all.at(i)->lowestRound());
        if (lowest < m_last) {
            if (lowest > m_round)
                say("round " + QByteArray::number(m_round = lowest));
            return;
        }
        if (std::exchange(m_hasSlow, false)) {
            m_all.front()->readAgain();
            look();
            return;
        }
        qint64 received = 0;
        QByteArray digest = digestOf(m_all.front()->readings());
        for (const auto& each : m_all) {
            received += each->received();
            if (digestOf(each->readings()) != digest)
                digest = "different";
        }
        say("done " + digest + ' ' + QByteArray::number(received) + ' ' +
            QByteArray::number(m_all.front()->received()));
        QCoreApplication::quit();
    }

    std::vector<std::unique_ptr<Subscriber>> m_all;
    int m_last;
    bool m_hasSlow;
    int m_round = 0;
    bool m_isLooking = false;
};

int read(const QStringList& arguments)
{
    const Subscribers subscribers(arguments.at(2), arguments.at(3) == QStringLiteral("subscribe"),
                                  arguments.at(4).toInt(),
                                  arguments.at(5) == QStringLiteral("slow"));
    return QCoreApplication::exec();
}

/// That process, as the host sees it.
class SubscriberProcess
{
public:
    SubscriberProcess(const QString& address, bool subscribes, int last, bool hasSlow)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QCoreApplication::applicationFilePath(),
                        {QString::fromLatin1(readVerb), address,
                         subscribes ? QStringLiteral("subscribe") : QStringLiteral("listen"),
                         QString::number(last),
                         hasSlow ? QStringLiteral("slow") : QStringLiteral("fast")});
    }
    ~SubscriberProcess()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(SubscriberProcess)

    /// Runs the event loop until a line arrives that begins so; empty when none comes.
    QByteArray waitFor(const QByteArray& beginning)
    {
        QByteArray found;
        QEventLoop loop;
        const auto read = [&] {
            while (found.isEmpty() && m_process.canReadLine()) {
                const QByteArray line = m_process.readLine().trimmed();
                if (line.startsWith(beginning))
                    found = line;
            }
            if (!found.isEmpty())
                loop.quit();
        };
        const auto connection =
            QObject::connect(&m_process, &QProcess::readyReadStandardOutput, &loop, read);
        QTimer::singleShot(answerTime, &loop, &QEventLoop::quit);
        QTimer::singleShot(0, &loop, read);
        loop.exec();
        QObject::disconnect(connection);
        return found;
    }

private:
    QProcess m_process;
};

// The two sides: what a host does about a change.

class Side
{
public:
    virtual ~Side() = default;
    virtual QString address() const = 0;
    virtual void tell(const QJsonObject& reading) = 0;
};

class LibrarySide : public Side
{
public:
    LibrarySide()
        : m_endpoint(nullptr)
    {
        while (m_endpoint.serverName().isEmpty())
            QCoreApplication::processEvents();
    }
    QString address() const override { return VXIPCClient::address(m_endpoint.serverName()); }
    void tell(const QJsonObject& reading) override { Q_EMIT m_endpoint.printerChanged(reading); }

private:
    VxKit::StatusEndpoint m_endpoint;
};

/// Writes the line once, and the same bytes to each socket. Knows no slow clients and no limits.
class FloorSide : public Side
{
public:
    FloorSide()
    {
        m_server.setSocketOptions(QLocalServer::UserAccessOption);
        m_server.setMaxPendingConnections(subscriberCount);
        QObject::connect(&m_server, &QLocalServer::newConnection, &m_server, [this] {
            while (QLocalSocket* socket = m_server.nextPendingConnection())
                m_sockets.push_back(socket);
        });
        m_server.listen(QStringLiteral("vx-bench-push-%1").arg(QCoreApplication::applicationPid()));
    }
    QString address() const override { return m_server.fullServerName(); }
    void tell(const QJsonObject& reading) override
    {
        const QByteArray line =
            QByteArrayLiteral(
                R"({"jsonrpc":"2.0","method":"printerChanged","params":{"reading":)") +
            QJsonDocument(reading).toJson(QJsonDocument::Compact) + "}}\n";
        for (QLocalSocket* socket : m_sockets)
            socket->write(line);
    }

private:
    QLocalServer m_server;
    std::vector<QLocalSocket*> m_sockets;
};

// The host.

/// Every change is an event of its own, as the reports of the printers' threads are. All change at
/// once, and the readings are told as the service tells those of a controller.
class Printers : public QObject
{
public:
    explicit Printers(Side& side)
        : m_side(side)
        , m_changes([this](const QString& name) { tell(name); }, this)
    {
        for (int printer = 0; printer < printerCount; ++printer) {
            m_readings.push_back(makeReading(printer, 0));
            m_places.insert(m_readings.back().name(), m_readings.size() - 1);
        }
    }

    void changeAll(int round)
    {
        for (VxKit::PrinterReading& reading : m_readings) {
            QMetaObject::invokeMethod(
                this, [this, &reading, round] { change(reading, round); }, Qt::QueuedConnection);
        }
    }

    std::vector<QJsonObject> json() const
    {
        std::vector<QJsonObject> all;
        for (const VxKit::PrinterReading& reading : m_readings)
            all.push_back(reading.toJson());
        return all;
    }

private:
    void change(VxKit::PrinterReading& reading, int round)
    {
        reading.setFirmwareVersion(QString::number(round));
        reading.setStatusCode(round % 7);
        m_changes.add(reading.name());
    }

    void tell(const QString& name) { m_side.tell(m_readings.at(m_places.value(name)).toJson()); }

    Side& m_side;
    VxKit::ChangeQueue m_changes;
    std::vector<VxKit::PrinterReading> m_readings;
    QHash<QString, std::size_t> m_places;
};

/// Asks for an event every millisecond, and measures the processor time of the thread between two
/// of them: for so long other events wait, whatever else the machine does.
class Probe : public QObject
{
public:
    Probe()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        connect(&m_timer, &QTimer::timeout, this, [this] {
            const double now = benchmark_support::processorTime();
            m_stretches.push_back((now - std::exchange(m_last, now)) / 1000);
        });
        m_timer.start(1ms);
    }

    void reset()
    {
        m_stretches.clear();
        m_last = benchmark_support::processorTime();
    }
    /// Milliseconds.
    double at(double share) const
    {
        return m_stretches.empty() ? std::numeric_limits<double>::quiet_NaN()
                                   : benchmark_support::quantile(m_stretches, share);
    }

private:
    QTimer m_timer;
    double m_last = benchmark_support::processorTime();
    std::vector<double> m_stretches;
};

/// MiB of this process.
double residentMemory()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return std::numeric_limits<double>::quiet_NaN();
    constexpr double pagesPerMebibyte = 256;
    return file.readAll().split(' ').value(1).toDouble() / pagesPerMebibyte;
}

// Processor time for each notification, against the floor.

benchmark_support::Samples notificationTimes;

void notifications(benchmark::State& state)
{
    LibrarySide library;
    FloorSide floor;
    constexpr int never = std::numeric_limits<int>::max();
    SubscriberProcess librarySubscribers(library.address(), true, never, false);
    SubscriberProcess floorSubscribers(floor.address(), false, never, false);
    Printers libraryPrinters(library);
    Printers floorPrinters(floor);
    if (librarySubscribers.waitFor("ready").isEmpty() ||
        floorSubscribers.waitFor("ready").isEmpty()) {
        state.SkipWithError("the subscribers do not start");
        return;
    }
    benchmark_support::Samples times;
    benchmark_support::Turns turns;
    int round = 0;
    bool isRight = true;
    const auto takeBlock = [&](Printers& printers, SubscriberProcess& subscribers,
                               std::vector<double>& into) {
        for (int i = 1; i <= roundsPerBlock; ++i) {
            const double begin = benchmark_support::processorTime();
            printers.changeAll(round + i);
            isRight =
                isRight && !subscribers.waitFor("round " + QByteArray::number(round + i)).isEmpty();
            const double time = benchmark_support::processorTime() - begin;
            into.push_back(time / (printerCount * subscriberCount));
        }
    };
    // The first rounds find cold caches.
    for ([[maybe_unused]] auto iteration : state) {
        turns.take([&] { takeBlock(libraryPrinters, librarySubscribers, times.library); },
                   [&] { takeBlock(floorPrinters, floorSubscribers, times.floor); });
        round += roundsPerBlock;
        if (!isRight) {
            state.SkipWithError("a notification was lost");
            return;
        }
    }
    state.counters["library_us"] = benchmark_support::median(times.library);
    state.counters["floor_us"] = benchmark_support::median(times.floor);
    state.counters["over_floor"] = times.ratio();
    notificationTimes.append(times);
}

// The measured load, for twenty seconds.

double longestBlocked = std::numeric_limits<double>::quiet_NaN();
double growth = std::numeric_limits<double>::quiet_NaN();

void steady(benchmark::State& state)
{
    for ([[maybe_unused]] auto iteration : state) {
        LibrarySide library;
        SubscriberProcess subscribers(library.address(), true, steadyRounds, true);
        Printers printers(library);
        if (subscribers.waitFor("ready").isEmpty()) {
            state.SkipWithError("the subscribers do not start");
            return;
        }
        Probe probe;
        QTimer clock;
        clock.setTimerType(Qt::PreciseTimer);
        int round = 0;
        double memory = 0;
        double processor = 0;
        QElapsedTimer elapsed;
        QObject::connect(&clock, &QTimer::timeout, &clock, [&] {
            if (round == warmUpRounds) {
                probe.reset();
                memory = residentMemory();
                processor = benchmark_support::processorTime();
                elapsed.start();
            }
            if (round == steadyRounds) {
                clock.stop();
                return;
            }
            printers.changeAll(++round);
        });
        clock.start(changeInterval);
        const QList<QByteArray> done = subscribers.waitFor("done").split(' ');
        const double share = (benchmark_support::processorTime() - processor) / 1000.0 /
                             static_cast<double>(elapsed.elapsed());
        if (done.value(1) != digestOf(printers.json())) {
            state.SkipWithError("a subscriber did not end with the right state");
            return;
        }
        constexpr double changes =
            static_cast<double>(steadyRounds) * printerCount * subscriberCount;
        state.counters["longest_blocked_ms"] = probe.at(1);
        state.counters["p99_blocked_ms"] = probe.at(0.99);
        state.counters["growth_MiB"] = residentMemory() - memory;
        state.counters["host_cpu_share"] = share;
        state.counters["sent_share"] = done.value(2).toDouble() / changes;
        state.counters["sent_share_slow"] = done.value(3).toDouble() * subscriberCount / changes;
        longestBlocked = std::fmax(longestBlocked, probe.at(1));
        growth = std::fmax(growth, residentMemory() - memory);
    }
}

BENCHMARK(notifications)->Iterations(blocks)->Unit(benchmark::kMillisecond);
BENCHMARK(steady)->Iterations(1)->Unit(benchmark::kMillisecond);

void enterLimits(benchmark_support::Limits& limits)
{
    limits.atMost("processor time a notification, over writing the same bytes to plain sockets",
                  notificationTimes.ratio(), floorLimit, "");
    limits.atMost("longest that the host's other events waited", longestBlocked, blockedLimit,
                  " ms");
    limits.atMost("growth of the host's memory", growth, growthLimit, " MiB");
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc == 6 && std::string(argv[1]) == readVerb)
        return read(QCoreApplication::arguments());
    return benchmark_support::run(argc, argv, enterLimits);
}
