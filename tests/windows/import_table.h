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

/// Gives a library that is loaded, and stays as it ships, functions of ours for those that it
/// imports from a DLL. False when it does not import all of them.
bool replaceImports(const wchar_t* library, const char* dll,
                    std::initializer_list<Replacement> replacements);
