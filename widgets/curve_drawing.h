// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QPoint>
#include <QtGui/QColor>

#include <cstddef>
#include <vector>

QT_BEGIN_NAMESPACE
class QImage;
QT_END_NAMESPACE

namespace VxKit {

/// Draws a curve and the area below it into an image, pixel by pixel: a painter takes ten times as
/// long for some thousand columns with smooth ends. All places are in pixels of the image.
class CurveDrawing
{
public:
    CurveDrawing(int width, const QColor& color, int thickness, double areaOpacity);

    /// In that column the curve goes from one row to another; rows are counted from the top.
    void addColumn(int column, double top, double bottom);
    /// Draws it onto an opaque image with 32 bits a pixel, down to the last of `height` rows.
    void draw(QImage& image, QPoint topLeft, int height) const;

private:
    /// From the upper to the lower edge of the curve, in parts of a pixel.
    struct Extent
    {
        int top;
        int bottom;
    };

    int opacityAt(const Extent& extent, int row) const;

    std::vector<Extent> m_columns;
    QRgb m_color;
    int m_thickness;
    int m_areaOpacity;
};

} // namespace VxKit
