// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "usage_database.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtSql/QSqlRecord>

#include <array>
#include <atomic>
#include <span>

namespace VxKit {

namespace {

/// Qt looks for its database drivers when they are first needed, and uses a regular expression for
/// the names of their files. A thread that has used one crashes as it ends in programs that MinGW
/// built: it releases the stack of the expression's compiled code after the storage that this stack
/// is kept in. So the main thread looks for them, before the threads that read and write.
void findDatabaseDrivers()
{
    QSqlDatabase::drivers();
}
Q_COREAPP_STARTUP_FUNCTION(findDatabaseDrivers)

using Why = UsageFailure::Why;

/// Marks a file as a history: the letters "VXUH".
constexpr qint64 applicationId = 0x56585548;
/// A larger file is not read: checking it would take long.
constexpr qint64 largestFile = qint64(1) << 30;
constexpr char magic[] = "SQLite format 3"; // with its NUL

// SQLite result codes. The low byte of an extended code is its primary code.
constexpr int sqliteBusy = 5;
constexpr int sqliteCorrupt = 11;
constexpr int sqliteNotADatabase = 26;
constexpr int primaryCodeMask = 0xff;

// How the schema came to be: the statements that lead from each version to the next one. A new
// version appends to the list, and nothing in it is changed after a release.
//
// Times are seconds since 1970 in UTC. Levels are in the unit of their segment: 0 is a mileage in
// millimetres, which is so much larger than what is left as `excess` says, and 1 is whole percents.
// `chunk.samples` is described in usage_samples.h. The key of a chunk is the number of its segment
// times 2^20 plus its own number in the segment, so that those of one segment stand together.
constexpr std::array statementsOfVersion1{
    "CREATE TABLE printer(id INTEGER PRIMARY KEY, key TEXT NOT NULL UNIQUE, name TEXT NOT NULL)",
    "CREATE TABLE item(id INTEGER PRIMARY KEY, ribbon INTEGER NOT NULL, identifier TEXT NOT NULL, "
    "sku TEXT NOT NULL, name TEXT NOT NULL, material TEXT NOT NULL, total INTEGER, excess INTEGER, "
    "UNIQUE(ribbon, identifier))",
    "CREATE TABLE segment(id INTEGER PRIMARY KEY, printer INTEGER NOT NULL, slot INTEGER NOT NULL, "
    "item INTEGER NOT NULL, unit INTEGER NOT NULL, loaded INTEGER NOT NULL, "
    "first_time INTEGER NOT NULL, last_time INTEGER NOT NULL, first_level INTEGER NOT NULL, "
    "last_level INTEGER NOT NULL, lowest_level INTEGER NOT NULL, first_labels INTEGER, "
    "last_labels INTEGER)",
    "CREATE INDEX segment_of_slot ON segment(printer, slot)",
    "CREATE TABLE chunk(id INTEGER PRIMARY KEY, detail INTEGER NOT NULL, "
    "last_time INTEGER NOT NULL, samples BLOB NOT NULL)",
    "CREATE INDEX chunk_to_thin ON chunk(detail, last_time) WHERE detail < 2",
    "CREATE TABLE gap(since INTEGER NOT NULL, until INTEGER NOT NULL, samples INTEGER NOT NULL)",
    "CREATE TABLE setting(name TEXT PRIMARY KEY, value INTEGER NOT NULL) WITHOUT ROWID",
};
using Statements = std::span<const char* const>;
constexpr std::array<Statements, 1> versions{Statements(statementsOfVersion1)};

/// A name for a connection that no other one has.
QString freeConnectionName()
{
    static std::atomic<quint64> count = 0;
    return QStringLiteral("VxKit history %1").arg(++count);
}

/// Throws unless the file begins as SQLite's do. It may be empty.
void checkBeginning(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        throw UsageFailure{Why::Failed, QStringLiteral("%1: %2").arg(path, file.errorString())};
    const QByteArray wanted(magic, sizeof(magic));
    const QByteArray found = file.read(wanted.size());
    if (found != wanted && file.size() > 0)
        throw UsageFailure{Why::Damaged, UsageText::tr("%1: not an SQLite database").arg(path)};
}

} // namespace

UsageDatabase::UsageDatabase(const QString& path, Access access)
    : m_path(path)
    , m_connection(freeConnectionName())
{
    try {
        open(access);
    } catch (const UsageFailure&) {
        m_queries.clear();
        m_database = QSqlDatabase();
        QSqlDatabase::removeDatabase(m_connection);
        throw;
    }
}

UsageDatabase::~UsageDatabase()
{
    m_queries.clear();
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_connection);
}

