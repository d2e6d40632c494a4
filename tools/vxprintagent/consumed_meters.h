// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <printer_reading.h>

#include <QtCore/QDateTime>
#include <QtCore/QHash>
#include <QtCore/QString>

#include <array>
#include <optional>

/// Counts what printers use, in metres, from the levels that they report.
///
/// Rolls are told apart as in `VxKit::UsageHistory`: another identifier is another roll, and so is
/// a level that rises by more than a printer pulls back, which is 0.1 m or one percent. A roll that
/// is taken out and put back goes on. A printer may report the level of another roll after its
/// identifier: the first level that falls within a minute is what that roll began with.
class ConsumedMeters
{
public:
    using Slots = std::array<std::optional<double>, 3>;

    /// Takes what is in the slots of a printer now.
    void add(const VxKit::PrinterReading& reading, const QDateTime& now);
    void rename(const QString& oldName, const QString& newName);
    /// A printer that comes back begins with zero.
    void remove(const QString& name);

    /// What was used, in the order of `VxKit::Slot`. Slots whose level has never been known have no
    /// value.
    Slots of(const QString& name) const;

private:
    struct Roll
    {
        bool isKnown = false;
        QString identifier;
        double lowest = 0.0; ///< the lowest level that was reported, in metres
        /// When the identifier changed; invalid once the roll's own level has been reported.
        QDateTime changed;
        double consumed = 0.0; ///< of all rolls
    };
    static void add(Roll& roll, const VxKit::Level& level, const QDateTime& now);

    QHash<QString, std::array<Roll, 3>> m_printers;
};
