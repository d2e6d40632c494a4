// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// What clients receive that have subscribed to the signals of an endpoint.
#include "ipc_connection.h"
#include "ipc_host_process.h"
#include "ipc_json.h"
#include "ipc_publisher.h"
#include "ipc_server_test.h"

#include <QtCore/QPointer>
#include <QtCore/QRegularExpression>
#include <QtCore/QThread>

#include <algorithm>
#include <memory>
#include <vector>

using namespace ipc_json;
using namespace std::chrono_literals;

namespace {

constexpr qsizetype mebibyte = qsizetype{1} << 20;
/// More than the system buffers for a client that does not read.
constexpr int manyKibibytes = 2048;

QByteArray request(const QByteArray& method, const QByteArray& parameters, int id = 1)
{
    return R"({"jsonrpc":"2.0","id":)" + QByteArray::number(id) + R"(,"method":")" + method +
           R"(","params":)" + parameters + '}';
}

QString methodOf(const QJsonObject& message)
{
    return message[QStringLiteral("method")].toString();
}

QJsonObject argumentsOf(const QJsonObject& message)
{
    return message[QStringLiteral("params")].toObject();
}

/// The next notification, past answers. Empty when none comes.
QJsonObject nextNotification(RawClient& client)
{
    for (QByteArray line = client.receive(); !line.isEmpty(); line = client.receive()) {
        const QJsonObject message = object(line);
        if (message.contains(QStringLiteral("method")))
            return message;
    }
    return {};
}

/// Whether the client receives no notification that was caused before this.
bool receivesNothing(RawClient& client)
{
    // Notifications wait for a turn, and the turn comes before this call's.
    for (int i = 0; i < 3; ++i) {
        client.send(request("scale", "[1]") + '\n');
        if (object(client.receive()).contains(QStringLiteral("method")))
            return false;
    }
    return true;
}

bool isServed(RawClient& client)
{
    return client.call("scale", "[1]")[QStringLiteral("result")].toInt() == 10;
}

/// Waits until another client's call runs an event loop in a slot of the endpoint.
bool waitsInASlot(RawClient& observer)
{
    return QTest::qWaitFor(
        [&] { return observer.call("isWaiting")[QStringLiteral("result")].toBool(); }, patience);
}

QString textOfKibibyte(QChar character = u'x')
{
    return {1024, character};
}

QJsonObject reading(const QString& name, int value, const QString& filler = {})
{
    return {{QStringLiteral("name"), name},
            {QStringLiteral("value"), value},
            {QStringLiteral("filler"), filler}};
}

} // namespace

class VXIPCPushTest : public IpcServerTest
{
    Q_OBJECT

private Q_SLOTS:
    void answersASubscriptionBeforeTheFirstNotification();
    void answersABatchThatSubscribesBeforeTheFirstNotification();
    void sendsWhatIsEmittedWithinABatchThatSubscribes();
    void carriesArguments();
    void namesArgumentsThatHaveNoName();
    void subscribesToOverloadsTogether();
    void takesNamesInAnObject();
    void sendsOnlyWhatWasSubscribedTo();
    void sendsNothingThatWasEmittedBefore();
    void stopsSendingOnRequest();
    void sendsEachEmissionOnceToAClientThatSubscribedTwice();
    void connectsToNoSignalThatNobodySubscribedTo();
    void refusesBadSubscriptions_data();
    void refusesBadSubscriptions();
    void subscribesToNothingWhenOneNameIsWrong();
    void namesWhatItRefuses();
    void survivesAFloodOfSubscriptions();
    void describesTheSignals();

    void sendsEmissionsOfOtherThreadsInOrder();
    void sendsWhatASlotEmitsToTheClientThatCalled();
    void sendsDuringACall();
    void sendsToAllSubscribers();
    void sendsMoreThanTheSystemBuffers();
    void replacesStatesThatWait();
    void replacesStatesByAKeyThatTheEndpointFinds();
    void sendsTheLatestStateAfterWhatPrecededIt();
    void replacesStatesBeforeTheyAreWritten();
    void keepsTheOrderOfSignals();
    void disconnectsAClientThatDoesNotRead();
    void disconnectsAClientDuringASlotThatEmitsTooMuch();
    void sendsNoNotificationThatIsTooLong();
    void sendsTheLongestAnswerToASubscriber();
    void keepsSubscribersThatRead();
    void replacesASubscriberThatDoesNotRead();
    void forgetsAClientThatDies();
    void mayBeDestroyedWhileSubscribersWait();
    void mayBeDestroyedByTheLastCallOfASubscriberThatLeft();

