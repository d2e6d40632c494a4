// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_host_process.h"
#include "ipc_raw_client.h"
#include "ipc_test_service.h"
#include "json_rpc.h"
#include "vxipcclient.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QPointer>
#include <QtNetwork/QLocalServer>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <memory>
#include <utility>

using namespace std::chrono_literals;

namespace {

/// A server that answers with the same bytes whenever a connection has sent so many lines.
class OddServer : public QLocalServer
{
public:
    OddServer(const QString& name, const QByteArray& answer, qsizetype lines = 1)
    {
        setSocketOptions(UserAccessOption);
        // An endpoint of this process has created the folder by now.
        listen(VXIPCClient::address(name));
        connect(this, &QLocalServer::newConnection, this, [this, answer, lines] {
            QLocalSocket* socket = nextPendingConnection();
            // Lines that are sent together may arrive one by one.
            connect(socket, &QLocalSocket::readyRead, socket,
                    [socket, answer, lines, arrived = qsizetype(0)]() mutable {
                        arrived += socket->readAll().count('\n');
                        for (; arrived >= lines; arrived -= lines)
                            socket->write(answer);
                    });
        });
    }
};

/// A server that dies in the middle of its first answer and answers each call after that with the
/// number of the call.
class DyingServer : public QLocalServer
{
public:
    explicit DyingServer(const QString& name)
    {
        setSocketOptions(UserAccessOption);
        listen(VXIPCClient::address(name));
        connect(this, &QLocalServer::newConnection, this, [this] {
            QLocalSocket* socket = nextPendingConnection();
            connect(socket, &QLocalSocket::readyRead, socket, [this, socket] { answer(*socket); });
        });
    }

private:
    void answer(QLocalSocket& socket)
    {
        while (socket.canReadLine()) {
            const QJsonValue id = QJsonDocument::fromJson(socket.readLine())[QStringLiteral("id")];
            const QByteArray line = json_rpc::success(id, QByteArray::number(id.toInteger()));
            if (std::exchange(m_isFirst, false)) {
                socket.write(line.first(line.size() / 2));
                socket.disconnectFromServer();
                return;
            }
            socket.write(line);
        }
    }

    bool m_isFirst = true;
};

/// An endpoint without signals.
class MuteService : public VXIPCServer
{
    Q_OBJECT

public:
    explicit MuteService(int serverType)
        : VXIPCServer(serverType, nullptr)
    {}

public Q_SLOTS:
    int one() { return 1; }
};

const QString toldSignal = QStringLiteral("told");

QJsonObject toldArguments(const QString& text, int number)
{
    return {{QStringLiteral("text"), text}, {QStringLiteral("number"), number}};
}

} // namespace

class VXIPCClientTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void waitsForAResult();
    void waitsForAnError();
    void callsByName();
    void reportsThatNoEndpointAnswers();
    void givesUpWaitingInTime();
    void ignoresLateAnswers();
    void reportsCallsLostWithTheProcess();
    void discardsHalfAnAnswerOfAServerThatDied();
    void refusesToSendALineThatIsTooLong();

    void callsWithoutWaiting();
    void callsBackLaterThanTheCall();
    void keepsManyCallsInFlight();
    void reportsLateCallsInOrder();
    void givesUpEachCallInItsTime();
    void deliversOtherOutcomesAfterAWait();
    void waitsWithinACallback();
    void runsAnEventLoopInACallback();
    void mayBeDestroyedInACallback();
    void mayBeDestroyedWhenTheConnectionIsLost_data();
    void mayBeDestroyedWhenTheConnectionIsLost();
    void answersACallMadeWhenTheConnectionIsLost();
    void forgetsItsCallsWhenDestroyed();
    void sendsNotifications();

    void receivesNotifications();
    void deliversNotificationsAndOutcomesInOrder();
    void deliversNotificationsAfterAWait();
    void forgetsSubscriptionsThatAreRefused();
    void endsSubscriptions();
    void subscribesAgain();
    void subscribesAgainBeforeACallThatConnects();
    void subscribesWhenAnEndpointComes();
    void reportsALostSubscription();
    void keepsItsSubscriptionsWhenItIsOneClientTooMany();
    void mayBeDestroyedByANotification();

    void reportsConnections();
    void connectsAgain();
    void staysDisconnectedOnRequest();
    void findsAnEndpointThatComesLater();
    void refusesInvalidAnswers_data();
    void refusesInvalidAnswers();
    void reportsTooManyClients();
    void listsRunningServers();

private:
    /// Another process, as the endpoints of most clients are.
    std::unique_ptr<HostProcess> m_host;
    QString m_name;
};

