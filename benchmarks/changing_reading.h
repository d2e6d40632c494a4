// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <printer_reading.h>
#include <status_codes.h>

#include <QtCore/QDateTime>
#include <QtCore/QString>

/// A printer in a round of changes: each has other levels, and the tenth part of a fleet fails and
/// recovers all the time, so that rows change their places.
inline VxKit::PrinterReading changingReading(int number, int round, int rollInterval,
                                             const QString& identifier)
{
    using VxKit::PrinterReading;
    using VxKit::Slot;
    PrinterReading reading;
    reading.setName(QStringLiteral("Printer %1").arg(number));
    reading.setModel(VXPrinting::PrinterType::AlderMax);
    reading.setPresent();
    reading.setWatching(PrinterReading::Watching::Watched);
    reading.setOnline(true);
    const bool fails = number % 10 == 0 && (round / 10 + number) % 2 == 0;
    reading.setStatusCode(fails ? 4 : VXPrinting::StatusCodes::ready);
    reading.setLastReport(QDateTime::currentDateTimeUtc());
    VxKit::Level level;
    level.state = VxKit::Level::State::Loaded;
    level.identifier = identifier;
    level.name = QStringLiteral("White Polypropylene");
    level.sku = QStringLiteral("PP-400-WH");
    level.colors = QStringList{QStringLiteral("#ffffff")};
    level.ratio = 1.0 - static_cast<double>(round % rollInterval) / rollInterval;
    level.totalMeters = 45.7;
    level.meters = *level.ratio * 45.7;
    for (const Slot slot : {Slot::Supply, Slot::Ribbon1, Slot::Ribbon2})
        reading.setLevel(slot, level);
    return reading;
}
