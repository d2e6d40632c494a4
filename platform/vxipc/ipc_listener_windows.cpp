// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_listener.h"

#include "ipc_scope.h"
#include "json_rpc.h"
#include "windows_security.h"

#include <QtCore/QLoggingCategory>
#include <QtCore/QWinEventNotifier>

#include <memory>
#include <utility>
#include <vector>

Q_DECLARE_LOGGING_CATEGORY(vxIpc)

namespace {

using windows_security::OwnedHandle;

/// Each client needs a server end that waits for it. Clients beyond the limit are accepted as well,
/// to be told that there are too many.
constexpr std::size_t waitingEnds = 2 * json_rpc::maximumClients;
/// How many unread bytes a pipe holds.
constexpr DWORD bufferSize = 4096;
constexpr DWORD defaultWait = 3000;

/// A server end of the pipe that waits for a client or has one.
class PipeEnd
{
public:
    enum class State : quint8
    {
        Idle,
        Waiting,
        Connected,
    };

    PipeEnd() = default;
    ~PipeEnd() { stopWaiting(); }
    Q_DISABLE_COPY_MOVE(PipeEnd)

    /// `event` is set when a client connects.
    void wait(OwnedHandle pipe, HANDLE event);
    void disconnectClient(HANDLE event);
    State state();
    HANDLE handle() const { return m_pipe.get(); }
    OwnedHandle release() { return std::move(m_pipe); }

private:
    void wait(HANDLE event);
    void stopWaiting();

    OwnedHandle m_pipe;
    OVERLAPPED m_overlapped = {};
    State m_state = State::Idle;
};

void PipeEnd::wait(OwnedHandle pipe, HANDLE event)
{
    stopWaiting();
    m_pipe = std::move(pipe);
    wait(event);
}

void PipeEnd::disconnectClient(HANDLE event)
{
    stopWaiting();
    DisconnectNamedPipe(m_pipe.get());
    wait(event);
}

void PipeEnd::wait(HANDLE event)
{
    m_overlapped = {};
    m_overlapped.hEvent = event;
    const bool isConnected = ConnectNamedPipe(m_pipe.get(), &m_overlapped) != 0;
    const DWORD error = GetLastError();
    if (!isConnected && error == ERROR_IO_PENDING) {
        m_state = State::Waiting;
    } else if (isConnected || error == ERROR_PIPE_CONNECTED) {
        m_state = State::Connected;
        SetEvent(event);
    } else {
        m_state = State::Idle;
        // A client has connected and left again; the end has to be disconnected from it.
        if (error == ERROR_NO_DATA)
            SetEvent(event);
    }
}

void PipeEnd::stopWaiting()
{
    if (m_state != State::Waiting)
        return;
    m_state = State::Idle;
    // Windows writes to the record until then. Waiting for the event would not do, as all ends
    // share it.
    CancelIoEx(m_pipe.get(), &m_overlapped);
    while (!HasOverlappedIoCompleted(&m_overlapped))
        SwitchToThread();
}

PipeEnd::State PipeEnd::state()
{
    if (m_state == State::Waiting && HasOverlappedIoCompleted(&m_overlapped)) {
        DWORD ignored = 0;
        m_state = GetOverlappedResult(m_pipe.get(), &m_overlapped, &ignored, FALSE)
                      ? State::Connected
                      : State::Idle;
    }
    return m_state;
}

QString errorText(DWORD error)
{
    return qt_error_string(static_cast<int>(error));
}

/// For Wine, which ignores FILE_FLAG_FIRST_PIPE_INSTANCE.
bool hasOtherEnds(HANDLE pipe)
{
    DWORD ends = 1;
    return GetNamedPipeHandleStateW(pipe, nullptr, &ends, nullptr, nullptr, nullptr, 0) && ends > 1;
}

class PipeListener final : public IpcListener
{
public:
    using IpcListener::IpcListener;

    Outcome listen(const QString& name, QDeadlineTimer end) override;

protected:
    void acceptWaiting() override;

private:
    OwnedHandle newPipe(DWORD flags = 0) const;
    /// Is called after an end began to wait: Windows resets the event then, even if the client of
    /// another end had just set it.
    void lookAgain() { SetEvent(m_event.get()); }
    bool isUsers(HANDLE pipe) const;