int UsageDatabase::version()
{
    return static_cast<int>(versions.size());
}

void UsageDatabase::open(Access access)
{
    const QFileInfo file(m_path);
    if (file.exists()) {
        if (!file.isFile())
            throw UsageFailure{Why::Foreign, UsageText::tr("%1: not a file").arg(m_path)};
        if (file.size() > largestFile)
            throw UsageFailure{Why::Foreign, UsageText::tr("%1: larger than 1 GiB").arg(m_path)};
        checkBeginning(m_path);
    } else if (access == Access::Read) {
        throw UsageFailure{Why::Missing, UsageText::tr("%1: no such file").arg(m_path)};
    }

    m_database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection);
    m_database.setDatabaseName(m_path);
    m_database.setConnectOptions(
        access == Access::Read ? QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=2000")
                               : QStringLiteral("QSQLITE_BUSY_TIMEOUT=1000"));
    if (!m_database.open())
        fail(m_database.lastError());
    run("PRAGMA trusted_schema = OFF");
    run("PRAGMA cell_size_check = ON");
    if (access == Access::Write) {
        run("PRAGMA synchronous = NORMAL");
        migrate();
        // The file can be read while it is written, and a commit writes few pages.
        run("PRAGMA journal_mode = WAL");
        run("PRAGMA wal_autocheckpoint = 128");
        run("PRAGMA journal_size_limit = 524288");
        run("PRAGMA cache_size = -512"); // KiB
    } else {
        run("BEGIN"); // the checks and what they check belong together
        check();
        const qint64 found = number("PRAGMA user_version");
        run("COMMIT");
        if (found < version())
            throw UsageFailure{
                Why::Missing,
                UsageText::tr("%1: not yet in the format of this version").arg(m_path)};
    }
}

/// Throws unless it is a history of this version or, to be migrated, of an older one.
void UsageDatabase::check()
{
    const qint64 found = number("PRAGMA user_version");
    const qint64 id = number("PRAGMA application_id");
    const qint64 tables = number("SELECT count(*) FROM sqlite_schema");
    if (id != applicationId && (id != 0 || found != 0 || tables != 0))
        throw UsageFailure{Why::Foreign,
                           UsageText::tr("%1: a database of another program").arg(m_path)};
    if (found > version())
        throw UsageFailure{
            Why::Foreign,
            UsageText::tr("%1: written by a newer version (its format is %2; this version knows "
                          "formats up to %3)")
                .arg(m_path)
                .arg(found)
                .arg(version())};
    const QList<QVariantList> faults = rows("PRAGMA quick_check(1)");
    const QString fault = faults.isEmpty() ? QString() : faults.first().value(0).toString();
    if (fault != QLatin1String("ok"))
        throw UsageFailure{Why::Damaged,
                           QStringLiteral("%1: %2").arg(m_path, fault.simplified().left(200))};

    // Another schema could make SQLite compute anything.
    QStringList wanted;
    for (qint64 old = 0; old < found; ++old) {
        for (const char* const statement : versions.at(static_cast<std::size_t>(old)))
            wanted.append(QString::fromLatin1(statement));
    }
    QStringList present;
    const QList<QVariantList> schema =
        rows("SELECT sql FROM sqlite_schema WHERE sql IS NOT NULL LIMIT 100");
    for (const QVariantList& row : schema)
        present.append(row.value(0).toString());
    wanted.sort();
    present.sort();
    if (wanted != present)
        throw UsageFailure{Why::Damaged,
                           UsageText::tr("%1: not the tables of a history").arg(m_path)};
}

