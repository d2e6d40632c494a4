// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_values.h"

#include "json_rpc.h"
#include "json_writer.h"

#include <QtCore/QHash>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QMetaEnum>
#include <QtCore/QMetaProperty>
#include <QtCore/QStringList>

#include <cmath>
#include <limits>
#include <optional>

namespace ipc_values {
namespace {

/// Beyond this, readers whose only numbers are doubles, as most are, would see another number.
constexpr qint64 largestSafeInteger = (Q_INT64_C(1) << 53) - 1;

Converted fitting(QVariant value, Fit fit = Fit::Exact)
{
    return {fit, std::move(value), {}};
}

Converted unfitting(const QString& expected)
{
    return {Fit::None, {}, expected};
}

QJsonObject schemaOf(const char* type)
{
    return {{QStringLiteral("type"), QLatin1String(type)}};
}

/// The number, if it is whole and fits a 64-bit integer.
std::optional<qint64> wholeNumber(const QJsonValue& json)
{
    if (!json.isDouble())
        return std::nullopt;
    const qint64 number = json.toInteger(0);
    if (number != 0 || json.toInteger(1) == 0)
        return number;
    return std::nullopt;
}

template <typename Integer>
QString integerRange()
{
    return QStringLiteral("a whole number from %1 to %2")
        .arg(std::numeric_limits<Integer>::min())
        .arg(std::numeric_limits<Integer>::max());
}

template <typename Integer>
Converted integerFromJson(const QJsonValue& json, QMetaType /*type*/)
{
    const std::optional<qint64> number = wholeNumber(json);
    if (number && std::in_range<Integer>(*number))
        return fitting(QVariant::fromValue(static_cast<Integer>(*number)));
    return unfitting(integerRange<Integer>());
}

template <typename Integer>
Integer integerFromText(const QString& text, bool* ok)
{
    if constexpr (std::is_signed_v<Integer>)
        return static_cast<Integer>(text.toLongLong(ok));
    else
        return static_cast<Integer>(text.toULongLong(ok));
}

/// JSON numbers have 53 bits in most languages, so a 64-bit integer may also be sent as decimal
/// text.
template <typename Integer>
Converted wideIntegerFromJson(const QJsonValue& json, QMetaType type)
{
    if (!json.isString()) {
        Converted converted = integerFromJson<Integer>(json, type);
        if (converted.fit == Fit::None)
            converted.expected += QStringLiteral(" (beyond 53 bits as decimal text)");
        return converted;
    }
    bool ok = false;
    const auto number = integerFromText<Integer>(json.toString(), &ok);
    if (ok)
        return fitting(QVariant::fromValue(number), Fit::Lenient);
    return unfitting(integerRange<Integer>());
}

template <typename Integer>
void writeInteger(JsonWriter& json, const QVariant& value)
{
    json.number(static_cast<qint64>(value.value<Integer>()));
}

template <typename Integer>
void writeWideInteger(JsonWriter& json, const QVariant& value)
{
    const auto number = value.value<Integer>();
    if (std::cmp_greater(number, largestSafeInteger) || std::cmp_less(number, -largestSafeInteger))
        json.text(QString::number(number));
    else
        json.number(static_cast<qint64>(number));
}

QJsonObject integerSchema()
{
    return schemaOf("integer");
}

QJsonObject wideIntegerSchema()
{
    return {
        {QStringLiteral("type"), QJsonArray{QStringLiteral("integer"), QStringLiteral("string")}}};
}

template <typename Real>
Converted realFromJson(const QJsonValue& json, QMetaType /*type*/)
{
    if (!json.isDouble() || std::abs(json.toDouble()) > std::numeric_limits<Real>::max())
        return unfitting(QStringLiteral("a number"));
    // A whole number fits an integer better where an overload takes one.
    return fitting(QVariant::fromValue(static_cast<Real>(json.toDouble())),
                   wholeNumber(json) ? Fit::Lenient : Fit::Exact);
}

template <typename Real>
void writeReal(JsonWriter& json, const QVariant& value)
{
    json.number(static_cast<double>(value.value<Real>()));
}

QJsonObject realSchema()
{
    return schemaOf("number");
}

Converted boolFromJson(const QJsonValue& json, QMetaType /*type*/)
{
    return json.isBool() ? fitting(json.toBool()) : unfitting(QStringLiteral("true or false"));
}

void writeBool(JsonWriter& json, const QVariant& value)
{
    json.raw(value.toBool() ? "true" : "false");
}

QJsonObject boolSchema()
{
    return schemaOf("boolean");
}

Converted textFromJson(const QJsonValue& json, QMetaType /*type*/)
{
    return json.isString() ? fitting(json.toString()) : unfitting(QStringLiteral("a text"));
}

void writeText(JsonWriter& json, const QVariant& value)
{
    json.text(value.toString());
}

QJsonObject textSchema()
{
    return schemaOf("string");
}

Converted textListFromJson(const QJsonValue& json, QMetaType /*type*/)
{
    QStringList texts;
    for (const QJsonArray array = json.toArray(); const QJsonValue& entry : array) {
        if (!entry.isString())
            return unfitting(QStringLiteral("a list of texts"));
        texts.append(entry.toString());
    }
    return json.isArray() ? fitting(texts) : unfitting(QStringLiteral("a list of texts"));
}

/// Appends a list, each entry by `writeEntry`.
void writeEach(JsonWriter& json, const auto& list, const auto& writeEntry)
{
    json.raw("[");
    for (qsizetype i = 0; i < list.size(); ++i) {
        if (i > 0)
            json.raw(",");
        writeEntry(list.at(i));
    }
    json.raw("]");
}

void writeTextList(JsonWriter& json, const QVariant& value)
{
    writeEach(json, value.toStringList(), [&](const QString& text) { json.text(text); });
}

QJsonObject textListSchema()
{
    return {{QStringLiteral("type"), QStringLiteral("array")},
            {QStringLiteral("items"), textSchema()}};
}

Converted bytesFromJson(const QJsonValue& json, QMetaType /*type*/)
{
    const auto decoded = QByteArray::fromBase64Encoding(
        json.toString().toUtf8(),
        QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors);
    if (!json.isString() || !decoded)
        return unfitting(QStringLiteral("bytes as base64 text"));
    return fitting(*decoded);
}

void writeBytes(JsonWriter& json, const QVariant& value)
{
    json.raw("\"");
    json.raw(value.toByteArray().toBase64());
    json.raw("\"");
}

QJsonObject bytesSchema()
{
    return {{QStringLiteral("type"), QStringLiteral("string")},
            {QStringLiteral("contentEncoding"), QStringLiteral("base64")}};
}

Converted listFromJson(const QJsonValue& json, QMetaType /*type*/)
{
    return json.isArray() ? fitting(json.toArray().toVariantList())
                          : unfitting(QStringLiteral("a list"));
}

void writeList(JsonWriter& json, const QVariant& value)
{
    writeEach(json, value.toList(), [&](const QVariant& entry) { write(json, entry); });
}

QJsonObject listSchema()
{
    return schemaOf("array");
}

Converted mapFromJson(const QJsonValue& json, QMetaType /*type*/)
{
    return json.isObject() ? fitting(json.toObject().toVariantMap())
                           : unfitting(QStringLiteral("an object"));
}

Converted hashFromJson(const QJsonValue& json, QMetaType /*type*/)
{
    return json.isObject() ? fitting(json.toObject().toVariantHash())
                           : unfitting(QStringLiteral("an object"));
}

/// Appends one member of an object; `isFirst` is whether it is the first.
void writeMember(JsonWriter& json, bool isFirst, const QString& name, const QVariant& value)
{
    if (!isFirst)
        json.raw(",");
    json.text(name);
    json.raw(":");
    write(json, value);
}

/// For hashes, too, in the order of their keys, so that equal hashes are written as equal texts.
void writeMap(JsonWriter& json, const QVariant& value)
{
    const QVariantMap map = value.toMap();
    json.raw("{");
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
        writeMember(json, entry == map.cbegin(), entry.key(), entry.value());
    json.raw("}");
}

QJsonObject mapSchema()
{
    return schemaOf("object");
}

Converted jsonObjectFromJson(const QJsonValue& json, QMetaType /*type*/)
{
    return json.isObject() ? fitting(json.toObject()) : unfitting(QStringLiteral("an object"));
}

Converted jsonArrayFromJson(const QJsonValue& json, QMetaType /*type*/)
{
    return json.isArray() ? fitting(json.toArray()) : unfitting(QStringLiteral("a list"));
}

Converted jsonValueFromJson(const QJsonValue& json, QMetaType /*type*/)
{
    return fitting(QVariant::fromValue(json), Fit::Lenient);
}

template <typename Json>
void writeJson(JsonWriter& json, const QVariant& value)
{
    json.value(value.value<Json>());
}

/// The variant itself is the argument, whatever it holds.
Converted anyFromJson(const QJsonValue& json, QMetaType type)
{
    const QVariant held = json.toVariant();
    return fitting(QVariant(type, &held), Fit::Lenient);
}

void writeAny(JsonWriter& json, const QVariant& value)
{
    write(json, *static_cast<const QVariant*>(value.constData()));
}

QJsonObject anySchema()
{
    return {};
}

struct Kind
{
    Converted (*fromJson)(const QJsonValue&, QMetaType);
    void (*write)(JsonWriter&, const QVariant&);
    QJsonObject (*schema)();
};

template <typename Integer>
constexpr Kind narrow = {integerFromJson<Integer>, writeInteger<Integer>, integerSchema};
template <typename Integer>
constexpr Kind wideInteger = {wideIntegerFromJson<Integer>, writeWideInteger<Integer>,
                              wideIntegerSchema};
/// The width of a long depends on the system.
template <typename Integer>
constexpr const Kind& nativeKind()
{
    if constexpr (sizeof(Integer) < sizeof(qint64))
        return narrow<Integer>;
    else
        return wideInteger<Integer>;
}
template <typename Real>
constexpr Kind floating = {realFromJson<Real>, writeReal<Real>, realSchema};

const Kind* findKind(int typeId)
{
    static const QHash<int, Kind> kinds = {
        {QMetaType::Bool, {boolFromJson, writeBool, boolSchema}},
        {QMetaType::Short, narrow<short>},
        {QMetaType::UShort, narrow<ushort>},
        {QMetaType::Int, narrow<int>},
        {QMetaType::UInt, narrow<uint>},
        {QMetaType::Long, nativeKind<long>()},
        {QMetaType::ULong, nativeKind<ulong>()},
        {QMetaType::LongLong, wideInteger<qlonglong>},
        {QMetaType::ULongLong, wideInteger<qulonglong>},
        {QMetaType::Float, floating<float>},
        {QMetaType::Double, floating<double>},
        {QMetaType::QString, {textFromJson, writeText, textSchema}},
        {QMetaType::QStringList, {textListFromJson, writeTextList, textListSchema}},
        {QMetaType::QByteArray, {bytesFromJson, writeBytes, bytesSchema}},
        {QMetaType::QVariantList, {listFromJson, writeList, listSchema}},
        {QMetaType::QVariantMap, {mapFromJson, writeMap, mapSchema}},
        {QMetaType::QVariantHash, {hashFromJson, writeMap, mapSchema}},
        {QMetaType::QVariant, {anyFromJson, writeAny, anySchema}},
        {QMetaType::QJsonObject, {jsonObjectFromJson, writeJson<QJsonObject>, mapSchema}},
        {QMetaType::QJsonArray, {jsonArrayFromJson, writeJson<QJsonArray>, listSchema}},
        {QMetaType::QJsonValue, {jsonValueFromJson, writeJson<QJsonValue>, anySchema}},
    };
    const auto found = kinds.constFind(typeId);
    return found == kinds.cend() ? nullptr : &*found;
}

bool isRecord(QMetaType type)
{
    return type.flags().testFlag(QMetaType::IsGadget) && type.metaObject();
}

QMetaProperty property(const QMetaObject& record, const QString& name)
{
    return record.property(record.indexOfProperty(name.toUtf8().constData()));
}

/// Members that the object leaves out keep the record's defaults.
Converted recordFromJson(const QJsonObject& json, QMetaType type)
{
    QVariant record(type);
    for (auto member = json.constBegin(); member != json.constEnd(); ++member) {
        const QMetaProperty target = property(*type.metaObject(), member.key());
        if (!target.isValid())
            return unfitting(QStringLiteral("a %1 (it has no member \"%2\")")
                                 .arg(QLatin1String(type.name()), member.key()));
        const Converted converted = fromJson(member.value(), target.metaType());
        if (converted.fit == Fit::None)
            return unfitting(
                QStringLiteral("a %1 (with %2 as its member \"%3\")")
                    .arg(QLatin1String(type.name()), converted.expected, member.key()));
        target.writeOnGadget(record.data(), converted.value);
    }
    return fitting(record);
}

void writeRecord(JsonWriter& json, const QVariant& record)
{
    const QMetaObject& members = *record.metaType().metaObject();
    json.raw("{");
    for (int i = 0; i < members.propertyCount(); ++i) {
        const QMetaProperty member = members.property(i);
        writeMember(json, i == 0, QString::fromUtf8(member.name()),
                    member.readOnGadget(record.constData()));
    }
    json.raw("}");
}

QJsonObject recordSchema(QMetaType type, QJsonObject& records)
{
    const QString name = QString::fromLatin1(type.name());
    if (!records.contains(name)) {
        // Inserted before its members are described, as these may refer to the record again.
        records.insert(name, QJsonObject());
        QJsonObject members;
        for (int i = 0; i < type.metaObject()->propertyCount(); ++i) {
            const QMetaProperty member = type.metaObject()->property(i);
            members.insert(QLatin1String(member.name()), schema(member.metaType(), records));
        }
        records.insert(name, QJsonObject{{QStringLiteral("type"), QStringLiteral("object")},
                                         {QStringLiteral("properties"), members}});
    }
    return {{QStringLiteral("$ref"), QStringLiteral("#/components/schemas/") + name}};
}

std::optional<Excess> beyond(qsizetype found, qsizetype most, const QString& expected)
{
    if (found <= most)
        return std::nullopt;
    return Excess{expected.arg(most), found};
}

std::optional<Excess> excessOfText(const QString& text)
{
    return beyond(text.size(), json_rpc::maximumText,
                  QStringLiteral("a text of at most %1 characters"));
}

std::optional<Excess> excessOf(const QJsonValue& json, qsizetype& values);

std::optional<Excess> excessOfList(const QJsonArray& array, qsizetype& values)
{
    auto excess = beyond(array.size(), json_rpc::maximumEntries,
                         QStringLiteral("a list of at most %1 entries"));
    for (auto entry = array.begin(); !excess && entry != array.end(); ++entry)
        excess = excessOf(*entry, values);
    return excess;
}

std::optional<Excess> excessOfObject(const QJsonObject& object, qsizetype& values)
{
    auto excess = beyond(object.size(), json_rpc::maximumEntries,
                         QStringLiteral("an object of at most %1 members"));
    for (auto member = object.begin(); !excess && member != object.end(); ++member) {
        excess = excessOfText(member.key());
        if (!excess)
            excess = excessOf(*member, values);
    }
    return excess;
}

/// `values` counts those checked so far.
std::optional<Excess> excessOf(const QJsonValue& json, qsizetype& values)
{
    if (auto excess = beyond(++values, json_rpc::maximumValues,
                             QStringLiteral("at most %1 values, nested ones included")))
        return excess;
    if (json.isString())
        return excessOfText(json.toString());
    if (json.isArray())
        return excessOfList(json.toArray(), values);
    if (json.isObject())
        return excessOfObject(json.toObject(), values);
    return std::nullopt;
}

} // namespace

std::optional<Excess> excessOf(const QJsonValue& json)
{
    qsizetype values = 0;
    return excessOf(json, values);
}

bool isSupported(QMetaType type)
{
    return findKind(type.id()) || isRecord(type);
}

Converted fromJson(const QJsonValue& json, QMetaType type)
{
    if (const Kind* kind = findKind(type.id()))
        return kind->fromJson(json, type);
    if (!isRecord(type))
        return unfitting(QStringLiteral("nothing that JSON can hold"));
    if (!json.isObject())
        return unfitting(
            QStringLiteral("an object with the members of %1").arg(QLatin1String(type.name())));
    return recordFromJson(json.toObject(), type);
}

void write(JsonWriter& json, const QVariant& value)
{
    const QMetaType type = value.metaType();
    if (const Kind* kind = findKind(type.id()))
        kind->write(json, value);
    else if (isRecord(type))
        writeRecord(json, value);
    else
        json.raw("null");
}

QJsonObject schema(QMetaType type, QJsonObject& records)
{
    if (const Kind* kind = findKind(type.id()))
        return kind->schema();
    return isRecord(type) ? recordSchema(type, records) : QJsonObject();
}

QString kindOf(const QJsonValue& json)
{
    switch (json.type()) {
    case QJsonValue::Null:
        return QStringLiteral("null");
    case QJsonValue::Bool:
        return json.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QJsonValue::Double:
        return QString::fromUtf8(QJsonDocument(QJsonArray{json}).toJson(QJsonDocument::Compact))
            .mid(1)
            .chopped(1);
    case QJsonValue::String:
        return QStringLiteral("a text");
    case QJsonValue::Array:
        return QStringLiteral("a list");
    case QJsonValue::Object:
        return QStringLiteral("an object");
    case QJsonValue::Undefined:
        break;
    }
    return QStringLiteral("nothing");
}

} // namespace ipc_values
