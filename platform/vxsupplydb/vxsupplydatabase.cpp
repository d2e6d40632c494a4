// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "vxsupplydatabase.h"

#include "supplyc.h"
#include "supplydb_connection.h"
#include "supplydb_queries.h"
#include "supplydb_schema.h"

#include <memory>
#include <utility>

using namespace supplydb_queries;

namespace {

// The SKU for an empty position in a printer.
const QString nothingLoaded = QStringLiteral("-1");
const QString blankSupplyId = QStringLiteral("00000000000000000000");
const QStringList blankRibbonIds{QString(), QStringLiteral("-1"), QStringLiteral("4294967295"),
                                 QStringLiteral("0")};

} // namespace

class VXSupplyDatabase::Private
{
public:
    int languageId = supplydb_schema::fallbackLanguage;
    QString supplyId;
    QStringList ribbonIds;

    void setup(const QString& path, const QString& name)
    {
        m_queries.reset();
        m_connection.setUp(path, name);
    }

    // Opened at the first query. Opening the file takes longer than everything else that is done
    // for a new printer, and an application that finds a hundred printers queries only a few.
    const QSqlDatabase& database()
    {
        m_connection.open();
        return m_connection.database();
    }

    void clearNames()
    {
        if (m_queries)
            m_queries->clearNames();
    }

    // Created at the first query, for the same reason.
    Queries& queries()
    {
        if (!m_queries)
            m_queries = std::make_unique<Queries>();
        return *m_queries;
    }

    // A text that cannot be a SKU is not queried: callers could fill the cache with long keys.
    template <typename Answer>
    const Answer& ofSku(CachedQuery<QString, Answer>& query, const QString& sku)
    {
        static const Answer unknown{};
        if (!supplydb_schema::isSku(sku))
            return unknown;
        return query.answer(database(), sku, sku);
    }
    template <typename Answer>
    const Answer& named(CachedQuery<QString, Answer>& query, const QString& sku)
    {
        static const Answer unknown{};
        if (!supplydb_schema::isSku(sku))
            return unknown;
        return query.answer(database(), sku, languageId, sku);
    }

    const Colour& panelColour(const QString& ribbonSku, int panel)
    {
        static const Colour unknown{};
        if (!supplydb_schema::isSku(ribbonSku))
            return unknown;
        return queries().panelColours.answer(database(), {ribbonSku, panel}, languageId, ribbonSku,
                                             panel);
    }

    const PrintSetting& setting(const QString& ribbonSku, int panel, const QString& supplySkuText)
    {
        static const PrintSetting unknown{};
        if (!supplydb_schema::isSku(ribbonSku) || !supplydb_schema::isSku(supplySkuText))
            return unknown;
        return queries().settings.answer(database(), {ribbonSku, panel, supplySkuText}, ribbonSku,
                                         panel, supplySkuText);
    }

    QVariantList firstPanelSettings(const QStringList& skus, const QString& supplySkuText,
                                    int PrintSetting::*wanted)
    {
        QVariantList values;
        values.reserve(skus.size());
        for (const QString& sku : skus)
            values.append(setting(sku, 1, supplySkuText).*wanted);
        return values;
    }

    QStringList panelRgbs(const QString& ribbonSku)
    {
        QStringList rgbs;
        const int panels = ofSku(queries().ribbons, ribbonSku).panels;
        for (int panel = 1; panel <= panels; ++panel)
            rgbs.append(QString::number(panelColour(ribbonSku, panel).rgb));
        return rgbs;
    }

    QString loadedSupplySku()
    {
        if (supplyId.isEmpty() || supplyId == nothingLoaded || supplyId == blankSupplyId)
            return nothingLoaded;
        const SupplyC decoded(supplyId);
        if (!decoded.isDecoded())
            return {};
        return queries().supplySkus.answer(database(), decoded.kind, decoded.kind);
    }

    QString loadedRibbonSku(const QString& id)
    {
        if (blankRibbonIds.contains(id))
            return nothingLoaded;
        bool isNumber = false;
        const int number = id.toInt(&isNumber);
        if (!isNumber)
            return {};
        return queries().ribbonSkus.answer(database(), number, number);
    }

    QString model(const QString& printerName)
    {
        const QStringList& names = queries().models.answer(database(), onlyKey);
        for (const QString& name : names) {
            if (printerName.contains(name, Qt::CaseInsensitive))
                return name;
        }
        return {};
    }

