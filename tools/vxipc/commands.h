// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "standard_output.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <chrono>

/// What the tool ends with.
enum ExitStatus : int
{
    Done = 0,
    Failed = 1,
    WrongUsage = 2,
};

struct Options
{
    bool isJson = false;
    std::chrono::milliseconds timeout = std::chrono::seconds(10);
};

/// Carries out a command line without its options, and answers the exit status.
int runCommand(const QStringList& words, const Options& options);

/// What the tool writes with.
StandardOutput& output();

/// Prints `complaint` as the tool's own.
int complain(ExitStatus status, const QString& complaint);
