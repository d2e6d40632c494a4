// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "ipc_parameters.h"
#include "json_rpc.h"
#include "vxipcserver.h"

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QList>
#include <QtCore/QMetaMethod>
#include <QtCore/QString>
#include <QtCore/QVarLengthArray>
#include <QtCore/QVariant>

#include <optional>
#include <span>

/// The slots of an object that other processes may call, according to its meta-object.
class IpcMethodTable
{
public:
    /// Lists the public slots of `object` that classes derived from `base` declare. What `base` and
    /// its own bases declare cannot be called.
    IpcMethodTable(QObject& object, const QMetaObject& base);

    struct Outcome
    {
        /// As JSON, null for a slot without a result.
        QByteArray result = QByteArrayLiteral("null");
        std::optional<json_rpc::Error> error;
    };

    /// Calls the slot that `parameters`, a list or an object, fit best.
    ///
    /// The slot may do anything, even destroy the object and this table with it.
    Outcome call(const QString& name, const QJsonValue& parameters) const;

    /// The methods of an OpenRPC document. The schemas of their records are added to `records`.
    QJsonArray describe(QJsonObject& records) const;

private:
    struct Method
    {
        QMetaMethod slot;
        QMetaType result;
        QList<IpcParameter> parameters;
        /// How many of the parameters have no default. Correct only in the first entry of a slot.
        qsizetype required = 0;
        /// Whether this is the entry before without its last default argument.
        bool isShortened = false;
        /// The object's check of each call; may be empty.
        VXIPCServer::CallCheck check;
    };

    /// Calls with no more arguments than these need no memory from the heap for their list.
    static constexpr qsizetype usualArguments = 6;

    /// How well the arguments of a call fit a method.
    struct Match
    {
        const Method* method = nullptr;
        QVarLengthArray<QVariant, usualArguments> arguments;
        /// The sum over the arguments.
        int fit = 0;
        std::optional<json_rpc::Error> error;
        bool arityMatches = false;
    };

    static std::optional<Method> readMethod(const QMetaMethod& slot);
    void add(const Method& method);
    Match choose(const QString& name, const QJsonValue& parameters) const;
    static Match match(const Method& method, const QJsonValue& parameters);
    static Match matchNamed(const Method& method, const QJsonObject& given);
    static Match matchArguments(const Method& method, std::span<const QJsonValue> given);
    static Match mismatchedCount(const Method& method, qsizetype given);
    static QJsonObject describe(const Method& method, QJsonObject& records);

    QObject& m_object;
    QList<Method> m_methods;
    /// Indexes into the methods.
    QHash<QString, QList<qsizetype>> m_overloads;
};
