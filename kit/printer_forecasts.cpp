// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_forecasts.h"

#include "printer_level.h"
#include "printer_readings.h"
#include "slot_text.h"
#include "usage_history.h"
#include "usage_history_reader.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>
#include <QtCore/QLocale>
#include <QtCore/QMap>
#include <QtCore/QPointer>
#include <QtCore/QSet>
#include <QtCore/QTimer>

#include <algorithm>
#include <cstdlib>
#include <set>
#include <utility>

namespace VxKit {

using Concern = RunOutForecast::Concern;
using Forecast = RunOutForecast::Forecast;
using Reason = RunOutForecast::Reason;
using Warning = RunOutForecast::Warning;
using Presence = PrinterReading::Presence;

namespace {

/// How often it is checked whether a roll still lasts until the end of the shift.
constexpr int minute = 60'000; // milliseconds
/// How long a printer with another roll may take to report everything about it.
constexpr int settlingTime = 500; // milliseconds
/// Of a history, the last day is learned from change by change, and what was before from so many
/// hours in which something changed. More would take long and say little more.
constexpr qint64 secondsInHour = 3600;
constexpr qint64 learnedInDetail = 24 * secondsInHour;
constexpr int mostHoursLearned = 1500;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(VxKit::PrinterForecasts)
};

RunOutForecast::Sample sampleOf(const UsageSample& recorded)
{
    RunOutForecast::Sample sample;
    sample.time = recorded.time;
    sample.state = Level::State::Loaded;
    sample.identifier = recorded.identifier;
    sample.meters = recorded.meters;
    sample.ratio = recorded.ratio;
    sample.resolution = recorded.coarse ? coarseStep : 0.0;
    sample.labelMeters = recorded.labelMeters;
    return sample;
}

/// What is to be learned from the samples of a slot: the last one of each hour, and the first and
/// the last one of each roll.
QList<UsageSample> worthLearning(const QList<UsageSample>& all)
{
    const auto secondsOf = [](const UsageSample& sample) {
        return sample.time.toSecsSinceEpoch();
    };
    QList<UsageSample> worth;
    int hours = 0;
    for (qsizetype i = all.size(); i-- > 0 && hours < mostHoursLearned;) {
        const UsageSample& sample = all.at(i);
        const bool isRecent =
            std::abs(secondsOf(all.last()) - secondsOf(sample)) <= learnedInDetail;
        const bool isAtEndOfRoll = i + 1 == all.size() || all.at(i + 1).segment != sample.segment;
        const bool isAtBeginOfRoll = i == 0 || all.at(i - 1).segment != sample.segment;
        if (!isRecent && !isAtEndOfRoll && !isAtBeginOfRoll &&
            secondsOf(sample) / secondsInHour == secondsOf(worth.last()) / secondsInHour)
            continue;
        hours += isRecent ? 0 : 1;
        worth.append(sample);
    }
    std::ranges::reverse(worth);
    return worth;
}

} // namespace

class PrinterForecasts::Private
{
public:
    Private(PrinterForecasts& forecasts, PrinterReadings* printerReadings, const Clock& clock)
        : readings(printerReadings)
        , m_q(forecasts)
        , m_clock(clock)
    {
        m_minutes.setInterval(minute);
        connect(&m_minutes, &QTimer::timeout, &m_q, [this] { warnAll(); });
        if (!readings)
            return;
        hearAll();
        m_settling.setSingleShot(true);
        m_settling.setInterval(settlingTime);
        connect(&m_settling, &QTimer::timeout, &m_q, [this] { settle(); });
        const auto listen = [this](const QString& name) {
            onReport(readings->reading(name));
        };
        connect(readings, &PrinterReadings::changed, &m_q, listen);
        connect(readings, &PrinterReadings::added, &m_q, [this, listen](const QString& name) {
            const QString key = UsageHistory::printerKey(readings->reading(name));
            for (auto job = m_jobs.cbegin(); job != m_jobs.cend(); ++job)
                model.setJob(key, job.key(), job.value());
            listen(name);
        });
        readings->setEstimator(
            [this](const PrinterReading& reading, Slot slot) { return remaining(reading, slot); });
        m_isEstimating = true;
    }
    ~Private()
    {
        if (readings && m_isEstimating)
            readings->setEstimator({});
    }
    Q_DISABLE_COPY_MOVE(Private)

