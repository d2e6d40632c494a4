// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <optional>

/// The first character of a text that a name may not have, because it cannot be seen or changes how
/// others are shown: controls, formats, line and paragraph separators, lone surrogates and
/// noncharacters.
///
/// The joiners U+200C and U+200D and the soft hyphen are formats too. No language that names are
/// had in is written with them, and with one in it a name is another name that looks the same.
std::optional<char32_t> invisibleCharacter(const QString& text);
