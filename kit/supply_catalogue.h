// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>
#include <optional>
#include <utility>

class VXIPCSUPPLYDController;
class VXSupplyDatabase;

namespace VxKit {

/// The catalogue's lengths are in inches.
inline constexpr double metersPerInch = 0.0254;

/// What the catalogue knows of one supply or ribbon, as far as a level needs it.
struct CatalogueItem
{
    QString sku;
    QString name;
    QString material; ///< a supply's material, a ribbon's type
    QString colorName;
    QStringList colors; ///< as "#rrggbb"
    /// The length of a new roll or ribbon, in inches; 0 when it is not known. From a float, as the
    /// library calculates with it.
    double length = 0.0;
    /// From the start of one label to the start of the next, in inches; 0 for a continuous supply,
    /// for a ribbon, and when it is not known.
    double pitch = 0.0;
    int labelsSideBySide = 1;
};
using CatalogueItemPointer = std::shared_ptr<const CatalogueItem>;

/// Finds what printers report to be loaded. Items are shared by all printers that have the same
/// supply or ribbon loaded, and queried once.
///
/// An identifier is mapped to a SKU by a database object of its own on the service's file, because
/// the supply service maps only what it has been told is loaded, and the controller tells it at the
/// next report. The service answers everything else, in its language.
class SupplyCatalogue
{
public:
    SupplyCatalogue();
    ~SupplyCatalogue();
    Q_DISABLE_COPY_MOVE(SupplyCatalogue)

    /// Null when the catalogue does not know the identifier.
    CatalogueItemPointer supply(const QString& identifier, VXIPCSUPPLYDController& service);
    CatalogueItemPointer ribbon(const QString& identifier, VXIPCSUPPLYDController& service);

    /// Whether the catalogue has print settings for each panel of a ribbon on a supply. Without a
    /// value when it does not know the one or the other.
    std::optional<bool> ribbonSuits(const QString& ribbonSku, const QString& supplySku,
                                    VXIPCSUPPLYDController& service);

private:
    VXSupplyDatabase& database(const VXIPCSUPPLYDController& service);

    std::unique_ptr<VXSupplyDatabase> m_database;
    QHash<int, CatalogueItemPointer> m_supplies;    ///< by the kind in their identifiers
    QHash<QString, CatalogueItemPointer> m_ribbons; ///< by their identifiers
    QHash<std::pair<QString, QString>, std::optional<bool>> m_pairs; ///< a ribbon and a supply
};

} // namespace VxKit
