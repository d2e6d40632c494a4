// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Forecasts of real readings: what they learn from, when there is none, and when they warn.
#include "patience.h"
#include "readings_test.h"

#include <printer_forecasts.h>
#include <usage_history.h>
#include <usage_history_reader.h>

#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>

#include <atomic>

using VxKit::PrinterForecasts;
using VxKit::RemainingTime;
using VxKit::RunOutForecast;
using Reason = RunOutForecast::Reason;

class PrinterForecastsTest : public ReadingsTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() override;

    void printerThatNeverReportedHasNoEstimate();
    void rollThatTheCatalogueLacksHasNoEstimate();
    void readingsCarryEstimates();
    void estimatesAreNoChange();
    void printerThatIsGoneHasNoEstimate();
    void estimatesEndWithTheirObject();
    void learnsFromAHistory();
    void learnsFromADenseHistory();
    void warnsOnceForEachRoll();
    void warnsOfAJobThatDoesNotFit();
    void jobOfAllPrintersIsThatOfNewOnes();
    void warnsOfTheEndOfTheShift();
    void learningKeepsSettingsAndJobs();
    void warningsAreSaid();
    void survivesTheReadings();
    void mayBeDestroyedInASlot();

private:
    static inline const QString packing = QStringLiteral("Packing");
    static inline const QString key = QStringLiteral("name:Packing");
    /// 600 feet of labels of two inches and a separator: an Alder's roll.
    static inline const QByteArray roll = "00000258100039000013";

    [[nodiscard]] bool makeForecasts()
    {
        machine().addPrinter({.name = packing,
                              .driver = QStringLiteral("Stratamark BirchMax"),
                              .port = QStringLiteral("USB001")});
        if (!makeSettledController(1))
            return false;
        m_now = QDateTime(QDate(2026, 3, 4), QTime(12, 0), Qt::UTC);
        m_forecasts =
            std::make_unique<PrinterForecasts>(&makeReadings(), nullptr, [this] { return m_now; });
        connect(m_forecasts.get(), &PrinterForecasts::warned, this,
                [this](const QString& printer, const RunOutForecast::Warning& warning) {
                    m_warnings.append(printer + QLatin1Char(' ') + PrinterForecasts::text(warning));
                    if (m_isDestroyedBySlot)
                        m_forecasts.reset();
                });
        return true;
    }
    /// Publishes a roll with so many millimetres left.
    [[nodiscard]] bool load(const QByteArray& identifier, quint32 mileage)
    {
        machine().publish(packing, {PrinterValue::text("StatusCode", "1"),
                                    PrinterValue::text("SupplyIdentifier", identifier),
                                    PrinterValue::number("Mileage", mileage)});
        return settleAll(1);
    }
    /// Four weeks in which a roll of 180 m loses 6 cm an hour, day and night.
    void live(const std::function<void(const RunOutForecast::Sample&)>& take) const
    {
        RunOutForecast::Sample sample;
        sample.state = State::Loaded;
        sample.identifier = QString::fromLatin1(roll);
        constexpr int hours = 24 * 28;
        for (int hour = hours; hour > 0; --hour) {
            sample.time = m_now.addSecs(qint64(-3600) * hour);
            sample.meters = 100.0 + 0.06 * hour;
            sample.ratio = *sample.meters / 182.88;
            take(sample);
        }
    }
    std::optional<RemainingTime> estimate()
    {
        return reading(packing).estimatedSecondsRemaining(Slot::Supply);
    }
    void learn()
    {
        live([this](const RunOutForecast::Sample& sample) {
            m_forecasts->model().addSample(key, Slot::Supply, sample);
        });
    }

    std::unique_ptr<PrinterForecasts> m_forecasts;
    QDateTime m_now;
    QStringList m_warnings;
    bool m_isDestroyedBySlot = false;
};

void PrinterForecastsTest::cleanup()
{
    m_forecasts.reset();
    m_warnings.clear();
    m_isDestroyedBySlot = false;
    ReadingsTest::cleanup();
}

