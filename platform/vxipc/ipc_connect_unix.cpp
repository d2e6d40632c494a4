// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_connect.h"

#include "ipc_scope.h"

#include <QtNetwork/QLocalSocket>

QString connectToEndpoint(QLocalSocket& socket, const QString& name,
                          std::chrono::milliseconds limit)
{
    if (const QString obstacle = ipc_scope::distrust(name); !obstacle.isEmpty())
        return obstacle;
    socket.connectToServer(ipc_scope::address(name));
    if (!socket.waitForConnected(static_cast<int>(limit.count())))
        socket.abort();
    return {};
}
