// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <status_icons.h>

#include <QtCore/QStringList>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QWidget>

/// What is shown in place of printers: what is the matter, and what to do.
class MessagePage : public QWidget
{
    Q_OBJECT

public:
    enum class Message
    {
        Loading,
        Empty,          ///< the spooler lists no printer of a supported model
        SpoolerStopped, ///< the print spooler is not running
        NoRights,       ///< the user may not manage any of the printers
        Connecting,     ///< to a site's broker
        NothingRead,    ///< from the broker; the detail says why
        NoAgents,       ///< none has published a printer; the detail is where
    };

    explicit MessagePage(QWidget* parent = nullptr);

    void show(Message message, const QString& detail = {});
    Message message() const { return m_message; }
    QString detail() const { return m_detail; }
    /// Everything that is said, without the button.
    QString text() const;

Q_SIGNALS:
    /// The button was pressed: look for printers again, or show them all the same.
    void answered(MessagePage::Message message);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    Message m_message = Message::Loading;
    QString m_detail;
    QLabel m_icon;
    QLabel m_title;
    QLabel m_explanation;
    QPushButton m_button;
};
