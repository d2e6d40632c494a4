// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QLocale>
#include <QtCore/QString>
#include <QtCore/QTimeZone>

namespace VxKit {

/// A place on a time axis that is worth a label.
struct TimeTick
{
    qint64 time = 0; ///< milliseconds since 1970 in UTC
    QString label;
    /// Whether it begins a day, where the ticks between are times, or a year, where they are
    /// months.
    bool isMajor = false;

    bool operator==(const TimeTick&) const = default;
};

/// The ticks of an axis in local time: full hours, midnights, beginnings of weeks, months or years.
/// There are at most `most` of them, or one more. A local time that does not exist, because the
/// clock was set forward, has no tick. One that occurs twice has one.
QList<TimeTick> timeTicks(const QDateTime& from, const QDateTime& until, int most,
                          const QTimeZone& zone, const QLocale& locale);

/// A day and month in a locale's order, without the year: "03.11." or "11/3".
QString dayAndMonth(const QDate& date, const QLocale& locale);

} // namespace VxKit
