// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// What the controller adds to the time until a value reaches the host's slot, and to the start with
// many printers and their first reports. Also measures one report of a mileage among many printers.
#include "benchmark_support.h"
#include "by_hand.h"
#include "printer_status_controller.h"
#include "silent_appender.h"
#include "vx_ipc_supplyd_controller.h"

#include <Logger.h>
#include <virtualwindows/machine.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtCore/QHash>
#include <QtCore/QSemaphore>
#include <QtCore/QSet>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtGui/QColor>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <limits>
#include <memory>
#include <thread>

using benchmark_support::Samples;
using virtualwindows::Machine;
using virtualwindows::PrinterValue;

namespace {

using Clock = std::chrono::steady_clock;

constexpr double latencyLimit = 1.2;
constexpr double constructionLimit = 1.5;
constexpr double firstReportsLimit = 1.1;
constexpr int latencyBlocks = 40;
constexpr int samplesPerBlock = 15;
constexpr int latencyRepetitions = 12;
constexpr int printersToStartWith = 100;
constexpr int constructions = 100;
constexpr int firstReports = 20;
constexpr int reportsPerSample = 20;
constexpr int reportSamples = 25;
// Long enough for the threads to be asleep when the next value arrives, as in normal use.
constexpr std::chrono::microseconds settlingTime(100);

// Of equal length, so that neither name takes longer than the other.
const QString libraryPrinter = QStringLiteral("Label printer 1");
const QString floorPrinter = QStringLiteral("Label printer 2");
const QString supplyIdentifier = QStringLiteral("00000064100001000001");
const QStringList ribbonIdentifiers{QStringLiteral("2001"), QStringLiteral("2002")};

double microseconds(Clock::duration time)
{
    return std::chrono::duration<double, std::micro>(time).count();
}

const QString labelDriver = QStringLiteral("Stratamark BirchMax");
/// Not a supported model, so that the controller ignores it.
const QString officeDriver = QStringLiteral("Office Laser 9");

void addPrinter(const QString& name, const QString& driver = labelDriver,
                const QString& port = QStringLiteral("USB001"))
{
    virtualwindows::PrinterSetup setup;
    setup.name = name;
    setup.driver = driver;
    setup.port = port;
    Machine::instance().addPrinter(setup);
    Machine::instance().publish(
        name, {
                  PrinterValue::text("StatusCode", "1"),
                  PrinterValue::text("SupplyIdentifier", supplyIdentifier.toLatin1()),
                  PrinterValue::number("Ribbon1Identifier", 2001),
                  PrinterValue::number("Ribbon2Identifier", 2002),
                  PrinterValue::number("Mileage", 1),
                  PrinterValue::text("SoftwareVersion", "1.2.3"),
              });
}

/// Makes by hand the queries that fill the same fields of a record.
using FillRecord = void (*)(VXIPCSUPPLYDController& supplies, const QString& printer,
                            const QString& value, PrinterStatusInformation& record);

struct Event
{
    const char* name;
    const char* valueName;
    PrinterValue (*value)(quint32 number);
    FillRecord fillRecord;
};

void queryStatus(VXIPCSUPPLYDController&, const QString&, const QString& value,
                 PrinterStatusInformation& record)
{
    record.statusEnum = value.toInt();
}

void queryVersion(VXIPCSUPPLYDController&, const QString&, const QString& value,
                  PrinterStatusInformation& record)
{
    record.softwareVersion = value;
}

void querySupply(VXIPCSUPPLYDController& supplies, const QString& printer, const QString& value,
                 PrinterStatusInformation& record)
{
    supplies.setSupplyId(value, printer);
    record.supplySKU = supplies.supplySKUCached(printer);
    record.supplyColorHex = QColor(QRgb(supplies.supplyColorRGB(record.supplySKU, printer))).name();
    record.supplyColorName = supplies.supplyColorName(record.supplySKU, printer);
    record.supplyMaterialName = supplies.supplyMaterialName(record.supplySKU, printer);
}

void queryMileage(VXIPCSUPPLYDController& supplies, const QString& printer, const QString& value,
                  PrinterStatusInformation& record)
{
    const SupplyInformation loaded = supplies.supplyInformation(printer);
    const QList<AvailablePrinters> printers = by_hand::enumerate();
    const auto found = std::ranges::find(printers, printer, &AvailablePrinters::printerName);
    const bool inPercent = found->driverName == QLatin1String("Stratamark Alder");
    const double length = double(loaded.supplyLength);
    const double millimetres = value.toDouble();
    record.supplyPercentage =
        inPercent ? int(millimetres)
                  : int((millimetres * 0.0393701 - 1200.0 + length) / length * 100.0);
}

void queryRibbons(VXIPCSUPPLYDController& supplies, const QString& printer, const QString& value,
                  PrinterStatusInformation& record)
{
    supplies.setRibbonIds({value, ribbonIdentifiers.at(1)}, printer);
    const QStringList skus = supplies.supplyRibbonSKUsCached(printer);
    record.ribbon1SKU = skus.at(0);
    record.ribbon1ColorHex = QColor(supplies.supplyRibbon1RGBs(printer).at(0).toUInt()).name();
    record.ribbon1ColorName = supplies.supplyRibbonColorName(skus.at(0), 1);
    record.ribbon2SKU = skus.at(1);
    record.ribbon2ColorHex = QColor(supplies.supplyRibbon2RGBs(printer).at(0).toUInt()).name();
    record.ribbon2ColorName = supplies.supplyRibbonColorName(skus.at(1), 1);
}

const Event events[] = {
    {"status", "StatusCode",
     [](quint32 number) {
         return PrinterValue::text("StatusCode", QByteArray::number(2 + number % 2));
     },
     &queryStatus},
    {"supply mileage", "Mileage",
     [](quint32 number) { return PrinterValue::number("Mileage", 1 + number % 30000); },
     &queryMileage},
    {"ribbons", "Ribbon1Identifier",
     [](quint32 number) { return PrinterValue::number("Ribbon1Identifier", 2003 + number % 2); },
     &queryRibbons},
};

/// The controller and a hand-written thread, each with a slot on the same host's thread.
class Setting
{
public:
    Setting(const Event& event, bool isLibraryFirst)
        : m_event(event)
    {
        Machine::instance().reset();
        addPrinter(libraryPrinter);
        m_hostThread.start();
        m_host.moveToThread(&m_hostThread);
        onHost([&] {
            if (isLibraryFirst)
                startLibrary();
        });
        onHost([&] {
            addPrinter(floorPrinter, officeDriver);
            startFloor();
        });
        if (!isLibraryFirst)
            onHost([&] { startLibrary(); });
    }
    ~Setting()
    {
        m_floor.reset();
        onHost([&] {
            m_controller.reset();
            m_supplies.reset();
        });
        m_hostThread.quit();
        m_hostThread.wait();
    }
    Q_DISABLE_COPY_MOVE(Setting)

