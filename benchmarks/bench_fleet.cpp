// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A fleet of agents that publish to a broker, in one process: either with the agent's own client,
// topics and readings, or the least by hand that sends the same messages. bench_fleet.py starts the
// brokers and this program, and compares.
#include "changing_reading.h"

#include <broker_url.h>
#include <mqtt_client.h>
#include <topics.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QHash>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTimer>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include <mosquitto.h>
#include <mqtt_protocol.h>
#include <poll.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

using Clock = std::chrono::steady_clock;

/// As many messages may be unacknowledged as with the agent.
constexpr int mostOnTheirWay = 16;
/// Every tenth change is one of the status, and has an event.
constexpr int changesForAnEvent = 10;
constexpr auto housekeeping = 1s;
constexpr auto tick = 5ms;
/// It ends what hangs.
constexpr auto patience = 300s;

double secondsOf(Clock::duration time)
{
    return std::chrono::duration<double>(time).count();
}

double cpuOfThisThread()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

struct Options
{
    QList<BrokerAddress> brokers;
    QString caFile;
    QString username;
    QString passwordFile;
    bool isForNats = false;
    int agents = 0;
    int printers = 0; ///< of an agent
    double interval = 0;
    double seconds = 0;
    QStringList processes; ///< of the brokers
};

/// What brokers have used so far.
struct BrokerUse
{
    double cpuSeconds = 0;
    double residentMiB = 0;
    double writtenMiB = 0;
};

QByteArray fileContent(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

double valueAfter(const QByteArray& text, const QByteArray& key)
{
    const qsizetype begin = text.indexOf(key);
    if (begin < 0)
        return 0;
    const QByteArray rest = text.sliced(begin + key.size()).trimmed();
    return rest.left(std::max<qsizetype>(0, rest.indexOf('\n'))).split(' ').first().toDouble();
}

BrokerUse useOf(const QStringList& processes)
{
    constexpr double kibibyte = 1024;
    constexpr qsizetype userTime = 11; // counted from behind the name
    BrokerUse use;
    for (const QString& process : processes) {
        const QString folder = QStringLiteral("/proc/%1/").arg(process);
        const QByteArray stat = fileContent(folder + QStringLiteral("stat"));
        const QList<QByteArray> numbers = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
        use.cpuSeconds +=
            (numbers.value(userTime).toDouble() + numbers.value(userTime + 1).toDouble()) /
            static_cast<double>(sysconf(_SC_CLK_TCK));
        use.residentMiB +=
            valueAfter(fileContent(folder + QStringLiteral("status")), "VmRSS:") / kibibyte;
        use.writtenMiB += valueAfter(fileContent(folder + QStringLiteral("io")), "\nwrite_bytes:") /
                          kibibyte / kibibyte;
    }
    return use;
}

/// Everything that is published: the same for both ways.
class Fleet
{
public:
    explicit Fleet(const Options& options)
        : m_options(options)
        , m_sentAt(static_cast<std::size_t>(printers()))
    {
        const auto escaping = options.isForNats ? topics::Escaping::Nats : topics::Escaping::Usual;
        for (int agent = 0; agent < options.agents; ++agent) {
            m_topics.emplace_back(QStringLiteral("plant-1"), QStringLiteral("pc-%1").arg(agent),
                                  escaping);
            for (int i = 0; i < options.printers; ++i)
                m_numbers.insert(topicOf(agent * options.printers + i).toUtf8(),
                                 agent * options.printers + i);
        }
    }

    const Options& options() const { return m_options; }
    int printers() const { return m_options.agents * m_options.printers; }
    int agentOf(int printer) const { return printer / m_options.printers; }
    const topics::AgentTopics& topicsOf(int agent) const
    {
        return m_topics.at(static_cast<std::size_t>(agent));
    }
    QString topicOf(int printer) const
    {
        return topicsOf(agentOf(printer))
            .printer(QStringLiteral("Printer %1").arg(printer % m_options.printers));
    }
    /// The number of the printer that a topic is about; negative if there is none.
    int numberOf(const char* topic) const
    {
        return m_numbers.value(
            QByteArray::fromRawData(topic, static_cast<qsizetype>(std::strlen(topic))), -1);
    }

    QByteArray reading(int printer, int round) const
    {
        constexpr int rollInterval = 1000;
        const VxKit::PrinterReading reading =
            changingReading(printer % m_options.printers, round, rollInterval,
                            QStringLiteral("000000641000030000A7"));
        return QJsonDocument(reading.toJson()).toJson(QJsonDocument::Compact);
    }
    static QByteArray event(int printer, int number)
    {
        return R"({"time":"2026-01-01T12:00:00.000+00:00","severity":"error","kind":"status",)"
               R"("key":"cover_open","printer":"Printer )" +
               QByteArray::number(printer) +
               R"(","code":4,"before":"ready","session":"0d6a9f3c-6a0e-4d41-9a59-1d7b8a7f3c52",)"
               R"("seq":)" +
               QByteArray::number(number) + R"(,"historical":false})";
    }

    /// Changes come in this order, far apart in the fleet.
    int changed(qint64 change) const
    {
        constexpr qint64 stride = 7919;
        return static_cast<int>(change * stride % printers());
    }
    qint64 changesUntil(Clock::duration time) const
    {
        const double rate = printers() / m_options.interval;
        return static_cast<qint64>(std::min(secondsOf(time), m_options.seconds) * rate);
    }

    void noteSent(int printer)
    {
        m_sentAt.at(static_cast<std::size_t>(printer)) = Clock::now().time_since_epoch().count();
    }
    Clock::duration sinceSent(int printer) const
    {
        return Clock::now().time_since_epoch() -
               Clock::duration(m_sentAt.at(static_cast<std::size_t>(printer)).load());
    }

