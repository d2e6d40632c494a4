// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <printer_reading.h>
#include <status_codes.h>
#include <status_info.h>

#include <QtCore/QDateTime>
#include <QtCore/QString>

/// Readings for the tests of views.
namespace fleet_of_readings {

inline VxKit::Level loaded(const QString& name, const QStringList& colors,
                           std::optional<double> ratio, std::optional<double> totalMeters = {})
{
    VxKit::Level level;
    level.state = VxKit::Level::State::Loaded;
    level.identifier = QStringLiteral("id");
    level.sku = QStringLiteral("SKU-1");
    level.name = name;
    level.colors = colors;
    level.ratio = ratio;
    level.totalMeters = totalMeters;
    if (ratio && totalMeters)
        level.meters = *ratio * *totalMeters;
    return level;
}

/// A status code of that severity.
inline int codeOf(VxKit::Severity severity)
{
    for (const VxKit::StatusInfo& info : VxKit::allStatusInfo()) {
        if (info.severity == severity && info.code != VXPrinting::StatusCodes::disconnected)
            return info.code;
    }
    return -1;
}

inline VxKit::PrinterReading
reading(const QString& name, int code = VXPrinting::StatusCodes::ready,
        VXPrinting::PrinterType model = VXPrinting::PrinterType::AlderMax)
{
    using VxKit::Slot;
    VxKit::PrinterReading reading;
    reading.setName(name);
    reading.setModel(model);
    reading.setDriver(QStringLiteral("Stratamark AlderMax"));
    reading.setPort(QStringLiteral("001"));
    reading.setPresent();
    reading.setWatching(VxKit::PrinterReading::Watching::Watched);
    reading.setOnline(true);
    reading.setStatusCode(code);
    reading.setLastReport(QDateTime::currentDateTimeUtc());
    VxKit::Level supply =
        loaded(QStringLiteral("White Polypropylene"), {QStringLiteral("#ffffff")}, 0.62, 45.7);
    supply.labels = 812;
    reading.setLevel(Slot::Supply, supply);
    reading.setLevel(Slot::Ribbon1,
                     loaded(QStringLiteral("Black"), {QStringLiteral("#000000")}, 0.07, 91.4));
    reading.setLevel(Slot::Ribbon2, loaded(QStringLiteral("CMYK"),
                                           {QStringLiteral("#00aeef"), QStringLiteral("#ec008c"),
                                            QStringLiteral("#fff200"), QStringLiteral("#000000")},
                                           std::nullopt));
    return reading;
}

} // namespace fleet_of_readings
