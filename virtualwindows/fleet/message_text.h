// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Other people's text in messages of one line.
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace virtualwindows {

/// The text as JSON spells it where it would break the line or steer the terminal: control
/// characters, separators of lines, and characters of direction and format.
QString escaped(const QString& text);

/// Not more of the text than a message needs to tell which one is meant.
QString shortened(const QString& text, qsizetype longest = 80);

/// The first few of the texts and how many more there are, each shortened.
QString listed(const QStringList& texts);

} // namespace virtualwindows
