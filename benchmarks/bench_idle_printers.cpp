// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The CPU time and memory that a thousand idle printers cost their host.
//
// The library and its floor are measured in separate processes, because threads reuse memory that
// earlier threads have released. Both processes are measured during the same seconds.
#include "benchmark_support.h"
#include "printer_status_thread.h"

#include <virtualwindows/machine.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QMap>
#include <QtCore/QProcess>

#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <iostream>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <pthread.h>
#include <sys/resource.h>

#include <windows.h>
#include <winspool.h>

using virtualwindows::Machine;
using virtualwindows::PrinterValue;

namespace {

constexpr int printerCount = 1000;
constexpr int secondsWatched = 20; // four service polls per thread
constexpr int repetitions = 2;
constexpr double cpuLimit = 1.0;     // percent of a core
constexpr double memoryLimit = 64.0; // KiB per printer
constexpr int startLimit = 60000;    // milliseconds

constexpr char measureArgument[] = "--measure";
constexpr char libraryKind[] = "library";
constexpr char floorKind[] = "floor";

using Figures = QMap<QByteArray, double>;

// The measured process.

QString printerName(int index)
{
    return QStringLiteral("Label printer %1").arg(index);
}

void populateMachine()
{
    for (int index = 0; index < printerCount; ++index) {
        virtualwindows::PrinterSetup setup;
        setup.name = printerName(index);
        setup.driver = QStringLiteral("Stratamark BirchMax");
        Machine::instance().addPrinter(setup);
        Machine::instance().publish(
            setup.name,
            {PrinterValue::text("SupplyIdentifier", QByteArray(qsizetype{20}, '1')),
             PrinterValue::text("StatusCode", "0"), PrinterValue::text("SoftwareVersion", "1.2.3"),
             PrinterValue::text("EthernetConfig", "DHCP"),
             PrinterValue::number("Ribbon1Identifier", 1),
             PrinterValue::number("Ribbon2Identifier", 2), PrinterValue::number("Mileage", 3),
             PrinterValue::number("Ribbon1Mileage", 4), PrinterValue::number("Ribbon2Mileage", 5),
             PrinterValue::number("UpdateProgress", 6), PrinterValue::number("UpdateError", 7)});
    }
}

/// A thread that blocks like the library's threads and does nothing else.
class BareThread final : public QThread
{
public:
    explicit BareThread(const QString& printer)
        : m_printer(printer)
        , m_stopEvent(CreateEventW(nullptr, TRUE, FALSE, nullptr))
    {}
    ~BareThread() override
    {
        stop();
        wait();
        CloseHandle(m_stopEvent);
    }
    Q_DISABLE_COPY_MOVE(BareThread)

    void stop() { SetEvent(m_stopEvent); }

protected:
    void run() override
    {
        HANDLE printer = nullptr;
        OpenPrinterA(m_printer.toLocal8Bit().data(), &printer, nullptr);
        const HANDLE change = FindFirstPrinterChangeNotification(printer, 0x7777FFFF, 0, nullptr);
        const std::array<HANDLE, 2> handles{m_stopEvent, change};
        while (WaitForMultipleObjects(2, handles.data(), FALSE, 5000) != WAIT_OBJECT_0) {
        }
        FindClosePrinterChangeNotification(change);
        ClosePrinter(printer);
    }

private:
    const QString m_printer;
    const HANDLE m_stopEvent;
};

class BareThreads
{
public:
    void start()
    {
        for (int index = 0; index < printerCount; ++index) {
            m_threads.push_back(std::make_unique<BareThread>(printerName(index)));
            m_threads.back()->start();
        }
    }
    bool isSettled() const { return true; }
    void stop()
    {
        for (const auto& thread : m_threads)
            thread->stop();
        m_threads.clear();
    }

private:
    std::vector<std::unique_ptr<BareThread>> m_threads;
};

/// The library's threads, each connected to a host that listens to everything.
class LibraryThreads
{
public:
    void start()
    {
        for (int index = 0; index < printerCount; ++index) {
            m_threads.push_back(std::make_unique<PrinterStatusThread>());
            PrinterStatusThread& thread = *m_threads.back();
            connectToHost(thread);
            thread.setMonitoredPrinterName(printerName(index));
            thread.start();
            QCoreApplication::processEvents();
        }
    }
    /// Whether the host has received all reports of the first read.
    bool isSettled() const { return m_reports == printerCount * reportsOfOnePrinter; }
    void stop()
    {
        for (const auto& thread : m_threads)
            thread->stop();
        for (const auto& thread : m_threads) {
            while (!thread->wait(10))
                thread->stop();
        }
        m_threads.clear();
    }

private:
    static constexpr int reportsOfOnePrinter = 11;

