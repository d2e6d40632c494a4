// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_readings.h"

#include "case_catalogue.h"
#include "case_file.h"
#include "case_values.h"
#include "printer_events.h"
#include "printer_level.h"

#include <windows_printer_info.h>

#include <QtCore/QHash>
#include <QtCore/QJsonArray>
#include <QtCore/QMap>
#include <QtCore/QTimeZone>

#include <array>
#include <utility>

namespace VxKit {

namespace {

namespace StatusCodes = VXPrinting::StatusCodes;

constexpr qsizetype mostPrinters = 4096;

/// A slot and the values that say what is in it.
struct SlotNames
{
    Slot slot;
    QLatin1String identifier;
    QLatin1String mileage;
};
constexpr std::array slotNames{
    SlotNames{Slot::Supply, QLatin1String("SupplyIdentifier"), QLatin1String("Mileage")},
    SlotNames{Slot::Ribbon1, QLatin1String("Ribbon1Identifier"), QLatin1String("Ribbon1Mileage")},
    SlotNames{Slot::Ribbon2, QLatin1String("Ribbon2Identifier"), QLatin1String("Ribbon2Mileage")},
};

/// What a case says of one printer.
struct CasePrinter
{
    QString driver;
    QString port;
    QHash<QString, QString> values; ///< as the library reads them
    std::optional<int> status;      ///< of the library's last signal
    bool isGone = false;
    bool isListed = true; ///< in the beginning that is being read
};

} // namespace

class CaseReadings::Private
{
public:
    void apply(const CaseLine& line);
    PrinterReading reading(const QString& name, const CasePrinter& printer) const;

    QMap<QString, CasePrinter> printers;
    QList<PrinterEvent> events;

private:
    void list(const QJsonObject& object, bool isNew);
    void change(CasePrinter& printer, const QJsonObject& object);
    void setValues(CasePrinter& printer, const QJsonArray& values);
    void setRecords(const QJsonArray& records);
    void rename(const QString& name, const QString& newName);
    void applySignal(const QJsonObject& object);
    void begin();
    void endBeginning();
    void report(const QString& name);
    template <typename Report>
    void collect(Report report);

