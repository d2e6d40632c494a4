// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The readings of a site from a real broker.
#include "gated_proxy.h"
#include "mosquitto_broker.h"
#include "publisher.h"

#include <site_readings.h>

#include <QtTest/QtTest>

using namespace std::chrono_literals;
using VxKit::PrinterReading;
using Watching = PrinterReading::Watching;

namespace {

const QString ofPacking = QStringLiteral("Packing (h1)");

} // namespace

class SiteReadingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void showsWhatAgentsPublish();
    void onlyThatSite();
    void allSitesHaveTheSiteInTheName();
    void oneNameOnTwoComputersIsTwoPrinters();
    void namesThatWouldBeTheSameAreToldApart();
    void aRemovedPrinterDisappears();
    void anAgentThatDiesIsOfflineSinceThen();
    void anAgentThatWasOfflineBeforeHasNoTime();
    void anAgentWithoutStateIsOffline();
    void anAgentThatComesBackIsLive();
    void withoutTheBrokerEverythingIsOld();
    void aBrokerThatForgotGetsEverythingFromItsAgents();
    void whatIsNotPublishedAgainIsForgotten();
    void whatWasRemovedMeanwhileDisappears();
    void refusesHostileMessages_data();
    void refusesHostileMessages();
    void aMessageThatCannotBeReadLeavesWhatWasKnown();
    void theNameOfTheTopicCounts();
    void manyUnreadableMessagesAreSaidOnce();
    void printersBeyondTheLimitAreCountedAndSaidOnce();
    void agentsBeyondTheLimitAreCounted();
    void eventsAreToldOnce();
    void saysThatThePasswordIsWrong();
    void saysThatTheUserMayNotRead();
    void saysThatTheBrokerCannotBeReached();

private:
    SiteReadingsOptions options(const QString& site = QStringLiteral("bremen")) const
    {
        static int readers = 0;
        SiteReadingsOptions options;
        options.client.broker = {QStringLiteral("127.0.0.1"), m_broker->port(), false};
        options.client.clientId = QStringLiteral("site-reader-%1").arg(++readers);
        options.client.firstDelay = options.client.longestDelay = 20ms;
        options.site = site;
        options.quiet = 200ms;
        return options;
    }
    static QStringList names(const SiteReadings& site)
    {
        QStringList names;
        for (const PrinterReading& reading : site.readings())
            names.append(reading.name());
        names.sort();
        return names;
    }
    static PrinterReading reading(const SiteReadings& site, const QString& name)
    {
        for (const PrinterReading& reading : site.readings()) {
            if (reading.name() == name)
                return reading;
        }
        return {};
    }
    static Watching watchingOf(const SiteReadings& site, const QString& name)
    {
        return reading(site, name).watching();
    }
    /// A broker that answers as it is told.
    static void answerAs(QTcpServer& server, const QByteArray& toSubscribe)
    {
        connect(&server, &QTcpServer::newConnection, &server, [&server, toSubscribe] {
            QTcpSocket* const socket = server.nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [socket, toSubscribe] {
                const QByteArray packet = socket->readAll();
                constexpr char connectPacket = 0x10;
                constexpr char subscribePacket = '\x82';
                if (packet.startsWith(connectPacket))
                    socket->write(QByteArray::fromHex("20020000"));
                else if (packet.startsWith(subscribePacket))
                    socket->write(toSubscribe);
            });
        });
    }

    std::unique_ptr<MosquittoBroker> m_broker;
};

void SiteReadingsTest::initTestCase()
{
    if (!MosquittoBroker::isInstalled())
        QSKIP("needs mosquitto");
}

void SiteReadingsTest::init()
{
    m_broker = std::make_unique<MosquittoBroker>();
    QVERIFY2(m_broker->start(), qPrintable(m_broker->output()));
}

void SiteReadingsTest::cleanup()
{
    m_broker.reset();
}

