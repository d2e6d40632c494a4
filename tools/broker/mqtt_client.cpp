// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "mqtt_client.h"

#include "mqtt_failure.h"
#include "secret_file.h"
#include "socket_look.h"
#include "system_authorities.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QMap>
#include <QtCore/QPointer>
#include <QtCore/QRandomGenerator>
#include <QtCore/QSocketNotifier>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryFile>
#include <QtCore/QTimer>
#include <QtNetwork/QHostInfo>

#include <algorithm>
#include <cerrno>
#include <utility>
#include <vector>

#include <mosquitto.h>
#include <mqtt_protocol.h>

using namespace std::chrono_literals;

namespace {

/// Prepares libmosquitto once, and cleans up at the end of the program.
class Library
{
public:
    Library()
    {
        mosquitto_lib_init();
        socket_look::survivesClosedConnections();
    }
    ~Library() { mosquitto_lib_cleanup(); }
    Q_DISABLE_COPY_MOVE(Library)

    static void use() { static const Library library; }
};

struct Free
{
    void operator()(mosquitto* client) const { mosquitto_destroy(client); }
};
using Mosquitto = std::unique_ptr<mosquitto, Free>;

/// What libmosquitto has reported during one of its calls. It is acted on when the call is over:
/// inside, the client must not be destroyed.
struct Report
{
    enum class Kind
    {
        Accepted,
        Refused, ///< the connection
        Ended,
        Delivered,
        MessageRefused,
        Subscribed, ///< the number is the QoS, or a failure
        Received,
    };
    Kind kind = Kind::Accepted;
    int number = 0; ///< of a message, or the reason
    QString text{};
    MqttMessage message{};
};

/// Reasons of MQTT 5 from here on are failures.
constexpr int firstFailure = 0x80;

/// How often libmosquitto looks whether it has to ping.
constexpr auto housekeeping = 1s;

} // namespace

class MqttClient::Private
{
public:
    Private(MqttClient* client, const MqttOptions& given)
        : q(client)
        , options(given)
    {
        retry.setSingleShot(true);
        answer.setSingleShot(true);
        connect(&retry, &QTimer::timeout, q, [this] { lookUp(); });
        connect(&answer, &QTimer::timeout, q, [this] { complainOfSilence(); });
        connect(&clock, &QTimer::timeout, q, [this] {
            readWhatWasNotAnnounced();
            drive([this] { return mosquitto_loop_misc(connection.get()); });
        });
    }

    ~Private()
    {
        if (lookup)
            QHostInfo::abortHostLookup(*lookup);
    }
    Q_DISABLE_COPY_MOVE(Private)

    /// @name Making a connection
    /// @{
    void lookUp()
    {
        answer.start(options.answerTime);
        lookup = QHostInfo::lookupHost(options.broker.host, q, [this](const QHostInfo& found) {
            lookup.reset();
            if (found.error() != QHostInfo::NoError || found.addresses().isEmpty()) {
                fail(mqtt_failure::unknownHost(options.broker, found.errorString()));
                return;
            }
            families.clear();
            for (const QList<QHostAddress> all = found.addresses();
                 const QHostAddress& each : all) {
                const QByteArray any =
                    each.protocol() == QHostAddress::IPv6Protocol ? "::" : "0.0.0.0";
                if (!families.contains(any))
                    families.append(any);
            }
            tryNextFamily();
        });
    }

    /// libmosquitto tries only the first address when it does not block. The address that it binds
    /// to makes it choose those of one family.
    void tryNextFamily()
    {
        const QByteArray any = families.takeFirst();
        QString objection = prepare();
        if (!objection.isEmpty()) {
            families.clear();
            fail(objection);
            return;
        }
        errno = 0;
        const int result = mosquitto_connect_bind_async(
            connection.get(), options.broker.host.toUtf8().constData(), options.broker.port,
            static_cast<int>(options.keepAlive.count()), any.constData());
        const int error = errno;
        if (result != MOSQ_ERR_SUCCESS) {
            // A TLS handshake has begun if the system has taken it for a mistake of the protocol.
            const bool isUnreachable = result == MOSQ_ERR_ERRNO && error != EPROTO;
            endAttempt(isUnreachable
                           ? mqtt_failure::unreachable(options.broker, qt_error_string(error))
                           : describe(result, error));
            return;
        }
        isTcpPending = true;
        listen();
        clock.start(housekeeping);
    }

