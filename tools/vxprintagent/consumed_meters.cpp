// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "consumed_meters.h"

using VxKit::Level;
using VxKit::Slot;

namespace {

/// In metres. The levels are calculated with numbers that are rounded.
constexpr double pulledBack = 0.1 + 1e-6;
/// Of a new roll, for printers that report whole percents.
constexpr double onePercent = 0.01 + 1e-6;
constexpr qint64 settlingTime = 60; // seconds

double sameRoll(const Level& level)
{
    return level.coarse && level.totalMeters ? onePercent * *level.totalMeters : pulledBack;
}

} // namespace

void ConsumedMeters::add(const VxKit::PrinterReading& reading, const QDateTime& now)
{
    std::array<Roll, 3>& rolls = m_printers[reading.name()];
    for (const QList<Slot> all = reading.slotList(); const Slot slot : all)
        add(rolls.at(static_cast<std::size_t>(slot)), reading.level(slot), now);
}

void ConsumedMeters::add(Roll& roll, const Level& level, const QDateTime& now)
{
    if (!level.meters)
        return;
    const double meters = *level.meters;
    const bool isOther = roll.isKnown && roll.identifier != level.identifier;
    if (!roll.isKnown || isOther || meters - roll.lowest > sameRoll(level)) {
        roll = {.isKnown = true,
                .identifier = level.identifier,
                .lowest = meters,
                .changed = isOther ? now : QDateTime(),
                .consumed = roll.consumed};
        return;
    }
    if (meters >= roll.lowest)
        return;
    // A clock that was set back ends it too.
    const qint64 age = roll.changed.isValid() ? roll.changed.secsTo(now) : settlingTime;
    if (age < 0 || age >= settlingTime)
        roll.consumed += roll.lowest - meters;
    roll.changed = {};
    roll.lowest = meters;
}

void ConsumedMeters::rename(const QString& oldName, const QString& newName)
{
    const auto known = m_printers.constFind(oldName);
    if (known == m_printers.constEnd())
        return;
    const std::array<Roll, 3> rolls = *known;
    m_printers.remove(oldName);
    m_printers.insert(newName, rolls);
}

void ConsumedMeters::remove(const QString& name)
{
    m_printers.remove(name);
}

ConsumedMeters::Slots ConsumedMeters::of(const QString& name) const
{
    Slots consumed;
    const std::array<Roll, 3> rolls = m_printers.value(name);
    for (std::size_t slot = 0; slot < rolls.size(); ++slot) {
        if (rolls.at(slot).isKnown)
            consumed.at(slot) = rolls.at(slot).consumed;
    }
    return consumed;
}
