// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "ipc_coalescing_queue.h"
#include "ipc_signal_table.h"

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariantList>

#include <functional>
#include <optional>

class IpcConnection;

/// Sends what an object's signals emit to the clients that have subscribed to them.
///
/// An emission only notes its arguments. They are written as JSON, once for all clients, and sent
/// in turns of a fraction of a millisecond, so that neither the emitting slot nor the thread's
/// other events wait for the clients. Emissions on other threads are queued to the object's.
class IpcPush : public QObject
{
public:
    /// What identifies the state that an emission tells, from the signal's arguments.
    using StateKey = std::function<QString(const QVariantList& arguments)>;
    /// By the names of the signals.
    using StateKeys = QHash<QByteArray, StateKey>;

    /// All of them outlive this object.
    IpcPush(QObject& object, const IpcSignalTable& signalTable, const StateKeys& keys);
    ~IpcPush() override;
    Q_DISABLE_COPY_MOVE(IpcPush)

    /// Sends `client` what is emitted from now on by the signals that it has subscribed to now.
    void update(IpcConnection& client);
    void remove(IpcConnection& client);
    /// Gives a client a turn that can be sent more.
    void sendTo(IpcConnection& client);

    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override;

private:
    struct Emission
    {
        qsizetype signal = 0;
        QVariantList arguments;
        quint64 number = 0;
    };

    struct Subscriber
    {
        IpcConnection* connection = nullptr;
        /// By signal: the number of the last emission before the client subscribed.
        QHash<qsizetype, quint64> since;
    };

    void listen();
    void onEmitted(qsizetype signal, void** arguments);
    std::optional<IpcStateId> stateOf(const Emission& emission) const;
    void distributeNext();
    void requestTurn();
    void takeTurn();

    QObject& m_object;
    const IpcSignalTable& m_signals;
    const StateKeys& m_keys;
    QHash<qsizetype, QMetaObject::Connection> m_listened;
    QList<Subscriber> m_subscribers;
    /// Those that have not been distributed to the clients.
    IpcCoalescingQueue<Emission> m_emissions;
    quint64 m_lastEmission = 0;
    /// The clients that can be sent something, in the order of their turns.
    QList<IpcConnection*> m_unsent;
    bool m_isTurnRequested = false;
};
