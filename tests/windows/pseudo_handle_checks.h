// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

/// Waits for several objects that refuse pseudo handles, as those of Windows do, where the system's
/// let them through. False when the library that is named imports no such wait.
bool refusePseudoHandles(const wchar_t* library);

/// How often the library has begun to wait for several objects since refusePseudoHandles().
int waitsBegun();
