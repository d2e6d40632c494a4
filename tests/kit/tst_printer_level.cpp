// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// What is left of a supply or ribbon, and that it agrees with the library wherever that knows it.
#include "percent_left.h"
#include "printer_level.h"

#include <supplyc.h>

#include <QtCore/QRandomGenerator>
#include <QtTest/QtTest>

using VxKit::CatalogueItem;
using VxKit::Level;
using VxKit::Slot;
using VxKit::SlotValues;
using VXPrinting::PrinterType;

namespace {

constexpr double inchesToMeters = 0.0254;

QString rollOf(int feet)
{
    return QStringLiteral("%1").arg(quint32(feet), 8, 16, QLatin1Char('0')).toUpper() +
           QStringLiteral("100003000001");
}

SlotValues valuesOf(const QString& identifier, std::optional<quint32> mileage, double length,
                    double pitch = 0.0, int sideBySide = 1)
{
    CatalogueItem item;
    item.sku = QStringLiteral("VT-400-YL");
    item.length = length;
    item.pitch = pitch;
    item.labelsSideBySide = sideBySide;
    return {identifier, mileage, std::make_shared<const CatalogueItem>(item)};
}

} // namespace

class PrinterLevelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithTheLibrary_data();
    void agreesWithTheLibrary();
    void impossibleResultsAreNotKnown_data();
    void impossibleResultsAreNotKnown();
    void nothingLoadedHasNoLevel();
    void labels_data();
    void labels();
    void metersAreTheShareOfTheRoll();
    void percentModelIsCoarse();
    void publishedNumbers();
};

void PrinterLevelTest::agreesWithTheLibrary_data()
{
    QTest::addColumn<Slot>("slot");
    QTest::addColumn<PrinterType>("model");
    QTest::newRow("supply") << Slot::Supply << PrinterType::BirchMax;
    QTest::newRow("ribbon 1") << Slot::Ribbon1 << PrinterType::BirchMax;
    QTest::newRow("ribbon 2") << Slot::Ribbon2 << PrinterType::AlderMax;
    QTest::newRow("supply in percent") << Slot::Supply << PrinterType::Alder;
    QTest::newRow("ribbon in percent") << Slot::Ribbon2 << PrinterType::Alder;
}

void PrinterLevelTest::agreesWithTheLibrary()
{
    QFETCH(const Slot, slot);
    QFETCH(const PrinterType, model);
    QRandomGenerator random(20260131);
    const bool isInPercent = model == PrinterType::Alder;
    const QList<quint32> extremes{0,       1,       99,         100,        101,       152400,
                                  1000000, 1000001, 0x7FFFFFFF, 0xFFFFFFFE, 0xFFFFFFFF};
    int known = 0;
    for (int round = 0; round < 200000; ++round) {
        const int feet = random.bounded(1, 700);
        // Mostly what fits the identifier, but also rolls that are a little or much too long.
        const auto length = static_cast<float>(
            random.bounded(4) ? feet * 12.0 + random.bounded(24.0) - 12.0 : random.bounded(9000.0));
        const quint32 most = isInPercent ? 105 : quint32(feet) * 310;
        const quint32 mileage = round < extremes.size() ? extremes.at(round)
                                : slot == Slot::Supply  ? random.bounded(most)
                                                       : random.bounded(isInPercent ? 105 : 125000);
        const QString identifier =
            slot == Slot::Supply ? rollOf(feet) : QString::number(random.bounded(1, 100000));
        const Level level = levelOf(slot, model, valuesOf(identifier, mileage, double(length)));

        const double reported = percent_left::mileage(QString::number(mileage));
        const int expected = isInPercent ? percent_left::ofPercentage(reported)
                             : slot == Slot::Supply
                                 ? percent_left::ofSupply(reported, length, identifier)
                                 : percent_left::ofRibbon(reported, length);
        if (!level.ratio) {
            // The library says 0 where nothing is known, also for one percent more than new.
            QVERIFY2(expected == 0 || mileage > 1000000,
                     qPrintable(QStringLiteral("%1 of %2").arg(mileage).arg(double(length))));
            continue;
        }
        ++known;
        QVERIFY(*level.ratio >= 0.0 && *level.ratio <= 1.0);
        QCOMPARE(level.percentage(), std::optional<int>(expected));
        if (!isInPercent)
            QCOMPARE(int(std::floor(*level.ratio * 100)), expected);
    }
    QVERIFY2(known > 50000, qPrintable(QString::number(known)));
}

