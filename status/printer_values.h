// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <limits>

#include <windows.h>

/// The values that the maker's driver publishes for each printer, and how each is read. The driver
/// defines the names, sizes and limits, also where they are not consistent.
namespace printer_values {

struct TextValue
{
    const char* name;
    DWORD capacity;   ///< size of the buffer, and the largest size of a valid value, in bytes
    DWORD leastBytes; ///< the smallest size of a valid value, in bytes
};

struct NumberValue
{
    const char* name;
    LONG ceiling; ///< the largest plausible number, compared as signed
};

inline constexpr LONG noCeiling = std::numeric_limits<LONG>::max();

inline constexpr TextValue supplyId{"SupplyIdentifier", 21, 21};
inline constexpr TextValue statusCode{"StatusCode", 128, 0};
inline constexpr TextValue softwareVersion{"SoftwareVersion", 37, 0};
inline constexpr TextValue ethernetConfig{"EthernetConfig", 74, 0};
inline constexpr DWORD largestCapacity = statusCode.capacity;

inline constexpr NumberValue ribbon1Id{"Ribbon1Identifier", 100000};
inline constexpr NumberValue ribbon2Id{"Ribbon2Identifier", 100000};
// The name of the supply's mileage has no prefix, unlike the ribbons'. The three ceilings differ
// because rolls and ribbons have different lengths.
inline constexpr NumberValue supplyMileage{"Mileage", 152400};
inline constexpr NumberValue ribbon1Mileage{"Ribbon1Mileage", 130000};
inline constexpr NumberValue ribbon2Mileage{"Ribbon2Mileage", 120700};
inline constexpr NumberValue updateProgress{"UpdateProgress", noCeiling};
inline constexpr NumberValue updateError{"UpdateError", noCeiling};

/// The value's text up to its first zero byte; empty when it is absent, of another type or of an
/// invalid size.
QString read(HANDLE printer, const TextValue& value);

/// The value as unsigned decimal text; empty when it is absent, of another type or not plausible.
QString read(HANDLE printer, const NumberValue& value);

} // namespace printer_values
