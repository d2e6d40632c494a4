// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "week_profile.h"

#include "local_clock.h"

#include <QtCore/QDataStream>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace VxKit {

namespace {

constexpr double secondsPerHour = 3600.0;
constexpr double secondsPerDay = 24 * secondsPerHour;
constexpr double secondsPerWeek = 7 * secondsPerDay;

/// After how many bursts a printer's own week counts as much as an even one, and after how many
/// weeks as much as the week of all printers.
constexpr double burstsOfEvenWeek = 2.0;
constexpr double weeksOfOthers = 2.0;
/// An hour differs by half from what its day and its time of day suggest.
constexpr double differenceOfHours = 0.5;
/// No hour of the week is quite impossible.
constexpr double leastShape = 0.002;

} // namespace

WeekProfile::WeekProfile()
{
    std::array<double, hours> even{};
    even.fill(1.0);
    setShape(even);
}

void WeekProfile::learn(int hour, double partOfHour, double amount, double weight)
{
    m_amounts.at(hour) += float(weight * amount);
    m_times.at(hour) += float(weight * partOfHour);
}

void WeekProfile::forget(double factor)
{
    for (int hour = 0; hour < hours; ++hour) {
        m_amounts[hour] *= float(factor);
        m_times[hour] *= float(factor);
    }
}

void WeekProfile::conclude(double burst, const WeekProfile* others)
{
    std::array<double, 24> amountOfHour{};
    std::array<double, 24> timeOfHour{};
    std::array<double, 7> amountOfDay{};
    std::array<double, 7> timeOfDay{};
    double amount = 0.0;
    double time = 0.0;
    for (int hour = 0; hour < hours; ++hour) {
        amountOfHour[hour % 24] += m_amounts[hour];
        timeOfHour[hour % 24] += m_times[hour];
        amountOfDay[hour / 24] += m_amounts[hour];
        timeOfDay[hour / 24] += m_times[hour];
        amount += m_amounts[hour];
        time += m_times[hour];
    }
    if (!(amount > 0.0 && time > 0.0))
        return;

    const double mean = amount / time;
    const auto share = [mean](double ofAmount, double ofTime) {
        return ofTime > 0.0 ? ofAmount / ofTime / mean : 1.0;
    };
    const double weeks = time / hours;
    const double weeksOfPrior = others ? weeksOfOthers : burstsOfEvenWeek * burst / mean / hours;
    std::array<double, hours> shape{};
    for (int hour = 0; hour < hours; ++hour) {
        const double own = share(amountOfHour[hour % 24], timeOfHour[hour % 24]) *
                           share(amountOfDay[hour / 24], timeOfDay[hour / 24]);
        const double given = others ? double(others->m_shape[hour]) : 1.0;
        const double expected = (weeks * own + weeksOfPrior * given) / (weeks + weeksOfPrior);
        // The fewer bursts were seen in this hour, the less they say of it.
        const double expectedAmount = std::max(expected, leastShape) * mean;
        const double trust = burst / (expectedAmount * differenceOfHours * differenceOfHours);
        shape[hour] = (m_amounts[hour] / mean + trust * expected) / (double(m_times[hour]) + trust);
    }
    setShape(shape);
}

void WeekProfile::setShape(const std::array<double, hours>& shape)
{
    const double sum = std::accumulate(shape.cbegin(), shape.cend(), 0.0);
    double sumOfLeast = 0.0;
    for (int hour = 0; hour < hours; ++hour) {
        m_shape[hour] = float(std::max(shape[hour] / sum * hours, leastShape));
        sumOfLeast += double(m_shape[hour]);
    }
    m_before[0] = 0.0;
    double squares = 0.0;
    for (int hour = 0; hour < hours; ++hour) {
        m_shape[hour] *= float(hours / sumOfLeast);
        m_before[hour + 1] = m_before[hour] + double(m_shape[hour]);
        squares += double(m_shape[hour]) * double(m_shape[hour]);
    }
    m_usualHour = squares / m_before[hours];
}

double WeekProfile::weeksSeen() const
{
    return double(std::accumulate(m_times.cbegin(), m_times.cend(), 0.0F)) / hours;
}

double WeekProfile::hourOfWeek(double localTime)
{
    // The first of January 1970 was a Thursday.
    const double inWeek = std::fmod(localTime + 3 * secondsPerDay, secondsPerWeek);
    const double hour = (inWeek < 0.0 ? inWeek + secondsPerWeek : inWeek) / secondsPerHour;
    return hour < hours ? hour : 0.0;
}

double WeekProfile::before(double hourOfWeek) const
{
    const int hour = std::min(int(hourOfWeek), hours - 1);
    return m_before[hour] + (hourOfWeek - hour) * double(m_shape[hour]);
}

double WeekProfile::passed(const LocalClock& clock, double from, double to) const
{
    double sum = 0.0;
    while (from < to) {
        const LocalClock::Offset offset = clock.offsetAt(from);
        const double end = std::min(to, offset.end);
        const double start = hourOfWeek(from + offset.seconds);
        const double span = (end - from) / secondsPerHour;
        const double weeks = std::floor(span / hours);
        double stop = start + span - weeks * hours;
        sum += weeks * m_before[hours] - before(start);
        if (stop >= hours) {
            stop -= hours;
            sum += m_before[hours];
        }
        sum += before(stop);
        from = end;
    }
    return sum;
}

double WeekProfile::after(const LocalClock& clock, double from, double workingTime,
                          double latest) const
{
    while (from < latest) {
        const LocalClock::Offset offset = clock.offsetAt(from);
        const double end = std::min(latest, offset.end);
        const double inStretch = passed(clock, from, end);
        if (inStretch <= workingTime) {
            workingTime -= inStretch;
            from = end;
            continue;
        }
        const double start = hourOfWeek(from + offset.seconds);
        const double weeks = std::floor(workingTime / m_before[hours]);
        double target = before(start) + workingTime - weeks * m_before[hours];
        double span = weeks * hours - start;
        if (target >= m_before[hours]) {
            target -= m_before[hours];
            span += hours;
        }
        const auto next = std::upper_bound(m_before.cbegin(), m_before.cend(), target);
        const int hour = std::clamp(int(next - m_before.cbegin()) - 1, 0, hours - 1);
        span += hour + (target - m_before[hour]) / double(m_shape[hour]);
        return std::clamp(from + span * secondsPerHour, from, end);
    }
    return latest;
}

void WeekProfile::save(QDataStream& stream) const
{
    for (int hour = 0; hour < hours; ++hour)
        stream << m_amounts[hour] << m_times[hour] << m_shape[hour];
}

bool WeekProfile::load(QDataStream& stream)
{
    std::array<double, hours> shape{};
    for (int hour = 0; hour < hours; ++hour) {
        float loadedShape = 0.0F;
        stream >> m_amounts[hour] >> m_times[hour] >> loadedShape;
        if (!(m_amounts[hour] >= 0.0F && m_amounts[hour] < 1e9F && m_times[hour] >= 0.0F &&
              m_times[hour] < 1e6F && loadedShape > 0.0F && loadedShape <= float(hours)))
            return false;
        shape[hour] = double(loadedShape);
    }
    setShape(shape);
    return stream.status() == QDataStream::Ok;
}

} // namespace VxKit
