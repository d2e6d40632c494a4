// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "slot_usage.h"

#include <QtCore/QDataStream>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace VxKit {

namespace {

using Forecast = RunOutForecast::Forecast;
using Quantiles = RunOutForecast::Quantiles;
using Reason = RunOutForecast::Reason;

constexpr double hour = 3600.0;
constexpr double hoursOfWeek = WeekProfile::hours;

/// A sample that is only this much older than the one before it came late. If it is older than
/// that, the clock was set back.
constexpr double lateSample = 120.0;
/// After a longer time, nobody knows what happened in it.
constexpr double longestGap = 8 * hoursOfWeek * hour;
/// A printer is known when it has been seen for a week, but for an hour or two, or for some hours
/// if the week of other printers is known.
constexpr double hoursUntilKnown = 160.0;
constexpr double hoursUntilKnownByOthers = 4.0;
constexpr int slotsOfCommonWeek = 3;
constexpr double weightOfFirstWeek = 0.1;

/// The longest roll that is believed.
constexpr double longestRoll = 10000.0;
/// The length by which ratios are calculated with where no length is known.
constexpr double assumedLength = 100.0;
constexpr qsizetype longestIdentifier = 100;
/// A level that rises by more of the roll is certainly that of another one.
constexpr double certainRise = 0.1;

/// What the profile remembers: this many weeks, or more if these have too few bursts.
constexpr double leastWeeks = 8.0;
constexpr double mostWeeks = 52.0;
constexpr double burstsRemembered = 100.0;
constexpr double forgetEvery = 24.0;
/// The span, in working time, whose dispersion tells the size of bursts.
constexpr double burstSpan = 8.0;

/// What is used between two samples is used when the second one comes, up to so many times the
/// usual amount. More than that was used before, while nobody listened.
constexpr double mostAtOnce = 8.0;
constexpr double listeningGap = 2 * hour;

/// Bursts go on after pauses of so many times the usual one, which is no shorter than half a
/// second.
constexpr double longestPause = 10.0;
constexpr double shortestPause = 0.5 / hour;

/// Before anything is known: one closure in thirteen weeks, two days long.
constexpr double closuresAssumed = 0.25;
constexpr double hoursBetweenClosures = 13 * hoursOfWeek;
constexpr double assumedClosure = 2 * 24.0;
/// A closure is remembered as one when it is certain, and about as long as a day's work.
constexpr double certainClosure = 0.95;
constexpr double leastClosure = 24.0;
/// What a closure says of the hours of the week: less, because it passes.
constexpr double weightOfClosure = 0.3;
constexpr double longestClosure = 24 * hoursOfWeek;
/// What is less likely than this is left out.
constexpr double negligible = 0.01;
/// How exactly quantiles are calculated, in time and in probability.
constexpr double precision = 0.01;
/// What is left for less than this part of the usual time may be left for no time at all.
constexpr double soon = 0.01;
/// What is used in bursts that are larger than all rolls was not learned from a printer.
constexpr double mostDispersion = 1e9;
/// The rest of a burst that is so small a part of what is left needs no distribution.
constexpr double smallBurst = 0.05;

/// Working time beyond every horizon, since no hour of the week is quite without it.
constexpr double longestTime = 1e8;
constexpr double leastTime = 1e-6;

/// 90 percent of the standard normal distribution.
constexpr double normal90 = 1.2815515655446004;

/// The standard normal distribution, by Page's approximation of 1977: its error is below 0.0002,
/// and a forecast needs it hundreds of times.
double normalDistribution(double z)
{
    return 1.0 / (1.0 + std::exp(-2.0 * std::sqrt(2.0 / std::numbers::pi) * z *
                                 (1.0 + 0.044715 * z * z)));
}

/// The begin of the hour in local time that a time is in, or at whose end it is.
double beginOfLocalHour(double time, const LocalClock& clock)
{
    const double offset = clock.offsetAt(time).seconds;
    return (std::ceil((time + offset) / hour) - 1.0) * hour - offset;
}

/// The working time until an amount has been used, as the quantile of a normal deviate. What is
/// used in a time is about normal, with a variance that grows with its mean.
double timeUntilUsed(double amount, const DemandRate::Outlook& outlook, double deviate)
{
    const double spread = deviate * std::sqrt(outlook.dispersion);
    const double sum = std::abs(spread) + std::sqrt(spread * spread + 4.0 * amount);
    // One of the two roots, without a difference of numbers that are almost equal.
    const double root = spread < 0.0 ? 2.0 * amount / sum : 0.5 * sum;
    return std::min(root * root / outlook.rate, longestTime);
}

/// The probability that an amount has been used after a working time.
double probabilityOfUsed(double amount, const DemandRate::Outlook& outlook, double workingTime)
{
    if (amount <= 0.0)
        return workingTime >= 0.0 ? 1.0 : 0.0;
    if (!(workingTime > 0.0))
        return 0.0;
    const double mean = outlook.rate * workingTime;
    return normalDistribution((mean - amount) / std::sqrt(outlook.dispersion * mean));
}

} // namespace

