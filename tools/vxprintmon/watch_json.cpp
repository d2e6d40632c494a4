// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "watch_json.h"

#include "forecast_words.h"
#include "json_text.h"

#include <printer_forecasts.h>

#include <QtCore/QDateTime>
#include <QtCore/QJsonArray>
#include <QtCore/QMetaEnum>

using VxKit::PrinterEvent;
using VxKit::PrinterReading;
using VxKit::PrinterReadings;

namespace {

QString now()
{
    const QDateTime time = QDateTime::currentDateTime();
    return time.toOffsetFromUtc(time.offsetFromUtc()).toString(Qt::ISODateWithMs);
}

/// The names of fields as JSON has them: "status", "serialNumber".
QJsonArray namesOf(PrinterReading::Fields fields)
{
    QJsonArray names;
    const QMetaEnum all = QMetaEnum::fromType<PrinterReading::Fields>();
    for (int i = 0; i < all.keyCount(); ++i) {
        if (!fields.testFlag(static_cast<PrinterReading::Field>(all.value(i))))
            continue;
        QString name = QString::fromLatin1(all.key(i));
        name[0] = name.at(0).toLower();
        names.append(name);
    }
    return names;
}

} // namespace

WatchJson::WatchJson(Output& output, PrinterReadings& readings, const QStringList& printers)
    : m_output(output)
    , m_readings(readings)
    , m_events(&readings)
    , m_watched(printers)
{
    connect(&readings, &PrinterReadings::changed, this, &WatchJson::onChanged);
    connect(&readings, &PrinterReadings::added, this,
            [this](const QString& name) { printReading("added", name); });
    connect(&readings, &PrinterReadings::gone, this,
            [this](const QString& name) { printReading("gone", name); });
    connect(&readings, &PrinterReadings::renamed, this, &WatchJson::onRenamed);
    connect(&readings, &PrinterReadings::activePrinterChanged, this, [this](const QString& name) {
        if (m_watched.contains(name))
            print("active",
                  {{QStringLiteral("printer"), name.isEmpty() ? QJsonValue() : QJsonValue(name)}});
    });
    connect(&readings, &PrinterReadings::printersInErrorChanged, this, [this](int count) {
        if (!m_watched.isNarrowed())
            print("error", {{QStringLiteral("inError"), count > 0},
                            {QStringLiteral("printersInError"), count}});
    });
    // What is true now is in the snapshot.
    m_events.start();
    connect(&m_events, &VxKit::PrinterEvents::happened, this, [this](const PrinterEvent& event) {
        const bool isStopped = event.kind == PrinterEvent::Kind::SpoolerStopped;
        if (isStopped || event.kind == PrinterEvent::Kind::SpoolerRunning)
            print("spooler", {{QStringLiteral("running"), !isStopped}});
    });
}

void WatchJson::printSnapshot()
{
    QJsonArray all;
    const QList<PrinterReading> readings = m_readings.readings();
    for (const PrinterReading& reading : readings) {
        if (!m_watched.contains(reading.name()))
            continue;
        m_known.insert(reading.name(), reading);
        all.append(reading.toJson());
    }
    print("snapshot", {{QStringLiteral("printers"), all}});
}

void WatchJson::print(const char* event, const QList<Member>& members)
{
    QList<json_text::Member> texts{
        {QStringLiteral("time"), json_text::value(now())},
        {QStringLiteral("event"), json_text::value(QString::fromLatin1(event))}};
    for (const auto& [name, value] : members)
        texts.emplaceBack(name, json_text::value(value));
    m_output.text(json_text::object(texts) + QLatin1Char('\n'));
}

void WatchJson::printReading(const char* event, const QString& name, const QList<Member>& more)
{
    if (!m_watched.contains(name))
        return;
    const PrinterReading reading = m_readings.reading(name);
    m_known.insert(name, reading);
    print(event, QList<Member>{{QStringLiteral("printer"), name}} + more +
                     QList<Member>{{QStringLiteral("reading"), reading.toJson()}});
}

void WatchJson::onChanged(const QString& name)
{
    if (!m_watched.contains(name))
        return;
    PrinterReading::Fields fields = m_readings.reading(name).differences(m_known.value(name));
    // A report that repeats what is known is no event, though its time is new.
    fields.setFlag(PrinterReading::Field::LastReport, false);
    if (fields)
        printReading("changed", name, {{QStringLiteral("what"), namesOf(fields)}});
}

void WatchJson::printWarning(const QString& printer, const VxKit::RunOutForecast::Warning& warning)
{
    if (!m_watched.contains(printer))
        return;
    const auto number = [](const std::optional<int>& value) {
        return value ? QJsonValue(*value) : QJsonValue();
    };
    print("warning", {{QStringLiteral("printer"), printer},
                      {QStringLiteral("slot"), VxKit::slotName(warning.slot)},
                      {QStringLiteral("concern"), forecast_words::concern(warning.concern)},
                      {QStringLiteral("labelsLeft"), number(warning.labelsLeft)},
                      {QStringLiteral("labelsWanted"), number(warning.labelsWanted)},
                      {QStringLiteral("text"), VxKit::PrinterForecasts::text(warning)}});
}

void WatchJson::onRenamed(const QString& oldName, const QString& newName)
{
    m_watched.rename(oldName, newName);
    m_known.remove(oldName);
    printReading("renamed", newName, {{QStringLiteral("oldName"), oldName}});
}
