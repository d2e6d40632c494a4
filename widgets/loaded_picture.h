// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_reading.h"

#include <QtCore/QByteArray>
#include <QtGui/QImage>
#include <QtWidgets/QWidget>

namespace VxKit {

/// A picture of what is loaded: that of the catalogue, or else a roll or ribbon drawn in its
/// colours.
class LoadedPicture : public QWidget
{
    Q_OBJECT

public:
    /// What a picture may have at most.
    static constexpr qsizetype mostBytes = qsizetype(256) * 1024;
    static constexpr int longestSide = 4096;

    explicit LoadedPicture(Slot slot, QWidget* parent = nullptr);

    /// `picture` is the content of an image file. One that cannot be read counts as none.
    void show(const Level& level, const QByteArray& picture);
    bool hasPicture() const { return !m_image.isNull(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Slot m_slot;
    Level m_level;
    QImage m_image;
};

} // namespace VxKit
