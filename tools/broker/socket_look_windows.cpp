// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "socket_look.h"

#include <array>

#include <winsock2.h>

void socket_look::survivesClosedConnections() {} // Windows has no such signal

socket_look::ConnectionError socket_look::connectionError(qintptr socket)
{
    int error = 0;
    int size = sizeof(error);
    if (getsockopt(static_cast<SOCKET>(socket), SOL_SOCKET, SO_ERROR,
                   reinterpret_cast<char*>(&error), &size) != 0)
        error = WSAGetLastError();
    // A write in between takes the error away.
    sockaddr_storage peer = {};
    int peerSize = sizeof(peer);
    if (error == 0 && getpeername(static_cast<SOCKET>(socket), reinterpret_cast<sockaddr*>(&peer),
                                  &peerSize) != 0)
        return {QStringLiteral("the connection is refused or ended at once")};
    if (error == 0)
        return {};
    return {qt_error_string(error), error == WSAECONNRESET || error == WSAECONNABORTED};
}

socket_look::Arrived socket_look::arrived(qintptr socket)
{
    std::array<char, 8> bytes{};
    // libmosquitto's sockets do not block.
    const int size =
        recv(static_cast<SOCKET>(socket), bytes.data(), static_cast<int>(bytes.size()), MSG_PEEK);
    if (size > 0)
        return {QByteArray(bytes.data(), size)};
    if (size == 0)
        return {{}, true};
    const int error = WSAGetLastError();
    const bool isNothingThere = error == WSAEWOULDBLOCK || error == WSAEINTR;
    return {{}, !isNothingThere, isNothingThere ? QString() : qt_error_string(error)};
}
