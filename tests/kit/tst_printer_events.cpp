// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Which events are made of the readings of printers.
#include <printer_events.h>
#include <status_codes.h>

#include <QtTest/QtTest>

using VxKit::Level;
using VxKit::PrinterEvent;
using VxKit::PrinterEvents;
using VxKit::PrinterReading;
using VxKit::Slot;

namespace StatusCodes = VXPrinting::StatusCodes;

namespace {

const QString packing = QStringLiteral("Packing");
const QString yellow = QStringLiteral("000000641000050000A7");
const QString white = QStringLiteral("000000642000050000A8");

PrinterReading readingOf(const QString& name, int statusCode = StatusCodes::ready)
{
    PrinterReading reading;
    reading.setName(name);
    reading.setModel(VXPrinting::PrinterType::AlderMax);
    reading.setSerialNumber(QStringLiteral("AM-1"));
    reading.setWatching(PrinterReading::Watching::Watched);
    reading.setStatusCode(statusCode);
    reading.setOnline(true);
    return reading;
}

Level roll(const QString& identifier, double ratio)
{
    Level level;
    level.state = Level::State::Loaded;
    level.identifier = identifier;
    level.sku = QStringLiteral("SKU-") + identifier.last(2);
    level.name = QStringLiteral("Gelb");
    level.ratio = ratio;
    level.meters = 30.48 * ratio;
    level.labels = static_cast<int>(600 * ratio);
    return level;
}

Level emptyPlace()
{
    Level level;
    level.state = Level::State::Empty;
    return level;
}

PrinterReading withLevel(PrinterReading reading, const Level& level, Slot slot = Slot::Supply)
{
    reading.setLevel(slot, level);
    return reading;
}

/// The events as "printer severity key: text".
QStringList linesOf(const QList<PrinterEvent>& events)
{
    QStringList lines;
    for (const PrinterEvent& event : events)
        lines.append(QStringLiteral("%1 %2 %3: %4")
                         .arg(event.printer.isEmpty() ? QStringLiteral("-") : event.printer,
                              severityKey(event.severity), event.key, event.text));
    return lines;
}

} // namespace

class PrinterEventsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void firstReadingSaysWhatIsTrue();
    void sameReadingIsNoEvent();
    void statusHasTheCodesBeforeAndAfter();
    void statusThatWasNeverKnownIsNoEvent();

    void levelIsReportedAtEachMarkOnce();
    void levelThatFallsBelowSeveralMarksIsReportedWithTheLowest();
    void levelThatWaversIsReportedOnce();
    void marksCountAgainForANewRoll_data();
    void marksCountAgainForANewRoll();
    void rollThatIsPutBackKeepsItsMarks();
    void rollThatIsLoadedBelowAMarkHasNotFallen();
    void levelThatBecomesUnknownIsNoEvent();

    void whatIsLoadedIsReported_data();
    void whatIsLoadedIsReported();
    void newRollHasNotTheLevelOfTheOldOne();
    void placeThatBecomesUnknownIsNoEvent();
    void secondRibbonIsReported();

    void stoppedSpoolerIsOneEventForAllPrinters();
    void printerThatChangedWhileTheSpoolerWasStoppedIsReported();
    void spoolerThatStopsTwiceIsReportedTwice();

    void addedGoneAndRenamedPrintersAreReported();
    void printerThatComesBackIsReportedAnew();
    void renamedPrinterKeepsWhatIsKnownOfIt();
    void firmwareIsReported();

    void textsAreEnglishWhateverTheLanguage();
    void mayBeDestroyedInASlot();
    void nullReadingIsIgnored();

private:
    QStringList take() { return linesOf(takeEvents()); }
    QList<PrinterEvent> takeEvents() { return std::exchange(m_happened, {}); }

    std::unique_ptr<PrinterEvents> m_events;
    QList<PrinterEvent> m_happened;
};

