// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// Everything that a database has about a supply or a ribbon, one line per property, with names in
/// the language with that number. Throws a Failure if the file cannot be used or lacks the SKU.
QString skuReport(const QString& path, const QString& sku, int language);
