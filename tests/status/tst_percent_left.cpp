// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// What is left of a roll according to the mileage that the driver publishes.
#include "percent_left.h"

#include <QtTest/QtTest>

#include <cmath>
#include <limits>

namespace {
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr float infinityF = std::numeric_limits<float>::infinity();
constexpr float notANumberF = std::numeric_limits<float>::quiet_NaN();
constexpr float largestF = std::numeric_limits<float>::max();

/// The identifier of a roll that was that many feet long when it was new.
QString rollOf(qint32 feet)
{
    return QStringLiteral("%1").arg(quint32(feet), 8, 16, QLatin1Char('0')) +
           QStringLiteral("100042000001");
}
} // namespace

class PercentLeftTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mileage_data();
    void mileage();
    void percentage_data();
    void percentage();
    void supply_data();
    void supply();
    void ribbon_data();
    void ribbon();
    void everyMileageOfARollIsInRange();
};

void PercentLeftTest::mileage_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("expected");
    QTest::newRow("number") << "76200" << 76200.0;
    QTest::newRow("fraction") << "57.9" << 57.9;
    QTest::newRow("not known") << "-1" << -1.0;
    QTest::newRow("empty") << "" << 0.0;
    QTest::newRow("null") << QString() << 0.0;
    QTest::newRow("no number") << "abc" << 0.0;
    QTest::newRow("the farthest") << "1000000" << 1000000.0;
    QTest::newRow("beyond it") << "1000000.5" << 0.0;
    QTest::newRow("far beyond it") << "1e300" << 0.0;
    QTest::newRow("beyond every double") << "1e999" << 0.0;
    QTest::newRow("infinite") << "inf" << 0.0;
    QTest::newRow("infinite the other way") << "-inf" << -infinity;
    QTest::newRow("all bits set") << "4294967295" << 0.0;
}

void PercentLeftTest::mileage()
{
    QFETCH(const QString, text);
    QFETCH(const double, expected);
    QCOMPARE(percent_left::mileage(text), expected);
}

void PercentLeftTest::percentage_data()
{
    QTest::addColumn<double>("published");
    QTest::addColumn<int>("expected");
    QTest::newRow("57.9") << 57.9 << 57;
    QTest::newRow("0") << 0.0 << 0;
    QTest::newRow("100") << 100.0 << 100;
    QTest::newRow("100.9") << 100.9 << 100; // truncated before the range is checked
    QTest::newRow("101") << 101.0 << 0;
    QTest::newRow("-0.9") << -0.9 << 0;
    QTest::newRow("-1") << -1.0 << 0;
    QTest::newRow("1e300") << 1e300 << 0;
    QTest::newRow("-1e300") << -1e300 << 0;
    QTest::newRow("infinite") << infinity << 0;
    QTest::newRow("-infinite") << -infinity << 0;
    QTest::newRow("not a number") << notANumber << 0;
}

void PercentLeftTest::percentage()
{
    QFETCH(const double, published);
    QFETCH(const int, expected);
    QCOMPARE(percent_left::ofPercentage(published), expected);
}