const WeekProfile* CommonWeek::profile() const
{
    return m_slots >= slotsOfCommonWeek ? &m_profile : nullptr;
}

void CommonWeek::learn(int hourOfWeek, double partOfHour, double share, double weight)
{
    m_profile.learn(hourOfWeek, partOfHour, share, weight);
}

void CommonWeek::conclude(double time, double burst)
{
    m_burst = m_burst > 0.0 ? m_burst + 0.01 * (burst - m_burst) : burst;
    if (!(std::abs(time - m_concluded) >= hour))
        return;
    m_concluded = time;
    // What many printers did in one week is what they did then, not what they always do.
    if (m_profile.weeksSeen() > leastWeeks * std::max(m_slots, 1))
        m_profile.forget(1.0 - 1.0 / (leastWeeks * hoursOfWeek));
    m_profile.conclude(m_burst, nullptr);
}

void CommonWeek::save(QDataStream& stream) const
{
    m_profile.save(stream);
    stream << m_burst;
}

bool CommonWeek::load(QDataStream& stream)
{
    if (!m_profile.load(stream))
        return false;
    stream >> m_burst;
    return m_burst >= 0.0 && m_burst < 1e9 && stream.status() == QDataStream::Ok;
}

bool SlotUsage::isFollowedForAWeek() const
{
    return m_hoursLearned >= hoursUntilKnown;
}

bool SlotUsage::isKnown(const CommonWeek& everybody) const
{
    return isFollowedForAWeek() ||
           (everybody.profile() && m_hoursLearned >= hoursUntilKnownByOthers);
}

/// A level that rises by no more than this is the same roll's.
double SlotUsage::tolerance() const
{
    return std::max({1.5 * m_step, 0.01 * m_length, 2.0 * m_labelMeters, 0.02});
}

