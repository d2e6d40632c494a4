// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "preflight.h"

#include <functional>

namespace VxKit {

/// Whether a ribbon suits a supply, as `PrinterReadings::ribbonSuits` answers it.
using RibbonSuits =
    std::function<std::optional<bool>(const QString& ribbonSku, const QString& supplySku)>;

/// Compares the job that `result` names with the printer's reading, and enters what was found.
void checkJob(PreflightResult& result, const PrinterReading& reading,
              const RibbonSuits& ribbonSuits);

} // namespace VxKit
