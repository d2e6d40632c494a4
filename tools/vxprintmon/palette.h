// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>
#include <QtGui/QRgb>

/// The colours that a terminal can show.
namespace palette {

enum class Depth
{
    Colours16,
    Colours256,
    AllColours,
};

/// The depth that a terminal announces by the environment variables COLORTERM and TERM.
Depth depthOf(const QByteArray& colorTerm, const QByteArray& term);

/// The parameters of the escape sequence (SGR) that makes the background that colour, or the
/// nearest one that the terminal has.
QString background(QRgb colour, Depth depth);

} // namespace palette
