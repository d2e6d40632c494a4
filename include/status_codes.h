// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

/// The status codes to which the product itself gives a meaning.
///
/// They are the values of `PrinterStatusInformation::statusEnum` and of the signals that carry a
/// status. Every other value is an error code of the printer's driver: the printer is connected,
/// has been read, and reports that fault. `PrinterStatusController::getStatusTitle` gives the title
/// of any code in the application's language. The numbers are fixed: hosts store them.
namespace VXPrinting::StatusCodes {

/// The printer is not available. Also signalled once for a printer of an unsupported model, as it
/// is found.
inline constexpr int disconnected = 0;
/// The printer can print.
inline constexpr int ready = 1;
/// The print spooler service is not running, so that no printer can be read.
inline constexpr int spoolerDown = 254;
/// The status is not known: it has not been read yet, or could not be read.
inline constexpr int unknown = 255;
/// A network printer: it is listed but never watched.
inline constexpr int networkPrinter = 256;
/// The print spooler calls the printer offline.
inline constexpr int offline = 257;
/// The user may not administer the printer: it is listed but never watched.
inline constexpr int notManaged = 258;

} // namespace VXPrinting::StatusCodes
