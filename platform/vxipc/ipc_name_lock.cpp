// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_name_lock.h"

#include <QtCore/QDeadlineTimer>

#include <cerrno>
#include <chrono>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

using namespace std::chrono_literals;

namespace {

constexpr auto retryPause = 5ms;

} // namespace

IpcNameLock::IpcNameLock(QByteArray path)
    : m_path(std::move(path))
{}

IpcNameLock::~IpcNameLock()
{
    if (m_file.isValid())
        unlink(m_path.constData());
}

IpcNameLock::Outcome IpcNameLock::lock(QDeadlineTimer end)
{
    Outcome outcome = tryToLock();
    while (outcome == Outcome::Denied && errno == EWOULDBLOCK && !end.hasExpired()) {
        std::this_thread::sleep_for(retryPause);
        outcome = tryToLock();
    }
    return outcome;
}

IpcNameLock::Outcome IpcNameLock::tryToLock()
{
    struct stat entry = {};
    const bool isThere = lstat(m_path.constData(), &entry) == 0;
    // Checked before it is opened: opening a pipe waits for its other end, and opening a device may
    // have side effects.
    if (isThere && !S_ISREG(entry.st_mode)) {
        errno = EINVAL;
        return Outcome::Denied;
    }
    OwnedDescriptor file(open(m_path.constData(),
                              O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK,
                              S_IRUSR | S_IWUSR));
    if (!file.isValid())
        return isThere && errno == EACCES ? Outcome::Denied : Outcome::Failed;
    if (flock(file.get(), LOCK_EX | LOCK_NB) != 0)
        return errno == EWOULDBLOCK ? Outcome::Denied : Outcome::Failed;
    // The previous holder has removed its file, and another process may have created a new one.
    struct stat locked = {};
    if (fstat(file.get(), &locked) != 0 || lstat(m_path.constData(), &entry) != 0 ||
        !isSameFile(locked, entry)) {
        errno = EWOULDBLOCK;
        return Outcome::Denied;
    }
    m_file = std::move(file);
    return Outcome::Locked;
}
