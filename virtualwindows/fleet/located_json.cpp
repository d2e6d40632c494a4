// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "located_json.h"

#include "message_text.h"
#include "virtualwindows/fleet.h"

#include <QtCore/QRegularExpression>

#include <json/reader.h>

#include <algorithm>
#include <cctype>
#include <limits>
#include <memory>

using virtualwindows::listed;
using virtualwindows::shortened;

namespace {

QString fromStd(const std::string& text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString quoted(const QString& text)
{
    return QLatin1Char('"') + shortened(text) + QLatin1Char('"');
}

} // namespace

LocatedJson::LocatedJson(const QByteArray& text, const QString& name, int firstLine)
    : m_text(text)
    , m_name(name)
    , m_firstLine(firstLine)
{
    checkLimits();
    Json::CharReaderBuilder builder;
    Json::CharReaderBuilder::strictMode(&builder.settings_);
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    std::string report;
    const char* begin = m_text.constData();
    if (!reader->parse(begin, begin + m_text.size(), &m_root, &report))
        failAsReported(report);
}

void LocatedJson::fail(int line, const QString& what) const
{
    throw virtualwindows::FleetError(virtualwindows::escaped(
        m_name + QLatin1Char(':') + QString::number(line) + QStringLiteral(": ") + what));
}

/// JsonCpp recurses for each level, and its values take many times the memory of their text. So
/// levels and values are counted before it parses the text.
void LocatedJson::checkLimits() const
{
    constexpr int maxDepth = 32;
    constexpr int maxValues = 1'000'000;
    int depth = 0;
    int values = 1;
    int line = m_firstLine;
    bool isInString = false;
    for (qsizetype place = 0; place < m_text.size(); ++place) {
        const char character = m_text.at(place);
        if (character == '\n')
            ++line;
        if (isInString) {
            if (character == '\\')
                ++place;
            else if (character == '"')
                isInString = false;
            continue;
        }
        if (character == '"')
            isInString = true;
        else if (character == '[' || character == '{')
            ++depth;
        else if (character == ']' || character == '}')
            --depth;
        if (depth > maxDepth)
            fail(line,
                 QStringLiteral("expected at most %1 levels of lists and objects").arg(maxDepth));
        // Each value but the first of a list or an object has a comma before it.
        if (character == ',' || character == '[' || character == '{')
            ++values;
        if (values > maxValues)
            fail(line, QStringLiteral("expected at most %1 values").arg(maxValues));
    }
}

/// JsonCpp's report begins with "* Line 3, Column 5", and its second line says what is wrong.
void LocatedJson::failAsReported(const std::string& report) const
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(\* Line (\d+), Column \d+\n\s*([^\n]*))"));
    const QRegularExpressionMatch match = pattern.match(fromStd(report));
    if (!match.hasMatch())
        fail(m_firstLine, QStringLiteral("not JSON: expected an object"));
    constexpr qsizetype maxLength = 200; // a report quotes the text that it does not understand
    fail(m_firstLine - 1 + match.captured(1).toInt(),
         QStringLiteral("not JSON: ") + shortened(match.captured(2), maxLength));
}

int LocatedJson::lineAt(qsizetype offset) const
{
    return m_firstLine +
           static_cast<int>(m_text.first(std::min(offset, m_text.size())).count('\n'));
}

int LocatedJson::lineOf(const Json::Value& value) const
{
    return lineAt(static_cast<qsizetype>(value.getOffsetStart()));
}

JsonPlace::JsonPlace(const LocatedJson& file, const Json::Value& value, const QString& path)
    : m_file(&file)
    , m_value(&value)
    , m_path(path)
{}

void JsonPlace::fail(const QString& what) const
{
    m_file->fail(m_file->lineOf(*m_value),
                 m_path.isEmpty() ? what : m_path + QStringLiteral(": ") + what);
}

QString JsonPlace::found() const
{
    switch (m_value->type()) {
    case Json::nullValue:
        return QStringLiteral("null");
    case Json::objectValue:
        return QStringLiteral("an object");
    case Json::arrayValue:
        return QStringLiteral("a list");
    case Json::stringValue:
        return quoted(fromStd(m_value->asString()));
    default:
        return shortened(fromStd(m_value->asString()));
    }
}

