// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_types.h"
#include "status_codes.h"
#include "status_info.h"
#include "vxprinterstatuskit_export.h"

#include <QtCore/QDateTime>
#include <QtCore/QFlags>
#include <QtCore/QJsonObject>
#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QObject>
#include <QtCore/QSharedDataPointer>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <array>
#include <optional>

namespace VxKit {
Q_NAMESPACE_EXPORT(VX_KIT_EXPORT)

/// A place of a printer in which a supply or a ribbon is loaded.
enum class Slot
{
    Supply,
    Ribbon1,
    Ribbon2, ///< only the models with two ribbons have it
};
Q_ENUM_NS(Slot)

/// All slots that a model may have, in the order of `Slot`.
inline constexpr std::array allSlots{Slot::Supply, Slot::Ribbon1, Slot::Ribbon2};

/// The slot's name in JSON, topics, metrics and roles: "supply", "ribbon1" or "ribbon2".
VX_KIT_EXPORT QString slotName(Slot slot);

/// What is loaded in one slot of a printer, and how much of it is left.
///
/// Everything that is not known is empty or has no value. Nothing that is not known is 0: a ratio
/// of 0 means that the roll or ribbon has been used up.
struct VX_KIT_EXPORT Level
{
    enum class State
    {
        NotKnown,       ///< the printer has not reported it, or the driver publishes no valid value
        Empty,          ///< the printer reports that nothing is loaded
        Loaded,         ///< loaded, and the catalogue knows what it is
        NotInCatalogue, ///< loaded, but the catalogue is missing or does not know it
    };
    /// The unit of `mileage`.
    enum class MileageUnit
    {
        Millimeters, ///< all models but the Alder
        Percent,     ///< the Alder
    };

    State state = State::NotKnown;
    /// What the printer reports to be loaded, as its driver publishes it. Empty unless something is
    /// loaded.
    QString identifier;
    /// The stock-keeping unit. Empty unless the state is `Loaded`, as are the next four.
    QString sku;
    /// A name for people in the application's language, such as "Yellow Vinyl".
    QString name;
    /// The material of a supply or the type of a ribbon.
    QString material;
    /// The name of the first colour, in the application's language.
    QString colorName;
    /// The colours as "#rrggbb": a supply's colour, and its second colour if it has one; the
    /// colours of a ribbon's panels.
    QStringList colors;
    /// The length of a new roll or ribbon by the catalogue, in metres.
    std::optional<double> totalMeters;
    /// What is left, in metres.
    std::optional<double> meters;
    /// What is left, from 0 to 1.
    std::optional<double> ratio;
    /// The number of whole labels that are left. Only die-cut supplies, sleeves and tags have it.
    std::optional<int> labels;
    /// From the start of one label to the start of the next, in metres. Only supplies with labels
    /// have it.
    std::optional<double> labelPitchMeters;
    /// How many labels are side by side. Only supplies with labels have it.
    std::optional<int> labelsAcross;
    /// The printer reports whole percents only, so that metres, ratio and labels are exact to one
    /// percent of the roll.
    bool coarse = false;
    /// The raw value that the driver publishes; no value when it publishes none, or -1.
    std::optional<quint32> mileage;
    MileageUnit mileageUnit = MileageUnit::Millimeters;

    /// What is left in whole percents, rounded down, as in the library's record.
    std::optional<int> percentage() const;

    bool operator==(const Level&) const = default;
};

/// How many seconds something will still last. With a probability of 10, 50 and 90 percent it is at
/// most as long as this.
struct VX_KIT_EXPORT RemainingTime
{
    double p10 = 0.0;
    double p50 = 0.0;
    double p90 = 0.0;

