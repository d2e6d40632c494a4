// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "socket_look.h"

#include <array>
#include <cerrno>
#include <csignal>

#include <sys/socket.h>

void socket_look::survivesClosedConnections()
{
    std::signal(SIGPIPE, SIG_IGN);
}

socket_look::ConnectionError socket_look::connectionError(qintptr socket)
{
    int error = 0;
    socklen_t size = sizeof(error);
    if (getsockopt(static_cast<int>(socket), SOL_SOCKET, SO_ERROR, &error, &size) != 0)
        error = errno;
    // A write in between takes the error away.
    sockaddr_storage peer = {};
    socklen_t peerSize = sizeof(peer);
    if (error == 0 &&
        getpeername(static_cast<int>(socket), reinterpret_cast<sockaddr*>(&peer), &peerSize) != 0)
        return {QStringLiteral("the connection is refused or ended at once")};
    if (error == 0)
        return {};
    return {qt_error_string(error), error == ECONNRESET || error == EPIPE};
}

socket_look::Arrived socket_look::arrived(qintptr socket)
{
    std::array<char, 8> bytes{};
    const ssize_t size =
        recv(static_cast<int>(socket), bytes.data(), bytes.size(), MSG_PEEK | MSG_DONTWAIT);
    if (size > 0)
        return {QByteArray(bytes.data(), size)};
    if (size == 0)
        return {{}, true};
    const bool isNothingThere = errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR;
    return {{}, !isNothingThere, isNothingThere ? QString() : qt_error_string(errno)};
}
