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

palette::Depth terminalDepth()
{
    if (terminal::alwaysShowsAllColours())
        return palette::Depth::AllColours;
    return palette::depthOf(qgetenv("COLORTERM"), qgetenv("TERM"));
}

/// The columns that the user asks for, or 0. Narrower or wider terminals do not exist.
qsizetype columnsOfEnvironment()
{
    constexpr int least = 20;
    constexpr int most = 10000;
    const int columns = qEnvironmentVariableIntValue("COLUMNS");
    return columns >= least && columns <= most ? columns : 0;
}

const QLatin1String plain("\033[0m");
/// Half blocks in the colour of the text stand on both sides of a sample, so that black shows on
/// black and white on white. A space follows.
constexpr qsizetype sampleWidth = 3;
constexpr qsizetype widestGap = 2;
constexpr qsizetype narrowestGap = 1;
/// No column becomes narrower: a character, an ellipsis, and one to tell columns apart.
constexpr qsizetype narrowest = 3;

QString spaces(qsizetype count)
{
    return {std::max<qsizetype>(count, 0), QLatin1Char(' ')};
}

} // namespace

struct Output::Table
{
    const QList<Column>& columns;
    QList<QList<Cell>> rows; ///< the headings first
    QList<bool> vanished;
    QList<qsizetype> widths;
    QList<bool> wraps; ///< whether texts that do not fit the width take more lines
    qsizetype gap = widestGap;
    bool hasSamples = true;

    qsizetype width() const
    {
        qsizetype sum = 0;
        for (qsizetype i = 0; i < widths.size(); ++i)
            sum += vanished.at(i) ? 0 : widths.at(i) + gap;
        return sum - gap;
    }
    /// The width below which a text of the column is cut short, however many lines it takes.
    qsizetype longestWord(qsizetype column) const
    {
        qsizetype longest = 0;
        for (const QList<Cell>& row : rows) {
            const QStringList words = text_layout::wrapped(shown(row.at(column).text), 1);
            for (const QString& word : words)
                longest = std::max(longest, text_layout::width(word));
        }
        return longest;
    }
    /// A row as the rows that it takes on the screen.
    QList<QList<Cell>> lines(const QList<Cell>& row) const
    {
        constexpr qsizetype mostLines = 3;
        QList<QList<Cell>> all{row};
        for (qsizetype i = 0; i < columns.size(); ++i) {
            const QString text = shown(row.at(i).text);
            if (!wraps.at(i) || text_layout::width(text) <= widths.at(i))
                continue;
            QStringList parts = text_layout::wrapped(text, widths.at(i));
            if (parts.size() > mostLines)
                parts = parts.first(mostLines - 1)
                        << parts.sliced(mostLines - 1).join(QLatin1Char(' '));
            for (qsizetype line = 0; line < parts.size(); ++line) {
                if (line == all.size())
                    all.append(QList<Cell>(columns.size()));
                all[line][i] = {parts.at(line), row.at(i).colour};
            }
        }
        return all;
    }
};

Output::Output(StandardOutput& stream)
    : m_stream(stream)
    , m_hasColours(wantsColours())
    , m_depth(terminalDepth())
    , m_isTerminal(terminal::columns() > 0 || columnsOfEnvironment() > 0)
    , m_columns(columnsOfEnvironment())
{
    if (m_columns == 0)
        m_columns = terminal::columns();
    if (m_columns == 0)
        m_columns = text_layout::lineWidth;
}

bool Output::showsSample(const Cell& cell) const
{
    return m_hasColours && QColor(cell.sample).isValid();
}

qsizetype Output::widthOf(const Cell& cell, bool withSample) const
{
    return text_layout::width(shown(cell.text)) +
           (withSample && showsSample(cell) ? sampleWidth : 0);
}

QString Output::coloured(const Cell& cell, bool withSample) const
{
    QString text;
    if (withSample && showsSample(cell))
        text = QStringLiteral("\033[%1m\u258c\u2590")
                   .arg(palette::background(QColor(cell.sample).rgb(), m_depth)) +
               plain + QLatin1Char(' ');
    if (!m_hasColours || cell.colour == Colour::None)
        return text + shown(cell.text);
    return text + QLatin1String(escapeOf(cell.colour)) + shown(cell.text) + plain;
}

Cell Output::cut(const Cell& cell, qsizetype width, bool withSample) const
{
    const qsizetype sample = withSample && showsSample(cell) ? sampleWidth : 0;
    return {text_layout::elided(shown(cell.text), width - sample), cell.colour, cell.sample};
}

void Output::line(const QList<Cell>& cells)
{
    QString text;
    for (const Cell& cell : cells)
        text += coloured(cell);
    this->text(text + QLatin1Char('\n'));
}

void Output::wrappedLine(const QList<Cell>& begin, const QList<Cell>& cells)
{
    if (!m_isTerminal) {
        line(begin + cells);
        return;
    }
    QString text;
    qsizetype indent = 0;
    for (const Cell& cell : begin) {
        text += coloured(cell);
        indent += widthOf(cell);
    }
    const qsizetype room = std::max<qsizetype>(m_columns - indent, narrowest);
    qsizetype used = 0;
    const auto add = [&](Cell cell) {
        if (used > 0 && used + widthOf(cell) > room) {
            text += QLatin1Char('\n') + spaces(indent);
            used = 0;
        }
        if (used == 0)
            cell.text = cell.text.trimmed();
        text += coloured(cell);
        used += widthOf(cell);
    };
    for (const Cell& cell : cells) {
        if (widthOf(cell) <= room) {
            add(cell);
            continue;
        }
        const QStringList pieces = text_layout::wrapped(shown(cell.text), room - sampleWidth);
        const QString space = QStringLiteral(" ");
        for (const QString& piece : pieces) {
            if (&piece != &pieces.first())
                add({space + piece, cell.colour});
            else
                add({(cell.text.startsWith(space) ? space : QString()) + piece, cell.colour,
                     cell.sample});
        }
    }
    this->text(text + QLatin1Char('\n'));
}

