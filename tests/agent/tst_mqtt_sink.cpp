// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// What the agent publishes on a real broker.
#include "controller_test.h"
#include "gated_proxy.h"
#include "mosquitto_broker.h"
#include "site_reader.h"

#include <agent.h>
#include <agent_log.h>
#include <mqtt_sink.h>

#include <printer_discovery.h>
#include <printer_events.h>
#include <printer_status_controller.h>

#include <QtCore/QRandomGenerator>

#include <malloc.h>

namespace {

class RecordedLog : public AgentLog
{
public:
    void write(Level level, const QString& text) override
    {
        (level == Level::Information ? information : complaints).append(text);
    }

    QStringList information;
    QStringList complaints;
};

/// A reading without what changes with every second.
QJsonObject lasting(QJsonObject reading)
{
    for (const char* slot : {"supply", "ribbon1", "ribbon2"}) {
        const QString key = QString::fromLatin1(slot);
        QJsonObject level = reading[key].toObject();
        if (level.isEmpty())
            continue;
        level.remove(QStringLiteral("estimatedSecondsRemaining"));
        reading[key] = level;
    }
    return reading;
}

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
/// The sanitizers have an allocator of their own, which keeps what is released.
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif

/// The bytes that are allocated in this process.
qint64 heapInUse()
{
    const struct mallinfo2 heap = mallinfo2();
    return static_cast<qint64>(heap.uordblks) + static_cast<qint64>(heap.hblkhd);
}

/// What tells events apart for a person.
QString textOf(const QJsonObject& event)
{
    return QStringLiteral("%1 %2").arg(event[QStringLiteral("printer")].toString(),
                                       event[QStringLiteral("key")].toString());
}

} // namespace

class MqttSinkTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() override;
    void cleanup() override;

    void readingsAreRetained_data();
    void readingsAreRetained();
    void aChangeIsPublished();
    void eventsAreWhatTheKitTells();
    void whatTheBrokerHasLostIsPublishedAgain();
    void aPrinterThatIsGoneLeavesNothing();
    void aRenamedPrinterLeavesItsOldTopic();
    void aPrinterThatWentWhileTheAgentWasOffLeavesNothing();
    void namesCannotLeaveTheirTopic();
    void goodbyeSaysOffline();
    void theWillSaysOffline();
    void readingsCoalesceWhileTheBrokerIsAway();
    void readingsComeBeforeEventsAndLateEventsAreHistorical();
    void eventsOfAnEarlierRunAreDelivered();
    void discoveryMessagesDescribeAPrinter();
    void discoveryMessagesOfAGonePrinterAreRemoved();
    void aBrokerThatIsNotThereIsSaidOnce();
    void nothingSecretIsSaid();
    void fiftyKillsOfTheBrokerLoseNothing();
    void aDayWithoutTheBrokerStaysInItsBounds();
    void clientNamesDiffer();

private:
    void add(const QString& name);
    void startAgent();
    void endAgent();
    QString topicOf(const QString& name) const
    {
        return topics::AgentTopics(m_config.site, m_config.host).printer(name);
    }
    QString stateTopic() const { return topics::AgentTopics(m_config.site, m_config.host).state(); }
    /// Whether the broker has retained exactly what the agent's readings are.
    bool isPublished(const SiteReader& reader) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MosquittoBroker> m_broker;
    AgentConfig m_config;
    RecordedLog m_log;
    std::unique_ptr<Agent> m_agent;
};

void MqttSinkTest::initTestCase()
{
    if (!MosquittoBroker::isInstalled())
        QSKIP("needs mosquitto");
}

void MqttSinkTest::init()
{
    MachineTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    // It passes on at once what it acknowledges: what it kept for a reader would die with it.
    m_broker =
        std::make_unique<MosquittoBroker>(QStringList{QStringLiteral("max_inflight_messages 0")});
    QVERIFY2(m_broker->start(), qPrintable(m_broker->output()));
    m_config = {};
    m_config.site = QStringLiteral("Bremen");
    m_config.host = QStringLiteral("pack/3");
    m_config.catalogue = QStringLiteral(VX_SAMPLE_DATABASE);
    MqttConfig& mqtt = m_config.mqtt.emplace();
    mqtt.broker = {QStringLiteral("127.0.0.1"), m_broker->port(), false};
    mqtt.queueFolder = m_folder->filePath(QStringLiteral("queue"));
    mqtt.longestDelay = 20ms;
    m_log.information.clear();
    m_log.complaints.clear();
}

