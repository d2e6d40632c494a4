// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// What an endpoint reads and sends at most, which clients it serves, and how it survives clients
// that misbehave or disappear, and its own destruction.
#include "ipc_connection.h"
#include "ipc_host_process.h"
#include "ipc_json.h"
#include "ipc_publisher.h"
#include "ipc_server_test.h"

#include <QtCore/QPointer>
#include <QtCore/QScopeGuard>
#include <QtCore/QThread>

#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <vector>

using namespace ipc_json;
using namespace std::chrono_literals;

namespace {

constexpr qsizetype mebibyte = qsizetype{1} << 20;
/// How many clients an endpoint serves at a time.
constexpr std::size_t places = 64;

using Clients = std::vector<std::unique_ptr<RawClient>>;

bool isServed(RawClient& client)
{
    return client.call("scale", "[1]")[QStringLiteral("result")].toInt() == 10;
}

/// A client for each place, all of them served; fewer when one was not.
Clients fillPlaces(const QString& serverName)
{
    Clients clients;
    while (clients.size() < places) {
        auto client = std::make_unique<RawClient>(serverName);
        if (!isServed(*client))
            break;
        clients.push_back(std::move(client));
    }
    return clients;
}

/// A request of exactly `size` bytes, without the line end.
QByteArray requestOfSize(qsizetype size)
{
    const QByteArray begin = R"({"jsonrpc":"2.0","id":1,"method":"note","params":["x"])";
    return begin + QByteArray(size - begin.size() - 1, ' ') + '}';
}

/// Destroys something from the event loop, ahead of all other pending events.
class Destroyer : public QObject
{
public:
    explicit Destroyer(std::function<void()> destroy)
        : m_destroy(std::move(destroy))
    {}

    void destroyFirst()
    {
        QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
    }

    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::User)
            return QObject::event(event);
        m_destroy();
        return true;
    }

private:
    std::function<void()> m_destroy;
};

} // namespace

class VXIPCServerTest : public IpcServerTest
{
    Q_OBJECT

private Q_SLOTS:
    void readsALineOfTheGreatestLength();
    void answersInOrderAfterALongLine();
    void refusesALineThatIsTooLong_data();
    void refusesALineThatIsTooLong();
    void countsTheValuesOfALine_data();
    void countsTheValuesOfALine();
    void refusesTheClientThatIsOneTooMany();
    void servesANewClientInPlaceOfOneThatLeft();
    void handlesNothingForARefusedClient();
    void sendsAnAnswerOfTheGreatestLength();
    void refusesAnAnswerThatIsTooLong();
    void disconnectsAClientThatReadsNoAnswers();
    void disconnectsAClientWhoseBatchAsksForTooMuch();
    void survivesAClientThatDies_data();
    void survivesAClientThatDies();
    void handlesWhatAClientSentBeforeItLeft_data();
    void handlesWhatAClientSentBeforeItLeft();
    void servesOthersDuringALongBatch();
    void takesCallsDuringACall();
    void continuesOtherBatchesDuringACall();
    void readsNoMoreThanItHandles();
    void replacesTheClientThatWasSilentLongest();
    void replacesOneSilentClientForEachNewOne();
    void keepsClientsThatWaitForAnAnswer();
    void mayBeDestroyedByACall();
    void mayBeDestroyedWhileLongLinesAreParsed();
    void mayBeDestroyedAsAClientLeavesAfterALongBadLine();
};

void VXIPCServerTest::readsALineOfTheGreatestLength()
{
    RawClient client(serverName());
    const QJsonObject answer = object(client.exchange(requestOfSize(mebibyte)));
    QCOMPARE(answer[QStringLiteral("id")].toInt(), 1);
    QVERIFY(!answer.contains(QStringLiteral("error")));
    QCOMPARE(m_service->log.size(), 1);
}

void VXIPCServerTest::answersInOrderAfterALongLine()
{
    RawClient client(serverName());
    const QByteArray note = R"({"jsonrpc":"2.0","method":"note","params":["long"]})";
    client.send('[' + (note + ',').repeated(5000) + note +
                "]\n"
                R"({"jsonrpc":"2.0","id":"wrong","method":)" +
                QByteArray(100000, ' ') +
                "\n"
                R"({"jsonrpc":"2.0","id":"last","method":"notes"})"
                "\n");
    QCOMPARE(object(client.receive())[QStringLiteral("error")][QStringLiteral("code")].toInt(),
             -32700);
    const QJsonObject last = object(client.receive());
    QCOMPARE(last[QStringLiteral("id")].toString(), QStringLiteral("last"));
    QCOMPARE(last[QStringLiteral("result")].toArray().size(), 5001);
}