void SlotUsage::add(const RunOutForecast::Sample& sample, double time, const LocalClock& clock,
                    CommonWeek& everybody)
{
    const bool isFirst = m_state == State::NeverReported;
    if (!isFirst && time < m_lastTime && m_lastTime - time < lateSample)
        return;
    const bool isClockSetBack = !isFirst && time < m_lastTime;
    if (isClockSetBack)
        m_lastUse = time;

    const bool isLoaded =
        sample.state == Level::State::Loaded || sample.state == Level::State::NotInCatalogue;
    const bool hasRatio = sample.ratio && *sample.ratio >= 0.0 && *sample.ratio <= 1.0;
    const bool hasMeters = sample.meters && *sample.meters >= 0.0 && *sample.meters <= longestRoll;
    if (!isLoaded || !(hasRatio || hasMeters)) {
        m_state = sample.state == Level::State::Empty ? State::Empty : State::NotKnown;
        m_lastTime = time;
        return;
    }

    const QString identifier = sample.identifier.left(longestIdentifier);
    m_isLengthKnown = hasMeters;
    if (hasMeters && hasRatio && *sample.ratio > 0.0)
        m_length = std::min(*sample.meters / *sample.ratio, longestRoll);
    else if (hasMeters)
        m_length = std::max(m_length, *sample.meters);
    else if (!(m_length > 0.0))
        m_length = assumedLength;
    const double level = hasMeters ? *sample.meters : *sample.ratio * m_length;
    m_step =
        sample.resolution > 0.0 && sample.resolution <= 1.0 ? sample.resolution * m_length : 0.0;
    m_labelMeters =
        sample.labelMeters && *sample.labelMeters > 0.0 && *sample.labelMeters <= longestRoll
            ? *sample.labelMeters
            : 0.0;

    // Nothing is printed while the slot is empty.
    const bool isAnother = level > m_roll.level + tolerance() ||
                           (m_state == State::Empty && level < m_roll.level - tolerance());
    if (!m_roll.isThere || identifier != m_roll.identifier || isAnother) {
        changeRoll(identifier, level);
        m_lastUse = time;
    } else if (level < m_roll.level) {
        if (!isClockSetBack && time - m_lastUse <= longestGap)
            learn(time, m_roll.level - level, clock, everybody);
        m_roll.level = level;
        m_lastUse = time;
    }
    m_state = State::Known;
    m_lastTime = time;
}

/// Another roll is in the slot, or one that was there before.
void SlotUsage::changeRoll(const QString& identifier, double level)
{
    const Roll left = m_roll;
    const auto place =
        std::find_if(m_earlierRolls.begin(), m_earlierRolls.end(), [&](const Roll& roll) {
            return roll.isThere && roll.identifier == identifier &&
                   std::abs(roll.level - level) <= tolerance();
        });
    if (place != m_earlierRolls.end()) {
        m_roll = *place;
    } else {
        m_roll = Roll{};
        if (left.identifier == identifier && level < left.level + certainRise * m_length) {
            m_roll.warned = left.warned;
            m_roll.mayWarnAgain.fill(true);
        }
    }
    m_roll.identifier = identifier;
    m_roll.level = level;
    m_roll.isThere = true;
    if (left.isThere) {
        std::move_backward(m_earlierRolls.begin(),
                           place == m_earlierRolls.end() ? std::prev(place) : place,
                           place == m_earlierRolls.end() ? place : std::next(place));
        m_earlierRolls.front() = left;
    }
}

void SlotUsage::learn(double to, double used, const LocalClock& clock, CommonWeek& everybody)
{
    const double from = m_lastUse;
    if (!(to > from))
        return;
    const double workingTime = m_profile.passed(clock, from, to);
    const DemandRate::Outlook before = m_rate.overSpan(burstSpan);

    // A level in millimetres changes at once when something is printed. In whole percents it
    // changes some time later.
    const bool wasListening = to - m_lastTime <= listeningGap || !(m_usualUse > 0.0);
    const double atEnd = m_step > 0.0   ? 0.0
                         : wasListening ? used
                                        : std::min(used, mostAtOnce * m_usualUse);
    const double spread = used - atEnd;
    m_usualUse = m_usualUse > 0.0 ? m_usualUse + 0.1 * (atEnd - m_usualUse) : atEnd;

    const double usualGap = before.rate > 0.0 ? before.dispersion / before.rate : workingTime;
    // A logarithm, so that a night does not count more than all of a job's labels.
    const double pause = std::log(std::max(workingTime, shortestPause));
    m_usualPause = m_rate.total() > 0.0 ? m_usualPause + 0.05 * (pause - m_usualPause) : pause;

    const bool wasClosed = spread <= m_step && workingTime >= std::max(leastClosure, usualGap) &&
                           isFollowedForAWeek() && oddsOfClosure(workingTime) > certainClosure;
    if (wasClosed) {
        m_closures.count += 1.0;
        m_closures.length += workingTime;
        m_rate.advance(usualGap, spread, atEnd);
    } else {
        m_closures.open += workingTime;
        m_rate.advance(workingTime, spread, atEnd);
    }
    const double weight = wasClosed ? weightOfClosure : 1.0;
    const bool wasFollowed = isFollowedForAWeek();
    // Nothing was used until the last sample with the old level, if that was exact.
    const double quietUntil = m_step > 0.0 ? from : std::clamp(m_lastTime, from, to);
    const double beginOfHour = std::clamp(beginOfLocalHour(to, clock), from, to);
    const double beginOfRest = std::max(quietUntil, beginOfHour);
    const double timeOfSpread = m_profile.passed(clock, quietUntil, to);
    const double spreadInRest =
        timeOfSpread > 0.0 ? spread * m_profile.passed(clock, beginOfRest, to) / timeOfSpread : 0.0;
    learnProfile(from, std::min(quietUntil, beginOfHour), 0.0, 0.0, weight, clock, everybody);
    learnProfile(quietUntil, beginOfHour, spread - spreadInRest, 0.0, weight, clock, everybody);
    conclude(from, to, clock, everybody);
    learnProfile(beginOfHour, beginOfRest, 0.0, 0.0, weight, clock, everybody);
    learnProfile(beginOfRest, to, spreadInRest, atEnd, weight, clock, everybody);
    m_hoursLearned += (to - from) / hour;
    if (!wasFollowed && isFollowedForAWeek()) {
        // Until now the hours of the week were not known, so the predictions were worse.
        m_rate.forgetErrors(weightOfFirstWeek);
        everybody.addSlot();
    }
}