void MqttSinkTest::cleanup()
{
    endAgent();
    m_broker.reset();
    MachineTest::cleanup();
}

void MqttSinkTest::add(const QString& name)
{
    machine().addPrinter({.name = name, .driver = QStringLiteral("Stratamark AlderMax")});
    machine().publish(name, {PrinterValue::text("StatusCode", "1"),
                             PrinterValue::text("SupplyIdentifier", "000000641000030000A7"),
                             PrinterValue::number("Mileage", 30480)});
}

void MqttSinkTest::startAgent()
{
    m_agent = std::make_unique<Agent>(m_config, m_log);
    m_agent->start();
}

void MqttSinkTest::endAgent()
{
    m_agent.reset();
}

bool MqttSinkTest::isPublished(const SiteReader& reader) const
{
    if (reader.retained.value(stateTopic()) != "online")
        return false;
    for (const QList<VxKit::PrinterReading> all = m_agent->readings().readings();
         const VxKit::PrinterReading& reading : all) {
        const QString topic = topicOf(reading.name());
        const bool isGone = reading.presence() == VxKit::PrinterReading::Presence::Gone;
        if (isGone ? reader.retained.contains(topic)
                   : lasting(reader.reading(topic)) != lasting(reading.toJson()))
            return false;
    }
    return true;
}

void MqttSinkTest::readingsAreRetained_data()
{
    QTest::addColumn<bool>("isMqtt5");
    QTest::newRow("3.1.1") << false;
    QTest::newRow("5") << true;
}

void MqttSinkTest::readingsAreRetained()
{
    QFETCH(const bool, isMqtt5);
    if (isMqtt5)
        m_config.mqtt->protocol = MqttConfig::Protocol::Mqtt5;
    add(QStringLiteral("Shipping"));
    add(QStringLiteral("Packing Line 1"));
    startAgent();
    {
        const SiteReader live(m_broker->port());
        QTRY_VERIFY(
            live.reading(topicOf(QStringLiteral("Shipping")))[QStringLiteral("statusCode")] == 1);
        QTRY_VERIFY(isPublished(live));
    }
    // Somebody who comes later sees the same.
    const SiteReader reader(m_broker->port());
    QTRY_VERIFY(isPublished(reader));
    QCOMPARE(reader.retained.size(), 3);
    QTRY_COMPARE(reader
                     .reading(topicOf(QStringLiteral(
                         "Shipping")))[QStringLiteral("supply")][QStringLiteral("ratio")]
                     .toDouble(),
                 1.0);
    const QJsonObject reading = reader.reading(topicOf(QStringLiteral("Shipping")));
    QCOMPARE(reading[QStringLiteral("name")].toString(), QStringLiteral("Shipping"));
    QCOMPARE(reading[QStringLiteral("ribbon1")][QStringLiteral("ratio")],
             QJsonValue(QJsonValue::Null));
}

void MqttSinkTest::aChangeIsPublished()
{
    const QString name = QStringLiteral("Shipping");
    add(name);
    startAgent();
    const SiteReader reader(m_broker->port());
    QTRY_VERIFY(isPublished(reader) &&
                reader.reading(topicOf(name))[QStringLiteral("statusCode")] == 1);
    machine().publish(name, PrinterValue::text("StatusCode", "4"));
    QTRY_COMPARE(reader.reading(topicOf(name))[QStringLiteral("statusKey")].toString(),
                 QStringLiteral("cover_open"));
    QTRY_VERIFY(isPublished(reader));
}

void MqttSinkTest::eventsAreWhatTheKitTells()
{
    const QString name = QStringLiteral("Shipping");
    add(name);
    const SiteReader reader(m_broker->port());
    QTRY_VERIFY(reader.isReading);
    startAgent();
    QTRY_VERIFY(reader.reading(topicOf(name))[QStringLiteral("statusCode")] == 1);
    machine().publish(name, PrinterValue::text("StatusCode", "4"));
    QTRY_VERIFY(!reader.events().isEmpty() &&
                reader.events().last()[QStringLiteral("key")] == QStringLiteral("cover_open"));
    const QList<QJsonObject> events = reader.events();
    for (qsizetype i = 0; i < events.size(); ++i) {
        const QJsonObject& event = events.at(i);
        QCOMPARE(event[QStringLiteral("seq")].toInt(), static_cast<int>(i) + 1);
        QCOMPARE(event[QStringLiteral("session")], events.first()[QStringLiteral("session")]);
        QCOMPARE(event[QStringLiteral("historical")], QJsonValue(false));
        QVERIFY(VxKit::PrinterEvent::fromLine(QJsonDocument(event).toJson(QJsonDocument::Compact)));
    }
    for (const MqttMessage& message : reader.messages)
        QVERIFY(!message.topic.endsWith(QLatin1String("/event")) || !message.isRetained);
}

