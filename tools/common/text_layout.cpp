// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "text_layout.h"

#include <QtCore/QTextBoundaryFinder>

#include <algorithm>
#include <array>

namespace {

struct Range
{
    char32_t first;
    char32_t last;
};

// The blocks of Unicode whose characters are wide (property East_Asian_Width, values W and F).
constexpr std::array wideRanges{
    Range{0x1100, 0x115f},   Range{0x2e80, 0x303e},   Range{0x3041, 0x4dbf},
    Range{0x4e00, 0xa4cf},   Range{0xa960, 0xa97f},   Range{0xac00, 0xd7a3},
    Range{0xf900, 0xfaff},   Range{0xfe30, 0xfe6f},   Range{0xff00, 0xff60},
    Range{0xffe0, 0xffe6},   Range{0x1f300, 0x1f64f}, Range{0x1f900, 0x1f9ff},
    Range{0x20000, 0x3fffd},
};

qsizetype widthOf(char32_t character)
{
    const QChar::Category category = QChar::category(character);
    if (category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing)
        return 0;
    const bool isWide = std::ranges::any_of(wideRanges, [character](const Range& range) {
        return character >= range.first && character <= range.last;
    });
    return isWide ? 2 : 1;
}

QString spaces(qsizetype count)
{
    return {std::max<qsizetype>(count, 0), QLatin1Char(' ')};
}

} // namespace

qsizetype text_layout::width(const QString& text)
{
    qsizetype columns = 0;
    for (qsizetype place = 0; place < text.size(); ++place) {
        const QChar unit = text.at(place);
        if (unit.isHighSurrogate() && place + 1 < text.size() &&
            text.at(place + 1).isLowSurrogate()) {
            columns += widthOf(QChar::surrogateToUcs4(unit, text.at(place + 1)));
            ++place;
        } else {
            columns += widthOf(unit.unicode());
        }
    }
    return columns;
}

QString text_layout::padded(const QString& text, qsizetype columns)
{
    return text + spaces(columns - width(text));
}

QString text_layout::elided(const QString& text, qsizetype columns)
{
    if (width(text) <= columns)
        return text;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype taken = 0;
    qsizetype end = 0;
    for (qsizetype next = finder.toNextBoundary(); next > 0; next = finder.toNextBoundary()) {
        taken += width(text.sliced(end, next - end));
        if (taken > columns - 1)
            break;
        end = next;
    }
    return text.first(end) + QChar(u'\u2026');
}

QStringList text_layout::wrapped(const QString& text, qsizetype columns)
{
    QStringList lines;
    QString line;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    for (qsizetype begin = 0; begin < text.size();) {
        const qsizetype next = finder.toNextBoundary();
        const qsizetype end = next < 0 ? text.size() : next;
        // A percent sign belongs to its number, and the parts of a SKU to each other.
        const bool mayEnd =
            end == text.size() || (text.at(end) != u'%' && text.at(end - 1) != u'-');
        if (!mayEnd)
            continue;
        const QString piece = text.sliced(begin, end - begin);
        // Spaces at the end of a line take no room: they are not printed.
        if (!line.isEmpty() && width((line + piece).trimmed()) > columns) {
            lines.append(line.trimmed());
            line.clear();
        }
        line += piece;
        begin = end;
    }
    lines.append(line.trimmed());
    return lines;
}

QString text_layout::paragraph(const QString& text, qsizetype indent)
{
    QString result;
    for (const QString& line : wrapped(text, lineWidth - indent))
        result += spaces(indent) + line + QLatin1Char('\n');
    return result;
}

QString text_layout::rows(const QList<Row>& rows)
{
    constexpr qsizetype indent = 2;
    constexpr qsizetype rightBegin = 25;
    QString result;
    for (const Row& row : rows) {
        QString left = spaces(indent) + row.left;
        if (width(left) >= rightBegin) {
            result += left + QLatin1Char('\n');
            left.clear();
        }
        for (const QString& line : wrapped(row.right, lineWidth - rightBegin)) {
            result += padded(left, rightBegin) + line + QLatin1Char('\n');
            left.clear();
        }
    }
    return result;
}
