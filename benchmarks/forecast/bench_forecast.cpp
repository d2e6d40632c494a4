// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// How good forecasts are: on plants of which it is known when each roll ends, beside a straight
// line through the last hour and one through the whole roll. And what a forecast costs.
#include "plants.h"

#include <run_out_forecast.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QTextStream>
#include <QtCore/QTimeZone>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <deque>
#include <limits>
#include <optional>
#include <vector>

using plants::Plant;
using VxKit::RunOutForecast;
using VxKit::Slot;

namespace {

constexpr double hour = 3600.0;
constexpr double leastCoverage = 0.75;
constexpr double mostCoverage = 0.90;
constexpr double updateLimit = 20.0;   // microseconds
constexpr double forecastLimit = 10.0; // milliseconds for 1000 printers
constexpr int forecastPrinters = 1000;
/// A forecast that knows nothing after so many rolls never will.
constexpr int mostRollsBefore = 1000;
/// Nobody waits longer for a new roll.
constexpr double changeOfRoll = 120.0;

const QString key = QStringLiteral("printer");
constexpr double none = std::numeric_limits<double>::infinity();

/// Microseconds that this process has had a processor for: on a busy machine, the clock on the
/// wall tells how busy it is.
double processorTime()
{
    return double(std::clock()) * 1e6 / CLOCKS_PER_SEC;
}

QDateTime dateTime(double time)
{
    return QDateTime::fromMSecsSinceEpoch(qint64(time * 1000), Qt::UTC);
}

double median(std::vector<double> values)
{
    if (values.empty())
        return none;
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// What one way to predict was wrong by, in hours; infinite where it had no answer.
struct Errors
{
    std::vector<double> hours;

    double answered() const
    {
        const auto finite = std::count_if(hours.cbegin(), hours.cend(),
                                          [](double error) { return std::isfinite(error); });
        return hours.empty() ? 0.0 : double(finite) / double(hours.size());
    }
};

/// What was found in a plant. The three have an entry for each prediction that the forecast made.
struct Findings
{
    Errors forecast;
    Errors lastHour;
    Errors wholeRoll;
    std::vector<double> left; ///< the true time until the end, in hours
    int tooEarly = 0;         ///< ended before P10
    int tooLate = 0;          ///< ended after P90
    int rolls = 0;
    int rollsBefore = 0; ///< that ended before anything was known

    double coverage() const
    {
        return 1.0 - double(tooEarly + tooLate) / double(std::max<std::size_t>(left.size(), 1));
    }
};

/// One printer, its rolls and what the forecast is told of them.
class Printer
{
public:
    Printer(const Plant& plant, const QTimeZone& zone, quint64 seed)
        : m_plant(plant)
        , m_labels(plant, zone, seed)
        , m_isRoundedDown(m_labels.chance().even() < 0.5)
        , m_count(int(plant.rollMeters / plant.labelMeters))
        , m_begin(m_labels.begin())
    {}

    /// Takes another roll, and the times at which its labels will be printed.
    void loadRoll()
    {
        const double notBefore = m_times.empty() ? m_begin : m_times.back() + changeOfRoll;
        m_loaded = notBefore;
        m_times.clear();
        for (int label = 0; label < m_count; ++label)
            m_times.push_back(m_labels.next(notBefore));
    }

    double loaded() const { return m_loaded; }
    double end() const { return m_times.back(); }
    const std::vector<double>& times() const { return m_times; }
    plants::Chance& chance() { return m_labels.chance(); }

    /// What is left after so many labels, in metres, and as the printer reports it.
    double left(int printed) const { return (m_count - printed) * m_plant.labelMeters; }
    RunOutForecast::Sample sample(int printed, double time) const
    {
        RunOutForecast::Sample sample;
        sample.time = dateTime(time);
        sample.state = VxKit::Level::State::Loaded;
        sample.identifier = QStringLiteral("00000258100039000013");
        double ratio = left(printed) / (m_count * m_plant.labelMeters);
        if (m_plant.isInPercent) {
            ratio = (m_isRoundedDown ? std::floor(ratio * 100) : std::round(ratio * 100)) / 100;
            sample.resolution = 0.01;
        }
        sample.ratio = ratio;
        sample.meters = ratio * m_count * m_plant.labelMeters;
        sample.labelMeters = m_plant.labelMeters;
        return sample;
    }
    int labels() const { return m_count; }

private:
    Plant m_plant;
    plants::Labels m_labels;
    bool m_isRoundedDown;
    int m_count;
    double m_begin;
    double m_loaded = 0.0;
    std::vector<double> m_times;
};

/// The times at which predictions are made: when so much is left for the first time, and at any
/// time between the first of these and the last.
std::vector<double> predictionTimes(Printer& printer)
{
    std::vector<double> times;
    for (int percent = 50; percent >= 10; percent -= 5)
        times.push_back(printer.times().at(std::size_t(printer.labels() * (100 - percent) / 100)));
    const double first = times.front();
    const double last = times.back();
    for (int more = 0; more < 6; ++more)
        times.push_back(first + (last - first) * printer.chance().even());
    std::sort(times.begin(), times.end());
    return times;
}

/// The time left by a straight line.
double straightLine(double used, double inTime, double left)
{
    return used > 0.0 && inTime > 0.0 ? left * inTime / used : none;
}

/// Goes through a roll. `observe(time, printed)` is called at each of the times, after what was
/// printed until then was told to the forecast.
template <typename Observe>
void goThrough(const Printer& printer, const std::vector<double>& times, RunOutForecast& forecast,
               const Observe& observe)
{
    forecast.addSample(key, Slot::Supply, printer.sample(0, printer.loaded()));
    auto next = times.cbegin();
    int printed = 0;
    double reported = 1.0;
    for (const double label : printer.times()) {
        for (; next != times.cend() && *next < label; ++next)
            observe(*next, printed);
        const RunOutForecast::Sample sample = printer.sample(++printed, label);
        // The readings tell of changes only.
        if (*sample.ratio != reported)
            forecast.addSample(key, Slot::Supply, sample);
        reported = *sample.ratio;
        for (; next != times.cend() && *next == label; ++next)
            observe(*next, printed);
    }
}

void judgePrinter(const Plant& plant, const QTimeZone& zone, quint64 seed, Findings& findings)
{
    RunOutForecast forecast(zone);
    Printer printer(plant, zone, seed);
    std::vector<double> before; // when the labels of the roll before were printed
    for (int roll = 0; roll < plant.rollsOfEach;) {
        before = printer.times();
        printer.loadRoll();
        int predictions = 0;
        goThrough(printer, predictionTimes(printer), forecast, [&](double now, int printed) {
            const auto predicted = forecast.forecast(key, Slot::Supply, dateTime(now));
            if (!predicted)
                return;
            ++predictions;
            const double truth = (printer.end() - now) / hour;
            findings.left.push_back(truth);
            findings.tooEarly += truth < predicted->secondsLeft.p10 / hour;
            findings.tooLate += truth > predicted->secondsLeft.p90 / hour;
            findings.forecast.hours.push_back(std::abs(predicted->secondsLeft.p50 / hour - truth));

            const double left = printer.left(printed);
            const auto since = [&](const std::vector<double>& times) {
                return double(std::upper_bound(times.cbegin(), times.cend(), now) -
                              std::upper_bound(times.cbegin(), times.cend(), now - hour));
            };
            const double lastHour = (since(printer.times()) + since(before)) * plant.labelMeters;
            findings.lastHour.hours.push_back(std::abs(straightLine(lastHour, 1.0, left) - truth));
            findings.wholeRoll.hours.push_back(std::abs(
                straightLine(printed * plant.labelMeters, (now - printer.loaded()) / hour, left) -
                truth));
        });
        if (predictions > 0) {
            ++findings.rolls;
            ++roll;
        } else if (++findings.rollsBefore > mostRollsBefore) {
            return;
        }
    }
}

/// The lines of a table, also of one in docs/forecast.md.
void printRow(QTextStream& out, const Plant& plant, const Findings& findings)
{
    const auto medianText = [](const Errors& errors) {
        const double value = median(errors.hours);
        return std::isfinite(value) ? QString::number(value, 'f', 2) : QStringLiteral("none");
    };
    const auto percent = [](double share) {
        return QString::number(share * 100, 'f', 1) + QStringLiteral(" %");
    };
    const auto all = double(findings.left.size());
    out << "| " << QString::fromStdString(plant.name) << " | " << findings.rolls << " | "
        << findings.left.size() << " | " << QString::number(median(findings.left), 'f', 1) << " | "
        << percent(findings.coverage()) << " | " << percent(findings.tooEarly / all) << " | "
        << percent(findings.tooLate / all) << " | " << medianText(findings.forecast) << " | "
        << medianText(findings.lastHour) << " | " << medianText(findings.wholeRoll) << " | "
        << percent(findings.lastHour.answered()) << " |" << Qt::endl;
}

/// The median error of a straight line where it has an answer, beside that of the forecast there.
struct Comparison
{
    double forecast;
    double line;
};

Comparison compare(const Errors& forecast, const Errors& line)
{
    std::vector<double> ofForecast;
    std::vector<double> ofLine;
    for (std::size_t index = 0; index < line.hours.size(); ++index) {
        if (!std::isfinite(line.hours[index]))
            continue;
        ofForecast.push_back(forecast.hours[index]);
        ofLine.push_back(line.hours[index]);
    }
    return {median(ofForecast), median(ofLine)};
}

class Verdict
{
public:
    explicit Verdict(QTextStream& out)
        : m_out(out)
    {}

    void require(bool holds, const QString& what)
    {
        m_out << "limit: " << what << (holds ? ": held" : ": MISSED") << Qt::endl;
        m_isGood = m_isGood && holds;
    }
    bool isGood() const { return m_isGood; }

private:
    QTextStream& m_out;
    bool m_isGood = true;
};

void judge(QTextStream& out, Verdict& verdict, int rolls, quint64 seed, const QTimeZone& zone)
{
    out << "| plant | rolls | predictions | median hours left | P10 to P90 holds | ends before P10 "
           "| "
           "ends after P90 | median error, forecast, hours | last hour | whole roll | last hour "
           "has an answer |\n"
           "|---|---:|---:|---:|---:|---:|---:|---:|---:|---:|---:|"
        << Qt::endl;
    std::vector<std::pair<Plant, Findings>> all;
    quint64 number = 0;
    for (const Plant& plant : plants::all(rolls)) {
        Findings findings;
        for (int printer = 0; printer < plant.printers; ++printer)
            judgePrinter(plant, zone, seed * 1000003 + ++number, findings);
        printRow(out, plant, findings);
        all.emplace_back(plant, std::move(findings));
    }
    out << Qt::endl;
    for (const auto& [plant, findings] : all) {
        const QString name = QString::fromStdString(plant.name);
        const double coverage = findings.coverage();
        verdict.require(coverage >= leastCoverage && coverage <= mostCoverage,
                        QStringLiteral("%1: P10 to P90 holds the end in %2 %, 75 to 90 expected")
                            .arg(name)
                            .arg(coverage * 100, 0, 'f', 1));
        const std::pair<const char*, const Errors*> lines[] = {
            {"the last hour", &findings.lastHour}, {"the whole roll", &findings.wholeRoll}};
        for (const auto& [line, errors] : lines) {
            const Comparison errorsWhereAnswered = compare(findings.forecast, *errors);
            verdict.require(errorsWhereAnswered.forecast < errorsWhereAnswered.line,
                            QStringLiteral("%1: median error %2 h, a line through %3 %4 h (where "
                                           "the line has an answer)")
                                .arg(name)
                                .arg(errorsWhereAnswered.forecast, 0, 'f', 2)
                                .arg(QLatin1String(line))
                                .arg(errorsWhereAnswered.line, 0, 'f', 2));
            verdict.require(median(findings.forecast.hours) < median(errors->hours),
                            QStringLiteral("%1: median error of all predictions below that of a "
                                           "line through %2")
                                .arg(name, QLatin1String(line)));
        }
    }
}

/// What one roll looked like, as comma-separated values: for the plots.
void plot(QTextStream& out, const Plant& plant, int roll, quint64 seed, const QTimeZone& zone)
{
    RunOutForecast forecast(zone);
    Printer printer(plant, zone, seed);
    out << "time,left_meters,truth_hours,p10_hours,p50_hours,p90_hours" << Qt::endl;
    for (int number = 0; number <= roll; ++number) {
        printer.loadRoll();
        std::vector<double> times;
        constexpr int points = 400;
        if (number == roll) {
            for (int point = 0; point < points; ++point)
                times.push_back(printer.loaded() +
                                (printer.end() - printer.loaded()) * point / points);
        }
        goThrough(printer, times, forecast, [&](double now, int printed) {
            const auto predicted = forecast.forecast(key, Slot::Supply, dateTime(now));
            if (!predicted)
                return;
            out << dateTime(now).toTimeZone(zone).toString(Qt::ISODate) << ','
                << printer.left(printed) << ',' << (printer.end() - now) / hour << ','
                << predicted->secondsLeft.p10 / hour << ',' << predicted->secondsLeft.p50 / hour
                << ',' << predicted->secondsLeft.p90 / hour << Qt::endl;
        });
    }
}

/// What is added to a forecast in eight weeks of a plant.
std::vector<RunOutForecast::Sample> someWeeks(const Plant& plant, const QTimeZone& zone)
{
    std::vector<RunOutForecast::Sample> samples;
    Printer printer(plant, zone, 1);
    constexpr double weeks = 8 * 7 * 24 * hour;
    double begin = 0.0;
    do {
        printer.loadRoll();
        if (samples.empty())
            begin = printer.loaded();
        samples.push_back(printer.sample(0, printer.loaded()));
        int printed = 0;
        for (const double label : printer.times())
            samples.push_back(printer.sample(++printed, label));
    } while (printer.end() < begin + weeks);
    // The last roll is half empty.
    samples.resize(samples.size() - std::size_t(printer.labels() / 2));
    return samples;
}

void measureCost(QTextStream& out, Verdict& verdict, const QTimeZone& zone)
{
    double slowestUpdate = 0.0;
    double slowestForecasts = 0.0;
    for (const Plant& plant : plants::all(1)) {
        const std::vector<RunOutForecast::Sample> samples = someWeeks(plant, zone);
        double update = none;
        double forecasts = none;
        qsizetype bytes = 0;
        qsizetype later = 0;
        for (int repetition = 0; repetition < 3; ++repetition) {
            RunOutForecast forecast(zone);
            const double start = processorTime();
            for (std::size_t index = 0; index < samples.size(); ++index) {
                forecast.addSample(key, Slot::Supply, samples[index]);
                if (index == samples.size() / 2)
                    bytes = forecast.state().size();
            }
            update = std::min(update, (processorTime() - start) / double(samples.size()));
            later = forecast.state().size();
        }
        {
            RunOutForecast forecast(zone);
            std::vector<QString> keys;
            keys.reserve(forecastPrinters);
            // A thousand printers, each with some of the samples so that they fit into a short run.
            const std::size_t step = std::max<std::size_t>(samples.size() / 300, 1);
            for (int printer = 0; printer < forecastPrinters; ++printer)
                keys.push_back(QStringLiteral("printer %1").arg(printer));
            for (const QString& name : keys) {
                for (std::size_t index = 0; index < samples.size(); index += step)
                    forecast.addSample(name, Slot::Supply, samples[index]);
            }
            int known = 0;
            const QDateTime now = samples.back().time.addSecs(1800);
            for (int repetition = 0; repetition < 10; ++repetition) {
                known = 0;
                const double start = processorTime();
                for (const QString& name : keys)
                    known += forecast.forecast(name, Slot::Supply, now).has_value();
                forecasts = std::min(forecasts, (processorTime() - start) / 1000);
            }
            out << "cost: " << QString::fromStdString(plant.name) << ", " << zone.id()
                << ": an update takes " << QString::number(update, 'f', 2) << " us, "
                << forecastPrinters << " forecasts " << QString::number(forecasts, 'f', 2)
                << " ms (" << known << " known), a slot's state has " << bytes
                << " bytes after half the samples and " << later << " at the end" << Qt::endl;
        }
        slowestUpdate = std::max(slowestUpdate, update);
        slowestForecasts = std::max(slowestForecasts, forecasts);
    }
    verdict.require(slowestUpdate < updateLimit, QStringLiteral("an update takes %1 us, at most %2")
                                                     .arg(slowestUpdate, 0, 'f', 2)
                                                     .arg(updateLimit));
    verdict.require(slowestForecasts < forecastLimit,
                    QStringLiteral("%1 forecasts take %2 ms, at most %3")
                        .arg(forecastPrinters)
                        .arg(slowestForecasts, 0, 'f', 2)
                        .arg(forecastLimit));
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Compares forecasts with the truth, in plants of which it is known."));
    parser.addHelpOption();
    const QCommandLineOption shortOption(QStringLiteral("short"),
                                         QStringLiteral("without the cost"));
    const QCommandLineOption costOption(QStringLiteral("cost"), QStringLiteral("only the cost"));
    const QCommandLineOption seedOption(QStringLiteral("seed"), QStringLiteral("the chance"),
                                        QStringLiteral("number"), QStringLiteral("1"));
    const QCommandLineOption rollsOption(QStringLiteral("rolls"),
                                         QStringLiteral("rolls of each plant"),
                                         QStringLiteral("number"), QStringLiteral("200"));
    const QCommandLineOption plotOption(
        QStringLiteral("plot"), QStringLiteral("one roll of a plant, as comma-separated values"),
        QStringLiteral("plant"));
    const QCommandLineOption rollOption(QStringLiteral("roll"),
                                        QStringLiteral("which roll to plot, from 0"),
                                        QStringLiteral("number"), QStringLiteral("12"));
    parser.addOptions({shortOption, costOption, seedOption, rollsOption, plotOption, rollOption});
    if (!parser.parse(application.arguments())) {
        QTextStream(stderr) << "bench_forecast: " << parser.errorText() << Qt::endl;
        return 2;
    }
    if (parser.isSet(QStringLiteral("help")))
        parser.showHelp();

    QTextStream out(stdout);
    bool areNumbers = true;
    const auto number = [&](const QCommandLineOption& option) {
        bool isNumber = false;
        const int value = parser.value(option).toInt(&isNumber);
        areNumbers = areNumbers && isNumber && value >= 0 && value <= 1000000;
        return value;
    };
    const auto seed = quint64(number(seedOption));
    const int rolls = number(rollsOption);
    const int roll = number(rollOption);
    if (!areNumbers) {
        QTextStream(stderr) << "bench_forecast: --seed, --rolls and --roll take a number up to a "
                               "million"
                            << Qt::endl;
        return 2;
    }
    const QTimeZone zone("Europe/Berlin");

    if (parser.isSet(plotOption)) {
        const std::vector<Plant> all = plants::all(1);
        const auto plant = std::find_if(all.cbegin(), all.cend(), [&](const Plant& one) {
            return QString::fromStdString(one.name) == parser.value(plotOption);
        });
        if (plant == all.cend()) {
            QTextStream(stderr) << "bench_forecast: there is no plant \""
                                << parser.value(plotOption) << '"' << Qt::endl;
            return 2;
        }
        plot(out, *plant, roll, seed, zone);
        return 0;
    }

    Verdict verdict(out);
    if (!parser.isSet(costOption))
        judge(out, verdict, rolls, seed, zone);
    if (!parser.isSet(shortOption)) {
        // Where local time changes, and where it does not.
        measureCost(out, verdict, zone);
        measureCost(out, verdict, QTimeZone::utc());
    }
    return verdict.isGood() ? 0 : 1;
}