void MqttSinkTest::whatTheBrokerHasLostIsPublishedAgain()
{
    m_config.mqtt->refresh = 50ms;
    m_config.mqtt->discoveryPrefix = QStringLiteral("hub");
    add(QStringLiteral("Shipping"));
    startAgent();
    const SiteReader reader(m_broker->port());
    QTRY_VERIFY(isPublished(reader));
    const QStringList topics = reader.retained.keys();
    QVERIFY(topics.size() > 2);
    // Nothing changes, and the connection stays.
    MqttClient other(SiteReader::optionsFor(m_broker->port()));
    other.start();
    QTRY_VERIFY(other.isConnected());
    for (const QString& topic : topics) {
        QVERIFY(other.publish({topic, "old", true}));
        QTRY_VERIFY(std::ranges::any_of(reader.messages, [&](const MqttMessage& message) {
            return message.topic == topic && message.payload == "old";
        }));
        QTRY_VERIFY(reader.retained.value(topic) != "old");
    }
    QTRY_VERIFY(isPublished(reader));
}

void MqttSinkTest::aPrinterThatIsGoneLeavesNothing()
{
    add(QStringLiteral("Shipping"));
    add(QStringLiteral("Packing"));
    startAgent();
    const SiteReader reader(m_broker->port());
    QTRY_VERIFY(isPublished(reader) && reader.retained.size() == 3);
    machine().removePrinter(QStringLiteral("Packing"));
    QTRY_VERIFY(!reader.retained.contains(topicOf(QStringLiteral("Packing"))));
    const SiteReader later(m_broker->port());
    QTRY_VERIFY(later.retained.contains(topicOf(QStringLiteral("Shipping"))));
    QVERIFY(!later.retained.contains(topicOf(QStringLiteral("Packing"))));
    // And it is published again when it is back, also if it was away so briefly that the spooler's
    // list never lacked it.
    add(QStringLiteral("Packing"));
    QTRY_VERIFY(reader.retained.contains(topicOf(QStringLiteral("Packing"))));
    QTRY_VERIFY(isPublished(reader));
}

void MqttSinkTest::aRenamedPrinterLeavesItsOldTopic()
{
    add(QStringLiteral("Shipping"));
    startAgent();
    const SiteReader reader(m_broker->port());
    QTRY_VERIFY(isPublished(reader));
    machine().renamePrinter(QStringLiteral("Shipping"), QStringLiteral("Outbound"));
    QTRY_VERIFY(reader.retained.contains(topicOf(QStringLiteral("Outbound"))));
    QTRY_VERIFY(!reader.retained.contains(topicOf(QStringLiteral("Shipping"))));
}

void MqttSinkTest::aPrinterThatWentWhileTheAgentWasOffLeavesNothing()
{
    add(QStringLiteral("Shipping"));
    add(QStringLiteral("Packing"));
    startAgent();
    const SiteReader reader(m_broker->port());
    QTRY_VERIFY(isPublished(reader) && reader.retained.size() == 3);
    endAgent();
    machine().removePrinter(QStringLiteral("Packing"));
    startAgent();
    QTRY_VERIFY(!reader.retained.contains(topicOf(QStringLiteral("Packing"))));
    QTRY_VERIFY(isPublished(reader));
}

