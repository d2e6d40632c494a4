// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QString>

#include <algorithm>
#include <chrono>
#include <memory>
#include <vector>

// For tests of how long something takes that must hold on a busy machine.

/// How long runnable threads have waited for a processor so far. That depends on the machine's load
/// only, and some systems do not report it.
class ProcessorWaits
{
public:
    /// Of the first thread of each process.
    explicit ProcessorWaits(const std::vector<qint64>& processes)
    {
        for (const qint64 process : processes) {
            auto file =
                std::make_unique<QFile>(QStringLiteral("/proc/%1/task/%1/schedstat").arg(process));
            m_isKnown = file->open(QFile::ReadOnly | QFile::Unbuffered) && m_isKnown;
            m_files.push_back(std::move(file));
        }
    }

    bool isKnown() const { return m_isKnown; }

    std::chrono::nanoseconds all() const
    {
        std::chrono::nanoseconds sum{};
        for (const auto& file : m_files) {
            file->seek(0);
            // Time on a processor, time waiting for one, number of turns.
            sum += std::chrono::nanoseconds(file->readAll().split(' ').value(1).toLongLong());
        }
        return sum;
    }

private:
    std::vector<std::unique_ptr<QFile>> m_files;
    bool m_isKnown = true;
};

inline double milliseconds(std::chrono::nanoseconds time)
{
    return std::chrono::duration<double, std::milli>(time).count();
}

/// The time that the given share of them does not exceed.
inline std::chrono::nanoseconds quantile(std::vector<std::chrono::nanoseconds> times, double share)
{
    std::ranges::sort(times);
    return times.at(static_cast<std::size_t>(static_cast<double>(times.size() - 1) * share));
}

/// How long calls take, with and without the time in which server and client wait for a processor.
class CallTimes
{
public:
    /// Of the processes of server and client.
    explicit CallTimes(const std::vector<qint64>& processes)
        : m_waits(processes)
    {}

    /// Makes a call, adds its times, and returns what it returns.
    template <typename Call>
    auto measure(const Call& call)
    {
        const std::chrono::nanoseconds waitedBefore = m_waits.all();
        QElapsedTimer timer;
        timer.start();
        auto result = call();
        m_whole.emplace_back(timer.nsecsElapsed());
        m_own.push_back(m_whole.back() - (m_waits.all() - waitedBefore));
        return result;
    }

    bool areWaitsKnown() const { return m_waits.isKnown(); }
    /// From the start to the end of each call.
    const std::vector<std::chrono::nanoseconds>& whole() const { return m_whole; }
    /// What server and client took themselves, working or blocked. On a busy machine both also wait
    /// for a processor.
    const std::vector<std::chrono::nanoseconds>& own() const { return m_own; }

private:
    ProcessorWaits m_waits;
    std::vector<std::chrono::nanoseconds> m_whole;
    std::vector<std::chrono::nanoseconds> m_own;
};

/// How long a test floods a server. Only a person who has chosen the time, with VX_FLOOD_SECONDS,
/// judges the times of calls by it: beside other tests they say nothing, because the caches and the
/// disk are theirs too.
struct FloodTime
{
    bool isByHand = false;
    std::chrono::seconds length{10};
};

inline FloodTime floodTime()
{
    FloodTime time;
    const int given = qEnvironmentVariableIntValue("VX_FLOOD_SECONDS", &time.isByHand);
    if (time.isByHand)
        time.length = std::chrono::seconds(given);
    return time;
}