    bool operator==(const RemainingTime&) const = default;
};

/// Everything that is known of one printer at one time.
///
/// @code
/// const VxKit::PrinterReading reading = readings.reading(QStringLiteral("Shipping"));
/// const VxKit::Level supply = reading.level(VxKit::Slot::Supply);
/// if (supply.labels)
///     qInfo() << *supply.labels << "labels left";
/// @endcode
///
/// A plain value that is implicitly shared: a copy costs as much as one of a `QString`. It may be
/// used on any thread. `PrinterReadings` makes readings from a controller, and `fromJson` from what
/// other processes send.
class VX_KIT_EXPORT PrinterReading
{
    Q_GADGET

public:
    /// Whether the print spooler lists the printer.
    enum class Presence
    {
        Present,
        Gone, ///< removed from the spooler since `goneSince()`; nothing that its driver published
              ///< is known any more, so that its slots are `NotKnown`
    };
    Q_ENUM(Presence)

    /// Whether the library watches the printer, or why it does not.
    enum class Watching
    {
        Watched,
        OfflineSinceDiscovery, ///< has been offline whenever printers were looked for
        NetworkPrinter,        ///< network printers are listed only
        NotManaged,            ///< the user may not administer the printer
        NotDiscovered,         ///< new in the spooler; `checkForPrinters()` has not run since
        Replaced,              ///< removed and added again under its name: watched again after the
                               ///< spooler or the host has been started again
        Gone,                  ///< the spooler no longer lists the printer
        /// The reading is from an agent on another computer, which is offline since
        /// `unheardSince()`. Nobody tells how the printer is.
        AgentOffline,
        /// The reading is from an agent on another computer, and there is no connection to its
        /// broker since `unheardSince()`. Everything is as it was then.
        NotConnected,
    };
    Q_ENUM(Watching)

    /// What differs between two readings.
    enum class Field
    {
        Name = 0x1,
        Model = 0x2,
        Driver = 0x4,
        Port = 0x8,
        SerialNumber = 0x10,
        Presence = 0x20, ///< presence or the time since when the printer is gone
        Watching = 0x40, ///< watching or the time since when nothing was heard of the printer
        Status = 0x80,
        Online = 0x100,
        Active = 0x200,
        Firmware = 0x400, ///< firmware version or boot version
        Update = 0x800,   ///< progress or error of a firmware update
        EthernetConfig = 0x1000,
        LastReport = 0x2000,
        Supply = 0x4000,
        Ribbon1 = 0x8000,
        Ribbon2 = 0x10000,
    };
    Q_DECLARE_FLAGS(Fields, Field)
    Q_FLAG(Fields)

    /// A reading of no printer: everything is not known.
    PrinterReading();
    PrinterReading(const PrinterReading& other);
    PrinterReading(PrinterReading&& other) noexcept;
    PrinterReading& operator=(const PrinterReading& other);
    PrinterReading& operator=(PrinterReading&& other) noexcept;
    ~PrinterReading();
    void swap(PrinterReading& other) noexcept { d.swap(other.d); }

    /// Whether it is a reading of no printer, because a printer was asked for that is not known.
    bool isNull() const;

    /// Whether everything is equal but the estimates, which change with every second.
    bool operator==(const PrinterReading& other) const;
    /// What differs from another reading. Empty when they are equal. An estimate is no field: it
    /// changes with every second, and with the level that it is made of.
    Fields differences(const PrinterReading& other) const;

    /// The printer's name in the print spooler.
    QString name() const;
    VXPrinting::PrinterType model() const;
    /// The driver's name.
    QString driver() const;
    /// The port's name, with every "USB" removed, as in `AvailablePrinters`.
    QString port() const;
    /// The serial number of the USB device on the printer's own port. Empty for network printers
    /// and when there is no device on the port.
    QString serialNumber() const;

    Presence presence() const;
    /// Since when the printer is gone; invalid while it is present.
    QDateTime goneSince() const;
    Watching watching() const;
    /// Since when nothing is heard of the printer, if `watching()` is `AgentOffline` or
    /// `NotConnected` and the time is known; otherwise invalid. It is not part of the JSON.
    QDateTime unheardSince() const;
    /// Whether nothing is heard of the printer any more, so that its status may have changed too:
    /// `watching()` is `AgentOffline` or `NotConnected`.
    bool isUnheard() const;

