// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// Text in the columns of a terminal, where Chinese, Japanese and Korean characters take two
/// columns and combining marks none.
namespace text_layout {

/// The columns of a line of the tools' output.
inline constexpr qsizetype lineWidth = 80;

/// The columns that a text on one line takes.
qsizetype width(const QString& text);

/// The text followed by spaces, so that it takes at least `columns`.
QString padded(const QString& text, qsizetype columns);

/// The text if it takes at most `columns`. Otherwise as much of its beginning as fits in front of
/// an ellipsis, which takes the last column.
QString elided(const QString& text, qsizetype columns);

/// The text on lines of at most `columns`, broken where the rules of its language allow it. What
/// cannot be broken stays on one line.
QStringList wrapped(const QString& text, qsizetype columns);

/// The text on lines of at most `lineWidth` columns, each after `indent` spaces and with a line
/// feed.
QString paragraph(const QString& text, qsizetype indent = 0);

struct Row
{
    QString left;
    QString right;
};
/// The rows of a list in a tool's help: `left`, and beside it `right`, wrapped. A `left` that is
/// too wide has a line of its own.
QString rows(const QList<Row>& rows);

} // namespace text_layout
