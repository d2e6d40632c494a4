// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A reading as JSON, as docs/schema/reading.schema.json describes it.
#include "printer_reading.h"

#include "json_values.h"
#include "reading_words.h"

#include <QtCore/QJsonArray>
#include <QtCore/QMetaEnum>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace VxKit {

namespace {

using Presence = PrinterReading::Presence;
using Watching = PrinterReading::Watching;
using VXPrinting::PrinterType;

// What readings from other processes may hold at most.
constexpr qsizetype longestText = 4096;
constexpr qsizetype mostColors = 64;
constexpr double mostMeters = 1e6;
constexpr double mostSeconds = 1e9;
constexpr double secondsOfAMinute = 60;

constexpr std::array presences{
    Word<Presence>{Presence::Present, "present"},
    Word<Presence>{Presence::Gone, "gone"},
};
constexpr std::array units{
    Word<Level::MileageUnit>{Level::MileageUnit::Millimeters, "millimeters"},
    Word<Level::MileageUnit>{Level::MileageUnit::Percent, "percent"},
};

// Writing /////////////////////////////////////////////////////////////////////////////////////////

template <typename Number>
QJsonValue numberOrNull(const std::optional<Number>& number)
{
    return number ? QJsonValue(static_cast<double>(*number)) : QJsonValue();
}

QJsonValue timeOrNull(const QDateTime& time)
{
    if (!time.isValid())
        return {};
    // A local time is otherwise written without its offset.
    const int offset = time.offsetFromUtc();
    const bool isWhole = std::fmod(offset, secondsOfAMinute) == 0;
    return time.toOffsetFromUtc(isWhole ? offset : 0).toString(Qt::ISODateWithMs);
}

QString modelName(PrinterType model)
{
    const char* const key = QMetaEnum::fromType<PrinterType>().valueToKey(static_cast<int>(model));
    return QLatin1String(key ? key : "Unknown");
}

QJsonValue remainingToJson(const std::optional<RemainingTime>& remaining)
{
    if (!remaining)
        return {};
    return QJsonObject{{QStringLiteral("p10"), remaining->p10},
                       {QStringLiteral("p50"), remaining->p50},
                       {QStringLiteral("p90"), remaining->p90}};
}

QJsonObject levelToJson(const Level& level, const std::optional<RemainingTime>& remaining)
{
    return {
        {QStringLiteral("state"), wordOf(stateWords, level.state)},
        {QStringLiteral("identifier"), textOrNull(level.identifier)},
        {QStringLiteral("sku"), textOrNull(level.sku)},
        {QStringLiteral("name"), textOrNull(level.name)},
        {QStringLiteral("material"), textOrNull(level.material)},
        {QStringLiteral("colorName"), textOrNull(level.colorName)},
        {QStringLiteral("colors"), QJsonArray::fromStringList(level.colors)},
        {QStringLiteral("totalMeters"), numberOrNull(level.totalMeters)},
        {QStringLiteral("meters"), numberOrNull(level.meters)},
        {QStringLiteral("ratio"), numberOrNull(level.ratio)},
        {QStringLiteral("labels"), numberOrNull(level.labels)},
        {QStringLiteral("labelPitchMeters"), numberOrNull(level.labelPitchMeters)},
        {QStringLiteral("labelsAcross"), numberOrNull(level.labelsAcross)},
        {QStringLiteral("coarse"), level.coarse},
        {QStringLiteral("mileage"), numberOrNull(level.mileage)},
        {QStringLiteral("mileageUnit"), wordOf(units, level.mileageUnit)},
        {QStringLiteral("estimatedSecondsRemaining"), remainingToJson(remaining)},
    };
}

// Reading /////////////////////////////////////////////////////////////////////////////////////////

/// Reads the members of an object. The first one that is missing or impossible is remembered, and
/// all others then count as not known.
class Members
{
public:
    Members(const QJsonObject& object, const QString& path, QString& fault)
        : m_object(object)
        , m_path(path)
        , m_fault(fault)
    {}

    QString text(const char* name)
    {
        const QJsonValue value = member(name);
        if (value.isNull())
            return {};
        if (!value.isString() || value.toString().size() > longestText)
            reject(name, "is neither null nor a text of at most 4096 characters");
        return m_fault.isEmpty() ? value.toString() : QString();
    }

    bool flag(const char* name)
    {
        const QJsonValue value = member(name);
        if (!value.isBool())
            reject(name, "is neither true nor false");
        return value.toBool();
    }

