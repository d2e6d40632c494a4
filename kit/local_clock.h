// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QTimeZone>
#include <QtCore/QtGlobal>

#include <vector>

namespace VxKit {

/// The offset of local time from UTC, remembered for some years: asking a `QTimeZone` takes longer
/// than a whole forecast. Times are seconds since 1970 in UTC.
class LocalClock
{
public:
    explicit LocalClock(const QTimeZone& zone);

    /// From `time` until `end` local time is UTC plus `seconds`.
    struct Offset
    {
        double seconds;
        double end;
    };
    Offset offsetAt(double time) const;

    const QTimeZone& zone() const { return m_zone; }

private:
    struct Change
    {
        double time;
        double offset;
    };
    double offsetFromZone(double time) const;
    void remember(double time) const;

    QTimeZone m_zone;
    mutable double m_from = 0.0;
    mutable double m_to = 0.0;
    mutable std::vector<Change> m_changes; ///< the first one is at `m_from`
};

} // namespace VxKit