void VXIPCServerTest::refusesALineThatIsTooLong_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("by a byte") << requestOfSize(mebibyte + 1) + '\n';
    QTest::newRow("without an end") << QByteArray(2 * mebibyte, '[');
    QTest::newRow("zeroes") << QByteArray(2 * mebibyte, '\0');
}

void VXIPCServerTest::refusesALineThatIsTooLong()
{
    QFETCH(const QByteArray, bytes);

    RawClient bystander(serverName());
    RawClient client(serverName());
    client.send(bytes);
    QCOMPARE(errorCode(object(client.receive())), -32000);
    QVERIFY(client.waitForClose());
    QVERIFY(m_service->log.isEmpty());
    QCOMPARE(bystander.call("scale", "[2,3]")[QStringLiteral("result")].toInt(), 6);
}

void VXIPCServerTest::countsTheValuesOfALine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("code");

    // The request, its four members and the values of its parameters.
    const auto request = [](const QByteArray& parameters) {
        return R"({"jsonrpc":"2.0","method":"scale","id":1,"params":)" + parameters + '}';
    };
    constexpr qsizetype mostValues = 65536;
    constexpr qsizetype otherValues = 5;
    QTest::newRow("most") << request(list(mostValues - otherValues, "1")) << -32602;
    QTest::newRow("one more") << request(list(mostValues - otherValues + 1, "1")) << -32600;
    QTest::newRow("lists") << request(list(mostValues / 2, "[]")) << -32600;
    QTest::newRow("objects") << request(list(mostValues / 2, "{}")) << -32600;
    QTest::newRow("members") << request('{' + entries(mostValues, R"("a":1)") + '}') << -32600;
    // Punctuation within a text does not count.
    const QByteArray text(mostValues, ',');
    QTest::newRow("signs in a text") << request("[\"" + text + "\"]") << -32602;
    QTest::newRow("signs behind a quotation mark in a text")
        << request(R"(["\")" + text + "\"]") << -32602;
    QTest::newRow("signs in a text that ends in a backslash")
        << request(R"(["\\",")" + text + "\"]") << -32602;
}

void VXIPCServerTest::countsTheValuesOfALine()
{
    QFETCH(const QByteArray, line);
    QFETCH(const int, code);

    RawClient client(serverName());
    const QJsonObject answer = object(client.exchange(line));
    QVERIFY2(errorCode(answer) == code, qPrintable(errorMessage(answer)));
    QCOMPARE(client.call("scale", "[2,3]")[QStringLiteral("result")].toInt(), 6);
}

void VXIPCServerTest::refusesTheClientThatIsOneTooMany()
{
    Clients clients = fillPlaces(serverName());
    QCOMPARE(clients.size(), places);
    {
        RawClient tooMany(serverName());
        QCOMPARE(errorCode(tooMany.call("scale", "[1]")), -32001);
        QVERIFY(tooMany.waitForClose());
    }
    QVERIFY(isServed(*clients.front()));
    clients.pop_back();
    QVERIFY(QTest::qWaitFor([this] {
        RawClient next(serverName());
        return isServed(next);
    }));
}

void VXIPCServerTest::servesANewClientInPlaceOfOneThatLeft()
{
    Clients clients = fillPlaces(serverName());
    QCOMPARE(clients.size(), places);
    // It stays connected for a while, but takes up no place.
    RawClient refused(serverName());
    QCOMPARE(errorCode(refused.call("scale", "[1]")), -32001);
    clients.pop_back();
    QTRY_VERIFY(m_service->findChildren<IpcConnection*>().size() <= 64);
    RawClient next(serverName());
    QVERIFY(isServed(next));
}

void VXIPCServerTest::handlesNothingForARefusedClient()
{
    Clients clients = fillPlaces(serverName());
    QCOMPARE(clients.size(), places);
    RawClient refused(serverName());
    QCOMPARE(errorCode(object(refused.receive())), -32001);
    refused.send(R"({"jsonrpc":"2.0","method":"note","params":["never reached"]})"
                 "\n");
    QVERIFY(refused.waitForClose());
    QCOMPARE(m_service->log, QStringList());
}

