// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

/// The terminal that standard output may be. Each system has its own source file.
namespace terminal {

/// Whether standard output is a terminal that shows colours. Turns them on where that is needed.
bool takesColours();
/// Whether every terminal of this system shows all colours, so that none has to announce it.
bool alwaysShowsAllColours();
/// The columns of the terminal; 0 when standard output is none, or they are not known.
int columns();

} // namespace terminal