void PercentLeftTest::supply_data()
{
    QTest::addColumn<double>("mileage");
    QTest::addColumn<float>("length");
    QTest::addColumn<QString>("identifier");
    QTest::addColumn<int>("expected");

    const QString roll = rollOf(500);
    QTest::newRow("half") << 76200.0 << 6000.0F << roll << 50;
    QTest::newRow("new, a hair above") << 152400.0 << 6000.0F << roll << 100;
    QTest::newRow("empty") << 0.0 << 6000.0F << roll << 0;
    QTest::newRow("one percent") << 1525.0 << 6000.0F << roll << 1;
    QTest::newRow("less than one") << 1000.0 << 6000.0F << roll << 0;
    QTest::newRow("not known") << -1.0 << 6000.0F << rollOf(100) << 0;
    QTest::newRow("nearly not known") << -1.5 << 1200.0F << rollOf(50) << 49;
    QTest::newRow("more than new") << 155000.0 << 6000.0F << roll << 0;

    // Lengths that round to 0 or -1 are unusable; all others are usable.
    QTest::newRow("length 0") << 0.0 << 0.0F << rollOf(0) << 0;
    QTest::newRow("length 0.4") << 10.16 << 0.4F << rollOf(0) << 0;
    QTest::newRow("length 0.6") << 0.0 << 0.6F << rollOf(0) << 100;
    QTest::newRow("length 0.5") << 0.0 << 0.5F << rollOf(0) << 100; // rounds to 1
    QTest::newRow("length -0.4") << 0.0 << -0.4F << rollOf(0) << 0;
    QTest::newRow("length -0.6") << 0.0 << -0.6F << rollOf(0) << 0;
    QTest::newRow("length -1.4") << 0.0 << -1.4F << rollOf(0) << 0;
    QTest::newRow("length -1.6") << 0.0 << -1.6F << rollOf(0) << 100;

    // An identifier that cannot be decoded counts as 0 feet.
    QTest::newRow("no identifier") << 0.0 << 6000.0F << QString() << 100;
    QTest::newRow("nothing loaded") << 0.0 << 6000.0F << QStringLiteral("-1") << 100;
    QTest::newRow("longer than what is decoded")
        << 76200.0 << 6000.0F << roll + QStringLiteral("0000and more") << 0;
    QTest::newRow("negative feet") << 0.0 << 6000.0F << rollOf(-10) << 0;
    QTest::newRow("fewest feet") << 0.0 << 6000.0F << rollOf(std::numeric_limits<int>::min()) << 0;
    QTest::newRow("most feet") << 0.0 << 6000.0F << rollOf(std::numeric_limits<int>::max()) << 0;

    QTest::newRow("infinite length") << 100.0 << infinityF << roll << 0;
    QTest::newRow("-infinite length") << 100.0 << -infinityF << roll << 0;
    QTest::newRow("length not a number") << 100.0 << notANumberF << roll << 0;
    QTest::newRow("largest length") << 100.0 << largestF << roll << 100;
    QTest::newRow("mileage not a number") << notANumber << 6000.0F << roll << 0;
    QTest::newRow("mileage -infinite") << -infinity << 6000.0F << roll << 0;
    QTest::newRow("mileage -1e300") << -1e300 << 6000.0F << roll << 0;
}

void PercentLeftTest::supply()
{
    QFETCH(const double, mileage);
    QFETCH(const float, length);
    QFETCH(const QString, identifier);
    QFETCH(const int, expected);
    QCOMPARE(percent_left::ofSupply(mileage, length, identifier), expected);
}

void PercentLeftTest::ribbon_data()
{
    QTest::addColumn<double>("mileage");
    QTest::addColumn<float>("length");
    QTest::addColumn<int>("expected");

    QTest::newRow("half") << 60000.0 << 4725.0F << 49;
    QTest::newRow("new") << 120015.0 << 4725.0F << 100;
    // 100.8 is truncated to 100 and is then in range.
    QTest::newRow("a little more than new") << 121000.0 << 4725.0F << 100;
    QTest::newRow("the last that is let through") << 121200.0 << 4725.0F << 100;
    QTest::newRow("one percent more than new") << 121300.0 << 4725.0F << 0;
    QTest::newRow("empty") << 0.0 << 4725.0F << 0;
    QTest::newRow("not known") << -1.0 << 4725.0F << 0;

    // Lengths that round to 0 or 1 are unusable; -1 is not an exception here.
    QTest::newRow("length 0") << 120015.0 << 0.0F << 0;
    QTest::newRow("length 0.4") << 120015.0 << 0.4F << 0;
    QTest::newRow("length 1.2") << 120015.0 << 1.2F << 0;
    QTest::newRow("length 1.4") << 120015.0 << 1.4F << 0;
    QTest::newRow("length 1.6") << 120014.0 << 1.6F << 97;
    QTest::newRow("length -0.6, nothing used") << 100.0 << -0.6F << 0;
    QTest::newRow("length -0.6, all used") << 120015.0 << -0.6F << 99;
    QTest::newRow("length -1") << 120015.0 << -1.0F << 99;

    QTest::newRow("infinite length") << 100.0 << infinityF << 0;
    QTest::newRow("length not a number") << 100.0 << notANumberF << 0;
    QTest::newRow("largest length") << 100.0 << largestF << 100;
    QTest::newRow("mileage not a number") << notANumber << 4725.0F << 0;
    QTest::newRow("mileage -infinite") << -infinity << 4725.0F << 0;
}

void PercentLeftTest::ribbon()
{
    QFETCH(const double, mileage);
    QFETCH(const float, length);
    QFETCH(const int, expected);
    QCOMPARE(percent_left::ofRibbon(mileage, length), expected);
}

void PercentLeftTest::everyMileageOfARollIsInRange()
{
    int last = 0;
    for (int millimetres = 0; millimetres <= 152400; millimetres += 7) {
        const int left = percent_left::ofSupply(millimetres, 6000.0F, rollOf(500));
        QVERIFY(left >= last && left <= 100);
        last = left;
    }
    QCOMPARE(last, 99);
}

QTEST_APPLESS_MAIN(PercentLeftTest)
#include "tst_percent_left.moc"
