// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <cstdio>

/// What differs between systems in writing to standard output; each has its own source file.
namespace system_output {

/// Lets a pipe that its reader has closed be an error of the write, which would else end the
/// program with its files and endpoints left behind. And keeps what the program opens later from
/// becoming its standard output or standard error, should it have been started without.
void prepare();

/// Whether the write that has just failed failed because its reader had closed the pipe.
bool failedAtClosedPipe();

/// Whether `stream` is a pipe that nobody can read from any more. False where the system
/// tells that only to those who write.
bool isPipeClosed(std::FILE* stream);

} // namespace system_output
