// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// What a text consists of. The rules are those of ASCII, whatever the language.
namespace VxKit::plain_text {

/// From `least` to `most` decimal digits.
bool isDigits(const QString& text, qsizetype least, qsizetype most);
/// The same for hexadecimal digits.
bool isHex(const QString& text, qsizetype least, qsizetype most);
/// The same for the letters A to Z.
bool isCapitals(const QString& text, qsizetype least, qsizetype most);

/// One to three numbers with dots between them. Four could be an address.
bool isVersionNumber(const QString& text);
/// Version numbers as firmware has them, with commas between them: "4.2.0,boot 1.7".
bool isFirmwareVersion(const QString& text);

} // namespace VxKit::plain_text
