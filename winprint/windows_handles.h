// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <utility>

#include <windows.h>
#include <winspool.h>
#include <winsvc.h>

/// Owns a handle of the kind that Traits describes; null stands for none.
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

    bool isValid() const { return m_handle != nullptr; }
    Handle get() const { return m_handle; }
    Handle release() { return std::exchange(m_handle, nullptr); }
    void close()
    {
        if (m_handle)
            Traits::close(std::exchange(m_handle, nullptr));
    }

private:
    Handle m_handle = nullptr;
};

struct PrinterHandleTraits
{
    using Handle = HANDLE;
    static void close(Handle handle) { ClosePrinter(handle); }
};

struct ServiceHandleTraits
{
    using Handle = SC_HANDLE;
    static void close(Handle handle) { CloseServiceHandle(handle); }
};

using PrinterHandle = UniqueHandle<PrinterHandleTraits>;
using ServiceHandle = UniqueHandle<ServiceHandleTraits>;

/// Opens a printer, without defaults with default access; invalid when that fails.
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
