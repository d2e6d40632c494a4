// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_facts.h"

#include "doctor_check.h"

#include <windows_printer_info.h>

#include <winspool.h>

#include <QtCore/QJsonArray>
#include <QtCore/QSet>

#include <algorithm>
#include <utility>

using VxKit::CaseLine;
using VxKit::PrinterEvent;
using VXPrinting::PrinterType;

namespace {

constexpr qsizetype mostPrinters = 4096;

QString textOf(const QJsonObject& object, const char* key)
{
    return object.value(QLatin1String(key)).toString();
}

/// A copy with some of the members.
QJsonObject only(const QJsonObject& object, std::initializer_list<const char*> keys)
{
    QJsonObject result;
    for (const char* key : keys) {
        const QJsonValue value = object.value(QLatin1String(key));
        if (!value.isUndefined())
            result.insert(QLatin1String(key), value);
    }
    return result;
}

} // namespace

void CaseFacts::add(const char* fact, const QString& printer, const QJsonObject& members)
{
    QJsonObject result = members;
    result.insert(QStringLiteral("fact"), QLatin1String(fact));
    if (!printer.isEmpty()) {
        result.insert(QStringLiteral("printer"), printer);
        result.insert(QStringLiteral("supported"), m_printers.value(printer).isSupported);
    }
    m_facts.append(result);
}

bool CaseFacts::isExpected(const QString& printer, const QString& value) const
{
    const Printer known = m_printers.value(printer);
    const auto expected = doctor::expectedValues();
    return std::ranges::any_of(expected, [&](const doctor::ExpectedValue& each) {
        return value == QLatin1String(each.name) && each.isRequired &&
               (known.hasSecondRibbon || !each.ofSecondRibbon);
    });
}

/// Whether the library would read the printer's values, as far as the list of printers says.
bool CaseFacts::isWatched(const Printer& printer)
{
    constexpr quint32 reach = PRINTER_ATTRIBUTE_NETWORK | PRINTER_ATTRIBUTE_LOCAL;
    constexpr qsizetype partsOfAnAddress = 4;
    const bool isOnNetwork = (printer.attributes & reach) != PRINTER_ATTRIBUTE_LOCAL ||
                             printer.port.split(u'.').size() == partsOfAnAddress;
    const bool isOffline = (printer.attributes & PRINTER_ATTRIBUTE_WORK_OFFLINE) != 0 ||
                           (printer.status & PRINTER_STATUS_OFFLINE) != 0;
    return printer.isSupported && printer.isAdministrable && !isOnNetwork && !isOffline;
}

void CaseFacts::addMissing(const QString& printer, const QString& value)
{
    add("missing", printer,
        {{QStringLiteral("value"), value},
         {QStringLiteral("expected"), isExpected(printer, value)},
         {QStringLiteral("watched"), isWatched(m_printers.value(printer))}});
}

void CaseFacts::addValues(const QString& printer, const QJsonValue& values)
{
    const QJsonArray all = values.toArray();
    for (const QJsonValue& each : all) {
        const QJsonObject value = each.toObject();
        const QString name = textOf(value, "name");
        QJsonObject members = only(value, {"type", "text", "number", "size"});
        members.insert(QStringLiteral("value"), name);
        members.insert(QStringLiteral("expected"), isExpected(printer, name));
        members.insert(QStringLiteral("accepted"), !m_readings.published(printer, name).isEmpty());
        add("value", printer, members);
    }
}

void CaseFacts::addFailures(const CaseLine& line, const QString& printer)
{
    const QJsonArray all = line.object.value(QLatin1String("failed")).toArray();
    for (const QJsonValue& each : all) {
        const QJsonObject failure = each.toObject();
        const QString ofCall = textOf(failure, "printer");
        QJsonObject members = only(failure, {"call", "value", "error"});
        members.insert(QStringLiteral("during"), line.kind);
        add("failed", ofCall.isEmpty() ? printer : ofCall, members);
    }
}

