// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_dispatcher.h"

#include "json_writer.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QPromise>

#include <memory>

namespace {

bool canBeId(const QJsonValue& id)
{
    return id.isDouble() || id.isNull() ||
           (id.isString() && id.toString().size() <= json_rpc::maximumText);
}

/// A request's members, each looked up once.
struct Request
{
    QJsonValue version;
    QJsonValue method;
    QJsonValue parameters;
    QJsonValue id;
};

Request readRequest(const QJsonObject& object)
{
    return {object.value(QLatin1String("jsonrpc")), object.value(QLatin1String("method")),
            object.value(QLatin1String("params")), object.value(QLatin1String("id"))};
}

/// Why `request` is invalid; empty if it is valid.
QString defectOf(const Request& request)
{
    if (request.version.toString() != QLatin1String("2.0"))
        return QStringLiteral("\"jsonrpc\" must be \"2.0\"");
    if (!request.method.isString())
        return QStringLiteral("\"method\" must be a text");
    if (!request.id.isUndefined() && !canBeId(request.id))
        return QStringLiteral("\"id\" must be a text of at most %1 characters, a number or null")
            .arg(json_rpc::maximumText);
    if (!request.parameters.isUndefined() && !request.parameters.isArray() &&
        !request.parameters.isObject())
        return QStringLiteral("\"params\" must be a list or an object");
    return {};
}

/// Whether `line` holds more values than an endpoint reads, nested ones included. For a line that
/// is not JSON the answer may be either.
bool hasTooManyValues(QByteArrayView line)
{
    if (line.size() <= json_rpc::maximumLineValues)
        return false;
    qsizetype values = 1;
    bool isInText = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        const char character = line[i];
        if (isInText && character == '\\')
            ++i; // the next character is part of the text, even a quotation mark
        else if (character == '"')
            isInText = !isInText;
        else if (!isInText && (character == ',' || character == '[' || character == '{'))
            ++values;
    }
    return values > json_rpc::maximumLineValues;
}

QByteArray invalidRequest(const QJsonValue& id, const QString& defect)
{
    return json_rpc::failure(
        canBeId(id) ? id : QJsonValue(QJsonValue::Null),
        {json_rpc::InvalidRequest, QStringLiteral("Invalid Request: ") + defect, {}});
}

} // namespace

IpcDispatcher::IpcDispatcher(QObject& object, const QMetaObject& base, QString title)
    : m_methods(object, base)
    , m_signals(object, base)
    , m_title(std::move(title))
{
    // A single thread, so that many clients that send long lines get no more of the machine than
    // one.
    m_background.setMaxThreadCount(1);
    m_background.setThreadPriority(QThread::LowPriority);
}

IpcDispatcher::~IpcDispatcher()
{
    m_background.clear();
}

IpcDispatcher::Message IpcDispatcher::parse(QByteArrayView line)
{
    Message message;
    if (hasTooManyValues(line)) {
        message.failure = invalidRequest(
            QJsonValue::Null,
            QStringLiteral("the line holds more than %1 values").arg(json_rpc::maximumLineValues));
        return message;
    }
    QJsonParseError error;
    const QJsonDocument document =
        QJsonDocument::fromJson(QByteArray::fromRawData(line.data(), line.size()), &error);
    if (error.error != QJsonParseError::NoError) {
        message.failure =
            json_rpc::failure(QJsonValue::Null, {json_rpc::ParseError,
                                                 QStringLiteral("Parse error: %1 at byte %2")
                                                     .arg(error.errorString())
                                                     .arg(error.offset),
                                                 {}});
    } else if (document.isObject()) {
        message.content = document.object();
        message.size = 1;
    } else if (const QJsonArray batch = document.array(); !batch.isEmpty()) {
        message.content = batch;
        message.size = batch.size();
    } else {
        message.failure = invalidRequest(QJsonValue::Null, QStringLiteral("the batch is empty"));
    }
    return message;
}

QFuture<IpcDispatcher::Message> IpcDispatcher::parseInBackground(QByteArray line)
{
    // Shared, because the pool wants to be able to copy what it runs.
    const auto promise = std::make_shared<QPromise<Message>>();
    promise->start();
    m_background.start([promise, line = std::move(line)] {
        Message message = parse(line);
        message.isLong = true;
        promise->addResult(std::move(message));
        promise->finish();
    });
    return promise->future();
}

void IpcDispatcher::discardInBackground(Message message)
{
    m_background.start([message = std::move(message)] { Q_UNUSED(message) });
}

std::optional<QByteArray> IpcDispatcher::handle(const QJsonValue& value,
                                                IpcSubscriptions& subscriptions) const
{
    if (!value.isObject())
        return invalidRequest(QJsonValue::Null, QStringLiteral("a request is an object"));
    const Request request = readRequest(value.toObject());
    if (const QString defect = defectOf(request); !defect.isEmpty())
        return invalidRequest(request.id, defect);

    const IpcMethodTable::Outcome outcome =
        call(request.method.toString(), request.parameters, subscriptions);
    if (request.id.isUndefined())
        return std::nullopt;
    QByteArray answer = outcome.error ? json_rpc::failure(request.id, *outcome.error)
                                      : json_rpc::success(request.id, outcome.result);
    if (answer.size() <= json_rpc::maximumAnswers)
        return answer;
    return json_rpc::failure(
        request.id,
        {json_rpc::AnswerTooLong,
         QStringLiteral("Answer too long: at most %1 bytes are sent").arg(json_rpc::maximumAnswers),
         {}});
}

IpcMethodTable::Outcome IpcDispatcher::call(const QString& method, const QJsonValue& parameters,
                                            IpcSubscriptions& subscriptions) const
{
    if (method == QLatin1String("rpc.discover"))
        return {describe(), std::nullopt};
    if (method == QLatin1String("rpc.subscribe"))
        return subscribe(parameters, true, subscriptions);
    if (method == QLatin1String("rpc.unsubscribe"))
        return subscribe(parameters, false, subscriptions);
    return m_methods.call(method, parameters);
}

IpcMethodTable::Outcome IpcDispatcher::subscribe(const QJsonValue& parameters, bool isToReceive,
                                                 IpcSubscriptions& subscriptions) const
{
    IpcSignalTable::Selection selection = m_signals.select(parameters);
    if (selection.error)
        return {{}, std::move(selection.error)};
    if (isToReceive)
        subscriptions.unite(selection.places);
    else
        subscriptions.subtract(selection.places);
    JsonWriter names;
    names.value(QJsonArray::fromStringList(m_signals.names(subscriptions)));
    return {names.json(), std::nullopt};
}

QByteArray IpcDispatcher::describe() const
{
    QJsonObject records;
    QJsonObject document{{QStringLiteral("methods"), m_methods.describe(records)},
                         {QStringLiteral("x-signals"), m_signals.describe(records)}};
    document.insert(QStringLiteral("components"),
                    QJsonObject{{QStringLiteral("schemas"), records}});
    document.insert(QStringLiteral("openrpc"), QStringLiteral("1.2.6"));
    document.insert(
        QStringLiteral("info"),
        QJsonObject{{QStringLiteral("title"), m_title},
                    {QStringLiteral("version"), QStringLiteral("1.0.0")},
                    {QStringLiteral("x-process"), QCoreApplication::applicationPid()},
                    {QStringLiteral("x-application"), QCoreApplication::applicationName()}});
    return QJsonDocument(document).toJson(QJsonDocument::Compact);
}
