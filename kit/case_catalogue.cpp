// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_catalogue.h"

#include "catalogue_texts.h"

#include <supplyc.h>

#include <QtCore/QJsonArray>
#include <QtCore/QLocale>

#include <algorithm>
#include <array>

namespace VxKit {

namespace {

/// Of one table. A case needs a few.
constexpr qsizetype mostRows = 16384;

struct Table
{
    const char* name;
    const char* key;
    const char* secondKey = nullptr;
};
constexpr std::array tables{
    Table{"language", "id"},
    Table{"name", "id"},
    Table{"colour", "id"},
    Table{"translation", "name_id", "language_id"},
    Table{"material", "id"},
    Table{"format", "id"},
    Table{"supply", "sku"},
    Table{"supply_kind", "kind"},
    Table{"ribbon", "sku"},
    Table{"ribbon_number", "number"},
    Table{"ribbon_panel", "ribbon_sku", "panel"},
};

QString keyOf(const QJsonValue& value)
{
    return value.isString() ? value.toString() : QString::number(value.toInteger());
}

QString keyOf(const QJsonValue& first, const QJsonValue& second)
{
    return keyOf(first) + u'\n' + keyOf(second);
}

QString textOf(const QJsonObject& row, const char* column)
{
    return row.value(QLatin1String(column)).toString();
}

double lengthOf(const QJsonObject& row, const char* column)
{
    // The library calculates with a float.
    return std::max(0.0, double(float(row.value(QLatin1String(column)).toDouble())));
}

} // namespace

void CaseCatalogue::add(const QJsonObject& all)
{
    for (const Table& table : tables) {
        const QString name = QString::fromLatin1(table.name);
        QHash<QString, QJsonObject>& known = m_tables[name];
        const QJsonArray rows = all.value(name).toArray();
        for (const QJsonValue& each : rows) {
            if (known.size() >= mostRows)
                break;
            const QJsonObject row = each.toObject();
            const QJsonValue key = row.value(QLatin1String(table.key));
            known.insert(table.secondKey ? keyOf(key, row.value(QLatin1String(table.secondKey)))
                                         : keyOf(key),
                         row);
        }
    }
}

QJsonObject CaseCatalogue::row(const char* table, const QString& key) const
{
    return m_tables.value(QString::fromLatin1(table)).value(key);
}

QString CaseCatalogue::name(const QJsonValue& id) const
{
    if (!id.isDouble())
        return {};
    const QString language = QLocale().name().section(u'_', 0, 0);
    const QHash<QString, QJsonObject> languages = m_tables.value(QStringLiteral("language"));
    for (const QJsonObject& each : languages) {
        if (textOf(each, "tag").section(u'-', 0, 0) != language)
            continue;
        const QString text =
            textOf(row("translation", keyOf(id, each.value(QLatin1String("id")))), "text");
        if (!text.isEmpty())
            return text;
    }
    return textOf(row("name", keyOf(id)), "english");
}

int CaseCatalogue::rgb(const QJsonValue& colourId) const
{
    return colourId.isDouble()
               ? row("colour", keyOf(colourId)).value(QLatin1String("rgb")).toInt(-1)
               : -1;
}

QString CaseCatalogue::colourName(const QJsonValue& colourId) const
{
    return colourId.isDouble()
               ? name(row("colour", keyOf(colourId)).value(QLatin1String("name_id")))
               : QString();
}

CatalogueItemPointer CaseCatalogue::supply(const QString& identifier) const
{
    const SupplyC decoded(identifier);
    if (!decoded.isDecoded())
        return {};
    const QString sku = textOf(row("supply_kind", QString::number(decoded.kind)), "supply_sku");
    const QJsonObject supply = row("supply", sku);
    if (supply.isEmpty())
        return {};
    CatalogueItem item;
    item.sku = sku;
    item.material = name(row("material", keyOf(supply.value(QLatin1String("material_id"))))
                             .value(QLatin1String("name_id")));
    const QJsonValue colour = supply.value(QLatin1String("colour_id"));
    const QJsonValue second = supply.value(QLatin1String("second_colour_id"));
    item.colorName = colourName(colour);
    item.name = nameOf({item.colorName, colourName(second)}, item.material);
    item.colors = hexColors({rgb(colour), rgb(second)});
    item.length = lengthOf(supply, "length");
    const QString format =
        textOf(row("format", keyOf(supply.value(QLatin1String("format_id")))), "type");
    const QJsonValue separator = supply.value(QLatin1String("separator_width"));
    if (format != QLatin1String("continuous") && separator.isDouble() &&
        lengthOf(supply, "label_length") > 0)
        item.pitch = lengthOf(supply, "label_length") + lengthOf(supply, "separator_width");
    item.labelsSideBySide = std::max(1, supply.value(QLatin1String("multi_up_count")).toInt());
    return std::make_shared<const CatalogueItem>(item);
}

CatalogueItemPointer CaseCatalogue::ribbon(const QString& identifier) const
{
    const QString sku = textOf(row("ribbon_number", identifier), "ribbon_sku");
    const QJsonObject ribbon = row("ribbon", sku);
    if (ribbon.isEmpty())
        return {};
    CatalogueItem item;
    item.sku = sku;
    item.material = textOf(ribbon, "type");
    QStringList names;
    QList<int> colours;
    constexpr int mostRibbonPanels = 16;
    for (int panel = 1; panel <= mostRibbonPanels; ++panel) {
        const QJsonValue colour = row("ribbon_panel", keyOf(QJsonValue(sku), QJsonValue(panel)))
                                      .value(QLatin1String("colour_id"));
        colours.append(rgb(colour));
        names.append(colourName(colour));
    }
    names.removeAll(QString());
    item.colors = hexColors(colours);
    item.colorName = names.value(0);
    item.name = nameOf(names, item.material);
    item.length = lengthOf(ribbon, "length");
    return std::make_shared<const CatalogueItem>(item);
}

} // namespace VxKit
