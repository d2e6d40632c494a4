// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <optional>

/// Text from elsewhere (names of printers and files, messages of drivers and other processes) for a
/// terminal: on one line, and unable to move the cursor, change colours or turn the writing
/// direction.
///
/// Control and format characters, line and paragraph separators, noncharacters and unpaired
/// surrogates are written as JSON escapes ("\u001b", "\u202e"), so JSON that was passed through
/// this function is still the same JSON. An escape is left alone when the text is passed through a
/// second time.
QString shown(const QString& text);

/// The same for a message, which may quote text of any length: if it is longer than
/// `messageLength` characters, its middle is left out.
QString shownAsMessage(const QString& text);
inline constexpr qsizetype messageLength = 1000;

/// The first character of a text that `shown` would escape. Names that other people read must have
/// none: the joiners U+200C and U+200D and the soft hyphen are among them, which none of the
/// languages of names needs and which would make two different names look the same.
std::optional<char32_t> invisibleCharacter(const QString& text);
