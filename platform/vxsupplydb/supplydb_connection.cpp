// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "supplydb_connection.h"

#include "supplydb_schema.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QMutex>
#include <QtCore/QtEndian>
#include <QtSql/QSqlError>

#include <utility>

namespace {

// What SQLite's file format has in the first bytes of every file.
constexpr char Magic[] = "SQLite format 3"; // with its NUL
constexpr qsizetype HeaderSize = 100;
constexpr qsizetype WriteVersionOffset = 18;
constexpr qsizetype ReadVersionOffset = 19;
constexpr qsizetype UserVersionOffset = 60;
constexpr qsizetype ApplicationIdOffset = 68;
constexpr char RollbackJournal = 1;

quint32 numberAt(const QByteArray& header, qsizetype offset)
{
    return qFromBigEndian<quint32>(header.constData() + offset);
}

// Asking whether a name is free and taking it must not be parted by another thread.
Q_CONSTINIT QBasicMutex namesMutex;

QSqlDatabase addConnection(const QString& wantedName)
{
    const QMutexLocker locker(&namesMutex);
    QString name = wantedName;
    for (int number = 2; QSqlDatabase::contains(name); ++number)
        name = QStringLiteral("%1 (%2)").arg(wantedName).arg(number);
    return QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
}

} // namespace

SupplyDbConnection::~SupplyDbConnection()
{
    close();
}

QString SupplyDbConnection::headerFault(const QString& path)
{
    if (!QFileInfo(path).isFile())
        return QStringLiteral("no such file");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return QStringLiteral("cannot be read: %1").arg(file.errorString());
    const QByteArray header = file.read(HeaderSize);
    if (header.size() < HeaderSize || !header.startsWith(QByteArray(Magic, sizeof(Magic))))
        return QStringLiteral("not an SQLite database");
    if (numberAt(header, ApplicationIdOffset) != SupplyDbSchema::ApplicationId)
        return QStringLiteral("an SQLite database, but not a supply database");
    const quint32 version = numberAt(header, UserVersionOffset);
    if (version != SupplyDbSchema::Version)
        return QStringLiteral("of schema version %1, where version %2 can be read")
            .arg(version)
            .arg(SupplyDbSchema::Version);
    // SQLite makes files beside one with a write-ahead log, even to read it.
    if (header.at(WriteVersionOffset) != RollbackJournal ||
        header.at(ReadVersionOffset) != RollbackJournal)
        return QStringLiteral("kept with a write-ahead log, which cannot be read without writing");
    return {};
}

void SupplyDbConnection::setUp(const QString& path, const QString& connectionName)
{
    close();
    m_fault.clear();
    m_path = path;
    m_name = connectionName;
    m_isOpenTried = false;
}

bool SupplyDbConnection::open()
{
    if (std::exchange(m_isOpenTried, true))
        return m_database.isOpen();
    m_fault = headerFault(m_path);
    if (!m_fault.isEmpty())
        return false;
    m_database = addConnection(m_name);
    // Whoever holds the file locked must not hold up the thread that asks.
    m_database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=100"));
    m_database.setDatabaseName(m_path);
    if (m_database.open())
        return true;
    m_fault = m_database.lastError().databaseText();
    close();
    return false;
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