void MqttSinkTest::namesCannotLeaveTheirTopic()
{
    const QStringList names{QStringLiteral("../state"),
                            QStringLiteral("a/b/#"),
                            QStringLiteral("+"),
                            QStringLiteral("<script>alert(1)</script>"),
                            QStringLiteral("100 %"),
                            QStringLiteral("line\nfeed"),
                            QString::fromUtf8("包装线 🖨")};
    for (const QString& name : names)
        add(name);
    startAgent();
    const SiteReader reader(m_broker->port());
    QTRY_COMPARE(reader.retained.size(), names.size() + 1);
    QTRY_VERIFY(isPublished(reader));
    for (const QString& topic : reader.retained.keys()) {
        const auto place = topics::placeOf(topic);
        QVERIFY2(place, qPrintable(topic));
        QCOMPARE(place->host, m_config.host);
        QVERIFY(place->printer.isEmpty() || names.contains(place->printer));
    }
}

void MqttSinkTest::goodbyeSaysOffline()
{
    add(QStringLiteral("Shipping"));
    startAgent();
    const SiteReader reader(m_broker->port());
    QTRY_VERIFY(isPublished(reader));
    bool isStopped = false;
    connect(m_agent.get(), &Agent::stopped, this, [&isStopped] { isStopped = true; });
    m_agent->stop();
    QTRY_VERIFY(isStopped);
    QTRY_COMPARE(reader.retained.value(stateTopic()), QByteArray("offline"));
    QVERIFY(reader.retained.contains(topicOf(QStringLiteral("Shipping"))));
}

void MqttSinkTest::theWillSaysOffline()
{
    startAgent();
    const SiteReader reader(m_broker->port());
    QTRY_COMPARE(reader.retained.value(stateTopic()), QByteArray("online"));
    endAgent();
    QTRY_COMPARE(reader.retained.value(stateTopic()), QByteArray("offline"));
}

void MqttSinkTest::readingsCoalesceWhileTheBrokerIsAway()
{
    const QString name = QStringLiteral("Shipping");
    add(name);
    startAgent();
    {
        const SiteReader reader(m_broker->port());
        QTRY_VERIFY(isPublished(reader) &&
                    reader.reading(topicOf(name))[QStringLiteral("statusCode")] == 1);
    }
    m_broker->kill();
    QTRY_VERIFY(m_log.complaints.join(u'\n').contains(QStringLiteral("closed the connection")) ||
                m_log.complaints.join(u'\n').contains(QStringLiteral("cannot be reached")));
    int changes = 0;
    const auto connection = connect(&m_agent->readings(), &VxKit::PrinterReadings::changed, this,
                                    [&changes] { ++changes; });
    for (quint32 mileage = 30000; changes < 200; mileage -= 10) {
        const int before = changes;
        machine().publish(name, PrinterValue::number("Mileage", mileage));
        QTRY_VERIFY(changes > before);
    }
    disconnect(connection);
    QVERIFY2(m_broker->start(), qPrintable(m_broker->output()));
    const SiteReader reader(m_broker->port());
    QTRY_VERIFY(isPublished(reader));
    const auto published = std::ranges::count(reader.messages, topicOf(name), &MqttMessage::topic);
    QVERIFY2(published <= 2, qPrintable(QString::number(published)));
}

void MqttSinkTest::readingsComeBeforeEventsAndLateEventsAreHistorical()
{
    m_config.mqtt->historicalAfter = 0s;
    // More than may be on their way at once.
    QStringList names;
    for (int i = 0; i < 20; ++i) {
        names.append(QStringLiteral("P%1").arg(i));
        add(names.last());
    }
    m_broker->kill();
    GatedProxy proxy(m_broker->port());
    m_config.mqtt->broker.port = proxy.port();
    proxy.close();
    startAgent();
    for (const QString& name : names) {
        QTRY_COMPARE(m_agent->readings().reading(name).statusCode(), 1);
        machine().publish(name, PrinterValue::text("StatusCode", "4"));
        QTRY_COMPARE(m_agent->readings().reading(name).statusCode(), 4);
    }
    QVERIFY2(m_broker->start(), qPrintable(m_broker->output()));
    const SiteReader reader(m_broker->port());
    QTRY_VERIFY(reader.isReading);
    proxy.open();
    QTRY_VERIFY(reader.events().size() >= 40);
    QSet<QString> before;
    for (const MqttMessage& message : reader.messages) {
        if (message.topic.endsWith(QLatin1String("/event")))
            break;
        before.insert(message.topic);
    }
    for (const QString& name : names)
        QVERIFY2(before.contains(topicOf(name)), qPrintable(name));
    QVERIFY(before.contains(stateTopic()));
    for (const QJsonObject& event : reader.events())
        QCOMPARE(event[QStringLiteral("historical")], QJsonValue(true));
}

