// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "agent.h"

#include "agent_log.h"
#include "default_catalogue.h"
#include "hidden_printers.h"

#include <usage_history_reader.h>
#include <vx_ipc_supplyd_controller.h>

#include <QtCore/QFileInfo>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

using VxKit::PrinterReading;

/// How long the sinks may take to say goodbye. A service manager waits longer.
constexpr auto patienceForGoodbye = 5s;

/// Discovery lists the printers at least as often when something changes.
constexpr auto longerThanBetweenListings = 6s;

/// What the agent says of a printer at its start; empty for one that is watched.
QString whyNotWatched(PrinterReading::Watching watching)
{
    switch (watching) {
    case PrinterReading::Watching::OfflineSinceDiscovery:
        return QStringLiteral("offline");
    case PrinterReading::Watching::NetworkPrinter:
        return QStringLiteral("a network printer, which is listed only");
    case PrinterReading::Watching::NotManaged:
        return QStringLiteral("this account may not manage it");
    case PrinterReading::Watching::NotDiscovered:
    case PrinterReading::Watching::Replaced:
        return QStringLiteral("not watched yet");
    case PrinterReading::Watching::Gone:
        return QStringLiteral("gone");
    case PrinterReading::Watching::AgentOffline: // no reading of this computer
    case PrinterReading::Watching::NotConnected:
    case PrinterReading::Watching::Watched:
        break;
    }
    return {};
}

} // namespace

Agent::Agent(const AgentConfig& config, AgentLog& log)
    : m_config(config)
    , m_log(log)
    , m_readings(withCatalogue())
    , m_events(&m_readings)
    , m_forecasts(&m_readings)
    , m_discovery(&m_controller)
{
    connect(&m_discovery, &VxKit::PrinterDiscovery::printersChanged, &m_readings,
            &VxKit::PrinterReadings::refresh);
    // A printer that is removed and added again between two of discovery's looks is no change to
    // it, while its thread has reported that it is gone.
    m_secondLook.setSingleShot(true);
    connect(&m_secondLook, &QTimer::timeout, &m_readings, &VxKit::PrinterReadings::refresh);
    connect(&m_readings, &VxKit::PrinterReadings::gone, this,
            [this] { m_secondLook.start(longerThanBetweenListings); });
    m_stopLimit.setSingleShot(true);
    connect(&m_stopLimit, &QTimer::timeout, this, &Agent::stopped);
}

Agent::~Agent() = default;

void Agent::start()
{
    for (const QString& warning : std::as_const(m_config.warnings))
        m_log.warning(warning);
    forecast();
    keepEventLog();
    reportPrinters();
    m_sinks = makeSinks({m_config, m_readings, m_events, m_discovery, m_log});
    if (m_sinks.empty())
        m_log.warning(
            QStringLiteral("%1 names neither \"mqtt\" nor \"metrics\", so that nothing is "
                           "published")
                .arg(m_config.file));
    for (const auto& sink : m_sinks) {
        connect(sink.get(), &AgentSink::stopped, this, &Agent::stopIfDone);
        sink->start();
    }
    m_events.start();
}

void Agent::stop()
{
    if (m_isStopping)
        return;
    m_isStopping = true;
    for (const auto& sink : m_sinks)
        sink->stop();
    m_stopLimit.start(patienceForGoodbye);
    // Also for sinks that have nothing to say.
    QMetaObject::invokeMethod(this, &Agent::stopIfDone, Qt::QueuedConnection);
}

void Agent::stopIfDone()
{
    const bool isDone =
        std::ranges::all_of(m_sinks, [](const auto& sink) { return sink->isStopped(); });
    if (!m_isStopping || !isDone || !m_stopLimit.isActive())
        return;
    m_stopLimit.stop();
    Q_EMIT stopped();
}

int Agent::watchedPrinters() const
{
    const QList<PrinterReading> readings = m_readings.readings();
    return static_cast<int>(
        std::ranges::count(readings, PrinterReading::Watching::Watched, &PrinterReading::watching));
}

/// The readings look into the catalogue as soon as they are made.
PrinterStatusController* Agent::withCatalogue()
{
    VXIPCSUPPLYDController& service = *m_controller.getSupplyIdController();
    service.setCatalogueFile(m_config.catalogue.isEmpty() ? defaultCatalogue()
                                                          : m_config.catalogue);
    if (service.supplySKUList().isEmpty() && service.supplyRibbonSKUList().isEmpty())
        m_log.warning(
            QStringLiteral("supplies and ribbons have no names, and levels are not known: "
                           "nothing can be read from the catalogue %1; put it there, or "
                           "name another one in \"catalogue\"")
                .arg(service.catalogueFile()));
    return &m_controller;
}

void Agent::keepEventLog()
{
    if (m_config.eventLog.isEmpty())
        return;
    VxKit::EventLogOptions options;
    options.fileName = m_config.eventLog;
    m_eventLog.emplace(&m_readings, options);
    connect(&*m_eventLog, &VxKit::EventLog::writingFailed, this, [this](const QString& reason) {
        m_log.warning(QStringLiteral("the event log cannot be written: %1; it is tried again every "
                                     "second")
                          .arg(reason));
    });
}

void Agent::forecast()
{
    if (m_config.history.isEmpty())
        return;
    if (QFileInfo::exists(m_config.history))
        m_forecasts.learn(VxKit::UsageHistoryReader(m_config.history));
    VxKit::UsageHistoryOptions options;
    options.fileName = m_config.history;
    m_history.emplace(&m_readings, options);
    connect(&*m_history, &VxKit::UsageHistory::writingFailed, this, [this](const QString& reason) {
        m_log.warning(QStringLiteral("what is used cannot be recorded: %1").arg(reason));
    });
}

void Agent::reportPrinters()
{
    const QList<PrinterReading> readings = m_readings.readings();
    if (readings.isEmpty())
        m_log.warning(QStringLiteral("this account sees no supported printer; it goes on looking"));
    for (const PrinterReading& reading : readings) {
        const QString why = whyNotWatched(reading.watching());
        const QString model =
            QStringLiteral("printer \"%1\" (%2)").arg(reading.name(), reading.driver());
        if (why.isEmpty())
            m_log.information(model + QStringLiteral(": watched"));
        else if (reading.watching() == PrinterReading::Watching::NotManaged)
            m_log.warning(model + QStringLiteral(": not watched: ") + why);
        else
            m_log.information(model + QStringLiteral(": not watched: ") + why);
    }
    for (const hidden_printers::Connection& connection : hidden_printers::ofOtherUsers())
        m_log.warning(
            QStringLiteral("printer \"%1\" is connected for the user %2 alone, so that this "
                           "account does not see it")
                .arg(connection.printer, connection.user));
}
