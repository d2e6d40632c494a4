// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The cost of listing the printers, and how it grows with their number.
#include "benchmark_support.h"
#include "by_hand.h"
#include "windows_printer_info.h"

#include <virtualwindows/machine.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QHash>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <limits>
#include <map>
#include <memory>
#include <span>

#include <windows.h>
#include <winspool.h>

using virtualwindows::Machine;

namespace {

using Clock = std::chrono::steady_clock;

constexpr int fewest = 10;
constexpr int most = 1000;
// Per side and run. Writing the file means waiting for the disk, so there are fewer of those calls.
constexpr int printersWithKnownNumbers = 5000;
constexpr int callsWithNewNumbers = 10;
constexpr int repetitions = 10;
constexpr double growthLimit = 1.3;

// The file that serial numbers are recorded in.
constexpr QLatin1String companyName("Harlow Devices Inc");
constexpr QLatin1String applicationName("Quillmark");

void populateMachine(int count)
{
    Machine& machine = Machine::instance();
    machine.reset();
    for (int number = 1; number <= count; ++number) {
        virtualwindows::PrinterSetup printer;
        printer.name = QStringLiteral("Label printer %1").arg(number);
        printer.driver = QStringLiteral("Stratamark BirchMax");
        printer.port = by_hand::portName(number);
        machine.addPrinter(printer);
        machine.addDevice(by_hand::deviceOnPort(number));
    }
}

bool isSame(const AvailablePrinters& left, const AvailablePrinters& right)
{
    return left.printerName == right.printerName && left.portName == right.portName &&
           left.driverName == right.driverName && left.serialNumber == right.serialNumber &&
           left.isNetworkPrinter == right.isNetworkPrinter && left.isShared == right.isShared &&
           left.isOffline == right.isOffline;
}

// The measurement.

/// Microseconds of CPU time per printer. Elapsed time would not do: a call that lists a thousand
/// printers is long enough to be interrupted by other programs, one that lists ten is not, and
/// waiting for the disk would hide the cost of ten.
struct Samples
{
    std::vector<double> library;
    std::vector<double> floor;
    std::vector<double> registry; ///< the floor's registry reads alone
};

/// Which serial numbers the file has when an enumeration begins.
enum class SerialFile
{
    Known, ///< all: nothing is written
    New,   ///< none: all are written
};

/// The samples of all repetitions by the number of printers.
std::map<int, Samples> samplesOf[2];

std::map<int, Samples>& samplesFor(SerialFile file)
{
    return samplesOf[static_cast<int>(file)];
}

/// Microseconds that one call took.
struct Cost
{
    double wall = 0;
    double cpu = 0; ///< of this thread, on which everything happens
};

template <typename Work>
Cost costOf(Work work)
{
    const Clock::time_point start = Clock::now();
    const double cpuStart = benchmark_support::processorTime();
    auto result = work();
    const double cpu = benchmark_support::processorTime() - cpuStart;
    const std::chrono::duration<double, std::micro> wall = Clock::now() - start;
    benchmark::DoNotOptimize(result);
    return {wall.count(), cpu};
}

void enumeration(benchmark::State& state, SerialFile file)
{
    const int count = static_cast<int>(state.range(0));
    populateMachine(count);
    // Each run has its own file, so that none has the serial numbers of a run with more printers.
    const QTemporaryDir folder;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    const QString fileName =
        QSettings(QSettings::IniFormat, QSettings::UserScope, companyName, applicationName)
            .fileName();
    if (!fileName.startsWith(folder.path())) {
        state.SkipWithError("the INI file is not in the temporary folder");
        return;
    }

    const QList<AvailablePrinters> library = WindowsPrinterInfo::getAvailablePrinters();
    const QList<AvailablePrinters> floor = by_hand::enumerate();
    if (library.size() != count ||
        !std::equal(library.begin(), library.end(), floor.begin(), floor.end(), isSame)) {
        state.SkipWithError("the library and the floor list different printers");
        return;
    }
    if (QFile ini(fileName); !ini.open(QIODevice::ReadOnly) || ini.readAll().count("BM") != count) {
        state.SkipWithError("the INI file does not hold all serial numbers");
        return;
    }

    const auto timed = [&](auto work) {
        if (file == SerialFile::New)
            QFile::remove(fileName);
        return costOf(work);
    };
    Samples samples;
    const auto takeLibrary = [&] {
        const Cost cost = timed(&WindowsPrinterInfo::getAvailablePrinters);
        samples.library.push_back(cost.cpu / count);
        state.SetIterationTime(cost.wall * 1e-6);
    };
    const auto takeFloor = [&] {
        samples.floor.push_back(timed(&by_hand::enumerate).cpu / count);
    };
    benchmark_support::Turns turns;
    for ([[maybe_unused]] auto iteration : state) {
        turns.take(takeLibrary, takeFloor);
        samples.registry.push_back(costOf(&by_hand::readDevices).cpu / count);
    }

    using benchmark_support::median;
    state.counters["library_cpu_us_a_printer"] = median(samples.library);
    state.counters["floor_cpu_us_a_printer"] = median(samples.floor);
    state.counters["ratio"] = median(samples.library) / median(samples.floor);
    state.counters["registry_cpu_us_a_printer"] = median(samples.registry);

    Samples& all = samplesFor(file)[count];
    all.library.insert(all.library.end(), samples.library.begin(), samples.library.end());
    all.floor.insert(all.floor.end(), samples.floor.begin(), samples.floor.end());
    all.registry.insert(all.registry.end(), samples.registry.begin(), samples.registry.end());
}

void registerBenchmarks()
{
    for (const auto& [name, file] :
         {std::pair("enumeration/serial_numbers_known", SerialFile::Known),
          std::pair("enumeration/serial_numbers_new", SerialFile::New)}) {
        for (int count = fewest; count <= most; count *= 10) {
            benchmark::RegisterBenchmark(name, &enumeration, file)
                ->Arg(count)
                ->Iterations(file == SerialFile::Known ? printersWithKnownNumbers / count
                                                       : callsWithNewNumbers)
                ->Repetitions(repetitions)
                ->DisplayAggregatesOnly(true)
                ->UseManualTime()
                ->Unit(benchmark::kMicrosecond);
        }
    }
}

/// The ratio of the time per printer among the most printers to that among the fewest.
double growth(SerialFile file, std::vector<double> Samples::*side)
{
    const std::vector<double>& few = samplesFor(file)[fewest].*side;
    const std::vector<double>& many = samplesFor(file)[most].*side;
    if (few.empty() || many.empty())
        return std::numeric_limits<double>::quiet_NaN();
    return benchmark_support::median(many) / benchmark_support::median(few);
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    registerBenchmarks();
    const auto enterLimits = [](benchmark_support::Limits& limits) {
        for (const auto& [name, file] :
             {std::pair("known", SerialFile::Known), std::pair("new", SerialFile::New)}) {
            std::printf("growth of the floor, serial numbers %s: %.3f; of its registry reads: "
                        "%.3f\n",
                        name, growth(file, &Samples::floor), growth(file, &Samples::registry));
            limits.atMost(std::string("a printer among 1000 over one among 10, serial numbers ") +
                              name,
                          growth(file, &Samples::library), growthLimit, "");
        }
    };
    // Interleaved, so that changes in the machine's speed affect every number of printers.
    return benchmark_support::run(argc, argv, enterLimits,
                                  {"--benchmark_enable_random_interleaving=true"});
}
