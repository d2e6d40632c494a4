// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The agent as a program, which is killed and started again.
#include "gated_proxy.h"
#include "mosquitto_broker.h"
#include "site_reader.h"

#include <QtCore/QJsonArray>
#include <QtCore/QRandomGenerator>
#include <QtTest/QtTest>

class VxPrintAgentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void aKilledAgentIsOfflineAndComesBack();
    void fiftyKillsOfTheAgentLoseNothingThatItAccepted();
    void anInterruptedAgentSaysGoodbye();
    void aSecondAgentWithTheSameFolderIsRefused();

private:
    bool configure(quint16 port) const;
    void start(QProcess& agent);
    bool startInTime(QProcess& agent, int lines);
    QByteArray fleet() const;
    QByteArray endOfTheStory() const;
    QSet<QString> waitingEvents() const;
    bool write(const QString& name, const QByteArray& text) const
    {
        QFile file(m_folder->filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MosquittoBroker> m_broker;
};

void VxPrintAgentTest::initTestCase()
{
    if (!MosquittoBroker::isInstalled())
        QSKIP("needs mosquitto");
}

void VxPrintAgentTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_broker =
        std::make_unique<MosquittoBroker>(QStringList{QStringLiteral("max_inflight_messages 0")});
    QVERIFY2(m_broker->start(), qPrintable(m_broker->output()));
    QVERIFY(configure(m_broker->port()));
    QVERIFY(write(QStringLiteral("fleet.json"), fleet()));
}

void VxPrintAgentTest::cleanup()
{
    m_broker.reset();
}

namespace {

constexpr int printers = 20;
constexpr int lastMileage = 1000; ///< that of the first printer at the end
constexpr int lastCode = 19;      ///< which no other change has

QString nameOf(int number)
{
    return QStringLiteral("P%1").arg(number);
}

QJsonObject printerWith(int number)
{
    return {
        {QStringLiteral("name"), nameOf(number)},
        {QStringLiteral("driver"), QStringLiteral("Stratamark Alder")},
        {QStringLiteral("values"),
         QJsonObject{{QStringLiteral("StatusCode"), QStringLiteral("1")},
                     {QStringLiteral("SupplyIdentifier"), QStringLiteral("000000641000030000A7")},
                     {QStringLiteral("Mileage"), 30480}}}};
}

QByteArray fleetOf(const QJsonArray& timeline)
{
    QJsonArray all;
    for (int i = 0; i < printers; ++i)
        all.append(printerWith(i));
    return QJsonDocument(QJsonObject{{QStringLiteral("printers"), all},
                                     {QStringLiteral("timeline"), timeline}})
        .toJson();
}

QString identityOf(const QJsonObject& event)
{
    return event[QStringLiteral("session")].toString() + u' ' +
           QString::number(event[QStringLiteral("seq")].toInteger());
}

} // namespace

/// Twenty printers of which one changes every hundredth of a second.
QByteArray VxPrintAgentTest::fleet() const
{
    QJsonArray timeline;
    constexpr int changes = 20000;
    for (int i = 0; i < changes; ++i)
        timeline.append(QJsonObject{
            {QStringLiteral("at"), 0.01 * i},
            {QStringLiteral("printer"), nameOf(i % printers)},
            {QStringLiteral("values"),
             QJsonObject{{QStringLiteral("StatusCode"),
                          i / printers % 2 == 0 ? QStringLiteral("4") : QStringLiteral("1")}}}});
    return fleetOf(timeline);
}

/// The same printers, each of which comes to values of its own and changes no more.
QByteArray VxPrintAgentTest::endOfTheStory() const
{
    QJsonArray timeline;
    for (int i = 0; i < printers; ++i)
        timeline.append(
            QJsonObject{{QStringLiteral("at"), 0.5},
                        {QStringLiteral("printer"), nameOf(i)},
                        {QStringLiteral("values"),
                         QJsonObject{{QStringLiteral("StatusCode"), QString::number(lastCode)},
                                     {QStringLiteral("Mileage"), lastMileage + i}}}});
    return fleetOf(timeline);
}

