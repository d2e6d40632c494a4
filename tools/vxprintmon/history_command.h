// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>
#include <QtCore/QtGlobal>

#include <memory>

class Backend;
class Output;
struct CommandLine;

namespace VxKit {
class PrinterReadings;
class UsageHistory;
} // namespace VxKit

/// The file of the history that a command reads or writes.
QString historyFile(const CommandLine& line);

/// Prints what was used, from a file that a `VxKit::UsageHistory` has written.
void runHistory(const CommandLine& line, Output& output, Backend& backend);
/// Throws `Failure` if its options do not go together.
void checkHistory(const CommandLine& line);

/// The history that watch writes, if one was asked for.
class WatchHistory
{
public:
    /// Throws `Failure` when the file cannot be written.
    WatchHistory(const CommandLine& line, Output& output, VxKit::PrinterReadings* readings);
    ~WatchHistory();
    Q_DISABLE_COPY_MOVE(WatchHistory)

    /// Throws `Failure` when changes could not be written.
    void finish();

private:
    std::unique_ptr<VxKit::UsageHistory> m_history;
};
