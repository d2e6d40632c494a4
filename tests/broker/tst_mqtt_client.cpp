// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The client against a real broker, and against others that answer wrongly or not at all.
#include "mosquitto_broker.h"
#include "test_certificates.h"

#include <mqtt_client.h>
#include <mqtt_failure.h>

#include <QtNetwork/QHostInfo>
#include <QtNetwork/QTcpServer>
#include <QtTest/QtTest>

#include <cerrno>

using namespace std::chrono_literals;

namespace {

/// Records what a client tells.
class Listener
{
public:
    explicit Listener(MqttClient& client)
    {
        QObject::connect(&client, &MqttClient::connected, &client, [this] { ++connections; });
        QObject::connect(&client, &MqttClient::disconnected, &client, [this] { ++endings; });
        QObject::connect(&client, &MqttClient::ended, &client, [this] { isEnded = true; });
        QObject::connect(&client, &MqttClient::delivered, &client,
                         [this](int number) { delivered.append(number); });
        QObject::connect(&client, &MqttClient::refused, &client,
                         [this](int, const QString& reason) { refusals.append(reason); });
        QObject::connect(&client, &MqttClient::received, &client,
                         [this](const MqttMessage& message) { received.append(message); });
        QObject::connect(
            &client, &MqttClient::failed, &client,
            [this](const QString& reason, std::chrono::milliseconds) { failures.append(reason); });
    }

    QString lastFailure() const { return failures.isEmpty() ? QString() : failures.last(); }

    int connections = 0;
    int endings = 0;
    bool isEnded = false;
    QList<int> delivered;
    QStringList refusals;
    QList<MqttMessage> received;
    QStringList failures;
};

/// Accepts connections and gives each the same answer, once.
class FakeBroker
{
public:
    explicit FakeBroker(const QByteArray& answer = {})
        : m_answer(answer)
    {
        m_server.listen(QHostAddress::LocalHost, 0);
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
            QTcpSocket* const socket = m_server.nextPendingConnection();
            ++connections;
            QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            // As soon as the client has said something.
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                socket->readAll();
                if (isClosing || (isClosingAfterAnswer && socket->property("answered").toBool()))
                    socket->disconnectFromHost();
                else if (!m_answer.isEmpty() && !socket->property("answered").toBool())
                    socket->write(m_answer);
                socket->setProperty("answered", true);
            });
        });
    }

    quint16 port() const { return m_server.serverPort(); }

    int connections = 0;
    bool isClosing = false;
    bool isClosingAfterAnswer = false;

private:
    QTcpServer m_server;
    QByteArray m_answer;
};

} // namespace

class MqttClientTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void aMessageIsDelivered_data();
    void aMessageIsDelivered();
    void aRetainedMessageStays();
    void theWillComesAfterAKillAndNotAfterAGoodbye();
    void itConnectsAgainWhenTheBrokerIsBack();
    void aNameWithTwoFamiliesOfAddressesIsTriedWithBoth();
    void manyMessagesAreDeliveredInOrder();
    void aTopicThatNoBrokerTakesIsRefusedHere();
    void whatTheBrokerForbidsIsRefused();
    void itMayBeDestroyedInItsSignals();

    void theWrongPasswordIsNamed_data();
    void theWrongPasswordIsNamed();
    void aPasswordFileThatOthersMayReadIsNotUsed();
    void aNewPasswordNeedsNoRestart();

    void tlsDelivers_data();
    void tlsDelivers();
    void aClientCertificateIsAccepted();
    void aBrokerWithoutTheRightCertificateIsRefused_data();
    void aBrokerWithoutTheRightCertificateIsRefused();
    void aMissingClientCertificateIsNamed();
    void unusableCertificatesAreNamed();
    void tlsToABrokerWithoutTlsIsNamed();
    void noTlsToABrokerWithTlsIsNamed();

    void aBrokerThatNeverAnswersIsNamed_data();
    void aBrokerThatNeverAnswersIsNamed();
    void aBrokerThatFallsSilentIsLeft();
    void aBrokerThatCloses();
    void aTopicThatNatsRefusesIsNamed_data();
    void aTopicThatNatsRefusesIsNamed();
    void aConnectionThatEndsDuringAWriteIsClosed();
    void garbageIsNamed_data();
    void garbageIsNamed();
    void garbageAfterTheGreetingIsNamed();
    void anAnswerInPiecesIsUnderstood();
    void nobodyListensIsNamed();
    void anUnknownHostIsNamed();
    void twoClientsOfOneNameAreTold();
    void theSecondClientOfANameEndsTheFirst();

    void waitsDoubleUpToTheLongest();
    void waitsAreSpread();

