// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

/// The terminal that standard output may be. Each system has its own source file.
namespace terminal {

/// Whether standard output is a terminal that shows colours. Turns them on where that is needed.
bool takesColours();
/// Switches the terminal to UTF-8 while the program runs, where that is needed.

} // namespace terminal
