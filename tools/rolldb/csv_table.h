// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "fault.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// One field of a table, which knows where it was written.
struct CsvField
{
    QString text;
    QString fileName;
    int line = 0;
    qsizetype columnNumber = 0;
    QString column;

    /// "supplies.csv:12, column 4 (width)"
    QString place() const;
    Fault fault(const QString& reason) const;
};

/// A table as spreadsheets write it: UTF-8, the column names in the first line, fields parted by
/// commas, or by semicolons as spreadsheets do where the comma is the decimal mark. Fields may be
/// in quotation marks. Spaces around a field do not count, nor do rows without any text.
class CsvTable
{
public:
    /// Throws a Fault where the text is no such table.
    static CsvTable parse(const QString& fileName, const QByteArray& bytes);

    qsizetype rowCount() const { return m_rows.size(); }
    const QStringList& columns() const { return m_columns; }
    bool hasColumn(const QString& column) const { return m_columns.contains(column); }
    CsvField field(qsizetype row, QLatin1String column) const;
    CsvField field(qsizetype row, const QString& column) const;

    /// Where commas are decimal marks.
    bool hasDecimalCommas() const { return m_separator == u';'; }

    Fault faultInHeader(const QString& column, const QString& reason) const;
    Fault faultInFile(const QString& reason) const;

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
