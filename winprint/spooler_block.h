// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <cstdlib>
#include <cstring>
#include <utility>

#include <windows.h>

/// A block that the spooler fills. It is allocated with malloc and zeroed, because a caller of the
/// library may have to release it with free. `SpoolerRecord` reads into it.
class SpoolerBlock
{
public:
    SpoolerBlock() = default;
    explicit SpoolerBlock(DWORD bytes)
        : m_data(std::malloc(bytes))
        , m_bytes(bytes)
    {
        if (m_data)
            std::memset(m_data, 0, bytes);
    }
    ~SpoolerBlock() { std::free(m_data); }

    SpoolerBlock(SpoolerBlock&& other) noexcept
        : m_data(std::exchange(other.m_data, nullptr))
        , m_bytes(std::exchange(other.m_bytes, 0))
    {}
    SpoolerBlock& operator=(SpoolerBlock&& other) noexcept
    {
        std::swap(m_data, other.m_data);
        std::swap(m_bytes, other.m_bytes);
        return *this;
    }
    SpoolerBlock(const SpoolerBlock&) = delete;
    SpoolerBlock& operator=(const SpoolerBlock&) = delete;

    bool isNull() const { return !m_data; }
    DWORD size() const { return m_bytes; }
    BYTE* bytes() const { return static_cast<BYTE*>(m_data); }

    template <typename Record>
    Record* as() const
    {
        return static_cast<Record*>(m_data);
    }

    /// Passes the ownership of the block to the caller, who releases it with free.
    template <typename Record>
    Record* release()
    {
        m_bytes = 0;
        return static_cast<Record*>(std::exchange(m_data, nullptr));
    }

private:
    void* m_data = nullptr;
    DWORD m_bytes = 0;
};