void SiteReadingsTest::showsWhatAgentsPublish()
{
    Publisher agent(m_broker->port(), QStringLiteral("bremen"), QStringLiteral("h1"));
    QTRY_VERIFY(agent.client.isConnected());
    agent.sayOnline();
    PrinterReading published = watchedReading(QStringLiteral("Packing"));
    published.setActive(true);
    agent.put(published);
    QTRY_VERIFY(agent.isDelivered());
    SiteReadings site(options());
    QSignalSpy listed(&site, &SiteReadings::listed);
    QSignalSpy changed(&site, &SiteReadings::changed);
    site.start();
    QTRY_COMPARE(listed.size(), 1);
    QCOMPARE(names(site), QStringList{ofPacking});
    published.setName(ofPacking);
    published.setActive(false); // that is a matter of its computer
    published.setLastReport(reading(site, ofPacking).lastReport());
    QCOMPARE(reading(site, ofPacking), published);
    QVERIFY(reading(site, ofPacking).estimatedSecondsRemaining(VxKit::Slot::Supply));
    QCOMPARE(site.state(), (SiteState{.isConnected = true}));

    changed.clear();
    agent.put(watchedReading(QStringLiteral("Packing"), 4));
    QTRY_COMPARE(reading(site, ofPacking).statusCode(), 4);
    QTRY_COMPARE(changed.size(), 1);
    QCOMPARE(changed.first().first().value<QList<PrinterReading>>().size(), 1);
}

void SiteReadingsTest::onlyThatSite()
{
    Publisher here(m_broker->port(), QStringLiteral("bremen"), QStringLiteral("h1"));
    Publisher there(m_broker->port(), QStringLiteral("kiel"), QStringLiteral("h1"));
    QTRY_VERIFY(here.client.isConnected() && there.client.isConnected());
    for (Publisher* agent : {&there, &here}) {
        agent->sayOnline();
        agent->put(watchedReading(QStringLiteral("Packing")));
    }
    QTRY_VERIFY(here.isDelivered() && there.isDelivered());
    SiteReadings site(options());
    QSignalSpy listed(&site, &SiteReadings::listed);
    site.start();
    QTRY_COMPARE(listed.size(), 1);
    QCOMPARE(names(site), QStringList{ofPacking});
}

void SiteReadingsTest::allSitesHaveTheSiteInTheName()
{
    Publisher here(m_broker->port(), QStringLiteral("bremen"), QStringLiteral("h1"));
    Publisher there(m_broker->port(), QStringLiteral("kiel"), QStringLiteral("h/1"));
    SiteReadings site(options({}));
    site.start();
    QTRY_VERIFY(here.client.isConnected() && there.client.isConnected());
    for (Publisher* agent : {&here, &there}) {
        agent->sayOnline();
        agent->put(watchedReading(QStringLiteral("Packing")));
    }
    QTRY_COMPARE(names(site), (QStringList{QStringLiteral("Packing (bremen/h1)"),
                                           QStringLiteral("Packing (kiel/h/1)")}));
}

void SiteReadingsTest::oneNameOnTwoComputersIsTwoPrinters()
{
    Publisher one(m_broker->port(), QStringLiteral("bremen"), QStringLiteral("h1"));
    Publisher two(m_broker->port(), QStringLiteral("bremen"), QStringLiteral("h2"));
    SiteReadings site(options());
    site.start();
    QTRY_VERIFY(one.client.isConnected() && two.client.isConnected());
    one.sayOnline();
    two.sayOnline();
    one.put(watchedReading(QStringLiteral("Packing")));
    two.put(watchedReading(QStringLiteral("Packing"), 4));
    QTRY_COMPARE(names(site), (QStringList{ofPacking, QStringLiteral("Packing (h2)")}));
    QCOMPARE(reading(site, ofPacking).statusCode(), 1);
    QCOMPARE(reading(site, QStringLiteral("Packing (h2)")).statusCode(), 4);
    two.remove(QStringLiteral("Packing"));
    QTRY_COMPARE(names(site), QStringList{ofPacking});
}

void SiteReadingsTest::namesThatWouldBeTheSameAreToldApart()
{
    Publisher one(m_broker->port(), QStringLiteral("bremen"), QStringLiteral("c"));
    Publisher two(m_broker->port(), QStringLiteral("bremen"), QStringLiteral("b) (c"));
    SiteReadings site(options());
    site.start();
    QTRY_VERIFY(one.client.isConnected() && two.client.isConnected());
    one.put(watchedReading(QStringLiteral("A (b)")));
    QTRY_COMPARE(names(site).size(), 1);
    two.put(watchedReading(QStringLiteral("A")));
    QTRY_COMPARE(names(site),
                 (QStringList{QStringLiteral("A (b) (c)"), QStringLiteral("A (b) (c) #2")}));
    one.remove(QStringLiteral("A (b)"));
    QTRY_COMPARE(names(site), QStringList{QStringLiteral("A (b) (c) #2")});
}