    QString m_path;
    QString m_user;
    windows_security::LocalMemory<void> m_descriptor;
    OwnedHandle m_event;
    /// As long as there is one, no other user can create a pipe of this name.
    std::vector<std::unique_ptr<PipeEnd>> m_ends;
    std::unique_ptr<QWinEventNotifier> m_notifier;
};

IpcListener::Outcome PipeListener::listen(const QString& name, QDeadlineTimer /*end*/)
{
    if (const QString obstacle = ipc_scope::prepare(); !obstacle.isEmpty())
        return failed(name, obstacle);
    m_path = QLatin1String(R"(\\.\pipe\)") + ipc_scope::address(name);
    m_user = windows_security::userOfProcess();
    m_descriptor = windows_security::ownedByUserAlone(m_user);
    if (!m_descriptor)
        return failed(m_path, errorText(GetLastError()));
    m_event = windows_security::owned(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    if (!m_event)
        return failed(m_path, errorText(GetLastError()));

    // The process that creates a pipe first decides on the rights of all its instances, so it has
    // to be this one.
    OwnedHandle pipe = newPipe(FILE_FLAG_FIRST_PIPE_INSTANCE);
    if (!pipe) {
        const DWORD error = GetLastError();
        return error == ERROR_ACCESS_DENIED || error == ERROR_PIPE_BUSY
                   ? Outcome::NameTaken
                   : failed(m_path, errorText(error));
    }
    if (hasOtherEnds(pipe.get()))
        return Outcome::NameTaken;
    while (pipe && m_ends.size() < waitingEnds) {
        m_ends.push_back(std::make_unique<PipeEnd>());
        m_ends.back()->wait(std::move(pipe), m_event.get());
        pipe = newPipe();
    }
    lookAgain();
    m_notifier = std::make_unique<QWinEventNotifier>(m_event.get(), this);
    connect(m_notifier.get(), &QWinEventNotifier::activated, this, [this] { acceptWaiting(); });
    return Outcome::Listening;
}

OwnedHandle PipeListener::newPipe(DWORD flags) const
{
    SECURITY_ATTRIBUTES attributes = {};
    attributes.nLength = sizeof(attributes);
    attributes.lpSecurityDescriptor = m_descriptor.get();
    return windows_security::owned(CreateNamedPipeW(
        qUtf16Printable(m_path), PIPE_ACCESS_DUPLEX | FILE_FLAG_OVERLAPPED | flags,
        PIPE_TYPE_BYTE | PIPE_READMODE_BYTE | PIPE_WAIT | PIPE_REJECT_REMOTE_CLIENTS,
        PIPE_UNLIMITED_INSTANCES, bufferSize, bufferSize, defaultWait, &attributes));
}

void PipeListener::acceptWaiting()
{
    // Before the ends are checked: a client that connects after its end was checked sets it again.
    ResetEvent(m_event.get());
    bool didBeginToWait = false;
    for (const std::unique_ptr<PipeEnd>& end : m_ends) {
        const PipeEnd::State state = end->state();
        if (state == PipeEnd::State::Waiting)
            continue;
        if (state == PipeEnd::State::Idle || !isUsers(end->handle())) {
            end->disconnectClient(m_event.get());
            didBeginToWait = true;
            continue;
        }
        // The next end comes first, as the name is lost with the last one. Until it can be created,
        // the client waits.
        OwnedHandle next = newPipe();
        if (!next) {
            // All ends are checked again after the pause.
            pause(m_path, errorText(GetLastError()));
            didBeginToWait = false;
            break;
        }
        OwnedHandle client = end->release();
        end->wait(std::move(next), m_event.get());
        didBeginToWait = true;
        if (accept(reinterpret_cast<qintptr>(client.get())))
            client.release();
    }
    if (didBeginToWait)
        lookAgain();
    Q_EMIT newClient();
}

/// The pipe's access list has already kept other users out. This is for users whom it does not
/// bind.
bool PipeListener::isUsers(HANDLE pipe) const
{
    const QString client = windows_security::clientOfPipe(pipe);
    if (client.isEmpty() || client == m_user)
        return true;
    qCWarning(vxIpc, "%s refuses a client of another user, %s", qUtf8Printable(m_path),
              qUtf8Printable(client));
    return false;
}

} // namespace

std::unique_ptr<IpcListener> IpcListener::create(QObject* parent)
{
    return std::make_unique<PipeListener>(parent);
}