private:
    static MqttOptions optionsFor(quint16 port);
    MqttOptions tlsOptionsFor(quint16 port) const;
    QStringList tlsSettings(const QString& certificate) const;
    QString secret(const QString& name, const QByteArray& text,
                   QFile::Permissions permissions = QFile::ReadOwner | QFile::WriteOwner);

    TestCertificates m_certificates;
    QTemporaryDir m_folder;
};

void MqttClientTest::initTestCase()
{
    if (!MosquittoBroker::isInstalled())
        QSKIP("needs mosquitto");
    const QString own = QStringLiteral("DNS:localhost,IP:127.0.0.1");
    const auto make = [this](const char* name, const char* authority, const QString& alternative,
                             const char* begin, const char* end) {
        return m_certificates.make(QString::fromLatin1(name), QString::fromLatin1(authority),
                                   alternative, QString::fromLatin1(begin),
                                   QString::fromLatin1(end));
    };
    const char* const early = "20200101000000Z";
    const char* const late = "21000101000000Z";
    QVERIFY2(m_certificates.makeAuthority(QStringLiteral("ca")) &&
                 m_certificates.makeAuthority(QStringLiteral("foreign")) &&
                 make("good", "ca", own, early, late) &&
                 make("expired", "ca", own, early, "20210101000000Z") &&
                 make("future", "ca", own, "20900101000000Z", late) &&
                 make("strange", "foreign", own, early, late) &&
                 make("other", "ca", QStringLiteral("DNS:broker.example"), early, late) &&
                 make("agent", "ca", QStringLiteral("DNS:agent.example"), early, late) &&
                 make("stranger", "foreign", QStringLiteral("DNS:agent.example"), early, late),
             qPrintable(m_certificates.error()));
}

MqttOptions MqttClientTest::optionsFor(quint16 port)
{
    MqttOptions options;
    options.broker = {QStringLiteral("127.0.0.1"), port, false};
    options.clientId = QStringLiteral("test-client");
    options.firstDelay = 50ms;
    options.longestDelay = 200ms;
    options.answerTime = 30s;
    return options;
}

MqttOptions MqttClientTest::tlsOptionsFor(quint16 port) const
{
    MqttOptions options = optionsFor(port);
    options.broker.isEncrypted = true;
    options.caFile = m_certificates.pem(QStringLiteral("ca"));
    return options;
}

QStringList MqttClientTest::tlsSettings(const QString& certificate) const
{
    return {QStringLiteral("certfile ") + m_certificates.pem(certificate),
            QStringLiteral("keyfile ") + m_certificates.key(certificate),
            QStringLiteral("cafile ") + m_certificates.pem(QStringLiteral("ca"))};
}

QString MqttClientTest::secret(const QString& name, const QByteArray& text,
                               QFile::Permissions permissions)
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(text) < 0)
        qFatal("cannot write %s", qPrintable(file.fileName()));
    file.setPermissions(permissions);
    return file.fileName();
}

void MqttClientTest::aMessageIsDelivered_data()
{
    QTest::addColumn<bool>("isMqtt5");
    QTest::newRow("3.1.1") << false;
    QTest::newRow("5") << true;
}

void MqttClientTest::aMessageIsDelivered()
{
    QFETCH(const bool, isMqtt5);
    MosquittoBroker broker;
    QVERIFY2(broker.start(), qPrintable(broker.output()));
    MqttOptions options = optionsFor(broker.port());
    options.protocol = isMqtt5 ? MqttOptions::Protocol::Mqtt5 : MqttOptions::Protocol::Mqtt311;
    MqttClient client(options);
    Listener listener(client);
    QVERIFY(!client.publish({QStringLiteral("a"), "early"}));
    client.start();
    QTRY_COMPARE(listener.connections, 1);
    QVERIFY(client.isConnected());
    client.subscribe(QStringLiteral("a/#"));
    const auto number = client.publish({QStringLiteral("a/b"), QByteArray("x\0y", 3)});
    QVERIFY(number);
    QTRY_COMPARE(listener.received.size(), 1);
    QTRY_COMPARE(listener.delivered, QList{*number});
    QCOMPARE(listener.received.first().topic, QStringLiteral("a/b"));
    QCOMPARE(listener.received.first().payload, QByteArray("x\0y", 3));
    QVERIFY(!listener.received.first().isRetained);
    client.stop();
    QTRY_VERIFY(listener.isEnded);
    QVERIFY(!client.isConnected());
    QCOMPARE(listener.failures, QStringList());
}

