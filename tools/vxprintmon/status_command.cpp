// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include "ending.h"
#include "json_text.h"
#include "records.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtCore/QSet>
#include <QtCore/QTimer>

using namespace std::chrono_literals;

namespace {

/// The records of all label printers, or that of the one that is named, if it is there.
QList<records::Record> wanted(const CommandLine& line, const PrinterStatusController& controller)
{
    QList<records::Record> found = records::of(controller);
    if (!line.words.isEmpty())
        found.removeIf([&](const records::Record& record) {
            return record.printerName != line.words.first();
        });
    return found;
}

/// Lets the first reports of printers arrive; false when the user would not wait.
bool waitForFirstReports(PrinterStatusController& controller, const Output& output,
                         const QList<records::Record>& printers)
{
    // What a printer says first comes as one burst, in which its status is the first.
    constexpr auto pause = 100ms;
    constexpr auto patience = 2s;
    // Reports that came in time count, though on a busy computer the end came before their turn.
    constexpr auto timeForTheRest = 500ms;
    QSet<QString> silent;
    for (const records::Record& record : printers) {
        if (records::isWatched(record))
            silent.insert(record.printerName);
    }
    if (silent.isEmpty())
        return true;

    QEventLoop loop;
    QTimer quiet;
    quiet.setSingleShot(true);
    const auto heard = [&] {
        if (silent.isEmpty())
            quiet.start(pause);
    };
    QObject::connect(&controller, &PrinterStatusController::statusChangedSignal, &loop,
                     [&](int /*status*/, const QString& printer) {
                         silent.remove(printer);
                         heard();
                     });
    QObject::connect(&controller, &PrinterStatusController::availablePrintersUpdated, &loop, heard);
    QObject::connect(&quiet, &QTimer::timeout, &loop, &QEventLoop::quit);
    QTimer::singleShot(patience, &loop, &QEventLoop::quit);
    Ending ending(controller, output);
    ending.setTime(patience + timeForTheRest);
    QObject::connect(&ending, &Ending::came, &loop, &QEventLoop::quit);
    loop.exec();
    QCoreApplication::sendPostedEvents(&controller);
    return !ending.isInterrupted();
}

} // namespace

QString runStatus(const CommandLine& line, Output& output, Scene& /*scene*/)
{
    PrinterStatusController controller;
    const bool isOne = !line.words.isEmpty();
    if (isOne && wanted(line, controller).isEmpty())
        return QStringLiteral("there is no record of a printer \"%1\"; \"vxprintmon status\" shows "
                              "those there are")
            .arg(line.words.first());
    if (!waitForFirstReports(controller, output, wanted(line, controller)))
        return QStringLiteral("interrupted");

    const QList<records::Record> shown = wanted(line, controller);
    if (line.json) {
        QStringList texts;
        for (const records::Record& record : shown)
            texts.append(records::json(record));
        output.text(json_text::lines(texts));
    } else if (isOne) {
        records::printDetails(output, shown.first(), controller.activeDefaultPrinter(),
                              records::titlesOf(controller));
    } else {
        records::printTable(output, shown, controller.activeDefaultPrinter(),
                            records::titlesOf(controller));
    }
    return {};
}
