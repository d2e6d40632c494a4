// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "catalogue_list.h"

#include "database_reader.h"
#include "json_text.h"
#include "shown_text.h"
#include "text_layout.h"
#include "tool_text.h"

#include <algorithm>

namespace {

struct Row
{
    QString sku;
    QString numbers;
    QString name;
};

/// Numbers on lines of at most `columns`. The rules for breaking lines of text keep them together.
QStringList numberLines(const QString& numbers, qsizetype columns)
{
    QStringList lines{QString()};
    for (const QString& number : numbers.split(u' ')) {
        QString& line = lines.last();
        if (line.isEmpty())
            line = number;
        else if (text_layout::width(line) + 1 + number.size() <= columns)
            line += u' ' + number;
        else
            lines.append(number);
    }
    return lines;
}

/// The rows below a heading, which is the first of them. Long numbers and names go on below.
QString table(const QList<Row>& rows)
{
    constexpr qsizetype gap = 2;
    constexpr qsizetype widestNumbers = 20;
    qsizetype skuWidth = 0;
    qsizetype numbersWidth = 0;
    for (const Row& row : rows) {
        skuWidth = std::max(skuWidth, text_layout::width(row.sku));
        numbersWidth = std::max(numbersWidth, text_layout::width(row.numbers));
    }
    numbersWidth = std::min(numbersWidth, widestNumbers);
    const qsizetype nameWidth = text_layout::lineWidth - skuWidth - numbersWidth - 2 * gap;

    QString text;
    for (const Row& row : rows) {
        const QStringList numbers = numberLines(row.numbers, numbersWidth);
        const QStringList names = text_layout::wrapped(shown(row.name), nameWidth);
        for (qsizetype line = 0; line < std::max(numbers.size(), names.size()); ++line) {
            const QString sku = line == 0 ? row.sku : QString();
            QString shownLine = text_layout::padded(sku, skuWidth + gap) +
                                text_layout::padded(numbers.value(line), numbersWidth + gap) +
                                names.value(line);
            while (shownLine.endsWith(u' '))
                shownLine.chop(1);
            text += shownLine + u'\n';
        }
    }
    return text;
}

} // namespace

QString catalogueList(const QString& path, const ReportStyle& style)
{
    const Catalogue catalogue = readDatabase(path);
    if (style.isJson) {
        QStringList objects;
        for (const Catalogue::Supply& supply : catalogue.supplies)
            objects.append(supplyJson(catalogue, supply, style.language, false));
        for (const Catalogue::Ribbon& ribbon : catalogue.ribbons)
            objects.append(ribbonJson(catalogue, ribbon, style.language, false));
        return json_text::lines(objects);
    }
    QList<Row> supplies{{ToolText::tr("SUPPLY"), ToolText::tr("KINDS"), ToolText::tr("NAME")}};
    for (const Catalogue::Supply& supply : catalogue.supplies)
        supplies.append(
            {supply.sku, joined(supply.kinds), description(catalogue, supply, style.language)});
    QList<Row> ribbons{{ToolText::tr("RIBBON"), ToolText::tr("NUMBERS"), ToolText::tr("NAME")}};
    for (const Catalogue::Ribbon& ribbon : catalogue.ribbons)
        ribbons.append(
            {ribbon.sku, joined(ribbon.numbers), description(catalogue, ribbon, style.language)});
    return table(supplies) + u'\n' + table(ribbons);
}
