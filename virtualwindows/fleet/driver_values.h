// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// The values of the maker's drivers that the library reads, as far as a fleet file can be wrong
/// about them. A test compares the table with the library's own.
namespace driver_values {

enum class Kind
{
    Text,   ///< REG_SZ or REG_BINARY
    Number, ///< REG_DWORD or REG_BINARY
};

struct KnownValue
{
    const char* name;
    Kind kind;
};

/// The value with this name in any letter case, as the spooler compares names; null if the library
/// reads no such value.
const KnownValue* known(const QString& name);

/// The value whose name was probably meant; null if the name is known, or like no known one.
///
/// Two names are alike if one or two characters were left out, added, exchanged or swapped. Names
/// that differ only in a digit are not: "Ribbon3Mileage" is no slip of the pen.
const KnownValue* meant(const QString& name);

} // namespace driver_values