private:
    Options m_options;
    std::vector<topics::AgentTopics> m_topics;
    QHash<QByteArray, int> m_numbers;
    std::vector<std::atomic<Clock::rep>> m_sentAt;
};

struct FreeClient
{
    void operator()(mosquitto* client) const { mosquitto_destroy(client); }
};
using BareClient = std::unique_ptr<mosquitto, FreeClient>;

BareClient makeBareClient(const QByteArray& id, void* self, const Options& options)
{
    BareClient client(mosquitto_new(id.constData(), true, self));
    mosquitto_int_option(client.get(), MOSQ_OPT_PROTOCOL_VERSION, MQTT_PROTOCOL_V311);
    mosquitto_int_option(client.get(), MOSQ_OPT_TCP_NODELAY, 1);
    mosquitto_max_inflight_messages_set(client.get(), mostOnTheirWay);
    if (!options.caFile.isEmpty())
        mosquitto_tls_set(client.get(), QFile::encodeName(options.caFile).constData(), nullptr,
                          nullptr, nullptr, nullptr);
    if (!options.username.isEmpty())
        mosquitto_username_pw_set(client.get(), options.username.toUtf8().constData(),
                                  fileContent(options.passwordFile).trimmed().constData());
    return client;
}

bool connectBareClient(mosquitto* client, const BrokerAddress& broker)
{
    constexpr int keepAlive = 30;
    return mosquitto_connect(client, broker.host.toUtf8().constData(), broker.port, keepAlive) ==
           MOSQ_ERR_SUCCESS;
}

