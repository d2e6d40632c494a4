// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "supply_catalogue.h"

#include "printer_types.h"
#include "vx_ipc_supplyd_controller.h"

#include <supplyc.h>
#include <vxsupplydatabase.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QSet>

#include <algorithm>

namespace VxKit {

namespace {

/// Items are dropped and queried again when a fleet uses more kinds than this.
constexpr qsizetype mostItems = 1024;
/// More panels than any ribbon has.
constexpr int mostPanels = 64;

/// Unknown numbers of the service are negative.
double knownLength(double inches)
{
    return inches > 0.0 ? inches : 0.0;
}

/// A 0xRRGGBB number as "#rrggbb".
QString hexOf(int rgb)
{
    return QStringLiteral("#%1").arg(static_cast<uint>(rgb) & 0xFFFFFFU, 6, 16, QLatin1Char('0'));
}

/// The name of a supply or ribbon by its colours and its material, of which either may be missing.
QString nameOf(QStringList colorNames, const QString& material)
{
    colorNames.removeAll(QString());
    const QString colors = colorNames.join(QLatin1Char('/'));
    if (colors.isEmpty() || material.isEmpty())
        return colors + material;
    //: The name of a supply or ribbon for people. %1 is its colour or colours, such as "Yellow" or
    //: "Black/Red", %2 its material, such as "Vinyl".
    return QCoreApplication::translate("VxKit::SupplyCatalogue", "%1 %2").arg(colors, material);
}

CatalogueItem supplyItem(const QString& sku, VXIPCSUPPLYDController& service)
{
    const SupplyInformation record = service.supplyInformationBySKUs(sku, {}, {});
    CatalogueItem item;
    item.sku = sku;
    item.material = record.materialName;
    item.colorName = record.colorName;
    item.name = nameOf({record.colorName, record.secColorName}, record.materialName);
    for (const int rgb : {record.colorRGB, record.secColorRGB}) {
        if (rgb >= 0)
            item.colors.append(hexOf(rgb));
    }
    item.length = knownLength(record.supplyLength);
    static const QSet<QString> formatsWithLabels{QStringLiteral("die-cut"),
                                                 QStringLiteral("sleeve"), QStringLiteral("tag")};
    // Without the separator's width the distance of two labels is not known.
    if (formatsWithLabels.contains(record.formatType) && record.nonContinuousLength > 0.0F &&
        record.separatorWidth >= 0.0F)
        item.pitch = double(record.nonContinuousLength) + double(record.separatorWidth);
    item.labelsSideBySide = std::max(1, record.multiUpCount);
    return item;
}

CatalogueItem ribbonItem(const QString& sku, VXIPCSUPPLYDController& service)
{
    CatalogueItem item;
    item.sku = sku;
    item.material = service.supplyRibbonType(sku);
    QStringList colorNames;
    const int panels = std::min(service.supplyRibbonPanels(sku), mostPanels);
    for (int panel = 1; panel <= panels; ++panel) {
        const int rgb = service.supplyRibbonColorRGB(sku, panel);
        if (rgb >= 0)
            item.colors.append(hexOf(rgb));
        colorNames.append(service.supplyRibbonColorName(sku, panel));
    }
    colorNames.removeAll(QString());
    item.colorName = colorNames.value(0);
    item.name = nameOf(colorNames, item.material);
    item.length = knownLength(static_cast<float>(service.supplyRibbonLength(sku)));
    return item;
}

bool isKnown(const QString& sku)
{
    return !sku.isEmpty() && sku != VXPrinting::nothingLoaded;
}

template <typename Key>
CatalogueItemPointer insert(QHash<Key, CatalogueItemPointer>& items, const Key& key,
                            CatalogueItem item)
{
    if (items.size() >= mostItems)
        items.clear();
    return *items.insert(key, std::make_shared<const CatalogueItem>(std::move(item)));
}

} // namespace

SupplyCatalogue::SupplyCatalogue() = default;
SupplyCatalogue::~SupplyCatalogue() = default;

VXSupplyDatabase& SupplyCatalogue::database()
{
    if (!m_database) {
        m_database = std::make_unique<VXSupplyDatabase>();
        m_database->setup(QCoreApplication::applicationDirPath() + QLatin1String("/roll.db"),
                          QStringLiteral("VXKIT_CONNECTION_NAME"));
    }
    return *m_database;
}

CatalogueItemPointer SupplyCatalogue::supply(const QString& identifier,
                                             VXIPCSUPPLYDController& service)
{
    const SupplyC supply(identifier);
    if (!supply.isDecoded())
        return {};
    const auto found = m_supplies.constFind(supply.kind);
    if (found != m_supplies.cend())
        return *found;
    database().setSupplyId(identifier);
    const QString sku = database().supplySKU();
    return isKnown(sku) ? insert(m_supplies, supply.kind, supplyItem(sku, service)) : nullptr;
}

CatalogueItemPointer SupplyCatalogue::ribbon(const QString& identifier,
                                             VXIPCSUPPLYDController& service)
{
    const auto found = m_ribbons.constFind(identifier);
    if (found != m_ribbons.cend())
        return *found;
    database().setRibbonIds({identifier});
    const QString sku = database().supplyRibbonSKUs().value(0);
    return isKnown(sku) ? insert(m_ribbons, identifier, ribbonItem(sku, service)) : nullptr;
}

} // namespace VxKit
