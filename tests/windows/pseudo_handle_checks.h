// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

/// Lets waits of the library for several objects refuse pseudo handles, as Windows does, on systems
/// that accept them. False when the library does not import such a wait.
bool refusePseudoHandles(const wchar_t* library);

/// How many waits for several objects the library has begun since refusePseudoHandles().
int waitsBegun();
