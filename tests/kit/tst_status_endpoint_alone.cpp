// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The status service without printers and without a catalogue, which is the same on all systems.
#include "ipc_json.h"
#include "ipc_raw_client.h"

#include <status_endpoint.h>
#include <status_info.h>

#include <QtTest/QSignalSpy>

#include <memory>

using namespace ipc_json;
using VxKit::StatusEndpoint;

class StatusEndpointAloneTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_endpoint.reset(); }

    void answersThatThereIsNothing();
    void explainsAStatus_data();
    void explainsAStatus();
    void givesItsSignalsToAClientThatSubscribes();
    void keepsTheLatestOfEachPrinterForAClientThatDoesNotRead();

private:
    std::unique_ptr<StatusEndpoint> m_endpoint;
};

void StatusEndpointAloneTest::init()
{
    m_endpoint = std::make_unique<StatusEndpoint>(nullptr);
    QTRY_VERIFY_WITH_TIMEOUT(!m_endpoint->serverName().isEmpty(), patience);
}

void StatusEndpointAloneTest::answersThatThereIsNothing()
{
    RawClient client(m_endpoint->serverName());
    QCOMPARE(client.call("printers")[QStringLiteral("result")], QJsonValue(QJsonArray()));
    QCOMPARE(errorCode(client.call("printer", R"(["Packing"])")), -32004);
    QCOMPARE(client.call("supplies")[QStringLiteral("result")],
             QJsonValue(QJsonObject{{QStringLiteral("supplies"), QJsonArray()},
                                    {QStringLiteral("ribbons"), QJsonArray()}}));
}

void StatusEndpointAloneTest::explainsAStatus_data()
{
    QTest::addColumn<QByteArray>("parameters");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("language");

    const auto row = [](const char* name, const char* parameters, int code, const char* language) {
        QTest::newRow(name) << QByteArray(parameters) << code << QString::fromUtf8(language);
    };
    row("in German", R"([2,"de"])", 2, "de");
    row("in simplified Chinese", R"([2,"zh-CN"])", 2, "zh-CN");
    row("in the application's language", "[2]", 2, "");
    row("by name", R"({"code":257,"language":"fr"})", 257, "fr");
    row("of an unknown code", R"([-7,"en"])", -7, "en");
    row("in a language without texts", R"([2,"tlh"])", 2, "tlh");
    row("in no language at all", R"([2,"../../etc/passwd\u0000\n"])", 2, "../../etc/passwd");
}

void StatusEndpointAloneTest::explainsAStatus()
{
    QFETCH(const QByteArray, parameters);
    QFETCH(const int, code);
    QFETCH(const QString, language);

    RawClient client(m_endpoint->serverName());
    const QJsonObject info =
        client.call("statusInfo", parameters)[QStringLiteral("result")].toObject();
    QCOMPARE(info, VxKit::statusInfo(code, language).toJson());
    QCOMPARE(info[QStringLiteral("code")].toInt(), code);
    QVERIFY(!info[QStringLiteral("remedy")].toString().isEmpty());
}

void StatusEndpointAloneTest::givesItsSignalsToAClientThatSubscribes()
{
    VXIPCClient client(m_endpoint->serverName());
    const QSignalSpy received(&client, &VXIPCClient::notificationReceived);
    bool isSubscribed = false;
    client.subscribe({QStringLiteral("printerGone"), QStringLiteral("printerChanged"),
                      QStringLiteral("printerAdded"), QStringLiteral("printerRenamed")},
                     [&](const VXIPCReply& reply) { isSubscribed = reply.isOk(); });
    QTRY_VERIFY_WITH_TIMEOUT(isSubscribed, patience);
    const QJsonObject reading{{QStringLiteral("name"), QStringLiteral("Packing")}};
    Q_EMIT m_endpoint->printerAdded(reading);
    Q_EMIT m_endpoint->printerRenamed(QStringLiteral("Packing"), QStringLiteral("Shipping"));
    Q_EMIT m_endpoint->printerGone(QStringLiteral("Shipping"));
    QTRY_COMPARE_WITH_TIMEOUT(received.size(), 3, patience);
    QCOMPARE(received.at(0).at(0).toString(), QStringLiteral("printerAdded"));
    QCOMPARE(received.at(0).at(1).toJsonObject(),
             (QJsonObject{{QStringLiteral("reading"), reading}}));
    QCOMPARE(received.at(1).at(1).toJsonObject(),
             (QJsonObject{{QStringLiteral("oldName"), QStringLiteral("Packing")},
                          {QStringLiteral("newName"), QStringLiteral("Shipping")}}));
    QCOMPARE(received.at(2).at(1).toJsonObject(),
             (QJsonObject{{QStringLiteral("name"), QStringLiteral("Shipping")}}));
}

void StatusEndpointAloneTest::keepsTheLatestOfEachPrinterForAClientThatDoesNotRead()
{
    VXIPCClient client(m_endpoint->serverName());
    QHash<QString, int> latest;
    connect(&client, &VXIPCClient::notificationReceived, this,
            [&](const QString&, const QJsonObject& arguments) {
                const QJsonValue reading = arguments[QStringLiteral("reading")];
                latest[reading[QStringLiteral("name")].toString()] =
                    reading[QStringLiteral("round")].toInt();
            });
    bool isSubscribed = false;
    client.subscribe({QStringLiteral("printerChanged")},
                     [&](const VXIPCReply& reply) { isSubscribed = reply.isOk(); });
    QTRY_VERIFY_WITH_TIMEOUT(isSubscribed, patience);
    // In one go, so that the client can read nothing in between. Together far more than 4 MiB.
    constexpr int rounds = 1000;
    constexpr int printers = 20;
    const QString filler(1000, u'x');
    for (int round = 1; round <= rounds; ++round) {
        for (int printer = 0; printer < printers; ++printer) {
            Q_EMIT m_endpoint->printerChanged({{QStringLiteral("name"), QString::number(printer)},
                                               {QStringLiteral("round"), round},
                                               {QStringLiteral("filler"), filler}});
        }
    }
    QTRY_COMPARE_WITH_TIMEOUT(latest.size(), printers, patience);
    for (const int round : std::as_const(latest))
        QCOMPARE(round, rounds);
    QVERIFY(client.isConnected());
}

QTEST_GUILESS_MAIN(StatusEndpointAloneTest)
#include "tst_status_endpoint_alone.moc"
