// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "supply_catalogue.h"

#include "catalogue_texts.h"
#include "printer_types.h"
#include "vx_ipc_supplyd_controller.h"

#include <supplyc.h>
#include <vxsupplydatabase.h>

#include <QtCore/QSet>

#include <algorithm>

namespace VxKit {

namespace {

/// Items are dropped and queried again when a fleet uses more kinds than this.
constexpr qsizetype mostItems = 1024;

/// Unknown numbers of the service are negative.
double knownLength(double inches)
{
    return inches > 0.0 ? inches : 0.0;
}

CatalogueItem supplyItem(const QString& sku, VXIPCSUPPLYDController& service)
{
    const SupplyInformation record = service.supplyInformationBySKUs(sku, {}, {});
    CatalogueItem item;
    item.sku = sku;
    item.material = record.materialName;
    item.colorName = record.colorName;
    item.name = nameOf({record.colorName, record.secColorName}, record.materialName);
    item.colors = hexColors({record.colorRGB, record.secColorRGB});
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
    QList<int> colors;
    const int panels = std::min(service.supplyRibbonPanels(sku), mostPanels);
    for (int panel = 1; panel <= panels; ++panel) {
        colors.append(service.supplyRibbonColorRGB(sku, panel));
        colorNames.append(service.supplyRibbonColorName(sku, panel));
    }
    item.colors = hexColors(colors);
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

template <typename Key, typename Value>
const Value& insert(QHash<Key, Value>& items, const Key& key, Value value)
{
    if (items.size() >= mostItems)
        items.clear();
    return *items.insert(key, std::move(value));
}

CatalogueItemPointer shared(CatalogueItem item)
{
    return std::make_shared<const CatalogueItem>(std::move(item));
}

std::optional<bool> hasPrintSettings(const QString& ribbonSku, const QString& supplySku,
                                     VXIPCSUPPLYDController& service)
{
    const int panels = std::min(service.supplyRibbonPanels(ribbonSku), mostPanels);
    if (panels < 1 || service.supplyWidth(supplySku, {}) < 0.0)
        return std::nullopt;
    for (int panel = 1; panel <= panels; ++panel) {
        if (service.supplyRibbonHeat(ribbonSku, panel, supplySku) < 0)
            return false;
    }
    return true;
}

} // namespace

SupplyCatalogue::SupplyCatalogue() = default;
SupplyCatalogue::~SupplyCatalogue() = default;

VXSupplyDatabase& SupplyCatalogue::database(const VXIPCSUPPLYDController& service)
{
    if (!m_database) {
        m_database = std::make_unique<VXSupplyDatabase>();
        m_database->setup(service.catalogueFile(), QStringLiteral("VXKIT_CONNECTION_NAME"));
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
    VXSupplyDatabase& supplies = database(service);
    supplies.setSupplyId(identifier);
    const QString sku = supplies.supplySKU();
    if (!isKnown(sku))
        return {};
    return insert(m_supplies, supply.kind, shared(supplyItem(sku, service)));
}

CatalogueItemPointer SupplyCatalogue::ribbon(const QString& identifier,
                                             VXIPCSUPPLYDController& service)
{
    const auto found = m_ribbons.constFind(identifier);
    if (found != m_ribbons.cend())
        return *found;
    VXSupplyDatabase& ribbons = database(service);
    ribbons.setRibbonIds({identifier});
    const QString sku = ribbons.supplyRibbonSKUs().value(0);
    if (!isKnown(sku))
        return {};
    return insert(m_ribbons, identifier, shared(ribbonItem(sku, service)));
}

std::optional<bool> SupplyCatalogue::ribbonSuits(const QString& ribbonSku, const QString& supplySku,
                                                 VXIPCSUPPLYDController& service)
{
    const auto pair = std::make_pair(ribbonSku, supplySku);
    const auto found = m_pairs.constFind(pair);
    if (found != m_pairs.cend())
        return *found;
    return insert(m_pairs, pair, hasPrintSettings(ribbonSku, supplySku, service));
}

} // namespace VxKit
