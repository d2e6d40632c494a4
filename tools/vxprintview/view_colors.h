// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// The colours of the window: those of the system, or light or dark ones.
namespace view_colors {

/// "light", "dark" or "system".
void use(const QString& scheme);

} // namespace view_colors
