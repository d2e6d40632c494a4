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

/// A piece of text with its colour, optionally after a sample of another colour ("#rrggbb"). The
/// text may come from elsewhere: unprintable characters in it are escaped.
struct Cell
{
    QString text{};
    Colour colour = Colour::None;
    QString sample{};
};

/// Lines and tables on standard output, in colour if it is a terminal that shows colours and the
/// user has not turned them off. Every line is flushed.
class Output
{
public:
    explicit Output(StandardOutput& stream);

    void line(const QList<Cell>& cells);
    /// Writes text as it is: the tool's own, or JSON.
    void text(const QString& text);
    /// Writes rows of equally many cells. Each column is as wide as its widest cell.
    void rows(const QList<QList<Cell>>& rows);
    /// Writes rows under a heading.
    void table(const QStringList& heading, const QList<QList<Cell>>& rows);

    /// Whether further writing is pointless.
    bool isOver() const { return m_stream.isOver(); }

private:
    QString coloured(const Cell& cell, qsizetype width = 0) const;
    /// The sample as it is printed; empty if it is not.
    QString sampleOf(const Cell& cell) const;
    qsizetype widthOf(const Cell& cell) const;

    StandardOutput& m_stream;
    bool m_hasColours;
};
