// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>
#include <QtCore/QtGlobal>

#include <cstdint>
#include <utility>

namespace VxKit {

/// A file of lines to which several processes append. While it is open, it can be renamed and
/// deleted. Each system has its own source file.
class LogFile
{
public:
    /// Opens a file at whose end `append` writes. It is created when it is missing.
    static LogFile forAppending(const QString& path);
    static LogFile forReading(const QString& path);

    LogFile() = default;
    ~LogFile() { close(); }
    LogFile(LogFile&& other) noexcept { swap(other); }
    LogFile& operator=(LogFile&& other) noexcept
    {
        LogFile(std::move(other)).swap(*this);
        return *this;
    }
    Q_DISABLE_COPY(LogFile)

    bool isOpen() const { return m_handle != none; }
    /// Whether it could not be opened because there is no such file.
    bool isMissing() const { return m_isMissing; }
    /// Why it could not be opened, or why the last operation failed.
    QString error() const { return m_error; }

    /// Negative when it cannot be found out.
    qint64 size() const;
    /// How many bytes have been read: 0 at the end, negative after a failure.
    qint64 readAt(qint64 offset, char* buffer, qint64 capacity);
    /// How many bytes have been written. Fewer than there are after a failure.
    qint64 append(QByteArrayView bytes);
    bool isSameAs(const LogFile& other) const;

private:
    /// A descriptor or a HANDLE. Both systems use -1 for none.
    using Handle = std::intptr_t;
    static constexpr Handle none = -1;

    void take(Handle handle);
    void close();
    void setError(int error);
    void swap(LogFile& other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        std::swap(m_isMissing, other.m_isMissing);
        m_error.swap(other.m_error);
    }

    Handle m_handle = none;
    bool m_isMissing = false;
    QString m_error{};
};

/// A lock that one process holds at a time: a file that is locked. The system releases it when the
/// process ends. The file stays.
class LogLock
{
public:
    LogLock() = default;
    ~LogLock() { release(); }
    Q_DISABLE_COPY_MOVE(LogLock)

    enum class Outcome
    {
        Held,
        Busy,   ///< another process, or another lock of this one, has it
        Failed, ///< see `error()`
    };
    /// Does not wait.
    Outcome tryToTake(const QString& path);
    QString error() const { return m_error; }

private:
    void release();

    std::intptr_t m_handle = -1;
    QString m_error{};
};

/// Renames a file, in place of another one. Empty when it succeeded, else the reason.
QString moveLogFile(const QString& from, const QString& to);

} // namespace VxKit
