// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_source.h"

#include "records.h"

#include <case_recorder.h>
#include <printer_discovery.h>
#include <printer_events.h>
#include <printer_forecasts.h>
#include <printer_readings.h>
#include <printer_status_controller.h>
#include <usage_history.h>
#include <usage_history_reader.h>
#include <vx_ipc_supplyd_controller.h>

#include <QtCore/QSet>
#include <QtCore/QTimer>

#include <memory>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr auto batchInterval = 100ms;
/// Of one batch. When more happens, the oldest are left out.
constexpr qsizetype mostEvents = 500;

QString keyOf(VxKit::RunOutForecast::Concern concern)
{
    using Concern = VxKit::RunOutForecast::Concern;
    switch (concern) {
    case Concern::FewLabels:
        return QStringLiteral("few_labels");
    case Concern::JobTooLong:
        return QStringLiteral("job_too_long");
    case Concern::EndsInShift:
        return QStringLiteral("ends_in_shift");
    }
    return {};
}

} // namespace

/// The part of the source that lives on its thread.
class PrinterWatcher : public QObject
{
public:
    PrinterWatcher(PrinterSource& source, const PrinterSource::Options& options)
        : m_source(source)
        , m_options(options)
        , m_batchTimer(this)
    {
        m_batchTimer.setSingleShot(true);
        m_batchTimer.setTimerType(Qt::PreciseTimer);
        m_batchTimer.setInterval(batchInterval);
        connect(&m_batchTimer, &QTimer::timeout, this, &PrinterWatcher::send);
    }
    ~PrinterWatcher() override { end(); }
    Q_DISABLE_COPY_MOVE(PrinterWatcher)

    void begin();
    /// What is destroyed here leaves objects to be deleted by the thread's event loop, so that this
    /// is called while it runs.
    void end()
    {
        m_batchTimer.stop();
        // In the reverse order of their construction.
        m_discovery.reset();
        m_forecasts.reset();
        m_history.reset();
        m_events.reset();
        m_readings.reset();
        m_controller.reset();
        m_recorder.reset();
    }
    void refresh()
    {
        if (!m_controller)
            return;
        m_controller->checkForPrinters();
        refreshReadings();
    }
    void setFewestLabels(std::optional<int> labels)
    {
        m_options.fewestLabels = labels;
        if (m_forecasts)
            m_forecasts->setWarningSettings({.labels = labels, .shiftEnds = {}});
    }
    void saveCase(const QString& fileName)
    {
        const QString reason =
            m_recorder ? m_recorder->save(fileName) : QStringLiteral("not started");
        Q_EMIT m_source.caseSaved(fileName, reason);
    }

private:
    void noteChange(const QString& name)
    {
        m_changed.insert(name);
        if (!m_batchTimer.isActive())
            m_batchTimer.start();
    }
    void send();
    /// After printers have been looked for: the readings, and how many of them are watched.
    void refreshReadings()
    {
        m_readings->refresh();
        countWatched();
    }
    void countWatched() { m_source.m_watchedPrinters = records::watchedPrinters(*m_controller); }

    PrinterSource& m_source;
    PrinterSource::Options m_options;
    QTimer m_batchTimer;
    QSet<QString> m_changed;
    QList<VxKit::PrinterEvent> m_newEvents;
    std::unique_ptr<VxKit::CaseRecorder> m_recorder;
    std::unique_ptr<PrinterStatusController> m_controller;
    std::unique_ptr<VxKit::PrinterReadings> m_readings;
    std::unique_ptr<VxKit::PrinterEvents> m_events;
    std::unique_ptr<VxKit::UsageHistory> m_history;
    std::unique_ptr<VxKit::PrinterForecasts> m_forecasts;
    std::unique_ptr<VxKit::PrinterDiscovery> m_discovery;
};

