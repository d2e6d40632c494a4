// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ordinary_names.h"

#include <QtCore/QFile>
#include <QtCore/QSet>

namespace VxKit {

namespace {

/// Adds what follows the first `keys` columns of a table. Names with a comma are left out.
void addNames(QSet<QString>& names, const QString& table, qsizetype keys)
{
    QFile file(QStringLiteral(":/vxkit/") + table);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("vxkit: the table %s is missing", qPrintable(table));
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString& line : lines.sliced(1)) {
        if (line.contains(u'"'))
            continue;
        const QStringList fields = line.split(u',').mid(keys);
        for (const QString& field : fields) {
            if (!field.isEmpty())
                names.insert(field);
        }
    }
}

QSet<QString> namesOfTheSampleCatalogue()
{
    constexpr qsizetype keysOfColours = 2;
    constexpr qsizetype keysOfMaterials = 1;
    QSet<QString> names;
    addNames(names, QStringLiteral("colours.csv"), keysOfColours);
    addNames(names, QStringLiteral("materials.csv"), keysOfMaterials);
    return names;
}

} // namespace

bool isOrdinaryName(const QString& text)
{
    static const QSet<QString> names = namesOfTheSampleCatalogue();
    return names.contains(text);
}

} // namespace VxKit
