// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_listener.h"

#include "ipc_name_lock.h"
#include "ipc_scope.h"
#include "json_rpc.h"
#include "owned_descriptor.h"

#include <QtCore/QFile>
#include <QtCore/QLoggingCategory>
#include <QtCore/QQueue>
#include <QtCore/QSocketNotifier>
#include <QtCore/QTimer>
#include <QtNetwork/QLocalSocket>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <optional>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

using namespace std::chrono_literals;

Q_DECLARE_LOGGING_CATEGORY(vxIpc)

namespace {

/// How soon a client that could not be let in is tried again.
constexpr auto FirstPause = 50ms;
constexpr auto LongestPause = 1s;
/// Those over the limit have to be let in to be told so.
constexpr int Backlog = static_cast<int>(2 * JsonRpc::MaximumClients);

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

} // namespace

class IpcListener::Private
{
public:
    explicit Private(IpcListener& listener);
    ~Private();
    Q_DISABLE_COPY_MOVE(Private)

    Outcome listen(const QString& name);

    QString errorString;
    QQueue<QLocalSocket*> clients;

private:
    Outcome bindTo(const QByteArray& path, const sockaddr_un& address);
    Outcome failed(const QString& what);
    Outcome systemFailed(const QByteArray& path, int error);
    void letIn();
    void pause(int error);

    IpcListener& q;
    OwnedDescriptor m_socket;
    QSocketNotifier* m_notifier = nullptr;
    QTimer* m_pause;
    std::chrono::milliseconds m_pauseTime = FirstPause;

    /// Which entry of which folder is this endpoint's.
    QByteArray m_path;
    struct stat m_entry = {};
};

IpcListener::Private::Private(IpcListener& listener)
    : q(listener)
    // A child, so that it moves to another thread with the listener.
    , m_pause(new QTimer(&listener))
{
    m_pause->setSingleShot(true);
    connect(m_pause, &QTimer::timeout, &q, [this] { m_notifier->setEnabled(true); });
}

IpcListener::Private::~Private()
{
    delete m_notifier;
    struct stat entry = {};
    // Somebody may have put another in its place. While this one is open its number is not given to
    // another, and nobody takes it for dead and replaces it.
    if (m_socket.isValid() && lstat(m_path.constData(), &entry) == 0 &&
        entry.st_dev == m_entry.st_dev && entry.st_ino == m_entry.st_ino) {
        unlink(m_path.constData());
    }
}

IpcListener::Outcome IpcListener::Private::listen(const QString& name)
{
    if (const QString obstacle = IpcScope::prepare(); !obstacle.isEmpty())
        return failed(obstacle);
    const QString file = IpcScope::address(name);
    const QByteArray path = QFile::encodeName(file);
    const std::optional<sockaddr_un> address = socketAddress(path);
    if (!address)
        return failed(QStringLiteral("%1: the path is too long for a socket").arg(file));

    // Between finding a dead endpoint's socket and replacing it, another process must not do the
    // same. Who does not get to look leaves the name alone.
    IpcNameLock lock(path + ".lock");
    switch (lock.lock()) {
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

IpcListener::Outcome IpcListener::Private::bindTo(const QByteArray& path,
                                                  const sockaddr_un& address)
{
    OwnedDescriptor socket = newSocket();
    if (!socket.isValid())
        return systemFailed(path, errno);
    if (bind(socket.get(), generic(address), sizeof(address)) != 0)
        return errno == EADDRINUSE ? Outcome::NameTaken : systemFailed(path, errno);
    // Nobody can connect before the socket listens, and from then on only the user.
    if (chmod(path.constData(), S_IRUSR | S_IWUSR) != 0 || lstat(path.constData(), &m_entry) != 0 ||
        ::listen(socket.get(), Backlog) != 0) {
        const int error = errno;
        unlink(path.constData());
        return systemFailed(path, error);
    }
    m_path = path;
    m_socket = std::move(socket);
    m_notifier = new QSocketNotifier(m_socket.get(), QSocketNotifier::Read, &q);
    connect(m_notifier, &QSocketNotifier::activated, &q, [this] { letIn(); });
    return Outcome::Listening;
}

IpcListener::Outcome IpcListener::Private::failed(const QString& what)
{
    errorString = what;
    return Outcome::Failed;
}

IpcListener::Outcome IpcListener::Private::systemFailed(const QByteArray& path, int error)
{
    return failed(QStringLiteral("%1: %2").arg(QFile::decodeName(path), qt_error_string(error)));
}

void IpcListener::Private::letIn()
{
    OwnedDescriptor client(accept4(m_socket.get(), nullptr, nullptr, SOCK_CLOEXEC));
    if (!client.isValid()) {
        // A client that has left again is no reason to wait.
        if (errno != EAGAIN && errno != EINTR && errno != ECONNABORTED)
            pause(errno);
        return;
    }
    m_pauseTime = FirstPause;
    auto* socket = new QLocalSocket(&q);
    if (!socket->setSocketDescriptor(client.get())) {
        delete socket;
        return;
    }
    client.release();
    clients.enqueue(socket);
    Q_EMIT q.newClient();
}

void IpcListener::Private::pause(int error)
{
    if (m_pauseTime == FirstPause) {
        qCWarning(vxIpc, "%s lets nobody in until this is over: %s", m_path.constData(),
                  qUtf8Printable(qt_error_string(error)));
    }
    // The system goes on telling that a client waits.
    m_notifier->setEnabled(false);
    m_pause->start(m_pauseTime);
    m_pauseTime = std::min<std::chrono::milliseconds>(2 * m_pauseTime, LongestPause);
}

IpcListener::IpcListener(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>(*this))
{}

IpcListener::~IpcListener() = default;

IpcListener::Outcome IpcListener::listen(const QString& name)
{
    return d->listen(name);
}

QString IpcListener::errorString() const
{
    return d->errorString;
}

QLocalSocket* IpcListener::nextClient()
{
    return d->clients.isEmpty() ? nullptr : d->clients.dequeue();
}
