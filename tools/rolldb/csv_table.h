// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "failure.h"

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
    Failure failure(const QString& reason) const;
};

/// A table as spreadsheets export it: UTF-8, with the column names in the first line and the fields
/// separated by commas, or by semicolons where the comma is the decimal separator. Fields may be
/// quoted. Spaces around fields and empty rows are ignored.
class CsvTable
{
public:
    /// Throws a Failure if the text is not such a table.
    static CsvTable parse(const QString& fileName, const QByteArray& bytes);

    qsizetype rowCount() const { return m_rows.size(); }
    const QStringList& columns() const { return m_columns; }
    bool hasColumn(const QString& column) const { return m_columns.contains(column); }
    CsvField field(qsizetype row, QLatin1String column) const;
    CsvField field(qsizetype row, const QString& column) const;

    /// Whether numbers may have a decimal comma.
    bool hasDecimalCommas() const { return m_separator == u';'; }

    Failure failureInHeader(const QString& column, const QString& reason) const;
    Failure failureInFile(const QString& reason) const;

private:
    CsvField fieldAt(qsizetype row, qsizetype column) const;

    struct Row
    {
        int line = 0;
        QStringList fields;
    };
    class Parser;

    QString m_fileName;
    QChar m_separator;
    QStringList m_columns;
    QList<Row> m_rows;
};
