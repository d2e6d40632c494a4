// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "site_url.h"

#include <topics.h>

#include <QtCore/QUrl>

std::optional<SiteAddress> parseSiteUrl(const QString& url, QString* expected)
{
    QUrl parsed(url, QUrl::StrictMode);
    QString path = parsed.path(QUrl::FullyEncoded);
    if (path.startsWith(u'/'))
        path.remove(0, 1);
    if (path.endsWith(u'/'))
        path.chop(1);
    SiteAddress address;
    if (parsed.isValid()) {
        const std::optional<QString> site = topics::nameOf(path);
        if (path.contains(u'/') || !site) {
            *expected = QStringLiteral("at most the name of a site after the host and the port");
            return std::nullopt;
        }
        address.site = *site;
        parsed.setPath({});
    }
    const std::optional<BrokerAddress> broker =
        parseBrokerUrl(parsed.isValid() ? parsed.toString(QUrl::FullyEncoded) : url, expected);
    if (!broker)
        return std::nullopt;
    address.broker = *broker;
    return address;
}
