// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>
#include <QtCore/QString>

#include <optional>

/// What endpoints and clients share about JSON-RPC 2.0.
namespace json_rpc {

enum ErrorCode : int
{
    ParseError = -32700,
    InvalidRequest = -32600,
    MethodNotFound = -32601,
    InvalidParams = -32602,
    // From here on the codes that the standard leaves to servers.
    LineTooLong = -32000,
    TooManyClients = -32001,
    AnswerTooLong = -32002,
    Refused = -32003,
};

inline constexpr qsizetype maximumLine = qsizetype{1} << 20;
/// Once parsed, small values take up to 40 times as much memory as their line.
inline constexpr qsizetype maximumLineValues = 65536;
inline constexpr qsizetype maximumClients = 64;
inline constexpr qsizetype maximumAnswers = qsizetype{4} << 20;
/// What an argument may hold, so that no call takes the endpoint's thread for long: characters of a
/// text, entries of a list or members of an object, and values in all where these are nested.
inline constexpr qsizetype maximumText = 4096;
inline constexpr qsizetype maximumEntries = 64;
inline constexpr qsizetype maximumValues = 1024;

/// The error object of an answer.
struct Error
{
    int code = 0;
    QString message;
    QJsonObject data;
};

/// The error of a call whose parameters do not fit.
Error invalidParams(const QString& message, const QJsonObject& data = {});
/// The part of a name from a client that an error message repeats.
QString excerpt(const QString& name);

/// Messages, each as the line that is sent.

/// Without an id it is a notification. Parameters that are neither list nor object are left out.
QByteArray request(const QString& method, const QJsonValue& parameters, std::optional<qint64> id);
/// With the result as JSON.
QByteArray success(const QJsonValue& id, QByteArrayView result);
QByteArray failure(const QJsonValue& id, const Error& error);

} // namespace json_rpc