void VXIPCServerTest::sendsAnAnswerOfTheGreatestLength()
{
    RawClient client(serverName());
    // Base64 turns three bytes into four. The digits of the id make up the exact length.
    const QByteArray line =
        client.exchange(R"({"jsonrpc":"2.0","id":1000,"method":"zeroes","params":[3145698]})");
    QCOMPARE(line.size() + 1, 4 * mebibyte);
    QVERIFY(object(line).contains(QStringLiteral("result")));
}

void VXIPCServerTest::refusesAnAnswerThatIsTooLong()
{
    RawClient client(serverName());
    // With what surrounds it, the base64 of three mebibytes is longer than four.
    const QJsonObject answer = client.call("zeroes", "[3145728]");
    QCOMPARE(errorCode(answer), -32002);
    QCOMPARE(answer[QStringLiteral("id")].toInt(), 1);
    QCOMPARE(client.call("zeroes", "[3]")[QStringLiteral("result")].toString(),
             QStringLiteral("AAAA"));
}

void VXIPCServerTest::disconnectsAClientThatReadsNoAnswers()
{
    RawClient bystander(serverName());
    RawClient client(serverName());
    QTRY_COMPARE(m_service->findChildren<QLocalSocket*>().size(), 2);
    client.socket().setReadBufferSize(1);
    for (int i = 0; i < 64; ++i)
        client.send(R"({"jsonrpc":"2.0","id":1,"method":"zeroes","params":[300000]})"
                    "\n");
    client.send(R"({"jsonrpc":"2.0","method":"note","params":["never reached"]})"
                "\n");
    // Seen at the endpoint, as the client does not read any more.
    QTRY_COMPARE(m_service->findChildren<QLocalSocket*>().size(), 1);
    QVERIFY(m_service->log.isEmpty());
    QCOMPARE(bystander.call("scale", "[2,3]")[QStringLiteral("result")].toInt(), 6);
}

void VXIPCServerTest::disconnectsAClientWhoseBatchAsksForTooMuch()
{
    RawClient bystander(serverName());
    RawClient client(serverName());
    const QByteArray request = R"({"jsonrpc":"2.0","id":1,"method":"zeroes","params":[1000000]})";
    client.send('[' + request + ',' + request + ',' + request + ',' + request + "]\n");
    QVERIFY(client.waitForClose());
    QCOMPARE(bystander.call("scale", "[2,3]")[QStringLiteral("result")].toInt(), 6);
}

void VXIPCServerTest::survivesAClientThatDies_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("silent") << QByteArray();
    QTest::newRow("in the middle of a line") << QByteArray(R"({"jsonrpc":"2.0","id")");
    QTest::newRow("before the answer")
        << QByteArray("{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"notes\"}\n");
    QTest::newRow("before a great answer") << QByteArray(
        "{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"zeroes\",\"params\":[1000000]}\n");
    QTest::newRow("in the middle of a batch")
        << '[' + QByteArray(R"({"jsonrpc":"2.0","id":1,"method":"notes"},)").repeated(10000) +
               "1]\n";
}

void VXIPCServerTest::survivesAClientThatDies()
{
    QFETCH(const QByteArray, bytes);

    RawClient bystander(serverName());
    for (int i = 0; i < 10; ++i) {
        RawClient client(serverName());
        client.send(bytes);
        client.socket().flush();
        QCoreApplication::processEvents();
        client.socket().abort();
        QCOMPARE(bystander.call("scale", "[2,3]")[QStringLiteral("result")].toInt(), 6);
    }
}

void VXIPCServerTest::handlesWhatAClientSentBeforeItLeft_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("lineLength");
    QTest::newRow("many lines") << 1000 << 60;
    // Parsed on another thread while the client leaves.
    QTest::newRow("long lines") << 10 << 300000;
}

void VXIPCServerTest::handlesWhatAClientSentBeforeItLeft()
{
    QFETCH(const int, lines);
    QFETCH(const int, lineLength);
    const QByteArray note = R"({"jsonrpc":"2.0","method":"note","params":["a"])";
    {
        RawClient client(serverName());
        for (int i = 0; i < lines; ++i)
            client.send(note + QByteArray(lineLength - note.size() - 1, ' ') + "}\n");
        client.socket().disconnectFromServer();
        QVERIFY(client.waitForClose());
    }
    QTRY_COMPARE(m_service->log.size(), lines);
}

