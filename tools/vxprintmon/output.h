// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "palette.h"
#include "standard_output.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

enum class Colour
{
    None,
    Good,
    Notice,
    Bad,
    Faint,
    Heading,
};

/// A piece of text with its colour, optionally after a sample of another colour ("#rrggbb"). The
/// text may come from elsewhere: unprintable characters in it are escaped.
struct Cell
{
    QString text{};
    Colour colour = Colour::None;
    QString sample{};
};

/// A column of a table.
struct Column
{
    enum class Width
    {
        Fixed,   ///< it only gives way when nothing else is left
        Shrinks, ///< its texts are cut short, down to `least` columns
        Wraps,   ///< its texts take up to three lines, down to `least` or their longest word; then
                 ///< it shrinks
        Vanishes ///< it is left out: what it shows is shown elsewhere too
    };
    QString heading;
    Width width = Width::Fixed;
    int rank = 0;        ///< of two columns that shrink, the one with the lower rank does so first
    qsizetype least = 0; ///< of a column that shrinks or wraps
};

/// Lines and tables on standard output, in colour if it is a terminal that shows colours and the
/// user has not turned them off. Every line is flushed.
class Output
{
public:
    explicit Output(StandardOutput& stream);

    void line(const QList<Cell>& cells);
    /// Writes cells behind `begin`, on as many lines as they need to fit the width of a terminal.
    /// A cell that fits on a line is not broken. If the output is no terminal, on one line.
    void wrappedLine(const QList<Cell>& begin, const QList<Cell>& cells);
    /// Writes text as it is: the tool's own, or JSON.
    void text(const QString& text);
    /// Writes pairs of a label and a value. Values that do not fit continue on the next line.
    void details(const QList<QList<Cell>>& rows);
    /// Writes rows under a heading, so that they fit `columns()`: what is too wide gives way in
    /// this order. Columns that may vanish do; one space between columns instead of two; the
    /// columns that wrap, the first one first; no samples of colours; the columns that shrink, in
    /// the order of their ranks; then all others, the last one first. A text that is cut short ends
    /// with an ellipsis.
    void table(const QList<Column>& columns, const QList<QList<Cell>>& rows);

    /// The width that tables fit: that of the environment variable COLUMNS, else of the terminal,
    /// else 80.
    qsizetype columns() const { return m_columns; }
    /// Whether lines should fit that width too, because a person reads them on a terminal.
    bool isTerminal() const { return m_isTerminal; }

    /// The colours that it shows; empty when it shows none.
    std::optional<palette::Depth> depth() const
    {
        return m_hasColours ? std::optional(m_depth) : std::nullopt;
    }
    /// Prints a message on standard error.
    void complain(const QString& message) const { m_stream.complain(message); }

    /// Whether further writing is pointless.
    bool isOver() const { return m_stream.isOver(); }

private:
    struct Table;

    QString coloured(const Cell& cell, bool withSample = true) const;
    bool showsSample(const Cell& cell) const;
    qsizetype widthOf(const Cell& cell, bool withSample = true) const;
    Cell cut(const Cell& cell, qsizetype width, bool withSample) const;
    void fit(Table& table) const;

    StandardOutput& m_stream;
    bool m_hasColours;
    palette::Depth m_depth;
    bool m_isTerminal;
    qsizetype m_columns;
};