void SiteReadingsTest::aRemovedPrinterDisappears()
{
    Publisher agent(m_broker->port(), QStringLiteral("bremen"), QStringLiteral("h1"));
    SiteReadings site(options());
    QSignalSpy removed(&site, &SiteReadings::removed);
    site.start();
    QTRY_VERIFY(agent.client.isConnected());
    agent.sayOnline();
    agent.put(watchedReading(QStringLiteral("Packing")));
    QTRY_COMPARE(names(site), QStringList{ofPacking});
    agent.remove(QStringLiteral("Packing"));
    QTRY_COMPARE(removed.size(), 1);
    QCOMPARE(removed.first().first().toStringList(), QStringList{ofPacking});
    QCOMPARE(names(site), QStringList());
}

void SiteReadingsTest::anAgentThatDiesIsOfflineSinceThen()
{
    auto agent = std::make_unique<Publisher>(m_broker->port(), QStringLiteral("bremen"),
                                             QStringLiteral("h1"));
    SiteReadings site(options());
    QSignalSpy changed(&site, &SiteReadings::changed);
    site.start();
    QTRY_VERIFY(agent->client.isConnected());
    agent->sayOnline();
    agent->put(watchedReading(QStringLiteral("Packing"), 4));
    QTRY_COMPARE(watchingOf(site, ofPacking), Watching::Watched);
    const QDateTime before = QDateTime::currentDateTimeUtc();
    agent.reset(); // without leave, as if it was killed
    QTRY_COMPARE(watchingOf(site, ofPacking), Watching::AgentOffline);
    const PrinterReading old = reading(site, ofPacking);
    QVERIFY(old.unheardSince() >= before);
    QVERIFY(old.unheardSince() <= QDateTime::currentDateTimeUtc());
    // Nobody knows how it is now. What is loaded is known as it was.
    QCOMPARE(old.statusCode(), int(VXPrinting::StatusCodes::unknown));
    QVERIFY(!old.isOnline());
    QCOMPARE(old.level(VxKit::Slot::Supply).ratio, 0.5);
    QVERIFY(!old.estimatedSecondsRemaining(VxKit::Slot::Supply));
    QCOMPARE(old.statusInfo().shortTitle, QStringLiteral("Agent offline"));
    QCOMPARE(site.state().offlineAgents, QStringList{QStringLiteral("h1")});
    QTRY_VERIFY(!changed.isEmpty() &&
                changed.last().first().value<QList<PrinterReading>>().first() == old);
}

void SiteReadingsTest::anAgentThatWasOfflineBeforeHasNoTime()
{
    auto agent = std::make_unique<Publisher>(m_broker->port(), QStringLiteral("bremen"),
                                             QStringLiteral("h1"));
    QTRY_VERIFY(agent->client.isConnected());
    agent->put(agent->topics.state(), "offline");
    agent->put(watchedReading(QStringLiteral("Packing")));
    QTRY_VERIFY(agent->isDelivered());
    SiteReadings site(options());
    site.start();
    QTRY_COMPARE(watchingOf(site, ofPacking), Watching::AgentOffline);
    QVERIFY(!reading(site, ofPacking).unheardSince().isValid());
}

void SiteReadingsTest::anAgentWithoutStateIsOffline()
{
    Publisher agent(m_broker->port(), QStringLiteral("bremen"), QStringLiteral("h1"));
    QTRY_VERIFY(agent.client.isConnected());
    agent.put(watchedReading(QStringLiteral("Packing")));
    QTRY_VERIFY(agent.isDelivered());
    SiteReadings site(options());
    QSignalSpy listed(&site, &SiteReadings::listed);
    site.start();
    QTRY_COMPARE(listed.size(), 1);
    QCOMPARE(watchingOf(site, ofPacking), Watching::AgentOffline);
    // Whoever publishes is there.
    agent.put(watchedReading(QStringLiteral("Packing"), 4));
    QTRY_COMPARE(watchingOf(site, ofPacking), Watching::Watched);
}