void VXIPCServerTest::servesOthersDuringALongBatch()
{
    RawClient busy(serverName());
    RawClient quick(serverName());
    // The quick client has far less time than this batch takes.
    const QByteArray slow = R"({"jsonrpc":"2.0","id":1,"method":"block","params":[1]})";
    busy.send('[' + (slow + ',').repeated(2000) + slow + "]\n");
    QVERIFY(QTest::qWaitFor([&] {
        busy.socket().flush();
        return busy.socket().bytesToWrite() == 0;
    }));
    for (int i = 0; i < 10; ++i)
        QCOMPARE(quick.call("scale", "[2,3]")[QStringLiteral("result")].toInt(), 6);
    QVERIFY(!busy.socket().canReadLine());
}

void VXIPCServerTest::takesCallsDuringACall()
{
    // In another process: in this one, the call would run its event loop within this test's.
    HostProcess host(newServerType());
    RawClient waiting(host.serverName());
    RawClient other(host.serverName());
    waiting.send(R"({"jsonrpc":"2.0","id":"w","method":"wait"})"
                 "\n"
                 R"({"jsonrpc":"2.0","id":"n","method":"notes"})"
                 "\n");
    QTRY_VERIFY(other.call("isWaiting")[QStringLiteral("result")].toBool());
    // The calls of one client are made one after the other.
    QVERIFY(!waiting.socket().canReadLine());
    QVERIFY(other.call("release").contains(QStringLiteral("result")));
    QCOMPARE(object(waiting.receive())[QStringLiteral("result")].toString(),
             QStringLiteral("waited"));
    QCOMPARE(object(waiting.receive())[QStringLiteral("id")].toString(), QStringLiteral("n"));
}

void VXIPCServerTest::continuesOtherBatchesDuringACall()
{
    HostProcess host(newServerType());
    RawClient other(host.serverName());
    RawClient waiting(host.serverName());
    RawClient watching(host.serverName());
    // Each of these calls takes longer than a turn, so both batches wait for their next turn again
    // and again. The other client's batch is waiting when the call begins.
    const QByteArray slow = R"({"jsonrpc":"2.0","method":"block","params":[1]},)";
    other.send(R"([{"jsonrpc":"2.0","method":"note","params":["begun"]},)" + slow.repeated(500) +
               R"({"jsonrpc":"2.0","id":"r","method":"release"}])"
               "\n");
    other.socket().flush();
    QTRY_VERIFY(!watching.call("notes")[QStringLiteral("result")].toArray().isEmpty());
    waiting.send('[' + slow.repeated(20) +
                 R"({"jsonrpc":"2.0","id":"w","method":"wait"}])"
                 "\n");
    QCOMPARE(parsed(waiting.receive())[0][QStringLiteral("result")].toString(),
             QStringLiteral("waited"));
    QCOMPARE(parsed(other.receive())[0][QStringLiteral("id")].toString(), QStringLiteral("r"));
}

void VXIPCServerTest::readsNoMoreThanItHandles()
{
    HostProcess host(newServerType());
    RawClient busy(host.serverName());
    RawClient other(host.serverName());
    busy.send(R"({"jsonrpc":"2.0","id":"w","method":"wait"})"
              "\n");
    QTRY_VERIFY(other.call("isWaiting")[QStringLiteral("result")].toBool());
    // These bytes stay with the client, except for what the system buffers and one piece that the
    // endpoint reads. In each round of calls the endpoint has a hundred chances to read more.
    busy.send(QByteArray(8 * mebibyte, '\n'));
    qint64 before = 0;
    do {
        before = busy.socket().bytesToWrite();
        for (int i = 0; i < 100; ++i)
            QVERIFY(isServed(other));
    } while (busy.socket().bytesToWrite() < before);
    QVERIFY2(before > 4 * mebibyte, qPrintable(QString::number(before)));

    QVERIFY(other.call("release").contains(QStringLiteral("result")));
    QCOMPARE(object(busy.receive())[QStringLiteral("result")].toString(), QStringLiteral("waited"));
    QVERIFY(isServed(busy));
}

