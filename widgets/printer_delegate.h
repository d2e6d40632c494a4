// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "level_bar.h"
#include "status_icons.h"
#include "view_palette.h"

#include <printer_reading.h>

#include <QtCore/QDateTime>
#include <QtCore/QHash>
#include <QtWidgets/QStyledItemDelegate>

#include <array>
#include <functional>
#include <vector>

namespace VxKit {

/// Paints the row of a printer.
class PrinterDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// Where the parts of a row are, from left to right; mirrored for scripts that are written from
    /// right to left. Nothing overlaps.
    struct Layout
    {
        QRect stripe;
        QRect icon;
        QRect name;
        QRect status;
        QRect note; ///< model, presence and age
        struct SlotPart
        {
            QRect title;
            QRect bar;
            QRect text;
        };
        std::array<SlotPart, 3> slotParts;
    };
    static Layout layoutOf(const QRect& row, const QFontMetrics& metrics);
    static int heightOf(int width, const QFontMetrics& metrics);
    /// Whether the levels are below the texts, because there is no room beside them.
    static bool isStacked(int width, const QFontMetrics& metrics);
    static int leastWidth(const QFontMetrics& metrics);

    explicit PrinterDelegate(QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    /// The width of the rows, on which their height depends.
    void setRowWidth(int width) { m_rowWidth = width; }
    /// Forgets what was prepared: the language, the font or the palette is another one.
    void forget();
    /// Tells the time, for tests.
    void setClock(const std::function<QDateTime()>& clock) { m_clock = clock; }

private:
    /// What is painted of a printer, as long as its reading stays the same.
    struct Texts
    {
        PrinterReading reading;
        int width = 0;
        qint64 minute = 0; ///< of the age
        QString name;
        QString status;
        QString note;
        StatusIcon icon = StatusIcon::NotKnown;
        bool isStale = false;
        struct SlotText
        {
            bool exists = false;
            bool isLow = false;
            QString title;
            QString text;
            LevelBar bar;
        };
        std::array<SlotText, 3> slotTexts;
    };
    const Texts& textsOf(const PrinterReading& reading, const Layout& layout,
                         const QFont& font) const;
    static QFont statusFont(const QFont& font, Severity severity);

    std::function<QDateTime()> m_clock;
    mutable QHash<QString, Texts> m_texts;
    int m_rowWidth = 0;
};

} // namespace VxKit
