// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "demand_rate.h"

#include <QtCore/QDataStream>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace VxKit {

namespace {

/// What the averages remember, in hours: the last hour or two, the last hours, a day of work, a
/// week, a month, a season, a year, and the last years. A working week is as long as one on the
/// clock.
constexpr std::array<double, DemandRate::memories> memory{2, 8, 34, 168, 672, 2688, 10752, 43008};
/// The one to start from.
constexpr int weekMemory = 3;

/// Averages of less are chance.
constexpr int usesForPredictions = 10;
/// A millimetre, so that nothing is divided by zero.
constexpr double leastKnown = 0.001;
/// Errors of more spans than this are slowly forgotten.
constexpr double spansRemembered = 50.0;
/// The averages' odds are those of this many spans at most, since spans that follow each other are
/// alike.
constexpr double spansOfOdds = 20.0;
/// What an average over less than half of the span is worth before anything was compared.
constexpr double oddsOfShortMemory = 0.1;
/// Until so many spans of a length have been seen, the shorter ones count as much.
constexpr double spansOfShorter = 4.0;

double spanLength(int index)
{
    return std::ldexp(1.0, index);
}

double oddsBefore(int average, int span)
{
    return memory[average] >= spanLength(span) / 2.0 ? 1.0 : oddsOfShortMemory;
}

} // namespace

DemandRate::DemandRate()
{
    for (int index = 0; index < spans; ++index)
        weigh(index);
}

void DemandRate::advance(double workingTime, double spread, double atEnd)
{
    if (!(workingTime > 0.0)) {
        workingTime = 0.0;
        atEnd += spread;
        spread = 0.0;
    }
    const double perHour = workingTime > 0.0 ? spread / workingTime : 0.0;
    for (int index = 0; index < memories; ++index) {
        Average& average = m_averages[index];
        const double keep = std::exp(-workingTime / memory[index]);
        const double remembered = memory[index] * (1.0 - keep);
        average.time = average.time * keep + remembered;
        average.amount = average.amount * keep + perHour * remembered;
    }
    for (int index = 0; index < spans && m_uses == usesForPredictions; ++index)
        pass(index, workingTime, perHour);

    m_total += spread + atEnd;
    for (Average& average : m_averages)
        average.amount += atEnd;
    for (Span& span : m_spans)
        span.amount += atEnd;
    if (m_uses < usesForPredictions && ++m_uses == usesForPredictions) {
        for (Span& span : m_spans)
            begin(span);
    }
}

/// Lets spans of one length pass.
void DemandRate::pass(int index, double workingTime, double perHour)
{
    Span& span = m_spans[index];
    const double length = spanLength(index);
    const double untilEnd = length - span.time;
    if (workingTime < untilEnd) {
        span.time += workingTime;
        span.amount += perHour * workingTime;
        return;
    }
    span.time = length;
    span.amount += perHour * untilEnd;
    compare(span, 1.0);
    workingTime -= untilEnd;
    const double whole = std::floor(workingTime / length);
    if (whole > 0.0) {
        begin(span);
        span.time = length;
        span.amount = perHour * length;
        compare(span, whole);
        workingTime -= whole * length;
    }
    weigh(index);
    begin(span);
    span.time = workingTime;
    span.amount = perHour * workingTime;
    concludeDispersions();
}

void DemandRate::forgetErrors(double factor)
{
    for (Span& span : m_spans) {
        for (double& error : span.errors)
            error *= factor;
        span.error *= factor;
        span.expected *= factor;
        span.count *= factor;
    }
    concludeDispersions();
}

/// Compares what was used in a span with what was predicted. There were `times` such spans.
void DemandRate::compare(Span& span, double times)
{
    constexpr double keepOfOne = 1.0 - 1.0 / spansRemembered;
    const double keep = times > 1.0 ? std::pow(keepOfOne, times) : keepOfOne;
    const double count = spansRemembered * (1.0 - keep);
    const auto square = [&span](double prediction) {
        const double difference = span.amount - prediction * span.time;
        return difference * difference;
    };
    for (int average = 0; average < memories; ++average)
        span.errors[average] =
            span.errors[average] * keep + count * square(span.predictions[average]);
    span.error = span.error * keep + count * square(span.prediction);
    const double expected = span.prediction * span.time;
    span.expected = span.expected * keep +
                    count * expected * (1.0 + expected / std::max(span.known, leastKnown));
    span.count = span.count * keep + count;
}

