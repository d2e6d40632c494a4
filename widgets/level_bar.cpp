// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "level_bar.h"

#include "device_pixels.h"
#include "plain_line.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>
#include <QtGui/QPainter>
#include <QtGui/QPen>

#include <algorithm>
#include <cmath>

namespace VxKit {

namespace {

struct LevelWords
{
    Q_DECLARE_TR_FUNCTIONS(VxKit::LevelBar)
};

constexpr double hatchStep = 5.0;
constexpr double fadedShare = 0.45;
/// Thinner bands of a ribbon of many colours could not be told apart.
constexpr double thinnestBand = 2.0;

QList<QColor> colorsOf(const QStringList& names)
{
    QList<QColor> colors;
    for (const QString& name : names) {
        // No other names, as a screen's colour names are not those of a catalogue.
        if (const QColor color(name); name.startsWith(QLatin1Char('#')) && color.isValid())
            colors.append(color);
    }
    return colors;
}

/// One bar while it is drawn.
class BarPainter
{
public:
    BarPainter(QPainter& painter, const QRect& rect, const ViewPalette& palette,
               const QColor& background, Qt::LayoutDirection direction, bool faded)
        : m_painter(painter)
        , m_pixels(painter)
        , m_palette(palette)
        , m_background(background)
        , m_outline(palette.outline(background))
        , m_isRightToLeft(direction == Qt::RightToLeft)
        , m_isFaded(faded)
        , m_box(m_pixels.snapped(rect))
    {
        const double line = m_pixels.lineWidth();
        m_inside = m_box.adjusted(line, line, -line, -line);
    }

    void paintLevel(const QList<QColor>& colors, double ratio) const
    {
        m_pixels.fill(m_inside, m_palette.trough(m_background));
        const double share = std::clamp(ratio, 0.0, 1.0);
        const double end =
            m_pixels.snappedX(m_isRightToLeft ? m_inside.right() - share * m_inside.width()
                                              : m_inside.left() + share * m_inside.width());
        paintColors(m_isRightToLeft ? QRectF(QPointF(end, m_inside.top()), m_inside.bottomRight())
                                    : QRectF(m_inside.topLeft(), QPointF(end, m_inside.bottom())),
                    colors);
        const double line = m_pixels.lineWidth();
        if (share < 1.0)
            m_pixels.verticalLine(m_isRightToLeft ? end - line : end, m_inside.top(),
                                  m_inside.bottom(), m_outline);
        m_pixels.outline(m_box, m_outline);
    }

    void paintUnknown(const QList<QColor>& colors) const
    {
        paintHatch();
        if (!colors.isEmpty()) {
            const double width = std::min(m_inside.height(), m_inside.width() / 4);
            QRectF sample = m_inside;
            if (m_isRightToLeft)
                sample.setLeft(m_pixels.snappedX(sample.right() - width));
            else
                sample.setRight(m_pixels.snappedX(sample.left() + width));
            paintColors(sample, colors);
            m_pixels.verticalLine(m_isRightToLeft ? sample.left() - m_pixels.lineWidth()
                                                  : sample.right(),
                                  sample.top(), sample.bottom(), m_outline);
        }
        m_pixels.outline(m_box, m_outline);
    }

    void paintNothingLoaded() const
    {
        QPen pen(m_outline, m_pixels.lineWidth(), Qt::DashLine, Qt::FlatCap);
        const double half = pen.widthF() / 2;
        m_painter.setPen(pen);
        m_painter.setBrush(Qt::NoBrush);
        m_painter.setRenderHint(QPainter::Antialiasing, false);
        m_painter.drawRect(m_box.adjusted(half, half, -half, -half));
    }

private:
    void paintColors(const QRectF& rect, const QList<QColor>& colors) const
    {
        if (rect.isEmpty())
            return;
        const auto fitting = std::max(qsizetype(1), qsizetype(rect.height() / thinnestBand));
        const qsizetype count = std::min(colors.size(), fitting);
        if (count == 0) // it is not known in which colours
            m_pixels.fill(rect, ViewPalette::mixed(m_outline, m_background, 0.6));
        double top = rect.top();
        for (qsizetype band = 0; band < count; ++band) {
            const double bottom =
                m_pixels.snappedY(rect.top() + rect.height() * static_cast<double>(band + 1) /
                                                   static_cast<double>(count));
            const QColor color = m_isFaded
                                     ? ViewPalette::mixed(colors.at(band), m_background, fadedShare)
                                     : colors.at(band);
            m_pixels.fill(QRectF(rect.left(), top, rect.width(), bottom - top), color);
            top = bottom;
        }
    }