void MqttClientTest::aRetainedMessageStays()
{
    MosquittoBroker broker;
    QVERIFY2(broker.start(), qPrintable(broker.output()));
    MqttClient writer(optionsFor(broker.port()));
    Listener written(writer);
    writer.start();
    QTRY_COMPARE(written.connections, 1);
    writer.publish({QStringLiteral("kept"), "1", true});
    QTRY_COMPARE(written.delivered.size(), 1);

    MqttOptions options = optionsFor(broker.port());
    options.clientId = QStringLiteral("reader");
    MqttClient reader(options);
    Listener read(reader);
    reader.start();
    QTRY_COMPARE(read.connections, 1);
    reader.subscribe(QStringLiteral("kept"));
    QTRY_COMPARE(read.received.size(), 1);
    QVERIFY(read.received.first().isRetained);
}

void MqttClientTest::theWillComesAfterAKillAndNotAfterAGoodbye()
{
    MosquittoBroker broker;
    QVERIFY2(broker.start(), qPrintable(broker.output()));
    MqttOptions options = optionsFor(broker.port());
    options.clientId = QStringLiteral("reader");
    MqttClient reader(options);
    Listener read(reader);
    reader.start();
    QTRY_COMPARE(read.connections, 1);
    reader.subscribe(QStringLiteral("#"));

    options.clientId = QStringLiteral("writer");
    options.will = MqttMessage{QStringLiteral("will"), "offline", true};
    auto writer = std::make_unique<MqttClient>(options);
    auto written = std::make_unique<Listener>(*writer);
    writer->start();
    QTRY_COMPARE(written->connections, 1);
    writer->publish({QStringLiteral("bye"), "1"});
    writer->stop();
    QTRY_VERIFY(written->isEnded);
    QTRY_COMPARE(read.received.size(), 1);
    QCOMPARE(read.received.first().topic, QStringLiteral("bye"));

    writer = std::make_unique<MqttClient>(options);
    written = std::make_unique<Listener>(*writer);
    writer->start();
    QTRY_COMPARE(written->connections, 1);
    writer.reset();
    QTRY_COMPARE(read.received.size(), 2);
    QCOMPARE(read.received.last().payload, QByteArray("offline"));
}

void MqttClientTest::itConnectsAgainWhenTheBrokerIsBack()
{
    MosquittoBroker broker;
    QVERIFY2(broker.start(), qPrintable(broker.output()));
    MqttClient client(optionsFor(broker.port()));
    Listener listener(client);
    client.start();
    QTRY_COMPARE(listener.connections, 1);
    broker.kill();
    QTRY_COMPARE(listener.endings, 1);
    QVERIFY(!client.isConnected());
    QVERIFY(!client.publish({QStringLiteral("a"), "lost"}));
    QTRY_VERIFY(listener.lastFailure().contains(QStringLiteral("cannot be reached")));
    QVERIFY2(broker.start(), qPrintable(broker.output()));
    QTRY_COMPARE(listener.connections, 2);
    const auto number = client.publish({QStringLiteral("a"), "1"});
    QVERIFY(number);
    QTRY_VERIFY(listener.delivered.contains(*number));
}

/// The broker listens at 127.0.0.1 alone, and "localhost" may be ::1 first.
void MqttClientTest::aNameWithTwoFamiliesOfAddressesIsTriedWithBoth()
{
    const QList<QHostAddress> addresses =
        QHostInfo::fromName(QStringLiteral("localhost")).addresses();
    const bool hasIpv6 = std::ranges::any_of(addresses, [](const QHostAddress& address) {
        return address.protocol() == QHostAddress::IPv6Protocol;
    });
    if (!hasIpv6)
        QSKIP("needs a \"localhost\" with an address of IPv6 too");
    MosquittoBroker broker;
    QVERIFY2(broker.start(), qPrintable(broker.output()));
    MqttOptions options = optionsFor(broker.port());
    options.broker.host = QStringLiteral("localhost");
    MqttClient client(options);
    Listener listener(client);
    client.start();
    QTRY_COMPARE(listener.connections, 1);
    QCOMPARE(listener.failures, QStringList());
}

void MqttClientTest::manyMessagesAreDeliveredInOrder()
{
    MosquittoBroker broker;
    QVERIFY2(broker.start(), qPrintable(broker.output()));
    MqttClient client(optionsFor(broker.port()));
    Listener listener(client);
    client.start();
    QTRY_COMPARE(listener.connections, 1);
    client.subscribe(QStringLiteral("#"));
    // More than a socket's buffers take at once.
    const QByteArray large(20000, 'x');
    constexpr int count = 500;
    for (int i = 0; i < count; ++i)
        QVERIFY(client.publish({QString::number(i), large}));
    QTRY_COMPARE(listener.delivered.size(), count);
    QTRY_COMPARE(listener.received.size(), count);
    for (int i = 0; i < count; ++i)
        QCOMPARE(listener.received.at(i).topic, QString::number(i));
}

