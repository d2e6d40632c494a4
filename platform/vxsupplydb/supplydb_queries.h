// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "cached_query.h"

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariantHash>

/// The queries of `VXSupplyDatabase` and their answers. A default-constructed answer is the one for
/// a key that the database does not have.
namespace supplydb_queries {

struct Colour
{
    int rgb = -1;
    QString name;
    QString nameEn;
};

struct SecondColour : Colour
{
    double width = -1.0;
};

struct Material
{
    int id = -1;
    QString name;
};

struct Format
{
    int id = -1;
    QString name;
    QString type;
};

struct Size
{
    double width = -1.0;
    double length = -1.0;
    double labelLength = -1.0;
    double separatorWidth = -1.0;
};

struct Arrangement
{
    int isLandscape = 1;
    int multiUpCount = 1;
    double multiUpGap = -1.0;
};

/// The position of a supply's format in each printer model's list.
using TypeIndices = QHash<QString, int>;

struct Ribbon
{
    QString type;
    double width = -1.0;
    double length = -1.0;
    int panels = -1;
};

struct PanelKey
{
    QString ribbonSku;
    int panel;

    friend bool operator==(const PanelKey&, const PanelKey&) = default;
    friend size_t qHash(const PanelKey& key, size_t seed = 0)
    {
        return qHashMulti(seed, key.ribbonSku, key.panel);
    }
};

struct SettingKey
{
    QString ribbonSku;
    int panel;
    QString supplySku;

    friend bool operator==(const SettingKey&, const SettingKey&) = default;
    friend size_t qHash(const SettingKey& key, size_t seed = 0)
    {
        return qHashMulti(seed, key.ribbonSku, key.panel, key.supplySku);
    }
};

struct PrintSetting
{
    int heat = -1;
    int heatOffset = -1;
    int maxSpeed = -1;
    int tension = -1;
};

/// The SKUs of all supplies or of all ribbons, sorted, and the colour of each.
struct SkuList
{
    QStringList skus;
    QVariantHash colours;
};

/// The key of a query that has no parameters.
constexpr int onlyKey = 0;

/// All statements with their cached answers. Where an answer has names, the language is bound
/// first; the parts of the key follow.
struct Queries
{
    Queries();

    /// Drops the answers that contain names.
    void clearNames();

    // By the language and a supply's SKU.
    CachedQuery<QString, Colour> colours;
    CachedQuery<QString, SecondColour> secondColours;
    CachedQuery<QString, Material> materials;
    CachedQuery<QString, Format> formats;
    // By a supply's SKU.
    CachedQuery<QString, Size> sizes;
    CachedQuery<QString, Arrangement> arrangements;
    CachedQuery<QString, QByteArray> backgrounds;
    CachedQuery<QString, TypeIndices> typeIndices;
    // By a ribbon's SKU.
    CachedQuery<QString, Ribbon> ribbons;
    // By the language, a ribbon's SKU and the panel.
    CachedQuery<PanelKey, Colour> panelColours;
    CachedQuery<SettingKey, PrintSetting> settings;
    // By the number in an identifier.
    CachedQuery<int, QString> supplySkus;
    CachedQuery<int, QString> ribbonSkus;
    // Without parameters.
    /// The printer models that have a list of formats: longer ones first, so that the first one
    /// found in a printer's name is the right one. The model of all other printers is the empty
    /// text, which any name contains.
    CachedQuery<int, QStringList> models;
    CachedQuery<int, SkuList> supplyList;
    CachedQuery<int, SkuList> ribbonList;
};

} // namespace supplydb_queries
