// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "plain_line.h"

#include <QtCore/QChar>
#include <QtCore/QList>

namespace VxKit {

namespace {

bool isVisible(uint character)
{
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

} // namespace

QString plainLine(const QString& text, qsizetype longest)
{
    QString line;
    const bool isTooLong = text.size() > longest;
    for (const uint character : text.left(longest).toUcs4()) {
        if (isVisible(character))
            line += QString::fromUcs4(reinterpret_cast<const char32_t*>(&character), 1);
        else
            line += QStringLiteral("\\u%1").arg(character, 4, 16, QLatin1Char('0'));
    }
    if (isTooLong)
        line += QChar(0x2026);
    return line;
}

} // namespace VxKit
