// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>
#include <QtSql/QSqlDatabase>

/// A supply database's file, open for reading. Nothing is ever written, beside the file neither.
class SupplyDbConnection
{
public:
    SupplyDbConnection() = default;
    ~SupplyDbConnection();
    Q_DISABLE_COPY_MOVE(SupplyDbConnection)

    /// Says which file to open. Neither is it looked at nor is the connection made yet.
    void setUp(const QString& path, const QString& connectionName);
    /// Opens the file that was set up, at the first call, on a connection of the name that was
    /// given, or of the name with a number behind it where another connection of the process has
    /// it. False when the file cannot be used: fault() says why then.
    bool open();
    /// Statements made on the connection must be gone before.
    void close();

    const QSqlDatabase& database() const { return m_database; }
    QString fault() const { return m_fault; }

    /// Why a file is no supply database that can be read here; empty when its header is in order.
    static QString headerFault(const QString& path);

private:
    QString m_path;
    QString m_name;
    QSqlDatabase m_database;
    QString m_fault;
    bool m_isOpenTried = true; // there is nothing to open yet
};
