// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "arguments.h"

#include "failure.h"
#include "tool_text.h"

#include <QtCore/QJsonDocument>

#include <optional>

namespace {

QString typeOf(const QJsonObject& parameter)
{
    const QJsonValue type = parameter[QStringLiteral("schema")][QStringLiteral("type")];
    // A 64-bit integer may be a number or a string.
    return type.isArray() ? type[0].toString() : type.toString();
}

QJsonValue parseJson(const QString& text)
{
    const QJsonDocument document =
        QJsonDocument::fromJson(QByteArray(1, '[') + text.toUtf8() + ']');
    const QJsonArray array = document.array();
    return array.size() == 1 ? array.first() : QJsonValue(QJsonValue::Undefined);
}

/// Undefined if the text is not of the parameter's type.
QJsonValue parse(const QString& text, const QJsonObject& parameter)
{
    const QString type = typeOf(parameter);
    if (type == QStringLiteral("string"))
        return text;
    const QJsonValue value = parseJson(text);
    // A record, or any type at all: leave it to the service to check.
    if (type.isEmpty())
        return value.isUndefined() ? QJsonValue(text) : value;
    const bool fits = type == QStringLiteral("boolean")  ? value.isBool()
                      : type == QStringLiteral("array")  ? value.isArray()
                      : type == QStringLiteral("object") ? value.isObject()
                                                         : value.isDouble();
    return fits ? value : QJsonValue(QJsonValue::Undefined);
}

std::optional<QJsonArray> readFor(const QJsonObject& method, const QStringList& texts)
{
    const QJsonArray parameters = method[QStringLiteral("params")].toArray();
    if (texts.size() > parameters.size())
        return std::nullopt;
    QJsonArray values;
    for (qsizetype i = 0; i < parameters.size(); ++i) {
        const QJsonObject parameter = parameters.at(i).toObject();
        if (i >= texts.size()) {
            if (parameter[QStringLiteral("required")].toBool())
                return std::nullopt;
            break;
        }
        const QJsonValue value = parse(texts.at(i), parameter);
        if (value.isUndefined())
            return std::nullopt;
        // A number that a double cannot hold is sent as text, which services accept.
        const bool isExact = !value.isDouble() || value == QJsonValue(value.toInteger());
        values.append(isExact || typeOf(parameter) == QStringLiteral("number")
                          ? value
                          : QJsonValue(texts.at(i)));
    }
    return values;
}

qsizetype countTexts(const QJsonObject& method)
{
    qsizetype count = 0;
    for (const QJsonArray list = method[QStringLiteral("params")].toArray();
         const QJsonValue& parameter : list)
        count += typeOf(parameter.toObject()) == QStringLiteral("string") ? 1 : 0;
    return count;
}

} // namespace

QString signature(const QJsonObject& method)
{
    QStringList parameters;
    for (const QJsonArray list = method[QStringLiteral("params")].toArray();
         const QJsonValue& parameter : list) {
        const QString text =
            QStringLiteral("%1: %2").arg(parameter[QStringLiteral("name")].toString(),
                                         parameter[QStringLiteral("x-type")].toString());
        // The arguments of a signal are always there.
        parameters.append(parameter[QStringLiteral("required")].toBool(true)
                              ? text
                              : QStringLiteral("[%1]").arg(text));
    }
    return QStringLiteral("%1(%2)").arg(method[QStringLiteral("name")].toString(),
                                        parameters.join(QStringLiteral(", ")));
}

QJsonArray readArguments(const QString& endpoint, const QJsonObject& service, const QString& name,
                         const QStringList& texts)
{
    std::optional<QJsonArray> best;
    qsizetype fewestTexts = 0;
    QStringList signatures;
    for (const QJsonArray methods = service[QStringLiteral("methods")].toArray();
         const QJsonValue& entry : methods) {
        const QJsonObject method = entry.toObject();
        if (method[QStringLiteral("name")].toString() != name)
            continue;
        signatures.append(signature(method));
        const std::optional<QJsonArray> values = readFor(method, texts);
        const qsizetype textCount = countTexts(method);
        if (values && (!best || textCount < fewestTexts)) {
            best = values;
            fewestTexts = textCount;
        }
    }
    if (best)
        return *best;
    const QString reason = signatures.isEmpty() ? ToolText::tr("there is no method %1").arg(name)
                                                : ToolText::tr("the arguments do not fit %1")
                                                      .arg(signatures.join(ToolText::tr(" or ")));
    throw Failure(QStringLiteral("%1: %2").arg(endpoint, reason));
}
