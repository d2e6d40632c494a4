// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

/// The arguments of a call, as they are typed, in the types of the method's parameters.
struct Arguments
{
    QJsonArray values;
    /// One line for people when the texts fit no method of the name.
    std::optional<QString> error;
};

/// Reads `texts` as arguments of the method `name` in the OpenRPC document `service`.
///
/// A text argument is taken as it is typed, everything else as JSON. Of overloads, the one that
/// takes the texts with the fewest left as texts is meant.
Arguments readArguments(const QJsonObject& service, const QString& name, const QStringList& texts);

/// How a method of the document is called, for people: "name(argument: type, [argument: type])"
/// with what may be left out in brackets.
QString signature(const QJsonObject& method);
