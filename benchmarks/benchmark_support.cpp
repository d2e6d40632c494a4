// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "benchmark_support.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include <time.h>

namespace benchmark_support {

void useTranslatedNames()
{
    setenv("LANGUAGE", "de", 1);
}

int run(int argc, char* argv[], const std::function<void(Limits&)>& enterLimits,
        const std::vector<std::string>& defaults)
{
    constexpr int limitMissed = 1;
    constexpr int unknownArgument = 2;

    std::vector<std::string> texts{argv[0]};
    texts.insert(texts.end(), defaults.begin(), defaults.end());
    texts.insert(texts.end(), argv + 1, argv + argc);

    std::vector<char*> arguments;
    arguments.reserve(texts.size() + 1);
    for (std::string& text : texts)
        arguments.push_back(text.data());
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);

    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return unknownArgument;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();

    Limits limits;
    enterLimits(limits);
    return limits.conclude() ? 0 : limitMissed;
}

double quantile(std::vector<double> samples, double share)
{
    const auto last = static_cast<double>(samples.size() - 1);
    const auto place = samples.begin() + static_cast<std::ptrdiff_t>(std::ceil(share * last));
    std::nth_element(samples.begin(), place, samples.end());
    return *place;
}

double median(const std::vector<double>& samples)
{
    return quantile(samples, 0.5);
}

double processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e6 + double(time.tv_nsec) * 1e-3;
}

void Samples::append(const Samples& other)
{
    library.insert(library.end(), other.library.begin(), other.library.end());
    floor.insert(floor.end(), other.floor.begin(), other.floor.end());
}

double Samples::ratio(double share) const
{
    if (library.empty() || floor.empty())
        return std::numeric_limits<double>::quiet_NaN();
    return quantile(library, share) / quantile(floor, share);
}

void Limits::atMost(const std::string& what, double measured, double limit, const std::string& unit)
{
    m_entries.push_back({what, measured, limit, unit});
}

bool Limits::conclude() const
{
    std::printf("\n");
    bool allHeld = true;
    for (const Entry& entry : m_entries) {
        if (std::isnan(entry.measured)) {
            std::printf("limit: %s: not measured\n", entry.what.c_str());
            continue;
        }
        const bool held = entry.measured <= entry.limit;
        allHeld = allHeld && held;
        std::printf("limit: %s: %.3f%s, at most %g%s: %s\n", entry.what.c_str(), entry.measured,
                    entry.unit.c_str(), entry.limit, entry.unit.c_str(), held ? "held" : "MISSED");
    }
    return allHeld;
}

} // namespace benchmark_support
