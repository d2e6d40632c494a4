// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "supplydb_connection.h"

#include "supplydb_pages.h"
#include "supplydb_schema.h"

#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QHash>
#include <QtCore/QMutex>
#include <QtCore/QtEndian>
#include <QtSql/QSqlError>

namespace {

// The header that begins every file in SQLite's format.
constexpr char magic[] = "SQLite format 3"; // with its NUL
constexpr qsizetype fileHeaderSize = 100;
constexpr qsizetype writeVersionOffset = 18;
constexpr qsizetype readVersionOffset = 19;
constexpr qsizetype userVersionOffset = 60;
constexpr qsizetype applicationIdOffset = 68;
constexpr char rollbackJournal = 1;

quint32 numberAt(const QByteArray& header, qsizetype offset)
{
    return qFromBigEndian<quint32>(header.constData() + offset);
}

// Makes checking whether a name is free and taking it one step.
Q_CONSTINIT QBasicMutex namesMutex;

QSqlDatabase addConnection(const QString& wantedName)
{
    const QMutexLocker locker(&namesMutex);
    QString name = wantedName;
    for (int number = 2; QSqlDatabase::contains(name); ++number)
        name = QStringLiteral("%1 (%2)").arg(wantedName).arg(number);
    return QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
}

QString headerFault(const QByteArray& header)
{
    if (header.size() < fileHeaderSize || !header.startsWith(QByteArray(magic, sizeof(magic))))
        return QStringLiteral("not an SQLite database");
    if (numberAt(header, applicationIdOffset) != supplydb_schema::applicationId)
        return QStringLiteral("an SQLite database, but not a supply database");
    const quint32 version = numberAt(header, userVersionOffset);
    if (version != supplydb_schema::schemaVersion)
        return QStringLiteral("schema version %1; only version %2 can be read")
            .arg(version)
            .arg(supplydb_schema::schemaVersion);
    // SQLite creates files beside a database with a write-ahead log, even to read it.
    if (header.at(writeVersionOffset) != rollbackJournal ||
        header.at(readVersionOffset) != rollbackJournal)
        return QStringLiteral("uses a write-ahead log, which cannot be read without writing");
    return {};
}

/// The result of checking a file's pages, with what identifies that state of the file. The header
/// contains SQLite's change counter.
struct CheckedFile
{
    qint64 size = -1;
    qint64 modified = 0;
    QByteArray header{};
    QString fault{};

    bool isSameAs(const CheckedFile& file) const
    {
        return size == file.size && modified == file.modified && header == file.header;
    }
};
Q_CONSTINIT QBasicMutex checkedFilesMutex;
constexpr qsizetype maxCheckedFiles = 16;
// In milliseconds. A file that was written more recently may change again without a new time stamp.
constexpr qint64 modifiedLongAgo = 2000;

QHash<QString, CheckedFile>& checkedFiles()
{
    static QHash<QString, CheckedFile> all;
    return all;
}

// Checks the pages only if the file has changed: a host opens the same file for each printer.
QString pagesFault(QFile& file, const CheckedFile& current)
{
    {
        const QMutexLocker locker(&checkedFilesMutex);
        const auto found = checkedFiles().constFind(file.fileName());
        if (found != checkedFiles().constEnd() && found->isSameAs(current))
            return found->fault;
    }
    CheckedFile checked = current;
    checked.fault = supplydb_pages::fault(file);
    if (QDateTime::currentMSecsSinceEpoch() - checked.modified > modifiedLongAgo) {
        const QMutexLocker locker(&checkedFilesMutex);
        if (checkedFiles().size() >= maxCheckedFiles)
            checkedFiles().clear();
        checkedFiles().insert(file.fileName(), checked);
    }
    return checked.fault;
}

// Why a file is not a supply database that can be read; empty if it is one.
QString fileFault(const QString& path)
{
    const QFileInfo info(path);
    if (!info.isFile())
        return QStringLiteral("no such file");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return QStringLiteral("cannot be read: %1").arg(file.errorString());
    const QByteArray header = file.read(fileHeaderSize);
    const QString fault = headerFault(header);
    if (!fault.isEmpty())
        return fault;
    return pagesFault(file, {.size = info.size(),
                             .modified = info.lastModified().toMSecsSinceEpoch(),
                             .header = header});
}

} // namespace

SupplyDbConnection::~SupplyDbConnection()
{
    close();
}

void SupplyDbConnection::setUp(const QString& path, const QString& connectionName)
{
    close();
    m_fault.clear();
    m_sinceFault.invalidate();
    m_path = path;
    m_name = connectionName;
    m_isSetUp = true;
}

bool SupplyDbConnection::open()
{
    if (m_database.isOpen())
        return true;
    const bool isTooEarly =
        m_sinceFault.isValid() && !m_sinceFault.hasExpired(retryInterval.count());
    if (!m_isSetUp || isTooEarly)
        return false;
    m_fault = tryToOpen();
    if (m_fault.isEmpty())
        return true;
    close();
    m_sinceFault.start();
    return false;
}

QString SupplyDbConnection::tryToOpen()
{
    const QString fault = fileFault(m_path);
    if (!fault.isEmpty())
        return fault;
    m_database = addConnection(m_name);
    // LockWaiter waits instead of SQLite, which would apply its timeout to each statement.
    m_database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=0"));
    m_database.setDatabaseName(m_path);
    if (!m_database.open())
        return m_database.lastError().databaseText();
    return {};
}

void SupplyDbConnection::close()
{
    if (!m_database.isValid())
        return;
    const QString name = m_database.connectionName();
    m_database.close();
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(name);
}
