// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Owners of Windows handles, and texts as Windows has them.
#pragma once

#include <QtCore/QString>

#include <memory>

#include <windows.h>
#include <winspool.h>

namespace VxKit {

struct PrinterCloser
{
    void operator()(HANDLE handle) const { ClosePrinter(handle); }
};
struct NotificationCloser
{
    void operator()(HANDLE handle) const { FindClosePrinterChangeNotification(handle); }
};
struct EventCloser
{
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
struct NotifyInfoReleaser
{
    void operator()(PRINTER_NOTIFY_INFO* info) const { FreePrinterNotifyInfo(info); }
};

/// Null when there is no handle.
using PrinterOwner = std::unique_ptr<void, PrinterCloser>;
using NotificationOwner = std::unique_ptr<void, NotificationCloser>;
using EventOwner = std::unique_ptr<void, EventCloser>;
using NotifyInfoOwner = std::unique_ptr<PRINTER_NOTIFY_INFO, NotifyInfoReleaser>;

/// The spooler's calls declare texts as writable, though they do not write to them.
inline LPWSTR wideText(const QString& text)
{
    return reinterpret_cast<LPWSTR>(
        const_cast<char16_t*>(reinterpret_cast<const char16_t*>(text.utf16())));
}

/// Empty for a null pointer.
inline QString textFrom(LPCWSTR text)
{
    return text ? QString::fromUtf16(reinterpret_cast<const char16_t*>(text)) : QString();
}

/// Null when the printer cannot be opened with that access (0: what is needed to print); the last
/// error then says why.
inline PrinterOwner openPrinter(const QString& name, DWORD access = 0)
{
    PRINTER_DEFAULTSW defaults{};
    defaults.DesiredAccess = access;
    HANDLE handle = nullptr;
    return PrinterOwner(
        OpenPrinterW(wideText(name), &handle, access ? &defaults : nullptr) ? handle : nullptr);
}

/// Null when no notification can be registered; the last error then says why.
inline NotificationOwner watchChanges(const PrinterOwner& printer, DWORD changes,
                                      PRINTER_NOTIFY_OPTIONS* details = nullptr)
{
    const HANDLE handle = FindFirstPrinterChangeNotification(printer.get(), changes, 0, details);
    return NotificationOwner(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

} // namespace VxKit
