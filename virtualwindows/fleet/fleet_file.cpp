// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "virtualwindows/fleet.h"

#include "case_changes.h"
#include "driver_values.h"
#include "located_json.h"
#include "message_text.h"
#include "virtualwindows/recorded_case.h"
#include "whole_file.h"

#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QSet>

#include <algorithm>
#include <array>

#include <windows.h>
#include <winspool.h>

namespace virtualwindows {

namespace {

struct NamedBit
{
    const char* name;
    quint32 bit;
};

constexpr std::array attributeNames{
    NamedBit{"local", PRINTER_ATTRIBUTE_LOCAL},
    NamedBit{"network", PRINTER_ATTRIBUTE_NETWORK},
    NamedBit{"shared", PRINTER_ATTRIBUTE_SHARED},
    NamedBit{"hidden", PRINTER_ATTRIBUTE_HIDDEN},
    NamedBit{"work-offline", PRINTER_ATTRIBUTE_WORK_OFFLINE},
};

constexpr std::array statusNames{
    NamedBit{"paused", PRINTER_STATUS_PAUSED},
    NamedBit{"error", PRINTER_STATUS_ERROR},
    NamedBit{"paper-jam", PRINTER_STATUS_PAPER_JAM},
    NamedBit{"paper-out", PRINTER_STATUS_PAPER_OUT},
    NamedBit{"offline", PRINTER_STATUS_OFFLINE},
    NamedBit{"printing", PRINTER_STATUS_PRINTING},
};

/// Reads a number, given as such or as a list of the names of its bits.
template <std::size_t count>
quint32 readBits(const JsonPlace& place, const std::array<NamedBit, count>& names)
{
    if (place.isNumber())
        return place.number();
    quint32 bits = 0;
    const QList<JsonPlace> entries = place.entries();
    for (const JsonPlace& entry : entries) {
        const QString name = entry.text();
        const auto found = std::find_if(names.begin(), names.end(), [&](const NamedBit& bit) {
            return name == QLatin1String(bit.name);
        });
        if (found == names.end()) {
            QStringList known;
            for (const NamedBit& bit : names)
                known.append(QString::fromLatin1(bit.name));
            entry.fail(QStringLiteral("unknown name \"%1\"; expected one of %2")
                           .arg(shortened(name), listed(known)));
        }
        bits |= found->bit;
    }
    return bits;
}

/// Reads a value of any of the three types, whatever its name.
PrinterValue readRawValue(const QString& name, const JsonPlace& place)
{
    const QByteArray valueName = name.toUtf8();
    if (place.isText())
        return PrinterValue::text(valueName, place.text().toUtf8());
    if (place.isNumber())
        return PrinterValue::number(valueName, place.number());
    if (!place.isObject())
        place.fail(
            QStringLiteral("expected a string, a number or {\"binary\": \"hexadecimal digits\"}"));
    place.expectKeys({QStringLiteral("binary")}, {});
    return PrinterValue::binary(valueName, place.at("binary").hexBytes());
}

/// A name that is nearly a known one is a slip of the pen: the library would never read the value.
void expectNoSlip(const QString& name, const JsonPlace& place, const char* remedy)
{
    if (const driver_values::KnownValue* const meant = driver_values::meant(name))
        place.fail(QStringLiteral("unknown value \"%1\"; did you mean \"%2\"? If the driver has a "
                                  "value of that name, write %3")
                       .arg(shortened(name), QLatin1String(meant->name), QLatin1String(remedy)));
}

PrinterValue readValue(const QString& name, const JsonPlace& place)
{
    if (place.isObject() && place.has("raw")) {
        place.expectKeys({QStringLiteral("raw")}, {});
        return readRawValue(name, place.at("raw"));
    }
    const driver_values::KnownValue* const known = driver_values::known(name);
    if (!known)
        expectNoSlip(name, place, R"({"raw": VALUE})");
    const PrinterValue value = readRawValue(name, place);
    const bool isText = known && known->kind == driver_values::Kind::Text;
    if (known && value.type == (isText ? REG_DWORD : REG_SZ))
        place.fail(QStringLiteral("expected %1 or {\"binary\": \"hexadecimal digits\"}, as the "
                                  "library reads it; found %2. For a driver that publishes it "
                                  "wrongly, write {\"raw\": VALUE}")
                       .arg(isText ? QStringLiteral("a string") : QStringLiteral("a number"),
                            place.found()));
    return value;
}

QList<PrinterValue> readValues(const JsonPlace& place)
{
    QList<PrinterValue> values;
    const QStringList names = place.keys();
    for (const QString& name : names)
        values.append(readValue(name, place.at(name.toUtf8())));
    return values;
}

/// Reads the name of a value that the driver no longer publishes.
QByteArray readUnpublishedName(const JsonPlace& place)
{
    if (place.isObject()) {
        place.expectKeys({QStringLiteral("raw")}, {});
        return place.at("raw").nonEmptyText().toUtf8();
    }
    const QString name = place.nonEmptyText();
    if (!driver_values::known(name))
        expectNoSlip(name, place, R"({"raw": "NAME"})");
    return name.toUtf8();
}

FleetPrinter readPrinter(const JsonPlace& place)
{
    place.expectKeys({QStringLiteral("name"), QStringLiteral("driver")},
                     {QStringLiteral("port"), QStringLiteral("attributes"),
                      QStringLiteral("status"), QStringLiteral("administrable"),
                      QStringLiteral("printingTime"), QStringLiteral("values")});
    FleetPrinter printer;
    printer.setup.name = place.at("name").nonEmptyText();
    printer.setup.driver = place.at("driver").nonEmptyText();
    if (place.has("port"))
        printer.setup.port = place.at("port").nonEmptyText();
    if (place.has("attributes"))
        printer.setup.attributes = readBits(place.at("attributes"), attributeNames);
    if (place.has("status"))
        printer.setup.status = readBits(place.at("status"), statusNames);
    if (place.has("administrable"))
        printer.setup.administrable = place.at("administrable").flag();
    if (place.has("printingTime"))
        printer.setup.printingTime =
            std::chrono::milliseconds(qRound64(place.at("printingTime").seconds() * 1000));
    if (place.has("values"))
        printer.values = readValues(place.at("values"));
    return printer;
}

DeviceSetup readDevice(const JsonPlace& place)
{
    place.expectKeys({QStringLiteral("class"), QStringLiteral("key")},
                     {QStringLiteral("port"), QStringLiteral("serialNumber")});
    DeviceSetup device;
    for (const char* key : {"class", "key"}) {
        if (place.at(key).nonEmptyText().contains(QLatin1Char('\\')))
            place.at(key).fail(
                QStringLiteral("expected the name of a registry key, without a backslash"));
    }
    device.classGuid = place.at("class").text();
    device.interfaceKey = place.at("key").text();
    if (place.has("port"))
        device.portNumber = place.at("port").number();
    if (place.has("serialNumber"))
        device.serialNumber = place.at("serialNumber").text();
    return device;
}

void add(Machine& machine, const FleetPrinter& printer)
{
    machine.addPrinter(printer.setup);
    if (!printer.values.isEmpty())
        machine.publish(printer.setup.name, printer.values);
    for (const JobSetup& job : printer.jobs)
        case_changes::setJob(machine, printer.setup.name, job.id, job);
}

/// The names of the printers that exist at some time, in the order in which they were added.
class PrinterNames
{
public:
    bool has(const QString& name) const
    {
        const auto found = m_places.constFind(name.toCaseFolded());
        return found != m_places.cend() && m_names.value(*found) == name;
    }
    /// The spooler does not distinguish upper and lower case in names.
    void expectNew(const JsonPlace& place, const QString& name) const
    {
        if (m_places.contains(name.toCaseFolded()))
            place.fail(QStringLiteral("duplicate printer \"%1\"").arg(shortened(name)));
    }
    void add(const QString& name)
    {
        m_places.insert(name.toCaseFolded(), m_next);
        m_names.insert(m_next++, name);
    }
    void remove(const QString& name) { m_names.remove(m_places.take(name.toCaseFolded())); }
    void rename(const QString& name, const QString& newName)
    {
        const int place = m_places.take(name.toCaseFolded());
        m_places.insert(newName.toCaseFolded(), place);
        m_names.insert(place, newName);
    }
    QString list() const { return listed(m_names.values()); }

private:
    QMap<int, QString> m_names;
    QHash<QString, int> m_places; ///< by case-folded name
    int m_next = 0;
};

/// Reads the story, and keeps track of which printers exist at the time of each event.
class StoryReader
{
public:
    explicit StoryReader(const PrinterNames& printers)
        : m_printers(printers)
    {}