void PrinterEventsTest::init()
{
    m_events = std::make_unique<PrinterEvents>(nullptr);
    m_happened.clear();
    connect(m_events.get(), &PrinterEvents::happened, this,
            [this](const PrinterEvent& event) { m_happened.append(event); });
}

void PrinterEventsTest::firstReadingSaysWhatIsTrue()
{
    PrinterReading reading = withLevel(readingOf(packing, 2), roll(yellow, 0.8));
    reading.setLevel(Slot::Ribbon1, emptyPlace());
    reading.setFirmwareVersion(QStringLiteral("4.2.0"));
    reading.setBootVersion(QStringLiteral("boot 1.7"));
    m_events->setReading(reading);
    QCOMPARE(linesOf(m_happened),
             QStringList({
                 QStringLiteral("Packing error out_of_labels: The printer is out of labels"),
                 QStringLiteral("Packing information supply_loaded: Supply: SKU-A7, 80 % left"),
                 QStringLiteral("Packing warning ribbon_empty: Ribbon 1: nothing loaded"),
                 QStringLiteral("Packing information firmware_version: Firmware 4.2.0, boot 1.7"),
             }));
    for (const PrinterEvent& event : std::as_const(m_happened)) {
        QCOMPARE(event.before, PrinterEvent::Values());
        QCOMPARE(event.serial, QStringLiteral("AM-1"));
        QVERIFY(event.time.isValid());
    }
}

void PrinterEventsTest::sameReadingIsNoEvent()
{
    PrinterReading reading = withLevel(readingOf(packing), roll(yellow, 0.8));
    m_events->setReading(reading);
    QVERIFY(!take().isEmpty());
    reading.setLastReport(QDateTime::currentDateTime());
    reading.setActive(true);
    m_events->setReading(reading);
    QCOMPARE(take(), QStringList());
}

void PrinterEventsTest::statusHasTheCodesBeforeAndAfter()
{
    m_events->setReading(readingOf(packing));
    takeEvents();
    m_events->setReading(readingOf(packing, 2));
    const QList<PrinterEvent> events = takeEvents();
    QCOMPARE(events.size(), 1);
    QCOMPARE(events.first().kind, PrinterEvent::Kind::Status);
    QCOMPARE(events.first().code, 2);
    QCOMPARE(events.first().before.code, int(StatusCodes::ready));
    QCOMPARE(events.first().after.code, 2);
}

void PrinterEventsTest::statusThatWasNeverKnownIsNoEvent()
{
    m_events->setReading(readingOf(packing, StatusCodes::unknown));
    QCOMPARE(take(), QStringList());
    m_events->setReading(readingOf(packing));
    QCOMPARE(take(), QStringList(QStringLiteral("Packing ok ready: Ready")));
    m_events->setReading(readingOf(packing, StatusCodes::unknown));
    QCOMPARE(takeEvents().value(0).after.code, int(StatusCodes::unknown));
}

void PrinterEventsTest::levelIsReportedAtEachMarkOnce()
{
    m_events->setReading(withLevel(readingOf(packing), roll(yellow, 0.3)));
    takeEvents();
    QList<PrinterEvent> events;
    for (int percent = 29; percent >= 0; --percent) {
        m_events->setReading(withLevel(readingOf(packing), roll(yellow, percent / 100.0)));
        events += takeEvents();
    }
    QCOMPARE(
        linesOf(events),
        QStringList({
            QStringLiteral("Packing information level_25: Supply: 25 % left (7.6 m, 150 labels)"),
            QStringLiteral("Packing warning level_10: Supply: 10 % left (3.0 m, 60 labels)"),
            QStringLiteral("Packing warning level_5: Supply: 5 % left (1.5 m, 30 labels)"),
        }));
    QCOMPARE(events.first().kind, PrinterEvent::Kind::Level);
    QCOMPARE(events.first().mark, 25);
    QCOMPARE(events.first().slot, Slot::Supply);
    QCOMPARE(events.first().before.ratio, 0.26);
    QCOMPARE(events.first().after.ratio, 0.25);
    QCOMPARE(events.first().after.labels, 150);
}