/// The events that the agent has written and that wait for the broker, read without the agent's own
/// code. A line that a kill has cut off was not accepted.
QSet<QString> VxPrintAgentTest::waitingEvents() const
{
    QSet<QString> result;
    const QDir queue(m_folder->filePath(QStringLiteral("data/queue")));
    for (const QFileInfo& info : queue.entryInfoList({QStringLiteral("*.events")})) {
        QFile file(info.filePath());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        for (const QList<QByteArray> lines = file.readAll().split('\n');
             const QByteArray& line : lines) {
            const QJsonObject event =
                QJsonDocument::fromJson(line.mid(std::max<qsizetype>(0, line.indexOf('{'))))
                    .object();
            if (!event.isEmpty())
                result.insert(identityOf(event));
        }
    }
    return result;
}

bool VxPrintAgentTest::configure(quint16 port) const
{
    return write(QStringLiteral("agent.json"),
                 "{\"site\": \"Bremen\", \"host\": \"h\", \"dataFolder\": \"data\", \"mqtt\": "
                 "{\"url\": \"mqtt://127.0.0.1:" +
                     QByteArray::number(port) + R"(", "reconnectSeconds": 1}})");
}

void VxPrintAgentTest::start(QProcess& agent)
{
    agent.start(QStringLiteral(VX_VXPRINTAGENT),
                {QStringLiteral("run"), QStringLiteral("--config"),
                 m_folder->filePath(QStringLiteral("agent.json")), QStringLiteral("--virtual"),
                 m_folder->filePath(QStringLiteral("fleet.json"))});
    QVERIFY(agent.waitForStarted(patience));
}

void VxPrintAgentTest::aKilledAgentIsOfflineAndComesBack()
{
    const SiteReader reader(m_broker->port());
    const QString state = QStringLiteral("vxprint/v1/Bremen/h/state");
    QProcess agent;
    start(agent);
    QTRY_COMPARE(reader.retained.value(state), QByteArray("online"));
    agent.kill();
    QTRY_COMPARE(reader.retained.value(state), QByteArray("offline"));
    QTRY_COMPARE(agent.state(), QProcess::NotRunning);
    start(agent);
    QTRY_COMPARE(reader.retained.value(state), QByteArray("online"));
    agent.kill();
    QVERIFY(agent.waitForFinished(patience));
}

/// Starts the agent and waits until it has said so many lines: it says one for each printer before
/// it connects. False if it ends before.
bool VxPrintAgentTest::startInTime(QProcess& agent, int lines)
{
    agent.setProcessChannelMode(QProcess::MergedChannels);
    start(agent);
    qsizetype said = agent.readAll().count('\n');
    while (said < lines && agent.waitForReadyRead(patience))
        said += agent.readAll().count('\n');
    return said >= lines;
}

