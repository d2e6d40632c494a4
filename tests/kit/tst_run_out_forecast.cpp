// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include <run_out_forecast.h>

#include <QtCore/QRandomGenerator>
#include <QtTest/QtTest>

#include <cmath>
#include <limits>

using VxKit::Level;
using VxKit::RunOutForecast;
using VxKit::Slot;
using Concern = RunOutForecast::Concern;
using Forecast = RunOutForecast::Forecast;
using Reason = RunOutForecast::Reason;
using Sample = RunOutForecast::Sample;

namespace {

const QString key = QStringLiteral("SN0001");
const QString roll = QStringLiteral("00000258100039000013");
const QString otherRoll = QStringLiteral("00000258100039000099");
constexpr int labelsOfRoll = 3000;
constexpr double labelMeters = 0.05;
constexpr double hour = 3600.0;

const QTimeZone& berlin()
{
    static const QTimeZone zone("Europe/Berlin"); // which takes long on Windows
    return zone;
}

QDateTime at(int year, int month, int day, int hourOfDay, int minute = 0)
{
    return {QDate(year, month, day), QTime(hourOfDay, minute), berlin()};
}

Sample labelsAt(const QDateTime& time, int labels, const QString& identifier = roll)
{
    Sample sample;
    sample.time = time;
    sample.state = Level::State::Loaded;
    sample.identifier = identifier;
    sample.meters = labels * labelMeters;
    sample.ratio = double(labels) / labelsOfRoll;
    sample.labelMeters = labelMeters;
    return sample;
}

Sample emptyAt(const QDateTime& time)
{
    Sample sample;
    sample.time = time;
    sample.state = Level::State::Empty;
    return sample;
}

/// A printer that prints a label a minute from Monday to Friday, from 8 to 16 o'clock, and gets a
/// new roll in the minute after the last label.
class Plant
{
public:
    explicit Plant(const QDateTime& begin)
        : time(begin)
    {
        tell();
    }

    static bool isAtWork(const QDateTime& time)
    {
        const QDateTime local = time.toTimeZone(berlin());
        return local.date().dayOfWeek() <= 5 && local.time().hour() >= 8 &&
               local.time().hour() < 16;
    }

    void runUntil(const QDateTime& end)
    {
        for (; time < end; time = time.addSecs(60)) {
            if (!isAtWork(time))
                continue;
            labels = labels > 0 ? labels - 1 : labelsOfRoll;
            if (isListening)
                tell();
        }
    }
    /// When the roll will end if nothing happens.
    QDateTime end() const
    {
        QDateTime end = time;
        for (int left = labels; left > 0; end = end.addSecs(60))
            left -= isAtWork(end) ? 1 : 0;
        return end.addSecs(-60);
    }

    /// Takes the roll out and puts another one in.
    void load(int newLabels)
    {
        forecast.addSample(key, Slot::Supply, emptyAt(time));
        labels = newLabels;
        tell();
    }
    void tell()
    {
        Sample sample = labelsAt(time, labels);
        if (isInPercent) {
            const double ratio = std::floor(*sample.ratio * 100) / 100;
            sample.ratio = ratio;
            sample.meters = ratio * labelsOfRoll * labelMeters;
            sample.resolution = 0.01;
        }
        forecast.addSample(key, Slot::Supply, sample);
    }
    std::optional<Forecast> now() const { return forecast.forecast(key, Slot::Supply, time); }
    QDateTime median() const
    {
        const auto known = now();
        return known ? time.addMSecs(qint64(known->secondsLeft.p50 * 1000)) : QDateTime();
    }
    /// By how many hours the median is too late.
    double error() const { return double(end().msecsTo(median())) / 1000 / hour; }

    RunOutForecast forecast{berlin()};
    QDateTime time;
    int labels = labelsOfRoll;
    bool isListening = true;
    bool isInPercent = false;
};

/// A plant that has been at work for five weeks, on Wednesday noon.
std::unique_ptr<Plant> knownPlant(bool isInPercent = false)
{
    auto plant = std::make_unique<Plant>(at(2024, 1, 8, 0));
    plant->isInPercent = isInPercent;
    plant->runUntil(at(2024, 2, 14, 12));
    return plant;
}

QList<Concern> concerns(RunOutForecast& forecast, const QDateTime& time)
{
    QList<Concern> result;
    for (const RunOutForecast::Warning& warning : forecast.takeWarnings(key, Slot::Supply, time))
        result.append(warning.concern);
    return result;
}

bool isInOrder(const RunOutForecast::Quantiles& quantiles)
{
    return quantiles.p10 >= 0.0 && quantiles.p10 <= quantiles.p50 &&
           quantiles.p50 <= quantiles.p90 && std::isfinite(quantiles.p90);
}

} // namespace

class RunOutForecastTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void neverReportedIsNoNumber();
    void nothingIsKnownBeforeAWeekHasPassed();
    void emptyAndUnknownLevelsAreNoNumber();
    void steadyPrinter();
    void slowSteadyPrinter();
    void lengthThatIsNotKnown();
    void nightsAndWeekendsAreSkipped();
    void printingHours();
    void usedUpRoll();
    void wholePercents();
    void newRoll();
    void rollTakenOutAndPutBack();
    void clockSetBack_data();
    void clockSetBack();
    void clockSetForwardsAndBack();
    void lateSampleIsIgnored();
    void summerTime_data();
    void summerTime();
    void hostAsleepForTwoDays_data();
    void hostAsleepForTwoDays();
    void closedPlant();
    void newPrinterAmongOthers();
    void removedPrinterIsForgotten();
    void nonsenseIsRefused();
    void anyHistoryGivesOrderedQuantiles();
    void horizon();
    void memoryIsConstant();
    void stateIsKept();
    void damagedStateIsRefused();
    void sampleOfLevel();

    void fewLabelsAreToldOnceForEachRoll();
    void warningsDoNotFlap();
    void putBackRollIsNotToldAgain();
    void warningsAreKeptInTheState();
    void jobThatDoesNotFit();
    void rollThatEndsInTheShift();
    void noWarningWithoutALevel();
};

void RunOutForecastTest::neverReportedIsNoNumber()
{
    RunOutForecast forecast(berlin());
    Reason reason = Reason::None;
    QVERIFY(!forecast.forecast(key, Slot::Supply, at(2024, 1, 8, 8), &reason));
    QCOMPARE(reason, Reason::NeverReported);

    forecast.addSample(key, Slot::Ribbon1, labelsAt(at(2024, 1, 8, 8), 100));
    QVERIFY(!forecast.forecast(key, Slot::Supply, at(2024, 1, 8, 8), &reason));
    QCOMPARE(reason, Reason::NeverReported);
    QVERIFY(forecast.takeWarnings(key, Slot::Supply, at(2024, 1, 8, 8)).isEmpty());
}

void RunOutForecastTest::nothingIsKnownBeforeAWeekHasPassed()
{
    Plant plant(at(2024, 1, 8, 0));
    for (int day = 9; day <= 14; ++day) {
        plant.runUntil(at(2024, 1, day, 0));
        Reason reason = Reason::None;
        QVERIFY(!plant.forecast.forecast(key, Slot::Supply, plant.time, &reason));
        QCOMPARE(reason, Reason::NotKnownYet);
    }
    plant.runUntil(at(2024, 1, 15, 12));
    QVERIFY(plant.now());
    QVERIFY2(std::abs(plant.error()) < 24, qPrintable(plant.median().toString(Qt::ISODate)));
}

void RunOutForecastTest::emptyAndUnknownLevelsAreNoNumber()
{
    const auto plant = knownPlant();
    QVERIFY(plant->now());
    Reason reason = Reason::None;

    plant->forecast.addSample(key, Slot::Supply, emptyAt(plant->time));
    QVERIFY(!plant->forecast.forecast(key, Slot::Supply, plant->time, &reason));
    QCOMPARE(reason, Reason::NothingLoaded);

    Sample unknown;
    unknown.time = plant->time;
    plant->forecast.addSample(key, Slot::Supply, unknown);
    QVERIFY(!plant->forecast.forecast(key, Slot::Supply, plant->time, &reason));
    QCOMPARE(reason, Reason::LevelNotKnown);

    // A roll that the catalogue lacks, so that nobody knows what is left of it.
    unknown.state = Level::State::NotInCatalogue;
    unknown.identifier = otherRoll;
    plant->forecast.addSample(key, Slot::Supply, unknown);
    QVERIFY(!plant->forecast.forecast(key, Slot::Supply, plant->time, &reason));
    QCOMPARE(reason, Reason::LevelNotKnown);

    plant->tell();
    QVERIFY(plant->forecast.forecast(key, Slot::Supply, plant->time, &reason));
    QCOMPARE(reason, Reason::None);
}

void RunOutForecastTest::steadyPrinter()
{
    const auto plant = knownPlant();
    const auto known = plant->now();
    QVERIFY(known);
    QCOMPARE(known->labelsLeft, plant->labels);
    QVERIFY(qFuzzyCompare(*known->metersLeft, plant->labels * labelMeters));
    QVERIFY(isInOrder(known->secondsLeft));
    const double truth = double(plant->time.secsTo(plant->end()));
    QVERIFY(known->secondsLeft.p10 <= truth && truth <= known->secondsLeft.p90);
    QVERIFY2(std::abs(plant->error()) < 1, qPrintable(QString::number(plant->error())));
}

void RunOutForecastTest::slowSteadyPrinter()
{
    // A millimetre each seven minutes and a half, by day and by night.
    constexpr double perHour = 0.008;
    constexpr double length = 5.0;
    const QDateTime begin = at(2024, 1, 8, 0);
    for (const int seconds : {10, 60}) {
        RunOutForecast forecast(berlin());
        for (QDateTime time = begin; time <= begin.addDays(14); time = time.addSecs(seconds)) {
            const double left = length - double(begin.secsTo(time)) / hour * perHour;
            Sample sample;
            sample.time = time;
            sample.state = Level::State::Loaded;
            sample.identifier = roll;
            sample.meters = std::floor(left * 1000) / 1000;
            forecast.addSample(key, Slot::Supply, sample);
            if (time != begin.addDays(8) && time != begin.addDays(14))
                continue;
            const auto known = forecast.forecast(key, Slot::Supply, time);
            QVERIFY(known);
            const double ratio = known->secondsLeft.p50 / hour * perHour / left;
            QVERIFY2(ratio > 0.9 && ratio < 1.1, qPrintable(QString::number(ratio)));
        }
    }
}

