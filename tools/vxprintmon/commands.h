// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "command_line.h"
#include "output.h"
#include "scene.h"

/// Each runs one verb and returns why it failed, in one line; an empty text when it did not.
QString runList(const CommandLine& line, Output& output, Scene& scene);
QString runWatch(const CommandLine& line, Output& output, Scene& scene);
QString runStatus(const CommandLine& line, Output& output, Scene& scene);
QString runSend(const CommandLine& line, Output& output, Scene& scene);
QString runTitle(const CommandLine& line, Output& output, Scene& scene);