/// Reads the printers of the site as the page does, on a thread of its own.
class Reader
{
public:
    explicit Reader(const Fleet& fleet, const char* name)
        : m_fleet(fleet)
        , m_has(static_cast<std::size_t>(fleet.printers()))
        , m_client(makeBareClient(name, this, fleet.options()))
        , m_since(Clock::now())
    {
        mosquitto_connect_callback_set(m_client.get(), [](mosquitto* client, void*, int) {
            mosquitto_subscribe(client, nullptr, "vxprint/v1/plant-1/+/printer/+", 0);
        });
        mosquitto_subscribe_callback_set(m_client.get(),
                                         [](mosquitto*, void* self, int, int, const int*) {
                                             static_cast<Reader*>(self)->m_isSubscribed = true;
                                         });
        mosquitto_message_callback_set(m_client.get(),
                                       [](mosquitto*, void* self, const mosquitto_message* one) {
                                           static_cast<Reader*>(self)->take(*one);
                                       });
        connectBareClient(m_client.get(), fleet.options().brokers.last());
        m_thread = std::thread([this] { read(); });
    }
    ~Reader()
    {
        m_isEnding = true;
        m_thread.join();
        mosquitto_disconnect(m_client.get());
    }
    Q_DISABLE_COPY_MOVE(Reader)

    bool isSubscribed() const { return m_isSubscribed; }
    int printers() const { return m_printers; }
    int messages() const { return m_messages; }
    /// How long it took until it had all printers.
    double secondsForAll() const { return m_secondsForAll; }
    /// The times from publishing to here since the last call, in milliseconds, sorted.
    std::vector<double> takeDelays()
    {
        std::vector<double> result;
        {
            const std::scoped_lock lock(m_mutex);
            result.swap(m_delays);
        }
        std::ranges::sort(result);
        return result;
    }

private:
    /// libmosquitto's own loop waits with `select`, which knows no descriptors above 1023.
    void read()
    {
        mosquitto* const client = m_client.get();
        auto nextHousekeeping = Clock::now();
        while (!m_isEnding) {
            const int wanted = POLLIN | (mosquitto_want_write(client) ? POLLOUT : 0);
            pollfd polled{mosquitto_socket(client), static_cast<short>(wanted), 0};
            poll(&polled, 1, static_cast<int>(tick.count()));
            if ((polled.revents & POLLOUT) != 0)
                mosquitto_loop_write(client, 1);
            if ((polled.revents & ~POLLOUT) != 0)
                mosquitto_loop_read(client, 1);
            if (Clock::now() >= nextHousekeeping) {
                mosquitto_loop_misc(client);
                nextHousekeeping = Clock::now() + housekeeping;
            }
        }
    }

    void take(const mosquitto_message& message)
    {
        const int number = m_fleet.numberOf(message.topic);
        if (number < 0)
            return;
        ++m_messages;
        if (!message.retain) {
            const std::scoped_lock lock(m_mutex);
            m_delays.push_back(secondsOf(m_fleet.sinceSent(number)) * 1000);
        }
        if (m_has.at(static_cast<std::size_t>(number)))
            return;
        m_has.at(static_cast<std::size_t>(number)) = true;
        if (++m_printers == m_fleet.printers())
            m_secondsForAll = secondsOf(Clock::now() - m_since);
    }

    const Fleet& m_fleet;
    std::vector<bool> m_has;
    BareClient m_client;
    Clock::time_point m_since;
    std::thread m_thread;
    std::atomic<bool> m_isEnding = false;
    std::atomic<bool> m_isSubscribed = false;
    std::atomic<int> m_printers = 0;
    std::atomic<int> m_messages = 0;
    std::atomic<double> m_secondsForAll = 0;
    std::mutex m_mutex;
    std::vector<double> m_delays;
};

/// A way to publish for a whole fleet.
class Publisher
{
public:
    Publisher() = default;
    virtual ~Publisher() = default;
    Q_DISABLE_COPY_MOVE(Publisher)

    virtual void connectAll() = 0;
    virtual void change(int printer, qint64 number) = 0;
    /// Goes on for a moment.
    virtual void work() = 0;

    qint64 acknowledged() const { return m_acknowledged; }
    qint64 published() const { return m_published; }
    qint64 bytes() const { return m_bytes; }
    int connections() const { return m_connections; }

protected:
    void noteConnection() { ++m_connections; }
    void noteAcknowledged() { ++m_acknowledged; }
    void notePublished(qsizetype size)
    {
        ++m_published;
        m_bytes += size;
    }

private:
    qint64 m_acknowledged = 0;
    qint64 m_published = 0;
    qint64 m_bytes = 0;
    int m_connections = 0;
};

