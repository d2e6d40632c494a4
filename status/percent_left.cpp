// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "percent_left.h"

#include <supplyc.h>

#include <cmath>

namespace {

constexpr double farthestMileage = 1000000.0;
constexpr double unknownMileage = -1.0;
constexpr double inchesPerMillimetre = 0.0393701;
constexpr double inchesPerFoot = 12.0;
constexpr double newRibbonInches = 4725.0;
constexpr qsizetype identifierCharacters = 24;

/// Truncates towards zero; 0 for everything that is not a percentage. The range is checked before
/// the conversion, because converting a NaN or a number beyond the range of int is undefined.
int truncatedPercentage(double value)
{
    if (!(value > -1.0 && value < 101.0))
        return 0;
    return static_cast<int>(value);
}

/// `newLength` is the mileage of a new roll, in inches.
int leftOf(double mileage, double newLength, double length)
{
    const double used = mileage * inchesPerMillimetre - newLength;
    return truncatedPercentage((used + length) / length * 100.0);
}

} // namespace

double percent_left::mileage(const QString& text)
{
    const double value = text.toDouble();
    return value > farthestMileage ? 0.0 : value;
}

int percent_left::ofPercentage(double percentage)
{
    return truncatedPercentage(percentage);
}

int percent_left::ofSupply(double mileage, float length, const QString& supplyIdentifier)
{
    // A supply's length is unusable when it is 0 or -1 (not known), a ribbon's when it is 0 or 1.
    const float rounded = std::round(length);
    if (mileage == unknownMileage || rounded == 0.0F || rounded == -1.0F)
        return 0;
    const SupplyC supply(supplyIdentifier.left(identifierCharacters));
    return leftOf(mileage, supply.lengthInFeet * inchesPerFoot, length);
}

int percent_left::ofRibbon(double mileage, float length)
{
    const float rounded = std::round(length);
    if (mileage == unknownMileage || rounded == 0.0F || rounded == 1.0F)
        return 0;
    return leftOf(mileage, newRibbonInches, length);
}
