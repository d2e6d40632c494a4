// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_status_information.h"

#include "printer_types.h"

namespace {

/// Registered when the library is loaded, because hosts may look up the types by name before they
/// create a controller: in QML, and when they call a slot through the meta-object.
[[maybe_unused]] const int registeredTypes[] = {
    qRegisterMetaType<PrinterStatusInformation>("PrinterStatusInformation"),
    qRegisterMetaType<VXPrinting::PrinterType>("VXPrinting::PrinterType"),
};

} // namespace
