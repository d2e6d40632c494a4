// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>
#include <QtCore/QtGlobal>

/// What a supply's identifier says. The identifier is the text of 20 characters that the chip in a
/// roll carries and that the printer's driver publishes:
///
/// | characters | hold |
/// |---|---|
/// | 1 to 8 | the length of the new roll in feet: a signed 32-bit number in hexadecimal digits |
/// | 9 to 14 | the kind of supply, by which the database knows its SKU: decimal digits |
/// | 15 to 20 | the number of this roll among its kind: hexadecimal digits |
///
/// "000001F41000420000A7" is roll 167 of the kind 100042, 500 feet long. Letters may be of either
/// case. A text that is not of this form, the "-1" of an empty printer included, cannot be decoded:
/// it has 0 feet and is of no kind.
class SupplyC
{
public:
    explicit SupplyC(const QString& identifier);

    // The length comes first: readers that know nothing else of the identifier rely on it.
    qint32 lengthInFeet = 0;
    qint32 kind = -1;       ///< 0 to 999999, -1 when the text could not be decoded.
    qint32 rollNumber = -1; ///< -1 when the text could not be decoded.

    bool isDecoded() const { return kind >= 0; }
};
