// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Whether a job fits: for every state of a printer a right answer, or none.
#include "preflight_check.h"
#include "printer_level.h"

#include <QtCore/QJsonArray>
#include <QtTest/QtTest>

#include <limits>

using VxKit::Level;
using VxKit::PreflightFinding;
using VxKit::PreflightResult;
using VxKit::PrinterReading;
using VxKit::Slot;
using VXPrinting::PrinterType;
using Answer = PreflightResult::Answer;
using Kind = PreflightFinding::Kind;
using Reason = PreflightFinding::Reason;
using State = Level::State;
using Verdict = PreflightResult::Verdict;

Q_DECLARE_METATYPE(VxKit::PreflightFinding::Reason)

namespace {

const QString paper = QStringLiteral("DE-400200-WH");
const QString vinyl = QStringLiteral("VT-400-YL");
const QString black = QStringLiteral("RS-43-BK");
const QString blue = QStringLiteral("RS-43-BL");
const QString waxy = QStringLiteral("RX-43-BK");
const QString twoColours = QStringLiteral("RP-43-KR");

/// 1000 inches of paper with labels of two inches are 500 labels; across makes more of it.
Level paperLevel(double ratio, int across = 1)
{
    Level level;
    level.state = State::Loaded;
    level.identifier = QStringLiteral("00000258100039000013");
    level.sku = paper;
    level.name = QStringLiteral("White Paper");
    level.colors = {QStringLiteral("#ffffff")};
    level.totalMeters = 25.4;
    level.ratio = ratio;
    level.meters = 25.4 * ratio;
    level.labelPitchMeters = 0.0508;
    level.labelsAcross = across;
    level.labels = VxKit::labelsOn(*level.meters, *level.labelPitchMeters, across);
    return level;
}

Level ribbonLevel(const QString& sku, double ratio = 1.0, int panels = 1)
{
    Level level;
    level.state = State::Loaded;
    level.identifier = QStringLiteral("2001");
    level.sku = sku;
    level.name = QStringLiteral("Black resin");
    level.colors = QStringList(panels, QStringLiteral("#000000"));
    level.totalMeters = 50.8;
    level.ratio = ratio;
    level.meters = 50.8 * ratio;
    return level;
}

Level levelOfState(State state)
{
    Level level;
    level.state = state;
    if (state == State::NotInCatalogue) {
        level.identifier = QStringLiteral("00000258100999000013");
        level.ratio = 0.5;
    }
    return level;
}

/// A printer that is ready with half a roll of paper, which are 250 labels, and a new ribbon, which
/// lasts for 1000.
PrinterReading readyPrinter(PrinterType model = PrinterType::AlderMax)
{
    PrinterReading reading;
    reading.setName(QStringLiteral("Shipping"));
    reading.setModel(model);
    reading.setWatching(PrinterReading::Watching::Watched);
    reading.setStatusCode(VXPrinting::StatusCodes::ready);
    reading.setOnline(true);
    reading.setLastReport(QDateTime::fromSecsSinceEpoch(1'800'000'000, Qt::UTC));
    reading.setLevel(Slot::Supply, paperLevel(0.5));
    reading.setLevel(Slot::Ribbon1, ribbonLevel(black));
    reading.setLevel(Slot::Ribbon2, ribbonLevel(blue));
    return reading;
}

PrinterReading with(Slot slot, const Level& level, PrinterType model = PrinterType::AlderMax)
{
    PrinterReading reading = readyPrinter(model);
    reading.setLevel(slot, level);
    return reading;
}

/// The waxy ribbon has no print settings for paper.
std::optional<bool> suits(const QString& ribbon, const QString& supply)
{
    if (supply != paper && supply != vinyl)
        return std::nullopt;
    return ribbon != waxy || supply != paper;
}

PreflightResult check(const PrinterReading& reading, int labels, const QStringList& ribbons = {},
                      const QString& supply = paper)
{
    PreflightResult result{reading.name(), supply, labels, ribbons};
    VxKit::checkJob(result, reading, &suits);
    return result;
}

Level coarse(Level level)
{
    level.coarse = true;
    return level;
}

} // namespace

class PreflightTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void jobThatFitsIsReady();
    void jobThatDoesNotFitIsShortByTheDifference();
    void labelsSideBySideAreCountedOneByOne();
    void wholePercentsGiveAnInterval();
    void wholePercentsAtTheEndsAreClamped();
    void anotherSupplyIsWrong();
    void noSupplyIsWrong();
    void namedRibbonMayBeInEitherPlace();
    void anotherRibbonIsWrong();
    void ribbonThatDoesNotSuitIsWrong();
    void twoRibbonsAreBothChecked();
    void withoutANameOneGoodRibbonIsEnough();
    void withoutANameTheBestRibbonIsTold();
    void missingRibbonMayBeWhereItIsNotKnown();
    void ribbonEndsBeforeTheSupply();
    void severalPanelsGiveAnInterval();
    void whatIsNotKnownGivesNoNumber_data();
    void whatIsNotKnownGivesNoNumber();
    void certainFindingMakesTheAnswerNo();
    void faultMakesThePrinterNotReady_data();
    void faultMakesThePrinterNotReady();
    void statusInWhichItPrintsIsReady_data();
    void statusInWhichItPrintsIsReady();
    void printerThatIsGoneIsNotReady();
    void withoutLabelsOnlyWhatIsLoadedIsChecked();
    void extremesOverflowNowhere();
    void everySentenceIsSaid_data();
    void everySentenceIsSaid();
    void jsonHasEverything();
};

void PreflightTest::jobThatFitsIsReady()
{
    for (const int labels : {1, 249, 250}) {
        const PreflightResult result = check(readyPrinter(), labels, {black});
        QCOMPARE(result.verdict(), Verdict::Ready);
        QCOMPARE(result.answer(), Answer::Yes);
        QCOMPARE(result.labelsAtLeast, std::optional(250));
        QCOMPARE(result.labelsAtMost, std::optional(250));
    }
}

void PreflightTest::jobThatDoesNotFitIsShortByTheDifference()
{
    const PreflightResult result = check(readyPrinter(), 300);
    QCOMPARE(result.verdict(), Verdict::NotEnough);
    QCOMPARE(result.answer(), Answer::No);
    QCOMPARE(result.findings.size(), 1);
    QCOMPARE(result.findings[0].slot, std::optional(Slot::Supply));
    QCOMPARE(result.findings[0].shortBy, std::optional(50));
    QCOMPARE(check(readyPrinter(), 251).findings[0].shortBy, std::optional(1));
}

void PreflightTest::labelsSideBySideAreCountedOneByOne()
{
    const PrinterReading reading = with(Slot::Supply, paperLevel(0.5, 3));
    QCOMPARE(check(reading, 750).answer(), Answer::Yes);
    const PreflightResult result = check(reading, 760);
    QCOMPARE(result.answer(), Answer::No);
    QCOMPARE(result.findings[0].shortBy, std::optional(10));
    // The ribbon passes the labels side by side at once.
    QCOMPARE(check(with(Slot::Supply, paperLevel(1.0, 3)), 1500).answer(), Answer::Yes);
}

void PreflightTest::wholePercentsGiveAnInterval()
{
    // 50 percent of 500 labels, and five more or less.
    const PrinterReading reading = with(Slot::Supply, coarse(paperLevel(0.5)));
    const PreflightResult fits = check(reading, 245);
    QCOMPARE(fits.answer(), Answer::Yes);
    QCOMPARE(fits.labelsAtLeast, std::optional(245));
    QCOMPARE(fits.labelsAtMost, std::optional(255));
    for (const int labels : {246, 255}) {
        const PreflightResult open = check(reading, labels);
        QCOMPARE(open.verdict(), Verdict::NotKnown);
        QCOMPARE(open.answer(), Answer::NotKnown);
        QCOMPARE(open.findings[0].reason, Reason::WholePercents);
        QCOMPARE(open.findings[0].labelsAtLeast, std::optional(245));
        QCOMPARE(open.findings[0].labelsAtMost, std::optional(255));
        QVERIFY(!open.findings[0].shortBy);
    }
    const PreflightResult fails = check(reading, 256);
    QCOMPARE(fails.answer(), Answer::No);
    QCOMPARE(fails.findings[0].shortBy, std::optional(1));
}

void PreflightTest::wholePercentsAtTheEndsAreClamped()
{
    const PreflightResult empty = check(with(Slot::Supply, coarse(paperLevel(0.0))), 1);
    QCOMPARE(empty.labelsAtLeast, std::optional(0));
    QCOMPARE(empty.labelsAtMost, std::optional(5));
    QCOMPARE(empty.answer(), Answer::NotKnown);
    const PreflightResult full = check(with(Slot::Supply, coarse(paperLevel(1.0))), 501);
    QCOMPARE(full.labelsAtMost, std::optional(500));
    QCOMPARE(full.answer(), Answer::No);
}

void PreflightTest::anotherSupplyIsWrong()
{
    const PreflightResult result = check(readyPrinter(), 5, {}, vinyl);
    QCOMPARE(result.verdict(), Verdict::WrongSupply);
    QCOMPARE(result.findings.size(), 1);
    QCOMPARE(result.findings[0].loadedSku, paper);
    QCOMPARE(result.findings[0].loadedName, QStringLiteral("White Paper"));
    QCOMPARE(result.findings[0].wantedSku, vinyl);
    QVERIFY(!result.labelsAtMost);
    // Neither the case of letters nor a part of them is the SKU.
    for (const QString& other : {paper.toLower(), paper.chopped(1), QString()})
        QCOMPARE(check(readyPrinter(), 5, {}, other).verdict(), Verdict::WrongSupply);
}

void PreflightTest::noSupplyIsWrong()
{
    const PrinterReading reading = with(Slot::Supply, levelOfState(State::Empty));
    for (const QString& sku : {paper, QString()}) {
        const PreflightResult result = check(reading, 5, {}, sku);
        QCOMPARE(result.verdict(), Verdict::WrongSupply);
        QVERIFY(result.findings[0].loadedSku.isEmpty());
    }
}

void PreflightTest::namedRibbonMayBeInEitherPlace()
{
    for (const QStringList& ribbons : {QStringList{black}, {blue}, {black, blue}, {blue, black}})
        QCOMPARE(check(readyPrinter(), 5, ribbons).answer(), Answer::Yes);
    // The same one twice is not loaded.
    QCOMPARE(check(readyPrinter(), 5, {black, black}).verdict(), Verdict::WrongRibbon);
    const PrinterReading two = with(Slot::Ribbon2, ribbonLevel(black));
    QCOMPARE(check(two, 5, {black, black}).answer(), Answer::Yes);
}

void PreflightTest::anotherRibbonIsWrong()
{
    const PrinterReading reading = readyPrinter(PrinterType::BirchMax);
    const PreflightResult other = check(reading, 5, {blue});
    QCOMPARE(other.verdict(), Verdict::WrongRibbon);
    QCOMPARE(other.findings.size(), 1);
    QCOMPARE(other.findings[0].slot, std::optional(Slot::Ribbon1));
    QCOMPARE(other.findings[0].loadedSku, black);
    QCOMPARE(other.findings[0].wantedSku, blue);
    QCOMPARE(other.findings[0].suitsSupply, std::optional(true));
    const PreflightResult tooMany = check(reading, 5, {black, blue});
    QCOMPARE(tooMany.verdict(), Verdict::WrongRibbon);
    QCOMPARE(tooMany.findings.size(), 1);
    QVERIFY(!tooMany.findings[0].slot);
    QCOMPARE(tooMany.findings[0].wantedSku, blue);
    const PreflightResult none =
        check(with(Slot::Ribbon1, levelOfState(State::Empty), PrinterType::BirchMax), 5, {blue});
    QCOMPARE(none.verdict(), Verdict::WrongRibbon);
    QVERIFY(none.findings[0].loadedSku.isEmpty());
}

void PreflightTest::ribbonThatDoesNotSuitIsWrong()
{
    const PrinterReading reading = with(Slot::Ribbon1, ribbonLevel(waxy), PrinterType::BirchMax);
    for (const QStringList& ribbons : {QStringList(), {waxy}}) {
        const PreflightResult result = check(reading, 5, ribbons);
        QCOMPARE(result.verdict(), Verdict::WrongRibbon);
        QCOMPARE(result.findings[0].suitsSupply, std::optional(false));
    }
    // Another one is wanted, and the one that is loaded would not do either.
    const PreflightResult other = check(reading, 5, {black});
    QCOMPARE(other.findings[0].suitsSupply, std::optional(false));
    QCOMPARE(other.findings[0].wantedSku, black);
}

void PreflightTest::twoRibbonsAreBothChecked()
{
    PrinterReading reading = readyPrinter();
    reading.setLevel(Slot::Ribbon1, ribbonLevel(black, 0.01)); // 10 labels
    reading.setLevel(Slot::Ribbon2, ribbonLevel(waxy));
    const PreflightResult result = check(reading, 50, {black, waxy});
    QCOMPARE(result.findings.size(), 2);
    QCOMPARE(result.findings[0].kind, Kind::WrongRibbon);
    QCOMPARE(result.findings[0].slot, std::optional(Slot::Ribbon2));
    QCOMPARE(result.findings[1].kind, Kind::NotEnough);
    QCOMPARE(result.findings[1].shortBy, std::optional(40));
}

void PreflightTest::withoutANameOneGoodRibbonIsEnough()
{
    for (const Level& other :
         {ribbonLevel(waxy), ribbonLevel(blue, 0.0), levelOfState(State::Empty),
          levelOfState(State::NotKnown), levelOfState(State::NotInCatalogue)}) {
        for (const Slot slot : {Slot::Ribbon1, Slot::Ribbon2}) {
            const PreflightResult result = check(with(slot, other), 200);
            QVERIFY2(result.answer() == Answer::Yes, qPrintable(result.text()));
            QCOMPARE(result.labelsAtLeast, std::optional(250));
        }
    }
}

void PreflightTest::withoutANameTheBestRibbonIsTold()
{
    const auto best = [](const Level& one, const Level& two) {
        PrinterReading reading = with(Slot::Ribbon1, one);
        reading.setLevel(Slot::Ribbon2, two);
        return check(reading, 200);
    };
    const Level little = ribbonLevel(black, 0.01);
    const Level more = ribbonLevel(blue, 0.1);
    const Level empty = levelOfState(State::Empty);
    QCOMPARE(best(little, more).findings.size(), 1);
    QCOMPARE(best(little, more).findings[0].shortBy, std::optional(100));
    QCOMPARE(best(more, little).findings[0].shortBy, std::optional(100));
    QCOMPARE(best(ribbonLevel(waxy), little).verdict(), Verdict::NotEnough);
    QCOMPARE(best(empty, ribbonLevel(waxy)).findings[0].loadedSku, waxy);
    QCOMPARE(best(empty, empty).verdict(), Verdict::WrongRibbon);
    QCOMPARE(best(little, levelOfState(State::NotKnown)).answer(), Answer::NotKnown);
}

void PreflightTest::missingRibbonMayBeWhereItIsNotKnown()
{
    for (const State state : {State::NotKnown, State::NotInCatalogue}) {
        for (const Slot slot : {Slot::Ribbon1, Slot::Ribbon2}) {
            const PreflightResult result = check(with(slot, levelOfState(state)), 5, {twoColours});
            QCOMPARE(result.answer(), Answer::NotKnown);
            QCOMPARE(result.findings[0].slot, std::optional(slot));
        }
    }
}

void PreflightTest::ribbonEndsBeforeTheSupply()
{
    const PrinterReading reading = with(Slot::Ribbon1, ribbonLevel(black, 0.1)); // 100 labels
    QCOMPARE(check(reading, 100, {black}).answer(), Answer::Yes);
    const PreflightResult result = check(reading, 120, {black});
    QCOMPARE(result.verdict(), Verdict::NotEnough);
    QCOMPARE(result.findings[0].slot, std::optional(Slot::Ribbon1));
    QCOMPARE(result.findings[0].shortBy, std::optional(20));
    QCOMPARE(result.labelsAtMost, std::optional(100));
    // Whole percents of a ribbon.
    const PrinterReading percents = with(Slot::Ribbon1, coarse(ribbonLevel(black, 0.1)));
    QCOMPARE(check(percents, 90, {black}).answer(), Answer::Yes);
    QCOMPARE(check(percents, 91, {black}).findings[0].reason, Reason::WholePercents);
    QCOMPARE(check(percents, 111, {black}).findings[0].shortBy, std::optional(1));
}

void PreflightTest::severalPanelsGiveAnInterval()
{
    // 100 labels if a label takes one panel, 50 if it takes both.
    const PrinterReading reading = with(Slot::Ribbon1, ribbonLevel(twoColours, 0.1, 2));
    QCOMPARE(check(reading, 50, {twoColours}).answer(), Answer::Yes);
    const PreflightResult open = check(reading, 51, {twoColours});
    QCOMPARE(open.findings[0].reason, Reason::SeveralPanels);
    QCOMPARE(open.findings[0].labelsAtLeast, std::optional(50));
    QCOMPARE(open.findings[0].labelsAtMost, std::optional(100));
    QCOMPARE(check(reading, 101, {twoColours}).verdict(), Verdict::NotEnough);
}

void PreflightTest::whatIsNotKnownGivesNoNumber_data()
{
    QTest::addColumn<PrinterReading>("reading");
    QTest::addColumn<Reason>("reason");
    QTest::newRow("no printer") << PrinterReading() << Reason::NoSuchPrinter;
    PrinterReading reading = readyPrinter();
    reading.setLastReport({});
    QTest::newRow("never reported") << reading << Reason::NeverReported;
    for (const auto watching :
         {PrinterReading::Watching::NetworkPrinter, PrinterReading::Watching::NotManaged,
          PrinterReading::Watching::NotDiscovered, PrinterReading::Watching::Replaced}) {
        reading = readyPrinter();
        reading.setWatching(watching);
        QTest::addRow("not watched %d", int(watching)) << reading << Reason::NotWatched;
    }
    QTest::newRow("supply not reported")
        << with(Slot::Supply, levelOfState(State::NotKnown)) << Reason::SlotNotKnown;
    QTest::newRow("supply not in the catalogue")
        << with(Slot::Supply, levelOfState(State::NotInCatalogue)) << Reason::NotInCatalogue;
    Level level = paperLevel(0.5);
    level.meters = level.ratio = std::nullopt;
    level.labels = std::nullopt;
    QTest::newRow("no level") << with(Slot::Supply, level) << Reason::LevelNotKnown;
    QTest::newRow("no whole percents")
        << with(Slot::Supply, coarse(level)) << Reason::LevelNotKnown;
    level = paperLevel(0.5);
    level.labels = level.labelsAcross = std::nullopt;
    level.labelPitchMeters = std::nullopt;
    QTest::newRow("continuous") << with(Slot::Supply, level) << Reason::NoLabelLength;
    reading = readyPrinter(PrinterType::BirchMax);
    reading.setLevel(Slot::Ribbon1, levelOfState(State::NotKnown));
    QTest::newRow("ribbon not reported") << reading << Reason::SlotNotKnown;
    reading.setLevel(Slot::Ribbon1, levelOfState(State::NotInCatalogue));
    QTest::newRow("ribbon not in the catalogue") << reading << Reason::NotInCatalogue;
    level = ribbonLevel(black);
    level.meters = level.ratio = std::nullopt;
    reading.setLevel(Slot::Ribbon1, level);
    QTest::newRow("no ribbon level") << reading << Reason::LevelNotKnown;
}

void PreflightTest::whatIsNotKnownGivesNoNumber()
{
    QFETCH(const PrinterReading, reading);
    QFETCH(const Reason, reason);
    for (const int labels : {1, 100000}) {
        for (const QStringList& ribbons : {QStringList(), {black}}) {
            const PreflightResult result = check(reading, labels, ribbons);
            QVERIFY(!result.labelsAtLeast);
            QVERIFY(!result.labelsAtMost);
            const auto found =
                std::ranges::find(result.findings, reason, &PreflightFinding::reason);
            QVERIFY(found != result.findings.end());
            QCOMPARE(found->kind, Kind::NotKnown);
            QVERIFY(!found->labelsAtLeast && !found->labelsAtMost && !found->shortBy);
            QVERIFY(result.answer() != Answer::Yes);
        }
    }
    QCOMPARE(check(reading, 1, {black}).answer(), Answer::NotKnown);
}

void PreflightTest::certainFindingMakesTheAnswerNo()
{
    PrinterReading reading = with(Slot::Supply, levelOfState(State::NotInCatalogue));
    reading.setLevel(Slot::Ribbon1, ribbonLevel(waxy));
    reading.setLevel(Slot::Ribbon2, levelOfState(State::Empty));
    reading.setStatusCode(4);
    const PreflightResult result = check(reading, 5);
    QCOMPARE(result.answer(), Answer::No);
    QCOMPARE(result.findings.size(), 3);
    QCOMPARE(result.findings[0].kind, Kind::PrinterNotReady);
    QCOMPARE(result.findings[1].kind, Kind::WrongRibbon);
    QCOMPARE(result.findings[2].kind, Kind::NotKnown);
}

void PreflightTest::faultMakesThePrinterNotReady_data()
{
    QTest::addColumn<int>("code");
    for (const int code : {0, 2, 4, 16, 19, 21, 22, 99, -1, 254, 257})
        QTest::addRow("%d", code) << code;
}

void PreflightTest::faultMakesThePrinterNotReady()
{
    QFETCH(const int, code);
    PrinterReading reading = readyPrinter();
    reading.setStatusCode(code);
    const PreflightResult result = check(reading, 5);
    QCOMPARE(result.verdict(), Verdict::PrinterNotReady);
    QCOMPARE(result.answer(), Answer::No);
    QCOMPARE(result.findings[0].statusCode, std::optional(code));
}

void PreflightTest::statusInWhichItPrintsIsReady_data()
{
    QTest::addColumn<int>("code");
    // Hot parts cool down and the printer goes on; a low battery still prints.
    for (const int code : {1, 8, 10, 23})
        QTest::addRow("%d", code) << code;
}

void PreflightTest::statusInWhichItPrintsIsReady()
{
    QFETCH(const int, code);
    PrinterReading reading = readyPrinter();
    reading.setStatusCode(code);
    QCOMPARE(check(reading, 5).answer(), Answer::Yes);
    reading.setOnline(false);
    const PreflightResult offline = check(reading, 5);
    QCOMPARE(offline.verdict(), Verdict::PrinterNotReady);
    QCOMPARE(offline.findings[0].statusCode, std::optional<int>(VXPrinting::StatusCodes::offline));
}

void PreflightTest::printerThatIsGoneIsNotReady()
{
    PrinterReading reading = readyPrinter();
    reading.setGone(QDateTime::currentDateTimeUtc());
    reading.setOnline(false);
    reading.setStatusCode(VXPrinting::StatusCodes::disconnected);
    const PreflightResult result = check(reading, 5);
    QCOMPARE(result.verdict(), Verdict::PrinterNotReady);
    QCOMPARE(result.findings.size(), 1);
    QVERIFY(!result.labelsAtMost);
}

void PreflightTest::withoutLabelsOnlyWhatIsLoadedIsChecked()
{
    Level level = paperLevel(0.0);
    for (const int labels : {0, -1, std::numeric_limits<int>::min()}) {
        QCOMPARE(check(with(Slot::Supply, level), labels).answer(), Answer::Yes);
        QCOMPARE(check(with(Slot::Supply, level), labels, {waxy}).answer(), Answer::No);
    }
    level.meters = level.ratio = std::nullopt;
    level.labels = std::nullopt;
    const PreflightResult result = check(with(Slot::Supply, level), 0);
    QCOMPARE(result.answer(), Answer::Yes);
    QVERIFY(!result.labelsAtLeast);
}

void PreflightTest::extremesOverflowNowhere()
{
    constexpr int most = std::numeric_limits<int>::max();
    QCOMPARE(check(with(Slot::Supply, paperLevel(0.0)), most).findings[0].shortBy,
             std::optional(most));
    // When there is room for more labels than an int counts, their number is not known.
    Level level = coarse(paperLevel(0.5));
    level.labelPitchMeters = 1e-9;
    level.labelsAcross = most;
    const PreflightResult result = check(with(Slot::Supply, level), most, {black});
    QCOMPARE(result.answer(), Answer::NotKnown);
    QVERIFY(!result.labelsAtMost);
}

void PreflightTest::everySentenceIsSaid_data()
{
    QTest::addColumn<PreflightResult>("result");
    QTest::addColumn<QString>("text");
    const auto add = [](const PreflightResult& result, const char* text) {
        QTest::newRow(text) << result << QString::fromUtf8(text);
    };
    PrinterReading reading = readyPrinter();
    PreflightResult nowhere = check({}, 1);
    nowhere.printer = QStringLiteral("Nowhere %2");
    add(nowhere, "There is no label printer \"Nowhere %2\".");
    add(check(reading, 5), "Ready. Labels left: 250, needed: 5.");
    add(check(with(Slot::Supply, coarse(paperLevel(0.5))), 5),
        "Ready. Labels left: 245 to 255, needed: 5.");
    Level level = paperLevel(0.5);
    level.meters = level.ratio = std::nullopt;
    level.labels = std::nullopt;
    add(check(with(Slot::Supply, level), 0), "Ready: what the job needs is loaded.");
    add(check(with(Slot::Supply, level), 1), "Supply: it is not known how much is left.");
    add(check(reading, 300), "Supply: not enough. Labels left: 250, needed: 300, missing: 50.");
    add(check(with(Slot::Supply, coarse(paperLevel(0.5))), 300),
        "Supply: not enough. Labels left: 245 to 255, needed: 300, missing: at least 45.");
    add(check(with(Slot::Supply, coarse(paperLevel(0.5))), 250),
        "Supply: it is not known whether it lasts, because the printer reports whole percents "
        "only. "
        "Labels left: 245 to 255, needed: 250.");
    add(check(with(Slot::Ribbon1, ribbonLevel(twoColours, 0.1, 2)), 70, {twoColours}),
        "Ribbon 1: it is not known whether it lasts, because a label may take several of its "
        "colours. Labels left: 50 to 100, needed: 70.");
    add(check(reading, 5, {}, vinyl),
        "Supply: DE-400200-WH (White Paper) is loaded, the job needs VT-400-YL.");
    add(check(with(Slot::Supply, levelOfState(State::Empty)), 5),
        "Supply: nothing is loaded, the job needs DE-400200-WH.");
    PrinterReading one = readyPrinter(PrinterType::BirchMax);
    add(check(one, 5, {black, blue}),
        "The job needs the ribbon RS-43-BL as well, but the printer has no place for it.");
    add(check(reading, 5, {black, twoColours}),
        "Ribbon 2: RS-43-BL (Black resin) is loaded, the job needs RP-43-KR.");
    one.setLevel(Slot::Ribbon1, ribbonLevel(waxy));
    add(check(one, 5),
        "The ribbon RX-43-BK (Black resin) does not suit the supply DE-400200-WH: the "
        "catalogue has no print settings for the two.");
    add(check(one, 5, {black}),
        "Ribbon 1: RX-43-BK (Black resin) is loaded, the job needs RS-43-BK. The ribbon RX-43-BK "
        "(Black resin) does not suit the supply DE-400200-WH: the catalogue has no print settings "
        "for the two.");
    one.setLevel(Slot::Ribbon1, levelOfState(State::Empty));
    add(check(one, 5), "No ribbon is loaded.");
    one = readyPrinter(PrinterType::BirchMax);
    PreflightResult blind{one.name(), paper, 5, {}};
    VxKit::checkJob(blind, one, [](const QString&, const QString&) { return std::nullopt; });
    add(blind, "Ribbon 1: it is not known whether RS-43-BK (Black resin) suits the supply, because "
               "the catalogue cannot be read.");
    add(check(with(Slot::Supply, levelOfState(State::NotKnown)), 5),
        "Supply: it is not known what is loaded, because the printer does not report it.");
    add(check(with(Slot::Supply, levelOfState(State::NotInCatalogue)), 5),
        "Supply: it is not known what is loaded, because 00000258100999000013 is not in the "
        "catalogue.");
    level = paperLevel(0.5);
    level.labelPitchMeters = std::nullopt;
    add(check(with(Slot::Supply, level), 5), "Supply: it is not known how many labels are left, "
                                             "because the catalogue has no length of a "
                                             "label for DE-400200-WH (White Paper).");
    reading.setStatusCode(4);
    add(check(reading, 5), "The printer is not ready: The cover is open.");
    reading = readyPrinter();
    reading.setStatusCode(VXPrinting::StatusCodes::unknown);
    add(check(reading, 5), "It is not known whether the printer can print, because it has not "
                           "reported its status.");
    reading.setLastReport({});
    add(check(reading, 5), "It is not known what is loaded, because the printer has not reported "
                           "anything yet.");
    reading.setWatching(PrinterReading::Watching::NetworkPrinter);
    add(check(reading, 5), "It is not known what is loaded, because the printer is not watched.");
}

void PreflightTest::everySentenceIsSaid()
{
    QFETCH(const PreflightResult, result);
    QFETCH(const QString, text);
    QCOMPARE(result.text(), text);
}

void PreflightTest::jsonHasEverything()
{
    const QJsonObject json = check(readyPrinter(), 300, {black}).toJson();
    const QJsonObject expected{
        {QStringLiteral("printer"), QStringLiteral("Shipping")},
        {QStringLiteral("supplySku"), paper},
        {QStringLiteral("labels"), 300},
        {QStringLiteral("ribbonSkus"), QJsonArray{black}},
        {QStringLiteral("answer"), QStringLiteral("no")},
        {QStringLiteral("verdict"), QStringLiteral("notEnough")},
        {QStringLiteral("labelsAtLeast"), 250},
        {QStringLiteral("labelsAtMost"), 250},
        {QStringLiteral("findings"),
         QJsonArray{QJsonObject{
             {QStringLiteral("kind"), QStringLiteral("notEnough")},
             {QStringLiteral("reason"), QJsonValue()},
             {QStringLiteral("slot"), QStringLiteral("supply")},
             {QStringLiteral("loadedSku"), paper},
             {QStringLiteral("loadedName"), QStringLiteral("White Paper")},
             {QStringLiteral("loadedIdentifier"), QStringLiteral("00000258100039000013")},
             {QStringLiteral("wantedSku"), paper},
             {QStringLiteral("suitsSupply"), QJsonValue()},
             {QStringLiteral("labelsAtLeast"), 250},
             {QStringLiteral("labelsAtMost"), 250},
             {QStringLiteral("shortBy"), 50},
             {QStringLiteral("statusCode"), QJsonValue()},
             {QStringLiteral("text"),
              QStringLiteral("Supply: not enough. Labels left: 250, needed: 300, missing: 50.")},
         }}},
        {QStringLiteral("text"),
         QStringLiteral("Supply: not enough. Labels left: 250, needed: 300, missing: 50.")},
    };
    QCOMPARE(json, expected);

    // Each word that a program may meet.
    const QJsonObject open =
        check(with(Slot::Supply, levelOfState(State::NotInCatalogue)), 1).toJson();
    QCOMPARE(open[QStringLiteral("answer")].toString(), QStringLiteral("notKnown"));
    QCOMPARE(open[QStringLiteral("findings")][0][QStringLiteral("reason")].toString(),
             QStringLiteral("notInCatalogue"));
    QCOMPARE(check(readyPrinter(), 1).toJson()[QStringLiteral("verdict")].toString(),
             QStringLiteral("ready"));
    QCOMPARE(
        check({}, 1).toJson()[QStringLiteral("findings")][0][QStringLiteral("reason")].toString(),
        QStringLiteral("noSuchPrinter"));
    PrinterReading panels = with(Slot::Ribbon1, ribbonLevel(twoColours, 0.1, 2));
    QCOMPARE(check(panels, 70, {twoColours})
                 .toJson()[QStringLiteral("findings")][0][QStringLiteral("reason")]
                 .toString(),
             QStringLiteral("severalPanels"));
    PrinterReading fault = readyPrinter();
    fault.setStatusCode(4);
    QCOMPARE(
        check(fault, 1).toJson()[QStringLiteral("findings")][0][QStringLiteral("kind")].toString(),
        QStringLiteral("printerNotReady"));
}

QTEST_APPLESS_MAIN(PreflightTest)

#include "tst_preflight.moc"