/// Each run is killed at another moment: while it starts, while there is no broker, while it
/// delivers what the runs before it have left, or later.
void VxPrintAgentTest::fiftyKillsOfTheAgentLoseNothingThatItAccepted()
{
    const SiteReader reader(m_broker->port());
    QTRY_VERIFY(reader.isReading);
    bool hasSeed = false;
    auto seed = static_cast<quint32>(qEnvironmentVariableIntValue("VX_KILL_SEED", &hasSeed));
    if (!hasSeed)
        seed = QRandomGenerator::global()->bounded(100000U);
    qInfo("VX_KILL_SEED=%u", seed);
    QRandomGenerator random(seed);
    GatedProxy proxy(m_broker->port());
    QVERIFY(configure(proxy.port()));
    constexpr int kills = 50;
    QSet<QString> accepted;
    qsizetype mostWaiting = 0;
    QProcess agent;
    for (int kill = 0; kill < kills; ++kill) {
        enum
        {
            Starting,
            WithoutBroker,
            Publishing,
            Moments = 4 // publishing twice as often
        };
        const int moment = random.bounded(Moments);
        // The last of these lines says that it is connected.
        constexpr int linesOfStart = printers + 2;
        const int lines = moment == Starting ? random.bounded(linesOfStart) : 0;
        if (moment == WithoutBroker)
            proxy.close();
        else
            proxy.open();
        QVERIFY2(startInTime(agent, lines), agent.readAll().constData());
        if (moment == WithoutBroker) {
            constexpr int mostEvents = 60;
            const qsizetype enough = waitingEvents().size() + random.bounded(mostEvents);
            QTRY_VERIFY(waitingEvents().size() > enough);
        } else if (moment != Starting) {
            constexpr int mostMessages = 150;
            const qsizetype enough = reader.messages.size() + random.bounded(mostMessages);
            QTRY_VERIFY(reader.messages.size() > enough);
        }
        agent.kill();
        QVERIFY(agent.waitForFinished(patience));
        const QSet<QString> waiting = waitingEvents();
        mostWaiting = std::max(mostWaiting, waiting.size());
        accepted.unite(waiting);
    }
    // The last run delivers what the ones before it have left.
    proxy.open();
    QVERIFY(write(QStringLiteral("fleet.json"), endOfTheStory()));
    start(agent);
    for (int i = 0; i < printers; ++i) {
        const QString topic = QStringLiteral("vxprint/v1/Bremen/h/printer/") + nameOf(i);
        const auto isLast = [&](const QJsonObject& reading) {
            return reading[QStringLiteral("statusCode")] == lastCode &&
                   reading[QStringLiteral("supply")][QStringLiteral("mileage")] == lastMileage + i;
        };
        QTRY_VERIFY2_WITH_TIMEOUT(isLast(reader.reading(topic)),
                                  reader.retained.value(topic).constData(), patience);
    }
    const auto lastEvents = [&reader] {
        QSet<QString> names;
        for (const QJsonObject& event : reader.events()) {
            if (event[QStringLiteral("code")] == lastCode)
                names.insert(event[QStringLiteral("printer")].toString());
        }
        return names.size();
    };
    QTRY_COMPARE(lastEvents(), printers);
    // Whoever comes now is told the same.
    const SiteReader later(m_broker->port());
    QTRY_COMPARE(later.retained, reader.retained);
    QCOMPARE(reader.retained.size(), printers + 1);
    agent.kill();
    QVERIFY(agent.waitForFinished(patience));

    // Within each run from 1 on without a gap, and no run before an earlier one is done.
    QHash<QString, qint64> last;
    QStringList sessions;
    QSet<QString> arrived;
    for (const QJsonObject& event : reader.events()) {
        const QString session = event[QStringLiteral("session")].toString();
        const qint64 seq = event[QStringLiteral("seq")].toInteger();
        arrived.insert(identityOf(event));
        QVERIFY2(seq <= last.value(session) + 1,
                 qPrintable(QStringLiteral("%1 after %2").arg(seq).arg(last.value(session))));
        if (seq <= last.value(session))
            continue; // it came before
        last[session] = seq;
        if (!sessions.contains(session))
            sessions.append(session);
        QCOMPARE(session, sessions.last());
    }
    const QStringList lost = (accepted - arrived).values();
    QVERIFY2(lost.isEmpty(), qPrintable(lost.join(u'\n')));
    QVERIFY(mostWaiting > 0);
    qInfo("%lld runs had %lld events, which came in %lld messages; up to %lld waited",
          qint64(sessions.size()), qint64(arrived.size()), qint64(reader.events().size()),
          qint64(mostWaiting));
}

void VxPrintAgentTest::anInterruptedAgentSaysGoodbye()
{
    const SiteReader reader(m_broker->port());
    const QString state = QStringLiteral("vxprint/v1/Bremen/h/state");
    QProcess agent;
    start(agent);
    QTRY_COMPARE(reader.retained.value(state), QByteArray("online"));
    agent.terminate();
    QVERIFY(agent.waitForFinished(patience));
    QCOMPARE(agent.exitStatus(), QProcess::NormalExit);
    QCOMPARE(agent.exitCode(), 0);
    QTRY_COMPARE(reader.retained.value(state), QByteArray("offline"));
    const QString output = QString::fromUtf8(agent.readAllStandardOutput());
    QVERIFY2(output.contains(QStringLiteral("printer \"P0\" (Stratamark Alder): watched")),
             qPrintable(output));
}

void VxPrintAgentTest::aSecondAgentWithTheSameFolderIsRefused()
{
    const SiteReader reader(m_broker->port());
    QProcess first;
    start(first);
    QTRY_VERIFY(!reader.events().isEmpty());
    QProcess second;
    start(second);
    QVERIFY(second.waitForFinished(patience));
    QCOMPARE(second.exitCode(), 1);
    const QString error = QString::fromUtf8(second.readAllStandardError());
    QVERIFY2(error.contains(QStringLiteral("another agent uses the folder")), qPrintable(error));
    first.kill();
    QVERIFY(first.waitForFinished(patience));
}

QTEST_GUILESS_MAIN(VxPrintAgentTest)
#include "tst_vxprintagent.moc"
