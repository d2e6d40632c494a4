// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "database_reader.h"

#include "database_check.h"
#include "failure.h"

#include <supplydb_connection.h>

#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>

#include <functional>

namespace {

std::optional<double> realOrNothing(const QVariant& value)
{
    return value.isNull() ? std::nullopt : std::optional(value.toDouble());
}

class Reader
{
public:
    Reader(const QSqlDatabase& database, const QString& name)
        : m_database(database)
        , m_name(name)
    {}

    Catalogue read()
    {
        each("SELECT id, tag FROM language", [this](const QSqlQuery& row) {
            m_catalogue.languages.insert(row.value(0).toInt(), row.value(1).toString());
        });
        readNames();
        readVocabulary();
        readSupplies();
        readRibbons();
        return ordered(std::move(m_catalogue));
    }

private:
    void each(const char* statement, const std::function<void(const QSqlQuery&)>& take) const
    {
        QSqlQuery query(m_database);
        query.setForwardOnly(true);
        if (!query.exec(QLatin1String(statement)))
            throw Failure(QStringLiteral("%1: %2").arg(m_name, query.lastError().databaseText()));
        while (query.next())
            take(query);
    }

    void readNames()
    {
        each("SELECT id, english FROM name", [this](const QSqlQuery& row) {
            m_names[row.value(0).toLongLong()].english = row.value(1).toString();
        });
        each("SELECT name_id, language_id, text FROM translation", [this](const QSqlQuery& row) {
            m_names[row.value(0).toLongLong()].translations.insert(row.value(1).toInt(),
                                                                   row.value(2).toString());
        });
    }

    Name name(const QVariant& id) const { return m_names.value(id.toLongLong()); }

    void readVocabulary()
    {
        each("SELECT id, key, rgb, name_id FROM colour ORDER BY id", [this](const QSqlQuery& row) {
            m_colours.insert(row.value(0).toLongLong(), m_catalogue.colours.size());
            m_catalogue.colours.append(
                {row.value(1).toString(), row.value(2).toInt(), name(row.value(3))});
        });
        each("SELECT id, name_id FROM material", [this](const QSqlQuery& row) {
            m_catalogue.materials.append({row.value(0).toInt(), name(row.value(1))});
        });
        each("SELECT id, type, name_id FROM format", [this](const QSqlQuery& row) {
            m_catalogue.formats.append(
                {row.value(0).toInt(), row.value(1).toString(), name(row.value(2))});
        });
        each("SELECT model, position, format_id FROM printer_format", [this](const QSqlQuery& row) {
            m_catalogue.printerFormats.append(
                {row.value(0).toString(), row.value(1).toInt(), row.value(2).toInt()});
        });
        each("SELECT id, file, image FROM background", [this](const QSqlQuery& row) {
            m_backgrounds.insert(row.value(0).toLongLong(), m_catalogue.backgrounds.size());
            m_catalogue.backgrounds.append({row.value(1).toString(), row.value(2).toByteArray()});
        });
    }

    static std::optional<qsizetype> place(const QHash<qint64, qsizetype>& places,
                                          const QVariant& id)
    {
        return id.isNull() ? std::nullopt : std::optional(places.value(id.toLongLong()));
    }

    void readSupplies()
    {
        QHash<QString, QList<int>> kinds;
        each("SELECT supply_sku, kind FROM supply_kind", [&kinds](const QSqlQuery& row) {
            kinds[row.value(0).toString()].append(row.value(1).toInt());
        });
        each("SELECT sku, material_id, format_id, colour_id, second_colour_id, "
             "second_colour_width, width, length, label_length, separator_width, is_landscape, "
             "background_id, multi_up_count, multi_up_gap FROM supply",
             [&](const QSqlQuery& row) {
                 const QString sku = row.value(0).toString();
                 m_catalogue.supplies.append({.sku = sku,
                                              .material = row.value(1).toInt(),
                                              .format = row.value(2).toInt(),
                                              .colour = m_colours.value(row.value(3).toLongLong()),
                                              .secondColour = place(m_colours, row.value(4)),
                                              .secondColourWidth = realOrNothing(row.value(5)),
                                              .width = row.value(6).toDouble(),
                                              .length = row.value(7).toDouble(),
                                              .labelLength = realOrNothing(row.value(8)),
                                              .separatorWidth = realOrNothing(row.value(9)),
                                              .isLandscape = row.value(10).toInt() != 0,
                                              .background = place(m_backgrounds, row.value(11)),
                                              .multiUpCount = row.value(12).toInt(),
                                              .multiUpGap = realOrNothing(row.value(13)),
                                              .kinds = kinds.value(sku)});
             });
    }

    void readRibbons()
    {
        QHash<QString, QList<int>> numbers;
        each("SELECT ribbon_sku, number FROM ribbon_number", [&numbers](const QSqlQuery& row) {
            numbers[row.value(0).toString()].append(row.value(1).toInt());
        });
        QHash<QString, QList<qsizetype>> panels;
        each("SELECT ribbon_sku, colour_id FROM ribbon_panel ORDER BY ribbon_sku, panel",
             [&](const QSqlQuery& row) {
                 panels[row.value(0).toString()].append(m_colours.value(row.value(1).toLongLong()));
             });
        each("SELECT sku, type, width, length FROM ribbon", [&](const QSqlQuery& row) {
            const QString sku = row.value(0).toString();
            m_catalogue.ribbons.append({sku, row.value(1).toString(), row.value(2).toDouble(),
                                        row.value(3).toDouble(), panels.value(sku),
                                        numbers.value(sku)});
        });
        each("SELECT ribbon_sku, panel, supply_sku, heat, heat_offset, max_speed, tension "
             "FROM print_setting",
             [this](const QSqlQuery& row) {
                 m_catalogue.settings.append({row.value(0).toString(), row.value(1).toInt(),
                                              row.value(2).toString(), row.value(3).toInt(),
                                              row.value(4).toInt(), row.value(5).toInt(),
                                              row.value(6).toInt()});
             });
    }

    QSqlDatabase m_database;
    QString m_name;
    Catalogue m_catalogue;
    QHash<qint64, Name> m_names;
    QHash<qint64, qsizetype> m_colours; ///< their places in the list, by row
    QHash<qint64, qsizetype> m_backgrounds;
};

} // namespace

Catalogue readDatabase(const QString& path)
{
    SupplyDbConnection connection;
    connection.setUp(path, QStringLiteral("rolldb reads ") + path);
    if (!connection.open())
        throw Failure(QStringLiteral("%1: %2").arg(path, connection.fault()));
    DatabaseChecker(connection.database(), path).check();
    return Reader(connection.database(), path).read();
}
