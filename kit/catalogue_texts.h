// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace VxKit {

/// More panels than any ribbon has.
inline constexpr int mostPanels = 64;

/// The file that the library's supply service reads.
QString cataloguePath();

/// A 0xRRGGBB number as "#rrggbb".
QString hexOf(int rgb);

/// The name of a supply or ribbon by its colours and its material, of which either may be missing.
QString nameOf(QStringList colorNames, const QString& material);

} // namespace VxKit