/// With the agent's client, topics and readings.
class AgentPublisher : public Publisher
{
public:
    explicit AgentPublisher(Fleet& fleet)
        : m_fleet(fleet)
    {
        for (int number = 0; number < fleet.options().agents; ++number)
            m_agents.push_back(std::make_unique<OneAgent>(*this, number));
    }

    void connectAll() override
    {
        for (const auto& agent : m_agents)
            agent->client.start();
    }
    void change(int printer, qint64 number) override
    {
        OneAgent& agent = *m_agents.at(static_cast<std::size_t>(m_fleet.agentOf(printer)));
        const int round = static_cast<int>(1 + number / m_fleet.printers());
        m_fleet.noteSent(printer);
        agent.send({m_fleet.topicOf(printer), m_fleet.reading(printer, round), true});
        if (number % changesForAnEvent == 0)
            agent.send({m_fleet.topicsOf(agent.number).event(),
                        Fleet::event(printer, static_cast<int>(number)), false});
    }
    void work() override { QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents); }

private:
    struct OneAgent
    {
        OneAgent(AgentPublisher& publisher, int ownNumber)
            : owner(publisher)
            , number(ownNumber)
            , client(optionsOf(publisher.m_fleet, ownNumber))
        {
            QObject::connect(&client, &MqttClient::connected, &client, [this] { greet(); });
            QObject::connect(&client, &MqttClient::delivered, &client,
                             [this] { owner.noteAcknowledged(); });
        }

        static MqttOptions optionsOf(const Fleet& fleet, int number)
        {
            const Options& given = fleet.options();
            MqttOptions options;
            options.broker = given.brokers.at(number % given.brokers.size());
            options.clientId = QStringLiteral("vxprintagent-%1").arg(number);
            options.caFile = given.caFile;
            options.username = given.username;
            options.passwordFile = given.passwordFile;
            options.will = MqttMessage{fleet.topicsOf(number).state(), "offline", true};
            return options;
        }

        void greet()
        {
            owner.noteConnection();
            const Fleet& fleet = owner.m_fleet;
            send({fleet.topicsOf(number).state(), "online", true});
            const int printers = fleet.options().printers;
            for (int i = number * printers; i < (number + 1) * printers; ++i) {
                owner.m_fleet.noteSent(i);
                send({fleet.topicOf(i), fleet.reading(i, 0), true});
            }
        }

        void send(const MqttMessage& message)
        {
            if (client.publish(message))
                owner.notePublished(message.payload.size());
        }

        AgentPublisher& owner;
        int number;
        MqttClient client;
    };

    Fleet& m_fleet;
    std::vector<std::unique_ptr<OneAgent>> m_agents;
};

/// The least that sends the same: libmosquitto, `poll`, and messages that have been made before.
class BarePublisher : public Publisher
{
public:
    explicit BarePublisher(Fleet& fleet)
        : m_fleet(fleet)
    {
        for (int number = 0; number < fleet.printers(); ++number) {
            m_printerTopics.push_back(fleet.topicOf(number).toUtf8());
            m_payloads.push_back(fleet.reading(number, 0));
        }
        for (int number = 0; number < fleet.options().agents; ++number) {
            m_agents.push_back(std::make_unique<OneAgent>());
            OneAgent& agent = *m_agents.back();
            agent.owner = this;
            agent.number = number;
            agent.state = fleet.topicsOf(number).state().toUtf8();
            agent.event = fleet.topicsOf(number).event().toUtf8();
        }
        m_polled.resize(m_agents.size());
    }

