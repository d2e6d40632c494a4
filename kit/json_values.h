// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QJsonValue>
#include <QtCore/QString>

#include <optional>

namespace VxKit {

/// What is not known is null in JSON: an empty text, and a value that is none.
inline QJsonValue textOrNull(const QString& text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

template <typename Value>
QJsonValue valueOrNull(const std::optional<Value>& value)
{
    return value ? QJsonValue(*value) : QJsonValue();
}

} // namespace VxKit
