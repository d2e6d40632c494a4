// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "visible_text.h"

namespace {

bool isInvisible(char32_t character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return QChar::isNonCharacter(character);
    }
}

} // namespace

std::optional<char32_t> invisibleCharacter(const QString& text)
{
    // Decoded by hand: QString::toUcs4() would replace a lone surrogate.
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        char32_t character = unit.unicode();
        if (unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            ++i;
            character = QChar::surrogateToUcs4(unit, text.at(i));
        }
        if (isInvisible(character))
            return character;
    }
    return std::nullopt;
}
