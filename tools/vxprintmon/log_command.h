// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>

#include <optional>

class Backend;
class Output;
struct CommandLine;

/// Prints a log of events that a `VxKit::EventLog` has written.
void runLog(const CommandLine& line, Output& output, Backend& backend);
/// Throws `Failure` if one of the options that choose events is wrong.
void checkLog(const CommandLine& line);

/// The time that a text means at `now`: a date ("2026-11-22"), a date and a time
/// ("2026-11-22T10:30", with or without an offset), a time of today ("10:30"), or how long ago
/// ("30m", "2h", "7d"). Empty when it is none of these.
std::optional<QDateTime> timeMeantBy(const QString& text, const QDateTime& now);
