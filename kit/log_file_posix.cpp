// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "log_file.h"

#include <QtCore/QByteArray>
#include <QtCore/QFile>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace VxKit {

namespace {

constexpr mode_t readableByAll = S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;

/// Repeats a call that a signal has interrupted.
template <typename Call>
auto uninterrupted(const Call& call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

int openFile(const QString& path, int flags)
{
    const QByteArray name = QFile::encodeName(path);
    // A pipe that nobody reads would make open() wait.
    return uninterrupted(
        [&] { return ::open(name.constData(), flags | O_CLOEXEC | O_NONBLOCK, readableByAll); });
}

} // namespace

LogFile LogFile::forAppending(const QString& path)
{
    LogFile file;
    file.take(openFile(path, O_RDWR | O_APPEND | O_CREAT));
    return file;
}

LogFile LogFile::forReading(const QString& path)
{
    LogFile file;
    file.take(openFile(path, O_RDONLY));
    return file;
}

void LogFile::take(Handle handle)
{
    if (handle == none) {
        m_isMissing = errno == ENOENT;
        setError(errno);
        return;
    }
    struct stat entry = {};
    const int descriptor = static_cast<int>(handle);
    if (fstat(descriptor, &entry) == 0 && S_ISREG(entry.st_mode)) {
        m_handle = handle;
        return;
    }
    ::close(descriptor);
    setError(S_ISDIR(entry.st_mode) ? EISDIR : EINVAL);
}

void LogFile::close()
{
    if (isOpen())
        ::close(static_cast<int>(std::exchange(m_handle, none)));
}

void LogFile::setError(int error)
{
    m_error = qt_error_string(error);
}

qint64 LogFile::size() const
{
    struct stat entry = {};
    return fstat(static_cast<int>(m_handle), &entry) == 0 ? entry.st_size : -1;
}

qint64 LogFile::readAt(qint64 offset, char* buffer, qint64 capacity)
{
    const ssize_t read = uninterrupted([&] {
        return pread(static_cast<int>(m_handle), buffer, static_cast<size_t>(capacity), offset);
    });
    if (read < 0)
        setError(errno);
    return read;
}

qint64 LogFile::append(QByteArrayView bytes)
{
    qint64 written = 0;
    // A full disk takes a part without an error, and the next call says why.
    while (written < bytes.size()) {
        const ssize_t size = uninterrupted([&] {
            return ::write(static_cast<int>(m_handle), bytes.data() + written,
                           static_cast<size_t>(bytes.size() - written));
        });
        if (size <= 0) {
            setError(size < 0 ? errno : ENOSPC);
            break;
        }
        written += size;
    }
    return written;
}

bool LogFile::isSameAs(const LogFile& other) const
{
    struct stat one = {};
    struct stat two = {};
    return fstat(static_cast<int>(m_handle), &one) == 0 &&
           fstat(static_cast<int>(other.m_handle), &two) == 0 && one.st_dev == two.st_dev &&
           one.st_ino == two.st_ino;
}

LogLock::Outcome LogLock::tryToTake(const QString& path)
{
    release();
    const int descriptor = openFile(path, O_RDONLY | O_CREAT);
    if (descriptor < 0) {
        m_error = qt_error_string(errno);
        return Outcome::Failed;
    }
    m_handle = descriptor;
    if (uninterrupted([&] { return flock(descriptor, LOCK_EX | LOCK_NB); }) != 0) {
        const int error = errno;
        release();
        m_error = qt_error_string(error);
        return error == EWOULDBLOCK ? Outcome::Busy : Outcome::Failed;
    }
    // Somebody may have removed the file, and another process have locked a new one.
    struct stat locked = {};
    struct stat entry = {};
    if (fstat(descriptor, &locked) == 0 &&
        ::stat(QFile::encodeName(path).constData(), &entry) == 0 && locked.st_dev == entry.st_dev &&
        locked.st_ino == entry.st_ino)
        return Outcome::Held;
    release();
    m_error = qt_error_string(EWOULDBLOCK);
    return Outcome::Busy;
}

void LogLock::release()
{
    if (m_handle >= 0)
        ::close(static_cast<int>(std::exchange(m_handle, -1)));
}

QString moveLogFile(const QString& from, const QString& to)
{
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0)
        return {};
    return qt_error_string(errno);
}

} // namespace VxKit
