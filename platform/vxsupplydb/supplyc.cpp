// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "supplyc.h"

#include <QtCore/QStringView>

#include <algorithm>
#include <optional>

namespace {

constexpr qsizetype lengthDigits = 8;
constexpr qsizetype kindDigits = 6;
constexpr qsizetype rollDigits = 6;

// Accepts digits only: toUInt() alone would also accept signs, spaces and prefixes.
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
    if (identifier.size() != lengthDigits + kindDigits + rollDigits)
        return;
    const QStringView text(identifier);
    const std::optional<quint32> feet = number(text.first(lengthDigits), 16);
    const std::optional<quint32> kindNumber = number(text.sliced(lengthDigits, kindDigits), 10);
    const std::optional<quint32> roll = number(text.last(rollDigits), 16);
    if (!feet || !kindNumber || !roll)
        return;
    lengthInFeet = static_cast<qint32>(*feet);
    kind = static_cast<qint32>(*kindNumber);
    rollNumber = static_cast<qint32>(*roll);
}
