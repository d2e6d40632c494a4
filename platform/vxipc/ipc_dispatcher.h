// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "ipc_method_table.h"

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QFuture>
#include <QtCore/QJsonValue>
#include <QtCore/QString>
#include <QtCore/QThreadPool>

#include <optional>

/// What JSON-RPC 2.0 makes of a request to an object, apart from how it got here.
class IpcDispatcher
{
public:
    /// `title` is the name the object is known by.
    IpcDispatcher(QObject& object, const QMetaObject& base, QString title);
    ~IpcDispatcher();
    Q_DISABLE_COPY_MOVE(IpcDispatcher)

    /// A line as it was received: one request or a batch of them.
    struct Message
    {
        /// The request, or the list that they are in.
        QJsonValue content;
        qsizetype size = 0;
        /// The answer to a line that holds no request, as a line.
        std::optional<QByteArray> failure;
        /// Parsed in the background, so that freeing it takes long too.
        bool isLong = false;

        bool isBatch() const { return content.isArray(); }
        QJsonValue request(qsizetype index) const { return isBatch() ? content[index] : content; }
    };

    static Message parse(QByteArrayView line);

    /// The same on another thread, one line after the other: a mebibyte of small values takes tens
    /// of milliseconds, which the object's thread has better uses for.
    QFuture<Message> parseInBackground(QByteArray line);
    /// Frees such a message there too, which takes a third of the time again.
    void discardInBackground(Message message);

    /// The answer to one request of a message, as a line, or nothing to a notification. An answer
    /// that is too long to be sent is one that says so.
    ///
    /// The method that it calls may do anything, to the extent of destroying this dispatcher.
    std::optional<QByteArray> handle(const QJsonValue& value) const;

private:
    IpcMethodTable::Outcome call(const QString& method, const QJsonValue& parameters) const;
    QByteArray describe() const;

    IpcMethodTable m_methods;
    QString m_title;
    QThreadPool m_background;
};
