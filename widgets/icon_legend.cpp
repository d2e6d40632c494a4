// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "icon_legend.h"

#include "status_icons.h"
#include "view_palette.h"

#include <QtCore/QStringList>
#include <QtGui/QFontMetrics>
#include <QtGui/QPainter>
#include <QtWidgets/QStyle>

#include <algorithm>
#include <array>

namespace VxKit {

namespace {

constexpr std::array shownIcons{StatusIcon::Error, StatusIcon::Warning,  StatusIcon::Information,
                                StatusIcon::Ok,    StatusIcon::NotKnown, StatusIcon::Gone,
                                StatusIcon::Active};

/// The distances of the legend, all of them parts of the height of a line.
struct Distances
{
    explicit Distances(const QFontMetrics& metrics)
        : icon(metrics.height())
        , margin(metrics.height() / 3)
        , beforeName(metrics.height() / 3)
        , between(metrics.height())
        , line(metrics.height() + metrics.height() / 4)
    {}

    int icon;
    int margin;
    int beforeName;
    int between;
    int line;
};

} // namespace

IconLegend::IconLegend(QWidget* parent)
    : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    retranslate();
}

void IconLegend::retranslate()
{
    QStringList names;
    for (const StatusIcon icon : shownIcons)
        names.append(iconName(icon));
    setAccessibleName(names.join(QStringLiteral(", ")));
    updateGeometry();
    update();
}

int IconLegend::heightForWidth(int width) const
{
    return entries(width).last().bottom() + 1 + Distances(fontMetrics()).margin;
}

QSize IconLegend::sizeHint() const
{
    const int width = 90 * fontMetrics().averageCharWidth();
    return {width, heightForWidth(width)};
}

QSize IconLegend::minimumSizeHint() const
{
    const Distances distances(fontMetrics());
    return {distances.icon + 2 * distances.margin, distances.line + 2 * distances.margin};
}

void IconLegend::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const ViewPalette colors(palette());
    const QColor background = palette().color(QPalette::Window);
    painter.setPen(colors.text(background));
    const Distances distances(fontMetrics());
    const QList<QRect> places = entries(width());
    for (std::size_t number = 0; number < shownIcons.size(); ++number) {
        const QRect entry =
            QStyle::visualRect(layoutDirection(), rect(), places.at(static_cast<int>(number)));
        const QRect icon =
            QStyle::alignedRect(layoutDirection(), Qt::AlignLeading | Qt::AlignVCenter,
                                {distances.icon, distances.icon}, entry);
        paintIcon(painter, icon, shownIcons[number], colors, background);
        QRect text = entry;
        const int used = distances.icon + distances.beforeName;
        if (layoutDirection() == Qt::RightToLeft)
            text.setRight(text.right() - used);
        else
            text.setLeft(text.left() + used);
        const QString name =
            fontMetrics().elidedText(iconName(shownIcons[number]), Qt::ElideRight, text.width());
        painter.drawText(
            text,
            static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) |
                             Qt::AlignVCenter),
            name);
    }
}

QList<QRect> IconLegend::entries(int width) const
{
    const Distances distances(fontMetrics());
    const int widest = std::max(width - 2 * distances.margin, distances.icon);
    QList<QRect> result;
    QPoint place(distances.margin, distances.margin);
    for (const StatusIcon icon : shownIcons) {
        const int wanted = distances.icon + distances.beforeName +
                           fontMetrics().horizontalAdvance(iconName(icon)) + 1;
        const int taken = std::min(wanted, widest);
        if (place.x() > distances.margin && place.x() + taken > distances.margin + widest)
            place = QPoint(distances.margin, place.y() + distances.line);
        result.append(QRect(place, QSize(taken, distances.line)));
        place.rx() += taken + distances.between;
    }
    return result;
}

} // namespace VxKit
