// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "output.h"

#include <printer_reading.h>
#include <run_out_forecast.h>

#include <QtCore/QString>

#include <optional>

struct CommandLine;

namespace VxKit {
class PrinterForecasts;
}

/// When rolls and ribbons will end, in words for people.
namespace forecast_words {

/// A time in its largest unit, rounded: "30 min", "3 h", "12 d". From two years on "over 2 years".
QString duration(double seconds);

/// The shortest time for which any of a printer's slots will probably last. Without a value when
/// that is known of none.
std::optional<double> soonestEnd(const VxKit::PrinterReading& reading);
/// The same for a table; a hyphen when it is not known.
Cell soonestEndCell(const VxKit::PrinterReading& reading);

/// Why there is no forecast: "not known yet".
QString reason(VxKit::RunOutForecast::Reason reason);

/// Learns from a history. False when there is none. A history that cannot be read is complained
/// about, unless `output` is null.
bool learn(VxKit::PrinterForecasts& forecasts, const QString& historyFile, const Output* output);

/// What a command line says to warn of, with this many labels where it says nothing.
VxKit::RunOutForecast::WarningSettings warningSettings(const CommandLine& line,
                                                       std::optional<int> fewLabels);

/// What is warned of: "fewLabels".
QString concern(VxKit::RunOutForecast::Concern concern);

} // namespace forecast_words