void SiteReadingsTest::anAgentThatComesBackIsLive()
{
    Publisher agent(m_broker->port(), QStringLiteral("bremen"), QStringLiteral("h1"));
    SiteReadings site(options());
    site.start();
    QTRY_VERIFY(agent.client.isConnected());
    agent.sayOnline();
    agent.put(watchedReading(QStringLiteral("Packing"), 4));
    agent.put(agent.topics.state(), "offline");
    QTRY_COMPARE(watchingOf(site, ofPacking), Watching::AgentOffline);
    agent.sayOnline();
    QTRY_COMPARE(watchingOf(site, ofPacking), Watching::Watched);
    QCOMPARE(reading(site, ofPacking).statusCode(), 4);
    QCOMPARE(site.state().offlineAgents, QStringList());
}

void SiteReadingsTest::withoutTheBrokerEverythingIsOld()
{
    Publisher agent(m_broker->port(), QStringLiteral("bremen"), QStringLiteral("h1"));
    SiteReadings site(options());
    site.start();
    QTRY_VERIFY(agent.client.isConnected());
    agent.sayOnline();
    agent.put(watchedReading(QStringLiteral("Packing"), 4));
    QTRY_COMPARE(watchingOf(site, ofPacking), Watching::Watched);
    const QDateTime before = QDateTime::currentDateTimeUtc();
    m_broker->kill();
    QTRY_COMPARE(watchingOf(site, ofPacking), Watching::NotConnected);
    QVERIFY(reading(site, ofPacking).unheardSince() >= before);
    QCOMPARE(reading(site, ofPacking).statusCode(), 4);
    QTRY_VERIFY(site.state().reason.contains(QStringLiteral("cannot be reached")));
    QVERIFY(!site.state().isConnected);
    QVERIFY(site.state().unconnectedSince >= before);
    QCOMPARE(site.state().offlineAgents, QStringList());
}

void SiteReadingsTest::aBrokerThatForgotGetsEverythingFromItsAgents()
{
    Publisher agent(m_broker->port(), QStringLiteral("bremen"), QStringLiteral("h1"));
    SiteReadings site(options());
    QSignalSpy removed(&site, &SiteReadings::removed);
    site.start();
    QTRY_VERIFY(agent.client.isConnected());
    agent.sayOnline();
    agent.put(watchedReading(QStringLiteral("Packing")));
    QTRY_COMPARE(watchingOf(site, ofPacking), Watching::Watched);
    m_broker->kill();
    QTRY_VERIFY(!site.state().isConnected && !agent.client.isConnected());
    QVERIFY2(m_broker->start(), qPrintable(m_broker->output()));
    // The broker keeps nothing, and the agent has not published yet.
    QTRY_COMPARE(watchingOf(site, ofPacking), Watching::AgentOffline);
    QVERIFY(reading(site, ofPacking).unheardSince().isValid());
    QTRY_VERIFY(agent.client.isConnected());
    agent.sayOnline();
    agent.put(watchedReading(QStringLiteral("Packing"), 4));
    // The state comes first: until the reading comes too, the old one is shown.
    QTRY_COMPARE(reading(site, ofPacking).statusCode(), 4);
    QCOMPARE(watchingOf(site, ofPacking), Watching::Watched);
    QCOMPARE(removed.size(), 0);
    QCOMPARE(site.state(), (SiteState{.isConnected = true}));
}

void SiteReadingsTest::whatIsNotPublishedAgainIsForgotten()
{
    Publisher agent(m_broker->port(), QStringLiteral("bremen"), QStringLiteral("h1"));
    SiteReadingsOptions hasty = options();
    hasty.patienceWithAgents = 10ms;
    SiteReadings site(hasty);
    site.start();
    QTRY_VERIFY(agent.client.isConnected());
    agent.sayOnline();
    agent.put(watchedReading(QStringLiteral("Packing")));
    QTRY_COMPARE(names(site), QStringList{ofPacking});
    m_broker->kill();
    QTRY_VERIFY(!site.state().isConnected);
    QVERIFY2(m_broker->start(), qPrintable(m_broker->output()));
    QTRY_COMPARE(names(site), QStringList());
    QTRY_COMPARE(site.state(), (SiteState{.isConnected = true}));
}