void RunOutForecastTest::lengthThatIsNotKnown()
{
    RunOutForecast forecast(berlin());
    Plant plant(at(2024, 1, 8, 0));
    for (; plant.time < at(2024, 2, 14, 12); plant.time = plant.time.addSecs(60)) {
        if (!Plant::isAtWork(plant.time))
            continue;
        plant.labels = plant.labels > 0 ? plant.labels - 1 : labelsOfRoll;
        Sample sample = labelsAt(plant.time, plant.labels);
        sample.meters.reset();
        sample.labelMeters.reset();
        forecast.addSample(key, Slot::Supply, sample);
    }
    const auto known = forecast.forecast(key, Slot::Supply, plant.time);
    QVERIFY(known);
    QVERIFY(!known->metersLeft);
    QVERIFY(!known->labelsLeft);
    const double truth = double(plant.time.secsTo(plant.end()));
    QVERIFY(std::abs(known->secondsLeft.p50 - truth) < hour);
}

void RunOutForecastTest::nightsAndWeekendsAreSkipped()
{
    const auto plant = knownPlant();
    plant->runUntil(at(2024, 2, 16, 15));
    plant->load(180);
    // One hour's labels are printed on Friday, the others from Monday on.
    const QDateTime median = plant->median().toTimeZone(berlin());
    QCOMPARE(median.date(), QDate(2024, 2, 19));
    QVERIFY2(std::abs(plant->error()) < 0.5, qPrintable(median.toString(Qt::ISODate)));
}

void RunOutForecastTest::printingHours()
{
    const auto plant = knownPlant();
    const auto known = plant->now();
    QVERIFY(known);
    QVERIFY(isInOrder(known->printingHoursLeft));
    const double truth = plant->labels / 60.0;
    QVERIFY2(std::abs(known->printingHoursLeft.p50 - truth) < 0.1 * truth,
             qPrintable(QString::number(known->printingHoursLeft.p50)));
}

void RunOutForecastTest::usedUpRoll()
{
    const auto plant = knownPlant();
    plant->load(0);
    const auto known = plant->now();
    QVERIFY(known);
    QCOMPARE(known->secondsLeft, RunOutForecast::Quantiles());
    QCOMPARE(known->labelsLeft, 0);
}

void RunOutForecastTest::wholePercents()
{
    const auto plant = knownPlant(true);
    // A percent lasts half an hour, and nobody knows how the printer rounds.
    QVERIFY2(std::abs(plant->error()) < 1.5, qPrintable(QString::number(plant->error())));
    const auto before = plant->now();
    QVERIFY(before);

    // A percentage that goes up and down is still the same roll.
    RunOutForecast::WarningSettings settings;
    settings.labels = labelsOfRoll;
    plant->forecast.setWarningSettings(settings);
    QCOMPARE(concerns(plant->forecast, plant->time), {Concern::FewLabels});
    for (int sample = 0; sample < 20; ++sample) {
        plant->labels += sample % 2 ? -30 : 30;
        plant->time = plant->time.addSecs(1);
        plant->tell();
        QVERIFY(concerns(plant->forecast, plant->time).isEmpty());
    }
    QVERIFY(std::abs(plant->now()->secondsLeft.p50 - before->secondsLeft.p50) < 1.5 * hour);
}

void RunOutForecastTest::newRoll()
{
    const auto plant = knownPlant();
    plant->load(labelsOfRoll);
    QVERIFY2(std::abs(plant->error()) < 1.5, qPrintable(QString::number(plant->error())));
    QCOMPARE(plant->now()->labelsLeft, labelsOfRoll);

    // Another kind of roll, with fewer labels.
    plant->forecast.addSample(key, Slot::Supply, labelsAt(plant->time, 60, otherRoll));
    const auto known = plant->now();
    QVERIFY(known);
    QVERIFY(known->secondsLeft.p50 < 1.5 * hour);
}

void RunOutForecastTest::rollTakenOutAndPutBack()
{
    const auto plant = knownPlant();
    const auto before = plant->now();
    QVERIFY(before);
    plant->time = plant->time.addSecs(60);
    plant->forecast.addSample(key, Slot::Supply, emptyAt(plant->time));
    plant->time = plant->time.addSecs(60);
    plant->forecast.addSample(key, Slot::Supply, labelsAt(plant->time, 900, otherRoll));
    plant->time = plant->time.addSecs(60);
    plant->forecast.addSample(key, Slot::Supply, emptyAt(plant->time));
    plant->time = plant->time.addSecs(60);
    plant->tell();
    const auto after = plant->now();
    QVERIFY(after);
    QCOMPARE(after->labelsLeft, before->labelsLeft);
    QVERIFY(std::abs(after->secondsLeft.p50 - before->secondsLeft.p50) < 0.25 * hour);
}

void RunOutForecastTest::clockSetBack_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::newRow("ten minutes") << qint64(600);
    QTest::newRow("an hour") << qint64(3600);
    QTest::newRow("three days") << qint64(3 * 86400);
    QTest::newRow("a year") << qint64(365 * 86400);
}

