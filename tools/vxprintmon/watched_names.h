// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// The printers that `watch` was narrowed to, by the names that they have now. Empty: all printers.
class WatchedNames
{
public:
    explicit WatchedNames(const QStringList& names)
        : m_names(names.cbegin(), names.cend())
    {}

    bool isNarrowed() const { return !m_names.isEmpty(); }
    bool contains(const QString& name) const { return !isNarrowed() || m_names.contains(name); }
    void rename(const QString& oldName, const QString& newName)
    {
        if (m_names.remove(oldName))
            m_names.insert(newName);
    }

private:
    QSet<QString> m_names;
};
