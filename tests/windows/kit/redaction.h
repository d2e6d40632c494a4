// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// Replaces names of the person, of the computer and of its printers, so that a report can be sent
/// to others.
class Redaction
{
public:
    /// From now on, `name` is replaced by `replacement` wherever it stands alone, in upper or lower
    /// case. Names of a single character and those that were given before are ignored.
    void add(const QString& name, const QString& replacement);

    QString redacted(const QString& text) const;

    /// Each replacement once.
    QStringList replacements() const;

private:
    void addSpelling(const QString& name, const QString& replacement);

    struct Name
    {
        QString text;
        QString replacement;
    };
    QList<Name> m_names; ///< the longest first, because one may be a part of another
};
