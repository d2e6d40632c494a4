// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_spooler_state.h"

#include "spooler_owners.h"

#include <algorithm>
#include <span>
#include <utility>

namespace VxKit {

namespace {

/// How many earlier states of a printer are remembered.
constexpr std::size_t mostPasts = 16;

bool isText(const QString& text, LPCWSTR other)
{
    if (!other)
        return text.isNull();
    return !text.isNull() && text == QStringView(reinterpret_cast<const char16_t*>(other));
}

/// Unlike `textFrom`, tells a null pointer from an empty text.
QString nullableText(LPCWSTR text)
{
    if (!text)
        return {};
    const QString result = textFrom(text);
    return result.isNull() ? QLatin1String("") : result;
}

QJsonValue nullable(const QString& text)
{
    return text.isNull() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
}

QJsonObject lineOf(const char* kind, const QString& name)
{
    return {{QStringLiteral("kind"), QLatin1String(kind)}, {QStringLiteral("name"), name}};
}

/// Adds a state that was so at a step, and drops what is too old to matter.
template <typename Past>
void remember(std::vector<Past>& all, Past past)
{
    const auto place =
        std::upper_bound(all.begin(), all.end(), past.step,
                         [](int step, const Past& other) { return step < other.step; });
    all.insert(place, std::move(past));
    if (all.size() > mostPasts)
        all.erase(all.begin());
}

template <typename Past>
const Past& stateAt(const std::vector<Past>& all, int step)
{
    if (step == SpoolerState::now)
        return all.back();
    const auto next =
        std::upper_bound(all.begin(), all.end(), step,
                         [](int wanted, const Past& other) { return wanted < other.step; });
    return next == all.begin() ? all.front() : *std::prev(next);
}

} // namespace

QJsonObject printerFields(const PRINTER_INFO_2W& record)
{
    return {{QStringLiteral("name"), textFrom(record.pPrinterName)},
            {QStringLiteral("driver"), nullable(nullableText(record.pDriverName))},
            {QStringLiteral("port"), nullable(nullableText(record.pPortName))},
            {QStringLiteral("attributes"), qint64(record.Attributes)},
            {QStringLiteral("status"), qint64(record.Status)}};
}

const SpoolerState::Past& SpoolerState::pastAt(const Printer& printer, int step)
{
    return stateAt(printer.past, step);
}

bool SpoolerState::isSame(const Printer& printer, const PRINTER_INFO_2W& record, int at)
{
    const Past& past = pastAt(printer, at);
    return past.attributes == record.Attributes && past.status == record.Status &&
           isText(printer.driver, record.pDriverName) && isText(printer.port, record.pPortName);
}

void SpoolerState::buildIndex()
{
    m_index.clear();
    for (std::size_t i = 0; i < m_printers.size(); ++i)
        m_index.insert(m_printers[i].name, static_cast<int>(i));
}

void SpoolerState::clear()
{
    m_printers.clear();
    m_index.clear();
    m_defaults.clear();
    m_service.reset();
    ++m_version;
}

QJsonObject SpoolerState::change(Printer& printer, const PRINTER_INFO_2W& record, int at,
                                 int lastStep)
{
    QJsonObject line = lineOf("printerChanged", printer.name);
    if (at != now)
        line.insert(QStringLiteral("at"), at);
    const Past& past = pastAt(printer, at);
    if (past.attributes != record.Attributes)
        line.insert(QStringLiteral("attributes"), qint64(record.Attributes));
    if (past.status != record.Status)
        line.insert(QStringLiteral("status"), qint64(record.Status));
    if (!isText(printer.driver, record.pDriverName)) {
        printer.driver = nullableText(record.pDriverName);
        line.insert(QStringLiteral("driver"), nullable(printer.driver));
    }
    if (!isText(printer.port, record.pPortName)) {
        printer.port = nullableText(record.pPortName);
        line.insert(QStringLiteral("port"), nullable(printer.port));
    }
    remember(printer.past, {at == now ? lastStep + 1 : at, record.Attributes, record.Status});
    ++m_version;
    return line;
}

bool SpoolerState::isSameDriver(const PRINTER_INFO_2W* records, DWORD count,
                                const QString& name) const
{
    if (count != m_printers.size())
        return false;
    const auto found = m_index.constFind(name);
    if (found == m_index.constEnd())
        return true; // the controller finds none either
    const auto place = static_cast<std::size_t>(*found);
    return isText(name, records[place].pPrinterName) &&
           isText(m_printers[place].driver, records[place].pDriverName);
}

std::optional<QJsonObject> SpoolerState::comparePrinter(const QString& name,
                                                        const PRINTER_INFO_2W& record, int at,
                                                        int lastStep)
{
    const auto found = m_index.constFind(name);
    if (found == m_index.constEnd())
        return std::nullopt;
    Printer& printer = m_printers[static_cast<std::size_t>(*found)];
    printer.jobs = record.cJobs;
    if (isSame(printer, record, at))
        return std::nullopt;
    return change(printer, record, at, lastStep);
}

QList<QJsonObject> SpoolerState::compare(const PRINTER_INFO_2W* records, DWORD count, int at,
                                         int lastStep, bool mayBeRenamed)
{
    const std::span all(records, count);
    // Nearly always everything is as it was.
    const bool isSameList =
        std::ranges::equal(m_printers, all, [&](Printer& printer, const PRINTER_INFO_2W& record) {
            printer.jobs = record.cJobs;
            return isSame(printer, record, at) && isText(printer.name, record.pPrinterName);
        });
    if (isSameList)
        return {};

    QList<QJsonObject> lines;
    QHash<QString, const PRINTER_INFO_2W*> listed;
    std::vector<const PRINTER_INFO_2W*> added;
    for (const PRINTER_INFO_2W& record : all) {
        if (!record.pPrinterName)
            continue;
        const QString name = textFrom(record.pPrinterName);
        if (listed.contains(name))
            continue;
        listed.insert(name, &record);
        if (!m_index.contains(name))
            added.push_back(&record);
    }
    QStringList gone;
    for (const Printer& printer : m_printers) {
        if (!listed.contains(printer.name))
            gone.append(printer.name);
    }
    if (mayBeRenamed && gone.size() == 1 && added.size() == 1) {
        const Printer& before = m_printers[static_cast<std::size_t>(m_index.value(gone.first()))];
        const PRINTER_INFO_2W& after = *added.front();
        if (isText(before.driver, after.pDriverName) && isText(before.port, after.pPortName)) {
            lines.append(*rename(gone.first(), textFrom(after.pPrinterName)));
            gone.clear();
            added.clear();
        }
    }
    for (const QString& name : std::as_const(gone)) {
        lines.append(lineOf("printerRemoved", name));
        std::erase_if(m_printers, [&](const Printer& printer) { return printer.name == name; });
    }
    for (const PRINTER_INFO_2W* record : added) {
        QJsonObject line = printerFields(*record);
        line.insert(QStringLiteral("kind"), QStringLiteral("printerAdded"));
        lines.append(line);
        Printer printer;
        printer.name = textFrom(record->pPrinterName);
        printer.narrowName = printer.name.toLocal8Bit();
        // Many printers have the same driver.
        const bool isSameAsBefore =
            !m_printers.empty() && isText(m_printers.back().driver, record->pDriverName);
        printer.driver =
            isSameAsBefore ? m_printers.back().driver : nullableText(record->pDriverName);
        printer.port = nullableText(record->pPortName);
        printer.jobs = record->cJobs;
        printer.past.push_back({0, record->Attributes, record->Status});
        m_printers.push_back(std::move(printer));
    }
    buildIndex();
    for (Printer& printer : m_printers) {
        const PRINTER_INFO_2W& record = *listed.value(printer.name);
        if (!isSame(printer, record, at))
            lines.append(change(printer, record, at, lastStep));
    }
    // In the order of the listing, in which the next one is compared.
    std::vector<Printer> ordered;
    ordered.reserve(m_printers.size());
    for (const PRINTER_INFO_2W& record : all) {
        const auto found =
            record.pPrinterName ? m_index.constFind(textFrom(record.pPrinterName)) : m_index.cend();
        if (found == m_index.cend())
            continue;
        ordered.push_back(std::move(m_printers[static_cast<std::size_t>(*found)]));
        m_index.erase(found);
    }
    m_printers = std::move(ordered);
    buildIndex();
    ++m_version;
    return lines;
}

bool SpoolerState::areRightsKnown(const QString& name) const
{
    const auto found = m_index.constFind(name);
    return found != m_index.constEnd() &&
           m_printers[static_cast<std::size_t>(*found)].isAdministrable.has_value();
}

std::optional<QJsonObject> SpoolerState::compareRights(const QString& name, bool isAdministrable,
                                                       int at)
{
    const auto found = m_index.constFind(name);
    if (found == m_index.constEnd())
        return std::nullopt;
    Printer& printer = m_printers[static_cast<std::size_t>(*found)];
    if (printer.isAdministrable == isAdministrable)
        return std::nullopt;
    printer.isAdministrable = isAdministrable;
    ++m_version;
    QJsonObject line = lineOf("printerChanged", name);
    if (at != now)
        line.insert(QStringLiteral("at"), at);
    line.insert(QStringLiteral("administrable"), isAdministrable);
    return line;
}

std::optional<QJsonObject> SpoolerState::compareDefault(const QString& name, int at, int lastStep)
{
    const bool isSame = m_defaults.empty() ? name.isNull() : stateAt(m_defaults, at).name == name;
    if (isSame)
        return std::nullopt;
    if (m_defaults.empty())
        m_defaults.push_back({0, {}});
    remember(m_defaults, {at == now ? lastStep + 1 : at, name});
    ++m_version;
    QJsonObject line{{QStringLiteral("kind"), QStringLiteral("default")},
                     {QStringLiteral("printer"), nullable(name)}};
    if (at != now)
        line.insert(QStringLiteral("at"), at);
    return line;
}

void SpoolerState::setDefault(const QString& name)
{
    m_defaults.assign(1, {0, name});
    ++m_version;
}

std::optional<QJsonObject> SpoolerState::compareService(DWORD state)
{
    if (m_service == state)
        return std::nullopt;
    m_service = state;
    ++m_version;
    return serviceLine(state);
}

QJsonObject SpoolerState::serviceLine(DWORD state)
{
    return {{QStringLiteral("kind"), QStringLiteral("service")},
            {QStringLiteral("state"), qint64(state)}};
}

std::optional<QJsonObject> SpoolerState::rename(const QString& name, const QString& newName)
{
    const auto found = m_index.constFind(name);
    if (found == m_index.constEnd() || m_index.contains(newName))
        return std::nullopt;
    Printer& printer = m_printers[static_cast<std::size_t>(*found)];
    printer.name = newName;
    printer.narrowName = newName.toLocal8Bit();
    buildIndex();
    ++m_version;
    QJsonObject line = lineOf("printerRenamed", name);
    line.insert(QStringLiteral("newName"), newName);
    return line;
}

QStringList SpoolerState::names() const
{
    QStringList names;
    names.reserve(static_cast<qsizetype>(m_printers.size()));
    for (const Printer& printer : m_printers)
        names.append(printer.name);
    return names;
}

QString SpoolerState::sharedName(const QString& name) const
{
    const auto found = m_index.constFind(name);
    return found == m_index.constEnd() ? name : found.key();
}

QString SpoolerState::nameOf(const char* narrow) const
{
    const QByteArrayView wanted(narrow);
    for (const Printer& printer : m_printers) {
        if (printer.narrowName == wanted)
            return printer.name;
    }
    return QString::fromLocal8Bit(wanted);
}

DWORD SpoolerState::jobs(const QString& name) const
{
    const auto found = m_index.constFind(name);
    return found == m_index.constEnd() ? 0 : m_printers[static_cast<std::size_t>(*found)].jobs;
}

QString SpoolerState::driver(const QString& name) const
{
    const auto found = m_index.constFind(name);
    return found == m_index.constEnd() ? QString()
                                       : m_printers[static_cast<std::size_t>(*found)].driver;
}

} // namespace VxKit
