// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "database_check.h"

#include "mistakes.h"
#include "tool_text.h"

#include <supplydb_connection.h>
#include <supplydb_schema.h>

#include <QtSql/QSqlError>
#include <QtSql/QSqlRecord>

#include <array>

namespace {

/// A statement that finds invalid rows. Its columns name the row in the message.
struct Rule
{
    const char* found;
    const char* statement;
};
// clang-format off
constexpr std::array rules{
    Rule{QT_TRANSLATE_NOOP("tools", "a row of %1 refers to a missing row of %2"),
         R"(SELECT DISTINCT "table", parent FROM pragma_foreign_key_check ORDER BY 1, 2)"},
    Rule{QT_TRANSLATE_NOOP("tools", "the panels of ribbon %1 are not numbered consecutively from 1"),
         R"(SELECT r.sku FROM ribbon r LEFT JOIN ribbon_panel p ON p.ribbon_sku = r.sku
            GROUP BY r.sku HAVING count(p.panel) = 0 OR max(p.panel) <> count(p.panel)
            ORDER BY 1)"},
    Rule{QT_TRANSLATE_NOOP("tools", "%1 is both a supply and a ribbon"),
         "SELECT s.sku FROM supply s JOIN ribbon r ON r.sku = s.sku ORDER BY 1"},
    Rule{QT_TRANSLATE_NOOP("tools", "supply %1 has a label length and a continuous format, or neither"),
         R"(SELECT s.sku FROM supply s JOIN format f ON f.id = s.format_id
            WHERE (f.type = 'continuous') <> (s.label_length IS NULL)
            ORDER BY 1)"},
    Rule{QT_TRANSLATE_NOOP("tools", "the formats of the printer model \"%1\" are not numbered consecutively from 0"),
         R"(SELECT model FROM printer_format
            GROUP BY model HAVING max(position) <> count(*) - 1 ORDER BY 1)"},
    Rule{QT_TRANSLATE_NOOP("tools", "the language 0 is \"%1\", not English"),
         "SELECT tag FROM language WHERE id = 0 AND tag <> 'en'"},
    Rule{QT_TRANSLATE_NOOP("tools", "English is missing"),
         "SELECT 1 WHERE NOT EXISTS (SELECT 1 FROM language WHERE id = 0)"},
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
    Mistakes mistakes;
    int number = 0;
    for (const Rule& rule : rules) {
        int subject = 0;
        collect(QString::fromLatin1(rule.statement), [&](const QSqlQuery& row) {
            QString reason = ToolText::tr(rule.found);
            // Both at once: a name may contain "%2".
            if (row.record().count() == 2)
                reason = reason.arg(row.value(0).toString(), row.value(1).toString());
            else if (reason.contains(QLatin1String("%1")))
                reason = reason.arg(row.value(0).toString());
            mistakes.add(number, Mistake(++subject, 0, shownReason(reason)));
        });
        ++number;
    }
    mistakes.throwIfAny();
    return {count("supply"), count("ribbon"), count("print_setting"), count("language")};
}

void DatabaseChecker::checkStructure()
{
    Mistakes mistakes;
    int number = 0;
    collect(QStringLiteral("PRAGMA integrity_check(%1)").arg(Mistakes::most),
            [&](const QSqlQuery& row) {
                const QString answer = row.value(0).toString();
                if (answer != QLatin1String("ok"))
                    mistakes.add(
                        0,
                        Mistake(++number, 0,
                                shownReason(
                                    ToolText::tr("damaged: %1").arg(answer.section(u'\n', -1)))));
            });
    mistakes.throwIfAny();
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
    collect(QStringLiteral("SELECT sql FROM sqlite_schema "
                           "WHERE sql IS NOT NULL AND name NOT GLOB 'sqlite_*'"),
            [&found](const QSqlQuery& row) { found.append(row.value(0).toString()); });
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

void DatabaseChecker::collect(const QString& statement,
                              const std::function<void(const QSqlQuery&)>& take)
{
    QSqlQuery& query = run(statement);
    while (query.next())
        take(query);
    query.finish();
}

int DatabaseChecker::count(const char* table)
{
    int rows = 0;
    collect(QStringLiteral("SELECT count(*) FROM %1").arg(QLatin1String(table)),
            [&rows](const QSqlQuery& row) { rows = row.value(0).toInt(); });
    return rows;
}

QString DatabaseChecker::shownReason(const QString& reason) const
{
    return QStringLiteral("%1: %2").arg(m_name, reason);
}

Failure DatabaseChecker::failure(const QString& reason) const
{
    return Failure(shownReason(reason));
}
