// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "overview_bar.h"

#include <status_icons.h>
#include <view_palette.h>

#include <QtCore/QEvent>
#include <QtCore/QLocale>
#include <QtWidgets/QStyle>

#include <algorithm>

using VxKit::Severity;

OverviewBar::OverviewBar(QWidget* parent)
    : QWidget(parent)
{
    for (std::size_t number = 0; number < severities.size(); ++number) {
        auto* const button = new QToolButton(this);
        button->setCheckable(true);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setAutoRaise(true);
        connect(button, &QToolButton::clicked, this, [this, number](bool isChecked) {
            const auto severity = isChecked ? std::optional(severities[number]) : std::nullopt;
            setChosen(severity);
            Q_EMIT chosen(severity);
        });
        m_buttons[number] = button;
    }
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    retranslate();
}

void OverviewBar::setCounts(const Counts& counts)
{
    if (std::exchange(m_counts, counts) != counts)
        retranslate();
}

void OverviewBar::setChosen(std::optional<Severity> severity)
{
    for (std::size_t number = 0; number < severities.size(); ++number)
        m_buttons[number]->setChecked(severity == severities[number]);
}

QString OverviewBar::label(Severity severity, int count)
{
    const QString number = QLocale().toString(count);
    switch (severity) {
    case Severity::Error:
        return count == 1 ? tr("%1 error").arg(number) : tr("%1 errors").arg(number);
    case Severity::Warning:
        return count == 1 ? tr("%1 warning").arg(number) : tr("%1 warnings").arg(number);
    case Severity::Information:
        return count == 1 ? tr("%1 notice").arg(number) : tr("%1 notices").arg(number);
    case Severity::Ok:
        return tr("%1 ready").arg(number);
    }
    return {};
}

int OverviewBar::heightForWidth(int width) const
{
    int bottom = -1;
    for (const QRect& each : placesIn(width))
        bottom = std::max(bottom, each.bottom());
    return bottom + 1;
}

QSize OverviewBar::sizeHint() const
{
    const auto places = placesIn(QWIDGETSIZE_MAX);
    return {places.back().right() + 1, heightForWidth(QWIDGETSIZE_MAX)};
}

QSize OverviewBar::minimumSizeHint() const
{
    QSize least;
    for (const QToolButton* const button : m_buttons)
        least = least.expandedTo(button->sizeHint());
    return least;
}

std::array<QRect, OverviewBar::severities.size()> OverviewBar::placesIn(int width) const
{
    const int gap = fontMetrics().averageCharWidth();
    std::array<QRect, severities.size()> places;
    QPoint next;
    int lineHeight = 0;
    for (const QToolButton* const button : m_buttons)
        lineHeight = std::max(lineHeight, button->sizeHint().height());
    for (std::size_t number = 0; number < places.size(); ++number) {
        const int needed = m_buttons[number]->sizeHint().width();
        if (next.x() > 0 && next.x() + needed > width)
            next = {0, next.y() + lineHeight};
        places[number] = QRect(next, QSize(needed, lineHeight));
        next.rx() += needed + gap;
    }
    return places;
}

void OverviewBar::place()
{
    const auto places = placesIn(width());
    for (std::size_t number = 0; number < places.size(); ++number)
        m_buttons[number]->setGeometry(
            QStyle::visualRect(layoutDirection(), rect(), places[number]));
}

void OverviewBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    place();
}

void OverviewBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::PaletteChange ||
        event->type() == QEvent::FontChange)
        retranslate();
    else if (event->type() == QEvent::LayoutDirectionChange)
        place();
}

void OverviewBar::retranslate()
{
    const VxKit::ViewPalette colors(palette());
    const QColor background = palette().window().color();
    for (std::size_t number = 0; number < severities.size(); ++number) {
        QToolButton* const button = m_buttons[number];
        const Severity severity = severities[number];
        const int count = m_counts[number];
        const bool isUrgent =
            count > 0 && (severity == Severity::Error || severity == Severity::Warning);
        button->setText(label(severity, count));
        button->setAccessibleName(button->text());
        button->setToolTip(tr("Show only these printers; press again to show all"));
        button->setIcon(VxKit::statusIcon(VxKit::severityIcon(severity), colors, background));
        QFont font = this->font();
        font.setPointSizeF(font.pointSizeF() * (isUrgent ? 1.3 : 1.1));
        font.setBold(isUrgent);
        button->setFont(font);
        const int side = QFontMetrics(font).height();
        button->setIconSize({side, side});
        QPalette own = palette();
        own.setColor(QPalette::ButtonText, isUrgent    ? colors.severityText(severity, background)
                                           : count > 0 ? colors.text(background)
                                                       : colors.fadedText(background));
        button->setPalette(own);
    }
    updateGeometry();
    place();
}
