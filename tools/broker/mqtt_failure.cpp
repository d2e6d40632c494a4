// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "mqtt_failure.h"

#include <cerrno>

#include <mosquitto.h>
#include <mqtt_protocol.h>

namespace {

bool contains(const QStringList& errors, const char* text)
{
    return !errors.filter(QLatin1String(text), Qt::CaseInsensitive).isEmpty();
}

QString seconds(std::chrono::milliseconds time)
{
    return QString::number(static_cast<double>(time.count()) / 1000);
}

/// Why a handshake failed, by what OpenSSL said. Its texts are part of its interface: scripts look
/// for them.
QString tlsFailure(const MqttOptions& options, const QStringList& errors)
{
    const QString url = options.broker.url();
    if (contains(errors, "host name verification failed"))
        return QStringLiteral(
                   "%1: the broker's certificate is for another name than \"%2\"; use the "
                   "name in the certificate in the URL, or give the broker a certificate "
                   "for this one")
            .arg(url, options.broker.host);
    if (contains(errors, "certificate verify failed"))
        return QStringLiteral(
                   "%1: the broker's certificate is not trusted: it is expired or not yet "
                   "valid, or not signed by %2; \"openssl s_client -connect %3:%4%5\" says "
                   "which. Check this computer's clock too")
            .arg(url,
                 options.caFile.isEmpty()
                     ? QStringLiteral("an authority that this computer trusts (name another one in "
                                      "\"caFile\")")
                     : QStringLiteral("the authority in ") + options.caFile,
                 options.broker.host)
            .arg(options.broker.port)
            .arg(options.caFile.isEmpty() ? QString()
                                          : QStringLiteral(" -CAfile ") + options.caFile);
    if (contains(errors, "wrong version number") || contains(errors, "packet length too long") ||
        contains(errors, "record layer failure"))
        return QStringLiteral(
                   "%1 does not answer with TLS; use the broker's port for TLS, or mqtt://")
            .arg(url);
    if (contains(errors, "alert") &&
        (contains(errors, "certificate") || contains(errors, "unknown ca")))
        return QStringLiteral(
                   "%1: the broker wants a client certificate that it trusts; name it in "
                   "\"certFile\" and its key in \"keyFile\" (%2)")
            .arg(url, errors.last());
    if (contains(errors, "Unable to load") || contains(errors, "inconsistent"))
        return mqtt_failure::unusableCertificates(options, errors);
    return QStringLiteral("%1: the TLS handshake failed: %2")
        .arg(url, errors.isEmpty() ? QStringLiteral("no reason is known") : errors.last());
}

/// It closed a connection that it had accepted.
QString closed(const BrokerAddress& broker, const QString& suspect)
{
    if (!suspect.isEmpty())
        return QStringLiteral(
                   "%1 has closed the connection and not acknowledged \"%2\". If the broker is a "
                   "NATS server, set \"natsTopics\" to true: NATS accepts no space and no dot in a "
                   "topic. If it is another broker and that repeats, see the broker's log, and "
                   "whether another agent has the same \"site\" and \"host\"")
            .arg(broker.url(), suspect);
    return QStringLiteral("%1 has closed the connection; if that repeats, see the broker's "
                          "log, and whether another agent has the same \"site\" and \"host\"")
        .arg(broker.url());
}

} // namespace

QString mqtt_failure::unknownHost(const BrokerAddress& broker, const QString& error)
{
    return QStringLiteral(
               "%1: the name \"%2\" has no address: %3; check the URL and this computer's "
               "DNS")
        .arg(broker.url(), broker.host, error);
}

QString mqtt_failure::unreachable(const BrokerAddress& broker, const QString& error)
{
    return QStringLiteral(
               "%1 cannot be reached: %2; check that the broker runs, the port%3, and the "
               "firewalls in between")
        .arg(broker.url(), error,
             broker.isEncrypted ? QStringLiteral(", that it speaks TLS there") : QString());
}

QString mqtt_failure::noConnection(const MqttOptions& options)
{
    return unreachable(
        options.broker,
        QStringLiteral("nothing answers within %1 seconds").arg(seconds(options.answerTime)));
}

QString mqtt_failure::silent(const MqttOptions& options, const QStringList& errors)
{
    return QStringLiteral(
               "%1 accepts connections but does not answer within %2 seconds%3; check that "
               "the port is that of an MQTT broker, and whether it expects TLS")
        .arg(options.broker.url(), seconds(options.answerTime),
             errors.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(errors.last()));
}

QString mqtt_failure::closedEarly(const MqttOptions& options, const QString& error)
{
    // The topic of the will is part of the request for a connection.
    const QString will = options.will ? options.will->topic : QString();
    return QStringLiteral(
               "%1 closed the connection before it answered%2; check that the port is that "
               "of an MQTT broker, whether it %3, and the broker's log%4")
        .arg(options.broker.url(), error.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(error),
             options.broker.isEncrypted
                 ? QStringLiteral("speaks TLS and wants a client certificate "
                                  "(\"certFile\" and \"keyFile\")")
                 : QStringLiteral("expects TLS (mqtts://)"),
             isRefusedByNats(will)
                 ? QStringLiteral(
                       ". If the broker is a NATS server, set \"natsTopics\" to true: NATS accepts "
                       "no space and no dot in a topic, as in \"%1\"")
                       .arg(will)
                 : QString());
}

bool mqtt_failure::isRefusedByNats(const QString& topic)
{
    return topic.contains(u' ') || topic.contains(u'.');
}