void PrinterForecastsTest::printerThatNeverReportedHasNoEstimate()
{
    QVERIFY(makeForecasts());
    Reason reason = Reason::None;
    QVERIFY(!m_forecasts->forecast(packing, Slot::Supply, &reason));
    QCOMPARE(reason, Reason::NeverReported);
    QVERIFY(!m_forecasts->forecast(QStringLiteral("Nowhere"), Slot::Supply, &reason));
    QCOMPARE(reason, Reason::NeverReported);
    QVERIFY(!m_forecasts->forecast(packing, Slot::Ribbon2, &reason));
    QVERIFY(!reading(packing).estimatedSecondsRemaining(Slot::Supply));
    QVERIFY(reading(packing)
                .toJson()[QStringLiteral("supply")][QStringLiteral("estimatedSecondsRemaining")]
                .isNull());
}

void PrinterForecastsTest::rollThatTheCatalogueLacksHasNoEstimate()
{
    QVERIFY(makeForecasts());
    learn();
    QVERIFY(load("00000258100999000013", 90000));
    QCOMPARE(level(packing, Slot::Supply).state, State::NotInCatalogue);
    Reason reason = Reason::None;
    QVERIFY(!m_forecasts->forecast(packing, Slot::Supply, &reason));
    QCOMPARE(reason, Reason::LevelNotKnown);
    QVERIFY(!reading(packing).estimatedSecondsRemaining(Slot::Supply));
}

void PrinterForecastsTest::readingsCarryEstimates()
{
    QVERIFY(makeForecasts());
    learn();
    QVERIFY(load(roll, 100000));
    QTRY_VERIFY_WITH_TIMEOUT(estimate().has_value(), patience);
    const auto remaining = estimate();
    // 100 m at 6 cm an hour.
    constexpr double expected = 100.0 / 0.06 * 3600;
    QVERIFY2(std::abs(remaining->p50 - expected) < 0.1 * expected,
             qPrintable(QString::number(remaining->p50 / expected)));
    QVERIFY(remaining->p10 <= remaining->p50 && remaining->p50 <= remaining->p90);
    QVERIFY(!reading(packing).estimatedSecondsRemaining(Slot::Ribbon1));

    // As JSON, and back.
    const QJsonObject json = readings().readings().first().toJson();
    const QJsonValue written =
        json[QStringLiteral("supply")][QStringLiteral("estimatedSecondsRemaining")];
    QCOMPARE(written[QStringLiteral("p50")].toDouble(), remaining->p50);
    const auto again = Reading::fromJson(json);
    QVERIFY(again.has_value());
    QCOMPARE(again->estimatedSecondsRemaining(Slot::Supply), remaining);
    QCOMPARE(again->toJson(), json);
    QVERIFY(json[QStringLiteral("ribbon1")][QStringLiteral("estimatedSecondsRemaining")].isNull());
}

void PrinterForecastsTest::estimatesAreNoChange()
{
    QVERIFY(makeForecasts());
    learn();
    QVERIFY(load(roll, 100000));
    QTRY_VERIFY_WITH_TIMEOUT(estimate().has_value(), patience);
    const Reading before = reading(packing);
    m_now = m_now.addDays(1);
    const Reading after = reading(packing);
    QVERIFY(before.estimatedSecondsRemaining(Slot::Supply) !=
            after.estimatedSecondsRemaining(Slot::Supply));
    QCOMPARE(after.differences(before), Reading::Fields());
    QVERIFY(after == before);
}

void PrinterForecastsTest::printerThatIsGoneHasNoEstimate()
{
    QVERIFY(makeForecasts());
    learn();
    QVERIFY(load(roll, 100000));
    QTRY_VERIFY_WITH_TIMEOUT(estimate().has_value(), patience);
    machine().removePrinter(packing);
    readings().refresh();
    QCOMPARE(reading(packing).presence(), Presence::Gone);
    QVERIFY(!reading(packing).estimatedSecondsRemaining(Slot::Supply));
}

void PrinterForecastsTest::estimatesEndWithTheirObject()
{
    QVERIFY(makeForecasts());
    learn();
    QVERIFY(load(roll, 100000));
    QTRY_VERIFY_WITH_TIMEOUT(estimate().has_value(), patience);
    m_forecasts.reset();
    QVERIFY(!reading(packing).estimatedSecondsRemaining(Slot::Supply));
}

