// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "notices.h"

#include <QtCore/QByteArray>
#include <QtCore/QSettings>
#include <QtCore/QString>

#include <optional>

/// What the window remembers. What the file says is checked: nothing that is wrong in it has an
/// effect.
class ViewSettings
{
public:
    /// Without a file name, the user's own.
    explicit ViewSettings(const QString& fileName);

    QByteArray geometry() const { return m_settings.value(geometryKey).toByteArray(); }
    QByteArray layout() const { return m_settings.value(layoutKey).toByteArray(); }
    void setWindow(const QByteArray& geometry, const QByteArray& layout);

    QString language() const;
    void setLanguage(const QString& tag);
    /// "light", "dark" or "system".
    QString colors() const;
    void setColors(const QString& colors);
    bool isSortedByName() const { return m_settings.value(sortedByNameKey).toBool(); }
    void setSortedByName(bool byName);
    /// Warn when fewer labels are left; without a value, do not.
    std::optional<int> fewestLabels() const;
    void setFewestLabels(std::optional<int> labels);
    bool staysInTray() const { return m_settings.value(staysInTrayKey, true).toBool(); }
    void setStaysInTray(bool stays);

    void restore(Notices& notices) const;
    void store(const Notices& notices);

    static constexpr int mostLabels = 100000;

private:
    static const QString geometryKey;
    static const QString layoutKey;
    static const QString sortedByNameKey;
    static const QString staysInTrayKey;

    QSettings m_settings;
};
