// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

class Output;
struct CommandLine;

/// `case verify FILE`: plays a case again and compares what the library makes of it now with what
/// was recorded. Prints that all is the same, or the first difference. The last argument of the
/// command line is the file. Throws `Failure` if there is a difference or the case cannot be
/// played. The build chooses the source file: only the virtual Windows can play cases.
void verifyCase(const CommandLine& line, Output& output);
