// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_connect.h"

#include "ipc_scope.h"
#include "windows_security.h"

#include <QtCore/QDeadlineTimer>
#include <QtNetwork/QLocalSocket>

#include <algorithm>

namespace {

using windows_security::OwnedHandle;

/// Waits for a free instance of the pipe. Null on failure, with the reason in GetLastError().
OwnedHandle openPipe(const QString& path, std::chrono::milliseconds limit)
{
    const QDeadlineTimer end(limit);
    for (;;) {
        // The server may identify this user, but not impersonate him, which it could by default.
        OwnedHandle pipe = windows_security::owned(CreateFileW(
            qUtf16Printable(path), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
            FILE_FLAG_OVERLAPPED | SECURITY_SQOS_PRESENT | SECURITY_IDENTIFICATION, nullptr));
        if (pipe || GetLastError() != ERROR_PIPE_BUSY || end.hasExpired())
            return pipe;
        // 0 would stand for the pipe's own default time-out.
        WaitNamedPipeW(qUtf16Printable(path),
                       static_cast<DWORD>(std::max<qint64>(end.remainingTime(), 1)));
    }
}

} // namespace

QString connectToEndpoint(QLocalSocket& socket, const QString& name,
                          std::chrono::milliseconds limit)
{
    const QString path = QLatin1String(R"(\\.\pipe\)") + ipc_scope::address(name);
    OwnedHandle pipe = openPipe(path, limit);
    if (!pipe) {
        const DWORD error = GetLastError();
        return error == ERROR_FILE_NOT_FOUND || error == ERROR_PIPE_BUSY
                   ? QString()
                   : QStringLiteral("%1: %2").arg(path, qt_error_string(static_cast<int>(error)));
    }
    const QString user = windows_security::userOfProcess();
    if (user.isEmpty() || windows_security::ownerOfPipe(pipe.get()) != user)
        return QStringLiteral("%1 belongs to another user").arg(path);
    if (socket.setSocketDescriptor(reinterpret_cast<qintptr>(pipe.get())))
        pipe.release();
    return {};
}