    /// A new client of libmosquitto. Returns why there can be none.
    QString prepare()
    {
        errors.clear();
        reports.clear();
        hasAnswered = false;
        connection.reset(mosquitto_new(options.clientId.toUtf8().constData(), true, this));
        mosquitto* const client = connection.get();
        if (!client)
            return QStringLiteral("out of memory");
        const bool isMqtt5 = options.protocol == MqttOptions::Protocol::Mqtt5;
        mosquitto_int_option(client, MOSQ_OPT_PROTOCOL_VERSION,
                             isMqtt5 ? MQTT_PROTOCOL_V5 : MQTT_PROTOCOL_V311);
        mosquitto_int_option(client, MOSQ_OPT_TCP_NODELAY, 1);
        // Whoever publishes limits what is on its way.
        constexpr int mostOnTheirWay = 256;
        mosquitto_max_inflight_messages_set(client, mostOnTheirWay);
        mosquitto_connect_v5_callback_set(client, &Private::onConnect);
        mosquitto_disconnect_v5_callback_set(client, &Private::onDisconnect);
        mosquitto_publish_v5_callback_set(client, &Private::onPublish);
        mosquitto_subscribe_v5_callback_set(client, &Private::onSubscribe);
        mosquitto_message_v5_callback_set(client, &Private::onMessage);
        mosquitto_log_callback_set(client, &Private::onLog);
        if (options.will) {
            const QByteArray topic = options.will->topic.toUtf8();
            const QByteArray& payload = options.will->payload;
            mosquitto_will_set(client, topic.constData(), static_cast<int>(payload.size()),
                               payload.constData(), 1, options.will->isRetained);
        }
        const QString objection = setPassword();
        return objection.isEmpty() && options.broker.isEncrypted ? setTls() : objection;
    }

    QString setPassword()
    {
        if (options.username.isEmpty())
            return {};
        std::optional<QByteArray> password;
        if (!options.passwordFile.isEmpty()) {
            // Read for each connection, so that a new password needs no restart.
            QString reason;
            password = secret_file::password(options.passwordFile, &reason);
            if (!password)
                return reason;
        }
        mosquitto_username_pw_set(connection.get(), options.username.toUtf8().constData(),
                                  password ? password->constData() : nullptr);
        if (password)
            password->fill('\0');
        return {};
    }

    QString setTls()
    {
        mosquitto* const client = connection.get();
        const auto name = [](const QString& path) {
            return QFile::encodeName(path);
        };
        QString authoritiesFile = options.caFile;
        if (authoritiesFile.isEmpty()) {
            QString objection;
            authorities = system_authorities::write(&objection);
            if (!objection.isEmpty())
                return objection;
            if (authorities)
                authoritiesFile = authorities->fileName();
        }
        const QByteArray ca = name(authoritiesFile);
        const QByteArray cert = name(options.certFile);
        const QByteArray key = name(options.keyFile);
        if (ca.isEmpty())
            mosquitto_int_option(client, MOSQ_OPT_TLS_USE_OS_CERTS, 1);
        if (!key.isEmpty()) {
            const QString objection = secret_file::objection(options.keyFile);
            if (!objection.isEmpty())
                return objection;
        }
        const auto orNull = [](const QByteArray& text) {
            return text.isEmpty() ? nullptr : text.constData();
        };
        // Without a file of its own libmosquitto wants a folder; this one has none to add.
        int result = ca.isEmpty() && cert.isEmpty() && key.isEmpty()
                         ? MOSQ_ERR_SUCCESS
                         : mosquitto_tls_set(client, orNull(ca), nullptr, orNull(cert), orNull(key),
                                             &Private::noPassphrase);
        if (result == MOSQ_ERR_SUCCESS) {
            constexpr int verifyPeer = 1;
            result = mosquitto_tls_opts_set(client, verifyPeer, nullptr, nullptr);
        }
        return result == MOSQ_ERR_SUCCESS ? QString()
                                          : mqtt_failure::unusableCertificates(options, errors);
    }

    /// OpenSSL would ask for the passphrase of a key in the console and wait for ever.
    static int noPassphrase(char* /*buffer*/, int /*size*/, int /*isWriting*/, void* /*data*/)
    {
        return 0;
    }

