// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "time_axis.h"

#include <algorithm>
#include <array>

namespace VxKit {

namespace {

constexpr qint64 minute = 60;
constexpr qint64 hour = 60 * minute;
constexpr qint64 day = 24 * hour;
constexpr std::array timeSteps{minute,      2 * minute,  5 * minute, 10 * minute,
                               15 * minute, 30 * minute, hour,       2 * hour,
                               3 * hour,    6 * hour,    12 * hour};
constexpr std::array monthSteps{1, 2, 3, 6};
constexpr qint64 month = 31 * day;
constexpr qint64 year = 366 * day;
/// More than this no caller has room for.
constexpr qsizetype mostTicks = 1000;

/// The ticks while they are collected.
class Ticks
{
public:
    Ticks(const QDateTime& from, const QDateTime& until, const QTimeZone& zone,
          const QLocale& locale)
        : m_from(from.toMSecsSinceEpoch())
        , m_until(until.toMSecsSinceEpoch())
        , m_zone(zone)
        , m_locale(locale)
        , m_firstDay(from.toTimeZone(zone).date())
    {}

    QList<TimeTick> times(qint64 step)
    {
        for (QDate date = m_firstDay; goesOn(); date = date.addDays(1)) {
            addDay(date, true, true);
            for (qint64 second = step; second < day && goesOn(); second += step) {
                const QTime time = QTime::fromMSecsSinceStartOfDay(static_cast<int>(second * 1000));
                const QDateTime local(date, time, m_zone);
                if (local.isValid() && local.time() == time)
                    add(local, m_locale.toString(time, QLocale::ShortFormat), false);
            }
        }
        return m_ticks;
    }

    QList<TimeTick> days(int step, bool withWeekday)
    {
        // Every second day is so too when the range moves on by one.
        const qint64 surplus = m_firstDay.toJulianDay() % step;
        for (QDate date = m_firstDay.addDays(-surplus); goesOn(); date = date.addDays(step))
            addDay(date, withWeekday, false);
        return m_ticks;
    }

    QList<TimeTick> weeks(int step)
    {
        const int sinceFirst = (m_firstDay.dayOfWeek() - m_locale.firstDayOfWeek() + 7) % 7;
        for (QDate date = m_firstDay.addDays(-sinceFirst); goesOn();
             date = date.addDays(qint64(7) * step))
            addDay(date, false, false);
        return m_ticks;
    }

    QList<TimeTick> months(int step)
    {
        const int first = (m_firstDay.month() - 1) / step * step + 1;
        for (QDate date(m_firstDay.year(), first, 1); goesOn(); date = date.addMonths(step)) {
            const bool isYear = date.month() == 1;
            add(date.startOfDay(m_zone),
                isYear ? yearOf(date)
                       : m_locale.standaloneMonthName(date.month(), QLocale::ShortFormat),
                isYear);
        }
        return m_ticks;
    }

    QList<TimeTick> years(int step)
    {
        for (QDate date(m_firstDay.year() / step * step, 1, 1); goesOn();
             date = date.addYears(step))
            add(date.startOfDay(m_zone), yearOf(date), false);
        return m_ticks;
    }

private:
    static QString yearOf(const QDate& date) { return QString::number(date.year()); }

    bool goesOn() const { return m_last <= m_until && m_ticks.size() < mostTicks; }

    void addDay(const QDate& date, bool withWeekday, bool isMajor)
    {
        QString label = dayAndMonth(date, m_locale);
        if (withWeekday)
            label.prepend(m_locale.dayName(date.dayOfWeek(), QLocale::ShortFormat) +
                          QLatin1Char(' '));
        add(date.startOfDay(m_zone), label, isMajor);
    }

    void add(const QDateTime& time, const QString& label, bool isMajor)
    {
        const qint64 at = time.isValid() ? time.toMSecsSinceEpoch() : m_until + 1;
        m_last = std::max(m_last, at);
        if (at >= m_from && at <= m_until)
            m_ticks.append({at, label, isMajor});
    }

    qint64 m_from;
    qint64 m_until;
    const QTimeZone& m_zone;
    const QLocale& m_locale;
    QDate m_firstDay;
    qint64 m_last = std::numeric_limits<qint64>::min();
    QList<TimeTick> m_ticks;
};

} // namespace

QList<TimeTick> timeTicks(const QDateTime& from, const QDateTime& until, int most,
                          const QTimeZone& zone, const QLocale& locale)
{
    const QDate last = until.toTimeZone(zone).date();
    if (most < 1 || !zone.isValid() || from.toTimeZone(zone).date().year() < 1 ||
        last.year() > 9000 || from >= until)
        return {};
    const qint64 least = (from.secsTo(until) + most - 1) / most;
    Ticks ticks(from, until, zone, locale);
    for (const qint64 step : timeSteps) {
        if (step >= least)
            return ticks.times(step);
    }
    if (least <= 2 * day)
        return ticks.days(least <= day ? 1 : 2, 2 * least <= day);
    if (least <= 14 * day)
        return ticks.weeks(least <= 7 * day ? 1 : 2);
    for (const int step : monthSteps) {
        if (step * month >= least)
            return ticks.months(step);
    }
    int step = 1;
    while (step * year < least)
        step *= 10;
    return ticks.years(step);
}

QString dayAndMonth(const QDate& date, const QLocale& locale)
{
    QString format = locale.dateFormat(QLocale::ShortFormat);
    const qsizetype begin = format.indexOf(QLatin1Char('y'));
    if (begin >= 0) {
        const qsizetype end = format.lastIndexOf(QLatin1Char('y')) + 1;
        // What separates the year from the rest goes with it, except a dot that ends a number.
        if (begin == 0)
            format = format.mid(std::min(end + 1, format.size()));
        else
            format.truncate(format.at(begin - 1) == QLatin1Char('.') ? begin : begin - 1);
    }
    return locale.toString(date, format);
}

} // namespace VxKit
