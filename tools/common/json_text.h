// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QJsonValue>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// JSON on one line, with the keys of objects in the given order. Characters that are not printable
/// are escaped.
namespace json_text {

using Member = std::pair<QString, QString>;

QString value(const QJsonValue& value);
/// Of members whose values are JSON already.
QString object(const QList<Member>& members);
/// Of elements that are JSON already.
QString array(const QStringList& elements);
/// The same with one element per line.
QString lines(const QStringList& elements);

} // namespace json_text
