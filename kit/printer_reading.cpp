// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_reading.h"

#include "slot_table.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSharedData>

#include <array>
#include <cmath>
#include <utility>

namespace VxKit {

namespace {

constexpr PrinterReading::Field fieldOf(Slot slot)
{
    switch (slot) {
    case Slot::Ribbon1:
        return PrinterReading::Field::Ribbon1;
    case Slot::Ribbon2:
        return PrinterReading::Field::Ribbon2;
    case Slot::Supply:
        break;
    }
    return PrinterReading::Field::Supply;
}

/// What the status of a printer is about that only its agent could tell.
StatusInfo agentOfflineInfo()
{
    const auto translated = [](const char* text) {
        return QCoreApplication::translate("VxKit::StatusInfo", text);
    };
    StatusInfo info = VxKit::statusInfo(VXPrinting::StatusCodes::unknown);
    info.title = translated(QT_TRANSLATE_NOOP("VxKit::StatusInfo", "Agent offline"));
    info.shortTitle = info.title;
    info.explanation = translated(QT_TRANSLATE_NOOP(
        "VxKit::StatusInfo", "Nothing is heard from the agent on the printer's computer. What is "
                             "loaded is shown as it was last reported."));
    info.remedy = translated(QT_TRANSLATE_NOOP(
        "VxKit::StatusInfo", "Check that the computer is switched on and connected to the network, "
                             "and that vxprintagent is running there."));
    return info;
}

} // namespace

QString slotName(Slot slot)
{
    switch (slot) {
    case Slot::Ribbon1:
        return QStringLiteral("ribbon1");
    case Slot::Ribbon2:
        return QStringLiteral("ribbon2");
    case Slot::Supply:
        break;
    }
    return QStringLiteral("supply");
}

std::optional<int> Level::percentage() const
{
    if (!ratio)
        return std::nullopt;
    constexpr double whole = 100.0;
    // A ratio made of a whole percentage may be a little less than it.
    return static_cast<int>(coarse ? std::round(*ratio * whole) : std::floor(*ratio * whole));
}

struct PrinterReading::Data : QSharedData
{
    QString name;
    VXPrinting::PrinterType model = VXPrinting::PrinterType::Unknown;
    QString driver;
    QString port;
    QString serialNumber;
    Presence presence = Presence::Present;
    QDateTime goneSince;
    Watching watching = Watching::NotDiscovered;
    QDateTime unheardSince;
    int statusCode = VXPrinting::StatusCodes::unknown;
    bool online = false;
    bool active = false;
    QString firmwareVersion;
    QString bootVersion;
    std::optional<quint32> updateProgress;
    std::optional<quint32> updateError;
    QString ethernetConfig;
    QDateTime lastReport;
    std::array<Level, allSlots.size()> levels;
    std::array<std::optional<RemainingTime>, allSlots.size()> remaining;
};

namespace {

/// Shared by all null readings, so that making one allocates nothing.
template <typename Data>
const QSharedDataPointer<Data>& emptyData()
{
    static const QSharedDataPointer<Data> empty(new Data);
    return empty;
}

} // namespace

PrinterReading::PrinterReading()
    : d(emptyData<Data>())
{}
PrinterReading::PrinterReading(const PrinterReading& other) = default;
PrinterReading::PrinterReading(PrinterReading&& other) noexcept = default;
PrinterReading& PrinterReading::operator=(const PrinterReading& other) = default;
PrinterReading& PrinterReading::operator=(PrinterReading&& other) noexcept = default;
PrinterReading::~PrinterReading() = default;

bool PrinterReading::isNull() const
{
    return d->name.isEmpty();
}

template <typename Value>
void PrinterReading::set(Value Data::*member, const Value& value)
{
    // A copy of the data is made only for a value that is another one.
    if (d.constData()->*member != value)
        d.data()->*member = value;
}

bool PrinterReading::operator==(const PrinterReading& other) const
{
    return !differences(other);
}

PrinterReading::Fields PrinterReading::differences(const PrinterReading& other) const
{
    Fields fields;
    if (d == other.d)
        return fields;
    const Data& one = *d;
    const Data& two = *other.d;
    fields.setFlag(Field::Name, one.name != two.name);
    fields.setFlag(Field::Model, one.model != two.model);
    fields.setFlag(Field::Driver, one.driver != two.driver);
    fields.setFlag(Field::Port, one.port != two.port);
    fields.setFlag(Field::SerialNumber, one.serialNumber != two.serialNumber);
    fields.setFlag(Field::Presence, one.presence != two.presence || one.goneSince != two.goneSince);
    fields.setFlag(Field::Watching,
                   one.watching != two.watching || one.unheardSince != two.unheardSince);
    fields.setFlag(Field::Status, one.statusCode != two.statusCode);
    fields.setFlag(Field::Online, one.online != two.online);
    fields.setFlag(Field::Active, one.active != two.active);
    fields.setFlag(Field::Firmware, one.firmwareVersion != two.firmwareVersion ||
                                        one.bootVersion != two.bootVersion);
    fields.setFlag(Field::Update,
                   one.updateProgress != two.updateProgress || one.updateError != two.updateError);
    fields.setFlag(Field::EthernetConfig, one.ethernetConfig != two.ethernetConfig);
    fields.setFlag(Field::LastReport, one.lastReport != two.lastReport);
    for (const Slot slot : allSlots)
        fields.setFlag(fieldOf(slot), one.levels[indexOf(slot)] != two.levels[indexOf(slot)]);
    return fields;
}

QString PrinterReading::name() const
{
    return d->name;
}

VXPrinting::PrinterType PrinterReading::model() const
{
    return d->model;
}

QString PrinterReading::driver() const
{
    return d->driver;
}

QString PrinterReading::port() const
{
    return d->port;
}

QString PrinterReading::serialNumber() const
{
    return d->serialNumber;
}

PrinterReading::Presence PrinterReading::presence() const
{
    return d->presence;
}

QDateTime PrinterReading::goneSince() const
{
    return d->goneSince;
}

PrinterReading::Watching PrinterReading::watching() const
{
    return d->watching;
}

QDateTime PrinterReading::unheardSince() const
{
    return d->unheardSince;
}

bool PrinterReading::isUnheard() const
{
    return d->watching == Watching::AgentOffline || d->watching == Watching::NotConnected;
}

int PrinterReading::statusCode() const
{
    return d->statusCode;
}

StatusInfo PrinterReading::statusInfo() const
{
    return d->watching == Watching::AgentOffline ? agentOfflineInfo()
                                                 : VxKit::statusInfo(d->statusCode);
}

bool PrinterReading::isOnline() const
{
    return d->online;
}

bool PrinterReading::isActive() const
{
    return d->active;
}

QString PrinterReading::firmwareVersion() const
{
    return d->firmwareVersion;
}

QString PrinterReading::bootVersion() const
{
    return d->bootVersion;
}

std::optional<quint32> PrinterReading::updateProgress() const
{
    return d->updateProgress;
}

std::optional<quint32> PrinterReading::updateError() const
{
    return d->updateError;
}

QString PrinterReading::ethernetConfig() const
{
    return d->ethernetConfig;
}

QDateTime PrinterReading::lastReport() const
{
    return d->lastReport;
}

bool PrinterReading::hasSlot(Slot slot) const
{
    using VXPrinting::PrinterType;
    return slot != Slot::Ribbon2 || d->model == PrinterType::Alder ||
           d->model == PrinterType::AlderMax;
}

QList<Slot> PrinterReading::slotList() const
{
    QList<Slot> slotsOfModel;
    for (const Slot slot : allSlots) {
        if (hasSlot(slot))
            slotsOfModel.append(slot);
    }
    return slotsOfModel;
}

Level PrinterReading::level(Slot slot) const
{
    return d->levels[indexOf(slot)];
}

std::optional<RemainingTime> PrinterReading::estimatedSecondsRemaining(Slot slot) const
{
    return d->remaining[indexOf(slot)];
}

void PrinterReading::setName(const QString& name)
{
    set(&Data::name, name);
}

void PrinterReading::setModel(VXPrinting::PrinterType model)
{
    set(&Data::model, model);
    for (const Slot slot : allSlots) {
        if (hasSlot(slot))
            continue;
        setOwnLevel(slot, Level());
        setOwnRemaining(slot, std::nullopt);
    }
}

void PrinterReading::setDriver(const QString& driver)
{
    set(&Data::driver, driver);
}

void PrinterReading::setPort(const QString& port)
{
    set(&Data::port, port);
}

void PrinterReading::setSerialNumber(const QString& serialNumber)
{
    set(&Data::serialNumber, serialNumber);
}

void PrinterReading::setPresent()
{
    set(&Data::presence, Presence::Present);
    set(&Data::goneSince, QDateTime());
}

void PrinterReading::setGone(const QDateTime& since)
{
    set(&Data::presence, Presence::Gone);
    set(&Data::goneSince, since);
}

void PrinterReading::setWatching(Watching watching)
{
    set(&Data::watching, watching);
}

void PrinterReading::setUnheardSince(const QDateTime& time)
{
    set(&Data::unheardSince, time);
}

void PrinterReading::setStatusCode(int statusCode)
{
    set(&Data::statusCode, statusCode);
}

void PrinterReading::setOnline(bool online)
{
    set(&Data::online, online);
}

void PrinterReading::setActive(bool active)
{
    set(&Data::active, active);
}

void PrinterReading::setFirmwareVersion(const QString& version)
{
    set(&Data::firmwareVersion, version);
}

void PrinterReading::setBootVersion(const QString& version)
{
    set(&Data::bootVersion, version);
}

void PrinterReading::setUpdateProgress(std::optional<quint32> progress)
{
    set(&Data::updateProgress, progress);
}

void PrinterReading::setUpdateError(std::optional<quint32> error)
{
    set(&Data::updateError, error);
}

void PrinterReading::setEthernetConfig(const QString& ethernetConfig)
{
    set(&Data::ethernetConfig, ethernetConfig);
}

void PrinterReading::setLastReport(const QDateTime& time)
{
    set(&Data::lastReport, time);
}

void PrinterReading::setLevel(Slot slot, const Level& level)
{
    if (hasSlot(slot))
        setOwnLevel(slot, level);
}

void PrinterReading::setEstimatedSecondsRemaining(Slot slot,
                                                  const std::optional<RemainingTime>& remaining)
{
    if (hasSlot(slot))
        setOwnRemaining(slot, remaining);
}

void PrinterReading::setOwnRemaining(Slot slot, const std::optional<RemainingTime>& remaining)
{
    if (d.constData()->remaining[indexOf(slot)] != remaining)
        d->remaining[indexOf(slot)] = remaining;
}

void PrinterReading::setOwnLevel(Slot slot, const Level& level)
{
    if (d.constData()->levels[indexOf(slot)] != level)
        d->levels[indexOf(slot)] = level;
}

} // namespace VxKit
