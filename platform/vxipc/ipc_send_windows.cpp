// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_send.h"

#include <QtNetwork/QLocalSocket>

void sendNow(QLocalSocket& socket, const QByteArray& bytes)
{
    // A write to a pipe starts at once. Only the socket is notified when it completes.
    socket.write(bytes);
}