    CaseCatalogue m_catalogue;
    PrinterEvents m_observer{nullptr};
    QDateTime m_start;
    double m_time = 0;
    QDateTime m_goneSince;
    bool m_isBeginning = true;
};

PrinterReading CaseReadings::Private::reading(const QString& name, const CasePrinter& printer) const
{
    PrinterReading reading;
    const VXPrinting::PrinterType model = WindowsPrinterInfo::printerType(printer.driver);
    const int status = printer.status.value_or(StatusCodes::unknown);
    reading.setName(name);
    reading.setModel(model);
    reading.setDriver(printer.driver);
    reading.setPort(QString(printer.port).remove(QLatin1String("USB")));
    reading.setStatusCode(status);
    reading.setOnline(!printer.isGone && status != StatusCodes::offline);
    if (printer.isGone) {
        reading.setGone(m_goneSince);
        return reading;
    }
    const QString firmware = printer.values.value(QStringLiteral("SoftwareVersion"));
    reading.setFirmwareVersion(firmware.section(u',', 0, 0).trimmed());
    reading.setBootVersion(firmware.section(u',', 1).trimmed());
    reading.setUpdateProgress(
        publishedNumber(printer.values.value(QStringLiteral("UpdateProgress"))));
    reading.setUpdateError(publishedNumber(printer.values.value(QStringLiteral("UpdateError"))));
    for (const SlotNames& slot : slotNames) {
        const QString identifier = printer.values.value(slot.identifier);
        const bool isLoaded = stateOf(slot.slot, identifier) == Level::State::Loaded;
        const SlotValues values{identifier, publishedMileage(printer.values.value(slot.mileage)),
                                !isLoaded                   ? nullptr
                                : slot.slot == Slot::Supply ? m_catalogue.supply(identifier)
                                                            : m_catalogue.ribbon(identifier)};
        reading.setLevel(slot.slot, levelOf(slot.slot, model, values));
    }
    return reading;
}

template <typename Report>
void CaseReadings::Private::collect(Report report)
{
    const QMetaObject::Connection connection =
        QObject::connect(&m_observer, &PrinterEvents::happened, [this](PrinterEvent event) {
            event.time = m_start.addMSecs(qRound64(m_time * 1000));
            events.append(event);
        });
    report();
    QObject::disconnect(connection);
}

void CaseReadings::Private::report(const QString& name)
{
    const auto found = printers.constFind(name);
    if (m_isBeginning || found == printers.cend())
        return;
    const PrinterReading now = reading(name, *found);
    // Of other printers, the library reports nothing but that it ignores them.
    if (VXPrinting::isSupported(now.model()))
        collect([&] { m_observer.setReading(now); });
}

void CaseReadings::Private::list(const QJsonObject& object, bool isNew)
{
    const QString name = object.value(QLatin1String("name")).toString();
    const auto known = printers.constFind(name);
    if (name.isEmpty() || (known == printers.cend() && printers.size() >= mostPrinters))
        return;
    CasePrinter& printer = printers[name];
    // A beginning behind a gap says nothing of the library's last signal.
    const std::optional<int> status = isNew ? std::nullopt : printer.status;
    printer = {};
    printer.status = status;
    change(printer, object);
    setValues(printer, object.value(QLatin1String("values")).toArray());
    if (!isNew)
        return;
    const PrinterReading now = reading(name, printer);
    if (VXPrinting::isSupported(now.model()) && !m_isBeginning)
        collect([&] { m_observer.addReading(now); });
}

void CaseReadings::Private::change(CasePrinter& printer, const QJsonObject& object)
{
    const QJsonValue driver = object.value(QLatin1String("driver"));
    if (!driver.isUndefined())
        printer.driver = driver.toString();
    const QJsonValue port = object.value(QLatin1String("port"));
    if (!port.isUndefined())
        printer.port = port.toString();
}

void CaseReadings::Private::setValues(CasePrinter& printer, const QJsonArray& values)
{
    for (const QJsonValue& each : values) {
        const QJsonObject value = each.toObject();
        const QString name = case_values::readName(value.value(QLatin1String("name")).toString());
        if (!name.isEmpty())
            printer.values.insert(name, case_values::published(value));
    }
}

void CaseReadings::Private::setRecords(const QJsonArray& records)
{
    for (const QJsonValue& each : records) {
        const QJsonObject record = each.toObject();
        const auto found = printers.find(record.value(QLatin1String("printerName")).toString());
        const QJsonValue status = record.value(QLatin1String("statusEnum"));
        if (found != printers.end() && status.isDouble())
            found->status = status.toInt();
    }
}

void CaseReadings::Private::rename(const QString& name, const QString& newName)
{
    if (newName.isEmpty() || name == newName || !printers.contains(name))
        return;
    printers.insert(newName, printers.take(name));
    const PrinterReading now = reading(newName, printers.value(newName));
    if (VXPrinting::isSupported(now.model()))
        collect([&] { m_observer.renameReading(name, now); });
}

void CaseReadings::Private::applySignal(const QJsonObject& object)
{
    if (object.value(QLatin1String("name")) != QLatin1String("statusChangedSignal"))
        return;
    const QJsonObject arguments = object.value(QLatin1String("arguments")).toObject();
    const QString name = arguments.value(QLatin1String("printerName")).toString();
    const auto found = printers.find(name);
    if (found == printers.end())
        return;
    found->status = arguments.value(QLatin1String("status")).toInt(StatusCodes::unknown);
    report(name);
}

void CaseReadings::Private::begin()
{
    m_isBeginning = true;
    for (CasePrinter& printer : printers)
        printer.isListed = false;
}

void CaseReadings::Private::endBeginning()
{
    m_isBeginning = false;
    const QStringList names = printers.keys();
    for (const QString& name : names) {
        CasePrinter& printer = printers[name];
        printer.isGone = printer.isGone || !printer.isListed;
        report(name);
    }
}

void CaseReadings::Private::apply(const CaseLine& line)
{
    const QJsonObject& object = line.object;
    const QString name = object.value(QLatin1String("name")).toString();
    const QString printerName = object.value(QLatin1String("printer")).toString();
    m_time = line.time;
    if (line.kind == QLatin1String("case")) {
        m_start = QDateTime::fromString(object.value(QLatin1String("time")).toString(),
                                        Qt::ISODateWithMs);
    } else if (line.kind == QLatin1String("gap")) {
        begin();
    } else if (line.kind == QLatin1String("begun")) {
        endBeginning();
    } else if (line.kind == QLatin1String("printer")) {
        list(object, false);
    } else if (line.kind == QLatin1String("printerAdded")) {
        list(object, true);
    } else if (line.kind == QLatin1String("catalogue")) {
        m_catalogue.add(object.value(QLatin1String("tables")).toObject());
    } else if (line.kind == QLatin1String("records")) {
        setRecords(object.value(QLatin1String("printers")).toArray());
    } else if (line.kind == QLatin1String("signal")) {
        applySignal(object);
    } else if (line.kind == QLatin1String("printerRenamed")) {
        rename(name, object.value(QLatin1String("newName")).toString());
    } else if (const auto found = printers.find(name.isEmpty() ? printerName : name);
               found != printers.end()) {
        if (line.kind == QLatin1String("printerRemoved")) {
            m_goneSince = m_start.addMSecs(qRound64(m_time * 1000));
            found->isGone = true;
        } else if (line.kind == QLatin1String("printerChanged")) {
            change(*found, object);
        } else if (line.kind == QLatin1String("values")) {
            setValues(*found, object.value(QLatin1String("changed")).toArray());
            const QJsonArray missing = object.value(QLatin1String("missing")).toArray();
            for (const QJsonValue& each : missing)
                found->values.remove(case_values::readName(each.toString()));
        } else {
            return;
        }
        report(found.key());
    }
}

CaseReadings::CaseReadings()
    : d(std::make_unique<Private>())
{}

CaseReadings::~CaseReadings() = default;

QList<PrinterEvent> CaseReadings::apply(const CaseLine& line)
{
    d->apply(line);
    return std::exchange(d->events, {});
}

QList<PrinterReading> CaseReadings::readings() const
{
    QList<PrinterReading> all;
    for (auto printer = d->printers.cbegin(); printer != d->printers.cend(); ++printer)
        all.append(d->reading(printer.key(), *printer));
    return all;
}

PrinterReading CaseReadings::reading(const QString& name) const
{
    const auto found = d->printers.constFind(name);
    return found == d->printers.cend() ? PrinterReading() : d->reading(name, *found);
}

QString CaseReadings::published(const QString& printer, const QString& value) const
{
    const auto found = d->printers.constFind(printer);
    return found == d->printers.cend() ? QString() : found->values.value(value);
}

} // namespace VxKit
