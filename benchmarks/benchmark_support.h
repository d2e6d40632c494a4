// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <string>
#include <vector>

/// What every benchmark begins and ends with: running Google Benchmark, and one closing line for
/// each limit with what was measured and whether it held.
namespace benchmark_support {

/// Runs the registered benchmarks; `defaults` are flags that the command line may override. False,
/// with a line on stderr, when the command line has something that nobody knows.
bool run(int argc, char* argv[], const std::vector<std::string>& defaults = {});

/// The value that the given share (0 to 1) of the samples does not exceed; the samples must not be
/// empty.
double quantile(std::vector<double> samples, double share);
double median(const std::vector<double>& samples);

/// Microseconds that the calling thread has had a processor for.
double processorTime();

/// What the library and its floor took.
struct Samples
{
    std::vector<double> library;
    std::vector<double> floor;

    void append(const Samples& other);
    /// Library over floor at a share of the samples, at the median unless said; NaN when nothing
    /// was measured.
    double ratio(double share = 0.5) const;
};

/// Who goes first changes from sample to sample, so that neither side always finds what the other
/// left behind in caches and in the scheduler.
class Turns
{
public:
    template <typename TakeLibrary, typename TakeFloor>
    void take(const TakeLibrary& takeLibrary, const TakeFloor& takeFloor)
    {
        if (m_libraryFirst)
            takeLibrary();
        takeFloor();
        if (!m_libraryFirst)
            takeLibrary();
        m_libraryFirst = !m_libraryFirst;
    }

private:
    bool m_libraryFirst = true;
};

/// The closing lines.
class Limits
{
public:
    /// Enters one limit; NaN as the measured value says that it was not measured in this run.
    void atMost(const std::string& what, double measured, double limit, const std::string& unit);

    /// Prints the lines. The answer is the process' exit code: 1 when a limit was missed.
    int conclude() const;

private:
    struct Entry
    {
        std::string what;
        double measured;
        double limit;
        std::string unit;
    };
    std::vector<Entry> m_entries;
};

} // namespace benchmark_support
