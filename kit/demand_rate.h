// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <array>

class QDataStream;

namespace VxKit {

/// How much is used in an hour of working time, and how evenly.
///
/// Several averages are kept, from one over the last two hours to one over the last years. For each
/// of several spans, from an hour to half a year, their predictions are compared with what was then
/// used in such a span. The average that predicted best counts most, and the errors say how wide a
/// forecast over such a span has to be. So a printer whose days differ is forecast from its day,
/// one that follows the seasons from its last weeks, and one that is always the same from all that
/// is known of it.
///
/// Working time is that of a `WeekProfile`, in hours. Amounts are metres.
class DemandRate
{
public:
    static constexpr int memories = 8;
    static constexpr int spans = 13;

    DemandRate();

    /// Working time has passed in which `spread` was used evenly, and `atEnd` at its end.
    void advance(double workingTime, double spread, double atEnd);

    /// What the predictions were wrong by so far counts by this factor less.
    void forgetErrors(double factor);

    /// What will be used, on average, and how unevenly.
    struct Outlook
    {
        double rate = 0.0; ///< metres in an hour of working time; 0 when nothing is known
        /// The variance of what is used over its mean, if the mean is known: the size of the bursts
        /// if it is used in bursts that do not depend on each other.
        double dispersion = 0.0;
    };
    /// The outlook on a span of working time.
    Outlook overSpan(double workingTime) const;
    /// The outlook until so many metres have been used.
    Outlook overAmount(double amount) const;

    /// How much more or less than expected will be used by the time at which this amount is
    /// expected. An average is itself only as good as all that was used until now.
    double variance(const Outlook& outlook, double amount) const;

    /// All that was ever used.
    double total() const { return m_total; }

    void save(QDataStream& stream) const;
    /// False for what is no such state.
    bool load(QDataStream& stream);

private:
    struct Average
    {
        double amount = 0.0;
        double time = 0.0;

        double rate() const { return time > 0.0 ? amount / time : 0.0; }
    };
    /// The predictions for one length of spans, and how good they were.
    struct Span
    {
        double time = 0.0; ///< since the present span began
        double amount = 0.0;
        double known = 0.0;                         ///< all that had been used when it began
        std::array<double, memories> predictions{}; ///< made when it began
        double prediction = 0.0;
        std::array<double, memories> errors{}; ///< squares
        std::array<double, memories> weights{};
        double error = 0.0; ///< squares
        double expected = 0.0;
        double count = 0.0;
    };

    void pass(int index, double workingTime, double perHour);
    static void compare(Span& span, double times);
    void weigh(int index);
    void begin(Span& span) const;
    double rate(const Span& span) const;
    void concludeDispersions();

    std::array<Average, memories> m_averages{};
    std::array<Span, spans> m_spans{};
    std::array<double, spans> m_dispersions{}; ///< as the spans say
    double m_total = 0.0;
    int m_uses = 0; ///< counted up to the number from which predictions are compared
};

} // namespace VxKit
