// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QFile>
#include <QtCore/QString>

#include <sqlite3.h>

#include <stdexcept>

/// The floors' access to the supply database: a thin layer over SQLite's C interface.

class SqliteFile
{
public:
    explicit SqliteFile(const QString& path)
    {
        if (sqlite3_open_v2(QFile::encodeName(path).constData(), &m_file, SQLITE_OPEN_READONLY,
                            nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(m_file));
    }
    ~SqliteFile() { sqlite3_close(m_file); }
    Q_DISABLE_COPY_MOVE(SqliteFile)

    operator sqlite3*() const { return m_file; }

private:
    sqlite3* m_file = nullptr;
};

class SqliteStatement
{
public:
    SqliteStatement(sqlite3* file, const char* sql)
    {
        if (sqlite3_prepare_v2(file, sql, -1, &m_statement, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(file));
    }
    ~SqliteStatement() { sqlite3_finalize(m_statement); }
    Q_DISABLE_COPY_MOVE(SqliteStatement)

    /// The text must exist until the statement is reset.
    void bind(int place, const QString& text)
    {
        sqlite3_bind_text16(m_statement, place, text.utf16(),
                            static_cast<int>(text.size() * qsizetype{sizeof(QChar)}),
                            SQLITE_STATIC);
    }
    void bind(int place, int number) { sqlite3_bind_int(m_statement, place, number); }

    bool step() { return sqlite3_step(m_statement) == SQLITE_ROW; }
    void reset() { sqlite3_reset(m_statement); }

    QString text(int column) const
    {
        const auto* characters =
            static_cast<const QChar*>(sqlite3_column_text16(m_statement, column));
        return QString(characters,
                       sqlite3_column_bytes16(m_statement, column) / qsizetype{sizeof(QChar)});
    }
    QByteArray bytes(int column) const
    {
        const auto* first = static_cast<const char*>(sqlite3_column_blob(m_statement, column));
        return {first, sqlite3_column_bytes(m_statement, column)};
    }
    int integer(int column) const { return sqlite3_column_int(m_statement, column); }
    double real(int column) const { return sqlite3_column_double(m_statement, column); }

private:
    sqlite3_stmt* m_statement = nullptr;
};