void PrinterEventsTest::levelThatFallsBelowSeveralMarksIsReportedWithTheLowest()
{
    m_events->setReading(withLevel(readingOf(packing), roll(yellow, 0.5)));
    takeEvents();
    m_events->setReading(withLevel(readingOf(packing), roll(yellow, 0.07)));
    const QList<PrinterEvent> events = takeEvents();
    QCOMPARE(events.size(), 1);
    QCOMPARE(events.first().mark, 10);
    m_events->setReading(withLevel(readingOf(packing), roll(yellow, 0.06)));
    QCOMPARE(take(), QStringList());
}

void PrinterEventsTest::levelThatWaversIsReportedOnce()
{
    m_events->setReading(withLevel(readingOf(packing), roll(yellow, 0.27)));
    takeEvents();
    int count = 0;
    for (const double ratio : {0.25, 0.26, 0.25, 0.26, 0.24, 0.26, 0.25}) {
        m_events->setReading(withLevel(readingOf(packing), roll(yellow, ratio)));
        count += static_cast<int>(takeEvents().size());
    }
    QCOMPARE(count, 1);
}

void PrinterEventsTest::marksCountAgainForANewRoll_data()
{
    QTest::addColumn<QString>("identifier");
    QTest::newRow("another identifier") << white;
    QTest::newRow("a risen level") << yellow;
}

void PrinterEventsTest::marksCountAgainForANewRoll()
{
    QFETCH(const QString, identifier);
    m_events->setReading(withLevel(readingOf(packing), roll(yellow, 0.3)));
    m_events->setReading(withLevel(readingOf(packing), roll(yellow, 0.2)));
    m_events->setReading(withLevel(readingOf(packing), roll(identifier, 1)));
    takeEvents();
    m_events->setReading(withLevel(readingOf(packing), roll(identifier, 0.2)));
    QCOMPARE(takeEvents().value(0).mark, 25);
}

void PrinterEventsTest::rollThatIsPutBackKeepsItsMarks()
{
    m_events->setReading(withLevel(readingOf(packing), roll(yellow, 0.3)));
    m_events->setReading(withLevel(readingOf(packing), roll(yellow, 0.2)));
    takeEvents();
    m_events->setReading(withLevel(readingOf(packing), emptyPlace()));
    m_events->setReading(withLevel(readingOf(packing), roll(yellow, 0.2)));
    m_events->setReading(withLevel(readingOf(packing), roll(yellow, 0.19)));
    QCOMPARE(take(),
             QStringList({
                 QStringLiteral("Packing warning supply_empty: Supply: nothing loaded"),
                 QStringLiteral("Packing information supply_loaded: Supply: SKU-A7, 20 % left"),
             }));
}

void PrinterEventsTest::rollThatIsLoadedBelowAMarkHasNotFallen()
{
    m_events->setReading(withLevel(readingOf(packing), roll(yellow, 0.08)));
    QCOMPARE(take(), QStringList({QStringLiteral("Packing ok ready: Ready"),
                                  QStringLiteral("Packing warning supply_loaded: Supply: SKU-A7, "
                                                 "8 % left")}));
    m_events->setReading(withLevel(readingOf(packing), roll(yellow, 0.05)));
    QCOMPARE(takeEvents().value(0).mark, 5);
    m_events->setReading(withLevel(readingOf(packing), roll(white, 0.04)));
    m_events->setReading(withLevel(readingOf(packing), roll(white, 0.03)));
    QCOMPARE(take(), QStringList(QStringLiteral(
                         "Packing warning supply_loaded: Supply: SKU-A8, 4 % left")));
}

void PrinterEventsTest::levelThatBecomesUnknownIsNoEvent()
{
    m_events->setReading(withLevel(readingOf(packing), roll(yellow, 0.3)));
    takeEvents();
    Level level = roll(yellow, 0.3);
    level.ratio.reset();
    m_events->setReading(withLevel(readingOf(packing), level));
    QCOMPARE(take(), QStringList());
    m_events->setReading(withLevel(readingOf(packing), roll(yellow, 0.2)));
    QCOMPARE(takeEvents().value(0).mark, 25);
}

