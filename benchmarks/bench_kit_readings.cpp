// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// What readings of a thousand printers cost their host: memory, the time until a changed value is
// reported, making them, and listing the printers again.
#include "benchmark_support.h"
#include "printer_readings.h"
#include "printer_status_controller.h"
#include "silent_appender.h"

#include <Logger.h>
#include <virtualwindows/machine.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QSemaphore>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>

#include <benchmark/benchmark.h>

#include <array>
#include <atomic>
#include <chrono>
#include <cmath>
#include <limits>
#include <memory>
#include <thread>

#include <malloc.h>

using benchmark_support::Samples;
using virtualwindows::Machine;
using virtualwindows::PrinterValue;
using VxKit::PrinterReadings;

namespace {

using Clock = std::chrono::steady_clock;

constexpr int printerCount = 1000;
constexpr double memoryLimit = 8.0; // KiB per printer
constexpr double changedLimit = 1.15;
constexpr int blocks = 60;
constexpr int samplesPerBlock = 20;
constexpr int startLimit = 60000; // milliseconds
// Long enough for the threads to be asleep when the next value arrives, as in normal use.
constexpr std::chrono::microseconds settlingTime(100);

double microseconds(Clock::duration time)
{
    return std::chrono::duration<double, std::micro>(time).count();
}

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
        // Rolls of their own, as in a real fleet; supplies and ribbons of a few kinds.
        const QByteArray roll = QByteArray::number(number, 16).rightJustified(6, '0').toUpper();
        const QByteArray kind = QByteArray::number(100001 + number % 9);
        Machine::instance().publish(
            setup.name,
            {PrinterValue::text("StatusCode", "1"),
             PrinterValue::text("SupplyIdentifier", "00000064" + kind + roll),
             PrinterValue::number("Ribbon1Identifier", 2001),
             PrinterValue::number("Ribbon2Identifier", 2002),
             PrinterValue::number("Mileage", 15000), PrinterValue::number("Ribbon1Mileage", 50000),
             PrinterValue::number("Ribbon2Mileage", 60000),
             PrinterValue::text("SoftwareVersion", "4.2.0,boot 1.7"),
             PrinterValue::text("EthernetConfig", "dhcp,10.0.0.21,255.255.255.0,10.0.0.1"),
             PrinterValue::number("UpdateProgress", 0), PrinterValue::number("UpdateError", 0)});
    }
}

struct Event
{
    const char* name;
    PrinterValue (*value)(quint32 number);
};
const std::array events{
    Event{"status",
          [](quint32 number) {
              return PrinterValue::text("StatusCode", QByteArray::number(2 + number % 2));
          }},
    Event{"supply mileage",
          [](quint32 number) {
              return PrinterValue::number("Mileage", 1 + number % 30000);
          }},
    Event{"supply",
          [](quint32 number) {
              return PrinterValue::text(
                  "SupplyIdentifier",
                  "00000064" + QByteArray::number(100001 + number % 9) +
                      QByteArray::number(number % 1000000).rightJustified(6, '0'));
          }},
    Event{"ribbons",
          [](quint32 number) {
              return PrinterValue::number("Ribbon1Identifier", 2003 + number % 2);
          }},
};

double usedBytes()
{
    const struct mallinfo2 allocator = mallinfo2();
    return double(allocator.uordblks) + double(allocator.hblkhd);
}

/// A controller of a thousand printers on a host's thread, with and without readings.
class Fleet
{
public:
    Fleet()
    {
        Machine::instance().reset();
        addPrinters();
        m_hostThread.start();
        m_host.moveToThread(&m_hostThread);
        onHost([this] {
            m_controller = std::make_unique<PrinterStatusController>();
            QObject::connect(m_controller.get(), &PrinterStatusController::availablePrintersUpdated,
                             &m_host, [this] { arrived(false); });
        });
        settle();
    }
    ~Fleet()
    {
        onHost([this] {
            m_readings.reset();
            m_controller.reset();
        });
        m_hostThread.quit();
        m_hostThread.wait();
    }
    Q_DISABLE_COPY_MOVE(Fleet)

    void makeReadings()
    {
        onHost([this] {
            m_readings = std::make_unique<PrinterReadings>(m_controller.get());
            QObject::connect(m_readings.get(), &PrinterReadings::changed, &m_host,
                             [this] { arrived(true); });
        });
        settle();
    }
    void endReadings()
    {
        onHost([this] { m_readings.reset(); });
    }
    /// Microseconds of the host's thread for listing the printers again.
    double refresh()
    {
        double time = 0;
        onHost([this, &time] {
            const double before = benchmark_support::processorTime();
            m_readings->refresh();
            time = benchmark_support::processorTime() - before;
        });
        return time;
    }