void PrinterForecastsTest::learnsFromAHistory()
{
    const QTemporaryDir folder;
    QVERIFY(makeForecasts());
    VxKit::UsageHistoryOptions options;
    options.fileName = folder.filePath(QStringLiteral("history.db"));
    options.clock = [now = m_now] {
        return now;
    };
    {
        VxKit::UsageHistory history(options);
        live([&](const RunOutForecast::Sample& sample) {
            Reading reading;
            reading.setName(packing);
            reading.setModel(VXPrinting::PrinterType::BirchMax);
            VxKit::Level level;
            level.state = sample.state;
            level.identifier = sample.identifier;
            level.sku = QStringLiteral("DE-400200-WH");
            level.name = level.material = QStringLiteral("Paper");
            level.meters = sample.meters;
            level.totalMeters = 182.88;
            level.ratio = sample.ratio;
            reading.setLevel(Slot::Supply, level);
            history.record(reading, sample.time);
        });
        QVERIFY2(history.flush(QDeadlineTimer(patience)), qPrintable(history.errorString()));
    }
    QVERIFY(load(roll, 100000));
    QVERIFY(!reading(packing).estimatedSecondsRemaining(Slot::Supply));
    QVERIFY(
        !m_forecasts->learn(VxKit::UsageHistoryReader(folder.filePath(QStringLiteral("no file")))));
    QVERIFY(m_forecasts->learn(VxKit::UsageHistoryReader(options.fileName)));
    QTRY_VERIFY_WITH_TIMEOUT(estimate().has_value(), patience);
    const auto remaining = estimate();
    constexpr double expected = 100.0 / 0.06 * 3600;
    QVERIFY2(std::abs(remaining->p50 - expected) < 0.1 * expected,
             qPrintable(QString::number(remaining->p50 / expected)));
}

void PrinterForecastsTest::learnsFromADenseHistory()
{
    // Rolls of 20 m from 6 to 22 o'clock, a label of 5 cm each minute, so that 20 m are 400
    // minutes.
    const QTemporaryDir folder;
    QVERIFY(makeForecasts());
    VxKit::UsageHistoryOptions options;
    options.fileName = folder.filePath(QStringLiteral("history.db"));
    QDateTime time = m_now.addDays(-56);
    // The history asks for the time on a thread of its own.
    std::atomic<qint64> now = time.toMSecsSinceEpoch();
    options.clock = [&now] {
        return QDateTime::fromMSecsSinceEpoch(now, Qt::UTC);
    };
    options.maxQueuedSamples = 100000;
    int labels = 400;
    int rolls = 0;
    {
        VxKit::UsageHistory history(options);
        for (; time < m_now; time = time.addSecs(60)) {
            now = time.toMSecsSinceEpoch();
            if (time.time().hour() < 6 || time.time().hour() >= 22)
                continue;
            if (labels-- == 0) {
                labels = 399;
                ++rolls;
            }
            Reading reading;
            reading.setName(packing);
            reading.setModel(VXPrinting::PrinterType::BirchMax);
            VxKit::Level level;
            level.state = State::Loaded;
            level.identifier = QStringLiteral("0000025810003900%1").arg(rolls, 4, 10, QChar(u'0'));
            level.sku = QStringLiteral("DE-400200-WH");
            level.totalMeters = 20.0;
            level.meters = labels * 0.05;
            level.ratio = labels / 400.0;
            reading.setLevel(Slot::Supply, level);
            history.record(reading, time);
        }
        QVERIFY2(history.flush(QDeadlineTimer(patience)), qPrintable(history.errorString()));
    }
    QVERIFY(m_forecasts->learn(VxKit::UsageHistoryReader(options.fileName)));
    // At noon of a day, for what is left of the last roll.
    const auto known = m_forecasts->model().forecast(key, Slot::Supply, m_now);
    QVERIFY(known.has_value());
    const double truth = 60.0 * labels;
    QVERIFY2(std::abs(known->secondsLeft.p50 - truth) < 0.2 * truth,
             qPrintable(QStringLiteral("%1, not %2").arg(known->secondsLeft.p50).arg(truth)));
}

