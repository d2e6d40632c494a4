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

/// What a supply database knows, and what is loaded in one printer.
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
/// The file is described in docs/supply-database.md. It is only read, through a connection of the
/// object's own. An object without a usable file (none was set up, it is missing, damaged, foreign
/// or of a newer schema) knows no SKU and no identifier.
///
/// Sizes are inches, colours 0xRRGGBB numbers. Of a SKU that is not known (a null text, an empty
/// one and "-1" among them), of a panel that a ribbon does not have, and of a thing that a supply
/// does not have, the answer is an empty text, list or byte array, -1 or -1.0, but 1 from
/// `supplyIsLandscape` and `supplyMultiUpCount`.
///
/// Names are in the language that was set, or in English where the file has none in it.
///
/// Answers are kept, a bounded number of each kind, and the file is not looked at again for them:
/// a changed file is noticed by the next `setup`. Nothing is locked; all calls belong on the thread
/// of the latest `setup`.
class VXSupplyDatabase : public QObject
{
    Q_OBJECT

public:
    explicit VXSupplyDatabase(QObject* parent = nullptr);
    ~VXSupplyDatabase() override;
    Q_DISABLE_COPY_MOVE(VXSupplyDatabase)

    /// Names the file that is read from now on, in place of the one before. It is opened, for
    /// reading only, when it is first needed, and never created. Objects with different connection
    /// names have nothing in common; one that takes a name in use gets a connection under a name
    /// made from it. What is loaded and the language stay.
    void setup(const QString& databasePath, const QString& connectionName);

    /// Sets the language of names by its number in `VXLocaleLanguages`; English (0) at first.
    void setLanguageId(int languageId);

    /// @name What is loaded
    /// @{

    /// Stores the identifier of the loaded supply (see `SupplyC`). "-1", an empty text and twenty
    /// zeros mean that none is loaded, which is also so at first.
    void setSupplyId(const QString& id);
    /// Stores the identifiers of the loaded ribbons, ribbon 1 first: their numbers in decimal
    /// digits. "-1", "4294967295" (the same as the printer's driver has it), "0" and an empty text
    /// mean that none is loaded in that place.
    void setRibbonIds(const QStringList& ids);

    /// The identifier that was stored, as it was; at first empty.
    QString supplyId() const;
    /// The SKU of the loaded supply: "-1" when none is loaded, empty when the identifier is not
    /// known.
    QString supplySKU() const;
    /// The SKU for each stored ribbon identifier: "-1" where none is loaded, empty where the
    /// identifier is not known. At first an empty list.
    QStringList supplyRibbonSKUs() const;
    /// The colour of the loaded supply as a decimal number; empty when it is not known.
    QString supplySupplyRGB() const;
    /// The colours of the panels of ribbon 1, and of ribbon 2, as decimal numbers.
    QStringList supplyRibbon1RGBs() const;
    QStringList supplyRibbon2RGBs() const;
    /// @}

    /// @name What the database holds
    /// @{

    /// All SKUs, in the order of their characters' codes.
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
    /// The width of what parts two labels.
    double supplySeparatorWidth(const QString& sku) const;
    /// 1 when labels are printed in landscape or the SKU is not known, otherwise 0.
    int supplyIsLandscape(const QString& sku) const;
    /// How many labels lie side by side, and the gap between them: -1.0 where there is one.
    int supplyMultiUpCount(const QString& sku) const;
    double supplyMultiUpGapSize(const QString& sku) const;
    /// A picture of the label as the bytes of an image file.
    QByteArray supplyBackgroundImage(const QString& sku) const;
    /// The place, from 0, of the supply's format in the list of the formats that the printer's
    /// model takes; -1 when it does not take it. The model is the longest one that the printer's
    /// name contains in any case; a name without one, such as "-", has the list of all others.
    int supplyTypeIndex(const QString& sku, const QString& printerName) const;
    /// @}

    /// @name A ribbon
    /// Panels are counted from 1. Heat, heat offset, speed and tension belong to a panel together
    /// with the supply that it prints on.
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
    /// One entry for each SKU, in their order: the answer for panel 1 of that ribbon. The numbers
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
