// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "vx_ipc_supplyd_controller.h"

#include "printer_types.h"
#include "server_types.h"

#include <vxlocalelanguages.h>
#include <vxsupplydatabase.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QStringBuilder>
#include <QtCore/QtAlgorithms>

using VXPrinting::nothingLoaded;

namespace {

// The shared database's entry, which belongs to no printer.
const QString sharedKey = QStringLiteral("-");

const QString& orShared(const QString& printerName)
{
    return printerName.isEmpty() ? sharedKey : printerName;
}

/// The connection of the database of a printer, or of the shared one.
QString connectionOf(const QString& key)
{
    return key == sharedKey ? QStringLiteral("SUPPLY_INFO_QT_SQL_CONNECTION_NAME")
                            : key % QLatin1String("_CONNECTION_NAME");
}

/// The property of the object that holds the path of another file. A data member would change the
/// size of a class that hosts create.
constexpr char catalogueProperty[] = "_vx_catalogueFile";

} // namespace

VXIPCSUPPLYDController::VXIPCSUPPLYDController()
    : IVXIPCSUPPLYD(SupplyDatabaseServer, nullptr)
{
    qRegisterMetaType<SupplyInformation>("SupplyInformation");
    VXLocaleLanguages languages;
    languageId = languages.getCurrentLanguageId();
    defaultDatabase = openDatabase(connectionOf(sharedKey));
    databases.insert(sharedKey, defaultDatabase);
}

VXIPCSUPPLYDController::~VXIPCSUPPLYDController()
{
    qDeleteAll(databases);
}

void VXIPCSUPPLYDController::addNewPrinter(const QString& printerName)
{
    VXSupplyDatabase*& database = databases[printerName];
    if (!database)
        database = openDatabase(connectionOf(printerName));
}

void VXIPCSUPPLYDController::setCatalogueFile(const QString& path)
{
    setProperty(catalogueProperty, path);
    for (auto database = databases.cbegin(); database != databases.cend(); ++database)
        database.value()->setup(catalogueFile(), connectionOf(database.key()));
}

QString VXIPCSUPPLYDController::catalogueFile() const
{
    const QString path = property(catalogueProperty).toString();
    return path.isEmpty() ? QCoreApplication::applicationDirPath() % QLatin1String("/roll.db")
                          : path;
}

VXSupplyDatabase* VXIPCSUPPLYDController::openDatabase(const QString& connectionName) const
{
    auto* database = new VXSupplyDatabase;
    database->setup(catalogueFile(), connectionName);
    database->setLanguageId(languageId);
    return database;
}

VXSupplyDatabase* VXIPCSUPPLYDController::databaseForPrinter(const QString& printerName) const
{
    return databases.value(printerName, defaultDatabase);
}

VXSupplyDatabase* VXIPCSUPPLYDController::databaseAskedFor(const QString& printerName) const
{
    return databaseForPrinter(orShared(printerName));
}

VXSupplyDatabase* VXIPCSUPPLYDController::sharedDatabase() const
{
    return databases.value(sharedKey);
}

void VXIPCSUPPLYDController::setSupplyId(const QString& id, const QString& printerName)
{
    if (printerName.isEmpty()) // unlike a query, it must not reach the shared database
        return;
    databaseForPrinter(printerName)->setSupplyId(id);
}

void VXIPCSUPPLYDController::setRibbonIds(const QStringList& ids, const QString& printerName)
{
    if (printerName.isEmpty()) // unlike a query, it must not reach the shared database
        return;
    databaseForPrinter(printerName)->setRibbonIds(ids);
}

QString VXIPCSUPPLYDController::supplySKUCached(QString printerName)
{
    // The only query that does not go to the shared database for an empty name.
    if (printerName.isEmpty())
        return nothingLoaded;
    return databaseForPrinter(printerName)->supplySKU();
}

