// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_reading.h"
#include "vxprinterstatuskit_export.h"

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QTime>
#include <QtCore/QTimeZone>
#include <QtCore/QtGlobal>

#include <memory>
#include <optional>

namespace VxKit {

/// When the rolls and ribbons of printers will end.
///
/// It is told what is left in each slot, and learns from that how much each printer uses in each
/// hour of the week, how evenly, and how this changes. From then on it says for each slot when
/// what is left will have been used up: as a time that is as likely too early as too late, and
/// with the times between which it will be in four of five cases. docs/forecast.md describes how.
///
/// @code
/// VxKit::RunOutForecast forecast;
/// QObject::connect(&readings, &VxKit::PrinterReadings::changed, [&](const QString& name) {
///     const VxKit::PrinterReading reading = readings.reading(name);
///     const QDateTime now = QDateTime::currentDateTimeUtc();
///     forecast.addSample(name, VxKit::Slot::Supply,
///                        VxKit::RunOutForecast::sampleOf(reading.level(VxKit::Slot::Supply),
///                        now));
///     if (const auto end = forecast.forecast(name, VxKit::Slot::Supply, now))
///         qInfo() << name << "lasts until about" << now.addSecs(qint64(end->secondsLeft.p50));
/// });
/// @endcode
///
/// A printer is known by a key of the host's choice: its serial number, or its name if it has none.
/// Each slot of each printer takes the same few kilobytes, however long it is followed. What was
/// learned can be kept as bytes, or be learned again from old samples.
///
/// Samples are added as they come, those of one slot in the order of their times. Clocks are not
/// trusted: nothing is learned from a time that lies before that of the sample before it, or more
/// than eight weeks after it.
///
/// An object may be used on one thread at a time.
class VX_KIT_EXPORT RunOutForecast
{
public:
    /// What was in a slot at one time.
    struct VX_KIT_EXPORT Sample
    {
        QDateTime time;
        /// `NotKnown` and `Empty` take nothing from a roll: it may be put back.
        Level::State state = Level::State::NotKnown;
        /// What the printer reports to be loaded.
        QString identifier;
        /// What is left, in metres.
        std::optional<double> meters;
        /// What is left, from 0 to 1. One of the two is enough.
        std::optional<double> ratio;
        /// In what steps the ratio is reported: 0.01 for whole percents, 0 for a length in
        /// millimetres.
        double resolution = 0.0;
        /// What one label takes of the roll, in metres: with its separator, and divided by the
        /// number of labels side by side.
        std::optional<double> labelMeters;
    };

    /// A number of which only this is known: with a probability of 10, 50 and 90 percent it is at
    /// most as large as this.
    struct Quantiles
    {
        double p10 = 0.0;
        double p50 = 0.0;
        double p90 = 0.0;

        bool operator==(const Quantiles&) const = default;
    };

    /// What is left on a slot, and how long it will last.
    struct Forecast
    {
        /// What is left, as it was last reported; empty when the length of the roll is not known.
        std::optional<double> metersLeft;
        /// The number of whole labels that are left.
        std::optional<int> labelsLeft;
        /// Until the end, on the clock. `horizonSeconds` stands for then or later.
        Quantiles secondsLeft;
        /// Until the end, in hours in which the printer is as busy as in a usual hour of work. No
        /// more than the hours until the horizon.
        Quantiles printingHoursLeft;

        bool operator==(const Forecast&) const = default;
    };

    /// Why there is no forecast.
    enum class Reason
    {
        None,          ///< there is one
        NeverReported, ///< no sample of this slot has been added
        NothingLoaded, ///< the printer reports that nothing is loaded
        LevelNotKnown, ///< it is not known what is loaded, or what is left of it
        NotKnownYet,   ///< too little has been used so far to say how fast
    };

    enum class Concern
    {
        FewLabels,  ///< fewer labels are left than `WarningSettings::labels`
        JobTooLong, ///< fewer labels are left than `setJob()` says the job needs
        EndsInShift ///< the roll is more likely to end before the end of the shift than after it
    };

    /// Why a person should look at a slot before it is empty.
    struct Warning
    {
        QString key;
        Slot slot = Slot::Supply;
        Concern concern = Concern::FewLabels;
        /// What is left. Empty for a slot in which labels are not counted.
        std::optional<int> labelsLeft;
        /// How many labels there should be.
        std::optional<int> labelsWanted;
        /// When the roll will end; empty when that is not known yet.
        std::optional<Forecast> forecast;
        /// The end of the shift, for `EndsInShift`.
        QDateTime shiftEnd;
    };

    /// When to warn. What is empty warns of nothing.
    struct WarningSettings
    {
        /// Warns when fewer labels are left.
        std::optional<int> labels;
        /// When shifts end, in the forecast's time zone. Warns when a roll will not last until the
        /// next of them.
        QList<QTime> shiftEnds;
    };

    /// Forecasts reach no further: two years.
    static constexpr double horizonSeconds = 2.0 * 365 * 24 * 3600;

    /// The hours of the week are those of `zone`.
    explicit RunOutForecast(const QTimeZone& zone = QTimeZone::systemTimeZone());
    ~RunOutForecast();
    Q_DISABLE_COPY_MOVE(RunOutForecast)

    /// The sample of a reading's level at a time.
    static Sample sampleOf(const Level& level, const QDateTime& time);

    /// Takes what is in a slot. Adding what was added before at a later time says that nothing was
    /// used in between; it need not be added for that. A sample with an invalid time, and one that
    /// is older than the last by less than two minutes, is ignored.
    void addSample(const QString& key, Slot slot, const Sample& sample);

    /// When what is left in a slot will have been used up; empty, with the reason in `*reason`,
    /// when that is not known.
    std::optional<Forecast> forecast(const QString& key, Slot slot, const QDateTime& now,
                                     Reason* reason = nullptr) const;

    void setWarningSettings(const WarningSettings& settings);
    WarningSettings warningSettings() const;
    /// How many labels the job needs that is to be printed next from this slot; empty for no job.
    void setJob(const QString& key, Slot slot, std::optional<int> labels);

    /// The warnings that have become due for a slot since they were last asked for. Each concern is
    /// told once for each roll, also when the roll is taken out and put back or what is left of it
    /// goes up and down. `JobTooLong` is told once for each job.
    QList<Warning> takeWarnings(const QString& key, Slot slot, const QDateTime& now);

    /// Forgets a printer.
    void remove(const QString& key);

    /// What was learned and what is loaded, without settings and jobs.
    QByteArray state() const;
    /// Takes up what `state()` returned, in place of everything that was learned since. False when
    /// the bytes are no such state, or one of a newer version: then nothing changes.
    bool restore(const QByteArray& state);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace VxKit