/// Draws the conclusions from the hours that are over. The present one has been seen until
/// something was used in it, so it would seem to be busier than it is.
void SlotUsage::conclude(double from, double to, const LocalClock& clock, CommonWeek& everybody)
{
    m_hoursToForget += (to - from) / hour;
    const DemandRate::Outlook now = m_rate.overSpan(burstSpan);
    if (!(now.rate > 0.0 && now.dispersion > 0.0))
        return;
    const double burst = now.dispersion / now.rate;
    everybody.conclude(to, burst);
    const double thisHour = beginOfLocalHour(to, clock);
    if (thisHour == m_concluded)
        return;
    m_concluded = thisHour;
    if (m_hoursToForget >= forgetEvery) {
        const double weeks =
            std::clamp(burstsRemembered * burst / hoursOfWeek, leastWeeks, mostWeeks);
        m_profile.forget(std::exp(-m_hoursToForget / (weeks * hoursOfWeek)));
        m_hoursToForget = 0.0;
    }
    m_profile.conclude(now.dispersion, everybody.profile());
}

void SlotUsage::learnProfile(double from, double to, double spread, double atEnd, double weight,
                             const LocalClock& clock, CommonWeek& everybody)
{
    const double rate = m_rate.overSpan(burstSpan).rate;
    const double workingTime = m_profile.passed(clock, from, to);
    while (from < to) {
        const LocalClock::Offset offset = clock.offsetAt(from);
        const double local = from + offset.seconds;
        const double endOfHour = (std::floor(local / hour) + 1.0) * hour - offset.seconds;
        const double end = std::min({to, endOfHour, offset.end});
        const double share = workingTime > 0.0 && spread > 0.0
                                 ? m_profile.passed(clock, from, end) / workingTime
                                 : 0.0;
        const double used = spread * share + (end == to ? atEnd : 0.0);
        const int place = int(WeekProfile::hourOfWeek(local));
        m_profile.learn(place, (end - from) / hour, used, weight);
        if (rate > 0.0 && isFollowedForAWeek())
            everybody.learn(place, (end - from) / hour, used / rate, weight);
        from = end;
    }
}

/// Whether a burst is going on. The times between uses are mostly those inside of bursts.
bool SlotUsage::isPrinting(double idle) const
{
    return idle <= longestPause * std::exp(m_usualPause);
}

double SlotUsage::closureRate() const
{
    return (m_closures.count + closuresAssumed) /
           (m_closures.open + closuresAssumed * hoursBetweenClosures);
}