void SiteReadingsTest::whatWasRemovedMeanwhileDisappears()
{
    Publisher agent(m_broker->port(), QStringLiteral("bremen"), QStringLiteral("h1"));
    GatedProxy proxy(m_broker->port());
    SiteReadingsOptions throughTheProxy = options();
    throughTheProxy.client.broker.port = proxy.port();
    SiteReadings site(throughTheProxy);
    site.start();
    QTRY_VERIFY(agent.client.isConnected());
    agent.sayOnline();
    agent.put(watchedReading(QStringLiteral("Packing")));
    agent.put(watchedReading(QStringLiteral("Shipping")));
    QTRY_COMPARE(names(site).size(), 2);
    QTRY_VERIFY(agent.isDelivered());
    proxy.close();
    QTRY_VERIFY(!site.state().isConnected);
    agent.remove(QStringLiteral("Shipping"));
    QTRY_VERIFY(agent.isDelivered());
    QCOMPARE(names(site).size(), 2);
    proxy.open();
    QTRY_COMPARE(names(site), QStringList{ofPacking});
    QTRY_COMPARE(watchingOf(site, ofPacking), Watching::Watched);
}

void SiteReadingsTest::refusesHostileMessages_data()
{
    QTest::addColumn<QString>("topic");
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<QString>("why");
    const QString root = QStringLiteral("vxprint/v1/bremen/h1/");
    const QByteArray good =
        QJsonDocument(watchedReading(QStringLiteral("A")).toJson()).toJson(QJsonDocument::Compact);
    QByteArray colors = good;
    colors.replace("#ffd400", "<script>");
    const QString printer = root + QStringLiteral("printer/A");
    const auto row = [](const char* name, const QString& topic, const QByteArray& payload,
                        const char* why) {
        QTest::newRow(name) << topic << payload << QString::fromLatin1(why);
    };
    row("no JSON", printer, "{", "printer/A: unterminated object");
    row("no object", printer, "[]", "printer/A: not a JSON object");
    row("an empty object", printer, "{}", "printer/A: name is missing");
    row("not UTF-8", printer, "{\"name\": \"\xff\"}", "printer/A: ");
    row("deep", printer, QByteArray(100000, '['), "printer/A: ");
    row("a colour that is none", printer, colors, "printer/A: supply.colors");
    row("long", printer, good + QByteArray(200000, ' '), "more than 131072 bytes");
    row("a long name", root + QStringLiteral("printer/") + QString(2000, u'a'), good,
        "a name that is empty or has more than 1024 characters");
    row("no name", root + QStringLiteral("printer/"), good, "a name that is empty");
    row("a long name of a computer",
        QStringLiteral("vxprint/v1/bremen/%1/printer/A").arg(QString(2000, u'a')), good,
        "a name that is empty or has more");
    row("a state that is none", root + QStringLiteral("state"), "burning",
        "state: expected online or offline");
    row("an event that is none", root + QStringLiteral("event"), "{}", "event: ");
    row("a topic that turns the writing", root + QStringLiteral("printer/\u202eA"), "{",
        "\\u202eA: unterminated object");
}

void SiteReadingsTest::refusesHostileMessages()
{
    QFETCH(QString, topic);
    QFETCH(QByteArray, payload);
    QFETCH(QString, why);
    Publisher agent(m_broker->port(), QStringLiteral("bremen"), QStringLiteral("h1"));
    SiteReadings site(options());
    QSignalSpy warned(&site, &SiteReadings::warned);
    QSignalSpy listed(&site, &SiteReadings::listed);
    site.start();
    QTRY_VERIFY(agent.client.isConnected() && listed.size() == 1);
    agent.put(topic, payload);
    QTRY_COMPARE(warned.size(), 1);
    const QString line = warned.first().first().toString();
    QVERIFY2(line.startsWith(QStringLiteral("a message cannot be read: ")), qPrintable(line));
    QVERIFY2(line.contains(why), qPrintable(line));
    QVERIFY2(line.endsWith(QStringLiteral(" (so far: 1)")), qPrintable(line));
    QVERIFY(line.size() < 600);
    QVERIFY(!line.contains(u'\n'));
    QCOMPARE(site.state().unreadable, 1);
    QVERIFY2(site.state().lastUnreadable.contains(why), qPrintable(site.state().lastUnreadable));
    QCOMPARE(names(site), QStringList());
}

