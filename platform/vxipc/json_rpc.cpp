// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "json_rpc.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <algorithm>

namespace JsonRpc {
namespace {

bool isPlain(QChar character)
{
    return character >= u' ' && character <= u'~' && character != u'"' && character != u'\\';
}

/// Appends a value as JSON. Most are texts that need no escaping, whole numbers and lists of them.
void append(QByteArray& json, const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Object:
        json += QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact);
        return;
    case QJsonValue::Array: {
        json += '[';
        const qsizetype begin = json.size();
        for (const QJsonArray array = value.toArray(); const QJsonValue& entry : array) {
            if (json.size() > begin)
                json += ',';
            append(json, entry);
        }
        json += ']';
        return;
    }
    case QJsonValue::String:
        if (const QString text = value.toString(); std::ranges::all_of(text, isPlain)) {
            json += '"';
            for (const QChar character : text)
                json += character.toLatin1();
            json += '"';
            return;
        }
        break;
    case QJsonValue::Double:
        if (const qint64 number = value.toInteger(0); number != 0) {
            json += QByteArray::number(number);
            return;
        }
        break;
    default:
        break;
    }
    json += QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).mid(1).chopped(1);
}

/// An empty line with room for what most messages have.
QByteArray newLine()
{
    QByteArray line;
    line.reserve(256);
    return line;
}

} // namespace

QByteArray request(const QString& method, const QJsonValue& parameters, std::optional<qint64> id)
{
    QByteArray line = newLine();
    line += '{';
    if (id) {
        line += "\"id\":";
        line += QByteArray::number(*id);
        line += ',';
    }
    line += R"("jsonrpc":"2.0","method":)";
    append(line, method);
    if (parameters.isArray() || parameters.isObject()) {
        line += R"(,"params":)";
        append(line, parameters);
    }
    line += "}\n";
    return line;
}

QByteArray success(const QJsonValue& id, const QJsonValue& result)
{
    QByteArray line = newLine();
    line += R"({"id":)";
    append(line, id);
    line += R"(,"jsonrpc":"2.0","result":)";
    append(line, result);
    line += "}\n";
    return line;
}

QByteArray failure(const QJsonValue& id, const Error& error)
{
    QJsonObject object = {{QStringLiteral("code"), error.code},
                          {QStringLiteral("message"), error.message}};
    if (!error.data.isEmpty())
        object.insert(QStringLiteral("data"), error.data);
    QByteArray line = newLine();
    line += R"({"error":)";
    append(line, object);
    line += R"(,"id":)";
    append(line, id);
    line += ",\"jsonrpc\":\"2.0\"}\n";
    return line;
}

} // namespace JsonRpc
