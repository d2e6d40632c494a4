// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "output.h"
#include "watched_names.h"

#include <printer_events.h>
#include <printer_readings.h>
#include <run_out_forecast.h>

#include <QtCore/QHash>
#include <QtCore/QJsonObject>

/// Prints what happens to printers as JSON, one object a line. docs/vxprintmon.md describes them.
class WatchJson : public QObject
{
public:
    WatchJson(Output& output, VxKit::PrinterReadings& readings, const QStringList& printers);

    /// Prints the readings as they are before the first event.
    void printSnapshot();
    /// Prints that a roll or ribbon of a printer will soon not be enough.
    void printWarning(const QString& printer, const VxKit::RunOutForecast::Warning& warning);

private:
    using Member = std::pair<QString, QJsonValue>;

    void print(const char* event, const QList<Member>& members);
    void printReading(const char* event, const QString& name, const QList<Member>& more = {});
    void onChanged(const QString& name);
    void onRenamed(const QString& oldName, const QString& newName);

    Output& m_output;
    VxKit::PrinterReadings& m_readings;
    VxKit::PrinterEvents m_events;
    WatchedNames m_watched;
    QHash<QString, VxKit::PrinterReading> m_known;
};
