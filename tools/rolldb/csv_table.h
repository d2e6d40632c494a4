// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "mistakes.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// One field of a table, with its place in the file.
struct CsvField
{
    QString text;
    QString fileName;
    int line = 0;
    qsizetype columnNumber = 0;
    QString column;

    /// "supplies.csv:12, column 4 (width)"
    QString place() const;
    Mistake failure(const QString& reason) const;
};

/// A table as spreadsheets export it: UTF-8, with the column names in the first line and the fields
/// separated by commas, by tabs, or by semicolons where the comma is the decimal separator. Fields
/// may be quoted. Spaces around fields and empty rows are ignored.
class CsvTable
{
public:
    /// Throws the first mistake if the text is not such a table.
    static CsvTable parse(const QString& fileName, const QByteArray& bytes);
    /// Reports every mistake and goes on with the next line. A row with a mistake is left out.
    static CsvTable parse(const QString& fileName, const QByteArray& bytes,
                          const ReportMistake& report);

    /// Whether no row was left out. A table that could not be read at all has no rows.
    bool isComplete() const { return m_isComplete; }

    QString fileName() const { return m_fileName; }
    qsizetype rowCount() const { return m_rows.size(); }
    /// The names, of which one may be empty or occur twice if that was reported.
    const QStringList& columns() const { return m_columns; }
    bool hasColumn(const QString& column) const { return m_columns.contains(column); }
    /// The column must exist.
    CsvField field(qsizetype row, QLatin1String column) const;
    CsvField field(qsizetype row, const QString& column) const;

    /// Whether numbers may have a decimal comma.
    bool hasDecimalCommas() const { return m_separator != u','; }

    Mistake failureInHeader(const QString& column, const QString& reason) const;
    Mistake failureInFile(const QString& reason) const;

private:
    CsvField fieldAt(qsizetype row, qsizetype column) const;

    struct Row
    {
        int line = 0;
        QStringList fields;
    };
    class Parser;

    void takeHeader(const Row& row, const ReportMistake& report);
    void takeRow(Row row, const ReportMistake& report);
    Mistake failureInHeader(qsizetype column, const QString& reason) const;

    QString m_fileName;
    QChar m_separator;
    int m_headerLine = 1;
    QStringList m_columns;
    QList<Row> m_rows;
    bool m_isComplete = false;
};
