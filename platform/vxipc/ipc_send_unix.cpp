// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_send.h"

#include <QtNetwork/QLocalSocket>

#include <algorithm>

#include <sys/socket.h>
#include <sys/types.h>

void sendNow(QLocalSocket& socket, const QByteArray& bytes)
{
    qsizetype sent = 0;
    // Not ahead of what the socket still buffers. What fails here fails again in the socket, which
    // reports it.
    if (socket.bytesToWrite() == 0) {
        const ssize_t taken =
            send(static_cast<int>(socket.socketDescriptor()), bytes.constData(),
                 static_cast<std::size_t>(bytes.size()), MSG_NOSIGNAL | MSG_DONTWAIT);
        sent = std::max<qsizetype>(taken, 0);
    }
    if (sent < bytes.size())
        socket.write(bytes.constData() + sent, bytes.size() - sent);
}
