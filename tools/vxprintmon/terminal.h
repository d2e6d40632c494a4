// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

/// What standard output is; each system has its own source file.
namespace terminal {

/// Whether it is a terminal that understands colours; where it has to be told so first, it is.
bool takesColours();
/// Lets it show UTF-8 while the program runs, if it is a terminal that has to be told so.
void useUtf8();

} // namespace terminal