    void listen()
    {
        const auto socket = static_cast<qintptr>(mosquitto_socket(connection.get()));
        reading = std::make_unique<QSocketNotifier>(socket, QSocketNotifier::Read);
        writing = std::make_unique<QSocketNotifier>(socket, QSocketNotifier::Write);
        connect(reading.get(), &QSocketNotifier::activated, q, [this] { read(); });
        connect(writing.get(), &QSocketNotifier::activated, q, [this] { write(); });
    }

    void noteTcpConnection()
    {
        isTcpPending = false;
        const socket_look::ConnectionError error =
            socket_look::connectionError(static_cast<qintptr>(mosquitto_socket(connection.get())));
        if (!error.text.isEmpty())
            endAttempt(error.isReset ? mqtt_failure::closedEarly(options, error.text)
                                     : mqtt_failure::unreachable(options.broker, error.text));
    }

    /// Tries the next family of addresses, or fails.
    void endAttempt(const QString& reason)
    {
        if (families.isEmpty()) {
            fail(reason);
            return;
        }
        drop();
        // Not from inside a notifier of the socket that has just gone.
        QMetaObject::invokeMethod(
            q,
            [this] {
                if (!connection && !families.isEmpty())
                    tryNextFamily();
            },
            Qt::QueuedConnection);
    }
    /// @}

    /// @name Driving libmosquitto
    /// @{
    void read()
    {
        if (isTcpPending)
            noteTcpConnection();
        if (!connection)
            return;
        if (hasAnswered || isWorthReading())
            drive([this] { return mosquitto_loop_read(connection.get(), 1); });
    }

    /// On Windows a notifier tells only once that the other side has closed the connection, and
    /// that may have been while there was still something to read. libmosquitto does not notice
    /// either: a ping that cannot be sent does not count as one without an answer.
    void readWhatWasNotAnnounced()
    {
        if (!isAccepted || !connection)
            return;
        const socket_look::Arrived arrived =
            socket_look::arrived(static_cast<qintptr>(mosquitto_socket(connection.get())));
        if (arrived.isClosed || !arrived.bytes.isEmpty())
            drive([this] { return mosquitto_loop_read(connection.get(), 1); });
    }

    /// libmosquitto takes some endings of a TLS handshake for success, and any garbage for the
    /// beginning of a packet of up to 256 MiB.
    bool isWorthReading()
    {
        const socket_look::Arrived arrived =
            socket_look::arrived(static_cast<qintptr>(mosquitto_socket(connection.get())));
        const bool isComplete = arrived.bytes.size() >= mqtt_failure::shortestAnswer;
        QString objection;
        if (arrived.isClosed)
            objection = mqtt_failure::closedEarly(options, arrived.error);
        else if (isComplete && !options.broker.isEncrypted)
            objection = mqtt_failure::garbage(options.broker, arrived.bytes);
        if (!objection.isEmpty()) {
            endAttempt(objection);
            return false;
        }
        if (isComplete || (options.broker.isEncrypted && !arrived.bytes.isEmpty()))
            return true;
        // The notifier would not rest while a part of an answer is there.
        constexpr auto rest = 50ms;
        reading->setEnabled(false);
        QTimer::singleShot(rest, reading.get(),
                           [notifier = reading.get()] { notifier->setEnabled(true); });
        return false;
    }

    void write()
    {
        if (isTcpPending)
            noteTcpConnection();
        if (!connection)
            return;
        // In a TLS handshake, reading is what makes it go on.
        if (options.broker.isEncrypted && !hasAnswered)
            drive([this] { return mosquitto_loop_read(connection.get(), 1); });
        if (connection)
            drive([this] { return mosquitto_loop_write(connection.get(), 1); });
    }

    /// Calls libmosquitto and then does what it has reported.
    template <typename Call>
    void drive(const Call& call)
    {
        if (!connection)
            return;
        errno = 0;
        const int result = call();
        const int error = errno;
        const QPointer<MqttClient> guard(q);
        std::vector<Report> news;
        news.swap(reports);
        const mosquitto* const current = connection.get();
        for (const Report& report : news) {
            take(report);
            if (!guard || connection.get() != current)
                return;
        }
        if (result != MOSQ_ERR_SUCCESS) {
            const QString reason = describe(result, error);
            if (isAccepted || isStopping)
                fail(reason);
            else
                endAttempt(reason);
            return;
        }
        watchWriting();
    }

