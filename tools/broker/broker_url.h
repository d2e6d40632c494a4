// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <optional>

/// Where a broker is, as a URL names it: "mqtt://HOST:PORT" or, over TLS, "mqtts://HOST:PORT".
struct BrokerAddress
{
    QString host;
    quint16 port = 0;
    bool isEncrypted = false;

    /// The URL with the port.
    QString url() const;
    /// Whether the broker is on this computer, so that nobody else can listen.
    bool isLoopback() const;
};

/// Empty, with what was expected in `*expected`, for a text that is no such URL. Without a port it
/// is 1883, or 8883 over TLS. A URL must not have a user or a password: it ends up in logs.
std::optional<BrokerAddress> parseBrokerUrl(const QString& url, QString* expected);