double SlotUsage::closureLength() const
{
    return (m_closures.length + closuresAssumed * assumedClosure) /
           (m_closures.count + closuresAssumed);
}

/// How likely it is that the printer is out of use, when it has not been used for so long.
double SlotUsage::oddsOfClosure(double idle) const
{
    const double dispersion = m_rate.overSpan(idle).dispersion;
    const double time = m_closures.open + m_closures.length;
    if (!(dispersion > 0.0 && time > 0.0))
        return 0.0;
    // With closures in it, the rate is too low rather than too high: else one closure too many
    // would make the next pause look like one too.
    const double bursts = m_rate.total() / time * idle / dispersion;
    const double begun = closureRate() * idle;
    return begun / (begun + std::exp(-bursts));
}

Forecast SlotUsage::left() const
{
    Forecast result;
    if (m_state != State::Known)
        return result;
    if (m_isLengthKnown)
        result.metersLeft = m_roll.level;
    if (m_labelMeters > 0.0)
        result.labelsLeft = int(std::min(m_roll.level / m_labelMeters * (1.0 + 1e-6), 1e9));
    return result;
}

std::optional<Forecast> SlotUsage::forecast(double now, const LocalClock& clock,
                                            const CommonWeek& everybody, Reason* reason) const
{
    const auto because = [reason](Reason why) {
        if (reason)
            *reason = why;
        return std::nullopt;
    };
    switch (m_state) {
    case State::NeverReported:
        return because(Reason::NeverReported);
    case State::Empty:
        return because(Reason::NothingLoaded);
    case State::NotKnown:
        return because(Reason::LevelNotKnown);
    case State::Known:
        break;
    }

    if (reason)
        *reason = Reason::None;
    Forecast result = left();
    if (!(m_roll.level > 0.0) && !(m_step > 0.0))
        return result;

    const double idle = m_profile.passed(clock, m_lastUse, now);
    double amount = m_roll.level;
    if (m_step > 0.0) {
        // When the percentage changed, half a percent more was left than it says.
        const double sinceThen = m_rate.overSpan(burstSpan).rate * idle;
        amount = std::max(amount + m_step / 2.0 - std::min(sinceThen, m_step), m_step / 4.0);
    }
    DemandRate::Outlook outlook = m_rate.overAmount(amount);
    if (!isKnown(everybody) ||
        !(outlook.rate > 0.0 && outlook.dispersion > 0.0 && outlook.dispersion < mostDispersion))
        return because(Reason::NotKnownYet);
    outlook.dispersion = (m_rate.variance(outlook, amount) + m_step * m_step / 12.0) / amount;

    const Quantiles demand{timeUntilUsed(amount, outlook, -normal90),
                           timeUntilUsed(amount, outlook, 0.0),
                           timeUntilUsed(amount, outlook, normal90)};
    const Quantiles time = workingTimeLeft(demand, amount, idle, outlook);
    const double latest = now + RunOutForecast::horizonSeconds;
    const auto onTheClock = [&](double workingTime) {
        const double end = m_profile.after(clock, now, workingTime, latest);
        return end < latest ? end - now : RunOutForecast::horizonSeconds;
    };
    const auto inPrintingHours = [usual = m_profile.usualHour()](double workingTime) {
        return std::min(workingTime / usual, RunOutForecast::horizonSeconds / hour);
    };
    result.secondsLeft = {onTheClock(time.p10), onTheClock(time.p50), onTheClock(time.p90)};
    result.printingHoursLeft = {inPrintingHours(demand.p10), inPrintingHours(demand.p50),
                                inPrintingHours(demand.p90)};
    return result;
}

/// What is left of the burst that is going on.
Cases SlotUsage::burstCases(double amount, double idle) const
{
    Cases cases;
    // It is as large as in bursts of any size, of which the large ones are met more often.
    const double rest = isPrinting(idle) ? m_rate.overSpan(0.0).dispersion / 2.0 : 0.0;
    if (rest < smallBurst * amount) {
        cases.add(1.0, rest);
        return cases;
    }
    constexpr int count = 3;
    for (int index = 0; index < count; ++index)
        cases.add(1.0 / count, -rest * std::log1p(-(index + 0.5) / count));
    return cases;
}