    /// The status code: one of `VXPrinting::StatusCodes` or the driver's error code.
    /// `disconnected` for a printer that is gone, `offline` for one that has been
    /// offline since it was found, `unknown` for a watched printer that has not reported yet.
    int statusCode() const;
    /// What the status code means, how much it matters and what to do, in the application's
    /// language. For a printer whose agent is offline, that it is.
    StatusInfo statusInfo() const;
    /// Whether the printer is present and not offline.
    bool isOnline() const;
    /// Whether it is the active printer, see `PrinterStatusController::activeDefaultPrinter()`.
    bool isActive() const;

    /// The firmware's version: the first part of what the printer reports. Empty when not known.
    QString firmwareVersion() const;
    /// The version of the boot loader: what follows the first comma. Empty when not known.
    QString bootVersion() const;
    /// The progress of a firmware update, as the driver publishes it.
    std::optional<quint32> updateProgress() const;
    /// The error of a firmware update, as the driver publishes it; 0 is no error.
    std::optional<quint32> updateError() const;
    /// The printer's network settings, as the driver publishes them. Empty when not known.
    QString ethernetConfig() const;

    /// When the printer last reported anything, in UTC; invalid when it has not yet. For values
    /// that were published before anybody listened, the time at which they were read.
    QDateTime lastReport() const;

    /// The slots that the model has, in the order of `Slot`.
    QList<Slot> slotList() const;
    bool hasSlot(Slot slot) const;
    /// What is in a slot; `NotKnown` for a slot that the model does not have.
    Level level(Slot slot) const;

    /// In how many seconds what is loaded in a slot will have been used up, from the time at which
    /// the reading was taken. Without a value when that is not known, and unless a
    /// `PrinterForecasts` watches the readings.
    std::optional<RemainingTime> estimatedSecondsRemaining(Slot slot) const;

    /// @name Setters, for those who make readings
    /// @{
    void setName(const QString& name);
    void setModel(VXPrinting::PrinterType model);
    void setDriver(const QString& driver);
    void setPort(const QString& port);
    void setSerialNumber(const QString& serialNumber);
    void setPresent();
    void setGone(const QDateTime& since);
    void setWatching(Watching watching);
    void setUnheardSince(const QDateTime& time);
    void setStatusCode(int statusCode);
    void setOnline(bool online);
    void setActive(bool active);
    void setFirmwareVersion(const QString& version);
    void setBootVersion(const QString& version);
    void setUpdateProgress(std::optional<quint32> progress);
    void setUpdateError(std::optional<quint32> error);
    void setEthernetConfig(const QString& ethernetConfig);
    void setLastReport(const QDateTime& time);
    /// Sets what is in a slot. Has no effect for a slot that the model does not have, so set the
    /// model first.
    void setLevel(Slot slot, const Level& level);
    /// Has no effect for a slot that the model does not have.
    void setEstimatedSecondsRemaining(Slot slot, const std::optional<RemainingTime>& remaining);
    /// @}

    /// The reading as it is written everywhere: on the command line, to other processes, in files.
    /// docs/schema/reading.schema.json describes it. What is not known is null.
    QJsonObject toJson() const;
    /// The reading that `toJson` wrote. Unknown members are ignored. Empty, with a reason in
    /// `*error`, when a member that must be there is missing or has an impossible value.
    static std::optional<PrinterReading> fromJson(const QJsonObject& json,
                                                  QString* error = nullptr);

private:
    struct Data;
    template <typename Value>
    void set(Value Data::*member, const Value& value);
    void setOwnLevel(Slot slot, const Level& level);
    void setOwnRemaining(Slot slot, const std::optional<RemainingTime>& remaining);

    QSharedDataPointer<Data> d;
};
Q_DECLARE_OPERATORS_FOR_FLAGS(PrinterReading::Fields)

} // namespace VxKit

Q_DECLARE_METATYPE(VxKit::Level)
Q_DECLARE_METATYPE(VxKit::PrinterReading)
Q_DECLARE_SHARED(VxKit::PrinterReading)