void MqttClientTest::aTopicThatNoBrokerTakesIsRefusedHere()
{
    MosquittoBroker broker;
    QVERIFY2(broker.start(), qPrintable(broker.output()));
    MqttClient client(optionsFor(broker.port()));
    Listener listener(client);
    client.start();
    QTRY_COMPARE(listener.connections, 1);
    QString objection;
    QVERIFY(!client.publish({QStringLiteral("a/+"), "1"}, &objection));
    QVERIFY(!objection.isEmpty());
    QVERIFY(client.isConnected());
}

void MqttClientTest::whatTheBrokerForbidsIsRefused()
{
    const QString rules = secret(QStringLiteral("rules"), "topic readwrite mine/#\n");
    MosquittoBroker broker({QStringLiteral("acl_file ") + rules});
    QVERIFY2(broker.start(), qPrintable(broker.output()));
    MqttOptions options = optionsFor(broker.port());
    options.protocol = MqttOptions::Protocol::Mqtt5;
    MqttClient client(options);
    Listener listener(client);
    client.start();
    QTRY_COMPARE(listener.connections, 1);
    client.publish({QStringLiteral("others/a"), "1"});
    QTRY_COMPARE(listener.refusals.size(), 1);
    QVERIFY2(listener.refusals.first().contains(QStringLiteral("authorized")),
             qPrintable(listener.refusals.first()));
    QCOMPARE(listener.delivered, QList<int>());
}

void MqttClientTest::itMayBeDestroyedInItsSignals()
{
    MosquittoBroker broker;
    QVERIFY2(broker.start(), qPrintable(broker.output()));
    // In `connected`.
    auto* client = new MqttClient(optionsFor(broker.port()));
    connect(client, &MqttClient::connected, client,
            [&client] { delete std::exchange(client, nullptr); });
    client->start();
    QTRY_VERIFY(!client);
    // In `delivered`.
    client = new MqttClient(optionsFor(broker.port()));
    connect(client, &MqttClient::connected, client, [&client] {
        client->publish({QStringLiteral("a"), "1"});
    });
    connect(client, &MqttClient::delivered, client,
            [&client] { delete std::exchange(client, nullptr); });
    client->start();
    QTRY_VERIFY(!client);
    // In `disconnected`.
    client = new MqttClient(optionsFor(broker.port()));
    bool isConnected = false;
    connect(client, &MqttClient::connected, client, [&isConnected] { isConnected = true; });
    connect(client, &MqttClient::disconnected, client,
            [&client] { delete std::exchange(client, nullptr); });
    client->start();
    QTRY_VERIFY(isConnected);
    broker.kill();
    QTRY_VERIFY(!client);
    // In `failed`.
    client = new MqttClient(optionsFor(broker.port()));
    connect(client, &MqttClient::failed, client,
            [&client] { delete std::exchange(client, nullptr); });
    client->start();
    QTRY_VERIFY(!client);
}

void MqttClientTest::theWrongPasswordIsNamed_data()
{
    aMessageIsDelivered_data();
}

void MqttClientTest::theWrongPasswordIsNamed()
{
    QFETCH(const bool, isMqtt5);
    const QString users = secret(QStringLiteral("users"), {});
    // A file of users whose hash nobody has the password to.
    QFile file(users);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("agent:$7$101$c2FsdHNhbHRzYWx0$" + QByteArray(64, 'x').toBase64() + '\n');
    file.close();
    MosquittoBroker broker(
        {QStringLiteral("allow_anonymous false"), QStringLiteral("password_file ") + users});
    QVERIFY2(broker.start(), qPrintable(broker.output()));
    MqttOptions options = optionsFor(broker.port());
    options.protocol = isMqtt5 ? MqttOptions::Protocol::Mqtt5 : MqttOptions::Protocol::Mqtt311;
    options.username = QStringLiteral("agent");
    options.passwordFile = secret(QStringLiteral("password"), "swordfish\n");
    MqttClient client(options);
    Listener listener(client);
    client.start();
    QTRY_VERIFY(listener.failures.size() >= 2);
    QVERIFY2(listener.lastFailure().contains(
                 QStringLiteral("does not accept the user \"agent\" with the password in")),
             qPrintable(listener.lastFailure()));
    QVERIFY(!listener.failures.join(u'\n').contains(QStringLiteral("swordfish")));
    QCOMPARE(listener.connections, 0);
}