    std::optional<double> number(const char* name, double least, double most)
    {
        const QJsonValue value = member(name);
        if (value.isNull())
            return std::nullopt;
        const double number = value.toDouble(std::numeric_limits<double>::quiet_NaN());
        if (!(number >= least && number <= most)) {
            reject(name, "is neither null nor a number in its range");
            return std::nullopt;
        }
        return number;
    }

    template <typename Number>
    std::optional<Number> wholeNumber(const char* name,
                                      Number least = std::numeric_limits<Number>::min())
    {
        const auto value = number(name, least, std::numeric_limits<Number>::max());
        if (!value)
            return std::nullopt;
        if (*value != std::trunc(*value)) {
            reject(name, "is not a whole number");
            return std::nullopt;
        }
        return static_cast<Number>(*value);
    }

    template <typename Words>
    auto word(const char* name, const Words& words)
    {
        const QString text = member(name).toString();
        const auto value = valueOf(words, text);
        if (!value)
            reject(name, "is none of the known words");
        return value.value_or(words.front().value);
    }

    PrinterType model(const char* name)
    {
        const QByteArray text = member(name).toString().left(longestText).toUtf8();
        bool isKnown = false;
        const int model = QMetaEnum::fromType<PrinterType>().keyToValue(text.constData(), &isKnown);
        if (!isKnown)
            reject(name, "is not a known model");
        return isKnown ? static_cast<PrinterType>(model) : PrinterType::Unknown;
    }

    QDateTime time(const char* name)
    {
        const QString text = this->text(name);
        if (text.isEmpty())
            return {};
        const QDateTime time = QDateTime::fromString(text, Qt::ISODateWithMs);
        // Without an offset it would be a local time of an unknown place.
        const bool hasOffset = time.timeSpec() == Qt::UTC || time.timeSpec() == Qt::OffsetFromUTC;
        if (!time.isValid() || !hasOffset)
            reject(name, "is neither null nor a time with an offset, such as "
                         "2026-01-31T12:00:00Z");
        return m_fault.isEmpty() ? time : QDateTime();
    }

    QStringList colors(const char* name)
    {
        const QJsonValue value = member(name);
        const QJsonArray array = value.toArray();
        QStringList colors;
        if (value.isArray() && array.size() <= mostColors) {
            for (const auto& entry : array)
                colors.append(entry.toString());
        }
        if (!value.isArray() || array.size() > mostColors ||
            !std::ranges::all_of(std::as_const(colors), &isColor)) {
            reject(name, "is not a list of at most 64 colours, each as #rrggbb");
            return {};
        }
        return colors;
    }

    /// The members of a member that is an object.
    Members object(const char* name)
    {
        const QJsonValue value = member(name);
        if (!value.isObject())
            reject(name, "is not an object");
        return {value.toObject(), m_path + QLatin1String(name) + QLatin1Char('.'), m_fault};
    }

    std::optional<RemainingTime> remaining(const char* name)
    {
        if (isNull(name))
            return std::nullopt;
        Members members = object(name);
        const auto p10 = members.number("p10", 0.0, mostSeconds);
        const auto p50 = members.number("p50", 0.0, mostSeconds);
        const auto p90 = members.number("p90", 0.0, mostSeconds);
        if (!p10 || !p50 || !p90 || *p10 > *p50 || *p50 > *p90) {
            reject(name, "does not have three ascending numbers");
            return std::nullopt;
        }
        return RemainingTime{*p10, *p50, *p90};
    }

    Level level()
    {
        Level level;
        level.state = word("state", stateWords);
        level.identifier = text("identifier");
        level.sku = text("sku");
        level.name = text("name");
        level.material = text("material");
        level.colorName = text("colorName");
        level.colors = colors("colors");
        level.totalMeters = number("totalMeters", 0.0, mostMeters);
        level.meters = number("meters", 0.0, mostMeters);
        level.ratio = number("ratio", 0.0, 1.0);
        level.labels = wholeNumber<int>("labels", 0);
        level.labelPitchMeters = number("labelPitchMeters", 0.0, mostMeters);
        level.labelsAcross = wholeNumber<int>("labelsAcross", 1);
        level.coarse = flag("coarse");
        level.mileage = wholeNumber<quint32>("mileage");
        level.mileageUnit = word("mileageUnit", units);
        return level;
    }

    bool isNull(const char* name) { return member(name).isNull(); }

    void reject(const char* name, const char* reason)
    {
        if (m_fault.isEmpty())
            m_fault =
                QStringLiteral("%1%2 %3").arg(m_path, QLatin1String(name), QLatin1String(reason));
    }

private:
    QJsonValue member(const char* name)
    {
        const auto found = m_object.constFind(QLatin1String(name));
        if (found == m_object.constEnd()) {
            reject(name, "is missing");
            return {};
        }
        return *found;
    }

