// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

class IpcPublisher;

/// Base of every endpoint: publishes the slots of the object to other processes of the same user.
///
/// Every public slot that a derived class declares can be called as a method of JSON-RPC 2.0, by
/// its name and with its argument names, as long as its types can cross (docs/ipc.md has the
/// table). Signals, private and protected slots and everything that QObject has cannot.
///
/// Calls are made on the thread that the endpoint lives in, from its event loop. Clients that send
/// too much or take no answers are closed; the endpoint never waits for one.
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

private:
    IpcPublisher* m_publisher = nullptr;
};
