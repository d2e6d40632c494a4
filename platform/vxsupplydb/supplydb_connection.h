// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QString>
#include <QtSql/QSqlDatabase>

#include <chrono>

/// A connection for reading a supply database. It never writes to the file or creates files beside
/// it.
class SupplyDbConnection
{
public:
    /// How long an unusable file is left alone. It may become usable later, but checking it before
    /// every query would take longer than querying a usable file.
    static constexpr std::chrono::milliseconds retryInterval{1000};

    SupplyDbConnection() = default;
    ~SupplyDbConnection();
    Q_DISABLE_COPY_MOVE(SupplyDbConnection)

    /// Sets the file to open. Does not access the file or create the connection yet.
    void setUp(const QString& path, const QString& connectionName);
    /// Opens the file if it is not open. If another connection in the process has the name, a
    /// number is appended to it. Returns false if the file cannot be used: fault() then gives the
    /// reason, and the next attempt is made after `retryInterval`.
    bool open();
    /// All statements on the connection must be destroyed first.
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
