// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QString>

namespace VxKit {

class CasePseudonyms;

/// The values of drivers, as case files hold them.
namespace case_values {

/// The name of a value that the library reads, or a pseudonym.
QString safeName(const QString& name, CasePseudonyms& names);

/// The name of a value that the library reads, as the library spells it; empty for another one.
QString readName(const QString& name);

/// What the library reads from a value: a text, or a number as a text. Empty when the library does
/// not accept it.
QString published(const QJsonObject& value);

/// A value that the library reads like the given one, without texts that could identify anybody.
QJsonObject redacted(const QJsonObject& value, CasePseudonyms& names);

} // namespace case_values
} // namespace VxKit