    void answersTheErrorOfASlot();
    void answersTheErrorOfTheSlotThatRefused();
    void refusesNothingWithinTheProcess();

private:
    /// A client that has subscribed; null when it was not answered.
    std::unique_ptr<RawClient> subscriber(const QByteArray& names)
    {
        auto client = std::make_unique<RawClient>(serverName());
        return client->call("rpc.subscribe", names).contains(QStringLiteral("result"))
                   ? std::move(client)
                   : nullptr;
    }
};

void VXIPCPushTest::answersASubscriptionBeforeTheFirstNotification()
{
    RawClient client(serverName());
    client.send(request("rpc.subscribe", R"(["told"])", 1) + '\n' +
                request("tell", R"(["a",3])", 2) + '\n');
    QCOMPARE(object(client.receive()),
             (QJsonObject{{QStringLiteral("jsonrpc"), QStringLiteral("2.0")},
                          {QStringLiteral("id"), 1},
                          {QStringLiteral("result"), QJsonArray{QStringLiteral("told")}}}));
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(nextNotification(client),
                 (QJsonObject{{QStringLiteral("jsonrpc"), QStringLiteral("2.0")},
                              {QStringLiteral("method"), QStringLiteral("told")},
                              {QStringLiteral("params"),
                               QJsonObject{{QStringLiteral("text"), QStringLiteral("a")},
                                           {QStringLiteral("number"), i}}}}));
    }
}

void VXIPCPushTest::answersABatchThatSubscribesBeforeTheFirstNotification()
{
    RawClient client(serverName());
    // Takes several turns, in which notifications could be sent.
    const QByteArray tell = request("tell", R"(["a"])", 2) + ',';
    client.send('[' + request("rpc.subscribe", R"(["told"])", 1) + ',' + tell.repeated(2000) +
                request("tell", R"(["last"])", 3) + "]\n");
    const QByteArray first = client.receive();
    QCOMPARE(QJsonDocument::fromJson(first).array().size(), 2002);
    for (int i = 0; i < 2000; ++i)
        QCOMPARE(argumentsOf(object(client.receive()))[QStringLiteral("text")].toString(),
                 QStringLiteral("a"));
    QCOMPARE(argumentsOf(object(client.receive()))[QStringLiteral("text")].toString(),
             QStringLiteral("last"));
}

void VXIPCPushTest::sendsWhatIsEmittedWithinABatchThatSubscribes()
{
    const HostProcess host(newServerType());
    RawClient client(host.serverName());
    RawClient other(host.serverName());
    // The batch waits in a slot, and meanwhile another client causes emissions.
    client.send('[' + request("rpc.subscribe", R"(["told"])", 1) + ',' + request("wait", "[]", 2) +
                "]\n");
    QVERIFY(waitsInASlot(other));
    QVERIFY(other.call("tell", R"(["meanwhile"])").contains(QStringLiteral("result")));
    QVERIFY(other.call("release").contains(QStringLiteral("result")));
    QCOMPARE(QJsonDocument::fromJson(client.receive()).array().size(), 2);
    QCOMPARE(argumentsOf(object(client.receive()))[QStringLiteral("text")].toString(),
             QStringLiteral("meanwhile"));
}

void VXIPCPushTest::carriesArguments()
{
    const auto client = subscriber(R"(["recordChanged","readingChanged"])");
    QVERIFY(client);
    TestRecord record;
    record.name = QStringLiteral("Jägergrün");
    record.count = 3;
    Q_EMIT m_service->recordChanged(record, QByteArray("\0\1\2", 3), QVariant(QStringLiteral("v")),
                                    QJsonArray{1, QJsonValue::Null},
                                    std::numeric_limits<double>::infinity());
    const QJsonObject arguments = argumentsOf(nextNotification(*client));
    QCOMPARE(arguments.keys(),
             (QStringList{QStringLiteral("bytes"), QStringLiteral("json"), QStringLiteral("number"),
                          QStringLiteral("record"), QStringLiteral("value")}));
    QCOMPARE(arguments[QStringLiteral("record")][QStringLiteral("name")].toString(), record.name);
    QCOMPARE(arguments[QStringLiteral("record")][QStringLiteral("count")].toInt(), 3);
    QCOMPARE(arguments[QStringLiteral("bytes")].toString(), QStringLiteral("AAEC"));
    QCOMPARE(arguments[QStringLiteral("value")].toString(), QStringLiteral("v"));
    QCOMPARE(arguments[QStringLiteral("json")], QJsonValue(QJsonArray{1, QJsonValue::Null}));
    QVERIFY(arguments[QStringLiteral("number")].isNull());

    const QJsonObject nested{{QStringLiteral("name"), QStringLiteral("\"\n\u2028😀")},
                             {QStringLiteral("levels"), QJsonArray{0.5, QJsonObject()}}};
    Q_EMIT m_service->readingChanged(nested);
    QCOMPARE(argumentsOf(nextNotification(*client)),
             (QJsonObject{{QStringLiteral("reading"), nested}}));
}

