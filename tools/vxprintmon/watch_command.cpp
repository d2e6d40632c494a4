// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include "ending.h"
#include "reporter.h"

#include <QtCore/QCoreApplication>

QString runWatch(const CommandLine& line, Output& output, Scene& scene)
{
    PrinterStatusController controller;
    Reporter reporter(line, output, controller);
    reporter.tellBeginning();
    QObject::connect(&scene, &Scene::told, &reporter, &Reporter::tellStory);
    QObject::connect(&scene, &Scene::printersMayHaveCome, &reporter, &Reporter::lookForPrinters);

    Ending ending(controller, output);
    QObject::connect(&ending, &Ending::came, QCoreApplication::instance(), &QCoreApplication::quit);
    if (line.seconds)
        ending.setTime(std::chrono::milliseconds(qRound(*line.seconds * 1000)));

    scene.begin([&reporter] { return reporter.watchedPrinters(); });
    QCoreApplication::exec();
    reporter.tellEnd();
    return {};
}
