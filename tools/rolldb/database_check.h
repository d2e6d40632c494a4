// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "failure.h"

#include <QtCore/QString>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>

#include <functional>
#include <map>

/// How many entries a supply database has.
struct DatabaseCounts
{
    int supplies = 0;
    int ribbons = 0;
    int settings = 0;
    int languages = 0;
};

/// Checks a whole file: SQLite's own structure, the schema, the references, and the rules that the
/// schema's constraints cannot express. Throws a Failure with all that is wrong. Rows are not read
/// if the structure or the schema is wrong.
DatabaseCounts checkDatabase(const QString& path);
/// The same with `name` in place of the path in messages.
DatabaseCounts checkDatabase(const QString& path, const QString& name);

/// Checks an open database, as often as needed.
class DatabaseChecker
{
public:
    /// Messages begin with `name`.
    DatabaseChecker(const QSqlDatabase& database, const QString& name);

    DatabaseCounts check();
    /// Checks everything except the structure, which only another writer could damage.
    DatabaseCounts checkContent();

private:
    void checkStructure();
    void checkSchema();
    QSqlQuery& run(const QString& statement);
    void collect(const QString& statement, const std::function<void(const QSqlQuery&)>& take);
    int count(const char* table);
    QString shownReason(const QString& reason) const;
    Failure failure(const QString& reason) const;

    QSqlDatabase m_database;
    QString m_name;
    /// Each statement is prepared once.
    std::map<QString, QSqlQuery> m_queries;
};
