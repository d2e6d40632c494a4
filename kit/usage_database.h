// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>

#include <initializer_list>

namespace VxKit {

/// What a history says to people.
struct UsageText
{
    Q_DECLARE_TR_FUNCTIONS(VxKit::UsageHistory)
};

/// A printer without a serial number is known by its name, which is told apart from these by this.
inline constexpr QLatin1String namePrefix("name:");
inline QString keyOfName(const QString& printer)
{
    return namePrefix + printer;
}

/// Thrown when the file of a history cannot be used.
struct UsageFailure
{
    enum class Why
    {
        Missing, ///< there is none to read
        Damaged, ///< a new file can take its place
        Foreign, ///< somebody else's, or of another version: it must stay as it is
        Failed,  ///< the disk is full, say: it may work later
    };
    Why why = Why::Failed;
    QString reason;
};

/// The file of a history: an open SQLite database whose schema is the one that this version knows.
/// It belongs to the thread on which it was created. All members throw `UsageFailure`.
class UsageDatabase
{
public:
    enum class Access
    {
        Read,
        Write, ///< creates the file, and brings an old one up to date
    };
    UsageDatabase(const QString& path, Access access);
    ~UsageDatabase();
    Q_DISABLE_COPY_MOVE(UsageDatabase)

    using Values = std::initializer_list<QVariant>;
    /// Runs a statement, which is prepared once. `sql` is a literal.
    void run(const char* sql, Values values = {}) { finish(execute(sql, values)); }
    /// All rows of a query.
    QList<QVariantList> rows(const char* sql, Values values = {});
    /// The number in the first column of the first row; 0 without a row.
    qint64 number(const char* sql, Values values = {});
    /// The key of the row that was inserted last.
    qint64 lastRow() const { return m_lastRow; }

    /// The bytes of the file that are in use.
    qint64 usedBytes();

    /// The version of the format that this version of the library writes.
    static int version();

private:
    QSqlQuery& execute(const char* sql, Values values);
    void finish(QSqlQuery& query);
    [[noreturn]] void fail(const QSqlError& error) const;
    void open(Access access);
    void migrate();
    void check();

    QString m_path;
    QString m_connection;
    QSqlDatabase m_database{};
    QHash<const char*, QSqlQuery> m_queries{};
    qint64 m_lastRow = 0;
};

/// A transaction that is undone unless it is committed.
class UsageTransaction
{
public:
    explicit UsageTransaction(UsageDatabase& database)
        : m_database(database)
    {
        m_database.run("BEGIN IMMEDIATE");
    }
    ~UsageTransaction();
    Q_DISABLE_COPY_MOVE(UsageTransaction)

    void commit()
    {
        m_database.run("COMMIT");
        m_isOpen = false;
    }

private:
    UsageDatabase& m_database;
    bool m_isOpen = true;
};

} // namespace VxKit
