// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// What a client sends to an endpoint. The first byte is the size of the pieces in which the rest
// arrives. Lines are extracted, parsed and handled as an endpoint does it, and each answer has to
// be valid JSON-RPC 2.0, and so has each notification that was subscribed to.
#include "fuzz_service.h"
#include "qt_application.h"
#include "require.h"

#include <ipc_dispatcher.h>
#include <json_rpc.h>
#include <line_buffer.h>

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QSet>

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace {

const QSet<int> errorCodes{json_rpc::ParseError, json_rpc::InvalidRequest, json_rpc::MethodNotFound,
                           json_rpc::InvalidParams};

QJsonObject checkAnswer(const QByteArray& line)
{
    require(line.indexOf('\n') == line.size() - 1, "an answer is one line");
    const QJsonObject answer = QJsonDocument::fromJson(line).object();
    require(answer.value(QStringLiteral("jsonrpc")) == QStringLiteral("2.0"), "the version is 2.0");
    require(answer.contains(QStringLiteral("id")), "an answer has an id");
    require(answer.size() == 3, "an answer has three members");
    require(answer.contains(QStringLiteral("result")) != answer.contains(QStringLiteral("error")),
            "an answer has a result or an error");
    if (answer.contains(QStringLiteral("error"))) {
        const QJsonObject error = answer.value(QStringLiteral("error")).toObject();
        require(errorCodes.contains(error.value(QStringLiteral("code")).toInt()),
                "the error is a documented one");
        require(!error.value(QStringLiteral("message")).toString().isEmpty(),
                "the error has a message");
    }
    return answer;
}

/// What the client has subscribed to can be sent, with what it sent itself as an argument.
void checkNotifications(const IpcDispatcher& dispatcher, const IpcSubscriptions& subscriptions,
                        const QJsonObject& object)
{
    const IpcSignalTable& table = dispatcher.signalTable();
    require(subscriptions.size() <= 2, "only the signals that can be sent are subscribed to");
    for (const qsizetype place : subscriptions) {
        require(table.at(place).unsupported.isEmpty(), "the signal can be sent");
        const QVariantList arguments =
            table.at(place).parameters.size() == 2
                ? QVariantList{object.value(QStringLiteral("method")).toString(), object}
                : QVariantList{1};
        const QByteArray line = table.notification(place, arguments);
        require(line.indexOf('\n') == line.size() - 1, "a notification is one line");
        const QJsonObject notification = QJsonDocument::fromJson(line).object();
        require(notification.size() == 3 &&
                    notification[QStringLiteral("params")].toObject().size() == arguments.size(),
                "a notification has its arguments");
    }
}

void checkRequest(const IpcDispatcher& dispatcher, const QJsonValue& request,
                  IpcSubscriptions& subscriptions)
{
    const std::optional<QByteArray> line = dispatcher.handle(request, subscriptions);
    checkNotifications(dispatcher, subscriptions, request.toObject());
    const QJsonValue id = request.toObject().value(QStringLiteral("id"));
    if (!line) {
        require(request.isObject() && id.isUndefined(), "only a notification has no answer");
        return;
    }
    const QJsonObject answer = checkAnswer(*line);
    const QJsonValue answeredId = answer.value(QStringLiteral("id"));
    require(answeredId == id || answeredId.isNull(), "the answer is to this request");
    if (answer.contains(QStringLiteral("result")))
        require(answeredId == id, "a result is for its request");
}

void checkLine(const IpcDispatcher& dispatcher, QByteArrayView line,
               IpcSubscriptions& subscriptions)
{
    const IpcDispatcher::Message message = IpcDispatcher::parse(line);
    if (message.failure) {
        require(message.size == 0, "a line that failed has no requests");
        checkAnswer(*message.failure);
        return;
    }
    require(message.isBatch() || message.size == 1, "what is not a batch is one request");
    for (qsizetype i = 0; i < message.size; ++i)
        checkRequest(dispatcher, message.request(i), subscriptions);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    ensureCoreApplication();
    static FuzzService service;
    static const IpcDispatcher dispatcher(service, QObject::staticMetaObject,
                                          QStringLiteral("fuzz"));
    if (size == 0)
        return 0;
    const qsizetype piece = std::max<qsizetype>(data[0], 1);
    const QByteArray bytes(reinterpret_cast<const char*>(data) + 1,
                           static_cast<qsizetype>(size) - 1);
    LineBuffer buffer;
    IpcSubscriptions subscriptions;
    qsizetype taken = 0;
    for (qsizetype at = 0; at < bytes.size(); at += piece) {
        buffer.append(bytes.mid(at, piece));
        while (buffer.hasLine()) {
            const QByteArrayView line = buffer.takeLine();
            require(line == bytes.mid(taken, line.size()), "lines are the bytes that arrived");
            taken += line.size() + 1;
            if (!line.trimmed().isEmpty())
                checkLine(dispatcher, line, subscriptions);
        }
    }
    require(taken + buffer.lineSize() == bytes.size(), "no byte is lost");
    return 0;
}