    void watchWriting()
    {
        if (connection && writing)
            writing->setEnabled(isTcpPending || mosquitto_want_write(connection.get()));
    }

    void take(const Report& report)
    {
        switch (report.kind) {
        case Report::Kind::Accepted:
            answer.stop();
            families.clear();
            isAccepted = true;
            since.restart();
            Q_EMIT q->connected();
            break;
        case Report::Kind::Refused:
            fail(mqtt_failure::refusedConnection(options, report.number));
            break;
        case Report::Kind::Ended:
            // Anything else is an error of the call that reported it.
            if (isStopping || report.number == 0 || report.number >= firstFailure)
                fail(mqtt_failure::ended(options.broker, report.number));
            break;
        case Report::Kind::Delivered:
            suspects.remove(report.number);
            Q_EMIT q->delivered(report.number);
            break;
        case Report::Kind::MessageRefused:
            suspects.remove(report.number);
            Q_EMIT q->refused(report.number, report.text);
            break;
        case Report::Kind::Subscribed:
            Q_EMIT q->subscribed(report.number < firstFailure);
            break;
        case Report::Kind::Received:
            Q_EMIT q->received(report.message);
            break;
        }
    }

    QString describe(int result, int error) const
    {
        const QString suspect = suspects.isEmpty() ? QString() : suspects.first();
        return mqtt_failure::failedCall(options, result, error, errors, hasAnswered, suspect);
    }
    /// @}

    /// @name Ending a connection
    /// @{
    void complainOfSilence()
    {
        const bool isConnecting = isTcpPending || !connection;
        fail(isConnecting ? mqtt_failure::noConnection(options)
                          : mqtt_failure::silent(options, errors));
    }

    /// Frees what belongs to a connection.
    void drop()
    {
        clock.stop();
        // The notifier may be the one that is calling.
        for (auto* notifier : {&reading, &writing}) {
            if (QSocketNotifier* const old = notifier->release()) {
                old->setEnabled(false);
                old->deleteLater();
            }
        }
        connection.reset();
        suspects.clear();
        isTcpPending = false;
    }

    void fail(const QString& reason)
    {
        answer.stop();
        if (lookup)
            QHostInfo::abortHostLookup(*lookup);
        lookup.reset();
        families.clear();
        drop();
        const bool wasAccepted = std::exchange(isAccepted, false);
        // A broker that accepts and then sends away at once is not asked without a pause.
        constexpr auto lasting = 10s;
        if (wasAccepted && std::chrono::milliseconds(since.elapsed()) >= lasting)
            attempts = 0;
        const QPointer<MqttClient> guard(q);
        if (wasAccepted)
            Q_EMIT q->disconnected();
        if (!guard)
            return;
        if (std::exchange(isStopping, false)) {
            isRunning = false;
            Q_EMIT q->ended();
            return;
        }
        if (!isRunning)
            return;
        const auto longest = longestWait(options, ++attempts);
        const double part = (1 + QRandomGenerator::global()->generateDouble()) / 2;
        const std::chrono::milliseconds wait(qRound64(static_cast<double>(longest.count()) * part));
        retry.start(wait);
        Q_EMIT q->failed(reason, wait);
    }

    void stop()
    {
        if (!isRunning || isStopping)
            return;
        isStopping = true;
        retry.stop();
        if (!isAccepted) {
            fail({});
            return;
        }
        answer.start(options.answerTime);
        drive([this] { return mosquitto_disconnect_v5(connection.get(), 0, nullptr); });
    }
    /// @}

    /// @name What libmosquitto calls
    /// @{
    static Private* of(void* self) { return static_cast<Private*>(self); }

    static void onConnect(mosquitto* /*client*/, void* self, int reason, int /*flags*/,
                          const mosquitto_property* /*properties*/)
    {
        of(self)->hasAnswered = true;
        of(self)->reports.push_back(
            {reason == 0 ? Report::Kind::Accepted : Report::Kind::Refused, reason});
    }

    static void onDisconnect(mosquitto* /*client*/, void* self, int reason,
                             const mosquitto_property* /*properties*/)
    {
        of(self)->reports.push_back({Report::Kind::Ended, reason});
    }

