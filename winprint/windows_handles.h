// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <utility>

#include <windows.h>
#include <winspool.h>
#include <winsvc.h>

/// Owns a handle of the kind that Traits describes: its type, its invalid value and how it is
/// closed.
template <typename Traits>
class UniqueHandle
{
public:
    using Handle = typename Traits::Handle;

    UniqueHandle() = default;
    explicit UniqueHandle(Handle handle)
        : m_handle(handle)
    {}
    ~UniqueHandle() { close(); }

    UniqueHandle(UniqueHandle&& other) noexcept
        : m_handle(other.release())
    {}
    UniqueHandle& operator=(UniqueHandle&& other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }
    UniqueHandle(const UniqueHandle&) = delete;
    UniqueHandle& operator=(const UniqueHandle&) = delete;

    bool isValid() const { return m_handle != Traits::invalid(); }
    Handle get() const { return m_handle; }
    /// The variable that holds the handle, for functions that open or close it through a pointer.
    Handle* address() { return &m_handle; }
    Handle release() { return std::exchange(m_handle, Traits::invalid()); }
    void close()
    {
        if (isValid())
            Traits::close(release());
    }

private:
    Handle m_handle = Traits::invalid();
};

/// For the functions that return or store null when they fail.
template <typename HandleType>
struct InvalidIsNull
{
    using Handle = HandleType;
    static Handle invalid() { return nullptr; }
};

/// For the functions that return INVALID_HANDLE_VALUE when they fail.
struct InvalidIsMinusOne
{
    using Handle = HANDLE;
    static Handle invalid() { return INVALID_HANDLE_VALUE; }
};

struct PrinterHandleTraits : InvalidIsNull<HANDLE>
{
    static void close(Handle handle) { ClosePrinter(handle); }
};

struct ChangeNotificationHandleTraits : InvalidIsMinusOne
{
    static void close(Handle handle) { FindClosePrinterChangeNotification(handle); }
};

/// A printer that is watched: its handle has the same invalid value as its change notification's.
struct WatchedPrinterHandleTraits : InvalidIsMinusOne
{
    static void close(Handle handle) { ClosePrinter(handle); }
};

struct ServiceHandleTraits : InvalidIsNull<SC_HANDLE>
{
    static void close(Handle handle) { CloseServiceHandle(handle); }
};

struct EventHandleTraits : InvalidIsNull<HANDLE>
{
    static void close(Handle handle) { CloseHandle(handle); }
};

using PrinterHandle = UniqueHandle<PrinterHandleTraits>;
using WatchedPrinterHandle = UniqueHandle<WatchedPrinterHandleTraits>;
using ChangeNotificationHandle = UniqueHandle<ChangeNotificationHandleTraits>;
using ServiceHandle = UniqueHandle<ServiceHandleTraits>;
using EventHandle = UniqueHandle<EventHandleTraits>;

/// Opens a printer, with default access when `defaults` is null; invalid when that fails.
inline PrinterHandle openPrinter(const QString& name, PRINTER_DEFAULTSA* defaults = nullptr)
{
    HANDLE handle = nullptr;
    if (!OpenPrinterA(name.toLocal8Bit().data(), &handle, defaults))
        return {};
    return PrinterHandle(handle);
}

/// Opens a printer with the right to administer it; invalid when that fails.
inline PrinterHandle openPrinterForAdministration(const QString& name)
{
    PRINTER_DEFAULTSA defaults{};
    defaults.DesiredAccess = PRINTER_ALL_ACCESS;
    return openPrinter(name, &defaults);
}
