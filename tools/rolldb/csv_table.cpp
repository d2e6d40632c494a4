// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "csv_table.h"

#include "tool_text.h"

#include <QtCore/QStringDecoder>

#include <algorithm>
#include <optional>

namespace {

constexpr qsizetype maxFileBytes = qsizetype{16} << 20;
constexpr qsizetype maxFieldLength = 4096;
constexpr qsizetype maxColumns = 64;

QString lineFailure(const QString& fileName, int line, const QString& reason)
{
    return QStringLiteral("%1:%2: %3").arg(fileName).arg(line).arg(reason);
}

QString decoded(const QString& fileName, const QByteArray& bytes)
{
    if (bytes.size() > maxFileBytes)
        throw Failure(ToolText::tr("%1: larger than 16 MiB").arg(fileName));
    // Removes a byte order mark. Stateless, so that an incomplete character at the end is an error.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(bytes);
    if (!decoder.hasError())
        return text;
    // Finds the line of the first invalid byte by decoding line by line.
    int line = 1;
    for (const QByteArray& lineBytes : bytes.split('\n')) {
        QStringDecoder lineDecoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString lineText = lineDecoder.decode(lineBytes);
        if (lineDecoder.hasError())
            break;
        ++line;
    }
    throw Failure(lineFailure(fileName, line, ToolText::tr("not UTF-8 text")));
}

// The first separator in the header line decides: column names contain neither in practice.
QChar separatorOf(const QString& text)
{
    for (const QChar character : text) {
        if (character == u';' || character == u',')
            return character;
        if (character == u'\n')
            break;
    }
    return u',';
}

} // namespace

QString CsvField::place() const
{
    return ToolText::tr("%1:%2, column %3 (%4)")
        .arg(fileName)
        .arg(line)
        .arg(columnNumber)
        .arg(column);
}

Failure CsvField::failure(const QString& reason) const
{
    return Failure(QStringLiteral("%1: %2").arg(place(), reason));
}

/// Reads a text row by row. The number of a row is that of its first line.
class CsvTable::Parser
{
public:
    Parser(const QString& fileName, const QString& text, QChar separator)
        : m_fileName(fileName)
        , m_text(text)
        , m_separator(separator)
    {}

    /// The next row that is not empty.
    std::optional<Row> nextRow()
    {
        while (m_position < m_text.size()) {
            const Row row = readRow();
            if (std::ranges::any_of(row.fields, [](const QString& f) { return !f.isEmpty(); }))
                return row;
        }
        return std::nullopt;
    }

private:
    Row readRow()
    {
        Row row{.line = m_line, .fields = {}};
        for (;;) {
            if (row.fields.size() == maxColumns)
                throw failure(ToolText::tr("more than %1 columns").arg(maxColumns));
            row.fields.append(readField());
            if (!skip(m_separator))
                break;
        }
        const bool hasReturn = skip(u'\r');
        if (m_position < m_text.size() && !skip(u'\n'))
            throw failure(hasReturn ? ToolText::tr("a carriage return without a line feed")
                                    : ToolText::tr("text after a closing quotation mark"));
        ++m_line;
        return row;
    }

    QString readField()
    {
        while (m_position < m_text.size() && isBlank(m_text.at(m_position)))
            ++m_position;
        QString field = skip(u'"') ? readQuoted() : readPlain();
        if (field.size() > maxFieldLength)
            throw failure(ToolText::tr("a field of more than %1 characters").arg(maxFieldLength));
        if (field.contains(QChar::Null))
            throw failure(ToolText::tr("a NUL character"));
        return field.trimmed();
    }

    QString readPlain()
    {
        const qsizetype start = m_position;
        while (m_position < m_text.size() && !isEnd(m_text.at(m_position)))
            ++m_position;
        const QString field = m_text.sliced(start, m_position - start);
        if (field.contains(u'"'))
            throw failure(ToolText::tr("a quotation mark inside a field that is not quoted"));
        return field;
    }

    QString readQuoted()
    {
        const int openedIn = m_line;
        QString field;
        while (m_position < m_text.size()) {
            const QChar character = m_text.at(m_position++);
            if (character == u'"' && !skip(u'"')) {
                while (m_position < m_text.size() && isBlank(m_text.at(m_position)))
                    ++m_position;
                return field;
            }
            if (character == u'\n')
                ++m_line;
            field.append(character);
        }
        throw Failure(
            lineFailure(m_fileName, openedIn, ToolText::tr("an unclosed quotation mark")));
    }

    bool skip(QChar character)
    {
        if (m_position >= m_text.size() || m_text.at(m_position) != character)
            return false;
        ++m_position;
        return true;
    }

    bool isBlank(QChar character) const
    {
        return character != m_separator && (character == u' ' || character == u'\t');
    }
    bool isEnd(QChar character) const
    {
        return character == m_separator || character == u'\n' || character == u'\r';
    }

    Failure failure(const QString& reason) const
    {
        return Failure(lineFailure(m_fileName, m_line, reason));
    }

    const QString m_fileName;
    const QString m_text;
    const QChar m_separator;
    qsizetype m_position = 0;
    int m_line = 1;
};

CsvTable CsvTable::parse(const QString& fileName, const QByteArray& bytes)
{
    const QString text = decoded(fileName, bytes);
    CsvTable table;
    table.m_fileName = fileName;
    table.m_separator = separatorOf(text);

    Parser parser(fileName, text, table.m_separator);
    const std::optional<Row> header = parser.nextRow();
    if (!header)
        throw table.failureInFile(ToolText::tr("empty; expected a line of column names"));
    table.m_columns = header->fields;
    while (!table.m_columns.isEmpty() && table.m_columns.last().isEmpty())
        table.m_columns.removeLast(); // a spreadsheet's empty columns
    for (qsizetype i = 0; i < table.m_columns.size(); ++i) {
        const QString& column = table.m_columns.at(i);
        if (column.isEmpty() || table.m_columns.indexOf(column) != i)
            throw table.failureInHeader(column, column.isEmpty()
                                                    ? ToolText::tr("a column without a name")
                                                    : ToolText::tr("duplicate column"));
    }

    while (std::optional<Row> row = parser.nextRow()) {
        while (row->fields.size() > table.m_columns.size() && row->fields.last().isEmpty())
            row->fields.removeLast();
        if (row->fields.size() != table.m_columns.size())
            throw Failure(lineFailure(fileName, row->line,
                                      ToolText::tr("%1 fields, but there are %2 columns")
                                          .arg(row->fields.size())
                                          .arg(table.m_columns.size())));
        table.m_rows.append(*std::move(row));
    }
    return table;
}

CsvField CsvTable::field(qsizetype row, QLatin1String column) const
{
    return fieldAt(row, m_columns.indexOf(column));
}

CsvField CsvTable::field(qsizetype row, const QString& column) const
{
    return fieldAt(row, m_columns.indexOf(column));
}

CsvField CsvTable::fieldAt(qsizetype row, qsizetype column) const
{
    const Row& source = m_rows.at(row);
    return {source.fields.at(column), m_fileName, source.line, column + 1, m_columns.at(column)};
}

Failure CsvTable::failureInHeader(const QString& column, const QString& reason) const
{
    return Failure(ToolText::tr("%1:1, column %2 (%3): %4")
                       .arg(m_fileName)
                       .arg(m_columns.lastIndexOf(column) + 1)
                       .arg(column, reason));
}

Failure CsvTable::failureInFile(const QString& reason) const
{
    return Failure(QStringLiteral("%1: %2").arg(m_fileName, reason));
}
