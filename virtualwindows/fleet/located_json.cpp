// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "located_json.h"

#include "message_text.h"

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

/// The reader's own report begins "* Line 3, Column 5", and its next line says what is wrong.
JsonComplaint complaintOf(const std::string& report)
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(\* Line (\d+), Column \d+\n\s*([^\n]*))"));
    const QRegularExpressionMatch match = pattern.match(fromStd(report));
    if (!match.hasMatch())
        return {1, QStringLiteral("not JSON: expected an object")};
    constexpr qsizetype longest = 200; // a report repeats what it does not understand
    return {match.captured(1).toInt(),
            QStringLiteral("not JSON: ") + shortened(match.captured(2), longest)};
}

/// The reader calls itself for each level, and a value in memory is many times as large as in the
/// file; so both are counted before it reads.
void expectWithinLimits(const QByteArray& text)
{
    constexpr int deepest = 32;
    constexpr int most = 1'000'000;
    int depth = 0;
    int values = 1;
    int line = 1;
    bool isInText = false;
    for (qsizetype place = 0; place < text.size(); ++place) {
        const char character = text.at(place);
        if (character == '\n')
            ++line;
        if (isInText) {
            if (character == '\\')
                ++place;
            else if (character == '"')
                isInText = false;
            continue;
        }
        if (character == '"')
            isInText = true;
        else if (character == '[' || character == '{')
            ++depth;
        else if (character == ']' || character == '}')
            --depth;
        if (depth > deepest)
            throw JsonComplaint{
                line, QStringLiteral("expected at most %1 lists and objects within each other")
                          .arg(deepest)};
        // Each value but the first of a list or an object has a comma before it.
        if (character == ',' || character == '[' || character == '{')
            ++values;
        if (values > most)
            throw JsonComplaint{line, QStringLiteral("expected at most %1 values").arg(most)};
    }
}

} // namespace

LocatedJson::LocatedJson(const QByteArray& text)
    : m_text(text)
{
    expectWithinLimits(m_text);
    Json::CharReaderBuilder builder;
    Json::CharReaderBuilder::strictMode(&builder.settings_);
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    std::string report;
    const char* begin = m_text.constData();
    if (!reader->parse(begin, begin + m_text.size(), &m_root, &report))
        throw complaintOf(report);
}

int LocatedJson::lineAt(qsizetype offset) const
{
    return static_cast<int>(1 + m_text.first(std::min(offset, m_text.size())).count('\n'));
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

void JsonPlace::complain(const QString& what) const
{
    throw JsonComplaint{line(), m_path.isEmpty() ? what : m_path + QStringLiteral(": ") + what};
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
        complain(QStringLiteral("expected an object, found ") + found());
    const QStringList present = keys();
    for (const QString& key : present) {
        if (!required.contains(key) && !allowed.contains(key))
            at(key.toUtf8())
                .complain(QStringLiteral("is not known here; expected one of ") +
                          listed(required + allowed));
    }
    for (const QString& key : required) {
        if (!present.contains(key))
            complain(QStringLiteral("expected the key ") + quoted(key));
    }
}

JsonPlace JsonPlace::at(const QByteArray& key) const
{
    const QString name = shortened(QString::fromUtf8(key));
    const Json::Value* value = m_value->find(key.begin(), key.end());
    return {*m_file, value ? *value : Json::Value::nullSingleton(),
            m_path.isEmpty() ? name : m_path + QLatin1Char('.') + name};
}

QList<JsonPlace> JsonPlace::entries() const
{
    if (!m_value->isArray())
        complain(QStringLiteral("expected a list, found ") + found());
    QList<JsonPlace> places;
    for (Json::ArrayIndex index = 0; index < m_value->size(); ++index)
        places.append(
            {*m_file, (*m_value)[index], QStringLiteral("%1[%2]").arg(m_path).arg(index)});
    return places;
}

QStringList JsonPlace::keys() const
{
    if (!m_value->isObject())
        complain(QStringLiteral("expected an object, found ") + found());
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
        complain(QStringLiteral("expected a text, found ") + found());
    return fromStd(m_value->asString());
}

QString JsonPlace::nonEmptyText() const
{
    const QString value = text();
    if (value.isEmpty())
        complain(QStringLiteral("expected a text that is not empty"));
    return value;
}

quint32 JsonPlace::number() const
{
    if (!m_value->isUInt())
        complain(QStringLiteral("expected a whole number from 0 to %1, found %2")
                     .arg(std::numeric_limits<quint32>::max())
                     .arg(found()));
    return m_value->asUInt();
}

double JsonPlace::seconds() const
{
    constexpr double longest = 366.0 * 24 * 3600;
    if (!m_value->isNumeric() || m_value->asDouble() < 0 || m_value->asDouble() > longest)
        complain(QStringLiteral("expected a number of seconds, from 0 to a year, found ") +
                 found());
    return m_value->asDouble();
}

bool JsonPlace::flag() const
{
    if (!m_value->isBool())
        complain(QStringLiteral("expected true or false, found ") + found());
    return m_value->asBool();
}

QByteArray JsonPlace::hexBytes() const
{
    const QByteArray digits = text().toUtf8();
    const bool areDigits = std::all_of(digits.begin(), digits.end(), [](char digit) {
        return std::isxdigit(static_cast<unsigned char>(digit)) != 0;
    });
    if (digits.size() % 2 != 0 || !areDigits)
        complain(QStringLiteral("expected bytes as pairs of hexadecimal digits, found ") + found());
    return QByteArray::fromHex(digits);
}
