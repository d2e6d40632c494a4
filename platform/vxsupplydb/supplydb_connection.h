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

    /// Opens the file under the connection name, or under the name with a number behind it where
    /// another connection of the process has the name. False when it cannot be used: fault() says
    /// why then.
    bool open(const QString& path, const QString& connectionName);
    /// Statements made on the connection must be gone before.
    void close();

    bool isOpen() const { return m_database.isOpen(); }
    const QSqlDatabase& database() const { return m_database; }
    QString fault() const { return m_fault; }

    /// Why a file is no supply database that can be read here; empty when its header is in order.
    static QString headerFault(const QString& path);

private:
    QSqlDatabase m_database;
    QString m_fault;
};
