// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_connect.h"

#include "ipc_scope.h"

#include <QtNetwork/QLocalSocket>

QString connectToEndpoint(QLocalSocket& socket, const QString& name,
                          std::chrono::milliseconds limit)
{
    if (const QString obstacle = IpcScope::distrust(name); !obstacle.isEmpty())
        return obstacle;
    socket.connectToServer(IpcScope::address(name));
    if (!socket.waitForConnected(static_cast<int>(limit.count())))
        socket.abort();
    return {};
}
