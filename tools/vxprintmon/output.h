// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "standard_output.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

enum class Colour
{
    None,
    Good,
    Notice,
    Bad,
    Faint,
    Heading,
};

/// A piece of text with its colour, after a sample of another colour ("#rrggbb") if it has one. The
/// text may be anybody's: it is shown with marks for what is no printable character.
struct Cell
{
    QString text{};
    Colour colour = Colour::None;
    QString sample{};
};

/// Standard output: lines that are there as soon as they are written, in colours on a terminal that
/// wants them.
class Output
{
public:
    explicit Output(StandardOutput& stream);

    void line(const QList<Cell>& cells);
    /// The tool's own text, or JSON, as it is.
    void text(const QString& text);
    /// Rows under a heading, each column as wide as its widest cell.
    void table(const QStringList& heading, const QList<QList<Cell>>& rows);

    /// Whether writing is of no use any more.
    bool isOver() const { return m_stream.isOver(); }

private:
    QString coloured(const Cell& cell, qsizetype width = 0) const;
    /// The sample as it is printed, if at all.
    QString sampleOf(const Cell& cell) const;
    qsizetype widthOf(const Cell& cell) const;

    StandardOutput& m_stream;
    bool m_hasColours;
};
