// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include <supplyc.h>

#include <QtTest/QtTest>

#include <limits>

class SupplyCTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decodesIdentifiers_data();
    void decodesIdentifiers();
    void refusesOtherTexts_data();
    void refusesOtherTexts();
    void hasTheLengthFirst();
};

void SupplyCTest::decodesIdentifiers_data()
{
    QTest::addColumn<QString>("identifier");
    QTest::addColumn<qint32>("feet");
    QTest::addColumn<qint32>("kind");
    QTest::addColumn<qint32>("roll");

    QTest::newRow("a roll of 500 feet") << "000001F41000420000A7" << 500 << 100042 << 167;
    QTest::newRow("small letters") << "000001f41000420000a7" << 500 << 100042 << 167;
    QTest::newRow("length below zero") << "FFFFFFF4000001000000" << -12 << 1 << 0;
    QTest::newRow("longest") << "7FFFFFFF999999FFFFFF" << std::numeric_limits<qint32>::max()
                             << 999999 << 0xFFFFFF;
    QTest::newRow("shortest") << "80000000000000000000" << std::numeric_limits<qint32>::min() << 0
                              << 0;
    QTest::newRow("twenty zeros") << "00000000000000000000" << 0 << 0 << 0;
}

void SupplyCTest::decodesIdentifiers()
{
    QFETCH(QString, identifier);
    const SupplyC supply(identifier);
    QVERIFY(supply.isDecoded());
    QTEST(supply.lengthInFeet, "feet");
    QTEST(supply.kind, "kind");
    QTEST(supply.rollNumber, "roll");
}

void SupplyCTest::refusesOtherTexts_data()
{
    QTest::addColumn<QString>("identifier");

    QTest::newRow("null") << QString();
    QTest::newRow("nothing loaded") << "-1";
    QTest::newRow("nineteen zeros") << "0000000000000000000";
    QTest::newRow("twenty-one characters") << "000001F41000420000A70";
    QTest::newRow("twenty-four characters") << "000001F41000420000A70000";
    QTest::newRow("a letter in the kind") << "000001F410004A0000A7";
    QTest::newRow("no digit in the length") << "000001G41000420000A7";
    QTest::newRow("no digit in the roll") << "000001F4100042xxxxxx";
    QTest::newRow("a sign") << "+00001F41000420000A7";
    QTest::newRow("a minus sign in the kind") << "000001F4-000420000A7";
    QTest::newRow("a prefix") << "0x0001F41000420000A7";
    QTest::newRow("a space") << " 00001F41000420000A7";
    QTest::newRow("digits of another script")
        << QStringLiteral("000001F4") + QString(6, QChar(0x0661)) + QStringLiteral("0000A7");
}

void SupplyCTest::refusesOtherTexts()
{
    QFETCH(QString, identifier);
    const SupplyC supply(identifier);
    QVERIFY(!supply.isDecoded());
    QCOMPARE(supply.lengthInFeet, 0);
    QCOMPARE(supply.kind, -1);
    QCOMPARE(supply.rollNumber, -1);
}

void SupplyCTest::hasTheLengthFirst()
{
    const SupplyC supply(QStringLiteral("000001F41000420000A7"));
    QCOMPARE(*reinterpret_cast<const qint32*>(&supply), 500);
}

QTEST_APPLESS_MAIN(SupplyCTest)
#include "tst_supplyc.moc"
