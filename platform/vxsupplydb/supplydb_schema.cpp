// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "supplydb_schema.h"

#include <algorithm>
#include <limits>

namespace {

// Sizes are in inches. NULL means that a supply does not have the property. Readers return -1 for
// that, so no column may contain -1.
// clang-format off
constexpr const char* tables[] = {
R"(CREATE TABLE language (
    id INTEGER PRIMARY KEY CHECK (id >= 0),
    tag TEXT NOT NULL UNIQUE CHECK (length(tag) BETWEEN 2 AND 20)
) STRICT)",

R"(CREATE TABLE name (
    id INTEGER PRIMARY KEY,
    english TEXT NOT NULL CHECK (length(english) BETWEEN 1 AND 200)
) STRICT)",

R"(CREATE TABLE translation (
    name_id INTEGER NOT NULL REFERENCES name (id),
    language_id INTEGER NOT NULL REFERENCES language (id) CHECK (language_id <> 0),
    text TEXT NOT NULL CHECK (length(text) BETWEEN 1 AND 200),
    PRIMARY KEY (name_id, language_id)
) STRICT, WITHOUT ROWID)",

R"(CREATE TABLE colour (
    id INTEGER PRIMARY KEY,
    key TEXT NOT NULL UNIQUE CHECK (length(key) BETWEEN 1 AND 40),
    rgb INTEGER NOT NULL CHECK (rgb BETWEEN 0 AND 16777215),
    name_id INTEGER NOT NULL REFERENCES name (id)
) STRICT)",

R"(CREATE TABLE material (
    id INTEGER PRIMARY KEY CHECK (id BETWEEN 0 AND 999999),
    name_id INTEGER NOT NULL REFERENCES name (id)
) STRICT)",

R"(CREATE TABLE format (
    id INTEGER PRIMARY KEY CHECK (id BETWEEN 0 AND 999999),
    type TEXT NOT NULL CHECK (type IN ('continuous', 'die-cut', 'sleeve', 'tag')),
    name_id INTEGER NOT NULL REFERENCES name (id)
) STRICT)",

R"(CREATE TABLE background (
    id INTEGER PRIMARY KEY,
    file TEXT NOT NULL UNIQUE CHECK (length(file) BETWEEN 1 AND 200),
    image BLOB NOT NULL CHECK (length(image) BETWEEN 1 AND 262144)
) STRICT)",

R"(CREATE TABLE supply (
    sku TEXT PRIMARY KEY CHECK (length(sku) BETWEEN 1 AND 40
        AND sku NOT GLOB '*[^A-Za-z0-9._-]*' AND sku GLOB '[A-Za-z0-9]*'),
    material_id INTEGER NOT NULL REFERENCES material (id),
    format_id INTEGER NOT NULL REFERENCES format (id),
    colour_id INTEGER NOT NULL REFERENCES colour (id),
    second_colour_id INTEGER REFERENCES colour (id),
    second_colour_width REAL CHECK (second_colour_width > 0 AND second_colour_width <= width),
    width REAL NOT NULL CHECK (width > 0 AND width <= 100),
    length REAL NOT NULL CHECK (length > 0 AND length <= 100000),
    label_length REAL CHECK (label_length > 0 AND label_length <= length),
    separator_width REAL CHECK (separator_width BETWEEN 0 AND 100),
    is_landscape INTEGER NOT NULL CHECK (is_landscape IN (0, 1)),
    background_id INTEGER REFERENCES background (id),
    multi_up_count INTEGER NOT NULL CHECK (multi_up_count BETWEEN 1 AND 100),
    multi_up_gap REAL CHECK (multi_up_gap BETWEEN 0 AND 100),
    CHECK ((second_colour_id IS NULL) = (second_colour_width IS NULL)),
    CHECK ((multi_up_count = 1) = (multi_up_gap IS NULL))
) STRICT, WITHOUT ROWID)",

R"(CREATE TABLE supply_kind (
    kind INTEGER PRIMARY KEY CHECK (kind BETWEEN 1 AND 999999),
    supply_sku TEXT NOT NULL REFERENCES supply (sku)
) STRICT)",

R"(CREATE TABLE ribbon (
    sku TEXT PRIMARY KEY CHECK (length(sku) BETWEEN 1 AND 40
        AND sku NOT GLOB '*[^A-Za-z0-9._-]*' AND sku GLOB '[A-Za-z0-9]*'),
    type TEXT NOT NULL CHECK (length(type) BETWEEN 1 AND 40),
    width REAL NOT NULL CHECK (width > 0 AND width <= 100),
    length REAL NOT NULL CHECK (length > 0 AND length <= 100000)
) STRICT, WITHOUT ROWID)",

R"(CREATE TABLE ribbon_panel (
    ribbon_sku TEXT NOT NULL REFERENCES ribbon (sku),
    panel INTEGER NOT NULL CHECK (panel BETWEEN 1 AND 16),
    colour_id INTEGER NOT NULL REFERENCES colour (id),
    PRIMARY KEY (ribbon_sku, panel)
) STRICT, WITHOUT ROWID)",

