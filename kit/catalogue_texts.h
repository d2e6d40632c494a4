// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace VxKit {

/// More panels than any ribbon has.
inline constexpr int mostPanels = 64;

/// The file that the library's supply service reads unless it is told to read another one.
QString cataloguePath();

/// 0xRRGGBB numbers as "#rrggbb", without those that are not known, which are negative.
QStringList hexColors(const QList<int>& colors);

/// The name of a supply or ribbon by its colours and its material, of which either may be missing.
QString nameOf(QStringList colorNames, const QString& material);

} // namespace VxKit
