// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QDeadlineTimer>
#include <QtCore/QObject>
#include <QtCore/QQueue>
#include <QtCore/QString>
#include <QtCore/QTimer>

#include <chrono>
#include <memory>

class QLocalSocket;

/// Listens under a name and accepts only the user's own processes. While the process has no
/// descriptor or handle left for a client, the client waits.
class IpcListener : public QObject
{
    Q_OBJECT

public:
    enum class Outcome : quint8
    {
        Listening,
        /// Another process has the name, or may have it.
        NameTaken,
        /// Any other name would fail, too. errorString() says why.
        Failed,
    };

    explicit IpcListener(QObject* parent);
    ~IpcListener() override = default;
    /// Creates the listener of this system.
    static std::unique_ptr<IpcListener> create(QObject* parent);
    Q_DISABLE_COPY_MOVE(IpcListener)

    /// Is called until it succeeds, and not after that. Waits until `end` at the latest for another
    /// process that is taking a name at the same time.
    virtual Outcome listen(const QString& name, QDeadlineTimer end) = 0;
    QString errorString() const { return m_errorString; }

    /// The next accepted client, a child of this object until it is given another parent; null when
    /// there is none.
    QLocalSocket* nextClient();

Q_SIGNALS:
    void newClient();

protected:
    /// Accepts the clients that are waiting, as far as possible.
    virtual void acceptWaiting() = 0;

    Outcome failed(const QString& what, const QString& why);
    /// Takes over a connected descriptor as a client. On failure, when it returns false, the
    /// descriptor stays the caller's.
    bool accept(qintptr descriptor);
    /// Calls acceptWaiting() again after a while, which grows with each call in a row.
    void pause(const QString& what, const QString& why);

private:
    QString m_errorString;
    QQueue<QLocalSocket*> m_clients;
    QTimer m_pause;
    std::chrono::milliseconds m_pauseTime;
};
