// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "ipc_method_table.h"
#include "ipc_signal_table.h"

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QFuture>
#include <QtCore/QJsonValue>
#include <QtCore/QString>
#include <QtCore/QThreadPool>

#include <optional>

/// Handles JSON-RPC 2.0 requests to an object, whatever the transport.
class IpcDispatcher
{
public:
    /// `title` is the name that rpc.discover reports.
    IpcDispatcher(QObject& object, const QMetaObject& base, QString title);
    ~IpcDispatcher();
    Q_DISABLE_COPY_MOVE(IpcDispatcher)

    /// A line as it was received: one request or a batch of them.
    struct Message
    {
        /// The request, or the list that they are in.
        QJsonValue content;
        qsizetype size = 0;
        /// The answer, as a line, to a line that holds no request.
        std::optional<QByteArray> failure;
        /// Parsed in the background because it is long; freeing it takes long, too.
        bool isLong = false;

        bool isBatch() const { return content.isArray(); }
        QJsonValue request(qsizetype index) const { return isBatch() ? content[index] : content; }
    };

    static Message parse(QByteArrayView line);

    /// The same on another thread, one line after the other. A mebibyte of small values takes tens
    /// of milliseconds, too long for the object's thread.
    QFuture<Message> parseInBackground(QByteArray line);
    /// Frees such a message on that thread, too, which takes a third as long as parsing it.
    void discardInBackground(Message message);

    /// Handles one request of a message. Returns the answer as a line, or nothing for a
    /// notification. An answer that is too long to send is replaced by an error.
    ///
    /// `subscriptions` are those of the client that sent the request, which may change them. The
    /// called method may do anything, even destroy this dispatcher and the subscriptions.
    std::optional<QByteArray> handle(const QJsonValue& value,
                                     IpcSubscriptions& subscriptions) const;

    const IpcSignalTable& signalTable() const { return m_signals; }

private:
    IpcMethodTable::Outcome call(const QString& method, const QJsonValue& parameters,
                                 IpcSubscriptions& subscriptions) const;
    IpcMethodTable::Outcome subscribe(const QJsonValue& parameters, bool isToReceive,
                                      IpcSubscriptions& subscriptions) const;
    QByteArray describe() const;

    IpcMethodTable m_methods;
    IpcSignalTable m_signals;
    QString m_title;
    QThreadPool m_background;
};