void VXIPCPushTest::namesArgumentsThatHaveNoName()
{
    const auto client = subscriber(R"(["unnamed"])");
    QVERIFY(client);
    Q_EMIT m_service->unnamed(1, QStringLiteral("a"));
    QCOMPARE(argumentsOf(nextNotification(*client)),
             (QJsonObject{{QStringLiteral("argument1"), 1},
                          {QStringLiteral("argument2"), QStringLiteral("a")}}));
}

void VXIPCPushTest::subscribesToOverloadsTogether()
{
    const auto client = subscriber(R"(["overloadedSignal"])");
    QVERIFY(client);
    Q_EMIT m_service->overloadedSignal(1);
    Q_EMIT m_service->overloadedSignal(QStringLiteral("a"));
    QCOMPARE(argumentsOf(nextNotification(*client)), (QJsonObject{{QStringLiteral("value"), 1}}));
    QCOMPARE(argumentsOf(nextNotification(*client)),
             (QJsonObject{{QStringLiteral("text"), QStringLiteral("a")},
                          {QStringLiteral("flag"), true}}));
}

void VXIPCPushTest::takesNamesInAnObject()
{
    const auto client = subscriber(R"({"signals":["told"]})");
    QVERIFY(client);
    m_service->tell(QStringLiteral("a"));
    QCOMPARE(methodOf(nextNotification(*client)), QStringLiteral("told"));
}

void VXIPCPushTest::sendsOnlyWhatWasSubscribedTo()
{
    const auto client = subscriber(R"(["told"])");
    QVERIFY(client);
    m_service->setState(QStringLiteral("a"), 1);
    m_service->tell(QStringLiteral("b"));
    QCOMPARE(methodOf(nextNotification(*client)), QStringLiteral("told"));
    m_service->setState(QStringLiteral("a"), 2);
    QVERIFY(receivesNothing(*client));
}

void VXIPCPushTest::sendsNothingThatWasEmittedBefore()
{
    const auto earlier = subscriber(R"(["told"])");
    QVERIFY(earlier);
    RawClient client(serverName());
    // All in one turn, so that the first emission still waits when the client subscribes.
    client.send(request("tell", R"(["before"])") + '\n' + request("rpc.subscribe", R"(["told"])") +
                '\n' + request("tell", R"(["after"])") + '\n');
    QCOMPARE(argumentsOf(nextNotification(client))[QStringLiteral("text")].toString(),
             QStringLiteral("after"));
    QCOMPARE(argumentsOf(nextNotification(*earlier))[QStringLiteral("text")].toString(),
             QStringLiteral("before"));
}

void VXIPCPushTest::stopsSendingOnRequest()
{
    const auto client = subscriber(R"(["told","stateChanged"])");
    QVERIFY(client);
    QCOMPARE(client->call("rpc.unsubscribe", R"(["told"])")[QStringLiteral("result")],
             QJsonValue(QJsonArray{QStringLiteral("stateChanged")}));
    m_service->tell(QStringLiteral("a"));
    m_service->setState(QStringLiteral("b"), 1);
    QCOMPARE(methodOf(nextNotification(*client)), QStringLiteral("stateChanged"));
    QCOMPARE(client->call("rpc.unsubscribe", R"(["told"])")[QStringLiteral("result")],
             QJsonValue(QJsonArray{QStringLiteral("stateChanged")}));
}

void VXIPCPushTest::sendsEachEmissionOnceToAClientThatSubscribedTwice()
{
    const auto client = subscriber(R"(["told","told"])");
    QVERIFY(client);
    QCOMPARE(client->call("rpc.subscribe", R"(["told"])")[QStringLiteral("result")],
             QJsonValue(QJsonArray{QStringLiteral("told")}));
    m_service->tell(QStringLiteral("a"));
    QCOMPARE(methodOf(nextNotification(*client)), QStringLiteral("told"));
    QVERIFY(receivesNothing(*client));
}