void PrinterForecastsTest::warnsOnceForEachRoll()
{
    QVERIFY(makeForecasts());
    RunOutForecast::WarningSettings settings;
    settings.labels = 100;
    m_forecasts->setWarningSettings(settings);
    learn();
    QVERIFY(load(roll, 100000));
    QVERIFY(m_warnings.isEmpty());
    // A label takes 53.975 mm: 99 labels.
    QVERIFY(load(roll, 5390));
    QTRY_VERIFY_WITH_TIMEOUT(!m_warnings.isEmpty(), patience);
    QCOMPARE(m_warnings, QStringList{QStringLiteral("Packing Supply: few labels left: 99")});
    QVERIFY(load(roll, 4000));
    QVERIFY(load(roll, 5390));
    QCOMPARE(m_warnings.size(), 1);
    // Another roll, and what is left of the old one does not count as what is on it.
    QVERIFY(load("00000258100039000014", 180000));
    QVERIFY(!reading(packing).estimatedSecondsRemaining(Slot::Supply));
    m_now = m_now.addSecs(600);
    QVERIFY(load("00000258100039000014", 540));
    QTRY_COMPARE_WITH_TIMEOUT(m_warnings.size(), 2, patience);
    QCOMPARE(m_warnings[1], QStringLiteral("Packing Supply: few labels left: 10"));
}

void PrinterForecastsTest::warnsOfAJobThatDoesNotFit()
{
    QVERIFY(makeForecasts());
    QVERIFY(load(roll, 5390));
    m_forecasts->setJob(packing, Slot::Supply, 99);
    QCoreApplication::processEvents();
    QCOMPARE(m_warnings, QStringList());
    m_forecasts->setJob(QStringLiteral("Nowhere"), Slot::Supply, 100);
    m_forecasts->setJob(packing, Slot::Supply, 100);
    QTRY_VERIFY_WITH_TIMEOUT(!m_warnings.isEmpty(), patience);
    const QString expected =
        QStringLiteral("Packing Supply: not enough for the job. Labels left: 99, needed: 100");
    QCOMPARE(m_warnings, QStringList{expected});
    // Once for each job, and not when it is asked for besides.
    QVERIFY(load(roll, 5000));
    QVERIFY(m_forecasts->takeWarnings(packing, Slot::Supply).isEmpty());
    m_forecasts->setJob(packing, Slot::Supply, 200);
    QCOMPARE(m_forecasts->takeWarnings(packing, Slot::Supply).size(), 1);
    QCoreApplication::processEvents();
    QCOMPARE(m_warnings.size(), 1);
    m_forecasts->setJob(packing, Slot::Supply, std::nullopt);
    QVERIFY(load(roll, 540));
    QCOMPARE(m_warnings.size(), 1);
}

void PrinterForecastsTest::jobOfAllPrintersIsThatOfNewOnes()
{
    const QString added = QStringLiteral("Returns");
    QVERIFY(makeForecasts());
    m_forecasts->setJob(Slot::Supply, 100);
    QVERIFY(load(roll, 5390));
    QTRY_COMPARE_WITH_TIMEOUT(m_warnings.size(), 1, patience);
    machine().addPrinter({.name = added,
                          .driver = QStringLiteral("Stratamark BirchMax"),
                          .port = QStringLiteral("USB002")});
    machine().publish(added, {PrinterValue::text("StatusCode", "1"),
                              PrinterValue::text("SupplyIdentifier", roll),
                              PrinterValue::number("Mileage", 540)});
    controller().checkForPrinters();
    readings().refresh();
    QVERIFY(settleAll(2));
    QTRY_COMPARE_WITH_TIMEOUT(m_warnings.size(), 2, patience);
    QCOMPARE(m_warnings[1], QStringLiteral("Returns Supply: not enough for the job. Labels left: "
                                           "10, needed: 100"));
}

