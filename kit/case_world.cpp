// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_world.h"

#include <QtCore/QJsonArray>

#include <algorithm>
#include <utility>

namespace VxKit {

namespace {

/// A line without what is only true of the moment.
QJsonObject timeless(QJsonObject line)
{
    for (const auto& key : {QLatin1String("t"), QLatin1String("n"), QLatin1String("at")})
        line.remove(key);
    return line;
}

} // namespace

CaseWorld::Printer* CaseWorld::find(const QString& name)
{
    // As long as a printer here has the name, there is no other text in its place.
    if (const auto place = m_places.constFind(name.constData()); place != m_places.constEnd())
        return &m_printers[static_cast<std::size_t>(*place)];
    const auto found = m_index.constFind(name);
    return found == m_index.constEnd() ? nullptr : &m_printers[static_cast<std::size_t>(*found)];
}

void CaseWorld::apply(const CaseItem& item)
{
    if (item.kind == CaseItem::Kind::Values) {
        if (Printer* const printer = find(item.text))
            printer->values.merge(PublishedValues(item.block));
    } else if (item.kind == CaseItem::Kind::Line) {
        applyLine(item);
    }
}

void CaseWorld::setFields(Printer& printer, const QJsonObject& line)
{
    const auto set = [&line](const char* key, auto use) {
        const QJsonValue value = line.value(QLatin1String(key));
        if (!value.isUndefined())
            use(value);
    };
    set("driver", [&](const QJsonValue& value) { printer.driver = value.toString(); });
    set("port", [&](const QJsonValue& value) { printer.port = value.toString(); });
    set("attributes", [&](const QJsonValue& value) { printer.attributes = value.toInteger(); });
    set("status", [&](const QJsonValue& value) { printer.status = value.toInteger(); });
    set("administrable",
        [&](const QJsonValue& value) { printer.isAdministrable = value.toBool(); });
}

void CaseWorld::addToIndex(std::size_t number)
{
    const QString& name = m_printers[number].name;
    m_index.insert(name, static_cast<int>(number));
    if (!name.isEmpty())
        m_places.insert(name.constData(), static_cast<int>(number));
}

void CaseWorld::buildIndex()
{
    m_index.clear();
    m_places.clear();
    for (std::size_t i = 0; i < m_printers.size(); ++i)
        addToIndex(i);
}

void CaseWorld::applyJob(const QJsonObject& line)
{
    Printer* const printer = find(line.value(QLatin1String("printer")).toString());
    if (!printer)
        return;
    const qint64 id = line.value(QLatin1String("id")).toInteger();
    if (line.value(QLatin1String("status")).isNull())
        printer->jobs.remove(id);
    else
        printer->jobs.insert(id, timeless(line));
}

void CaseWorld::applyLine(const CaseItem& item)
{
    const QJsonObject& line = item.object;
    const QString kind = line.value(QLatin1String("kind")).toString();
    const QString name = line.value(QLatin1String("name")).toString();
    if (kind == QLatin1String("printer") || kind == QLatin1String("printerAdded")) {
        Printer* printer = find(name);
        if (!printer) {
            printer = &m_printers.emplace_back();
            printer->name = item.text.isNull() ? name : item.text; // which others share
            addToIndex(m_printers.size() - 1);
        }
        setFields(*printer, line);
        if (m_printers.size() > 1 && m_printers[m_printers.size() - 2].driver == printer->driver)
            printer->driver = m_printers[m_printers.size() - 2].driver;
        printer->values = PublishedValues(item.block);
    } else if (kind == QLatin1String("printerRemoved")) {
        std::erase_if(m_printers, [&](const Printer& printer) { return printer.name == name; });
        buildIndex();
    } else if (kind == QLatin1String("printerRenamed")) {
        if (Printer* const printer = find(name)) {
            printer->name = line.value(QLatin1String("newName")).toString();
            buildIndex();
        }
    } else if (kind == QLatin1String("printerChanged")) {
        if (Printer* const printer = find(name))
            setFields(*printer, line);
    } else if (kind == QLatin1String("job")) {
        applyJob(line);
    } else if (kind == QLatin1String("device")) {
        m_devices.append(line);
    } else if (kind == QLatin1String("catalogue")) {
        m_catalogue.append(timeless(line));
    } else if (kind == QLatin1String("service")) {
        m_service = timeless(line);
    } else if (kind == QLatin1String("default")) {
        m_default = timeless(line);
    }
}

void CaseWorld::reset()
{
    m_printers.clear();
    m_index.clear();
    m_places.clear();
    m_devices.clear();
}

QList<QJsonObject> CaseWorld::beginning() const
{
    QList<QJsonObject> lines;
    lines.reserve(static_cast<qsizetype>(m_printers.size()) + m_devices.size() + 4);
    for (const Printer& printer : m_printers) {
        QJsonArray values;
        printer.values.forEach(
            [&values](const PublishedValues::Value& value) { values.append(valueObject(value)); });
        const auto nullable = [](const QString& text) {
            return text.isNull() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
        };
        QJsonObject line{{QStringLiteral("kind"), QStringLiteral("printer")},
                         {QStringLiteral("name"), printer.name},
                         {QStringLiteral("driver"), nullable(printer.driver)},
                         {QStringLiteral("port"), nullable(printer.port)},
                         {QStringLiteral("attributes"), printer.attributes},
                         {QStringLiteral("status"), printer.status},
                         {QStringLiteral("values"), values}};
        if (printer.isAdministrable)
            line.insert(QStringLiteral("administrable"), *printer.isAdministrable);
        lines.append(line);
        for (QJsonObject job : printer.jobs) {
            // The printer may have been renamed since.
            job.insert(QStringLiteral("printer"), printer.name);
            lines.append(job);
        }
    }
    lines += m_devices;
    if (m_service)
        lines.append(*m_service);
    if (m_default)
        lines.append(*m_default);
    lines += m_catalogue;
    return lines;
}

QStringList CaseWorld::names() const
{
    QStringList names;
    for (const Printer& printer : m_printers)
        names.append(printer.name);
    return names;
}

} // namespace VxKit
