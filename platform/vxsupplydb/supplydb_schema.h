// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// How a supply database lies in its file: what the reader and the tool that builds it share.
namespace supplydb_schema {

/// Marks an SQLite file as a supply database: the letters "VXSD".
constexpr quint32 applicationId = 0x56585344;
/// Grows with every change that an older reader would misunderstand.
constexpr quint32 schemaVersion = 1;

/// The language that every name is had in, and that stands in where another is missing.
constexpr int fallbackLanguage = 0;

constexpr int maxSkuLength = 40;
constexpr int maxNameLength = 200;
constexpr int maxImageBytes = 256 * 1024;
constexpr int maxKind = 999999;
constexpr int maxRibbonNumber = 100000;

/// What a reader takes. A file is refused in whole that has more.
constexpr qint64 maxFileBytes = qint64{64} << 20;
/// Of supplies, of ribbons, and of the formats of all printer models: these are read in whole.
constexpr qsizetype maxListedRows = 16384;

/// A table or an index as the file itself lists it.
struct Entry
{
    QString type;
    QString name;
    QString table;
    QString sql; ///< null for an index that goes without saying
    bool hasRowIds;
    qsizetype maxRows;
    qsizetype maxRowBytes;
};
const QList<Entry>& entries();
/// Null when there is none of the name.
const Entry* entry(const QString& name);
/// The list of the entries, which is a table too.
const Entry& schemaTable();

/// The statements that make an empty database, one each, in their order.
QStringList statements();

/// Whether a text could be a SKU at all: SKUs are short and of few characters.
bool isSku(const QString& text);

} // namespace supplydb_schema