void VXIPCClientTest::initTestCase()
{
    const int serverType = newServerType();
    m_host = std::make_unique<HostProcess>(serverType);
    m_name = m_host->serverName();
    QCOMPARE(m_name, nameOf(serverType));
}

void VXIPCClientTest::waitsForAResult()
{
    VXIPCClient client(m_name);
    QCOMPARE(client.serverName(), m_name);
    const VXIPCReply reply = client.callAndWait(QStringLiteral("scale"), QJsonArray{6, 7});
    QVERIFY(reply.isOk());
    QCOMPARE(reply.result.toInt(), 42);
    const VXIPCReply nothing =
        client.callAndWait(QStringLiteral("note"), QJsonArray{QStringLiteral("a")});
    QVERIFY(nothing.isOk());
    QVERIFY(nothing.result.isNull());
}

void VXIPCClientTest::waitsForAnError()
{
    VXIPCClient client(m_name);
    const VXIPCReply unknown = client.callAndWait(QStringLiteral("nothing"));
    QVERIFY(!unknown.isOk());
    QVERIFY(unknown.result.isNull());
    QCOMPARE(unknown.error->code, -32601);
    const VXIPCReply bad =
        client.callAndWait(QStringLiteral("scale"), QJsonArray{QStringLiteral("x")});
    QCOMPARE(bad.error->code, -32602);
    QCOMPARE(bad.error->data[QStringLiteral("argument")].toString(), QStringLiteral("value"));
    QVERIFY(client.isConnected());
}

void VXIPCClientTest::callsByName()
{
    VXIPCClient client(m_name);
    const VXIPCReply reply =
        client.callAndWait(QStringLiteral("scale"), QJsonObject{{QStringLiteral("factor"), 2},
                                                                {QStringLiteral("value"), 4}});
    QVERIFY(reply.isOk());
    QCOMPARE(reply.result.toInt(), 8);
}

void VXIPCClientTest::reportsThatNoEndpointAnswers()
{
    VXIPCClient client(newServerType());
    const VXIPCReply reply = client.callAndWait(QStringLiteral("notes"));
    QCOMPARE(reply.error->code, int(VXIPCError::NotReachable));
    QVERIFY(reply.error->message.contains(client.serverName()));
    QVERIFY(!client.connectToServer());
    QVERIFY(!client.notify(QStringLiteral("notes")));
    QVERIFY(!client.isConnected());

    std::optional<VXIPCReply> later;
    client.call(QStringLiteral("notes"), {}, [&](const VXIPCReply& outcome) { later = outcome; });
    QVERIFY(!later);
    QTRY_VERIFY(later);
    QCOMPARE(later->error->code, int(VXIPCError::NotReachable));
}

void VXIPCClientTest::givesUpWaitingInTime()
{
    VXIPCClient client(m_name);
    QElapsedTimer timer;
    timer.start();
    const VXIPCReply reply = client.callAndWait(QStringLiteral("block"), QJsonArray{500}, 50ms);
    QCOMPARE(reply.error->code, int(VXIPCError::TimedOut));
    QVERIFY(timer.elapsed() >= 50);
    QVERIFY(client.isConnected());

    client.setTimeout(10ms);
    QCOMPARE(client.timeout(), 10ms);
    QCOMPARE(client.callAndWait(QStringLiteral("block"), QJsonArray{100}).error->code,
             int(VXIPCError::TimedOut));
}

void VXIPCClientTest::ignoresLateAnswers()
{
    VXIPCClient client(m_name);
    QVERIFY(!client.callAndWait(QStringLiteral("block"), QJsonArray{100}, 1ms).isOk());
    const VXIPCReply reply = client.callAndWait(QStringLiteral("scale"), QJsonArray{1});
    QVERIFY(reply.isOk());
    QCOMPARE(reply.result.toInt(), 10);
}

void VXIPCClientTest::reportsCallsLostWithTheProcess()
{
    HostProcess host(newServerType());
    VXIPCClient client(host.serverName());
    std::optional<VXIPCReply> lost;
    client.call(QStringLiteral("wait"), {}, [&](const VXIPCReply& outcome) { lost = outcome; });
    // When this is answered, the endpoint is within the call.
    VXIPCClient other(host.serverName());
    QTRY_VERIFY(other.callAndWait(QStringLiteral("isWaiting")).result.toBool());
    host.kill();
    const VXIPCReply reply = client.callAndWait(QStringLiteral("notes"));
    QVERIFY(reply.error->code == VXIPCError::ConnectionLost ||
            reply.error->code == VXIPCError::NotReachable);
    QTRY_VERIFY(lost);
    QCOMPARE(lost->error->code, int(VXIPCError::ConnectionLost));
    QVERIFY(!client.isConnected());
    QLocalServer::removeServer(VXIPCClient::address(host.serverName()));
}

