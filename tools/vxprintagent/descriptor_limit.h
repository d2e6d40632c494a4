// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

/// How many connections this process may keep open, at most `wanted`, so that enough is left for
/// its files. Where the system allows a process to raise its limit, it is raised for them. Each
/// kind of system has its own source file.
int connectionsAllowed(int wanted);
