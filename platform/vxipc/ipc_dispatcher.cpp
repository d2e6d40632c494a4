// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_dispatcher.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonDocument>

namespace {

bool canBeId(const QJsonValue& id)
{
    return id.isString() || id.isDouble() || id.isNull();
}

/// Why `request` is none, or an empty text.
QString defectOf(const QJsonObject& request)
{
    const QJsonValue id = request.value(QStringLiteral("id"));
    if (request.value(QStringLiteral("jsonrpc")).toString() != QLatin1String("2.0"))
        return QStringLiteral("\"jsonrpc\" must be \"2.0\"");
    if (!request.value(QStringLiteral("method")).isString())
        return QStringLiteral("\"method\" must be a text");
    if (!id.isUndefined() && !canBeId(id))
        return QStringLiteral("\"id\" must be a text, a number or null");
    const QJsonValue parameters = request.value(QStringLiteral("params"));
    if (!parameters.isUndefined() && !parameters.isArray() && !parameters.isObject())
        return QStringLiteral("\"params\" must be a list or an object");
    return {};
}

QByteArray invalidRequest(const QJsonValue& id, const QString& defect)
{
    return JsonRpc::failure(
        canBeId(id) ? id : QJsonValue(QJsonValue::Null),
        {JsonRpc::InvalidRequest, QStringLiteral("Invalid Request: ") + defect, {}});
}

} // namespace

IpcDispatcher::IpcDispatcher(QObject& object, const QMetaObject& base, QString title)
    : m_methods(object, base)
    , m_title(std::move(title))
{}

IpcDispatcher::Message IpcDispatcher::parse(const QByteArray& line)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    Message message;
    if (error.error != QJsonParseError::NoError) {
        message.failure =
            JsonRpc::failure(QJsonValue::Null, {JsonRpc::ParseError,
                                                QStringLiteral("Parse error: %1 at byte %2")
                                                    .arg(error.errorString())
                                                    .arg(error.offset),
                                                {}});
        return message;
    }
    message.isBatch = document.isArray();
    if (!message.isBatch)
        message.requests = {document.object()};
    else if (document.array().isEmpty())
        message.failure = invalidRequest(QJsonValue::Null, QStringLiteral("the batch is empty"));
    else
        message.requests = document.array();
    return message;
}

std::optional<QByteArray> IpcDispatcher::handle(const QJsonValue& request) const
{
    if (!request.isObject())
        return invalidRequest(QJsonValue::Null, QStringLiteral("a request is an object"));
    const QJsonObject object = request.toObject();
    const QJsonValue id = object.value(QStringLiteral("id"));
    if (const QString defect = defectOf(object); !defect.isEmpty())
        return invalidRequest(id, defect);

    const IpcMethodTable::Outcome outcome = call(object.value(QStringLiteral("method")).toString(),
                                                 object.value(QStringLiteral("params")));
    if (id.isUndefined())
        return std::nullopt;
    QByteArray answer =
        outcome.error ? JsonRpc::failure(id, *outcome.error) : JsonRpc::success(id, outcome.result);
    if (answer.size() <= JsonRpc::MaximumAnswers)
        return answer;
    return JsonRpc::failure(
        id,
        {JsonRpc::AnswerTooLong,
         QStringLiteral("Answer too long: at most %1 bytes are sent").arg(JsonRpc::MaximumAnswers),
         {}});
}

IpcMethodTable::Outcome IpcDispatcher::call(const QString& method,
                                            const QJsonValue& parameters) const
{
    if (method != QStringLiteral("rpc.discover"))
        return m_methods.call(method, parameters);

    QJsonObject document = m_methods.describe();
    document.insert(QStringLiteral("openrpc"), QStringLiteral("1.2.6"));
    document.insert(
        QStringLiteral("info"),
        QJsonObject{{QStringLiteral("title"), m_title},
                    {QStringLiteral("version"), QStringLiteral("1.0.0")},
                    {QStringLiteral("x-process"), QCoreApplication::applicationPid()},
                    {QStringLiteral("x-application"), QCoreApplication::applicationName()}});
    return {document, std::nullopt};
}