void MqttClientTest::aPasswordFileThatOthersMayReadIsNotUsed()
{
    FakeBroker broker;
    MqttOptions options = optionsFor(broker.port());
    options.username = QStringLiteral("agent");
    options.passwordFile = secret(QStringLiteral("open"), "swordfish\n",
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
    MqttClient client(options);
    Listener listener(client);
    client.start();
    QTRY_VERIFY(listener.failures.size() >= 2);
    QVERIFY2(listener.lastFailure().contains(QStringLiteral("others may use")),
             qPrintable(listener.lastFailure()));
    QCOMPARE(broker.connections, 0);
}

void MqttClientTest::aNewPasswordNeedsNoRestart()
{
    const QString users = secret(QStringLiteral("users2"), {});
    QProcess tool;
    tool.start(QStringLiteral("mosquitto_passwd"),
               {QStringLiteral("-b"), users, QStringLiteral("agent"), QStringLiteral("right")});
    if (!tool.waitForStarted(patience))
        QSKIP("needs mosquitto_passwd");
    QVERIFY(tool.waitForFinished(patience));
    MosquittoBroker broker(
        {QStringLiteral("allow_anonymous false"), QStringLiteral("password_file ") + users});
    QVERIFY2(broker.start(), qPrintable(broker.output()));
    MqttOptions options = optionsFor(broker.port());
    options.username = QStringLiteral("agent");
    options.passwordFile = secret(QStringLiteral("password2"), "wrong\n");
    MqttClient client(options);
    Listener listener(client);
    client.start();
    QTRY_VERIFY(!listener.failures.isEmpty());
    secret(QStringLiteral("password2"), "right\r\n");
    QTRY_COMPARE(listener.connections, 1);
}

void MqttClientTest::tlsDelivers_data()
{
    QTest::addColumn<QString>("host");
    QTest::newRow("name") << QStringLiteral("localhost");
    QTest::newRow("address") << QStringLiteral("127.0.0.1");
}

void MqttClientTest::tlsDelivers()
{
    QFETCH(const QString, host);
    MosquittoBroker broker(tlsSettings(QStringLiteral("good")));
    QVERIFY2(broker.start(), qPrintable(broker.output()));
    MqttOptions options = tlsOptionsFor(broker.port());
    options.broker.host = host;
    MqttClient client(options);
    Listener listener(client);
    client.start();
    QTRY_COMPARE(listener.connections, 1);
    client.subscribe(QStringLiteral("#"));
    const QByteArray large(100000, 'x');
    client.publish({QStringLiteral("a"), large});
    QTRY_COMPARE(listener.received.size(), 1);
    QCOMPARE(listener.received.first().payload, large);
    QTRY_COMPARE(listener.delivered.size(), 1);
    QCOMPARE(listener.failures, QStringList());
    client.stop();
    QTRY_VERIFY(listener.isEnded);
}

void MqttClientTest::aClientCertificateIsAccepted()
{
    MosquittoBroker broker(tlsSettings(QStringLiteral("good")) +
                           QStringList{QStringLiteral("require_certificate true")});
    QVERIFY2(broker.start(), qPrintable(broker.output()));
    MqttOptions options = tlsOptionsFor(broker.port());
    options.certFile = m_certificates.pem(QStringLiteral("agent"));
    options.keyFile = m_certificates.key(QStringLiteral("agent"));
    MqttClient client(options);
    Listener listener(client);
    client.start();
    QTRY_COMPARE(listener.connections, 1);
}

void MqttClientTest::aBrokerWithoutTheRightCertificateIsRefused_data()
{
    QTest::addColumn<QString>("certificate");
    QTest::addColumn<QString>("reason");
    QTest::newRow("expired") << QStringLiteral("expired") << QStringLiteral("expired");
    QTest::newRow("not yet valid") << QStringLiteral("future") << QStringLiteral("not yet valid");
    QTest::newRow("foreign authority")
        << QStringLiteral("strange") << QStringLiteral("not signed by");
    QTest::newRow("another name") << QStringLiteral("other")
                                  << QStringLiteral("for another name than \"127.0.0.1\"");
}

void MqttClientTest::aBrokerWithoutTheRightCertificateIsRefused()
{
    QFETCH(const QString, certificate);
    QFETCH(const QString, reason);
    MosquittoBroker broker(tlsSettings(certificate));
    QVERIFY2(broker.start(), qPrintable(broker.output()));
    MqttOptions options = tlsOptionsFor(broker.port());
    options.username = QStringLiteral("agent");
    options.passwordFile = secret(QStringLiteral("password"), "swordfish\n");
    MqttClient client(options);
    Listener listener(client);
    client.start();
    QTRY_VERIFY(listener.failures.size() >= 3);
    QVERIFY2(listener.lastFailure().contains(reason), qPrintable(listener.lastFailure()));
    QVERIFY(listener.lastFailure().contains(options.broker.url()));
    QCOMPARE(listener.connections, 0);
}

void MqttClientTest::aMissingClientCertificateIsNamed()
{
    MosquittoBroker broker(tlsSettings(QStringLiteral("good")) +
                           QStringList{QStringLiteral("require_certificate true")});
    QVERIFY2(broker.start(), qPrintable(broker.output()));
    for (const char* name : {"", "stranger"}) {
        MqttOptions options = tlsOptionsFor(broker.port());
        if (*name != '\0') {
            options.certFile = m_certificates.pem(QString::fromLatin1(name));
            options.keyFile = m_certificates.key(QString::fromLatin1(name));
        }
        MqttClient client(options);
        Listener listener(client);
        client.start();
        // The broker's alert may be lost with the connection, so each message must name it.
        QTRY_VERIFY(listener.failures.size() >= 5);
        for (const QString& failure : std::as_const(listener.failures))
            QVERIFY2(failure.contains(QStringLiteral("wants a client certificate")),
                     qPrintable(failure));
        QCOMPARE(listener.connections, 0);
    }
}

void MqttClientTest::unusableCertificatesAreNamed()
{
    MosquittoBroker broker(tlsSettings(QStringLiteral("good")));
    QVERIFY2(broker.start(), qPrintable(broker.output()));
    MqttOptions options = tlsOptionsFor(broker.port());
    options.caFile = secret(QStringLiteral("no.pem"), "no certificate\n");
    {
        MqttClient client(options);
        Listener listener(client);
        client.start();
        QTRY_VERIFY(!listener.failures.isEmpty());
        QVERIFY2(listener.lastFailure().contains(options.caFile),
                 qPrintable(listener.lastFailure()));
    }
    options = tlsOptionsFor(broker.port());
    options.certFile = m_certificates.pem(QStringLiteral("agent"));
    options.keyFile = m_certificates.key(QStringLiteral("good")); // of another certificate
    MqttClient client(options);
    Listener listener(client);
    client.start();
    QTRY_VERIFY(!listener.failures.isEmpty());
    QVERIFY2(listener.lastFailure().contains(QStringLiteral("certificates cannot be used")),
             qPrintable(listener.lastFailure()));
}

void MqttClientTest::tlsToABrokerWithoutTlsIsNamed()
{
    MosquittoBroker broker;
    QVERIFY2(broker.start(), qPrintable(broker.output()));
    MqttClient client(tlsOptionsFor(broker.port()));
    Listener listener(client);
    client.start();
    QTRY_VERIFY(!listener.failures.isEmpty());
    QVERIFY2(listener.lastFailure().contains(QStringLiteral("TLS")),
             qPrintable(listener.lastFailure()));
}

void MqttClientTest::noTlsToABrokerWithTlsIsNamed()
{
    MosquittoBroker broker(tlsSettings(QStringLiteral("good")));
    QVERIFY2(broker.start(), qPrintable(broker.output()));
    MqttClient client(optionsFor(broker.port()));
    Listener listener(client);
    client.start();
    QTRY_VERIFY(!listener.failures.isEmpty());
    QVERIFY2(listener.lastFailure().contains(QStringLiteral("TLS")),
             qPrintable(listener.lastFailure()));
}

void MqttClientTest::aBrokerThatNeverAnswersIsNamed_data()
{
    QTest::addColumn<bool>("isEncrypted");
    QTest::newRow("plain") << false;
    QTest::newRow("TLS") << true;
}

void MqttClientTest::aBrokerThatNeverAnswersIsNamed()
{
    QFETCH(const bool, isEncrypted);
    FakeBroker broker;
    MqttOptions options = isEncrypted ? tlsOptionsFor(broker.port()) : optionsFor(broker.port());
    options.answerTime = 300ms;
    MqttClient client(options);
    Listener listener(client);
    client.start();
    QTRY_VERIFY(listener.failures.size() >= 2);
    QVERIFY2(listener.lastFailure().contains(
                 QStringLiteral("accepts connections but does not answer within 0.3 seconds")),
             qPrintable(listener.lastFailure()));
    // A new connection for each attempt, and none that is left behind.
    QVERIFY(broker.connections >= 2);
}

void MqttClientTest::aBrokerThatFallsSilentIsLeft()
{
    FakeBroker broker(QByteArray::fromHex("20020000"));
    MqttOptions options = optionsFor(broker.port());
    options.keepAlive = 5s; // the shortest that there is
    MqttClient client(options);
    Listener listener(client);
    client.start();
    QTRY_COMPARE(listener.connections, 1);
    QTRY_COMPARE(listener.endings, 1);
    QVERIFY2(listener.lastFailure().contains(QStringLiteral("does not answer any more")),
             qPrintable(listener.lastFailure()));
}

void MqttClientTest::aBrokerThatCloses()
{
    FakeBroker broker;
    broker.isClosing = true;
    for (const bool isEncrypted : {false, true}) {
        MqttClient client(isEncrypted ? tlsOptionsFor(broker.port()) : optionsFor(broker.port()));
        Listener listener(client);
        client.start();
        QTRY_VERIFY(listener.failures.size() >= 2);
        QVERIFY2(listener.lastFailure().contains(QStringLiteral("closed the connection")),
                 qPrintable(listener.lastFailure()));
    }
}

void MqttClientTest::aTopicThatNatsRefusesIsNamed_data()
{
    QTest::addColumn<bool>("isWill");
    QTest::addColumn<QString>("topic");
    QTest::addColumn<bool>("isNamed");
    QTest::newRow("will with a space") << true << QStringLiteral("vxprint/v1/s/pc 1/state") << true;
    QTest::newRow("will with a dot") << true << QStringLiteral("vxprint/v1/s/pc.x/state") << true;
    QTest::newRow("other will") << true << QStringLiteral("vxprint/v1/s/pc/state") << false;
    QTest::newRow("message with a space") << false << QStringLiteral("printer/Line 1") << true;
    QTest::newRow("message with a dot") << false << QStringLiteral("printer/1.b") << true;
    QTest::newRow("other message") << false << QStringLiteral("printer/1") << false;
}

/// NATS closes the connection without a word. tests/deploy has the real one.
void MqttClientTest::aTopicThatNatsRefusesIsNamed()
{
    QFETCH(const bool, isWill);
    QFETCH(const QString, topic);
    QFETCH(const bool, isNamed);
    FakeBroker broker(QByteArray::fromHex("20020000"));
    broker.isClosing = isWill;
    broker.isClosingAfterAnswer = true;
    MqttOptions options = optionsFor(broker.port());
    if (isWill)
        options.will = MqttMessage{topic, "offline", true};
    MqttClient client(options);
    Listener listener(client);
    connect(&client, &MqttClient::connected, this, [&] {
        client.publish({isWill ? QStringLiteral("x") : topic, "x", true});
    });
    client.start();
    QTRY_VERIFY(!listener.failures.isEmpty());
    const QString failure = listener.failures.first();
    QVERIFY2(failure.contains(QStringLiteral("closed the connection")), qPrintable(failure));
    QCOMPARE(failure.contains(
                 QStringLiteral("If the broker is a NATS server, set \"natsTopics\" to true")),
             isNamed);
    QCOMPARE(failure.contains(topic), isNamed);
}

/// Such an end depends on the moment, so only what is said of it is tested.
void MqttClientTest::aConnectionThatEndsDuringAWriteIsClosed()
{
    constexpr int systemError = 14; // MOSQ_ERR_ERRNO
    const MqttOptions options = optionsFor(1883);
    for (const int error : {EPIPE, ECONNRESET, ECONNABORTED}) {
        const QString text = mqtt_failure::failedCall(options, systemError, error, {}, true, {});
        QVERIFY2(text.contains(QStringLiteral("has closed the connection")), qPrintable(text));
    }
    const QString text = mqtt_failure::failedCall(options, systemError, EHOSTUNREACH, {}, true, {});
    QVERIFY2(text.contains(QStringLiteral("cannot be reached")), qPrintable(text));
}

void MqttClientTest::garbageIsNamed_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("web server") << QByteArray("HTTP/1.1 400 Bad Request\r\n\r\n");
    QTest::newRow("mail server") << QByteArray("220 mail.example ESMTP\r\n");
    QTest::newRow("zeros") << QByteArray(1000, '\0');
    QTest::newRow("ones") << QByteArray(1000, '\xff');
    QTest::newRow("huge answer") << QByteArray::fromHex("20ffffff7f") + QByteArray(100000, 'x');
    QTest::newRow("another packet") << QByteArray::fromHex("300400016178");
    QTest::newRow("too long a length") << QByteArray::fromHex("20ffffffffff");
}

