// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include <printer_reading.h>

#include <QtTest/QtTest>

using VxKit::Level;
using VxKit::PrinterReading;
using VxKit::Slot;

class TestPrinterReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readingOfNoPrinterIsNull();
    void copiesAreIndependent();
    void onlyModelsWithTwoRibbonsHaveASecond();
};

void TestPrinterReading::readingOfNoPrinterIsNull()
{
    const PrinterReading none;
    QVERIFY(none.isNull());
    QCOMPARE(none.statusCode(), VXPrinting::StatusCodes::unknown);
    QCOMPARE(none.level(Slot::Supply).state, Level::State::NotKnown);
    QVERIFY(!none.level(Slot::Supply).ratio);
}

void TestPrinterReading::copiesAreIndependent()
{
    PrinterReading reading;
    reading.setName(QStringLiteral("Shipping"));
    PrinterReading copy = reading;
    QVERIFY(copy == reading);
    copy.setStatusCode(2);
    QCOMPARE(copy.differences(reading), PrinterReading::Field::Status);
    QCOMPARE(reading.statusCode(), VXPrinting::StatusCodes::unknown);
}

void TestPrinterReading::onlyModelsWithTwoRibbonsHaveASecond()
{
    Level ribbon;
    ribbon.state = Level::State::Empty;
    PrinterReading reading;
    reading.setModel(VXPrinting::PrinterType::BirchMax);
    reading.setLevel(Slot::Ribbon2, ribbon);
    QVERIFY(!reading.hasSlot(Slot::Ribbon2));
    QCOMPARE(reading.level(Slot::Ribbon2).state, Level::State::NotKnown);

    reading.setModel(VXPrinting::PrinterType::AlderMax);
    reading.setLevel(Slot::Ribbon2, ribbon);
    QCOMPARE(reading.slotList(), (QList{Slot::Supply, Slot::Ribbon1, Slot::Ribbon2}));
    QCOMPARE(reading.level(Slot::Ribbon2).state, Level::State::Empty);
}

QTEST_GUILESS_MAIN(TestPrinterReading)
#include "tst_printer_reading.moc"