void VXIPCPushTest::connectsToNoSignalThatNobodySubscribedTo()
{
    const char* told = "told(QString,int)";
    RawClient first(serverName());
    QVERIFY(isServed(first));
    QVERIFY(!m_service->hasSubscribers(told));
    first.call("rpc.subscribe", R"(["told"])");
    const auto second = subscriber(R"(["told"])");
    QVERIFY(second);
    QVERIFY(m_service->hasSubscribers(told));
    QVERIFY(!m_service->hasSubscribers("stateChanged(QString,int)"));
    first.call("rpc.unsubscribe", R"(["told"])");
    QVERIFY(m_service->hasSubscribers(told));
    second->socket().abort();
    QTRY_VERIFY(!m_service->hasSubscribers(told));
}

void VXIPCPushTest::refusesBadSubscriptions_data()
{
    QTest::addColumn<QByteArray>("parameters");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("complaint");

    const auto row = [](const char* name, const QByteArray& parameters, const char* complaint,
                        int code = -32602) {
        QTest::newRow(name) << parameters << code << QString::fromUtf8(complaint);
    };
    row("unknown", R"(["nothing"])", "there is no signal \"nothing\"");
    row("a slot", R"(["tell"])", "there is no signal \"tell\"");
    row("QObject's", R"(["destroyed"])", "there is no signal \"destroyed\"");
    row("other letter case", R"(["Told"])", "there is no signal \"Told\"");
    row("empty name", R"([""])", "there is no signal \"\"");
    row("unsupported type", R"(["unsendable"])",
        "\"unsendable\" cannot be sent: JSON has no form for QObject*");
    row("number", "[1]", "expected the names of signals, as a list of texts, got 1 among them");
    row("list", R"([["told"]])", "got a list among them");
    row("null", "[null]", "got null among them");
    row("text for the list", R"({"signals":"told"})", "got a text");
    row("no list", "{}", "got nothing");
    row("other argument", R"({"signals":["told"],"signal":[]})", "there is no argument \"signal\"");
    row("65 names", list(65, R"("told")"), "expected a list of at most 64 entries, got 65");
    row("60000 names", list(60000, R"("told")"),
        "expected a list of at most 64 entries, got 60000");
    row("100000 names", list(100000, R"("told")"), "more than 65536 values", -32600);
    row("long name", '[' + textOfSize(4097) + ']', "a text of at most 4096 characters, got 4097");
    row("many unknown names", list(64, R"("no")"), "\"no\" and 59 more");
}

void VXIPCPushTest::refusesBadSubscriptions()
{
    QFETCH(const QByteArray, parameters);
    QFETCH(const int, code);
    QFETCH(const QString, complaint);

    RawClient client(serverName());
    for (const QByteArray method : {"rpc.subscribe", "rpc.unsubscribe"}) {
        const QJsonObject answer = client.call(method, parameters);
        QCOMPARE(errorCode(answer), code);
        QVERIFY2(errorMessage(answer).contains(complaint), qPrintable(errorMessage(answer)));
    }
    QVERIFY(isServed(client));
}

void VXIPCPushTest::subscribesToNothingWhenOneNameIsWrong()
{
    RawClient client(serverName());
    QCOMPARE(errorCode(client.call("rpc.subscribe", R"(["told","nothing"])")), -32602);
    m_service->tell(QStringLiteral("a"));
    QVERIFY(receivesNothing(client));
}