void PrinterEventsTest::whatIsLoadedIsReported_data()
{
    QTest::addColumn<int>("slot");
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("kind");
    QTest::newRow("supply") << int(Slot::Supply)
                            << "Packing information supply_loaded: Supply: SKU-A8, 100 % left"
                            << int(PrinterEvent::Kind::Supply);
    QTest::newRow("ribbon 1") << int(Slot::Ribbon1)
                              << "Packing information ribbon_loaded: Ribbon 1: SKU-A8, 100 % left"
                              << int(PrinterEvent::Kind::Ribbon);
}

void PrinterEventsTest::whatIsLoadedIsReported()
{
    QFETCH(const int, slot);
    QFETCH(const QString, line);
    QFETCH(const int, kind);
    const auto place = static_cast<Slot>(slot);
    m_events->setReading(withLevel(readingOf(packing), roll(yellow, 0.5), place));
    takeEvents();
    m_events->setReading(withLevel(readingOf(packing), roll(white, 1), place));
    const QList<PrinterEvent> events = takeEvents();
    QCOMPARE(linesOf(events), QStringList(line));
    const PrinterEvent& event = events.first();
    QCOMPARE(int(event.kind), kind);
    QCOMPARE(event.slot, place);
    QCOMPARE(event.before.identifier, yellow);
    QCOMPARE(event.before.ratio, 0.5);
    QCOMPARE(event.after.identifier, white);
    QCOMPARE(event.after.name, QStringLiteral("Gelb"));
    QCOMPARE(event.after.state, Level::State::Loaded);
    QCOMPARE(event.after.labels, 600);

    Level unknown = roll(yellow, 0.5);
    unknown.state = Level::State::NotInCatalogue;
    m_events->setReading(withLevel(readingOf(packing), unknown, place));
    const QStringList lines = take();
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.first().contains(QLatin1String("_not_in_catalogue: ")) &&
                 lines.first().endsWith(
                     QLatin1String("not in the catalogue (000000641000050000A7), 50 % left")),
             qPrintable(lines.first()));
}

void PrinterEventsTest::newRollHasNotTheLevelOfTheOldOne()
{
    Level old = roll(yellow, 0.02);
    old.mileage = 610;
    m_events->setReading(withLevel(readingOf(packing), old));
    takeEvents();
    // As the values of a report arrive: what is loaded, and then its mileage.
    Level next = roll(white, 0.02);
    next.mileage = 610;
    m_events->setReading(withLevel(readingOf(packing), next));
    const QList<PrinterEvent> events = takeEvents();
    QCOMPARE(linesOf(events),
             QStringList(QStringLiteral("Packing information supply_loaded: Supply: SKU-A8")));
    QVERIFY(!events.first().after.ratio && !events.first().after.meters &&
            !events.first().after.labels);
    next = roll(white, 1);
    next.mileage = 30480;
    m_events->setReading(withLevel(readingOf(packing), next));
    QCOMPARE(take(), QStringList());
    next = roll(white, 0.2);
    next.mileage = 6096;
    m_events->setReading(withLevel(readingOf(packing), next));
    QCOMPARE(takeEvents().value(0).mark, 25);
}

void PrinterEventsTest::placeThatBecomesUnknownIsNoEvent()
{
    m_events->setReading(withLevel(readingOf(packing), roll(yellow, 0.5)));
    takeEvents();
    m_events->setReading(readingOf(packing));
    QCOMPARE(take(), QStringList());
    m_events->setReading(withLevel(readingOf(packing), roll(yellow, 0.5)));
    QCOMPARE(take(), QStringList());
    m_events->setReading(readingOf(packing));
    m_events->setReading(withLevel(readingOf(packing), roll(white, 0.5)));
    QCOMPARE(takeEvents().value(0).before.identifier, yellow);
}

