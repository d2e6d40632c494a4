// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "broker_url.h"

#include <QtCore/QUrl>
#include <QtNetwork/QHostAddress>

QString BrokerAddress::url() const
{
    const QString name = host.contains(u':') ? u'[' + host + u']' : host;
    return QStringLiteral("%1://%2:%3")
        .arg(isEncrypted ? QStringLiteral("mqtts") : QStringLiteral("mqtt"), name)
        .arg(port);
}

bool BrokerAddress::isLoopback() const
{
    return host == QLatin1String("localhost") || QHostAddress(host).isLoopback();
}

std::optional<BrokerAddress> parseBrokerUrl(const QString& url, QString* expected)
{
    constexpr quint16 plainPort = 1883;
    constexpr quint16 encryptedPort = 8883;
    const QUrl parsed(url, QUrl::StrictMode);
    const bool isEncrypted = parsed.scheme() == QLatin1String("mqtts");
    if (!parsed.isValid() || parsed.host().isEmpty() ||
        (!isEncrypted && parsed.scheme() != QLatin1String("mqtt"))) {
        *expected = QStringLiteral("mqtt://HOST:PORT or mqtts://HOST:PORT");
        return std::nullopt;
    }
    if (!parsed.userInfo().isEmpty()) {
        *expected =
            QStringLiteral("a URL without a user and password; name the user in \"username\" "
                           "and the password's file in \"passwordFile\"");
        return std::nullopt;
    }
    const bool hasMore = (!parsed.path().isEmpty() && parsed.path() != QLatin1String("/")) ||
                         parsed.hasQuery() || parsed.hasFragment();
    const int port = parsed.port(isEncrypted ? encryptedPort : plainPort);
    if (hasMore || port == 0) {
        *expected =
            QStringLiteral("nothing but a host and a port above 0 after mqtt:// or mqtts://");
        return std::nullopt;
    }
    return BrokerAddress{parsed.host(), static_cast<quint16>(port), isEncrypted};
}
