// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The CPU time that the kit's discovery takes for a look at a thousand printers that have not
// changed: where the spooler notifies nothing, and while drivers publish values all the time.
#include "benchmark_support.h"

#include "printer_discovery.h"

#include <virtualwindows/machine.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QThread>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <limits>
#include <memory>
#include <vector>

#include <sys/resource.h>

#include <windows.h>
#include <winspool.h>

using namespace std::chrono_literals;
using virtualwindows::Machine;
using virtualwindows::PrinterValue;

namespace {

constexpr int printerCount = 1000;
constexpr int looks = 200;
constexpr int repetitions = 5;
constexpr int inspected = 8;       // printers whose rights are tried at each look
constexpr double pollLimit = 1.0;  // milliseconds
constexpr double stormLimit = 1.0; // percent of a core

QString printerName(int index)
{
    return QStringLiteral("Label printer %1").arg(index);
}

void populateMachine()
{
    Machine& machine = Machine::instance();
    machine.reset();
    machine.driveTime();
    for (int index = 0; index < printerCount; ++index)
        machine.addPrinter(
            {.name = printerName(index), .driver = QStringLiteral("Stratamark BirchMax")});
    machine.setDefaultPrinter(printerName(7));
}

double cpuMilliseconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto milliseconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) * 1e-3;
    };
    return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

void waitUntilIdle()
{
    if (!Machine::instance().waitForWaitingThreads(1)) {
        std::fprintf(stderr, "bench_discovery: the thread did not become idle\n");
        std::exit(1);
    }
    QCoreApplication::processEvents();
}

/// The least that a thread can do at each look: it lists what the kit lists, compares the names and
/// attributes or the states, and tries the same things, without a thought for what may fail.
class BareThread final : public QThread
{
public:
    explicit BareThread(bool notified)
        : m_notified(notified)
        , m_stopEvent(CreateEventW(nullptr, TRUE, FALSE, nullptr))
    {
        start();
    }
    ~BareThread() override
    {
        SetEvent(m_stopEvent);
        wait();
        CloseHandle(m_stopEvent);
    }
    Q_DISABLE_COPY_MOVE(BareThread)

protected:
    void run() override
    {
        HANDLE server = nullptr;
        OpenPrinterW(nullptr, &server, nullptr);
        const HANDLE change =
            m_notified
                ? FindFirstPrinterChangeNotification(server, PRINTER_CHANGE_PRINTER, 0, nullptr)
                : nullptr;
        for (;;) {
            if (m_notified)
                FindNextPrinterChangeNotification(change, nullptr, nullptr, nullptr);
            look();
            if (WaitForSingleObject(m_stopEvent, m_notified ? 1000 : 5000) == WAIT_OBJECT_0)
                break;
            const HANDLE handles[] = {m_stopEvent, change};
            if (m_notified && WaitForMultipleObjects(2, handles, FALSE, 5000) == WAIT_OBJECT_0)
                break;
        }
        if (m_notified)
            FindClosePrinterChangeNotification(change);
        ClosePrinter(server);
    }

private:
    void look()
    {
        DWORD needed = 0;
        DWORD count = 0;
        const DWORD level = m_notified ? 2 : 4;
        const std::size_t size = m_notified ? sizeof(PRINTER_INFO_2W) : sizeof(PRINTER_INFO_4W);
        EnumPrintersW(PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS, nullptr, level, m_block.data(),
                      static_cast<DWORD>(m_block.size()), &needed, &count);
        // The records hold no time, so the whole block is the same if nothing has changed.
        const std::vector<BYTE> block(m_block.begin(),
                                      m_block.begin() + static_cast<std::ptrdiff_t>(count * size));
        m_changes += block == m_last ? 0 : 1;
        m_last = block;
        WCHAR name[260];
        DWORD length = 260;
        GetDefaultPrinterW(name, &length);
        PRINTER_DEFAULTSW defaults{};
        defaults.DesiredAccess = PRINTER_ALL_ACCESS;
        for (int index = 0; index < inspected; ++index) {
            HANDLE printer = nullptr;
            WCHAR first[] = u"Label printer 0";
            OpenPrinterW(first, &printer, &defaults);
            if (!m_notified)
                GetPrinterW(printer, 2, m_record.data(), static_cast<DWORD>(m_record.size()),
                            &needed);
            ClosePrinter(printer);
        }
    }

    const bool m_notified;
    const HANDLE m_stopEvent;
    std::vector<BYTE> m_block = std::vector<BYTE>(1024 * 1024);
    std::vector<BYTE> m_record = std::vector<BYTE>(4096);
    std::vector<BYTE> m_last;
    int m_changes = 0;
};

/// Milliseconds of CPU time a look, of the whole process.
template <typename Looker>
double costOfLook(bool notified, const std::function<std::unique_ptr<Looker>()>& create)
{
    populateMachine();
    Machine& machine = Machine::instance();
    if (!notified)
        machine.failCallsFrom(QStringLiteral("FindFirstPrinterChangeNotification"), 1,
                              ERROR_NOT_ENOUGH_MEMORY);
    const std::unique_ptr<Looker> looker = create();
    const auto lookOnce = [&] {
        if (notified)
            machine.publish(printerName(1), PrinterValue::number("Mileage", 1));
        machine.advance(30s); // past the rest, and past a tick
        waitUntilIdle();
    };
    for (int warmUp = 0; warmUp < 10; ++warmUp)
        lookOnce();
    const QString listing = QStringLiteral("EnumPrintersW");
    const int before = machine.callCount(listing);
    const double begin = cpuMilliseconds();
    for (int look = 0; look < looks; ++look)
        lookOnce();
    const double cost = cpuMilliseconds() - begin;
    return cost / (machine.callCount(listing) - before);
}

double worstPoll = std::numeric_limits<double>::quiet_NaN();
double worstStorm = std::numeric_limits<double>::quiet_NaN();

void discovery(benchmark::State& state)
{
    const bool notified = state.range(0) != 0;
    for ([[maybe_unused]] auto iteration : state) {
        const double kit = costOfLook<VxKit::PrinterDiscovery>(
            notified, [] { return std::make_unique<VxKit::PrinterDiscovery>(nullptr); });
        const double floor = costOfLook<BareThread>(
            notified, [notified] { return std::make_unique<BareThread>(notified); });
        state.SetIterationTime(kit * 1e-3);
        state.counters["kit_ms"] = kit;
        state.counters["floor_ms"] = floor;
        state.counters["ratio"] = kit / floor;
        // A listing is followed by a rest of a second at least.
        if (notified)
            worstStorm = std::fmax(worstStorm, kit / 1000 * 100);
        else
            worstPoll = std::fmax(worstPoll, kit);
    }
}

BENCHMARK(discovery)
    ->ArgName("notified")
    ->Arg(0)
    ->Arg(1)
    ->Iterations(1)
    ->Repetitions(repetitions)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    return benchmark_support::run(argc, argv, [](benchmark_support::Limits& limits) {
        limits.atMost("1000 printers, CPU time of a look without notifications", worstPoll,
                      pollLimit, " ms");
        limits.atMost("1000 printers that change all the time, CPU of a core", worstStorm,
                      stormLimit, " %");
    });
}
