// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QtGlobal>

#include <cstddef>
#include <optional>
#include <vector>

namespace VxKit {

/// The values of a level over time, each of which holds until the next one.
///
/// It can say for each pixel of a plot between which values the level was there. That takes a time
/// that depends on the number of pixels and hardly on that of the values, because the least and the
/// largest value of each block of them are kept.
class LevelCurve
{
public:
    /// What a column of pixels shows.
    struct Column
    {
        float least = 0;
        float most = 0;
        bool isKnown = false;   ///< there was a value at some time of it
        bool isUnknown = false; ///< there was none during all of it

        bool operator==(const Column&) const = default;
    };

    void clear();
    void reserve(std::size_t count);
    /// A time before that of the last value counts as the latter. NaN: not known from then on.
    void append(qint64 time, double value);

    std::size_t size() const { return m_times.size(); }
    /// The value at a time; empty when it was not known.
    std::optional<double> valueAt(qint64 time) const;
    std::optional<double> largest() const;
    qint64 firstTime() const { return m_times.front(); }
    qint64 lastTime() const { return m_times.back(); }
    double lastValue() const { return static_cast<double>(m_values.back()); }

    /// The columns of a plot of the times from `from` to `until`. The last value holds until
    /// `knownUntil`; nothing is known or unknown in columns after that.
    std::vector<Column> columns(qint64 from, qint64 until, int count, qint64 knownUntil) const;

private:
    static constexpr std::size_t blockSize = 256;
    struct Block
    {
        float least;
        float most;
        bool hasValue;
    };

    void addRange(Column& column, std::size_t begin, std::size_t end) const;
    void addValues(Column& column, std::size_t begin, std::size_t end) const;
    static void addValue(Column& column, float value);

    std::vector<qint64> m_times;
    std::vector<float> m_values;
    std::vector<Block> m_blocks;
};

} // namespace VxKit
