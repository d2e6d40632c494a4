// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// What the list of a thousand printers costs while each of them changes ten times a second, beyond
// what their model costs. The readings come in ten batches a second, as the window receives them.
#include "benchmark_support.h"
#include "changing_reading.h"

#include <printer_list_model.h>
#include <printer_list_view.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

#include <sys/resource.h>

#include <chrono>
#include <cstdio>
#include <optional>

using namespace std::chrono_literals;
using VxKit::PrinterListModel;
using VxKit::PrinterListView;
using VxKit::PrinterReading;

namespace {

constexpr int printerCount = 1000;
constexpr auto batchInterval = 100ms;
constexpr auto duration = 5s;

PrinterReading readingOf(int number, int round)
{
    return changingReading(number, round, 1000, QStringLiteral("000000641000050000A7"));
}

double processorSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// The share of a core that the changes take, with a view or without one.
double shareOfCore(bool withView)
{
    PrinterListModel model;
    for (int number = 0; number < printerCount; ++number)
        model.setReading(readingOf(number, 0));
    std::optional<PrinterListView> view;
    if (withView) {
        view.emplace();
        view->setModel(&model);
        view->resize(1200, 900);
        view->show();
    }
    QCoreApplication::processEvents();

    int round = 0;
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &model, [&] {
        ++round;
        for (int number = 0; number < printerCount; ++number)
            model.setReading(readingOf(number, round));
    });
    QTimer::singleShot(duration, &model, &QCoreApplication::quit);
    const double before = processorSeconds();
    QElapsedTimer clock;
    clock.start();
    timer.start(batchInterval);
    QCoreApplication::exec();
    const double wall = static_cast<double>(clock.nsecsElapsed()) / 1e9;
    return (processorSeconds() - before) / wall;
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    shareOfCore(true); // the fonts are loaded
    const double floor = shareOfCore(false);
    const double share = shareOfCore(true);
    std::printf("model alone: %.1f %% of a core; with a view: %.1f %% (%.2f times)\n", floor * 100,
                share * 100, share / floor);
    benchmark_support::Limits limits;
    limits.atMost("1000 printers that change ten times a second, with their view", share * 100, 15,
                  "% of a core");
    return limits.conclude() ? 0 : 1;
}
