// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "site_bar.h"

#include "printer_words.h"
#include "shown_text.h"

#include <status_icons.h>
#include <view_palette.h>

#include <QtCore/QEvent>
#include <QtWidgets/QHBoxLayout>

namespace {

/// So many agents are named.
constexpr qsizetype mostNames = 8;

} // namespace

SiteBar::SiteBar(QWidget* parent)
    : QWidget(parent)
{
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(&m_icon, 0, Qt::AlignTop);
    layout->addWidget(&m_text, 1);
    m_text.setWordWrap(true);
    m_text.setTextFormat(Qt::PlainText);
    m_text.setTextInteractionFlags(Qt::TextSelectableByMouse);
    setVisible(false);
}

void SiteBar::show(const Site& site, const SiteState& state)
{
    m_site = site;
    m_state = state;
    retranslate();
}

void SiteBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::PaletteChange)
        retranslate();
}

void SiteBar::retranslate()
{
    QStringList lines;
    if (!m_state.isConnected && m_state.unconnectedSince.isValid())
        lines.append(tr("No connection to the broker since %1. Everything is shown as it was then. "
                        "The connection is tried again.")
                         .arg(printer_words::timeOf(m_state.unconnectedSince)));
    if (!m_state.reason.isEmpty())
        lines.append(shown(m_state.reason));
    const bool isBroken = !lines.isEmpty();
    if (const qsizetype count = m_state.offlineAgents.size(); count > 0) {
        QStringList names;
        for (const QString& name : m_state.offlineAgents.first(std::min(count, mostNames)))
            names.append(shown(name));
        const QString list = names.join(QStringLiteral(", "));
        lines.append(count > mostNames
                         ? tr("Agents offline: %1 and %2 more").arg(list).arg(count - mostNames)
                         : tr("Agents offline: %1").arg(list));
    }
    if (m_state.unreadable > 0)
        lines.append(tr("Messages that cannot be read: %1. The last one: %2")
                         .arg(m_state.unreadable)
                         .arg(m_state.lastUnreadable));
    if (m_state.beyondLimits > 0)
        lines.append(tr("There are more printers or agents than this program shows. Messages left "
                        "out: %1")
                         .arg(m_state.beyondLimits));
    setVisible(!lines.isEmpty());
    m_text.setText(lines.join(u'\n'));
    using VxKit::StatusIcon;
    const StatusIcon icon = isBroken ? StatusIcon::Error : StatusIcon::Warning;
    const VxKit::ViewPalette colors(palette());
    const int side = fontMetrics().height() * 5 / 4;
    m_icon.setPixmap(VxKit::statusIcon(icon, colors, palette().window().color())
                         .pixmap(QSize(side, side), devicePixelRatioF()));
    m_icon.setAccessibleName(VxKit::iconName(icon));
}
