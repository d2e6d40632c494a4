// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "curve_drawing.h"

#include <QtGui/QImage>

#include <algorithm>
#include <cmath>
#include <limits>

namespace VxKit {

namespace {

/// The height of a pixel, and an opacity of 1.
constexpr int unit = 256;
/// A column without a curve begins below every row and ends above it.
constexpr int outside = std::numeric_limits<int>::max() / 4;
constexpr double farthestRow = 1e6;

QRgb blended(QRgb color, QRgb behind, int opacity)
{
    const auto share = static_cast<quint32>(opacity);
    const quint32 rest = unit - share;
    // Two channels at a time, each with room for the product.
    const quint32 redAndBlue =
        ((color & 0xff00ff) * share + (behind & 0xff00ff) * rest) / unit & 0xff00ff;
    const quint32 green = ((color & 0x00ff00) * share + (behind & 0x00ff00) * rest) / unit & 0xff00;
    return 0xff000000 | redAndBlue | green;
}

} // namespace

CurveDrawing::CurveDrawing(int width, const QColor& color, int thickness, double areaOpacity)
    : m_columns(static_cast<std::size_t>(std::max(width, 0)), {outside, -outside})
    , m_color(color.rgb())
    , m_thickness(std::max(thickness, 1))
    , m_areaOpacity(static_cast<int>(std::lround(areaOpacity * unit)))
{}

void CurveDrawing::addColumn(int column, double top, double bottom)
{
    const double half = m_thickness / 2.0;
    const auto inUnits = [](double row) {
        return static_cast<int>(std::lround(std::clamp(row, -farthestRow, farthestRow) * unit));
    };
    // What goes up or down is as thick as what does not.
    const int end = column + (bottom > top ? m_thickness : 1);
    for (int each = column; each < std::min(end, static_cast<int>(m_columns.size())); ++each) {
        Extent& extent = m_columns[static_cast<std::size_t>(each)];
        extent.top = std::min(extent.top, inUnits(top - half));
        extent.bottom = std::max(extent.bottom, inUnits(bottom + half));
    }
}

void CurveDrawing::draw(QImage& image, QPoint topLeft, int height) const
{
    const int firstRow = std::max(0, -topLeft.y());
    const int endRow = std::min(height, image.height() - topLeft.y());
    const int firstColumn = std::max(0, -topLeft.x());
    const int endColumn = std::min(static_cast<int>(m_columns.size()), image.width() - topLeft.x());
    for (int row = firstRow; row < endRow; ++row) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(topLeft.y() + row)) + topLeft.x();
        for (int column = firstColumn; column < endColumn; ++column) {
            const int opacity = opacityAt(m_columns[static_cast<std::size_t>(column)], row);
            if (opacity == unit)
                line[column] = 0xff000000 | m_color;
            else if (opacity > 0)
                line[column] = blended(m_color, line[column], opacity);
        }
    }
}

int CurveDrawing::opacityAt(const Extent& extent, int row) const
{
    const int begin = row * unit;
    const int end = begin + unit;
    const int covered = std::max(0, std::min(extent.bottom, end) - std::max(extent.top, begin));
    // What is not covered is above the curve or, in the area, below it.
    return extent.top >= begin ? covered : covered + (unit - covered) * m_areaOpacity / unit;
}

} // namespace VxKit
