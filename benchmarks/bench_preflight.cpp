// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// What it costs a host to ask before it prints whether a job fits.
#include "benchmark_support.h"
#include "preflight.h"
#include "printer_readings.h"
#include "printer_status_controller.h"
#include "silent_appender.h"

#include <Logger.h>
#include <virtualwindows/machine.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QSet>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>
#include <memory>

using benchmark_support::Samples;
using virtualwindows::Machine;
using virtualwindows::PrinterValue;
using VxKit::Level;
using VxKit::PreflightResult;
using VxKit::PrinterReading;
using VxKit::Slot;

namespace {

using Clock = std::chrono::steady_clock;

constexpr int printerCount = 100;
constexpr int questionsPerSample = 100;
constexpr int blocks = 200;
constexpr int samplesPerBlock = 10;
constexpr double ratioLimit = 3.0;
constexpr double timeLimit = 5.0; // microseconds

const QString supplySku = QStringLiteral("DN-2UP-WH");
const QString ribbonSku = QStringLiteral("RS-43-BK");

QString printerName(int number)
{
    return QStringLiteral("Label printer %1").arg(number, 4, 10, QLatin1Char('0'));
}

void addPrinters()
{
    for (int number = 0; number < printerCount; ++number) {
        virtualwindows::PrinterSetup setup;
        setup.name = printerName(number);
        setup.driver = QStringLiteral("Stratamark AlderMax");
        setup.port = QStringLiteral("USB%1").arg(number + 1, 3, 10, QLatin1Char('0'));
        Machine::instance().addPrinter(setup);
        Machine::instance().publish(setup.name,
                                    {PrinterValue::text("StatusCode", "1"),
                                     PrinterValue::text("SupplyIdentifier", "0000007D100038000001"),
                                     PrinterValue::number("Ribbon1Identifier", 2001),
                                     PrinterValue::number("Ribbon2Identifier", 2004),
                                     PrinterValue::number("Mileage", 20000),
                                     PrinterValue::number("Ribbon1Mileage", 60000),
                                     PrinterValue::number("Ribbon2Mileage", 60000)});
    }
}

/// The least that answers the same for a job that fits: it takes the printer's reading, compares
/// what is loaded, looks up whether the two go together and counts. It cannot say why a job does
/// not fit.
class ByHand
{
public:
    explicit ByHand(const VxKit::PrinterReadings& readings)
        : m_readings(readings)
    {
        m_pairs.insert({ribbonSku, supplySku});
    }

    bool fits(const QString& printer, const QString& supply, int labels,
              const QString& ribbon) const
    {
        const PrinterReading reading = m_readings.reading(printer);
        if (reading.isNull() || !reading.isOnline() || reading.statusCode() != 1)
            return false;
        const Level loaded = reading.level(Slot::Supply);
        const Level first = reading.level(Slot::Ribbon1);
        if (loaded.sku != supply || first.sku != ribbon || !m_pairs.contains({ribbon, supply}))
            return false;
        const double rows = std::floor(first.meters.value_or(0) / *loaded.labelPitchMeters);
        return loaded.labels.value_or(0) >= labels && rows * *loaded.labelsAcross >= labels;
    }

private:
    const VxKit::PrinterReadings& m_readings;
    QSet<std::pair<QString, QString>> m_pairs;
};

Samples samples;
double microsecondsPerAnswer = std::nan("");

template <typename Ask>
double microsecondsOf(const Ask& ask)
{
    const auto begin = Clock::now();
    for (int question = 0; question < questionsPerSample; ++question)
        benchmark::DoNotOptimize(ask(printerName(question % printerCount), 100 + question));
    const std::chrono::duration<double, std::micro> time = Clock::now() - begin;
    return time.count() / questionsPerSample;
}

void answer(benchmark::State& state)
{
    Machine::instance().reset();
    addPrinters();
    PrinterStatusController controller;
    const VxKit::PrinterReadings readings(&controller);
    const VxKit::Preflight preflight(&readings);
    const ByHand byHand(readings);
    const auto ask = [&](const QString& printer, int labels) {
        return preflight.check(printer, supplySku, labels, {ribbonSku}).answer() ==
               PreflightResult::Answer::Yes;
    };
    const auto askByHand = [&](const QString& printer, int labels) {
        return byHand.fits(printer, supplySku, labels, ribbonSku);
    };
    if (!ask(printerName(0), 100) || !askByHand(printerName(0), 100)) {
        state.SkipWithError("the job that fits does not fit");
        return;
    }
    benchmark_support::Turns turns;
    for ([[maybe_unused]] auto iteration : state) {
        double sum = 0;
        turns.take(
            [&] {
                sum = benchmark_support::takeBlock(samplesPerBlock, samples.library,
                                                   [&] { return microsecondsOf(ask); });
            },
            [&] {
                benchmark_support::takeBlock(samplesPerBlock, samples.floor,
                                             [&] { return microsecondsOf(askByHand); });
            });
        state.SetIterationTime(sum / samplesPerBlock * 1e-6);
    }
    microsecondsPerAnswer = benchmark_support::median(samples.library);
    state.counters["answer_median_us"] = microsecondsPerAnswer;
    state.counters["by_hand_median_us"] = benchmark_support::median(samples.floor);
    state.counters["median_ratio"] = samples.ratio();
}
BENCHMARK(answer)->Iterations(blocks)->UseManualTime()->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char* argv[])
{
    benchmark_support::useTranslatedNames();
    const QCoreApplication application(argc, argv);
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    SilentAppender silent;
    Logger::globalInstance()->registerAppender(&silent);
    const int exitCode = benchmark_support::run(argc, argv, [](benchmark_support::Limits& limits) {
        limits.atMost("an answer, median", microsecondsPerAnswer, timeLimit, " us");
        limits.atMost("an answer, median over that of code written by hand", samples.ratio(),
                      ratioLimit, "");
    });
    Logger::globalInstance()->removeAppender(&silent);
    return exitCode;
}
