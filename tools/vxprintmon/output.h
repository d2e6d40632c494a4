// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QJsonValue>
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

/// A piece of text with its colour.
struct Cell
{
    QString text;
    Colour colour = Colour::None;
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
    /// A JSON object with its keys in this order, on one line.
    static QString jsonObject(const QList<QPair<QString, QJsonValue>>& members);

private:
    QString coloured(const Cell& cell, qsizetype width = 0) const;

    QTextStream m_stream;
    bool m_hasColours;
};