    void connectAll() override
    {
        m_isRunning = true;
        for (const auto& agent : m_agents) {
            const Options& options = m_fleet.options();
            agent->client = makeBareClient("vxprintagent-" + QByteArray::number(agent->number),
                                           agent.get(), options);
            mosquitto* const client = agent->client.get();
            constexpr QByteArrayView will = "offline";
            mosquitto_will_set(client, agent->state.constData(), static_cast<int>(will.size()),
                               will.data(), 1, true);
            mosquitto_connect_callback_set(client, [](mosquitto*, void* self, int reason) {
                if (reason == 0)
                    static_cast<OneAgent*>(self)->owner->greet(*static_cast<OneAgent*>(self));
            });
            mosquitto_publish_callback_set(client, [](mosquitto*, void* self, int) {
                static_cast<OneAgent*>(self)->owner->noteAcknowledged();
            });
            connectBareClient(client, options.brokers.at(agent->number % options.brokers.size()));
        }
    }
    void change(int printer, qint64 number) override
    {
        const OneAgent& agent = *m_agents.at(static_cast<std::size_t>(m_fleet.agentOf(printer)));
        const auto index = static_cast<std::size_t>(printer);
        m_fleet.noteSent(printer);
        send(agent, m_printerTopics.at(index), m_payloads.at(index), true);
        if (number % changesForAnEvent == 0)
            send(agent, agent.event, Fleet::event(printer, static_cast<int>(number)), false);
    }
    void work() override
    {
        if (!m_isRunning) {
            std::this_thread::sleep_for(tick);
            return;
        }
        for (std::size_t i = 0; i < m_agents.size(); ++i) {
            mosquitto* const client = m_agents.at(i)->client.get();
            const int wanted = POLLIN | (mosquitto_want_write(client) ? POLLOUT : 0);
            m_polled.at(i) = {mosquitto_socket(client), static_cast<short>(wanted), 0};
        }
        poll(m_polled.data(), m_polled.size(), static_cast<int>(tick.count()));
        const bool isDue = Clock::now() >= m_nextHousekeeping;
        if (isDue)
            m_nextHousekeeping = Clock::now() + housekeeping;
        for (std::size_t i = 0; i < m_agents.size(); ++i) {
            mosquitto* const client = m_agents.at(i)->client.get();
            const int happened = m_polled.at(i).revents;
            int result = MOSQ_ERR_SUCCESS;
            if ((happened & POLLOUT) != 0)
                result = mosquitto_loop_write(client, 1);
            if (result == MOSQ_ERR_SUCCESS && (happened & ~POLLOUT) != 0)
                result = mosquitto_loop_read(client, 1);
            if (result == MOSQ_ERR_SUCCESS && isDue)
                result = mosquitto_loop_misc(client);
            if (result != MOSQ_ERR_SUCCESS || (isDue && mosquitto_socket(client) < 0))
                mosquitto_reconnect(client);
        }
    }

private:
    struct OneAgent
    {
        BarePublisher* owner = nullptr;
        int number = 0;
        QByteArray state;
        QByteArray event;
        BareClient client;
    };

    void greet(const OneAgent& agent)
    {
        noteConnection();
        send(agent, agent.state, "online", true);
        const int printers = m_fleet.options().printers;
        for (int i = agent.number * printers; i < (agent.number + 1) * printers; ++i) {
            m_fleet.noteSent(i);
            send(agent, m_printerTopics.at(static_cast<std::size_t>(i)),
                 m_payloads.at(static_cast<std::size_t>(i)), true);
        }
    }

    void send(const OneAgent& agent, const QByteArray& topic, const QByteArray& payload,
              bool isRetained)
    {
        const int result =
            mosquitto_publish(agent.client.get(), nullptr, topic.constData(),
                              static_cast<int>(payload.size()), payload.constData(), 1, isRetained);
        if (result == MOSQ_ERR_SUCCESS)
            notePublished(payload.size());
    }

    Fleet& m_fleet;
    std::vector<QByteArray> m_printerTopics;
    std::vector<QByteArray> m_payloads;
    std::vector<std::unique_ptr<OneAgent>> m_agents;
    std::vector<pollfd> m_polled;
    bool m_isRunning = false;
    Clock::time_point m_nextHousekeeping;
};

