// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "ipc_dispatcher.h"
#include "ipc_listener.h"
#include "ipc_push.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QTimer>

#include <chrono>
#include <memory>

class IpcConnection;

/// Publishes an object under a name and divides the time of the object's thread among its clients.
class IpcPublisher : public QObject
{
    Q_OBJECT

public:
    /// Publishes the slots that `object`, which is the parent too, declares below `base`.
    IpcPublisher(QObject& object, const QMetaObject& base);
    ~IpcPublisher() override;
    Q_DISABLE_COPY_MOVE(IpcPublisher)

    /// Takes `name`, or, when another living endpoint has it, `name` with the process id added.
    /// Retries at growing intervals until it succeeds.
    void publish(const QString& name);

    /// Empty while nothing is published.
    QString name() const { return m_name; }

    /// Has an emission of the signals of that name replace the earlier one with the same key that
    /// still waits to be sent.
    void setStateKey(const QByteArray& signalName, IpcPush::StateKey key);

    /// How long a client may send no request, a minute unless set, before it may be disconnected in
    /// favour of a new one.
    void setPatience(std::chrono::milliseconds limit) { m_patience = limit; }

private:
    void tryToPublish(QDeadlineTimer end);
    IpcListener::Outcome listen(QDeadlineTimer end);
    void onNewConnection();
    IpcConnection* longestSilent() const;
    void onTurnWanted(IpcConnection* connection);
    void onFinished(IpcConnection* connection);
    void giveTurn();
    void requestTurn();

    QObject& m_object;
    const QMetaObject& m_base;
    std::unique_ptr<IpcListener> m_listener;
    QString m_wantedName;
    QString m_name;
    std::chrono::milliseconds m_patience = std::chrono::minutes(1);
    QTimer m_retry;
    std::chrono::milliseconds m_retryInterval;
    IpcPush::StateKeys m_stateKeys;
    /// Created with the first client, when the object is fully constructed.
    std::unique_ptr<IpcDispatcher> m_dispatcher;
    std::unique_ptr<IpcPush> m_push;
    QList<IpcConnection*> m_connections;
    /// Those that have more to do, in the order of their turns.
    QList<IpcConnection*> m_waiting;
};
