// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// Other people's text (names of printers and files, what a driver or another process says), for a
/// terminal: on one line, and such that it moves no cursor, changes no colour and turns no writing
/// direction.
///
/// Control characters, format characters, line and paragraph separators, noncharacters and halves
/// of a surrogate pair become marks as JSON has them: "\u001b", "\u202e". So JSON that was shown is
/// still the same JSON. A mark stays as it is when it is shown again.
QString shown(const QString& text);

/// The same for a message, which quotes what may be of any length: of more than `messageLength`
/// characters the middle is left out.
QString shownAsMessage(const QString& text);
inline constexpr qsizetype messageLength = 1000;
