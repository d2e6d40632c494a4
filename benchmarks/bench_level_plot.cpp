// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// What it costs to draw a level over time, with a million samples at the width of a screen.
#include "benchmark_support.h"
#include "level_plot.h"

#include <QtCore/QDateTime>
#include <QtCore/QRandomGenerator>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <vector>

using benchmark_support::Samples;
using VxKit::LevelPlot;

namespace {

constexpr int sampleCount = 1000000;
constexpr qint64 step = 600; // milliseconds
constexpr int repeats = 30;
constexpr QSize plotSize(1920, 400);
constexpr double timeLimit = 16.0; // milliseconds
constexpr double ratioLimit = 1.5;

const QDateTime begin(QDate(2026, 11, 1), QTime(0, 0), Qt::UTC);

/// A roll that runs out, of which the printer reports a little more or less each time; or a level
/// that jumps from anywhere to anywhere, of which each column is full.
QList<LevelPlot::Sample> samplesOf(bool isNoise)
{
    QRandomGenerator random(1);
    QList<LevelPlot::Sample> samples;
    samples.reserve(sampleCount);
    for (int number = 0; number < sampleCount; ++number) {
        const double share = static_cast<double>(number) / sampleCount;
        samples.append(
            {begin.toMSecsSinceEpoch() + number * step,
             isNoise ? random.generateDouble() : 1.0 - share + 0.01 * random.generateDouble()});
    }
    return samples;
}

/// The least that shows the same curve: it looks at all samples and draws one line for each column,
/// without an axis, an area below it or smooth ends.
void drawByHand(const QList<LevelPlot::Sample>& samples, QImage& image)
{
    const int width = image.width();
    struct Column
    {
        double least = 1.0;
        double most = 0.0;
    };
    std::vector<Column> columns(static_cast<std::size_t>(width));
    const double perColumn = static_cast<double>(sampleCount) * step / width;
    for (const LevelPlot::Sample& sample : samples) {
        const double time = static_cast<double>(sample.time - begin.toMSecsSinceEpoch());
        Column& column =
            columns[std::min(static_cast<std::size_t>(time / perColumn), columns.size() - 1)];
        column.least = std::min(column.least, sample.value);
        column.most = std::max(column.most, sample.value);
    }
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setPen(Qt::blue);
    const double height = image.height();
    for (int x = 0; x < width; ++x) {
        const Column& column = columns[static_cast<std::size_t>(x)];
        painter.drawLine(QLineF(x, height * (1.0 - column.most), x, height * (1.0 - column.least)));
    }
}

/// Milliseconds of a processor for each drawing.
struct Result
{
    Samples times;
    double milliseconds() const
    {
        return times.library.empty() ? std::nan("")
                                     : benchmark_support::median(times.library) / 1000.0;
    }
};
Result falling;
Result noise;
Result fallingFine;

void levelPlot(benchmark::State& state, Result& result, bool isNoise, double scale)
{
    const QList<LevelPlot::Sample> samples = samplesOf(isNoise);
    LevelPlot plot;
    plot.resize(plotSize);
    plot.setSamples(samples);
    plot.setTimeRange(begin, begin.addMSecs(sampleCount * step));
    QImage screen((QSizeF(plotSize) * scale).toSize(), QImage::Format_RGB32);
    screen.setDevicePixelRatio(scale);
    screen.fill(Qt::white);
    QImage floor(screen.size(), QImage::Format_RGB32);
    floor.fill(Qt::white);
    plot.render(&screen);
    bool isOther = false;
    const auto takeLibrary = [&] {
        // What is kept of the last drawing must not be used again.
        isOther = !isOther;
        plot.setCurveColor(isOther ? Qt::darkBlue : Qt::darkRed);
        const double start = benchmark_support::processorTime();
        plot.render(&screen);
        result.times.library.push_back(benchmark_support::processorTime() - start);
    };
    const auto takeFloor = [&] {
        const double start = benchmark_support::processorTime();
        drawByHand(samples, floor);
        result.times.floor.push_back(benchmark_support::processorTime() - start);
    };
    benchmark_support::Turns turns;
    for ([[maybe_unused]] auto iteration : state)
        turns.take(takeLibrary, takeFloor);
    state.counters["plot_ms"] = result.milliseconds();
    state.counters["by_hand_ms"] = benchmark_support::median(result.times.floor) / 1000.0;
    state.counters["ratio"] = result.times.ratio();
}

BENCHMARK_CAPTURE(levelPlot, falling, falling, false, 1.0)->Iterations(repeats);
BENCHMARK_CAPTURE(levelPlot, noise, noise, true, 1.0)->Iterations(repeats);
BENCHMARK_CAPTURE(levelPlot, falling_at_200_percent, fallingFine, false, 2.0)->Iterations(repeats);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return benchmark_support::run(argc, argv, [](benchmark_support::Limits& limits) {
        limits.atMost("a million samples of a roll", falling.milliseconds(), timeLimit, "ms");
        limits.atMost("a million samples of noise", noise.milliseconds(), timeLimit, "ms");
        limits.atMost("a million samples of a roll at 200 %", fallingFine.milliseconds(), timeLimit,
                      "ms");
        limits.atMost("a million samples of a roll, over lines by hand", falling.times.ratio(),
                      ratioLimit, "");
    });
}
