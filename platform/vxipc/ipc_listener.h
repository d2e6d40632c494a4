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

/// Listens under a name and lets in the user's own processes alone. A client that cannot be let in
/// at the moment, because the process has no descriptor or handle left, waits until it can be.
class IpcListener : public QObject
{
    Q_OBJECT

public:
    enum class Outcome : quint8
    {
        Listening,
        /// Somebody else has the name, or it cannot be told that nobody has.
        NameTaken,
        /// No other name would do either. errorString() says why.
        Failed,
    };

    explicit IpcListener(QObject* parent);
    /// This system's.
    static std::unique_ptr<IpcListener> create(QObject* parent);
    Q_DISABLE_COPY_MOVE(IpcListener)

    /// Called until it succeeds, and no more then. Waits until `end` at most for another process
    /// that is taking a name at the same moment.
    virtual Outcome listen(const QString& name, QDeadlineTimer end) = 0;
    QString errorString() const { return m_errorString; }

    /// The next client that was let in, a child of this object until it is given another parent;
    /// null when there is none.
    QLocalSocket* nextClient();

Q_SIGNALS:
    void newClient();

protected:
    /// Lets in who waits, as far as it can be.
    virtual void letIn() = 0;

    Outcome failed(const QString& what, const QString& why);
    /// Makes a client of what is connected. False when that fails, which leaves it the caller's.
    bool accept(qintptr descriptor);
    /// Calls letIn() again in a while, with every call in a row a longer one.
    void pause(const QString& what, const QString& why);

private:
    QString m_errorString;
    QQueue<QLocalSocket*> m_clients;
    QTimer m_pause;
    std::chrono::milliseconds m_pauseTime;
};
