// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <cstdio>

/// The differences between systems in writing to standard output. Each system has its own source
/// file.
namespace system_output {

/// Prepares the process for writing.
///
/// A write to a pipe that its reader has closed fails from now on; by default it would end the
/// program, which would leave its files and endpoints behind. If the program was started with a
/// closed standard stream, files that it opens later do not take that stream's place. A console
/// shows UTF-8 as it is, and gets its own setting back when the process ends.
void prepare();

/// Writes and flushes a text, as UTF-8 unless a console takes it as it is. False if that fails; the
/// reason is in `errno`.
bool write(std::FILE* stream, const QString& text);

/// Whether the write that has just failed did so because the reader had closed the pipe.
bool failedAtClosedPipe();

/// Whether `stream` is a pipe whose reader has closed it. Always false on systems that report this
/// only to a write.
bool isPipeClosed(std::FILE* stream);

} // namespace system_output
