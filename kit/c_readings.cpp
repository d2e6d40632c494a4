// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "c_readings.h"

#include "c_text.h"

#include <QtCore/QDateTime>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <algorithm>
#include <array>
#include <optional>

namespace VxKit::c_interface {

namespace {

using VXPrinting::PrinterType;

// The numbers of the C interface are those of the kit.
static_assert(VXKIT_SLOT_SUPPLY == static_cast<int>(Slot::Supply));
static_assert(VXKIT_SLOT_RIBBON1 == static_cast<int>(Slot::Ribbon1));
static_assert(VXKIT_SLOT_RIBBON2 == static_cast<int>(Slot::Ribbon2));
static_assert(VXKIT_STATE_NOT_KNOWN == static_cast<int>(Level::State::NotKnown));
static_assert(VXKIT_STATE_EMPTY == static_cast<int>(Level::State::Empty));
static_assert(VXKIT_STATE_LOADED == static_cast<int>(Level::State::Loaded));
static_assert(VXKIT_STATE_NOT_IN_CATALOGUE == static_cast<int>(Level::State::NotInCatalogue));
static_assert(VXKIT_UNIT_MILLIMETERS == static_cast<int>(Level::MileageUnit::Millimeters));
static_assert(VXKIT_UNIT_PERCENT == static_cast<int>(Level::MileageUnit::Percent));
static_assert(VXKIT_SEVERITY_OK == static_cast<int>(Severity::Ok));
static_assert(VXKIT_SEVERITY_INFORMATION == static_cast<int>(Severity::Information));
static_assert(VXKIT_SEVERITY_WARNING == static_cast<int>(Severity::Warning));
static_assert(VXKIT_SEVERITY_ERROR == static_cast<int>(Severity::Error));
static_assert(VXKIT_MODEL_UNKNOWN == static_cast<int>(PrinterType::Unknown));
static_assert(VXKIT_MODEL_GENERIC == static_cast<int>(PrinterType::Generic));
static_assert(VXKIT_MODEL_ALDER == static_cast<int>(PrinterType::Alder));
static_assert(VXKIT_MODEL_BIRCH_MAX == static_cast<int>(PrinterType::BirchMax));
static_assert(VXKIT_MODEL_CEDAR_MAX == static_cast<int>(PrinterType::CedarMax));
static_assert(VXKIT_MODEL_ALDER_MAX == static_cast<int>(PrinterType::AlderMax));

/// A field whose value is that of a member of the JSON.
struct Member
{
    int32_t field;
    const char* name;
    /// What a null in it means.
    vxkit_result ifNull = VXKIT_UNKNOWN;
};

constexpr std::array texts{
    Member{VXKIT_TEXT_NAME, "name"},
    Member{VXKIT_TEXT_MODEL, "model"},
    Member{VXKIT_TEXT_DRIVER, "driver"},
    Member{VXKIT_TEXT_PORT, "port"},
    Member{VXKIT_TEXT_SERIAL_NUMBER, "serialNumber"},
    Member{VXKIT_TEXT_PRESENCE, "presence"},
    Member{VXKIT_TEXT_GONE_SINCE, "goneSince", VXKIT_NONE},
    Member{VXKIT_TEXT_WATCHING, "watching"},
    Member{VXKIT_TEXT_FIRMWARE_VERSION, "firmwareVersion"},
    Member{VXKIT_TEXT_BOOT_VERSION, "bootVersion"},
    Member{VXKIT_TEXT_ETHERNET_CONFIG, "ethernetConfig"},
    Member{VXKIT_TEXT_LAST_REPORT, "lastReport"},
    Member{VXKIT_TEXT_STATUS_KEY, "statusKey"},
    Member{VXKIT_TEXT_SEVERITY, "severity"},
};

constexpr std::array slotTexts{
    Member{VXKIT_SLOT_TEXT_STATE, "state"},       Member{VXKIT_SLOT_TEXT_IDENTIFIER, "identifier"},
    Member{VXKIT_SLOT_TEXT_SKU, "sku"},           Member{VXKIT_SLOT_TEXT_NAME, "name"},
    Member{VXKIT_SLOT_TEXT_MATERIAL, "material"}, Member{VXKIT_SLOT_TEXT_COLOR_NAME, "colorName"},
    Member{VXKIT_SLOT_TEXT_COLORS, "colors"},
};

/// A field whose value is a number in the JSON of a slot, or in an object in it.
struct Number
{
    int32_t field;
    const char* name;
    const char* part = nullptr;
};

constexpr std::array slotNumbers{
    Number{VXKIT_NUMBER_RATIO, "ratio"},
    Number{VXKIT_NUMBER_METERS, "meters"},
    Number{VXKIT_NUMBER_TOTAL_METERS, "totalMeters"},
    Number{VXKIT_NUMBER_LABEL_PITCH_METERS, "labelPitchMeters"},
    Number{VXKIT_NUMBER_SECONDS_REMAINING_P10, "estimatedSecondsRemaining", "p10"},
    Number{VXKIT_NUMBER_SECONDS_REMAINING_P50, "estimatedSecondsRemaining", "p50"},
    Number{VXKIT_NUMBER_SECONDS_REMAINING_P90, "estimatedSecondsRemaining", "p90"},
};

/// A field of a value that is no member of the JSON, or there in another form.
template <typename Of>
struct Integer
{
    int32_t field;
    std::optional<int64_t> (*value)(const Of& of);
    vxkit_result ifNone = VXKIT_UNKNOWN;
};

std::optional<int64_t> milliseconds(const QDateTime& time)
{
    return time.isValid() ? std::optional<int64_t>(time.toMSecsSinceEpoch()) : std::nullopt;
}

using Watching = PrinterReading::Watching;
using Presence = PrinterReading::Presence;

constexpr std::array integers{
    Integer<PrinterReading>{VXKIT_INTEGER_STATUS_CODE,
                            [](const PrinterReading& reading) {
                                return std::optional<int64_t>(reading.statusCode());
                            }},
    Integer<PrinterReading>{VXKIT_INTEGER_SEVERITY,
                            [](const PrinterReading& reading) {
                                return std::optional(
                                    static_cast<int64_t>(statusSeverity(reading.statusCode())));
                            }},
    Integer<PrinterReading>{VXKIT_INTEGER_ONLINE,
                            [](const PrinterReading& reading) {
                                return std::optional<int64_t>(reading.isOnline());
                            }},
    Integer<PrinterReading>{VXKIT_INTEGER_ACTIVE,
                            [](const PrinterReading& reading) {
                                return std::optional<int64_t>(reading.isActive());
                            }},
    Integer<PrinterReading>{VXKIT_INTEGER_PRESENT,
                            [](const PrinterReading& reading) {
                                return std::optional<int64_t>(reading.presence() ==
                                                              Presence::Present);
                            }},
    Integer<PrinterReading>{VXKIT_INTEGER_WATCHED,
                            [](const PrinterReading& reading) {
                                return std::optional<int64_t>(reading.watching() ==
                                                              Watching::Watched);
                            }},
    Integer<PrinterReading>{VXKIT_INTEGER_MODEL,
                            [](const PrinterReading& reading) {
                                return std::optional(static_cast<int64_t>(reading.model()));
                            }},
    Integer<PrinterReading>{VXKIT_INTEGER_UPDATE_PROGRESS,
                            [](const PrinterReading& reading) {
                                return std::optional<int64_t>(reading.updateProgress());
                            }},
    Integer<PrinterReading>{VXKIT_INTEGER_UPDATE_ERROR,
                            [](const PrinterReading& reading) {
                                return std::optional<int64_t>(reading.updateError());
                            }},
    Integer<PrinterReading>{
        VXKIT_INTEGER_GONE_SINCE,
        [](const PrinterReading& reading) { return milliseconds(reading.goneSince()); },
        VXKIT_NONE},
    Integer<PrinterReading>{VXKIT_INTEGER_LAST_REPORT,
                            [](const PrinterReading& reading) {
                                return milliseconds(reading.lastReport());
                            }},
};

constexpr std::array slotIntegers{
    Integer<Level>{VXKIT_SLOT_INTEGER_STATE,
                   [](const Level& level) {
                       return std::optional(static_cast<int64_t>(level.state));
                   }},
    Integer<Level>{VXKIT_SLOT_INTEGER_LABELS,
                   [](const Level& level) {
                       return std::optional<int64_t>(level.labels);
                   }},
    Integer<Level>{VXKIT_SLOT_INTEGER_LABELS_ACROSS,
                   [](const Level& level) {
                       return std::optional<int64_t>(level.labelsAcross);
                   }},
    Integer<Level>{VXKIT_SLOT_INTEGER_PERCENT,
                   [](const Level& level) {
                       return std::optional<int64_t>(level.percentage());
                   }},
    Integer<Level>{VXKIT_SLOT_INTEGER_MILEAGE,
                   [](const Level& level) {
                       return std::optional<int64_t>(level.mileage);
                   }},
    Integer<Level>{VXKIT_SLOT_INTEGER_MILEAGE_UNIT,
                   [](const Level& level) {
                       return std::optional(static_cast<int64_t>(level.mileageUnit));
                   }},
    Integer<Level>{VXKIT_SLOT_INTEGER_COARSE,
                   [](const Level& level) {
                       return std::optional<int64_t>(level.coarse);
                   }},
};

/// The entry of a field; null, with an error, for a number that is none of the fields.
template <typename Table>
auto entryOf(const Table& table, int32_t field, const char* names) -> decltype(table.data())
{
    const auto found =
        std::ranges::find_if(table, [&](const auto& entry) { return entry.field == field; });
    if (found != table.end())
        return &*found;
    fail(VXKIT_ERROR_INVALID_ARGUMENT,
         QStringLiteral("field is %1, which is none of %2").arg(field).arg(QLatin1String(names)));
    return nullptr;
}

/// A text, or a list of texts with spaces between them. Empty when it is null.
QString textOf(const QJsonValue& value)
{
    QStringList parts;
    for (const QJsonValue& part : value.toArray())
        parts.append(part.toString());
    return value.isArray() ? parts.join(QLatin1Char(' ')) : value.toString();
}

/// Why there is no value in a slot.
vxkit_result noValue(const Level& level)
{
    return level.state == Level::State::Empty ? VXKIT_EMPTY : VXKIT_UNKNOWN;
}

/// What is in a slot.
struct SlotOfPrinter
{
    vxkit_result result = VXKIT_OK;
    Level level;
    QJsonObject json;
};

SlotOfPrinter slotOf(const PrinterReading& reading, const QJsonObject& json, int32_t slot)
{
    if (slot < VXKIT_SLOT_SUPPLY || slot > VXKIT_SLOT_RIBBON2)
        return {fail(VXKIT_ERROR_INVALID_ARGUMENT,
                     QStringLiteral("slot is %1, which is none of VXKIT_SLOT_*").arg(slot)),
                {},
                {}};
    const auto kind = static_cast<Slot>(slot);
    if (!reading.hasSlot(kind))
        return {VXKIT_NO_SLOT, {}, {}};
    return {VXKIT_OK, reading.level(kind), json.value(slotName(kind)).toObject()};
}

} // namespace

Readings::Readings(const QList<PrinterReading>& readings)
{
    m_printers.reserve(static_cast<std::size_t>(readings.size()));
    for (const PrinterReading& reading : readings)
        m_printers.push_back({reading, reading.toJson(), reading.statusInfo()});
}

const Readings::Printer* Readings::at(std::size_t index) const
{
    if (index < m_printers.size())
        return &m_printers[index];
    fail(VXKIT_ERROR_INVALID_ARGUMENT,
         QStringLiteral("index is %1, but there are readings of %2 printers")
             .arg(index)
             .arg(m_printers.size()));
    return nullptr;
}

vxkit_result Readings::find(const QString& name, std::size_t& index) const
{
    const auto found = std::ranges::find_if(
        m_printers, [&](const Printer& printer) { return printer.reading.name() == name; });
    if (found == m_printers.end())
        return fail(VXKIT_ERROR_NO_SUCH_PRINTER,
                    QStringLiteral("there is no reading of a printer %1").arg(quoted(name)));
    index = static_cast<std::size_t>(found - m_printers.begin());
    return VXKIT_OK;
}

vxkit_result Readings::json(std::size_t index, QString& json) const
{
    const Printer* const printer = at(index);
    if (!printer)
        return VXKIT_ERROR_INVALID_ARGUMENT;
    json = QString::fromUtf8(QJsonDocument(printer->json).toJson(QJsonDocument::Compact));
    return VXKIT_OK;
}

vxkit_result Readings::text(std::size_t index, int32_t field, QString& text) const
{
    const Printer* const printer = at(index);
    if (!printer)
        return VXKIT_ERROR_INVALID_ARGUMENT;
    switch (field) {
    case VXKIT_TEXT_STATUS_TITLE:
        return statusText(printer->status, VXKIT_STATUS_TITLE, text);
    case VXKIT_TEXT_STATUS_SHORT_TITLE:
        return statusText(printer->status, VXKIT_STATUS_SHORT_TITLE, text);
    case VXKIT_TEXT_STATUS_EXPLANATION:
        return statusText(printer->status, VXKIT_STATUS_EXPLANATION, text);
    case VXKIT_TEXT_STATUS_REMEDY:
        return statusText(printer->status, VXKIT_STATUS_REMEDY, text);
    default:
        break;
    }
    const Member* const member = entryOf(texts, field, "VXKIT_TEXT_*");
    if (!member)
        return VXKIT_ERROR_INVALID_ARGUMENT;
    text = textOf(printer->json.value(QLatin1String(member->name)));
    return text.isEmpty() ? member->ifNull : VXKIT_OK;
}

vxkit_result Readings::integer(std::size_t index, int32_t field, int64_t& value) const
{
    const Printer* const printer = at(index);
    const auto* const integer = printer ? entryOf(integers, field, "VXKIT_INTEGER_*") : nullptr;
    if (!integer)
        return VXKIT_ERROR_INVALID_ARGUMENT;
    const std::optional<int64_t> number = integer->value(printer->reading);
    if (!number)
        return integer->ifNone;
    value = *number;
    return VXKIT_OK;
}

vxkit_result Readings::slotText(std::size_t index, int32_t slot, int32_t field, QString& text) const
{
    const Printer* const printer = at(index);
    const Member* const member = printer ? entryOf(slotTexts, field, "VXKIT_SLOT_TEXT_*") : nullptr;
    if (!member)
        return VXKIT_ERROR_INVALID_ARGUMENT;
    const SlotOfPrinter place = slotOf(printer->reading, printer->json, slot);
    if (place.result != VXKIT_OK)
        return place.result;
    text = textOf(place.json.value(QLatin1String(member->name)));
    return text.isEmpty() ? noValue(place.level) : VXKIT_OK;
}

vxkit_result Readings::slotInteger(std::size_t index, int32_t slot, int32_t field,
                                   int64_t& value) const
{
    const Printer* const printer = at(index);
    const auto* const integer =
        printer ? entryOf(slotIntegers, field, "VXKIT_SLOT_INTEGER_*") : nullptr;
    if (!integer)
        return VXKIT_ERROR_INVALID_ARGUMENT;
    const SlotOfPrinter place = slotOf(printer->reading, printer->json, slot);
    if (place.result != VXKIT_OK)
        return place.result;
    const std::optional<int64_t> number = integer->value(place.level);
    if (!number)
        return noValue(place.level);
    value = *number;
    return VXKIT_OK;
}

vxkit_result Readings::slotNumber(std::size_t index, int32_t slot, int32_t field,
                                  double& value) const
{
    const Printer* const printer = at(index);
    const Number* const entry = printer ? entryOf(slotNumbers, field, "VXKIT_NUMBER_*") : nullptr;
    if (!entry)
        return VXKIT_ERROR_INVALID_ARGUMENT;
    const SlotOfPrinter place = slotOf(printer->reading, printer->json, slot);
    if (place.result != VXKIT_OK)
        return place.result;
    QJsonValue number = place.json.value(QLatin1String(entry->name));
    if (entry->part)
        number = number[QLatin1String(entry->part)];
    if (number.isNull() || number.isUndefined())
        return noValue(place.level);
    value = number.toDouble();
    return VXKIT_OK;
}

vxkit_result statusText(const StatusInfo& info, int32_t field, QString& text)
{
    switch (field) {
    case VXKIT_STATUS_KEY:
        text = info.key;
        return VXKIT_OK;
    case VXKIT_STATUS_TITLE:
        text = info.title;
        return VXKIT_OK;
    case VXKIT_STATUS_SHORT_TITLE:
        text = info.shortTitle;
        return VXKIT_OK;
    case VXKIT_STATUS_EXPLANATION:
        text = info.explanation;
        return VXKIT_OK;
    case VXKIT_STATUS_REMEDY:
        text = info.remedy;
        return VXKIT_OK;
    case VXKIT_STATUS_SEVERITY:
        text = severityKey(info.severity);
        return VXKIT_OK;
    default:
        return fail(VXKIT_ERROR_INVALID_ARGUMENT,
                    QStringLiteral("field is %1, which is none of VXKIT_STATUS_*").arg(field));
    }
}

} // namespace VxKit::c_interface