void CaseFacts::addPrinter(const QJsonObject& object, bool isWhole)
{
    const QString name = textOf(object, "name");
    const QJsonValue driver = object.value(QLatin1String("driver"));
    if (driver.isString() && (m_printers.contains(name) || m_printers.size() < mostPrinters)) {
        const PrinterType type = WindowsPrinterInfo::printerType(driver.toString());
        Printer& printer = m_printers[name];
        printer.isSupported = VXPrinting::isSupported(type);
        printer.hasSecondRibbon = type == PrinterType::Alder || type == PrinterType::AlderMax;
    }
    if (const auto printer = m_printers.find(name); printer != m_printers.end()) {
        const auto number = [&object](const char* key, quint32 before) {
            return static_cast<quint32>(object.value(QLatin1String(key)).toInteger(before));
        };
        printer->attributes = number("attributes", printer->attributes);
        printer->status = number("status", printer->status);
        printer->port = object.value(QLatin1String("port")).toString(printer->port);
        printer->isAdministrable =
            object.value(QLatin1String("administrable")).toBool(printer->isAdministrable);
    }
    add("printer", name, only(object, {"driver", "port", "attributes", "status", "administrable"}));
    const QJsonValue values = object.value(QLatin1String("values"));
    addValues(name, values);
    if (!isWhole)
        return;
    QSet<QString> published;
    const QJsonArray all = values.toArray();
    for (const QJsonValue& value : all)
        published.insert(textOf(value.toObject(), "name"));
    for (const doctor::ExpectedValue& expected : doctor::expectedValues()) {
        const QString value = QString::fromLatin1(expected.name);
        if (!published.contains(value))
            addMissing(name, value);
    }
}

void CaseFacts::addEvents(const QList<PrinterEvent>& events)
{
    for (const PrinterEvent& event : events) {
        QJsonObject members{
            {QStringLiteral("event"), VxKit::eventKindName(event.kind)},
            {QStringLiteral("key"), event.key},
            {QStringLiteral("severity"), VxKit::severityKey(event.severity)},
        };
        if (event.code)
            members.insert(QStringLiteral("code"), *event.code);
        if (!event.after.identifier.isEmpty())
            members.insert(QStringLiteral("identifier"), event.after.identifier);
        add("event", event.printer, members);
    }
}

QList<QJsonObject> CaseFacts::of(const CaseLine& line)
{
    const QJsonObject& object = line.object;
    const QString printer = textOf(object, "printer");
    const QList<PrinterEvent> events = m_readings.apply(line);
    if (line.kind == QLatin1String("printer") || line.kind == QLatin1String("printerAdded")) {
        addPrinter(object, true);
    } else if (line.kind == QLatin1String("printerChanged")) {
        addPrinter(object, false);
    } else if (line.kind == QLatin1String("printerRemoved")) {
        add("removed", textOf(object, "name"));
    } else if (line.kind == QLatin1String("printerRenamed")) {
        const QString newName = textOf(object, "newName");
        m_printers.insert(newName, m_printers.take(textOf(object, "name")));
        add("renamed", newName, {{QStringLiteral("from"), textOf(object, "name")}});
    } else if (line.kind == QLatin1String("service")) {
        add("service", {}, only(object, {"state"}));
    } else if (line.kind == QLatin1String("default")) {
        add("default", {}, {{QStringLiteral("name"), object.value(QLatin1String("printer"))}});
    } else if (line.kind == QLatin1String("values")) {
        add("report", printer, only(object, {"seenBy"}));
        addValues(printer, object.value(QLatin1String("changed")));
        const QJsonArray missing = object.value(QLatin1String("missing")).toArray();
        for (const QJsonValue& value : missing)
            addMissing(printer, value.toString());
    } else if (line.kind == QLatin1String("poll") || line.kind == QLatin1String("started")) {
        add("report", printer, {{QStringLiteral("seenBy"), QStringLiteral("library")}});
    } else if (line.kind == QLatin1String("failed")) {
        QJsonObject members = only(object, {"call", "value", "error"});
        members.insert(QStringLiteral("during"), line.kind);
        add("failed", printer, members);
    } else if (line.kind == QLatin1String("job")) {
        QJsonObject members = only(object, {"id", "status", "pages", "bytes"});
        members.insert(QStringLiteral("left"), object.value(QLatin1String("status")).isNull());
        add("job", printer, members);
    } else if (line.kind == QLatin1String("signal")) {
        const QJsonObject arguments = object.value(QLatin1String("arguments")).toObject();
        QJsonObject members = only(arguments, {"status"});
        members.insert(QStringLiteral("signal"), textOf(object, "name"));
        add("signal", textOf(arguments, "printerName"), members);
    } else if (line.kind == QLatin1String("log")) {
        add("log", {}, only(object, {"level", "message"}));
    } else if (line.kind == QLatin1String("gap")) {
        add("gap", {});
    } else if (line.kind == QLatin1String("faster")) {
        add("faster", printer);
    }
    addFailures(line, printer);
    addEvents(events);
    return std::exchange(m_facts, {});
}
