// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "vxprinterstatus_export.h"

#include <QtCore/QLatin1String>
#include <QtCore/QMetaType>
#include <QtCore/QObject>

/// What the library and its hosts call things: printer models and empty places.
namespace VXPrinting {
Q_NAMESPACE_EXPORT(VX_PRINTERSTATUS_EXPORT)

/// A printer model, recognised by the driver's name. Values above 100 are the supported models,
/// which are watched; all others are ignored. The numbers are fixed: hosts store them.
enum class PrinterType : int
{
    Unknown = 0,    ///< a printer of another maker
    Generic = 10,   ///< a printer of the maker, but not a supported model
    Alder = 101,    ///< supported, two ribbons; reports its mileages in percent
    BirchMax = 102, ///< supported, one ribbon
    CedarMax = 103, ///< supported, one ribbon
    AlderMax = 104, ///< supported, two ribbons
};
Q_ENUM_NS(PrinterType)

/// Whether printers of this model are watched.
constexpr bool isSupported(PrinterType type)
{
    return static_cast<int>(type) > 100;
}

/// The identifier and the SKU of an empty place: no supply is loaded in the printer, or no ribbon
/// in one of its ribbon places. An empty text instead means that what is loaded is not known.
inline constexpr QLatin1String nothingLoaded("-1");

} // namespace VXPrinting

Q_DECLARE_METATYPE(VXPrinting::PrinterType)
