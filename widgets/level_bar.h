// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_reading.h"
#include "view_palette.h"

#include <QtCore/QRect>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace VxKit {

/// A bar that shows how much of a roll or ribbon is left, in its own colours.
///
/// Loaded: filled from the side on which a line of text begins, with a line where the filling ends,
/// so that white labels are seen on white and a black ribbon on black. Nothing loaded: an outline
/// with nothing in it. Not known: hatched, which neither a full nor an empty bar is. When only the
/// amount is not known, the hatched bar begins with a sample of the colours.
struct LevelBar
{
    Level::State state = Level::State::NotKnown;
    /// The colours as "#rrggbb". What is no such colour is left out.
    QStringList colors;
    std::optional<double> ratio;

    static LevelBar of(const Level& level);

    /// Draws the bar. `faded` is for values that are old.
    void paint(QPainter& painter, const QRect& rect, const ViewPalette& palette,
               const QColor& background, Qt::LayoutDirection direction, bool faded = false) const;
};

/// How much is left, in short: "62 %", "about 62 %" where the printer counts whole percents only,
/// "nothing loaded" or "not known".
QString levelText(const Level& level);
/// What else is known of how much is left: "41.2 m, 412 labels". Empty when nothing is.
QString levelAmount(const Level& level);
/// What is loaded: its name, or what the printer reports when the catalogue does not know it. Empty
/// when nothing is loaded or it is not known.
QString levelName(const Level& level);
/// The name of a slot for people: "Supply", "Ribbon 1".
QString slotTitle(Slot slot);
/// All of this in one sentence, for screen readers and tool tips: "Supply: Yellow Vinyl, 62 %,
/// 41.2 m, 412 labels".
QString levelSentence(Slot slot, const Level& level);

} // namespace VxKit