double quantile(const std::vector<double>& sorted, double part)
{
    if (sorted.empty())
        return -1;
    const auto last = static_cast<double>(sorted.size() - 1);
    return sorted.at(static_cast<std::size_t>(part * last));
}

/// What a part of the story has taken.
class Stretch
{
public:
    Stretch(const Publisher& publisher, const QStringList& processes)
        : m_publisher(publisher)
        , m_processes(processes)
        , m_began(Clock::now())
        , m_cpu(cpuOfThisThread())
        , m_use(useOf(processes))
        , m_acknowledged(publisher.acknowledged())
        , m_bytes(publisher.bytes())
    {}

    QJsonObject end(const std::vector<double>& delays) const
    {
        const BrokerUse use = useOf(m_processes);
        const double seconds = secondsOf(Clock::now() - m_began);
        const auto messages = static_cast<double>(m_publisher.acknowledged() - m_acknowledged);
        return {{QStringLiteral("seconds"), seconds},
                {QStringLiteral("cpu"), cpuOfThisThread() - m_cpu},
                {QStringLiteral("messages"), messages},
                {QStringLiteral("bytes"), static_cast<double>(m_publisher.bytes() - m_bytes)},
                {QStringLiteral("brokerCpu"), use.cpuSeconds - m_use.cpuSeconds},
                {QStringLiteral("brokerMiB"), use.residentMiB},
                {QStringLiteral("brokerMiBBefore"), m_use.residentMiB},
                {QStringLiteral("writtenMiB"), use.writtenMiB - m_use.writtenMiB},
                {QStringLiteral("received"), static_cast<double>(delays.size())},
                {QStringLiteral("delayMedian"), quantile(delays, 0.5)},
                {QStringLiteral("delayP99"), quantile(delays, 0.99)},
                {QStringLiteral("connections"), m_publisher.connections()}};
    }

private:
    const Publisher& m_publisher;
    QStringList m_processes;
    Clock::time_point m_began;
    double m_cpu;
    BrokerUse m_use;
    qint64 m_acknowledged;
    qint64 m_bytes;
};

/// Works until the condition holds. Ends the program if it never does.
template <typename Condition>
void workUntil(Publisher& publisher, const char* what, const Condition& condition)
{
    const auto end = Clock::now() + patience;
    while (!condition()) {
        publisher.work();
        if (Clock::now() > end) {
            std::fprintf(stderr,
                         "bench_fleet: %s: not within %d s; %lld messages published, %lld "
                         "acknowledged, %d connections\n",
                         what, static_cast<int>(patience.count()),
                         static_cast<long long>(publisher.published()),
                         static_cast<long long>(publisher.acknowledged()), publisher.connections());
            std::exit(1);
        }
    }
}

QJsonObject tell(const Fleet& fleet, Publisher& publisher)
{
    const Options& options = fleet.options();
    QJsonObject result;
    Reader reader(fleet, "reader");
    workUntil(publisher, "subscribing", [&] { return reader.isSubscribed(); });

    const Stretch storm(publisher, options.processes);
    publisher.connectAll();
    const qint64 greetings = qint64(options.agents) * (1 + options.printers);
    workUntil(publisher, "the storm", [&] {
        return publisher.acknowledged() >= greetings && reader.printers() == fleet.printers();
    });
    result[QStringLiteral("storm")] = storm.end(reader.takeDelays());

    {
        const Reader later(fleet, "later");
        workUntil(publisher, "what is retained",
                  [&] { return later.printers() == fleet.printers(); });
        result[QStringLiteral("retainedSeconds")] = later.secondsForAll();
    }

    const int received = reader.messages();
    const qint64 publishedBefore = publisher.published();
    reader.takeDelays();
    const Stretch steady(publisher, options.processes);
    const auto began = Clock::now();
    qint64 changes = 0;
    workUntil(publisher, "the changes", [&] {
        const auto passed = Clock::now() - began;
        for (const qint64 due = fleet.changesUntil(passed); changes < due; ++changes)
            publisher.change(fleet.changed(changes), changes);
        return secondsOf(passed) >= options.seconds;
    });
    workUntil(publisher, "the last changes", [&] {
        return publisher.acknowledged() >= publisher.published() &&
               reader.messages() - received >= changes;
    });
    QJsonObject values = steady.end(reader.takeDelays());
    values[QStringLiteral("changes")] = static_cast<double>(changes);
    values[QStringLiteral("published")] =
        static_cast<double>(publisher.published() - publishedBefore);
    result[QStringLiteral("steady")] = values;
    return result;
}