// Queries with a printer's name, which go to that printer's database object.
// clang-format off
QStringList VXIPCSUPPLYDController::supplyRibbonSKUsCached(QString printerName)                 { return databaseAskedFor(printerName)->supplyRibbonSKUs(); }
QString     VXIPCSUPPLYDController::supplySupplyRGB(QString printerName)                        { return databaseAskedFor(printerName)->supplySupplyRGB(); }
QStringList VXIPCSUPPLYDController::supplyRibbon1RGBs(QString printerName)                      { return databaseAskedFor(printerName)->supplyRibbon1RGBs(); }
QStringList VXIPCSUPPLYDController::supplyRibbon2RGBs(QString printerName)                      { return databaseAskedFor(printerName)->supplyRibbon2RGBs(); }
QString     VXIPCSUPPLYDController::supplyMaterialName(QString sku, QString printerName)        { return databaseAskedFor(printerName)->supplyMaterialName(sku); }
QString     VXIPCSUPPLYDController::supplyFormatName(QString sku, QString printerName)          { return databaseAskedFor(printerName)->supplyFormatName(sku); }
int         VXIPCSUPPLYDController::supplyColorRGB(QString sku, QString printerName)            { return databaseAskedFor(printerName)->supplyColorRGB(sku); }
QString     VXIPCSUPPLYDController::supplyColorName(QString sku, QString printerName)           { return databaseAskedFor(printerName)->supplyColorName(sku); }
double      VXIPCSUPPLYDController::supplyWidth(QString sku, QString printerName)               { return databaseAskedFor(printerName)->supplyWidth(sku); }
double      VXIPCSUPPLYDController::supplyNonContinuousLength(QString sku, QString printerName) { return databaseAskedFor(printerName)->supplyNonContinuousLength(sku); }
// clang-format on

int VXIPCSUPPLYDController::supplyTypeIndex(QString sku, QString printerName)
{
    const QString& name = orShared(printerName);
    return databaseForPrinter(name)->supplyTypeIndex(sku, name);
}

SupplyInformation VXIPCSUPPLYDController::supplyInformation(QString printerName)
{
    const QString& name = orShared(printerName);
    const QStringList ribbonSkus = databaseForPrinter(name)->supplyRibbonSKUs();
    const QString supplySku = databaseForPrinter(name)->supplySKU();
    return supplyInformationBySKUs(supplySku, ribbonSkus, name);
}

SupplyInformation VXIPCSUPPLYDController::supplyInformationBySKUs(QString supplySku,
                                                                  QStringList ribbonSkus,
                                                                  QString printerName)
{
    const QString& name = orShared(printerName);
    VXSupplyDatabase* const database = databaseForPrinter(name);
    const QString ribbon1Sku = ribbonSkus.value(0);
    const QString ribbon2Sku = ribbonSkus.value(1);

    SupplyInformation record;
    record.supplyId = database->supplyId(); // of the loaded supply, which may be another one
    record.supplySku = supplySku;
    record.ribbonSkus = ribbonSkus;
    record.secColorWidth = static_cast<float>(database->supplySecColorWidth(supplySku));
    record.secColorRGB = database->supplySecColorRGB(supplySku);
    record.secColorName = database->supplySecColorName(supplySku);
    record.secColorNameEn = database->supplySecColorNameEn(supplySku);
    record.supplyLength = static_cast<float>(database->supplyLength(supplySku));
    record.material = database->supplyMaterial(supplySku);
    record.materialName = database->supplyMaterialName(supplySku);
    record.format = database->supplyFormat(supplySku);
    record.formatName = database->supplyFormatName(supplySku);
    record.formatType = database->supplyFormatType(supplySku);
    record.colorRGB = database->supplyColorRGB(supplySku);
    record.colorName = database->supplyColorName(supplySku);
    record.colorNameEn = database->supplyColorNameEn(supplySku);
    record.supplyWidth = static_cast<float>(database->supplyWidth(supplySku));
    record.isLandscape = database->supplyIsLandscape(supplySku);
    record.backgroundImage = database->supplyBackgroundImage(supplySku);
    record.separatorWidth = static_cast<float>(database->supplySeparatorWidth(supplySku));
    record.nonContinuousLength = static_cast<float>(database->supplyNonContinuousLength(supplySku));
    record.typeIndex = database->supplyTypeIndex(supplySku, name);
    record.ribbon1Panels = database->supplyRibbonPanels(ribbon1Sku);
    record.ribbon2Panels = database->supplyRibbonPanels(ribbon2Sku);
    record.ribbon1Width = static_cast<float>(database->supplyRibbonWidth(ribbon1Sku));
    record.ribbon2Width = static_cast<float>(database->supplyRibbonWidth(ribbon2Sku));
    record.ribbon1Length = static_cast<float>(database->supplyRibbonLength(ribbon1Sku));
    record.ribbon2Length = static_cast<float>(database->supplyRibbonLength(ribbon2Sku));
    record.ribbonColorNames = database->supplyRibbonsColorNames(ribbonSkus);
    record.ribbonColorRGBs = database->supplyRibbonsColorRGBs(ribbonSkus);
    record.ribbonHeats = database->supplyRibbonsHeats(ribbonSkus, supplySku);
    record.ribbonHeatOffsets = database->supplyRibbonsHeatOffsets(ribbonSkus, supplySku);
    record.ribbonMaxSpeeds = database->supplyRibbonsMaxSpeeds(ribbonSkus, supplySku);
    record.ribbonTensions = database->supplyRibbonsTensions(ribbonSkus, supplySku);
    record.ribbonTypes.append(database->supplyRibbonType(ribbon1Sku));
    record.ribbonTypes.append(database->supplyRibbonType(ribbon2Sku));
    record.multiUpCount = database->supplyMultiUpCount(supplySku);
    record.multiUpGapSize = static_cast<float>(database->supplyMultiUpGapSize(supplySku));
    return record;
}

