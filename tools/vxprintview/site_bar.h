// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <site_source.h>

#include <QtWidgets/QLabel>
#include <QtWidgets/QWidget>

/// What people must know of the source of a site's printers: that there is no connection, which
/// agents are offline, what could not be read. Without any of that it is not visible.
class SiteBar : public QWidget
{
    Q_OBJECT

public:
    explicit SiteBar(QWidget* parent = nullptr);

    void show(const Site& site, const SiteState& state);
    /// Everything that is said, in lines.
    QString text() const { return m_text.text(); }

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    Site m_site;
    SiteState m_state;
    QLabel m_icon;
    QLabel m_text;
};