void VXIPCClientTest::discardsHalfAnAnswerOfAServerThatDied()
{
    const int serverType = newServerType();
    // Creates the folder that endpoints live in, where there is none yet.
    TestService service(newServerType());
    QTRY_VERIFY(!service.serverName().isEmpty());
    const DyingServer server(nameOf(serverType));
    QVERIFY(server.isListening());
    VXIPCClient client(serverType);
    std::optional<VXIPCReply> first;
    client.call(QStringLiteral("notes"), {}, [&](const VXIPCReply& reply) { first = reply; });
    QTRY_VERIFY(first);
    QCOMPARE(first->error->code, int(VXIPCError::ConnectionLost));
    std::optional<VXIPCReply> second;
    client.call(QStringLiteral("notes"), {}, [&](const VXIPCReply& reply) { second = reply; });
    QTRY_VERIFY(second);
    QVERIFY2(second->isOk(), qPrintable(second->error.value_or(VXIPCError()).message));
    QCOMPARE(second->result.toInt(), 2);
}

void VXIPCClientTest::refusesToSendALineThatIsTooLong()
{
    VXIPCClient client(m_name);
    // The longest line that an endpoint reads, not counting the line end, and one byte more. The
    // ids of both calls have one digit.
    const QByteArray bare = json_rpc::request(QString(), QJsonArray(), 1);
    const QString longest(json_rpc::maximumLine + 1 - bare.size(), QLatin1Char('x'));
    QCOMPARE(client.callAndWait(longest, QJsonArray()).error->code, -32601);
    QCOMPARE(client.callAndWait(longest + QLatin1Char('x'), QJsonArray()).error->code, -32000);
    // It was not sent, or the endpoint would have closed the connection.
    QSignalSpy disconnected(&client, &VXIPCClient::disconnected);
    QCOMPARE(client.callAndWait(QStringLiteral("scale"), QJsonArray{1}).result.toInt(), 10);
    QVERIFY(disconnected.isEmpty());
}

void VXIPCClientTest::callsWithoutWaiting()
{
    VXIPCClient client(m_name);
    std::optional<VXIPCReply> good;
    std::optional<VXIPCReply> bad;
    client.call(QStringLiteral("scale"), QJsonArray{2},
                [&](const VXIPCReply& outcome) { good = outcome; });
    client.call(QStringLiteral("nothing"), {}, [&](const VXIPCReply& outcome) { bad = outcome; });
    client.call(QStringLiteral("scale"), QJsonArray{2}, {});
    QVERIFY(!good);
    QTRY_VERIFY(good && bad);
    QCOMPARE(good->result.toInt(), 20);
    QCOMPARE(bad->error->code, -32601);
}

void VXIPCClientTest::callsBackLaterThanTheCall()
{
    VXIPCClient client(m_name);
    bool isAnswered = false;
    client.call(QStringLiteral("notes"), {}, [&](const VXIPCReply&) { isAnswered = true; });
    // The endpoint has answered both, but this thread's event loop has not run.
    QVERIFY(client.callAndWait(QStringLiteral("notes")).isOk());
    QVERIFY(!isAnswered);
    QTRY_VERIFY(isAnswered);
}

void VXIPCClientTest::keepsManyCallsInFlight()
{
    constexpr int callCount = 2000;
    VXIPCClient client(m_name);
    QList<int> results;
    for (int i = 0; i < callCount; ++i) {
        client.call(QStringLiteral("scale"), QJsonArray{i, 1},
                    [&](const VXIPCReply& outcome) { results.append(outcome.result.toInt(-1)); });
    }
    QTRY_COMPARE_WITH_TIMEOUT(results.size(), callCount, patience);
    for (int i = 0; i < callCount; ++i)
        QCOMPARE(results.at(i), i);
}

void VXIPCClientTest::reportsLateCallsInOrder()
{
    VXIPCClient client(m_name);
    client.setTimeout(20ms);
    QStringList order;
    const auto note = [&](const QString& name) {
        return [&order, name](const VXIPCReply& outcome) {
            order.append(name + (outcome.isOk() ? QStringLiteral(" answered")
                                                : QString::number(outcome.error->code)));
        };
    };
    client.call(QStringLiteral("block"), QJsonArray{300}, note(QStringLiteral("first ")));
    client.call(QStringLiteral("notes"), {}, note(QStringLiteral("second ")));
    client.setTimeout(20s);
    client.call(QStringLiteral("notes"), {}, note(QStringLiteral("third")));
    QTRY_COMPARE(order.size(), 3);
    QCOMPARE(order, (QStringList{QStringLiteral("first 3"), QStringLiteral("second 3"),
                                 QStringLiteral("third answered")}));
}