void SiteReadingsTest::aMessageThatCannotBeReadLeavesWhatWasKnown()
{
    Publisher agent(m_broker->port(), QStringLiteral("bremen"), QStringLiteral("h1"));
    SiteReadings site(options());
    site.start();
    QTRY_VERIFY(agent.client.isConnected());
    agent.sayOnline();
    agent.put(watchedReading(QStringLiteral("Packing"), 4));
    QTRY_COMPARE(names(site), QStringList{ofPacking});
    const PrinterReading before = reading(site, ofPacking);
    agent.put(agent.topics.printer(QStringLiteral("Packing")), "{");
    QTRY_COMPARE(site.state().unreadable, 1);
    QCOMPARE(reading(site, ofPacking), before);
}

void SiteReadingsTest::theNameOfTheTopicCounts()
{
    Publisher agent(m_broker->port(), QStringLiteral("bremen"), QStringLiteral("h1"));
    SiteReadings site(options());
    site.start();
    QTRY_VERIFY(agent.client.isConnected());
    agent.put(watchedReading(QStringLiteral("Packing")));
    const QByteArray other = QJsonDocument(watchedReading(QStringLiteral("Packing"), 4).toJson())
                                 .toJson(QJsonDocument::Compact);
    agent.put(agent.topics.printer(QStringLiteral("Shipping")), other);
    QTRY_COMPARE(names(site), (QStringList{ofPacking, QStringLiteral("Shipping (h1)")}));
    QCOMPARE(reading(site, ofPacking).statusCode(), 1);
    QCOMPARE(reading(site, QStringLiteral("Shipping (h1)")).statusCode(), 4);
}

void SiteReadingsTest::manyUnreadableMessagesAreSaidOnce()
{
    Publisher agent(m_broker->port(), QStringLiteral("bremen"), QStringLiteral("h1"));
    SiteReadings site(options());
    QSignalSpy warned(&site, &SiteReadings::warned);
    site.start();
    QTRY_VERIFY(agent.client.isConnected() && site.state().isConnected);
    constexpr int messages = 1000;
    QElapsedTimer since;
    since.start();
    for (int i = 0; i < messages; ++i)
        agent.put(agent.topics.printer(QString::number(i)), "{");
    QTRY_COMPARE(site.state().unreadable, messages);
    // The first, and one a minute.
    QVERIFY2(warned.size() <= 2 + since.elapsed() / 60000,
             qPrintable(QString::number(warned.size())));
}

void SiteReadingsTest::printersBeyondTheLimitAreCountedAndSaidOnce()
{
    Publisher agent(m_broker->port(), QStringLiteral("bremen"), QStringLiteral("h1"));
    SiteReadingsOptions narrow = options();
    narrow.mostPrinters = 3;
    SiteReadings site(narrow);
    QSignalSpy warned(&site, &SiteReadings::warned);
    site.start();
    QTRY_VERIFY(agent.client.isConnected() && site.state().isConnected);
    agent.sayOnline();
    for (int i = 0; i < 5; ++i)
        agent.put(watchedReading(QString::number(i)));
    QTRY_COMPARE(site.state().beyondLimits, 2);
    QCOMPARE(names(site), (QStringList{QStringLiteral("0 (h1)"), QStringLiteral("1 (h1)"),
                                       QStringLiteral("2 (h1)")}));
    QCOMPARE(warned.size(), 1);
    QCOMPARE(warned.first().first().toString(),
             QStringLiteral("there are more than 3 printers; those beyond are not shown"));
    // Those that are there go on, and where one goes there is room for another.
    agent.put(watchedReading(QStringLiteral("1"), 4));
    QTRY_COMPARE(reading(site, QStringLiteral("1 (h1)")).statusCode(), 4);
    agent.remove(QStringLiteral("0"));
    agent.put(watchedReading(QStringLiteral("4")));
    QTRY_COMPARE(names(site).last(), QStringLiteral("4 (h1)"));
}

void SiteReadingsTest::agentsBeyondTheLimitAreCounted()
{
    Publisher agent(m_broker->port(), QStringLiteral("bremen"), QStringLiteral("h1"));
    SiteReadingsOptions narrow = options();
    narrow.mostAgents = 2;
    SiteReadings site(narrow);
    site.start();
    QTRY_VERIFY(agent.client.isConnected() && site.state().isConnected);
    for (const char* host : {"h1", "h2", "h3", "h4"}) {
        const topics::AgentTopics topics(QStringLiteral("bremen"), QString::fromLatin1(host));
        agent.put(topics.state(), "offline");
    }
    QTRY_COMPARE(site.state().beyondLimits, 2);
    QCOMPARE(site.state().offlineAgents, (QStringList{QStringLiteral("h1"), QStringLiteral("h2")}));
}

