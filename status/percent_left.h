// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// What is left of a supply or ribbon, in percent from 0 to 100, from the mileage that the driver
/// publishes. 0 is also the answer to everything that makes no sense: a mileage or length that is
/// not known, and a result outside 0 to 100.
namespace percent_left {

/// The number of a mileage text; 0 for what is no number or beyond every roll.
double mileage(const QString& text);

/// For the model that publishes percentages instead of mileages.
int ofPercentage(double percentage);

/// Of a supply: the mileage in millimetres, the length of its roll in inches, and the length that
/// its identifier gives for a new roll in feet.
int ofSupply(double mileage, float length, const QString& supplyIdentifier);

/// Of a ribbon: the mileage in millimetres, its length in inches.
int ofRibbon(double mileage, float length);

} // namespace percent_left
