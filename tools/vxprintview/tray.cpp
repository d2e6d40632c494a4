// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "tray.h"

#include "shown_text.h"

#include <status_icons.h>
#include <view_palette.h>

#include <QtGui/QGuiApplication>
#include <QtGui/QPalette>

using VxKit::Severity;

Tray::Tray(QObject* parent)
    : QObject(parent)
    , m_open(m_menu.addAction(QString()))
    , m_mute(m_menu.addAction(QString()))
    , m_quit(m_menu.addAction(QString()))
{
    m_mute->setCheckable(true);
    m_icon.setContextMenu(&m_menu);
    connect(m_open, &QAction::triggered, this, &Tray::openRequested);
    connect(m_mute, &QAction::triggered, this, &Tray::muteRequested);
    connect(m_quit, &QAction::triggered, this, &Tray::quitRequested);
    connect(&m_icon, &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick)
                    Q_EMIT openRequested();
            });
    connect(&m_icon, &QSystemTrayIcon::messageClicked, this,
            [this] { Q_EMIT printerRequested(m_toldPrinter); });
    setState(std::nullopt, {});
    retranslate();
}

bool Tray::isAvailable() const
{
    return QSystemTrayIcon::isSystemTrayAvailable();
}

void Tray::show()
{
    if (isAvailable())
        m_icon.show();
}

void Tray::setState(std::optional<Severity> worst, const QString& text)
{
    const QPalette palette = QGuiApplication::palette();
    const VxKit::StatusIcon icon =
        worst ? VxKit::severityIcon(*worst) : VxKit::StatusIcon::NotKnown;
    m_icon.setIcon(VxKit::statusIcon(icon, VxKit::ViewPalette(palette), palette.window().color()));
    m_icon.setToolTip(text);
}

void Tray::setMuted(bool muted)
{
    m_mute->setChecked(muted);
}

void Tray::tell(const Notices::Notice& notice)
{
    m_toldPrinter = notice.printer;
    const QString title =
        notice.printer.isEmpty() ? tr("Printers") : shownAsMessage(notice.printer);
    m_icon.showMessage(title, shownAsMessage(notice.text),
                       notice.severity == Severity::Error ? QSystemTrayIcon::Critical
                                                          : QSystemTrayIcon::Warning);
}

void Tray::retranslate()
{
    m_open->setText(tr("&Open"));
    m_mute->setText(tr("&No notices for an hour"));
    m_quit->setText(tr("&Quit"));
}
