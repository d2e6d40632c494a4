// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_types.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>

namespace VxKit {

/// A printer of a supported model as the print spooler lists it.
struct SpooledPrinter
{
    QString name;
    VXPrinting::PrinterType model = VXPrinting::PrinterType::Unknown;
    QString driver;
    QString port; ///< with every "USB" removed
    /// That of the maker's device on the printer's own USB port; empty when there is none.
    QString serialNumber;
    bool isOffline = false;
};

/// The printers of supported models that the spooler lists now, in its order. Empty without a value
/// when the spooler does not answer, or lists a printer without a name, port or driver.
std::optional<QList<SpooledPrinter>> listPrinters();

} // namespace VxKit
