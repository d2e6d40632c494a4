// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtWidgets/QLabel>

namespace VxKit {

/// Plain text on as many lines as it needs. Unlike a `QLabel`, it also breaks words that are longer
/// than a line, such as a name of 60 characters without a space, so that it never makes a window
/// wider.
class WrappedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit WrappedLabel(QWidget* parent = nullptr);

    /// Shows a text from elsewhere as one line, or none.
    void setLine(const QString& text);

    /// Is made wide enough for words of so many letters, which are then not broken.
    void keepWordsOf(int letters);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Lays the text out, draws it with a painter if there is one, and returns its height.
    int layOut(int width, QPainter* painter) const;

    int m_keptLetters = 0;
};

} // namespace VxKit
