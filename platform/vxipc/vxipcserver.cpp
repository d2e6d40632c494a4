// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "vxipcserver.h"

#include "ipc_call.h"
#include "ipc_names.h"
#include "ipc_publisher.h"

VXIPCServer::VXIPCServer(int serverType, QObject* parent)
    : QObject(parent)
    , m_publisher(new IpcPublisher(*this, VXIPCServer::staticMetaObject))
{
    // Later, when the derived object is fully constructed and its thread is ready for sockets.
    QMetaObject::invokeMethod(
        this,
        [this, serverType] {
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
    return m_publisher->name();
}

void VXIPCServer::checkCalls(const QByteArray& slotName, CallCheck check)
{
    m_callChecks[slotName] = std::move(check);
}

void VXIPCServer::coalesceSignal(const QByteArray& signalName, StateKey key)
{
    m_publisher->setStateKey(signalName, std::move(key));
}

void VXIPCServer::coalesceSignal(const QByteArray& signalName, qsizetype keyArgument)
{
    coalesceSignal(signalName, [keyArgument](const QVariantList& arguments) {
        return arguments.value(keyArgument).toString();
    });
}

void VXIPCServer::refuseCall(int code, const QString& message, const QJsonObject& data)
{
    if (IpcCall* call = IpcCall::of(*this))
        call->refuse({code, message, data});
}
