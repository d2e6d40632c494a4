// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "standard_output.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <chrono>
#include <optional>

struct Options
{
    bool isJson = false;
    std::chrono::milliseconds timeout = std::chrono::seconds(10);
    /// How long to watch; without end if not set.
    std::optional<std::chrono::milliseconds> watchTime;
};

/// Carries out a command line from which the options have been taken. Throws `Failure`.
void runCommand(const QStringList& words, const Options& options, StandardOutput& output);
