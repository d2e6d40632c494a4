// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "level_curve.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace VxKit {

void LevelCurve::clear()
{
    m_times.clear();
    m_values.clear();
    m_blocks.clear();
}

void LevelCurve::reserve(std::size_t count)
{
    m_times.reserve(count);
    m_values.reserve(count);
    m_blocks.reserve(count / blockSize + 1);
}

void LevelCurve::append(qint64 time, double value)
{
    const float kept =
        std::isfinite(value) ? static_cast<float>(value) : std::numeric_limits<float>::quiet_NaN();
    if (m_times.size() % blockSize == 0)
        m_blocks.push_back({kept, kept, false});
    m_times.push_back(m_times.empty() ? time : std::max(time, m_times.back()));
    m_values.push_back(kept);
    if (std::isnan(kept))
        return;
    Block& block = m_blocks.back();
    block.least = block.hasValue ? std::min(block.least, kept) : kept;
    block.most = block.hasValue ? std::max(block.most, kept) : kept;
    block.hasValue = true;
}

std::optional<double> LevelCurve::valueAt(qint64 time) const
{
    const auto after = std::upper_bound(m_times.begin(), m_times.end(), time);
    if (after == m_times.begin())
        return std::nullopt;
    const float value = m_values[static_cast<std::size_t>(after - m_times.begin()) - 1];
    return std::isnan(value) ? std::nullopt : std::optional(static_cast<double>(value));
}

std::optional<double> LevelCurve::largest() const
{
    std::optional<double> largest;
    for (const Block& block : m_blocks) {
        if (block.hasValue)
            largest = std::max(largest.value_or(static_cast<double>(block.most)),
                               static_cast<double>(block.most));
    }
    return largest;
}

std::vector<LevelCurve::Column> LevelCurve::columns(qint64 from, qint64 until, int count,
                                                    qint64 knownUntil) const
{
    std::vector<Column> columns(static_cast<std::size_t>(std::max(count, 0)));
    // As a number with a fraction, because the difference of any two times may not fit.
    const double perColumn =
        (static_cast<double>(until) - static_cast<double>(from)) / static_cast<double>(count);
    auto begin = std::lower_bound(m_times.begin(), m_times.end(), from);
    for (std::size_t number = 0; number < columns.size(); ++number) {
        Column& column = columns[number];
        const double columnBegin =
            static_cast<double>(from) + perColumn * static_cast<double>(number);
        if (columnBegin > static_cast<double>(knownUntil))
            break;
        const double columnEnd = columnBegin + perColumn;
        const auto end = std::partition_point(begin, m_times.end(), [columnEnd](qint64 time) {
            return static_cast<double>(time) < columnEnd;
        });
        const auto first = static_cast<std::size_t>(begin - m_times.begin());
        // The value before still holds unless the first new one is there from the beginning on.
        const bool isReplaced = begin != end && static_cast<double>(*begin) <= columnBegin;
        if (first > 0 && !isReplaced)
            addValue(column, m_values[first - 1]);
        addRange(column, first, static_cast<std::size_t>(end - m_times.begin()));
        column.isUnknown = !column.isKnown;
        begin = end;
    }
    return columns;
}

void LevelCurve::addRange(Column& column, std::size_t begin, std::size_t end) const
{
    const std::size_t firstBlock = (begin + blockSize - 1) / blockSize;
    const std::size_t endBlock = end / blockSize;
    if (firstBlock >= endBlock) {
        addValues(column, begin, end);
        return;
    }
    addValues(column, begin, firstBlock * blockSize);
    for (std::size_t number = firstBlock; number < endBlock; ++number) {
        if (const Block& block = m_blocks[number]; block.hasValue) {
            addValue(column, block.least);
            addValue(column, block.most);
        }
    }
    addValues(column, endBlock * blockSize, end);
}

void LevelCurve::addValues(Column& column, std::size_t begin, std::size_t end) const
{
    for (std::size_t number = begin; number < end; ++number)
        addValue(column, m_values[number]);
}

void LevelCurve::addValue(Column& column, float value)
{
    if (std::isnan(value))
        return;
    column.least = column.isKnown ? std::min(column.least, value) : value;
    column.most = column.isKnown ? std::max(column.most, value) : value;
    column.isKnown = true;
}

} // namespace VxKit