void PrinterWatcher::begin()
{
    using namespace VxKit;
    CaseRecorderOptions recording;
    recording.recorder = QStringLiteral("vxprintview");
    m_recorder = std::make_unique<CaseRecorder>(recording);
    m_controller = std::make_unique<PrinterStatusController>();
    if (!m_options.catalogueFile.isEmpty())
        m_controller->getSupplyIdController()->setCatalogueFile(m_options.catalogueFile);
    m_recorder->setController(m_controller.get());

    m_readings = std::make_unique<PrinterReadings>(m_controller.get());
    for (auto signal : {&PrinterReadings::added, &PrinterReadings::changed, &PrinterReadings::gone})
        connect(m_readings.get(), signal, this, &PrinterWatcher::noteChange);
    connect(m_readings.get(), &PrinterReadings::renamed, this,
            [this](const QString& oldName, const QString& newName) {
                send();
                Q_EMIT m_source.renamed(oldName, newName);
                noteChange(newName);
            });

    m_events = std::make_unique<PrinterEvents>(m_readings.get());
    connect(m_events.get(), &PrinterEvents::happened, this, [this](const PrinterEvent& event) {
        m_newEvents.append(event);
        PrinterEvent& added = m_newEvents.last();
        if (!added.time.isValid())
            added.time = QDateTime::currentDateTimeUtc();
        if (m_newEvents.size() > mostEvents)
            m_newEvents.removeFirst();
        if (!m_batchTimer.isActive())
            m_batchTimer.start();
    });
    m_events->start();

    m_forecasts = std::make_unique<PrinterForecasts>(m_readings.get());
    if (!m_options.historyFile.isEmpty()) {
        const UsageHistoryReader past(m_options.historyFile);
        m_forecasts->learn(past);
        UsageHistoryOptions options;
        options.fileName = m_options.historyFile;
        m_history = std::make_unique<UsageHistory>(m_readings.get(), options);
    }
    connect(m_forecasts.get(), &PrinterForecasts::warned, this,
            [this](const QString& printer, const RunOutForecast::Warning& warning) {
                Q_EMIT m_source.warned(printer, keyOf(warning.concern),
                                       PrinterForecasts::text(warning));
            });
    setFewestLabels(m_options.fewestLabels);

    m_discovery = std::make_unique<PrinterDiscovery>(m_controller.get());
    connect(m_discovery.get(), &PrinterDiscovery::printersChanged, this,
            &PrinterWatcher::refreshReadings);
    connect(m_discovery.get(), &PrinterDiscovery::spoolerRunningChanged, &m_source,
            &PrinterSource::spoolerRunningChanged);

    countWatched();
    const QStringList names = m_readings->names();
    m_changed = QSet<QString>(names.begin(), names.end());
    send();
    Q_EMIT m_source.listed();
}

void PrinterWatcher::send()
{
    m_batchTimer.stop();
    QList<VxKit::PrinterReading> readings;
    for (const QString& name : std::as_const(m_changed)) {
        const VxKit::PrinterReading reading = m_readings->reading(name);
        if (!reading.isNull())
            readings.append(reading);
    }
    m_changed.clear();
    if (!readings.isEmpty())
        Q_EMIT m_source.changed(readings);
    if (const auto events = std::exchange(m_newEvents, {}); !events.isEmpty())
        Q_EMIT m_source.happened(events);
}

PrinterSource::PrinterSource(const Options& options, QObject* parent)
    : ViewSource(parent)
{
    qRegisterMetaType<QList<VxKit::PrinterReading>>();
    qRegisterMetaType<QList<VxKit::PrinterEvent>>();
    m_thread.setObjectName(QStringLiteral("printers"));
    auto* const watcher = new PrinterWatcher(*this, options);
    watcher->moveToThread(&m_thread);
    connect(&m_thread, &QThread::started, watcher, &PrinterWatcher::begin);
    connect(&m_thread, &QThread::finished, watcher, &QObject::deleteLater);
    m_watcher = watcher;
}

PrinterSource::~PrinterSource()
{
    if (!m_thread.isRunning()) {
        delete m_watcher;
        return;
    }
    QMetaObject::invokeMethod(m_watcher, [this] {
        static_cast<PrinterWatcher*>(m_watcher)->end();
        m_thread.quit();
    });
    m_thread.wait();
}

void PrinterSource::start()
{
    m_thread.start();
}

void PrinterSource::setFewestLabels(std::optional<int> labels)
{
    QMetaObject::invokeMethod(m_watcher, [watcher = static_cast<PrinterWatcher*>(m_watcher),
                                          labels] { watcher->setFewestLabels(labels); });
}

void PrinterSource::refresh()
{
    QMetaObject::invokeMethod(
        m_watcher, [watcher = static_cast<PrinterWatcher*>(m_watcher)] { watcher->refresh(); });
}

void PrinterSource::saveCase(const QString& fileName)
{
    QMetaObject::invokeMethod(m_watcher, [watcher = static_cast<PrinterWatcher*>(m_watcher),
                                          fileName] { watcher->saveCase(fileName); });
}
