// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QList>
#include <QtCore/QRect>
#include <QtWidgets/QWidget>

namespace VxKit {

/// What the icons of the printers mean, on as many lines as that needs. An icon and its words are
/// never on two lines, as they may be in a rich text.
class IconLegend : public QWidget
{
    Q_OBJECT

public:
    explicit IconLegend(QWidget* parent = nullptr);

    /// Tells the names of the icons to screen readers in the language of the application.
    void retranslate();

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Where each icon with its name is, in the order of the icons, from left to right.
    QList<QRect> entries(int width) const;
};

} // namespace VxKit