// Queries without a printer's name, which go to the shared database object, also where the caller
// knows the printer.
// clang-format off
QStringList  VXIPCSUPPLYDController::supplySKUList()                                                         { return sharedDatabase()->supplySKUList(); }
QStringList  VXIPCSUPPLYDController::supplyRibbonSKUList()                                                   { return sharedDatabase()->supplyRibbonSKUList(); }
QVariantHash VXIPCSUPPLYDController::supplyColorHash()                                                       { return sharedDatabase()->supplyColorHash(); }
QVariantHash VXIPCSUPPLYDController::supplyRibbonColorHash()                                                 { return sharedDatabase()->supplyRibbonColorHash(); }
int          VXIPCSUPPLYDController::supplyIsLandscape(QString sku)                                          { return sharedDatabase()->supplyIsLandscape(sku); }
QByteArray   VXIPCSUPPLYDController::supplyBackgroundImage(QString sku)                                      { return sharedDatabase()->supplyBackgroundImage(sku); }
int          VXIPCSUPPLYDController::supplyRibbonPanels(QString ribbonSku)                                   { return sharedDatabase()->supplyRibbonPanels(ribbonSku); }
double       VXIPCSUPPLYDController::supplyRibbonWidth(QString ribbonSku)                                    { return sharedDatabase()->supplyRibbonWidth(ribbonSku); }
double       VXIPCSUPPLYDController::supplyRibbonLength(QString ribbonSku)                                   { return sharedDatabase()->supplyRibbonLength(ribbonSku); }
QString      VXIPCSUPPLYDController::supplyRibbonColorName(QString ribbonSku, int panel)                     { return sharedDatabase()->supplyRibbonColorName(ribbonSku, panel); }
int          VXIPCSUPPLYDController::supplyRibbonColorRGB(QString ribbonSku, int panel)                      { return sharedDatabase()->supplyRibbonColorRGB(ribbonSku, panel); }
int          VXIPCSUPPLYDController::supplyRibbonHeat(QString ribbonSku, int panel, QString supplySku)       { return sharedDatabase()->supplyRibbonHeat(ribbonSku, panel, supplySku); }
int          VXIPCSUPPLYDController::supplyRibbonHeatOffset(QString ribbonSku, int panel, QString supplySku) { return sharedDatabase()->supplyRibbonHeatOffset(ribbonSku, panel, supplySku); }
int          VXIPCSUPPLYDController::supplyRibbonMaxSpeed(QString ribbonSku, int panel, QString supplySku)   { return sharedDatabase()->supplyRibbonMaxSpeed(ribbonSku, panel, supplySku); }
int          VXIPCSUPPLYDController::supplyRibbonTension(QString ribbonSku, int panel, QString supplySku)    { return sharedDatabase()->supplyRibbonTension(ribbonSku, panel, supplySku); }
QString      VXIPCSUPPLYDController::supplyRibbonType(QString ribbonSku)                                     { return sharedDatabase()->supplyRibbonType(ribbonSku); }
// clang-format on

// Placeholders of the interface, which need no database.
// clang-format off
QString VXIPCSUPPLYDController::supplyId()             { return nothingLoaded; }
QString VXIPCSUPPLYDController::supplySupplyUID()      { return nothingLoaded; }
QString VXIPCSUPPLYDController::supplyRibbon1UID()     { return nothingLoaded; }
QString VXIPCSUPPLYDController::supplyRibbon2UID()     { return nothingLoaded; }
double  VXIPCSUPPLYDController::supplySupplyPercent()  { return 0.0; }
double  VXIPCSUPPLYDController::supplyRibbon1Percent() { return 0.0; }
double  VXIPCSUPPLYDController::supplyRibbon2Percent() { return 0.0; }

void VXIPCSUPPLYDController::supplyModuleReady(int, int, QString) { }
void VXIPCSUPPLYDController::applicationWasClicked()              { }
void VXIPCSUPPLYDController::setModulePrinterName(QString)        { }
void VXIPCSUPPLYDController::openLabelFile(QString)               { }
// clang-format on