void VXIPCPushTest::namesWhatItRefuses()
{
    RawClient client(serverName());
    const QJsonObject answer = client.call("rpc.subscribe", R"(["told","nothing","\u001b[2J"])");
    QCOMPARE(answer[QStringLiteral("error")][QStringLiteral("data")],
             QJsonValue(QJsonObject{
                 {QStringLiteral("signals"),
                  QJsonArray{QStringLiteral("nothing"), QStringLiteral("\u001b[2J")}}}));
}

void VXIPCPushTest::survivesAFloodOfSubscriptions()
{
    RawClient bystander(serverName());
    RawClient client(serverName());
    constexpr int rounds = 5000;
    const QByteArray round =
        R"({"jsonrpc":"2.0","method":"rpc.subscribe","params":["told","stateChanged"]})"
        "\n"
        R"({"jsonrpc":"2.0","method":"rpc.unsubscribe","params":["told"]})"
        "\n";
    client.send(round.repeated(rounds));
    QVERIFY(isServed(bystander));
    QCOMPARE(client.call("rpc.subscribe", "[]")[QStringLiteral("result")],
             QJsonValue(QJsonArray{QStringLiteral("stateChanged")}));
    m_service->setState(QStringLiteral("a"), 1);
    QCOMPARE(methodOf(nextNotification(client)), QStringLiteral("stateChanged"));
}

void VXIPCPushTest::describesTheSignals()
{
    RawClient client(serverName());
    const QJsonObject document = client.call("rpc.discover")[QStringLiteral("result")].toObject();
    QJsonObject byName;
    for (const QJsonArray all = document[QStringLiteral("x-signals")].toArray();
         const QJsonValue& each : all)
        byName.insert(each[QStringLiteral("name")].toString(), each);
    QCOMPARE(byName.keys(),
             (QStringList{QStringLiteral("overloadedSignal"), QStringLiteral("readingChanged"),
                          QStringLiteral("recordChanged"), QStringLiteral("released"),
                          QStringLiteral("stateChanged"), QStringLiteral("told"),
                          QStringLiteral("unnamed")}));
    QCOMPARE(byName[QStringLiteral("told")][QStringLiteral("params")],
             parsed(R"([{"name":"text","schema":{"type":"string"},"x-type":"QString"},
                        {"name":"number","schema":{"type":"integer"},"x-type":"int"}])"));
    QCOMPARE(byName[QStringLiteral("recordChanged")][QStringLiteral("params")][0]
                   [QStringLiteral("schema")],
             parsed(R"({"$ref":"#/components/schemas/TestRecord"})"));
    QVERIFY(document[QStringLiteral("components")][QStringLiteral("schemas")].toObject().contains(
        QStringLiteral("TestRecord")));
}

void VXIPCPushTest::sendsEmissionsOfOtherThreadsInOrder()
{
    constexpr int threadCount = 4;
    constexpr int emissionCount = 200;
    const auto client = subscriber(R"(["told"])");
    QVERIFY(client);
    std::vector<std::unique_ptr<QThread>> threads;
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back(
            QThread::create([this, i] { m_service->tell(QString::number(i), emissionCount); }));
        threads.back()->start();
    }
    QHash<QString, int> next;
    for (int i = 0; i < threadCount * emissionCount; ++i) {
        const QJsonObject arguments = argumentsOf(nextNotification(*client));
        QCOMPARE(arguments[QStringLiteral("number")].toInt(-1),
                 next[arguments[QStringLiteral("text")].toString()]++);
    }
    for (const auto& thread : threads)
        QVERIFY(thread->wait());
    QCOMPARE(next.size(), threadCount);
}

void VXIPCPushTest::sendsWhatASlotEmitsToTheClientThatCalled()
{
    const auto client = subscriber(R"(["told"])");
    QVERIFY(client);
    client->send(request("tell", R"(["a",2])") + '\n');
    QStringList received;
    for (int i = 0; i < 3; ++i) {
        const QJsonObject message = object(client->receive());
        received.append(message.contains(QStringLiteral("method")) ? methodOf(message)
                                                                   : QStringLiteral("answer"));
    }
    QCOMPARE(received, (QStringList{QStringLiteral("answer"), QStringLiteral("told"),
                                    QStringLiteral("told")}));
}

void VXIPCPushTest::sendsDuringACall()
{
    const HostProcess host(newServerType());
    RawClient client(host.serverName());
    RawClient other(host.serverName());
    client.send(request("rpc.subscribe", R"(["told"])") + '\n' + request("tellAroundAWait", "[]") +
                '\n');
    QVERIFY(object(client.receive()).contains(QStringLiteral("result")));
    QCOMPARE(argumentsOf(object(client.receive()))[QStringLiteral("text")].toString(),
             QStringLiteral("before"));
    QVERIFY(waitsInASlot(other));
    QVERIFY(other.call("release").contains(QStringLiteral("result")));
    QVERIFY(object(client.receive()).contains(QStringLiteral("result")));
    QCOMPARE(argumentsOf(object(client.receive()))[QStringLiteral("text")].toString(),
             QStringLiteral("after"));
}

void VXIPCPushTest::sendsToAllSubscribers()
{
    std::vector<std::unique_ptr<RawClient>> clients;
    for (int i = 0; i < 64; ++i) {
        clients.push_back(subscriber(R"(["told"])"));
        QVERIFY(clients.back());
    }
    m_service->tell(QStringLiteral("a"), 20);
    for (const auto& client : clients) {
        for (int i = 0; i < 20; ++i)
            QCOMPARE(argumentsOf(nextNotification(*client))[QStringLiteral("number")].toInt(-1), i);
    }
}

void VXIPCPushTest::sendsMoreThanTheSystemBuffers()
{
    const auto client = subscriber(R"(["told"])");
    QVERIFY(client);
    client->socket().setReadBufferSize(1);
    m_service->tell(textOfKibibyte(), manyKibibytes);
    QVERIFY(!QTest::qWaitFor([&] { return !client->isConnected(); }, 50));
    client->socket().setReadBufferSize(0);
    for (int i = 0; i < manyKibibytes; ++i)
        QCOMPARE(argumentsOf(nextNotification(*client))[QStringLiteral("number")].toInt(-1), i);
}

void VXIPCPushTest::replacesStatesThatWait()
{
    const auto client = subscriber(R"(["stateChanged"])");
    const auto bystander = subscriber(R"(["stateChanged"])");
    QVERIFY(client && bystander);
    client->socket().setReadBufferSize(1);
    // Names of a kibibyte, so that the system cannot buffer all states.
    constexpr int rounds = 100;
    constexpr int printers = 50;
    for (int round = 1; round <= rounds; ++round) {
        for (int printer = 0; printer < printers; ++printer)
            m_service->setState(QString::number(printer) + textOfKibibyte(), round);
        // One that reads receives each state of this round. Only then the next round begins.
        for (int i = 0; i < printers; ++i)
            QCOMPARE(argumentsOf(nextNotification(*bystander))[QStringLiteral("state")].toInt(),
                     round);
    }
    QVERIFY(client->isConnected());
    client->socket().setReadBufferSize(0);
    QHash<QString, int> states;
    int received = 0;
    while (states.size() < printers || !std::all_of(states.cbegin(), states.cend(),
                                                    [](int state) { return state == rounds; })) {
        const QJsonObject arguments = argumentsOf(nextNotification(*client));
        QVERIFY(!arguments.isEmpty());
        int& state = states[arguments[QStringLiteral("name")].toString()];
        QVERIFY(arguments[QStringLiteral("state")].toInt() > state);
        state = arguments[QStringLiteral("state")].toInt();
        ++received;
    }
    QVERIFY2(received < rounds * printers, qPrintable(QString::number(received)));
    QVERIFY(receivesNothing(*client));
}

void VXIPCPushTest::replacesStatesByAKeyThatTheEndpointFinds()
{
    const auto client = subscriber(R"(["readingChanged"])");
    const auto bystander = subscriber(R"(["readingChanged"])");
    QVERIFY(client && bystander);
    client->socket().setReadBufferSize(1);
    // Far more than 4 MiB, which would have the client disconnected.
    constexpr int changes = 10000;
    for (int value = 1; value <= changes; ++value) {
        const QString name = value % 2 == 0 ? QStringLiteral("even") : QStringLiteral("odd");
        Q_EMIT m_service->readingChanged(reading(name, value, textOfKibibyte()));
        if (value % 2 == 0) {
            nextNotification(*bystander);
            nextNotification(*bystander);
        }
    }
    client->socket().setReadBufferSize(0);
    QHash<QString, int> latest;
    while (latest.value(QStringLiteral("even")) != changes ||
           latest.value(QStringLiteral("odd")) != changes - 1) {
        const QJsonValue received =
            argumentsOf(nextNotification(*client))[QStringLiteral("reading")];
        QVERIFY(received.isObject());
        latest[received[QStringLiteral("name")].toString()] =
            received[QStringLiteral("value")].toInt();
    }
}

void VXIPCPushTest::sendsTheLatestStateAfterWhatPrecededIt()
{
    const auto client = subscriber(R"(["told","stateChanged"])");
    QVERIFY(client);
    m_service->setState(QStringLiteral("a"), 1);
    m_service->setState(QStringLiteral("b"), 1);
    m_service->tell(QStringLiteral("a is gone"));
    m_service->setState(QStringLiteral("a"), 2);
    QStringList received;
    for (int i = 0; i < 3; ++i) {
        const QJsonObject arguments = argumentsOf(nextNotification(*client));
        received.append(arguments[QStringLiteral("name")].toString() +
                        arguments[QStringLiteral("text")].toString());
    }
    QCOMPARE(received,
             (QStringList{QStringLiteral("b"), QStringLiteral("a is gone"), QStringLiteral("a")}));
}

void VXIPCPushTest::replacesStatesBeforeTheyAreWritten()
{
    const auto client = subscriber(R"(["stateChanged"])");
    QVERIFY(client);
    for (int i = 0; i < 100000; ++i)
        m_service->setState(QStringLiteral("a"), i);
    QCOMPARE(argumentsOf(nextNotification(*client))[QStringLiteral("state")].toInt(), 99999);
    QVERIFY(receivesNothing(*client));
}

void VXIPCPushTest::keepsTheOrderOfSignals()
{
    const auto client = subscriber(R"(["told","stateChanged","readingChanged"])");
    QVERIFY(client);
    m_service->setState(QStringLiteral("a"), 1);
    m_service->tell(QStringLiteral("b"));
    Q_EMIT m_service->readingChanged(reading(QStringLiteral("a"), 1));
    QCOMPARE(methodOf(nextNotification(*client)), QStringLiteral("stateChanged"));
    QCOMPARE(methodOf(nextNotification(*client)), QStringLiteral("told"));
    QCOMPARE(methodOf(nextNotification(*client)), QStringLiteral("readingChanged"));
}

void VXIPCPushTest::disconnectsAClientThatDoesNotRead()
{
    const auto bystander = subscriber(R"(["told"])");
    const auto client = subscriber(R"(["told"])");
    QVERIFY(bystander && client);
    QCOMPARE(m_service->findChildren<IpcConnection*>().size(), 2);
    client->socket().setReadBufferSize(1);
    qsizetype sent = 0;
    while (m_service->findChildren<IpcConnection*>().size() == 2 && sent < 16 * mebibyte) {
        m_service->tell(textOfKibibyte());
        const QByteArray line = bystander->receive();
        QCOMPARE(methodOf(object(line)), QStringLiteral("told"));
        sent += line.size();
    }
    QVERIFY2(sent < 16 * mebibyte, "it was not disconnected");
    QVERIFY2(sent > 4 * mebibyte, qPrintable(QString::number(sent)));
    QVERIFY(isServed(*bystander));
    QTRY_COMPARE(m_service->findChildren<QLocalSocket*>().size(), 1);
}

void VXIPCPushTest::disconnectsAClientDuringASlotThatEmitsTooMuch()
{
    const auto client = subscriber(R"(["told"])");
    RawClient other(serverName());
    QVERIFY(client && isServed(other));
    // The client itself calls the slot. It cannot read before the slot returns.
    client->send(request("tell", "[\"" + QByteArray(1024, 'x') + "\",20000]") + '\n');
    QVERIFY(client->waitForClose());
    QVERIFY(isServed(other));
}

void VXIPCPushTest::sendsNoNotificationThatIsTooLong()
{
    const auto client = subscriber(R"(["told"])");
    QVERIFY(client);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral(
                                           "TestService: a notification of told is not sent: it is "
                                           "longer than 4194304 bytes")));
    m_service->tell(QString(4 * mebibyte, u'x'));
    m_service->tell(QStringLiteral("short"));
    QCOMPARE(argumentsOf(nextNotification(*client))[QStringLiteral("text")].toString(),
             QStringLiteral("short"));
}

