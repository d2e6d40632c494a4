// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include "backend.h"
#include "reporter.h"
#include "stop_condition.h"

#include <QtCore/QCoreApplication>

void runWatch(const CommandLine& line, Output& output, Backend& backend)
{
    PrinterStatusController controller;
    Reporter reporter(line, output, controller);
    reporter.printInitialRecords();
    QObject::connect(&backend, &Backend::narrated, &reporter, &Reporter::printCaption);
    QObject::connect(&backend, &Backend::printersMayHaveChanged, &reporter,
                     &Reporter::lookForPrinters);

    StopCondition stop(controller, output);
    QObject::connect(&stop, &StopCondition::met, QCoreApplication::instance(),
                     &QCoreApplication::quit);
    if (line.seconds)
        stop.setTimeLimit(std::chrono::milliseconds(qRound(*line.seconds * 1000)));

    backend.start([&reporter] { return reporter.watchedPrinters(); });
    QCoreApplication::exec();
    reporter.printPendingChanges();
}