void MqttSinkTest::eventsOfAnEarlierRunAreDelivered()
{
    add(QStringLiteral("Shipping"));
    m_broker->kill();
    startAgent();
    QTRY_COMPARE(m_agent->readings().reading(QStringLiteral("Shipping")).statusCode(), 1);
    // Until they have been written.
    QTRY_VERIFY(
        QFileInfo(m_config.mqtt->queueFolder + QStringLiteral("/000000000001.events")).size() > 0);
    endAgent();
    QVERIFY2(m_broker->start(), qPrintable(m_broker->output()));
    const SiteReader reader(m_broker->port());
    QTRY_VERIFY(reader.isReading);
    startAgent();
    QSet<QString> sessions;
    QTRY_VERIFY(([&] {
        for (const QJsonObject& event : reader.events())
            sessions.insert(event[QStringLiteral("session")].toString());
        return sessions.size() == 2;
    })());
    // Each in order, and the earlier one first.
    const QList<QJsonObject> events = reader.events();
    int last = 0;
    for (qsizetype i = 0; i < events.size(); ++i) {
        const bool isNew = i > 0 && events.at(i)[QStringLiteral("session")] !=
                                        events.at(i - 1)[QStringLiteral("session")];
        last = isNew ? 0 : last;
        QCOMPARE(events.at(i)[QStringLiteral("seq")].toInt(), ++last);
    }
}

void MqttSinkTest::discoveryMessagesDescribeAPrinter()
{
    m_config.mqtt->discoveryPrefix = QStringLiteral("hub");
    add(QStringLiteral("Shipping"));
    startAgent();
    const SiteReader reader(m_broker->port());
    const auto discovery = [&reader] {
        QStringList found;
        for (const QString& topic : reader.retained.keys()) {
            if (topic.startsWith(QLatin1String("hub/")) && topic.endsWith(QLatin1String("/config")))
                found.append(topic);
        }
        return found;
    };
    QTRY_COMPARE(discovery().size(), 5); // status, problem, and three slots
    QSet<QString> identifiers;
    for (const QString& topic : discovery()) {
        const QJsonObject entity = reader.reading(topic);
        QCOMPARE(entity[QStringLiteral("state_topic")].toString(),
                 topicOf(QStringLiteral("Shipping")));
        QCOMPARE(entity[QStringLiteral("availability_topic")].toString(), stateTopic());
        QCOMPARE(entity[QStringLiteral("device")][QStringLiteral("name")].toString(),
                 QStringLiteral("Shipping"));
        QVERIFY(entity[QStringLiteral("value_template")].toString().contains(
            QStringLiteral("value_json.")));
        identifiers.insert(entity[QStringLiteral("unique_id")].toString());
    }
    QCOMPARE(identifiers.size(), 5);
}

void MqttSinkTest::discoveryMessagesOfAGonePrinterAreRemoved()
{
    m_config.mqtt->discoveryPrefix = QStringLiteral("hub");
    add(QStringLiteral("Shipping"));
    add(QStringLiteral("Packing"));
    startAgent();
    const SiteReader reader(m_broker->port());
    QTRY_COMPARE(reader.retained.size(), 1 + 2 * 6);
    machine().removePrinter(QStringLiteral("Packing"));
    QTRY_COMPARE(reader.retained.size(), 1 + 6);
    // Without them in the configuration, they go too.
    endAgent();
    m_config.mqtt->discoveryPrefix.clear();
    startAgent();
    QTRY_COMPARE(reader.retained.size(), 1 + 1);
}

void MqttSinkTest::aBrokerThatIsNotThereIsSaidOnce()
{
    add(QStringLiteral("Shipping"));
    m_broker->kill();
    startAgent();
    QTRY_COMPARE(m_agent->readings().reading(QStringLiteral("Shipping")).statusCode(), 1);
    // Many attempts later.
    QTRY_VERIFY(!m_log.complaints.isEmpty());
    machine().publish(QStringLiteral("Shipping"), PrinterValue::text("StatusCode", "4"));
    QTRY_COMPARE(m_agent->readings().reading(QStringLiteral("Shipping")).statusCode(), 4);
    QVERIFY2(m_broker->start(), qPrintable(m_broker->output()));
    QTRY_VERIFY(m_log.information.join(u'\n').contains(QStringLiteral("connected to")));
    QCOMPARE(m_log.complaints.size(), 1);
    QVERIFY2(m_log.complaints.first().contains(QStringLiteral("cannot be reached")),
             qPrintable(m_log.complaints.first()));
}

