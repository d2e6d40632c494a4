// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_values.h"

#include "case_pseudonyms.h"
#include "plain_text.h"

#include <printer_values.h>

#include <QtCore/QtEndian>

#include <array>
#include <optional>

namespace VxKit::case_values {

namespace {

constexpr std::array texts{&printer_values::supplyId, &printer_values::statusCode,
                           &printer_values::softwareVersion, &printer_values::ethernetConfig};
constexpr std::array numbers{&printer_values::ribbon1Id,      &printer_values::ribbon2Id,
                             &printer_values::supplyMileage,  &printer_values::ribbon1Mileage,
                             &printer_values::ribbon2Mileage, &printer_values::updateProgress,
                             &printer_values::updateError};

/// The value that the library reads under a name, whose letter case does not matter; null if there
/// is none.
template <typename Values>
auto find(const Values& values, const QString& name)
{
    for (const auto* const each : values) {
        if (name.compare(QLatin1String(each->name), Qt::CaseInsensitive) == 0)
            return each;
    }
    return static_cast<typename Values::value_type>(nullptr);
}

/// Three letters, and the address of a computer, are a larger number.
constexpr qint32 largestSmall = 0xffff;

bool isSmall(const QJsonValue& number)
{
    return number.toDouble() >= 0 && number.toDouble() <= largestSmall;
}

/// What a value holds.
struct Content
{
    int type = 0;
    QByteArray bytes;

