// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "json_rpc.h"

#include <QtCore/QJsonDocument>

namespace JsonRpc {

QJsonObject success(const QJsonValue& id, const QJsonValue& result)
{
    return {{QStringLiteral("jsonrpc"), QStringLiteral("2.0")},
            {QStringLiteral("id"), id},
            {QStringLiteral("result"), result}};
}

QJsonObject failure(const QJsonValue& id, const Error& error)
{
    QJsonObject object = {{QStringLiteral("code"), error.code},
                          {QStringLiteral("message"), error.message}};
    if (!error.data.isEmpty())
        object.insert(QStringLiteral("data"), error.data);
    return {{QStringLiteral("jsonrpc"), QStringLiteral("2.0")},
            {QStringLiteral("id"), id},
            {QStringLiteral("error"), object}};
}

QByteArray line(const QJsonObject& message)
{
    return QJsonDocument(message).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace JsonRpc
