// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "plants.h"

#include <QtCore/QDateTime>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace plants {

namespace {

constexpr double hour = 3600.0;

/// The time a label takes, in seconds.
constexpr double fastest = 0.5;

bool isWeekend(int day)
{
    return day % 7 >= 5;
}

/// Hours in which something is printed evenly but for chance.
struct Shift
{
    double begin;
    double end;
};

void printEvenly(std::vector<double>& times, Shift shift, double labelsPerHour, Chance& chance)
{
    for (double time = shift.begin * hour;;) {
        time += chance.exponential(hour / labelsPerHour);
        if (time >= shift.end * hour)
            return;
        times.push_back(time);
    }
}

/// Every day has its own pace, and every hour of it.
void printShifts(std::vector<double>& times, const std::vector<Shift>& shifts, double labelsPerHour,
                 double deviationOfHours, Chance& chance)
{
    for (const Shift& shift : shifts) {
        double begin = shift.begin;
        while (begin < shift.end) {
            const double end = std::min(shift.end, std::floor(begin) + 1.0);
            printEvenly(times, {begin, end}, labelsPerHour * chance.factor(deviationOfHours),
                        chance);
            begin = end;
        }
    }
}

Day twoShifts(Chance&)
{
    return [](int day, Chance& chance) {
        std::vector<double> times;
        if (!isWeekend(day))
            printShifts(times, {{6, 10}, {10.5, 18}, {18.5, 22}}, 150 * chance.factor(0.2), 0.3,
                        chance);
        return times;
    };
}

Day batches(Chance&)
{
    return [](int day, Chance& chance) {
        std::vector<double> times;
        if (isWeekend(day))
            return times;
        const int jobs = chance.poisson(8);
        std::vector<double> begins;
        begins.reserve(std::size_t(jobs));
        for (int job = 0; job < jobs; ++job)
            begins.push_back((7 + 10 * chance.even()) * hour);
        std::sort(begins.begin(), begins.end());
        double free = 0.0;
        for (const double begin : begins) {
            free = std::max(free, begin);
            const int labels = std::max(1, int(std::lround(100 * chance.factor(1.0))));
            for (int label = 0; label < labels; ++label)
                times.push_back(free += fastest);
        }
        return times;
    };
}

Day seasons(Chance& chance)
{
    const double phase = 2 * std::numbers::pi * chance.even();
    return [phase](int day, Chance& ofDay) {
        std::vector<double> times;
        const double season = 1 + 0.5 * std::sin(2 * std::numbers::pi * day / 365.25 + phase);
        if (!isWeekend(day))
            printShifts(times, {{8, 12}, {12.5, 17}}, 60 * season * ofDay.factor(0.3), 0.4, ofDay);
        return times;
    };
}

Day holidays(Chance& chance)
{
    // Which weeks the plant is closed in is drawn when they come.
    return [isClosed = false, begin = int(chance.even() * 10)](int day, Chance& ofDay) mutable {
        std::vector<double> times;
        if (day % 7 == 0)
            isClosed = day / 7 > begin && ofDay.even() < 0.1;
        if (!isWeekend(day) && !isClosed)
            printShifts(times, {{8, 12}, {12.5, 17}}, 60 * ofDay.factor(0.2), 0.3, ofDay);
        return times;
    };
}

Day slowly(Chance&)
{
    return [](int day, Chance& chance) {
        std::vector<double> times;
        if (isWeekend(day))
            return times;
        for (int left = chance.poisson(1); left > 0; --left)
            times.push_back((8 + 9 * chance.even()) * hour);
        std::sort(times.begin(), times.end());
        return times;
    };
}

} // namespace

double Chance::even()
{
    return (double(m_engine() >> 11) + 0.5) * 0x1p-53;
}

double Chance::normal()
{
    return std::sqrt(-2 * std::log(even())) * std::cos(2 * std::numbers::pi * even());
}

double Chance::exponential(double mean)
{
    return -mean * std::log(even());
}

int Chance::poisson(double mean)
{
    int count = 0;
    double sum = exponential(1);
    while (sum < mean) {
        sum += exponential(1);
        ++count;
    }
    return count;
}

double Chance::factor(double deviation)
{
    return std::exp(deviation * normal() - deviation * deviation / 2);
}

std::vector<Plant> all(int rolls)
{
    const auto of = [rolls](int printers) {
        return std::max(1, rolls / printers);
    };
    constexpr double roll = 182.88;
    constexpr double label = 0.054;
    return {
        {"two shifts", "Two shifts from Monday to Friday with half an hour's break in each.", roll,
         label, 4, of(4), false, twoShifts},
        {"batch jobs", "Eight jobs on a working day, at any time, of 100 labels on average.", roll,
         label, 4, of(4), false, batches},
        {"seasons",
         "One shift that prints half as much more in one season, half as much less in "
         "another.",
         roll, label, 4, of(4), false, seasons},
        {"holidays", "One shift, closed for a week, in one week of ten on average.", roll, label, 4,
         of(4), false, holidays},
        {"a label a day", "A label on a working day, on average.", 29.26, 0.1463, 20, of(20), false,
         slowly},
        {"whole percents", "The two shifts with printers that report whole percents.", roll, label,
         4, of(4), true, twoShifts},
    };
}

Labels::Labels(const Plant& plant, const QTimeZone& zone, quint64 seed)
    : m_zone(zone)
    , m_chance(seed)
    , m_day(plant.printer(m_chance))
    , m_midnight(midnight(0))
{}

double Labels::midnight(int day) const
{
    // The first day of the plants, a Monday.
    const QDate date = QDate(2024, 1, 1).addDays(day);
    return double(date.startOfDay(m_zone).toSecsSinceEpoch());
}

double Labels::begin() const
{
    return midnight(0);
}

double Labels::next(double notBefore)
{
    for (;;) {
        if (m_place < m_times.size()) {
            const double due = m_midnight + m_times[m_place++];
            return m_last = std::max({due, m_last + fastest, notBefore});
        }
        m_midnight = midnight(m_nextDay);
        m_times = m_day(m_nextDay++, m_chance);
        m_place = 0;
    }
}

} // namespace plants