void MqttClientTest::garbageIsNamed()
{
    QFETCH(const QByteArray, answer);
    FakeBroker broker(answer);
    MqttClient client(optionsFor(broker.port()));
    Listener listener(client);
    client.start();
    QTRY_VERIFY(listener.failures.size() >= 2);
    QVERIFY2(listener.lastFailure().contains(QStringLiteral("MQTT")),
             qPrintable(listener.lastFailure()));
    QCOMPARE(listener.connections, 0);
}

void MqttClientTest::garbageAfterTheGreetingIsNamed()
{
    FakeBroker broker(QByteArray::fromHex("20020000") + QByteArray::fromHex("f1f2f3") +
                      QByteArray(100, '\x81'));
    MqttClient client(optionsFor(broker.port()));
    Listener listener(client);
    client.start();
    QTRY_VERIFY(listener.endings >= 2);
    QVERIFY2(listener.lastFailure().contains(QStringLiteral("not valid MQTT")) ||
                 listener.lastFailure().contains(QStringLiteral("closed the connection")),
             qPrintable(listener.lastFailure()));
}

void MqttClientTest::anAnswerInPiecesIsUnderstood()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost, 0));
    MqttClient client(optionsFor(server.serverPort()));
    Listener listener(client);
    client.start();
    QTRY_VERIFY(server.hasPendingConnections());
    const std::unique_ptr<QTcpSocket> socket(server.nextPendingConnection());
    QTRY_VERIFY(socket->bytesAvailable() > 0);
    socket->write(QByteArray::fromHex("20"));
    QVERIFY(socket->flush());
    QTRY_COMPARE(socket->bytesToWrite(), 0);
    // The client sees the piece and waits for more.
    QCoreApplication::processEvents();
    QCOMPARE(listener.failures, QStringList());
    socket->write(QByteArray::fromHex("020000"));
    QTRY_COMPARE(listener.connections, 1);
}