void SiteReadingsTest::eventsAreToldOnce()
{
    using VxKit::PrinterEvent;
    Publisher agent(m_broker->port(), QStringLiteral("bremen"), QStringLiteral("h1"));
    SiteReadings site(options());
    QList<PrinterEvent> events;
    connect(&site, &SiteReadings::happened, this,
            [&events](const QList<PrinterEvent>& some) { events += some; });
    site.start();
    QTRY_VERIFY(agent.client.isConnected() && site.state().isConnected);
    agent.sayOnline();
    agent.put(watchedReading(QStringLiteral("Packing")));
    const auto put = [&agent](const QString& printer, int code, int seq, bool isHistorical) {
        PrinterEvent event;
        event.time = QDateTime::currentDateTimeUtc();
        event.severity = VxKit::Severity::Error;
        event.printer = printer;
        event.code = code;
        event.key = QStringLiteral("cover_open");
        QJsonObject json = QJsonDocument::fromJson(event.toLine()).object();
        json[QStringLiteral("session")] = QStringLiteral("s");
        json[QStringLiteral("seq")] = seq;
        json[QStringLiteral("historical")] = isHistorical;
        agent.put(agent.topics.event(), QJsonDocument(json).toJson(QJsonDocument::Compact), false);
    };
    put(QStringLiteral("Packing"), 3, 1, true);
    put(QStringLiteral("Packing"), 4, 2, false);
    put(QStringLiteral("Packing"), 4, 2, false);
    put(QStringLiteral("Unseen"), 5, 3, false);
    put({}, 6, 4, false);
    QTRY_COMPARE(events.size(), 3);
    QCOMPARE(events.at(0).printer, ofPacking);
    QCOMPARE(events.at(0).code, 4);
    QCOMPARE(events.at(1).printer, QStringLiteral("Unseen (h1)"));
    QCOMPARE(events.at(2).printer, QStringLiteral("h1"));
}

void SiteReadingsTest::saysThatThePasswordIsWrong()
{
    m_broker =
        std::make_unique<MosquittoBroker>(QStringList{QStringLiteral("allow_anonymous false")});
    QVERIFY2(m_broker->start(), qPrintable(m_broker->output()));
    QFile secret(m_broker->folder() + QStringLiteral("/secret"));
    QVERIFY(secret.open(QIODevice::WriteOnly) && secret.write("wrong\n") > 0);
    secret.close();
    QVERIFY(secret.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    SiteReadingsOptions given = options();
    given.client.username = QStringLiteral("reader");
    given.client.passwordFile = secret.fileName();
    SiteReadings site(given);
    QSignalSpy stateChanged(&site, &SiteReadings::stateChanged);
    site.start();
    QTRY_VERIFY(site.state().reason.contains(
        QStringLiteral("does not accept the user \"reader\" with the password")));
    QVERIFY(!site.state().reason.contains(u'\n'));
    QVERIFY(!site.state().unconnectedSince.isValid());
    QTRY_VERIFY(!stateChanged.isEmpty());
    QCOMPARE(stateChanged.last().first().value<SiteState>(), site.state());
}

void SiteReadingsTest::saysThatTheUserMayNotRead()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost, 0));
    // The answer to subscription 1: failed.
    answerAs(server, QByteArray::fromHex("9003000180"));
    SiteReadingsOptions given = options();
    given.client.broker.port = server.serverPort();
    SiteReadings site(given);
    QSignalSpy listed(&site, &SiteReadings::listed);
    site.start();
    QTRY_COMPARE(listed.size(), 1);
    QTRY_VERIFY2(site.state().reason.endsWith(
                     QStringLiteral(" does not let this user read what agents publish "
                                    "(vxprint/v1/bremen/#); ask who runs the broker")),
                 qPrintable(site.state().reason));
}

void SiteReadingsTest::saysThatTheBrokerCannotBeReached()
{
    m_broker->kill();
    SiteReadings site(options());
    site.start();
    QTRY_VERIFY(site.state().reason.contains(QStringLiteral("cannot be reached")));
    QVERIFY2(m_broker->start(), qPrintable(m_broker->output()));
    QTRY_COMPARE(site.state(), (SiteState{.isConnected = true}));
}

QTEST_GUILESS_MAIN(SiteReadingsTest)
#include "tst_site_readings.moc"
