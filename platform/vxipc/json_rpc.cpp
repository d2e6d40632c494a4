// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "json_rpc.h"

#include "json_writer.h"

namespace json_rpc {

Error invalidParams(const QString& message, const QJsonObject& data)
{
    return {InvalidParams, QStringLiteral("Invalid params: ") + message, data};
}

QString excerpt(const QString& name)
{
    constexpr qsizetype longestShown = 100;
    if (name.size() <= longestShown)
        return name;
    // Keep surrogate pairs whole.
    return name.first(name.at(longestShown - 1).isHighSurrogate() ? longestShown - 1
                                                                  : longestShown) +
           QStringLiteral("…");
}

QByteArray request(const QString& method, const QJsonValue& parameters, std::optional<qint64> id)
{
    JsonWriter line;
    line.raw("{");
    if (id) {
        line.raw(R"("id":)");
        line.number(*id);
        line.raw(",");
    }
    line.raw(R"("jsonrpc":"2.0","method":)");
    line.text(method);
    if (parameters.isArray() || parameters.isObject()) {
        line.raw(R"(,"params":)");
        line.value(parameters);
    }
    line.raw("}\n");
    return line.json();
}

QByteArray success(const QJsonValue& id, QByteArrayView result)
{
    JsonWriter line;
    line.raw(R"({"id":)");
    line.value(id);
    line.raw(R"(,"jsonrpc":"2.0","result":)");
    line.raw(result);
    line.raw("}\n");
    return line.json();
}

QByteArray failure(const QJsonValue& id, const Error& error)
{
    QJsonObject object = {{QStringLiteral("code"), error.code},
                          {QStringLiteral("message"), error.message}};
    if (!error.data.isEmpty())
        object.insert(QStringLiteral("data"), error.data);
    JsonWriter line;
    line.raw(R"({"error":)");
    line.value(object);
    line.raw(R"(,"id":)");
    line.value(id);
    line.raw(",\"jsonrpc\":\"2.0\"}\n");
    return line.json();
}

} // namespace json_rpc
