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

/// How the values of slots cross as JSON.
namespace IpcValues {

/// How well a JSON value fits a type; the better fit decides between overloads.
enum class Fit : int
{
    None,
    /// Fits through a second form, such as an integer as decimal text.
    Lenient,
    Exact,
};

struct Converted
{
    Fit fit = Fit::None;
    /// Holds the type that was asked for, unless nothing fitted.
    QVariant value;
    /// What would have fitted, for the error message; empty when something did.
    QString expected;
};

/// A bound that a value exceeds.
struct Excess
{
    /// What is within the bound, and how many of what it counts there are instead.
    QString expected;
    qsizetype found = 0;
};

/// The first bound on what another process may send as an argument that `json` exceeds.
std::optional<Excess> excessOf(const QJsonValue& json);

/// Whether values of `type` can cross: as an argument too, or as a result.
bool isSupported(QMetaType type);

Converted fromJson(const QJsonValue& json, QMetaType type);
/// Appends `value`; as null when its type cannot cross.
void write(JsonWriter& json, const QVariant& value);

/// The JSON Schema of `type`. Records are named by reference, and their own schema is added to
/// `records` under their name.
QJsonObject schema(QMetaType type, QJsonObject& records);

/// The kind of value in words, for error messages: "a text", "a number", …
QString kindOf(const QJsonValue& json);

} // namespace IpcValues
