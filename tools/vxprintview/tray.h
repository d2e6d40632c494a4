// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "notices.h"

#include <status_info.h>

#include <QtCore/QObject>
#include <QtWidgets/QMenu>
#include <QtWidgets/QSystemTrayIcon>

#include <optional>

/// The icon in the system's tray: the worst state, notices, and what one does without the window.
class Tray : public QObject
{
    Q_OBJECT

public:
    explicit Tray(QObject* parent = nullptr);

    /// Whether there is a tray, so that the window may be closed without ending the program.
    bool isAvailable() const;
    void show();

    /// The worst severity and the words for all of them; no severity while no printer is known.
    void setState(std::optional<VxKit::Severity> worst, const QString& text);
    void setMuted(bool muted);
    void tell(const Notices::Notice& notice);
    void retranslate();
    QString toolTip() const { return m_icon.toolTip(); }
    QIcon icon() const { return m_icon.icon(); }
    QMenu& menu() { return m_menu; }

Q_SIGNALS:
    void openRequested();
    /// A notice was pressed on, or the window is to be opened with a printer.
    void printerRequested(const QString& printer);
    void muteRequested(bool mute);
    void quitRequested();

private:
    QSystemTrayIcon m_icon;
    QMenu m_menu;
    QAction* m_open;
    QAction* m_mute;
    QAction* m_quit;
    QString m_toldPrinter;
};
