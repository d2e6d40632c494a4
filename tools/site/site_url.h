// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <broker_url.h>

#include <QtCore/QString>

#include <optional>

struct SiteAddress
{
    BrokerAddress broker;
    QString site; ///< empty: all sites
};

/// "mqtt://HOST:PORT/SITE" or "mqtts://HOST:PORT/SITE"; the rules of `parseBrokerUrl` hold for what
/// is in front of the site. Without a site it is that of all. What a URL cannot hold is written as
/// "%20" and the like. Empty, with what was expected in `*expected`, for anything else.
std::optional<SiteAddress> parseSiteUrl(const QString& url, QString* expected);
