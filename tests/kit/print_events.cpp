// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Prints events as the log has them, one a line, for test_event_schema.py: those that the readings
// of a printer lead to, those that a host makes, hostile ones, and random ones.
#include <event_log.h>
#include <printer_events.h>
#include <status_codes.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QRandomGenerator>

#include <array>
#include <cstdio>
#include <limits>

using VxKit::Level;
using VxKit::PrinterEvent;
using VxKit::PrinterReading;
using VxKit::Slot;

namespace StatusCodes = VXPrinting::StatusCodes;

namespace {

void print(const PrinterEvent& event)
{
    std::printf("%s\n", event.toLine().constData());
}

Level levelOf(Level::State state, const QString& identifier, std::optional<double> ratio)
{
    Level level;
    level.state = state;
    level.identifier = identifier;
    if (state == Level::State::Loaded) {
        level.sku = QStringLiteral("DE-400200-YV");
        level.name = QStringLiteral("Yellow Vinyl");
    }
    level.ratio = ratio;
    if (ratio) {
        level.meters = 30.48 * *ratio;
        level.labels = static_cast<int>(600 * *ratio);
    }
    return level;
}

/// A day of a printer, told by its readings.
void printDay()
{
    VxKit::PrinterEvents events(nullptr);
    QObject::connect(&events, &VxKit::PrinterEvents::happened, print);
    PrinterReading reading;
    reading.setName(QStringLiteral("Shipping"));
    reading.setModel(VXPrinting::PrinterType::AlderMax);
    reading.setSerialNumber(QStringLiteral("AM-20871"));
    reading.setStatusCode(StatusCodes::ready);
    reading.setFirmwareVersion(QStringLiteral("4.2.0"));
    reading.setBootVersion(QStringLiteral("boot 1.7"));
    events.addReading(reading);
    const auto set = [&events](const PrinterReading& changed) {
        events.setReading(changed);
    };
    const QString supply = QStringLiteral("000000641000050000A7");
    for (int percent = 30; percent >= 0; --percent) {
        const Level level = levelOf(Level::State::Loaded, supply, percent / 100.0);
        for (const Slot slot : {Slot::Supply, Slot::Ribbon1, Slot::Ribbon2})
            reading.setLevel(slot, level);
        set(reading);
    }
    reading.setStatusCode(2);
    set(reading);
    for (const Slot slot : {Slot::Supply, Slot::Ribbon1, Slot::Ribbon2}) {
        reading.setLevel(slot, levelOf(Level::State::Empty, {}, {}));
        set(reading);
        reading.setLevel(slot, levelOf(Level::State::NotInCatalogue, QStringLiteral("1"), {}));
        set(reading);
    }
    for (const int code : {StatusCodes::spoolerDown, StatusCodes::ready, StatusCodes::unknown,
                           StatusCodes::notManaged, 4711, -1}) {
        reading.setStatusCode(code);
        set(reading);
    }
    reading.setFirmwareVersion(QStringLiteral("4.3.0"));
    reading.setUpdateError(7);
    set(reading);
    reading.setName(QStringLiteral("Annex"));
    events.renameReading(QStringLiteral("Shipping"), reading);
    reading.setGone(QDateTime::currentDateTime());
    set(reading);
}

/// What only the log itself makes: an event that says how many were lost.
void printLost()
{
    PrinterEvent event;
    event.kind = PrinterEvent::Kind::EventsLost;
    event.severity = VxKit::Severity::Warning;
    event.lost = 12;
    event.since = QDateTime::currentDateTime();
    print(event);
}

void printRandom()
{
    const QList<QString> texts{
        QString(),
        QStringLiteral("Shipping"),
        QStringLiteral("\"quoted\" \\ back/slash"),
        QString::fromUtf8("\x01\x02\x1f\x7f control\r\n\t\x1b[2J"),
        QString::fromUtf8("Versandlager \xf0\x9f\x96\xa8 \xe6\x9d\xb1\xe4\xba\xac"),
        QString(QChar(0xD800)) + QStringLiteral(" unpaired"),
        QString(QChar(0x202E)) + QStringLiteral("desrever"),
        QString(100000, QChar(0x2028)),
    };
    QRandomGenerator random(20261122);
    const auto coin = [&random] {
        return random.bounded(2) == 1;
    };
    const auto text = [&] {
        return texts.at(random.bounded(int(texts.size())));
    };
    const auto someValues = [&] {
        PrinterEvent::Values values;
        if (coin())
            values.code = std::numeric_limits<int>::min();
        if (coin())
            values.state = static_cast<Level::State>(random.bounded(4));
        values.identifier = text();
        values.sku = text();
        values.name = text();
        if (coin())
            values.ratio = random.generateDouble();
        if (coin())
            values.meters = random.generateDouble() * 100;
        if (coin())
            values.labels = random.bounded(10000);
        values.printer = text();
        values.firmwareVersion = text();
        values.bootVersion = text();
        return values;
    };
    for (int i = 0; i < 2000; ++i) {
        using Kind = PrinterEvent::Kind;
        PrinterEvent event;
        event.time = QDateTime::fromMSecsSinceEpoch(qint64(random.bounded(4e12)));
        event.kind = static_cast<Kind>(random.bounded(12));
        // The members without which an event of that kind would say nothing are always there.
        const bool isOfSlot =
            event.kind == Kind::Supply || event.kind == Kind::Ribbon || event.kind == Kind::Level;
        event.severity = static_cast<VxKit::Severity>(random.bounded(4));
        event.printer = texts.at(1 + random.bounded(int(texts.size()) - 1));
        event.serial = text();
        if (event.kind == Kind::Status || coin())
            event.code = random.bounded(-300, 300);
        if (isOfSlot || coin())
            event.slot = static_cast<Slot>(random.bounded(3));
        if (event.kind == Kind::Level || coin())
            event.mark = std::array{25, 10, 5}.at(random.bounded(3U));
        event.before = someValues();
        event.after = someValues();
        if (isOfSlot)
            event.after.state = Level::State::Loaded;
        if (event.kind == Kind::PrinterRenamed)
            event.before.printer = texts.at(1);
        event.reason = text();
        event.text = text();
        if (event.kind == Kind::EventsLost || coin()) {
            event.lost = random.bounded(1, 1000);
            event.since = event.time.addSecs(-1);
        }
        print(event);
    }
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    printDay();
    print(PrinterEvent::commandFailed(QStringLiteral("Shipping"), QStringLiteral("OpenPrinter"), 5,
                                      QStringLiteral("Access denied.")));
    printLost();
    printRandom();
    return 0;
}
