// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// The codes that the product itself gives a meaning; every other one is the driver's.
namespace status_codes {
inline constexpr int disconnected = 0;
inline constexpr int ready = 1;
inline constexpr int spoolerDown = 254;
inline constexpr int unknown = 255;
inline constexpr int networkPrinter = 256;
inline constexpr int offline = 257;
inline constexpr int notManaged = 258;
} // namespace status_codes

/// The title of a status code in the application's language: a text of our own for the codes that
/// hosts show most, and the status-messages library's for every other one. Never empty.
QString statusTitle(int statusCode);
