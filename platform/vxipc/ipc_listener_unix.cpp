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

/// Clients beyond the limit are accepted as well, to be told that there are too many.
constexpr int backlog = static_cast<int>(2 * json_rpc::maximumClients);

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

/// What is found at the path of a new endpoint.
enum class Found : quint8
{
    Nothing,
    /// The socket of a process that died.
    DeadSocket,
    Occupied,
    /// It cannot be determined, for this name or any other. errno says why.
    Unknown,
};

Found lookAt(const QByteArray& path, const sockaddr_un& address)
{
    struct stat entry = {};
    if (lstat(path.constData(), &entry) != 0)
        return errno == ENOENT ? Found::Nothing : Found::Unknown;
    if (!S_ISSOCK(entry.st_mode))
        return Found::Occupied;
    const OwnedDescriptor probe = newSocket();
    if (!probe.isValid())
        return Found::Unknown;
    // The system accepts connections even for a process that is busy or stopped.
    if (connect(probe.get(), generic(address), sizeof(address)) != 0 && errno == ECONNREFUSED)
        return Found::DeadSocket;
    return Found::Occupied;
}

class SocketListener final : public IpcListener
{
public:
    using IpcListener::IpcListener;
    ~SocketListener() override;
    Q_DISABLE_COPY_MOVE(SocketListener)

    Outcome listen(const QString& name, QDeadlineTimer end) override;

protected:
    void acceptWaiting() override;

private:
    Outcome bindTo(const QByteArray& path, const sockaddr_un& address);
    Outcome systemFailed(const QByteArray& path, int error);

    OwnedDescriptor m_socket;
    std::unique_ptr<QSocketNotifier> m_notifier;
    /// Where the socket is, and which file it is there.
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
    if (const QString obstacle = ipc_scope::prepare(); !obstacle.isEmpty())
        return failed(name, obstacle);
    const QString file = ipc_scope::address(name);
    const QByteArray path = QFile::encodeName(file);
    const std::optional<sockaddr_un> address = socketAddress(path);
    if (!address)
        return failed(file, QStringLiteral("the path is too long for a socket"));

    // No two processes may find the socket of a dead endpoint and replace it at the same time.
    // Without the lock, the name is left alone.
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
    case Found::Occupied:
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
    // Nobody can connect before the socket listens, and after that only the user can.
    if (chmod(path.constData(), S_IRUSR | S_IWUSR) != 0 || lstat(path.constData(), &m_entry) != 0 ||
        ::listen(socket.get(), backlog) != 0) {
        const int error = errno;
        unlink(path.constData());
        return systemFailed(path, error);
    }
    m_path = path;
    m_socket = std::move(socket);
    m_notifier = std::make_unique<QSocketNotifier>(m_socket.get(), QSocketNotifier::Read, this);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] { acceptWaiting(); });
    return Outcome::Listening;
}

IpcListener::Outcome SocketListener::systemFailed(const QByteArray& path, int error)
{
    return failed(QFile::decodeName(path), qt_error_string(error));
}

void SocketListener::acceptWaiting()
{
    m_notifier->setEnabled(true);
    OwnedDescriptor client(accept4(m_socket.get(), nullptr, nullptr, SOCK_CLOEXEC));
    if (client.isValid()) {
        if (accept(client.get()))
            client.release();
        Q_EMIT newClient();
        return;
    }
    // A client that has disconnected again is no reason to wait.
    if (errno == EAGAIN || errno == EINTR || errno == ECONNABORTED)
        return;
    const int error = errno;
    // It would be activated again and again, as the client is still waiting.
    m_notifier->setEnabled(false);
    pause(QFile::decodeName(m_path), qt_error_string(error));
}

} // namespace

std::unique_ptr<IpcListener> IpcListener::create(QObject* parent)
{
    return std::make_unique<SocketListener>(parent);
}