/// How much each average counts.
void DemandRate::weigh(int index)
{
    Span& span = m_spans[index];
    const double least = *std::min_element(span.errors.cbegin(), span.errors.cend());
    const double power = std::min(span.count, spansOfOdds) / 2.0;
    double sum = 0.0;
    for (int average = 0; average < memories; ++average) {
        const double odds = oddsBefore(average, index);
        // The likelihood of what was used, if the errors are normally distributed.
        span.weights[average] =
            least > 0.0 ? odds * std::pow(span.errors[average] / least, -power) : odds;
        sum += span.weights[average];
    }
    for (double& weight : span.weights)
        weight /= sum;
}

void DemandRate::begin(Span& span) const
{
    span.time = 0.0;
    span.amount = 0.0;
    span.known = m_total;
    for (int average = 0; average < memories; ++average)
        span.predictions[average] = m_averages[average].rate();
    span.prediction = rate(span);
}

double DemandRate::rate(const Span& span) const
{
    double sum = 0.0;
    for (int average = 0; average < memories; ++average)
        sum += span.weights[average] * m_averages[average].rate();
    return sum;
}

/// From the shortest span to the longest. What little is known of the long ones is filled up with
/// what the shorter ones say.
void DemandRate::concludeDispersions()
{
    double shorter = 0.0;
    double seen = 0.0;
    for (int index = 0; index < spans; ++index) {
        const Span& span = m_spans[index];
        const double filled = seen > 0.0 ? spansOfShorter : 0.0;
        const double count = span.count + filled;
        if (span.expected > 0.0 && count > 0.0)
            shorter = (span.count * span.error / span.expected + filled * shorter) / count;
        seen = count;
        // An error that was measured so few times may be larger.
        m_dispersions[index] = shorter * (1.0 + 2.0 / std::max(count, 1.0));
    }
}

DemandRate::Outlook DemandRate::overSpan(double workingTime) const
{
    const double place = std::clamp(std::log2(std::max(workingTime, 1.0)), 0.0, spans - 1.001);
    const int index = int(place);
    const double share = place - index;
    return {(1.0 - share) * rate(m_spans[index]) + share * rate(m_spans[index + 1]),
            (1.0 - share) * m_dispersions[index] + share * m_dispersions[index + 1]};
}

double DemandRate::variance(const Outlook& outlook, double amount) const
{
    return outlook.dispersion * amount * (1.0 + amount / std::max(m_total, leastKnown));
}

DemandRate::Outlook DemandRate::overAmount(double amount) const
{
    Outlook result{m_averages[weekMemory].rate(), 0.0};
    for (int round = 0; round < 3 && result.rate > 0.0; ++round)
        result = overSpan(amount / result.rate);
    return result;
}

void DemandRate::save(QDataStream& stream) const
{
    stream << m_total << qint32(m_uses);
    for (const Average& average : m_averages)
        stream << average.amount << average.time;
    for (const Span& span : m_spans) {
        stream << span.time << span.amount << span.known << span.prediction << span.error
               << span.expected << span.count;
        for (int average = 0; average < memories; ++average)
            stream << span.predictions[average] << span.errors[average] << span.weights[average];
    }
}

bool DemandRate::load(QDataStream& stream)
{
    bool isPossible = true;
    const auto read = [&](double& value) {
        stream >> value;
        isPossible = isPossible && value >= 0.0 && value < 1e15;
    };
    qint32 uses = 0;
    read(m_total);
    stream >> uses;
    for (Average& average : m_averages) {
        read(average.amount);
        read(average.time);
    }
    for (Span& span : m_spans) {
        for (double* value : {&span.time, &span.amount, &span.known, &span.prediction, &span.error,
                              &span.expected, &span.count})
            read(*value);
        for (int average = 0; average < memories; ++average) {
            read(span.predictions[average]);
            read(span.errors[average]);
            read(span.weights[average]);
        }
    }
    m_uses = int(uses);
    for (int index = 0; index < spans; ++index)
        weigh(index);
    concludeDispersions();
    return isPossible && uses >= 0 && uses <= usesForPredictions &&
           stream.status() == QDataStream::Ok;
}

} // namespace VxKit