/// How long the printer will still be out of use, when it is.
Cases SlotUsage::presentClosureCases(double idle) const
{
    Cases cases;
    const double closed = oddsOfClosure(idle);
    if (closed < negligible) {
        cases.add(1.0, 0.0);
        return cases;
    }
    cases.add(1.0 - closed, 0.0);
    // What has lasted so long is as likely as not to last as long again. The closures that were
    // seen tell more, as long as this one is not longer.
    double learned = 0.0;
    const double usual = closureLength();
    if (m_closures.count > 0.0 && usual > idle && idle >= leastClosure / 4.0) {
        learned = m_closures.count / (m_closures.count + 1.0);
        cases.add(closed * learned, usual - idle);
    }
    for (const double share : {1.0 / 6.0, 0.5, 5.0 / 6.0})
        cases.add(closed * (1.0 - learned) / 3.0,
                  std::min(idle * share / (1.0 - share), longestClosure));
    return cases;
}

/// How long the printer will be out of use later, in so much working time.
Cases SlotUsage::futureClosureCases(double workingTime) const
{
    Cases cases;
    const double expected = closureRate() * workingTime;
    const double length = closureLength();
    if (expected >= 1.0) {
        // Their number is about normal.
        for (const double deviate : {-1.2, 0.0, 1.2})
            cases.add(1.0 / 3.0, std::max(0.0, expected + deviate * std::sqrt(expected)) * length);
        return cases;
    }
    double probability = std::exp(-expected);
    for (int count = 0; count < 3; ++count) {
        if (probability > negligible)
            cases.add(probability, count * length);
        probability *= expected / (count + 1);
    }
    return cases;
}

/// The working time until the end: what is still to be used, less the rest of a burst, and the
/// times in which the printer is out of use now or will be.
Quantiles SlotUsage::workingTimeLeft(const Quantiles& demand, double amount, double idle,
                                     const DemandRate::Outlook& outlook) const
{
    const Cases bursts = burstCases(amount, idle);
    // A printer that is printing is not out of use.
    const Cases present = presentClosureCases(bursts.count > 1 ? 0.0 : idle);
    const Cases future = futureClosureCases(demand.p50);
    if (bursts.count == 1 && present.count == 1 && future.count == 1)
        return demand;

    struct Together
    {
        double probability;
        double amount;
        double closed;
    };
    std::array<Together, std::size_t(mostCases) * mostCases * mostCases> together;
    int count = 0;
    double all = 0.0;
    for (const Case& burst : bursts) {
        for (const Case& closed : present) {
            for (const Case& closedLater : future) {
                const double probability =
                    burst.probability * closed.probability * closedLater.probability;
                if (probability < negligible)
                    continue;
                together[std::size_t(count++)] = {probability, amount - burst.value,
                                                  closed.value + closedLater.value};
                all += probability;
            }
        }
    }
    const auto distribution = [&](double time) {
        double used = 0.0;
        for (int index = 0; index < count; ++index) {
            const Together& one = together[std::size_t(index)];
            used += one.probability * probabilityOfUsed(one.amount, outlook, time - one.closed);
        }
        return used / all;
    };
    // Between two times that the distribution is below and above the share: on the straight line
    // between them, and nearer to the one that stays.
    const auto quantile = [&](double share, double guess) {
        double high = std::max(guess, leastTime);
        double aboveHigh = distribution(high) - share;
        double low = high;
        double belowLow = -aboveHigh;
        while (aboveHigh < 0.0) {
            if (high >= longestTime)
                return longestTime;
            low = high;
            belowLow = -aboveHigh;
            high *= 2.0;
            aboveHigh = distribution(high) - share;
        }
        while (belowLow < 0.0) {
            low = low > soon * guess ? low / 2.0 : 0.0;
            belowLow = share - distribution(low);
            if (low <= 0.0 && belowLow <= 0.0)
                return 0.0;
        }
        if (aboveHigh < precision)
            return high;
        int side = 0;
        while (high - low > precision * high) {
            const double middle = low + (high - low) * belowLow / (belowLow + aboveHigh);
            const double above = distribution(middle) - share;
            if (std::abs(above) < precision)
                return middle;
            if (above < 0.0) {
                low = middle;
                belowLow = -above;
                aboveHigh *= side < 0 ? 0.5 : 1.0;
                side = -1;
            } else {
                high = middle;
                aboveHigh = above;
                belowLow *= side > 0 ? 0.5 : 1.0;
                side = 1;
            }
        }
        return 0.5 * (low + high);
    };
    // In order although they are not exact.
    const double p10 = quantile(0.1, demand.p10);
    const double p50 = std::max(p10, quantile(0.5, demand.p50));
    return {p10, p50, std::max(p50, quantile(0.9, demand.p90))};
}

