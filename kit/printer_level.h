// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_reading.h"
#include "supply_catalogue.h"

namespace VxKit {

/// What a printer reports of one slot, and what the catalogue knows of it.
struct SlotValues
{
    QString identifier; ///< as the driver publishes it; empty when it is not known
    std::optional<quint32> mileage;
    CatalogueItemPointer item; ///< null unless the catalogue knows the identifier
};

/// A number as a printer's thread reports it. Without a value when the text is not a number.
std::optional<quint32> publishedNumber(const QString& text);

/// A mileage. Without a value also for the -1 with which a driver says that it does not know it.
std::optional<quint32> publishedMileage(const QString& text);

/// In what steps a printer reports what is left, as a ratio, if it reports whole percents.
inline constexpr double coarseStep = 0.01;

/// The state of a slot by its identifier alone: `Loaded` stands for both states of a loaded slot.
Level::State stateOf(Slot slot, const QString& identifier);

/// How many labels a length holds, each `pitch` long and `across` of them side by side. Without a
/// value when the pitch is not known (not above 0), or the number is not one of an `int`.
std::optional<int> labelsOn(double length, double pitch, int across);

/// The level of a slot. docs/readings.md explains the calculation and gives examples.
Level levelOf(Slot slot, VXPrinting::PrinterType model, const SlotValues& values);

} // namespace VxKit