Options parsed(const QCommandLineParser& parser)
{
    Options options;
    for (const QStringList urls = parser.values(QStringLiteral("broker"));
         const QString& url : urls) {
        QString reason;
        if (const auto broker = parseBrokerUrl(url, &reason))
            options.brokers.append(*broker);
        else
            qFatal("%s: %s", qPrintable(url), qPrintable(reason));
    }
    options.caFile = parser.value(QStringLiteral("ca"));
    options.username = parser.value(QStringLiteral("user"));
    options.passwordFile = parser.value(QStringLiteral("password-file"));
    options.isForNats = parser.isSet(QStringLiteral("nats-topics"));
    options.agents = parser.value(QStringLiteral("agents")).toInt();
    options.printers = parser.value(QStringLiteral("printers")).toInt();
    options.interval = parser.value(QStringLiteral("interval")).toDouble();
    options.seconds = parser.value(QStringLiteral("seconds")).toDouble();
    options.processes = parser.values(QStringLiteral("process"));
    return options;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addOptions({
        {QStringLiteral("broker"), QStringLiteral("a broker; agents take turns"),
         QStringLiteral("url")},
        {QStringLiteral("ca"), QStringLiteral("its authority"), QStringLiteral("file")},
        {QStringLiteral("user"), QStringLiteral("the user"), QStringLiteral("name")},
        {QStringLiteral("password-file"), QStringLiteral("the password"), QStringLiteral("file")},
        {QStringLiteral("nats-topics"), QStringLiteral("topics that NATS takes")},
        {QStringLiteral("agents"), QStringLiteral("agents"), QStringLiteral("number"),
         QStringLiteral("1000")},
        {QStringLiteral("printers"), QStringLiteral("printers of an agent"),
         QStringLiteral("number"), QStringLiteral("10")},
        {QStringLiteral("interval"), QStringLiteral("between two changes of a printer"),
         QStringLiteral("seconds"), QStringLiteral("30")},
        {QStringLiteral("seconds"), QStringLiteral("how long printers change"),
         QStringLiteral("seconds"), QStringLiteral("60")},
        {QStringLiteral("process"), QStringLiteral("a broker's process"), QStringLiteral("id")},
        {QStringLiteral("by-hand"), QStringLiteral("the least by hand instead of agents")},
    });
    parser.process(app);
    rlimit descriptors{};
    if (getrlimit(RLIMIT_NOFILE, &descriptors) == 0) {
        descriptors.rlim_cur = descriptors.rlim_max;
        setrlimit(RLIMIT_NOFILE, &descriptors);
    }
    mosquitto_lib_init();
    Fleet fleet(parsed(parser));
    std::unique_ptr<Publisher> publisher;
    if (parser.isSet(QStringLiteral("by-hand")))
        publisher = std::make_unique<BarePublisher>(fleet);
    else
        publisher = std::make_unique<AgentPublisher>(fleet);
    // So that the event loop never waits longer.
    QTimer timer;
    timer.start(tick);
    const QByteArray line = QJsonDocument(tell(fleet, *publisher)).toJson(QJsonDocument::Compact);
    std::puts(line.constData());
    publisher.reset();
    mosquitto_lib_cleanup();
    return 0;
}
