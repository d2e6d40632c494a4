// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTextStream>

enum class Colour
{
    None,
    Good,
    Notice,
    Bad,
    Faint,
    Heading,
};

/// A piece of text with its colour, after a sample of another colour ("#rrggbb") if it has one.
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
    Output();

    void line(const QList<Cell>& cells);
    void text(const QString& text);
    /// Rows under a heading, each column as wide as its widest cell.
    void table(const QStringList& heading, const QList<QList<Cell>>& rows);

private:
    QString coloured(const Cell& cell, qsizetype width = 0) const;
    /// The sample as it is printed, if at all.
    QString sampleOf(const Cell& cell) const;
    qsizetype widthOf(const Cell& cell) const;

    QTextStream m_stream;
    bool m_hasColours;
};
