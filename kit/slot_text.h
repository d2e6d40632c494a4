// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_reading.h"

#include <QtCore/QString>

namespace VxKit {

/// A place of a printer at the beginning of a sentence, translated: "Supply", "Ribbon 1".
QString slotText(Slot slot);

} // namespace VxKit
