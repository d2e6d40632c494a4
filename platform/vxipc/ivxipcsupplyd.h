// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "supply_information.h"
#include "vxipcserver.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariantHash>

/// The supply-database service: what other processes may ask about supplies and ribbons.
///
/// The order of the slots, their argument names and their default arguments form the service's
/// method table, which clients rely on.
class IVXIPCSUPPLYD : public VXIPCServer
{
    Q_OBJECT

public:
    /// Publishes the endpoint as VXIPCServer does.
    IVXIPCSUPPLYD(int serverType, QObject* parent);
    ~IVXIPCSUPPLYD() override;
    Q_DISABLE_COPY_MOVE(IVXIPCSUPPLYD)

public Q_SLOTS:
    /// @name The service's methods
    /// `VXIPCSUPPLYDController` is this library's implementation, and its header says what each
    /// does.
    /// @{
    virtual QStringList supplySKUList() = 0;
    virtual QStringList supplyRibbonSKUList() = 0;
    virtual QVariantHash supplyColorHash() = 0;
    virtual QVariantHash supplyRibbonColorHash() = 0;
    virtual QString supplyId() = 0;
    virtual QString supplySKUCached(QString printerName) = 0;
    virtual QStringList supplyRibbonSKUsCached(QString printerName) = 0;
    virtual double supplySupplyPercent() = 0;
    virtual double supplyRibbon1Percent() = 0;
    virtual double supplyRibbon2Percent() = 0;
    virtual QString supplySupplyRGB(QString printerName) = 0;
    virtual QStringList supplyRibbon1RGBs(QString printerName) = 0;
    virtual QStringList supplyRibbon2RGBs(QString printerName) = 0;
    virtual QString supplySupplyUID() = 0;
    virtual QString supplyRibbon1UID() = 0;
    virtual QString supplyRibbon2UID() = 0;
    virtual SupplyInformation supplyInformation(QString printerName) = 0;
    virtual SupplyInformation supplyInformationBySKUs(QString supplySku, QStringList ribbonSkus,
                                                      QString printerName) = 0;
    virtual QString supplyMaterialName(QString sku, QString printerName) = 0;
    virtual QString supplyFormatName(QString sku, QString printerName) = 0;
    virtual int supplyColorRGB(QString sku, QString printerName) = 0;
    virtual QString supplyColorName(QString sku, QString printerName) = 0;
    virtual double supplyWidth(QString sku, QString printerName) = 0;
    virtual int supplyIsLandscape(QString sku) = 0;
    virtual QByteArray supplyBackgroundImage(QString sku) = 0;
    virtual double supplyNonContinuousLength(QString sku, QString printerName) = 0;
    virtual int supplyTypeIndex(QString sku, QString printerName) = 0;
    virtual int supplyRibbonPanels(QString ribbonSku) = 0;
    virtual double supplyRibbonWidth(QString ribbonSku) = 0;
    virtual double supplyRibbonLength(QString ribbonSku) = 0;
    virtual QString supplyRibbonColorName(QString ribbonSku, int panel = 1) = 0;
    virtual int supplyRibbonColorRGB(QString ribbonSku, int panel = 1) = 0;
    virtual int supplyRibbonHeat(QString ribbonSku, int panel, QString supplySku) = 0;
    virtual int supplyRibbonHeatOffset(QString ribbonSku, int panel, QString supplySku) = 0;
    virtual int supplyRibbonMaxSpeed(QString ribbonSku, int panel, QString supplySku) = 0;
    virtual int supplyRibbonTension(QString ribbonSku, int panel, QString supplySku) = 0;
    virtual QString supplyRibbonType(QString ribbonSku) = 0;
    virtual void supplyModuleReady(int windowId, int processId, QString applicationName) = 0;
    virtual void applicationWasClicked() = 0;
    virtual void setModulePrinterName(QString printerName) = 0;
    virtual void openLabelFile(QString filePath) = 0;
    /// @}
};
