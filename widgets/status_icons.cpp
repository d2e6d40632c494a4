// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "status_icons.h"

#include "svg_drawing.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtGui/QIconEngine>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>

#include <algorithm>
#include <array>
#include <optional>

namespace VxKit {

namespace {

struct IconText
{
    Q_DECLARE_TR_FUNCTIONS(VxKit::StatusIcon)
};

struct IconEntry
{
    StatusIcon icon;
    const char* file;
    const char* name;
};

constexpr std::array icons{
    IconEntry{StatusIcon::Ok, "ok", QT_TRANSLATE_NOOP("VxKit::StatusIcon", "Ready")},
    IconEntry{StatusIcon::Information, "information",
              QT_TRANSLATE_NOOP("VxKit::StatusIcon", "Information")},
    IconEntry{StatusIcon::Warning, "warning", QT_TRANSLATE_NOOP("VxKit::StatusIcon", "Warning")},
    IconEntry{StatusIcon::Error, "error", QT_TRANSLATE_NOOP("VxKit::StatusIcon", "Error")},
    IconEntry{StatusIcon::NotKnown, "not_known",
              QT_TRANSLATE_NOOP("VxKit::StatusIcon", "Not known")},
    IconEntry{StatusIcon::Gone, "gone", QT_TRANSLATE_NOOP("VxKit::StatusIcon", "Removed")},
    IconEntry{StatusIcon::Active, "active",
              QT_TRANSLATE_NOOP("VxKit::StatusIcon", "Active printer")},
    IconEntry{StatusIcon::Stale, "stale", QT_TRANSLATE_NOOP("VxKit::StatusIcon", "Old value")},
    IconEntry{StatusIcon::Updating, "updating",
              QT_TRANSLATE_NOOP("VxKit::StatusIcon", "Firmware update")},
    IconEntry{StatusIcon::Printer, "printer", QT_TRANSLATE_NOOP("VxKit::StatusIcon", "Printer")},
    IconEntry{StatusIcon::Supply, "supply", QT_TRANSLATE_NOOP("VxKit::StatusIcon", "Supply")},
    IconEntry{StatusIcon::Ribbon, "ribbon", QT_TRANSLATE_NOOP("VxKit::StatusIcon", "Ribbon")},
    IconEntry{StatusIcon::Loading, "loading", QT_TRANSLATE_NOOP("VxKit::StatusIcon", "Loading")},
    IconEntry{StatusIcon::SpoolerStopped, "spooler_stopped",
              QT_TRANSLATE_NOOP("VxKit::StatusIcon", "Print spooler stopped")},
    IconEntry{StatusIcon::NoRights, "no_rights",
              QT_TRANSLATE_NOOP("VxKit::StatusIcon", "No permission")},
    IconEntry{StatusIcon::Notices, "notices", QT_TRANSLATE_NOOP("VxKit::StatusIcon", "Notices")},
    IconEntry{StatusIcon::Muted, "muted", QT_TRANSLATE_NOOP("VxKit::StatusIcon", "Notices muted")},
};

const IconEntry& entryOf(StatusIcon icon)
{
    for (const IconEntry& entry : icons) {
        if (entry.icon == icon)
            return entry;
    }
    return entryOf(StatusIcon::NotKnown);
}

const SvgDrawing& drawingOf(StatusIcon icon)
{
    static std::array<std::optional<SvgDrawing>, icons.size()> drawings;
    const IconEntry& entry = entryOf(icon);
    std::optional<SvgDrawing>& drawing =
        drawings.at(static_cast<std::size_t>(&entry - icons.data()));
    if (!drawing) {
        QFile file(
            QStringLiteral(":/vxprinterstatuswidgets/icons/%1.svg").arg(QLatin1String(entry.file)));
        if (file.open(QIODevice::ReadOnly))
            drawing = SvgDrawing::parse(file.readAll());
        if (!drawing) {
            qWarning("The icon \"%s\" cannot be drawn.", entry.file);
            drawing.emplace();
        }
    }
    return *drawing;
}

class StatusIconEngine final : public QIconEngine
{
public:
    StatusIconEngine(StatusIcon icon, const QColor& color, const QColor& sign)
        : m_icon(icon)
        , m_color(color)
        , m_sign(sign)
    {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        painter->save();
        if (mode == QIcon::Disabled)
            painter->setOpacity(painter->opacity() * 0.4);
        paintIcon(*painter, rect, m_icon, m_color, m_sign);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override
    {
        return {{16, 16}, {20, 20}, {24, 24}, {32, 32}, {48, 48}, {64, 64}, {256, 256}};
    }

    QIconEngine* clone() const override { return new StatusIconEngine(m_icon, m_color, m_sign); }

private:
    StatusIcon m_icon;
    QColor m_color;
    QColor m_sign;
};

/// The colour of the sign inside a shape of a colour: as far from it as the background is, or
/// farther.
QColor signColor(const QColor& color, const QColor& background)
{
    return ViewPalette::readable(background, color);
}

} // namespace

StatusIcon severityIcon(Severity severity)
{
    switch (severity) {
    case Severity::Ok:
        return StatusIcon::Ok;
    case Severity::Information:
        return StatusIcon::Information;
    case Severity::Warning:
        return StatusIcon::Warning;
    case Severity::Error:
        break;
    }
    return StatusIcon::Error;
}

StatusIcon readingIcon(const PrinterReading& reading)
{
    if (reading.isNull())
        return StatusIcon::NotKnown;
    if (reading.presence() == PrinterReading::Presence::Gone)
        return StatusIcon::Gone;
    if (reading.statusCode() == VXPrinting::StatusCodes::unknown)
        return StatusIcon::NotKnown;
    if (statusKey(reading.statusCode()) == QLatin1String("firmware_updating"))
        return StatusIcon::Updating;
    return severityIcon(statusSeverity(reading.statusCode()));
}

QString iconName(StatusIcon icon)
{
    return IconText::tr(entryOf(icon).name);
}

QColor iconColor(StatusIcon icon, const ViewPalette& colors, const QColor& background)
{
    switch (icon) {
    case StatusIcon::Ok:
        return colors.severityText(Severity::Ok, background);
    case StatusIcon::Information:
    case StatusIcon::Updating:
        return colors.severityText(Severity::Information, background);
    case StatusIcon::Warning:
        return colors.severityText(Severity::Warning, background);
    case StatusIcon::Error:
        return colors.severityText(Severity::Error, background);
    case StatusIcon::NotKnown:
    case StatusIcon::Gone:
    case StatusIcon::Stale:
        return colors.fadedText(background);
    default:
        return colors.text(background);
    }
}

void paintIcon(QPainter& painter, const QRectF& rect, StatusIcon icon, const QColor& color,
               const QColor& sign)
{
    const double side = std::min(rect.width(), rect.height());
    QRectF square(0, 0, side, side);
    square.moveCenter(rect.center());
    drawingOf(icon).paint(painter, square, color, sign);
}

void paintIcon(QPainter& painter, const QRectF& rect, StatusIcon icon, const ViewPalette& colors,
               const QColor& background)
{
    const QColor color = iconColor(icon, colors, background);
    paintIcon(painter, rect, icon, color, signColor(color, background));
}

QIcon statusIcon(StatusIcon icon, const ViewPalette& colors, const QColor& background)
{
    const QColor color = iconColor(icon, colors, background);
    return QIcon(new StatusIconEngine(icon, color, signColor(color, background)));
}

} // namespace VxKit