void RunOutForecastTest::clockSetBack()
{
    QFETCH(const qint64, seconds);
    const auto plant = knownPlant();
    const auto before = plant->now();
    QVERIFY(before);
    const QDateTime back = plant->time.addSecs(-seconds);

    // Before anything is reported at the new time.
    const auto asked = plant->forecast.forecast(key, Slot::Supply, back);
    QVERIFY(asked);
    QVERIFY(isInOrder(asked->secondsLeft));
    QVERIFY(asked->printingHoursLeft.p50 > 0.8 * before->printingHoursLeft.p50);
    QVERIFY(asked->printingHoursLeft.p50 < 1.25 * before->printingHoursLeft.p50);

    // The level is the new one at once, and the printer's pace is what it was.
    for (int label = 1; label <= 30; ++label)
        plant->forecast.addSample(
            key, Slot::Supply, labelsAt(back.addSecs(qint64(60) * label), plant->labels - label));
    const auto after = plant->forecast.forecast(key, Slot::Supply, back.addSecs(1800));
    QVERIFY(after);
    QCOMPARE(after->labelsLeft, plant->labels - 30);
    const double expected = before->printingHoursLeft.p50 - 0.5;
    QVERIFY2(
        std::abs(after->printingHoursLeft.p50 - expected) < 0.1 * expected,
        qPrintable(
            QStringLiteral("%1, expected %2").arg(after->printingHoursLeft.p50).arg(expected)));
}

void RunOutForecastTest::clockSetForwardsAndBack()
{
    const auto plant = knownPlant();
    const auto before = plant->now();
    QVERIFY(before);
    for (const int days : {2, 400}) {
        plant->labels -= 1;
        plant->forecast.addSample(key, Slot::Supply,
                                  labelsAt(plant->time.addDays(days), plant->labels));
        plant->time = plant->time.addSecs(60);
        plant->labels -= 1;
        plant->tell();
    }
    plant->runUntil(plant->time.addSecs(1800));
    const auto after = plant->now();
    QVERIFY(after);
    QCOMPARE(after->labelsLeft, plant->labels);
    const double expected = before->printingHoursLeft.p50 - 0.5;
    QVERIFY2(
        std::abs(after->printingHoursLeft.p50 - expected) < 0.15 * expected,
        qPrintable(
            QStringLiteral("%1, expected %2").arg(after->printingHoursLeft.p50).arg(expected)));
}

void RunOutForecastTest::lateSampleIsIgnored()
{
    const auto plant = knownPlant();
    const auto before = plant->now();
    QVERIFY(before);
    // With the level of a minute ago, and with one that would be a new roll.
    plant->forecast.addSample(key, Slot::Supply,
                              labelsAt(plant->time.addSecs(-90), plant->labels + 1));
    plant->forecast.addSample(key, Slot::Supply, labelsAt(plant->time.addSecs(-90), labelsOfRoll));
    QVERIFY(plant->now() == before);
}

void RunOutForecastTest::summerTime_data()
{
    QTest::addColumn<QDateTime>("friday");
    QTest::newRow("begins") << at(2024, 3, 29, 15);
    QTest::newRow("ends") << at(2024, 10, 25, 15);
}

/// The clocks change in the night to Sunday. The shift begins on Monday at eight o'clock all the
/// same, which is an hour earlier or later in UTC.
void RunOutForecastTest::summerTime()
{
    QFETCH(const QDateTime, friday);
    Plant plant(friday.addDays(-32));
    plant.runUntil(friday);
    plant.load(180);
    const QDateTime median = plant.median().toTimeZone(berlin());
    QCOMPARE(median.date(), friday.date().addDays(3));
    QVERIFY2(std::abs(plant.error()) < 0.25, qPrintable(median.toString(Qt::ISODate)));

    // The week after is learned as the same week.
    plant.runUntil(friday.date().addDays(8).startOfDay(berlin()));
    plant.load(180);
    QVERIFY2(std::abs(plant.error()) < 0.25, qPrintable(plant.median().toString(Qt::ISODate)));
}

void RunOutForecastTest::hostAsleepForTwoDays_data()
{
    QTest::addColumn<bool>("isPrinting");
    QTest::newRow("the printer printed") << true;
    QTest::newRow("the printer did not print") << false;
}

void RunOutForecastTest::hostAsleepForTwoDays()
{
    QFETCH(const bool, isPrinting);
    const auto plant = knownPlant();
    plant->load(labelsOfRoll);
    plant->isListening = false;
    if (isPrinting)
        plant->runUntil(plant->time.addDays(2));
    else
        plant->time = plant->time.addDays(2);
    plant->isListening = true;
    plant->tell();
    plant->runUntil(plant->time.addSecs(600));

    const auto known = plant->now();
    QVERIFY(known);
    QCOMPARE(known->labelsLeft, plant->labels);
    const double truth = double(plant->time.secsTo(plant->end()));
    QVERIFY2(known->secondsLeft.p10 <= truth && truth <= known->secondsLeft.p90,
             qPrintable(QStringLiteral("%1 is not from %2 to %3")
                            .arg(truth / hour)
                            .arg(known->secondsLeft.p10 / hour)
                            .arg(known->secondsLeft.p90 / hour)));
    const double printing = plant->labels / 60.0;
    QVERIFY2(
        std::abs(known->printingHoursLeft.p50 - printing) < 0.15 * printing,
        qPrintable(
            QStringLiteral("%1, expected %2").arg(known->printingHoursLeft.p50).arg(printing)));
}