    /// Microseconds from publishing a new value to the last signal of its report: that of the
    /// readings when there are any, else that of the controller.
    double sample(const Event& event)
    {
        if (!Machine::instance().waitForWaitingThreads(printerCount))
            return std::numeric_limits<double>::quiet_NaN();
        std::this_thread::sleep_for(settlingTime);
        const PrinterValue value = event.value(++m_number);
        while (m_arrived.tryAcquire())
            continue;
        m_waitsForReadings = m_readings != nullptr;
        const Clock::time_point published = Clock::now();
        Machine::instance().publish(printerName(printerCount / 2), value);
        if (!m_arrived.tryAcquire(1, startLimit))
            return std::numeric_limits<double>::quiet_NaN();
        return microseconds(m_arrival - published);
    }

private:
    template <typename Work>
    void onHost(Work work)
    {
        QMetaObject::invokeMethod(&m_host, work, Qt::BlockingQueuedConnection);
    }
    /// Waits until all threads sleep and the host has received everything.
    void settle()
    {
        if (!Machine::instance().waitForWaitingThreads(printerCount,
                                                       std::chrono::milliseconds(startLimit)))
            std::abort();
        onHost([] {});
    }
    void arrived(bool atReadings)
    {
        if (atReadings != m_waitsForReadings)
            return;
        m_arrival = Clock::now();
        m_arrived.release();
    }

    quint32 m_number = 0;
    std::atomic<bool> m_waitsForReadings = false;
    Clock::time_point m_arrival;
    QSemaphore m_arrived;
    QThread m_hostThread;
    QObject m_host;
    std::unique_ptr<PrinterStatusController> m_controller;
    std::unique_ptr<PrinterReadings> m_readings;
};

double kibPerPrinter = std::numeric_limits<double>::quiet_NaN();
std::array<Samples, events.size()> waysToChanged;

void memory(benchmark::State& state)
{
    Fleet fleet;
    for ([[maybe_unused]] auto iteration : state) {
        const double before = usedBytes();
        fleet.makeReadings();
        kibPerPrinter = (usedBytes() - before) / printerCount / 1024;
    }
    state.counters["kib_a_printer"] = kibPerPrinter;
}
BENCHMARK(memory)->Iterations(1)->Unit(benchmark::kMillisecond);

/// The floor is the controller without readings.
void changed(benchmark::State& state)
{
    const auto number = static_cast<std::size_t>(state.range(0));
    Fleet fleet;
    Samples& samples = waysToChanged[number];
    benchmark_support::Turns turns;
    const auto takeBlock = [&](std::vector<double>& into) {
        const double sum = benchmark_support::takeBlock(
            samplesPerBlock, into, [&] { return fleet.sample(events[number]); });
        if (std::isnan(sum))
            state.SkipWithError("a published value did not arrive");
        return sum;
    };
    for ([[maybe_unused]] auto iteration : state) {
        double sum = 0;
        turns.take(
            [&] {
                fleet.makeReadings();
                sum = takeBlock(samples.library);
            },
            [&] {
                fleet.endReadings();
                takeBlock(samples.floor);
            });
        if (state.error_occurred())
            return;
        state.SetIterationTime(sum / samplesPerBlock * 1e-6);
    }
    state.SetLabel(events[number].name);
    state.counters["changed_median_us"] = benchmark_support::median(samples.library);
    state.counters["signal_median_us"] = benchmark_support::median(samples.floor);
    state.counters["median_ratio"] = samples.ratio();
}
BENCHMARK(changed)
    ->DenseRange(0, int(events.size()) - 1)
    ->Iterations(blocks)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

void refresh(benchmark::State& state)
{
    Fleet fleet;
    fleet.makeReadings();
    std::vector<double> times;
    for ([[maybe_unused]] auto iteration : state)
        times.push_back(fleet.refresh());
    state.counters["cpu_us_a_printer"] = benchmark_support::median(times) / printerCount;
}
BENCHMARK(refresh)->Iterations(20)->Unit(benchmark::kMillisecond);

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
        limits.atMost("memory of the readings, a printer", kibPerPrinter, memoryLimit, " KiB");
        for (std::size_t number = 0; number < events.size(); ++number)
            limits.atMost(std::string("from a published value to changed, ") + events[number].name +
                              ", median over the way to the library's signal",
                          waysToChanged[number].ratio(), changedLimit, "");
    });
    Logger::globalInstance()->removeAppender(&silent);
    return exitCode;
}
