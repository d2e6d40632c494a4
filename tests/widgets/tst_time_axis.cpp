// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "time_axis.h"

#include <QtTest/QtTest>

using VxKit::TimeTick;
using VxKit::timeTicks;

namespace {

const QTimeZone berlin("Europe/Berlin");
const QLocale german(QLocale::German, QLocale::Germany);
const QLocale american(QLocale::English, QLocale::UnitedStates);
const QLocale japanese(QLocale::Japanese, QLocale::Japan);

QDateTime at(int month, int day, int hour = 0, int minute = 0)
{
    return {QDate(2026, month, day), QTime(hour, minute), berlin};
}

QStringList labels(const QList<TimeTick>& ticks)
{
    QStringList labels;
    for (const TimeTick& tick : ticks)
        labels.append(tick.label);
    return labels;
}

QStringList labels(const QDateTime& from, const QDateTime& until, int most,
                   const QLocale& locale = german)
{
    return labels(timeTicks(from, until, most, berlin, locale));
}

} // namespace

class TimeAxisTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hoursOfADayAreRound();
    void midnightHasTheDateAndIsMarked();
    void daysOfAWeekAreThoseOfTheTimeZone();
    void weeksBeginWhereTheUserLives();
    void monthsAndYearsAreNamed();
    void hourThatIsLeftOutHasNoTick();
    void midnightsAreRightWhenTheClockIsChanged();
    void datesAreInTheOrderOfTheLanguage();
    void thereAreNoMoreTicksThanRoom_data();
    void thereAreNoMoreTicksThanRoom();
    void impossibleRangesHaveNoTicks();
};

void TimeAxisTest::hoursOfADayAreRound()
{
    QCOMPARE(labels(at(11, 18, 6, 17), at(11, 18, 15, 2), 6),
             QStringLiteral("08:00|10:00|12:00|14:00").split(u'|'));
    QCOMPARE(labels(at(11, 18, 6, 1), at(11, 18, 6, 31), 8),
             QStringLiteral("06:05|06:10|06:15|06:20|06:25|06:30").split(u'|'));
}

void TimeAxisTest::midnightHasTheDateAndIsMarked()
{
    const auto ticks = timeTicks(at(11, 17, 15), at(11, 18, 15), 5, berlin, german);
    QCOMPARE(labels(ticks), QStringLiteral("18:00|Mi. 18.11.|06:00|12:00").split(u'|'));
    QCOMPARE(ticks.at(1).time, at(11, 18).toMSecsSinceEpoch());
    QVERIFY(ticks.at(1).isMajor);
    QVERIFY(!ticks.at(0).isMajor);
}

void TimeAxisTest::daysOfAWeekAreThoseOfTheTimeZone()
{
    const auto ticks =
        timeTicks(at(11, 16, 12), at(11, 19, 12), 10, QTimeZone("Asia/Tokyo"), german);
    QVERIFY(!ticks.isEmpty());
    for (const TimeTick& tick : ticks) {
        if (tick.isMajor)
            QCOMPARE(QDateTime::fromMSecsSinceEpoch(tick.time, Qt::UTC).time(), QTime(15, 0));
    }
    QCOMPARE(labels(at(11, 16, 12, 1), at(11, 19, 12), 8),
             QStringLiteral("Di. 17.11.|12:00|Mi. 18.11.|12:00|Do. 19.11.|12:00").split(u'|'));
    QCOMPARE(labels(at(11, 16, 12), at(11, 19, 12), 3),
             QStringLiteral("17.11.|18.11.|19.11.").split(u'|'));
}

void TimeAxisTest::weeksBeginWhereTheUserLives()
{
    // The second of November 2026 is a Monday.
    QCOMPARE(labels(at(11, 1), at(11, 30), 5),
             QStringLiteral("02.11.|09.11.|16.11.|23.11.|30.11.").split(u'|'));
    QCOMPARE(labels(at(11, 1), at(11, 30), 5, american),
             QStringLiteral("11/1|11/8|11/15|11/22|11/29").split(u'|'));
}

