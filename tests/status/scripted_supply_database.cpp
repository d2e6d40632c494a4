// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "scripted_supply_database.h"

#include <vxsupplydatabase.h>

namespace {

QHash<QString, ScriptedSupplyDatabase>& databases()
{
    static QHash<QString, ScriptedSupplyDatabase> all;
    return all;
}

QStringList& calls()
{
    static QStringList all;
    return all;
}

const QString suffix = QStringLiteral("_CONNECTION_NAME");
const QString sharedName = QStringLiteral("SUPPLY_INFO_QT_SQL");

} // namespace

ScriptedSupplyDatabase& ScriptedSupplyDatabase::ofPrinter(const QString& printerName)
{
    return databases()[printerName];
}

ScriptedSupplyDatabase& ScriptedSupplyDatabase::shared()
{
    return databases()[sharedName];
}

QStringList ScriptedSupplyDatabase::takeCalls()
{
    return std::exchange(calls(), {});
}

void ScriptedSupplyDatabase::reset()
{
    databases().clear();
    calls().clear();
}

class VXSupplyDatabase::Private
{
public:
    QString name;

    ScriptedSupplyDatabase& script() const { return databases()[name]; }
    void called(const QString& text) const { calls().append(name + QStringLiteral(": ") + text); }
};

VXSupplyDatabase::VXSupplyDatabase(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{}
VXSupplyDatabase::~VXSupplyDatabase() = default;

void VXSupplyDatabase::setup(const QString&, const QString& connectionName)
{
    d->name = connectionName;
    d->name.remove(suffix);
}
void VXSupplyDatabase::setLanguageId(int) {}

void VXSupplyDatabase::setSupplyId(const QString& id)
{
    d->called(QStringLiteral("setSupplyId(%1)").arg(id));
    d->script().supplyId = id;
}
void VXSupplyDatabase::setRibbonIds(const QStringList& ids)
{
    d->called(QStringLiteral("setRibbonIds(%1)").arg(ids.join(QStringLiteral(", "))));
}
QString VXSupplyDatabase::supplyId() const
{
    return d->script().supplyId;
}
QString VXSupplyDatabase::supplySKU() const
{
    d->called(QStringLiteral("supplySKU()"));
    return d->script().supplySku;
}
QStringList VXSupplyDatabase::supplyRibbonSKUs() const
{
    d->called(QStringLiteral("supplyRibbonSKUs()"));
    return d->script().ribbonSkus;
}
QStringList VXSupplyDatabase::supplyRibbon1RGBs() const
{
    return d->script().ribbon1Rgbs;
}
QStringList VXSupplyDatabase::supplyRibbon2RGBs() const
{
    return d->script().ribbon2Rgbs;
}
int VXSupplyDatabase::supplyColorRGB(const QString& sku) const
{
    d->called(QStringLiteral("supplyColorRGB(%1)").arg(sku));
    return d->script().supplyRgb;
}
QString VXSupplyDatabase::supplyColorName(const QString& sku) const
{
    return QStringLiteral("colour of %1 by %2").arg(sku, d->name);
}
QString VXSupplyDatabase::supplyMaterialName(const QString& sku) const
{
    return QStringLiteral("material of %1 by %2").arg(sku, d->name);
}
double VXSupplyDatabase::supplyLength(const QString&) const
{
    return d->script().supplyLength;
}
double VXSupplyDatabase::supplyRibbonLength(const QString& ribbonSku) const
{
    return d->script().ribbonLengths.value(ribbonSku, -1.0);
}
QString VXSupplyDatabase::supplyRibbonColorName(const QString& ribbonSku, int panel) const
{
    return QStringLiteral("colour of %1 panel %2").arg(ribbonSku).arg(panel);
}

// Functions that the controller does not use.
// clang-format off
QString VXSupplyDatabase::supplySupplyRGB() const { return {}; }
QStringList VXSupplyDatabase::supplySKUList() const { return {}; }
QStringList VXSupplyDatabase::supplyRibbonSKUList() const { return {}; }
QVariantHash VXSupplyDatabase::supplyColorHash() const { return {}; }
QVariantHash VXSupplyDatabase::supplyRibbonColorHash() const { return {}; }
int VXSupplyDatabase::supplyMaterial(const QString&) const { return -1; }
int VXSupplyDatabase::supplyFormat(const QString&) const { return -1; }
QString VXSupplyDatabase::supplyFormatName(const QString&) const { return {}; }
QString VXSupplyDatabase::supplyFormatType(const QString&) const { return {}; }
QString VXSupplyDatabase::supplyColorNameEn(const QString&) const { return {}; }
int VXSupplyDatabase::supplySecColorRGB(const QString&) const { return -1; }
QString VXSupplyDatabase::supplySecColorName(const QString&) const { return {}; }
QString VXSupplyDatabase::supplySecColorNameEn(const QString&) const { return {}; }
double VXSupplyDatabase::supplySecColorWidth(const QString&) const { return -1.0; }
double VXSupplyDatabase::supplyWidth(const QString&) const { return -1.0; }
double VXSupplyDatabase::supplyNonContinuousLength(const QString&) const { return -1.0; }
double VXSupplyDatabase::supplySeparatorWidth(const QString&) const { return -1.0; }
int VXSupplyDatabase::supplyIsLandscape(const QString&) const { return 1; }
int VXSupplyDatabase::supplyMultiUpCount(const QString&) const { return 1; }
double VXSupplyDatabase::supplyMultiUpGapSize(const QString&) const { return -1.0; }
QByteArray VXSupplyDatabase::supplyBackgroundImage(const QString&) const { return {}; }
int VXSupplyDatabase::supplyTypeIndex(const QString&, const QString&) const { return -1; }
QString VXSupplyDatabase::supplyRibbonType(const QString&) const { return {}; }
int VXSupplyDatabase::supplyRibbonPanels(const QString&) const { return -1; }
double VXSupplyDatabase::supplyRibbonWidth(const QString&) const { return -1.0; }
int VXSupplyDatabase::supplyRibbonColorRGB(const QString&, int) const { return -1; }
int VXSupplyDatabase::supplyRibbonHeat(const QString&, int, const QString&) const { return -1; }
int VXSupplyDatabase::supplyRibbonHeatOffset(const QString&, int, const QString&) const { return -1; }
int VXSupplyDatabase::supplyRibbonMaxSpeed(const QString&, int, const QString&) const { return -1; }
int VXSupplyDatabase::supplyRibbonTension(const QString&, int, const QString&) const { return -1; }
QStringList VXSupplyDatabase::supplyRibbonsColorNames(const QStringList&) const { return {}; }
QVariantList VXSupplyDatabase::supplyRibbonsColorRGBs(const QStringList&) const { return {}; }
QVariantList VXSupplyDatabase::supplyRibbonsHeats(const QStringList&, const QString&) const { return {}; }
QVariantList VXSupplyDatabase::supplyRibbonsHeatOffsets(const QStringList&, const QString&) const { return {}; }
QVariantList VXSupplyDatabase::supplyRibbonsMaxSpeeds(const QStringList&, const QString&) const { return {}; }
QVariantList VXSupplyDatabase::supplyRibbonsTensions(const QStringList&, const QString&) const { return {}; }
// clang-format on
