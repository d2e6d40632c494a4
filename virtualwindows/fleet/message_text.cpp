// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "message_text.h"

#include <algorithm>

namespace virtualwindows {

namespace {

bool isShownAsItIs(char32_t character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return true;
    }
}

QString spelled(QChar unit)
{
    return QStringLiteral("\\u%1").arg(unit.unicode(), 4, 16, QLatin1Char('0'));
}

} // namespace

QString escaped(const QString& text)
{
    QString shown;
    shown.reserve(text.size());
    for (qsizetype place = 0; place < text.size(); ++place) {
        const QChar unit = text.at(place);
        const bool isPair = unit.isHighSurrogate() && place + 1 < text.size() &&
                            text.at(place + 1).isLowSurrogate();
        const QStringView character = QStringView(text).mid(place, isPair ? 2 : 1);
        if (isShownAsItIs(isPair ? QChar::surrogateToUcs4(unit, text.at(place + 1))
                                 : char32_t(unit.unicode()))) {
            shown.append(character);
        } else {
            for (const QChar part : character)
                shown.append(spelled(part));
        }
        place += character.size() - 1;
    }
    return shown;
}

QString shortened(const QString& text, qsizetype maxLength)
{
    if (text.size() <= maxLength)
        return text;
    const qsizetype end = text.at(maxLength - 1).isHighSurrogate() ? maxLength - 1 : maxLength;
    return text.first(end) + QStringLiteral("…");
}

QString listed(const QStringList& texts)
{
    constexpr qsizetype maxCount = 16; // enough for all keys of an object and all names of bits
    QStringList first = texts.first(std::min(maxCount, texts.size()));
    for (QString& text : first)
        text = shortened(text);
    const QString list = first.join(QStringLiteral(", "));
    if (texts.size() <= maxCount)
        return list;
    return QStringLiteral("%1 and %2 more").arg(list).arg(texts.size() - maxCount);
}

} // namespace virtualwindows
