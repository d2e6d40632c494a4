// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "output.h"

#include "shown_text.h"
#include "terminal.h"
#include "text_layout.h"

#include <QtCore/QtGlobal>
#include <QtGui/QColor>

#include <algorithm>

namespace {

const char* escapeOf(Colour colour)
{
    switch (colour) {
    case Colour::None:
        return "";
    case Colour::Good:
        return "\033[32m";
    case Colour::Notice:
        return "\033[33m";
    case Colour::Bad:
        return "\033[1;31m";
    case Colour::Faint:
        return "\033[2m";
    case Colour::Heading:
        return "\033[1m";
    }
    return "";
}

bool wantsColours()
{
    return qEnvironmentVariableIsEmpty("NO_COLOR") && qgetenv("TERM") != "dumb" &&
           terminal::takesColours();
}

const QLatin1String plain("\033[0m");
const QString sampleBlock = QStringLiteral("\u2588\u2588 ");

} // namespace

Output::Output(StandardOutput& stream)
    : m_stream(stream)
    , m_hasColours(wantsColours())
{}

QString Output::sampleOf(const Cell& cell) const
{
    const QColor colour(cell.sample);
    if (!m_hasColours || !colour.isValid())
        return {};
    return QStringLiteral("\033[38;2;%1;%2;%3m")
               .arg(colour.red())
               .arg(colour.green())
               .arg(colour.blue()) +
           sampleBlock + plain;
}

qsizetype Output::widthOf(const Cell& cell) const
{
    return text_layout::width(shown(cell.text)) +
           (sampleOf(cell).isEmpty() ? 0 : sampleBlock.size());
}

QString Output::coloured(const Cell& cell, qsizetype width) const
{
    const QString padding(std::max<qsizetype>(0, width - widthOf(cell)), QLatin1Char(' '));
    const QString sample = sampleOf(cell);
    if (!m_hasColours || cell.colour == Colour::None)
        return sample + shown(cell.text) + padding;
    return sample + QLatin1String(escapeOf(cell.colour)) + shown(cell.text) + plain + padding;
}

void Output::line(const QList<Cell>& cells)
{
    QString text;
    for (const Cell& cell : cells)
        text += coloured(cell);
    this->text(text + QLatin1Char('\n'));
}

void Output::text(const QString& text)
{
    m_stream.write(text);
}

void Output::table(const QStringList& heading, const QList<QList<Cell>>& rows)
{
    QList<QList<Cell>> all;
    QList<Cell>& first = all.emplace_back();
    for (const QString& title : heading)
        first.append({title, Colour::Heading});
    all += rows;

    this->rows(all);
}

void Output::rows(const QList<QList<Cell>>& rows)
{
    QList<qsizetype> widths(rows.value(0).size(), 0);
    for (const QList<Cell>& row : rows) {
        for (qsizetype column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths.at(column), widthOf(row.at(column)));
    }
    QString text;
    for (const QList<Cell>& row : rows) {
        for (qsizetype column = 0; column < row.size(); ++column) {
            const bool isLast = column == row.size() - 1;
            text += coloured(row.at(column), isLast ? 0 : widths.at(column) + 2);
        }
        text += QLatin1Char('\n');
    }
    this->text(text);
}
