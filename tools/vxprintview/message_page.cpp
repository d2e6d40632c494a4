// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "message_page.h"

#include <view_palette.h>

#include <QtCore/QEvent>
#include <QtWidgets/QVBoxLayout>

MessagePage::MessagePage(QWidget* parent)
    : QWidget(parent)
{
    auto* const layout = new QVBoxLayout(this);
    layout->addStretch(2);
    layout->addWidget(&m_icon, 0, Qt::AlignHCenter);
    layout->addWidget(&m_title);
    layout->addWidget(&m_explanation);
    layout->addWidget(&m_button, 0, Qt::AlignHCenter);
    layout->addStretch(3);
    for (QLabel* const label : {&m_title, &m_explanation}) {
        label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        label->setWordWrap(true);
        label->setTextFormat(Qt::PlainText);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    }
    connect(&m_button, &QPushButton::clicked, this, [this] { Q_EMIT answered(m_message); });
    retranslate();
}

void MessagePage::show(Message message, const QString& detail)
{
    m_message = message;
    m_detail = detail;
    retranslate();
}

QString MessagePage::text() const
{
    return m_title.text() + QChar(u'\n') + m_explanation.text();
}

void MessagePage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::PaletteChange)
        retranslate();
}

void MessagePage::retranslate()
{
    auto icon = VxKit::StatusIcon::Loading;
    switch (m_message) {
    case Message::Loading:
        m_title.setText(tr("Looking for printers…"));
        m_explanation.setText(tr("The print spooler is asked for its printers. This takes longer "
                                 "when printers in the network do not answer."));
        m_button.setText({});
        break;
    case Message::Empty:
        icon = VxKit::StatusIcon::Printer;
        m_title.setText(tr("No label printer is installed"));
        m_explanation.setText(
            tr("Connect a printer by USB, switch it on, and install its driver. It appears here "
               "by itself. Printers of other makers are not shown."));
        m_button.setText(tr("&Look again"));
        break;
    case Message::SpoolerStopped:
        icon = VxKit::StatusIcon::SpoolerStopped;
        m_title.setText(tr("The print spooler is not running"));
        m_explanation.setText(
            tr("Without it, nothing can be printed and nothing is known of any printer. Start the "
               "service \"Print Spooler\" (services.msc), or start the computer again. The "
               "printers come back by themselves."));
        m_button.setText(tr("&Show the last known state"));
        break;
    case Message::NoRights:
        icon = VxKit::StatusIcon::NoRights;
        m_title.setText(tr("You may not manage these printers"));
        m_explanation.setText(
            tr("Windows tells their state only to people who may manage them. Ask an administrator "
               "for the permission \"Manage this printer\" (printer properties, Security)."));
        m_button.setText(tr("&Show the printers all the same"));
        break;
    case Message::Connecting:
        m_title.setText(tr("Connecting to the broker…"));
        m_explanation.setText(m_detail);
        m_button.setText({});
        break;
    case Message::NothingRead:
        icon = VxKit::StatusIcon::Error;
        m_title.setText(tr("Nothing can be read from the broker"));
        m_explanation.setText(m_detail + QStringLiteral("\n\n") +
                              tr("The connection is tried again, and the printers appear by "
                                 "themselves."));
        m_button.setText({});
        break;
    case Message::NoAgents:
        icon = VxKit::StatusIcon::Printer;
        m_title.setText(tr("No agent has published a printer"));
        m_explanation.setText(
            m_detail + QStringLiteral("\n\n") +
            tr("On each computer with printers, an agent (vxprintagent) publishes "
               "them to this broker. Check that one is running, and that its "
               "configuration names this broker and this site. Printers appear "
               "here by themselves."));
        m_button.setText({});
        break;
    }
    const VxKit::ViewPalette colors(palette());
    const int side = fontMetrics().height() * 4;
    m_icon.setPixmap(VxKit::statusIcon(icon, colors, palette().window().color())
                         .pixmap(QSize(side, side), devicePixelRatioF()));
    m_icon.setAccessibleName(VxKit::iconName(icon));
    QFont font = this->font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    font.setBold(true);
    m_title.setFont(font);
    m_button.setVisible(!m_button.text().isEmpty());
}
