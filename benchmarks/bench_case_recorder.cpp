// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// What a recorder costs a host: processor time while two hundred printers change ten times a
// second, and memory. The floor is the same host without a recorder.
#include "benchmark_support.h"
#include "case_recorder.h"
#include "printer_status_controller.h"
#include "silent_appender.h"

#include <Logger.h>
#include <virtualwindows/machine.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>

#include <benchmark/benchmark.h>

#include <chrono>
#include <limits>
#include <memory>
#include <optional>
#include <thread>

#include <ctime>
#include <malloc.h>

using benchmark_support::Samples;
using virtualwindows::Machine;
using virtualwindows::PrinterValue;
using VxKit::CaseRecorder;

namespace {

constexpr int printerCount = 200;
constexpr std::chrono::milliseconds interval(100);
constexpr int roundsPerBlock = 10;
constexpr int blocks = 12;
constexpr double processorLimit = 1.02;
constexpr double memoryLimit = 256; // KiB

/// Microseconds that all threads of the process have had a processor for.
double processTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e6 + double(time.tv_nsec) / 1e3;
}

double usedBytes()
{
    const struct mallinfo2 allocator = mallinfo2();
    return double(allocator.uordblks) + double(allocator.hblkhd);
}

QString printerName(int number)
{
    return QStringLiteral("Label printer %1").arg(number, 3, 10, QLatin1Char('0'));
}

/// All values of a printer, each different from those of the number before.
QList<PrinterValue> values(int printer, quint32 number)
{
    return {PrinterValue::text("StatusCode", QByteArray::number(1 + number % 2)),
            PrinterValue::text(
                "SupplyIdentifier",
                "00000064" + QByteArray::number(100001 + (number + quint32(printer)) % 9) +
                    QByteArray::number(printer, 16).rightJustified(6, '0').toUpper()),
            PrinterValue::number("Ribbon1Identifier", 2001 + number % 3),
            PrinterValue::number("Ribbon2Identifier", 2002),
            PrinterValue::number("Mileage", 1 + number % 30000),
            PrinterValue::number("Ribbon1Mileage", 1 + number % 90000),
            PrinterValue::number("Ribbon2Mileage", 1 + number % 90000),
            PrinterValue::text("SoftwareVersion", "4.2." + QByteArray::number(number % 10)),
            PrinterValue::text("EthernetConfig", "dhcp,10.0.0.21,255.255.255.0,10.0.0.1"),
            PrinterValue::number("UpdateProgress", 0),
            PrinterValue::number("UpdateError", 0)};
}

/// A controller of all printers on a host's thread, with and without a recorder.
class Fleet
{
public:
    Fleet()
    {
        Machine::instance().reset();
        for (int number = 0; number < printerCount; ++number) {
            virtualwindows::PrinterSetup setup;
            setup.name = printerName(number);
            setup.driver = QStringLiteral("Stratamark AlderMax");
            setup.port = QStringLiteral("USB%1").arg(number + 1, 3, 10, QLatin1Char('0'));
            Machine::instance().addPrinter(setup);
            Machine::instance().publish(setup.name, values(number, 0));
        }
        m_hostThread.start();
        m_host.moveToThread(&m_hostThread);
        onHost([this] { m_controller = std::make_unique<PrinterStatusController>(); });
        settle();
    }
    ~Fleet()
    {
        onHost([this] { m_controller.reset(); });
        m_hostThread.quit();
        m_hostThread.wait();
    }
    Q_DISABLE_COPY_MOVE(Fleet)

    template <typename Work>
    void onHost(Work work)
    {
        QMetaObject::invokeMethod(&m_host, work, Qt::BlockingQueuedConnection);
    }
    PrinterStatusController* controller() { return m_controller.get(); }

    /// Microseconds of the process for a block of rounds in which every printer changes.
    double storm()
    {
        const double before = processTime();
        auto next = std::chrono::steady_clock::now();
        for (int round = 0; round < roundsPerBlock; ++round) {
            ++m_number;
            for (int printer = 0; printer < printerCount; ++printer)
                Machine::instance().publish(printerName(printer), values(printer, m_number));
            next += interval;
            std::this_thread::sleep_until(next);
        }
        settle();
        return processTime() - before;
    }

    /// Waits until all threads sleep and the host has received everything.
    void settle()
    {
        if (!Machine::instance().waitForWaitingThreads(printerCount, std::chrono::minutes(1)))
            std::abort();
        onHost([] {});
    }

private:
    quint32 m_number = 0;
    QThread m_hostThread;
    QObject m_host;
    std::unique_ptr<PrinterStatusController> m_controller;
};

double kib = std::numeric_limits<double>::quiet_NaN();
Samples stormTimes;
Samples ringTimes;

VxKit::CaseRecorderOptions optionsFor(const QTemporaryDir& folder, int number, bool isRing)
{
    VxKit::CaseRecorderOptions options;
    if (!isRing)
        options.fileName = folder.filePath(QStringLiteral("%1.vxcase").arg(number));
    return options;
}

void storm(benchmark::State& state)
{
    const bool isRing = state.range(0) != 0;
    Samples& samples = isRing ? ringTimes : stormTimes;
    const QTemporaryDir folder;
    Fleet fleet;
    std::unique_ptr<CaseRecorder> recorder;
    benchmark_support::Turns turns;
    int number = 0;
    fleet.storm();
    for ([[maybe_unused]] auto iteration : state) {
        double time = 0;
        turns.take(
            [&] {
                fleet.onHost([&] {
                    recorder = std::make_unique<CaseRecorder>(optionsFor(folder, ++number, isRing),
                                                              fleet.controller());
                });
                fleet.storm(); // the first changes have no values to be compared with
                time = fleet.storm();
                samples.library.push_back(time);
                fleet.onHost([&] { recorder.reset(); });
            },
            [&] { samples.floor.push_back(fleet.storm()); });
        state.SetIterationTime(time * 1e-6);
    }
    state.SetLabel(isRing ? "ring" : "file");
    state.counters["recorded_us"] = benchmark_support::median(samples.library);
    state.counters["bare_us"] = benchmark_support::median(samples.floor);
    state.counters["ratio"] = samples.ratio();
}
BENCHMARK(storm)->DenseRange(0, 1)->Iterations(blocks)->UseManualTime()->Unit(
    benchmark::kMillisecond);

void memory(benchmark::State& state)
{
    const QTemporaryDir folder;
    for ([[maybe_unused]] auto iteration : state) {
        Fleet fleet;
        fleet.storm(); // Qt's event queues keep what they once needed
        const double before = usedBytes();
        std::unique_ptr<CaseRecorder> recorder;
        fleet.onHost([&] {
            recorder =
                std::make_unique<CaseRecorder>(optionsFor(folder, 0, false), fleet.controller());
        });
        fleet.storm();
        recorder->flush();
        kib = (usedBytes() - before) / 1024;
        fleet.onHost([&] { recorder.reset(); });
    }
    state.counters["kib"] = kib;
}
BENCHMARK(memory)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char* argv[])
{
    benchmark_support::useTranslatedNames();
    const QCoreApplication application(argc, argv);
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    Logger::globalInstance()->registerAppender(new SilentAppender);
    return benchmark_support::run(argc, argv, [](benchmark_support::Limits& limits) {
        limits.atMost("processor time of the storm with a file, median over the bare host",
                      stormTimes.ratio(), processorLimit, "");
        limits.atMost("processor time of the storm with the ring, median over the bare host",
                      ringTimes.ratio(), processorLimit, "");
        limits.atMost("memory of the recorder besides the ring", kib, memoryLimit, " KiB");
    });
}