void MqttClientTest::nobodyListensIsNamed()
{
    for (const bool isEncrypted : {false, true}) {
        const quint16 port = MosquittoBroker::freePort();
        MqttClient client(isEncrypted ? tlsOptionsFor(port) : optionsFor(port));
        Listener listener(client);
        client.start();
        QTRY_VERIFY(listener.failures.size() >= 2);
        QVERIFY2(listener.lastFailure().contains(QStringLiteral("check that the broker runs")),
                 qPrintable(listener.lastFailure()));
    }
}

void MqttClientTest::anUnknownHostIsNamed()
{
    MqttOptions options = optionsFor(1883);
    options.broker.host = QStringLiteral("no-such-host.invalid");
    MqttClient client(options);
    Listener listener(client);
    client.start();
    QTRY_VERIFY(!listener.failures.isEmpty());
    QVERIFY2(listener.lastFailure().contains(
                 QStringLiteral("the name \"no-such-host.invalid\" has no address")),
             qPrintable(listener.lastFailure()));
}

void MqttClientTest::twoClientsOfOneNameAreTold()
{
    // Accepted, and then "session taken over", as brokers of MQTT 5 say it.
    FakeBroker broker(QByteArray::fromHex("2003000000") + QByteArray::fromHex("e0018e"));
    MqttOptions options = optionsFor(broker.port());
    options.protocol = MqttOptions::Protocol::Mqtt5;
    MqttClient client(options);
    Listener listener(client);
    client.start();
    QTRY_VERIFY(!listener.failures.isEmpty());
    QVERIFY2(listener.failures.first().contains(QStringLiteral("no two agents may have the same")),
             qPrintable(listener.failures.first()));
}

