// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>
#include <QtCore/QtGlobal>

/// A decoded supply identifier. The identifier is the text of 20 characters that is stored in the
/// chip of a roll and that the printer's driver publishes:
///
/// | characters | content |
/// |---|---|
/// | 1 to 8 | the length of the new roll in feet: a signed 32-bit number in hexadecimal digits |
/// | 9 to 14 | the kind of supply, which the database maps to a SKU: decimal digits |
/// | 15 to 20 | the number of this roll within its kind: hexadecimal digits |
///
/// "000001F41000420000A7" is roll 167 of the kind 100042, 500 feet long. Hexadecimal digits may be
/// in either case. Any other text, including the "-1" of an empty printer, cannot be decoded: its
/// length is 0 feet and its kind -1.
class SupplyC
{
public:
    explicit SupplyC(const QString& identifier);

    // The length must stay the first member: existing readers of the object rely on that.
    qint32 lengthInFeet = 0;
    qint32 kind = -1;       ///< 0 to 999999, -1 when the text could not be decoded.
    qint32 rollNumber = -1; ///< -1 when the text could not be decoded.

    bool isDecoded() const { return kind >= 0; }
};
