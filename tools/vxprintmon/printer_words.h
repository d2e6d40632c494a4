// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "output.h"

#include <printer_reading.h>
#include <status_info.h>

/// What is known of a printer, in words for people.
namespace printer_words {

Colour colourOf(VxKit::Severity severity);
/// The colour for what is left: of the last tenth a notice, otherwise none.
Colour colourOfLevel(const VxKit::Level& level);

/// A status on one line, in its colour: "The cover is open".
Cell status(const VxKit::PrinterReading& reading);
/// The same, with the word for a severity that asks for attention: "The cover is open (error)".
Cell statusWithSeverity(const VxKit::StatusInfo& info);

/// The status with that word: of a status, or of anything else that has a severity.
Cell withSeverity(const QString& text, VxKit::Severity severity);

/// The name of a slot: "supply", "ribbon 1".
QString slotName(VxKit::Slot slot);
/// What is loaded, without a sample of its colour: "Yellow Vinyl", "none", "not known".
QString loaded(const VxKit::Level& level);
/// What is loaded and how much of it is left, for a table: "80 % Yellow Vinyl", "3 % Blue" for a
/// ribbon.
Cell level(const VxKit::Level& level, VxKit::Slot slot);
/// How much is left: "80 %, 24.4 m, 240 labels", "not known".
QString amount(const VxKit::Level& level);

QString notKnown();
/// A time of today as the time alone, any other with its date.
QString timeOf(const QDateTime& time);

/// Whether the controller has a record of the printer, as `status` shows it.
bool hasRecord(const VxKit::PrinterReading& reading);

} // namespace printer_words
