// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

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