void VXIPCClientTest::givesUpEachCallInItsTime()
{
    // Creates the folder that endpoints live in, where there is none yet.
    TestService service(newServerType());
    QTRY_VERIFY(!service.serverName().isEmpty());
    const QString name = nameOf(newServerType());
    const OddServer silent(name, {});
    QVERIFY(silent.isListening());
    VXIPCClient client(name);
    client.setTimeout(20ms);
    for (int call = 1; call <= 3; ++call) {
        int error = 0;
        client.call(QStringLiteral("notes"), {}, [&](const VXIPCReply& outcome) {
            error = outcome.isOk() ? 0 : outcome.error->code;
        });
        QTRY_COMPARE(error, int(VXIPCError::TimedOut));
    }
}

void VXIPCClientTest::deliversOtherOutcomesAfterAWait()
{
    VXIPCClient client(m_name);
    QList<int> results;
    for (int i = 0; i < 100; ++i) {
        client.call(QStringLiteral("scale"), QJsonArray{i, 1},
                    [&](const VXIPCReply& outcome) { results.append(outcome.result.toInt(-1)); });
    }
    QCOMPARE(client.callAndWait(QStringLiteral("scale"), QJsonArray{100, 1}).result.toInt(), 100);
    QVERIFY(results.isEmpty());
    QTRY_COMPARE(results.size(), 100);
    QCOMPARE(results.first(), 0);
    QCOMPARE(results.last(), 99);
}

void VXIPCClientTest::waitsWithinACallback()
{
    VXIPCClient client(m_name);
    int inner = 0;
    bool isSecondAnswered = false;
    client.call(QStringLiteral("notes"), {}, [&](const VXIPCReply&) {
        inner = client.callAndWait(QStringLiteral("scale"), QJsonArray{5}).result.toInt();
    });
    client.call(QStringLiteral("notes"), {}, [&](const VXIPCReply&) { isSecondAnswered = true; });
    QTRY_COMPARE(inner, 50);
    QTRY_VERIFY(isSecondAnswered);
}

void VXIPCClientTest::runsAnEventLoopInACallback()
{
    // Creates the folder that endpoints live in, where there is none yet.
    TestService service(newServerType());
    QTRY_VERIFY(!service.serverName().isEmpty());
    const QString name = nameOf(newServerType());
    // Both answers arrive at once, and nothing after them.
    const OddServer server(name, json_rpc::success(1, "1") + json_rpc::success(2, "2"), 2);
    QVERIFY(server.isListening());
    VXIPCClient client(name);
    QEventLoop loop;
    bool isFirstDone = false;
    std::optional<VXIPCReply> second;
    client.call(QStringLiteral("notes"), {}, [&](const VXIPCReply&) {
        loop.exec();
        isFirstDone = true;
    });
    client.call(QStringLiteral("notes"), {}, [&](const VXIPCReply& reply) {
        second = reply;
        loop.quit();
    });
    QTRY_VERIFY(isFirstDone);
    QVERIFY2(second->isOk(), qPrintable(second->error.value_or(VXIPCError()).message));
    QCOMPARE(second->result.toInt(), 2);
}

void VXIPCClientTest::mayBeDestroyedInACallback()
{
    auto* client = new VXIPCClient(m_name);
    const QPointer<VXIPCClient> alive(client);
    int answers = 0;
    for (int i = 0; i < 10; ++i) {
        client->call(QStringLiteral("notes"), {}, [&answers, client](const VXIPCReply&) {
            ++answers;
            delete client;
        });
    }
    QTRY_VERIFY(!alive);
    QCOMPARE(answers, 1);
}

void VXIPCClientTest::mayBeDestroyedWhenTheConnectionIsLost_data()
{
    QTest::addColumn<bool>("isLostByTheServer");

    QTest::newRow("by the server") << true;
    QTest::newRow("by the client") << false;
}

void VXIPCClientTest::mayBeDestroyedWhenTheConnectionIsLost()
{
    QFETCH(const bool, isLostByTheServer);

    // Creates the folder that endpoints live in, where there is none yet.
    TestService service(newServerType());
    QTRY_VERIFY(!service.serverName().isEmpty());
    const QString name = nameOf(newServerType());
    const DyingServer server(name);
    QVERIFY(server.isListening());
    auto* client = new VXIPCClient(name);
    const QPointer<VXIPCClient> alive(client);
    client->call(QStringLiteral("notes"), {}, [client](const VXIPCReply&) { delete client; });
    if (!isLostByTheServer)
        client->disconnectFromServer();
    QTRY_VERIFY(!alive);
}