void MqttSinkTest::nothingSecretIsSaid()
{
    QFile file(m_folder->filePath(QStringLiteral("password")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("swordfish\n");
    file.close();
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    m_config.mqtt->username = QStringLiteral("agent");
    m_config.mqtt->passwordFile = file.fileName();
    startAgent();
    QTRY_VERIFY(m_log.information.join(u'\n').contains(QStringLiteral("connected to")));
    m_broker->kill();
    QTRY_VERIFY(!m_log.complaints.isEmpty());
    const QString everything = (m_log.information + m_log.complaints).join(u'\n');
    QVERIFY(!everything.contains(QStringLiteral("swordfish")));
}

void MqttSinkTest::fiftyKillsOfTheBrokerLoseNothing()
{
    m_config.eventLog = m_folder->filePath(QStringLiteral("events.log"));
    QStringList names;
    for (int i = 1; i <= 20; ++i) {
        names.append(QStringLiteral("Printer %1").arg(i));
        add(names.last());
    }
    GatedProxy proxy(m_broker->port());
    m_config.mqtt->broker.port = proxy.port();
    // The reader must be back before the agent, or it would miss what a broker without a memory
    // passes on meanwhile.
    SiteReader reader(m_broker->port());
    QTRY_VERIFY(reader.isReading);
    startAgent();

    constexpr quint32 seed = 18;
    QRandomGenerator random(seed);
    const auto changeSomething = [&] {
        const QString& name = names.at(random.bounded(names.size()));
        if (random.bounded(2) == 0)
            machine().publish(
                name, PrinterValue::text("StatusCode", QByteArray::number(1 + random.bounded(5))));
        else
            machine().publish(name, PrinterValue::number("Mileage", random.bounded(30000U)));
    };
    constexpr int kills = 50;
    for (int kill = 0; kill < kills; ++kill) {
        for (int i = random.bounded(10, 60); i > 0; --i) {
            changeSomething();
            if (random.bounded(3) == 0)
                QCoreApplication::processEvents();
        }
        m_broker->kill();
        proxy.close();
        for (int i = random.bounded(20); i > 0; --i) {
            changeSomething();
            QCoreApplication::processEvents();
        }
        QTRY_VERIFY(!reader.isReading);
        QVERIFY2(m_broker->start(), qPrintable(m_broker->output()));
        QTRY_VERIFY(reader.isReading);
        proxy.open();
        // Often before everything that waits has been delivered.
        if (kill % 3 == 0)
            QTRY_COMPARE(reader.retained.value(stateTopic()), QByteArray("online"));
    }
    // The last change is of a kind of its own, so that its event is the last.
    machine().publish(names.first(), PrinterValue::text("StatusCode", "19"));
    QTRY_VERIFY(!reader.events().isEmpty() &&
                reader.events().last()[QStringLiteral("key")] == QStringLiteral("paused"));
    QTRY_VERIFY(isPublished(reader));
    const SiteReader later(m_broker->port());
    QTRY_VERIFY(isPublished(later));

    // What the kit wrote to a file of its own is what came, each event in order, however often.
    QStringList kept;
    QTRY_VERIFY(([&] {
        kept.clear();
        QFile log(m_config.eventLog);
        if (!log.open(QIODevice::ReadOnly))
            return false;
        for (const QList<QByteArray> lines = log.readAll().split('\n');
             const QByteArray& line : lines) {
            if (!line.isEmpty())
                kept.append(textOf(QJsonDocument::fromJson(line).object()));
        }
        return kept.last().endsWith(QStringLiteral("paused"));
    })());
    QStringList arrived;
    qint64 next = 1;
    const QList<QJsonObject> events = reader.events();
    for (const QJsonObject& event : events) {
        const qint64 seq = event[QStringLiteral("seq")].toInteger();
        QVERIFY2(seq <= next, qPrintable(QStringLiteral("%1 after %2").arg(seq).arg(next - 1)));
        if (seq == next)
            arrived.append(textOf(event));
        next = std::max(next, seq + 1);
    }
    QCOMPARE(arrived, kept);
    QVERIFY(next > kills);
    qInfo("%lld events, %lld messages of events", next - 1, qint64(events.size()));
}

/// An event each second, from one of twenty printers that change all the time, as a plant with
/// hundreds of printers would have.
void MqttSinkTest::aDayWithoutTheBrokerStaysInItsBounds()
{
    QStringList names;
    for (int i = 1; i <= 20; ++i) {
        names.append(QStringLiteral("Printer %1").arg(i));
        add(names.last());
    }
    m_broker->kill();
    m_config.mqtt->queueLimit = qint64(2) * 1024 * 1024;
    PrinterStatusController controller;
    VxKit::PrinterReadings readings(&controller);
    VxKit::PrinterEvents events(nullptr);
    VxKit::PrinterDiscovery discovery(&controller);
    MqttSink sink({m_config, readings, events, discovery, m_log});
    sink.start();
    QTRY_VERIFY(!m_log.complaints.isEmpty());

    VxKit::PrinterEvent event;
    event.severity = VxKit::Severity::Warning;
    event.kind = VxKit::PrinterEvent::Kind::Status;
    event.key = QStringLiteral("paused");
    event.code = 19;
    constexpr int day = 86400;
    constexpr int together = 60;
    qint64 onDisk = 0;
    qint64 inMemory = 0;
    qint64 inMemoryBefore = 0;
    for (int i = 1; i <= day; ++i) {
        event.printer = names.at(i % names.size());
        event.time = QDateTime::currentDateTime();
        Q_EMIT events.happened(event);
        Q_EMIT readings.changed(event.printer);
        if (i % together != 0)
            continue;
        QCoreApplication::processEvents();
        qint64 bytes = 0;
        for (const QFileInfo& file : QDir(m_config.mqtt->queueFolder).entryInfoList(QDir::Files))
            bytes += file.size();
        onDisk = std::max(onDisk, bytes);
        // By then the queue is full and has dropped some.
        if (i == day / 2)
            inMemoryBefore = heapInUse();
    }
    inMemory = heapInUse();
    // The two small files of positions come on top.
    QVERIFY2(onDisk <= m_config.mqtt->queueLimit + 4096, qPrintable(QString::number(onDisk)));
    constexpr qint64 mostGrowth = qint64(128) * 1024; // three bytes an event
    if (!isSanitized)
        QVERIFY2(inMemory - inMemoryBefore < mostGrowth,
                 qPrintable(QString::number(inMemory - inMemoryBefore)));
    QVERIFY(m_log.complaints.join(u'\n').contains(QStringLiteral("the oldest events are dropped")));

    QVERIFY2(m_broker->start(), qPrintable(m_broker->output()));
    const SiteReader reader(m_broker->port());
    QTRY_VERIFY(!reader.events().isEmpty() &&
                reader.events().last()[QStringLiteral("seq")].toInteger() == day);
    // The loss comes first, and with what came after it makes up the day.
    const QJsonObject loss = reader.events().first();
    QCOMPARE(loss[QStringLiteral("key")], QJsonValue(QStringLiteral("events_lost")));
    const qint64 lost = loss[QStringLiteral("lost")].toInteger();
    QVERIFY(lost > 0);
    QCOMPARE(loss[QStringLiteral("seq")].toInteger(), lost);
    QCOMPARE(lost + reader.events().size() - 1, qint64(day));
    for (const QString& name : std::as_const(names))
        QTRY_COMPARE(reader.reading(topicOf(name))[QStringLiteral("statusCode")], QJsonValue(1));
    qInfo("%lld events lost, %lld KiB on the disk, %lld KiB more in memory than at half time", lost,
          onDisk / 1024, (inMemory - inMemoryBefore) / 1024);
}

void MqttSinkTest::clientNamesDiffer()
{
    const auto id = [](const char* site, const char* host) {
        return clientIdOf(QString::fromUtf8(site), QString::fromUtf8(host));
    };
    QCOMPARE(id("a", "b"), id("a", "b"));
    QVERIFY(id("a-b", "c") != id("a", "b-c"));
    QVERIFY(id("a", "ü") != id("a", "ö"));
    QVERIFY(id("a", "x/y") != id("a", "x-y"));
}

QTEST_GUILESS_MAIN(MqttSinkTest)
#include "tst_mqtt_sink.moc"
