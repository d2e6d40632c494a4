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

    /// Takes the connection name, or the name with a number behind it where another connection of
    /// the process has the name. The file is not looked at.
    void setUp(const QString& path, const QString& connectionName);
    /// Opens the file that was set up, at the first call. False when it cannot be used: fault() says
    /// why then.
    bool open();
    /// Statements made on the connection must be gone before.
    void close();

    const QSqlDatabase& database() const { return m_database; }
    QString fault() const { return m_fault; }

    /// Why a file is no supply database that can be read here; empty when its header is in order.
    static QString headerFault(const QString& path);

private:
    QSqlDatabase m_database;
    QString m_fault;
    bool m_isOpenTried = false;
};