    /// Microseconds from publishing a new value to the host's slot.
    double sample(const QString& printer)
    {
        if (!Machine::instance().waitForWaitingThreads(2))
            return std::numeric_limits<double>::quiet_NaN();
        std::this_thread::sleep_for(settlingTime);

        const PrinterValue value = m_event.value(++m_number);
        while (m_arrived.tryAcquire())
            continue;
        m_waitsForLibrary = printer == libraryPrinter;
        const Clock::time_point published = Clock::now();
        Machine::instance().publish(printer, value);
        if (!m_arrived.tryAcquire(1, 20000))
            return std::numeric_limits<double>::quiet_NaN();
        return microseconds(m_arrival - published);
    }

private:
    template <typename Work>
    void onHost(Work work)
    {
        QMetaObject::invokeMethod(&m_host, work, Qt::BlockingQueuedConnection);
    }

    void startLibrary()
    {
        m_controller = std::make_unique<PrinterStatusController>();
        QObject::connect(m_controller.get(), &PrinterStatusController::availablePrintersUpdated,
                         &m_host, [this] { arrived(true); });
    }
    void startFloor()
    {
        m_supplies = std::make_unique<VXIPCSUPPLYDController>();
        m_supplies->addNewPrinter(floorPrinter);
        m_supplies->setSupplyId(supplyIdentifier, floorPrinter);
        m_supplies->setRibbonIds(ribbonIdentifiers, floorPrinter);
        m_floor = std::make_unique<by_hand::WatchingThread>(
            floorPrinter, QList<QByteArray>{m_event.valueName}, m_host,
            [this](const QByteArray&, const QString&, const QString& value) {
                m_event.fillRecord(*m_supplies, floorPrinter, value, m_record);
                arrived(false);
            });
        m_floor->start();
    }

    void arrived(bool atLibrary)
    {
        if (atLibrary != m_waitsForLibrary)
            return;
        m_arrival = Clock::now();
        m_arrived.release();
    }