void VXIPCClientTest::answersACallMadeWhenTheConnectionIsLost()
{
    // Creates the folder that endpoints live in, where there is none yet.
    TestService service(newServerType());
    QTRY_VERIFY(!service.serverName().isEmpty());
    const QString name = nameOf(newServerType());
    const DyingServer server(name);
    QVERIFY(server.isListening());
    VXIPCClient client(name);
    std::optional<VXIPCReply> first;
    std::optional<VXIPCReply> second;
    connect(&client, &VXIPCClient::disconnected, this, [&] {
        client.call(QStringLiteral("notes"), {}, [&](const VXIPCReply& reply) { second = reply; });
    });
    client.call(QStringLiteral("notes"), {}, [&](const VXIPCReply& reply) { first = reply; });
    QTRY_VERIFY(first && second);
    QCOMPARE(first->error->code, int(VXIPCError::ConnectionLost));
    QVERIFY2(second->isOk(), qPrintable(second->error.value_or(VXIPCError()).message));
    QCOMPARE(second->result.toInt(), 2);
}

void VXIPCClientTest::forgetsItsCallsWhenDestroyed()
{
    bool isAnswered = false;
    const auto remember = [&](const VXIPCReply&) {
        isAnswered = true;
    };
    {
        VXIPCClient client(m_name);
        client.call(QStringLiteral("notes"), {}, remember);
        VXIPCClient unreachable(newServerType());
        unreachable.call(QStringLiteral("notes"), {}, remember);
    }
    VXIPCClient client(m_name);
    QVERIFY(client.callAndWait(QStringLiteral("notes")).isOk());
    QCoreApplication::processEvents();
    QVERIFY(!isAnswered);
}

void VXIPCClientTest::sendsNotifications()
{
    HostProcess host(newServerType());
    VXIPCClient client(host.serverName());
    QVERIFY(client.notify(QStringLiteral("note"), QJsonArray{QStringLiteral("sent")}));
    QVERIFY(client.notify(QStringLiteral("nothing")));
    QCOMPARE(client.callAndWait(QStringLiteral("notes")).result,
             QJsonValue(QJsonArray{QStringLiteral("sent")}));
}

void VXIPCClientTest::receivesNotifications()
{
    VXIPCClient client(m_name);
    const QSignalSpy received(&client, &VXIPCClient::notificationReceived);
    std::optional<VXIPCReply> subscribed;
    client.subscribe({toldSignal, QStringLiteral("stateChanged"), toldSignal},
                     [&](const VXIPCReply& reply) { subscribed = reply; });
    QVERIFY(!subscribed);
    QTRY_VERIFY(subscribed);
    QCOMPARE(subscribed->result,
             QJsonValue(QJsonArray{toldSignal, QStringLiteral("stateChanged")}));
    QCOMPARE(client.subscriptions(), (QStringList{toldSignal, QStringLiteral("stateChanged")}));
    // Another client causes the emissions.
    VXIPCClient other(m_name);
    const QSignalSpy unwanted(&other, &VXIPCClient::notificationReceived);
    QVERIFY(other.callAndWait(QStringLiteral("tell"), QJsonArray{QStringLiteral("a"), 2}).isOk());
    QVERIFY(
        other.callAndWait(QStringLiteral("setState"), QJsonArray{QStringLiteral("b"), 5}).isOk());
    QTRY_COMPARE(received.size(), 3);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(received.at(i).at(0).toString(), toldSignal);
        QCOMPARE(received.at(i).at(1).toJsonObject(), toldArguments(QStringLiteral("a"), i));
    }
    QCOMPARE(received.at(2).at(0).toString(), QStringLiteral("stateChanged"));
    QVERIFY(unwanted.isEmpty());
}

void VXIPCClientTest::deliversNotificationsAndOutcomesInOrder()
{
    // Creates the folder that endpoints live in, where there is none yet.
    TestService service(newServerType());
    QTRY_VERIFY(!service.serverName().isEmpty());
    const QString name = nameOf(newServerType());
    const QByteArray notification = R"({"jsonrpc":"2.0","method":"told","params":{}})"
                                    "\n";
    const OddServer server(name,
                           json_rpc::success(1, "1") + notification + json_rpc::success(2, "2") +
                               notification + notification,
                           2);
    QVERIFY(server.isListening());
    VXIPCClient client(name);
    QStringList order;
    connect(&client, &VXIPCClient::notificationReceived, this,
            [&](const QString& signalName) { order.append(signalName); });
    const auto note = [&](const VXIPCReply& reply) {
        order.append(QString::number(reply.result.toInt()));
    };
    client.call(QStringLiteral("notes"), {}, note);
    client.call(QStringLiteral("notes"), {}, note);
    QTRY_COMPARE(order.size(), 5);
    QCOMPARE(order, (QStringList{QStringLiteral("1"), toldSignal, QStringLiteral("2"), toldSignal,
                                 toldSignal}));
}

