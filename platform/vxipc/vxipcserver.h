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
/// its name and with its argument names, as long as its types can cross (docs/ipc.md has the
/// table). Signals, private and protected slots and everything that QObject has cannot.
///
/// Calls are made on the thread that the endpoint lives in, from its event loop. Clients that send
/// too much or take no answers are closed; the endpoint never waits for one. What an argument may
/// hold is bounded; an endpoint that keeps arguments bounds with checkCalls() what it keeps.
class VXIPCServer : public QObject
{
    Q_OBJECT

public:
    /// The endpoint is published as "vxipc-<serverType>" once the thread's event loop runs, or with
    /// "-<process id>" added when another living endpoint of the user has that name.
    VXIPCServer(int serverType, QObject* parent);
    ~VXIPCServer() override;
    Q_DISABLE_COPY_MOVE(VXIPCServer)

    /// The name that clients find the endpoint by. Empty before it is published, and when that
    /// failed, which leaves the endpoint working in its own process.
    QString serverName() const;

protected:
    /// Why a call with these arguments is refused, or an empty text.
    using CallCheck = std::function<QString(const QVariantList& arguments)>;

    /// Has `check` decide on each call of the slots of that name that comes from another process,
    /// before it is made. Calls within this process are not looked at. For the constructor of an
    /// endpoint: a check counts if it is there when the first client comes.
    void checkCalls(const QByteArray& slotName, CallCheck check);

private:
    friend class IpcMethodTable;

    IpcPublisher* m_publisher = nullptr;
    QHash<QByteArray, CallCheck> m_callChecks;
};
