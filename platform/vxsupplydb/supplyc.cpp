// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "supplyc.h"

#include <QtCore/QStringView>

#include <algorithm>
#include <optional>

namespace {

constexpr qsizetype LengthDigits = 8;
constexpr qsizetype KindDigits = 6;
constexpr qsizetype RollDigits = 6;

// Signs, spaces and prefixes, which the conversion alone would let through, are no digits.
std::optional<quint32> number(QStringView digits, int base)
{
    const bool allDigits = std::ranges::all_of(digits, [base](QChar character) {
        const auto lower = static_cast<char16_t>(character.unicode() | 0x20U);
        return (character >= u'0' && character <= u'9') ||
               (base == 16 && lower >= u'a' && lower <= u'f');
    });
    if (!allDigits)
        return std::nullopt;
    return digits.toUInt(nullptr, base);
}

} // namespace

SupplyC::SupplyC(const QString& identifier)
{
    if (identifier.size() != LengthDigits + KindDigits + RollDigits)
        return;
    const QStringView text(identifier);
    const std::optional<quint32> feet = number(text.first(LengthDigits), 16);
    const std::optional<quint32> kindNumber = number(text.sliced(LengthDigits, KindDigits), 10);
    const std::optional<quint32> roll = number(text.last(RollDigits), 16);
    if (!feet || !kindNumber || !roll)
        return;
    lengthInFeet = static_cast<qint32>(*feet);
    kind = static_cast<qint32>(*kindNumber);
    rollNumber = static_cast<qint32>(*roll);
}
