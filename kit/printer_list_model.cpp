// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_list_model.h"

#include "printer_readings.h"
#include "reading_words.h"
#include "status_info.h"

#include <QtCore/QDateTime>
#include <QtCore/QMetaEnum>
#include <QtCore/QPointer>

#include <algorithm>
#include <array>
#include <utility>

namespace VxKit {

namespace {

using Model = PrinterListModel;
using Field = PrinterReading::Field;

QVariant known(const QString& text)
{
    return text.isEmpty() ? QVariant() : QVariant(text);
}

QVariant known(const QStringList& texts)
{
    return texts.isEmpty() ? QVariant() : QVariant(texts);
}

QVariant known(const QDateTime& time)
{
    return time.isValid() ? QVariant(time) : QVariant();
}

template <typename Number>
QVariant known(const std::optional<Number>& number)
{
    return number ? QVariant::fromValue(*number) : QVariant();
}

QString nameOf(Level::MileageUnit unit)
{
    return unit == Level::MileageUnit::Percent ? QStringLiteral("percent") : QStringLiteral("mm");
}

QString modelName(VXPrinting::PrinterType model)
{
    return QLatin1String(
        QMetaEnum::fromType<VXPrinting::PrinterType>().valueToKey(static_cast<int>(model)));
}

/// A role of the whole printer.
struct PrinterRole
{
    Model::Role role;
    const char* name;
    Field field;
    QVariant (*value)(const PrinterReading& reading);
    bool isTranslated = false;
};

constexpr std::array printerRoles{
    PrinterRole{Model::PrinterModelRole, "printerModel", Field::Model,
                [](const PrinterReading& reading) {
                    return known(modelName(reading.model()));
                }},
    PrinterRole{Model::DriverRole, "driver", Field::Driver,
                [](const PrinterReading& reading) {
                    return known(reading.driver());
                }},
    PrinterRole{Model::PortRole, "port", Field::Port,
                [](const PrinterReading& reading) {
                    return known(reading.port());
                }},
    PrinterRole{Model::SerialNumberRole, "serialNumber", Field::SerialNumber,
                [](const PrinterReading& reading) {
                    return known(reading.serialNumber());
                }},
    PrinterRole{Model::PresentRole, "present", Field::Presence,
                [](const PrinterReading& reading) -> QVariant {
                    return reading.presence() == PrinterReading::Presence::Present;
                }},
    PrinterRole{Model::GoneSinceRole, "goneSince", Field::Presence,
                [](const PrinterReading& reading) {
                    return known(reading.goneSince());
                }},
    PrinterRole{Model::WatchingRole, "watching", Field::Watching,
                [](const PrinterReading& reading) -> QVariant {
                    return wordOf(watchingWords, reading.watching());
                }},
    PrinterRole{Model::StatusCodeRole, "statusCode", Field::Status,
                [](const PrinterReading& reading) -> QVariant {
                    return reading.statusCode();
                }},
    PrinterRole{Model::StatusKeyRole, "statusKey", Field::Status,
                [](const PrinterReading& reading) {
                    return known(statusKey(reading.statusCode()));
                }},
    PrinterRole{Model::StatusTitleRole, "statusTitle", Field::Status,
                [](const PrinterReading& reading) {
                    return known(statusInfo(reading.statusCode()).shortTitle);
                },
                true},
    PrinterRole{Model::StatusSeverityRole, "statusSeverity", Field::Status,
                [](const PrinterReading& reading) -> QVariant {
                    return severityKey(statusSeverity(reading.statusCode()));
                }},
    PrinterRole{Model::StatusExplanationRole, "statusExplanation", Field::Status,
                [](const PrinterReading& reading) {
                    return known(statusInfo(reading.statusCode()).explanation);
                },
                true},
    PrinterRole{Model::StatusRemedyRole, "statusRemedy", Field::Status,
                [](const PrinterReading& reading) {
                    return known(statusInfo(reading.statusCode()).remedy);
                },
                true},
    PrinterRole{Model::OnlineRole, "online", Field::Online,
                [](const PrinterReading& reading) -> QVariant {
                    return reading.isOnline();
                }},
    PrinterRole{Model::ActiveRole, "active", Field::Active,
                [](const PrinterReading& reading) -> QVariant {
                    return reading.isActive();
                }},
    PrinterRole{Model::FirmwareVersionRole, "firmwareVersion", Field::Firmware,
                [](const PrinterReading& reading) {
                    return known(reading.firmwareVersion());
                }},
    PrinterRole{Model::BootVersionRole, "bootVersion", Field::Firmware,
                [](const PrinterReading& reading) {
                    return known(reading.bootVersion());
                }},
    PrinterRole{Model::UpdateProgressRole, "updateProgress", Field::Update,
                [](const PrinterReading& reading) {
                    return known(reading.updateProgress());
                }},
    PrinterRole{Model::UpdateErrorRole, "updateError", Field::Update,
                [](const PrinterReading& reading) {
                    return known(reading.updateError());
                }},
    PrinterRole{Model::EthernetConfigRole, "ethernetConfig", Field::EthernetConfig,
                [](const PrinterReading& reading) {
                    return known(reading.ethernetConfig());
                }},
    PrinterRole{Model::LastReportRole, "lastReport", Field::LastReport,
                [](const PrinterReading& reading) {
                    return known(reading.lastReport());
                }},
    PrinterRole{Model::HasRibbon2Role, "hasRibbon2", Field::Model,
                [](const PrinterReading& reading) -> QVariant {
                    return reading.hasSlot(Slot::Ribbon2);
                }},
};

/// A role that each slot has, in the order of the enumerators of a slot.
struct LevelRole
{
    const char* name;
    QVariant (*value)(const Level& level); ///< null for the estimate, which is not of the level
};

constexpr std::array levelRoles{
    LevelRole{"State",
              [](const Level& level) -> QVariant {
                  return wordOf(stateWords, level.state);
              }},
    LevelRole{"Identifier",
              [](const Level& level) {
                  return known(level.identifier);
              }},
    LevelRole{"Sku",
              [](const Level& level) {
                  return known(level.sku);
              }},
    LevelRole{"Name",
              [](const Level& level) {
                  return known(level.name);
              }},
    LevelRole{"Material",
              [](const Level& level) {
                  return known(level.material);
              }},
    LevelRole{"ColorName",
              [](const Level& level) {
                  return known(level.colorName);
              }},
    LevelRole{"Colors",
              [](const Level& level) {
                  return known(level.colors);
              }},
    LevelRole{"TotalMeters",
              [](const Level& level) {
                  return known(level.totalMeters);
              }},
    LevelRole{"Meters",
              [](const Level& level) {
                  return known(level.meters);
              }},
    LevelRole{"Ratio",
              [](const Level& level) {
                  return known(level.ratio);
              }},
    LevelRole{"Labels",
              [](const Level& level) {
                  return known(level.labels);
              }},
    LevelRole{"Coarse",
              [](const Level& level) -> QVariant {
                  return level.coarse;
              }},
    LevelRole{"Mileage",
              [](const Level& level) {
                  return known(level.mileage);
              }},
    LevelRole{"MileageUnit",
              [](const Level& level) -> QVariant {
                  return level.mileage ? nameOf(level.mileageUnit) : QVariant();
              }},
    LevelRole{"EstimatedSecondsRemaining", nullptr},
};

struct SlotRoles
{
    Slot slot;
    Field field;
    int first; ///< the role of the slot's state
};

constexpr std::array slotRoles{
    SlotRoles{Slot::Supply, Field::Supply, Model::SupplyStateRole},
    SlotRoles{Slot::Ribbon1, Field::Ribbon1, Model::Ribbon1StateRole},
    SlotRoles{Slot::Ribbon2, Field::Ribbon2, Model::Ribbon2StateRole},
};
static_assert(Model::Ribbon1StateRole - Model::SupplyStateRole == levelRoles.size());
static_assert(Model::Ribbon2StateRole - Model::Ribbon1StateRole == levelRoles.size());
static_assert(Model::Ribbon2EstimatedSecondsRemainingRole - Model::Ribbon2StateRole + 1 ==
              levelRoles.size());

QVariant known(const std::optional<RemainingTime>& remaining)
{
    if (!remaining)
        return {};
    return QVariantMap{{QStringLiteral("p10"), remaining->p10},
                       {QStringLiteral("p50"), remaining->p50},
                       {QStringLiteral("p90"), remaining->p90}};
}

QVariant levelValue(const PrinterReading& reading, Slot slot, const LevelRole& role)
{
    if (!role.value)
        return known(reading.estimatedSecondsRemaining(slot));
    return reading.hasSlot(slot) ? role.value(reading.level(slot)) : QVariant();
}

/// The roles whose values differ between two readings of one printer.
QList<int> changedRoles(const PrinterReading& before, const PrinterReading& after)
{
    const PrinterReading::Fields fields = after.differences(before);
    if (!fields)
        return {};
    QList<int> roles{Model::ReadingRole};
    if (fields & Field::Name)
        roles << Qt::DisplayRole << Model::NameRole;
    for (const PrinterRole& role : printerRoles) {
        if ((fields & role.field) && role.value(before) != role.value(after))
            roles.append(role.role);
    }
    // A change of the model may add or remove the second ribbon.
    for (const SlotRoles& slot : slotRoles) {
        // Each report may change the estimate.
        const bool hasOtherLevel = bool(fields & (slot.field | Field::Model));
        if (!hasOtherLevel && before.estimatedSecondsRemaining(slot.slot) ==
                                  after.estimatedSecondsRemaining(slot.slot))
            continue;
        for (std::size_t i = 0; i < levelRoles.size(); ++i) {
            if (levelValue(before, slot.slot, levelRoles[i]) !=
                levelValue(after, slot.slot, levelRoles[i]))
                roles.append(slot.first + static_cast<int>(i));
        }
    }
    return roles;
}

bool isPrinterInError(const PrinterReading& reading)
{
    return reading.presence() == PrinterReading::Presence::Present &&
           statusSeverity(reading.statusCode()) == Severity::Error;
}

} // namespace

class PrinterListModel::Private
{
public:
    QList<PrinterReading> rows; ///< in the order of their names
    QPointer<PrinterReadings> source;
    QString activePrinter;
    int inError = 0;