R"(CREATE TABLE ribbon_number (
    number INTEGER PRIMARY KEY CHECK (number BETWEEN 1 AND 100000),
    ribbon_sku TEXT NOT NULL REFERENCES ribbon (sku)
) STRICT)",

R"(CREATE TABLE print_setting (
    ribbon_sku TEXT NOT NULL,
    panel INTEGER NOT NULL,
    supply_sku TEXT NOT NULL REFERENCES supply (sku),
    heat INTEGER NOT NULL CHECK (heat BETWEEN 0 AND 1000),
    heat_offset INTEGER NOT NULL CHECK (heat_offset BETWEEN 0 AND 1000),
    max_speed INTEGER NOT NULL CHECK (max_speed BETWEEN 1 AND 1000),
    tension INTEGER NOT NULL CHECK (tension BETWEEN 0 AND 1000),
    PRIMARY KEY (ribbon_sku, panel, supply_sku),
    FOREIGN KEY (ribbon_sku, panel) REFERENCES ribbon_panel (ribbon_sku, panel)
) STRICT, WITHOUT ROWID)",

R"(CREATE TABLE printer_format (
    model TEXT NOT NULL CHECK (length(model) <= 40),
    position INTEGER NOT NULL CHECK (position >= 0),
    format_id INTEGER NOT NULL REFERENCES format (id),
    PRIMARY KEY (model, position),
    UNIQUE (model, format_id)
) STRICT, WITHOUT ROWID)",
};
// clang-format on

// The indices that SQLite creates for UNIQUE constraints that are not the key of the table itself.
constexpr const char* indices[][2] = {
    {"sqlite_autoindex_language_1", "language"},
    {"sqlite_autoindex_colour_1", "colour"},
    {"sqlite_autoindex_background_1", "background"},
    {"sqlite_autoindex_printer_format_2", "printer_format"},
};

// The longest texts in a row have 200 characters of at most four bytes.
constexpr qsizetype maxRowBytes = 2048;
// For tables that are never read completely. Only the size of the file limits them.
constexpr qsizetype anyNumber = std::numeric_limits<qsizetype>::max();

// For the list of tables and indices: enough to notice that there are unknown ones.
constexpr qsizetype maxEntries = 64;

QString tableName(const QString& statement)
{
    return statement.section(u' ', 2, 2);
}

qsizetype maxRowsOf(const QString& table)
{
    const bool isListed = table == QLatin1String("supply") || table == QLatin1String("ribbon") ||
                          table == QLatin1String("printer_format");
    return isListed ? supplydb_schema::maxListedRows : anyNumber;
}

qsizetype maxRowBytesOf(const QString& table)
{
    return table == QLatin1String("background") ? supplydb_schema::maxImageBytes + maxRowBytes
                                                : maxRowBytes;
}

QList<supplydb_schema::Entry> makeEntries()
{
    QList<supplydb_schema::Entry> all;
    for (const char* table : tables) {
        const QString sql = QString::fromLatin1(table);
        const QString name = tableName(sql);
        all.append({QStringLiteral("table"), name, name, sql,
                    !sql.endsWith(QLatin1String("WITHOUT ROWID")), maxRowsOf(name),
                    maxRowBytesOf(name)});
    }
    for (const auto& [index, table] : indices) {
        all.append({QStringLiteral("index"), QString::fromLatin1(index), QString::fromLatin1(table),
                    QString(), false, anyNumber, maxRowBytes});
    }
    return all;
}

} // namespace

const QList<supplydb_schema::Entry>& supplydb_schema::entries()
{
    static const QList<Entry> all = makeEntries();
    return all;
}

const supplydb_schema::Entry* supplydb_schema::entry(const QString& name)
{
    const auto found = std::ranges::find(entries(), name, &Entry::name);
    return found == entries().end() ? nullptr : &*found;
}

const supplydb_schema::Entry& supplydb_schema::schemaTable()
{
    static const Entry table{QStringLiteral("table"),
                             QStringLiteral("sqlite_schema"),
                             QStringLiteral("sqlite_schema"),
                             QString(),
                             true,
                             maxEntries,
                             maxRowBytes};
    return table;
}

QStringList supplydb_schema::statements()
{
    QStringList all{
        QStringLiteral("PRAGMA application_id = %1").arg(applicationId),
        QStringLiteral("PRAGMA user_version = %1").arg(schemaVersion),
    };
    for (const char* table : tables)
        all.append(QString::fromLatin1(table));
    return all;
}

bool supplydb_schema::isSku(const QString& text)
{
    const auto isAlphanumeric = [](QChar character) {
        const auto lower = static_cast<char16_t>(character.unicode() | 0x20U);
        return (character >= u'0' && character <= u'9') || (lower >= u'a' && lower <= u'z');
    };
    return !text.isEmpty() && text.size() <= maxSkuLength && isAlphanumeric(text.front()) &&
           std::ranges::all_of(text, [&isAlphanumeric](QChar character) {
               return isAlphanumeric(character) || character == u'.' || character == u'_' ||
                      character == u'-';
           });
}
