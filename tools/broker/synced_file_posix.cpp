// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "synced_file.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool syncDescriptor(int descriptor, QString* reason)
{
    if (descriptor >= 0 && ::fsync(descriptor) == 0)
        return true;
    *reason = qt_error_string(errno);
    return false;
}

} // namespace

bool synced_file::sync(QFile& file, QString* reason)
{
    return syncDescriptor(file.handle(), reason);
}

bool synced_file::syncFolder(const QString& folder, QString* reason)
{
    const int descriptor =
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const bool isDone = syncDescriptor(descriptor, reason);
    if (descriptor >= 0)
        ::close(descriptor);
    return isDone;
}

bool HeldFile::tryToHold(const QString& path, QString* reason)
{
    release();
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC,
                                  S_IRUSR | S_IWUSR);
    if (descriptor >= 0 && flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
        m_handle = descriptor;
        return true;
    }
    *reason = descriptor >= 0 && errno == EWOULDBLOCK ? QString() : qt_error_string(errno);
    if (descriptor >= 0)
        ::close(descriptor);
    return false;
}

void HeldFile::release()
{
    if (m_handle >= 0)
        ::close(static_cast<int>(std::exchange(m_handle, -1)));
}