    static void onPublish(mosquitto* /*client*/, void* self, int number, int reason,
                          const mosquitto_property* /*properties*/)
    {
        if (reason < firstFailure)
            of(self)->reports.push_back({Report::Kind::Delivered, number});
        else
            of(self)->reports.push_back({Report::Kind::MessageRefused, number,
                                         QString::fromUtf8(mosquitto_reason_string(reason))});
    }

    static void onSubscribe(mosquitto* /*client*/, void* self, int /*number*/, int count,
                            const int* granted, const mosquitto_property* /*properties*/)
    {
        of(self)->reports.push_back(
            {Report::Kind::Subscribed, count > 0 ? *granted : firstFailure});
    }

    static void onMessage(mosquitto* /*client*/, void* self, const mosquitto_message* message,
                          const mosquitto_property* /*properties*/)
    {
        of(self)->reports.push_back(
            {Report::Kind::Received,
             0,
             {},
             {QString::fromUtf8(message->topic),
              QByteArray(static_cast<const char*>(message->payload), message->payloadlen),
              message->retain}});
    }

    static void onLog(mosquitto* /*client*/, void* self, int level, const char* text)
    {
        constexpr qsizetype mostLines = 8;
        QStringList& errors = of(self)->errors;
        if (level == MOSQ_LOG_ERR && errors.size() < mostLines)
            errors.append(QString::fromUtf8(text));
    }
    /// @}

    MqttClient* const q;
    const MqttOptions options;
    Mosquitto connection;
    std::unique_ptr<QSocketNotifier> reading;
    std::unique_ptr<QSocketNotifier> writing;
    QTimer retry;
    QTimer answer; ///< how long the broker may take
    QTimer clock;
    QElapsedTimer since; ///< the broker accepted the client
    std::optional<int> lookup;
    std::unique_ptr<QTemporaryFile>
        authorities;            ///< that the system trusts; null if it is not needed
    QList<QByteArray> families; ///< of addresses, that have not been tried
    std::vector<Report> reports;
    /// The topics of messages that the broker has not acknowledged and that NATS would refuse.
    QMap<int, QString> suspects;
    QStringList errors; ///< what libmosquitto has logged as such
    int attempts = 0;
    bool isRunning = false;
    bool isStopping = false;
    bool isTcpPending = false;
    bool hasAnswered = false; ///< the broker, to the request for a connection
    bool isAccepted = false;
};

MqttClient::MqttClient(const MqttOptions& options, QObject* parent)
    : QObject(parent)
    , d((Library::use(), std::make_unique<Private>(this, options)))
{}

MqttClient::~MqttClient() = default;

void MqttClient::start()
{
    if (d->isRunning)
        return;
    d->isRunning = true;
    d->attempts = 0;
    d->lookUp();
}

void MqttClient::stop()
{
    d->stop();
}

bool MqttClient::isConnected() const
{
    return d->isAccepted;
}

std::optional<int> MqttClient::publish(const MqttMessage& message, QString* objection)
{
    if (!d->isAccepted)
        return std::nullopt;
    int number = 0;
    const int result =
        mosquitto_publish_v5(d->connection.get(), &number, message.topic.toUtf8().constData(),
                             static_cast<int>(message.payload.size()), message.payload.constData(),
                             1, message.isRetained, nullptr);
    d->watchWriting();
    if (result == MOSQ_ERR_SUCCESS && mqtt_failure::isRefusedByNats(message.topic))
        d->suspects.insert(number, message.topic);
    if (result == MOSQ_ERR_SUCCESS || result == MOSQ_ERR_NO_CONN || result == MOSQ_ERR_CONN_LOST ||
        result == MOSQ_ERR_ERRNO)
        return number; // if the connection is lost, the next read says so
    if (objection)
        *objection = QString::fromUtf8(mosquitto_strerror(result));
    return std::nullopt;
}

void MqttClient::subscribe(const QString& filter, int mostQos)
{
    if (!d->isAccepted)
        return;
    mosquitto_subscribe(d->connection.get(), nullptr, filter.toUtf8().constData(), mostQos);
    d->watchWriting();
}

std::chrono::milliseconds MqttClient::longestWait(const MqttOptions& options, int attempt)
{
    std::chrono::milliseconds wait = options.firstDelay;
    for (int i = 1; i < attempt && wait < options.longestDelay; ++i)
        wait *= 2;
    return std::min(wait, options.longestDelay);
}
