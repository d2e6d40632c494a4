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

/// The supply-database service: what a supply or a ribbon is, by its SKU or by the printer in which
/// it is loaded.
///
/// `PrinterStatusController` creates the service, and `getSupplyIdController()` returns it. Other
/// processes of the same user call its slots by the names and argument names below.
///
/// @code
/// VXIPCSUPPLYDController* supplies = controller.getSupplyIdController();
/// const QString sku = supplies->supplySKUCached(printerName);
/// const QString colour = supplies->supplyColorName(sku, printerName);
/// const SupplyInformation loaded = supplies->supplyInformation(printerName);
/// @endcode
///
/// The answers come from the file "roll.db" beside the application's executable, unless
/// `setCatalogueFile` names another one. Names are in the application's language at the time at
/// which the service was created. Each printer that was added has its own database object, which
/// stores what is loaded in that printer. Queries without a printer's name go to a shared database
/// object; so do those with the name of a printer that was never added and, unless a comment says
/// otherwise, those with an empty name.
///
/// For an unknown SKU, and when the file is missing or cannot be read, texts and lists are empty
/// and numbers are those that `SupplyInformation` has for what is not known. The identifier
/// `VXPrinting::nothingLoaded` stands for a place where nothing is loaded. Colours are 0xRRGGBB
/// numbers, lengths and widths are in inches.
///
/// There are no locks: call all members on the thread that created the service, on which the calls
/// of other processes are answered too. The service has no signals.
class VX_PRINTERSTATUS_EXPORT VXIPCSUPPLYDController : public IVXIPCSUPPLYD
{
    Q_OBJECT

public:
    VXIPCSUPPLYDController();
    ~VXIPCSUPPLYDController() override;
    Q_DISABLE_COPY_MOVE(VXIPCSUPPLYDController)

    /// Creates a database object for a printer. Has no effect for a printer that has one already.
    /// The object exists until the service is destroyed.
    void addNewPrinter(const QString& printerName);

    /// Answers from another file than "roll.db" beside the executable from now on: the databases of
    /// all printers, of those that are added later too, and the shared one. What is loaded in the
    /// printers stays. An empty path means the file beside the executable again. A file that is
    /// missing or cannot be read gives the answers described above.
    ///
    /// It is meant for tools that are told where the file is. Set it before anybody asks: answers
    /// that others have kept do not change.
    void setCatalogueFile(const QString& path);
    /// The path of the file that the answers come from.
    QString catalogueFile() const;

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

    /// Always `VXPrinting::nothingLoaded`.
    QString supplyId() override;
    /// The SKU of the supply that was set by `setSupplyId`; `VXPrinting::nothingLoaded` for an
    /// empty printer name.
    QString supplySKUCached(QString printerName) override;
    /// The SKUs of the ribbons that were set by `setRibbonIds`, ribbon 1 first;
    /// `VXPrinting::nothingLoaded` for an empty place.
    QStringList supplyRibbonSKUsCached(QString printerName) override;
    /// This and the two below are always 0.0: see the percentages in `PrinterStatusInformation`.
    double supplySupplyPercent() override;
    double supplyRibbon1Percent() override;
    double supplyRibbon2Percent() override;
    /// The colour of the loaded supply, as decimal text.
    QString supplySupplyRGB(QString printerName) override;
    /// The colours of the panels of the loaded ribbon 1, as decimal texts; below, those of
    /// ribbon 2.
    QStringList supplyRibbon1RGBs(QString printerName) override;
    QStringList supplyRibbon2RGBs(QString printerName) override;
    /// This and the two below are always `VXPrinting::nothingLoaded`.
    QString supplySupplyUID() override;
    QString supplyRibbon1UID() override;
    QString supplyRibbon2UID() override;
    /// The record of what is loaded in the printer: `supplyInformationBySKUs` for its SKUs.
    SupplyInformation supplyInformation(QString printerName) override;
    /// @}

    /// @name A supply or ribbon by its SKU
    /// Functions with a printer's name query that printer's database object, all others the shared
    /// one. Heat, heat offset, speed and tension depend on both the ribbon's panel and the supply.
    /// @{

    /// The record of a supply and the ribbons used with it. The first two entries of `ribbonSkus`
    /// are ribbon 1 and ribbon 2; an absent one counts as an unknown SKU.
    SupplyInformation supplyInformationBySKUs(QString supplySku, QStringList ribbonSkus,
                                              QString printerName) override;
    QString supplyMaterialName(QString sku, QString printerName) override;
    QString supplyFormatName(QString sku, QString printerName) override;
    int supplyColorRGB(QString sku, QString printerName) override;
    QString supplyColorName(QString sku, QString printerName) override;
    double supplyWidth(QString sku, QString printerName) override;
    /// 1 when labels are printed in landscape format, otherwise 0; 1 also when that is not known.
    int supplyIsLandscape(QString sku) override;
    /// The background picture, as the content of an image file.
    QByteArray supplyBackgroundImage(QString sku) override;
    /// The length of one label, for a supply that is not continuous.
    double supplyNonContinuousLength(QString sku, QString printerName) override;
    /// The index of the supply's type in the list of types that the printer accepts, from 0.
    int supplyTypeIndex(QString sku, QString printerName) override;
    /// The number of panels of a ribbon.
    int supplyRibbonPanels(QString ribbonSku) override;
    double supplyRibbonWidth(QString ribbonSku) override;
    double supplyRibbonLength(QString ribbonSku) override;
    /// The colour of a ribbon's panel. Panels are numbered from 1.
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
    /// Calls with an empty printer name have no effect.
    /// @{

    /// Sets the identifier of the supply that is loaded in the printer, as its driver publishes it.
    void setSupplyId(const QString& id, const QString& printerName);
    /// Sets the identifiers of the ribbons that are loaded in the printer, ribbon 1 first.
    void setRibbonIds(const QStringList& ids, const QString& printerName);
    /// @}

private:
    VXSupplyDatabase* openDatabase(const QString& connectionName) const;
    VXSupplyDatabase* databaseForPrinter(const QString& printerName) const;
    VXSupplyDatabase* databaseAskedFor(const QString& printerName) const;
    VXSupplyDatabase* sharedDatabase() const;

    qint32 languageId = 0;
    // Owns the database objects. The entry "-" is the shared one.
    QMap<QString, VXSupplyDatabase*> databases;
    VXSupplyDatabase* defaultDatabase = nullptr;
};
