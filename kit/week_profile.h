// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <array>

class QDataStream;

namespace VxKit {

class LocalClock;

/// How what is used is spread over the 168 hours of the week, which begins on Monday at 0:00.
///
/// It turns time on the clock into working time: time that passes as fast as the printer usually
/// works, and as fast as on the clock over a whole week. In an hour in which twice as much is used
/// as on average, two hours of working time pass, and at night perhaps none.
///
/// Times are seconds since 1970 in UTC, amounts metres, and working time is in hours.
class WeekProfile
{
public:
    static constexpr int hours = 168;

    WeekProfile();

    /// What was used in a part of an hour of the week. `weight` is below 1 for what says less.
    void learn(int hour, double partOfHour, double amount, double weight = 1.0);
    /// Everything that was learned so far counts by this factor less.
    void forget(double factor);
    /// Draws the conclusions from what was learned. `burst` is the size of the bursts in which is
    /// used what is used, which says how much of the differences between the hours is chance.
    /// `others` is what all printers do, if there are other printers.
    void conclude(double burst, const WeekProfile* others);

    /// How many weeks have been seen, as far as they have not been forgotten.
    double weeksSeen() const;

    /// The working time that passes between two times.
    double passed(const LocalClock& clock, double from, double to) const;
    /// When so much working time will have passed since a time, but `latest` if that is later.
    double after(const LocalClock& clock, double from, double workingTime, double latest) const;
    /// The working time that passes in an hour of usual work.
    double usualHour() const { return m_usualHour; }

    /// The hour of the week, with its fraction.
    static double hourOfWeek(double localTime);

    void save(QDataStream& stream) const;
    /// False for what is no profile.
    bool load(QDataStream& stream);

private:
    /// The working time from the beginning of the week.
    double before(double hourOfWeek) const;
    void setShape(const std::array<double, hours>& shape);

    std::array<float, hours> m_amounts{};
    std::array<float, hours> m_times{};
    std::array<float, hours> m_shape{}; ///< 1 on average
    std::array<double, hours + 1> m_before{};
    double m_usualHour = 1.0;
};

} // namespace VxKit
