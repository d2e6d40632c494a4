// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The time from when the driver publishes a value to the slot on the host's thread.
#include "benchmark_support.h"
#include "by_hand.h"
#include "printer_status_thread.h"

#include <virtualwindows/machine.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QSemaphore>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>
#include <limits>
#include <memory>
#include <thread>
#include <vector>

using virtualwindows::Machine;
using virtualwindows::PrinterValue;

namespace {

using benchmark_support::Samples;
using Clock = std::chrono::steady_clock;

constexpr int blocks = 60;
constexpr int samplesPerBlock = 25;
// The cores that the scheduler chooses for the two watching threads affect many samples, so each
// repetition creates new threads.
constexpr int repetitions = 16;
constexpr double medianLimit = 1.15;
constexpr double p99Limit = 1.5;
constexpr int watchingThreads = 2;
// Long enough for all threads to be asleep when the next value arrives, as in normal use.
constexpr std::chrono::microseconds settlingTime(100);

/// The receiver, on the host's thread.
class Host : public QObject
{
public:
    void receive(const QString& printer, const QString& value)
    {
        m_arrival = Clock::now();
        m_printer = printer;
        m_value = value;
        m_arrived.release();
    }

    struct Arrival
    {
        Clock::time_point time;
        QString printer;
        QString value;
    };
    /// Blocks the calling thread, which must not be the host's, until a value has arrived.
    Arrival next()
    {
        m_arrived.acquire();
        return {m_arrival, m_printer, m_value};
    }

private:
    QSemaphore m_arrived;
    Clock::time_point m_arrival;
    QString m_printer;
    QString m_value;
};

/// Both watching threads, each with its own printer, and the host's thread.
class Setting
{
public:
    /// The order of creation affects where the scheduler places the threads.
    explicit Setting(bool isLibraryFirst)
    {
        Machine::instance().reset();
        m_hostThread.start();
        m_host.moveToThread(&m_hostThread);
        for (const QString& name : {libraryPrinter, floorPrinter})
            addPrinter(name);

        if (isLibraryFirst)
            startLibrary();
        startFloor();
        if (!isLibraryFirst)
            startLibrary();
    }
    ~Setting()
    {
        m_floor.reset();
        while (!m_library.wait(10))
            m_library.stop();
        m_hostThread.quit();
        m_hostThread.wait();
    }
    Q_DISABLE_COPY_MOVE(Setting)

    /// Microseconds from publishing a new value to the slot; NaN if something other than that value
    /// arrived.
    double sample(const QString& printer)
    {
        if (!Machine::instance().waitForWaitingThreads(watchingThreads))
            return std::numeric_limits<double>::quiet_NaN();
        std::this_thread::sleep_for(settlingTime);

        m_mileage = m_mileage % 100000 + 1;
        const PrinterValue value = PrinterValue::number("Mileage", m_mileage);
        const Clock::time_point published = Clock::now();
        Machine::instance().publish(printer, value);
        const Host::Arrival arrival = m_host.next();
        if (arrival.printer != printer || arrival.value != QString::number(m_mileage))
            return std::numeric_limits<double>::quiet_NaN();
        return std::chrono::duration<double, std::micro>(arrival.time - published).count();
    }

    // Of equal length, so that neither name takes longer than the other.
    static inline const QString libraryPrinter = QStringLiteral("Label printer 1");
    static inline const QString floorPrinter = QStringLiteral("Label printer 2");

private:
    // Waits for the report of each thread's first read.
    void startLibrary()
    {
        QObject::connect(&m_library, &PrinterStatusThread::supplyIntMileageChanged, &m_host,
                         &Host::receive);
        m_library.setMonitoredPrinterName(libraryPrinter);
        m_library.start();
        m_host.next();
    }
    void startFloor()
    {
        m_floor = std::make_unique<by_hand::WatchingThread>(
            floorPrinter, QList<QByteArray>{"Mileage"}, m_host,
            [this](const QByteArray&, const QString& printer, const QString& value) {
                m_host.receive(printer, value);
            });
        m_floor->start();
        m_host.next();
    }

    static void addPrinter(const QString& name)
    {
        virtualwindows::PrinterSetup setup;
        setup.name = name;
        setup.driver = QStringLiteral("Stratamark BirchMax");
        Machine::instance().addPrinter(setup);

        QList<PrinterValue> values;
        for (const by_hand::ValueRead& read : by_hand::valueReads) {
            values.append(read.isText
                              ? PrinterValue::text(read.name, QByteArray(qsizetype{20}, '1'))
                              : PrinterValue::number(read.name, 1));
        }
        Machine::instance().publish(name, values);
    }

    quint32 m_mileage = 1;
    Host m_host;
    QThread m_hostThread;
    PrinterStatusThread m_library;
    std::unique_ptr<by_hand::WatchingThread> m_floor;
};

/// The samples of all repetitions: the limits apply to all of them together.
Samples allSamples;

void reportLatency(benchmark::State& state)
{
    static bool isLibraryFirst = false;
    isLibraryFirst = !isLibraryFirst;
    Setting setting(isLibraryFirst);
    Samples samples;
    benchmark_support::Turns turns;
    const auto takeBlock = [&](const QString& printer, std::vector<double>& into) {
        return benchmark_support::takeBlock(samplesPerBlock, into,
                                            [&] { return setting.sample(printer); });
    };
    const auto takeLibraryBlock = [&] {
        const double sum = takeBlock(Setting::libraryPrinter, samples.library);
        if (std::isnan(sum))
            state.SkipWithError("the library reported something other than the published value");
        state.SetIterationTime(sum / samplesPerBlock * 1e-6);
    };
    const auto takeFloorBlock = [&] {
        if (std::isnan(takeBlock(Setting::floorPrinter, samples.floor)))
            state.SkipWithError("the floor reported something other than the published value");
    };

    for ([[maybe_unused]] auto iteration : state) {
        turns.take(takeLibraryBlock, takeFloorBlock);
        if (state.error_occurred())
            return;
    }

    state.counters["samples_each"] = static_cast<double>(samples.library.size());
    state.counters["library_median_us"] = benchmark_support::median(samples.library);
    state.counters["floor_median_us"] = benchmark_support::median(samples.floor);
    state.counters["median_ratio"] = samples.ratio(0.5);
    state.counters["library_p99_us"] = benchmark_support::quantile(samples.library, 0.99);
    state.counters["floor_p99_us"] = benchmark_support::quantile(samples.floor, 0.99);
    state.counters["p99_ratio"] = samples.ratio(0.99);
    allSamples.append(samples);
}

BENCHMARK(reportLatency)
    ->Iterations(blocks)
    ->Repetitions(repetitions)
    ->DisplayAggregatesOnly(true)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    return benchmark_support::run(argc, argv, [](benchmark_support::Limits& limits) {
        limits.atMost("report latency, median over the floor's", allSamples.ratio(0.5), medianLimit,
                      "");
        limits.atMost("report latency, p99 over the floor's", allSamples.ratio(0.99), p99Limit, "");
    });
}
