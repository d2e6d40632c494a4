// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// What is left of a supply or ribbon, in percent from 0 to 100, calculated from the mileage that
/// the driver publishes. The result is also 0 when the mileage or the length is not known, and when
/// the calculation gives a value outside 0 to 100.
namespace percent_left {

/// A mileage text as a number; 0 when it is not a number or longer than any roll.
double mileage(const QString& text);

/// What is left on the model that publishes percentages instead of mileages.
int ofPercentage(double percentage);

/// What is left of a supply. The mileage is in millimetres, the length of its roll in inches. The
/// identifier contains the length of a new roll in feet.
int ofSupply(double mileage, float length, const QString& supplyIdentifier);

/// What is left of a ribbon. The mileage is in millimetres, the length in inches.
int ofRibbon(double mileage, float length);

} // namespace percent_left