void PrinterForecastsTest::warnsOfTheEndOfTheShift()
{
    QVERIFY(makeForecasts());
    learn();
    // At 6 cm an hour that is four hours.
    QVERIFY(load("00000258100039000014", 240));
    QTRY_VERIFY_WITH_TIMEOUT(estimate().has_value(), patience);
    const auto endIn = [this](int hours) {
        RunOutForecast::WarningSettings settings;
        settings.shiftEnds = {m_now.addSecs(qint64(3600) * hours).toLocalTime().time()};
        return settings;
    };
    m_forecasts->setWarningSettings(endIn(2));
    QCoreApplication::processEvents();
    QCOMPARE(m_warnings, QStringList());
    m_forecasts->setWarningSettings(endIn(8));
    QCoreApplication::processEvents();
    QCOMPARE(m_warnings.size(), 1);
    QVERIFY2(m_warnings[0].startsWith(
                 QStringLiteral("Packing Supply: will probably end before the shift does, at ")),
             qPrintable(m_warnings[0]));
}

void PrinterForecastsTest::learningKeepsSettingsAndJobs()
{
    const QTemporaryDir folder;
    QVERIFY(makeForecasts());
    VxKit::UsageHistoryOptions options;
    options.fileName = folder.filePath(QStringLiteral("history.db"));
    {
        VxKit::UsageHistory history(options);
        Reading reading;
        reading.setName(QStringLiteral("Another"));
        reading.setModel(VXPrinting::PrinterType::BirchMax);
        VxKit::Level level;
        level.state = State::Loaded;
        level.identifier = QString::fromLatin1(roll);
        level.meters = 10;
        level.ratio = 0.1;
        reading.setLevel(Slot::Supply, level);
        history.record(reading, m_now);
        QVERIFY2(history.flush(QDeadlineTimer(patience)), qPrintable(history.errorString()));
    }
    m_forecasts->setWarningSettings({.labels = 50, .shiftEnds = {QTime(14, 0)}});
    m_forecasts->setJob(packing, Slot::Supply, 100);
    const RunOutForecast* const model = &m_forecasts->model();
    QVERIFY(m_forecasts->learn(VxKit::UsageHistoryReader(options.fileName)));
    QCOMPARE(&m_forecasts->model(), model);
    QCOMPARE(m_forecasts->model().warningSettings().labels, 50);
    QCOMPARE(m_forecasts->model().warningSettings().shiftEnds, QList<QTime>{QTime(14, 0)});
    QVERIFY(load(roll, 5390));
    QTRY_COMPARE_WITH_TIMEOUT(m_warnings.size(), 1, patience);
}

void PrinterForecastsTest::warningsAreSaid()
{
    RunOutForecast::Warning warning;
    warning.slot = Slot::Ribbon2;
    warning.concern = RunOutForecast::Concern::JobTooLong;
    warning.labelsLeft = 40;
    warning.labelsWanted = 50;
    QCOMPARE(PrinterForecasts::text(warning),
             QStringLiteral("Ribbon 2: not enough for the job. Labels left: 40, needed: 50"));
    warning.slot = Slot::Ribbon1;
    warning.concern = RunOutForecast::Concern::EndsInShift;
    warning.shiftEnd = QDateTime(QDate(2026, 3, 4), QTime(14, 0));
    QVERIFY(PrinterForecasts::text(warning).startsWith(
        QStringLiteral("Ribbon 1: will probably end before the shift does, at ")));
}

void PrinterForecastsTest::survivesTheReadings()
{
    QVERIFY(makeForecasts());
    learn();
    endReadings();
    QVERIFY(!m_forecasts->forecast(packing, Slot::Supply));
    m_forecasts->setWarningSettings({});
    QCoreApplication::processEvents();
}

void PrinterForecastsTest::mayBeDestroyedInASlot()
{
    QVERIFY(makeForecasts());
    RunOutForecast::WarningSettings settings;
    settings.labels = 100;
    m_forecasts->setWarningSettings(settings);
    m_isDestroyedBySlot = true;
    QVERIFY(load(roll, 5390));
    QTRY_VERIFY_WITH_TIMEOUT(!m_forecasts, patience);
    QCOMPARE(m_warnings.size(), 1);
}

QTEST_GUILESS_MAIN(PrinterForecastsTest)

#include "tst_printer_forecasts.moc"
