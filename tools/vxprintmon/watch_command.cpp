// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include "backend.h"
#include "catalogue_file.h"
#include "failure.h"
#include "forecast_words.h"
#include "history_command.h"
#include "printer_names.h"
#include "signal_lines.h"
#include "stop_condition.h"
#include "watch_json.h"
#include "watch_screen.h"

#include <event_log.h>
#include <printer_forecasts.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

namespace {

/// What the log says of its file, which the monitor's messages name already.
QString withoutName(const QString& reason, const QString& name)
{
    const QString begin = name + QStringLiteral(": ");
    return reason.startsWith(begin) ? reason.sliced(begin.size()) : reason;
}

/// When fewer labels are left on a roll, that is printed once.
constexpr int fewLabels = 100;

/// The event log, if one was asked for.
class WatchLog
{
public:
    WatchLog(const CommandLine& line, Output& output, VxKit::PrinterReadings* readings)
    {
        if (line.eventLogFile.isEmpty())
            return;
        // The log would go on trying, but a name that is wrong should be said at once.
        QFile file(line.eventLogFile);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
            throw Failure(ToolText::tr("cannot write the log %1: %2")
                              .arg(line.eventLogFile, file.errorString()));
        file.close();
        VxKit::EventLogOptions options;
        options.fileName = line.eventLogFile;
        m_log = std::make_unique<VxKit::EventLog>(readings, options);
        QObject::connect(m_log.get(), &VxKit::EventLog::writingFailed, m_log.get(),
                         [&output, name = line.eventLogFile](const QString& reason) {
                             output.complain(
                                 ToolText::tr("cannot write the log %1: %2; it is tried "
                                              "again every second")
                                     .arg(name, withoutName(reason, name)));
                         });
    }

    /// Throws when events could not be written.
    void finish()
    {
        if (!m_log || m_log->flush())
            return;
        const QString& name = m_log->options().fileName;
        throw Failure(ToolText::tr("cannot write the log %1: %2")
                          .arg(name, withoutName(m_log->errorString(), name)));
    }

private:
    std::unique_ptr<VxKit::EventLog> m_log;
};

} // namespace

void checkWatch(const CommandLine& line)
{
    if (line.watchSignals && !line.json)
        throw wrongUsage(ToolText::tr("--signals is valid only with --json"));
    if (line.watchSignals && !line.arguments.isEmpty())
        throw wrongUsage(ToolText::tr("watch --signals takes no printers: it prints every signal"));
    if (line.json && (line.relative || line.verbose))
        throw wrongUsage(ToolText::tr("--relative and --verbose are not valid with --json"));
    if (!line.historyFile.isEmpty() && !line.history)
        throw wrongUsage(ToolText::tr("--file is valid only with --history"));
}

void runWatch(const CommandLine& line, Output& output, Backend& backend)
{
    PrinterStatusController controller;
    catalogue_file::use(line, controller, output);
    // The signals alone need no readings.
    std::optional<VxKit::PrinterReadings> readings;
    if (!line.watchSignals || !line.eventLogFile.isEmpty() || line.history)
        readings.emplace(&controller);
    QStringList printers;
    for (const QString& name : line.arguments)
        printers.append(printer_names::withReading(name, *readings));

    WatchLog log(line, output, readings ? &*readings : nullptr);
    WatchHistory history(line, output, readings ? &*readings : nullptr);
    StopCondition stop(controller, output);
    if (readings)
        stop.alsoStop(*readings);
    QObject::connect(&stop, &StopCondition::met, QCoreApplication::instance(),
                     &QCoreApplication::quit);

    std::unique_ptr<SignalLines> signalLines;
    std::unique_ptr<WatchJson> json;
    std::unique_ptr<WatchScreen> screen;
    if (line.watchSignals) {
        signalLines = std::make_unique<SignalLines>(output, controller);
    } else if (line.json) {
        json = std::make_unique<WatchJson>(output, *readings, printers);
    } else {
        screen = std::make_unique<WatchScreen>(line, output, *readings, printers);
        QObject::connect(&backend, &Backend::narrated, screen.get(), &WatchScreen::printCaption);
    }

    // After what prints the reports, so that a warning follows the level that it is about.
    std::optional<VxKit::PrinterForecasts> forecasts;
    if (json || screen) {
        forecasts.emplace(&*readings);
        forecast_words::learn(*forecasts, historyFile(line), nullptr);
        const auto onWarning = [&](const QString& printer,
                                   const VxKit::RunOutForecast::Warning& warning) {
            if (json)
                json->printWarning(printer, warning);
            else
                screen->printWarning(printer, warning);
        };
        QObject::connect(&*forecasts, &VxKit::PrinterForecasts::warned, &*forecasts, onWarning);
        forecasts->setWarningSettings(forecast_words::warningSettings(line, fewLabels));
        forecasts->setJob(VxKit::Slot::Supply, line.job);
    }
    if (json)
        json->printSnapshot();
    if (screen)
        screen->printTable();

    int watchedPrinters = records::watchedPrinters(controller);
    QObject::connect(&backend, &Backend::printersMayHaveChanged, &controller, [&] {
        controller.checkForPrinters();
        if (readings)
            readings->refresh();
        watchedPrinters = records::watchedPrinters(controller);
    });
    if (line.seconds)
        stop.setTimeLimit(std::chrono::milliseconds(qRound(*line.seconds * 1000)));

    backend.start([&watchedPrinters] { return watchedPrinters; });
    QCoreApplication::exec();
    if (screen)
        screen->printPending();
    log.finish();
    history.finish();
}