void PrinterEventsTest::secondRibbonIsReported()
{
    m_events->setReading(readingOf(packing));
    takeEvents();
    m_events->setReading(withLevel(readingOf(packing), roll(white, 1), Slot::Ribbon2));
    QCOMPARE(take(), QStringList(QStringLiteral(
                         "Packing information ribbon_loaded: Ribbon 2: SKU-A8, 100 % left")));
}

void PrinterEventsTest::stoppedSpoolerIsOneEventForAllPrinters()
{
    const QStringList names{packing, QStringLiteral("Returns"), QStringLiteral("Shipping")};
    const auto setAll = [&](int code) {
        for (const QString& name : names)
            m_events->setReading(readingOf(name, code));
    };
    setAll(StatusCodes::ready);
    takeEvents();
    setAll(StatusCodes::spoolerDown);
    QCOMPARE(take(),
             QStringList(QStringLiteral(
                 "- error spooler_stopped: Print spooler stopped, no printer can be read")));
    setAll(StatusCodes::ready);
    QCOMPARE(take(),
             QStringList(QStringLiteral("- ok spooler_running: Print spooler is running again")));
}

void PrinterEventsTest::printerThatChangedWhileTheSpoolerWasStoppedIsReported()
{
    m_events->setReading(readingOf(packing));
    m_events->setReading(readingOf(packing, StatusCodes::spoolerDown));
    takeEvents();
    m_events->setReading(readingOf(packing, 2));
    const QList<PrinterEvent> events = takeEvents();
    QCOMPARE(events.size(), 2);
    QCOMPARE(events.at(0).kind, PrinterEvent::Kind::SpoolerRunning);
    QCOMPARE(events.at(1).kind, PrinterEvent::Kind::Status);
    QCOMPARE(events.at(1).before.code, int(StatusCodes::ready));
    QCOMPARE(events.at(1).after.code, 2);
}

void PrinterEventsTest::spoolerThatStopsTwiceIsReportedTwice()
{
    for (const int code : {StatusCodes::ready, StatusCodes::spoolerDown, StatusCodes::ready,
                           StatusCodes::spoolerDown, StatusCodes::ready})
        m_events->setReading(readingOf(packing, code));
    QStringList keys;
    for (const PrinterEvent& event : takeEvents())
        keys.append(event.key);
    QCOMPARE(keys,
             QStringList({QStringLiteral("ready"), QStringLiteral("spooler_stopped"),
                          QStringLiteral("spooler_running"), QStringLiteral("spooler_stopped"),
                          QStringLiteral("spooler_running")}));
}

void PrinterEventsTest::addedGoneAndRenamedPrintersAreReported()
{
    PrinterReading reading = readingOf(packing);
    m_events->addReading(reading);
    QCOMPARE(take(),
             QStringList({QStringLiteral("Packing information printer_added: Printer added"),
                          QStringLiteral("Packing ok ready: Ready")}));
    reading.setName(QStringLiteral("Annex"));
    m_events->renameReading(packing, reading);
    const QList<PrinterEvent> events = takeEvents();
    QCOMPARE(linesOf(events), QStringList(QStringLiteral("Annex information printer_renamed: "
                                                         "Printer renamed, was Packing")));
    QCOMPARE(events.first().before.printer, packing);
    QCOMPARE(events.first().after.printer, QStringLiteral("Annex"));

    reading.setGone(QDateTime::currentDateTime());
    reading.setStatusCode(StatusCodes::disconnected);
    m_events->setReading(reading);
    QCOMPARE(take(), QStringList(QStringLiteral("Annex warning printer_gone: Printer removed")));
    m_events->setReading(reading);
    QCOMPARE(take(), QStringList());
}

void PrinterEventsTest::printerThatComesBackIsReportedAnew()
{
    PrinterReading reading = readingOf(packing);
    m_events->setReading(reading);
    reading.setGone(QDateTime::currentDateTime());
    m_events->setReading(reading);
    takeEvents();
    reading.setPresent();
    m_events->addReading(reading);
    QCOMPARE(take(),
             QStringList({QStringLiteral("Packing information printer_added: Printer added"),
                          QStringLiteral("Packing ok ready: Ready")}));
}