    static bool isColor(const QString& text)
    {
        constexpr qsizetype length = 7;
        return text.size() == length && text.startsWith(QLatin1Char('#')) &&
               std::ranges::all_of(QStringView(text).sliced(1), [](QChar digit) {
                   return (digit >= u'0' && digit <= u'9') || (digit >= u'a' && digit <= u'f');
               });
    }

    const QJsonObject m_object;
    const QString m_path;
    QString& m_fault;
};

} // namespace

QJsonObject PrinterReading::toJson() const
{
    if (isNull())
        return {};
    QJsonObject json{
        {QStringLiteral("name"), name()},
        {QStringLiteral("model"), modelName(model())},
        {QStringLiteral("driver"), textOrNull(driver())},
        {QStringLiteral("port"), textOrNull(port())},
        {QStringLiteral("serialNumber"), textOrNull(serialNumber())},
        {QStringLiteral("presence"), wordOf(presences, presence())},
        {QStringLiteral("goneSince"), timeOrNull(goneSince())},
        {QStringLiteral("watching"), wordOf(watchingWords, watching())},
        {QStringLiteral("statusCode"), statusCode()},
        {QStringLiteral("statusKey"), statusKey(statusCode())},
        {QStringLiteral("severity"), severityKey(statusSeverity(statusCode()))},
        {QStringLiteral("online"), isOnline()},
        {QStringLiteral("active"), isActive()},
        {QStringLiteral("firmwareVersion"), textOrNull(firmwareVersion())},
        {QStringLiteral("bootVersion"), textOrNull(bootVersion())},
        {QStringLiteral("updateProgress"), numberOrNull(updateProgress())},
        {QStringLiteral("updateError"), numberOrNull(updateError())},
        {QStringLiteral("ethernetConfig"), textOrNull(ethernetConfig())},
        {QStringLiteral("lastReport"), timeOrNull(lastReport())},
    };
    for (const Slot slot : allSlots)
        json.insert(slotName(slot),
                    hasSlot(slot)
                        ? QJsonValue(levelToJson(level(slot), estimatedSecondsRemaining(slot)))
                        : QJsonValue());
    return json;
}

namespace {

void readSlot(Members& members, const char* name, Slot slot, PrinterReading& reading)
{
    Members ofSlot = members.object(name);
    reading.setLevel(slot, ofSlot.level());
    reading.setEstimatedSecondsRemaining(slot, ofSlot.remaining("estimatedSecondsRemaining"));
}

} // namespace

std::optional<PrinterReading> PrinterReading::fromJson(const QJsonObject& json, QString* error)
{
    QString fault;
    Members members(json, QString(), fault);
    PrinterReading reading;
    reading.setName(members.text("name"));
    if (reading.name().isEmpty())
        members.reject("name", "is empty");
    reading.setModel(members.model("model"));
    reading.setDriver(members.text("driver"));
    reading.setPort(members.text("port"));
    reading.setSerialNumber(members.text("serialNumber"));
    if (members.word("presence", presences) == Presence::Gone)
        reading.setGone(members.time("goneSince"));
    else if (!members.isNull("goneSince"))
        members.reject("goneSince", "is not null, though the printer is present");
    reading.setWatching(members.word("watching", watchingWords));
    const auto code = members.wholeNumber<int>("statusCode");
    if (!code)
        members.reject("statusCode", "is null");
    reading.setStatusCode(code.value_or(VXPrinting::StatusCodes::unknown));
    // The key and the severity follow from the code.
    reading.setOnline(members.flag("online"));
    reading.setActive(members.flag("active"));
    reading.setFirmwareVersion(members.text("firmwareVersion"));
    reading.setBootVersion(members.text("bootVersion"));
    reading.setUpdateProgress(members.wholeNumber<quint32>("updateProgress"));
    reading.setUpdateError(members.wholeNumber<quint32>("updateError"));
    reading.setEthernetConfig(members.text("ethernetConfig"));
    reading.setLastReport(members.time("lastReport"));
    for (const Slot slot : allSlots) {
        const QByteArray name = slotName(slot).toLatin1();
        if (reading.hasSlot(slot))
            readSlot(members, name.constData(), slot, reading);
        else if (!members.isNull(name.constData()))
            members.reject(name.constData(), "is not null, though the model has no such slot");
    }
    if (error)
        *error = fault;
    if (!fault.isEmpty())
        return std::nullopt;
    return reading;
}

} // namespace VxKit
