// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_listener.h"

#include "ipc_name_lock.h"
#include "ipc_scope.h"
#include "json_rpc.h"
#include "owned_descriptor.h"

#include <QtCore/QFile>
#include <QtCore/QSocketNotifier>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <optional>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

namespace {

/// Those over the limit have to be let in to be told so.
constexpr int backlog = static_cast<int>(2 * JsonRpc::maximumClients);

/// Nothing when the path is too long for a socket.
std::optional<sockaddr_un> socketAddress(const QByteArray& path)
{
    sockaddr_un address = {};
    if (static_cast<std::size_t>(path.size()) >= sizeof(address.sun_path))
        return std::nullopt;
    address.sun_family = AF_UNIX;
    std::copy(path.cbegin(), path.cend(), address.sun_path);
    return address;
}

const sockaddr* generic(const sockaddr_un& address)
{
    return reinterpret_cast<const sockaddr*>(&address);
}

OwnedDescriptor newSocket()
{
    return OwnedDescriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

/// What is in a new endpoint's place.
enum class Found : quint8
{
    Nothing,
    /// The socket of a process that died.
    DeadSocket,
    Somebody,
    /// errno says why it cannot be told, of this name or any other.
    Unknown,
};

Found lookAt(const QByteArray& path, const sockaddr_un& address)
{
    struct stat entry = {};
    if (lstat(path.constData(), &entry) != 0)
        return errno == ENOENT ? Found::Nothing : Found::Unknown;
    if (!S_ISSOCK(entry.st_mode))
        return Found::Somebody;
    const OwnedDescriptor probe = newSocket();
    if (!probe.isValid())
        return Found::Unknown;
    // The system answers for a process that is busy or stopped.
    if (connect(probe.get(), generic(address), sizeof(address)) != 0 && errno == ECONNREFUSED)
        return Found::DeadSocket;
    return Found::Somebody;
}

class SocketListener final : public IpcListener
{
public:
    using IpcListener::IpcListener;
    ~SocketListener() override;
    Q_DISABLE_COPY_MOVE(SocketListener)

    Outcome listen(const QString& name, QDeadlineTimer end) override;

protected:
    void letIn() override;

private:
    Outcome bindTo(const QByteArray& path, const sockaddr_un& address);
    Outcome systemFailed(const QByteArray& path, int error);

    OwnedDescriptor m_socket;
    std::unique_ptr<QSocketNotifier> m_notifier;
    /// Which entry of which folder is this endpoint's.
    QByteArray m_path;
    struct stat m_entry = {};
};

SocketListener::~SocketListener()
{
    m_notifier.reset();
    struct stat entry = {};
    // Somebody may have put another file in its place. While this socket is open, its inode number
    // is not reused, and nobody takes it for dead and replaces it.
    if (m_socket.isValid() && lstat(m_path.constData(), &entry) == 0 && isSameFile(entry, m_entry))
        unlink(m_path.constData());
}

IpcListener::Outcome SocketListener::listen(const QString& name, QDeadlineTimer end)
{
    if (const QString obstacle = IpcScope::prepare(); !obstacle.isEmpty())
        return failed(name, obstacle);
    const QString file = IpcScope::address(name);
    const QByteArray path = QFile::encodeName(file);
    const std::optional<sockaddr_un> address = socketAddress(path);
    if (!address)
        return failed(file, QStringLiteral("the path is too long for a socket"));

    // Between finding a dead endpoint's socket and replacing it, another process must not do the
    // same. Who does not get to look leaves the name alone.
    IpcNameLock lock(path + ".lock");
    switch (lock.lock(end)) {
    case IpcNameLock::Outcome::Locked:
        break;
    case IpcNameLock::Outcome::Denied:
        return Outcome::NameTaken;
    case IpcNameLock::Outcome::Failed:
        return systemFailed(path + ".lock", errno);
    }
    switch (lookAt(path, *address)) {
    case Found::Nothing:
        break;
    case Found::DeadSocket:
        unlink(path.constData());
        break;
    case Found::Somebody:
        return Outcome::NameTaken;
    case Found::Unknown:
        return systemFailed(path, errno);
    }
    return bindTo(path, *address);
}

IpcListener::Outcome SocketListener::bindTo(const QByteArray& path, const sockaddr_un& address)
{
    OwnedDescriptor socket = newSocket();
    if (!socket.isValid())
        return systemFailed(path, errno);
    if (bind(socket.get(), generic(address), sizeof(address)) != 0)
        return errno == EADDRINUSE ? Outcome::NameTaken : systemFailed(path, errno);
    // Nobody can connect before the socket listens, and from then on only the user.
    if (chmod(path.constData(), S_IRUSR | S_IWUSR) != 0 || lstat(path.constData(), &m_entry) != 0 ||
        ::listen(socket.get(), backlog) != 0) {
        const int error = errno;
        unlink(path.constData());
        return systemFailed(path, error);
    }
    m_path = path;
    m_socket = std::move(socket);
    m_notifier = std::make_unique<QSocketNotifier>(m_socket.get(), QSocketNotifier::Read, this);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] { letIn(); });
    return Outcome::Listening;
}

IpcListener::Outcome SocketListener::systemFailed(const QByteArray& path, int error)
{
    return failed(QFile::decodeName(path), qt_error_string(error));
}

void SocketListener::letIn()
{
    m_notifier->setEnabled(true);
    OwnedDescriptor client(accept4(m_socket.get(), nullptr, nullptr, SOCK_CLOEXEC));
    if (client.isValid()) {
        if (accept(client.get()))
            client.release();
        Q_EMIT newClient();
        return;
    }
    // One that has left again is no reason to wait.
    if (errno == EAGAIN || errno == EINTR || errno == ECONNABORTED)
        return;
    const int error = errno;
    // It would go on telling that somebody waits.
    m_notifier->setEnabled(false);
    pause(QFile::decodeName(m_path), qt_error_string(error));
}

} // namespace

std::unique_ptr<IpcListener> IpcListener::create(QObject* parent)
{
    return std::make_unique<SocketListener>(parent);
}
