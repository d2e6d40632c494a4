// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "ipc_parameters.h"
#include "json_rpc.h"

#include <QtCore/QByteArray>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>
#include <QtCore/QList>
#include <QtCore/QMetaMethod>
#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariantList>

#include <optional>

/// The signals that a client has subscribed to, by their place in the table.
using IpcSubscriptions = QSet<qsizetype>;

/// The signals of an object that other processes may subscribe to, according to its meta-object.
class IpcSignalTable
{
public:
    /// Lists the signals of `object` that classes derived from `base` declare.
    IpcSignalTable(const QObject& object, const QMetaObject& base);

    struct Signal
    {
        QMetaMethod method;
        QString name;
        QList<IpcParameter> parameters;
        /// The type that JSON has no form for; empty if the signal can be sent.
        QString unsupported;
    };

    const Signal& at(qsizetype place) const { return m_signals.at(place); }

    struct Selection
    {
        IpcSubscriptions places;
        std::optional<json_rpc::Error> error;
    };

    /// The signals that `parameters` name: a list of names, or an object that has it as its member
    /// `signals`. Signals that share a name are selected together.
    Selection select(const QJsonValue& parameters) const;

    /// Their names, in the order of their declaration.
    QStringList names(const IpcSubscriptions& places) const;

    /// An emission as the line that is sent.
    QByteArray notification(qsizetype place, const QVariantList& arguments) const;

    /// The signals that can be sent, with their arguments.
    QJsonArray describe(QJsonObject& records) const;

private:
    QList<Signal> m_signals;
};
