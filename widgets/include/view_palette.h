// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "status_info.h"
#include "vxprinterstatuswidgets_export.h"

#include <QtGui/QColor>
#include <QtGui/QPalette>

namespace VxKit {

/// The colours of the views, made from the palette of the application: light, dark, or that of a
/// high-contrast theme.
///
/// @code
/// const VxKit::ViewPalette colors(palette());
/// painter.setPen(colors.severityText(VxKit::Severity::Error, colors.background()));
/// @endcode
///
/// No colour is fixed. Each one for text is changed until it has a contrast of at least 4.5 to 1
/// with the background that it is asked for, and each one for outlines until it has at least 3
/// to 1.
///
/// A plain value. Make a new one when the palette changes, see `QEvent::PaletteChange`.
class VX_WIDGETS_EXPORT ViewPalette
{
public:
    /// The least contrast of text, and of outlines and symbols, with their background.
    static constexpr double textContrast = 4.5;
    static constexpr double outlineContrast = 3.0;

    explicit ViewPalette(const QPalette& palette);

    /// Whether text is lighter than its background.
    bool isDark() const;
    /// The background of lists and plots.
    QColor background() const { return m_background; }
    /// The background of a selected row: a tint of the palette's highlight, on which the severities
    /// keep their colours.
    QColor selection() const;
    /// The edge of a selected row and the frame of what has the focus.
    QColor selectionEdge() const;

    /// Ordinary text on a background.
    QColor text(const QColor& background) const;
    /// Text that matters less: ages, units, axes.
    QColor fadedText(const QColor& background) const;
    /// The outline of bars, frames and colour samples.
    QColor outline(const QColor& background) const;
    /// Lines that only guide the eye, such as those of a grid. They need not be readable.
    QColor faintLine(const QColor& background) const;
    /// The part of a bar that is used up.
    QColor trough(const QColor& background) const;
    /// The line of a level over time.
    QColor curve(const QColor& background) const;

    /// Text and icons of a severity on a background.
    QColor severityText(Severity severity, const QColor& background) const;
    /// The background of a row with that severity; that of all rows for `Ok` and `Information`.
    QColor severityBackground(Severity severity) const;

    /// The contrast of two opaque colours, from 1 to 21, as the Web Content Accessibility
    /// Guidelines 2.1 define it.
    static double contrast(const QColor& one, const QColor& other);
    /// The colour that is nearest to `wanted`, of the same hue, with at least that contrast. Up to
    /// a contrast of 4.5 there always is one: black or white, if nothing else.
    static QColor readable(const QColor& wanted, const QColor& background,
                           double least = textContrast);
    /// Two colours mixed: `share` (0 to 1) of the first.
    static QColor mixed(const QColor& first, const QColor& second, double share);

private:
    QColor m_background;
    QColor m_text;
    QColor m_highlight;
};

} // namespace VxKit
