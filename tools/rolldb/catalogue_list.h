// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "sku_report.h"

#include <QtCore/QString>

/// The supplies and ribbons of a database: their SKUs, the numbers in identifiers that stand for
/// them, and their names. As a table for a terminal, or as a JSON array with one of them a line.
/// Throws a Failure if the file cannot be used.
QString catalogueList(const QString& path, const ReportStyle& style);
