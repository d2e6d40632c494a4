// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "catalogue.h"

#include <QtCore/QString>

/// How a catalogue is shown.
struct ReportStyle
{
    int language = 0; ///< the number of the language of the names
    bool isJson = false;
};

/// Everything that a database has about a supply or a ribbon: one line per property, or one line of
/// JSON. Throws a Failure if the file cannot be used or lacks the SKU.
QString skuReport(const QString& path, const QString& sku, const ReportStyle& style);

/// The same for a supply or a ribbon of a catalogue that has been read.
QString supplyReport(const Catalogue& catalogue, const Catalogue::Supply& supply, int language);
QString ribbonReport(const Catalogue& catalogue, const Catalogue::Ribbon& ribbon, int language);

/// As JSON on one line, without a line feed; with the print settings if `isComplete`.
QString supplyJson(const Catalogue& catalogue, const Catalogue::Supply& supply, int language,
                   bool isComplete);
QString ribbonJson(const Catalogue& catalogue, const Catalogue::Ribbon& ribbon, int language,
                   bool isComplete);

/// The supply or ribbon with this SKU; null if there is none.
const Catalogue::Supply* supplyOf(const Catalogue& catalogue, const QString& sku);
const Catalogue::Ribbon* ribbonOf(const Catalogue& catalogue, const QString& sku);

/// "100001 100002"
QString joined(const QList<int>& numbers);
/// "White, Vinyl, Continuous tape"
QString description(const Catalogue& catalogue, const Catalogue::Supply& supply, int language);
/// "Red Black, resin"
QString description(const Catalogue& catalogue, const Catalogue::Ribbon& ribbon, int language);
