// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "catalogue_file.h"
#include "command_line.h"
#include "commands.h"
#include "failure.h"
#include "forecast_words.h"
#include "history_command.h"
#include "json_text.h"
#include "output.h"
#include "printer_names.h"
#include "printer_words.h"
#include "tool_text.h"

#include <printer_forecasts.h>
#include <printer_readings.h>
#include <printer_status_controller.h>
#include <usage_history_reader.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

using VxKit::Level;
using VxKit::PrinterForecasts;
using VxKit::PrinterReading;
using VxKit::RunOutForecast;
using VxKit::Slot;

namespace {

/// A slot of a printer and when it will be empty.
struct Row
{
    PrinterReading reading;
    Slot slot = Slot::Supply;
    std::optional<RunOutForecast::Forecast> forecast{};
    RunOutForecast::Reason reason = RunOutForecast::Reason::None;
    QList<RunOutForecast::Warning> warnings{};
};

QList<Row> rowsOf(const QList<PrinterReading>& readings, PrinterForecasts& forecasts)
{
    QList<Row> rows;
    for (const PrinterReading& reading : readings) {
        for (const QList<Slot> all = reading.slotList(); const Slot slot : all) {
            Row row{reading, slot};
            row.forecast = forecasts.forecast(reading.name(), slot, &row.reason);
            row.warnings = forecasts.takeWarnings(reading.name(), slot);
            rows.append(row);
        }
    }
    return rows;
}

QString reasonKey(RunOutForecast::Reason reason)
{
    using Reason = RunOutForecast::Reason;
    switch (reason) {
    case Reason::None:
        break;
    case Reason::NeverReported:
        return QStringLiteral("neverReported");
    case Reason::NothingLoaded:
        return QStringLiteral("nothingLoaded");
    case Reason::LevelNotKnown:
        return QStringLiteral("levelNotKnown");
    case Reason::NotKnownYet:
        return QStringLiteral("notKnownYet");
    }
    return {};
}

QJsonValue quantiles(const std::optional<RunOutForecast::Quantiles>& values)
{
    if (!values)
        return {};
    return QJsonObject{{QStringLiteral("p10"), values->p10},
                       {QStringLiteral("p50"), values->p50},
                       {QStringLiteral("p90"), values->p90}};
}

QJsonArray json(const QList<RunOutForecast::Warning>& warnings)
{
    QJsonArray array;
    for (const RunOutForecast::Warning& warning : warnings)
        array.append(QJsonObject{
            {QStringLiteral("concern"), forecast_words::concern(warning.concern)},
            {QStringLiteral("text"), PrinterForecasts::text(warning)},
        });
    return array;
}

QString json(const Row& row)
{
    using json_text::orNull;
    using json_text::value;
    const Level level = row.reading.level(row.slot);
    const auto secondsLeft = row.forecast ? std::optional(row.forecast->secondsLeft) : std::nullopt;
    const auto hoursLeft =
        row.forecast ? std::optional(row.forecast->printingHoursLeft) : std::nullopt;
    const QString reason = reasonKey(row.reason);
    return json_text::object({
        {QStringLiteral("printer"), value(row.reading.name())},
        {QStringLiteral("slot"), value(VxKit::slotName(row.slot))},
        {QStringLiteral("meters"), value(orNull(level.meters))},
        {QStringLiteral("labels"), value(orNull(level.labels))},
        {QStringLiteral("estimatedSecondsRemaining"), value(quantiles(secondsLeft))},
        {QStringLiteral("estimatedPrintingHoursRemaining"), value(quantiles(hoursLeft))},
        {QStringLiteral("reason"), value(orNull(reason))},
        {QStringLiteral("warnings"), value(json(row.warnings))},
    });
}

void printTable(Output& output, const QList<Row>& rows)
{
    using Width = Column::Width;
    QList<QList<Cell>> cells;
    QString last;
    for (const Row& row : rows) {
        const Level level = row.reading.level(row.slot);
        const QString name = row.reading.name();
        QList<Cell> line{
            {name == last ? QString() : name},
            {printer_words::slotName(row.slot)},
            {level.state == Level::State::Loaded || level.state == Level::State::NotInCatalogue
                 ? printer_words::amount(level)
                 : printer_words::loaded(level),
             printer_words::colourOfLevel(level)}};
        if (row.forecast) {
            const RunOutForecast::Quantiles& seconds = row.forecast->secondsLeft;
            line.append(Cell{forecast_words::duration(seconds.p50)});
            line.append(Cell{ToolText::tr("%1 to %2", "two durations")
                                 .arg(forecast_words::duration(seconds.p10),
                                      forecast_words::duration(seconds.p90))});
        } else {
            line.append(Cell{forecast_words::reason(row.reason), Colour::Faint});
            line.append(Cell{});
        }
        cells.append(line);
        last = name;
    }
    if (cells.isEmpty()) {
        output.text(ToolText::tr("There are no label printers yet.") + QLatin1Char('\n'));
        return;
    }
    output.table({{ToolText::tr("PRINTER"), Width::Shrinks, 2, 10},
                  {ToolText::tr("SLOT")},
                  {ToolText::tr("LEFT"), Width::Shrinks, 1, 10},
                  {ToolText::tr("LASTS ABOUT")},
                  {ToolText::tr("PROBABLY")}},
                 cells);
}

void printWarnings(Output& output, const QList<Row>& rows)
{
    for (const Row& row : rows) {
        for (const RunOutForecast::Warning& warning : row.warnings)
            output.wrappedLine({}, {{row.reading.name() + QStringLiteral(": ")},
                                    {PrinterForecasts::text(warning), Colour::Notice}});
    }
}

} // namespace

void runForecast(const CommandLine& line, Output& output, Backend& /*backend*/)
{
    PrinterStatusController controller;
    catalogue_file::use(line, controller, output);
    VxKit::PrinterReadings readings(&controller);
    QList<PrinterReading> shownReadings = readings.readings();
    if (!line.arguments.isEmpty())
        shownReadings = {
            readings.reading(printer_names::withReading(line.arguments.first(), readings))};

    PrinterForecasts forecasts(&readings);
    const bool hasHistory = forecast_words::learn(forecasts, historyFile(line), &output);
    if (!hasHistory && !line.historyFile.isEmpty())
        throw Failure(VxKit::UsageHistoryReader(line.historyFile).errorString());
    forecasts.setWarningSettings(forecast_words::warningSettings(line, std::nullopt));
    forecasts.setJob(Slot::Supply, line.job);
    const QList<Row> rows = rowsOf(shownReadings, forecasts);
    if (line.json) {
        QStringList texts;
        for (const Row& row : rows)
            texts.append(json(row));
        output.text(json_text::lines(texts));
        return;
    }
    printTable(output, rows);
    printWarnings(output, rows);
    if (!hasHistory)
        output.complain(ToolText::tr("forecasts need a history of what printers use; "
                                     "\"vxprintmon watch --history\" records one"));
}
