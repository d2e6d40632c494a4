// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "loaded_picture.h"

#include "device_pixels.h"
#include "level_bar.h"
#include "status_icons.h"
#include "view_palette.h"

#include <QtCore/QBuffer>
#include <QtGui/QImageReader>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

#include <algorithm>

namespace VxKit {

namespace {

QImage imageOf(QByteArray content)
{
    if (content.isEmpty() || content.size() > LoadedPicture::mostBytes)
        return {};
    QBuffer buffer(&content);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    if (size.isEmpty() || std::max(size.width(), size.height()) > LoadedPicture::longestSide)
        return {};
    return reader.read();
}

} // namespace

LoadedPicture::LoadedPicture(Slot slot, QWidget* parent)
    : QWidget(parent)
    , m_slot(slot)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void LoadedPicture::show(const Level& level, const QByteArray& picture)
{
    m_level = level;
    m_image = imageOf(picture);
    const QString name = levelName(level);
    setAccessibleName(name.isEmpty() ? levelText(level) : name);
    update();
}

QSize LoadedPicture::sizeHint() const
{
    const int side = 3 * QFontMetrics(font()).height();
    return {side, side};
}

void LoadedPicture::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const ViewPalette colors(palette());
    const QColor background = palette().color(QPalette::Window);
    if (hasPicture()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        QSizeF size = QSizeF(m_image.size()).scaled(this->size(), Qt::KeepAspectRatio);
        QRectF box(QPointF(0, 0), size);
        box.moveCenter(QRectF(rect()).center());
        painter.drawImage(box, m_image);
        DevicePixels(painter).outline(box, colors.outline(background));
        return;
    }
    const bool isLoaded =
        m_level.state == Level::State::Loaded || m_level.state == Level::State::NotInCatalogue;
    const StatusIcon icon = m_slot == Slot::Supply ? StatusIcon::Supply : StatusIcon::Ribbon;
    const int line = QFontMetrics(font()).height();
    const QRectF symbol(QRect(0, 0, width(), height() - line / 2));
    paintIcon(painter, symbol.adjusted(4, 2, -4, -4), icon,
              isLoaded ? colors.text(background) : colors.fadedText(background), background);
    // A full bar is a sample of the colours.
    LevelBar sample = LevelBar::of(m_level);
    if (isLoaded)
        sample.ratio = 1.0;
    sample.paint(painter, QRect(0, height() - line / 2, width(), line / 2), colors, background,
                 layoutDirection());
}

} // namespace VxKit
