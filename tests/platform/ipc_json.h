// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QString>

/// JSON as the tests of an endpoint write and read it.
namespace ipc_json {

inline QJsonValue parsed(const QByteArray& json)
{
    return QJsonDocument::fromJson('[' + json + ']').array().first();
}

inline QJsonObject object(const QByteArray& line)
{
    return QJsonDocument::fromJson(line).object();
}

inline int errorCode(const QJsonObject& answer)
{
    return answer[QStringLiteral("error")][QStringLiteral("code")].toInt();
}

inline QString errorMessage(const QJsonObject& answer)
{
    return answer[QStringLiteral("error")][QStringLiteral("message")].toString();
}

inline QByteArray textOfSize(qsizetype size)
{
    return '"' + QByteArray(size, 'x') + '"';
}

/// `count` equal entries of a list, without its brackets.
inline QByteArray entries(qsizetype count, const QByteArray& entry)
{
    return entry + (',' + entry).repeated(count - 1);
}

/// A list of `count` equal entries.
inline QByteArray list(qsizetype count, const QByteArray& entry)
{
    return '[' + entries(count, entry) + ']';
}

} // namespace ipc_json
