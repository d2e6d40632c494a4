// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <printer_reading.h>
#include <usage_history.h>

#include <cmath>

/// Readings of printers as the tests of the history need them.
namespace usage_printers {

/// A roll of 30.48 m with labels of 25.4 mm, of which the printer counts 200 mm more than there
/// are.
inline constexpr double totalMeters = 30.48;
inline constexpr int excess = 200;

/// So much is left of what is loaded.
inline void setLeft(VxKit::Level& level, int millimeters)
{
    level.meters = millimeters / 1000.0;
    level.ratio = *level.meters / totalMeters;
    level.labels = static_cast<int>(std::floor(millimeters / 25.4 * (1.0 + 1e-6)));
    level.mileage = static_cast<quint32>(millimeters + excess);
}

inline VxKit::Level levelOf(const QString& identifier, int millimeters)
{
    VxKit::Level level;
    level.state = VxKit::Level::State::Loaded;
    level.identifier = identifier;
    level.sku = QStringLiteral("VX-") + identifier;
    level.name = QStringLiteral("Yellow Vinyl");
    level.material = QStringLiteral("vinyl");
    level.totalMeters = totalMeters;
    setLeft(level, millimeters);
    return level;
}

/// A level of an Alder.
inline VxKit::Level percentOf(const QString& identifier, int percent)
{
    VxKit::Level level = levelOf(identifier, 0);
    level.coarse = true;
    level.mileageUnit = VxKit::Level::MileageUnit::Percent;
    level.mileage = static_cast<quint32>(percent);
    level.ratio = percent / 100.0;
    level.meters = *level.ratio * totalMeters;
    level.labels = static_cast<int>(*level.meters / 0.0254);
    return level;
}

/// What is loaded is in no catalogue.
inline VxKit::Level unknownOf(const QString& identifier, int mileage)
{
    VxKit::Level level;
    level.state = VxKit::Level::State::NotInCatalogue;
    level.identifier = identifier;
    level.mileage = static_cast<quint32>(mileage);
    return level;
}

inline VxKit::PrinterReading readingOf(const QString& name, const VxKit::Level& supply,
                                       const QString& serialNumber = {})
{
    VxKit::PrinterReading reading;
    reading.setName(name);
    reading.setModel(VXPrinting::PrinterType::AlderMax);
    reading.setSerialNumber(serialNumber);
    reading.setLevel(VxKit::Slot::Supply, supply);
    return reading;
}

} // namespace usage_printers
