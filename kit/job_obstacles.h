// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_command.h"
#include "spooler_owners.h"

namespace VxKit {

/// Adds to the state of a job what keeps it from being printed: the job's own status, the state of
/// its printer and the status code that the driver publishes. `jobText` is what the driver or the
/// port says about the job; it may be empty.
void addObstacles(JobState& state, const PrinterOwner& printer, const QString& jobText);

} // namespace VxKit