    const SkuList& supplyList() { return queries().supplyList.answer(database(), onlyKey); }
    const SkuList& ribbonList() { return queries().ribbonList.answer(database(), onlyKey); }

private:
    SupplyDbConnection m_connection;
    std::unique_ptr<Queries> m_queries; // destroyed before the connection that its statements use
};

VXSupplyDatabase::VXSupplyDatabase(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{}

VXSupplyDatabase::~VXSupplyDatabase() = default;

void VXSupplyDatabase::setup(const QString& databasePath, const QString& connectionName)
{
    d->setup(databasePath, connectionName);
}

void VXSupplyDatabase::setLanguageId(int languageId)
{
    if (d->languageId == languageId)
        return;
    d->languageId = languageId;
    d->clearNames();
}

void VXSupplyDatabase::setSupplyId(const QString& id)
{
    d->supplyId = id;
}

void VXSupplyDatabase::setRibbonIds(const QStringList& ids)
{
    d->ribbonIds = ids;
}

QString VXSupplyDatabase::supplyId() const
{
    return d->supplyId;
}

QString VXSupplyDatabase::supplySKU() const
{
    return d->loadedSupplySku();
}

QStringList VXSupplyDatabase::supplyRibbonSKUs() const
{
    QStringList skus;
    skus.reserve(d->ribbonIds.size());
    for (const QString& id : std::as_const(d->ribbonIds))
        skus.append(d->loadedRibbonSku(id));
    return skus;
}

QString VXSupplyDatabase::supplySupplyRGB() const
{
    const int rgb = supplyColorRGB(supplySKU());
    return rgb < 0 ? QString() : QString::number(rgb);
}

QStringList VXSupplyDatabase::supplyRibbon1RGBs() const
{
    return d->panelRgbs(supplyRibbonSKUs().value(0));
}

QStringList VXSupplyDatabase::supplyRibbon2RGBs() const
{
    return d->panelRgbs(supplyRibbonSKUs().value(1));
}

QStringList VXSupplyDatabase::supplySKUList() const
{
    return d->supplyList().skus;
}

QStringList VXSupplyDatabase::supplyRibbonSKUList() const
{
    return d->ribbonList().skus;
}

QVariantHash VXSupplyDatabase::supplyColorHash() const
{
    return d->supplyList().colours;
}

QVariantHash VXSupplyDatabase::supplyRibbonColorHash() const
{
    return d->ribbonList().colours;
}

int VXSupplyDatabase::supplyMaterial(const QString& sku) const
{
    return d->named(d->queries().materials, sku).id;
}

QString VXSupplyDatabase::supplyMaterialName(const QString& sku) const
{
    return d->named(d->queries().materials, sku).name;
}

int VXSupplyDatabase::supplyFormat(const QString& sku) const
{
    return d->named(d->queries().formats, sku).id;
}

QString VXSupplyDatabase::supplyFormatName(const QString& sku) const
{
    return d->named(d->queries().formats, sku).name;
}

QString VXSupplyDatabase::supplyFormatType(const QString& sku) const
{
    return d->named(d->queries().formats, sku).type;
}

int VXSupplyDatabase::supplyColorRGB(const QString& sku) const
{
    return d->named(d->queries().colours, sku).rgb;
}

QString VXSupplyDatabase::supplyColorName(const QString& sku) const
{
    return d->named(d->queries().colours, sku).name;
}

QString VXSupplyDatabase::supplyColorNameEn(const QString& sku) const
{
    return d->named(d->queries().colours, sku).nameEn;
}

int VXSupplyDatabase::supplySecColorRGB(const QString& sku) const
{
    return d->named(d->queries().secondColours, sku).rgb;
}

QString VXSupplyDatabase::supplySecColorName(const QString& sku) const
{
    return d->named(d->queries().secondColours, sku).name;
}

QString VXSupplyDatabase::supplySecColorNameEn(const QString& sku) const
{
    return d->named(d->queries().secondColours, sku).nameEn;
}

double VXSupplyDatabase::supplySecColorWidth(const QString& sku) const
{
    return d->named(d->queries().secondColours, sku).width;
}

double VXSupplyDatabase::supplyWidth(const QString& sku) const
{
    return d->ofSku(d->queries().sizes, sku).width;
}

double VXSupplyDatabase::supplyLength(const QString& sku) const
{
    return d->ofSku(d->queries().sizes, sku).length;
}

double VXSupplyDatabase::supplyNonContinuousLength(const QString& sku) const
{
    return d->ofSku(d->queries().sizes, sku).labelLength;
}

double VXSupplyDatabase::supplySeparatorWidth(const QString& sku) const
{
    return d->ofSku(d->queries().sizes, sku).separatorWidth;
}

int VXSupplyDatabase::supplyIsLandscape(const QString& sku) const
{
    return d->ofSku(d->queries().arrangements, sku).isLandscape;
}

int VXSupplyDatabase::supplyMultiUpCount(const QString& sku) const
{
    return d->ofSku(d->queries().arrangements, sku).multiUpCount;
}

double VXSupplyDatabase::supplyMultiUpGapSize(const QString& sku) const
{
    return d->ofSku(d->queries().arrangements, sku).multiUpGap;
}

QByteArray VXSupplyDatabase::supplyBackgroundImage(const QString& sku) const
{
    return d->ofSku(d->queries().backgrounds, sku);
}

int VXSupplyDatabase::supplyTypeIndex(const QString& sku, const QString& printerName) const
{
    return d->ofSku(d->queries().typeIndices, sku).value(d->model(printerName), -1);
}

QString VXSupplyDatabase::supplyRibbonType(const QString& ribbonSku) const
{
    return d->ofSku(d->queries().ribbons, ribbonSku).type;
}

int VXSupplyDatabase::supplyRibbonPanels(const QString& ribbonSku) const
{
    return d->ofSku(d->queries().ribbons, ribbonSku).panels;
}

double VXSupplyDatabase::supplyRibbonWidth(const QString& ribbonSku) const
{
    return d->ofSku(d->queries().ribbons, ribbonSku).width;
}

double VXSupplyDatabase::supplyRibbonLength(const QString& ribbonSku) const
{
    return d->ofSku(d->queries().ribbons, ribbonSku).length;
}

QString VXSupplyDatabase::supplyRibbonColorName(const QString& ribbonSku, int panel) const
{
    return d->panelColour(ribbonSku, panel).name;
}

int VXSupplyDatabase::supplyRibbonColorRGB(const QString& ribbonSku, int panel) const
{
    return d->panelColour(ribbonSku, panel).rgb;
}

int VXSupplyDatabase::supplyRibbonHeat(const QString& ribbonSku, int panel,
                                       const QString& supplySku) const
{
    return d->setting(ribbonSku, panel, supplySku).heat;
}

int VXSupplyDatabase::supplyRibbonHeatOffset(const QString& ribbonSku, int panel,
                                             const QString& supplySku) const
{
    return d->setting(ribbonSku, panel, supplySku).heatOffset;
}

int VXSupplyDatabase::supplyRibbonMaxSpeed(const QString& ribbonSku, int panel,
                                           const QString& supplySku) const
{
    return d->setting(ribbonSku, panel, supplySku).maxSpeed;
}

int VXSupplyDatabase::supplyRibbonTension(const QString& ribbonSku, int panel,
                                          const QString& supplySku) const
{
    return d->setting(ribbonSku, panel, supplySku).tension;
}

QStringList VXSupplyDatabase::supplyRibbonsColorNames(const QStringList& ribbonSkus) const
{
    QStringList names;
    names.reserve(ribbonSkus.size());
    for (const QString& sku : ribbonSkus)
        names.append(d->panelColour(sku, 1).name);
    return names;
}

QVariantList VXSupplyDatabase::supplyRibbonsColorRGBs(const QStringList& ribbonSkus) const
{
    QVariantList rgbs;
    rgbs.reserve(ribbonSkus.size());
    for (const QString& sku : ribbonSkus)
        rgbs.append(d->panelColour(sku, 1).rgb);
    return rgbs;
}

QVariantList VXSupplyDatabase::supplyRibbonsHeats(const QStringList& ribbonSkus,
                                                  const QString& supplySku) const
{
    return d->firstPanelSettings(ribbonSkus, supplySku, &PrintSetting::heat);
}

QVariantList VXSupplyDatabase::supplyRibbonsHeatOffsets(const QStringList& ribbonSkus,
                                                        const QString& supplySku) const
{
    return d->firstPanelSettings(ribbonSkus, supplySku, &PrintSetting::heatOffset);
}

QVariantList VXSupplyDatabase::supplyRibbonsMaxSpeeds(const QStringList& ribbonSkus,
                                                      const QString& supplySku) const
{
    return d->firstPanelSettings(ribbonSkus, supplySku, &PrintSetting::maxSpeed);
}

QVariantList VXSupplyDatabase::supplyRibbonsTensions(const QStringList& ribbonSkus,
                                                     const QString& supplySku) const
{
    return d->firstPanelSettings(ribbonSkus, supplySku, &PrintSetting::tension);
}
