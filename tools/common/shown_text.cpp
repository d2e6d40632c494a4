// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "shown_text.h"

namespace {

bool isPlain(char32_t character)
{
    if (character >= U' ' && character <= U'~')
        return true;
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return !QChar::isNonCharacter(character);
    }
}

QString escaped(QStringView units)
{
    QString escape;
    for (const QChar unit : units)
        escape += QStringLiteral("\\u%1").arg(unit.unicode(), 4, 16, QLatin1Char('0'));
    return escape;
}

/// The character at `place`, which takes two code units if it is a surrogate pair.
char32_t characterAt(QStringView text, qsizetype place)
{
    const QChar first = text.at(place);
    if (first.isHighSurrogate() && place + 1 < text.size() && text.at(place + 1).isLowSurrogate())
        return QChar::surrogateToUcs4(first, text.at(place + 1));
    return first.unicode();
}

} // namespace

QString shown(const QString& text)
{
    const QStringView view(text);
    QString result;
    qsizetype copied = 0;
    for (qsizetype place = 0; place < view.size();) {
        const char32_t character = characterAt(view, place);
        const qsizetype end = place + (QChar::requiresSurrogates(character) ? 2 : 1);
        if (!isPlain(character)) {
            result += view.sliced(copied, place - copied);
            result += escaped(view.sliced(place, end - place));
            copied = end;
        }
        place = end;
    }
    return copied == 0 ? text : result.append(view.sliced(copied));
}

QString shownAsMessage(const QString& text)
{
    constexpr qsizetype quoted = messageLength / 2;
    if (text.size() <= messageLength)
        return shown(text);
    return shown(text.first(quoted)) + QStringLiteral(" ... ") + shown(text.last(quoted));
}

std::optional<char32_t> invisibleCharacter(const QString& text)
{
    for (qsizetype place = 0; place < text.size();) {
        const char32_t character = characterAt(text, place);
        if (!isPlain(character))
            return character;
        place += QChar::requiresSurrogates(character) ? 2 : 1;
    }
    return std::nullopt;
}
