// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "fault.h"

#include <QtCore/QString>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>

#include <map>

/// What a supply database holds, counted.
struct DatabaseCounts
{
    int supplies = 0;
    int ribbons = 0;
    int settings = 0;
    int languages = 0;
};

/// Looks at everything in a file: its structure as SQLite keeps it, its schema, its references, and
/// what no constraint of the schema can express. Throws a Fault for the first thing wrong.
DatabaseCounts checkDatabase(const QString& path);
/// Faults call the file `name`.
DatabaseCounts checkDatabase(const QString& path, const QString& name);

/// The same for a database that is open, any number of times.
class DatabaseChecker
{
public:
    /// Faults call the database `name`.
    DatabaseChecker(const QSqlDatabase& database, const QString& name);

    DatabaseCounts check();
    /// Without the structure, which SQLite keeps in order where nobody else writes.
    DatabaseCounts checkContent();

private:
    void checkStructure();
    void checkSchema();
    QSqlQuery& run(const QString& statement);
    QString first(const QString& statement);
    int count(const char* table);
    Fault fault(const QString& reason) const;

    QSqlDatabase m_database;
    QString m_name;
    /// Prepared once.
    std::map<QString, QSqlQuery> m_queries;
};