void RunOutForecastTest::closedPlant()
{
    const auto plant = knownPlant();
    const auto before = plant->now();
    QVERIFY(before);
    // Nothing is printed for nine days. Who knows when this will end?
    plant->time = at(2024, 2, 23, 12);
    const auto closed = plant->now();
    QVERIFY(closed);
    QVERIFY(closed->secondsLeft.p50 > before->secondsLeft.p50);
    QVERIFY(closed->secondsLeft.p90 - closed->secondsLeft.p10 >
            2 * (before->secondsLeft.p90 - before->secondsLeft.p10));
    // What it takes when the printer is at work is what it was.
    QVERIFY(std::abs(closed->printingHoursLeft.p50 - before->printingHoursLeft.p50) <
            0.02 * before->printingHoursLeft.p50);

    // A day after work has begun again, the week off has been forgotten.
    plant->time = at(2024, 2, 26, 0);
    plant->runUntil(at(2024, 2, 27, 12));
    QVERIFY2(std::abs(plant->error()) < 2, qPrintable(QString::number(plant->error())));
}

void RunOutForecastTest::newPrinterAmongOthers()
{
    // Four printers of one plant, of which the last was put up on Tuesday.
    RunOutForecast forecast(berlin());
    QList<int> labels(4, labelsOfRoll);
    const QDateTime putUp = at(2024, 2, 13, 0);
    QDateTime time = at(2024, 1, 8, 0);
    const QDateTime end = at(2024, 2, 13, 14);
    for (; time < end; time = time.addSecs(60)) {
        for (int printer = 0; printer < 4; ++printer) {
            if (!Plant::isAtWork(time) || (printer == 3 && time < putUp))
                continue;
            labels[printer] = labels[printer] > 0 ? labels[printer] - 1 : labelsOfRoll;
            forecast.addSample(QString::number(printer), Slot::Supply,
                               labelsAt(time, labels[printer]));
        }
    }
    // It ends on Wednesday, not in the night.
    forecast.addSample(QStringLiteral("3"), Slot::Supply, emptyAt(time));
    forecast.addSample(QStringLiteral("3"), Slot::Supply, labelsAt(time, 240));
    const auto known = forecast.forecast(QStringLiteral("3"), Slot::Supply, time);
    QVERIFY(known);
    const QDateTime median = time.addSecs(qint64(known->secondsLeft.p50)).toTimeZone(berlin());
    QVERIFY2(std::abs(median.secsTo(at(2024, 2, 14, 10))) < qint64(2) * 3600,
             qPrintable(median.toString(Qt::ISODate)));
}

void RunOutForecastTest::removedPrinterIsForgotten()
{
    const auto plant = knownPlant();
    QVERIFY(plant->now());
    plant->forecast.remove(key);
    plant->forecast.remove(QStringLiteral("never there"));
    Reason reason = Reason::None;
    QVERIFY(!plant->forecast.forecast(key, Slot::Supply, plant->time, &reason));
    QCOMPARE(reason, Reason::NeverReported);
}

void RunOutForecastTest::nonsenseIsRefused()
{
    const auto plant = knownPlant();
    const auto before = plant->now();
    QVERIFY(before);
    plant->forecast.addSample(key, Slot::Supply, labelsAt(QDateTime(), 10));
    QVERIFY(plant->now() == before);

    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double value : {nan, infinity, -infinity, -1.0, 1e300}) {
        Sample sample = labelsAt(plant->time, 10);
        sample.meters = value;
        sample.ratio = value;
        plant->forecast.addSample(key, Slot::Supply, sample);
        Reason reason = Reason::None;
        QVERIFY(!plant->forecast.forecast(key, Slot::Supply, plant->time, &reason));
        QCOMPARE(reason, Reason::LevelNotKnown);

        sample = labelsAt(plant->time, plant->labels);
        sample.resolution = value;
        sample.labelMeters = value;
        plant->forecast.addSample(key, Slot::Supply, sample);
        const auto known = plant->now();
        QVERIFY(known);
        QVERIFY(!known->labelsLeft);
        QVERIFY(isInOrder(known->secondsLeft));
    }

    // A firmware's text of any length takes a bounded place.
    Sample sample = labelsAt(plant->time, 10, QString(1000000, QLatin1Char('x')));
    plant->forecast.addSample(key, Slot::Supply, sample);
    QVERIFY(plant->forecast.state().size() < 20000);
}