void VXIPCPushTest::sendsTheLongestAnswerToASubscriber()
{
    const auto client = subscriber(R"(["told"])");
    QVERIFY(client);
    // The answer comes while notifications wait.
    client->send(request("tell", "[\"" + QByteArray(1000, 'x') + "\",2000]") + '\n' +
                 R"({"jsonrpc":"2.0","id":1000,"method":"zeroes","params":[3145698]})" + '\n');
    bool isAnswered = false;
    int told = 0;
    while (!isAnswered || told < 2000) {
        const QByteArray line = client->receive();
        QVERIFY(!line.isEmpty());
        isAnswered = isAnswered || line.size() + 1 == 4 * mebibyte;
        told += object(line).contains(QStringLiteral("method")) ? 1 : 0;
    }
}

void VXIPCPushTest::keepsSubscribersThatRead()
{
    m_service->findChild<IpcPublisher*>()->setPatience(0ms);
    std::vector<std::unique_ptr<RawClient>> clients;
    for (int i = 0; i < 64; ++i) {
        clients.push_back(subscriber(R"(["told"])"));
        QVERIFY(clients.back());
    }
    RawClient tooMany(serverName());
    QCOMPARE(errorCode(tooMany.call("scale", "[1]")), -32001);
    m_service->tell(QStringLiteral("a"));
    for (const auto& client : clients)
        QCOMPARE(methodOf(nextNotification(*client)), QStringLiteral("told"));
}