void VXIPCClientTest::deliversNotificationsAfterAWait()
{
    VXIPCClient client(m_name);
    const QSignalSpy received(&client, &VXIPCClient::notificationReceived);
    client.subscribe({toldSignal});
    // Answered after the notifications have been sent.
    for (int i = 0; i < 10; ++i)
        QVERIFY(client.callAndWait(QStringLiteral("tell"), QJsonArray{QStringLiteral("a")}).isOk());
    QVERIFY(received.isEmpty());
    QTRY_COMPARE(received.size(), 10);
}

void VXIPCClientTest::forgetsSubscriptionsThatAreRefused()
{
    VXIPCClient client(m_name);
    std::optional<VXIPCReply> refused;
    client.subscribe({toldSignal});
    client.subscribe({toldSignal, QStringLiteral("nothing")},
                     [&](const VXIPCReply& reply) { refused = reply; });
    QTRY_VERIFY(refused);
    QCOMPARE(refused->error->code, -32602);
    QVERIFY(refused->error->message.contains(QStringLiteral("nothing")));
    QCOMPARE(client.subscriptions(), QStringList{toldSignal});
}

void VXIPCClientTest::endsSubscriptions()
{
    VXIPCClient client(m_name);
    const QSignalSpy received(&client, &VXIPCClient::notificationReceived);
    client.subscribe({toldSignal, QStringLiteral("stateChanged")});
    std::optional<VXIPCReply> ended;
    client.unsubscribe({toldSignal}, [&](const VXIPCReply& reply) { ended = reply; });
    QTRY_VERIFY(ended);
    QCOMPARE(ended->result, QJsonValue(QJsonArray{QStringLiteral("stateChanged")}));
    QVERIFY(client.callAndWait(QStringLiteral("tell"), QJsonArray{QStringLiteral("a")}).isOk());
    QVERIFY(
        client.callAndWait(QStringLiteral("setState"), QJsonArray{QStringLiteral("b"), 5}).isOk());
    QTRY_COMPARE(received.size(), 1);
    QCOMPARE(received.at(0).at(0).toString(), QStringLiteral("stateChanged"));

    // Without a connection there is nothing to end at the endpoint.
    client.disconnectFromServer();
    ended.reset();
    client.unsubscribe({QStringLiteral("stateChanged")},
                       [&](const VXIPCReply& reply) { ended = reply; });
    QVERIFY(!ended);
    QTRY_VERIFY(ended);
    QVERIFY(ended->isOk());
    QCOMPARE(client.subscriptions(), QStringList());
    QVERIFY(!client.isConnected());
}

void VXIPCClientTest::subscribesAgain()
{
    const int serverType = newServerType();
    auto host = std::make_unique<HostProcess>(serverType);
    VXIPCClient client(serverType);
    const QSignalSpy disconnected(&client, &VXIPCClient::disconnected);
    const QSignalSpy resubscribed(&client, &VXIPCClient::resubscribed);
    QStringList order;
    connect(&client, &VXIPCClient::resubscribed, this, [&] {
        order.append(QStringLiteral("resubscribed"));
        client.call(QStringLiteral("tell"), QJsonArray{QStringLiteral("again")}, {});
    });
    connect(&client, &VXIPCClient::notificationReceived, this,
            [&](const QString&, const QJsonObject& arguments) {
                order.append(arguments[QStringLiteral("text")].toString());
            });
    bool isSubscribed = false;
    client.subscribe({toldSignal}, [&](const VXIPCReply& reply) { isSubscribed = reply.isOk(); });
    QTRY_VERIFY(isSubscribed);
    QVERIFY(resubscribed.isEmpty());
    host->kill();
    QTRY_COMPARE(disconnected.size(), 1);
    host = std::make_unique<HostProcess>(serverType);
    QTRY_COMPARE_WITH_TIMEOUT(order.size(), 2, patience);
    QCOMPARE(order, (QStringList{QStringLiteral("resubscribed"), QStringLiteral("again")}));
}

void VXIPCClientTest::subscribesAgainBeforeACallThatConnects()
{
    VXIPCClient client(m_name);
    const QSignalSpy received(&client, &VXIPCClient::notificationReceived);
    bool isSubscribed = false;
    client.subscribe({toldSignal}, [&](const VXIPCReply& reply) { isSubscribed = reply.isOk(); });
    QTRY_VERIFY(isSubscribed);
    client.disconnectFromServer();
    QVERIFY(client.callAndWait(QStringLiteral("tell"), QJsonArray{QStringLiteral("a")}).isOk());
    QTRY_COMPARE(received.size(), 1);
}

