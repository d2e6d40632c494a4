// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "database_check.h"

#include "tool_text.h"

#include <supplydb_connection.h>
#include <supplydb_schema.h>

#include <QtSql/QSqlError>

#include <array>

namespace {

/// A statement that finds invalid rows. The first column names the row in the message.
struct Rule
{
    const char* found;
    const char* statement;
};
// clang-format off
constexpr std::array rules{
    Rule{QT_TRANSLATE_NOOP("tools", "the panels of ribbon %1 are not numbered consecutively from 1"),
         R"(SELECT r.sku FROM ribbon r LEFT JOIN ribbon_panel p ON p.ribbon_sku = r.sku
            GROUP BY r.sku HAVING count(p.panel) = 0 OR max(p.panel) <> count(p.panel))"},
    Rule{QT_TRANSLATE_NOOP("tools", "%1 is both a supply and a ribbon"),
         "SELECT s.sku FROM supply s JOIN ribbon r ON r.sku = s.sku"},
    Rule{QT_TRANSLATE_NOOP("tools", "supply %1 has a label length and a continuous format, or neither"),
         R"(SELECT s.sku FROM supply s JOIN format f ON f.id = s.format_id
            WHERE (f.type = 'continuous') <> (s.label_length IS NULL))"},
    Rule{QT_TRANSLATE_NOOP("tools", "the formats of the printer model \"%1\" are not numbered consecutively from 0"),
         R"(SELECT model FROM printer_format
            GROUP BY model HAVING max(position) <> count(*) - 1)"},
    Rule{QT_TRANSLATE_NOOP("tools", "the language 0 is \"%1\", not English"),
         "SELECT tag FROM language WHERE id = 0 AND tag <> 'en'"},
    Rule{QT_TRANSLATE_NOOP("tools", "English is missing%1"),
         "SELECT '' WHERE NOT EXISTS (SELECT 1 FROM language WHERE id = 0)"},
};
// clang-format on

} // namespace

DatabaseCounts checkDatabase(const QString& path)
{
    return checkDatabase(path, path);
}

DatabaseCounts checkDatabase(const QString& path, const QString& name)
{
    SupplyDbConnection connection;
    connection.setUp(path, path);
    if (!connection.open())
        throw Failure(QStringLiteral("%1: %2").arg(name, connection.fault()));
    return DatabaseChecker(connection.database(), name).check();
}

DatabaseChecker::DatabaseChecker(const QSqlDatabase& database, const QString& name)
    : m_database(database)
    , m_name(name)
{}

DatabaseCounts DatabaseChecker::check()
{
    checkStructure();
    return checkContent();
}

DatabaseCounts DatabaseChecker::checkContent()
{
    checkSchema();
    if (const QString table = first(QStringLiteral("PRAGMA foreign_key_check")); !table.isNull())
        throw failure(ToolText::tr("a row of %1 refers to a missing row").arg(table));
    for (const Rule& rule : rules) {
        const QString subject = first(QString::fromLatin1(rule.statement));
        if (!subject.isNull())
            throw failure(ToolText::tr(rule.found).arg(subject));
    }
    return {count("supply"), count("ribbon"), count("print_setting"), count("language")};
}

void DatabaseChecker::checkStructure()
{
    const QString answer = first(QStringLiteral("PRAGMA integrity_check(1)"));
    if (answer != QLatin1String("ok"))
        throw failure(ToolText::tr("damaged: %1").arg(answer.section(u'\n', -1)));
}

// SQLite stores the statement that created each table unchanged.
void DatabaseChecker::checkSchema()
{
    QStringList wanted;
    for (const QString& statement : supplydb_schema::statements()) {
        if (statement.startsWith(QLatin1String("CREATE ")))
            wanted.append(statement);
    }
    QStringList found;
    QSqlQuery& query = run(QStringLiteral("SELECT sql FROM sqlite_schema "
                                          "WHERE sql IS NOT NULL AND name NOT GLOB 'sqlite_*'"));
    while (query.next())
        found.append(query.value(0).toString());
    query.finish();
    wanted.sort();
    found.sort();
    if (found != wanted)
        throw failure(ToolText::tr("its tables are not those of schema version %1")
                          .arg(supplydb_schema::schemaVersion));
}

QSqlQuery& DatabaseChecker::run(const QString& statement)
{
    auto [found, isNew] = m_queries.try_emplace(statement, m_database);
    QSqlQuery& query = found->second;
    if (isNew) {
        query.setForwardOnly(true);
        query.prepare(statement);
    }
    if (!query.exec())
        throw failure(ToolText::tr("damaged: %1").arg(query.lastError().databaseText()));
    return query;
}

/// The first column of the first row; null if there is no row.
QString DatabaseChecker::first(const QString& statement)
{
    QSqlQuery& query = run(statement);
    QString text;
    if (query.next()) {
        text = query.value(0).toString();
        if (text.isNull())
            text = QStringLiteral("");
    }
    query.finish();
    return text;
}

int DatabaseChecker::count(const char* table)
{
    return first(QStringLiteral("SELECT count(*) FROM %1").arg(QLatin1String(table))).toInt();
}

Failure DatabaseChecker::failure(const QString& reason) const
{
    return Failure(QStringLiteral("%1: %2").arg(m_name, reason));
}