void RunOutForecastTest::anyHistoryGivesOrderedQuantiles()
{
    QRandomGenerator random(20240108);
    for (int round = 0; round < 20; ++round) {
        RunOutForecast forecast(berlin());
        QDateTime time = at(2024, 1, 1, 0);
        int labels = labelsOfRoll;
        int known = 0;
        for (int step = 0; step < 3000; ++step) {
            // Mostly seconds to days later, sometimes earlier.
            const double exponent = random.bounded(6.0);
            time = time.addSecs(qint64(std::pow(10.0, exponent)) * (random.bounded(40) ? 1 : -1));
            labels = random.bounded(100) ? std::max(0, labels - int(random.bounded(2 + round * 3)))
                                         : random.bounded(labelsOfRoll);
            Sample sample = random.bounded(50) ? labelsAt(time, labels) : emptyAt(time);
            if (round % 3 == 0 && sample.ratio) {
                sample.ratio = std::floor(*sample.ratio * 100) / 100;
                sample.meters = *sample.ratio * labelsOfRoll * labelMeters;
                sample.resolution = 0.01;
            }
            forecast.addSample(key, Slot::Supply, sample);
            const QDateTime when = time.addSecs(random.bounded(1000000) - 200000);
            if (const auto end = forecast.forecast(key, Slot::Supply, when)) {
                ++known;
                QVERIFY(isInOrder(end->secondsLeft));
                QVERIFY(isInOrder(end->printingHoursLeft));
                QVERIFY(end->secondsLeft.p90 <= RunOutForecast::horizonSeconds);
            }
        }
        QVERIFY2(known > 500, qPrintable(QString::number(known)));
    }
}

void RunOutForecastTest::horizon()
{
    // A label a week, of which there are thousands.
    RunOutForecast forecast(berlin());
    QDateTime time = at(2036, 1, 7, 10);
    int labels = labelsOfRoll;
    for (int week = 0; week < 30; ++week) {
        forecast.addSample(key, Slot::Supply, labelsAt(time, --labels));
        time = time.addDays(7);
    }
    // Exactly the horizon, at whatever time it is asked, also when the seconds since 1970 need one
    // bit more until then.
    for (int part = 0; part < 100; ++part) {
        const auto known = forecast.forecast(key, Slot::Supply, time.addMSecs(qint64(8647) * part));
        QVERIFY(known);
        QVERIFY(known->secondsLeft.p50 == RunOutForecast::horizonSeconds);
        QVERIFY(known->secondsLeft.p90 == RunOutForecast::horizonSeconds);
        QVERIFY(known->printingHoursLeft.p90 <= RunOutForecast::horizonSeconds / hour);
    }
}

void RunOutForecastTest::memoryIsConstant()
{
    Plant plant(at(2024, 1, 8, 0));
    plant.runUntil(at(2024, 3, 11, 0));
    const qsizetype early = plant.forecast.state().size();
    plant.runUntil(at(2024, 6, 10, 0));
    QCOMPARE(plant.forecast.state().size(), early);
}

void RunOutForecastTest::stateIsKept()
{
    const auto plant = knownPlant();
    plant->forecast.setJob(key, Slot::Supply, 10000);
    const QByteArray state = plant->forecast.state();

    RunOutForecast restored(berlin());
    QVERIFY(restored.restore(state));
    const auto kept = restored.forecast(key, Slot::Supply, plant->time);
    const auto known = plant->now();
    QVERIFY(kept && known);
    QCOMPARE(kept->labelsLeft, known->labelsLeft);
    QVERIFY(std::abs(kept->secondsLeft.p10 - known->secondsLeft.p10) < 60);
    QVERIFY(std::abs(kept->secondsLeft.p50 - known->secondsLeft.p50) < 60);
    QVERIFY(std::abs(kept->secondsLeft.p90 - known->secondsLeft.p90) < 60);
    QCOMPARE(restored.state().size(), state.size());
    // A job is not part of the state.
    QVERIFY(restored.takeWarnings(key, Slot::Supply, plant->time).isEmpty());
    QVERIFY(plant->forecast.restore(state));
    QCOMPARE(concerns(plant->forecast, plant->time), {Concern::JobTooLong});

    // Learning goes on as if nothing had happened.
    for (int label = 1; label <= 500; ++label) {
        const Sample sample =
            labelsAt(plant->time.addSecs(qint64(60) * label), plant->labels - label);
        plant->forecast.addSample(key, Slot::Supply, sample);
        restored.addSample(key, Slot::Supply, sample);
    }
    const QDateTime later = plant->time.addDays(1);
    const auto one = plant->forecast.forecast(key, Slot::Supply, later);
    const auto other = restored.forecast(key, Slot::Supply, later);
    QVERIFY(one && other);
    QVERIFY(std::abs(one->secondsLeft.p50 - other->secondsLeft.p50) < 60);
}

