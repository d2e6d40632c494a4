// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariantHash>
#include <QtCore/QVariantList>

#include <memory>

/// Reads a supply database, and holds what is loaded in one printer.
///
/// @code
/// VXSupplyDatabase database;
/// database.setup(QStringLiteral("/opt/labels/roll.db"), QStringLiteral("warehouse printer"));
/// database.setLanguageId(1); // German, see VXLocaleLanguages
/// database.setSupplyId(QStringLiteral("000001F41000420000A7"));
/// const QString sku = database.supplySKU();
/// const QString colour = database.supplyColorName(sku);
/// @endcode
///
/// docs/supply-database.md describes the file. It is opened for reading only, through a connection
/// of the object's own. Without a usable file (not set up, missing, damaged, of another application
/// or of another schema version) every SKU and identifier is unknown.
///
/// Sizes are in inches and colours are 0xRRGGBB numbers. For an unknown SKU (including a null or
/// empty text and "-1"), a panel that a ribbon does not have, and a property that a supply does not
/// have, the functions return an empty text, list or byte array, -1 or -1.0. Only
/// `supplyIsLandscape` and `supplyMultiUpCount` return 1.
///
/// Names are in the language that was set, or in English if there is no translation.
///
/// A limited number of answers of each kind is cached, and the file is not read again for them. A
/// changed file is noticed at the next `setup`. The class is not thread-safe: all calls must come
/// from the thread of the latest `setup`.
class VXSupplyDatabase : public QObject
{
    Q_OBJECT

public:
    explicit VXSupplyDatabase(QObject* parent = nullptr);
    ~VXSupplyDatabase() override;
    Q_DISABLE_COPY_MOVE(VXSupplyDatabase)

    /// Sets the file to read, in place of the previous one. It is opened at the first query, for
    /// reading only, and never created. If the connection name is in use, a number is appended to
    /// it, so objects are always independent. The language and what is loaded stay as they are.
    void setup(const QString& databasePath, const QString& connectionName);

    /// Sets the language of names by its number in `VXLocaleLanguages`. The default is English (0).
    void setLanguageId(int languageId);

    /// @name What is loaded
    /// @{

    /// Stores the identifier of the loaded supply (see `SupplyC`). "-1", an empty text and twenty
    /// zeros mean that none is loaded, which is the default.
    void setSupplyId(const QString& id);
    /// Stores the identifiers of the loaded ribbons, ribbon 1 first: their numbers in decimal
    /// digits. "-1", "4294967295" (-1 as the printer's driver publishes it), "0" and an empty text
    /// mean that none is loaded in that position.
    void setRibbonIds(const QStringList& ids);

    /// The stored identifier, unchanged. Empty by default.
    QString supplyId() const;
    /// The SKU of the loaded supply: "-1" if none is loaded, empty if the identifier is unknown.
    QString supplySKU() const;
    /// The SKU for each stored ribbon identifier: "-1" if none is loaded, empty if the identifier
    /// is unknown. The list is empty by default.
    QStringList supplyRibbonSKUs() const;
    /// The colour of the loaded supply as a decimal number; empty if it is unknown.
    QString supplySupplyRGB() const;
    /// The colours of the panels of ribbon 1, and of ribbon 2, as decimal numbers.
    QStringList supplyRibbon1RGBs() const;
    QStringList supplyRibbon2RGBs() const;
    /// @}

    /// @name The content of the database
    /// @{

    /// All SKUs, sorted by character code.
    QStringList supplySKUList() const;
    QStringList supplyRibbonSKUList() const;
    /// The colour (`int`) of each supply, and of panel 1 of each ribbon, by SKU.
    QVariantHash supplyColorHash() const;
    QVariantHash supplyRibbonColorHash() const;
    /// @}

    /// @name A supply
    /// @{

    int supplyMaterial(const QString& sku) const;
    QString supplyMaterialName(const QString& sku) const;
    int supplyFormat(const QString& sku) const;
    QString supplyFormatName(const QString& sku) const;
    /// "continuous", "die-cut", "sleeve" or "tag".
    QString supplyFormatType(const QString& sku) const;
    int supplyColorRGB(const QString& sku) const;
    QString supplyColorName(const QString& sku) const;
    QString supplyColorNameEn(const QString& sku) const;
    /// The second colour of a two-coloured supply and the width of its stripe.
    int supplySecColorRGB(const QString& sku) const;
    QString supplySecColorName(const QString& sku) const;
    QString supplySecColorNameEn(const QString& sku) const;
    double supplySecColorWidth(const QString& sku) const;
    double supplyWidth(const QString& sku) const;
    /// The length of a new roll.
    double supplyLength(const QString& sku) const;
    /// The length of one label; -1.0 for a continuous supply.
    double supplyNonContinuousLength(const QString& sku) const;
    /// The width of the separator between two labels.
    double supplySeparatorWidth(const QString& sku) const;
    /// 1 if labels are printed in landscape or the SKU is unknown, otherwise 0.
    int supplyIsLandscape(const QString& sku) const;
    /// The number of labels side by side, and the gap between them: -1.0 if there is only one.
    int supplyMultiUpCount(const QString& sku) const;
    double supplyMultiUpGapSize(const QString& sku) const;
    /// A picture of the label: the content of an image file.
    QByteArray supplyBackgroundImage(const QString& sku) const;
    /// The position, from 0, of the supply's format in the list of formats that the printer's model
    /// accepts; -1 if it is not in the list. The model is the longest one that the printer's name
    /// contains, regardless of case. Names without a model, such as "-", use the list for all other
    /// printers.
    int supplyTypeIndex(const QString& sku, const QString& printerName) const;
    /// @}

    /// @name A ribbon
    /// Panels are numbered from 1. Heat, heat offset, speed and tension depend on the panel and on
    /// the supply that it prints on.
    /// @{

    QString supplyRibbonType(const QString& ribbonSku) const;
    int supplyRibbonPanels(const QString& ribbonSku) const;
    double supplyRibbonWidth(const QString& ribbonSku) const;
    double supplyRibbonLength(const QString& ribbonSku) const;
    QString supplyRibbonColorName(const QString& ribbonSku, int panel) const;
    int supplyRibbonColorRGB(const QString& ribbonSku, int panel) const;
    int supplyRibbonHeat(const QString& ribbonSku, int panel, const QString& supplySku) const;
    int supplyRibbonHeatOffset(const QString& ribbonSku, int panel, const QString& supplySku) const;
    int supplyRibbonMaxSpeed(const QString& ribbonSku, int panel, const QString& supplySku) const;
    int supplyRibbonTension(const QString& ribbonSku, int panel, const QString& supplySku) const;
    /// @}

    /// @name Several ribbons
    /// One entry for each SKU, in the same order: the value for panel 1 of that ribbon. The numbers
    /// are `int`.
    /// @{

    QStringList supplyRibbonsColorNames(const QStringList& ribbonSkus) const;
    QVariantList supplyRibbonsColorRGBs(const QStringList& ribbonSkus) const;
    QVariantList supplyRibbonsHeats(const QStringList& ribbonSkus, const QString& supplySku) const;
    QVariantList supplyRibbonsHeatOffsets(const QStringList& ribbonSkus,
                                          const QString& supplySku) const;
    QVariantList supplyRibbonsMaxSpeeds(const QStringList& ribbonSkus,
                                        const QString& supplySku) const;
    QVariantList supplyRibbonsTensions(const QStringList& ribbonSkus,
                                       const QString& supplySku) const;
    /// @}

private:
    class Private;
    const std::unique_ptr<Private> d;
};