void VXIPCPushTest::replacesASubscriberThatDoesNotRead()
{
    m_service->findChild<IpcPublisher*>()->setPatience(1ms);
    std::vector<std::unique_ptr<RawClient>> clients;
    for (int i = 0; i < 64; ++i) {
        clients.push_back(subscriber(R"(["told"])"));
        QVERIFY(clients.back());
    }
    RawClient& stuck = *clients.at(10);
    stuck.socket().setReadBufferSize(1);
    // More than the system buffers, in few notifications: 63 clients read each of them.
    for (int i = 0; i < 32; ++i) {
        m_service->tell(QString(mebibyte / 16, u'x'));
        for (const auto& client : clients) {
            if (client.get() != &stuck)
                QVERIFY(!nextNotification(*client).isEmpty());
        }
    }
    // The place of the stuck one becomes free once it has been stuck for long enough.
    QVERIFY(QTest::qWaitFor(
        [this] {
            RawClient next(serverName());
            return isServed(next);
        },
        patience));
    for (const auto& client : clients) {
        if (client.get() != &stuck)
            QVERIFY(isServed(*client));
    }
}

void VXIPCPushTest::forgetsAClientThatDies()
{
    const auto bystander = subscriber(R"(["told"])");
    QVERIFY(bystander);
    for (int i = 0; i < 10; ++i) {
        const auto client = subscriber(R"(["told"])");
        QVERIFY(client);
        client->socket().setReadBufferSize(1);
        m_service->tell(textOfKibibyte(), 500);
        for (int received = 0; received < 500; ++received)
            QVERIFY(!nextNotification(*bystander).isEmpty());
        client->socket().abort();
        m_service->tell(textOfKibibyte());
        QVERIFY(!nextNotification(*bystander).isEmpty());
    }
    QTRY_COMPARE(m_service->findChildren<IpcConnection*>().size(), 1);
}