void RunOutForecastTest::damagedStateIsRefused()
{
    const auto plant = knownPlant();
    const QByteArray state = plant->forecast.state();
    const auto before = plant->now();
    RunOutForecast forecast(berlin());
    QVERIFY(!forecast.restore({}));
    QVERIFY(!forecast.restore(QByteArrayLiteral("no state")));
    QVERIFY(!forecast.restore(state + 'x'));
    for (qsizetype length = 0; length < state.size(); length += 7)
        QVERIFY(!plant->forecast.restore(state.left(length)));
    QVERIFY(plant->now() == before);

    // A forecast from damaged bytes is refused, or all its numbers are finite.
    QRandomGenerator random(7);
    for (int round = 0; round < 3000; ++round) {
        QByteArray damaged = state;
        for (int byte = 0; byte < 3; ++byte)
            damaged[random.bounded(int(damaged.size()))] = char(random.bounded(256));
        // The exponents of numbers, so that some are very small or very large.
        const QByteArray exponents = QByteArray::fromHex("0010 0100 2000 3000 3e00 4100 4300");
        for (int number = random.bounded(12); number > 0; --number)
            damaged.replace(random.bounded(int(damaged.size()) - 2), 2,
                            exponents.mid(qsizetype(2) * random.bounded(7), 2));
        if (!forecast.restore(damaged))
            continue;
        forecast.addSample(key, Slot::Supply, labelsAt(plant->time, plant->labels - 1));
        for (const int days : {0, 3, 30, 400}) {
            const QDateTime later = plant->time.addDays(days);
            if (const auto end = forecast.forecast(key, Slot::Supply, later)) {
                QVERIFY(isInOrder(end->secondsLeft));
                QVERIFY(isInOrder(end->printingHoursLeft));
                QVERIFY(end->secondsLeft.p90 <= RunOutForecast::horizonSeconds);
            }
        }
    }
}

void RunOutForecastTest::sampleOfLevel()
{
    Level level;
    level.state = Level::State::Loaded;
    level.identifier = roll;
    level.meters = 15.0;
    level.ratio = 0.5;
    level.labelPitchMeters = 0.1;
    level.labelsAcross = 2;
    const QDateTime time = at(2024, 1, 8, 8);
    Sample sample = RunOutForecast::sampleOf(level, time);
    QCOMPARE(sample.time, time);
    QCOMPARE(sample.state, level.state);
    QCOMPARE(sample.identifier, roll);
    QCOMPARE(sample.meters, level.meters);
    QCOMPARE(sample.ratio, level.ratio);
    QCOMPARE(sample.resolution, 0.0);
    QCOMPARE(sample.labelMeters, 0.05);

    level.coarse = true;
    level.labelPitchMeters.reset();
    sample = RunOutForecast::sampleOf(level, time);
    QCOMPARE(sample.resolution, 0.01);
    QVERIFY(!sample.labelMeters);
}

void RunOutForecastTest::fewLabelsAreToldOnceForEachRoll()
{
    RunOutForecast forecast(berlin());
    RunOutForecast::WarningSettings settings;
    settings.labels = 100;
    forecast.setWarningSettings(settings);
    QCOMPARE(forecast.warningSettings().labels, 100);
    QDateTime time = at(2024, 1, 8, 8);
    for (int rolls = 0; rolls < 3; ++rolls) {
        int told = 0;
        for (int labels = 300; labels >= 0; --labels) {
            time = time.addSecs(1);
            forecast.addSample(key, Slot::Supply, labelsAt(time, labels));
            const auto warnings = forecast.takeWarnings(key, Slot::Supply, time);
            for (const RunOutForecast::Warning& warning : warnings) {
                ++told;
                QCOMPARE(warning.concern, Concern::FewLabels);
                QCOMPARE(warning.key, key);
                QCOMPARE(warning.slot, Slot::Supply);
                QCOMPARE(warning.labelsLeft, 99);
                QCOMPARE(warning.labelsWanted, 100);
                // Nothing is known of the time, but the labels are.
                QVERIFY(!warning.forecast);
            }
        }
        QCOMPARE(told, 1);
    }
    // A new roll that has too few labels is told of too.
    forecast.addSample(key, Slot::Supply, labelsAt(time, 50, otherRoll));
    QCOMPARE(concerns(forecast, time), {Concern::FewLabels});
}

void RunOutForecastTest::warningsDoNotFlap()
{
    RunOutForecast forecast(berlin());
    RunOutForecast::WarningSettings settings;
    settings.labels = 100;
    forecast.setWarningSettings(settings);
    QDateTime time = at(2024, 1, 8, 8);
    forecast.addSample(key, Slot::Supply, labelsAt(time, 120));
    QVERIFY(concerns(forecast, time).isEmpty());

    // The level moves around the mark: within what is the same roll, and so far that it might be
    // another one.
    int told = 0;
    QRandomGenerator random(3);
    for (int sample = 0; sample < 2000; ++sample) {
        time = time.addSecs(1);
        const int labels =
            sample < 1000 ? 85 + int(random.bounded(30)) : 40 + int(random.bounded(70));
        forecast.addSample(key, Slot::Supply, labelsAt(time, labels));
        told += int(concerns(forecast, time).size());
    }
    QCOMPARE(told, 1);

    // A roll that is surely another one is told of again.
    forecast.addSample(key, Slot::Supply, labelsAt(time, labelsOfRoll));
    QVERIFY(concerns(forecast, time).isEmpty());
    forecast.addSample(key, Slot::Supply, labelsAt(time, 99));
    QCOMPARE(concerns(forecast, time), {Concern::FewLabels});
}

