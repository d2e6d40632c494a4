// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "catalogue.h"

#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>

/// Makes the database file of a catalogue. It is made and checked elsewhere and then takes the
/// place of a file that is there already, at once: whoever opens the path finds the old one or the
/// new one in whole. The same catalogue gives the same bytes. Throws a Fault where it cannot be
/// done; the old file is as it was then.
void writeDatabase(const Catalogue& catalogue, const QString& path);

/// Makes the tables of an empty database. Throws a Fault for what SQLite refuses.
void createTables(const QSqlDatabase& database);

/// Fills empty tables. For any number of catalogues, each after the rows of the one before are
/// gone.
class CatalogueWriter
{
public:
    explicit CatalogueWriter(const QSqlDatabase& database);

    /// Throws a Fault for what SQLite refuses.
    void write(const Catalogue& catalogue);

private:
    /// A statement that puts one row after the other into a table.
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