void JsonPlace::expectKeys(const QStringList& required, const QStringList& allowed) const
{
    if (!m_value->isObject())
        fail(QStringLiteral("expected an object, found ") + found());
    const QStringList present = keys();
    for (const QString& key : present) {
        if (!required.contains(key) && !allowed.contains(key))
            at(key.toUtf8())
                .fail(QStringLiteral("unknown key; expected one of ") + listed(required + allowed));
    }
    for (const QString& key : required) {
        if (!present.contains(key))
            fail(QStringLiteral("expected the key ") + quoted(key));
    }
}

JsonPlace JsonPlace::at(const QByteArray& key) const
{
    // JsonCpp would throw an error of its own.
    if (!m_value->isObject() && !m_value->isNull())
        fail(QStringLiteral("expected an object, found ") + found());
    const QString name = shortened(QString::fromUtf8(key));
    const Json::Value* value = m_value->find(key.begin(), key.end());
    return {*m_file, value ? *value : Json::Value::nullSingleton(),
            m_path.isEmpty() ? name : m_path + QLatin1Char('.') + name};
}

QList<JsonPlace> JsonPlace::entries() const
{
    if (!m_value->isArray())
        fail(QStringLiteral("expected a list, found ") + found());
    QList<JsonPlace> places;
    for (Json::ArrayIndex index = 0; index < m_value->size(); ++index)
        places.append(
            {*m_file, (*m_value)[index], QStringLiteral("%1[%2]").arg(m_path).arg(index)});
    return places;
}

QStringList JsonPlace::keys() const
{
    if (!m_value->isObject())
        fail(QStringLiteral("expected an object, found ") + found());
    std::vector<std::string> names = m_value->getMemberNames();
    std::sort(names.begin(), names.end(), [&](const std::string& left, const std::string& right) {
        return (*m_value)[left].getOffsetStart() < (*m_value)[right].getOffsetStart();
    });
    QStringList keys;
    for (const std::string& name : names)
        keys.append(fromStd(name));
    return keys;
}

QString JsonPlace::text() const
{
    if (!m_value->isString())
        fail(QStringLiteral("expected a string, found ") + found());
    return fromStd(m_value->asString());
}

QString JsonPlace::nonEmptyText() const
{
    const QString value = text();
    if (value.isEmpty())
        fail(QStringLiteral("expected a non-empty string"));
    return value;
}

quint32 JsonPlace::number() const
{
    if (!m_value->isUInt())
        fail(QStringLiteral("expected a whole number between 0 and %1, found %2")
                 .arg(std::numeric_limits<quint32>::max())
                 .arg(found()));
    return m_value->asUInt();
}

double JsonPlace::seconds() const
{
    constexpr double maxSeconds = 366.0 * 24 * 3600;
    if (!m_value->isNumeric() || m_value->asDouble() < 0 || m_value->asDouble() > maxSeconds)
        fail(QStringLiteral("expected a number of seconds between 0 and one year, found ") +
             found());
    return m_value->asDouble();
}

bool JsonPlace::flag() const
{
    if (!m_value->isBool())
        fail(QStringLiteral("expected true or false, found ") + found());
    return m_value->asBool();
}

QByteArray JsonPlace::hexBytes() const
{
    const QByteArray digits = text().toUtf8();
    const bool areDigits = std::all_of(digits.begin(), digits.end(), [](char digit) {
        return std::isxdigit(static_cast<unsigned char>(digit)) != 0;
    });
    if (digits.size() % 2 != 0 || !areDigits)
        fail(QStringLiteral("expected bytes as pairs of hexadecimal digits, found ") + found());
    return QByteArray::fromHex(digits);
}

QByteArray JsonPlace::base64Bytes() const
{
    const auto bytes =
        QByteArray::fromBase64Encoding(text().toUtf8(), QByteArray::AbortOnBase64DecodingErrors);
    if (!bytes)
        fail(QStringLiteral("expected bytes in Base64, found ") + found());
    return *bytes;
}

QVariant JsonPlace::variant() const
{
    switch (m_value->type()) {
    case Json::nullValue:
        return {};
    case Json::booleanValue:
        return m_value->asBool();
    case Json::stringValue:
        return fromStd(m_value->asString());
    case Json::intValue:
        return QVariant::fromValue<qlonglong>(m_value->asInt64());
    case Json::uintValue:
        if (m_value->isInt64())
            return QVariant::fromValue<qlonglong>(m_value->asInt64());
        return QVariant::fromValue<qulonglong>(m_value->asUInt64());
    case Json::realValue:
        return m_value->asDouble();
    default:
        fail(QStringLiteral("expected null, true, false, a number or a string, found ") + found());
    }
}
