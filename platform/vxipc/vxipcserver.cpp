// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "vxipcserver.h"

#include "ipc_names.h"
#include "ipc_publisher.h"

VXIPCServer::VXIPCServer(int serverType, QObject* parent)
    : QObject(parent)
{
    // Later, when the derived object is fully constructed and its thread is ready for sockets.
    QMetaObject::invokeMethod(
        this,
        [this, serverType] {
            m_publisher = new IpcPublisher(*this, VXIPCServer::staticMetaObject);
            m_publisher->publish(endpointNamePrefix + QString::number(serverType));
        },
        Qt::QueuedConnection);
}

VXIPCServer::~VXIPCServer()
{
    delete m_publisher;
}

QString VXIPCServer::serverName() const
{
    return m_publisher ? m_publisher->name() : QString();
}

void VXIPCServer::checkCalls(const QByteArray& slotName, CallCheck check)
{
    m_callChecks[slotName] = std::move(check);
}