void PrinterLevelTest::impossibleResultsAreNotKnown_data()
{
    QTest::addColumn<Slot>("slot");
    QTest::addColumn<QString>("identifier");
    QTest::addColumn<std::optional<quint32>>("mileage");
    QTest::addColumn<double>("length");
    const auto mileage = [](quint32 value) {
        return std::optional<quint32>(value);
    };
    QTest::newRow("no mileage") << Slot::Supply << rollOf(100) << std::optional<quint32>()
                                << 1200.0;
    QTest::newRow("longer than new") << Slot::Supply << rollOf(100) << mileage(31000) << 1200.0;
    QTest::newRow("longer than any") << Slot::Supply << rollOf(100) << mileage(1000001) << 1200.0;
    QTest::newRow("less than nothing") << Slot::Supply << rollOf(150) << mileage(14000) << 1200.0;
    QTest::newRow("feet 0") << Slot::Supply << rollOf(0) << mileage(0) << 1200.0;
    QTest::newRow("negative feet") << Slot::Supply << rollOf(-100) << mileage(0) << 1200.0;
    QTest::newRow("not decoded") << Slot::Supply << QStringLiteral("what is in this chip")
                                 << mileage(0) << 1200.0;
    QTest::newRow("length not known") << Slot::Supply << rollOf(100) << mileage(100) << 0.0;
    QTest::newRow("length too small") << Slot::Supply << rollOf(100) << mileage(100) << 0.4;
    QTest::newRow("ribbon longer than new")
        << Slot::Ribbon1 << QStringLiteral("2001") << mileage(122000) << 4725.0;
    QTest::newRow("short ribbon, more used than there was")
        << Slot::Ribbon1 << QStringLiteral("2018") << mileage(100) << 2360.0;
    QTest::newRow("ribbon's length not known")
        << Slot::Ribbon1 << QStringLiteral("2001") << mileage(100) << 1.0;
}

void PrinterLevelTest::impossibleResultsAreNotKnown()
{
    QFETCH(const Slot, slot);
    QFETCH(const QString, identifier);
    QFETCH(const std::optional<quint32>, mileage);
    QFETCH(const double, length);
    const Level level =
        levelOf(slot, PrinterType::BirchMax, valuesOf(identifier, mileage, length, 1.625, 2));
    QCOMPARE(level.state, Level::State::Loaded);
    QVERIFY(!level.ratio);
    QVERIFY(!level.meters);
    QVERIFY(!level.labels);
    QVERIFY(!level.percentage());
    QCOMPARE(level.mileage, mileage);
}

void PrinterLevelTest::nothingLoadedHasNoLevel()
{
    for (const PrinterType model : {PrinterType::Alder, PrinterType::BirchMax}) {
        for (const char* identifier : {"", "-1", "00000000000000000000"}) {
            const Level level =
                levelOf(Slot::Supply, model, valuesOf(QString::fromLatin1(identifier), 50, 1200.0));
            QCOMPARE(level.state, *identifier ? Level::State::Empty : Level::State::NotKnown);
            QVERIFY(!level.ratio);
            QVERIFY(!level.totalMeters);
            QVERIFY(level.sku.isEmpty());
            QVERIFY(level.identifier.isEmpty());
            QCOMPARE(level.mileage, std::optional<quint32>(50));
        }
    }
}