    static Content of(const QJsonObject& value);
};

Content Content::of(const QJsonObject& value)
{
    Content content{value.value(QLatin1String("type")).toInt(), {}};
    const QJsonValue text = value.value(QLatin1String("text"));
    const QJsonValue base64 = value.value(QLatin1String("base64"));
    const QJsonValue number = value.value(QLatin1String("number"));
    const QJsonValue size = value.value(QLatin1String("size"));
    // Larger than anything that is read.
    constexpr qint64 mostZeros = 256;
    if (size.isDouble()) {
        content.bytes.fill('\0', std::clamp<qint64>(size.toInteger(), 0, mostZeros));
    } else if (text.isString()) {
        content.bytes = text.toString().toUtf8() + '\0';
    } else if (base64.isString()) {
        content.bytes = QByteArray::fromBase64(base64.toString().toLatin1());
    } else if (number.isDouble()) {
        content.bytes.resize(sizeof(quint32));
        qToLittleEndian(static_cast<quint32>(number.toInteger()), content.bytes.data());
    }
    return content;
}

QJsonObject sizeAlone(qsizetype size)
{
    return {{QStringLiteral("size"), static_cast<qint64>(size)}};
}

/// The content with another text, in the form of the original.
QJsonObject withText(const Content& content, const QString& text)
{
    QByteArray bytes = text.toUtf8();
    if (content.type == REG_SZ && content.bytes.indexOf('\0') == content.bytes.size() - 1)
        return {{QStringLiteral("text"), text}};
    // What followed the text is not read, and nobody can tell what it was.
    bytes.append(std::max<qsizetype>(content.bytes.size() - bytes.size(), 0), '\0');
    return {{QStringLiteral("base64"), QString::fromLatin1(bytes.toBase64())}};
}

/// A text in place of one that may not be kept. The library reads it as it read that one.
QString replacementFor(const printer_values::TextValue& value, const QString& text,
                       CasePseudonyms& names)
{
    QString replacement = names.of("Text", text);
    if (&value == &printer_values::supplyId)
        replacement = replacement.leftJustified(static_cast<qsizetype>(value.capacity) - 1,
                                                QLatin1Char(' '), true);
    return replacement;
}

bool mayBeKept(const printer_values::TextValue& value, const QString& text)
{
    bool isNumber = false;
    if (&value == &printer_values::statusCode) {
        // It has nothing but digits, a sign and white space, and the digits are zeros but for ten.
        text.toInt(&isNumber);
        return isNumber;
    }
    if (&value == &printer_values::supplyId) {
        const qsizetype size = static_cast<qsizetype>(value.capacity) - 1;
        return plain_text::isHex(text, size, size);
    }
    return &value == &printer_values::softwareVersion && plain_text::isFirmwareVersion(text);
}

/// What the library reads; without a value when it does not accept it.
std::optional<QString> textOf(const printer_values::TextValue& value, const Content& content)
{
    constexpr int bytesType = REG_BINARY;
    const qsizetype size = content.bytes.size();
    if ((content.type != REG_SZ && content.type != bytesType) || size < value.leastBytes ||
        size > value.capacity)
        return std::nullopt;
    const std::size_t length = qstrnlen(content.bytes.constData(), static_cast<std::size_t>(size));
    return QString::fromUtf8(content.bytes.constData(), static_cast<qsizetype>(length));
}

std::optional<qint32> wordOf(const Content& content)
{
    const bool isNumber = content.type == REG_BINARY || content.type == REG_DWORD;
    std::array<char, sizeof(qint32)> word{};
    if (!isNumber || content.bytes.size() > static_cast<qsizetype>(word.size()))
        return std::nullopt;
    std::ranges::copy(content.bytes, word.begin());
    return qFromLittleEndian<qint32>(word.data());
}

QJsonObject redactedText(const printer_values::TextValue& value, const Content& content,
                         CasePseudonyms& names)
{
    const std::optional<QString> text = textOf(value, content);
    if (!text)
        return sizeAlone(content.bytes.size());
    const bool isKept = text->isEmpty() || mayBeKept(value, *text);
    return withText(content, isKept ? *text : replacementFor(value, *text, names));
}

QJsonObject redactedNumber(const printer_values::NumberValue& value, const Content& content)
{
    const std::optional<qint32> word = wordOf(content);
    if (!word)
        return sizeAlone(content.bytes.size());
    // Where no number is too large, none of this size is used.
    if (*word <= std::min<qint32>(value.ceiling, largestSmall))
        return {{QStringLiteral("base64"), QString::fromLatin1(content.bytes.toBase64())}};
    std::array<char, sizeof(qint32)> implausible{};
    qToLittleEndian(std::numeric_limits<qint32>::max(), implausible.data());
    return {{QStringLiteral("base64"),
             QString::fromLatin1(QByteArray(implausible.data(), implausible.size()).toBase64())}};
}

} // namespace

QString readName(const QString& name)
{
    if (const auto* const text = find(texts, name))
        return QString::fromLatin1(text->name);
    if (const auto* const number = find(numbers, name))
        return QString::fromLatin1(number->name);
    return {};
}

QString safeName(const QString& name, CasePseudonyms& names)
{
    const QString read = readName(name);
    return read.isEmpty() ? names.of("Value", name) : read;
}

QString published(const QJsonObject& value)
{
    const QString name = value.value(QLatin1String("name")).toString();
    const Content content = Content::of(value);
    if (const auto* const text = find(texts, name))
        return textOf(*text, content).value_or(QString());
    const auto* const number = find(numbers, name);
    const std::optional<qint32> word = number ? wordOf(content) : std::nullopt;
    return word && *word <= number->ceiling ? QString::number(static_cast<quint32>(*word))
                                            : QString();
}

QJsonObject redacted(const QJsonObject& value, CasePseudonyms& names)
{
    const QString name = value.value(QLatin1String("name")).toString();
    const Content content = Content::of(value);
    const auto* const text = find(texts, name);
    const auto* const number = find(numbers, name);
    const QJsonValue size = value.value(QLatin1String("size"));
    const QJsonValue plainNumber = value.value(QLatin1String("number"));

    QJsonObject result;
    if (size.isDouble())
        result = {{QStringLiteral("size"), size}};
    else if (plainNumber.isDouble() && (number || (text && isSmall(plainNumber))))
        result = {{QStringLiteral("number"), plainNumber}};
    else if (text && plainNumber.isDouble()) // it may be an address
        result = sizeAlone(sizeof(quint32));
    else if (text)
        result = redactedText(*text, content, names);
    else if (number)
        result = redactedNumber(*number, content);
    else
        result = sizeAlone(content.bytes.size());
    result.insert(QStringLiteral("name"), safeName(name, names));
    result.insert(QStringLiteral("type"), content.type);
    return result;
}

} // namespace VxKit::case_values