void VXIPCServerTest::replacesTheClientThatWasSilentLongest()
{
    m_service->findChild<IpcPublisher*>()->setPatience(0ms);
    Clients clients = fillPlaces(serverName());
    QCOMPARE(clients.size(), places);
    QVERIFY(isServed(*clients[0]));

    RawClient next(serverName());
    QVERIFY(isServed(next));
    QCOMPARE(errorCode(object(clients[1]->receive())), -32001);
    QVERIFY(clients[1]->waitForClose());
    clients.erase(clients.begin() + 1);
    for (const auto& client : clients)
        QVERIFY(isServed(*client));
}

void VXIPCServerTest::replacesOneSilentClientForEachNewOne()
{
    m_service->findChild<IpcPublisher*>()->setPatience(0ms);
    Clients clients = fillPlaces(serverName());
    QCOMPARE(clients.size(), places);
    RawClient first(serverName());
    QVERIFY(isServed(first));
    RawClient second(serverName());
    QVERIFY(isServed(second));
    QCOMPARE(errorCode(object(clients[0]->receive())), -32001);
    QCOMPARE(errorCode(object(clients[1]->receive())), -32001);
}

void VXIPCServerTest::keepsClientsThatWaitForAnAnswer()
{
    // On another thread, as the pending call runs an event loop of its own.
    QThread thread;
    auto* service = new TestService(newServerType());
    QTRY_VERIFY(!service->serverName().isEmpty());
    const QString name = service->serverName();
    service->findChild<IpcPublisher*>()->setPatience(0ms);
    service->moveToThread(&thread);
    connect(&thread, &QThread::finished, service, &QObject::deleteLater);
    thread.start();
    const auto end = qScopeGuard([&] {
        thread.quit();
        thread.wait();
    });

    RawClient waiting(name);
    waiting.send(R"({"jsonrpc":"2.0","id":"w","method":"wait"})"
                 "\n");
    std::vector<std::unique_ptr<RawClient>> clients;
    for (int i = 0; i < 63; ++i) {
        clients.push_back(std::make_unique<RawClient>(name));
        QTRY_VERIFY(clients.back()->call("isWaiting")[QStringLiteral("result")].toBool());
    }
    RawClient next(name);
    QVERIFY(next.call("release").contains(QStringLiteral("result")));
    QCOMPARE(object(waiting.receive())[QStringLiteral("result")].toString(),
             QStringLiteral("waited"));
    QCOMPARE(errorCode(object(clients[0]->receive())), -32001);
}

void VXIPCServerTest::mayBeDestroyedByACall()
{
    const QPointer<TestService> service(m_service.release());
    RawClient client(service->serverName());
    client.send(R"({"jsonrpc":"2.0","id":1,"method":"destroy"})"
                "\n"
                R"({"jsonrpc":"2.0","id":2,"method":"notes"})"
                "\n");
    QVERIFY(client.waitForClose());
    QVERIFY(!service);
}

void VXIPCServerTest::mayBeDestroyedWhileLongLinesAreParsed()
{
    // Each round destroys the endpoint at another stage of the work, on either thread.
    for (int round = 0; round < 20; ++round) {
        std::vector<std::unique_ptr<RawClient>> clients;
        for (int i = 0; i < 3; ++i) {
            clients.push_back(std::make_unique<RawClient>(serverName()));
            clients.back()->send('[' + QByteArray("1,").repeated(qsizetype{20000} * (i + 1)) +
                                 "1]\n");
        }
        QVERIFY(QTest::qWaitFor([&] {
            return std::ranges::all_of(
                clients, [](const auto& each) { return each->socket().bytesToWrite() == 0; });
        }));
        for (int i = 0; i < round; ++i)
            QCoreApplication::processEvents();
        m_service.reset();
        for (const auto& client : clients)
            QVERIFY(client->waitForClose());
        QVERIFY(publish());
    }
}

void VXIPCServerTest::mayBeDestroyedAsAClientLeavesAfterALongBadLine()
{
    RawClient client(serverName());
    // Long enough to be parsed on the other thread.
    QCOMPARE(errorCode(object(client.exchange(QByteArray(100000, 'x')))), -32700);
    auto* connection = m_service->findChild<IpcConnection*>();
    QVERIFY(connection);

    Destroyer destroyer([this] { m_service.reset(); });
    connect(connection, &IpcConnection::finished, &destroyer, &Destroyer::destroyFirst);
    client.socket().abort();
    QTRY_VERIFY(!m_service);
}

QTEST_GUILESS_MAIN(VXIPCServerTest)
#include "tst_vxipc_server.moc"
