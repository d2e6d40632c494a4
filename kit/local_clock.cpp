// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "local_clock.h"

#include <QtCore/QDateTime>

#include <algorithm>
#include <cmath>

namespace VxKit {

namespace {

constexpr double day = 24.0 * 3600;
/// Far enough back for samples from a history, and beyond the horizon.
constexpr int daysBefore = 366;
constexpr int daysRemembered = 5 * 366;

QDateTime dateTime(double time)
{
    return QDateTime::fromSecsSinceEpoch(static_cast<qint64>(std::floor(time)), Qt::UTC);
}

} // namespace

LocalClock::LocalClock(const QTimeZone& zone)
    : m_zone(zone.isValid() ? zone : QTimeZone::utc())
{}

LocalClock::Offset LocalClock::offsetAt(double time) const
{
    if (!(time >= m_from && time < m_to))
        remember(time);
    const auto next =
        std::upper_bound(m_changes.cbegin(), m_changes.cend(), time,
                         [](double at, const Change& change) { return at < change.time; });
    return {std::prev(next)->offset, next == m_changes.cend() ? m_to : next->time};
}

double LocalClock::offsetFromZone(double time) const
{
    return m_zone.offsetFromUtc(dateTime(time));
}

/// Asks the zone for each day, since not every system can list when its zones change.
void LocalClock::remember(double time) const
{
    m_from = std::floor(time / day) * day - daysBefore * day;
    m_to = m_from + daysRemembered * day;
    m_changes.clear();
    m_changes.push_back({m_from, offsetFromZone(m_from)});
    for (int number = 1; number < daysRemembered; ++number) {
        const double end = m_from + number * day;
        const double offset = offsetFromZone(end);
        if (offset == m_changes.back().offset)
            continue;
        double before = end - day;
        double after = end;
        while (after - before > 1.0) {
            const double middle = std::floor((before + after) / 2.0);
            (offsetFromZone(middle) == offset ? after : before) = middle;
        }
        m_changes.push_back({after, offset});
    }
}

} // namespace VxKit
