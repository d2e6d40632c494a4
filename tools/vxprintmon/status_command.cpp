// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include "command_line.h"
#include "failure.h"
#include "json_text.h"
#include "records.h"
#include "stop_condition.h"
#include "tool_text.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtCore/QSet>
#include <QtCore/QTimer>

using namespace std::chrono_literals;

namespace {

/// The records of all label printers, or only that of the named one, if there is such a record.
QList<records::Record> selectedRecords(const CommandLine& line,
                                       const PrinterStatusController& controller)
{
    QList<records::Record> found = records::of(controller);
    if (!line.arguments.isEmpty())
        found.removeIf([&](const records::Record& record) {
            return record.printerName != line.arguments.first();
        });
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

} // namespace

void runStatus(const CommandLine& line, Output& output, Backend& /*backend*/)
{
    PrinterStatusController controller;
    const bool isOne = !line.arguments.isEmpty();
    if (isOne && selectedRecords(line, controller).isEmpty())
        throw Failure(ToolText::tr("there is no record of a printer \"%1\"; \"vxprintmon "
                                   "status\" shows the printers that have one")
                          .arg(line.arguments.first()));
    if (!waitForFirstReports(controller, output, selectedRecords(line, controller)))
        throw Failure(ToolText::tr("interrupted"));

    const QList<records::Record> shown = selectedRecords(line, controller);
    if (line.json) {
        QStringList texts;
        for (const records::Record& record : shown)
            texts.append(records::json(record));
        output.text(json_text::lines(texts));
    } else if (isOne) {
        records::printDetails(output, shown.first(), controller.activeDefaultPrinter(),
                              records::titleOf);
    } else {
        records::printTable(output, shown, controller.activeDefaultPrinter(), records::titleOf);
    }
}
