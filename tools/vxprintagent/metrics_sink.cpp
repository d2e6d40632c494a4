// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "metrics_sink.h"

#include "agent_log.h"
#include "failure.h"

#include <printer_readings.h>

#include <QtCore/QCoreApplication>

using namespace std::chrono_literals;

namespace {

/// As often as collectors are usually asked.
constexpr auto textfileInterval = 15s;

} // namespace

MetricsSink::MetricsSink(const AgentKnowledge& knowledge, const MetricsConfig& config)
    : m_knowledge(knowledge)
    , m_config(config)
{
    using Readings = VxKit::PrinterReadings;
    Readings& readings = m_knowledge.readings;
    connect(&readings, &Readings::added, this, &MetricsSink::count);
    connect(&readings, &Readings::changed, this, &MetricsSink::count);
    connect(&readings, &Readings::gone, this,
            [this](const QString& printer) { m_consumed.remove(printer); });
    connect(&readings, &Readings::renamed, this,
            [this](const QString& oldName, const QString& newName) {
                m_consumed.rename(oldName, newName);
            });
    for (const QStringList names = readings.names(); const QString& name : names)
        count(name);
}

MetricsSink::~MetricsSink() = default;

void MetricsSink::start()
{
    if (!m_config.address.isEmpty())
        listen();
    if (!m_config.textfile.isEmpty())
        writeTextfile();
}

void MetricsSink::stop()
{
    m_server.reset();
    if (m_textfile)
        m_textfile->stop();
}

void MetricsSink::listen()
{
    m_server = std::make_unique<MetricsServer>(
        [this](metrics_text::Format format) { return text(format); });
    const QHostAddress host(m_config.address);
    const bool isSixth = host.protocol() == QAbstractSocket::IPv6Protocol;
    const QString shownHost = isSixth ? u'[' + m_config.address + u']' : m_config.address;
    try {
        m_server->listen(host, m_config.port);
    } catch (const Failure& failure) {
        throw Failure(
            QStringLiteral("%1: cannot serve metrics at %2:%3: %4; enter an address of this "
                           "computer and a port that is free")
                .arg(m_knowledge.config.place(QStringLiteral("metrics.listen")), shownHost)
                .arg(m_config.port)
                .arg(failure.message()));
    }
    m_knowledge.log.information(QStringLiteral("metrics are served at http://%1:%2/metrics")
                                    .arg(shownHost)
                                    .arg(m_server->port()));
}

void MetricsSink::writeTextfile()
{
    m_textfile = std::make_unique<MetricsTextfile>(
        m_config.textfile, [this] { return text(metrics_text::Format::Prometheus); },
        textfileInterval);
    connect(m_textfile.get(), &MetricsTextfile::writingFailed, this, [this](const QString& reason) {
        m_knowledge.log.warning(
            QStringLiteral("metrics cannot be written to %1; it is tried again every %2 "
                           "seconds")
                .arg(reason)
                .arg(textfileInterval.count()));
    });
    connect(m_textfile.get(), &MetricsTextfile::writingResumed, this, [this] {
        m_knowledge.log.information(
            QStringLiteral("metrics are written to %1 again").arg(m_config.textfile));
    });
    m_textfile->start();
}

void MetricsSink::count(const QString& printer)
{
    m_consumed.add(m_knowledge.readings.reading(printer), QDateTime::currentDateTimeUtc());
}

QByteArray MetricsSink::text(metrics_text::Format format) const
{
    QList<metrics_text::Printer> printers;
    for (const QList<VxKit::PrinterReading> readings = m_knowledge.readings.readings();
         const VxKit::PrinterReading& reading : readings)
        printers.append({reading, m_consumed.of(reading.name())});
    return metrics_text::text({QCoreApplication::applicationVersion(), m_knowledge.config.site},
                              printers, format);
}
