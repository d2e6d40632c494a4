// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <optional>

class JsonWriter;

/// Converts the arguments and results of slots from and to JSON.
namespace ipc_values {

/// How well a JSON value fits a type. The best fit selects the overload.
enum class Fit : int
{
    None,
    /// Fits in an alternative form, such as an integer as decimal text.
    Lenient,
    Exact,
};

struct Converted
{
    Fit fit = Fit::None;
    /// Of the requested type; invalid if the JSON value does not fit.
    QVariant value;
    /// What is expected instead, for the error message; empty if the JSON value fits.
    QString expected;
};

/// A bound that a value exceeds.
struct Excess
{
    /// What the bound allows, for the error message, and the size that was found.
    QString expected;
    qsizetype found = 0;
};

/// The first of the bounds on arguments from other processes that `json` exceeds.
std::optional<Excess> excessOf(const QJsonValue& json);

/// Whether values of `type` can be passed, as arguments or as results.
bool isSupported(QMetaType type);

Converted fromJson(const QJsonValue& json, QMetaType type);
/// Appends `value`, or null if its type is not supported.
void write(JsonWriter& json, const QVariant& value);

/// The JSON Schema of `type`. Records are named by reference, and their own schema is added to
/// `records` under their name.
QJsonObject schema(QMetaType type, QJsonObject& records);

/// The kind of value in words, for error messages: "a text", "a number", …
QString kindOf(const QJsonValue& json);

} // namespace ipc_values
