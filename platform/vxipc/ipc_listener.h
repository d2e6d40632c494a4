// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

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
    ~IpcListener() override;
    Q_DISABLE_COPY_MOVE(IpcListener)

    /// Called until it succeeds, and no more then.
    Outcome listen(const QString& name);
    QString errorString() const;

    /// The next client that was let in, a child of this object until it is given another parent;
    /// null when there is none.
    QLocalSocket* nextClient();

Q_SIGNALS:
    void newClient();

private:
    class Private;
    std::unique_ptr<Private> d;
};
