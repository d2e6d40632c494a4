// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "device_pixels.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

namespace VxKit {

DevicePixels::DevicePixels(QPainter& painter)
    : m_painter(painter)
    , m_scaleX(painter.deviceTransform().m11())
    , m_scaleY(painter.deviceTransform().m22())
    , m_left(painter.deviceTransform().dx())
    , m_top(painter.deviceTransform().dy())
{}

double DevicePixels::lineWidth(double width) const
{
    return std::max(1.0, std::floor(width * m_scaleX)) / m_scaleX;
}

double DevicePixels::snappedX(double x) const
{
    return (std::round(x * m_scaleX + m_left) - m_left) / m_scaleX;
}

double DevicePixels::snappedY(double y) const
{
    return (std::round(y * m_scaleY + m_top) - m_top) / m_scaleY;
}

QRectF DevicePixels::snapped(const QRectF& rect) const
{
    return {QPointF(snappedX(rect.left()), snappedY(rect.top())),
            QPointF(snappedX(rect.right()), snappedY(rect.bottom()))};
}

void DevicePixels::fill(const QRectF& rect, const QColor& color) const
{
    // Smooth edges would show how far a rounded number is from the pixel.
    const bool isSmooth = m_painter.testRenderHint(QPainter::Antialiasing);
    m_painter.setRenderHint(QPainter::Antialiasing, false);
    m_painter.fillRect(snapped(rect), color);
    m_painter.setRenderHint(QPainter::Antialiasing, isSmooth);
}

void DevicePixels::horizontalLine(double left, double right, double y, const QColor& color,
                                  double width) const
{
    const QPointF start(snappedX(left), snappedY(y));
    fill(QRectF(start, QSizeF(snappedX(right) - start.x(), lineWidth(width))), color);
}

void DevicePixels::verticalLine(double x, double top, double bottom, const QColor& color,
                                double width) const
{
    const QPointF start(snappedX(x), snappedY(top));
    fill(QRectF(start, QSizeF(lineWidth(width), snappedY(bottom) - start.y())), color);
}

void DevicePixels::outline(const QRectF& rect, const QColor& color, double width) const
{
    const QRectF box = snapped(rect);
    const double line = lineWidth(width);
    horizontalLine(box.left(), box.right(), box.top(), color, width);
    horizontalLine(box.left(), box.right(), box.bottom() - line, color, width);
    verticalLine(box.left(), box.top(), box.bottom(), color, width);
    verticalLine(box.right() - line, box.top(), box.bottom(), color, width);
}

} // namespace VxKit