void VXIPCClientTest::subscribesWhenAnEndpointComes()
{
    const int serverType = newServerType();
    VXIPCClient client(serverType);
    const QSignalSpy received(&client, &VXIPCClient::notificationReceived);
    const QSignalSpy resubscribed(&client, &VXIPCClient::resubscribed);
    std::optional<VXIPCReply> outcome;
    client.subscribe({toldSignal}, [&](const VXIPCReply& reply) { outcome = reply; });
    QTRY_VERIFY(outcome);
    QCOMPARE(outcome->error->code, int(VXIPCError::NotReachable));
    QCOMPARE(client.subscriptions(), QStringList{toldSignal});
    TestService service(serverType);
    QTRY_COMPARE_WITH_TIMEOUT(resubscribed.size(), 1, patience);
    service.tell(QStringLiteral("a"));
    QTRY_COMPARE(received.size(), 1);
}

void VXIPCClientTest::reportsALostSubscription()
{
    const int serverType = newServerType();
    auto service = std::make_unique<TestService>(serverType);
    VXIPCClient client(serverType);
    const QSignalSpy resubscribed(&client, &VXIPCClient::resubscribed);
    const QSignalSpy lost(&client, &VXIPCClient::subscriptionLost);
    QTRY_VERIFY(!service->serverName().isEmpty());
    bool isSubscribed = false;
    client.subscribe({toldSignal}, [&](const VXIPCReply& reply) { isSubscribed = reply.isOk(); });
    QTRY_VERIFY(isSubscribed);
    service.reset();
    auto mute = std::make_unique<MuteService>(serverType);
    QTRY_COMPARE_WITH_TIMEOUT(lost.size(), 1, patience);
    QVERIFY(lost.at(0).at(0).toString().contains(QStringLiteral("there is no signal \"told\"")));
    QVERIFY(resubscribed.isEmpty());
    QCOMPARE(client.subscriptions(), QStringList{toldSignal});
    mute.reset();
    service = std::make_unique<TestService>(serverType);
    QTRY_COMPARE_WITH_TIMEOUT(resubscribed.size(), 1, patience);
}

void VXIPCClientTest::keepsItsSubscriptionsWhenItIsOneClientTooMany()
{
    HostProcess host(newServerType());
    std::vector<std::unique_ptr<VXIPCClient>> clients;
    for (int i = 0; i < 64; ++i) {
        clients.push_back(std::make_unique<VXIPCClient>(host.serverName()));
        QVERIFY(clients.back()->callAndWait(QStringLiteral("notes")).isOk());
    }
    VXIPCClient tooMany(host.serverName());
    const QSignalSpy resubscribed(&tooMany, &VXIPCClient::resubscribed);
    std::optional<VXIPCReply> outcome;
    tooMany.subscribe({toldSignal}, [&](const VXIPCReply& reply) { outcome = reply; });
    QTRY_VERIFY(outcome);
    QCOMPARE(outcome->error->code, -32001);
    clients.clear();
    QTRY_COMPARE_WITH_TIMEOUT(resubscribed.size(), 1, patience);
}

void VXIPCClientTest::mayBeDestroyedByANotification()
{
    auto* client = new VXIPCClient(m_name);
    const QPointer<VXIPCClient> alive(client);
    int received = 0;
    connect(client, &VXIPCClient::notificationReceived, this, [&received, client] {
        ++received;
        delete client;
    });
    client->subscribe({toldSignal});
    client->call(QStringLiteral("tell"), QJsonArray{QStringLiteral("a"), 10}, {});
    QTRY_VERIFY(!alive);
    QCOMPARE(received, 1);
}

void VXIPCClientTest::reportsConnections()
{
    VXIPCClient client(m_name);
    QSignalSpy connected(&client, &VXIPCClient::connected);
    QSignalSpy disconnected(&client, &VXIPCClient::disconnected);
    QVERIFY(!client.isConnected());
    QVERIFY(client.connectToServer());
    QVERIFY(client.connectToServer());
    QCOMPARE(connected.size(), 1);
    QVERIFY(client.isConnected());

    std::optional<VXIPCReply> lost;
    client.call(QStringLiteral("notes"), {}, [&](const VXIPCReply& outcome) { lost = outcome; });
    client.disconnectFromServer();
    QCOMPARE(disconnected.size(), 1);
    QVERIFY(!client.isConnected());
    QTRY_VERIFY(lost);
    QCOMPARE(lost->error->code, int(VXIPCError::ConnectionLost));
    QVERIFY(client.callAndWait(QStringLiteral("notes")).isOk());
}

