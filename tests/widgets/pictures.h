// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QList>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtGui/QPalette>
#include <QtWidgets/QWidget>

/// What the tests of the widgets share: palettes, and what pictures consist of.
namespace pictures {

inline QPalette paletteOf(const QColor& base, const QColor& text, const QColor& highlight)
{
    QPalette palette;
    for (const auto role : {QPalette::Base, QPalette::Window, QPalette::Button})
        palette.setColor(role, base);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(role, text);
    palette.setColor(QPalette::Highlight, highlight);
    return palette;
}

inline QPalette lightPalette()
{
    return paletteOf(Qt::white, Qt::black, QColor(0x30, 0x8c, 0xc6));
}

inline QPalette darkPalette()
{
    return paletteOf(QColor(0x1e, 0x1e, 0x20), QColor(0xe6, 0xe6, 0xe6), QColor(0x2a, 0x5a, 0xa8));
}

/// A picture of a widget on a screen of that scale.
inline QImage pictureOf(QWidget& widget, double scale = 1.0)
{
    QImage image((QSizeF(widget.size()) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::magenta);
    widget.render(&image);
    return image;
}

/// How many pixels of a picture have a colour.
inline int pixelsOf(const QImage& image, const QColor& color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y).rgb() == color.rgb() ? 1 : 0;
    }
    return count;
}

} // namespace pictures
