// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <optional>

/// The first character of a text that is not allowed in a name, because it is invisible or changes
/// how others are shown: control and format characters, line and paragraph separators, lone
/// surrogates and noncharacters.
///
/// The joiners U+200C and U+200D and the soft hyphen are format characters too. None of the
/// languages of the names needs them, and they would make two different names look the same.
std::optional<char32_t> invisibleCharacter(const QString& text);
