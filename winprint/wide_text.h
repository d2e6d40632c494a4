// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <windows.h>

/// WCHAR and char16_t are both 16-bit UTF-16 units but not the same type everywhere.
inline const WCHAR* wide(const char16_t* text)
{
    return reinterpret_cast<const WCHAR*>(text);
}

inline QString fromWide(const WCHAR* text)
{
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(text));
}
