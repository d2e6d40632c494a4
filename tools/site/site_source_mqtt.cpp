// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "failure.h"
#include "site_readings.h"
#include "site_source.h"
#include "site_url.h"
#include "tool_text.h"

#include <agent_config.h>

#include <QtCore/QRandomGenerator>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

/// Another one for each program that runs, since a broker keeps one of two clients of one name. Of
/// at most 23 characters, which every broker takes.
QString newClientId(const QString& program)
{
    constexpr qsizetype longestProgram = 14;
    constexpr int digits = 8;
    return QStringLiteral("%1-%2")
        .arg(program.left(longestProgram))
        .arg(QRandomGenerator::system()->generate(), digits, 16, QChar(u'0'));
}

} // namespace

Site siteOf(const SiteArguments& arguments)
{
    SiteReadingsOptions options;
    MqttOptions& client = options.client;
    if (!arguments.configFile.isEmpty()) {
        const AgentConfig config = readAgentConfig(arguments.configFile, ConfigUse::Reader);
        options.site = config.site;
        client = connectionOptions(*config.mqtt);
    }
    client.clientId = newClientId(arguments.program);
    // Somebody is looking, so the wait is shorter than an agent's.
    client.longestDelay = std::min<std::chrono::milliseconds>(client.longestDelay, 15s);
    if (!arguments.url.isEmpty()) {
        QString expected;
        const std::optional<SiteAddress> address = parseSiteUrl(arguments.url, &expected);
        if (!address) // what was found is not quoted: it may hold a password
            throw wrongUsage(
                ToolText::tr("--%1: expected %2")
                    .arg(QStringLiteral("broker"),
                         expected + (expected.contains(u'"') ? QStringLiteral(" of --broker-config")
                                                             : QString())));
        client.broker = address->broker;
        if (!address->site.isEmpty())
            options.site = address->site;
    }
    if (client.broker.host.isEmpty())
        throw wrongUsage(ToolText::tr("%1 names no broker: name it with --broker, or with \"url\" "
                                      "in \"mqtt\"")
                             .arg(arguments.configFile));
    const bool hasCertificates = !client.caFile.isEmpty() || !client.certFile.isEmpty();
    if (hasCertificates && !client.broker.isEncrypted)
        throw wrongUsage(ToolText::tr("the certificates in %1 have no effect without TLS; expected "
                                      "a URL that begins with mqtts://")
                             .arg(arguments.configFile));
    Site site{options.site, client.broker.url(), [options] {
                  return std::make_unique<SiteReadings>(options);
              }};
    if (!client.passwordFile.isEmpty() && !client.broker.isEncrypted && !client.broker.isLoopback())
        site.warnings.append(
            ToolText::tr("the password crosses the network readably; use mqtts://"));
    return site;
}
