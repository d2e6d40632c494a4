// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QTimeZone>
#include <QtCore/QtGlobal>

#include <functional>
#include <memory>
#include <random>
#include <string>
#include <vector>

/// Plants that print labels in known ways, so that the end of each roll is known.
namespace plants {

/// Chance that is the same with every compiler.
class Chance
{
public:
    explicit Chance(quint64 seed)
        : m_engine(seed)
    {}

    double even(); ///< from 0 to 1, without both
    double normal();
    double exponential(double mean);
    int poisson(double mean);
    /// A factor of 1 on average whose logarithm is normal.
    double factor(double deviation);

private:
    std::mt19937_64 m_engine;
};

/// A day in a plant. `day` counts from the first one, which is a Monday. The times at which labels
/// are printed are seconds since midnight, in order.
using Day = std::function<std::vector<double>(int day, Chance& chance)>;

struct Plant
{
    std::string name;
    /// How the plant works, in one sentence.
    std::string text;
    double rollMeters;
    double labelMeters;
    int printers;
    int rollsOfEach;
    /// The printer reports whole percents.
    bool isInPercent;
    /// A printer's days; each printer begins anew.
    std::function<Day(Chance& chance)> printer;
};

/// The plants by which forecasts are judged. `rolls` is how many of each.
std::vector<Plant> all(int rolls);

/// The times at which one printer prints, in seconds since 1970, one after the other.
class Labels
{
public:
    Labels(const Plant& plant, const QTimeZone& zone, quint64 seed);

    /// When the next label is printed. What was due before `notBefore` is printed then, as fast as
    /// labels can be printed.
    double next(double notBefore);
    /// The beginning of the first day.
    double begin() const;
    Chance& chance() { return m_chance; }

private:
    double midnight(int day) const;

    QTimeZone m_zone;
    Chance m_chance;
    Day m_day;
    int m_nextDay = 0;
    std::size_t m_place = 0;
    double m_midnight = 0.0;
    double m_last = 0.0;
    std::vector<double> m_times;
};

} // namespace plants