QString mqtt_failure::garbage(const BrokerAddress& broker, const QByteArray& bytes)
{
    // The answer begins with 0x20 and its length: 2 in MQTT 3.1.1, and with the properties of MQTT
    // 5 far below 16384, from which on it takes a third byte.
    // https://docs.oasis-open.org/mqtt/mqtt/v5.0/os/mqtt-v5.0-os.html, 3.2 CONNACK
    constexpr uchar answer = 0x20;
    constexpr uchar continues = 0x80;
    constexpr uchar tlsAlert = 0x15;
    const auto byte = [&bytes](qsizetype i) {
        return static_cast<uchar>(bytes.at(i));
    };
    const bool isTooLong = (byte(1) & continues) != 0 && (byte(2) & continues) != 0;
    if (byte(0) == answer && !isTooLong)
        return {};
    if (byte(0) == tlsAlert)
        return QStringLiteral("%1 expects TLS; use mqtts://").arg(broker.url());
    return QStringLiteral(
               "%1 answers with something else than MQTT; check that the port is that of an "
               "MQTT broker")
        .arg(broker.url());
}

QString mqtt_failure::unusableCertificates(const MqttOptions& options, const QStringList& errors)
{
    return QStringLiteral(
               "%1: the certificates cannot be used: %2; \"caFile\", \"certFile\" and "
               "\"keyFile\" must be PEM files, the key without a passphrase and that of the "
               "certificate")
        .arg(options.broker.url(),
             errors.isEmpty() ? QStringLiteral("no reason is known") : errors.first());
}

QString mqtt_failure::refusedConnection(const MqttOptions& options, int reason)
{
    const QString url = options.broker.url();
    switch (reason) {
    case CONNACK_REFUSED_BAD_USERNAME_PASSWORD:
    case MQTT_RC_BAD_USERNAME_OR_PASSWORD:
    case CONNACK_REFUSED_NOT_AUTHORIZED:
    case MQTT_RC_NOT_AUTHORIZED:
        return options.username.isEmpty()
                   ? QStringLiteral("%1 wants a user and a password, or does not know the client's "
                                    "certificate; see \"username\" and \"passwordFile\"")
                         .arg(url)
                   : QStringLiteral(
                         "%1 does not accept the user \"%2\" with the password in \"%3\"; "
                         "check both with who runs the broker")
                         .arg(url, options.username, options.passwordFile);
    case CONNACK_REFUSED_PROTOCOL_VERSION:
    case MQTT_RC_UNSUPPORTED_PROTOCOL_VERSION:
        return QStringLiteral("%1 does not speak this version of MQTT; choose the other one in "
                              "\"protocol\"")
            .arg(url);
    case CONNACK_REFUSED_IDENTIFIER_REJECTED:
    case MQTT_RC_CLIENTID_NOT_VALID:
        return QStringLiteral("%1 does not accept the client's name \"%2\"")
            .arg(url, options.clientId);
    default:
        return QStringLiteral("%1 does not accept the connection: %2; see the broker's log")
            .arg(url,
                 QString::fromUtf8(reason < MQTT_RC_UNSPECIFIED ? mosquitto_connack_string(reason)
                                                                : mosquitto_reason_string(reason)));
    }
}

QString mqtt_failure::ended(const BrokerAddress& broker, int reason)
{
    if (reason == MQTT_RC_SESSION_TAKEN_OVER)
        return QStringLiteral("%1 has sent this client away because another one came with the same "
                              "name; no two agents may have the same \"site\" and \"host\"")
            .arg(broker.url());
    const char* const text = reason >= MQTT_RC_UNSPECIFIED ? mosquitto_reason_string(reason)
                                                           : mosquitto_strerror(reason);
    return QStringLiteral("%1 has ended the connection: %2")
        .arg(broker.url(), QString::fromUtf8(text));
}

QString mqtt_failure::failedCall(const MqttOptions& options, int result, int error,
                                 const QStringList& errors, bool hasAnswered,
                                 const QString& suspect)
{
    const QString url = options.broker.url();
    if (!hasAnswered && options.broker.isEncrypted && !errors.isEmpty())
        return tlsFailure(options, errors);
    if (!hasAnswered && (result == MOSQ_ERR_CONN_LOST || result == MOSQ_ERR_ERRNO))
        return closedEarly(options, error == 0 ? QString() : qt_error_string(error));
    // While something is written, the system tells in this way that the other side has closed.
    const bool isClosed = result == MOSQ_ERR_ERRNO &&
                          (error == EPIPE || error == ECONNRESET || error == ECONNABORTED);
    if (isClosed)
        return closed(options.broker, suspect);
    switch (result) {
    case MOSQ_ERR_TLS:
    case MOSQ_ERR_TLS_HANDSHAKE:
        return tlsFailure(options, errors);
    case MOSQ_ERR_ERRNO:
    case MOSQ_ERR_CONN_REFUSED:
        return unreachable(options.broker, error == 0
                                               ? QString::fromUtf8(mosquitto_strerror(result))
                                               : qt_error_string(error));
    case MOSQ_ERR_EAI:
        return unknownHost(options.broker, QString::fromUtf8(mosquitto_strerror(result)));
    case MOSQ_ERR_CONN_LOST:
    case MOSQ_ERR_NO_CONN:
        return closed(options.broker, suspect);
    case MOSQ_ERR_KEEPALIVE:
        return QStringLiteral("%1 does not answer any more; check the network and the broker")
            .arg(url);
    case MOSQ_ERR_PROTOCOL:
    case MOSQ_ERR_MALFORMED_PACKET:
    case MOSQ_ERR_MALFORMED_UTF8:
    case MOSQ_ERR_DUPLICATE_PROPERTY:
    case MOSQ_ERR_OVERSIZE_PACKET:
        return QStringLiteral(
                   "%1 answers with something that is not valid MQTT; check that the port "
                   "is that of an MQTT broker")
            .arg(url);
    default:
        return QStringLiteral("%1: %2").arg(url, QString::fromUtf8(mosquitto_strerror(result)));
    }
}
