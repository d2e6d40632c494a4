// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "level_curve.h"

#include <QtCore/QRandomGenerator>
#include <QtTest/QtTest>

#include <cmath>
#include <limits>

using VxKit::LevelCurve;
using Column = VxKit::LevelCurve::Column;

namespace {

constexpr double notKnown = std::numeric_limits<double>::quiet_NaN();
constexpr qint64 always = std::numeric_limits<qint64>::max();

/// The same column found the slow way, millisecond by millisecond.
Column bruteForce(const LevelCurve& curve, qint64 begin, qint64 end)
{
    Column column;
    for (qint64 time = begin; time < end; ++time) {
        const auto value = curve.valueAt(time);
        if (!value)
            continue;
        const auto each = static_cast<float>(*value);
        column.least = column.isKnown ? std::min(column.least, each) : each;
        column.most = column.isKnown ? std::max(column.most, each) : each;
        column.isKnown = true;
    }
    column.isUnknown = !column.isKnown;
    return column;
}

} // namespace

class LevelCurveTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valueHoldsUntilTheNext();
    void noDetailIsLeftOut_data();
    void noDetailIsLeftOut();
    void nothingIsKnownBeforeTheFirstValue();
    void nothingIsKnownOfTheFuture();
    void valueThatIsNoNumberIsNotKnown();
    void timesNeverGoBack();
    void emptyCurveHasNoValues();
};

void LevelCurveTest::valueHoldsUntilTheNext()
{
    LevelCurve curve;
    curve.append(100, 0.5);
    curve.append(200, 0.25);
    QVERIFY(!curve.valueAt(99));
    QCOMPARE(curve.valueAt(100), std::optional(0.5));
    QCOMPARE(curve.valueAt(199), std::optional(0.5));
    QCOMPARE(curve.valueAt(200), std::optional(0.25));
    QCOMPARE(curve.valueAt(always), std::optional(0.25));
}

void LevelCurveTest::noDetailIsLeftOut_data()
{
    QTest::addColumn<int>("samples");
    QTest::addColumn<int>("largestStep");
    QTest::newRow("thousands in a column") << 150000 << 0;
    QTest::newRow("many in a column") << 20000 << 2;
    QTest::newRow("about one in a column") << 500 << 60;
    QTest::newRow("few") << 20 << 2000;
}

void LevelCurveTest::noDetailIsLeftOut()
{
    QFETCH(const int, samples);
    QFETCH(const int, largestStep);
    QRandomGenerator random(17);
    LevelCurve curve;
    qint64 time = 1000;
    for (int sample = 0; sample < samples; ++sample) {
        // Some in 16ths, which are exact as the smaller kind of number too.
        const double value = random.bounded(10) == 0 ? notKnown : random.bounded(17) / 16.0;
        if (largestStep > 0) {
            curve.append(time, value);
            time += random.bounded(largestStep + 1);
            continue;
        }
        // Nearly all are the same, so that none of the few others may be missed.
        curve.append(time, random.bounded(500) == 0 ? value : 0.5);
        time += sample % 6 == 0 ? 1 : 0;
    }
    constexpr int count = 100;
    constexpr qint64 perColumn = 250;
    constexpr qint64 from = 500;
    const auto columns = curve.columns(from, from + count * perColumn, count, always);
    QCOMPARE(columns.size(), std::size_t(count));
    for (int number = 0; number < count; ++number) {
        const qint64 begin = from + number * perColumn;
        const Column expected = bruteForce(curve, begin, begin + perColumn);
        const Column& column = columns.at(static_cast<std::size_t>(number));
        QCOMPARE(column.isKnown, expected.isKnown);
        QCOMPARE(column.isUnknown, expected.isUnknown);
        // Several values at one time are all shown, though only the last one holds.
        QVERIFY(column.least <= expected.least);
        QVERIFY(column.most >= expected.most);
        if (largestStep > 100) {
            QVERIFY(column == expected);
        }
    }
}

void LevelCurveTest::nothingIsKnownBeforeTheFirstValue()
{
    LevelCurve curve;
    curve.append(500, 0.5);
    const auto columns = curve.columns(0, 1000, 10, always);
    QVERIFY(columns.at(4).isUnknown);
    QVERIFY(columns.at(5).isKnown);
}

void LevelCurveTest::nothingIsKnownOfTheFuture()
{
    LevelCurve curve;
    curve.append(0, 0.5);
    const auto columns = curve.columns(0, 1000, 10, 499);
    QVERIFY(columns.at(4).isKnown);
    QVERIFY(!columns.at(5).isKnown);
    QVERIFY(!columns.at(5).isUnknown); // it is not a gap either
}

void LevelCurveTest::valueThatIsNoNumberIsNotKnown()
{
    LevelCurve curve;
    curve.append(0, 0.5);
    curve.append(100, std::numeric_limits<double>::infinity());
    curve.append(200, notKnown);
    QVERIFY(curve.valueAt(50));
    QVERIFY(!curve.valueAt(100));
    QVERIFY(!curve.valueAt(200));
    QCOMPARE(curve.largest(), std::optional(0.5));
}

void LevelCurveTest::timesNeverGoBack()
{
    LevelCurve curve;
    curve.append(100, 0.5);
    curve.append(50, 0.25);
    QVERIFY(!curve.valueAt(75));
    QCOMPARE(curve.valueAt(100), std::optional(0.25));
}

void LevelCurveTest::emptyCurveHasNoValues()
{
    const LevelCurve curve;
    QVERIFY(!curve.valueAt(0));
    QVERIFY(!curve.largest());
    const auto columns = curve.columns(0, 10, 2, always);
    QCOMPARE(columns.size(), std::size_t(2));
    QVERIFY(columns.at(0).isUnknown);
    QVERIFY(curve.columns(0, 10, 0, always).empty());
}

QTEST_APPLESS_MAIN(LevelCurveTest)

#include "tst_level_curve.moc"
