// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "catalogue_list.h"

#include "catalogue_texts.h"
#include "json_values.h"
#include "supply_catalogue.h"

#include <vxsupplydatabase.h>

#include <QtCore/QJsonArray>
#include <QtCore/QStringList>

#include <algorithm>

namespace VxKit {

namespace {

/// Null for what the catalogue does not know, which is negative.
QJsonValue meters(double inches)
{
    return inches > 0.0 ? QJsonValue(inches * metersPerInch) : QJsonValue();
}

QJsonObject supply(const VXSupplyDatabase& database, const QString& sku)
{
    const QString material = database.supplyMaterialName(sku);
    const QString colorName = database.supplyColorName(sku);
    const double label = database.supplyNonContinuousLength(sku);
    const double separator = database.supplySeparatorWidth(sku);
    return {{QStringLiteral("sku"), sku},
            {QStringLiteral("name"),
             textOrNull(nameOf({colorName, database.supplySecColorName(sku)}, material))},
            {QStringLiteral("material"), textOrNull(material)},
            {QStringLiteral("format"), textOrNull(database.supplyFormatName(sku))},
            {QStringLiteral("colorName"), textOrNull(colorName)},
            {QStringLiteral("colors"),
             QJsonArray::fromStringList(
                 hexColors({database.supplyColorRGB(sku), database.supplySecColorRGB(sku)}))},
            {QStringLiteral("widthMeters"), meters(database.supplyWidth(sku))},
            {QStringLiteral("totalMeters"), meters(database.supplyLength(sku))},
            {QStringLiteral("labelMeters"), meters(label)},
            {QStringLiteral("separatorMeters"), label > 0.0 && separator >= 0.0
                                                    ? QJsonValue(separator * metersPerInch)
                                                    : QJsonValue()},
            {QStringLiteral("labelsAcross"), std::max(1, database.supplyMultiUpCount(sku))}};
}

QJsonObject ribbon(const VXSupplyDatabase& database, const QString& sku)
{
    const QString type = database.supplyRibbonType(sku);
    const int panels = std::clamp(database.supplyRibbonPanels(sku), 0, mostPanels);
    QStringList colorNames;
    QList<int> colors;
    for (int panel = 1; panel <= panels; ++panel) {
        colors.append(database.supplyRibbonColorRGB(sku, panel));
        colorNames.append(database.supplyRibbonColorName(sku, panel));
    }
    return {{QStringLiteral("sku"), sku},
            {QStringLiteral("name"), textOrNull(nameOf(colorNames, type))},
            {QStringLiteral("material"), textOrNull(type)},
            {QStringLiteral("colorName"), textOrNull(colorNames.value(0))},
            {QStringLiteral("colors"), QJsonArray::fromStringList(hexColors(colors))},
            {QStringLiteral("widthMeters"), meters(database.supplyRibbonWidth(sku))},
            {QStringLiteral("totalMeters"), meters(database.supplyRibbonLength(sku))},
            {QStringLiteral("panels"), panels > 0 ? QJsonValue(panels) : QJsonValue()}};
}

} // namespace

QJsonObject readCatalogueList(const QString& file, int languageId)
{
    VXSupplyDatabase database;
    database.setup(file, QStringLiteral("VXKIT_LIST_CONNECTION_NAME"));
    database.setLanguageId(languageId);
    QJsonArray supplies;
    for (const QStringList skus = database.supplySKUList(); const QString& sku : skus)
        supplies.append(supply(database, sku));
    QJsonArray ribbons;
    for (const QStringList skus = database.supplyRibbonSKUList(); const QString& sku : skus)
        ribbons.append(ribbon(database, sku));
    return {{QStringLiteral("supplies"), supplies}, {QStringLiteral("ribbons"), ribbons}};
}

} // namespace VxKit