void TimeAxisTest::monthsAndYearsAreNamed()
{
    const auto ticks = timeTicks(QDateTime(QDate(2025, 11, 5), QTime(0, 0), berlin), at(4, 2), 6,
                                 berlin, american);
    QCOMPARE(labels(ticks), QStringLiteral("Dec|2026|Feb|Mar|Apr").split(u'|'));
    QVERIFY(ticks.at(1).isMajor);
    QCOMPARE(labels(QDateTime(QDate(2019, 11, 5), QTime(0, 0), berlin), at(4, 2), 8),
             QStringLiteral("2020|2021|2022|2023|2024|2025|2026").split(u'|'));
}

void TimeAxisTest::hourThatIsLeftOutHasNoTick()
{
    // On 29 March 2026 the clock goes from 2:00 to 3:00, on 25 October from 3:00 to 2:00.
    QCOMPARE(labels(at(3, 29, 0, 31), at(3, 29, 5, 30), 10),
             QStringLiteral("01:00|01:30|03:00|03:30|04:00|04:30|05:00|05:30").split(u'|'));
    const auto ticks = timeTicks(at(10, 25, 0, 30), at(10, 25, 5, 30), 6, berlin, german);
    QCOMPARE(labels(ticks), QStringLiteral("01:00|02:00|03:00|04:00|05:00").split(u'|'));
    QCOMPARE((ticks.at(2).time - ticks.at(0).time) / 3600000, qint64(3));
}

void TimeAxisTest::midnightsAreRightWhenTheClockIsChanged()
{
    const auto ticks = timeTicks(at(3, 27, 12), at(3, 31, 12), 5, berlin, german);
    QCOMPARE(labels(ticks), QStringLiteral("28.03.|29.03.|30.03.|31.03.").split(u'|'));
    QCOMPARE((ticks.at(2).time - ticks.at(1).time) / 3600000, qint64(23));
}

void TimeAxisTest::datesAreInTheOrderOfTheLanguage()
{
    const QDate date(2026, 11, 3);
    QCOMPARE(VxKit::dayAndMonth(date, german), QStringLiteral("03.11."));
    QCOMPARE(VxKit::dayAndMonth(date, american), QStringLiteral("11/3"));
    QCOMPARE(VxKit::dayAndMonth(date, japanese), QStringLiteral("11/03"));
    QCOMPARE(VxKit::dayAndMonth(date, QLocale(QLocale::French)), QStringLiteral("03/11"));
}

void TimeAxisTest::thereAreNoMoreTicksThanRoom_data()
{
    QTest::addColumn<qint64>("seconds");
    for (const qint64 seconds : {1LL, 60LL, 3600LL, 20000LL, 86400LL, 300000LL, 604800LL, 5000000LL,
                                 40000000LL, 3000000000LL})
        QTest::addRow("%lld seconds", static_cast<long long>(seconds)) << seconds;
}

void TimeAxisTest::thereAreNoMoreTicksThanRoom()
{
    QFETCH(const qint64, seconds);
    for (int most = 1; most < 30; ++most) {
        const auto ticks =
            timeTicks(at(3, 1, 3, 7), at(3, 1, 3, 7).addSecs(seconds), most, berlin, german);
        QVERIFY2(ticks.size() <= most + 1, qPrintable(labels(ticks).join(QLatin1Char(' '))));
        for (qsizetype tick = 1; tick < ticks.size(); ++tick)
            QVERIFY(ticks.at(tick).time > ticks.at(tick - 1).time);
    }
}

void TimeAxisTest::impossibleRangesHaveNoTicks()
{
    QVERIFY(labels(at(3, 2), at(3, 1), 5).isEmpty());
    QVERIFY(labels(at(3, 1), at(3, 2), 0).isEmpty());
    QVERIFY(labels(QDateTime::fromMSecsSinceEpoch(-(1LL << 60)), at(3, 1), 5).isEmpty());
    QVERIFY(labels(at(3, 1), QDateTime::fromMSecsSinceEpoch(1LL << 60), 5).isEmpty());
    QVERIFY(timeTicks(at(3, 1), at(3, 2), 5, QTimeZone(), german).isEmpty());
}

QTEST_APPLESS_MAIN(TimeAxisTest)

#include "tst_time_axis.moc"
