// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_in_flight.h"
#include "ipc_sides.h"
#include "vx_ipc_supplyd_controller.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QUrl>
#include <QtRemoteObjects/QRemoteObjectDynamicReplica>
#include <QtRemoteObjects/QRemoteObjectHost>
#include <QtRemoteObjects/QRemoteObjectNode>
#include <QtRemoteObjects/QRemoteObjectPendingCallWatcher>

namespace ipc_sides {
namespace {

const QString objectName = QStringLiteral("supplies");

QUrl urlOf(const QString& address)
{
    return QUrl(QStringLiteral("local:") + address);
}

/// The same endpoint, published the other way.
struct Server
{
    VXIPCSUPPLYDController endpoint;
    QRemoteObjectHost host;
};

class RemoteObjectsClients : public Clients
{
public:
    explicit RemoteObjectsClients(Call call)
        : m_call(std::move(call))
    {}

    bool connect(const QString& address, int count)
    {
        for (int i = 0; i < count; ++i) {
            auto node = std::make_unique<QRemoteObjectNode>();
            if (!node->connectToNode(urlOf(address)))
                return false;
            std::unique_ptr<QRemoteObjectDynamicReplica> replica(node->acquireDynamic(objectName));
            if (!replica->waitForSource(10000))
                return false;
            m_method = indexOfMethod(*replica->metaObject());
            m_nodes.push_back(std::move(node));
            m_replicas.push_back(std::move(replica));
        }
        return m_method >= 0;
    }

    bool callAndWait() override
    {
        QRemoteObjectPendingCall pending = send(*m_replicas.front());
        return pending.waitForFinished(10000) && isRight(pending);
    }

    bool callTogether(int clients, int inFlight, int calls) override
    {
        InFlight flight(calls);
        for (int i = 0; i < inFlight; ++i) {
            for (int client = 0; client < clients; ++client)
                makeNext(*m_replicas.at(static_cast<std::size_t>(client)), flight);
        }
        return flight.wait();
    }

private:
    /// Looked up by name: replicas of this release report wrong types for texts.
    static int indexOfMethod(const QMetaObject& type)
    {
        for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
            if (type.method(i).name() == "supplyColorName")
                return i;
        }
        return -1;
    }

    QRemoteObjectPendingCall send(QRemoteObjectDynamicReplica& replica)
    {
        QRemoteObjectPendingCall pending;
        void* arguments[]{&pending, &m_call.sku, &m_call.printer};
        QMetaObject::metacall(&replica, QMetaObject::InvokeMetaMethod, m_method, arguments);
        return pending;
    }

    void makeNext(QRemoteObjectDynamicReplica& replica, InFlight& flight)
    {
        if (!flight.next())
            return;
        auto* watcher = new QRemoteObjectPendingCallWatcher(send(replica));
        QObject::connect(watcher, &QRemoteObjectPendingCallWatcher::finished, &replica,
                         [this, &replica, &flight](QRemoteObjectPendingCallWatcher* finished) {
                             finished->deleteLater();
                             flight.answered(isRight(*finished));
                             makeNext(replica, flight);
                         });
    }

    bool isRight(const QRemoteObjectPendingCall& call) const
    {
        return call.error() == QRemoteObjectPendingCall::NoError &&
               call.returnValue().toString() == m_call.answer;
    }

    Call m_call;
    int m_method = -1;
    std::vector<std::unique_ptr<QRemoteObjectNode>> m_nodes;
    std::vector<std::unique_ptr<QRemoteObjectDynamicReplica>> m_replicas;
};

std::shared_ptr<void> serve(const QString& address, const Call& /*call*/)
{
    auto server = std::make_shared<Server>();
    if (!server->host.setHostUrl(urlOf(address)) ||
        !server->host.enableRemoting(&server->endpoint, objectName))
        return nullptr;
    return server;
}

std::unique_ptr<Clients> connectClients(const QString& address, const Call& call, int count)
{
    auto clients = std::make_unique<RemoteObjectsClients>(call);
    if (!clients->connect(address, count))
        return nullptr;
    return clients;
}

} // namespace

std::vector<Side> remoteObjects()
{
    return {{"remote_objects", serve, connectClients}};
}

} // namespace ipc_sides