    void paintHatch() const
    {
        m_painter.save();
        m_painter.setClipRect(m_inside, Qt::IntersectClip);
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.setPen(QPen(m_outline, 1.0));
        const double first = m_inside.left() - m_inside.height();
        const int lines = static_cast<int>(std::ceil((m_inside.right() - first) / hatchStep));
        for (int line = 0; line < lines; ++line) {
            const double x = first + line * hatchStep;
            m_painter.drawLine(QPointF(x, m_inside.bottom()),
                               QPointF(x + m_inside.height(), m_inside.top()));
        }
        m_painter.restore();
    }

    QPainter& m_painter;
    DevicePixels m_pixels;
    const ViewPalette& m_palette;
    QColor m_background;
    QColor m_outline;
    bool m_isRightToLeft;
    bool m_isFaded;
    QRectF m_box;
    QRectF m_inside;
};

} // namespace

LevelBar LevelBar::of(const Level& level)
{
    return {level.state, level.colors, level.ratio};
}

void LevelBar::paint(QPainter& painter, const QRect& rect, const ViewPalette& palette,
                     const QColor& background, Qt::LayoutDirection direction, bool faded) const
{
    if (rect.width() < 4 || rect.height() < 4)
        return;
    painter.save();
    const BarPainter bar(painter, rect, palette, background, direction, faded);
    if (state == Level::State::Empty)
        bar.paintNothingLoaded();
    else if (state == Level::State::NotKnown || !ratio)
        bar.paintUnknown(state == Level::State::NotKnown ? QList<QColor>() : colorsOf(colors));
    else
        bar.paintLevel(colorsOf(colors), *ratio);
    painter.restore();
}

QString levelText(const Level& level)
{
    if (level.state == Level::State::Empty)
        return LevelWords::tr("nothing loaded");
    const std::optional<int> percentage = level.percentage();
    if (level.state == Level::State::NotKnown || !percentage)
        return LevelWords::tr("not known");
    return (level.coarse ? LevelWords::tr("about %1 %") : LevelWords::tr("%1 %"))
        .arg(QLocale().toString(*percentage));
}

QString levelAmount(const Level& level)
{
    QStringList amounts;
    if (level.meters)
        amounts.append(LevelWords::tr("%1 m").arg(QLocale().toString(*level.meters, 'f', 1)));
    if (level.labels)
        amounts.append(
            (*level.labels == 1 ? LevelWords::tr("%1 label") : LevelWords::tr("%1 labels"))
                .arg(QLocale().toString(*level.labels)));
    return amounts.join(LevelWords::tr(", ", "between two amounts"));
}

QString levelName(const Level& level)
{
    switch (level.state) {
    case Level::State::Loaded:
        return plainLine(level.name.isEmpty() ? level.sku : level.name);
    case Level::State::NotInCatalogue:
        return level.identifier.isEmpty()
                   ? LevelWords::tr("not in the catalogue")
                   : LevelWords::tr("not in the catalogue (%1)").arg(plainLine(level.identifier));
    case Level::State::NotKnown:
    case Level::State::Empty:
        break;
    }
    return {};
}

QString slotTitle(Slot slot)
{
    switch (slot) {
    case Slot::Supply:
        return LevelWords::tr("Supply");
    case Slot::Ribbon1:
        return LevelWords::tr("Ribbon 1");
    case Slot::Ribbon2:
        return LevelWords::tr("Ribbon 2");
    }
    return {};
}

QString levelSentence(Slot slot, const Level& level)
{
    QStringList parts{levelName(level), levelText(level), levelAmount(level)};
    parts.removeAll(QString());
    return LevelWords::tr("%1: %2", "a slot and what is in it")
        .arg(slotTitle(slot), parts.join(LevelWords::tr(", ", "between two amounts")));
}

} // namespace VxKit
