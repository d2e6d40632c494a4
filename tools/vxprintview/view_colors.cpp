// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "view_colors.h"

#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleFactory>

namespace {

QPalette paletteOf(const QColor& window, const QColor& base, const QColor& button,
                   const QColor& text, const QColor& highlight)
{
    QPalette palette(button, window);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, button);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::ToolTipBase, base);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, highlight);
    QColor faint = text;
    faint.setAlphaF(0.5F);
    palette.setColor(QPalette::PlaceholderText, faint);
    for (const auto role : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText})
        palette.setColor(QPalette::Disabled, role, faint);
    return palette;
}

} // namespace

void view_colors::use(const QString& scheme)
{
    if (scheme == QLatin1String("system")) {
        QApplication::setPalette(QPalette());
        return;
    }
    // The styles of the systems take their colours from the system alone.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    if (scheme == QLatin1String("dark"))
        QApplication::setPalette(paletteOf(QColor(0x20, 0x22, 0x25), QColor(0x18, 0x1a, 0x1d),
                                           QColor(0x30, 0x33, 0x38), QColor(0xe8, 0xe8, 0xe8),
                                           QColor(0x2b, 0x6c, 0xb0)));
    else
        QApplication::setPalette(paletteOf(QColor(0xf3, 0xf4, 0xf6), Qt::white,
                                           QColor(0xe8, 0xea, 0xed), QColor(0x1c, 0x1e, 0x21),
                                           QColor(0x1f, 0x5f, 0xae)));
}
