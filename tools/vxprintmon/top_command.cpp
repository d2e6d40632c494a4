// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "backend.h"
#include "catalogue_file.h"
#include "command_line.h"
#include "commands.h"
#include "failure.h"
#include "forecast_words.h"
#include "full_screen.h"
#include "output.h"
#include "records.h"
#include "tool_text.h"
#include "top_screen.h"

#include "printer_status_controller.h"

#include <printer_forecasts.h>
#include <printer_readings.h>
#include <usage_history.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>

using VxKit::PrinterReadings;

namespace {

/// The table of this computer's printers.
class Top : public QObject
{
public:
    Top(Output& output, FullScreen& screen, PrinterStatusController& controller)
        : m_controller(controller)
        , m_readings(&controller)
        , m_forecasts(&m_readings)
        , m_watchedPrinters(records::watchedPrinters(controller))
        , m_screen(output, screen, [this] { return m_readings.readings(); })
    {
        forecast_words::learn(m_forecasts, VxKit::UsageHistory::defaultFileName(), nullptr);
        for (auto signal :
             {&PrinterReadings::added, &PrinterReadings::changed, &PrinterReadings::gone})
            connect(&m_readings, signal, &m_screen, &TopScreen::noteChange);
        connect(&m_readings, &PrinterReadings::renamed, &m_screen, &TopScreen::noteChange);
        controller.installEventFilter(&m_screen);
        m_readings.installEventFilter(&m_screen);
        m_screen.noteChange();
    }

    void lookForPrinters()
    {
        m_controller.checkForPrinters();
        m_readings.refresh();
        m_watchedPrinters = records::watchedPrinters(m_controller);
    }

    /// How many printers the library watches.
    int watchedPrinters() const { return m_watchedPrinters; }

private:
    PrinterStatusController& m_controller;
    PrinterReadings m_readings;
    VxKit::PrinterForecasts m_forecasts;
    int m_watchedPrinters;
    TopScreen m_screen;
};

} // namespace

void checkTop(const CommandLine& line)
{
    if (!line.isOfSite())
        return;
    for (const auto& [name, isGiven] : {std::pair("virtual", !line.fleetFile.isEmpty()),
                                        std::pair("catalogue", !line.catalogueFile.isEmpty()),
                                        std::pair("speed", line.speed != CommandLine().speed)}) {
        if (isGiven)
            throw wrongUsage(
                ToolText::tr("--%1 does not go with --broker").arg(QString::fromLatin1(name)));
    }
}

void runTop(const CommandLine& line, Output& output, Backend& backend)
{
    if (line.json) {
        PrinterStatusController controller;
        catalogue_file::use(line, controller, output);
        printTopJson(output, PrinterReadings(&controller).readings());
        return;
    }
    FullScreen::requireTerminal();
    PrinterStatusController controller;
    catalogue_file::use(line, controller, output);
    const HeldBackMessages messages;
    FullScreen screen;
    Top top(output, screen, controller);
    QObject::connect(&backend, &Backend::printersMayHaveChanged, &top, &Top::lookForPrinters);
    if (line.seconds)
        QTimer::singleShot(std::chrono::milliseconds(qRound(*line.seconds * 1000)),
                           QCoreApplication::instance(), &QCoreApplication::quit);
    backend.start([&top] { return top.watchedPrinters(); });
    QCoreApplication::exec();
}
