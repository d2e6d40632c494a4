// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "forecast_words.h"

#include "command_line.h"

#include <run_out_forecast.h>

#include <QtTest/QtTest>

class ForecastWordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void durationsAreShort_data();
    void durationsAreShort();
    void warningsAreThoseOfTheCommandLine();
};

void ForecastWordsTest::durationsAreShort_data()
{
    constexpr double hour = 3600;
    constexpr double day = 24 * hour;
    QTest::addColumn<double>("seconds");
    QTest::addColumn<QString>("expected");
    QTest::newRow("nothing") << 0.0 << QStringLiteral("0 min");
    QTest::newRow("seconds") << 29.0 << QStringLiteral("0 min");
    QTest::newRow("minutes") << 119.0 * 60 << QStringLiteral("119 min");
    QTest::newRow("two hours") << 2 * hour << QStringLiteral("2 h");
    QTest::newRow("hours") << 47 * hour << QStringLiteral("47 h");
    QTest::newRow("two days") << 2 * day << QStringLiteral("2 d");
    QTest::newRow("rounded") << 2.6 * day << QStringLiteral("3 d");
    QTest::newRow("before the horizon")
        << VxKit::RunOutForecast::horizonSeconds - 1 << QStringLiteral("730 d");
    QTest::newRow("horizon") << VxKit::RunOutForecast::horizonSeconds
                             << QStringLiteral("over 2 years");
}

void ForecastWordsTest::durationsAreShort()
{
    QFETCH(const double, seconds);
    QFETCH(const QString, expected);
    QCOMPARE(forecast_words::duration(seconds), expected);
}

void ForecastWordsTest::warningsAreThoseOfTheCommandLine()
{
    const auto settingsOf = [](const QStringList& arguments, std::optional<int> fewLabels) {
        return forecast_words::warningSettings(
            parseCommandLine(QStringList{QStringLiteral("vxprintmon"), QStringLiteral("watch")} +
                             arguments),
            fewLabels);
    };
    QCOMPARE(settingsOf({}, 100).labels, 100);
    QCOMPARE(settingsOf({}, std::nullopt).labels, std::nullopt);
    const QString below = QStringLiteral("--warn-below");
    QCOMPARE(settingsOf({below, QStringLiteral("7")}, 100).labels, 7);
    QCOMPARE(settingsOf({below, QStringLiteral("0")}, 100).labels, std::nullopt);
    QCOMPARE(settingsOf({}, 100).shiftEnds, QList<QTime>());
    QCOMPARE(settingsOf({QStringLiteral("--shift-end"), QStringLiteral("6:00, 14:00,22:30")}, 100)
                 .shiftEnds,
             (QList<QTime>{QTime(6, 0), QTime(14, 0), QTime(22, 30)}));
}

QTEST_GUILESS_MAIN(ForecastWordsTest)
#include "tst_forecast_words.moc"
