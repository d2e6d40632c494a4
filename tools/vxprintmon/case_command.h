// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

class Backend;
class Output;
struct CommandLine;

/// What can be done with a case file: `case show FILE`, `case explain FILE`, `case redact IN OUT`
/// and `case verify FILE`.
void runCase(const CommandLine& line, Output& output, Backend& backend);
/// Throws `Failure` if there is no such action, or not as many files as it takes.
void checkCase(const CommandLine& line);

/// The following take the arguments of their action alone, and throw `Failure` if a file is
/// refused.

void showCase(const CommandLine& line, Output& output);
void explainCase(const CommandLine& line, Output& output);
void redactCase(const CommandLine& line, Output& output);
