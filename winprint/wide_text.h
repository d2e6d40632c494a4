// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <windows.h>

/// Text as Windows takes it. WCHAR and char16_t are both UTF-16 units, but on some systems they are
/// different types.
inline const WCHAR* wide(const char16_t* text)
{
    return reinterpret_cast<const WCHAR*>(text);
}

inline QString fromWide(const WCHAR* text)
{
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(text));
}
