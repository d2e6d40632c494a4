// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "sku_report.h"

#include <QtCore/QString>

/// What the identifier of a roll or a ribbon stands for, as a printer's driver publishes it: the 20
/// characters of a supply or the number of a ribbon. Throws a Failure if the file cannot be used or
/// has nothing of that identifier; then with those that differ from it by one slip.
QString identifierReport(const QString& path, const QString& identifier, const ReportStyle& style);
