// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_reading.h"
#include "status_info.h"
#include "view_palette.h"
#include "vxprinterstatuswidgets_export.h"

#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtGui/QIcon>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace VxKit {

/// The icons of the views. They are told apart by their shapes, not only by their colours.
enum class StatusIcon
{
    Ok,             ///< a disc with a tick
    Information,    ///< a square with the letter i
    Warning,        ///< a triangle with an exclamation mark
    Error,          ///< an octagon with a cross
    NotKnown,       ///< a dashed ring with a question mark
    Gone,           ///< a printer that the spooler no longer lists
    Active,         ///< the active printer
    Stale,          ///< a value that is old
    Updating,       ///< a firmware update
    Printer,        ///< a label printer
    Supply,         ///< a roll of labels
    Ribbon,         ///< a ribbon between its two cores
    Loading,        ///< something is being read
    SpoolerStopped, ///< the print spooler is not running
    NoRights,       ///< the user may not do this
    Notices,        ///< notices are shown
    Muted,          ///< notices are not shown
};

/// The icon of a severity.
VX_WIDGETS_EXPORT StatusIcon severityIcon(Severity severity);
/// The icon for the status of a printer: that of its severity, or that it is gone, has not reported
/// yet or updates its firmware.
VX_WIDGETS_EXPORT StatusIcon readingIcon(const PrinterReading& reading);
/// What an icon means, in the application's language, for legends and screen readers.
VX_WIDGETS_EXPORT QString iconName(StatusIcon icon);
/// The colour of an icon on a background: that of the severity which it stands for, or that of
/// text.
VX_WIDGETS_EXPORT QColor iconColor(StatusIcon icon, const ViewPalette& colors,
                                   const QColor& background);

/// Draws an icon in a square in the middle of a rectangle, sharp at any size and scale. Signs
/// inside a filled shape, such as the tick in its disc, have the colour `sign`.
VX_WIDGETS_EXPORT void paintIcon(QPainter& painter, const QRectF& rect, StatusIcon icon,
                                 const QColor& color, const QColor& sign);
/// The same on a background in the colours of the icon.
VX_WIDGETS_EXPORT void paintIcon(QPainter& painter, const QRectF& rect, StatusIcon icon,
                                 const ViewPalette& colors, const QColor& background);

/// An icon for buttons, menus and the tray. It is drawn in whatever size is asked for.
VX_WIDGETS_EXPORT QIcon statusIcon(StatusIcon icon, const ViewPalette& colors,
                                   const QColor& background);

} // namespace VxKit
