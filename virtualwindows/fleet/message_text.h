// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Text from files and from the environment, made safe for messages of one line.
//
// The tools have a function like escaped() for their own output. The two cannot share it: the tools
// are also built for Windows, where there is no virtual Windows, and no room is below both.
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace virtualwindows {

/// The text with JSON escapes in place of every character that could break the line or control the
/// terminal: control and format characters, unpaired surrogates, line and paragraph separators.
QString escaped(const QString& text);

/// The beginning of the text, long enough for a message to identify it.
QString shortened(const QString& text, qsizetype maxLength = 80);

/// The first few of the texts, each shortened, and the number of the others.
QString listed(const QStringList& texts);

} // namespace virtualwindows