    const Event& m_event;
    quint32 m_number = 0;
    std::atomic<bool> m_waitsForLibrary = true;
    Clock::time_point m_arrival;
    QSemaphore m_arrived;
    QThread m_hostThread;
    QObject m_host;
    PrinterStatusInformation m_record;
    std::unique_ptr<PrinterStatusController> m_controller;
    std::unique_ptr<VXIPCSUPPLYDController> m_supplies;
    std::unique_ptr<by_hand::WatchingThread> m_floor;
};

Samples latencies[std::size(events)];

void latency(benchmark::State& state)
{
    const auto number = static_cast<std::size_t>(state.range(0));
    static bool isLibraryFirst = false;
    isLibraryFirst = !isLibraryFirst;
    Setting setting(events[number], isLibraryFirst);
    Samples samples;
    benchmark_support::Turns turns;
    const auto takeBlock = [&](const QString& printer, std::vector<double>& into) {
        const double sum = benchmark_support::takeBlock(samplesPerBlock, into,
                                                        [&] { return setting.sample(printer); });
        if (std::isnan(sum))
            state.SkipWithError("a published value did not arrive");
        return sum;
    };
    for ([[maybe_unused]] auto iteration : state) {
        double sum = 0;
        turns.take([&] { sum = takeBlock(libraryPrinter, samples.library); },
                   [&] { takeBlock(floorPrinter, samples.floor); });
        if (state.error_occurred())
            return;
        state.SetIterationTime(sum / samplesPerBlock * 1e-6);
    }
    state.counters["library_median_us"] = benchmark_support::median(samples.library);
    state.counters["floor_median_us"] = benchmark_support::median(samples.floor);
    state.counters["median_ratio"] = samples.ratio();
    latencies[number].append(samples);
}

// The start.

const QHash<QByteArray, FillRecord> fillRecordOf{
    {"StatusCode", &queryStatus},         {"SupplyIdentifier", &querySupply},
    {"Ribbon1Identifier", &queryRibbons}, {"Mileage", &queryMileage},
    {"SoftwareVersion", &queryVersion},
};

Samples constructionTimes;
Samples firstReportsTimes;

void waitForThreads()
{
    if (!Machine::instance().waitForWaitingThreads(printersToStartWith))
        std::abort();
}

/// The printers whose first report the host has received.
class FirstReports
{
public:
    void add(const QString& printer)
    {
        m_printers.insert(printer);
        if (m_printers.size() == printersToStartWith)
            m_loop.quit();
    }
    void wait()
    {
        QTimer::singleShot(std::chrono::minutes(1), &m_loop, [] { std::abort(); });
        m_loop.exec();
    }

private:
    QSet<QString> m_printers;
    QEventLoop m_loop;
};

/// The construction alone, or until the host has received a report of every printer.
void start(benchmark::State& state, bool untilReported)
{
    QList<QString> names;
    for (int number = 1; number <= printersToStartWith; ++number)
        names.append(QStringLiteral("Label printer %1").arg(number));
    const auto populate = [&] {
        Machine::instance().reset();
        for (const QString& name : names)
            addPrinter(name);
    };
    Samples wholeTimes;
    // Of the constructing thread.
    Samples processorTimes;
    const auto takeLibrary = [&] {
        populate();
        FirstReports reports;
        const double processorBegin = benchmark_support::processorTime();
        const Clock::time_point begin = Clock::now();
        const PrinterStatusController controller;
        if (untilReported) {
            QObject::connect(&controller, &PrinterStatusController::statusChangedSignal,
                             &controller,
                             [&](int, const QString& printer) { reports.add(printer); });
            reports.wait();
        }
        wholeTimes.library.push_back(microseconds(Clock::now() - begin));
        processorTimes.library.push_back(benchmark_support::processorTime() - processorBegin);
        waitForThreads();
    };
    const auto takeFloor = [&] {
        populate();
        QObject host;
        FirstReports reports;
        QHash<QString, PrinterStatusInformation> records;
        VXIPCSUPPLYDController supplies;
        // As many reports as the controller gets of the first values, each with the queries that
        // fill the same fields of a record.
        const auto receive = [&](const QByteArray& valueName, const QString& printer,
                                 const QString& value) {
            fillRecordOf.value(valueName)(supplies, printer, value, records[printer]);
            if (valueName == "StatusCode")
                reports.add(printer);
        };
        const QList<QByteArray> reported = fillRecordOf.keys();
        std::vector<std::unique_ptr<by_hand::WatchingThread>> threads;
        const double processorBegin = benchmark_support::processorTime();
        const Clock::time_point begin = Clock::now();
        const QList<AvailablePrinters> printers = by_hand::enumerate();
        for (const AvailablePrinters& printer : printers) {
            threads.push_back(std::make_unique<by_hand::WatchingThread>(printer.printerName,
                                                                        reported, host, receive));
            threads.back()->start();
        }
        if (untilReported) {
            for (const AvailablePrinters& printer : printers)
                supplies.addNewPrinter(printer.printerName);
            reports.wait();
        }
        wholeTimes.floor.push_back(microseconds(Clock::now() - begin));
        processorTimes.floor.push_back(benchmark_support::processorTime() - processorBegin);
        waitForThreads();
    };
    benchmark_support::Turns turns;
    for ([[maybe_unused]] auto iteration : state) {
        turns.take(takeLibrary, takeFloor);
        state.SetIterationTime(wholeTimes.library.back() * 1e-6);
    }
    state.counters["library_median_us"] = benchmark_support::median(wholeTimes.library);
    state.counters["floor_median_us"] = benchmark_support::median(wholeTimes.floor);
    state.counters["ratio"] = wholeTimes.ratio();
    state.counters["library_cpu_us"] = benchmark_support::median(processorTimes.library);
    state.counters["floor_cpu_us"] = benchmark_support::median(processorTimes.floor);
    (untilReported ? firstReportsTimes : constructionTimes).append(wholeTimes);
}

// A mileage.

void mileageReport(benchmark::State& state)
{
    const auto count = static_cast<int>(state.range(0));
    Machine::instance().reset();
    for (int number = 1; number <= count; ++number) {
        // All but one are unsupported models: they are listed like the others but get no thread.
        if (number == 1)
            addPrinter(libraryPrinter, labelDriver, by_hand::portName(number));
        else
            addPrinter(QStringLiteral("Office printer %1").arg(number), officeDriver,
                       by_hand::portName(number));
        Machine::instance().addDevice(by_hand::deviceOnPort(number));
    }
    PrinterStatusController controller;
    VXIPCSUPPLYDController& supplies = *controller.getSupplyIdController();
    supplies.setSupplyId(supplyIdentifier, libraryPrinter);
    supplies.setRibbonIds(ribbonIdentifiers, libraryPrinter);

    std::vector<double> whole;
    std::vector<double> record;
    std::vector<double> type;
    std::vector<double> listing;
    const auto take = [](std::vector<double>& into, auto work) {
        const double begin = benchmark_support::processorTime();
        for (int report = 0; report < reportsPerSample; ++report)
            work(report);
        into.push_back((benchmark_support::processorTime() - begin) / reportsPerSample);
    };
    for ([[maybe_unused]] auto iteration : state) {
        take(whole, [&](int report) {
            QMetaObject::invokeMethod(&controller, "onSupplyIntMileageChanged",
                                      Q_ARG(QString, libraryPrinter),
                                      Q_ARG(QString, QString::number(1000 + report)));
        });
        take(record, [&](int) { supplies.supplyInformation(libraryPrinter); });
        take(type, [&](int) { controller.getPrinterTypeEnum(libraryPrinter); });
        take(listing, [](int) { by_hand::enumerate(); });
        state.SetIterationTime(whole.back() * 1e-6);
    }
    using benchmark_support::median;
    state.counters["report_cpu_us"] = median(whole);
    state.counters["supply_record_cpu_us"] = median(record);
    state.counters["printer_type_cpu_us"] = median(type);
    state.counters["listing_by_hand_cpu_us"] = median(listing);
}

} // namespace

BENCHMARK(latency)
    ->DenseRange(0, std::size(events) - 1)
    ->Iterations(latencyBlocks)
    ->Repetitions(latencyRepetitions)
    ->DisplayAggregatesOnly(true)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(start, construction, false)
    ->Iterations(constructions)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(start, first_reports, true)
    ->Iterations(firstReports)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(mileageReport)
    ->Arg(1)
    ->Arg(10)
    ->Arg(100)
    ->Arg(1000)
    ->Iterations(reportSamples)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    SilentAppender silent;
    Logger::globalInstance()->registerAppender(&silent);
    const int exitCode = benchmark_support::run(argc, argv, [](benchmark_support::Limits& limits) {
        for (std::size_t number = 0; number < std::size(events); ++number)
            limits.atMost(std::string("from a published value to the host's slot, ") +
                              events[number].name + ", median over the floor's",
                          latencies[number].ratio(), latencyLimit, "");
        limits.atMost("construction with 100 printers over the floor's", constructionTimes.ratio(),
                      constructionLimit, "");
        limits.atMost("until every one of 100 printers has reported, over the floor's",
                      firstReportsTimes.ratio(), firstReportsLimit, "");
    });
    Logger::globalInstance()->removeAppender(&silent);
    return exitCode;
}
