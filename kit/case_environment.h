// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

class PrinterStatusController;

namespace VxKit {

/// Records the signals of a controller if VX_RECORD asks for a recording of this process.
void recordAsEnvironmentWants(PrinterStatusController* controller);

} // namespace VxKit
