// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <utility>

#include <windows.h>
#include <winspool.h>

namespace VxKit {

/// Owns a handle of a printer.
class PrinterHandle
{
public:
    PrinterHandle() = default;
    ~PrinterHandle()
    {
        if (m_handle)
            ClosePrinter(m_handle);
    }
    PrinterHandle(PrinterHandle&& other) noexcept
        : m_handle(std::exchange(other.m_handle, nullptr))
    {}
    PrinterHandle& operator=(PrinterHandle&& other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }
    PrinterHandle(const PrinterHandle&) = delete;
    PrinterHandle& operator=(const PrinterHandle&) = delete;

    /// Opens a printer with the right to use it; invalid when that fails.
    static PrinterHandle open(QString name)
    {
        PrinterHandle printer;
        // OpenPrinterW does not write to the name, though the parameter's type allows it.
        if (!OpenPrinterW(reinterpret_cast<LPWSTR>(name.data()), &printer.m_handle, nullptr))
            printer.m_handle = nullptr;
        return printer;
    }

    bool isValid() const { return m_handle != nullptr; }
    HANDLE get() const { return m_handle; }

private:
    HANDLE m_handle = nullptr;
};

} // namespace VxKit
