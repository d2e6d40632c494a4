// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_send.h"

#include <QtNetwork/QLocalSocket>

void sendNow(QLocalSocket& socket, const QByteArray& bytes)
{
    // Writing to a pipe ends later, which only the socket hears of; it begins at once.
    socket.write(bytes);
}
