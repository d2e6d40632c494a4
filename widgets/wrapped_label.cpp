// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "wrapped_label.h"

#include "plain_line.h"

#include <QtGui/QPainter>
#include <QtGui/QTextLayout>
#include <QtGui/QTextOption>

#include <algorithm>
#include <cmath>

namespace VxKit {

WrappedLabel::WrappedLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void WrappedLabel::setLine(const QString& text)
{
    setText(plainLine(text));
    setVisible(!text.isEmpty());
}

void WrappedLabel::keepWordsOf(int letters)
{
    m_keptLetters = letters;
    updateGeometry();
}

int WrappedLabel::heightForWidth(int width) const
{
    return layOut(width, nullptr);
}

QSize WrappedLabel::sizeHint() const
{
    // Widths of letters are fractions of a pixel, also where the metrics round them down.
    const QFontMetricsF metrics(font());
    const double widest = 50 * metrics.averageCharWidth();
    const int width =
        static_cast<int>(std::ceil(std::min(widest, metrics.horizontalAdvance(text())))) + 1;
    return {width, heightForWidth(width)};
}

QSize WrappedLabel::minimumSizeHint() const
{
    const QFontMetrics metrics(font());
    int longest = 8 * metrics.averageCharWidth();
    const int kept = m_keptLetters * metrics.averageCharWidth();
    const QStringList words = kept > longest ? text().split(u' ') : QStringList();
    for (const QString& word : words)
        longest = std::min(std::max(longest, metrics.horizontalAdvance(word) + 1), kept);
    return {longest, metrics.height()};
}

void WrappedLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    layOut(width(), &painter);
}

int WrappedLabel::layOut(int width, QPainter* painter) const
{
    QTextLayout layout(text(), font());
    QTextOption option(Qt::AlignLeading);
    option.setTextDirection(layoutDirection());
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    double height = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition(QPointF(0, height));
        height += line.height();
    }
    layout.endLayout();
    if (painter)
        layout.draw(painter, QPointF(0, 0));
    return static_cast<int>(std::ceil(height));
}

} // namespace VxKit
