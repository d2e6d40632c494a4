// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "plain_text.h"

#include <QtCore/QStringList>

#include <algorithm>

namespace VxKit::plain_text {

namespace {

bool isBetween(QChar character, char16_t first, char16_t last)
{
    return character >= first && character <= last;
}

template <typename Belongs>
bool consistsOf(const QString& text, qsizetype least, qsizetype most, Belongs belongs)
{
    return text.size() >= least && text.size() <= most && std::ranges::all_of(text, belongs);
}

} // namespace

bool isDigits(const QString& text, qsizetype least, qsizetype most)
{
    return consistsOf(text, least, most,
                      [](QChar character) { return isBetween(character, u'0', u'9'); });
}

bool isHex(const QString& text, qsizetype least, qsizetype most)
{
    return consistsOf(text, least, most, [](QChar character) {
        return isBetween(character, u'0', u'9') || isBetween(character, u'A', u'F') ||
               isBetween(character, u'a', u'f');
    });
}

bool isCapitals(const QString& text, qsizetype least, qsizetype most)
{
    return consistsOf(text, least, most,
                      [](QChar character) { return isBetween(character, u'A', u'Z'); });
}

bool isVersionNumber(const QString& text)
{
    constexpr qsizetype mostNumbers = 3;
    constexpr qsizetype mostDigits = 5;
    const QStringList numbers = text.split(u'.');
    return numbers.size() <= mostNumbers && std::ranges::all_of(numbers, [](const QString& number) {
               return isDigits(number, 1, mostDigits);
           });
}

bool isFirmwareVersion(const QString& text)
{
    constexpr qsizetype mostParts = 4;
    const QStringList parts = text.split(u',');
    return parts.size() <= mostParts && std::ranges::all_of(parts, [](const QString& part) {
               QString version = part.trimmed();
               for (const QLatin1String word : {QLatin1String("boot "), QLatin1String("fw "),
                                                QLatin1String("build "), QLatin1String("v")}) {
                   if (version.startsWith(word, Qt::CaseInsensitive)) {
                       version.remove(0, word.size());
                       break;
                   }
               }
               return isVersionNumber(version);
           });
}

} // namespace VxKit::plain_text
