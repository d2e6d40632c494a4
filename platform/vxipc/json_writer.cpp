// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "json_writer.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QStringConverter>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace {

/// Whether a character is certainly written as it is. Half a surrogate pair is not, as UTF-8 cannot
/// encode it.
bool isPlain(QChar character)
{
    return character >= u' ' && character != u'"' && character != u'\\' && !character.isSurrogate();
}

/// The JSON that Qt writes for a value that this writer has no faster way for.
QByteArray writtenByQt(const QJsonValue& value)
{
    return QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).mid(1).chopped(1);
}

} // namespace

void JsonWriter::text(QStringView text)
{
    if (!std::ranges::all_of(text, isPlain)) {
        raw(writtenByQt(text.toString()));
        return;
    }
    QStringEncoder encoder(QStringEncoder::Utf8);
    char* end = room(encoder.requiredSpace(text.size()) + 2);
    *end++ = '"';
    end = encoder.appendToBuffer(end, text);
    *end++ = '"';
    m_json.resize(end - m_json.data());
}

char* JsonWriter::room(qsizetype size)
{
    // At least double the capacity: with smaller steps, a long list would be copied too often.
    if (m_json.capacity() < m_json.size() + size)
        m_json.reserve(std::max(m_json.size() + size, 2 * m_json.capacity()));
    return m_json.data() + m_json.size();
}

template <typename Number>
void JsonWriter::digits(Number number)
{
    // No number is longer.
    constexpr qsizetype longestNumber = 32;
    char* begin = room(longestNumber);
    const auto [end, error] = std::to_chars(begin, begin + longestNumber, number);
    m_json.resize(end - m_json.data());
}

void JsonWriter::number(qint64 number)
{
    digits(number);
}

void JsonWriter::number(double number)
{
    if (std::isfinite(number))
        digits(number);
    else
        raw("null");
}

void JsonWriter::value(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Array: {
        const char* separator = "[";
        const QJsonArray array = value.toArray();
        for (const QJsonValue& entry : array) {
            raw(separator);
            this->value(entry);
            separator = ",";
        }
        raw(array.isEmpty() ? "[]" : "]");
        return;
    }
    case QJsonValue::Object: {
        const char* separator = "{";
        const QJsonObject object = value.toObject();
        for (auto member = object.begin(); member != object.end(); ++member) {
            raw(separator);
            text(member.key());
            raw(":");
            this->value(member.value());
            separator = ",";
        }
        raw(object.isEmpty() ? "{}" : "}");
        return;
    }
    case QJsonValue::String:
        text(value.toString());
        return;
    case QJsonValue::Double:
        // A whole number may have more digits than a double holds.
        if (const qint64 whole = value.toInteger(0); whole != 0 && std::isfinite(value.toDouble()))
            number(whole);
        else
            number(value.toDouble());
        return;
    case QJsonValue::Bool:
        raw(value.toBool() ? "true" : "false");
        return;
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        raw("null");
    }
}