    void connectToHost(PrinterStatusThread& thread)
    {
        const auto count = [this] {
            ++m_reports;
        };
        using Thread = PrinterStatusThread;
        QObject::connect(&thread, &Thread::supplyIdChanged, &m_host, count);
        QObject::connect(&thread, &Thread::ribbonIdsChanged, &m_host, count);
        QObject::connect(&thread, &Thread::printerStatusChanged, &m_host, count);
        QObject::connect(&thread, &Thread::supplyIntMileageChanged, &m_host, count);
        QObject::connect(&thread, &Thread::ribbon1IntMileageChanged, &m_host, count);
        QObject::connect(&thread, &Thread::ribbon2IntMileageChanged, &m_host, count);
        QObject::connect(&thread, &Thread::printerNameChangedSignal, &m_host, count);
        QObject::connect(&thread, &Thread::softwareVersionChanged, &m_host, count);
        QObject::connect(&thread, &Thread::updateProgressChanged, &m_host, count);
        QObject::connect(&thread, &Thread::updateErrorChanged, &m_host, count);
        QObject::connect(&thread, &Thread::ethernetConfigChanged, &m_host, count);
    }

    QObject m_host;
    int m_reports = 0;
    std::vector<std::unique_ptr<PrinterStatusThread>> m_threads;
};

double cpuSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

double contextSwitches()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_nvcsw);
}

/// A "Name:  1234 kB" line of a file below /proc.
double kibOf(const char* fileName, const QByteArray& name)
{
    QFile file(QString::fromLatin1(fileName));
    if (!file.open(QIODevice::ReadOnly))
        return std::numeric_limits<double>::quiet_NaN();
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith(name + ':'))
            return line.mid(name.size() + 1).simplified().split(' ').constFirst().toDouble();
    }
    return std::numeric_limits<double>::quiet_NaN();
}

struct Memory
{
    double resident = 0;     ///< KiB
    double stacks = 0;       ///< of which in the threads' stacks
    double pageTables = 0;   ///< the kernel's, for this process
    double kernelStacks = 0; ///< the kernel's, of the whole machine
};

Memory memory()
{
    pthread_attr_t attributes;
    std::size_t stackBytes = 0;
    pthread_getattr_default_np(&attributes);
    pthread_attr_getstacksize(&attributes, &stackBytes);
    pthread_attr_destroy(&attributes);
    const double stackKib = static_cast<double>(stackBytes) / 1024;

    Memory found;
    found.pageTables = kibOf("/proc/self/status", "VmPTE");
    found.kernelStacks = kibOf("/proc/meminfo", "KernelStack");

    QFile file(QStringLiteral("/proc/self/smaps"));
    if (!file.open(QIODevice::ReadOnly))
        return found;
    double sizeOfMapping = 0;
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray& line : lines) {
        const QList<QByteArray> words = line.simplified().split(' ');
        if (words.constFirst() == "Size:")
            sizeOfMapping = words.at(1).toDouble();
        if (words.constFirst() != "Rss:")
            continue;
        const double resident = words.at(1).toDouble();
        found.resident += resident;
        // A stack is recognised by its size, which may differ by its guard page.
        if (std::abs(sizeOfMapping - stackKib) <= 8)
            found.stacks += resident;
    }
    return found;
}

void printFigure(const char* name, double value)
{
    std::printf("%s %.6f\n", name, value);
}

template <typename Threads>
int measure()
{
    populateMachine();
    const Memory before = memory();
    Threads threads;
    threads.start();

    QElapsedTimer sinceStart;
    sinceStart.start();
    while (!threads.isSettled() && !sinceStart.hasExpired(startLimit))
        QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
    if (!threads.isSettled() || !Machine::instance().waitForWaitingThreads(
                                    printerCount, std::chrono::milliseconds(startLimit))) {
        std::fprintf(stderr, "bench_idle_printers: the threads did not become idle\n");
        return 1;
    }

    const Memory after = memory();
    printFigure("memory", (after.resident - before.resident) / printerCount);
    printFigure("stacks", (after.stacks - before.stacks) / printerCount);
    printFigure("page_tables", (after.pageTables - before.pageTables) / printerCount);
    printFigure("kernel_stacks", (after.kernelStacks - before.kernelStacks) / printerCount);
    std::printf("ready\n");
    std::fflush(stdout);
    // Both processes wait for each other, so that neither measures while the other starts.
    std::string go;
    std::getline(std::cin, go);

    QElapsedTimer wall;
    wall.start();
    const double cpuBefore = cpuSeconds();
    const double switchesBefore = contextSwitches();
    while (!wall.hasExpired(secondsWatched * 1000LL))
        QThread::msleep(static_cast<unsigned long>(secondsWatched * 1000LL - wall.elapsed()));
    const double cpu = cpuSeconds() - cpuBefore;
    const double elapsed = static_cast<double>(wall.nsecsElapsed()) * 1e-9;
    printFigure("cpu", 100 * cpu / elapsed);
    printFigure("wakeups", (contextSwitches() - switchesBefore) / elapsed);
    std::printf("done\n");
    std::fflush(stdout);
    threads.stop();
    return 0;
}

