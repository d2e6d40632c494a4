// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "demand_rate.h"
#include "local_clock.h"
#include "run_out_forecast.h"
#include "week_profile.h"

#include <QtCore/QString>

#include <array>
#include <limits>
#include <optional>

class QDataStream;

namespace VxKit {

/// What all printers have in common: their week. It counts once enough of them are known.
class CommonWeek
{
public:
    /// The profile, or null while too few printers are known.
    const WeekProfile* profile() const;

    void learn(int hour, double partOfHour, double share, double weight);
    /// A slot has been followed for a week.
    void addSlot() { ++m_slots; }
    void removeSlot() { --m_slots; }
    /// `burst` is how many hours' use one burst of a printer is.
    void conclude(double time, double burst);

    void save(QDataStream& stream) const;
    /// False for what is no such state.
    bool load(QDataStream& stream);

private:
    WeekProfile m_profile;
    double m_burst = 0.0;
    double m_concluded = -std::numeric_limits<double>::infinity();
    int m_slots = 0;
};

/// A few values in place of a distribution.
struct Case
{
    double probability;
    double value;
};
constexpr int mostCases = 6;
struct Cases
{
    std::array<Case, mostCases> cases{};
    int count = 0;

    void add(double probability, double value) { cases.at(count++) = {probability, value}; }
    const Case* begin() const { return cases.data(); }
    const Case* end() const { return cases.data() + count; }
};

/// What is known of one slot of a printer: the roll in it, and how rolls are used up there. Times
/// are seconds since 1970 in UTC.
class SlotUsage
{
public:
    void add(const RunOutForecast::Sample& sample, double time, const LocalClock& clock,
             CommonWeek& everybody);
    std::optional<RunOutForecast::Forecast> forecast(double now, const LocalClock& clock,
                                                     const CommonWeek& everybody,
                                                     RunOutForecast::Reason* reason) const;
    bool isFollowedForAWeek() const;

    /// What is left, without a forecast.
    RunOutForecast::Forecast left() const;
    bool isLevelKnown() const { return m_state == State::Known; }

    /// True when a warning is to be given now: it is due, and was not given for this roll. After it
    /// was given and the level has risen a little, it is given again only if the level was well
    /// above the mark in between.
    bool takeWarning(RunOutForecast::Concern concern, bool isBelow, bool isWellAbove);
    /// There is another job.
    void allowWarning(RunOutForecast::Concern concern);

    void save(QDataStream& stream) const;
    bool load(QDataStream& stream);

private:
    static constexpr int concerns = 3;

    enum class State : quint8
    {
        NeverReported,
        Empty,
        NotKnown,
        Known,
    };
    struct Roll
    {
        bool isThere = false;
        QString identifier;
        double level = 0.0; ///< the lowest that was reported
        std::array<bool, concerns> warned{};
        /// The level has risen since the warning, so that another roll may have been loaded.
        std::array<bool, concerns> mayWarnAgain{};
    };
    /// Times in which nothing was used although the printer is usually at work.
    struct Closures
    {
        double count = 0.0;
        double length = 0.0; ///< of all, in working time
        double open = 0.0;   ///< the working time in between
    };

    bool isKnown(const CommonWeek& everybody) const;
    double tolerance() const;
    void changeRoll(const QString& identifier, double level);
    void learn(double to, double used, const LocalClock& clock, CommonWeek& everybody);
    void conclude(double from, double to, const LocalClock& clock, CommonWeek& everybody);
    void learnProfile(double from, double to, double spread, double atEnd, double weight,
                      const LocalClock& clock, CommonWeek& everybody);
    bool isPrinting(double idle) const;
    double closureRate() const;
    double closureLength() const;
    double oddsOfClosure(double idle) const;
    Cases burstCases(double amount, double idle) const;
    Cases presentClosureCases(double idle) const;
    Cases futureClosureCases(double workingTime) const;
    RunOutForecast::Quantiles workingTimeLeft(const RunOutForecast::Quantiles& demand,
                                              double amount, double idle,
                                              const DemandRate::Outlook& outlook) const;

    State m_state = State::NeverReported;
    Roll m_roll;
    std::array<Roll, 4> m_earlierRolls{};
    double m_length = 0.0; ///< of the roll when it was new; 0 when not known
    bool m_isLengthKnown = false;
    double m_step = 0.0; ///< in what steps the level is reported
    double m_labelMeters = 0.0;
    double m_lastTime = 0.0;
    double m_lastUse = 0.0;

    WeekProfile m_profile;
    DemandRate m_rate;
    Closures m_closures;
    double m_usualPause = 0.0; ///< the logarithm of the working time between two uses
    double m_usualUse = 0.0;   ///< between two samples
    double m_hoursLearned = 0.0;
    double m_hoursToForget = 0.0;
    double m_concluded = 0.0;
};

} // namespace VxKit
