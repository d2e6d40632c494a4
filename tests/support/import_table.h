// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <initializer_list>

#include <windows.h>

struct Replacement
{
    const char* name;
    ULONG_PTR function;
};

/// Replaces functions that a loaded library imports from a DLL. The library's file is not changed.
/// False when the library does not import all of them.
bool replaceImports(const wchar_t* library, const char* dll,
                    std::initializer_list<Replacement> replacements);
