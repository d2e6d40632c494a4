// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_catalogue_rows.h"

#include <supplyc.h>
#include <supplydb_connection.h>
#include <supplydb_schema.h>

#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QSet>
#include <QtSql/QSqlField>
#include <QtSql/QSqlQuery>
#include <QtSql/QSqlRecord>

#include <cstring>
#include <optional>

namespace VxKit {

namespace {

/// Of one identifier. A ribbon has a few panels, a name some translations.
constexpr int mostRowsOfAKey = 64;

/// Pictures are large, and nothing that is recorded depends on them.
constexpr QLatin1String pictureColumn("background_id");

/// The rows that one line gets. `known` are those that there were before, by table and key.
class Reading
{
public:
    Reading(QSet<QString>& known, const QSqlDatabase& database)
        : m_known(known)
        , m_database(database)
    {}

    void readSupply(int kind)
    {
        for (const QVariantMap& entry : read("supply_kind", "kind", kind)) {
            for (const QVariantMap& supply :
                 read("supply", "sku", entry.value(QStringLiteral("supply_sku")))) {
                readNamed("material", supply.value(QStringLiteral("material_id")));
                readNamed("format", supply.value(QStringLiteral("format_id")));
                readNamed("colour", supply.value(QStringLiteral("colour_id")));
                readNamed("colour", supply.value(QStringLiteral("second_colour_id")));
            }
        }
    }

    void readRibbon(int number)
    {
        for (const QVariantMap& entry : read("ribbon_number", "number", number)) {
            const QVariant sku = entry.value(QStringLiteral("ribbon_sku"));
            read("ribbon", "sku", sku);
            for (const QVariantMap& panel : read("ribbon_panel", "ribbon_sku", sku))
                readNamed("colour", panel.value(QStringLiteral("colour_id")));
        }
    }

    QJsonObject tables() const
    {
        QJsonObject tables;
        for (auto table = m_tables.cbegin(); table != m_tables.cend(); ++table)
            tables.insert(table.key(), table.value());
        return tables;
    }

private:
    void readNamed(const char* table, const QVariant& id)
    {
        if (id.isNull())
            return;
        for (const QVariantMap& row : read(table, "id", id)) {
            const QVariant name = row.value(QStringLiteral("name_id"));
            read("name", "id", name);
            for (const QVariantMap& text : read("translation", "name_id", name))
                read("language", "id", text.value(QStringLiteral("language_id")));
        }
    }

    /// The rows of a table with a key, and adds those to the line that no line has had.
    QList<QVariantMap> read(const char* table, const char* column, const QVariant& key)
    {
        QList<QVariantMap> rows;
        const QString name = QLatin1String(table);
        QSqlQuery query(m_database);
        query.setForwardOnly(true);
        query.prepare(QStringLiteral("SELECT * FROM %1 WHERE %2 = ? LIMIT %3")
                          .arg(name, QLatin1String(column))
                          .arg(mostRowsOfAKey));
        query.addBindValue(key);
        if (!query.exec())
            return rows;
        const QString rowKey = name + QLatin1Char('\n') + key.toString();
        const bool isNew = !m_known.contains(rowKey);
        while (query.next()) {
            const QSqlRecord record = query.record();
            QVariantMap row;
            QJsonObject object;
            for (int i = 0; i < record.count(); ++i) {
                const QSqlField field = record.field(i);
                if (field.isNull() || field.name() == pictureColumn)
                    continue;
                row.insert(field.name(), field.value());
                object.insert(field.name(), QJsonValue::fromVariant(field.value()));
            }
            rows.append(row);
            if (isNew)
                m_tables[name].append(object);
        }
        m_known.insert(rowKey);
        return rows;
    }

    QSet<QString>& m_known;
    const QSqlDatabase& m_database;
    QMap<QString, QJsonArray> m_tables;
};

} // namespace

struct CaseCatalogueRows::Private
{
    QString fileName;
    std::optional<SupplyDbConnection> connection;
    QSet<int> supplies;
    QSet<int> ribbons;
    QSet<QString> rows; ///< by table and key
};

CaseCatalogueRows::CaseCatalogueRows()
    : d(std::make_unique<Private>())
{}
CaseCatalogueRows::~CaseCatalogueRows() = default;

void CaseCatalogueRows::setFile(const QString& fileName)
{
    d->fileName = fileName;
    d->supplies.clear();
    d->ribbons.clear();
    d->rows.clear();
    d->connection.emplace();
    d->connection->setUp(fileName, QStringLiteral("VXKIT_CASE_CONNECTION_NAME"));
}

QJsonObject CaseCatalogueRows::rowsFor(const PublishedValues& values)
{
    QList<int> supplies;
    QList<int> ribbons;
    values.forEach([&](const PublishedValues::Value& value) {
        if (value.bytes.isNull())
            return;
        if (value.known == SupplyIdentifier) {
            // A driver may leave out the zero at the end.
            const qsizetype end = value.bytes.indexOf('\0');
            const QByteArrayView text = end < 0 ? value.bytes : value.bytes.first(end);
            const int kind = SupplyC(QString::fromUtf8(text)).kind;
            if (kind > 0 && !d->supplies.contains(kind))
                supplies.append(kind);
        } else if ((value.known == Ribbon1Identifier || value.known == Ribbon2Identifier) &&
                   value.bytes.size() == sizeof(quint32)) {
            quint32 number = 0;
            std::memcpy(&number, value.bytes.data(), sizeof(number));
            const bool isPossible =
                number > 0 && number <= quint32(supplydb_schema::maxRibbonNumber);
            if (isPossible && !d->ribbons.contains(int(number)))
                ribbons.append(int(number));
        }
    });
    if ((supplies.isEmpty() && ribbons.isEmpty()) || !d->connection || !d->connection->open())
        return {};
    // What comes from a hostile driver must not fill the memory.
    constexpr qsizetype mostIdentifiers = 4096;
    if (d->supplies.size() + d->ribbons.size() > mostIdentifiers)
        return {};
    Reading reading(d->rows, d->connection->database());
    for (const int kind : std::as_const(supplies)) {
        d->supplies.insert(kind);
        reading.readSupply(kind);
    }
    for (const int number : std::as_const(ribbons)) {
        d->ribbons.insert(number);
        reading.readRibbon(number);
    }
    // Another supply is loaded seldom, and an open database takes more memory than all the rest.
    d->connection->close();
    const QJsonObject tables = reading.tables();
    if (tables.isEmpty())
        return {};
    return {{QStringLiteral("kind"), QStringLiteral("catalogue")},
            {QStringLiteral("file"), QFileInfo(d->fileName).fileName()},
            {QStringLiteral("schema"), qint64(supplydb_schema::schemaVersion)},
            {QStringLiteral("tables"), tables}};
}

} // namespace VxKit
