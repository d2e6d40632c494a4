// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// Reads `texts` as the arguments of the method `name` in the OpenRPC document `service` of
/// `endpoint`, and returns them in the types of the method's parameters. Throws `Failure` if they
/// fit no method of that name.
///
/// Arguments for text parameters are taken as they are, all others are read as JSON. Of several
/// overloads that fit, the one with the fewest text parameters is chosen.
QJsonArray readArguments(const QString& endpoint, const QJsonObject& service, const QString& name,
                         const QStringList& texts);

/// How to call a method of the document: "name(argument: type, [argument: type])", with optional
/// arguments in brackets. For a signal what it carries, in the same form.
QString signature(const QJsonObject& method);
