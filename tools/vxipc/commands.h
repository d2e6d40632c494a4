// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "standard_output.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <chrono>

struct Options
{
    bool isJson = false;
    std::chrono::milliseconds timeout = std::chrono::seconds(10);
};

/// Carries out a command line from which the options have been taken. Throws `Failure`.
void runCommand(const QStringList& words, const Options& options, StandardOutput& output);
