// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QJsonValue>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

/// JSON on one line, with the keys of objects in the given order. Characters that are not printable
/// are escaped.
namespace json_text {

using Member = std::pair<QString, QString>;

QString value(const QJsonValue& value);
/// Null for a value that is none.
template <typename Value>
QJsonValue orNull(const std::optional<Value>& value)
{
    return value ? QJsonValue(*value) : QJsonValue();
}
/// Null for a text that is empty.
inline QJsonValue orNull(const QString& text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}
/// Of members whose values are JSON already.
QString object(const QList<Member>& members);
/// Of elements that are JSON already.
QString array(const QStringList& elements);
/// The same with one element per line.
QString lines(const QStringList& elements);

} // namespace json_text