/// Brings an older file up to date, an empty one to the first version and on, or fails and leaves
/// it as it was.
void UsageDatabase::migrate()
{
    UsageTransaction transaction(*this);
    check();
    const qint64 found = number("PRAGMA user_version");
    for (qint64 next = found + 1; next <= version(); ++next) {
        for (const char* const statement : versions.at(static_cast<std::size_t>(next - 1)))
            run(statement);
    }
    if (found < version()) {
        const auto set = [this](const char* name, qint64 value) {
            QSqlQuery query(m_database);
            if (!query.exec(QStringLiteral("PRAGMA %1 = %2").arg(QLatin1String(name)).arg(value)))
                fail(query.lastError());
        };
        set("application_id", applicationId);
        set("user_version", version());
    }
    transaction.commit();
}

QSqlQuery& UsageDatabase::execute(const char* sql, Values values)
{
    auto found = m_queries.find(sql);
    if (found == m_queries.end()) {
        QSqlQuery query(m_database);
        query.setForwardOnly(true);
        if (!query.prepare(QString::fromLatin1(sql)))
            fail(query.lastError());
        found = m_queries.insert(sql, query);
    }
    QSqlQuery& query = *found;
    int place = 0;
    for (const QVariant& value : values) {
        // SQL would take a text without a value for NULL.
        const bool isText = value.metaType() == QMetaType::fromType<QString>();
        query.bindValue(place++,
                        isText && value.toString().isNull() ? QVariant(QStringLiteral("")) : value);
    }
    if (!query.exec()) {
        const QSqlError error = query.lastError();
        query.finish();
        fail(error);
    }
    return query;
}

void UsageDatabase::finish(QSqlQuery& query)
{
    m_lastRow = query.lastInsertId().toLongLong();
    query.finish();
}

QList<QVariantList> UsageDatabase::rows(const char* sql, Values values)
{
    QSqlQuery& query = execute(sql, values);
    QList<QVariantList> rows;
    const int columns = static_cast<int>(query.record().count());
    while (query.next()) {
        QVariantList row;
        row.reserve(columns);
        for (int column = 0; column < columns; ++column)
            row.append(query.value(column));
        rows.append(row);
    }
    const QSqlError error = query.lastError();
    query.finish();
    if (error.isValid())
        fail(error);
    return rows;
}

qint64 UsageDatabase::number(const char* sql, Values values)
{
    const QList<QVariantList> found = rows(sql, values);
    return found.isEmpty() ? 0 : found.first().value(0).toLongLong();
}

qint64 UsageDatabase::usedBytes()
{
    return (number("PRAGMA page_count") - number("PRAGMA freelist_count")) *
           number("PRAGMA page_size");
}

void UsageDatabase::fail(const QSqlError& error) const
{
    const int code = error.nativeErrorCode().toInt() & primaryCodeMask;
    const bool isDamaged = code == sqliteCorrupt || code == sqliteNotADatabase;
    QString words = error.databaseText().isEmpty() ? error.driverText() : error.databaseText();
    if (code == sqliteBusy)
        words = UsageText::tr("another program is using it");
    throw UsageFailure{isDamaged ? Why::Damaged : Why::Failed,
                       QStringLiteral("%1: %2").arg(m_path, words)};
}

UsageTransaction::~UsageTransaction()
{
    if (!m_isOpen)
        return;
    try {
        m_database.run("ROLLBACK");
    } catch (const UsageFailure&) {
        // SQLite has undone it already, or does when the file is opened the next time.
    }
}

} // namespace VxKit
