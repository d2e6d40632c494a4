// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "ivxipcsupplyd.h"
#include "supply_information.h"
#include "vxprinterstatus_export.h"

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

class VXSupplyDatabase;

/// The supply-database service: what a supply or a ribbon is, asked by its SKU or by the printer
/// that it is loaded in.
///
/// `PrinterStatusController` creates one, which `getSupplyIdController()` hands out; other
/// processes of the same user reach its slots under the names and argument names below.
///
/// @code
/// VXIPCSUPPLYDController* supplies = controller.getSupplyIdController();
/// const QString sku = supplies->supplySKUCached(printerName);
/// const QString colour = supplies->supplyColorName(sku, printerName);
/// const SupplyInformation loaded = supplies->supplyInformation(printerName);
/// @endcode
///
/// Answers come from the file "roll.db" beside the application's executable, in the language that
/// the system had when the endpoint was made. Each printer that was added has a database object of
/// its own, which remembers what is loaded in that printer; questions that name no printer go to a
/// shared one. A printer that was never added shares the shared one, and so does the empty printer
/// name, except where said otherwise.
///
/// An unknown SKU, or a file that is missing or cannot be read, gives empty texts and lists and the
/// numbers that `SupplyInformation` has for what is not known. The identifier "-1" means that
/// nothing is loaded. Colours are 0xRRGGBB numbers, lengths and widths inches.
///
/// Nothing is locked: all of it is for the thread that made the endpoint, on which the calls of
/// other processes are answered too. The endpoint has no signals.
class VX_PRINTERSTATUS_EXPORT VXIPCSUPPLYDController : public IVXIPCSUPPLYD
{
    Q_OBJECT

public:
    VXIPCSUPPLYDController();
    ~VXIPCSUPPLYDController() override;
    Q_DISABLE_COPY_MOVE(VXIPCSUPPLYDController)

    /// Gives a printer a database object of its own. A printer that has one keeps it, with what it
    /// remembers. A printer is never forgotten while the endpoint lives.
    void addNewPrinter(const QString& printerName);

public Q_SLOTS:
    /// @name What the database holds
    /// @{

    /// The SKUs of all supplies.
    QStringList supplySKUList() override;
    /// The SKUs of all ribbons.
    QStringList supplyRibbonSKUList() override;
    /// The colours of all supplies, by SKU.
    QVariantHash supplyColorHash() override;
    /// The colours of all ribbons, by SKU.
    QVariantHash supplyRibbonColorHash() override;
    /// @}

    /// @name What is loaded in a printer
    /// @{

    /// Always "-1": the identifier is not handed out without a printer's name.
    QString supplyId() override;
    /// The SKU of the supply that `setSupplyId` reported; "-1" for an empty printer name.
    QString supplySKUCached(QString printerName) override;
    /// The SKUs of the ribbons that `setRibbonIds` reported, ribbon 1 first.
    QStringList supplyRibbonSKUsCached(QString printerName) override;
    /// Always 0.0: what is left is known to `PrinterStatusInformation` only, as are the two below.
    double supplySupplyPercent() override;
    double supplyRibbon1Percent() override;
    double supplyRibbon2Percent() override;
    /// The colour of the loaded supply as text.
    QString supplySupplyRGB(QString printerName) override;
    /// The colours of the panels of the loaded ribbon 1, and below of ribbon 2, as texts.
    QStringList supplyRibbon1RGBs(QString printerName) override;
    QStringList supplyRibbon2RGBs(QString printerName) override;
    /// Always "-1", as are the two below.
    QString supplySupplyUID() override;
    QString supplyRibbon1UID() override;
    QString supplyRibbon2UID() override;
    /// The record of what is loaded in the printer: `supplyInformationBySKUs` of its SKUs.
    SupplyInformation supplyInformation(QString printerName) override;
    /// @}

    /// @name A supply or ribbon by its SKU
    /// Those with a printer's name ask that printer's database object, all others the shared one.
    /// Heat, heat offset, speed and tension belong to the pair of a ribbon's panel and a supply.
    /// @{

    /// The record of a supply and the ribbons used with it. The first two entries of `ribbonSkus`
    /// are ribbon 1 and ribbon 2; an absent one is asked for with a null SKU.
    SupplyInformation supplyInformationBySKUs(QString supplySku, QStringList ribbonSkus,
                                              QString printerName) override;
    QString supplyMaterialName(QString sku, QString printerName) override;
    QString supplyFormatName(QString sku, QString printerName) override;
    int supplyColorRGB(QString sku, QString printerName) override;
    QString supplyColorName(QString sku, QString printerName) override;
    double supplyWidth(QString sku, QString printerName) override;
    /// 1 when labels are printed in landscape, otherwise 0.
    int supplyIsLandscape(QString sku) override;
    /// The background picture as the bytes of an image file.
    QByteArray supplyBackgroundImage(QString sku) override;
    /// The length of one label of a supply that is not continuous.
    double supplyNonContinuousLength(QString sku, QString printerName) override;
    /// The place of the supply's type in the list of the types that the printer takes.
    int supplyTypeIndex(QString sku, QString printerName) override;
    /// How many panels a ribbon has.
    int supplyRibbonPanels(QString ribbonSku) override;
    double supplyRibbonWidth(QString ribbonSku) override;
    double supplyRibbonLength(QString ribbonSku) override;
    /// The colour of a ribbon's panel; panels are counted from 1.
    QString supplyRibbonColorName(QString ribbonSku, int panel = 1) override;
    int supplyRibbonColorRGB(QString ribbonSku, int panel = 1) override;
    int supplyRibbonHeat(QString ribbonSku, int panel, QString supplySku) override;
    int supplyRibbonHeatOffset(QString ribbonSku, int panel, QString supplySku) override;
    int supplyRibbonMaxSpeed(QString ribbonSku, int panel, QString supplySku) override;
    int supplyRibbonTension(QString ribbonSku, int panel, QString supplySku) override;
    QString supplyRibbonType(QString ribbonSku) override;
    /// @}

    /// @name Accepted without effect
    /// @{
    void supplyModuleReady(int windowId, int processId, QString applicationName) override;
    void applicationWasClicked() override;
    void setModulePrinterName(QString printerName) override;
    void openLabelFile(QString filePath) override;
    /// @}

    /// @name What a printer reports
    /// An empty printer name changes nothing.
    /// @{

    /// The identifier of the supply loaded in the printer, as its driver publishes it.
    void setSupplyId(const QString& id, const QString& printerName);
    /// The identifiers of its ribbons, ribbon 1 first.
    void setRibbonIds(const QStringList& ids, const QString& printerName);
    /// @}

private:
    VXSupplyDatabase* openDatabase(const QString& connectionName) const;
    VXSupplyDatabase* databaseForPrinter(const QString& printerName) const;
    VXSupplyDatabase* sharedDatabase() const;

    qint32 languageId = 0;
    // Owns its values; the entry "-" is the shared database.
    QMap<QString, VXSupplyDatabase*> databases;
    VXSupplyDatabase* defaultDatabase = nullptr;
};