void RunOutForecastTest::putBackRollIsNotToldAgain()
{
    RunOutForecast forecast(berlin());
    RunOutForecast::WarningSettings settings;
    settings.labels = 100;
    forecast.setWarningSettings(settings);
    const QDateTime time = at(2024, 1, 8, 8);
    forecast.addSample(key, Slot::Supply, labelsAt(time, 110));
    forecast.addSample(key, Slot::Supply, labelsAt(time, 99));
    QCOMPARE(concerns(forecast, time), {Concern::FewLabels});
    for (int turn = 0; turn < 5; ++turn) {
        const QDateTime then = at(2024, 1, 8, 9, turn);
        forecast.addSample(key, Slot::Supply, emptyAt(then));
        QVERIFY(concerns(forecast, then).isEmpty());
        // Another kind, and a new roll of the same kind.
        forecast.addSample(key, Slot::Supply, labelsAt(then, 2000 - turn, otherRoll));
        forecast.addSample(key, Slot::Supply, emptyAt(then));
        forecast.addSample(key, Slot::Supply, labelsAt(then, labelsOfRoll));
        QVERIFY(concerns(forecast, then).isEmpty());
        forecast.addSample(key, Slot::Supply, emptyAt(then));
        forecast.addSample(key, Slot::Supply, labelsAt(then, 99 - turn));
        QVERIFY(concerns(forecast, then).isEmpty());
    }
}

void RunOutForecastTest::warningsAreKeptInTheState()
{
    RunOutForecast forecast(berlin());
    RunOutForecast::WarningSettings settings;
    settings.labels = 100;
    forecast.setWarningSettings(settings);
    const QDateTime time = at(2024, 1, 8, 8);
    forecast.addSample(key, Slot::Supply, labelsAt(time, 99));
    QCOMPARE(concerns(forecast, time), {Concern::FewLabels});

    RunOutForecast restored(berlin());
    restored.setWarningSettings(settings);
    QVERIFY(restored.restore(forecast.state()));
    restored.addSample(key, Slot::Supply, labelsAt(time.addSecs(5), 98));
    QVERIFY(concerns(restored, time.addSecs(5)).isEmpty());
}

void RunOutForecastTest::jobThatDoesNotFit()
{
    RunOutForecast forecast(berlin());
    QDateTime time = at(2024, 1, 8, 8);
    forecast.setJob(key, Slot::Supply, 400);
    QVERIFY(concerns(forecast, time).isEmpty());
    forecast.addSample(key, Slot::Supply, labelsAt(time, 300));
    const auto warnings = forecast.takeWarnings(key, Slot::Supply, time);
    QCOMPARE(warnings.size(), 1);
    QCOMPARE(warnings.first().concern, Concern::JobTooLong);
    QCOMPARE(warnings.first().labelsLeft, 300);
    QCOMPARE(warnings.first().labelsWanted, 400);

    forecast.setJob(key, Slot::Supply, 400);
    QVERIFY(concerns(forecast, time).isEmpty());
    forecast.setJob(key, Slot::Supply, 200);
    QVERIFY(concerns(forecast, time).isEmpty());
    forecast.setJob(key, Slot::Supply, 301);
    QCOMPARE(concerns(forecast, time), {Concern::JobTooLong});
    forecast.setJob(key, Slot::Supply, std::nullopt);
    forecast.addSample(key, Slot::Supply, labelsAt(time.addSecs(1), 1));
    QVERIFY(concerns(forecast, time).isEmpty());
}

void RunOutForecastTest::rollThatEndsInTheShift()
{
    const auto plant = knownPlant();
    RunOutForecast::WarningSettings settings;
    settings.shiftEnds = {QTime(16, 0)};
    plant->forecast.setWarningSettings(settings);

    // It is noon, so that 240 labels last until the end of the shift.
    plant->load(400);
    QVERIFY(concerns(plant->forecast, plant->time).isEmpty());
    plant->load(150);
    const auto warnings = plant->forecast.takeWarnings(key, Slot::Supply, plant->time);
    QCOMPARE(warnings.size(), 1);
    QCOMPARE(warnings.first().concern, Concern::EndsInShift);
    QCOMPARE(warnings.first().shiftEnd, at(2024, 2, 14, 16));
    QVERIFY(warnings.first().forecast);
    plant->runUntil(plant->time.addSecs(3600));
    QVERIFY(concerns(plant->forecast, plant->time).isEmpty());

    // The next roll, the next day.
    plant->load(labelsOfRoll);
    QVERIFY(concerns(plant->forecast, plant->time).isEmpty());
    plant->runUntil(at(2024, 2, 15, 12));
    plant->load(140);
    QCOMPARE(concerns(plant->forecast, plant->time), {Concern::EndsInShift});
}

void RunOutForecastTest::noWarningWithoutALevel()
{
    RunOutForecast forecast(berlin());
    RunOutForecast::WarningSettings settings;
    settings.labels = 100;
    settings.shiftEnds = {QTime(16, 0), QTime()};
    forecast.setWarningSettings(settings);
    const QDateTime time = at(2024, 1, 8, 8);
    forecast.setJob(key, Slot::Supply, 100);
    forecast.addSample(key, Slot::Supply, emptyAt(time));
    QVERIFY(concerns(forecast, time).isEmpty());
    // A supply without labels.
    Sample sample = labelsAt(time, 10);
    sample.labelMeters.reset();
    forecast.addSample(key, Slot::Supply, sample);
    QVERIFY(concerns(forecast, time).isEmpty());
}

QTEST_GUILESS_MAIN(RunOutForecastTest)
#include "tst_run_out_forecast.moc"
