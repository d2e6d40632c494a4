// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "vxprinterstatus_export.h"

#include <QtCore/QMetaType>
#include <QtCore/QObject>

/// The vocabulary of printer models that the library and its host share.
namespace VXPrinting {
Q_NAMESPACE_EXPORT(VX_PRINTERSTATUS_EXPORT)

/// A printer model, told from the driver's name. Values above 100 are the supported models, which
/// are watched; everything else is left alone. The numbers are fixed: hosts store them.
enum class PrinterType : int
{
    Unknown = 0,    ///< not a printer of the maker
    Generic = 10,   ///< a printer of the maker, of no supported model
    Alder = 101,    ///< supported, two ribbons; reports its mileages in percent
    BirchMax = 102, ///< supported, one ribbon
    CedarMax = 103, ///< supported, one ribbon
    AlderMax = 104, ///< supported, two ribbons
};
Q_ENUM_NS(PrinterType)

} // namespace VXPrinting

Q_DECLARE_METATYPE(VXPrinting::PrinterType)
