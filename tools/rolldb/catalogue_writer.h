// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "catalogue.h"

#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>

/// Creates the database file of a catalogue. The file is created and checked in a temporary folder
/// and then replaces an existing file atomically: the path always has either the complete old file
/// or the complete new one. The same catalogue always gives the same bytes, in whatever order its
/// rows are. Throws a Failure on failure, which leaves the old file unchanged.
void writeDatabase(const Catalogue& catalogue, const QString& path);

/// Creates the tables in an empty database. Throws a Failure if SQLite reports an error.
void createTables(const QSqlDatabase& database);

/// Fills empty tables. One writer can write several catalogues if the rows are removed in between.
class CatalogueWriter
{
public:
    explicit CatalogueWriter(const QSqlDatabase& database);

    /// Throws a Failure if SQLite reports an error.
    void write(const Catalogue& catalogue);

private:
    /// A prepared statement that inserts rows into one table.
    class Insert
    {
    public:
        Insert(const QSqlDatabase& database, const char* table, int columns);
        void row(const QVariantList& values);

    private:
        QSqlQuery m_query;
    };

    QVariant writeName(const Name& name);
    void writeVocabulary(const Catalogue& catalogue);
    void writeSupplies(const Catalogue& catalogue);
    void writeRibbons(const Catalogue& catalogue);

    Insert m_language;
    Insert m_name;
    Insert m_translation;
    Insert m_colour;
    Insert m_material;
    Insert m_format;
    Insert m_printerFormat;
    Insert m_background;
    Insert m_supply;
    Insert m_supplyKind;
    Insert m_ribbon;
    Insert m_ribbonPanel;
    Insert m_ribbonNumber;
    Insert m_printSetting;
    qsizetype m_names = 0;
};
