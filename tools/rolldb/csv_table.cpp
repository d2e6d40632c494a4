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

Mistake lineFailure(const QString& fileName, int line, const QString& reason)
{
    return {line, 0, QStringLiteral("%1:%2: %3").arg(fileName).arg(line).arg(reason)};
}

QString decoded(const QString& fileName, const QByteArray& bytes)
{
    if (bytes.size() > maxFileBytes)
        throw Mistake(0, 0, ToolText::tr("%1: larger than 16 MiB").arg(fileName));
    // Removes a byte order mark. Stateless, so that an incomplete character at the end is an error.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(bytes);
    if (!decoder.hasError())
        return text;
    // Finds the line of the first invalid byte by decoding line by line. The others have the same
    // cause: the table was saved in another encoding.
    int line = 1;
    for (const QByteArray& lineBytes : bytes.split('\n')) {
        QStringDecoder lineDecoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString lineText = lineDecoder.decode(lineBytes);
        if (lineDecoder.hasError())
            break;
        ++line;
    }
    throw lineFailure(fileName, line, ToolText::tr("not UTF-8 text; save the table as UTF-8"));
}

// The first separator in the header line decides: column names contain none in practice.
QChar separatorOf(const QString& fileName, const QString& text)
{
    if (fileName.endsWith(QLatin1String(".tsv"), Qt::CaseInsensitive))
        return u'\t';
    for (const QChar character : text.trimmed()) {
        if (character == u';' || character == u',' || character == u'\t')
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

Mistake CsvField::failure(const QString& reason) const
{
    return {line, columnNumber, QStringLiteral("%1: %2").arg(place(), reason)};
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

    /// The next row that is not empty. Mistakes before it are reported, and their rows are left
    /// out.
    std::optional<Row> nextRow(const ReportMistake& report)
    {
        while (m_position < m_text.size()) {
            try {
                const Row row = readRow();
                if (std::ranges::any_of(row.fields, [](const QString& f) { return !f.isEmpty(); }))
                    return row;
            } catch (const Mistake& mistake) {
                m_hasMistakes = true;
                report(mistake);
                skipLine();
            }
        }
        return std::nullopt;
    }

    bool hasMistakes() const { return m_hasMistakes; }

private:
    void skipLine()
    {
        const qsizetype end = m_text.indexOf(u'\n', m_position);
        m_position = end < 0 ? m_text.size() : end + 1;
        ++m_line;
    }

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
        const qsizetype openedAt = m_position;
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
        // The lines after the one with the mark are read as if it were not there.
        m_line = openedIn;
        m_position = openedAt;
        throw failure(ToolText::tr("an unclosed quotation mark"));
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

    Mistake failure(const QString& reason) const { return lineFailure(m_fileName, m_line, reason); }

    const QString m_fileName;
    const QString m_text;
    const QChar m_separator;
    qsizetype m_position = 0;
    int m_line = 1;
    bool m_hasMistakes = false;
};

CsvTable CsvTable::parse(const QString& fileName, const QByteArray& bytes)
{
    return parse(fileName, bytes, [](const Mistake& mistake) { throw Mistake(mistake); });
}

CsvTable CsvTable::parse(const QString& fileName, const QByteArray& bytes,
                         const ReportMistake& report)
{
    CsvTable table;
    table.m_fileName = fileName;
    QString text;
    try {
        text = decoded(fileName, bytes);
    } catch (const Mistake& mistake) {
        report(mistake);
        return table;
    }
    table.m_separator = separatorOf(fileName, text);

    Parser parser(fileName, text, table.m_separator);
    const std::optional<Row> header = parser.nextRow(report);
    // If a mistake hides the names of the columns, the rows below cannot be read.
    table.m_isComplete = header.has_value() && !parser.hasMistakes();
    if (!header && !parser.hasMistakes())
        report(table.failureInFile(ToolText::tr("empty; expected a line of column names")));
    if (!table.m_isComplete)
        return table;
    table.takeHeader(*header, report);
    while (std::optional<Row> row = parser.nextRow(report))
        table.takeRow(*std::move(row), report);
    table.m_isComplete = table.m_isComplete && !parser.hasMistakes();
    return table;
}

void CsvTable::takeHeader(const Row& row, const ReportMistake& report)
{
    m_headerLine = row.line;
    m_columns = row.fields;
    while (!m_columns.isEmpty() && m_columns.last().isEmpty())
        m_columns.removeLast(); // a spreadsheet's empty columns
    for (qsizetype i = 0; i < m_columns.size(); ++i) {
        const QString& name = m_columns.at(i);
        if (name.isEmpty())
            report(failureInHeader(i, ToolText::tr("a column without a name")));
        else if (m_columns.indexOf(name) != i)
            report(failureInHeader(i, ToolText::tr("duplicate column")));
    }
}

void CsvTable::takeRow(Row row, const ReportMistake& report)
{
    while (row.fields.size() > m_columns.size() && row.fields.last().isEmpty())
        row.fields.removeLast();
    if (row.fields.size() == m_columns.size()) {
        m_rows.append(std::move(row));
        return;
    }
    m_isComplete = false;
    report(lineFailure(m_fileName, row.line,
                       ToolText::tr("%1 fields, but there are %2 columns")
                           .arg(row.fields.size())
                           .arg(m_columns.size())));
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

Mistake CsvTable::failureInHeader(const QString& column, const QString& reason) const
{
    return failureInHeader(m_columns.lastIndexOf(column), reason);
}

Mistake CsvTable::failureInHeader(qsizetype column, const QString& reason) const
{
    const CsvField name{{}, m_fileName, m_headerLine, column + 1, m_columns.at(column)};
    return name.failure(reason);
}

Mistake CsvTable::failureInFile(const QString& reason) const
{
    return {0, 0, QStringLiteral("%1: %2").arg(m_fileName, reason)};
}