bool SlotUsage::takeWarning(RunOutForecast::Concern concern, bool isBelow, bool isWellAbove)
{
    bool& warned = m_roll.warned.at(int(concern));
    bool& mayWarnAgain = m_roll.mayWarnAgain.at(int(concern));
    if (warned && mayWarnAgain && isWellAbove)
        warned = false;
    if (warned || !isBelow)
        return false;
    warned = true;
    mayWarnAgain = false;
    return true;
}

void SlotUsage::allowWarning(RunOutForecast::Concern concern)
{
    m_roll.warned.at(int(concern)) = false;
    for (Roll& roll : m_earlierRolls)
        roll.warned.at(int(concern)) = false;
}

void SlotUsage::save(QDataStream& stream) const
{
    const auto saveRoll = [&stream](const Roll& roll) {
        stream << roll.isThere << roll.identifier << roll.level;
        for (int concern = 0; concern < concerns; ++concern)
            stream << roll.warned[concern] << roll.mayWarnAgain[concern];
    };
    stream << quint8(m_state);
    saveRoll(m_roll);
    for (const Roll& roll : m_earlierRolls)
        saveRoll(roll);
    stream << m_length << m_isLengthKnown << m_step << m_labelMeters << m_lastTime << m_lastUse;
    stream << m_usualPause << m_closures.count << m_closures.length << m_closures.open;
    stream << m_usualUse << m_hoursLearned << m_hoursToForget;
    m_profile.save(stream);
    m_rate.save(stream);
}

bool SlotUsage::load(QDataStream& stream)
{
    bool isPossible = true;
    const auto read = [&](double& value, double most) {
        stream >> value;
        isPossible = isPossible && value >= 0.0 && value <= most;
    };
    const auto readRoll = [&](Roll& roll) {
        stream >> roll.isThere >> roll.identifier;
        isPossible = isPossible && roll.identifier.size() <= longestIdentifier;
        read(roll.level, longestRoll);
        for (int concern = 0; concern < concerns; ++concern)
            stream >> roll.warned[concern] >> roll.mayWarnAgain[concern];
    };
    quint8 state = 0;
    stream >> state;
    readRoll(m_roll);
    for (Roll& roll : m_earlierRolls)
        readRoll(roll);
    constexpr double latest = 1e11;
    constexpr double most = 1e12;
    read(m_length, longestRoll);
    stream >> m_isLengthKnown;
    read(m_step, longestRoll);
    read(m_labelMeters, longestRoll);
    read(m_lastTime, latest);
    read(m_lastUse, latest);
    stream >> m_usualPause;
    isPossible = isPossible && std::abs(m_usualPause) < 100.0;
    for (double* value : {&m_closures.count, &m_closures.length, &m_closures.open, &m_usualUse,
                          &m_hoursLearned, &m_hoursToForget})
        read(*value, most);
    if (!isPossible || state > quint8(State::Known) || stream.status() != QDataStream::Ok)
        return false;
    m_state = State(state);
    return m_profile.load(stream) && m_rate.load(stream);
}

} // namespace VxKit
