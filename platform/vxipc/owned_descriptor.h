// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <utility>

#include <sys/stat.h>
#include <unistd.h>

/// Owns a file descriptor; negative stands for none.
class OwnedDescriptor
{
public:
    OwnedDescriptor() = default;
    explicit OwnedDescriptor(int descriptor)
        : m_descriptor(descriptor)
    {}
    ~OwnedDescriptor() { reset(); }

    OwnedDescriptor(OwnedDescriptor&& other) noexcept
        : m_descriptor(other.release())
    {}
    OwnedDescriptor& operator=(OwnedDescriptor&& other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    OwnedDescriptor(const OwnedDescriptor&) = delete;
    OwnedDescriptor& operator=(const OwnedDescriptor&) = delete;

    bool isValid() const { return m_descriptor >= 0; }
    int get() const { return m_descriptor; }
    int release() { return std::exchange(m_descriptor, -1); }
    void reset()
    {
        if (isValid())
            ::close(release());
    }

private:
    int m_descriptor = -1;
};

/// Whether two descriptions, of open files or of entries in folders, are of the same file.
inline bool isSameFile(const struct stat& one, const struct stat& other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}