void PrinterEventsTest::renamedPrinterKeepsWhatIsKnownOfIt()
{
    PrinterReading reading = withLevel(readingOf(packing), roll(yellow, 0.2));
    m_events->setReading(reading);
    takeEvents();
    reading.setName(QStringLiteral("Annex"));
    reading.setStatusCode(2);
    m_events->renameReading(packing, reading);
    QCOMPARE(take(),
             QStringList({
                 QStringLiteral("Annex information printer_renamed: Printer renamed, was Packing"),
                 QStringLiteral("Annex error out_of_labels: The printer is out of labels"),
             }));
}

void PrinterEventsTest::firmwareIsReported()
{
    PrinterReading reading = readingOf(packing);
    reading.setFirmwareVersion(QStringLiteral("4.1"));
    m_events->setReading(reading);
    takeEvents();
    reading.setFirmwareVersion(QStringLiteral("4.2"));
    reading.setBootVersion(QStringLiteral("boot 1.7"));
    reading.setUpdateProgress(50);
    reading.setUpdateError(0);
    m_events->setReading(reading);
    const QList<PrinterEvent> events = takeEvents();
    QCOMPARE(linesOf(events), QStringList(QStringLiteral("Packing information firmware_version: "
                                                         "Firmware 4.2, boot 1.7, was 4.1")));
    QCOMPARE(events.first().before.firmwareVersion, QStringLiteral("4.1"));
    QCOMPARE(events.first().after.bootVersion, QStringLiteral("boot 1.7"));
    reading.setUpdateError(7);
    m_events->setReading(reading);
    m_events->setReading(reading);
    QCOMPARE(take(), QStringList(QStringLiteral("Packing error firmware_update_failed: "
                                                "Firmware update failed, error 7")));
}

void PrinterEventsTest::textsAreEnglishWhateverTheLanguage()
{
    QTranslator infos;
    QVERIFY(
        infos.load(QStringLiteral(":/vxprinterstatuskit/translations/vxprinterstatuskit_de.qm")));
    QTranslator titles;
    QVERIFY(titles.load(QStringLiteral(":/vxprinterstatus/translations/vxprinterstatus_de.qm")));
    QCoreApplication::installTranslator(&infos);
    QCoreApplication::installTranslator(&titles);
    m_events->setReading(withLevel(readingOf(packing, 2), roll(yellow, 0.8)));
    const QList<PrinterEvent> events = takeEvents();
    QCOMPARE(events.size(), 2);
    QCOMPARE(events.at(0).text, QStringLiteral("The printer is out of labels"));
    QCOMPARE(events.at(1).text, QStringLiteral("Supply: SKU-A7, 80 % left"));
    QVERIFY(eventText(events.at(0)) != events.at(0).text);
    QCOMPARE(eventText(events.at(1)), QString::fromUtf8("Etiketten: Gelb (SKU-A7), noch 80 %"));
    QCoreApplication::removeTranslator(&titles);
    QCoreApplication::removeTranslator(&infos);
}

void PrinterEventsTest::mayBeDestroyedInASlot()
{
    connect(m_events.get(), &PrinterEvents::happened, this, [this] { m_events.reset(); });
    m_events->setReading(withLevel(readingOf(packing), roll(yellow, 0.8)));
    QVERIFY(!m_events);
    QCOMPARE(take(), QStringList(QStringLiteral("Packing ok ready: Ready")));
}

void PrinterEventsTest::nullReadingIsIgnored()
{
    m_events->setReading({});
    m_events->addReading({});
    m_events->renameReading(packing, {});
    m_events->start();
    QCOMPARE(take(), QStringList());
}

QTEST_GUILESS_MAIN(PrinterEventsTest)
#include "tst_printer_events.moc"
