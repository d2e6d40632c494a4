// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// All that a database says of a supply or a ribbon, a line for each thing, with names in the
/// language of that number. Throws a Fault when the file cannot be used or knows no such SKU.
QString skuReport(const QString& path, const QString& sku, int language);