    /// The row of a printer, or the one before which it has to be inserted.
    qsizetype place(const QString& name) const
    {
        const auto found =
            std::lower_bound(rows.begin(), rows.end(), name,
                             [](const PrinterReading& reading, const QString& wanted) {
                                 return reading.name() < wanted;
                             });
        return found - rows.begin();
    }
    bool isAt(qsizetype row, const QString& name) const
    {
        return row < rows.size() && rows.at(row).name() == name;
    }
};

PrinterListModel::PrinterListModel(QObject* parent)
    : QAbstractListModel(parent)
    , d(std::make_unique<Private>())
{
    const auto announce = [this] {
        Q_EMIT countChanged(count());
    };
    connect(this, &QAbstractItemModel::rowsInserted, this, announce);
    connect(this, &QAbstractItemModel::rowsRemoved, this, announce);
    connect(this, &QAbstractItemModel::modelReset, this, announce);
}

PrinterListModel::~PrinterListModel() = default;

void PrinterListModel::setReadings(PrinterReadings* readings)
{
    if (d->source)
        d->source->disconnect(this);
    d->source = readings;
    if (!readings)
        return;
    const auto show = [this](const QString& name) {
        if (d->source)
            setReading(d->source->reading(name));
    };
    connect(readings, &PrinterReadings::added, this, show);
    connect(readings, &PrinterReadings::changed, this, show);
    connect(readings, &PrinterReadings::gone, this, show);
    connect(readings, &PrinterReadings::renamed, this,
            [this, show](const QString& oldName, const QString& newName) {
                renameReading(oldName, newName);
                show(newName);
            });
    clear();
    const QList<PrinterReading> all = readings->readings();
    for (const PrinterReading& reading : all)
        setReading(reading);
}

void PrinterListModel::setReading(const PrinterReading& reading)
{
    if (reading.isNull())
        return;
    // A slot that is connected to one of the signals may delete the model.
    const QPointer<PrinterListModel> self(this);
    const qsizetype place = d->place(reading.name());
    const int row = static_cast<int>(place);
    PrinterReading before;
    if (d->isAt(place, reading.name())) {
        before = std::exchange(d->rows[place], reading);
        const QList<int> roles = changedRoles(before, reading);
        if (roles.isEmpty())
            return;
        Q_EMIT dataChanged(index(row), index(row), roles);
    } else {
        beginInsertRows({}, row, row);
        d->rows.insert(place, reading);
        endInsertRows();
    }
    if (self)
        updateSummary(before, reading);
}

void PrinterListModel::removeReading(const QString& name)
{
    const qsizetype place = d->place(name);
    if (!d->isAt(place, name))
        return;
    const QPointer<PrinterListModel> self(this);
    const int row = static_cast<int>(place);
    beginRemoveRows({}, row, row);
    const PrinterReading removed = d->rows.takeAt(place);
    endRemoveRows();
    if (self)
        updateSummary(removed, PrinterReading());
}

void PrinterListModel::renameReading(const QString& oldName, const QString& newName)
{
    if (oldName == newName || newName.isEmpty() || rowOf(oldName) < 0)
        return;
    const QPointer<PrinterListModel> self(this);
    removeReading(newName);
    if (!self || rowOf(oldName) < 0)
        return;
    const qsizetype from = d->place(oldName);
    const qsizetype to = d->place(newName); // before the row is taken out
    PrinterReading reading = d->rows.at(from);
    const PrinterReading before = reading;
    reading.setName(newName);

    const bool moves = to != from && to != from + 1;
    if (moves)
        beginMoveRows({}, static_cast<int>(from), static_cast<int>(from), {}, static_cast<int>(to));
    const qsizetype now = to > from ? to - 1 : to;
    d->rows.move(from, now);
    d->rows[now] = reading;
    if (moves)
        endMoveRows();
    // A slot may have removed the row, or deleted the model.
    const int row = self ? rowOf(newName) : -1;
    if (row >= 0)
        Q_EMIT dataChanged(index(row), index(row), changedRoles(before, reading));
    if (self)
        updateSummary(before, reading);
}

void PrinterListModel::clear()
{
    if (d->rows.isEmpty())
        return;
    const QPointer<PrinterListModel> self(this);
    beginResetModel();
    d->rows.clear();
    const bool hadActive = !std::exchange(d->activePrinter, QString()).isEmpty();
    const bool hadErrors = std::exchange(d->inError, 0) != 0;
    endResetModel();
    if (self && hadActive)
        Q_EMIT activePrinterChanged(QString());
    if (self && hadErrors)
        Q_EMIT printersInErrorChanged(0);
}

void PrinterListModel::updateSummary(const PrinterReading& before, const PrinterReading& after)
{
    const QPointer<PrinterListModel> self(this);
    const int difference = int(isPrinterInError(after)) - int(isPrinterInError(before));
    d->inError += difference;
    QString active = d->activePrinter;
    if (after.isActive())
        active = after.name();
    else if (before.isActive() && before.name() == active)
        active.clear();
    const bool isOther = std::exchange(d->activePrinter, active) != active;

    if (difference != 0)
        Q_EMIT printersInErrorChanged(d->inError);
    if (self && isOther)
        Q_EMIT activePrinterChanged(d->activePrinter);
}

PrinterReading PrinterListModel::reading(int row) const
{
    return d->rows.value(row);
}

int PrinterListModel::rowOf(const QString& name) const
{
    const qsizetype place = d->place(name);
    return d->isAt(place, name) ? static_cast<int>(place) : -1;
}

QString PrinterListModel::activePrinter() const
{
    return d->activePrinter;
}

bool PrinterListModel::isInError() const
{
    return d->inError > 0;
}

int PrinterListModel::printersInError() const
{
    return d->inError;
}

int PrinterListModel::count() const
{
    return static_cast<int>(d->rows.size());
}

int PrinterListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant PrinterListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= count())
        return {};
    const PrinterReading& reading = d->rows.at(index.row());
    if (role == Qt::DisplayRole || role == NameRole)
        return reading.name();
    if (role == ReadingRole)
        return QVariant::fromValue(reading);
    if (role >= SupplyStateRole && role <= Ribbon2EstimatedSecondsRemainingRole) {
        constexpr int count = static_cast<int>(levelRoles.size());
        const int number = role - SupplyStateRole;
        return levelValue(reading, slotRoles[static_cast<std::size_t>(number / count)].slot,
                          levelRoles[static_cast<std::size_t>(number % count)]);
    }
    const auto* const found = std::ranges::find(printerRoles, role, &PrinterRole::role);
    return found == printerRoles.end() ? QVariant() : found->value(reading);
}

QHash<int, QByteArray> PrinterListModel::roleNames() const
{
    QHash<int, QByteArray> names{
        {Qt::DisplayRole, "display"}, {ReadingRole, "reading"}, {NameRole, "name"}};
    for (const PrinterRole& role : printerRoles)
        names.insert(role.role, role.name);
    for (const SlotRoles& slot : slotRoles) {
        for (std::size_t i = 0; i < levelRoles.size(); ++i)
            names.insert(slot.first + static_cast<int>(i),
                         slotName(slot.slot).toLatin1() + levelRoles[i].name);
    }
    return names;
}

void PrinterListModel::retranslate()
{
    if (d->rows.isEmpty())
        return;
    QList<int> roles;
    for (const PrinterRole& role : printerRoles) {
        if (role.isTranslated)
            roles.append(role.role);
    }
    Q_EMIT dataChanged(index(0), index(count() - 1), roles);
}

} // namespace VxKit
