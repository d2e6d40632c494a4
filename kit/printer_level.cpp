// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The formulas and limits are those of the library's percentages, so that `Level::percentage()` is
// the percentage in the library's record wherever it is known. Where the library gives 0 because
// the calculation is impossible, there is no value here.
#include "printer_level.h"

#include <supplyc.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace VxKit {

namespace {

using VXPrinting::PrinterType;

constexpr double inchesPerMillimeter = 0.0393701;
constexpr double inchesPerFoot = 12.0;
constexpr double newRibbonInches = 4725.0;
constexpr quint32 longestMileage = 1000000;
/// Lengths are single-precision numbers, so a roll of 1000 labels can come out as 999.9999.
constexpr double labelTolerance = 1e-6;

/// What is left as a share of a new roll. Empty when that is impossible: a result may lie outside 0
/// to 1 by less than one percent, because identifiers hold whole feet.
std::optional<double> plausibleRatio(double ratio)
{
    const double percentage = ratio * 100.0;
    if (!(percentage > -1.0 && percentage < 101.0))
        return std::nullopt;
    return std::clamp(ratio, 0.0, 1.0);
}

/// The shortest length that the library calculates with is one that rounds to this many inches.
double shortestLength(Slot slot)
{
    return slot == Slot::Supply ? 1.0 : 2.0;
}

/// The length of a new roll in inches, of which the mileage is a part; empty when it is not known.
std::optional<double> newLength(Slot slot, const QString& identifier)
{
    if (slot != Slot::Supply)
        return newRibbonInches;
    const SupplyC supply(identifier);
    if (!supply.isDecoded() || supply.lengthInFeet <= 0)
        return std::nullopt;
    return supply.lengthInFeet * inchesPerFoot;
}

/// What is left by a mileage in millimetres.
std::optional<double> ratioOfMileage(Slot slot, const SlotValues& values)
{
    if (!values.item || std::round(values.item->length) < shortestLength(slot))
        return std::nullopt;
    const auto whole = newLength(slot, values.identifier);
    if (!whole || *values.mileage > longestMileage)
        return std::nullopt;
    const double length = values.item->length;
    const double used = *values.mileage * inchesPerMillimeter - *whole;
    return plausibleRatio((used + length) / length);
}

} // namespace

std::optional<quint32> publishedNumber(const QString& text)
{
    bool isNumber = false;
    const uint number = text.toUInt(&isNumber);
    return isNumber ? std::optional<quint32>(number) : std::nullopt;
}

std::optional<quint32> publishedMileage(const QString& text)
{
    const auto mileage = publishedNumber(text);
    return mileage == std::numeric_limits<quint32>::max() ? std::nullopt : mileage;
}

Level::State stateOf(Slot slot, const QString& identifier)
{
    if (identifier.isEmpty())
        return Level::State::NotKnown;
    static const QString blankSupply(20, QLatin1Char('0'));
    const bool isEmpty = identifier == VXPrinting::nothingLoaded ||
                         (slot == Slot::Supply ? identifier == blankSupply
                                               : identifier == QLatin1String("0") ||
                                                     identifier == QLatin1String("4294967295"));
    return isEmpty ? Level::State::Empty : Level::State::Loaded;
}

std::optional<int> labelsOn(double length, double pitch, int across)
{
    if (!(pitch > 0.0))
        return std::nullopt;
    const double rows = std::floor(length / pitch * (1.0 + labelTolerance));
    const double labels = rows * across;
    if (!(labels >= 0.0 && labels <= std::numeric_limits<int>::max()))
        return std::nullopt;
    return static_cast<int>(labels);
}

Level levelOf(Slot slot, PrinterType model, const SlotValues& values)
{
    const bool isInPercent = model == PrinterType::Alder;

    Level level;
    level.state = stateOf(slot, values.identifier);
    level.coarse = isInPercent;
    level.mileage = values.mileage;
    level.mileageUnit = isInPercent ? Level::MileageUnit::Percent : Level::MileageUnit::Millimeters;
    if (level.state != Level::State::Loaded)
        return level;

    level.identifier = values.identifier;
    if (values.mileage)
        level.ratio =
            isInPercent ? plausibleRatio(*values.mileage / 100.0) : ratioOfMileage(slot, values);
    if (!values.item) {
        level.state = Level::State::NotInCatalogue;
        return level;
    }

    const CatalogueItem& item = *values.item;
    level.sku = item.sku;
    level.name = item.name;
    level.material = item.material;
    level.colorName = item.colorName;
    level.colors = item.colors;
    if (item.pitch > 0.0) {
        level.labelPitchMeters = item.pitch * metersPerInch;
        level.labelsAcross = item.labelsSideBySide;
    }
    if (std::round(item.length) < shortestLength(slot))
        return level;
    level.totalMeters = item.length * metersPerInch;
    if (level.ratio) {
        const double inches = *level.ratio * item.length;
        level.meters = inches * metersPerInch;
        level.labels = labelsOn(inches, item.pitch, item.labelsSideBySide);
    }
    return level;
}

} // namespace VxKit