// The measuring process.

class MeasuredProcess
{
public:
    explicit MeasuredProcess(const char* kind)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QCoreApplication::applicationFilePath(),
                        {QString::fromLatin1(measureArgument), QString::fromLatin1(kind)});
    }
    ~MeasuredProcess()
    {
        m_process.closeWriteChannel();
        if (!m_process.waitForFinished(startLimit))
            m_process.kill();
    }
    Q_DISABLE_COPY_MOVE(MeasuredProcess)

    void go() { m_process.write("go\n"); }

    /// Reads figures up to the line `end`. False if the process ended before.
    bool readUntil(const QByteArray& end, Figures& figures)
    {
        for (;;) {
            if (!m_process.canReadLine() && !m_process.waitForReadyRead(2 * startLimit))
                return false;
            while (m_process.canReadLine()) {
                const QByteArray line = m_process.readLine().trimmed();
                if (line == end)
                    return true;
                const QList<QByteArray> words = line.split(' ');
                if (words.size() == 2)
                    figures.insert(words.at(0), words.at(1).toDouble());
            }
        }
    }

private:
    QProcess m_process;
};

struct Pair
{
    Figures library;
    Figures floor;
};

std::optional<Pair> measurePair()
{
    Pair pair;
    MeasuredProcess floor(floorKind);
    if (!floor.readUntil("ready", pair.floor))
        return {};
    MeasuredProcess library(libraryKind);
    if (!library.readUntil("ready", pair.library))
        return {};
    floor.go();
    library.go();
    if (!floor.readUntil("done", pair.floor) || !library.readUntil("done", pair.library))
        return {};
    return pair;
}

/// The worst of the repetitions.
double worstCpu = std::numeric_limits<double>::quiet_NaN();
double worstMemory = std::numeric_limits<double>::quiet_NaN();

void idlePrinters(benchmark::State& state)
{
    for ([[maybe_unused]] auto iteration : state) {
        const std::optional<Pair> pair = measurePair();
        if (!pair) {
            state.SkipWithError("a measured process ended too early");
            return;
        }
        const Figures& library = pair->library;
        const Figures& floor = pair->floor;
        state.SetIterationTime(secondsWatched * library["cpu"] / 100);

        state.counters["library_cpu_%"] = library["cpu"];
        state.counters["floor_cpu_%"] = floor["cpu"];
        state.counters["cpu_ratio"] = library["cpu"] / floor["cpu"];
        state.counters["library_wakeups_per_s"] = library["wakeups"];
        state.counters["floor_wakeups_per_s"] = floor["wakeups"];
        state.counters["library_KiB"] = library["memory"];
        state.counters["floor_KiB"] = floor["memory"];
        state.counters["memory_ratio"] = library["memory"] / floor["memory"];
        state.counters["library_stack_KiB"] = library["stacks"];
        state.counters["floor_stack_KiB"] = floor["stacks"];
        state.counters["library_page_table_KiB"] = library["page_tables"];
        state.counters["floor_page_table_KiB"] = floor["page_tables"];
        state.counters["library_kernel_stack_KiB"] = library["kernel_stacks"];
        state.counters["floor_kernel_stack_KiB"] = floor["kernel_stacks"];

        worstCpu = std::fmax(worstCpu, library["cpu"]);
        worstMemory = std::fmax(worstMemory, library["memory"]);
    }
}

BENCHMARK(idlePrinters)
    ->Iterations(1)
    ->Repetitions(repetitions)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], measureArgument) == 0) {
        if (qstrcmp(argv[2], libraryKind) == 0)
            return measure<LibraryThreads>();
        if (qstrcmp(argv[2], floorKind) == 0)
            return measure<BareThreads>();
    }

    return benchmark_support::run(argc, argv, [](benchmark_support::Limits& limits) {
        limits.atMost("1000 idle printers, CPU of a core", worstCpu, cpuLimit, " %");
        limits.atMost("1000 idle printers, resident memory a printer", worstMemory, memoryLimit,
                      " KiB");
    });
}