    QDateTime now() const { return m_clock ? m_clock() : QDateTime::currentDateTimeUtc(); }

    std::optional<Forecast> forecastOf(const PrinterReading& reading, Slot slot,
                                       Reason* reason) const
    {
        if (reading.isNull() || !reading.hasSlot(slot)) {
            if (reason)
                *reason = Reason::NeverReported;
            return std::nullopt;
        }
        return model.forecast(UsageHistory::printerKey(reading), slot, now(), reason);
    }

    bool learn(const UsageHistoryReader& history)
    {
        RunOutForecast fresh;
        std::set<std::pair<QString, Slot>> known;
        for (const QList<UsageSegment> all = history.segments(); const UsageSegment& segment : all)
            known.emplace(segment.printerKey, segment.slot);
        for (const auto& [key, slot] : known) {
            for (const QList<UsageSample> all = worthLearning(history.samples(key, slot));
                 const UsageSample& sample : all)
                fresh.addSample(key, slot, sampleOf(sample));
        }
        model.restore(fresh.state());
        hearAll();
        return !known.empty();
    }

    void setJobOfAll(Slot slot, std::optional<int> labels)
    {
        m_jobs[slot] = labels;
        if (!readings)
            return;
        for (const QList<PrinterReading> all = readings->readings();
             const PrinterReading& reading : all)
            model.setJob(UsageHistory::printerKey(reading), slot, labels);
    }

    QList<Warning> warningsOf(const PrinterReading& reading, Slot slot)
    {
        if (reading.isNull())
            return {};
        return model.takeWarnings(UsageHistory::printerKey(reading), slot, now());
    }

    void warnLater()
    {
        QMetaObject::invokeMethod(
            &m_q, [this] { warnAll(); }, Qt::QueuedConnection);
    }

    void watchShifts(bool hasShifts)
    {
        if (hasShifts)
            m_minutes.start();
        else
            m_minutes.stop();
    }

    void warnAll()
    {
        const QPointer<PrinterForecasts> self(&m_q);
        if (!readings)
            return;
        for (const QList<PrinterReading> all = readings->readings();
             const PrinterReading& reading : all) {
            warn(reading);
            if (!self)
                return;
        }
    }

    const QPointer<PrinterReadings> readings;
    RunOutForecast model;

private:
    std::optional<RemainingTime> remaining(const PrinterReading& reading, Slot slot) const
    {
        // What was loaded when the printer went is not known to be loaded now.
        const Level level = reading.level(slot);
        if (level.state == Level::State::NotKnown || level.state == Level::State::Empty ||
            level.identifier !=
                m_heard.value(UsageHistory::printerKey(reading)).value(slotName(slot)))
            return std::nullopt;
        const auto found = forecastOf(reading, slot, nullptr);
        if (!found)
            return std::nullopt;
        const RunOutForecast::Quantiles& seconds = found->secondsLeft;
        return RemainingTime{seconds.p10, seconds.p50, seconds.p90};
    }

    void hearAll()
    {
        if (!readings)
            return;
        for (const QList<PrinterReading> all = readings->readings();
             const PrinterReading& reading : all)
            hear(reading);
    }

    using Identifiers = QHash<QString, QString>; ///< by the name of the slot

    static Identifiers identifiersOf(const PrinterReading& reading)
    {
        Identifiers identifiers;
        for (const QList<Slot> all = reading.slotList(); const Slot slot : all)
            identifiers.insert(slotName(slot), reading.level(slot).identifier);
        return identifiers;
    }

    /// A printer with another roll reports what it is before it reports how much is on it. Until
    /// then, what was left of the old roll would count as what is on the new one.
    void onReport(const PrinterReading& reading)
    {
        const auto heard = m_heard.constFind(UsageHistory::printerKey(reading));
        if (heard != m_heard.cend() && *heard != identifiersOf(reading))
            m_unsettled.insert(reading.name());
        if (!m_unsettled.contains(reading.name())) {
            hear(reading);
            warn(reading);
        } else if (!m_settling.isActive()) {
            m_settling.start();
        }
    }