    QList<StoryEvent> read(const JsonPlace& place)
    {
        QList<StoryEvent> story;
        const QList<JsonPlace> entries = place.entries();
        for (const JsonPlace& entry : entries) {
            const StoryEvent event = readEvent(entry);
            if (!story.isEmpty() && event.at < story.last().at)
                entry.at("at").fail(
                    QStringLiteral("expected a time no earlier than that of the previous event"));
            story.append(event);
        }
        return story;
    }

private:
    using Change = std::function<void(Machine&)>;

    StoryEvent readEvent(const JsonPlace& place)
    {
        place.expectKeys(
            {QStringLiteral("at")},
            {QStringLiteral("say"), QStringLiteral("printer"), QStringLiteral("values"),
             QStringLiteral("unpublish"), QStringLiteral("attributes"), QStringLiteral("status"),
             QStringLiteral("administrable"), QStringLiteral("rename"), QStringLiteral("remove"),
             QStringLiteral("add"), QStringLiteral("spooler"), QStringLiteral("defaultPrinter")});
        StoryEvent event;
        event.at = std::chrono::milliseconds(qRound64(place.at("at").seconds() * 1000));
        if (place.has("say"))
            event.caption = place.at("say").text();

        QList<Change> changes;
        if (place.has("spooler"))
            changes.append(readSpooler(place.at("spooler")));
        if (place.has("add")) {
            const FleetPrinter printer = readPrinter(place.at("add"));
            m_printers.expectNew(place.at("add").at("name"), printer.setup.name);
            m_printers.add(printer.setup.name);
            changes.append([printer](Machine& machine) { add(machine, printer); });
        }
        if (place.has("defaultPrinter")) {
            const QString name = readPrinterName(place.at("defaultPrinter"));
            changes.append([name](Machine& machine) { machine.setDefaultPrinter(name); });
        }
        readPrinterChanges(place, changes);
        event.happen = [changes](Machine& machine) {
            for (const Change& change : changes)
                change(machine);
        };
        return event;
    }

