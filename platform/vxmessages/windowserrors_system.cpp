// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The descriptions from Windows itself.
#include "windowserrors.h"

#include <windows.h>

namespace {

QString systemText(unsigned long code)
{
    wchar_t* text = nullptr;
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
        nullptr, code, 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    const QString copy = QString::fromWCharArray(text, static_cast<qsizetype>(length));
    LocalFree(text);
    // Windows ends its texts with a line break, and wraps long ones.
    return copy.simplified();
}

} // namespace

QString windows_errors::winError(unsigned long code)
{
    const QString text = systemText(code);
    return text.isEmpty() ? QStringLiteral("Windows error %1").arg(code) : text;
}