    void settle()
    {
        const QPointer<PrinterForecasts> self(&m_q);
        for (const QSet<QString> names = std::exchange(m_unsettled, {});
             const QString& name : names) {
            if (!readings)
                return;
            const PrinterReading reading = readings->reading(name);
            hear(reading);
            warn(reading);
            if (!self)
                return;
        }
    }

    void hear(const PrinterReading& reading)
    {
        // A printer that has not reported says nothing, not that nothing is loaded.
        if (reading.isNull() || reading.presence() == Presence::Gone ||
            !reading.lastReport().isValid())
            return;
        const QString key = UsageHistory::printerKey(reading);
        m_heard.insert(key, identifiersOf(reading));
        for (const Slot slot : reading.slotList())
            model.addSample(key, slot, RunOutForecast::sampleOf(reading.level(slot), now()));
    }

    void warn(const PrinterReading& reading)
    {
        const QPointer<PrinterForecasts> self(&m_q);
        for (const QList<Slot> all = reading.slotList(); const Slot slot : all) {
            for (const QList<Warning> due = warningsOf(reading, slot);
                 const Warning& warning : due) {
                Q_EMIT m_q.warned(reading.name(), warning);
                if (!self)
                    return;
            }
        }
    }

    PrinterForecasts& m_q;
    const Clock m_clock;
    QTimer m_minutes;
    QTimer m_settling;
    QHash<QString, Identifiers> m_heard;   ///< what was loaded, by the printer's key
    QSet<QString> m_unsettled;             ///< the names of printers with another roll
    QMap<Slot, std::optional<int>> m_jobs; ///< of all printers
    bool m_isEstimating = false;
};

PrinterForecasts::PrinterForecasts(PrinterReadings* readings, QObject* parent, const Clock& clock)
    : QObject(parent)
    , d(std::make_unique<Private>(*this, readings, clock))
{}

PrinterForecasts::~PrinterForecasts() = default;

bool PrinterForecasts::learn(const UsageHistoryReader& history)
{
    return d->learn(history);
}

std::optional<Forecast> PrinterForecasts::forecast(const QString& printer, Slot slot,
                                                   Reason* reason) const
{
    return d->forecastOf(d->readings ? d->readings->reading(printer) : PrinterReading(), slot,
                         reason);
}

RunOutForecast& PrinterForecasts::model()
{
    return d->model;
}

void PrinterForecasts::setWarningSettings(const RunOutForecast::WarningSettings& settings)
{
    d->model.setWarningSettings(settings);
    d->watchShifts(!settings.shiftEnds.isEmpty());
    d->warnLater();
}

void PrinterForecasts::setJob(const QString& printer, Slot slot, std::optional<int> labels)
{
    if (!d->readings)
        return;
    const PrinterReading reading = d->readings->reading(printer);
    if (reading.isNull())
        return;
    d->model.setJob(UsageHistory::printerKey(reading), slot, labels);
    d->warnLater();
}

void PrinterForecasts::setJob(Slot slot, std::optional<int> labels)
{
    d->setJobOfAll(slot, labels);
    d->warnLater();
}

QList<Warning> PrinterForecasts::takeWarnings(const QString& printer, Slot slot)
{
    const PrinterReading reading = d->readings ? d->readings->reading(printer) : PrinterReading();
    return d->warningsOf(reading, slot);
}

QString PrinterForecasts::text(const Warning& warning)
{
    const QString slot = slotText(warning.slot);
    const QString left = QString::number(warning.labelsLeft.value_or(0));
    const QString wanted = QString::number(warning.labelsWanted.value_or(0));
    switch (warning.concern) {
    case Concern::FewLabels:
        return Text::tr("%1: few labels left: %2").arg(slot, left);
    case Concern::JobTooLong:
        return Text::tr("%1: not enough for the job. Labels left: %2, needed: %3")
            .arg(slot, left, wanted);
    case Concern::EndsInShift:
        return Text::tr("%1: will probably end before the shift does, at %2")
            .arg(slot,
                 QLocale().toString(warning.shiftEnd.toLocalTime().time(), QLocale::ShortFormat));
    }
    return {};
}

} // namespace VxKit