void VXIPCPushTest::mayBeDestroyedWhileSubscribersWait()
{
    const auto first = subscriber(R"(["told"])");
    const auto second = subscriber(R"(["told"])");
    QVERIFY(first && second);
    const QPointer<TestService> alive(m_service.get());
    m_service->tell(textOfKibibyte(), 100);
    first->send(request("destroyAfterATelling", R"(["bye"])") + '\n');
    QTRY_VERIFY(!alive);
    Q_UNUSED(m_service.release())
    QVERIFY(first->waitForClose());
    QVERIFY(second->waitForClose());
}

void VXIPCPushTest::mayBeDestroyedByTheLastCallOfASubscriberThatLeft()
{
    const auto client = subscriber(R"(["told"])");
    QVERIFY(client);
    const QPointer<TestService> alive(m_service.get());
    m_service->tell(textOfKibibyte(), manyKibibytes);
    client->send(request("destroy", "[]") + '\n');
    client->socket().flush();
    client->socket().abort();
    QTRY_VERIFY(!alive);
    Q_UNUSED(m_service.release())
}

void VXIPCPushTest::answersTheErrorOfASlot()
{
    RawClient client(serverName());
    const QJsonObject answer = client.call("refuse", R"([-32004,"there is no printer \"x\""])");
    QCOMPARE(answer[QStringLiteral("error")],
             QJsonValue(QJsonObject{
                 {QStringLiteral("code"), -32004},
                 {QStringLiteral("message"), QStringLiteral("there is no printer \"x\"")}}));
    QVERIFY(!answer.contains(QStringLiteral("result")));
    QVERIFY(isServed(client));
}

void VXIPCPushTest::answersTheErrorOfTheSlotThatRefused()
{
    const HostProcess host(newServerType());
    RawClient client(host.serverName());
    RawClient other(host.serverName());
    client.send(request("waitAndRefuse", "[]") + '\n');
    QVERIFY(waitsInASlot(other));
    // A call within the call, which is refused itself, and one that is not.
    QCOMPARE(errorCode(other.call("refuse", R"([-32051,"inner"])")), -32051);
    QVERIFY(other.call("release").contains(QStringLiteral("result")));
    QCOMPARE(errorCode(object(client.receive())), -32050);
}

void VXIPCPushTest::refusesNothingWithinTheProcess()
{
    QCOMPARE(m_service->refuse(-32004, QStringLiteral("a")), QStringLiteral("a"));
    RawClient client(serverName());
    QVERIFY(isServed(client));
}

QTEST_GUILESS_MAIN(VXIPCPushTest)
#include "tst_vxipc_push.moc"