void PrinterLevelTest::labels_data()
{
    QTest::addColumn<double>("length");
    QTest::addColumn<double>("pitch");
    QTest::addColumn<int>("sideBySide");
    QTest::addColumn<int>("feet");
    QTest::addColumn<quint32>("mileage");
    QTest::addColumn<std::optional<int>>("expected");
    const auto some = [](int count) {
        return std::optional<int>(count);
    };
    QTest::newRow("continuous") << 1200.0 << 0.0 << 1 << 100 << 30480U << std::optional<int>();
    QTest::newRow("two across, new") << 1500.0 << 1.625 << 2 << 125 << 38100U << some(1846);
    QTest::newRow("used up") << 1500.0 << 1.625 << 2 << 125 << 0U << some(0);
    QTest::newRow("less than one") << 1500.0 << 1.625 << 2 << 125 << 41U << some(0);
    QTest::newRow("just one row") << 1500.0 << 1.625 << 2 << 125 << 42U << some(2);
    // 1.2F is a little more than 1.2, so that a new roll has 999.99997 labels by calculation.
    QTest::newRow("whole number") << 1200.0 << double(1.2F) << 1 << 100 << 30480U << some(1000);
    QTest::newRow("more labels than a number holds")
        << 1200.0 << 1e-9 << 1 << 100 << 30480U << std::optional<int>();
}

void PrinterLevelTest::labels()
{
    QFETCH(const double, length);
    QFETCH(const double, pitch);
    QFETCH(const int, sideBySide);
    QFETCH(const int, feet);
    QFETCH(const quint32, mileage);
    QFETCH(const std::optional<int>, expected);
    const Level level = levelOf(Slot::Supply, PrinterType::CedarMax,
                                valuesOf(rollOf(feet), mileage, length, pitch, sideBySide));
    QVERIFY(level.ratio);
    QCOMPARE(level.labels, expected);
}

void PrinterLevelTest::metersAreTheShareOfTheRoll()
{
    const Level half =
        levelOf(Slot::Supply, PrinterType::BirchMax, valuesOf(rollOf(100), 15240, 1200.0));
    QCOMPARE(half.totalMeters, std::optional<double>(1200.0 * inchesToMeters));
    QVERIFY(qAbs(*half.meters - 15.24) < 0.001);
    // A roll that is longer by less than a percent than the catalogue says is new.
    const Level over =
        levelOf(Slot::Supply, PrinterType::BirchMax, valuesOf(rollOf(100), 30500, 1200.0));
    QCOMPARE(over.ratio, std::optional<double>(1.0));
    QCOMPARE(over.meters, over.totalMeters);
}

void PrinterLevelTest::percentModelIsCoarse()
{
    const Level level =
        levelOf(Slot::Supply, PrinterType::Alder, valuesOf(rollOf(600), 82, 7200.0, 2.125));
    QVERIFY(level.coarse);
    QCOMPARE(level.mileageUnit, Level::MileageUnit::Percent);
    QCOMPARE(level.percentage(), std::optional<int>(82));
    QVERIFY(qAbs(*level.meters - 0.82 * 7200 * inchesToMeters) < 1e-9);
    QCOMPARE(level.labels, std::optional<int>(2778));
}

void PrinterLevelTest::publishedNumbers()
{
    using VxKit::publishedMileage;
    using VxKit::publishedNumber;
    QCOMPARE(publishedNumber(QStringLiteral("0")), std::optional<quint32>(0));
    QCOMPARE(publishedNumber(QStringLiteral("4294967294")), std::optional<quint32>(4294967294U));
    for (const char* text : {"", "-1", "12.5", "many", "99999999999"}) {
        QVERIFY(!publishedNumber(QString::fromLatin1(text)));
        QVERIFY(!publishedMileage(QString::fromLatin1(text)));
    }
    const QString minusOne = QStringLiteral("4294967295");
    QCOMPARE(publishedNumber(minusOne), std::optional<quint32>(4294967295U));
    QVERIFY(!publishedMileage(minusOne));
    QCOMPARE(publishedMileage(QStringLiteral("12")), std::optional<quint32>(12));
}

QTEST_APPLESS_MAIN(PrinterLevelTest)
#include "tst_printer_level.moc"
