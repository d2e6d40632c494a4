// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>

/// Runs an SQL statement on a database file, through a connection of its own. False when it fails;
/// the reason is then in the test's output.
inline bool runStatement(const QString& path, const QByteArray& statement)
{
    const QString connection = QStringLiteral("runStatement");
    bool isDone = false;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        database.setDatabaseName(path);
        database.open();
        QSqlQuery query(database);
        isDone = query.exec(QString::fromUtf8(statement));
        if (!isDone)
            qWarning("%s", qPrintable(query.lastError().text()));
    }
    QSqlDatabase::removeDatabase(connection);
    return isDone;
}