/// Not every broker says so.
void MqttClientTest::theSecondClientOfANameEndsTheFirst()
{
    MosquittoBroker broker;
    QVERIFY2(broker.start(), qPrintable(broker.output()));
    MqttOptions options = optionsFor(broker.port());
    options.firstDelay = options.longestDelay = 1h;
    MqttClient first(options);
    Listener ofFirst(first);
    first.start();
    QTRY_COMPARE(ofFirst.connections, 1);
    MqttClient second(options);
    second.start();
    QTRY_VERIFY(!ofFirst.failures.isEmpty());
    QVERIFY2(ofFirst.failures.first().contains(QStringLiteral("another agent has the same")),
             qPrintable(ofFirst.failures.first()));
}

void MqttClientTest::waitsDoubleUpToTheLongest()
{
    MqttOptions options;
    QCOMPARE(MqttClient::longestWait(options, 1), 1s);
    QCOMPARE(MqttClient::longestWait(options, 2), 2s);
    QCOMPARE(MqttClient::longestWait(options, 6), 32s);
    QCOMPARE(MqttClient::longestWait(options, 7), 60s);
    QCOMPARE(MqttClient::longestWait(options, 1000000), 60s);
}

/// A thousand agents whose broker went away at one moment do not come back at one moment.
void MqttClientTest::waitsAreSpread()
{
    MqttOptions options = optionsFor(MosquittoBroker::freePort());
    options.firstDelay = options.longestDelay = 60s;
    QSet<qint64> waits;
    constexpr int agents = 20;
    for (int i = 0; i < agents; ++i) {
        MqttClient client(options);
        std::chrono::milliseconds wait{};
        connect(&client, &MqttClient::failed, &client,
                [&wait](const QString&, std::chrono::milliseconds next) { wait = next; });
        client.start();
        QTRY_VERIFY(wait.count() > 0);
        QVERIFY(wait >= 30s && wait <= 60s);
        waits.insert(wait.count());
    }
    QVERIFY(waits.size() > agents / 2);
}

QTEST_GUILESS_MAIN(MqttClientTest)
#include "tst_mqtt_client.moc"
