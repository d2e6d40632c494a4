// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QRectF>
#include <QtGui/QColor>
#include <QtGui/QPainterPath>

#include <optional>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace VxKit {

/// A drawing in the small part of SVG in which the icons are made: paths of straight lines and
/// cubic curves with absolute coordinates, circles, fills, and strokes with round ends. Qt's SVG
/// module, which reads all of it, is not needed where the widgets run.
class SvgDrawing
{
public:
    /// Without a value when the text has anything that is not in that part.
    static std::optional<SvgDrawing> parse(const QByteArray& text);

    /// Draws it into a rectangle, whose sides are to have the relation of `viewBox`. What has the
    /// class "sign" is drawn in the colour `sign`, all else in `color`.
    void paint(QPainter& painter, const QRectF& rect, const QColor& color,
               const QColor& sign) const;

    QRectF viewBox() const { return m_viewBox; }

private:
    struct Part
    {
        QPainterPath path;
        bool isSign = false;
        bool isFilled = false;
        double strokeWidth = 0.0; ///< 0: no stroke
        QList<double> dashes;     ///< in units of the view box
    };

    QRectF m_viewBox;
    QList<Part> m_parts;
};

} // namespace VxKit
