// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <functional>
#include <string>
#include <vector>

/// What all benchmarks share: running Google Benchmark, and one closing line for each limit with
/// the measured value and whether the limit held.
namespace benchmark_support {

class Limits;

/// Has the names of supplies translated, as most hosts do. Call it before the application object is
/// constructed, which reads the language.
void useTranslatedNames();

/// Runs the registered benchmarks, has `enterLimits` enter the limits, and prints their closing
/// lines. `defaults` are flags that the command line may override.
///
/// Returns the exit code of the process: 0 when all limits held, 1 when one was missed, and 2, with
/// a line on stderr, for an unknown argument.
int run(int argc, char* argv[], const std::function<void(Limits&)>& enterLimits,
        const std::vector<std::string>& defaults = {});

/// The value that the given share (0 to 1) of the samples does not exceed; the samples must not be
/// empty.
double quantile(std::vector<double> samples, double share);
double median(const std::vector<double>& samples);

/// Microseconds that the calling thread has had a processor for.
double processorTime();

/// Times of the library and of its floor.
struct Samples
{
    std::vector<double> library;
    std::vector<double> floor;

    void append(const Samples& other);
    /// Library over floor at a share of the samples, at the median unless said; NaN when nothing
    /// was measured.
    double ratio(double share = 0.5) const;
};

/// Takes so many samples of one side, appends them to its times, and returns their sum.
template <typename Sample>
double takeBlock(int samples, std::vector<double>& times, const Sample& sample)
{
    double sum = 0;
    for (int taken = 0; taken < samples; ++taken)
        sum += times.emplace_back(sample());
    return sum;
}

/// Lets the two sides take turns in going first, so that neither always finds the caches and the
/// scheduler as the other left them.
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
    /// Enters one limit. A measured value of NaN stands for one that was not measured in this run.
    void atMost(const std::string& what, double measured, double limit, const std::string& unit);

    /// Prints the lines. True when every measured limit held.
    bool conclude() const;

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