void Output::text(const QString& text)
{
    m_stream.write(text);
}

void Output::details(const QList<QList<Cell>>& rows)
{
    qsizetype labelWidth = 0;
    for (const QList<Cell>& row : rows)
        labelWidth = std::max(labelWidth, widthOf(row.first()));
    QString text;
    for (const QList<Cell>& row : rows) {
        const Cell& label = row.first();
        const qsizetype indent = labelWidth + widestGap;
        text += coloured(label) + spaces(indent - widthOf(label));
        const Cell& value = row.last();
        const qsizetype sample = showsSample(value) ? sampleWidth : 0;
        const QStringList lines = text_layout::wrapped(
            shown(value.text), std::max(m_columns - indent - sample, narrowest));
        for (const QString& each : lines) {
            if (&each != &lines.first())
                text += spaces(indent + sample);
            text += coloured({each, value.colour, value.sample}, &each == &lines.first());
            text += QLatin1Char('\n');
        }
    }
    this->text(text);
}

void Output::fit(Table& table) const
{
    const auto measure = [&] {
        table.widths = QList<qsizetype>(table.columns.size(), 0);
        for (const QList<Cell>& row : std::as_const(table.rows)) {
            for (qsizetype i = 0; i < row.size(); ++i)
                table.widths[i] =
                    std::max(table.widths.at(i), widthOf(row.at(i), table.hasSamples));
        }
    };
    measure();
    for (qsizetype i = 0; i < table.columns.size() && table.width() > m_columns; ++i)
        table.vanished[i] = table.columns.at(i).width == Column::Width::Vanishes;
    if (table.width() > m_columns)
        table.gap = narrowestGap;

    const auto shrink = [&](qsizetype column, qsizetype least) {
        qsizetype& width = table.widths[column];
        width -= std::clamp<qsizetype>(table.width() - m_columns, 0,
                                       std::max<qsizetype>(width - least, 0));
    };
    QList<qsizetype> longestWords(table.columns.size(), 0);
    for (qsizetype i = 0; i < table.columns.size() && table.width() > m_columns; ++i) {
        if (table.columns.at(i).width == Column::Width::Wraps)
            longestWords[i] = table.longestWord(i);
    }
    const auto wrap = [&] {
        for (qsizetype i = 0; i < table.columns.size(); ++i) {
            if (table.columns.at(i).width == Column::Width::Wraps)
                shrink(i, std::max(table.columns.at(i).least, longestWords.at(i)));
        }
    };
    wrap();
    if (table.width() > m_columns && m_hasColours) {
        table.hasSamples = false;
        measure();
        wrap();
    }
    QList<qsizetype> order;
    for (qsizetype i = 0; i < table.columns.size(); ++i) {
        const Column::Width width = table.columns.at(i).width;
        if (width == Column::Width::Shrinks || width == Column::Width::Wraps)
            order.append(i);
    }
    std::ranges::stable_sort(order, {}, [&](qsizetype i) { return table.columns.at(i).rank; });
    for (const qsizetype column : std::as_const(order))
        shrink(column, table.columns.at(column).least);
    for (qsizetype column = table.columns.size() - 1; column >= 0; --column) {
        if (!table.vanished.at(column))
            shrink(column, narrowest);
    }
    // Words that are cut short tell more on one line than on several.
    for (qsizetype i = 0; i < table.columns.size(); ++i)
        table.wraps[i] = table.columns.at(i).width == Column::Width::Wraps &&
                         table.widths.at(i) >= longestWords.at(i);
}

void Output::table(const QList<Column>& columns, const QList<QList<Cell>>& rows)
{
    QList<Cell> headings;
    for (const Column& column : columns)
        headings.append({column.heading, Colour::Heading});
    Table table{.columns = columns,
                .rows = QList<QList<Cell>>{headings} + rows,
                .vanished = QList<bool>(columns.size(), false),
                .widths = {},
                .wraps = QList<bool>(columns.size(), false)};
    fit(table);

    const qsizetype last = table.vanished.lastIndexOf(false);
    QString text;
    const auto add = [&](const QList<Cell>& row) {
        qsizetype owed = 0; // spaces, which are not written at the end of a line
        for (qsizetype i = 0; i <= last; ++i) {
            if (table.vanished.at(i))
                continue;
            const qsizetype width = table.widths.at(i);
            const Cell cell = cut(row.at(i), width, table.hasSamples);
            if (!cell.text.isEmpty())
                text += spaces(std::exchange(owed, 0)) + coloured(cell, table.hasSamples);
            owed += width - widthOf(cell, table.hasSamples) + table.gap;
        }
        text += QLatin1Char('\n');
    };
    for (const QList<Cell>& row : std::as_const(table.rows)) {
        const QList<QList<Cell>> lines = table.lines(row);
        for (const QList<Cell>& line : lines)
            add(line);
    }
    this->text(text);
}
