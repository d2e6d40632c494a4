// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "driver_values.h"

#include <QtCore/QList>

#include <algorithm>
#include <array>

namespace driver_values {

namespace {

constexpr std::array knownValues{
    KnownValue{"SupplyIdentifier", Kind::Text},    KnownValue{"StatusCode", Kind::Text},
    KnownValue{"SoftwareVersion", Kind::Text},     KnownValue{"EthernetConfig", Kind::Text},
    KnownValue{"Ribbon1Identifier", Kind::Number}, KnownValue{"Ribbon2Identifier", Kind::Number},
    KnownValue{"Mileage", Kind::Number},           KnownValue{"Ribbon1Mileage", Kind::Number},
    KnownValue{"Ribbon2Mileage", Kind::Number},    KnownValue{"UpdateProgress", Kind::Number},
    KnownValue{"UpdateError", Kind::Number},
};

constexpr qsizetype mostEdits = 2;

/// How many characters have to be left out, added, exchanged or swapped with their neighbour to
/// make one name from the other. Case does not count.
qsizetype edits(const QString& left, const QString& right)
{
    const QString a = left.toCaseFolded();
    const QString b = right.toCaseFolded();
    QList<QList<qsizetype>> costs(a.size() + 1, QList<qsizetype>(b.size() + 1));
    for (qsizetype i = 0; i <= a.size(); ++i) {
        for (qsizetype j = 0; j <= b.size(); ++j) {
            if (i == 0 || j == 0) {
                costs[i][j] = i + j;
                continue;
            }
            const qsizetype exchanged = a.at(i - 1) == b.at(j - 1) ? 0 : 1;
            qsizetype least = std::min(
                {costs[i - 1][j] + 1, costs[i][j - 1] + 1, costs[i - 1][j - 1] + exchanged});
            if (i > 1 && j > 1 && a.at(i - 1) == b.at(j - 2) && a.at(i - 2) == b.at(j - 1))
                least = std::min(least, costs[i - 2][j - 2] + 1);
            costs[i][j] = least;
        }
    }
    return costs.last().last();
}

bool differInADigit(const QString& left, const QString& right)
{
    if (left.size() != right.size())
        return false;
    return std::equal(left.begin(), left.end(), right.begin(), [](QChar a, QChar b) {
        return a.toCaseFolded() == b.toCaseFolded() || (a.isDigit() && b.isDigit());
    });
}

} // namespace

const KnownValue* known(const QString& name)
{
    const auto* const found = std::ranges::find_if(knownValues, [&](const KnownValue& value) {
        return name.compare(QLatin1String(value.name), Qt::CaseInsensitive) == 0;
    });
    return found == knownValues.end() ? nullptr : found;
}

const KnownValue* meant(const QString& name)
{
    const KnownValue* best = nullptr;
    qsizetype fewest = mostEdits + 1;
    for (const KnownValue& value : knownValues) {
        const QString knownName = QString::fromLatin1(value.name);
        // So different in length that the names cannot be alike; also bounds the work.
        if (qAbs(knownName.size() - name.size()) > mostEdits)
            continue;
        if (differInADigit(knownName, name))
            return nullptr;
        const qsizetype count = edits(knownName, name);
        if (count < fewest) {
            fewest = count;
            best = &value;
        }
    }
    return best;
}

} // namespace driver_values