void VXIPCClientTest::connectsAgain()
{
    const int serverType = newServerType();
    auto host = std::make_unique<HostProcess>(serverType);
    VXIPCClient client(serverType);
    QSignalSpy connected(&client, &VXIPCClient::connected);
    QSignalSpy disconnected(&client, &VXIPCClient::disconnected);
    QVERIFY(client.connectToServer());
    host->kill();
    QTRY_COMPARE(disconnected.size(), 1);
    host = std::make_unique<HostProcess>(serverType);
    QTRY_COMPARE_WITH_TIMEOUT(connected.size(), 2, patience);
    QVERIFY(client.isConnected());

    // A call does not wait for the next attempt.
    host->kill();
    QTRY_COMPARE(disconnected.size(), 2);
    host = std::make_unique<HostProcess>(serverType);
    QVERIFY(client.callAndWait(QStringLiteral("notes")).isOk());
}

void VXIPCClientTest::staysDisconnectedOnRequest()
{
    VXIPCClient client(m_name);
    QSignalSpy connected(&client, &VXIPCClient::connected);
    QVERIFY(client.connectToServer());
    client.disconnectFromServer();
    // Longer than it takes to connect again.
    QVERIFY(!QTest::qWaitFor([&] { return connected.size() > 1; }, 300));
    QVERIFY(!client.isConnected());
}

void VXIPCClientTest::findsAnEndpointThatComesLater()
{
    const int serverType = newServerType();
    VXIPCClient client(serverType);
    QVERIFY(!client.connectToServer());
    QSignalSpy connected(&client, &VXIPCClient::connected);
    TestService service(serverType);
    QTRY_COMPARE_WITH_TIMEOUT(connected.size(), 1, patience);
}

void VXIPCClientTest::refusesInvalidAnswers_data()
{
    QTest::addColumn<QByteArray>("answer");

    QTest::newRow("no JSON") << QByteArray("hello\n");
    QTest::newRow("no object") << QByteArray("[]\n");
    QTest::newRow("without an end") << QByteArray(9 << 20, 'x');
    QTest::newRow("neither result nor error") << QByteArray("{\"jsonrpc\":\"2.0\",\"id\":1}\n");
    QTest::newRow("result and error")
        << QByteArray("{\"jsonrpc\":\"2.0\",\"id\":1,\"result\":1,\"error\":{}}\n");
    QTest::newRow("without a version") << QByteArray("{\"id\":1,\"result\":1}\n");
    QTest::newRow("notification with a list")
        << QByteArray("{\"jsonrpc\":\"2.0\",\"method\":\"a\",\"params\":[1]}\n");
    QTest::newRow("notification without a name")
        << QByteArray("{\"jsonrpc\":\"2.0\",\"method\":1,\"params\":{}}\n");
    QTest::newRow("request") << QByteArray(
        "{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"a\",\"params\":{}}\n");
    QTest::newRow("empty object") << QByteArray("{}\n");
}

void VXIPCClientTest::refusesInvalidAnswers()
{
    QFETCH(const QByteArray, answer);

    const int serverType = newServerType();
    // Creates the folder that endpoints live in, where there is none yet.
    TestService service(newServerType());
    QTRY_VERIFY(!service.serverName().isEmpty());
    const OddServer server(nameOf(serverType), answer);
    QVERIFY(server.isListening());
    VXIPCClient client(serverType);
    const QSignalSpy partings(&client, &VXIPCClient::disconnected);
    std::optional<VXIPCReply> outcome;
    client.call(QStringLiteral("notes"), {}, [&](const VXIPCReply& reply) { outcome = reply; });
    QTRY_VERIFY(outcome);
    QCOMPARE(outcome->error->code, int(VXIPCError::BadAnswer));
    // Whatever else arrives is useless, and may never end.
    QTRY_VERIFY(!partings.isEmpty());
}

void VXIPCClientTest::reportsTooManyClients()
{
    HostProcess host(newServerType());
    std::vector<std::unique_ptr<VXIPCClient>> clients;
    for (int i = 0; i < 64; ++i) {
        clients.push_back(std::make_unique<VXIPCClient>(host.serverName()));
        QVERIFY(clients.back()->callAndWait(QStringLiteral("notes")).isOk());
    }
    VXIPCClient tooMany(host.serverName());
    QCOMPARE(tooMany.callAndWait(QStringLiteral("notes")).error->code, -32001);
}

void VXIPCClientTest::listsRunningServers()
{
    const QString name = nameOf(newServerType());
    QVERIFY(VXIPCClient::runningServers().contains(m_name));
    QVERIFY(!VXIPCClient::runningServers().contains(name));
}

QTEST_GUILESS_MAIN(VXIPCClientTest)
#include "tst_vxipc_client.moc"
