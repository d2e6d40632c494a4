// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// The format of a supply database: what the reader and the tool that builds it share.
namespace supplydb_schema {

/// Marks an SQLite file as a supply database: the letters "VXSD".
constexpr quint32 applicationId = 0x56585344;
/// Increases with every change that an older reader would misunderstand.
constexpr quint32 schemaVersion = 1;

/// The language that every name has, and that replaces a missing translation.
constexpr int fallbackLanguage = 0;

constexpr int maxSkuLength = 40;
constexpr int maxNameLength = 200;
constexpr int maxImageBytes = 256 * 1024;
constexpr int maxKind = 999999;
constexpr int maxRibbonNumber = 100000;

/// The limits of a reader. It refuses a file that exceeds one.
constexpr qint64 maxFileBytes = qint64{64} << 20;
/// For supplies, for ribbons, and for the formats of all printer models: these tables are read
/// completely.
constexpr qsizetype maxListedRows = 16384;

/// A table or an index as listed in the file itself.
struct Entry
{
    QString type;
    QString name;
    QString table;
    QString sql; ///< null for an index that SQLite creates itself
    bool hasRowIds;
    qsizetype maxRows;
    qsizetype maxRowBytes;
};
const QList<Entry>& entries();
/// The entry with a name; null if there is none.
const Entry* entry(const QString& name);
/// The table that lists the entries.
const Entry& schemaTable();

/// The statements that create an empty database, in the order in which they must run.
QStringList statements();

/// Whether a text has the form of a SKU.
bool isSku(const QString& text);

} // namespace supplydb_schema