    static Change readSpooler(const JsonPlace& place)
    {
        const QString state = place.text();
        if (state != QLatin1String("stopped") && state != QLatin1String("running"))
            place.fail(QStringLiteral("expected \"stopped\" or \"running\", found \"%1\"")
                           .arg(shortened(state)));
        if (state == QLatin1String("stopped"))
            return [](Machine& machine) {
                machine.stopSpooler();
            };
        return [](Machine& machine) {
            machine.startSpooler();
        };
    }

    void readPrinterChanges(const JsonPlace& place, QList<Change>& changes)
    {
        if (!place.has("printer")) {
            for (const char* key : {"values", "unpublish", "attributes", "status", "administrable",
                                    "rename", "remove"}) {
                if (place.has(key))
                    place.at(key).fail(
                        QStringLiteral("valid only together with the key \"printer\""));
            }
            return;
        }
        const QString name = readPrinterName(place.at("printer"));
        if (place.has("values")) {
            const QList<PrinterValue> values = readValues(place.at("values"));
            changes.append([=](Machine& machine) { machine.publish(name, values); });
        }
        if (place.has("unpublish")) {
            const QList<JsonPlace> entries = place.at("unpublish").entries();
            for (const JsonPlace& entry : entries) {
                const QByteArray value = readUnpublishedName(entry);
                changes.append([=](Machine& machine) { machine.unpublish(name, value); });
            }
        }
        if (place.has("attributes")) {
            const quint32 bits = readBits(place.at("attributes"), attributeNames);
            changes.append([=](Machine& machine) { machine.setAttributes(name, bits); });
        }
        if (place.has("status")) {
            const quint32 bits = readBits(place.at("status"), statusNames);
            changes.append([=](Machine& machine) { machine.setStatus(name, bits); });
        }
        if (place.has("administrable")) {
            const bool flag = place.at("administrable").flag();
            changes.append([=](Machine& machine) { machine.setAdministrable(name, flag); });
        }
        if (place.has("rename")) {
            const QString newName = place.at("rename").nonEmptyText();
            m_printers.expectNew(place.at("rename"), newName);
            m_printers.rename(name, newName);
            changes.append([=](Machine& machine) { machine.renamePrinter(name, newName); });
        }
        if (place.has("remove")) {
            if (!place.at("remove").flag() || place.has("rename"))
                place.at("remove").fail(
                    QStringLiteral("expected true, and no \"rename\" in the same event"));
            m_printers.remove(name);
            changes.append([=](Machine& machine) { machine.removePrinter(name); });
        }
    }

