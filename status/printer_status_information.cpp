// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_status_information.h"

#include "printer_types.h"

namespace {

/// Known by name as soon as the library is loaded: hosts look the types up before they make a
/// controller, in QML and when they call a slot through the meta-object.
[[maybe_unused]] const int registeredTypes[] = {
    qRegisterMetaType<PrinterStatusInformation>("PrinterStatusInformation"),
    qRegisterMetaType<VXPrinting::PrinterType>("VXPrinting::PrinterType"),
};

} // namespace
