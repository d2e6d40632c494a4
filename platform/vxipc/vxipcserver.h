// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QJsonObject>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariantList>

#include <functional>

class IpcPublisher;

/// Base of every endpoint: publishes the slots of the object to other processes of the same user.
///
/// Every public slot that a derived class declares can be called as a method of JSON-RPC 2.0, by
/// its name and with its argument names, if its types are supported (docs/ipc.md has the table).
/// Private and protected slots and everything that QObject declares cannot. The signals that a
/// derived class declares can be subscribed to with `rpc.subscribe`, if their types are supported.
/// They may be emitted on any thread.
///
/// Calls are made on the thread that the endpoint lives in, from its event loop. Clients that send
/// too much or do not read what they are sent are disconnected; the endpoint never waits for a
/// client. The size of arguments is bounded. An endpoint that stores arguments bounds with
/// checkCalls() how much it stores.
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

    /// What identifies the state that an emission tells, from the signal's arguments.
    using StateKey = std::function<QString(const QVariantList& arguments)>;

    /// Declares that the signals of that name tell states: an emission repeats all that matters of
    /// an earlier one with the same key. While a client has not read the earlier one, the later one
    /// replaces it, so that a client that reads slowly gets the latest states and stays connected.
    /// Emissions of other signals are all sent. Meant for the constructor of an endpoint. `key` is
    /// called at each emission while somebody has subscribed, on the endpoint's thread.
    void coalesceSignal(const QByteArray& signalName, StateKey key);
    /// The same with one of the arguments, as a text, for the key; -1 where there is only one
    /// state.
    void coalesceSignal(const QByteArray& signalName, qsizetype keyArgument);

    /// Answers the call that another process makes, and that this endpoint is handling, with an
    /// error in place of the slot's result. The codes from -32099 to -32005 are free for endpoints,
    /// and all outside -32768 to -32000. `message` is one line for people. Does nothing for a call
    /// within this process.
    void refuseCall(int code, const QString& message, const QJsonObject& data = {});

private:
    friend class IpcMethodTable;

    IpcPublisher* m_publisher;
    QHash<QByteArray, CallCheck> m_callChecks;
};
