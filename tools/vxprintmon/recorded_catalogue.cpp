// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "recorded_catalogue.h"

#include "failure.h"
#include "tool_text.h"

#include <supplydb_schema.h>

#include <QtCore/QHash>
#include <QtCore/QScopeGuard>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtSql/QSqlRecord>

namespace {

using virtualwindows::CatalogueRow;

class Writer
{
public:
    Writer(const QSqlDatabase& database, const QString& caseFile)
        : m_database(database)
        , m_caseFile(caseFile)
    {}

    void write(const QList<CatalogueRow>& rows)
    {
        // Only rows that were needed were recorded, so some refer to rows that are missing.
        QStringList statements{
            QStringLiteral("PRAGMA journal_mode = OFF"), QStringLiteral("PRAGMA synchronous = OFF"),
            QStringLiteral("PRAGMA foreign_keys = OFF"), QStringLiteral("BEGIN")};
        statements += supplydb_schema::statements();
        for (const QString& statement : std::as_const(statements))
            run(statement);
        for (const CatalogueRow& row : rows)
            insert(row);
        run(QStringLiteral("COMMIT"));
    }

private:
    void run(const QString& statement)
    {
        QSqlQuery query(m_database);
        if (!query.exec(statement))
            throw Failure(
                ToolText::tr("%1: its catalogue cannot be written to a temporary file: %2")
                    .arg(m_caseFile, query.lastError().databaseText()));
    }

    void insert(const CatalogueRow& row)
    {
        const auto* const table = supplydb_schema::entry(row.table);
        if (!table || table->type != QLatin1String("table"))
            return; // of a newer format
        QStringList columns;
        QVariantList values;
        const QSqlRecord& known = columnsOf(row.table);
        for (auto column = row.columns.cbegin(); column != row.columns.cend(); ++column) {
            if (!known.contains(column.key()))
                continue;
            columns.append(column.key());
            values.append(*column);
        }
        QSqlQuery query(m_database);
        // A row that was needed twice is recorded twice.
        const QString marks = QStringList(columns.size(), QStringLiteral("?")).join(u',');
        const bool isDone =
            query.prepare(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3) ON CONFLICT DO NOTHING")
                              .arg(row.table, columns.join(u','), marks)) &&
            executed(query, values);
        if (!isDone)
            throw Failure(ToolText::tr("%1:%2: a row does not fit the table \"%3\" of a "
                                       "catalogue: %4")
                              .arg(m_caseFile)
                              .arg(row.line)
                              .arg(row.table, query.lastError().databaseText()));
    }

    static bool executed(QSqlQuery& query, const QVariantList& values)
    {
        for (const QVariant& value : values)
            query.addBindValue(value);
        return query.exec();
    }

    const QSqlRecord& columnsOf(const QString& table)
    {
        const auto known = m_columns.constFind(table);
        return known != m_columns.cend() ? *known
                                         : *m_columns.insert(table, m_database.record(table));
    }

    QSqlDatabase m_database;
    QString m_caseFile;
    QHash<QString, QSqlRecord> m_columns;
};

} // namespace

RecordedCatalogue::RecordedCatalogue(const QList<CatalogueRow>& rows, const QString& caseFile)
{
    if (!m_folder.isValid())
        throw Failure(QStringLiteral("%1: %2").arg(m_folder.path(), m_folder.errorString()));
    const QString connection = file();
    const auto removeConnection =
        qScopeGuard([connection] { QSqlDatabase::removeDatabase(connection); });
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
    database.setDatabaseName(file());
    if (!database.open())
        throw Failure(ToolText::tr("%1: its catalogue cannot be written to a temporary file: %2")
                          .arg(caseFile, database.lastError().databaseText()));
    Writer(database, caseFile).write(rows);
    database.close();
}

QString RecordedCatalogue::file() const
{
    return m_folder.filePath(QStringLiteral("roll.db"));
}
