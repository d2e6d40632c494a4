// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QLineF>
#include <QtCore/QRectF>
#include <QtGui/QColor>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace VxKit {

/// Draws horizontal and vertical lines on whole pixels of the screen, so that they are sharp at
/// 125 or 150 % too. For painters that are moved and scaled, but not turned.
class DevicePixels
{
public:
    explicit DevicePixels(QPainter& painter);

    /// The width of a line that is `width` wide at 100 %: a whole number of pixels, at least one.
    double lineWidth(double width = 1.0) const;
    double snappedX(double x) const;
    double snappedY(double y) const;
    QRectF snapped(const QRectF& rect) const;

    /// Fills a rectangle whose edges are snapped.
    void fill(const QRectF& rect, const QColor& color) const;
    /// Lines that begin at the given place and are `lineWidth(width)` wide.
    void horizontalLine(double left, double right, double y, const QColor& color,
                        double width = 1.0) const;
    void verticalLine(double x, double top, double bottom, const QColor& color,
                      double width = 1.0) const;
    /// The outline of a rectangle, inside it.
    void outline(const QRectF& rect, const QColor& color, double width = 1.0) const;

private:
    QPainter& m_painter;
    double m_scaleX;
    double m_scaleY;
    double m_left;
    double m_top;
};

} // namespace VxKit
