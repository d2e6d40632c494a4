// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include "catalogue_file.h"
#include "command_line.h"
#include "failure.h"
#include "forecast_words.h"
#include "history_command.h"
#include "json_text.h"
#include "printer_names.h"
#include "records.h"
#include "status_screen.h"
#include "stop_condition.h"
#include "tool_text.h"

#include <printer_forecasts.h>
#include <printer_readings.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtCore/QSet>
#include <QtCore/QTimer>

using namespace std::chrono_literals;

namespace {

/// The records of all label printers, or only that of the named one.
QList<records::Record> selectedRecords(const QString& printer,
                                       const PrinterStatusController& controller)
{
    QList<records::Record> found = records::of(controller);
    if (!printer.isNull())
        found.removeIf(
            [&](const records::Record& record) { return record.printerName != printer; });
    return found;
}

/// Waits for the first report of each printer. False if the user interrupts it.
bool waitForFirstReports(PrinterStatusController& controller, const Output& output,
                         const QList<records::Record>& printers)
{
    // The first reports of a printer arrive together, beginning with its status.
    constexpr auto pause = 100ms;
    constexpr auto timeLimit = 2s;
    // On a busy computer, reports that arrived in time may not have been delivered by then.
    constexpr auto timeToDeliver = 500ms;
    QSet<QString> unheard;
    for (const records::Record& record : printers) {
        if (records::isWatched(record))
            unheard.insert(record.printerName);
    }
    if (unheard.isEmpty())
        return true;

    QEventLoop loop;
    QTimer pauseTimer;
    pauseTimer.setSingleShot(true);
    const auto onReport = [&] {
        if (unheard.isEmpty())
            pauseTimer.start(pause);
    };
    QObject::connect(&controller, &PrinterStatusController::statusChangedSignal, &loop,
                     [&](int /*status*/, const QString& printer) {
                         unheard.remove(printer);
                         onReport();
                     });
    QObject::connect(&controller, &PrinterStatusController::availablePrintersUpdated, &loop,
                     onReport);
    QObject::connect(&pauseTimer, &QTimer::timeout, &loop, &QEventLoop::quit);
    QTimer::singleShot(timeLimit, &loop, &QEventLoop::quit);
    StopCondition stop(controller, output);
    stop.setTimeLimit(timeLimit + timeToDeliver);
    QObject::connect(&stop, &StopCondition::met, &loop, &QEventLoop::quit);
    loop.exec();
    QCoreApplication::sendPostedEvents(&controller);
    return !stop.isInterrupted();
}

/// Prints the records, which hold what the printers have reported since the controller exists.
void printJson(PrinterStatusController& controller, Output& output, const QString& printer)
{
    if (!waitForFirstReports(controller, output, selectedRecords(printer, controller)))
        throw Failure(ToolText::tr("interrupted"));
    QStringList texts;
    for (const records::Record& record : selectedRecords(printer, controller))
        texts.append(records::json(record));
    output.text(json_text::lines(texts));
}

} // namespace

void runStatus(const CommandLine& line, Output& output, Backend& /*backend*/)
{
    PrinterStatusController controller;
    catalogue_file::use(line, controller, output);
    const bool isOne = !line.arguments.isEmpty();
    // The records of all printers need no readings.
    std::optional<VxKit::PrinterReadings> readings;
    if (isOne || !line.json)
        readings.emplace(&controller);
    const QString printer =
        isOne ? printer_names::withRecord(line.arguments.first(), *readings) : QString();
    std::optional<VxKit::PrinterForecasts> forecasts;
    if (!line.json) {
        forecasts.emplace(&*readings);
        forecast_words::learn(*forecasts, historyFile(line), &output);
    }
    if (line.json)
        printJson(controller, output, printer);
    else if (isOne)
        status_screen::printDetails(output, readings->reading(printer));
    else
        status_screen::printTable(output, readings->readings(), readings->activePrinter());
}
