// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// What an event costs: on the host's thread, and until its line is in the file.
#include "benchmark_support.h"

#include <event_log.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <ctime>

#include <fcntl.h>
#include <unistd.h>

using benchmark_support::Samples;

namespace {

using Clock = std::chrono::steady_clock;

constexpr double appendLimit = 1.5;
constexpr double writtenLimit = 3;
constexpr int eventsPerBlock = 250;
constexpr int blocks = 200;
constexpr int repetitions = 5;

double microseconds(Clock::duration time)
{
    return std::chrono::duration<double, std::micro>(time).count();
}

double processTime()
{
    return static_cast<double>(std::clock()) * 1e6 / CLOCKS_PER_SEC;
}

/// A ribbon that has fallen to a mark: the event with the most members of those that are frequent.
VxKit::PrinterEvent levelEvent()
{
    VxKit::PrinterEvent event;
    event.time = QDateTime::currentDateTime();
    event.severity = VxKit::Severity::Warning;
    event.kind = VxKit::PrinterEvent::Kind::Level;
    event.printer = QStringLiteral("Shipping");
    event.serial = QStringLiteral("AM-20871");
    event.slot = VxKit::Slot::Ribbon1;
    event.key = QStringLiteral("level_10");
    event.text = QStringLiteral("Ribbon 1: 10 % left (20.5 m)");
    event.mark = 10;
    event.before.state = VxKit::Level::State::Loaded;
    event.before.identifier = QStringLiteral("2001");
    event.before.sku = QStringLiteral("RS-43-BL");
    event.before.name = QStringLiteral("Blue");
    event.before.ratio = 0.11;
    event.before.meters = 22.55;
    event.after = event.before;
    event.after.ratio = 0.1;
    event.after.meters = 20.5;
    return event;
}

/// The floor: the same line, made without looking at what is in the texts, and written at once.
class LineByHand
{
public:
    explicit LineByHand(const QString& fileName)
        : m_file(::open(fileName.toUtf8().constData(), O_WRONLY | O_APPEND | O_CREAT, 0600))
    {}
    ~LineByHand() { ::close(m_file); }
    Q_DISABLE_COPY_MOVE(LineByHand)

    static QByteArray line(const VxKit::PrinterEvent& event)
    {
        QByteArray line = "{\"time\":\"" +
                          event.time.toOffsetFromUtc(event.time.offsetFromUtc())
                              .toString(Qt::ISODateWithMs)
                              .toUtf8() +
                          "\",\"severity\":\"warning\",\"kind\":\"level\",\"printer\":\"" +
                          event.printer.toUtf8() + "\",\"serial\":\"" + event.serial.toUtf8() +
                          "\",\"slot\":\"ribbon1\",\"key\":\"" + event.key.toUtf8() +
                          "\",\"text\":\"" + event.text.toUtf8() +
                          "\",\"mark\":" + QByteArray::number(*event.mark) + ",\"before\":";
        addValues(line, event.before);
        line += ",\"after\":";
        addValues(line, event.after);
        line += "}\n";
        return line;
    }
    bool append(const VxKit::PrinterEvent& event) const
    {
        const QByteArray text = line(event);
        return ::write(m_file, text.constData(), static_cast<size_t>(text.size())) == text.size();
    }

private:
    static void addValues(QByteArray& line, const VxKit::PrinterEvent::Values& values)
    {
        line += "{\"state\":\"loaded\",\"identifier\":\"" + values.identifier.toUtf8() +
                "\",\"sku\":\"" + values.sku.toUtf8() + "\",\"name\":\"" + values.name.toUtf8() +
                "\",\"ratio\":" + QByteArray::number(*values.ratio) +
                ",\"meters\":" + QByteArray::number(*values.meters) + "}";
    }

    int m_file;
};

/// Microseconds for each event: what the call takes of a processor on the host's thread, and the
/// time until the line is written.
Samples calls;
Samples written;
std::vector<double> longestCalls;

void eventLog(benchmark::State& state)
{
    const QTemporaryDir folder;
    VxKit::EventLogOptions options;
    options.fileName = folder.filePath(QStringLiteral("library.log"));
    options.maxFileSize = qint64(1) << 30;
    VxKit::EventLog log(options);
    const LineByHand floor(folder.filePath(QStringLiteral("floor.log")));
    const VxKit::PrinterEvent event = levelEvent();
    if (LineByHand::line(event) != event.toLine() + '\n') {
        state.SkipWithError("the library and the floor write different lines");
        return;
    }

    bool isGood = true;
    const auto takeLibrary = [&] {
        const Clock::time_point start = Clock::now();
        const double processStart = processTime();
        const double processorStart = benchmark_support::processorTime();
        Clock::time_point last = start;
        Clock::duration longest{};
        for (int i = 0; i < eventsPerBlock; ++i) {
            log.append(event);
            const Clock::time_point now = Clock::now();
            longest = std::max(longest, now - last);
            last = now;
        }
        calls.library.push_back((benchmark_support::processorTime() - processorStart) /
                                eventsPerBlock);
        isGood = log.flush() && isGood;
        written.library.push_back((processTime() - processStart) / eventsPerBlock);
        longestCalls.push_back(microseconds(longest));
        state.SetIterationTime(microseconds(Clock::now() - start) / eventsPerBlock * 1e-6);
    };
    const auto takeFloor = [&] {
        const double processorStart = benchmark_support::processorTime();
        for (int i = 0; i < eventsPerBlock; ++i)
            isGood = floor.append(event) && isGood;
        calls.floor.push_back((benchmark_support::processorTime() - processorStart) /
                              eventsPerBlock);
        written.floor.push_back(calls.floor.back());
    };
    benchmark_support::Turns turns;
    for ([[maybe_unused]] auto iteration : state)
        turns.take(takeLibrary, takeFloor);
    if (!isGood)
        state.SkipWithError("a line could not be written");
    state.counters["append_us"] = benchmark_support::median(calls.library);
    state.counters["longest_append_us"] = benchmark_support::quantile(longestCalls, 0.99);
    state.counters["written_us"] = benchmark_support::median(written.library);
    state.counters["floor_us"] = benchmark_support::median(calls.floor);
    state.counters["ratio"] = calls.ratio();
}

BENCHMARK(eventLog)
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
        limits.atMost("processor time of an event on the host's thread, over a line by hand "
                      "that is written at once",
                      calls.ratio(), appendLimit, "");
        limits.atMost("processor time of an event in all, over the same", written.ratio(),
                      writtenLimit, "");
    });
}
