// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QString>
#include <QtSql/QSqlDatabase>

#include <chrono>

/// A supply database's file, open for reading. Nothing is ever written, beside the file neither.
class SupplyDbConnection
{
public:
    /// A file that cannot be used may be there, or in order, a moment later. To look at it for each
    /// question would cost more than the answers of one that is in order.
    static constexpr std::chrono::milliseconds retryInterval{1000};

    SupplyDbConnection() = default;
    ~SupplyDbConnection();
    Q_DISABLE_COPY_MOVE(SupplyDbConnection)

    /// Says which file to open. Neither is it looked at nor is the connection made yet.
    void setUp(const QString& path, const QString& connectionName);
    /// Opens the file that was set up, on a connection of the name that was given, or of the name
    /// with a number behind it where another connection of the process has it. False when the file
    /// cannot be used: fault() says why then, and the file is left alone until `retryInterval` has
    /// passed.
    bool open();
    /// Statements made on the connection must be gone before.
    void close();

    const QSqlDatabase& database() const { return m_database; }
    QString fault() const { return m_fault; }

private:
    QString tryToOpen();

    QString m_path;
    QString m_name;
    QSqlDatabase m_database;
    QString m_fault;
    QElapsedTimer m_sinceFault;
    bool m_isSetUp = false;
};
