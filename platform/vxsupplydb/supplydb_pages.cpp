// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The file format is described at https://www.sqlite.org/fileformat2.html.
#include "supplydb_pages.h"

#include "supplydb_schema.h"

#include <QtCore/QByteArray>
#include <QtCore/QIODevice>
#include <QtCore/QList>
#include <QtCore/QSet>
#include <QtCore/QtEndian>

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace {

using supplydb_schema::Entry;
using supplydb_schema::maxFileBytes;

// The file's header, which is the beginning of page 1.
constexpr qsizetype fileHeaderSize = 100;
constexpr qsizetype pageSizeOffset = 16;
constexpr qsizetype reservedOffset = 20;
constexpr qsizetype encodingOffset = 56;
constexpr quint32 largestPageSize = 65536; // written as 1: the field has 16 bits
constexpr quint32 smallestPageSize = 512;
constexpr quint32 smallestUsableSize = 480;
constexpr quint32 utf8 = 1;

constexpr quint32 schemaPage = 1;

// The header of a tree page: its type, the number of its cells, the page of the last child, and
// then the offsets of the cells.
constexpr qsizetype cellCountOffset = 3;
constexpr qsizetype lastChildOffset = 8;
constexpr qsizetype leafHeaderSize = 8;
constexpr qsizetype innerHeaderSize = 12;
constexpr qsizetype cellPlaceSize = 2;
constexpr qsizetype pageNumberSize = 4;
constexpr qsizetype smallestCellSize = 4;

/// The page types of a tree. SQLite stores a table without row ids like an index.
struct TreeKind
{
    quint8 inner;
    quint8 leaf;
};
constexpr TreeKind rowIdTree{5, 13};
constexpr TreeKind keyTree{2, 10};

template <typename Number>
Number numberAt(const QByteArray& bytes, qsizetype offset)
{
    return qFromBigEndian<Number>(bytes.constData() + offset);
}

/// Reads consecutive variable-length integers of one to nine bytes.
class VarintReader
{
public:
    VarintReader(const QByteArray& bytes, qsizetype offset, qsizetype end)
        : m_bytes(bytes)
        , m_offset(offset)
        , m_end(end)
    {}

    qsizetype offset() const { return m_offset; }
    std::optional<quint64> next()
    {
        constexpr int longestVarint = 9;
        quint64 number = 0;
        for (int i = 1; m_offset < m_end; ++i) {
            const auto byte = static_cast<quint8>(m_bytes.at(m_offset++));
            if (i == longestVarint)
                return number << 8U | byte;
            number = number << 7U | (byte & 0x7fU);
            if (byte < 0x80U)
                return number;
        }
        return std::nullopt;
    }

private:
    const QByteArray& m_bytes;
    qsizetype m_offset;
    qsizetype m_end;
};

/// A row of the table that lists all tables and indices.
struct SchemaRow
{
    QString type;
    QString name;
    QString table;
    quint32 root = 0;
    QString sql;
};

// The size of a column by its type code in the row's header.
std::optional<qsizetype> columnSize(quint64 type, quint64 most)
{
    constexpr std::array<qsizetype, 10> sizes{0, 1, 2, 3, 4, 6, 8, 8, 0, 0};
    constexpr quint64 firstOfVariableSize = 12;
    if (type < sizes.size())
        return sizes[type];
    if (type < firstOfVariableSize || (type - firstOfVariableSize) / 2 > most)
        return std::nullopt;
    return static_cast<qsizetype>((type - firstOfVariableSize) / 2);
}

std::optional<SchemaRow> schemaRow(const QByteArray& row)
{
    VarintReader types(row, 0, row.size());
    const std::optional<quint64> headerSize = types.next();
    if (!headerSize || *headerSize > static_cast<quint64>(row.size()))
        return std::nullopt;
    auto offset = static_cast<qsizetype>(*headerSize);
    std::array<QByteArray, 5> columns;
    for (QByteArray& column : columns) {
        const std::optional<quint64> type = types.next();
        if (!type || types.offset() > static_cast<qsizetype>(*headerSize))
            return std::nullopt;
        const std::optional<qsizetype> size = columnSize(*type, static_cast<quint64>(row.size()));
        if (!size || *size > row.size() - offset)
            return std::nullopt;
        column = row.sliced(offset, *size);
        offset += *size;
    }
    quint32 root = 0;
    for (const char byte : columns[3].last(std::min<qsizetype>(columns[3].size(), 4)))
        root = root << 8U | static_cast<quint8>(byte);
    return SchemaRow{QString::fromUtf8(columns[0]), QString::fromUtf8(columns[1]),
                     QString::fromUtf8(columns[2]), root, QString::fromUtf8(columns[4])};
}

class Pages
{
public:
    explicit Pages(QIODevice& file)
        : m_file(file)
    {}

    QString fault()
    {
        if (readHeader() && readSchema()) {
            for (const SchemaRow& row : m_schema) {
                if (!walk(row.root, *supplydb_schema::entry(row.name), nullptr))
                    break;
            }
        }
        return m_fault;
    }

private:
    /// A row on a page, without the child page number that may precede it.
    struct Cell
    {
        quint64 payload = 0;
        qsizetype start = 0;
        qsizetype local = 0;
        qsizetype end = 0;
        bool hasRest = false;
    };

    bool refuse(const QString& fault)
    {
        m_fault = fault;
        return false;
    }
    bool damaged(quint32 page, const char* how)
    {
        return refuse(QStringLiteral("damaged: page %1 %2").arg(page).arg(QLatin1String(how)));
    }

    bool readHeader()
    {
        if (m_file.size() > maxFileBytes)
            return refuse(QStringLiteral("larger than %1 MiB").arg(maxFileBytes >> 20));
        QByteArray header;
        if (m_file.seek(0))
            header = m_file.read(fileHeaderSize);
        if (header.size() < fileHeaderSize)
            return damaged(schemaPage, "is cut off");
        m_pageSize = numberAt<quint16>(header, pageSizeOffset);
        if (m_pageSize == 1)
            m_pageSize = largestPageSize;
        const quint32 reserved = numberAt<quint8>(header, reservedOffset);
        if (m_pageSize < smallestPageSize || (m_pageSize & (m_pageSize - 1)) != 0 ||
            m_pageSize < smallestUsableSize + reserved)
            return damaged(schemaPage, "has an invalid size");
        m_usableSize = static_cast<qsizetype>(m_pageSize - reserved);
        if (numberAt<quint32>(header, encodingOffset) != utf8)
            return refuse(QStringLiteral("its texts are not UTF-8"));
        m_isTaken.assign(static_cast<std::size_t>(m_file.size() / m_pageSize) + 1, false);
        return true;
    }

    bool readSchema()
    {
        QList<QByteArray> rows;
        if (!walk(schemaPage, supplydb_schema::schemaTable(), &rows))
            return false;
        for (const QByteArray& bytes : rows) {
            std::optional<SchemaRow> row = schemaRow(bytes);
            if (!row)
                return damaged(schemaPage, "lists a table that cannot be read");
            m_schema.append(*std::move(row));
        }
        return isOurSchema() ||
               refuse(QStringLiteral("its tables are not those of schema version %1")
                          .arg(supplydb_schema::schemaVersion));
    }

    bool isOurSchema() const
    {
        QSet<QString> names;
        return m_schema.size() == supplydb_schema::entries().size() &&
               std::ranges::all_of(m_schema,
                                   [&names](const SchemaRow& row) {
                                       const Entry* entry = supplydb_schema::entry(row.name);
                                       names.insert(row.name);
                                       return entry && row.type == entry->type &&
                                              row.table == entry->table && row.sql == entry->sql;
                                   }) &&
               names.size() == m_schema.size();
    }

    /// Each page may be used once. Otherwise a small file could contain any number of rows.
    bool take(quint32 number)
    {
        if (number == 0 || number >= m_isTaken.size())
            return damaged(number, "is not in the file");
        if (m_isTaken[number])
            return damaged(number, "is used twice");
        m_isTaken[number] = true;
        return true;
    }

    bool read(quint32 number, QByteArray& page)
    {
        page.resize(m_pageSize);
        return (m_file.seek(qint64{number - 1} * m_pageSize) &&
                m_file.read(page.data(), m_pageSize) == m_pageSize) ||
               damaged(number, "is cut off");
    }

    /// Checks a tree page by page. Appends its rows to `rows` unless that is null.
    bool walk(quint32 root, const Entry& entry, QList<QByteArray>* rows)
    {
        if (!take(root))
            return false;
        m_waiting = {root};
        m_rowCount = 0;
        QByteArray page;
        while (!m_waiting.empty()) {
            const quint32 number = m_waiting.back();
            m_waiting.pop_back();
            if (!read(number, page) || !checkPage(number, page, entry, rows))
                return false;
        }
        return true;
    }

    bool checkPage(quint32 number, const QByteArray& page, const Entry& entry,
                   QList<QByteArray>* rows)
    {
        const TreeKind& kind = entry.hasRowIds ? rowIdTree : keyTree;
        const qsizetype start = number == schemaPage ? fileHeaderSize : 0;
        const auto type = numberAt<quint8>(page, start);
        if (type != kind.inner && type != kind.leaf)
            return damaged(number, "is not of the expected type");
        const bool isInner = type == kind.inner;
        const qsizetype places = start + (isInner ? innerHeaderSize : leafHeaderSize);
        const qsizetype cells = numberAt<quint16>(page, start + cellCountOffset);
        qsizetype room = m_usableSize - places - cells * (cellPlaceSize + smallestCellSize);
        if (room < 0)
            return damaged(number, "holds more than fits on it");
        for (qsizetype i = 0; i < cells; ++i) {
            const qsizetype place = numberAt<quint16>(page, places + i * cellPlaceSize);
            if (isInner && !takeChild(number, page, place))
                return false;
            if (isInner && entry.hasRowIds)
                continue; // the cell has only a row id
            const std::optional<Cell> cell =
                cellAt(page, place + (isInner ? pageNumberSize : 0), entry.hasRowIds);
            if (!cell)
                return damaged(number, "has a row outside its bounds");
            room -= std::max<qsizetype>(0, cell->end - place - smallestCellSize);
            if (room < 0)
                return damaged(number, "holds more than fits on it");
            if (!checkRow(page, *cell, entry, rows))
                return false;
        }
        return !isInner || takeChild(number, page, start + lastChildOffset);
    }

    bool checkRow(const QByteArray& page, const Cell& cell, const Entry& entry,
                  QList<QByteArray>* rows)
    {
        if (++m_rowCount > entry.maxRows)
            return refuse(
                QStringLiteral("more than %1 rows in %2").arg(entry.maxRows).arg(entry.name));
        if (cell.payload > static_cast<quint64>(entry.maxRowBytes))
            return refuse(QStringLiteral("a row of more than %1 bytes in %2")
                              .arg(entry.maxRowBytes)
                              .arg(entry.name));
        QByteArray row;
        if (rows)
            row = page.sliced(cell.start, cell.local);
        if (cell.hasRest && !readRest(page, cell, row))
            return false;
        if (rows)
            rows->append(row);
        return true;
    }

    bool takeChild(quint32 number, const QByteArray& page, qsizetype place)
    {
        if (place + pageNumberSize > m_usableSize)
            return damaged(number, "has a row outside its bounds");
        m_waiting.push_back(numberAt<quint32>(page, place));
        return take(m_waiting.back());
    }

    std::optional<Cell> cellAt(const QByteArray& page, qsizetype place, bool hasRowId) const
    {
        VarintReader numbers(page, place, m_usableSize);
        const std::optional<quint64> payload = numbers.next();
        if (!payload || (hasRowId && !numbers.next()))
            return std::nullopt;
        Cell cell{.payload = *payload, .start = numbers.offset()};
        cell.local = localSize(*payload, hasRowId);
        cell.hasRest = static_cast<quint64>(cell.local) < *payload;
        cell.end = cell.start + cell.local + (cell.hasRest ? pageNumberSize : 0);
        if (cell.end > m_usableSize)
            return std::nullopt;
        return cell;
    }

    // How many bytes of a row are on the page itself, by the formula in SQLite's file format.
    qsizetype localSize(quint64 payload, bool hasRowId) const
    {
        const auto usable = static_cast<quint64>(m_usableSize);
        const quint64 most = hasRowId ? usable - 35 : (usable - 12) * 64 / 255 - 23;
        if (payload <= most)
            return static_cast<qsizetype>(payload);
        const quint64 least = (usable - 12) * 32 / 255 - 23;
        const quint64 wanted = least + (payload - least) % (usable - 4);
        return static_cast<qsizetype>(wanted <= most ? wanted : least);
    }

    /// The rest of a row is in a chain of pages. Each begins with the number of the next page.
    bool readRest(const QByteArray& page, const Cell& cell, QByteArray& row)
    {
        auto left = static_cast<qsizetype>(cell.payload) - cell.local;
        auto next = numberAt<quint32>(page, cell.start + cell.local);
        QByteArray link;
        while (left > 0) {
            if (!take(next) || !read(next, link))
                return false;
            const qsizetype size = std::min(left, m_usableSize - pageNumberSize);
            row.append(link.constData() + pageNumberSize, size);
            left -= size;
            next = numberAt<quint32>(link, 0);
        }
        return true;
    }

    QIODevice& m_file;
    quint32 m_pageSize = 0;
    qsizetype m_usableSize = 0;
    std::vector<bool> m_isTaken;
    std::vector<quint32> m_waiting; ///< the pages of the tree that remain to be checked
    qsizetype m_rowCount = 0;
    QList<SchemaRow> m_schema;
    QString m_fault;
};

} // namespace

QString supplydb_pages::fault(QIODevice& file)
{
    return Pages(file).fault();
}
