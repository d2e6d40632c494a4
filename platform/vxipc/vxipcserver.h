// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariantList>

#include <functional>

class IpcPublisher;

/// Base of every endpoint: publishes the slots of the object to other processes of the same user.
///
/// Every public slot that a derived class declares can be called as a method of JSON-RPC 2.0, by
/// its name and with its argument names, if its types are supported (docs/ipc.md has the table).
/// Signals, private and protected slots and everything that QObject declares cannot.
///
/// Calls are made on the thread that the endpoint lives in, from its event loop. Clients that send
/// too much or do not read their answers are disconnected; the endpoint never waits for a client.
/// The size of arguments is bounded. An endpoint that stores arguments bounds with checkCalls() how
/// much it stores.
class VXIPCServer : public QObject
{
    Q_OBJECT

public:
    /// The endpoint is published as "vxipc-<serverType>" once the thread's event loop runs, or with
    /// "-<process id>" added when another living endpoint of the user has that name.
    VXIPCServer(int serverType, QObject* parent);
    ~VXIPCServer() override;
    Q_DISABLE_COPY_MOVE(VXIPCServer)

    /// The name under which clients find the endpoint. Empty until it is published; until then the
    /// endpoint works within its own process only.
    QString serverName() const;

protected:
    /// Why a call with these arguments is refused, or an empty text.
    using CallCheck = std::function<QString(const QVariantList& arguments)>;

    /// Has `check` decide on each call that another process makes to the slots of that name. Calls
    /// within this process are not checked. Meant for the constructor of an endpoint: a check takes
    /// effect if it is set before the first client connects.
    void checkCalls(const QByteArray& slotName, CallCheck check);

private:
    friend class IpcMethodTable;

    IpcPublisher* m_publisher = nullptr;
    QHash<QByteArray, CallCheck> m_callChecks;
};
