// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include <consumed_meters.h>

#include <QtTest/QtTest>

using VxKit::Level;
using VxKit::PrinterReading;
using VxKit::Slot;

class ConsumedMetersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void nothingIsKnownBeforeALevelIs();
    void whatIsUsedIsCounted();
    void newRollIsNotCounted();
    void otherRollWithLessOnItIsNotCounted();
    void levelThatFollowsTheIdentifierIsNotCounted();
    void laterUseOfTheOtherRollIsCounted();
    void labelsThatArePulledBackAreCountedOnce();
    void percentsThatGoUpAndDownAreCountedOnce();
    void rollThatIsPutBackGoesOn();
    void slotsAreCountedApart();
    void renamedPrinterGoesOn();
    void printerThatComesBackBeginsWithZero();

private:
    void report(const char* identifier, std::optional<double> meters, int afterSeconds = 60)
    {
        Level level;
        level.state = Level::State::Loaded;
        level.identifier = QLatin1String(identifier);
        level.meters = meters;
        level.totalMeters = 100.0;
        level.coarse = m_isCoarse;
        report(Slot::Supply, level, afterSeconds);
    }
    void report(Slot slot, const Level& level, int afterSeconds = 60)
    {
        m_now = m_now.addSecs(afterSeconds);
        m_reading.setLevel(slot, level);
        m_consumed.add(m_reading, m_now);
    }
    std::optional<double> consumed(Slot slot = Slot::Supply) const
    {
        return m_consumed.of(m_reading.name()).at(static_cast<std::size_t>(slot));
    }

    ConsumedMeters m_consumed;
    PrinterReading m_reading;
    QDateTime m_now;
    bool m_isCoarse = false;
};

void ConsumedMetersTest::init()
{
    m_consumed = {};
    m_reading = {};
    m_reading.setName(QStringLiteral("Packing"));
    m_reading.setModel(VXPrinting::PrinterType::BirchMax);
    m_now = QDateTime(QDate(2026, 3, 4), QTime(12, 0), Qt::UTC);
    m_isCoarse = false;
}

void ConsumedMetersTest::nothingIsKnownBeforeALevelIs()
{
    QVERIFY(!consumed());
    report("A", {});
    QVERIFY(!consumed());
    report("A", 50);
    QCOMPARE(consumed(), std::optional(0.0));
    QVERIFY(!consumed(Slot::Ribbon1));
}

void ConsumedMetersTest::whatIsUsedIsCounted()
{
    report("A", 50);
    report("A", 49.5, 1);
    QCOMPARE(consumed(), std::optional(0.5));
    report("A", 40);
    QCOMPARE(consumed(), std::optional(10.0));
}

void ConsumedMetersTest::newRollIsNotCounted()
{
    report("A", 2);
    report("A", 1);
    report("A", 100);
    report("A", 98, 1);
    QCOMPARE(consumed(), std::optional(3.0));
}

void ConsumedMetersTest::otherRollWithLessOnItIsNotCounted()
{
    report("A", 90);
    report("B", 20);
    QCOMPARE(consumed(), std::optional(0.0));
}

void ConsumedMetersTest::levelThatFollowsTheIdentifierIsNotCounted()
{
    report("A", 90);
    report("B", 90);
    report("B", 20, 5);
    QCOMPARE(consumed(), std::optional(0.0));
    report("B", 19, 5);
    QCOMPARE(consumed(), std::optional(1.0));
}

void ConsumedMetersTest::laterUseOfTheOtherRollIsCounted()
{
    report("A", 90);
    report("B", 90);
    report("B", 88, 60);
    QCOMPARE(consumed(), std::optional(2.0));
}

void ConsumedMetersTest::labelsThatArePulledBackAreCountedOnce()
{
    report("A", 50);
    report("A", 49);
    report("A", 49.1);
    report("A", 49);
    report("A", 48.5);
    QCOMPARE(consumed(), std::optional(1.5));
}

void ConsumedMetersTest::percentsThatGoUpAndDownAreCountedOnce()
{
    m_isCoarse = true;
    for (const double meters : {50, 49, 50, 49, 50, 48})
        report("A", meters);
    QCOMPARE(consumed(), std::optional(2.0));
}

void ConsumedMetersTest::rollThatIsPutBackGoesOn()
{
    report("A", 50);
    Level empty;
    empty.state = Level::State::Empty;
    report(Slot::Supply, empty);
    QCOMPARE(consumed(), std::optional(0.0));
    report("A", 50);
    report("A", 49);
    QCOMPARE(consumed(), std::optional(1.0));
}

void ConsumedMetersTest::slotsAreCountedApart()
{
    report("A", 50);
    Level ribbon;
    ribbon.state = Level::State::Loaded;
    ribbon.identifier = QStringLiteral("2001");
    ribbon.meters = 80;
    report(Slot::Ribbon1, ribbon);
    ribbon.meters = 77;
    report(Slot::Ribbon1, ribbon);
    QCOMPARE(consumed(), std::optional(0.0));
    QCOMPARE(consumed(Slot::Ribbon1), std::optional(3.0));
}

void ConsumedMetersTest::renamedPrinterGoesOn()
{
    report("A", 50);
    report("A", 40);
    m_consumed.rename(m_reading.name(), QStringLiteral("Shipping"));
    QVERIFY(!consumed());
    m_reading.setName(QStringLiteral("Shipping"));
    report("A", 39);
    QCOMPARE(consumed(), std::optional(11.0));
}

void ConsumedMetersTest::printerThatComesBackBeginsWithZero()
{
    report("A", 50);
    report("A", 40);
    m_consumed.remove(m_reading.name());
    QVERIFY(!consumed());
    report("A", 30);
    QCOMPARE(consumed(), std::optional(0.0));
}

QTEST_GUILESS_MAIN(ConsumedMetersTest)
#include "tst_consumed_meters.moc"
