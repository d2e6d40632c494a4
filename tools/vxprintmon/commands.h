// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "command_line.h"
#include "output.h"
#include "scene.h"

/// Each runs one verb and returns the exit status.
int runList(const CommandLine& line, Output& output);
int runWatch(const CommandLine& line, Output& output, Scene& scene);