    QString readPrinterName(const JsonPlace& place) const
    {
        const QString name = place.text();
        if (!m_printers.has(name))
            place.fail(QStringLiteral("there is no printer \"%1\" at this time; expected one of %2")
                           .arg(shortened(name), m_printers.list()));
        return name;
    }

    PrinterNames m_printers;
};

Fleet readFleet(const LocatedJson& file)
{
    const JsonPlace root(file, file.root(), QString());
    root.expectKeys(
        {QStringLiteral("printers")},
        {QStringLiteral("defaultPrinter"), QStringLiteral("devices"), QStringLiteral("timeline")});
    Fleet fleet;
    PrinterNames names;
    const QList<JsonPlace> printers = root.at("printers").entries();
    for (const JsonPlace& place : printers) {
        fleet.printers.append(readPrinter(place));
        const QString name = fleet.printers.last().setup.name;
        names.expectNew(place.at("name"), name);
        names.add(name);
    }
    if (root.has("defaultPrinter")) {
        fleet.defaultPrinter = root.at("defaultPrinter").text();
        if (!names.has(fleet.defaultPrinter))
            root.at("defaultPrinter")
                .fail(QStringLiteral("there is no printer \"%1\"; expected one of %2")
                          .arg(shortened(fleet.defaultPrinter), names.list()));
    }
    if (root.has("devices")) {
        QSet<QString> keys;
        const QList<JsonPlace> devices = root.at("devices").entries();
        for (const JsonPlace& place : devices) {
            const DeviceSetup device = readDevice(place);
            const QString key =
                (device.classGuid + QLatin1Char('\\') + device.interfaceKey).toCaseFolded();
            if (keys.contains(key))
                place.at("key").fail(
                    QStringLiteral("duplicate device \"%1\"").arg(shortened(device.interfaceKey)));
            keys.insert(key);
            fleet.devices.append(device);
        }
    }
    if (root.has("timeline"))
        fleet.story = StoryReader(names).read(root.at("timeline"));
    return fleet;
}

} // namespace

Fleet parseFleet(const QByteArray& text, const QString& name)
{
    return readFleet(LocatedJson(text, name));
}

Fleet readFleet(const QString& fileName)
{
    if (isCaseFile(fileName))
        return fleetOf(readCase(fileName));
    constexpr qsizetype mostBytes = qsizetype(16) * 1024 * 1024;
    return parseFleet(readWholeFile(fileName, mostBytes), fileName);
}

void populate(Machine& machine, const Fleet& fleet)
{
    for (const FleetPrinter& printer : fleet.printers)
        add(machine, printer);
    if (!fleet.defaultPrinter.isNull())
        machine.setDefaultPrinter(fleet.defaultPrinter);
    for (const DeviceSetup& device : fleet.devices)
        machine.addDevice(device);
    machine.setSpoolerState(fleet.spoolerState);
    for (const auto& prepare : fleet.preparations)
        prepare(machine);
}

} // namespace virtualwindows
